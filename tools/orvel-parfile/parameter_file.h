/// \file
/// Where parameter files lie, and how a new one comes to be.
#pragma once

#include "job_description.h"

#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// The parameter file that an argument of the command line means: the file itself or its folder.
/// Throws: UnusableInput for a file of another name, under which no storage would find it.
std::filesystem::path ParameterFilePath(const std::filesystem::path& argument);

/// The same for a file that is to be made.
/// Throws: UnusableInput also for a file that is there, unless \p force.
std::filesystem::path NewParameterFilePath(const std::filesystem::path& argument, bool force);

/// Opens a parameter file for reading.
/// Throws: UnusableInput with the failure of the storage when it cannot be opened.
std::unique_ptr<ParfileHdf5Storage> OpenParameterFile(const std::filesystem::path& path);

/// A new folder beside \p place that is removed with all it holds.
class FolderBeside
{
public:
  explicit FolderBeside(const std::filesystem::path& place);
  FolderBeside(const FolderBeside&) = delete;
  FolderBeside& operator=(const FolderBeside&) = delete;
  ~FolderBeside();

  const std::filesystem::path& Path() const { return m_path; }

private:
  std::filesystem::path m_path;
};

/// A parameter file that is filled in a folder of its own beside its place, and only whole takes that place: a kill at
/// any moment leaves what was there before.
class NewParameterFile
{
public:
  /// Makes an empty file. Throws: UnusableInput when that is not possible.
  explicit NewParameterFile(const std::filesystem::path& place);

  /// Writes the commands, then their values, then their references.
  /// Returns: each failure with the place in the job description; what failed is left out of the file.
  std::vector<std::string> Fill(const std::vector<JobCommand>& job);

  /// The file under work.
  std::filesystem::path Path() const;

  /// Brings the file safely to disk and to its place.
  void PutInPlace();

private:
  std::filesystem::path m_place;
  FolderBeside m_folder;
};
