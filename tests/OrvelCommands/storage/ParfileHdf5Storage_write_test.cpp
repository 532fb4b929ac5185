#include "ParfileHdf5StorageTest.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class ParfileHdf5StorageWrite : public ParfileHdf5StorageTest
{
};

const std::string kText = "start.csv";

// What the storage says of a VtmType that does not fit and of an element that HDF5 cannot write.
auto IsWriteFailure()
{
  return IsDatabaseFailure("Failed to write value in the optimization database.", "172740040612");
}

void ExpectKeyShape(const std::string& key, hsize_t extent, const std::string& type)
{
  SCOPED_TRACE(key);
  const std::string path = "/PARFILE/DV_/porosity/" + key;
  const plain_hdf5::Shape shape = plain_hdf5::ShapeOf(path);
  EXPECT_EQ(shape.rank, 1);
  EXPECT_EQ(shape.extent, extent);
  EXPECT_EQ(shape.max_extent, H5S_UNLIMITED);
  EXPECT_EQ(shape.layout, H5D_CHUNKED);
  EXPECT_EQ(shape.chunk, 1U);
  EXPECT_EQ(shape.filters, 0);
  EXPECT_EQ(plain_hdf5::TypeOf(path), type);
}

constexpr VtmType kTypesWithoutValue[] = {vtmIdName,
                                          vtmReference,
                                          vtmSelect,
                                          vtmComplexType,
                                          vtmUnknown,
                                          static_cast<VtmType>(12),
                                          static_cast<VtmType>(-1),
                                          static_cast<VtmType>(1000)};

}  // namespace

TEST_F(ParfileHdf5StorageWrite, MakesAGroupForAKindAndOneForEachOfItsCommands)
{
  {
    const ParfileHdf5Storage storage = FreshStorage();
    storage.AddCommand("DV_", "porosity");
    storage.AddCommand("DV_", "level");
    storage.AddCommand("FILTER_", "fine");
  }
  EXPECT_THAT(plain_hdf5::Objects(),
              ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/level",
                          "group /PARFILE/DV_/porosity", "group /PARFILE/FILTER_", "group /PARFILE/FILTER_/fine"));
  EXPECT_EQ(plain_hdf5::NumAttributes(), 0U);
}

TEST_F(ParfileHdf5StorageWrite, TakesOneNameUnderTwoKinds)
{
  const ParfileHdf5Storage storage = FreshStorage();
  storage.AddCommand("DV_", "main");
  storage.AddCommand("FILTER_", "main");
  storage.AddValue("DV_", "main", "TYPE_", vtmEnum, 68);
  EXPECT_TRUE(storage.HasElement("DV_", "main", "TYPE_"));
  EXPECT_FALSE(storage.HasElement("FILTER_", "main", "TYPE_"));
}

TEST_F(ParfileHdf5StorageWrite, RefusesANameThatIsTakenWithinItsKind)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DV_", "porosity"); }),
            (Failure{"The ID_NAME porosity is already used. Please check your parameterfile", "",
                     "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] "}));
  EXPECT_EQ(storage.GetNumCommand("DV_"), 1U);
}

TEST_F(ParfileHdf5StorageWrite, PrintsARefusedNameAsItStandsAndCutsALongOne)
{
  const ParfileHdf5Storage storage = FreshStorage();
  const std::string long_name(2000, 'x');
  storage.AddCommand("DV_", "100%s%n%d");
  storage.AddCommand("DV_", long_name);
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DV_", "100%s%n%d"); }).message,
            "The ID_NAME 100%s%n%d is already used. Please check your parameterfile");
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DV_", long_name); }).message, "The ID_NAME " + std::string(1011, 'x'));
}

TEST_F(ParfileHdf5StorageWrite, MakesOneMoreLevelForASlashInAName)
{
  {
    const ParfileHdf5Storage storage = FreshStorage();
    storage.AddCommand("DV_", "inlet");
    storage.AddCommand("DV_", "inlet/upper");
    storage.AddValue("DV_", "inlet/upper", "TYPE_", vtmEnum, 68);
    EXPECT_THAT(FailureOf([&] { storage.AddCommand("DV_", "outlet/upper"); }),
                IsDatabaseFailure("Failed to create command in the optimization database.", "185548010612"));
  }
  EXPECT_THAT(plain_hdf5::Objects(),
              ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/inlet",
                          "group /PARFILE/DV_/inlet/upper", "dataset /PARFILE/DV_/inlet/upper/TYPE_"));
}

