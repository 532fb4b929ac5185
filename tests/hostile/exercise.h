/// \file
/// What the library does with a file that may be hostile. One thread at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>

/// A file declares more values of a key than anyone can read in seconds, and the exercise was told not to wait.
class TooManyValues : public std::runtime_error
{
public:
  using std::runtime_error::runtime_error;
};

/// How the parts of an exercise ended that ended as they may.
struct Ends
{
  std::uint64_t good = 0;
  std::uint64_t failures = 0;          ///< Of the library's own.
  std::uint64_t binding_failures = 0;  ///< Of HDF5's binding, which some operations let pass.
};

/// Loads, validates and shows the parameter file of the working directory as a fluid job and as a smoothing job, and
/// asks its storage for each command and the first values of each key as its own type and as another one, which depends
/// on \p number.
///
/// Throws: TooManyValues if \p patient is false; whatever else the library throws and may not throw;
/// std::logic_error when something stays open that a storage has to close.
///
/// \p tell is called with each larger step that has ended well: "opened", "Gyre_Parfile loaded", "Gyre_Parfile
/// validated", "Gyre_Parfile shown" and the same of Smooth_Parfile.
Ends ExerciseFile(
  std::uint64_t number, bool patient, const std::function<void(const std::string&)>& tell = [](const std::string&) {});
