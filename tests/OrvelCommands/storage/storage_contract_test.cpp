#include "map_storage/MapStorage.h"
#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/parsed_commands.h"
#include "support/plain_hdf5.h"
#include "support/storage_failures.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>
#include <set>
#include <tuple>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

// Texts that a storage may meet: none, with a conversion, with lines, of more than one byte a character, long.
const std::vector<std::string>& Texts()
{
  static const std::vector<std::string> texts = {
    "one", "", "100 % of %s", "line\nline\ttab", "\xc3\xa4\xe2\x82\xac", std::string(5000, 'x')};
  return texts;
}

// Every storage holds in its own way:
// - DRESP_ "alpha": TYPE_ 1001, UPDATE_ID_ all Texts(), LOADCASE_ 7, -8, 2147483647
// - DRESP_ "beta": TYPE_ 146, FILE_ {-2, 5, 9}, {}, {1}
// - OPERATOR_ "alpha": TYPE_ 87, DRESP_ to "alpha", "beta", "alpha", DRESP_WEIGHT_ 1.5, -0.25, 1e300
// - MODEL_ "duct": FILE_ "duct.cgns"
// - STOP_ "end" without keys

class ParsedBackend
{
public:
  ParsedBackend()
  {
    AddResponsesAndOperator();
    AddParsed(m_container, Defs::MODEL_INPUT, "duct").AddStringItem(Items::FILE, "duct.cgns");
    AddParsed(m_container, Defs::STOP, "end");
    m_storage = std::make_unique<OrvelParfileStorageCmdContainer>(m_container);
  }

  OrvelParfileStorage& Storage() { return *m_storage; }

private:
  void AddResponsesAndOperator()
  {
    OrvelCmd& alpha = AddParsed(m_container, Defs::DRESP, "alpha");
    alpha.AddEnumItem(Items::TYPE, Enumerator(1001));
    for (const std::string& text : Texts())
    {
      alpha.AddStringItem(Items::UPDATE_ID, text);
    }
    for (const int number : {7, -8, 2147483647})
    {
      alpha.AddIntegerItem(Items::LOADCASE, number);
    }
    OrvelCmd& beta = AddParsed(m_container, Defs::DRESP, "beta");
    beta.AddEnumItem(Items::TYPE, Enumerator(146));
    for (const std::set<int>& set : {std::set<int>{-2, 5, 9}, std::set<int>{}, std::set<int>{1}})
    {
      beta.AddIntegerSetItem(Items::FILE, set);
    }
    OrvelCmd& sum = AddParsed(m_container, Defs::OPERATOR, "alpha");
    sum.AddEnumItem(Items::TYPE, Enumerator(87));
    for (const auto& [operand, weight] : {std::pair{&alpha, 1.5}, {&beta, -0.25}, {&alpha, 1e300}})
    {
      sum.AddReferenceItem(Items::REFERENCE, *operand);
      sum.AddDoubleItem(Items::COEFFICIENT, weight);
    }
  }

  OrvelCmdContainer m_container;
  std::unique_ptr<OrvelParfileStorage> m_storage;
};

// What a storage that can be written is filled with.

void AddResponses(const OrvelParfileStorage& storage)
{
  storage.AddCommand("DRESP_", "alpha");
  storage.AddValue("DRESP_", "alpha", "TYPE_", vtmEnum, 1001);
  for (const std::string& text : Texts())
  {
    storage.AddValue("DRESP_", "alpha", "UPDATE_ID_", vtmString, text);
  }
  for (const int number : {7, -8, 2147483647})
  {
    storage.AddValue("DRESP_", "alpha", "LOADCASE_", vtmInteger, number);
  }
  storage.AddCommand("DRESP_", "beta");
  storage.AddValue("DRESP_", "beta", "TYPE_", vtmEnum, 146);
  for (const std::vector<int>& list : {std::vector<int>{-2, 5, 9}, std::vector<int>{}, std::vector<int>{1}})
  {
    storage.AddValue("DRESP_", "beta", "FILE_", vtmIntegerList, list);
  }
}

