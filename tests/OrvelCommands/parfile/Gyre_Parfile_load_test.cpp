#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/complete_job.h"
#include "support/failures.h"
#include "support/gyre_kinds.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace
{

using Calls = std::vector<std::string>;

// The second pass begins with the first reference key of the first linked kind.
const char* const kFirstCallOfTheSecondPass = "GetNumElements(DV_, variable, FILTER_)";

Calls FirstPassOf(const RecordingStorage& storage)
{
  const auto& calls = storage.Calls();
  return {calls.begin(), std::find(calls.begin(), calls.end(), kFirstCallOfTheSecondPass)};
}

// "DV_" of "GetCommandName(DV_, 0)".
std::string KindOf(const std::string& call)
{
  const std::size_t begin = call.find('(') + 1;
  return call.substr(begin, call.find_first_of(",)", begin) - begin);
}

// What must be loaded when a complete load breaks off at its call number \p failing.
Calls CommandCountsAt(const Calls& calls, std::size_t failing)
{
  Calls counts;
  const std::size_t second_pass = std::find(calls.begin(), calls.end(), kFirstCallOfTheSecondPass) - calls.begin();
  std::string kind;
  std::uint64_t count = 0;
  const auto end_kind = [&] {
    if (count != 0)
    {
      counts.push_back(kind + " " + std::to_string(count));
    }
  };
  for (std::size_t i = 0; i <= failing && i < second_pass; ++i)
  {
    if (calls[i].rfind("GetNumCommand(", 0) == 0)
    {
      end_kind();
      kind = KindOf(calls[i]);
      count = 0;
    }
    count += calls[i].rfind("GetCommandName(", 0) == 0 ? 1 : 0;
  }
  if (failing < second_pass && calls[failing].rfind("GetNumCommand(", 0) != 0)
  {
    --count;  // the command that was being loaded
  }
  end_kind();
  return counts;
}

// Asks for all that an aggregate holds.
void QueryEverything(const Gyre_Parfile& parfile)
{
  const CapturedLog log;
  ForEachManyKind([&](const auto& kind) {
    const auto commands = (parfile.*kind.all)();
    for (std::uint64_t index = 1; index <= commands.size(); ++index)
    {
      ASSERT_EQ(&(parfile.*kind.by_index)(index), commands[index - 1]);
      ASSERT_TRUE((parfile.*kind.has)(commands[index - 1]->GetID_NAME_()));
      commands[index - 1]->ToString();
    }
  });
}

// A complete job with another count of one kind.
RecordingStorage JobWithCount(const std::string& kind, int count)
{
  RecordingStorage storage = CompleteJob();
  storage.RemoveCommands(kind);
  for (int i = 0; i < count; ++i)
  {
    storage.AddSecondCommand(kind, "number " + std::to_string(i));
  }
  return storage;
}

// A storage that reports more commands than anyone could hold.
class StorageWithManyModels : public RecordingStorage
{
public:
  std::uint64_t GetNumCommand(const std::string&) const override { return 4294967298U; }  // 2^32 + 2
};

}  // namespace

