#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "support/parsed_commands.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <type_traits>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;
using Storage = OrvelParfileStorageCmdContainer;

static_assert(std::is_base_of_v<OrvelParfileStorage, Storage>);
static_assert(std::has_virtual_destructor_v<Storage>);
static_assert(std::is_constructible_v<Storage, const OrvelCmdContainer&>);
static_assert(!std::is_convertible_v<const OrvelCmdContainer&, Storage>);
static_assert(std::is_copy_constructible_v<Storage> && std::is_copy_assignable_v<Storage>);
static_assert(!std::is_default_constructible_v<Storage>);

namespace
{

OrvelCmd& AddGroup(OrvelCmdContainer& container, const std::string& id, int type)
{
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, id);
  group.AddEnumItem(Items::TYPE, Enumerator(type));
  return group;
}

// An OPTIMIZE that refers to the first \p references of \p variables DV commands "dv1", "dv2" and so on.
OrvelCmd& AddVariables(OrvelCmdContainer& container, int variables, int references)
{
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  for (int number = 1; number <= variables; ++number)
  {
    const OrvelCmd& variable = AddParsed(container, Defs::DV, "dv" + std::to_string(number));
    if (number <= references)
    {
      optimize.AddReferenceItem(Items::DV, variable);
    }
  }
  return optimize;
}

// What a job has of each kind when nothing was parsed.
struct EmptyCount
{
  const char* kind;
  std::uint64_t count;
};

constexpr EmptyCount kCountsWithoutCommands[] = {
  {"MODEL_", 0},         {"ELEMENT_GROUP_", 0}, {"FACE_GROUP_", 0}, {"NODE_GROUP_", 0},    {"DV_", 0},
  {"DRESP_", 0},         {"OPERATOR_", 0},      {"OBJ_FUNC_", 0},   {"CONSTRAINT_", 0},    {"CS_", 0},
  {"DV_CONSTRAINT_", 0}, {"MONITOR_", 0},       {"ALGO_", 0},       {"OPT_PARAM_", 1},     {"STOP_", 0},
  {"MESH_SMOOTH_", 0},   {"FILTER_", 0},        {"PRE_PARAM_", 1},  {"AS_TOPO_OC_", 1},    {"AS_TOPO_SENS_", 1},
  {"AS_SHAPE_SENS_", 1}, {"FLOWPATHS_", 1},     {"OUTPUT_", 0},     {"SCALING_CURVE_", 0}, {"SMOOTH_", 0}};

}  // namespace

TEST(ParsedCommandLookup, DeniesToHaveACommandThatExists)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "drop");
  AddGroup(container, "pipes", 0);
  AddVariables(container, 2, 2);
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumCommand("DRESP_"), 1U);
  EXPECT_FALSE(storage.HasCommand("DRESP_", "drop"));
  EXPECT_FALSE(storage.HasCommand("ELEMENT_GROUP_", "pipes"));
  EXPECT_FALSE(storage.HasCommand("DV_", "dv1"));
  EXPECT_FALSE(storage.HasCommand("DV_", "__v_merged_DV"));
  EXPECT_FALSE(storage.HasCommand("PRE_PARAM_", ""));
}

TEST(ParsedCommandLookup, DeniesToHaveACommandThatDoesNotExist)
{
  const OrvelCmdContainer container;
  const Storage storage(container);
  EXPECT_FALSE(storage.HasCommand("DRESP_", "drop"));
  EXPECT_FALSE(storage.HasCommand("no such kind", "drop"));
  EXPECT_FALSE(storage.HasCommand("", ""));
}

TEST(ParsedCommandLookup, CountsOneOfTheSixKindsThatExistOnceAndNoneOfTheOthersInAnEmptyContainer)
{
  const OrvelCmdContainer container;
  const Storage storage(container);
  for (const EmptyCount& row : kCountsWithoutCommands)
  {
    SCOPED_TRACE(row.kind);
    EXPECT_EQ(storage.GetNumCommand(row.kind), row.count);
    EXPECT_EQ(NameAt(storage, row.kind, 0), "");
  }
}