void AddOperator(const OrvelParfileStorage& storage)
{
  storage.AddCommand("OPERATOR_", "alpha");
  storage.AddValue("OPERATOR_", "alpha", "TYPE_", vtmEnum, 87);
  for (const auto& [operand, weight] : {std::pair{"alpha", 1.5}, {"beta", -0.25}, {"alpha", 1e300}})
  {
    storage.AddReference("OPERATOR_", "alpha", "DRESP_", "DRESP_", operand);
    storage.AddValue("OPERATOR_", "alpha", "DRESP_WEIGHT_", vtmDouble, weight);
  }
}

void FillThroughItsWriteHalf(const OrvelParfileStorage& storage)
{
  AddResponses(storage);
  AddOperator(storage);
  storage.AddCommand("MODEL_", "duct");
  storage.AddValue("MODEL_", "duct", "FILE_", vtmString, std::string("duct.cgns"));
  storage.AddCommand("STOP_", "end");
}

class StoredBackend
{
public:
  StoredBackend()
  {
    plain_hdf5::MakeEmptyFile();
    m_storage = std::make_unique<ParfileHdf5Storage>(true);
    FillThroughItsWriteHalf(*m_storage);
  }

  OrvelParfileStorage& Storage() { return *m_storage; }

private:
  TemporaryFolder m_folder;
  plain_hdf5::QuietErrors m_quiet;
  std::unique_ptr<OrvelParfileStorage> m_storage;
};

// The storage of examples/map_storage, which a reader writes after.
class MapBackend
{
public:
  MapBackend() { FillThroughItsWriteHalf(m_storage); }

  OrvelParfileStorage& Storage() { return m_storage; }

private:
  MapStorage m_storage;
};

template <class Backend>
class StorageContract : public testing::Test
{
protected:
  const OrvelParfileStorage& Storage() { return m_backend.Storage(); }
  KeysOf Keys(const std::string& kind, const std::string& id) { return {m_backend.Storage(), kind, id}; }

private:
  Backend m_backend;
};

struct BackendNames
{
  template <class Backend>
  static std::string GetName(int)
  {
    if (std::is_same_v<Backend, ParsedBackend>)
    {
      return "ParsedCommands";
    }
    return std::is_same_v<Backend, StoredBackend> ? "Hdf5File" : "Map";
  }
};

using Backends = testing::Types<ParsedBackend, StoredBackend, MapBackend>;
TYPED_TEST_SUITE(StorageContract, Backends, BackendNames);

auto AbsentValueFailure()
{
  return StorageFailure("Failed to retrieve value from the optimization database.", "160045060612");
}

auto IsCountFailure()
{
  return IsDatabaseFailure("Failed to value size info from the optimization database.", "185548060612");
}

auto IsPresenceFailure()
{
  return IsDatabaseFailure("Failed to retrieve value size info from the optimization database.", "185548060612");
}

// One of each kind of write, all of which a storage that can be written takes.
void Write(OrvelParfileStorage& storage)
{
  storage.AddCommand("STOP_", "late");
  storage.AddCommand("CS_", "axes");
  storage.AddValue("STOP_", "end", "ITER_MAX_", vtmInteger, 80);
  storage.AddValue("STOP_", "end", "RESIDUAL_DV_", vtmDouble, 0.5);
  storage.AddValue("STOP_", "end", "TEXT_", vtmString, std::string("text"));
  storage.AddValue("STOP_", "end", "LIST_", vtmIntegerList, std::vector<int>{1, 2});
  storage.AddValue("STOP_", "end", "CUTOFF_", vtmDoubleList, std::vector<double>{0.5});
  storage.AddReference("STOP_", "end", "DRESP_", "DRESP_", "beta");
  storage.SetValue("DRESP_", "alpha", "LOADCASE_", 1, vtmInteger, 70);
  storage.SetValue("DRESP_", "alpha", "UPDATE_ID_", 1, vtmString, std::string("set"));
  storage.SetValue("OPERATOR_", "alpha", "DRESP_WEIGHT_", 1, vtmDouble, 7.5);
  storage.SetValue("DRESP_", "beta", "FILE_", 1, vtmIntegerList, std::vector<int>{8});
  storage.DeleteValues("MODEL_", "duct", "FILE_");
}