TEST(GyreParfileLoad, WalksTheKindsInTheirOrderAndTheCommandsOfAKindFromPositionZero)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(WalkOver(storage), ElementsAre("GetNumCommand(MODEL_)", "GetCommandName(MODEL_, 0)",                  //
                                             "GetNumCommand(ELEMENT_GROUP_)", "GetCommandName(ELEMENT_GROUP_, 0)",  //
                                             "GetNumCommand(FACE_GROUP_)", "GetCommandName(FACE_GROUP_, 0)",        //
                                             "GetNumCommand(NODE_GROUP_)", "GetCommandName(NODE_GROUP_, 0)",        //
                                             "GetNumCommand(DV_)", "GetCommandName(DV_, 0)",                        //
                                             "GetCommandName(DV_, 1)",                                              //
                                             "GetNumCommand(DRESP_)", "GetCommandName(DRESP_, 0)",                  //
                                             "GetCommandName(DRESP_, 1)",                                           //
                                             "GetNumCommand(OPERATOR_)", "GetCommandName(OPERATOR_, 0)",            //
                                             "GetCommandName(OPERATOR_, 1)",                                        //
                                             "GetNumCommand(OBJ_FUNC_)", "GetCommandName(OBJ_FUNC_, 0)",            //
                                             "GetNumCommand(CONSTRAINT_)", "GetCommandName(CONSTRAINT_, 0)",        //
                                             "GetCommandName(CONSTRAINT_, 1)",                                      //
                                             "GetNumCommand(CS_)", "GetCommandName(CS_, 0)",                        //
                                             "GetNumCommand(DV_CONSTRAINT_)", "GetCommandName(DV_CONSTRAINT_, 0)",  //
                                             "GetCommandName(DV_CONSTRAINT_, 1)",                                   //
                                             "GetNumCommand(MONITOR_)", "GetCommandName(MONITOR_, 0)",              //
                                             "GetNumCommand(ALGO_)", "GetCommandName(ALGO_, 0)",                    //
                                             "GetNumCommand(OPT_PARAM_)", "GetCommandName(OPT_PARAM_, 0)",          //
                                             "GetNumCommand(STOP_)", "GetCommandName(STOP_, 0)",                    //
                                             "GetNumCommand(MESH_SMOOTH_)", "GetCommandName(MESH_SMOOTH_, 0)",      //
                                             "GetCommandName(MESH_SMOOTH_, 1)",                                     //
                                             "GetNumCommand(FILTER_)", "GetCommandName(FILTER_, 0)",                //
                                             "GetCommandName(FILTER_, 1)",                                          //
                                             "GetNumCommand(PRE_PARAM_)", "GetCommandName(PRE_PARAM_, 0)",          //
                                             "GetNumCommand(AS_TOPO_OC_)", "GetCommandName(AS_TOPO_OC_, 0)",        //
                                             "GetNumCommand(AS_TOPO_SENS_)", "GetCommandName(AS_TOPO_SENS_, 0)",    //
                                             "GetNumCommand(AS_SHAPE_SENS_)", "GetCommandName(AS_SHAPE_SENS_, 0)",  //
                                             "GetNumCommand(FLOWPATHS_)", "GetCommandName(FLOWPATHS_, 0)",          //
                                             "GetNumCommand(OUTPUT_)", "GetCommandName(OUTPUT_, 0)",                //
                                             "GetNumCommand(SCALING_CURVE_)", "GetCommandName(SCALING_CURVE_, 0)",  //
                                             "GetNumCommand(SMOOTH_)", "GetCommandName(SMOOTH_, 0)"));
}

TEST(GyreParfileLoad, LetsEachCommandReadItsKeysBeforeTheNextCommandIsNamed)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  storage.Command("CS_", "axes");
  storage.Command("MONITOR_", "first")["DRESP_"] = {Ref{"volume"}};
  storage.Command("MONITOR_", "second")["DRESP_"] = {Ref{"volume"}};
  storage.Command("DRESP_", "volume");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const Calls first_pass = FirstPassOf(storage);
  EXPECT_THAT(Calls(first_pass.begin(), first_pass.begin() + 8),
              ElementsAre("GetNumCommand(MODEL_)", "GetCommandName(MODEL_, 0)",
                          "GetValue(MODEL_, model, FILE_, 1, vtmString, string)", "HasElement(MODEL_, model, SOLVER_)",
                          "GetNumCommand(ELEMENT_GROUP_)", "GetNumCommand(FACE_GROUP_)", "GetNumCommand(NODE_GROUP_)",
                          "GetNumCommand(DV_)"));
  const auto cs = std::find(first_pass.begin(), first_pass.end(), "GetNumCommand(CS_)");
  ASSERT_GE(first_pass.end() - cs, 24);
  EXPECT_THAT(
    Calls(cs, cs + 24),
    ElementsAre(
      "GetNumCommand(CS_)", "GetCommandName(CS_, 0)", "GetEnumValue(CS_, axes, TYPE_, 1, vtmEnum)",
      "HasElement(CS_, axes, X_ORIGIN_)", "HasElement(CS_, axes, Y_ORIGIN_)", "HasElement(CS_, axes, Z_ORIGIN_)",
      "GetValue(CS_, axes, X_VEC1_, 1, vtmDouble, double)", "GetValue(CS_, axes, Y_VEC1_, 1, vtmDouble, double)",
      "GetValue(CS_, axes, Z_VEC1_, 1, vtmDouble, double)", "GetValue(CS_, axes, X_VEC2_, 1, vtmDouble, double)",
      "GetValue(CS_, axes, Y_VEC2_, 1, vtmDouble, double)", "GetValue(CS_, axes, Z_VEC2_, 1, vtmDouble, double)",
      "GetValue(CS_, axes, X_VEC3_, 1, vtmDouble, double)", "GetValue(CS_, axes, Y_VEC3_, 1, vtmDouble, double)",
      "GetValue(CS_, axes, Z_VEC3_, 1, vtmDouble, double)", "GetNumCommand(DV_CONSTRAINT_)", "GetNumCommand(MONITOR_)",
      "GetCommandName(MONITOR_, 0)", "GetCommandName(MONITOR_, 1)", "GetNumCommand(ALGO_)", "GetCommandName(ALGO_, 0)",
      "GetEnumValue(ALGO_, algorithm, STRATEGY_, 1, vtmEnum)",
      "GetEnumValue(ALGO_, algorithm, DEVELOPER_OUTPUT_, 1, vtmEnum)", "GetNumCommand(OPT_PARAM_)"));
}

