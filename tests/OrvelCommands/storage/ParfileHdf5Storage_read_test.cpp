#include "OrvelCommands/commands/gyre_commands.h"
#include "ParfileHdf5StorageTest.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class ParfileHdf5StorageRead : public ParfileHdf5StorageTest
{
};

std::string NameAt(const OrvelParfileStorage& storage, const std::string& command, std::uint64_t position)
{
  std::string name = "not read";
  storage.GetCommandName(command, position, name);
  return name;
}

std::vector<std::string> NamesOf(const OrvelParfileStorage& storage, const std::string& command)
{
  std::vector<std::string> names;
  for (std::uint64_t position = 0; position < storage.GetNumCommand(command); ++position)
  {
    names.push_back(NameAt(storage, command, position));
  }
  return names;
}

int EnumeratorOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index, VtmType type)
{
  int value = -4711;
  storage.GetEnumValue("DV_", "porosity", key, index, type, value);
  return value;
}

auto IsReadFailure()
{
  return IsDatabaseFailure("Failed to read value from the optimization database.", "134746060612");
}

// One key of each type with two values.
void AddKeys(const OrvelParfileStorage& storage)
{
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 3);
  storage.AddValue("DV_", "porosity", "COUNT_", vtmInteger, 4);
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 78);
  storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 0.4);
  storage.AddValue("DV_", "porosity", "INITIAL_", vtmDouble, 2.75);
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("start.csv"));
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("end.csv"));
  storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("duct"));
  storage.AddValue("DV_", "porosity", "GROUP_", vtmModelId, std::string("wall"));
  storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{4, 7, 11});
  storage.AddValue("DV_", "porosity", "LIST_", vtmIntegerList, std::vector<int>{});
  storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{0.5});
  storage.AddValue("DV_", "porosity", "CUTOFF_", vtmDoubleList, std::vector<double>{});
  storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
}

}  // namespace

TEST_F(ParfileHdf5StorageRead, CountsNoCommandsOfAKindWithoutGroup)
{
  const ParfileHdf5Storage storage = FreshStorage();
  EXPECT_EQ(storage.GetNumCommand("DV_"), 0U);
  storage.AddCommand("DV_", "porosity");
  EXPECT_EQ(storage.GetNumCommand("DV_"), 1U);
  EXPECT_EQ(storage.GetNumCommand("DV"), 0U);
  EXPECT_EQ(storage.GetNumCommand("DV_CONSTRAINT_"), 0U);
  EXPECT_EQ(storage.GetNumCommand(""), 0U);
  EXPECT_EQ(storage.GetNumCommand("."), 0U);
  EXPECT_EQ(storage.GetNumCommand("DV_/porosity"), 0U);
}

TEST_F(ParfileHdf5StorageRead, CountsAKindWhoseGroupIsEmpty)
{
  plain_hdf5::MakeFileWithParfile();
  plain_hdf5::MakeGroup("/PARFILE/DV_");
  const ParfileHdf5Storage storage;
  EXPECT_EQ(storage.GetNumCommand("DV_"), 0U);
  EXPECT_FALSE(storage.HasCommand("DV_", "porosity"));
  EXPECT_FALSE(storage.HasCommand("DV_", ""));
}

TEST_F(ParfileHdf5StorageRead, TellsCommandsOfAKindApartByTheirWholeNames)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_TRUE(storage.HasCommand("DV_", "porosity"));
  EXPECT_FALSE(storage.HasCommand("DV_", "poros"));
  EXPECT_FALSE(storage.HasCommand("DV_", "porosity2"));
  EXPECT_FALSE(storage.HasCommand("DV_", "Porosity"));
  EXPECT_FALSE(storage.HasCommand("DV_", ""));
  EXPECT_FALSE(storage.HasCommand("DV_", "."));
  EXPECT_FALSE(storage.HasCommand("DV_", std::string("porosity\0", 9)));
}

TEST_F(ParfileHdf5StorageRead, FailsToLookForACommandOfAKindWithoutGroup)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_THAT(
    FailureOf([&] { storage.HasCommand("STOP_", "porosity"); }),
    IsDatabaseFailure("Failed to retrieve command size info from the optimization database.", "185548010612"));
}

