/// \file
/// Locks of files and folders. They never wait.
#pragma once

#include <filesystem>

/// Holds a lock until it goes. Locks of file systems that have none hold nothing.
class FileLock
{
public:
  /// Keeps programs from writing a file while it is read; others may read it. HDF5 takes an exclusive lock of each file
  /// that it opens for writing.
  /// Throws: UnusableInput when another process holds the file open for writing.
  static FileLock AgainstWriters(const std::filesystem::path& file);

  /// Keeps another orvel-parfile from replacing the file meanwhile, whose change would be lost. The lock is that of the
  /// folder: a file goes as it is replaced, and its lock with it.
  /// Throws: UnusableInput when another process has this lock.
  static FileLock AgainstReplacement(const std::filesystem::path& file);

  FileLock(FileLock&& other) noexcept : m_descriptor(other.m_descriptor) { other.m_descriptor = -1; }
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

private:
  FileLock(const std::filesystem::path& path, int operation, const char* refusal);

  int m_descriptor;
};

/// Both locks that replacing a file takes. The file need not be there.
class ReplacementLock
{
public:
  /// Throws: UnusableInput when another process has one of them, and for a link to nothing.
  explicit ReplacementLock(const std::filesystem::path& file)
    : m_folder(FileLock::AgainstReplacement(file)), m_file(FileLock::AgainstWriters(file))
  {
  }

private:
  FileLock m_folder;
  FileLock m_file;
};