TEST(GyreParfileLoad, ReadsOnlyTheKeysOfTheCommandThatWasNamedLast)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::string kind;
  for (const std::string& call : FirstPassOf(storage))
  {
    if (CountsOrNamesCommands(call))
    {
      kind = KindOf(call);
    }
    EXPECT_EQ(KindOf(call), kind) << call;
  }
}

TEST(GyreParfileLoad, ReadsNoReferenceBeforeAllCommandsOfAllKindsAreLoaded)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const Calls first_pass = FirstPassOf(storage);
  ASSERT_FALSE(first_pass.empty());
  EXPECT_EQ(first_pass.back(), "GetValue(SMOOTH_, surface, WALL_TOLERANCE_, 1, vtmDouble, double)");
  EXPECT_THAT(first_pass, Each(Not(StartsWith("GetReference("))));
}

TEST(GyreParfileLoad, NeverAsksWhetherACommandExistsAndNeverWrites)
{
  RecordingStorage storage = CompleteJob();  // its write half throws
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(storage.Calls(), Each(Not(StartsWith("HasCommand("))));
}

TEST(GyreParfileLoad, KeepsTheOrderOfTheStorage)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  storage.Command("FILTER_", "zebra");
  storage.Command("FILTER_", "ant");
  storage.Command("FILTER_", "mole");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ASSERT_EQ(parfile.NumFILTER_(), 3U);
  EXPECT_EQ(parfile.GetFILTER_(1).GetID_NAME_(), "zebra");
  EXPECT_EQ(parfile.GetFILTER_(2).GetID_NAME_(), "ant");
  EXPECT_EQ(parfile.GetFILTER_(3).GetID_NAME_(), "mole");
}

TEST(GyreParfileLoad, LoadsCommandsOfAllKindsWithTheirValues)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(CommandCounts(parfile),
              ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1", "DV_ 2", "DRESP_ 2",
                          "OPERATOR_ 2", "OBJ_FUNC_ 1", "CONSTRAINT_ 2", "CS_ 1", "DV_CONSTRAINT_ 2", "MONITOR_ 1",
                          "ALGO_ 1", "OPT_PARAM_ 1", "STOP_ 1", "MESH_SMOOTH_ 2", "FILTER_ 2", "PRE_PARAM_ 1",
                          "AS_TOPO_OC_ 1", "AS_TOPO_SENS_ 1", "AS_SHAPE_SENS_ 1", "FLOWPATHS_ 1", "OUTPUT_ 1",
                          "SCALING_CURVE_ 1", "SMOOTH_ 1"));
  EXPECT_THAT(parfile.GetELEMENT_GROUP_("duct").GetLIST_(), ElementsAre(1, 2, 3));
  EXPECT_EQ(parfile.GetDV_("variable").GetINITIAL_(), 0.4);
  EXPECT_THAT(parfile.GetFLOWPATHS_().GetOUT_(), ElementsAre("outlet", "drain"));
  EXPECT_THAT(parfile.GetSMOOTH_("surface").GetSLICE_X_(), ElementsAre(0.5));
}