TEST_F(ParfileHdf5StorageRead, NamesCommandsInTheByteOrderOfTheirNames)
{
  const ParfileHdf5Storage storage = FreshStorage();
  storage.AddCommand("DV_", "B");
  storage.AddCommand("DV_", "A");
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("A", "B"));
  for (const char* name : {"b", "a10", "a", "a2", "_", "\xc3\xa4", "10", " "})
  {
    storage.AddCommand("DV_", name);
  }
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre(" ", "10", "A", "B", "_", "a", "a10", "a2", "b", "\xc3\xa4"));
}

TEST_F(ParfileHdf5StorageRead, NamesManyCommands)
{
  const ParfileHdf5Storage storage = FreshStorage();
  for (int i = 999; i >= 100; --i)
  {
    storage.AddCommand("DV_", std::to_string(i));
  }
  EXPECT_EQ(storage.GetNumCommand("DV_"), 900U);
  EXPECT_EQ(NameAt(storage, "DV_", 0), "100");
  EXPECT_EQ(NameAt(storage, "DV_", 450), "550");
  EXPECT_EQ(NameAt(storage, "DV_", 899), "999");
  EXPECT_TRUE(storage.HasCommand("DV_", "100"));
  EXPECT_TRUE(storage.HasCommand("DV_", "999"));
  EXPECT_FALSE(storage.HasCommand("DV_", "1000"));
}

TEST_F(ParfileHdf5StorageRead, FailsToNameACommandPastTheLastAndKeepsTheOutput)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const auto is_failure =
    IsDatabaseFailure("Failed to retrieve command name info from the optimization database.", "185548060612");
  std::string name = "kept";
  EXPECT_THAT(FailureOf([&] { storage.GetCommandName("DV_", 1, name); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetCommandName("DV_", std::numeric_limits<std::uint64_t>::max(), name); }),
              is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetCommandName("STOP_", 0, name); }), is_failure);
  EXPECT_EQ(name, "kept");
}

TEST_F(ParfileHdf5StorageRead, TellsKeysOfACommandApartByTheirWholeNames)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "TYPE_"));
  storage.AddValue("DV_", "porosity", "TYPE_", vtmEnum, 68);
  EXPECT_TRUE(storage.HasElement("DV_", "porosity", "TYPE_"));
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "TYPE"));
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", "TYPE_2"));
  EXPECT_FALSE(storage.HasElement("DV_", "porosity", ""));
}

TEST_F(ParfileHdf5StorageRead, CountsTheValuesOfAKeyAndNotTheItemsOfItsLists)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  EXPECT_EQ(CountOf(storage, "ABSENT_"), 0U);
  EXPECT_EQ(CountOf(storage, "LIST_"), 2U);
  EXPECT_EQ(CountOf(storage, "COUNT_"), 2U);
  EXPECT_EQ(CountOf(storage, "DV_"), 1U);
}

TEST_F(ParfileHdf5StorageRead, FailsToLookForAKeyOfAnAbsentCommand)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  for (const auto& [command, id] : {std::pair{"DV_", "absent"}, {"STOP_", "porosity"}})
  {
    SCOPED_TRACE(command);
    const auto look = [&, c = std::string(command), i = std::string(id)] { storage.HasElement(c, i, "TYPE_"); };
    const auto count = [&, c = std::string(command), i = std::string(id)] { storage.GetNumElements(c, i, "TYPE_"); };
    EXPECT_THAT(FailureOf(look), IsDatabaseFailure("Failed to retrieve value size info from the optimization database.",
                                                   "185548060612"));
    EXPECT_THAT(FailureOf(count),
                IsDatabaseFailure("Failed to value size info from the optimization database.", "185548060612"));
  }
}

TEST_F(ParfileHdf5StorageRead, GivesTheFirstAndTheLastValueOfEachType)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1), 3);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 4);
  EXPECT_EQ(EnumeratorOf(storage, "TYPE_", 1, vtmEnum), 68);
  EXPECT_EQ(EnumeratorOf(storage, "TYPE_", 2, vtmEnum), 78);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 1), 0.4);
  EXPECT_EQ(DoubleOf(storage, "INITIAL_", 2), 2.75);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "start.csv");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "end.csv");
  EXPECT_EQ(TextOf(storage, "GROUP_", 1, vtmModelId), "duct");
  EXPECT_EQ(TextOf(storage, "GROUP_", 2, vtmModelId), "wall");
  EXPECT_THAT(IntegersOf(storage, "LIST_", 1), ElementsAre(4, 7, 11));
  EXPECT_THAT(IntegersOf(storage, "LIST_", 2), IsEmpty());
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 1), ElementsAre(0.5));
  EXPECT_THAT(DoublesOf(storage, "CUTOFF_", 2), IsEmpty());
}

