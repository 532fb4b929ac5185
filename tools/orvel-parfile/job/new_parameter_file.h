/// \file
/// How a new parameter file comes to be.
#pragma once

#include "job.h"
#include "scratch_folder.h"

#include <filesystem>
#include <string>
#include <vector>

/// A parameter file that is filled in a folder of its own beside its place, and only whole takes that place: a kill at
/// any moment leaves what was there before.
class NewParameterFile
{
public:
  /// Makes an empty file. Throws: UnusableInput when that is not possible.
  explicit NewParameterFile(const std::filesystem::path& place);

  /// Writes the commands, then their values, then their references.
  /// Returns: each failure with the place in the job description; what failed is left out of the file.
  std::vector<std::string> Fill(const Job& job);

  /// The file under work.
  std::filesystem::path Path() const;

  /// Brings the file safely to disk and to its place.
  void PutInPlace();

private:
  std::filesystem::path m_place;
  ScratchFolder m_folder;
};