TEST(ParsedCommandLookup, CountsParsedOptParamsForEachOfTheFourKindsThatShareThem)
{
  OrvelCmdContainer container;
  const Storage storage(container);
  for (const char* kind : {"OPT_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    EXPECT_EQ(storage.GetNumCommand(kind), 1U) << kind;
    EXPECT_THAT(NamesOf(storage, kind), ElementsAre("")) << kind;
  }
  AddParsed(container, Defs::OPT_PARAM, "coarse");
  for (const char* kind : {"OPT_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    EXPECT_THAT(NamesOf(storage, kind), ElementsAre("coarse")) << kind;
  }
  AddParsed(container, Defs::OPT_PARAM, "fine");
  for (const char* kind : {"OPT_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    EXPECT_EQ(storage.GetNumCommand(kind), 2U) << kind;
    EXPECT_THAT(NamesOf(storage, kind), ElementsAre("coarse", "fine")) << kind;
  }
}

TEST(ParsedCommandLookup, HasOneFlowpathsAndOnePreParamWithoutANameWhateverWasParsed)
{
  OrvelCmdContainer container;
  for (int kind = 0; kind <= 20; ++kind)
  {
    AddParsed(container, static_cast<Defs::Cmd>(kind), "first");
    AddParsed(container, static_cast<Defs::Cmd>(kind), "second");
  }
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "FLOWPATHS_"), ElementsAre(""));
  EXPECT_THAT(NamesOf(storage, "PRE_PARAM_"), ElementsAre(""));
}

TEST(ParsedCommandLookup, HasNoFaceGroupsCoordinateSystemsAndMonitorsWhateverWasParsed)
{
  OrvelCmdContainer container;
  for (int kind = 0; kind <= 20; ++kind)
  {
    OrvelCmd& command = AddParsed(container, static_cast<Defs::Cmd>(kind), "first");
    command.AddEnumItem(Items::TYPE, Enumerator(1));
  }
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumCommand("FACE_GROUP_"), 0U);
  EXPECT_EQ(storage.GetNumCommand("CS_"), 0U);
  EXPECT_EQ(storage.GetNumCommand("MONITOR_"), 0U);
  EXPECT_EQ(NameAt(storage, "FACE_GROUP_", 0), "");
}

TEST(ParsedCommandLookup, ReadsAnUnknownKindAsAbsentWithoutAFailure)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "drop").AddStringItem(Items::UPDATE_ID, "dp");
  const Storage storage(container);
  // The engine's names, other spellings, kinds that the engine alone has.
  for (const char* kind : {"DRESP", "dresp_", "DRESP_ ", "_DRESP_", "OPTIMIZE_", "MODEL_INPUT_", "GROUP_DEF_",
                           "OPTIONS_", "DV_UPDATE_PARAM_", "CONTOURPLOT_", "REPORT_", "CMD_PLACEHOLDER_", "", "x"})
  {
    SCOPED_TRACE(kind);
    EXPECT_EQ(storage.GetNumCommand(kind), 0U);
    EXPECT_EQ(NameAt(storage, kind, 0), "");
    EXPECT_EQ(storage.GetNumElements(kind, "drop", "UPDATE_ID_"), 0U);
    EXPECT_FALSE(storage.HasElement(kind, "drop", "UPDATE_ID_"));
  }
}

TEST(ParsedCommandLookup, TakesAnyTextAsANameWithoutAFailure)
{
  OrvelCmdContainer container;
  const std::string with_nul("a\0b", 3);
  const std::string long_name(100000, 'x');
  AddParsed(container, Defs::STOP, with_nul).AddIntegerItem(Items::ITER_MAX, 1);
  AddParsed(container, Defs::STOP, "a").AddIntegerItem(Items::ITER_MAX, 2);
  AddParsed(container, Defs::STOP, long_name).AddIntegerItem(Items::ITER_MAX, 3);
  AddParsed(container, Defs::STOP, "").AddIntegerItem(Items::ITER_MAX, 4);
  AddParsed(container, Defs::STOP, "%s %n").AddIntegerItem(Items::ITER_MAX, 5);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "STOP_"), ElementsAre(with_nul, "a", long_name, "", "%s %n"));
  EXPECT_EQ(KeysOf(storage, "STOP_", with_nul).Integer("ITER_MAX_"), 1);
  EXPECT_EQ(KeysOf(storage, "STOP_", "a").Integer("ITER_MAX_"), 2);
  EXPECT_EQ(KeysOf(storage, "STOP_", long_name).Integer("ITER_MAX_"), 3);
  EXPECT_EQ(KeysOf(storage, "STOP_", "").Integer("ITER_MAX_"), 4);
  EXPECT_EQ(KeysOf(storage, "STOP_", "%s %n").Integer("ITER_MAX_"), 5);
  EXPECT_EQ(KeysOf(storage, "STOP_", "A").Integer("ITER_MAX_"), -4711);
}