// The numbers that a walk over kinds, commands and keys meets.
std::vector<std::uint64_t> CountsIn(const OrvelParfileStorage& storage)
{
  std::vector<std::uint64_t> counts;
  for (const char* kind : {"STOP_", "CS_", "DRESP_", "OPERATOR_", "MODEL_"})
  {
    counts.push_back(storage.GetNumCommand(kind));
  }
  for (const char* key : {"ITER_MAX_", "RESIDUAL_DV_", "TEXT_", "LIST_", "CUTOFF_", "DRESP_"})
  {
    counts.push_back(storage.GetNumElements("STOP_", "end", key));
  }
  counts.push_back(storage.GetNumElements("MODEL_", "duct", "FILE_"));
  return counts;
}

}  // namespace

// What all storages promise.

TYPED_TEST(StorageContract, CountsTheCommandsOfAKind)
{
  EXPECT_EQ(this->Storage().GetNumCommand("DRESP_"), 2U);
  EXPECT_EQ(this->Storage().GetNumCommand("OPERATOR_"), 1U);
  EXPECT_EQ(this->Storage().GetNumCommand("MODEL_"), 1U);
  EXPECT_EQ(this->Storage().GetNumCommand("STOP_"), 1U);
}

TYPED_TEST(StorageContract, CountsNoCommandsOfAnUnknownKindWithoutAFailure)
{
  for (const char* kind : {"CS_", "SMOOTH_", "DRESP", "no such kind", ""})
  {
    EXPECT_EQ(this->Storage().GetNumCommand(kind), 0U) << kind;
  }
}

TYPED_TEST(StorageContract, WalksTheCommandsFromPositionZeroUpToTheirNumber)
{
  EXPECT_EQ(NameAt(this->Storage(), "DRESP_", 0), "alpha");
  EXPECT_EQ(NameAt(this->Storage(), "DRESP_", 1), "beta");
  EXPECT_THAT(NamesOf(this->Storage(), "DRESP_"), ElementsAre("alpha", "beta"));
}

TYPED_TEST(StorageContract, CountsTheValuesOfAKey)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Count("TYPE_"), 1U);
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Count("UPDATE_ID_"), 6U);
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Count("LOADCASE_"), 3U);
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Count("DRESP_"), 3U);
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Count("DRESP_WEIGHT_"), 3U);
}

TYPED_TEST(StorageContract, CountsAListAsOneValue)
{
  EXPECT_EQ(this->Keys("DRESP_", "beta").Count("FILE_"), 3U);
}

TYPED_TEST(StorageContract, ReadsIntegersFromIndexOneUpToTheirNumber)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 1), 7);
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 2), -8);
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 3), 2147483647);
}

TYPED_TEST(StorageContract, ReadsDoublesFromIndexOneUpToTheirNumber)
{
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Double("DRESP_WEIGHT_", 1), 1.5);
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Double("DRESP_WEIGHT_", 2), -0.25);
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Double("DRESP_WEIGHT_", 3), 1e300);
}

TYPED_TEST(StorageContract, ReadsTextsFromIndexOneUpToTheirNumber)
{
  std::vector<std::string> texts;
  for (std::uint64_t index = 1; index <= 6; ++index)
  {
    texts.push_back(this->Keys("DRESP_", "alpha").Text("UPDATE_ID_", index));
  }
  EXPECT_THAT(texts,
              ElementsAre("one", "", "100 % of %s", "line\nline\ttab", "\xc3\xa4\xe2\x82\xac", std::string(5000, 'x')));
}

