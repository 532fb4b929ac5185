#include "replacement_file.h"

#include "parameter_file.h"
#include "support/exit_code.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

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

constexpr const char* kAccessList = "system.posix_acl_access";

bool HasAccessList(const fs::path& path)
{
  return getxattr(path.c_str(), kAccessList, nullptr, 0) > 0;
}

// An access control list goes with the rights: without the one of the place, or with one that its folder gives to new
// files, they would mean more. One that tells of a group which the file cannot have is not taken.
bool TakeAccessList(const fs::path& from, const fs::path& to, bool keeps_group)
{
  if (!HasAccessList(from))
  {
    removexattr(to.c_str(), kAccessList);
    return true;
  }
  std::array<char, 65536> list{};  // the most that an attribute holds
  const ssize_t size = getxattr(from.c_str(), kAccessList, list.data(), list.size());
  return keeps_group && size > 0 &&
         setxattr(to.c_str(), kAccessList, list.data(), static_cast<std::size_t>(size), 0) == 0;
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

// As they are now, since the file may soon not be the user's to read.
void ReplacementFile::BringContentToDisk() const
{
  BringToDisk(Path());
}

void ReplacementFile::TakeRightsOfPlace() const
{
  struct stat rights
  {
  };
  if (stat(m_place.c_str(), &rights) != 0)
  {
    Refuse(m_place, "replaced", std::strerror(errno));
  }
  const fs::path path = Path();
  // Only the superuser may give files away; a group of the user's own is kept. Another group must not get what that of
  // the place had.
  const bool keeps_group = chown(path.c_str(), rights.st_uid, rights.st_gid) == 0 ||
                           chown(path.c_str(), static_cast<uid_t>(-1), rights.st_gid) == 0;
  if (!TakeAccessList(m_place, path, keeps_group))
  {
    Refuse(m_place, "replaced", "its access control list cannot be kept");
  }
  // Last, as a change of owner takes set-id bits away.
  const mode_t without_group = static_cast<mode_t>(~(S_IRWXG | S_ISGID));
  const mode_t mode = rights.st_mode & 07777;
  if (chmod(path.c_str(), keeps_group ? mode : mode & without_group) != 0)
  {
    Refuse(m_place, "replaced", std::strerror(errno));
  }
}

void ReplacementFile::PutInFreePlace() const
{
  BringContentToDisk();
  const fs::path path = Path();
  // Some file systems know the one, some the other, some neither.
  bool is_put = renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, m_place.c_str(), RENAME_NOREPLACE) == 0;
  if (!is_put && errno != EEXIST)
  {
    is_put = link(path.c_str(), m_place.c_str()) == 0;
  }
  if (!is_put && errno != EEXIST)
  {
    const int taken = open(m_place.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    is_put = taken >= 0 && rename(path.c_str(), m_place.c_str()) == 0;
    if (taken >= 0)
    {
      close(taken);
    }
  }
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
  BringContentToDisk();
  if (fs::exists(m_place))
  {
    TakeRightsOfPlace();
  }
  std::error_code error;
  fs::rename(Path(), m_place, error);
  if (error)
  {
    Refuse(m_place, "replaced", error.message());
  }
  BringToDisk(m_place.parent_path());
}
