#include "ParfileHdf5StorageTest.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// Parameter files whose keys another program has written, rightly or wrongly.
class ParfileHdf5StorageForeignData : public ParfileHdf5StorageTest
{
protected:
  void SetUp() override
  {
    ParfileHdf5StorageTest::SetUp();
    plain_hdf5::MakeFileWithParfile();
    plain_hdf5::MakeGroup("/PARFILE/DV_");
    plain_hdf5::MakeGroup("/PARFILE/DV_/porosity");
  }

  // A reference, and at its address the filter "ours" in this file and "theirs" in its copy, other.hdf5.
  static void MakeTwoFilesWithOneAddress()
  {
    plain_hdf5::MakeGroup("/PARFILE/FILTER_");
    plain_hdf5::MakeGroup("/PARFILE/FILTER_/theirs");
    plain_hdf5::MakeReferences("/PARFILE/DV_/porosity/FILTER_", {"/PARFILE/FILTER_/theirs"});
    std::filesystem::copy_file(PARFILE_STORAGE_FILE, "other.hdf5");
    plain_hdf5::Move("/PARFILE/FILTER_/theirs", "/PARFILE/FILTER_/ours");
  }
};

const std::string kKey = "/PARFILE/DV_/porosity/KEY_";

auto IsReadFailure()
{
  return IsDatabaseFailure("Failed to read value from the optimization database.", "134746060612");
}

auto IsWriteFailure()
{
  return IsDatabaseFailure("Failed to write value in the optimization database.", "172740040612");
}

auto IsReferenceFailure()
{
  return IsDatabaseFailure("Failed to write reference in the optimization database.", "172740050612");
}

// Every read of KEY_ fails in the reading.
void ExpectNoReadSucceeds(const OrvelParfileStorage& storage)
{
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { DoubleOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { TextOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { IntegersOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { DoublesOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 1); }), IsReadFailure());
}

void ExpectNoWriteSucceeds(const OrvelParfileStorage& storage)
{
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "KEY_", 1, vtmInteger, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "KEY_", 9, vtmInteger, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "KEY_", vtmInteger, 5); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.AddReference("DV_", "porosity", "KEY_", "DV_", "porosity"); }), IsWriteFailure());
}

}  // namespace

TEST_F(ParfileHdf5StorageForeignData, ReadsATextWithoutTerminatingNulToItsEnd)
{
  plain_hdf5::MakeText(kKey, {"start.csv", "a", std::string("ab\0cd", 5)});
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(TextOf(storage, "KEY_", 1), "start.csv");
  EXPECT_EQ(TextOf(storage, "KEY_", 2), "a");
  EXPECT_EQ(TextOf(storage, "KEY_", 3), "ab");
}

TEST_F(ParfileHdf5StorageForeignData, ReadsAnElementWithoutDataAsEmpty)
{
  plain_hdf5::MakeText(kKey, {"", "start.csv"});
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/TEXT_", plain_hdf5::SequenceOf(H5T_C_S1), 2, nullptr);
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/LIST_", plain_hdf5::SequenceOf(H5T_NATIVE_INT), 2, nullptr);
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/CUTOFF_", plain_hdf5::SequenceOf(H5T_NATIVE_DOUBLE), 2, nullptr);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(TextOf(storage, "KEY_", 1), "");
  EXPECT_EQ(TextOf(storage, "TEXT_", 2), "");
  EXPECT_THAT(IntegersOf(storage, "LIST_", 1), IsEmpty());
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 1), IsEmpty());
}

TEST_F(ParfileHdf5StorageForeignData, ReadsNumbersOfOtherSizesAndByteOrders)
{
  const std::int64_t wide[] = {7, std::int64_t{1} << 40};
  const std::uint8_t narrow[] = {200};
  const float single[] = {0.5F};
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/WIDE_", H5T_NATIVE_INT64, 2, wide);
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/NARROW_", H5T_NATIVE_UINT8, 1, narrow);
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/SINGLE_", H5T_NATIVE_FLOAT, 1, single);
  const unsigned char swapped[] = {0x00, 0x00, 0x01, 0x02};
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/SWAPPED_", H5T_STD_I32BE, 1, swapped);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(IntegerOf(storage, "WIDE_", 1), 7);
  EXPECT_EQ(IntegerOf(storage, "WIDE_", 2), 2147483647);
  EXPECT_EQ(IntegerOf(storage, "NARROW_", 1), 200);
  EXPECT_EQ(IntegerOf(storage, "SWAPPED_", 1), 258);
  EXPECT_EQ(DoubleOf(storage, "SINGLE_", 1), 0.5);
  EXPECT_EQ(DoubleOf(storage, "NARROW_", 1), 200.0);
}

