#include "ParfileHdf5StorageTest.h"
#include "support/ChildProcess.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_convertible_v<bool, ParfileHdf5Storage>, "true would open a file");

namespace
{

class ParfileHdf5StorageLifecycle : public ParfileHdf5StorageTest
{
};

Failure FailureOfOpening(bool create_group, bool read_only)
{
  return FailureOf([=] { ParfileHdf5Storage storage(create_group, read_only); });
}

void WriteBytes(const std::string& bytes)
{
  std::ofstream("parfile_storage.hdf5", std::ios::binary) << bytes;
}

// Room for a storage that is never destroyed, as one of two that share a file has to be.
struct NeverDestroyed
{
  template <class... Arguments>
  explicit NeverDestroyed(Arguments&&... arguments)
    : storage(*new (room) ParfileHdf5Storage(std::forward<Arguments>(arguments)...))
  {
  }

  alignas(ParfileHdf5Storage) unsigned char room[sizeof(ParfileHdf5Storage)];
  ParfileHdf5Storage& storage;
};

}  // namespace

TEST_F(ParfileHdf5StorageLifecycle, KnowsTheNameOfItsFile)
{
  EXPECT_STREQ(PARFILE_STORAGE_FILE, "parfile_storage.hdf5");
}

TEST_F(ParfileHdf5StorageLifecycle, FailsWithoutAFileAndMakesNone)
{
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(true, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(true, true), IsFileFailure());
  EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(ParfileHdf5StorageLifecycle, FailsOnAFileThatIsNotHdf5AndLeavesItAlone)
{
  WriteBytes("[MODEL_.duct]\nFILE_ = \"duct.inp\"\n");
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(true, false), IsFileFailure());
  EXPECT_EQ(std::filesystem::file_size("parfile_storage.hdf5"), 33U);
}

TEST_F(ParfileHdf5StorageLifecycle, FailsOnAFileThatIsCutOff)
{
  StorageWithCommand();
  std::filesystem::resize_file("parfile_storage.hdf5", 700);
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
}

// Files of the newest format open although their root group cannot be read.
TEST_F(ParfileHdf5StorageLifecycle, ClosesAFileWhoseRootCannotBeRead)
{
  plain_hdf5::MakeFileWithBrokenRoot();
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 0);
}

TEST_F(ParfileHdf5StorageLifecycle, FailsOnAFolderOfThatName)
{
  std::filesystem::create_directory("parfile_storage.hdf5");
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
}

TEST_F(ParfileHdf5StorageLifecycle, TakesAFileOfZeroBytesForAFreshOneOnlyWhenItMayWrite)
{
  WriteBytes("");
  EXPECT_THAT(FailureOfOpening(false, true), IsFileFailure());
  {
    const ParfileHdf5Storage storage(true);
  }
  EXPECT_THAT(plain_hdf5::Objects(), ElementsAre("group /PARFILE"));
}

TEST_F(ParfileHdf5StorageLifecycle, MakesItsRootGroupOnTheFirstRun)
{
  FreshStorage();
  EXPECT_THAT(plain_hdf5::Objects(), ElementsAre("group /PARFILE"));
}

TEST_F(ParfileHdf5StorageLifecycle, OpensForWritingWithoutArguments)
{
  plain_hdf5::MakeFileWithParfile();
  {
    const ParfileHdf5Storage storage;
    storage.AddCommand("DV_", "porosity");
  }
  EXPECT_THAT(plain_hdf5::Objects(),
              ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/porosity"));
}

TEST_F(ParfileHdf5StorageLifecycle, TakesTheFileOfTheWorkingDirectory)
{
  FreshStorage();
  std::filesystem::create_directory("below");
  std::filesystem::current_path("below");
  EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
  std::filesystem::current_path("..");
  EXPECT_EQ(ParfileHdf5Storage().GetNumCommand("DV_"), 0U);
}

TEST_F(ParfileHdf5StorageLifecycle, KeepsItsFileWhenTheWorkingDirectoryChanges)
{
  {
    const ParfileHdf5Storage storage = FreshStorage();
    std::filesystem::create_directory("below");
    std::filesystem::current_path("below");
    storage.AddCommand("DV_", "porosity");
    EXPECT_TRUE(std::filesystem::is_empty("."));
    std::filesystem::current_path("..");
  }
  EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "porosity"));
}

