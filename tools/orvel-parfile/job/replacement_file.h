/// \file
/// Files that take the place of others.
#pragma once

#include "scratch_folder.h"

#include <filesystem>

/// The place that a path means: where a link leads, so that the link stays.
/// Throws: UnusableInput for a link to nothing.
std::filesystem::path PlaceOf(const std::filesystem::path& path);

/// A file that comes to be in a folder of its own beside its place, and only whole takes that place: a kill
/// at any moment leaves what was there before.
class ReplacementFile
{
public:
  /// Makes the folder. Throws: UnusableInput when that is not possible.
  explicit ReplacementFile(const std::filesystem::path& place);

  /// The file under work, which is the user's to make.
  std::filesystem::path Path() const;

  /// Makes the file as a copy of what stands in the place. Throws: UnwritableFile.
  void CopyFromPlace() const;

  /// Brings the file safely to disk and to its place, with the rights and, where possible, the owner of what stands
  /// there. Where its group is not the user's to give, that of the new file gets no rights. Throws: UnusableInput when
  /// that is not possible.
  void PutInPlace() const;

  /// The same where nothing may stand in the place. Throws: UnusableInput also when something has come there meanwhile.
  void PutInFreePlace() const;

private:
  void BringContentToDisk() const;
  void TakeRightsOfPlace() const;

  std::filesystem::path m_place;
  ScratchFolder m_folder;
};
