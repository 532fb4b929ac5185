#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/command_ids.h"
#include "support/complete_job.h"
#include "support/failures.h"
#include "support/gyre_kinds.h"

#include <gmock/gmock.h>

#include <functional>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const std::string kPrefix = "[%T|%n|%P|OrvelCommands|Gyre_Parfile] ";

// Three commands, "first", "second" and "third", of each kind of which a job has any number, and one of the others.
RecordingStorage JobWithThreeOfEachKind()
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  ForEachManyKind([&](const auto& kind) {
    for (const char* id : {"first", "second", "third"})
    {
      storage.Command(kind.name, id);
    }
  });
  for (const char* id : {"first", "second", "third"})
  {
    storage.Command("MONITOR_", id)["DRESP_"] = {Ref{"first"}};
  }
  storage.Command("MODEL_", "model");
  storage.Command("OBJ_FUNC_", "objective");
  storage.Command("FLOWPATHS_", "paths");
  auto& algorithm = storage.Command("ALGO_", "algorithm");
  algorithm["OBJ_FUNC_"] = {Ref{"objective"}};
  for (const char* key : {"DV_", "OPT_PARAM_", "STOP_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    algorithm[key] = {Ref{"first"}};
  }
  return storage;
}

// The least job with three DV_ named one, two and three.
RecordingStorage JobWithThreeVariables()
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  storage.RemoveCommands("DV_");
  for (const char* id : {"one", "two", "three"})
  {
    storage.Command("DV_", id);
  }
  storage.Command("ALGO_", "algorithm")["DV_"] = {Ref{"one"}};
  return storage;
}

// Whether an expression on a Gyre_Parfile compiles.
template <class Expression>
constexpr bool Compiles(Expression)
{
  return std::is_invocable_v<Expression, const Gyre_Parfile&>;
}

constexpr std::uint64_t kIndex = 1;

}  // namespace

// The single kinds have their two getters and no others.
static_assert(Compiles([](auto& parfile) -> decltype(void(parfile.NumDV_())) {}), "the probe works");
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.NumMODEL_())) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.NumOBJ_FUNC_())) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.NumALGO_())) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.NumFLOWPATHS_())) {}));
static_assert(Compiles([](auto& parfile) -> decltype(void(parfile.HasDV_("id"))) {}), "the probe works");
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.HasMODEL_("id"))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.HasOBJ_FUNC_("id"))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.HasALGO_("id"))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.HasFLOWPATHS_("id"))) {}));
static_assert(Compiles([](auto& parfile) -> decltype(void(parfile.GetDV_(kIndex))) {}), "the probe works");
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.GetMODEL_(kIndex))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.GetOBJ_FUNC_(kIndex))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.GetALGO_(kIndex))) {}));
static_assert(!Compiles([](auto& parfile) -> decltype(void(parfile.GetFLOWPATHS_(kIndex))) {}));

TEST(GyreParfileQueries, HasOperationsOfTheExactTypesForAll25Kinds)
{
  // The types of ManyKind and SingleKind are part of what is tested: results, references and constness.
  std::vector<std::string> many;
  std::vector<std::string> single;
  ForEachManyKind([&](const auto& kind) { many.emplace_back(kind.name); });
  ForEachSingleKind([&](const auto& kind) { single.emplace_back(kind.name); });
  EXPECT_THAT(many, ElementsAre("ELEMENT_GROUP_", "FACE_GROUP_", "NODE_GROUP_", "DV_", "DRESP_", "OPERATOR_",
                                "CONSTRAINT_", "CS_", "DV_CONSTRAINT_", "MONITOR_", "OPT_PARAM_", "STOP_",
                                "MESH_SMOOTH_", "FILTER_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_",
                                "AS_SHAPE_SENS_", "OUTPUT_", "SCALING_CURVE_", "SMOOTH_"));
  EXPECT_THAT(single, ElementsAre("MODEL_", "OBJ_FUNC_", "ALGO_", "FLOWPATHS_"));
}

