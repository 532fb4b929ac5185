#include "OrvelCommands/commands/gyre_commands.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StaticAssertTypeEq;

namespace
{

// The three classes differ in their names, in the kind of name that they hold and in their log record.

struct ElementGroup
{
  using Command = ELEMENT_GROUP_;
  static constexpr const char* kTest = "ElementGroup";
  static constexpr const char* kName = "ELEMENT_GROUP";
  static constexpr const char* kKind = "ELEMENT_GROUP_";
  static constexpr int kIdType = 9;
  static constexpr int kLine = 357;
  static constexpr const char* kPrefix = "[%T|%n|%P|OrvelCommands|ELEMENT_GROUP_] ";
  static Command& In(LinkedJob& job, const char* id) { return job->GetELEMENT_GROUP_(id); }
};

struct FaceGroup
{
  using Command = FACE_GROUP_;
  static constexpr const char* kTest = "FaceGroup";
  static constexpr const char* kName = "FACE_GROUP";
  static constexpr const char* kKind = "FACE_GROUP_";
  static constexpr int kIdType = 8;
  static constexpr int kLine = 610;
  static constexpr const char* kPrefix = "[%T|%n|%P|OrvelCommands|FACE_GROUP_] ";
  static Command& In(LinkedJob& job, const char* id) { return job->GetFACE_GROUP_(id); }
};

struct NodeGroup
{
  using Command = NODE_GROUP_;
  static constexpr const char* kTest = "NodeGroup";
  static constexpr const char* kName = "NODE_GROUP";
  static constexpr const char* kKind = "NODE_GROUP_";
  static constexpr int kIdType = 7;
  static constexpr int kLine = 863;
  static constexpr const char* kPrefix = "[%T|%n|%P|OrvelCommands|NODE_GROUP_] ";
  static Command& In(LinkedJob& job, const char* id) { return job->GetNODE_GROUP_(id); }
};

struct NameOfGroup
{
  template <class Group>
  static std::string GetName(int)
  {
    return Group::kTest;
  }
};

const char* const kFullText = "m_ID_NAME_: walls\n"
                              "m_has_LIST_: yes\n"
                              "m_LIST_: [\n3 -1 20]\n"
                              "m_num_MERGE_: 2\n"
                              "m_MERGE_: [\ninlet outlet]\n"
                              "m_num_INTERSECT_: 1\n"
                              "m_INTERSECT_: [\nduct]\n"
                              "m_num_XOR_: 2\n"
                              "m_XOR_: [\nleft right]\n"
                              "m_num_SUBTRACT_: 3\n"
                              "m_SUBTRACT_: [\nfillet hole fillet]\n";

void AddFullGroup(RecordingStorage& storage, const char* kind, const char* id)
{
  auto& keys = storage.Command(kind, id);
  keys["LIST_"] = {std::vector<int>{3, -1, 20}};
  keys["MERGE_"] = {std::string("inlet"), std::string("outlet")};
  keys["INTERSECT_"] = {std::string("duct")};
  keys["XOR_"] = {std::string("left"), std::string("right")};
  keys["SUBTRACT_"] = {std::string("fillet"), std::string("hole"), std::string("fillet")};
}

RecordingStorage StorageWithFullGroup(const char* kind)
{
  RecordingStorage storage;
  AddFullGroup(storage, kind, "walls");
  return storage;
}

RecordingStorage StorageWithBareGroup(const char* kind)
{
  RecordingStorage storage;
  storage.Command(kind, "bare");
  return storage;
}

const std::vector<const char*> kNameLists{"MERGE_", "INTERSECT_", "XOR_", "SUBTRACT_"};

template <class Row>
class Group : public testing::Test
{
protected:
  using Command = typename Row::Command;

  static Command FullGroup() { return LoadedAlone<Command>(StorageWithFullGroup(Row::kKind), "walls"); }
  static Command BareGroup() { return LoadedAlone<Command>(StorageWithBareGroup(Row::kKind), "bare"); }
  static std::string TextOf(const Command& command) { return LogRecordOf(command).text; }
  static KLV_IdType OwnKind() { return static_cast<KLV_IdType>(Row::kIdType); }
};

using GroupRows = testing::Types<ElementGroup, FaceGroup, NodeGroup>;

}  // namespace