TEST_F(ParfileHdf5StorageWrite, MakesAKeyThatBeginsWithASlashInItsCommand)
{
  {
    const ParfileHdf5Storage storage = FreshStorage();
    storage.AddCommand("DV_", "porosity");
    storage.AddCommand("FILTER_", "fine");
    storage.AddValue("DV_", "porosity", "/INITIAL_", vtmDouble, 0.4);
    storage.AddReference("DV_", "porosity", "/FILTER_", "FILTER_", "fine");
    EXPECT_THAT(
      FailureOf([&] { storage.AddValue("DV_", "porosity", "/PARFILE/FILTER_/fine/RADIUS_", vtmDouble, 0.1); }),
      IsDatabaseFailure("Failed to add value in the optimization database.", "172758040612"));
  }
  EXPECT_THAT(plain_hdf5::Objects(),
              ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/porosity",
                          "dataset /PARFILE/DV_/porosity/FILTER_", "dataset /PARFILE/DV_/porosity/INITIAL_",
                          "group /PARFILE/FILTER_", "group /PARFILE/FILTER_/fine"));
}

TEST_F(ParfileHdf5StorageWrite, TakesNamesWithBlanksAndBytesOutsideAscii)
{
  {
    const ParfileHdf5Storage storage = FreshStorage();
    storage.AddCommand("DV_", "Kr\xc3\xbcmmer 1");
    storage.AddValue("DV_", "Kr\xc3\xbcmmer 1", "TYPE_", vtmEnum, 68);
  }
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/Kr\xc3\xbcmmer 1/TYPE_", 0), 68);
}

TEST_F(ParfileHdf5StorageWrite, StoresIntegersAndEnumeratorsAs32Bits)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, -7);
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, std::numeric_limits<int>::max());
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, std::numeric_limits<int>::min());
    storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
  }
  ExpectKeyShape("COUNT_", 3, "signed integer of 4 bytes");
  ExpectKeyShape("TYPE_", 1, "signed integer of 4 bytes");
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/porosity/COUNT_", 0), -7);
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/porosity/COUNT_", 1), 2147483647);
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/porosity/COUNT_", 2), -2147483647 - 1);
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/porosity/TYPE_", 0), 68);
}

TEST_F(ParfileHdf5StorageWrite, StoresDoublesAs64Bits)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.1);
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, -std::numeric_limits<double>::infinity());
  }
  ExpectKeyShape("INITIAL_", 2, "IEEE float of 8 bytes");
  EXPECT_EQ(plain_hdf5::DoubleAt("/PARFILE/DV_/porosity/INITIAL_", 0), 0.1);
  EXPECT_EQ(plain_hdf5::DoubleAt("/PARFILE/DV_/porosity/INITIAL_", 1), -std::numeric_limits<double>::infinity());
}

TEST_F(ParfileHdf5StorageWrite, StoresTextsAsBytesWithTheirTerminatingNul)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "FIELD_", vtmString, kText);
    storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string());
    storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("a\0b", 3));
    storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("Kr\xc3\xbcmmer"));
  }
  ExpectKeyShape("FIELD_", 3, "sequence of string of 1 byte");
  ExpectKeyShape("GROUP_", 1, "sequence of string of 1 byte");
  EXPECT_EQ(plain_hdf5::BytesAt("/PARFILE/DV_/porosity/FIELD_", 0), std::string("start.csv\0", 10));
  EXPECT_EQ(plain_hdf5::BytesAt("/PARFILE/DV_/porosity/FIELD_", 1), std::string("\0", 1));
  EXPECT_EQ(plain_hdf5::BytesAt("/PARFILE/DV_/porosity/FIELD_", 2), std::string("a\0b\0", 4));
  EXPECT_EQ(plain_hdf5::BytesAt("/PARFILE/DV_/porosity/GROUP_", 0), std::string("Kr\xc3\xbcmmer\0", 9));
}