TEST(GyreParfileQueries, GivesAllCommandsOfAKindInTheOrderOfLoading)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachManyKind([&](const auto& kind) {
    SCOPED_TRACE(kind.name);
    EXPECT_THAT(IdsOf((parfile.*kind.all)()), ElementsAre("first", "second", "third"));
    EXPECT_EQ((parfile.*kind.num)(), 3U);
    for (const auto* command : (parfile.*kind.all)())
    {
      EXPECT_EQ(command->GetType(), kind.name);
    }
  });
}

TEST(GyreParfileQueries, GivesACommandByItsPlaceCountedFromOne)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachManyKind([&](const auto& kind) {
    SCOPED_TRACE(kind.name);
    const auto commands = (parfile.*kind.all)();
    ASSERT_EQ(commands.size(), 3U);
    EXPECT_EQ(&(parfile.*kind.by_index)(1), commands[0]);
    EXPECT_EQ(&(parfile.*kind.by_index)(2), commands[1]);
    EXPECT_EQ(&(parfile.*kind.by_index)(3), commands[2]);
  });
}

TEST(GyreParfileQueries, GivesACommandByItsId)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachManyKind([&](const auto& kind) {
    SCOPED_TRACE(kind.name);
    const auto commands = (parfile.*kind.all)();
    ASSERT_EQ(commands.size(), 3U);
    EXPECT_EQ(&(parfile.*kind.by_id)("first"), commands[0]);
    EXPECT_EQ(&(parfile.*kind.by_id)("second"), commands[1]);
    EXPECT_EQ(&(parfile.*kind.by_id)("third"), commands[2]);
    EXPECT_TRUE((parfile.*kind.has)("first"));
    EXPECT_TRUE((parfile.*kind.has)("third"));
  });
}

TEST(GyreParfileQueries, RefusesAPlaceOutsideOneToTheCount)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachManyKind([&](const auto& kind) {
    const std::string name = kind.name;
    for (const std::uint64_t index : {0, 4, 1000})
    {
      EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_index)(index); }),
                (Failure{"Invalid index " + std::to_string(index) + " of the parameterfile command " + name +
                           " to retrieve. Number of available commands is 3",
                         "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    }
  });
}

TEST(GyreParfileQueries, CountsThreeVariablesFromOneToThree)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_(0); }),
            (Failure{"Invalid index 0 of the parameterfile command DV_ to retrieve. Number of available commands is 3",
                     "204046270608", kPrefix}));
  EXPECT_EQ(parfile.GetDV_(3).GetID_NAME_(), "three");
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_(4); }),
            (Failure{"Invalid index 4 of the parameterfile command DV_ to retrieve. Number of available commands is 3",
                     "204046270608", kPrefix}));
}

TEST(GyreParfileQueries, TellsAPlaceAsANumberOf32Bits)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_(18446744073709551615U); }).message,
            "Invalid index -1 of the parameterfile command DV_ to retrieve. Number of available commands is 3");
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_(4294967298U); }).message,
            "Invalid index 2 of the parameterfile command DV_ to retrieve. Number of available commands is 3");
}

TEST(GyreParfileQueries, RefusesAnUnknownId)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachManyKind([&](const auto& kind) {
    const std::string name = kind.name;
    EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_id)("fourth"); }),
              (Failure{"Invalid ID fourth of the parameter file command " + name, "161700240908",
                       "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    EXPECT_FALSE((parfile.*kind.has)("fourth")) << name;
  });
}

TEST(GyreParfileQueries, ComparesIdsByteByByte)
{
  RecordingStorage storage = JobWithThreeVariables();
  storage.Command("DV_", std::string("nul\0led", 7));
  Gyre_Parfile parfile(storage);
  parfile.Load();
  for (const char* other : {"", "One", "ONE", "on", "one ", " one", "ones", "nul"})
  {
    EXPECT_FALSE(parfile.HasDV_(other)) << other;
    EXPECT_EQ(FailureOf([&] { parfile.GetDV_(other); }).message,
              std::string("Invalid ID ") + other + " of the parameter file command DV_");
  }
  EXPECT_TRUE(parfile.HasDV_(std::string("nul\0led", 7)));
  EXPECT_FALSE(parfile.HasDV_(std::string("one\0", 4)));
  EXPECT_FALSE(parfile.HasDV_(std::string("nul\0lid", 7)));
}

