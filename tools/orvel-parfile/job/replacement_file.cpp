#include "replacement_file.h"

#include "parameter_file.h"
#include "support/exit_code.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace
{

[[noreturn]] void Refuse(const fs::path& path, const std::string& what, const std::string& why)
{
  throw UnusableInput(path.string() + " cannot be " + what + ": " + why);
}

void BringToDisk(const fs::path& path)
{
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const bool good = descriptor >= 0 && fsync(descriptor) == 0;
  const int error = errno;
  if (descriptor >= 0)
  {
    close(descriptor);
  }
  if (!good)
  {
    Refuse(path, "brought to disk", std::strerror(error));
  }
}

// An access control list goes with the rights: without the one of the place, or with one that its folder gives to new
// files, they would mean more.
bool TakeAccessList(const fs::path& from, const fs::path& to)
{
  constexpr const char* name = "system.posix_acl_access";
  const ssize_t size = getxattr(from.c_str(), name, nullptr, 0);
  if (size <= 0)
  {
    removexattr(to.c_str(), name);
    return true;
  }
  std::vector<char> list(static_cast<std::size_t>(size));
  return getxattr(from.c_str(), name, list.data(), list.size()) == size &&
         setxattr(to.c_str(), name, list.data(), list.size(), 0) == 0;
}

}  // namespace

fs::path PlaceOf(const fs::path& path)
{
  if (!fs::is_symlink(path))
  {
    return path;
  }
  std::error_code error;
  fs::path place = fs::canonical(path, error);
  if (error)
  {
    throw UnusableInput(path.string() + ": this link leads to no file");
  }
  return place;
}

ReplacementFile::ReplacementFile(const fs::path& place) : m_place(PlaceOf(place)), m_folder(m_place) {}

fs::path ReplacementFile::Path() const
{
  return m_folder.File();
}

void ReplacementFile::CopyFromPlace() const
{
  std::error_code error;
  fs::copy_file(m_place, Path(), error);
  if (!error)
  {
    fs::permissions(Path(), fs::perms::owner_read | fs::perms::owner_write, error);
  }
  if (error)
  {
    throw UnwritableFile(m_place.parent_path().string());
  }
}

void ReplacementFile::TakeRightsOfPlace() const
{
  if (!TakeAccessList(m_place, Path()))
  {
    Refuse(m_place, "replaced", "its access control list cannot be kept");
  }
  struct stat rights
  {
  };
  if (stat(m_place.c_str(), &rights) != 0 || chmod(Path().c_str(), rights.st_mode & 07777) != 0)
  {
    Refuse(m_place, "replaced", std::strerror(errno));
  }
  // Only the superuser may give files away; a group of the user's own is kept. A change of owner takes set-id bits
  // away.
  if (chown(Path().c_str(), rights.st_uid, rights.st_gid) == 0 ||
      chown(Path().c_str(), static_cast<uid_t>(-1), rights.st_gid) == 0)
  {
    chmod(Path().c_str(), rights.st_mode & 07777);
  }
}

void ReplacementFile::PutInFreePlace() const
{
  BringToDisk(Path());
  // Some file systems know links only, others the renaming alone.
  const bool is_put = renameat2(AT_FDCWD, Path().c_str(), AT_FDCWD, m_place.c_str(), RENAME_NOREPLACE) == 0 ||
                      (errno == EINVAL && link(Path().c_str(), m_place.c_str()) == 0);
  if (!is_put && errno == EEXIST)
  {
    RefuseWhatIsThere(m_place);
  }
  if (!is_put)
  {
    Refuse(m_place, "made", std::strerror(errno));
  }
  BringToDisk(m_place.parent_path());
}

void ReplacementFile::PutInPlace() const
{
  BringToDisk(Path());
  std::error_code error;
  fs::rename(Path(), m_place, error);
  if (error)
  {
    Refuse(m_place, "replaced", error.message());
  }
  BringToDisk(m_place.parent_path());
}