TEST(ParsedCommandLookup, NamesCommandsInTheOrderOfTheContainerFromPositionZero)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "zeta");
  AddParsed(container, Defs::STOP, "between");
  AddParsed(container, Defs::DRESP, "alpha");
  AddParsed(container, Defs::DRESP, "mid");
  const Storage storage(container);
  EXPECT_EQ(NameAt(storage, "DRESP_", 0), "zeta");
  EXPECT_EQ(NameAt(storage, "DRESP_", 1), "alpha");
  EXPECT_EQ(NameAt(storage, "DRESP_", 2), "mid");
}

TEST(ParsedCommandLookup, GivesTheEmptyTextForAPositionWithoutACommand)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "drop");
  AddGroup(container, "pipes", 0);
  AddVariables(container, 2, 2);
  const Storage storage(container);
  for (const std::uint64_t position : {std::uint64_t(3), std::numeric_limits<std::uint64_t>::max()})
  {
    EXPECT_EQ(NameAt(storage, "DRESP_", position), "");
    EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", position), "");
    EXPECT_EQ(NameAt(storage, "DV_", position), "");
    EXPECT_EQ(NameAt(storage, "STOP_", position), "");
    EXPECT_EQ(NameAt(storage, "FLOWPATHS_", position), "");
  }
}

TEST(ParsedCommandLookup, FindsTheElementGroupsBetweenWhichANodeGroupStands)
{
  OrvelCmdContainer container;
  AddGroup(container, "pipes", 0);
  AddGroup(container, "corners", 2);
  AddGroup(container, "bosses", 0);
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumCommand("ELEMENT_GROUP_"), 2U);
  EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", 0), "pipes");
  EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", 1), "bosses");
  EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", 2), "");
  EXPECT_EQ(storage.GetNumCommand("NODE_GROUP_"), 1U);
  EXPECT_EQ(NameAt(storage, "NODE_GROUP_", 0), "corners");
  EXPECT_EQ(NameAt(storage, "NODE_GROUP_", 1), "");
}

TEST(ParsedCommandLookup, CountsNoGroupOfAnotherTypeOrWithoutOne)
{
  OrvelCmdContainer container;
  AddGroup(container, "faces", 1);
  AddGroup(container, "other", 69);
  AddParsed(container, Defs::GROUP_DEF, "without a type");
  AddParsed(container, Defs::GROUP_DEF, "a text").AddStringItem(Items::TYPE, "0");
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumCommand("ELEMENT_GROUP_"), 0U);
  EXPECT_EQ(storage.GetNumCommand("NODE_GROUP_"), 0U);
  EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", 0), "");
}

TEST(ParsedCommandLookup, CountsAGroupWithoutANameAndGivesItTheEmptyText)
{
  OrvelCmdContainer container;
  container.AddCommand(Defs::GROUP_DEF).AddEnumItem(Items::TYPE, Enumerator(0));
  AddGroup(container, "pipes", 0);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "ELEMENT_GROUP_"), ElementsAre("", "pipes"));
}