TYPED_TEST(StorageContract, ReadsListsFromIndexOneUpToTheirNumber)
{
  EXPECT_THAT(this->Keys("DRESP_", "beta").Integers("FILE_", 1), ElementsAre(-2, 5, 9));
  EXPECT_THAT(this->Keys("DRESP_", "beta").Integers("FILE_", 2), IsEmpty());
  EXPECT_THAT(this->Keys("DRESP_", "beta").Integers("FILE_", 3), ElementsAre(1));
}

TYPED_TEST(StorageContract, ReadsReferencesAsTheNameOfTheirTargetFromIndexOneUpToTheirNumber)
{
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Reference("DRESP_", 1), "alpha");
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Reference("DRESP_", 2), "beta");
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Reference("DRESP_", 3), "alpha");
}

TYPED_TEST(StorageContract, ReadsAnEnumeratorAsItsNumber)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Enumerator("TYPE_"), 1001);
  EXPECT_EQ(this->Keys("DRESP_", "beta").Enumerator("TYPE_"), 146);
}

TYPED_TEST(StorageContract, ReadsAModelIdLikeAnyText)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Text("UPDATE_ID_", 1, vtmModelId), "one");
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Text("UPDATE_ID_", 1, vtmString), "one");
}

TYPED_TEST(StorageContract, ReadsAnIntegerWithAZeroedVtmType)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 1, VtmType()), 7);
}

TYPED_TEST(StorageContract, ReplacesWhatTheOutputsHeld)
{
  const OrvelParfileStorage& storage = this->Storage();
  std::string text(10000, 'y');
  storage.GetValue("DRESP_", "alpha", "UPDATE_ID_", 2, vtmString, text);
  EXPECT_EQ(text, "");
  std::vector<int> list(1000, 1);
  storage.GetValue("DRESP_", "beta", "FILE_", 3, vtmIntegerList, list);
  EXPECT_THAT(list, ElementsAre(1));
  std::string name(10000, 'y');
  storage.GetCommandName("DRESP_", 1, name);
  EXPECT_EQ(name, "beta");
  std::string target(10000, 'y');
  storage.GetReference("OPERATOR_", "alpha", "DRESP_", 2, target);
  EXPECT_EQ(target, "beta");
}

TYPED_TEST(StorageContract, TellsWhetherAKeyIsPresentWithoutAFailureOnACommandThatExists)
{
  const std::vector<std::string> keys = {"TYPE_", "LOADCASE_",  "UPDATE_ID_", "FILE_", "CS_REF_", "DV_CONSTRAINT_",
                                         "TYPE",  "TYPE_ ",     "type_",      "",      ".",       "/",
                                         "x/y",   "no such key"};
  std::vector<std::string> present;
  for (const std::string& key : keys)
  {
    if (this->Keys("DRESP_", "alpha").Has(key))
    {
      present.push_back(key);
    }
  }
  EXPECT_THAT(present, ElementsAre("TYPE_", "LOADCASE_", "UPDATE_ID_"));
}

TYPED_TEST(StorageContract, CountsNoValuesOfAnAbsentKeyWithoutAFailure)
{
  for (const char* key : {"FILE_", "CS_REF_", "DV_CONSTRAINT_", "TYPE", "", "no such key"})
  {
    EXPECT_EQ(this->Keys("DRESP_", "alpha").Count(key), 0U) << key;
    EXPECT_FALSE(this->Keys("DRESP_", "alpha").Has(key)) << key;
  }
}

TYPED_TEST(StorageContract, HasEveryKeyThatCountsAValue)
{
  for (const auto& [kind, id, key] :
       {std::tuple{"DRESP_", "alpha", "TYPE_"}, {"DRESP_", "beta", "FILE_"}, {"OPERATOR_", "alpha", "DRESP_"}})
  {
    EXPECT_TRUE(this->Keys(kind, id).Has(key)) << kind << id << key;
  }
}