TEST(GyreParfileQueries, KeepsTheSameIdOfTwoKindsApart)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  storage.Command("STOP_", "first")["ITER_MAX_"] = {25};
  storage.Command("PRE_PARAM_", "first")["ITER_MAX_"] = {4};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetSTOP_("first").GetITER_MAX_(), 25);
  EXPECT_EQ(parfile.GetPRE_PARAM_("first").GetITER_MAX_(), 4);
}

TEST(GyreParfileQueries, FindsTheFirstOfTwoCommandsWithTheSameId)
{
  RecordingStorage storage = JobWithThreeVariables();
  storage.AddSecondCommand("DV_", "two");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.NumDV_(), 4U);
  EXPECT_TRUE(parfile.HasDV_("two"));
  EXPECT_EQ(&parfile.GetDV_("two"), parfile.GetDV_()[1]);
  EXPECT_NE(&parfile.GetDV_("two"), parfile.GetDV_()[3]);
  EXPECT_EQ(parfile.GetDV_(4).GetID_NAME_(), "two");
}

TEST(GyreParfileQueries, PutsAnIdIntoItsTextAsItIs)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_("100%d %s%n"); }).message,
            "Invalid ID 100%d %s%n of the parameter file command DV_");
}

TEST(GyreParfileQueries, CutsTheTextWithALongIdAt1023Characters)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const Failure failure = FailureOf([&] { parfile.GetDV_(std::string(2000, 'x')); });
  EXPECT_EQ(failure.message, "Invalid ID " + std::string(1012, 'x'));
  EXPECT_EQ(failure.code, "161700240908");
}

TEST(GyreParfileQueries, EndsAnIdInItsTextAtItsNul)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.GetDV_(std::string("one\0more", 8)); }).message,
            "Invalid ID one of the parameter file command DV_");
}

TEST(GyreParfileQueries, HandsOutACopyOfItsPointers)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::vector<DV_*> variables = parfile.GetDV_();
  std::swap(variables[0], variables[2]);
  variables.pop_back();
  EXPECT_THAT(IdsOf(parfile.GetDV_()), ElementsAre("one", "two", "three"));
}

TEST(GyreParfileQueries, GivesCommandsThatCanBeChangedFromAConstAggregate)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile loaded(storage);
  loaded.Load();
  const Gyre_Parfile& parfile = loaded;
  const DV_ other;
  parfile.GetDV_("two") = other;
  EXPECT_EQ(parfile.GetDV_(2).GetID_NAME_(), "");
  EXPECT_FALSE(parfile.HasDV_("two"));
}

TEST(GyreParfileQueries, GivesTheOneCommandOfASingleKind)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetMODEL_().GetID_NAME_(), "model");
  EXPECT_EQ(parfile.GetOBJ_FUNC_().GetID_NAME_(), "objective");
  EXPECT_EQ(parfile.GetALGO_().GetID_NAME_(), "algorithm");
  EXPECT_EQ(parfile.GetFLOWPATHS_().GetID_NAME_(), "paths");
  EXPECT_EQ(&parfile.GetMODEL_("model"), &parfile.GetMODEL_());
  EXPECT_EQ(&parfile.GetOBJ_FUNC_("objective"), &parfile.GetOBJ_FUNC_());
  EXPECT_EQ(&parfile.GetALGO_("algorithm"), &parfile.GetALGO_());
  EXPECT_EQ(&parfile.GetFLOWPATHS_("paths"), &parfile.GetFLOWPATHS_());
}

