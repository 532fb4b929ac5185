/// \file
/// How a new parameter file comes to be.
#pragma once

#include "job.h"
#include "replacement_file.h"

#include <filesystem>
#include <string>
#include <vector>

/// A parameter file that is filled from a job and only whole takes its place, as ReplacementFile tells.
class NewParameterFile
{
public:
  /// Makes an empty file. Throws: UnusableInput when that is not possible.
  explicit NewParameterFile(const std::filesystem::path& place);

  /// Writes the commands, then their values, then their references.
  /// Returns: each failure with the place in the job description; what failed is left out of the file.
  /// Throws: UnwritableFile, as on a full disk.
  std::vector<std::string> Fill(const Job& job);

  /// The file under work.
  std::filesystem::path Path() const;

  /// Brings the file safely to disk and to its place; \p force replaces what stands there and keeps its rights.
  /// Throws: UnusableInput when that is not possible, or without \p force when something has come there meanwhile.
  void PutInPlace(bool force);

private:
  ReplacementFile m_file;
};
