/// \file
/// Where parameter files lie, and how they are opened.
#pragma once

#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <filesystem>
#include <memory>

/// The parameter file that an argument of the command line means: the file itself or its folder.
/// Throws: UnusableInput for a file of another name, under which no storage would find it.
std::filesystem::path ParameterFilePath(const std::filesystem::path& argument);

/// The same for a file that is to be made.
/// Throws: UnusableInput also for a file that is there, unless \p force; with it, for one that cannot be replaced or
/// that is write-protected.
std::filesystem::path NewParameterFilePath(const std::filesystem::path& argument, bool force);

/// Throws: UnusableInput that tells how to replace what stands there.
[[noreturn]] void RefuseWhatIsThere(const std::filesystem::path& path);

/// A file that its owner has protected is not replaced behind his back, although its folder may be written.
/// Throws: UnusableInput for one that is write-protected.
void RequireUnprotected(const std::filesystem::path& path);

/// Opens a parameter file for reading.
/// Throws: UnusableInput with the failure of the storage when it cannot be opened; also when the user may not read it,
/// and when another process holds it open for writing.
std::unique_ptr<ParfileHdf5Storage> OpenParameterFile(const std::filesystem::path& path);

/// The working directory, where the storage looks for its file, for as long as the object lives.
class WorkingDirectory
{
public:
  explicit WorkingDirectory(const std::filesystem::path& folder);
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;
  ~WorkingDirectory();

private:
  std::filesystem::path m_former;
};
