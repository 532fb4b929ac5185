/// \file
/// The files of the cases, written through HDF5's C interface alone. The number of a case is all that it depends on.
/// One thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A tree of the right shape with wrong leaves, links and names in a few places.
/// Throws: std::runtime_error when HDF5 cannot make the file.
void WriteStructuredCase(const std::string& path, std::uint64_t number);

/// So many of the sound files are whole jobs.
constexpr std::size_t kWholeJobs = 3;

/// The sound files that mutated cases start from, as bytes, the whole jobs last. They are made at \p path.
std::vector<std::string> SoundFiles(const std::string& path);

/// A sound file with some of its bytes changed.
void WriteMutatedCase(const std::string& path, const std::vector<std::string>& sound_files, std::uint64_t number);
