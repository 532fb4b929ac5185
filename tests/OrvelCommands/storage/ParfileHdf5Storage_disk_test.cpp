#include "ParfileHdf5StorageTest.h"
#include "support/ChildProcess.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

namespace
{

// A disk that has no room left, as a limit on the size of files: writes beyond it fail.
class ParfileHdf5StorageDisk : public ParfileHdf5StorageTest
{
protected:
  static void LimitFilesTo(rlim_t size)
  {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }

  static void FillUp() { LimitFilesTo(std::filesystem::file_size(PARFILE_STORAGE_FILE)); }
};

auto IsWriteFailure()
{
  return IsDatabaseFailure("Failed to write value in the optimization database.", "172740040612");
}

// The file cannot be closed as it should be, so the storage is left alone and ends with its process.
ParfileHdf5Storage& StorageForGood()
{
  return *new ParfileHdf5Storage();
}

}  // namespace

TEST_F(ParfileHdf5StorageDisk, WithoutRoomFailsInAddingAValue)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand();
    const ParfileHdf5Storage& storage = StorageForGood();
    FillUp();
    EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "A_", vtmInteger, 5); }), IsWriteFailure());
    EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "B_", vtmDouble, 0.5); }), IsWriteFailure());
    EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "C_", vtmString, std::string("text")); }),
                IsWriteFailure());
    EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "D_", vtmIntegerList, std::vector<int>{1}); }),
                IsWriteFailure());
    EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "E_", "DV_", "porosity"); }), IsWriteFailure());
  });
}

TEST_F(ParfileHdf5StorageDisk, WithoutRoomFailsInGrowingAKey)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand().AddValue("DV_", "porosity", "A_", vtmInteger, 5);
    const ParfileHdf5Storage& storage = StorageForGood();
    FillUp();
    EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "A_", 2, vtmInteger, 6); }), IsWriteFailure());
    EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "A_", vtmInteger, 6); }), IsWriteFailure());
  });
}

TEST_F(ParfileHdf5StorageDisk, WithoutRoomStillOverwritesWhatIsThere)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand().AddValue("DV_", "porosity", "A_", vtmInteger, 5);
    {
      const ParfileHdf5Storage storage;
      FillUp();
      storage.SetValue("DV_", "porosity", "A_", 1, vtmInteger, 6);
    }
    EXPECT_EQ(IntegerOf(ReadOnlyStorage(), "A_", 1), 6);
  });
}

// A right that the superuser does not lose.
TEST_F(ParfileHdf5StorageDisk, WithoutTheRightToWriteFailsInOpeningForWritingAlone)
{
  if (geteuid() == 0)
  {
    GTEST_SKIP() << "the superuser may write everywhere";
  }
  StorageWithCommand();
  std::filesystem::permissions(PARFILE_STORAGE_FILE, std::filesystem::perms::owner_read);
  std::filesystem::permissions(".", std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(); }), IsFileFailure());
  EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(true); }), IsFileFailure());
  EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "porosity"));
  std::filesystem::permissions(".", std::filesystem::perms::owner_all);
}

TEST_F(ParfileHdf5StorageDisk, WithAReadOnlyFolderIsWrittenAllTheSame)
{
  StorageWithCommand();
  std::filesystem::permissions(".", std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  {
    const ParfileHdf5Storage storage;
    storage.AddValue("DV_", "porosity", "A_", vtmInteger, 5);
  }
  EXPECT_EQ(IntegerOf(ReadOnlyStorage(), "A_", 1), 5);
  std::filesystem::permissions(".", std::filesystem::perms::owner_all);
}