TEST_F(ParfileHdf5StorageLifecycle, WritesTheOldestFormatWithoutAttributes)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
    storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("duct"));
    storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
  }
  EXPECT_EQ(plain_hdf5::SuperblockVersion(), 0U);
  EXPECT_EQ(plain_hdf5::NumAttributes(), 0U);
  EXPECT_THAT(plain_hdf5::Objects(),
              ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/porosity",
                          "dataset /PARFILE/DV_/porosity/DV_", "dataset /PARFILE/DV_/porosity/GROUP_",
                          "dataset /PARFILE/DV_/porosity/TYPE_"));
}

TEST_F(ParfileHdf5StorageLifecycle, OpensItsFileWithACacheForManySmallChunks)
{
  const ParfileHdf5Storage storage = FreshStorage();
  const plain_hdf5::ChunkCache cache = plain_hdf5::ChunkCacheOfTheOpenFile();
  EXPECT_EQ(cache.slots, 5000U);
  EXPECT_EQ(cache.bytes, 1073741824U);
  EXPECT_EQ(cache.preemption, 0.0);
}

TEST_F(ParfileHdf5StorageLifecycle, HoldsNothingButFileAndGroupBetweenCalls)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 2);
  storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.4);
  storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
  storage.SetValue("DV_", "porosity", "INITIAL_", 2, vtmDouble, 0.5);
  DoubleOf(storage, "INITIAL_", 1);
  ReferenceOf(storage, "DV_", 1);
  FailureOf([&] { DoubleOf(storage, "INITIAL_", 3); });
  FailureOf([&] { storage.AddCommand("DV_", "porosity"); });
  storage.DeleteValues("DV_", "porosity", "INITIAL_");
  std::string name;
  storage.GetCommandName("DV_", 0, name);
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 2);
}

TEST_F(ParfileHdf5StorageLifecycle, ClosesItsFileWhenDestroyedThroughTheInterface)
{
  FreshStorage();
  std::unique_ptr<OrvelParfileStorage> storage = std::make_unique<ParfileHdf5Storage>();
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 2);
  storage.reset();
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 0);
}

TEST_F(ParfileHdf5StorageLifecycle, ReadsWhatAnEarlierProcessWroteAndWritesNothingWhenReadOnly)
{
  InAProcessOfItsOwn([] {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddCommand("FILTER_", "fine");
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
    storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.4);
    storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("start.csv"));
    storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("duct"));
    storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{4, 7, 11});
    storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{0.5, 0.25});
    storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  });
  const auto bytes_before = std::filesystem::file_size("parfile_storage.hdf5");
  {
    const ParfileHdf5Storage storage = ReadOnlyStorage();
    EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
    int type = 0;
    storage.GetEnumValue("DV_", "porosity", "TYPE_", 1, vtmEnum, type);
    EXPECT_EQ(type, 68);
    EXPECT_EQ(DoubleOf(storage, "INITIAL_", 1), 0.4);
    EXPECT_EQ(TextOf(storage, "FIELD_", 1), "start.csv");
    EXPECT_EQ(TextOf(storage, "GROUP_", 1, vtmModelId), "duct");
    EXPECT_THAT(IntegersOf(storage, "LIST_", 1), ElementsAre(4, 7, 11));
    EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 1), ElementsAre(0.5, 0.25));
    EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "fine");
    EXPECT_NE(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 1, vtmInteger, 4); }).message,
              "nothing was thrown");
    EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  }
  EXPECT_EQ(std::filesystem::file_size("parfile_storage.hdf5"), bytes_before);
}

TEST_F(ParfileHdf5StorageLifecycle, FailsToMakeItsRootGroupASecondTime)
{
  InAProcessOfItsOwn([] {
    FreshStorage().AddCommand("DV_", "porosity");
    EXPECT_THAT(FailureOfOpening(true, false),
                IsDatabaseFailure("Failed to create parfile storage in the optimization database.", "192431310512"));
  });
  EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "porosity"));
}