TEST_F(ParfileHdf5StorageRead, TreatsIntegersAsEnumeratorsAndTextsAsModelIds)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  EXPECT_EQ(IntegerOf(storage, "TYPE_", 1, vtmInteger), 68);
  EXPECT_EQ(IntegerOf(storage, "TYPE_", 1, vtmEnum), 68);
  EXPECT_EQ(EnumeratorOf(storage, "COUNT_", 1, vtmInteger), 3);
  EXPECT_EQ(TextOf(storage, "GROUP_", 1, vtmString), "duct");
  EXPECT_EQ(TextOf(storage, "FIELD_", 1, vtmModelId), "start.csv");
}

TEST_F(ParfileHdf5StorageRead, LosesNothingOfATextWithoutNul)
{
  std::string all_bytes;
  for (int byte = 1; byte < 256; ++byte)
  {
    all_bytes += static_cast<char>(byte);
  }
  const std::string long_text(100000, 'x');
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, all_bytes);
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string());
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, long_text);
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), all_bytes);
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "");
  EXPECT_EQ(TextOf(storage, "FIELD_", 3), long_text);
}

TEST_F(ParfileHdf5StorageRead, CutsATextAtItsFirstNul)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("ab\0cd", 5));
  storage.AddValue("DV_", "porosity", "FIELD_", vtmString, std::string("\0cd", 3));
  EXPECT_EQ(TextOf(storage, "FIELD_", 1), "ab");
  EXPECT_EQ(TextOf(storage, "FIELD_", 2), "");
}

TEST_F(ParfileHdf5StorageRead, ConvertsToTheTypeThatIsAskedFor)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  storage.AddValue("DV_", "porosity", "WIDE_", vtmDouble, 1e300);
  EXPECT_EQ(DoubleOf(storage, "COUNT_", 1), 3.0);
  EXPECT_EQ(IntegerOf(storage, "INITIAL_", 2), 2);
  EXPECT_EQ(IntegerOf(storage, "WIDE_", 1), std::numeric_limits<int>::max());
  EXPECT_THAT(IntegersOf(storage, "CUTOFF_", 1), ElementsAre(0));
  EXPECT_THAT(DoublesOf(storage, "LIST_", 1), ElementsAre(4.0, 7.0, 11.0));
}

TEST_F(ParfileHdf5StorageRead, FailsWhereHdf5CannotConvertAndKeepsTheOutput)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  int integer = 5;
  double number = 0.5;
  std::string text = "kept";
  std::vector<int> integers{1, 2};
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "FIELD_", 1, vtmInteger, integer); }),
              IsReadFailure());
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "LIST_", 1, vtmDouble, number); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "COUNT_", 1, vtmString, text); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "LIST_", 1, vtmString, text); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "DV_", 1, vtmInteger, integer); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "FIELD_", 1, vtmIntegerList, integers); }),
              IsReadFailure());
  EXPECT_EQ(integer, 5);
  EXPECT_EQ(number, 0.5);
  EXPECT_EQ(text, "kept");
  EXPECT_THAT(integers, ElementsAre(1, 2));
}

