/// \file
/// The files of the cases, written through HDF5's C interface alone. The number of a case is all that it depends on.
/// One thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A tree of the right shape with wrong leaves, links and names in a few places. Some links need the foreign file.
/// Throws: std::runtime_error when HDF5 cannot make the file.
void WriteStructuredCase(const std::string& path, std::uint64_t number);

/// The file of another program in the same folder, which external links of structured cases lead into.
constexpr const char* kForeignFile = "foreign.hdf5";

/// The link in it that leads back.
constexpr const char* kWayBack = "/BACK";

/// Makes the foreign file: a sound job with all keys, and kWayBack to the "/PARFILE" of the file \p back_to.
void WriteForeignFile(const std::string& back_to);

/// So many of the sound files are whole jobs.
constexpr std::size_t kWholeJobs = 3;

/// The sound files that mutated cases start from, as bytes, the whole jobs last. They are made at \p path.
std::vector<std::string> SoundFiles(const std::string& path);

/// A sound file with some of its bytes changed.
void WriteMutatedCase(const std::string& path, const std::vector<std::string>& sound_files, std::uint64_t number);