TEST(ParsedCommandLookup, ReadsTheSameGroupUnderBothKindsOfGroup)
{
  OrvelCmdContainer container;
  OrvelCmd& pipes = AddGroup(container, "pipes", 0);
  pipes.AddEnumItem(Items::FORMAT, Enumerator(77));
  pipes.AddStringListItem(Items::LIST_BEGIN, {"inlet", "outlet"});
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "NODE_GROUP_"), IsEmpty());
  EXPECT_EQ(KeysOf(storage, "ELEMENT_GROUP_", "pipes").Text("MERGE_", 2), "outlet");
  EXPECT_EQ(KeysOf(storage, "NODE_GROUP_", "pipes").Text("MERGE_", 2), "outlet");
  EXPECT_EQ(KeysOf(storage, "FACE_GROUP_", "pipes").Text("MERGE_", 2), "kept");
}

TEST(ParsedCommandLookup, HasNoMergedVariableForOneReference)
{
  OrvelCmdContainer container;
  AddVariables(container, 4, 1);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2", "dv3", "dv4"));
  EXPECT_EQ(NameAt(storage, "DV_", 4), "");
  EXPECT_EQ(storage.GetNumElements("DV_", "__v_merged_DV", "DV_"), 0U);
  EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_"), "dv1");
}

TEST(ParsedCommandLookup, ShowsTheMergedVariableBehindAllParsedOnes)
{
  OrvelCmdContainer container;
  AddVariables(container, 4, 3);
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumCommand("DV_"), 5U);
  EXPECT_EQ(NameAt(storage, "DV_", 3), "dv4");
  EXPECT_EQ(NameAt(storage, "DV_", 4), "__v_merged_DV");
  EXPECT_EQ(NameAt(storage, "DV_", 5), "");
}

TEST(ParsedCommandLookup, ShowsTheMergedVariableFromTwoReferencesOn)
{
  OrvelCmdContainer container;
  AddVariables(container, 2, 2);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2", "__v_merged_DV"));
}

TEST(ParsedCommandLookup, TakesTheReferencesOfTheFirstOptimizeAlone)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::OPTIMIZE, "earlier");
  AddVariables(container, 2, 2);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2"));
}

TEST(ParsedCommandLookup, ShowsTheMergedVariableEvenWhereNoVariableWasParsed)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  optimize.AddStringItem(Items::DV, "one");
  optimize.AddStringItem(Items::DV, "two");
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("__v_merged_DV"));
}

TEST(ParsedCommandLookup, KeepsTheMergedVariableOutOfAllOtherKinds)
{
  OrvelCmdContainer container;
  AddVariables(container, 2, 2);
  AddParsed(container, Defs::OPTIONS, "options");
  const Storage storage(container);
  for (const EmptyCount& row : kCountsWithoutCommands)
  {
    if (std::string(row.kind) != "DV_")
    {
      EXPECT_THAT(NamesOf(storage, row.kind), Not(Contains("__v_merged_DV"))) << row.kind;
    }
  }
}

TEST(ParsedCommandLookup, ReadsTheFirstOfTwoCommandsOfOneName)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "drop").AddStringItem(Items::UPDATE_ID, "first");
  OrvelCmd& second = AddParsed(container, Defs::DRESP, "drop");
  second.AddStringItem(Items::UPDATE_ID, "second");
  second.AddStringItem(Items::FILE, "second.csv");
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DRESP_"), ElementsAre("drop", "drop"));
  EXPECT_EQ(KeysOf(storage, "DRESP_", "drop").Text("UPDATE_ID_"), "first");
  EXPECT_FALSE(KeysOf(storage, "DRESP_", "drop").Has("FILE_"));
}

TEST(ParsedCommandLookup, TellsCommandsOfOneNameUnderTwoKindsApart)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DRESP, "sum").AddStringItem(Items::UPDATE_ID, "of the response");
  AddParsed(container, Defs::OPERATOR, "sum").AddStringItem(Items::UPDATE_ID, "of the operator");
  const Storage storage(container);
  EXPECT_EQ(KeysOf(storage, "DRESP_", "sum").Text("UPDATE_ID_"), "of the response");
  EXPECT_EQ(KeysOf(storage, "OPERATOR_", "sum").Text("UPDATE_ID_"), "of the operator");
}