TYPED_TEST_SUITE(Group, GroupRows, NameOfGroup);

TYPED_TEST(Group, TellsItsNames)
{
  using Class = typename TypeParam::Command;
  EXPECT_STREQ(Class::COMMAND_NAME, TypeParam::kName);
  EXPECT_EQ(Class::s_type, TypeParam::kKind);
  EXPECT_EQ(Class().GetType(), TypeParam::kKind);
}

TYPED_TEST(Group, IsEmptyBeforeItIsLoaded)
{
  const typename TypeParam::Command command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasLIST_());
  EXPECT_THAT(command.GetLIST_(), IsEmpty());
  EXPECT_EQ(command.NumMERGE_(), 0U);
  EXPECT_THAT(command.GetMERGE_(), IsEmpty());
  EXPECT_EQ(command.NumINTERSECT_(), 0U);
  EXPECT_THAT(command.GetINTERSECT_(), IsEmpty());
  EXPECT_EQ(command.NumXOR_(), 0U);
  EXPECT_THAT(command.GetXOR_(), IsEmpty());
  EXPECT_EQ(command.NumSUBTRACT_(), 0U);
  EXPECT_THAT(command.GetSUBTRACT_(), IsEmpty());
}

TYPED_TEST(Group, HandsOutItsListsWithoutCopyingThem)
{
  using Texts = const std::vector<std::string>&;
  const typename TypeParam::Command command;
  StaticAssertTypeEq<bool, decltype(command.HasLIST_())>();
  StaticAssertTypeEq<const std::vector<int>&, decltype(command.GetLIST_())>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumMERGE_())>();
  StaticAssertTypeEq<Texts, decltype(command.GetMERGE_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetMERGE_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumINTERSECT_())>();
  StaticAssertTypeEq<Texts, decltype(command.GetINTERSECT_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetINTERSECT_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumXOR_())>();
  StaticAssertTypeEq<Texts, decltype(command.GetXOR_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetXOR_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumSUBTRACT_())>();
  StaticAssertTypeEq<Texts, decltype(command.GetSUBTRACT_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetSUBTRACT_(1))>();
}

TYPED_TEST(Group, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithFullGroup(TypeParam::kKind);
  LoadedAlone<typename TypeParam::Command>(storage, "walls");
  const std::string walls = TypeParam::kKind + std::string(", walls, ");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre("HasElement(" + walls + "LIST_)", "GetValue(" + walls + "LIST_, 1, vtmIntegerList, vector<int>)",
                "GetNumElements(" + walls + "MERGE_)", "GetValue(" + walls + "MERGE_, 1, vtmModelId, string)",
                "GetValue(" + walls + "MERGE_, 2, vtmModelId, string)", "GetNumElements(" + walls + "INTERSECT_)",
                "GetValue(" + walls + "INTERSECT_, 1, vtmModelId, string)", "GetNumElements(" + walls + "XOR_)",
                "GetValue(" + walls + "XOR_, 1, vtmModelId, string)",
                "GetValue(" + walls + "XOR_, 2, vtmModelId, string)", "GetNumElements(" + walls + "SUBTRACT_)",
                "GetValue(" + walls + "SUBTRACT_, 1, vtmModelId, string)",
                "GetValue(" + walls + "SUBTRACT_, 2, vtmModelId, string)",
                "GetValue(" + walls + "SUBTRACT_, 3, vtmModelId, string)"));
}

TYPED_TEST(Group, OnlyAsksForKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithBareGroup(TypeParam::kKind);
  LoadedAlone<typename TypeParam::Command>(storage, "bare");
  const std::string bare = TypeParam::kKind + std::string(", bare, ");
  EXPECT_THAT(storage.Calls(), ElementsAre("HasElement(" + bare + "LIST_)", "GetNumElements(" + bare + "MERGE_)",
                                           "GetNumElements(" + bare + "INTERSECT_)", "GetNumElements(" + bare + "XOR_)",
                                           "GetNumElements(" + bare + "SUBTRACT_)"));
}

