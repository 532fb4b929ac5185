#include "ParfileHdf5StorageTest.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>

namespace
{

class ParfileHdf5StorageFailures : public ParfileHdf5StorageTest
{
};

// "DV_" "porosity" with "COUNT_" 3 and a reference to "FILTER_" "fine".
void MakeSmallFile(const ParfileHdf5Storage& storage)
{
  storage.AddCommand("FILTER_", "fine");
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
}

// The class of an HDF5 exception that passes out of the storage as it is.
template <class Action>
std::string Hdf5ExceptionOf(Action action)
{
  try
  {
    action();
  }
  catch (const H5::GroupIException& error)
  {
    return error.getDetailMsg().empty() ? "GroupIException without detail" : "GroupIException";
  }
  catch (const H5::DataSpaceIException& error)
  {
    return error.getDetailMsg().empty() ? "DataSpaceIException without detail" : "DataSpaceIException";
  }
  catch (const H5::Exception& error)
  {
    return "another exception of HDF5, of " + error.getFuncName();
  }
  return "nothing was thrown";
}

const std::string kNoSuchCommandSize = "Failed to retrieve command size info from the optimization database.";
const std::string kNoSuchCommandName = "Failed to retrieve command name info from the optimization database.";
const std::string kNoCommandGroup = "Failed to retrieve command group from the optimization database.";
const std::string kNoCommandMade = "Failed to create command in the optimization database.";
const std::string kNoValueSize = "Failed to value size info from the optimization database.";
const std::string kNoElement = "Failed to retrieve value size info from the optimization database.";
const std::string kNothingDeleted = "Failed to retrieve command info from the optimization database.";
const std::string kNoReference = "Failed to write reference in the optimization database.";
const std::string kNotWritten = "Failed to write value in the optimization database.";
const std::string kNotReached = "Failed to add value in the optimization database.";

}  // namespace

TEST_F(ParfileHdf5StorageFailures, OfANewCommandInAReadOnlyFileDependOnItsKind)
{
  MakeSmallFile(StorageWithCommand());
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { storage.AddCommand("STOP_", "settings"); }),
              IsDatabaseFailure(kNoCommandGroup, "185546010612"));
  EXPECT_THAT(FailureOf([&] { storage.AddCommand("DV_", "level"); }),
              IsDatabaseFailure(kNoCommandMade, "185548010612"));
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DV_", "porosity"); }),
            StorageFailure("The ID_NAME porosity is already used. Please check your parameterfile", ""));
  EXPECT_EQ(storage.GetNumCommand("STOP_"), 0U);
  EXPECT_EQ(storage.GetNumCommand("DV_"), 1U);
}

TEST_F(ParfileHdf5StorageFailures, OfANewValueInAReadOnlyFileDependOnItsKey)
{
  MakeSmallFile(StorageWithCommand());
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  const auto is_new = IsDatabaseFailure(kNotReached, "172758040612");
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmDoubleList, std::vector<double>{5}); }),
              is_new);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmIntegerList, std::vector<int>{5}); }),
              is_new);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmInteger, 'A'); }), is_new);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmString, std::string("text")); }), is_new);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmDouble, 0.5); }), is_new);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmInteger, 5); }), is_new);

  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 5); }),
              IsDatabaseFailure(kNotWritten, "172740040612"));
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 'A'); }),
              IsDatabaseFailure(kNotWritten, "172740040612"));
  storage.AddValue("DV_", "porosity", "K_", vtmSelect, 5);
  EXPECT_EQ(CountOf(storage, "K_"), 0U);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
}

TEST_F(ParfileHdf5StorageFailures, OfAnOverwrittenValueInAReadOnlyFile)
{
  MakeSmallFile(StorageWithCommand());
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 1, vtmInteger, 5); }),
              IsDatabaseFailure(kNotWritten, "172740040612"));
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 9, vtmInteger, 5); }),
              IsDatabaseFailure(kNotWritten, "172740040612"));
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmInteger, 5); }),
            StorageFailure("Failed to retrieve value from the optimization database.", "160046060612"));
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
}

TEST_F(ParfileHdf5StorageFailures, OfANewReferenceInAReadOnlyFileDependOnItsKey)
{
  MakeSmallFile(StorageWithCommand());
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity"); }),
              IsDatabaseFailure(kNoReference, "172740050612"));
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine"); }),
              IsDatabaseFailure(kNotWritten, "172740040612"));
  EXPECT_EQ(FailureOf([&] { storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "coarse"); }),
            StorageFailure("A command of type FILTER_ with the ID_NAME coarse referenced in the parameterfile is not "
                           "found\n  The command is reference from the DV_ command with ID_NAME porosity",
                           ""));
  EXPECT_EQ(CountOf(storage, "DV_"), 0U);
  EXPECT_EQ(CountOf(storage, "FILTER_"), 1U);
}