TEST(ParsedCommandLookup, ReachesAParsedVariableOfTheReservedNameLikeAnyOther)
{
  OrvelCmdContainer container;
  AddVariables(container, 2, 2);
  OrvelCmd& reserved = AddParsed(container, Defs::DV, "__v_merged_DV");
  reserved.AddDoubleItem(Items::VALUE, 0.25);
  reserved.AddStringItem(Items::DV, "own member");
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2", "__v_merged_DV", "__v_merged_DV"));
  const KeysOf keys(storage, "DV_", "__v_merged_DV");
  EXPECT_EQ(keys.Double("INITIAL_"), 0.25);
  EXPECT_EQ(keys.Count("DV_"), 1U);
  EXPECT_EQ(keys.Text("DV_"), "own member");
}

TEST(ParsedCommandLookup, LeadsNoNameToACommandWithoutOne)
{
  OrvelCmdContainer container;
  container.AddCommand(Defs::STOP).AddIntegerItem(Items::ITER_MAX, 5);
  AddParsed(container, Defs::STOP, "named").AddIntegerItem(Items::ITER_MAX, 6);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "STOP_"), ElementsAre("", "named"));
  EXPECT_FALSE(KeysOf(storage, "STOP_", "").Has("ITER_MAX_"));
  EXPECT_EQ(KeysOf(storage, "STOP_", "named").Integer("ITER_MAX_"), 6);
}

TEST(ParsedCommandLookup, TakesTheFirstOfSeveralNamesOfACommand)
{
  OrvelCmdContainer container;
  OrvelCmd& stop = AddParsed(container, Defs::STOP, "one");
  stop.AddStringItem(Items::ID_NAME, "two");
  stop.AddIntegerItem(Items::ITER_MAX, 5);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "STOP_"), ElementsAre("one"));
  EXPECT_EQ(KeysOf(storage, "STOP_", "one").Integer("ITER_MAX_"), 5);
  EXPECT_FALSE(KeysOf(storage, "STOP_", "two").Has("ITER_MAX_"));
}

TEST(ParsedCommandLookup, TakesANameThatIsANumberAsItsText)
{
  OrvelCmdContainer container;
  OrvelCmd& stop = container.AddCommand(Defs::STOP);
  stop.AddIntegerItem(Items::ID_NAME, 7);
  stop.AddIntegerItem(Items::ITER_MAX, 5);
  const Storage storage(container);
  EXPECT_EQ(NameAt(storage, "STOP_", 0), "7");
  EXPECT_EQ(KeysOf(storage, "STOP_", "7").Integer("ITER_MAX_"), 5);
}

TEST(ParsedCommandLookup, SeesLaterCommandsByCountAndPositionAndNotByName)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::STOP, "early").AddIntegerItem(Items::ITER_MAX, 1);
  const Storage storage(container);
  AddParsed(container, Defs::STOP, "late").AddIntegerItem(Items::ITER_MAX, 2);
  AddGroup(container, "pipes", 0);
  EXPECT_EQ(storage.GetNumCommand("STOP_"), 2U);
  EXPECT_EQ(NameAt(storage, "STOP_", 1), "late");
  EXPECT_EQ(KeysOf(storage, "STOP_", "early").Integer("ITER_MAX_"), 1);
  EXPECT_EQ(KeysOf(storage, "STOP_", "late").Integer("ITER_MAX_"), -4711);
  EXPECT_EQ(storage.GetNumCommand("ELEMENT_GROUP_"), 1U);
  EXPECT_EQ(KeysOf(Storage(container), "STOP_", "late").Integer("ITER_MAX_"), 2);
}

TEST(ParsedCommandLookup, ReadsItemsThatAreAddedLaterToACommandItKnows)
{
  OrvelCmdContainer container;
  OrvelCmd& stop = AddParsed(container, Defs::STOP, "early");
  const Storage storage(container);
  EXPECT_FALSE(KeysOf(storage, "STOP_", "early").Has("ITER_MAX_"));
  stop.AddIntegerItem(Items::ITER_MAX, 80);
  EXPECT_EQ(KeysOf(storage, "STOP_", "early").Integer("ITER_MAX_"), 80);
}