TYPED_TEST(Group, GivesWhatItLoaded)
{
  const auto command = this->FullGroup();
  EXPECT_EQ(command.GetID_NAME_(), "walls");
  EXPECT_TRUE(command.HasLIST_());
  EXPECT_THAT(command.GetLIST_(), ElementsAre(3, -1, 20));
  EXPECT_EQ(command.NumMERGE_(), 2U);
  EXPECT_THAT(command.GetMERGE_(), ElementsAre("inlet", "outlet"));
  EXPECT_EQ(command.NumINTERSECT_(), 1U);
  EXPECT_THAT(command.GetINTERSECT_(), ElementsAre("duct"));
  EXPECT_EQ(command.NumXOR_(), 2U);
  EXPECT_THAT(command.GetXOR_(), ElementsAre("left", "right"));
  EXPECT_EQ(command.NumSUBTRACT_(), 3U);
  EXPECT_THAT(command.GetSUBTRACT_(), ElementsAre("fillet", "hole", "fillet"));
}

// These getters test no index, so that only the valid ones may be asked.
TYPED_TEST(Group, GivesSingleNamesByPlacesCountedFromOne)
{
  const auto command = this->FullGroup();
  EXPECT_EQ(command.GetMERGE_(1), "inlet");
  EXPECT_EQ(command.GetMERGE_(2), "outlet");
  EXPECT_EQ(command.GetINTERSECT_(1), "duct");
  EXPECT_EQ(command.GetXOR_(1), "left");
  EXPECT_EQ(command.GetXOR_(2), "right");
  EXPECT_EQ(command.GetSUBTRACT_(1), "fillet");
  EXPECT_EQ(command.GetSUBTRACT_(2), "hole");
  EXPECT_EQ(command.GetSUBTRACT_(3), "fillet");
  EXPECT_EQ(&command.GetSUBTRACT_(3), &command.GetSUBTRACT_().back());
}

TYPED_TEST(Group, LoadsWithoutAnyKeyAndPrintsEmptyNameListsButNoList)
{
  const auto command = this->BareGroup();
  EXPECT_FALSE(command.HasLIST_());
  EXPECT_EQ(command.NumMERGE_(), 0U);
  EXPECT_EQ(command.NumINTERSECT_(), 0U);
  EXPECT_EQ(command.NumXOR_(), 0U);
  EXPECT_EQ(command.NumSUBTRACT_(), 0U);
  EXPECT_EQ(this->TextOf(command), "m_ID_NAME_: bare\n"
                                   "m_has_LIST_: no\n"
                                   "m_num_MERGE_: 0\n"
                                   "m_MERGE_: [\n]\n"
                                   "m_num_INTERSECT_: 0\n"
                                   "m_INTERSECT_: [\n]\n"
                                   "m_num_XOR_: 0\n"
                                   "m_XOR_: [\n]\n"
                                   "m_num_SUBTRACT_: 0\n"
                                   "m_SUBTRACT_: [\n]\n");
}

TYPED_TEST(Group, TellsAnEmptyListFromAnAbsentOne)
{
  RecordingStorage storage;
  storage.Command(TypeParam::kKind, "walls")["LIST_"] = {std::vector<int>{}};
  const auto command = LoadedAlone<typename TypeParam::Command>(storage, "walls");
  EXPECT_TRUE(command.HasLIST_());
  EXPECT_THAT(command.GetLIST_(), IsEmpty());
  EXPECT_EQ(this->TextOf(command), "m_ID_NAME_: walls\n"
                                   "m_has_LIST_: yes\n"
                                   "m_LIST_: [\n]\n"
                                   "m_num_MERGE_: 0\n"
                                   "m_MERGE_: [\n]\n"
                                   "m_num_INTERSECT_: 0\n"
                                   "m_INTERSECT_: [\n]\n"
                                   "m_num_XOR_: 0\n"
                                   "m_XOR_: [\n]\n"
                                   "m_num_SUBTRACT_: 0\n"
                                   "m_SUBTRACT_: [\n]\n");
}

TYPED_TEST(Group, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(typename TypeParam::Command());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, TypeParam::kLine);
  EXPECT_EQ(record.prefix, TypeParam::kPrefix);
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_has_LIST_: no\n"
                         "m_num_MERGE_: 0\n"
                         "m_MERGE_: [\n]\n"
                         "m_num_INTERSECT_: 0\n"
                         "m_INTERSECT_: [\n]\n"
                         "m_num_XOR_: 0\n"
                         "m_XOR_: [\n]\n"
                         "m_num_SUBTRACT_: 0\n"
                         "m_SUBTRACT_: [\n]\n");
}