TEST_F(ParfileHdf5StorageFailures, OfADeletedKeyInAReadOnlyFile)
{
  MakeSmallFile(StorageWithCommand());
  ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { storage.DeleteValues("DV_", "porosity", "COUNT_"); }),
              IsDatabaseFailure(kNothingDeleted, "202404140612"));
  storage.DeleteValues("DV_", "porosity", "K_");
  EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
}

TEST_F(ParfileHdf5StorageFailures, OfADeletedKeyOfAnAbsentCommandAreThoseOfHasElement)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_THAT(FailureOf([&] { storage.DeleteValues("DV_", "absent", "COUNT_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
  EXPECT_THAT(FailureOf([&] { storage.DeleteValues("STOP_", "porosity", "COUNT_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
}

TEST_F(ParfileHdf5StorageFailures, OfAnOverwrittenValueOfAnAbsentCommand)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const auto is_failure = IsDatabaseFailure(kNotReached, "172757040612");
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmDoubleList, std::vector<double>{5}); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmIntegerList, std::vector<int>{5}); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmInteger, 'A'); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmString, std::string("text")); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmDouble, 0.5); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmInteger, 5); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("STOP_", "porosity", "K_", 1, vtmInteger, 5); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "absent", "K_", 1, vtmSelect, 5); }), is_failure);
}

TEST_F(ParfileHdf5StorageFailures, OfNamesThatHdf5DoesNotTake)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_THAT(FailureOf([&] { storage.AddCommand("", "porosity"); }),
              IsDatabaseFailure(kNoCommandGroup, "185546010612"));
  EXPECT_THAT(FailureOf([&] { storage.AddCommand("DV_", ""); }), IsDatabaseFailure(kNoCommandMade, "185548010612"));
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "", vtmInteger, 5); }),
              IsDatabaseFailure(kNotReached, "172758040612"));
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "", "DV_", "porosity"); }),
              IsDatabaseFailure(kNoReference, "172740050612"));
}

TEST_F(ParfileHdf5StorageFailures, OfADatasetInPlaceOfAKind)
{
  plain_hdf5::MakeFileWithParfile();
  plain_hdf5::MakeKey("/PARFILE/DV_", H5T_NATIVE_INT, 1, nullptr);
  ParfileHdf5Storage storage;
  std::string name = "kept";
  EXPECT_THAT(FailureOf([&] { storage.AddCommand("DV_", "porosity"); }),
              IsDatabaseFailure(kNoCommandGroup, "185546010612"));
  EXPECT_THAT(FailureOf([&] { storage.GetNumCommand("DV_"); }), IsDatabaseFailure(kNoSuchCommandSize, "185548010612"));
  EXPECT_THAT(FailureOf([&] { storage.HasCommand("DV_", "porosity"); }),
              IsDatabaseFailure(kNoSuchCommandSize, "185548010612"));
  EXPECT_THAT(FailureOf([&] { storage.GetCommandName("DV_", 0, name); }),
              IsDatabaseFailure(kNoSuchCommandName, "185548060612"));
  EXPECT_THAT(FailureOf([&] { storage.HasElement("DV_", "porosity", "TYPE_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
  EXPECT_THAT(FailureOf([&] { CountOf(storage, "TYPE_"); }), IsDatabaseFailure(kNoValueSize, "185548060612"));
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNotReached, "172756040612"));
  EXPECT_THAT(FailureOf([&] { storage.DeleteValues("DV_", "porosity", "TYPE_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
  EXPECT_EQ(name, "kept");
}

TEST_F(ParfileHdf5StorageFailures, OfADatasetInPlaceOfACommand)
{
  plain_hdf5::MakeFileWithParfile();
  plain_hdf5::MakeGroup("/PARFILE/DV_");
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity", H5T_NATIVE_INT, 1, nullptr);
  const ParfileHdf5Storage storage;
  EXPECT_TRUE(storage.HasCommand("DV_", "porosity")) << "names alone are looked at";
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DV_", "porosity"); }),
            StorageFailure("The ID_NAME porosity is already used. Please check your parameterfile", ""));
  EXPECT_THAT(FailureOf([&] { storage.HasElement("DV_", "porosity", "TYPE_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
  EXPECT_THAT(FailureOf([&] { CountOf(storage, "TYPE_"); }), IsDatabaseFailure(kNoValueSize, "185548060612"));
  EXPECT_THAT(FailureOf([&] { TextOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNotReached, "172756040612"));
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "TYPE_", 1, vtmEnum, 68); }),
              IsDatabaseFailure(kNotReached, "172757040612"));
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68); }),
              IsDatabaseFailure(kNotReached, "172758040612"));
}

TEST_F(ParfileHdf5StorageFailures, OfAGroupInPlaceOfAKey)
{
  StorageWithCommand();
  plain_hdf5::MakeGroup("/PARFILE/DV_/porosity/TYPE_");
  ParfileHdf5Storage storage;
  EXPECT_TRUE(storage.HasElement("DV_", "porosity", "TYPE_"));
  EXPECT_THAT(FailureOf([&] { CountOf(storage, "TYPE_"); }), IsDatabaseFailure(kNoValueSize, "185548060612"));
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNotReached, "172756040612"));
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNoReference, "172740050612"));
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "TYPE_", 1, vtmEnum, 68); }),
              IsDatabaseFailure(kNotReached, "172757040612"));
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68); }),
              IsDatabaseFailure(kNotReached, "172758040612"));
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "TYPE_", "DV_", "porosity"); }),
              IsDatabaseFailure(kNoReference, "172740050612"));
  storage.DeleteValues("DV_", "porosity", "TYPE_");
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "TYPE_"));
}