TEST_F(ParfileHdf5StorageRead, RefusesATypeThatTheOutputCannotTakeAndKeepsTheOutput)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  int integer = 5;
  double number = 0.5;
  std::string text = "kept";
  std::vector<int> integers{1, 2};
  std::vector<double> numbers{0.25};
  for (const VtmType type : {vtmDouble, vtmString, vtmModelId, vtmIntegerList, vtmDoubleList})
  {
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "COUNT_", 1, type, integer); }), IsReadFailure());
    EXPECT_THAT(FailureOf([&] { storage.GetEnumValue("DV_", "porosity", "TYPE_", 1, type, integer); }),
                IsReadFailure());
  }
  for (const VtmType type : {vtmInteger, vtmEnum, vtmString, vtmModelId, vtmIntegerList, vtmDoubleList})
  {
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "INITIAL_", 1, type, number); }), IsReadFailure());
  }
  for (const VtmType type : {vtmInteger, vtmEnum, vtmDouble, vtmIntegerList, vtmDoubleList})
  {
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "FIELD_", 1, type, text); }), IsReadFailure());
  }
  for (const VtmType type : {vtmInteger, vtmEnum, vtmDouble, vtmString, vtmModelId, vtmDoubleList})
  {
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "LIST_", 1, type, integers); }), IsReadFailure());
  }
  for (const VtmType type : {vtmInteger, vtmEnum, vtmDouble, vtmString, vtmModelId, vtmIntegerList})
  {
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "CUTOFF_", 1, type, numbers); }), IsReadFailure());
  }
  EXPECT_EQ(integer, 5);
  EXPECT_EQ(number, 0.5);
  EXPECT_EQ(text, "kept");
  EXPECT_THAT(integers, ElementsAre(1, 2));
  EXPECT_THAT(numbers, ElementsAre(0.25));
}

TEST_F(ParfileHdf5StorageRead, ReadsNothingForATypeWithoutValue)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  for (const int number : {4, 5, 8, 9, 11, 12, -1, 1000})
  {
    SCOPED_TRACE(number);
    const auto type = static_cast<VtmType>(number);
    EXPECT_EQ(IntegerOf(storage, "COUNT_", 1, type), -4711);
    EXPECT_EQ(IntegerOf(storage, "COUNT_", 99, type), -4711);
    EXPECT_EQ(EnumeratorOf(storage, "TYPE_", 1, type), -4711);
    EXPECT_EQ(TextOf(storage, "FIELD_", 1, type), "not read");
    double value = 0.5;
    storage.GetValue("DV_", "porosity", "INITIAL_", 1, type, value);
    EXPECT_EQ(value, 0.5);
    std::vector<int> integers{1};
    storage.GetValue("DV_", "porosity", "LIST_", 1, type, integers);
    EXPECT_THAT(integers, ElementsAre(1));
    std::vector<double> numbers{0.25};
    storage.GetValue("DV_", "porosity", "CUTOFF_", 1, type, numbers);
    EXPECT_THAT(numbers, ElementsAre(0.25));
  }
}

TEST_F(ParfileHdf5StorageRead, FailsOnAnAbsentKeyWhateverTheType)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const Failure failure{"Failed to retrieve value from the optimization database.", "160045060612",
                        "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] "};
  EXPECT_EQ(FailureOf([&] { IntegerOf(storage, "K_", 1); }), failure);
  EXPECT_EQ(FailureOf([&] { EnumeratorOf(storage, "K_", 1, vtmEnum); }), failure);
  EXPECT_EQ(FailureOf([&] { DoubleOf(storage, "K_", 1); }), failure);
  EXPECT_EQ(FailureOf([&] { TextOf(storage, "K_", 1); }), failure);
  EXPECT_EQ(FailureOf([&] { TextOf(storage, "K_", 1, vtmModelId); }), failure);
  EXPECT_EQ(FailureOf([&] { IntegersOf(storage, "K_", 1); }), failure);
  EXPECT_EQ(FailureOf([&] { DoublesOf(storage, "K_", 1); }), failure);
  EXPECT_EQ(FailureOf([&] { TextOf(storage, "K_", 1, vtmIdName); }), failure);
  EXPECT_EQ(FailureOf([&] { IntegerOf(storage, "K_", 1, vtmDouble); }), failure);
}

TEST_F(ParfileHdf5StorageRead, FailsOnAnAbsentCommandAndKeepsTheOutput)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const auto is_failure = IsDatabaseFailure("Failed to add value in the optimization database.", "172756040612");
  int integer = 5;
  double number = 0.5;
  std::string text = "kept";
  std::vector<int> integers{1, 2};
  std::vector<double> numbers{0.25};
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "absent", "K_", 1, vtmInteger, integer); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetEnumValue("DV_", "absent", "K_", 1, vtmEnum, integer); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "absent", "K_", 1, vtmDouble, number); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "absent", "K_", 1, vtmString, text); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "absent", "K_", 1, vtmIntegerList, integers); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "absent", "K_", 1, vtmDoubleList, numbers); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetValue("STOP_", "porosity", "K_", 1, vtmString, text); }), is_failure);
  EXPECT_EQ(integer, 5);
  EXPECT_EQ(number, 0.5);
  EXPECT_EQ(text, "kept");
  EXPECT_THAT(integers, ElementsAre(1, 2));
  EXPECT_THAT(numbers, ElementsAre(0.25));
}