TEST(ParsedCommandLookup, MergesVariablesThatAreReferredToLater)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddVariables(container, 2, 1);
  const OrvelCmd& other = AddParsed(container, Defs::DV, "other");
  const Storage storage(container);
  optimize.AddReferenceItem(Items::DV, other);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2", "other", "__v_merged_DV"));
  EXPECT_EQ(storage.GetNumElements("DV_", "__v_merged_DV", "DV_"), 2U);
}

TEST(ParsedCommandLookup, SharesTheContainerWithACopy)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::STOP, "early").AddIntegerItem(Items::ITER_MAX, 1);
  const Storage storage(container);
  const Storage copy(storage);
  AddParsed(container, Defs::STOP, "late").AddIntegerItem(Items::ITER_MAX, 2);
  EXPECT_THAT(NamesOf(copy, "STOP_"), ElementsAre("early", "late"));
  EXPECT_EQ(KeysOf(copy, "STOP_", "early").Integer("ITER_MAX_"), 1);
  EXPECT_EQ(KeysOf(copy, "STOP_", "late").Integer("ITER_MAX_"), -4711);
}

TEST(ParsedCommandLookup, CopiesTheNamesInsteadOfLookingAgain)
{
  OrvelCmdContainer container;
  const Storage storage(container);
  AddParsed(container, Defs::STOP, "late").AddIntegerItem(Items::ITER_MAX, 2);
  const Storage copy(storage);
  EXPECT_EQ(copy.GetNumCommand("STOP_"), 1U);
  EXPECT_EQ(KeysOf(copy, "STOP_", "late").Integer("ITER_MAX_"), -4711);
}

TEST(ParsedCommandLookup, GivesACopyTablesOfItsOwn)
{
  OrvelCmdContainer container;
  AddVariables(container, 2, 2);
  AddParsed(container, Defs::STOP, "end").AddIntegerItem(Items::ITER_MAX, 80);
  AddGroup(container, "pipes", 0);
  auto original = std::make_unique<Storage>(container);
  const Storage copy(*original);
  original.reset();
  EXPECT_THAT(NamesOf(copy, "DV_"), ElementsAre("dv1", "dv2", "__v_merged_DV"));
  EXPECT_THAT(NamesOf(copy, "ELEMENT_GROUP_"), ElementsAre("pipes"));
  EXPECT_THAT(NamesOf(copy, "PRE_PARAM_"), ElementsAre(""));
  EXPECT_EQ(KeysOf(copy, "STOP_", "end").Integer("ITER_MAX_"), 80);
  EXPECT_EQ(KeysOf(copy, "ALGO_", "task").Reference("DV_"), "__v_merged_DV");
}

TEST(ParsedCommandLookup, TakesOverContainerAndNamesInAnAssignment)
{
  OrvelCmdContainer one;
  AddParsed(one, Defs::STOP, "one").AddIntegerItem(Items::ITER_MAX, 1);
  OrvelCmdContainer two;
  AddParsed(two, Defs::STOP, "two").AddIntegerItem(Items::ITER_MAX, 2);
  Storage storage(one);
  const Storage other(two);
  EXPECT_EQ(&(storage = other), &storage);
  EXPECT_THAT(NamesOf(storage, "STOP_"), ElementsAre("two"));
  EXPECT_EQ(KeysOf(storage, "STOP_", "one").Integer("ITER_MAX_"), -4711);
  EXPECT_EQ(KeysOf(storage, "STOP_", "two").Integer("ITER_MAX_"), 2);
}

TEST(ParsedCommandLookup, StaysAsItIsWhenAssignedToItself)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::STOP, "end").AddIntegerItem(Items::ITER_MAX, 80);
  Storage storage(container);
  const Storage& same = storage;
  storage = same;
  EXPECT_EQ(KeysOf(storage, "STOP_", "end").Integer("ITER_MAX_"), 80);
}

