#include "ParfileHdf5StorageTest.h"
#include "support/ChildProcess.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <functional>

namespace
{

// A disk that has no room left, as a limit on the size of files: writes beyond it fail. And one that nothing may be
// written to, which the superuser has to be kept from.
class ParfileHdf5StorageDisk : public ParfileHdf5StorageTest
{
protected:
  static void LimitFilesTo(rlim_t size)
  {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }

  static void MakeReadOnly(const char* path)
  {
    std::filesystem::permissions(path, std::filesystem::perms::owner_write, std::filesystem::perm_options::remove);
  }

  void TearDown() override
  {
    std::filesystem::permissions(".", std::filesystem::perms::owner_all);
    ParfileHdf5StorageTest::TearDown();
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

struct WriteOfAnElement
{
  const char* key;
  std::function<void()> add;
  std::function<void(int index)> set;
};

template <class Value>
WriteOfAnElement WriteOf(const ParfileHdf5Storage& storage, const char* key, VtmType type, Value value)
{
  return {key, [&storage, key, type, value] { storage.AddValue("DV_", "porosity", key, type, value); },
          [&storage, key, type, value](int index) { storage.SetValue("DV_", "porosity", key, index, type, value); }};
}

// One of each kind that the interface takes, with a key for it.
std::vector<WriteOfAnElement> WritesOfAllTypes(const ParfileHdf5Storage& storage)
{
  return {WriteOf(storage, "WHOLE_", vtmInteger, 5),
          WriteOf(storage, "CHOICE_", vtmEnum, 77),
          WriteOf(storage, "NUMBER_", vtmDouble, 0.5),
          WriteOf(storage, "TEXT_", vtmString, std::string("text")),
          WriteOf(storage, "GROUP_", vtmModelId, std::string("name")),
          WriteOf(storage, "LETTER_", vtmInteger, 'c'),
          WriteOf(storage, "WHOLES_", vtmIntegerList, std::vector<int>{1, 2}),
          WriteOf(storage, "NUMBERS_", vtmDoubleList, std::vector<double>{0.5, 1.5})};
}

void AddReferenceTo(const ParfileHdf5Storage& storage, const char* key)
{
  storage.AddReference("DV_", "porosity", key, "DV_", "porosity");
}

void AddOneOfEach(const ParfileHdf5Storage& storage)
{
  for (const WriteOfAnElement& write : WritesOfAllTypes(storage))
  {
    write.add();
  }
  AddReferenceTo(storage, "OTHER_");
}

}  // namespace

TEST_F(ParfileHdf5StorageDisk, WithoutRoomFailsInAddingAnElementOfAnyType)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand();
    const ParfileHdf5Storage& storage = StorageForGood();
    FillUp();
    for (const WriteOfAnElement& write : WritesOfAllTypes(storage))
    {
      EXPECT_THAT(FailureOf([&] { write.add(); }), IsWriteFailure()) << write.key;
    }
    EXPECT_THAT(FailureOf([&] { AddReferenceTo(storage, "OTHER_"); }), IsWriteFailure());
  });
}

TEST_F(ParfileHdf5StorageDisk, WithoutRoomFailsInGrowingAKeyOfAnyType)
{
  InAProcessOfItsOwn([] {
    AddOneOfEach(StorageWithCommand());
    const ParfileHdf5Storage& storage = StorageForGood();
    FillUp();
    for (const WriteOfAnElement& write : WritesOfAllTypes(storage))
    {
      EXPECT_THAT(FailureOf([&] { write.add(); }), IsWriteFailure()) << write.key;
      EXPECT_THAT(FailureOf([&] { write.set(3); }), IsWriteFailure()) << write.key;
    }
    EXPECT_THAT(FailureOf([&] { AddReferenceTo(storage, "OTHER_"); }), IsWriteFailure());
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

// HDF5 keeps the tree in memory until the file is closed.
TEST_F(ParfileHdf5StorageDisk, WithoutRoomTakesCommandsAndRemovalsThatItCanOnlyKeepInMemory)
{
  InAProcessOfItsOwn([] {
    AddOneOfEach(StorageWithCommand());
    ParfileHdf5Storage& storage = StorageForGood();
    FillUp();
    storage.AddCommand("DV_", "other");
    storage.AddCommand("STOP_", "first");
    storage.DeleteValues("DV_", "porosity", "TEXT_");
    EXPECT_TRUE(storage.HasCommand("STOP_", "first"));
    EXPECT_FALSE(storage.HasElement("DV_", "porosity", "TEXT_"));
  });
}

// Nothing can be thrown then; HDF5's binding tells standard error.
TEST_F(ParfileHdf5StorageDisk, WithoutRoomInTheEndLosesAlsoWhatWasInTheFile)
{
  InAProcessOfItsOwn(
    [] {
      AddOneOfEach(StorageWithCommand());
      const ParfileHdf5Storage storage;
      FillUp();
      for (int number = 0; number < 200; ++number)
      {
        storage.AddCommand("DV_", "other_" + std::to_string(number));
      }
    },
    "H5Gclose failed");
  InAProcessOfItsOwn([] {
    EXPECT_NE(FailureOf([] { ReadOnlyStorage().HasCommand("DV_", "porosity"); }).message, "nothing was thrown");
  });
}

TEST_F(ParfileHdf5StorageDisk, WithoutTheRightToWriteFailsInOpeningForWritingAlone)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand();
    MakeReadOnly(PARFILE_STORAGE_FILE);
    MakeReadOnly(".");
    GiveUpPrivileges();
    EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(); }), IsFileFailure());
    EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(true); }), IsFileFailure());
    EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "porosity"));
  });
}

TEST_F(ParfileHdf5StorageDisk, InAReadOnlyFolderIsWrittenAllTheSame)
{
  InAProcessOfItsOwn([] {
    StorageWithCommand();
    MakeReadOnly(".");
    GiveUpPrivileges();
    {
      ParfileHdf5Storage storage;
      AddOneOfEach(storage);
      storage.SetValue("DV_", "porosity", "WHOLE_", 1, vtmInteger, 6);
      storage.AddCommand("STOP_", "first");
      storage.DeleteValues("DV_", "porosity", "TEXT_");
    }
    EXPECT_EQ(IntegerOf(ReadOnlyStorage(), "WHOLE_", 1), 6);
    EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "OTHER_", 1), "porosity");
    EXPECT_TRUE(ReadOnlyStorage().HasCommand("STOP_", "first"));
    EXPECT_EQ(CountOf(ReadOnlyStorage(), "TEXT_"), 0U);
  });
}