TEST_F(ParfileHdf5StorageRead, FailsPastTheLastValueAndKeepsTheOutput)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  int integer = 5;
  std::string text = "kept";
  std::vector<double> numbers{0.25};
  for (const std::uint64_t index :
       {std::uint64_t{3}, std::uint64_t{0}, std::uint64_t{1} << 32, std::numeric_limits<std::uint64_t>::max()})
  {
    SCOPED_TRACE(index);
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "COUNT_", index, vtmInteger, integer); }),
                IsReadFailure());
    EXPECT_THAT(FailureOf([&] { storage.GetEnumValue("DV_", "porosity", "TYPE_", index, vtmEnum, integer); }),
                IsReadFailure());
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "FIELD_", index, vtmString, text); }),
                IsReadFailure());
    EXPECT_THAT(FailureOf([&] { storage.GetValue("DV_", "porosity", "CUTOFF_", index, vtmDoubleList, numbers); }),
                IsReadFailure());
    EXPECT_THAT(FailureOf([&] { storage.GetReference("DV_", "porosity", "DV_", index, text); }), IsReadFailure());
  }
  EXPECT_EQ(integer, 5);
  EXPECT_EQ(text, "kept");
  EXPECT_THAT(numbers, ElementsAre(0.25));
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 2), 4) << "a failed read leaves nothing behind";
}

TEST_F(ParfileHdf5StorageRead, GivesTheNameOfAReferencedCommandWithoutItsKind)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", "porosity");
  storage.AddCommand("FILTER_", "a filter");
  storage.AddReference("DV_", "porosity", "MIXED_", "FILTER_", "porosity");
  storage.AddReference("DV_", "porosity", "MIXED_", "DV_", "porosity");
  storage.AddReference("DV_", "porosity", "MIXED_", "FILTER_", "a filter");
  EXPECT_EQ(CountOf(storage, "MIXED_"), 3U);
  EXPECT_EQ(ReferenceOf(storage, "MIXED_", 1), "porosity");
  EXPECT_EQ(ReferenceOf(storage, "MIXED_", 2), "porosity");
  EXPECT_EQ(ReferenceOf(storage, "MIXED_", 3), "a filter");
}

TEST_F(ParfileHdf5StorageRead, GivesTheNameOfACommandOfAnotherKindThanItsKeySays)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", "fine");
  storage.AddCommand("CS_", "axis");
  storage.AddReference("DV_", "porosity", "FILTER_", "CS_", "axis");
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  storage.AddReference("DV_", "porosity", "FILTER_", "DV_", "porosity");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "axis");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 2), "fine");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 3), "porosity");
}

TEST_F(ParfileHdf5StorageRead, GivesTheLastPartOfATargetWithASlashInItsName)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", "fine");
  storage.AddCommand("FILTER_", "fine/inner");
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine/inner");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "inner");
}

TEST_F(ParfileHdf5StorageRead, GivesTheTargetsOfManyReferences)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  for (int i = 100; i < 400; ++i)
  {
    storage.AddCommand("FILTER_", std::to_string(i));
  }
  for (int i = 399; i >= 100; --i)
  {
    storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", std::to_string(i));
  }
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), "399");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 150), "250");
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 300), "100");
}

TEST_F(ParfileHdf5StorageRead, GivesALongNameOfAReferencedCommand)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  const std::string name(5000, 'x');
  storage.AddCommand("FILTER_", name);
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", name);
  EXPECT_EQ(ReferenceOf(storage, "FILTER_", 1), name);
}