TEST(ParsedCommandLookup, LeavesTheContainerAloneWhenItEnds)
{
  OrvelCmdContainer container;
  OrvelCmd& stop = AddParsed(container, Defs::STOP, "end");
  std::unique_ptr<OrvelParfileStorage> storage = std::make_unique<Storage>(container);
  storage.reset();
  EXPECT_EQ(container.GetNumberOfCommands(Defs::STOP), 1U);
  EXPECT_EQ(stop.Item(Items::ID_NAME, 0).AsString(), "end");
}

TEST(ParsedCommandLookup, CountsARemovedCommandAndGivesItTheEmptyText)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::STOP, "one").AddIntegerItem(Items::ITER_MAX, 1);
  AddParsed(container, Defs::STOP, "two").AddIntegerItem(Items::ITER_MAX, 2);
  AddParsed(container, Defs::STOP, "three").AddIntegerItem(Items::ITER_MAX, 3);
  const Storage before(container);
  container.RemoveCommand(Defs::STOP, 1);
  const Storage after(container);
  for (const Storage& storage : {before, after})
  {
    EXPECT_THAT(NamesOf(storage, "STOP_"), ElementsAre("one", "", "three"));
    EXPECT_EQ(KeysOf(storage, "STOP_", "one").Integer("ITER_MAX_"), 1);
    EXPECT_EQ(KeysOf(storage, "STOP_", "two").Integer("ITER_MAX_"), -4711);
    EXPECT_FALSE(KeysOf(storage, "STOP_", "two").Has("ITER_MAX_"));
    EXPECT_EQ(KeysOf(storage, "STOP_", "three").Integer("ITER_MAX_"), 3);
  }
}

TEST(ParsedCommandLookup, LetsALaterCommandHaveTheNameOfARemovedOne)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::STOP, "end").AddIntegerItem(Items::ITER_MAX, 1);
  AddParsed(container, Defs::STOP, "end").AddIntegerItem(Items::ITER_MAX, 2);
  container.RemoveCommand(Defs::STOP, 0);
  EXPECT_EQ(KeysOf(Storage(container), "STOP_", "end").Integer("ITER_MAX_"), 2);
}

TEST(ParsedCommandLookup, PassesOverRemovedGroups)
{
  OrvelCmdContainer container;
  AddGroup(container, "pipes", 0);
  AddGroup(container, "corners", 2);
  AddGroup(container, "gone", 0);
  AddGroup(container, "bosses", 0);
  container.RemoveCommand(Defs::GROUP_DEF, 2);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "ELEMENT_GROUP_"), ElementsAre("pipes", "bosses"));
  EXPECT_EQ(NameAt(storage, "ELEMENT_GROUP_", 2), "");
  EXPECT_THAT(NamesOf(storage, "NODE_GROUP_"), ElementsAre("corners"));
}

TEST(ParsedCommandLookup, KeepsTheMergedVariableBehindARemovedOne)
{
  OrvelCmdContainer container;
  AddVariables(container, 3, 2);
  container.RemoveCommand(Defs::DV, 2);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2", "", "__v_merged_DV"));
}

TEST(ParsedCommandLookup, MergesNothingAfterTheFirstOptimizeWasRemoved)
{
  OrvelCmdContainer container;
  AddVariables(container, 2, 2);
  OrvelCmd& second = AddParsed(container, Defs::OPTIMIZE, "second");
  second.AddStringItem(Items::DV, "one");
  second.AddStringItem(Items::DV, "two");
  container.RemoveCommand(Defs::OPTIMIZE, 0);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "DV_"), ElementsAre("dv1", "dv2"));
  EXPECT_EQ(storage.GetNumElements("DV_", "__v_merged_DV", "DV_"), 0U);
  EXPECT_THAT(NamesOf(storage, "ALGO_"), ElementsAre("", "second"));
}

TEST(ParsedCommandLookup, CountsRemovedCommandsOfAKindThatExistsOnceInAnyCase)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::OPT_PARAM, "one");
  AddParsed(container, Defs::OPT_PARAM, "two");
  container.RemoveCommand(Defs::OPT_PARAM, 0);
  container.RemoveCommand(Defs::OPT_PARAM, 1);
  const Storage storage(container);
  EXPECT_THAT(NamesOf(storage, "OPT_PARAM_"), ElementsAre("", ""));
}