TEST_F(ParfileHdf5StorageWrite, StoresAWholeListAsOneElement)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{4, -7, 11});
    storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{});
    storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{0.1, 1e300});
    storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{});
  }
  ExpectKeyShape("LIST_", 2, "sequence of signed integer of 4 bytes");
  ExpectKeyShape("CUTOFF_", 2, "sequence of IEEE float of 8 bytes");
  EXPECT_THAT(plain_hdf5::IntegersAt("/PARFILE/DV_/porosity/LIST_", 0), ElementsAre(4, -7, 11));
  EXPECT_THAT(plain_hdf5::IntegersAt("/PARFILE/DV_/porosity/LIST_", 1), IsEmpty());
  EXPECT_THAT(plain_hdf5::DoublesAt("/PARFILE/DV_/porosity/CUTOFF_", 0), ElementsAre(0.1, 1e300));
  EXPECT_THAT(plain_hdf5::DoublesAt("/PARFILE/DV_/porosity/CUTOFF_", 1), IsEmpty());
}

TEST_F(ParfileHdf5StorageWrite, AppendsValuesFromIndexOne)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("first"));
  EXPECT_EQ(CountOf(storage, "GROUP_"), 1U);
  storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("second"));
  EXPECT_EQ(CountOf(storage, "GROUP_"), 2U);
  EXPECT_EQ(TextOf(storage, "GROUP_", 1), "first");
  EXPECT_EQ(TextOf(storage, "GROUP_", 2), "second");
}

TEST_F(ParfileHdf5StorageWrite, AppendsToAKeyOfAnEarlierRun)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.25);
  }
  const ParfileHdf5Storage storage;
  storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.5);
  EXPECT_EQ(CountOf(storage, "INITIAL_"), 2U);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 2), 0.5);
}

TEST_F(ParfileHdf5StorageWrite, AppendsNothingForATypeWithoutValue)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  for (const VtmType type : kTypesWithoutValue)
  {
    SCOPED_TRACE(type);
    for (const char* id : {"porosity", "absent"})
    {
      storage.AddValue("DV_", id, "NEW_", type, std::vector<double>{0.5});
      storage.AddValue("DV_", id, "NEW_", type, std::vector<int>{5});
      storage.AddValue("DV_", id, "NEW_", type, 'A');
      storage.AddValue("DV_", id, "NEW_", type, kText);
      storage.AddValue("DV_", id, "NEW_", type, 0.5);
      storage.AddValue("DV_", id, "NEW_", type, 5);
    }
    storage.AddValue("absent", "absent", "NEW_", type, 5);
    storage.AddValue("DV_", "porosity", "COUNT_", type, 5);
    EXPECT_FALSE(storage.HasElement("DV_", "porosity", "NEW_"));
    EXPECT_FALSE(storage.HasCommand("DV_", "absent"));
    EXPECT_EQ(storage.GetNumCommand("absent"), 0U);
    EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
  }
}

TEST_F(ParfileHdf5StorageWrite, MakesNoCommandForAValue)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const auto is_failure = IsDatabaseFailure("Failed to add value in the optimization database.", "172758040612");
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmDoubleList, std::vector<double>{0.5}); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmIntegerList, std::vector<int>{5}); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmInteger, 'A'); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmString, kText); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmDouble, 0.5); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "absent", "K_", vtmInteger, 5); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("STOP_", "absent", "K_", vtmInteger, 5); }), is_failure);
  EXPECT_FALSE(storage.HasCommand("DV_", "absent"));
  EXPECT_EQ(storage.GetNumCommand("STOP_"), 0U);
}

TEST_F(ParfileHdf5StorageWrite, KeepsTheTypeOfTheFirstValueAndConvertsLaterOnes)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.5);
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmInteger, 3);
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
    storage.AddValue("DV_", "porosity", "COUNT_", vtmDouble, 2.75);
    storage.AddValue("DV_", "porosity", "LIST_", vtmDoubleList, std::vector<double>{0.5});
    storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{4, 7});
  }
  ExpectKeyShape("INITIAL_", 2, "IEEE float of 8 bytes");
  ExpectKeyShape("COUNT_", 2, "signed integer of 4 bytes");
  ExpectKeyShape("LIST_", 2, "sequence of IEEE float of 8 bytes");
  EXPECT_EQ(plain_hdf5::DoubleAt("/PARFILE/DV_/porosity/INITIAL_", 1), 3.0);
  EXPECT_EQ(plain_hdf5::IntegerAt("/PARFILE/DV_/porosity/COUNT_", 1), 2);
  EXPECT_THAT(plain_hdf5::DoublesAt("/PARFILE/DV_/porosity/LIST_", 1), ElementsAre(4.0, 7.0));
}

