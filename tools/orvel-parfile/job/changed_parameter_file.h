/// \file
/// Changing a parameter file.
#pragma once

#include "file_lock.h"
#include "job.h"
#include "replacement_file.h"

#include <filesystem>
#include <string>
#include <vector>

/// A changed copy of a parameter file, which takes its place when the change is whole. All that is not changed stays as
/// it is, also what no command reads.
class ChangedParameterFile
{
public:
  /// Locks, reads and copies the file. Throws: UnusableInput for a file that cannot be read, that is write-protected,
  /// or that another process holds open for writing or is replacing.
  explicit ChangedParameterFile(const std::filesystem::path& path);

  /// What the file held.
  const Job& Before() const { return m_before; }

  /// Gives a command the keys, whatever stood in their places; the command is made when it is not there.
  /// Requires: that the targets of references are there.
  /// Throws: UnwritableFile; FaultyInput with what the storage refuses.
  void SetKeys(const JobCommand& command) const;

  /// Makes those references of the key below /PARFILE under the path that are chosen lead nowhere: a command that is
  /// made later could come to lie where their target lay. Requires: a choice for each value. Throws: UnwritableFile.
  void MakeNull(const std::string& path, const std::vector<bool>& chosen) const;

  /// Removes what stands below /PARFILE under the path, with all it holds. Throws: UnwritableFile.
  void Remove(const std::string& path) const;

  /// Removes the attributes of the object below /PARFILE under the path. Throws: UnwritableFile.
  void RemoveAttributes(const std::string& path) const;

  /// Puts the copy in the place of the file, with its rights. Throws: UnusableInput when that is not possible.
  void PutInPlace() const;

private:
  ReplacementLock m_lock;
  Job m_before;
  ReplacementFile m_file;
};