TYPED_TEST(StorageContract, TellsCommandsOfOneNameUnderTwoKindsApart)
{
  EXPECT_EQ(this->Keys("DRESP_", "alpha").Enumerator("TYPE_"), 1001);
  EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Enumerator("TYPE_"), 87);
  EXPECT_FALSE(this->Keys("OPERATOR_", "alpha").Has("LOADCASE_"));
}

TYPED_TEST(StorageContract, ReadsTheSameInAnyOrderAndAnyNumberOfTimes)
{
  for (int repetition = 0; repetition < 3; ++repetition)
  {
    EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 3), 2147483647);
    EXPECT_EQ(this->Keys("OPERATOR_", "alpha").Reference("DRESP_", 2), "beta");
    EXPECT_EQ(this->Keys("DRESP_", "alpha").Integer("LOADCASE_", 1), 7);
    EXPECT_THAT(NamesOf(this->Storage(), "DRESP_"), ElementsAre("alpha", "beta"));
    EXPECT_EQ(this->Keys("DRESP_", "alpha").Count("LOADCASE_"), 3U);
  }
}

TYPED_TEST(StorageContract, LoadsACommandClass)
{
  MODEL_ model;
  model.Load(this->Storage(), "duct");
  EXPECT_EQ(model.GetID_NAME_(), "duct");
  EXPECT_EQ(model.GetFILE_(), "duct.cgns");
  EXPECT_FALSE(model.HasSOLVER_());
}

// What differs between the two storages of the library: whether a command exists.

TEST(StorageDifferences, ParsedCommandsNeverTellThatACommandExists)
{
  ParsedBackend backend;
  EXPECT_FALSE(backend.Storage().HasCommand("DRESP_", "alpha"));
  EXPECT_FALSE(backend.Storage().HasCommand("DRESP_", "gamma"));
  EXPECT_FALSE(backend.Storage().HasCommand("CS_", "alpha"));
}

TEST(StorageDifferences, Hdf5FileTellsWhetherACommandExistsAndFailsForAKindWithoutCommands)
{
  StoredBackend backend;
  EXPECT_TRUE(backend.Storage().HasCommand("DRESP_", "alpha"));
  EXPECT_FALSE(backend.Storage().HasCommand("DRESP_", "gamma"));
  EXPECT_THAT(
    FailureOf([&] { backend.Storage().HasCommand("CS_", "alpha"); }),
    IsDatabaseFailure("Failed to retrieve command size info from the optimization database.", "185548010612"));
}

// The number of commands of a kind without commands.