TEST_F(ParfileHdf5StorageWrite, LeavesAnEmptyElementBehindAnAppendThatHdf5CannotConvert)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "COUNT_", vtmString, kText); }), IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "COUNT_"), 2U);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 0);

  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, kText);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "FIELD_", vtmDouble, 0.5); }), IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "FIELD_"), 2U);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "start.csv");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "");

  storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "DV_", vtmInteger, 5); }), IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "DV_"), 2U);
}

TEST_F(ParfileHdf5StorageWrite, RefusesToAppendATypeThatTheValueCannotBeStoredAs)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmString, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmDouble, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmInteger, 0.5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmModelId, 0.5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmIntegerList, kText); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmEnum, kText); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmDoubleList, std::vector<int>{5}); }),
              IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmIntegerList, std::vector<double>{5}); }),
              IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "K_", vtmString, std::vector<int>{5}); }),
              IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "K_"), 0U);
}

TEST_F(ParfileHdf5StorageWrite, StoresACharAsTheLowByteOfAnInteger)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 'A');
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 'D');
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 65);
  EXPECT_EQ(IntegerOf(storage, "TYPE_", 1, vtmEnum), 68);
  storage.SetValue("DV_", "porosity", "TYPE_", 1, vtmEnum, 'N');
  EXPECT_EQ(IntegerOf(storage, "TYPE_", 1, vtmEnum), 78);
}

TEST_F(ParfileHdf5StorageWrite, StoresACharAsAnEmptyTextOrList)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, 'A');
  storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, 'A');
  storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, 'A');
  storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, 'A');
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, kText);
  storage.SetValue("DV_", "porosity", "FIELD_", 2, vtmString, 'A');
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "");
  EXPECT_EQ(TextOf(storage, "GROUP_", 1), "");
  EXPECT_THAT(IntegersOf(storage, "LIST_", 1), IsEmpty());
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 1), IsEmpty());
}

TEST_F(ParfileHdf5StorageWrite, OverwritesOneValueOfEachType)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  for (int i = 1; i <= 3; ++i)
  {
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, i);
    storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, i + 0.5);
    storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::to_string(i));
    storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{i});
    storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{i + 0.5});
  }
  storage.SetValue("DV_", "porosity", "COUNT_", 2, vtmInteger, 20);
  storage.SetValue("DV_", "porosity", "INITIAL_", 3, vtmDouble, 30.25);
  storage.SetValue("DV_", "porosity", "FIELD_", 1, vtmString, std::string("a longer text"));
  storage.SetValue("DV_", "porosity", "LIST_", 2, vtmIntegerList, std::vector<int>{7, 8, 9});
  storage.SetValue("DV_", "porosity", "CUTOFF_", 3, vtmDoubleList, std::vector<double>{});

  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 1);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 20);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 3), 3);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 2), 2.5);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 3), 30.25);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "a longer text");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "2");
  EXPECT_THAT(IntegersOf(storage, "LIST_", 2), ElementsAre(7, 8, 9));
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 2), ElementsAre(2.5));
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 3), IsEmpty());
  for (const char* key : {"COUNT_", "INITIAL_", "FIELD_", "LIST_", "CUTOFF_"})
  {
    EXPECT_EQ(CountOf(storage, key), 3U) << key;
  }
}

TEST_F(ParfileHdf5StorageWrite, GrowsAKeyPastItsEndWithZeros)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 11);
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 12);
  storage.SetValue("DV_", "porosity", "COUNT_", 5, vtmInteger, 15);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 5U);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 11);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 12);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 3), 0);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 4), 0);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 5), 15);

  storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.5);
  storage.SetValue("DV_", "porosity", "INITIAL_", 3, vtmDouble, 0.75);
  EXPECT_EQ(CountOf(storage, "INITIAL_"), 3U);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 2), 0.0);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 3), 0.75);
}