TEST(GyreParfileLoad, NeedsNoCommandsOfTheOtherKinds)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(CommandCounts(parfile),
              ElementsAre("MODEL_ 1", "DV_ 1", "OBJ_FUNC_ 1", "ALGO_ 1", "OPT_PARAM_ 1", "STOP_ 1", "PRE_PARAM_ 1",
                          "AS_TOPO_OC_ 1", "AS_TOPO_SENS_ 1", "AS_SHAPE_SENS_ 1", "FLOWPATHS_ 1"));
}

TEST(GyreParfileLoad, FailsAtOnceWithoutAModelAndCreatesNothing)
{
  RecordingStorage storage = JobWithCount("MODEL_", 0);
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"0 commands of type MODEL_ detected. Only one is expected.",
                                                         "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_THAT(CommandCounts(parfile), IsEmpty());
  EXPECT_THAT(storage.Calls(), ElementsAre("GetNumCommand(MODEL_)"));
}

TEST(GyreParfileLoad, FailsAtOnceWithTwoModelsAndCreatesNothing)
{
  RecordingStorage storage = JobWithCount("MODEL_", 2);
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"2 commands of type MODEL_ detected. Only one is expected.",
                                                         "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_THAT(CommandCounts(parfile), IsEmpty());
  EXPECT_THAT(storage.Calls(), ElementsAre("GetNumCommand(MODEL_)"));
}

TEST(GyreParfileLoad, FailsWithAWrongCountOfObjectivesWhenTheirTurnComes)
{
  for (const int count : {0, 2, 3})
  {
    RecordingStorage storage = JobWithCount("OBJ_FUNC_", count);
    Gyre_Parfile parfile(storage);
    EXPECT_EQ(FailureOf([&] { parfile.Load(); }),
              (Failure{std::to_string(count) + " commands of type OBJ_FUNC_ detected. Only one is expected.",
                       "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    EXPECT_THAT(CommandCounts(parfile), ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1",
                                                    "DV_ 2", "DRESP_ 2", "OPERATOR_ 2"));
    EXPECT_EQ(storage.Calls().back(), "GetNumCommand(OBJ_FUNC_)");
  }
}

TEST(GyreParfileLoad, FailsWithAWrongCountOfAlgorithmsWhenTheirTurnComes)
{
  for (const int count : {0, 2, 3})
  {
    RecordingStorage storage = JobWithCount("ALGO_", count);
    Gyre_Parfile parfile(storage);
    EXPECT_EQ(FailureOf([&] { parfile.Load(); }),
              (Failure{std::to_string(count) + " commands of type ALGO_ detected. Only one is expected.",
                       "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    EXPECT_THAT(CommandCounts(parfile),
                ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1", "DV_ 2", "DRESP_ 2",
                            "OPERATOR_ 2", "OBJ_FUNC_ 1", "CONSTRAINT_ 2", "CS_ 1", "DV_CONSTRAINT_ 2", "MONITOR_ 1"));
    EXPECT_EQ(storage.Calls().back(), "GetNumCommand(ALGO_)");
  }
}

TEST(GyreParfileLoad, FailsWithAWrongCountOfFlowPathsWhenTheirTurnComes)
{
  for (const int count : {0, 2, 3})
  {
    RecordingStorage storage = JobWithCount("FLOWPATHS_", count);
    Gyre_Parfile parfile(storage);
    EXPECT_EQ(FailureOf([&] { parfile.Load(); }),
              (Failure{std::to_string(count) + " commands of type FLOWPATHS_ detected. Only one is expected.",
                       "204046270608", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
    EXPECT_THAT(CommandCounts(parfile),
                ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1", "DV_ 2", "DRESP_ 2",
                            "OPERATOR_ 2", "OBJ_FUNC_ 1", "CONSTRAINT_ 2", "CS_ 1", "DV_CONSTRAINT_ 2", "MONITOR_ 1",
                            "ALGO_ 1", "OPT_PARAM_ 1", "STOP_ 1", "MESH_SMOOTH_ 2", "FILTER_ 2", "PRE_PARAM_ 1",
                            "AS_TOPO_OC_ 1", "AS_TOPO_SENS_ 1", "AS_SHAPE_SENS_ 1"));
    EXPECT_EQ(storage.Calls().back(), "GetNumCommand(FLOWPATHS_)");
  }
}

TEST(GyreParfileLoad, LeavesCommandsUnlinkedWhenACountIsWrong)
{
  RecordingStorage storage = JobWithCount("FLOWPATHS_", 0);
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_EQ(parfile.GetDV_("variable").GetINITIAL_(), 0.4);
  EXPECT_EQ(parfile.GetDV_("variable").NumFILTER_(), 0U);
  EXPECT_FALSE(parfile.GetDRESP_("volume").HasDV_CONSTRAINT_());
  EXPECT_EQ(parfile.GetALGO_().NumCONSTRAINT_(), 0U);
}

TEST(GyreParfileLoad, TellsACountAsANumberOf32Bits)
{
  StorageWithManyModels storage;
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "2 commands of type MODEL_ detected. Only one is expected.");
}

TEST(GyreParfileLoad, TakesFlowPathsWithAnEmptyIdAsTheOneThatTheStorageReports)
{
  RecordingStorage storage = JobWithCount("FLOWPATHS_", 0);
  storage.AddSecondCommand("FLOWPATHS_", "");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetFLOWPATHS_().GetID_NAME_(), "");
  EXPECT_EQ(parfile.GetFLOWPATHS_().NumIN_(), 0U);
}

TEST(GyreParfileLoad, FailsInTheSecondPassWithOnlyTheFourRequiredCommands)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  for (const char* kind : {"MODEL_", "OBJ_FUNC_", "ALGO_", "FLOWPATHS_"})
  {
    storage.Command(kind, "only");
  }
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"Invalid ID  of the parameter file command DV_",
                                                         "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_EQ(storage.Calls().back(), "GetReference(ALGO_, only, DV_, 1)");
  EXPECT_THAT(CommandCounts(parfile), ElementsAre("MODEL_ 1", "OBJ_FUNC_ 1", "ALGO_ 1", "FLOWPATHS_ 1"));
}

TEST(GyreParfileLoad, KeepsTheDefaultOfAKeyThatIsReadWithoutAskingWhereTheStorageDeliversNothing)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);  // its keys keep their outputs when they are absent
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetMODEL_().GetFILE_(), "");
  EXPECT_EQ(parfile.GetSTOP_("settings").GetITER_MAX_(), 0);
}