TEST(GyreParfileQueries, GivesADefaultCommandForAnotherIdOfASingleKind)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ForEachSingleKind([&](const auto& kind) {
    SCOPED_TRACE(kind.name);
    const auto& other = (parfile.*kind.by_id)("another");
    EXPECT_EQ(other.GetID_NAME_(), "");
    EXPECT_EQ(other.GetType(), kind.name);
    EXPECT_NE(&other, &(parfile.*kind.get)());
    EXPECT_EQ(&other, &(parfile.*kind.by_id)("yet another"));
    EXPECT_EQ(&other, &(parfile.*kind.by_id)(""));
  });
}

TEST(GyreParfileQueries, GivesDefaultCommandsThatWereNeverLoaded)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("MODEL_", "model")["FILE_"] = {std::string("duct.onf")};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetMODEL_("model").GetFILE_(), "duct.onf");
  EXPECT_EQ(parfile.GetMODEL_("another").GetFILE_(), "");
  EXPECT_TRUE(parfile.GetOBJ_FUNC_("objective").HasDRESP_());
  EXPECT_FALSE(parfile.GetOBJ_FUNC_("another").HasDRESP_());
  EXPECT_EQ(parfile.GetALGO_("another").NumCONSTRAINT_(), 0U);
  EXPECT_EQ(parfile.GetFLOWPATHS_("another").NumIN_(), 0U);
}

TEST(GyreParfileQueries, MissesQuietlyForASingleKindAndWithAFailureForTheOthers)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetMODEL_("no_such").GetID_NAME_(), "");
  EXPECT_THROW(parfile.GetDV_("no_such"), KLV_Failure);
}

TEST(GyreParfileQueries, FindsNothingInAnAggregateThatWasNeverLoaded)
{
  RecordingStorage storage = CompleteJob();
  const Gyre_Parfile parfile(storage);
  ForEachManyKind([&](const auto& kind) {
    const std::string name = kind.name;
    EXPECT_EQ((parfile.*kind.num)(), 0U) << name;
    EXPECT_THAT((parfile.*kind.all)(), IsEmpty()) << name;
    EXPECT_FALSE((parfile.*kind.has)("variable")) << name;
    EXPECT_FALSE((parfile.*kind.has)("")) << name;
    EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_id)("variable"); }).message,
              "Invalid ID variable of the parameter file command " + name);
    for (const std::uint64_t index : {0, 1})
    {
      EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_index)(index); }),
                (Failure{"Invalid index " + std::to_string(index) + " of the parameterfile command " + name +
                           " to retrieve. Number of available commands is 0",
                         "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    }
  });
}

TEST(GyreParfileQueries, FailsForASingleKindOfAnAggregateThatWasNeverLoaded)
{
  RecordingStorage storage = CompleteJob();
  const Gyre_Parfile parfile(storage);
  ForEachSingleKind([&](const auto& kind) {
    const Failure expected{std::string("0 commands of type ") + kind.name + " detected. Only one is expected.",
                           "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "};
    EXPECT_EQ(FailureOf([&] { (parfile.*kind.get)(); }), expected);
    EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_id)("model"); }), expected);
    EXPECT_EQ(FailureOf([&] { (parfile.*kind.by_id)(""); }), expected);
  });
  EXPECT_EQ(FailureOf([&] { parfile.GetALGO_(); }).message, "0 commands of type ALGO_ detected. Only one is expected.");
}

TEST(GyreParfileQueries, FindsNothingOfAKindThatTheJobLacks)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(parfile.GetFILTER_(), IsEmpty());
  EXPECT_EQ(parfile.NumFILTER_(), 0U);
  EXPECT_FALSE(parfile.HasFILTER_("fine"));
  EXPECT_EQ(FailureOf([&] { parfile.GetFILTER_(1); }).message,
            "Invalid index 1 of the parameterfile command FILTER_ to retrieve. Number of available commands is 0");
  EXPECT_EQ(FailureOf([&] { parfile.GetFILTER_("fine"); }).message,
            "Invalid ID fine of the parameter file command FILTER_");
}