TYPED_TEST(Group, PrintsAllItHolds)
{
  const KLV_LogRecord record = LogRecordOf(this->FullGroup());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, TypeParam::kLine);
  EXPECT_EQ(record.prefix, TypeParam::kPrefix);
  EXPECT_EQ(record.text, kFullText);
}

TYPED_TEST(Group, ReportsEveryUnknownNameInTheOrderOfKeysAndThenOfPlaces)
{
  const RecordingStorage storage = StorageWithFullGroup(TypeParam::kKind);
  auto command = this->FullGroup();
  const OpenDatabase database;
  const std::string name = TypeParam::kName;
  EXPECT_THAT(ProblemsIn(command, storage, "walls"),
              ElementsAre(Problem{"inlet", "MERGE", "walls", name}, Problem{"outlet", "MERGE", "walls", name},
                          Problem{"duct", "INTERSECT", "walls", name}, Problem{"left", "XOR", "walls", name},
                          Problem{"right", "XOR", "walls", name}, Problem{"fillet", "SUBTRACT", "walls", name},
                          Problem{"hole", "SUBTRACT", "walls", name}, Problem{"fillet", "SUBTRACT", "walls", name}));
}

TYPED_TEST(Group, SaysWhichNameIsUnknownAndWhere)
{
  RecordingStorage storage;
  storage.Command(TypeParam::kKind, "walls")["XOR_"] = {std::string("left")};
  auto command = LoadedAlone<typename TypeParam::Command>(storage, "walls");
  const OpenDatabase database;
  EXPECT_THAT(MessagesIn(command, storage, "walls"),
              ElementsAre("Referenced ID is not found\n"
                          "  Value \"left\" of parameter \"XOR\" is erroneous\n"
                          "  In \"" +
                          std::string(TypeParam::kName) + "\" command with ID_NAME \"walls\""));
}

TYPED_TEST(Group, ReportsANameThatIsRepeatedInAListOncePerOccurrence)
{
  RecordingStorage storage;
  storage.Command(TypeParam::kKind, "walls")["INTERSECT_"] = {std::string("duct"), std::string("inlet"),
                                                              std::string("duct"), std::string("duct")};
  auto command = LoadedAlone<typename TypeParam::Command>(storage, "walls");
  OpenDatabase database;
  database.Add(this->OwnKind(), {"inlet"});
  const Problem duct{"duct", "INTERSECT", "walls", TypeParam::kName};
  EXPECT_THAT(ProblemsIn(command, storage, "walls"), ElementsAre(duct, duct, duct));

  database.Add(this->OwnKind(), {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "walls"), IsEmpty());
  EXPECT_EQ(database.Map(this->OwnKind()).LookupCount("duct"), 3U);
}

TYPED_TEST(Group, AcceptsNamesOfTheModelsGroupsOfItsOwnKindAlone)
{
  for (const char* key : kNameLists)
  {
    SCOPED_TRACE(key);
    RecordingStorage storage;
    storage.Command(TypeParam::kKind, "walls")[key] = {std::string("duct")};
    auto command = LoadedAlone<typename TypeParam::Command>(storage, "walls");
    EXPECT_THAT(KindsThatSatisfy(command, storage, "walls", "duct"), ElementsAre(TypeParam::kIdType));
  }
}

TYPED_TEST(Group, LooksUpKnownNamesInTheMapOfItsKindAndInNoOther)
{
  const RecordingStorage storage = StorageWithFullGroup(TypeParam::kKind);
  auto command = this->FullGroup();
  OpenDatabase database;
  const auto kinds = {KLV_IdType::coordinate_system, KLV_IdType::node_group, KLV_IdType::face_group,
                      KLV_IdType::element_group};
  for (const KLV_IdType kind : kinds)
  {
    database.Add(kind, {"inlet", "outlet", "duct", "left", "right", "fillet"});
  }
  EXPECT_THAT(ProblemsIn(command, storage, "walls"),
              ElementsAre(Problem{"hole", "SUBTRACT", "walls", TypeParam::kName}));
  for (const KLV_IdType kind : kinds)
  {
    SCOPED_TRACE(static_cast<int>(kind));
    const bool own = static_cast<int>(kind) == TypeParam::kIdType;
    const KLV_IdMap& map = database.Map(kind);
    EXPECT_EQ(map.LookupCount("inlet"), own ? 1U : 0U);
    EXPECT_EQ(map.LookupCount("outlet"), own ? 1U : 0U);
    EXPECT_EQ(map.LookupCount("duct"), own ? 1U : 0U);
    EXPECT_EQ(map.LookupCount("left"), own ? 1U : 0U);
    EXPECT_EQ(map.LookupCount("right"), own ? 1U : 0U);
    EXPECT_EQ(map.LookupCount("fillet"), own ? 2U : 0U);
    EXPECT_EQ(map.LookupCount("hole"), 0U);
  }
}