TEST_F(ParfileHdf5StorageWrite, GrowsAKeyPastItsEndWithEmptyTextsAndLists)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, kText);
  storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{4});
  storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{0.5});
  storage.SetValue("DV_", "porosity", "FIELD_", 4, vtmString, std::string("end.csv"));
  storage.SetValue("DV_", "porosity", "LIST_", 3, vtmIntegerList, std::vector<int>{7});
  storage.SetValue("DV_", "porosity", "CUTOFF_", 3, vtmDoubleList, std::vector<double>{0.25});
  EXPECT_EQ(CountOf(storage, "FIELD_"), 4U);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "start.csv");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "");
  EXPECT_EQ(TextOf(storage, "FIELD_", 3), "");
  EXPECT_EQ(TextOf(storage, "FIELD_", 4), "end.csv");
  EXPECT_THAT(IntegersOf(storage, "LIST_", 2), IsEmpty());
  EXPECT_THAT(IntegersOf(storage, "LIST_", 3), ElementsAre(7));
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 2), IsEmpty());
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 3), ElementsAre(0.25));
}

TEST_F(ParfileHdf5StorageWrite, OverwritesNothingAndMakesNothingForAnAbsentKey)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const Failure failure = StorageFailure("Failed to retrieve value from the optimization database.", "160046060612");
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmDoubleList, std::vector<double>{1}); }),
            failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmIntegerList, std::vector<int>{1}); }),
            failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmInteger, 'A'); }), failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmString, kText); }), failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmDouble, 0.5); }), failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmInteger, 5); }), failure);
  EXPECT_EQ(FailureOf([&] { storage.SetValue("DV_", "porosity", "K_", 1, vtmSelect, 5); }), failure)
    << "the key is looked for before the type";
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "K_"));
}

TEST_F(ParfileHdf5StorageWrite, OverwritesNothingForATypeWithoutValue)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  for (const VtmType type : kTypesWithoutValue)
  {
    SCOPED_TRACE(type);
    storage.SetValue("DV_", "porosity", "COUNT_", 1, type, std::vector<double>{0.5});
    storage.SetValue("DV_", "porosity", "COUNT_", 1, type, std::vector<int>{5});
    storage.SetValue("DV_", "porosity", "COUNT_", 1, type, 'A');
    storage.SetValue("DV_", "porosity", "COUNT_", 1, type, kText);
    storage.SetValue("DV_", "porosity", "COUNT_", 1, type, 0.5);
    storage.SetValue("DV_", "porosity", "COUNT_", 9, type, 5);
    EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
    EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  }
}

TEST_F(ParfileHdf5StorageWrite, RefusesToOverwriteWithATypeThatTheValueCannotBeStoredAs)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, kText);
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "FIELD_", 9, vtmString, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "FIELD_", 1, vtmString, 0.5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 1, vtmInteger, kText); }),
              IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 1, vtmEnum, 0.5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 1, vtmInteger, std::vector<int>{5}); }),
              IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "FIELD_"), 1U);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "start.csv");
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
}

TEST_F(ParfileHdf5StorageWrite, LosesAllValuesOfAKeyThatIsOverwrittenAtIndexZero)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 4);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", 0, vtmInteger, 5); }), IsWriteFailure());
  EXPECT_TRUE(storage.HasElement("DV_", "porosity", "COUNT_"));
  EXPECT_EQ(CountOf(storage, "COUNT_"), 0U);
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 6);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 6);
}

TEST_F(ParfileHdf5StorageWrite, FailsToOverwriteAtANegativeIndexAndKeepsTheOtherKeys)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "COUNT_", -1, vtmInteger, 5); }), IsWriteFailure());
  EXPECT_EQ(IntegerOf(storage, "TYPE_", 1, vtmEnum), 68);
}

// The place is one less than the index, counted in 32 bits: below the least index comes the greatest.
TEST_F(ParfileHdf5StorageWrite, CountsThePlaceToOverwriteIn32Bits)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  storage.SetValue("DV_", "porosity", "COUNT_", std::numeric_limits<int>::min(), vtmInteger, 5);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 2147483648U);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 0);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2147483648U), 5);
}

TEST_F(ParfileHdf5StorageWrite, StoresAReferenceToTheGroupOfItsTarget)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddCommand("FILTER_", "fine");
    storage.AddCommand("FILTER_", "coarse");
    storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
    storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "coarse");
    storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
  }
  ExpectKeyShape("FILTER_", 2, "object reference of 8 bytes");
  ExpectKeyShape("DV_", 1, "object reference of 8 bytes");
  EXPECT_EQ(plain_hdf5::TargetAt("/PARFILE/DV_/porosity/FILTER_", 0), "/PARFILE/FILTER_/fine");
  EXPECT_EQ(plain_hdf5::TargetAt("/PARFILE/DV_/porosity/FILTER_", 1), "/PARFILE/FILTER_/coarse");
  EXPECT_EQ(plain_hdf5::TargetAt("/PARFILE/DV_/porosity/DV_", 0), "/PARFILE/DV_/porosity");
}