TEST(GyreParfileLoad, EndsAtAKeyThatIsReadWithoutAskingWhereTheStorageFails)
{
  RecordingStorage storage;
  storage.Command("MODEL_", "model");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), AbsentFromStorage);
  EXPECT_EQ(storage.Calls().back(), "GetValue(MODEL_, model, FILE_, 1, vtmString, string)");
  EXPECT_THAT(CommandCounts(parfile), IsEmpty());
}

TEST(GyreParfileLoad, LooksNeitherAtTheRangeOfAValueNorAtWhetherItIsAnEnumerator)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  auto& stop = storage.Command("STOP_", "settings");
  stop["ITER_MIN_"] = {100};
  stop["ITER_MAX_"] = {-1};
  storage.Command("DV_", "variable")["TYPE_"] = {12345};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetSTOP_("settings").GetITER_MAX_(), -1);
  EXPECT_EQ(parfile.GetDV_("variable").GetTYPE_(), 12345);
}

TEST(GyreParfileLoad, LooksNeitherAtModelReferencesNorAtTheDatabase)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), kNoFailure) << "no database is open";
}

TEST(GyreParfileLoad, BreaksOffAtAnyCallThatTheStorageFailsAndKeepsWhatWasLoadedByThen)
{
  const Calls calls = CallsOfAWholeLoad();
  ASSERT_EQ(std::set<std::string>(calls.begin(), calls.end()).size(), calls.size()) << "each call is named once";
  ASSERT_GT(calls.size(), 300U);
  for (std::size_t failing = 0; failing < calls.size(); ++failing)
  {
    SCOPED_TRACE(calls[failing]);
    RecordingStorage storage = CompleteJob();
    storage.FailOn(calls[failing]);
    Gyre_Parfile parfile(storage);
    EXPECT_THROW(parfile.Load(), FailedOnDemand);
    EXPECT_THAT(storage.Calls(), ElementsAreArray(calls.begin(), calls.begin() + failing + 1));
    EXPECT_EQ(CommandCounts(parfile), CommandCountsAt(calls, failing));
    QueryEverything(parfile);
  }
}