TEST_F(ParfileHdf5StorageForeignData, ReadsAKeyThatCannotGrowAndFailsToGrowIt)
{
  const int values[] = {3, 4};
  plain_hdf5::MakeContiguous(kKey, H5T_NATIVE_INT, {2}, values);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 2U);
  EXPECT_EQ(IntegerOf(storage, "KEY_", 2), 4);
  storage.SetValue("DV_", "porosity", "KEY_", 2, vtmInteger, 5);
  EXPECT_EQ(IntegerOf(storage, "KEY_", 2), 5);
  EXPECT_THAT(FailureOf([&] { storage.AddValue("DV_", "porosity", "KEY_", vtmInteger, 6); }), IsWriteFailure());
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "KEY_", 3, vtmInteger, 6); }), IsWriteFailure());
  EXPECT_EQ(CountOf(storage, "KEY_"), 2U);
}

TEST_F(ParfileHdf5StorageForeignData, ReadsAKeyOfNoValues)
{
  plain_hdf5::MakeKey(kKey, H5T_NATIVE_INT, 0, nullptr);
  const ParfileHdf5Storage storage;
  EXPECT_TRUE(storage.HasElement("DV_", "porosity", "KEY_"));
  EXPECT_EQ(CountOf(storage, "KEY_"), 0U);
  ExpectNoReadSucceeds(storage);
  storage.AddValue("DV_", "porosity", "KEY_", vtmInteger, 5);
  EXPECT_EQ(IntegerOf(storage, "KEY_", 1), 5);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesMoreThanOneDimension)
{
  const int values[] = {1, 2, 3, 4, 5, 6, 7, 8};
  plain_hdf5::MakeChunked(kKey, H5T_NATIVE_INT, {2, 4}, values);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 8U);
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
  EXPECT_EQ(CountOf(storage, "KEY_"), 8U);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesTheMostDimensionsThatHdf5Has)
{
  const std::vector<hsize_t> extent(H5S_MAX_RANK, 1);
  const int value = 5;
  plain_hdf5::MakeContiguous(kKey, H5T_NATIVE_INT, extent, &value);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 1U);
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAScalar)
{
  const int value = 5;
  plain_hdf5::MakeScalar(kKey, H5T_NATIVE_INT, &value);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 1U);
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesADatasetWithoutElements)
{
  plain_hdf5::MakeNull(kKey, H5T_NATIVE_INT);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 0U);
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesACompound)
{
  const int values[] = {1, 2};
  plain_hdf5::MakeKey(kKey, plain_hdf5::PairOfIntegers(), 1, values);
  const ParfileHdf5Storage storage;
  EXPECT_EQ(CountOf(storage, "KEY_"), 1U);
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesATextOfFixedLength)
{
  plain_hdf5::MakeKey(kKey, plain_hdf5::StringOf(16), 1, "start.csv\0\0\0\0\0\0");
  const ParfileHdf5Storage storage;
  ExpectNoReadSucceeds(storage);
  ExpectNoWriteSucceeds(storage);
}