TYPED_TEST(Group, TrustsTheModelAndNotTheGroupsOfTheParameterFile)
{
  RecordingStorage storage;
  storage.Command(TypeParam::kKind, "inner")["LIST_"] = {std::vector<int>{1}};
  storage.Command(TypeParam::kKind, "outer")["MERGE_"] = {std::string("inner"), std::string("of_the_model")};
  auto command = LoadedAlone<typename TypeParam::Command>(storage, "outer");
  OpenDatabase database;
  database.Add(this->OwnKind(), {"of_the_model"});
  EXPECT_THAT(ProblemsIn(command, storage, "outer"), ElementsAre(Problem{"inner", "MERGE", "outer", TypeParam::kName}));
}

TYPED_TEST(Group, ReadsTheNamesAgainUnderTheStoragesIdAndReportsItsOwnId)
{
  auto command = this->FullGroup();
  RecordingStorage storage;
  auto& keys = storage.Command(TypeParam::kKind, "renamed");
  keys["MERGE_"] = {std::string("new inlet"), std::string("new outlet"), std::string("beyond the count")};
  keys["INTERSECT_"] = {std::string("new duct")};
  keys["XOR_"] = {std::string("new left"), std::string("new right")};
  keys["SUBTRACT_"] = {std::string("new fillet"), std::string("new hole"), std::string("third")};
  OpenDatabase database;
  database.Add(this->OwnKind(), {"inlet", "outlet", "duct", "left", "right", "fillet", "hole", "third"});
  const std::string name = TypeParam::kName;
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"),
              ElementsAre(Problem{"new inlet", "MERGE", "walls", name}, Problem{"new outlet", "MERGE", "walls", name},
                          Problem{"new duct", "INTERSECT", "walls", name}, Problem{"new left", "XOR", "walls", name},
                          Problem{"new right", "XOR", "walls", name}, Problem{"new fillet", "SUBTRACT", "walls", name},
                          Problem{"new hole", "SUBTRACT", "walls", name}));
  const std::string renamed = TypeParam::kKind + std::string(", renamed, ");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(" + renamed + "MERGE_, 1, vtmModelId, string)",
                                           "GetValue(" + renamed + "MERGE_, 2, vtmModelId, string)",
                                           "GetValue(" + renamed + "INTERSECT_, 1, vtmModelId, string)",
                                           "GetValue(" + renamed + "XOR_, 1, vtmModelId, string)",
                                           "GetValue(" + renamed + "XOR_, 2, vtmModelId, string)",
                                           "GetValue(" + renamed + "SUBTRACT_, 1, vtmModelId, string)",
                                           "GetValue(" + renamed + "SUBTRACT_, 2, vtmModelId, string)",
                                           "GetValue(" + renamed + "SUBTRACT_, 3, vtmModelId, string)"));
}