TEST_F(ParfileHdf5StorageRead, FailsToReadAReferenceThatIsAbsent)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  std::string target = "kept";
  const auto is_failure = IsDatabaseFailure("Failed to write reference in the optimization database.", "172740050612");
  EXPECT_THAT(FailureOf([&] { storage.GetReference("DV_", "porosity", "FILTER_", 1, target); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetReference("DV_", "absent", "DV_", 1, target); }), is_failure);
  EXPECT_THAT(FailureOf([&] { storage.GetReference("STOP_", "porosity", "DV_", 1, target); }), is_failure);
  EXPECT_EQ(target, "kept");
}

TEST_F(ParfileHdf5StorageRead, FailsToReadAReferenceFromAKeyOfValues)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "COUNT_", 1); }), IsReadFailure());
  EXPECT_THAT(FailureOf([&] { ReferenceOf(storage, "FIELD_", 1); }), IsReadFailure());
}

TEST_F(ParfileHdf5StorageRead, FindsTheTargetOfAReferenceAfterItsFileWasClosed)
{
  {
    const ParfileHdf5Storage storage = StorageWithCommand();
    storage.AddCommand("FILTER_", "fine");
    storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  }
  EXPECT_EQ(ReferenceOf(ReadOnlyStorage(), "FILTER_", 1), "fine");
}

TEST_F(ParfileHdf5StorageRead, ReadsAZeroedTypeAsAnInteger)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  AddKeys(storage);
  EXPECT_EQ(IntegerOf(storage, "COUNT_", 1, VtmType{}), 3);
}

TEST_F(ParfileHdf5StorageRead, FailsUnderACommandThatReadsAMissingKeyWithoutAsking)
{
  const ParfileHdf5Storage storage = FreshStorage();
  storage.AddCommand("MODEL_", "duct");
  MODEL_ model;
  EXPECT_EQ(FailureOf([&] { model.Load(storage, "duct"); }),
            StorageFailure("Failed to retrieve value from the optimization database.", "160045060612"));
  EXPECT_EQ(model.GetID_NAME_(), "duct");

  storage.AddValue("MODEL_", "duct", "FILE_", vtmString, std::string("duct.inp"));
  model.Load(storage, "duct");
  EXPECT_EQ(model.GetFILE_(), "duct.inp");
  EXPECT_FALSE(model.HasSOLVER_());
}

namespace
{

std::size_t conversion_buffer = 0;

// Notes how large the buffer is in which HDF5 converts.
herr_t NoteBuffer(hid_t, hid_t, H5T_cdata_t* data, std::size_t, std::size_t, std::size_t, void*, void*, hid_t transfer)
{
  if (data->command == H5T_CONV_CONV)
  {
    conversion_buffer = H5Pget_buffer(transfer, nullptr, nullptr);
  }
  return 0;
}

// Stands in for one conversion of HDF5's while it lives.
class BufferProbe
{
public:
  BufferProbe(hid_t from, hid_t to) : m_from(from), m_to(to)
  {
    H5Tregister(H5T_PERS_HARD, "probe", from, to, NoteBuffer);
    conversion_buffer = 0;
  }
  BufferProbe(const BufferProbe&) = delete;
  BufferProbe& operator=(const BufferProbe&) = delete;
  ~BufferProbe() { H5Tunregister(H5T_PERS_HARD, "probe", m_from, m_to, NoteBuffer); }

private:
  hid_t m_from;
  hid_t m_to;
};

}  // namespace

// HDF5 zeroes this buffer at each read that converts: a megabyte, when it is not told otherwise.
TEST_F(ParfileHdf5StorageRead, ConvertsInASmallBuffer)
{
  plain_hdf5::MakeFileWithParfile();
  plain_hdf5::MakeGroup("/PARFILE/DV_");
  plain_hdf5::MakeGroup("/PARFILE/DV_/porosity");
  const std::int32_t zero = 0;
  plain_hdf5::MakeKey("/PARFILE/DV_/porosity/KEY_", H5T_STD_I32BE, 1, &zero);
  const ParfileHdf5Storage storage;
  {
    const BufferProbe probe(H5T_STD_I32BE, H5T_NATIVE_INT);
    IntegerOf(storage, "KEY_", 1);
    EXPECT_EQ(conversion_buffer, 4096U);
  }
  const BufferProbe probe(H5T_NATIVE_INT, H5T_STD_I32BE);
  storage.SetValue("DV_", "porosity", "KEY_", 1, vtmInteger, 5);
  EXPECT_EQ(conversion_buffer, 4096U);
}