TEST_F(ParfileHdf5StorageWrite, RefusesAReferenceToACommandThatIsNotThere)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", "fine");
  EXPECT_EQ(FailureOf([&] { storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "coarse"); }),
            (Failure{"A command of type FILTER_ with the ID_NAME coarse referenced in the parameterfile is not found\n"
                     "  The command is reference from the DV_ command with ID_NAME porosity",
                     "", "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] "}));
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "FILTER_"));

  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  EXPECT_EQ(FailureOf([&] { storage.AddReference("DV_", "porosity", "FILTER_", "CS_", "fine"); }),
            StorageFailure("A command of type CS_ with the ID_NAME fine referenced in the parameterfile is not found\n"
                           "  The command is reference from the DV_ command with ID_NAME porosity",
                           ""));
  EXPECT_EQ(CountOf(storage, "FILTER_"), 1U);
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "fine");
}

TEST_F(ParfileHdf5StorageWrite, LooksForTheTargetBeforeTheCommandThatRefersToIt)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_EQ(FailureOf([&] { storage.AddReference("STOP_", "absent", "DV_", "DV_", "level"); }),
            StorageFailure("A command of type DV_ with the ID_NAME level referenced in the parameterfile is not found\n"
                           "  The command is reference from the STOP_ command with ID_NAME absent",
                           ""));
  const auto is_failure = IsDatabaseFailure("Failed to write reference in the optimization database.", "172740050612");
  EXPECT_THAT(FailureOf([&] { storage.AddReference("STOP_", "absent", "DV_", "DV_", "porosity"); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "absent", "DV_", "DV_", "porosity"); }), is_failure);
}

TEST_F(ParfileHdf5StorageWrite, FailsToWriteAReferenceAmongValues)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "COUNT_", "DV_", "porosity"); }),
              IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "COUNT_"), 2U);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
}

TEST_F(ParfileHdf5StorageWrite, DeletesAKeyWithAllItsValuesAndNothingElse)
{
  {
    ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 4);
    storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
    storage.DeleteValues("DV_", "porosity", "COUNT_");
    EXPECT_FALSE(storage.HasElement("DV_", "porosity", "COUNT_"));
    EXPECT_EQ(CountOf(storage, "COUNT_"), 0U);
  }
  EXPECT_THAT(plain_hdf5::Objects(), ElementsAre("group /PARFILE", "group /PARFILE/DV_", "group /PARFILE/DV_/porosity",
                                                 "dataset /PARFILE/DV_/porosity/TYPE_"));
}

TEST_F(ParfileHdf5StorageWrite, DeletesReferencesWithoutTheirTargets)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", "fine");
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  storage.DeleteValues("DV_", "porosity", "FILTER_");
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "FILTER_"));
  EXPECT_TRUE(storage.HasCommand("FILTER_", "fine"));
}

TEST_F(ParfileHdf5StorageWrite, MakesADeletedKeyAnewWithAnotherType)
{
  {
    ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
    storage.DeleteValues("DV_", "porosity", "COUNT_");
    storage.AddValue("DV_", "porosity", "COUNT_", vtmString, kText);
  }
  ExpectKeyShape("COUNT_", 1, "sequence of string of 1 byte");
}

TEST_F(ParfileHdf5StorageWrite, DeletesAnAbsentKeyWithoutEffect)
{
  ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
  storage.DeleteValues("DV_", "porosity", "COUNT_");
  storage.DeleteValues("DV_", "porosity", "TYPE");
  EXPECT_EQ(CountOf(storage, "TYPE_"), 1U);
}

TEST_F(ParfileHdf5StorageWrite, AsksItsOwnHasElementBeforeItDeletes)
{
  class BlindStorage : public ParfileHdf5Storage
  {
  public:
    bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const override
    {
      asked_for = command + " " + id_name + " " + key;
      return false;
    }
    mutable std::string asked_for;
  };

  StorageWithCommand().AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  BlindStorage storage;
  storage.DeleteValues("DV_", "porosity", "COUNT_");
  EXPECT_EQ(storage.asked_for, "DV_ porosity COUNT_");
  EXPECT_EQ(CountOf(storage, "COUNT_"), 1U);
}