TEST(StorageDifferences, ParsedCommandsCountOneOfTheSixKindsThatExistInAnyCase)
{
  ParsedBackend backend;
  for (const char* kind : {"FLOWPATHS_", "OPT_PARAM_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    EXPECT_EQ(backend.Storage().GetNumCommand(kind), 1U) << kind;
  }
  for (const char* kind : {"DV_", "ALGO_", "CS_", "MONITOR_", "FACE_GROUP_", "ELEMENT_GROUP_"})
  {
    EXPECT_EQ(backend.Storage().GetNumCommand(kind), 0U) << kind;
  }
}

TEST(StorageDifferences, Hdf5FileCountsNoCommandThatItDoesNotHold)
{
  StoredBackend backend;
  for (const char* kind : {"FLOWPATHS_", "OPT_PARAM_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_",
                           "DV_", "ALGO_", "CS_", "MONITOR_", "FACE_GROUP_", "ELEMENT_GROUP_"})
  {
    EXPECT_EQ(backend.Storage().GetNumCommand(kind), 0U) << kind;
  }
}

// A position that is too large.

TEST(StorageDifferences, ParsedCommandsNameAPositionThatIsTooLargeWithTheEmptyText)
{
  ParsedBackend backend;
  EXPECT_EQ(NameAt(backend.Storage(), "DRESP_", 2), "");
  EXPECT_EQ(NameAt(backend.Storage(), "CS_", 0), "");
}

TEST(StorageDifferences, Hdf5FileFailsToNameAPositionThatIsTooLarge)
{
  StoredBackend backend;
  const auto is_failure =
    IsDatabaseFailure("Failed to retrieve command name info from the optimization database.", "185548060612");
  EXPECT_THAT(FailureOf([&] { NameAt(backend.Storage(), "DRESP_", 2); }), is_failure);
  EXPECT_THAT(FailureOf([&] { NameAt(backend.Storage(), "CS_", 0); }), is_failure);
}

// Presence and number of values of an absent name or kind.

TEST(StorageDifferences, ParsedCommandsHaveNoValuesUnderAnAbsentNameOrKind)
{
  ParsedBackend backend;
  for (const auto& [kind, id] : {std::pair{"DRESP_", "gamma"}, {"CS_", "alpha"}})
  {
    EXPECT_FALSE(KeysOf(backend.Storage(), kind, id).Has("TYPE_"));
    EXPECT_EQ(KeysOf(backend.Storage(), kind, id).Count("TYPE_"), 0U);
  }
}

TEST(StorageDifferences, Hdf5FileFailsToLookForValuesUnderAnAbsentNameOrKind)
{
  StoredBackend backend;
  for (const auto& [kind, id] : {std::pair{"DRESP_", "gamma"}, {"CS_", "alpha"}})
  {
    const KeysOf keys(backend.Storage(), kind, id);
    EXPECT_THAT(FailureOf([&] { keys.Has("TYPE_"); }), IsPresenceFailure());
    EXPECT_THAT(FailureOf([&] { keys.Count("TYPE_"); }), IsCountFailure());
  }
}

// Values of an absent key.

TEST(StorageDifferences, ParsedCommandsKeepEmptyOrZeroTheOutputForAnAbsentKey)
{
  ParsedBackend backend;
  const KeysOf keys(backend.Storage(), "STOP_", "end");
  EXPECT_EQ(keys.Text("ITER_MAX_"), "kept");
  EXPECT_EQ(keys.Double("ITER_MAX_"), -47.11);
  EXPECT_EQ(keys.Integer("ITER_MAX_"), -4711);
  EXPECT_THAT(keys.Integers("ITER_MAX_"), IsEmpty());
  EXPECT_EQ(keys.Enumerator("ITER_MAX_"), 0);
}

TEST(StorageDifferences, Hdf5FileFailsToReadAnAbsentKey)
{
  StoredBackend backend;
  const KeysOf keys(backend.Storage(), "STOP_", "end");
  EXPECT_EQ(FailureOf([&] { keys.Text("ITER_MAX_"); }), AbsentValueFailure());
  EXPECT_EQ(FailureOf([&] { keys.Double("ITER_MAX_"); }), AbsentValueFailure());
  EXPECT_EQ(FailureOf([&] { keys.Integer("ITER_MAX_"); }), AbsentValueFailure());
  EXPECT_EQ(FailureOf([&] { keys.Integers("ITER_MAX_"); }), AbsentValueFailure());
  EXPECT_EQ(FailureOf([&] { keys.Enumerator("ITER_MAX_"); }), AbsentValueFailure());
}

TEST(StorageDifferences, ParsedCommandsLoadACommandClassThatLacksItsKeysWithDefaults)
{
  ParsedBackend backend;
  STOP_ stop;
  stop.Load(backend.Storage(), "end");
  EXPECT_EQ(stop.GetID_NAME_(), "end");
  EXPECT_EQ(stop.GetITER_MAX_(), 0);
  EXPECT_EQ(stop.GetRESIDUAL_DV_(), 0.0);
}

TEST(StorageDifferences, Hdf5FileFailsToLoadACommandClassThatLacksItsKeys)
{
  StoredBackend backend;
  STOP_ stop;
  EXPECT_EQ(FailureOf([&] { stop.Load(backend.Storage(), "end"); }), AbsentValueFailure());
}

// References of an absent key.

TEST(StorageDifferences, ParsedCommandsGiveTheEmptyTextForAnAbsentReference)
{
  ParsedBackend backend;
  EXPECT_EQ(KeysOf(backend.Storage(), "OPERATOR_", "alpha").Reference("OPERATOR_"), "");
}

TEST(StorageDifferences, Hdf5FileFailsToReadAnAbsentReference)
{
  StoredBackend backend;
  EXPECT_THAT(FailureOf([&] { KeysOf(backend.Storage(), "OPERATOR_", "alpha").Reference("OPERATOR_"); }),
              IsDatabaseFailure("Failed to write reference in the optimization database.", "172740050612"));
}

// Lists of doubles.

TEST(StorageDifferences, ParsedCommandsReadNoListOfDoubles)
{
  ParsedBackend backend;
  EXPECT_THAT(KeysOf(backend.Storage(), "OPERATOR_", "alpha").Doubles("DRESP_WEIGHT_"), ElementsAre(-4.7, -1.1));
  EXPECT_THAT(KeysOf(backend.Storage(), "OPERATOR_", "alpha").Doubles("no such key"), ElementsAre(-4.7, -1.1));
}

TEST(StorageDifferences, Hdf5FileReadsAListOfDoublesLikeAnyValue)
{
  StoredBackend backend;
  backend.Storage().AddValue("STOP_", "end", "LIST_", vtmDoubleList, std::vector<double>{0.25, 0.75});
  EXPECT_THAT(KeysOf(backend.Storage(), "STOP_", "end").Doubles("LIST_"), ElementsAre(0.25, 0.75));
  EXPECT_EQ(FailureOf([&] { KeysOf(backend.Storage(), "STOP_", "end").Doubles("no such key"); }), AbsentValueFailure());
}

// A VtmType that has no values.

TEST(StorageDifferences, ParsedCommandsReadWithAnyVtmType)
{
  ParsedBackend backend;
  for (const VtmType type : {vtmIdName, vtmReference, vtmSelect, vtmComplexType, vtmUnknown, static_cast<VtmType>(99)})
  {
    EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Integer("LOADCASE_", 1, type), 7) << type;
    EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Enumerator("TYPE_", 1, type), 1001) << type;
    EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Text("UPDATE_ID_", 1, type), "one") << type;
  }
}