TEST(GyreParfileQueries, LeavesTheAggregateAsItIsAfterAFailure)
{
  RecordingStorage storage = JobWithThreeVariables();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const std::vector<DV_*> before = parfile.GetDV_();
  const std::vector<std::string> counts = CommandCounts(parfile);
  EXPECT_THROW(parfile.GetDV_(4), KLV_Failure);
  EXPECT_THROW(parfile.GetDV_("four"), KLV_Failure);
  EXPECT_EQ(parfile.GetDV_(), before);
  EXPECT_EQ(CommandCounts(parfile), counts);
}

TEST(GyreParfileQueries, DoesNotTouchTheStorage)
{
  RecordingStorage storage = JobWithThreeOfEachKind();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  storage.ForgetCalls();
  ForEachManyKind([&](const auto& kind) {
    (parfile.*kind.all)();
    (parfile.*kind.by_id)("second");
    (parfile.*kind.by_index)(1);
    (parfile.*kind.has)("nothing");
    (parfile.*kind.num)();
    EXPECT_THROW((parfile.*kind.by_id)("nothing"), KLV_Failure);
  });
  ForEachSingleKind([&](const auto& kind) {
    (parfile.*kind.get)();
    (parfile.*kind.by_id)("nothing");
  });
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(CommandsByIndex, RefuseAPlaceOutsideOneToTheirCount)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  struct Row
  {
    const char* key;
    const char* command;
    int count;
    std::function<void(std::uint64_t)> get;
  };
  const std::vector<Row> rows = {
    {"CONSTRAINT_", "ALGO_", 2, [&](std::uint64_t index) { parfile.GetALGO_().GetCONSTRAINT_(index); }},
    {"DV_CONSTRAINT_", "ALGO_", 2, [&](std::uint64_t index) { parfile.GetALGO_().GetDV_CONSTRAINT_(index); }},
    {"MESH_SMOOTH_", "ALGO_", 1, [&](std::uint64_t index) { parfile.GetALGO_().GetMESH_SMOOTH_(index); }},
    {"MONITOR_", "ALGO_", 2, [&](std::uint64_t index) { parfile.GetALGO_().GetMONITOR_(index); }},
    {"DRESP_", "OPERATOR_", 3, [&](std::uint64_t index) { parfile.GetOPERATOR_("sum").GetDRESP_(index); }},
    {"OPERATOR_", "OPERATOR_", 2, [&](std::uint64_t index) { parfile.GetOPERATOR_("sum").GetOPERATOR_(index); }},
    {"DV_", "DV_", 2, [&](std::uint64_t index) { parfile.GetDV_("variable").GetDV_(index); }},
    {"FILTER_", "DV_", 2, [&](std::uint64_t index) { parfile.GetDV_("variable").GetFILTER_(index); }},
    {"FILTER_", "AS_SHAPE_SENS_", 2,
     [&](std::uint64_t index) { parfile.GetAS_SHAPE_SENS_("settings").GetFILTER_(index); }},
    {"FILTER_", "CONSTRAINT_", 2, [&](std::uint64_t index) { parfile.GetCONSTRAINT_("limit").GetFILTER_(index); }},
    {"FILTER_", "OBJ_FUNC_", 1, [&](std::uint64_t index) { parfile.GetOBJ_FUNC_().GetFILTER_(index); }},
  };
  for (const Row& row : rows)
  {
    EXPECT_NO_THROW(row.get(1)) << row.command << row.key;
    EXPECT_NO_THROW(row.get(row.count)) << row.command << row.key;
    for (const std::uint64_t index : {std::uint64_t{0}, std::uint64_t(row.count + 1), std::uint64_t{4294967297}})
    {
      EXPECT_EQ(FailureOf([&] { row.get(index); }),
                (Failure{"Invalid index " + std::to_string(index) + " of the parameterfile value " + row.key +
                           " to retrieve from " + row.command + ". Number of available values is " +
                           std::to_string(row.count) + ".",
                         "220653270608", std::string("[%T|%n|%P|libxml2vtm|") + row.command + "] "}));
    }
  }
}