TEST_F(ParfileHdf5StorageFailures, OfALinkThatLeadsNowhere)
{
  StorageWithCommand();
  plain_hdf5::MakeSoftLink("/PARFILE/DV_/porosity/TYPE_", "/PARFILE/nowhere");
  plain_hdf5::MakeSoftLink("/PARFILE/STOP_", "/PARFILE/nowhere");
  const ParfileHdf5Storage storage;
  EXPECT_TRUE(storage.HasElement("DV_", "porosity", "TYPE_"));
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNotReached, "172756040612"));
  EXPECT_THAT(FailureOf([&] { storage.GetNumCommand("STOP_"); }),
              IsDatabaseFailure(kNoSuchCommandSize, "185548010612"));
}

// The groups of the storage's own files keep their members in nodes, of which that of "DV_" is broken here.
TEST_F(ParfileHdf5StorageFailures, OfAKindWhoseMembersCannotBeRead)
{
  StorageWithCommand();
  plain_hdf5::BreakLastGroup();
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  std::string name = "kept";
  EXPECT_THAT(FailureOf([&] { storage.HasCommand("DV_", "porosity"); }),
              IsDatabaseFailure(kNoSuchCommandSize, "185548010612"));
  EXPECT_THAT(FailureOf([&] { storage.GetNumCommand("DV_"); }), IsDatabaseFailure(kNoSuchCommandSize, "185548010612"));
  EXPECT_THAT(FailureOf([&] { storage.GetCommandName("DV_", 0, name); }),
              IsDatabaseFailure(kNoSuchCommandName, "185548060612"));
  EXPECT_THAT(FailureOf([&] { storage.HasElement("DV_", "porosity", "TYPE_"); }),
              IsDatabaseFailure(kNoElement, "185548060612"));
  EXPECT_THAT(FailureOf([&] { CountOf(storage, "TYPE_"); }), IsDatabaseFailure(kNoValueSize, "185548060612"));
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "TYPE_", 1); }), IsDatabaseFailure(kNotReached, "172756040612"));
  EXPECT_EQ(name, "kept");
  EXPECT_EQ(Hdf5ExceptionOf([&] { storage.AddCommand("DV_", "level"); }), "GroupIException")
    << "the lookup of a new command's name is not guarded";
}

// HDF5 counts elements in signed 64 bits, so it cannot tell how many these are.
TEST_F(ParfileHdf5StorageFailures, OfAKeyWithMoreElementsThanHdf5Counts)
{
  StorageWithCommand();
  plain_hdf5::MakeChunked("/PARFILE/DV_/porosity/COUNT_", H5T_NATIVE_INT, {hsize_t{1} << 32, hsize_t{1} << 31},
                          nullptr);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(Hdf5ExceptionOf([&] { CountOf(storage, "COUNT_"); }), "DataSpaceIException");
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 5); }),
              IsDatabaseFailure(kNotReached, "172758040612"));
}

TEST_F(ParfileHdf5StorageFailures, LeaveAStorageThatWorks)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  FailureOf([&] { storage.AddCommand("DV_", "porosity"); });
  FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmInteger, 5); });
  FailureOf([&] { storage.AddReference("DV_", "porosity", "DV_", "DV_", "absent"); });
  FailureOf([&] { storage.DeleteValues("DV_", "absent", "K_"); });
  MakeSmallFile(storage);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "fine");
}