TEST(StorageDifferences, Hdf5FileReadsAndWritesNothingWithAVtmTypeWithoutValues)
{
  StoredBackend backend;
  const KeysOf keys(backend.Storage(), "DRESP_", "alpha");
  for (const VtmType type : {vtmIdName, vtmReference, vtmSelect, vtmComplexType, vtmUnknown, static_cast<VtmType>(99)})
  {
    EXPECT_EQ(keys.Integer("LOADCASE_", 1, type), -4711) << type;
    EXPECT_EQ(keys.Enumerator("TYPE_", 1, type), -4711) << type;
    EXPECT_EQ(keys.Text("UPDATE_ID_", 1, type), "kept") << type;
    backend.Storage().AddValue("DRESP_", "alpha", "LOADCASE_", type, 9);
    backend.Storage().SetValue("DRESP_", "alpha", "LOADCASE_", 1, type, 9);
    EXPECT_EQ(keys.Count("LOADCASE_"), 3U) << type;
    EXPECT_EQ(keys.Integer("LOADCASE_", 1), 7) << type;
  }
}

// Writing.

TEST(StorageDifferences, ParsedCommandsLoseEveryWriteWithoutAWord)
{
  ParsedBackend backend;
  Write(backend.Storage());
  EXPECT_THAT(CountsIn(backend.Storage()), ElementsAre(1U, 0U, 2U, 1U, 1U, 0U, 0U, 0U, 0U, 0U, 0U, 1U));
  EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Integer("LOADCASE_"), 7);
  EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Text("UPDATE_ID_"), "one");
  EXPECT_EQ(KeysOf(backend.Storage(), "OPERATOR_", "alpha").Double("DRESP_WEIGHT_"), 1.5);
  EXPECT_THAT(KeysOf(backend.Storage(), "DRESP_", "beta").Integers("FILE_"), ElementsAre(-2, 5, 9));
  EXPECT_EQ(KeysOf(backend.Storage(), "MODEL_", "duct").Text("FILE_"), "duct.cgns");
}

