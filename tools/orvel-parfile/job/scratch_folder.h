/// \file
/// Folders that do not outlive their use, however the tool ends.
#pragma once

#include <filesystem>

/// A new hidden folder beside \p place that is removed with all it holds: as the object goes, by a signal that ends the
/// tool, or, after a kill, by the next one that is made in the same place.
class ScratchFolder
{
public:
  /// Throws: UnusableInput when it cannot be made.
  explicit ScratchFolder(const std::filesystem::path& place);
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  const std::filesystem::path& Path() const { return m_path; }

  /// The one file that a signal removes with the folder.
  std::filesystem::path File() const;

private:
  std::filesystem::path m_path;
  int m_lock;
};

/// Lets the signals that end the tool remove its scratch folder first.
void RemoveScratchFolderOnSignals();