TYPED_TEST(Group, HasNothingToCheckWithoutNamesEvenWithAList)
{
  RecordingStorage storage;
  storage.Command(TypeParam::kKind, "walls")["LIST_"] = {std::vector<int>{3, -1}};
  auto command = LoadedAlone<typename TypeParam::Command>(storage, "walls");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "walls"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TYPED_TEST(Group, PassesOnWhatTheStorageThrowsDuringTheCheckAndKeepsEarlierProblems)
{
  RecordingStorage storage = StorageWithFullGroup(TypeParam::kKind);
  auto command = this->FullGroup();
  storage.FailOn("GetValue(" + std::string(TypeParam::kKind) + ", walls, INTERSECT_, 1, vtmModelId, string)");
  const OpenDatabase database;
  std::string id = "walls";
  std::vector<KLV_ParfileException> errors;
  EXPECT_THROW(command.ValidateModelIds(storage, id, errors), FailedOnDemand);
  EXPECT_THAT(ProblemsOf(errors), ElementsAre(Problem{"inlet", "MERGE", "walls", TypeParam::kName},
                                              Problem{"outlet", "MERGE", "walls", TypeParam::kName}));
}

TYPED_TEST(Group, CopiesItsValues)
{
  auto original = this->FullGroup();
  const auto copy(original);
  original.Load(StorageWithBareGroup(TypeParam::kKind), "bare");
  EXPECT_EQ(copy.GetID_NAME_(), "walls");
  EXPECT_TRUE(copy.HasLIST_());
  EXPECT_THAT(copy.GetLIST_(), ElementsAre(3, -1, 20));
  EXPECT_EQ(copy.NumSUBTRACT_(), 3U);
  EXPECT_NE(&copy.GetMERGE_(1), &original.GetMERGE_().front());
  EXPECT_EQ(this->TextOf(copy), kFullText);
}

TYPED_TEST(Group, TakesAllValuesOfAnotherOne)
{
  auto command = this->BareGroup();
  const auto full = this->FullGroup();
  EXPECT_EQ(&(command = full), &command);
  EXPECT_EQ(this->TextOf(command), kFullText);

  command = typename TypeParam::Command();
  EXPECT_FALSE(command.HasLIST_());
  EXPECT_THAT(command.GetLIST_(), IsEmpty());
  EXPECT_EQ(command.NumMERGE_(), 0U);
  EXPECT_THAT(command.GetMERGE_(), IsEmpty());
}

TYPED_TEST(Group, KeepsItsValuesWhenItIsAssignedToItself)
{
  auto command = this->FullGroup();
  const auto& same = command;
  command = same;
  EXPECT_EQ(this->TextOf(command), kFullText);
}

TYPED_TEST(Group, StaysAsItLoadedWhenTheJobIsLinked)
{
  RecordingStorage storage;
  AddFullGroup(storage, TypeParam::kKind, "walls");
  storage.Command(TypeParam::kKind, "inlet");
  LinkedJob job(std::move(storage));
  EXPECT_EQ(this->TextOf(TypeParam::In(job, "walls")), kFullText);
  const auto calls = job.CallsAbout(TypeParam::kKind, "walls");
  EXPECT_EQ(calls.size(), 14U);
  EXPECT_EQ(calls.back(), "GetValue(" + std::string(TypeParam::kKind) + ", walls, SUBTRACT_, 3, vtmModelId, string)");
}

TYPED_TEST(Group, AppendsTheNamesOfASecondLoadAndCountsThoseOfTheLast)
{
  auto command = this->FullGroup();
  RecordingStorage storage;
  auto& keys = storage.Command(TypeParam::kKind, "later");
  keys["MERGE_"] = {std::string("third")};
  command.Load(storage, "later");
  EXPECT_EQ(command.GetID_NAME_(), "later");
  EXPECT_FALSE(command.HasLIST_());
  EXPECT_THAT(command.GetLIST_(), ElementsAre(3, -1, 20));
  EXPECT_EQ(command.NumMERGE_(), 1U);
  EXPECT_THAT(command.GetMERGE_(), ElementsAre("inlet", "outlet", "third"));
  EXPECT_EQ(command.NumSUBTRACT_(), 0U);
  EXPECT_THAT(command.GetSUBTRACT_(), ElementsAre("fillet", "hole", "fillet"));
}

TYPED_TEST(Group, KeepsWhatItReadBeforeAReadFailed)
{
  RecordingStorage storage = StorageWithFullGroup(TypeParam::kKind);
  storage.FailOn("GetValue(" + std::string(TypeParam::kKind) + ", walls, SUBTRACT_, 3, vtmModelId, string)");
  typename TypeParam::Command command;
  EXPECT_THROW(command.Load(storage, "walls"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "walls");
  EXPECT_THAT(command.GetLIST_(), ElementsAre(3, -1, 20));
  EXPECT_THAT(command.GetXOR_(), ElementsAre("left", "right"));
  EXPECT_EQ(command.NumSUBTRACT_(), 3U);
  EXPECT_THAT(command.GetSUBTRACT_(), ElementsAre("fillet", "hole"));
}