TEST(StorageDifferences, Hdf5FileTakesEveryWrite)
{
  StoredBackend backend;
  Write(backend.Storage());
  EXPECT_THAT(CountsIn(backend.Storage()), ElementsAre(2U, 1U, 2U, 1U, 1U, 1U, 1U, 1U, 1U, 1U, 1U, 0U));
  const KeysOf end(backend.Storage(), "STOP_", "end");
  EXPECT_EQ(end.Integer("ITER_MAX_"), 80);
  EXPECT_EQ(end.Double("RESIDUAL_DV_"), 0.5);
  EXPECT_EQ(end.Text("TEXT_"), "text");
  EXPECT_THAT(end.Integers("LIST_"), ElementsAre(1, 2));
  EXPECT_THAT(end.Doubles("CUTOFF_"), ElementsAre(0.5));
  EXPECT_EQ(end.Reference("DRESP_"), "beta");
  EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Integer("LOADCASE_"), 70);
  EXPECT_EQ(KeysOf(backend.Storage(), "DRESP_", "alpha").Text("UPDATE_ID_"), "set");
  EXPECT_EQ(KeysOf(backend.Storage(), "OPERATOR_", "alpha").Double("DRESP_WEIGHT_"), 7.5);
  EXPECT_THAT(KeysOf(backend.Storage(), "DRESP_", "beta").Integers("FILE_"), ElementsAre(8));
}

TEST(StorageDifferences, ParsedCommandsTakeEvenAWriteThatCannotBe)
{
  ParsedBackend backend;
  OrvelParfileStorage& storage = backend.Storage();
  EXPECT_NO_THROW(storage.AddCommand("DRESP_", "alpha"));
  EXPECT_NO_THROW(storage.AddReference("STOP_", "end", "DRESP_", "DRESP_", "gamma"));
  EXPECT_NO_THROW(storage.SetValue("STOP_", "end", "ITER_MAX_", 1, vtmInteger, 80));
  EXPECT_NO_THROW(storage.AddValue("STOP_", "gamma", "ITER_MAX_", vtmInteger, 80));
  EXPECT_NO_THROW(storage.DeleteValues("STOP_", "gamma", "ITER_MAX_"));
}

TEST(StorageDifferences, Hdf5FileRefusesAWriteThatCannotBe)
{
  StoredBackend backend;
  OrvelParfileStorage& storage = backend.Storage();
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("DRESP_", "alpha"); }),
            StorageFailure("The ID_NAME alpha is already used. Please check your parameterfile", ""));
  EXPECT_EQ(FailureOf([&] { storage.AddReference("STOP_", "end", "DRESP_", "DRESP_", "gamma"); }),
            StorageFailure("A command of type DRESP_ with the ID_NAME gamma referenced in the parameterfile is not "
                           "found\n  The command is reference from the STOP_ command with ID_NAME end",
                           ""));
  EXPECT_EQ(FailureOf([&] { storage.SetValue("STOP_", "end", "ITER_MAX_", 1, vtmInteger, 80); }),
            StorageFailure("Failed to retrieve value from the optimization database.", "160046060612"));
  EXPECT_THAT(FailureOf([&] { storage.AddValue("STOP_", "gamma", "ITER_MAX_", vtmInteger, 80); }),
              IsDatabaseFailure("Failed to add value in the optimization database.", "172758040612"));
  EXPECT_THAT(FailureOf([&] { storage.DeleteValues("STOP_", "gamma", "ITER_MAX_"); }), IsPresenceFailure());
}