TEST(GyreParfileLoad, LeavesACommandOutThatCouldNotBeNamed)
{
  RecordingStorage storage = CompleteJob();
  storage.FailOn("GetCommandName(DRESP_, 1)");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), FailedOnDemand);
  EXPECT_THAT(CommandCounts(parfile),
              ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1", "DV_ 2", "DRESP_ 1"));
}

TEST(GyreParfileLoad, LeavesACommandOutWhoseOwnLoadFails)
{
  RecordingStorage storage = CompleteJob();
  storage.FailOn("GetValue(DV_, other, INITIAL_, 1, vtmDouble, double)");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), FailedOnDemand);
  EXPECT_TRUE(parfile.HasDV_("variable"));
  EXPECT_FALSE(parfile.HasDV_("other"));
  EXPECT_EQ(parfile.NumDV_(), 1U);
}

TEST(GyreParfileLoad, KeepsAllCommandsWhenTheSecondPassFails)
{
  RecordingStorage storage = CompleteJob();
  storage.FailOn("GetReference(ALGO_, algorithm, STOP_, 1)");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), FailedOnDemand);
  EXPECT_EQ(CommandCounts(parfile).size(), 25U);
}

TEST(GyreParfileLoad, AppendsASecondObjectForEveryCommandWhenItIsCalledTwice)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  DV_* const first = parfile.GetDV_()[0];
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_THAT(CommandCounts(parfile),
              ElementsAre("MODEL_ 2", "ELEMENT_GROUP_ 2", "FACE_GROUP_ 2", "NODE_GROUP_ 2", "DV_ 4", "DRESP_ 4",
                          "OPERATOR_ 4", "OBJ_FUNC_ 2", "CONSTRAINT_ 4", "CS_ 2", "DV_CONSTRAINT_ 4", "MONITOR_ 2",
                          "ALGO_ 2", "OPT_PARAM_ 2", "STOP_ 2", "MESH_SMOOTH_ 4", "FILTER_ 4", "PRE_PARAM_ 2",
                          "AS_TOPO_OC_ 2", "AS_TOPO_SENS_ 2", "AS_SHAPE_SENS_ 2", "FLOWPATHS_ 2", "OUTPUT_ 2",
                          "SCALING_CURVE_ 2", "SMOOTH_ 2"));
  EXPECT_EQ(parfile.GetDV_()[0], first);
  EXPECT_EQ(parfile.GetDV_()[2]->GetID_NAME_(), "variable");
  EXPECT_NE(parfile.GetDV_()[2], first);
}

TEST(GyreParfileLoad, MakesTheSingleGettersFailWithTheCountTwoWhenItIsCalledTwice)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_EQ(FailureOf([&] { parfile.GetMODEL_(); }),
            (Failure{"2 commands of type MODEL_ detected. Only one is expected.", "204046270608",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_EQ(FailureOf([&] { parfile.GetALGO_("algorithm"); }).message,
            "2 commands of type ALGO_ detected. Only one is expected.");
}

TEST(GyreParfileLoad, ReadsTheWholeStorageAgainWhenItIsCalledTwice)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const Calls first_pass = FirstPassOf(storage);
  storage.ForgetCalls();
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_EQ(FirstPassOf(storage), first_pass);
}

TEST(GyreParfileLoad, AppendsToWhatAFailedLoadLeft)
{
  RecordingStorage storage = JobWithCount("FLOWPATHS_", 0);
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  storage.Command("FLOWPATHS_", "paths");
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "2 commands of type OBJ_FUNC_ detected. Only one is expected.");
  EXPECT_EQ(parfile.NumDV_(), 4U);
  EXPECT_EQ(parfile.GetFLOWPATHS_().GetID_NAME_(), "paths");
}

TEST(GyreParfileLoad, CanBeRepeatedFromTheSameStorageInAnotherAggregate)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile one(storage);
  Gyre_Parfile other(storage);
  one.Load();
  other.Load();
  EXPECT_EQ(CommandCounts(one), CommandCounts(other));
  EXPECT_NE(&one.GetMODEL_(), &other.GetMODEL_());
  EXPECT_EQ(&other.GetALGO_().GetDV_(), &other.GetDV_("variable"));
}