TEST_F(ParfileHdf5StorageLifecycle, FailsToMakeItsRootGroupReadOnly)
{
  InAProcessOfItsOwn([] {
    plain_hdf5::MakeEmptyFile();
    EXPECT_THAT(FailureOfOpening(true, true),
                IsDatabaseFailure("Failed to create parfile storage in the optimization database.", "192431310512"));
  });
  InAProcessOfItsOwn([] {
    plain_hdf5::MakeFileWithParfile();
    EXPECT_THAT(FailureOfOpening(true, true),
                IsDatabaseFailure("Failed to create parfile storage in the optimization database.", "192431310512"));
  });
}

TEST_F(ParfileHdf5StorageLifecycle, FailsToOpenARootGroupThatIsNotThere)
{
  for (const bool read_only : {false, true})
  {
    InAProcessOfItsOwn([=] {
      plain_hdf5::MakeEmptyFile();
      EXPECT_THAT(FailureOfOpening(false, read_only),
                  IsDatabaseFailure("Failed to retrieve the parfile from the optimization database.", "192435310512"));
    });
  }
  EXPECT_THAT(plain_hdf5::Objects(), IsEmpty());
}

TEST_F(ParfileHdf5StorageLifecycle, FailsToOpenARootGroupThatIsADataset)
{
  InAProcessOfItsOwn([] {
    plain_hdf5::MakeEmptyFile();
    plain_hdf5::MakeScalar("/PARFILE", H5T_NATIVE_INT, nullptr);
    EXPECT_THAT(FailureOfOpening(false, true),
                IsDatabaseFailure("Failed to retrieve the parfile from the optimization database.", "192435310512"));
  });
}

TEST_F(ParfileHdf5StorageLifecycle, LeavesTheFileOpenOnlyWhenItsRootGroupFails)
{
  InAProcessOfItsOwn([] {
    EXPECT_THAT(FailureOfOpening(false, false), IsFileFailure());
    EXPECT_EQ(plain_hdf5::NumOpenObjects(), 0);
    plain_hdf5::MakeEmptyFile();
    FailureOfOpening(false, false);
    EXPECT_EQ(plain_hdf5::NumOpenObjects(), 1);
    FailureOfOpening(false, false);
    EXPECT_EQ(plain_hdf5::NumOpenObjects(), 2);
  });
}

TEST_F(ParfileHdf5StorageLifecycle, LetsHdf5ReportOnStandardErrorByItself)
{
  InAProcessOfItsOwn(
    [] {
      H5Eset_auto2(H5E_DEFAULT, reinterpret_cast<H5E_auto2_t>(H5Eprint2), nullptr);  // as a process starts
      FailureOfOpening(false, false);
    },
    "HDF5-DIAG: Error detected in HDF5");
}

TEST_F(ParfileHdf5StorageLifecycle, SharesOneOpenFileWithItsCopy)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    const NeverDestroyed copy(storage);
    copy.storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.4);
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.5);
    EXPECT_EQ(DoubleOf(storage, "INITIAL_", 1), 0.4);
    EXPECT_EQ(DoubleOf(copy.storage, "INITIAL_", 2), 0.5);
    EXPECT_EQ(plain_hdf5::NumOpenFiles(), 1);
    EXPECT_EQ(plain_hdf5::NumHoldersOfTheOpenFile(), 1) << "the file itself is not copied";
  }
  plain_hdf5::CloseWhatIsLeftOpen();
}

TEST_F(ParfileHdf5StorageLifecycle, SharesOneOpenFileWithWhatItIsAssignedTo)
{
  InAProcessOfItsOwn([] {
    const ParfileHdf5Storage source = StorageWithCommand();
    source.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.4);

    std::filesystem::create_directory("other");
    std::filesystem::current_path("other");
    FreshStorage();
    const NeverDestroyed target;
    EXPECT_EQ(target.storage.GetNumCommand("DV_"), 0U);

    const ParfileHdf5Storage& result = target.storage = source;
    EXPECT_EQ(&result, &target.storage);
    EXPECT_EQ(DoubleOf(target.storage, "INITIAL_", 1), 0.4);
    EXPECT_EQ(plain_hdf5::NumOpenFiles(), 2) << "the target's own file is not released";
  });
}

TEST_F(ParfileHdf5StorageLifecycle, SurvivesAnAssignmentToItself)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  const ParfileHdf5Storage& same = storage;
  storage = same;
  EXPECT_TRUE(storage.HasCommand("DV_", "porosity"));
}
