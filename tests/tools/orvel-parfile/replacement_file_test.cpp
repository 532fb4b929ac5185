// File systems that rename or link less than others: this program has a renameat2 and a link of its own.

#include "job/replacement_file.h"
#include "support/exit_code.h"
#include "support/TemporaryFolder.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace fs = std::filesystem;

namespace
{

int error_of_renaming = 0;
int error_of_linking = 0;

struct FileSystem
{
  int error_of_renaming;  // without replacing
  int error_of_linking;
};

void PrintTo(const FileSystem& system, std::ostream* stream)
{
  *stream << "renaming: " << system.error_of_renaming << ", linking: " << system.error_of_linking;
}

class ReplacementFiles : public testing::TestWithParam<FileSystem>
{
protected:
  ReplacementFiles()
  {
    error_of_renaming = GetParam().error_of_renaming;
    error_of_linking = GetParam().error_of_linking;
  }
  ~ReplacementFiles() override { error_of_renaming = error_of_linking = 0; }

  fs::path Place() const { return m_folder.Path() / "job"; }

private:
  TemporaryFolder m_folder;
};

void Write(const fs::path& path, const std::string& text)
{
  std::ofstream(path) << text;
}

std::string Read(const fs::path& path)
{
  std::ifstream stream(path);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

extern "C" int renameat2(int old_folder, const char* old_path, int new_folder, const char* new_path,
                         unsigned flags) noexcept
{
  static const auto real =
    reinterpret_cast<int (*)(int, const char*, int, const char*, unsigned)>(dlsym(RTLD_NEXT, "renameat2"));
  errno = error_of_renaming;
  return error_of_renaming != 0 ? -1 : real(old_folder, old_path, new_folder, new_path, flags);
}

extern "C" int link(const char* from, const char* to) noexcept
{
  static const auto real = reinterpret_cast<int (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "link"));
  errno = error_of_linking;
  return error_of_linking != 0 ? -1 : real(from, to);
}

TEST_P(ReplacementFiles, TakeAFreePlace)
{
  {
    const ReplacementFile file(Place());
    Write(file.Path(), "new");
    file.PutInFreePlace();
  }
  EXPECT_EQ(Read(Place()), "new");
  EXPECT_EQ(std::distance(fs::directory_iterator(Place().parent_path()), {}), 1);
}

TEST_P(ReplacementFiles, LeaveWhatHasComeToTheirPlace)
{
  {
    const ReplacementFile file(Place());
    Write(file.Path(), "new");
    Write(Place(), "came meanwhile");
    try
    {
      file.PutInFreePlace();
      ADD_FAILURE() << "nothing was thrown";
    }
    catch (const UnusableInput& error)
    {
      EXPECT_EQ(error.what(), Place().string() + " exists already; --force replaces it");
    }
  }
  EXPECT_EQ(Read(Place()), "came meanwhile");
  EXPECT_EQ(std::distance(fs::directory_iterator(Place().parent_path()), {}), 1);
}

INSTANTIATE_TEST_SUITE_P(OnFileSystems, ReplacementFiles,
                         testing::Values(FileSystem{0, 0}, FileSystem{EINVAL, 0}, FileSystem{ENOSYS, EPERM},
                                         FileSystem{EINVAL, EOPNOTSUPP}));
