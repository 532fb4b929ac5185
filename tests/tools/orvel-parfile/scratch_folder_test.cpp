// Moments that no test from outside meets but by chance: this program has a mkdtemp and a flock of its own.

#include "job/scratch_folder.h"
#include "support/TemporaryFolder.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/file.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <functional>

namespace fs = std::filesystem;

namespace
{

std::function<void()> when_a_folder_is_made = [] {};
std::function<int()> error_of_the_next_lock = [] { return 0; };

class ScratchFolders : public testing::Test
{
protected:
  ~ScratchFolders() override
  {
    when_a_folder_is_made = [] {};
    error_of_the_next_lock = [] { return 0; };
  }

  fs::path Place() const { return m_folder.Path() / "parfile_storage.hdf5"; }
  bool IsEmpty() const { return fs::is_empty(m_folder.Path()); }

private:
  TemporaryFolder m_folder;
};

}  // namespace

extern "C" char* mkdtemp(char* name)
{
  static const auto real = reinterpret_cast<char* (*)(char*)>(dlsym(RTLD_NEXT, "mkdtemp"));
  char* made = real(name);
  when_a_folder_is_made();
  return made;
}

extern "C" int flock(int descriptor, int operation)
{
  static const auto real = reinterpret_cast<int (*)(int, int)>(dlsym(RTLD_NEXT, "flock"));
  const int error = error_of_the_next_lock();
  if (error != 0)
  {
    errno = error;
    return -1;
  }
  return real(descriptor, operation);
}

TEST_F(ScratchFolders, AreRemovedByASignalThatComesAsTheyAreMade)
{
  const auto make_one = [&] {
    RemoveScratchFolderOnSignals();
    when_a_folder_is_made = [] { raise(SIGTERM); };
    const ScratchFolder folder(Place());
    std::_Exit(0);
  };
  EXPECT_EXIT(make_one(), testing::KilledBySignal(SIGTERM), "");
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ScratchFolders, DoWithoutLocksWhereTheFileSystemHasNone)
{
  error_of_the_next_lock = [] { return ENOLCK; };
  {
    const ScratchFolder one(Place());
    const ScratchFolder another(Place());
    EXPECT_TRUE(fs::is_directory(one.Path()));
    EXPECT_TRUE(fs::is_directory(another.Path()));
  }
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ScratchFolders, AreLeftToAProcessThatTakesThemForAbandoned)
{
  int folders = 0;
  int locks = 0;
  when_a_folder_is_made = [&] { ++folders; };
  error_of_the_next_lock = [&] { return ++locks == 1 ? EWOULDBLOCK : 0; };
  const ScratchFolder folder(Place());
  EXPECT_EQ(folders, 2);
  EXPECT_EQ(locks, 2);
  EXPECT_TRUE(fs::is_directory(folder.Path()));
}

TEST_F(ScratchFolders, AreMadeAnewWhenAnotherProcessHasRemovedThem)
{
  int folders = 0;
  when_a_folder_is_made = [&] {
    if (++folders == 1)
    {
      fs::remove(*fs::directory_iterator(Place().parent_path()));
    }
  };
  const ScratchFolder folder(Place());
  EXPECT_EQ(folders, 2);
  EXPECT_TRUE(fs::is_directory(folder.Path()));
}

TEST_F(ScratchFolders, StayWhileTheyAreAtWorkAndGoWhenTheyAreAbandoned)
{
  const fs::path abandoned = Place().parent_path() / ".orvel-parfile.abcdef";
  fs::create_directory(abandoned);
  const ScratchFolder one(Place());
  EXPECT_FALSE(fs::exists(abandoned));
  const ScratchFolder another(Place());
  EXPECT_TRUE(fs::is_directory(one.Path()));
  EXPECT_TRUE(fs::is_directory(another.Path()));
}