// To HDF5 such a text is a sequence of numbers with another name, and it converts them as it does with any.
TEST_F(ParfileHdf5StorageForeignData, RefusesAVariableLengthStringExceptAsTheNumbersOfItsCharacters)
{
  const char* text = "Duct";
  plain_hdf5::MakeKey(kKey, plain_hdf5::StringOf(H5T_VARIABLE), 1, &text);
  const ParfileHdf5Storage storage;
  EXPECT_THAT(FailureOf([&] { TextOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { IntegerOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(IntegersOf(storage, "KEY_", 1), ElementsAre(68, 117, 99, 116));
  EXPECT_THAT(DoublesOf(storage, "KEY_", 1), ElementsAre(68.0, 117.0, 99.0, 116.0));
  EXPECT_THAT(FailureOf([&] { storage.SetValue("DV_", "porosity", "KEY_", 1, vtmString, std::string("duct")); }),
              IsWriteFailure());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesATextOfBytesThatAreNumbers)
{
  const std::string text = "start.csv";
  const hvl_t element{text.size() + 1, const_cast<char*>(text.c_str())};
  plain_hdf5::MakeKey(kKey, plain_hdf5::SequenceOf(H5T_NATIVE_UINT8), 1, &element);
  EXPECT_THAT(FailureOf([&] { TextOf(ReadOnlyStorage(), "KEY_", 1); }), IsReadFailure());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAListOfLists)
{
  int items[] = {1, 2, 3};
  hvl_t inner{3, items};
  const hvl_t outer{1, &inner};
  plain_hdf5::MakeKey(kKey, plain_hdf5::SequenceOf(plain_hdf5::SequenceOf(H5T_NATIVE_INT)), 1, &outer);
  ExpectNoReadSucceeds(ReadOnlyStorage());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesNumbersWhereAReferenceIsAskedFor)
{
  const std::uint64_t number = 0x7fffffffffffffffU;
  plain_hdf5::MakeKey(kKey, H5T_NATIVE_UINT64, 1, &number);
  EXPECT_THAT(FailureOf([&] { ReferenceOf(ReadOnlyStorage(), "KEY_", 1); }), IsReadFailure());
}

// HDF5 converts no items where nothing was written, so it does not see that the items differ in class.
TEST_F(ParfileHdf5StorageForeignData, ReadsAnUnwrittenSequenceOfOtherItemsAsEmpty)
{
  plain_hdf5::MakeKey(kKey, plain_hdf5::SequenceOf(H5T_NATIVE_INT), 1, nullptr);
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/TEXT_", plain_hdf5::SequenceOf(H5T_C_S1), 1, nullptr);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(TextOf(storage, "KEY_", 1), "");
  EXPECT_THAT(IntegersOf(storage, "TEXT_", 1), IsEmpty());
  EXPECT_THAT(DoublesOf(storage, "TEXT_", 1), IsEmpty());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAnUnwrittenNumberAsASequence)
{
  plain_hdf5::MakeKey(kKey, H5T_NATIVE_INT, 1, nullptr);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(IntegerOf(storage, "KEY_", 1), 0);
  EXPECT_THAT(FailureOf([&] { TextOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { IntegersOf(storage, "KEY_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 1); }), IsReadFailure());
}

TEST_F(ParfileHdf5StorageForeignData, FollowsAReferenceThatAnotherProgramMade)
{
  plain_hdf5::MakeGroup("/PARFILE/FILTER_");
  plain_hdf5::MakeGroup("/PARFILE/FILTER_/fine");
  plain_hdf5::MakeReferences(kKey, {"/PARFILE/FILTER_/fine", "/PARFILE/DV_", "/"});
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(CountOf(storage, "KEY_"), 3U);
  EXPECT_EQ(ReferenceOf(storage, "KEY_", 1), "fine");
  EXPECT_EQ(ReferenceOf(storage, "KEY_", 2), "DV_");
  EXPECT_EQ(ReferenceOf(storage, "KEY_", 3), "");
}

TEST_F(ParfileHdf5StorageForeignData, FollowsAReferenceFromAKeyWhoseKindIsNoGroup)
{
  plain_hdf5::MakeGroup("/PARFILE/CS_");
  plain_hdf5::MakeGroup("/PARFILE/CS_/axis");
  plain_hdf5::MakeKey("/PARFILE/FILTER_", H5T_NATIVE_INT, 1, nullptr);
  plain_hdf5::MakeSoftLink("/PARFILE/STOP_", "/PARFILE/nowhere");
  plain_hdf5::MakeReferences("/PARFILE/DV_/porosity/FILTER_", {"/PARFILE/CS_/axis"});
  plain_hdf5::MakeReferences("/PARFILE/DV_/porosity/STOP_", {"/PARFILE/CS_/axis"});
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "axis");
  EXPECT_EQ(ReferenceOf(storage, "STOP_", 1), "axis");
}

TEST_F(ParfileHdf5StorageForeignData, GivesTheNameOfATargetAndNotOfALinkToIt)
{
  plain_hdf5::MakeGroup("/PARFILE/CS_");
  plain_hdf5::MakeGroup("/PARFILE/CS_/axis");
  plain_hdf5::MakeGroup("/PARFILE/FILTER_");
  plain_hdf5::MakeSoftLink("/PARFILE/FILTER_/alias", "/PARFILE/CS_/axis");
  plain_hdf5::MakeReferences("/PARFILE/DV_/porosity/FILTER_", {"/PARFILE/FILTER_/alias"});
  EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "FILTER_", 1), "axis");
}

// HDF5 tells the length of a soft link where it tells the address of a hard one.
TEST_F(ParfileHdf5StorageForeignData, DoesNotTakeTheLengthOfALinkForTheAddressOfATarget)
{
  plain_hdf5::MakeGroup("/PARFILE/FILTER_");
  plain_hdf5::MakeGroup("/PARFILE/FILTER_/fine");
  plain_hdf5::MakeReferences("/PARFILE/DV_/porosity/FILTER_", {"/PARFILE/FILTER_/fine"});
  const std::uint64_t address = plain_hdf5::AddressOf("/PARFILE/FILTER_/fine");
  plain_hdf5::MakeSoftLink("/PARFILE/FILTER_/a", std::string(address - 1, 'x'));  // the length counts the final NUL
  EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "FILTER_", 1), "fine");
}

TEST_F(ParfileHdf5StorageForeignData, NamesTheTargetInTheFileThatAKeyOfAnotherFileRefersInto)
{
  MakeTwoFilesWithOneAddress();
  plain_hdf5::Remove("/PARFILE/DV_/porosity/FILTER_");
  plain_hdf5::MakeExternalLink("/PARFILE/DV_/porosity/FILTER_", "other.hdf5", "/PARFILE/DV_/porosity/FILTER_");
  EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "FILTER_", 1), "theirs");
}

TEST_F(ParfileHdf5StorageForeignData, NamesTheTargetInItsFileWhereItsKindLiesInAnother)
{
  MakeTwoFilesWithOneAddress();
  plain_hdf5::Move("/PARFILE/FILTER_", "/PARFILE/KEPT_");
  plain_hdf5::MakeExternalLink("/PARFILE/FILTER_", "other.hdf5", "/PARFILE/FILTER_");
  EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "FILTER_", 1), "ours");
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAReferenceThatIsNotSet)
{
  plain_hdf5::MakeReferences(kKey, {""});
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/UNWRITTEN_", H5T_STD_REF_OBJ, 1, nullptr);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 1); }), IsReferenceFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "UNWRITTEN_", 1); }), IsReferenceFailure());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAReferenceWhoseTargetIsGone)
{
  plain_hdf5::MakeGroup("/PARFILE/FILTER_");
  plain_hdf5::MakeGroup("/PARFILE/FILTER_/fine");
  plain_hdf5::MakeReferences(kKey, {"/PARFILE/FILTER_/fine"});
  plain_hdf5::Remove("/PARFILE/FILTER_/fine");
  std::string target = "kept";
  EXPECT_THAT(FailureOf([&] { ReadOnlyStorage().GetReference("DV_", "porosity", "KEY_", 1, target); }),
              IsReferenceFailure());
  EXPECT_EQ(target, "kept");
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAReferenceIntoNowhere)
{
  const hobj_ref_t references[] = {1, 0x7fffffffffffffffU, 0xffffffffffffffffU};
  plain_hdf5::MakeKey(kKey, H5T_STD_REF_OBJ, 3, references);
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 1); }), IsReferenceFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 2); }), IsReferenceFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "KEY_", 3); }), IsReferenceFailure());
}

TEST_F(ParfileHdf5StorageForeignData, RefusesAReferenceToADatasetAndClosesItsFileAllTheSame)
{
  const int value = 5;
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/COUNT_", H5T_NATIVE_INT, 1, &value);
  plain_hdf5::MakeReferences(kKey, {"/PARFILE/DV_/porosity/COUNT_"});
  std::string target = "kept";
  EXPECT_THAT(FailureOf([&] { ReadOnlyStorage().GetReference("DV_", "porosity", "KEY_", 1, target); }),
              IsReferenceFailure());
  EXPECT_EQ(target, "kept");
  EXPECT_EQ(plain_hdf5::NumOpenObjects(), 0);
}

TEST_F(ParfileHdf5StorageForeignData, RefusesARegionReference)
{
  const int value = 5;
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/COUNT_", H5T_NATIVE_INT, 1, &value);
  plain_hdf5::MakeRegionReference(kKey, "/PARFILE/DV_/porosity/COUNT_");
  const ParfileHdf5Storage storage = ReadOnlyStorage();
  ExpectNoReadSucceeds(storage);
}
