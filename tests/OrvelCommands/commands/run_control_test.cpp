#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

static_assert(kReturn<OPT_PARAM_, const std::string&, &OPT_PARAM_::GetType, &OPT_PARAM_::GetID_NAME_>);
static_assert(kReturn<OPT_PARAM_, bool, &OPT_PARAM_::HasSTORE_INT_, &OPT_PARAM_::HasSRC_SCALE_>);
static_assert(kReturn<OPT_PARAM_, const std::vector<int>&, &OPT_PARAM_::GetSTORE_INT_>);
static_assert(kReturn<OPT_PARAM_, const int&, &OPT_PARAM_::GetOPT_START_>);
static_assert(kReturn<OPT_PARAM_, const double&, &OPT_PARAM_::GetSRC_SCALE_>);

static_assert(kReturn<STOP_, const std::string&, &STOP_::GetType, &STOP_::GetID_NAME_>);
static_assert(kReturn<STOP_, const int&, &STOP_::GetITER_MAX_, &STOP_::GetITER_MIN_>);
static_assert(kReturn<STOP_, const double&, &STOP_::GetRESIDUAL_OBJ_, &STOP_::GetRESIDUAL_DV_>);

using Pre = PRE_PARAM_;
static_assert(kReturn<Pre, const std::string&, &Pre::GetType, &Pre::GetID_NAME_, &Pre::GetPATCH_ID_>);
static_assert(kReturn<Pre, const double&, &Pre::GetVISCOSITY_, &Pre::GetRESIDUAL_>);
static_assert(kReturn<Pre, const int&, &Pre::GetITER_MAX_, &Pre::GetBACKFLOW_ANGLE_>);
static_assert(kReturn<Pre, const Pre::Enum_PTRACK_PRI_VRML_&, &Pre::GetPTRACK_PRI_VRML_>);
static_assert(kReturn<Pre, const Pre::Enum_PTRACK_VAL_VRML_&, &Pre::GetPTRACK_VAL_VRML_>);
static_assert(kReturn<Pre, const Pre::Enum_REF_VRML_&, &Pre::GetREF_VRML_>);
static_assert(kReturn<Pre, const Pre::Enum_PTRACK_KEEP_INVALID_&, &Pre::GetPTRACK_KEEP_INVALID_>);
static_assert(kReturn<Pre, const Pre::Enum_PTRACK_VRML_ADD_BOUNDS_&, &Pre::GetPTRACK_VRML_ADD_BOUNDS_>);

namespace
{

RecordingStorage StorageWithSparseOptParam(const std::string& id)
{
  RecordingStorage storage;
  storage.Command("OPT_PARAM_", id)["OPT_START_"] = {7};
  return storage;
}

RecordingStorage StorageWithFullOptParam()
{
  RecordingStorage storage = StorageWithSparseOptParam("general");
  auto& keys = storage.Command("OPT_PARAM_", "general");
  keys["STORE_INT_"] = {std::vector<int>{5, -10, 15}};
  keys["SRC_SCALE_"] = {0.25};
  return storage;
}

OPT_PARAM_ FullOptParam()
{
  return LoadedAlone<OPT_PARAM_>(StorageWithFullOptParam(), "general");
}

const char* const kFullOptParamText = "m_ID_NAME_: general\n"
                                      "m_has_STORE_INT_: yes\n"
                                      "m_STORE_INT_: [\n5 -10 15]\n"
                                      "m_OPT_START_: 7\n"
                                      "m_has_SRC_SCALE_: yes\n"
                                      "m_SRC_SCALE_: 0.25\n";

void ExpectDefaults(const OPT_PARAM_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasSTORE_INT_());
  EXPECT_THAT(command.GetSTORE_INT_(), IsEmpty());
  EXPECT_EQ(command.GetOPT_START_(), 0);
  EXPECT_FALSE(command.HasSRC_SCALE_());
  EXPECT_EQ(command.GetSRC_SCALE_(), 0.0);
}

void ExpectFull(const OPT_PARAM_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "general");
  EXPECT_TRUE(command.HasSTORE_INT_());
  EXPECT_THAT(command.GetSTORE_INT_(), ElementsAre(5, -10, 15));
  EXPECT_EQ(command.GetOPT_START_(), 7);
  EXPECT_TRUE(command.HasSRC_SCALE_());
  EXPECT_EQ(command.GetSRC_SCALE_(), 0.25);
}

RecordingStorage StorageWithStop(const std::string& id)
{
  RecordingStorage storage;
  auto& keys = storage.Command("STOP_", id);
  keys["ITER_MAX_"] = {100};
  keys["ITER_MIN_"] = {20};
  keys["RESIDUAL_OBJ_"] = {0.001};
  keys["RESIDUAL_DV_"] = {0.002};
  return storage;
}

STOP_ FullStop()
{
  return LoadedAlone<STOP_>(StorageWithStop("limits"), "limits");
}

const char* const kFullStopText = "m_ID_NAME_: limits\n"
                                  "m_ITER_MAX_: 100\n"
                                  "m_ITER_MIN_: 20\n"
                                  "m_RESIDUAL_OBJ_: 0.001\n"
                                  "m_RESIDUAL_DV_: 0.002\n";

void ExpectDefaults(const STOP_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetITER_MAX_(), 0);
  EXPECT_EQ(command.GetITER_MIN_(), 0);
  EXPECT_EQ(command.GetRESIDUAL_OBJ_(), 0.0);
  EXPECT_EQ(command.GetRESIDUAL_DV_(), 0.0);
}

void ExpectFull(const STOP_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "limits");
  EXPECT_EQ(command.GetITER_MAX_(), 100);
  EXPECT_EQ(command.GetITER_MIN_(), 20);
  EXPECT_EQ(command.GetRESIDUAL_OBJ_(), 0.001);
  EXPECT_EQ(command.GetRESIDUAL_DV_(), 0.002);
}

RecordingStorage StorageWithPreParam()
{
  RecordingStorage storage;
  auto& keys = storage.Command("PRE_PARAM_", "flow");
  keys["PATCH_ID_"] = {std::string("inlet")};
  keys["VISCOSITY_"] = {0.015};
  keys["RESIDUAL_"] = {0.0625};
  keys["ITER_MAX_"] = {300};
  keys["BACKFLOW_ANGLE_"] = {85};
  keys["PTRACK_PRI_VRML_"] = {84};
  keys["PTRACK_VAL_VRML_"] = {70};
  keys["REF_VRML_"] = {84};
  keys["PTRACK_KEEP_INVALID_"] = {70};
  keys["PTRACK_VRML_ADD_BOUNDS_"] = {84};
  return storage;
}

PRE_PARAM_ FullPreParam()
{
  return LoadedAlone<PRE_PARAM_>(StorageWithPreParam(), "flow");
}

/// The parameters of the pre-processing of which one switch alone is given.
PRE_PARAM_ PreParamWithSwitch(const char* key, int number)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("PRE_PARAM_", "flow")[key] = {number};
  return LoadedAlone<PRE_PARAM_>(storage, "flow");
}

/// The five switches, in the order of their keys.
std::vector<int> SwitchesOf(const PRE_PARAM_& command)
{
  return {command.GetPTRACK_PRI_VRML_(), command.GetPTRACK_VAL_VRML_(), command.GetREF_VRML_(),
          command.GetPTRACK_KEEP_INVALID_(), command.GetPTRACK_VRML_ADD_BOUNDS_()};
}

const char* const kFullPreParamText = "m_ID_NAME_: flow\n"
                                      "m_PATCH_ID_: inlet\n"
                                      "m_VISCOSITY_: 0.015\n"
                                      "m_RESIDUAL_: 0.0625\n"
                                      "m_ITER_MAX_: 300\n"
                                      "m_BACKFLOW_ANGLE_: 85\n"
                                      "m_PTRACK_PRI_VRML_: YES\n"
                                      "m_PTRACK_VAL_VRML_: NO\n"
                                      "m_REF_VRML_: YES\n"
                                      "m_PTRACK_KEEP_INVALID_: NO\n"
                                      "m_PTRACK_VRML_ADD_BOUNDS_: YES\n";

void ExpectDefaults(const PRE_PARAM_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetVISCOSITY_(), 0.0);
  EXPECT_EQ(command.GetRESIDUAL_(), 0.0);
  EXPECT_EQ(command.GetITER_MAX_(), 0);
  EXPECT_EQ(command.GetBACKFLOW_ANGLE_(), 0);
  EXPECT_EQ(command.GetPTRACK_PRI_VRML_(), 0);
  EXPECT_EQ(command.GetPTRACK_VAL_VRML_(), 0);
  EXPECT_EQ(command.GetREF_VRML_(), 0);
  EXPECT_EQ(command.GetPTRACK_KEEP_INVALID_(), 0);
  EXPECT_EQ(command.GetPTRACK_VRML_ADD_BOUNDS_(), 0);
}

void ExpectFull(const PRE_PARAM_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "flow");
  EXPECT_EQ(command.GetPATCH_ID_(), "inlet");
  EXPECT_EQ(command.GetVISCOSITY_(), 0.015);
  EXPECT_EQ(command.GetRESIDUAL_(), 0.0625);
  EXPECT_EQ(command.GetITER_MAX_(), 300);
  EXPECT_EQ(command.GetBACKFLOW_ANGLE_(), 85);
  EXPECT_EQ(command.GetPTRACK_PRI_VRML_(), PRE_PARAM_::PTRACK_PRI_VRML_YES);
  EXPECT_EQ(command.GetPTRACK_VAL_VRML_(), PRE_PARAM_::PTRACK_VAL_VRML_NO);
  EXPECT_EQ(command.GetREF_VRML_(), PRE_PARAM_::REF_VRML_YES);
  EXPECT_EQ(command.GetPTRACK_KEEP_INVALID_(), PRE_PARAM_::PTRACK_KEEP_INVALID_NO);
  EXPECT_EQ(command.GetPTRACK_VRML_ADD_BOUNDS_(), PRE_PARAM_::PTRACK_VRML_ADD_BOUNDS_YES);
}

}  // namespace

TEST(OptParam, TellsItsNames)
{
  EXPECT_STREQ(OPT_PARAM_::COMMAND_NAME, "OPT_PARAM");
  EXPECT_EQ(OPT_PARAM_::s_type, "OPT_PARAM_");
  EXPECT_EQ(OPT_PARAM_().GetType(), "OPT_PARAM_");
  EXPECT_EQ(&OPT_PARAM_().GetType(), &OPT_PARAM_::s_type);
}

TEST(OptParam, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(OPT_PARAM_());
}

TEST(OptParam, LoadsItsKeysInOrderAndItsListInOnePiece)
{
  const RecordingStorage storage = StorageWithFullOptParam();
  LoadedAlone<OPT_PARAM_>(storage, "general");
  EXPECT_THAT(storage.Calls(), ElementsAre("HasElement(OPT_PARAM_, general, STORE_INT_)",
                                           "GetValue(OPT_PARAM_, general, STORE_INT_, 1, vtmIntegerList, vector<int>)",
                                           "GetValue(OPT_PARAM_, general, OPT_START_, 1, vtmInteger, int)",
                                           "HasElement(OPT_PARAM_, general, SRC_SCALE_)",
                                           "GetValue(OPT_PARAM_, general, SRC_SCALE_, 1, vtmDouble, double)"));
}

TEST(OptParam, DoesNotReadOptionalKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithSparseOptParam("bare");
  LoadedAlone<OPT_PARAM_>(storage, "bare");
  EXPECT_THAT(storage.Calls(), ElementsAre("HasElement(OPT_PARAM_, bare, STORE_INT_)",
                                           "GetValue(OPT_PARAM_, bare, OPT_START_, 1, vtmInteger, int)",
                                           "HasElement(OPT_PARAM_, bare, SRC_SCALE_)"));
}

TEST(OptParam, GivesWhatItLoaded)
{
  ExpectFull(FullOptParam());
}

TEST(OptParam, PrintsNoForAnAbsentListAndNoListAtAll)
{
  const OPT_PARAM_ command = LoadedAlone<OPT_PARAM_>(StorageWithSparseOptParam("bare"), "bare");
  EXPECT_FALSE(command.HasSTORE_INT_());
  EXPECT_EQ(LogRecordOf(command).text, "m_ID_NAME_: bare\n"
                                       "m_has_STORE_INT_: no\n"
                                       "m_OPT_START_: 7\n"
                                       "m_has_SRC_SCALE_: no\n");
}

TEST(OptParam, TellsAnEmptyListFromAnAbsentOne)
{
  RecordingStorage storage = StorageWithSparseOptParam("general");
  storage.Command("OPT_PARAM_", "general")["STORE_INT_"] = {std::vector<int>()};
  const OPT_PARAM_ command = LoadedAlone<OPT_PARAM_>(storage, "general");
  EXPECT_TRUE(command.HasSTORE_INT_());
  EXPECT_THAT(command.GetSTORE_INT_(), IsEmpty());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_has_STORE_INT_: yes\nm_STORE_INT_: [\n]\nm_OPT_START_: 7\n"));
}

TEST(OptParam, ReadsTheFirstOfSeveralLists)
{
  RecordingStorage storage = StorageWithSparseOptParam("general");
  storage.Command("OPT_PARAM_", "general")["STORE_INT_"] = {std::vector<int>{1, 2}, std::vector<int>{3}};
  EXPECT_THAT(LoadedAlone<OPT_PARAM_>(storage, "general").GetSTORE_INT_(), ElementsAre(1, 2));
}

TEST(OptParam, TakesTheWholeListAnewInASecondLoad)
{
  RecordingStorage storage = StorageWithFullOptParam();
  OPT_PARAM_ command = LoadedAlone<OPT_PARAM_>(storage, "general");
  storage.Command("OPT_PARAM_", "general")["STORE_INT_"] = {std::vector<int>{8}};
  command.Load(storage, "general");
  EXPECT_THAT(command.GetSTORE_INT_(), ElementsAre(8));
}

TEST(OptParam, KeepsEarlierOptionalValuesInASecondLoadWithoutThem)
{
  OPT_PARAM_ command = FullOptParam();
  command.Load(StorageWithSparseOptParam("bare"), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_FALSE(command.HasSTORE_INT_());
  EXPECT_THAT(command.GetSTORE_INT_(), ElementsAre(5, -10, 15));
  EXPECT_FALSE(command.HasSRC_SCALE_());
  EXPECT_EQ(command.GetSRC_SCALE_(), 0.25);
}

TEST(OptParam, DependsOnItsStartOnAStorageThatFailsWithoutIt)
{
  RecordingStorage storage = StorageWithFullOptParam();
  storage.Command("OPT_PARAM_", "general").erase("OPT_START_");
  OPT_PARAM_ command;
  EXPECT_THROW(command.Load(storage, "general"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "general");
  EXPECT_THAT(command.GetSTORE_INT_(), ElementsAre(5, -10, 15));
  EXPECT_FALSE(command.HasSRC_SCALE_());
}

TEST(OptParam, KeepsTheDefaultsOfAbsentKeysOnAStorageThatLeavesOutputsAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  ExpectDefaults(LoadedAlone<OPT_PARAM_>(storage, ""));
}

TEST(OptParam, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(OPT_PARAM_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3628);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|OPT_PARAM_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \nm_has_STORE_INT_: no\nm_OPT_START_: 0\nm_has_SRC_SCALE_: no\n");
}

TEST(OptParam, PrintsAllItHoldsWithoutACountForItsList)
{
  LinkedJob job(StorageWithFullOptParam());
  const KLV_LogRecord record = LogRecordOf(job->GetOPT_PARAM_("general"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3628 [%T|%n|%P|OrvelCommands|OPT_PARAM_] ");
  EXPECT_EQ(record.text, kFullOptParamText);
}

TEST(OptParam, IsNotAskedForReferencesWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithFullOptParam());
  EXPECT_EQ(job.CallsAbout("OPT_PARAM_", "general").size(), 5U);
}

TEST(OptParam, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullOptParam();
  OPT_PARAM_ command = LoadedAlone<OPT_PARAM_>(storage, "general");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "general"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(OptParam, CopiesItsValues)
{
  OPT_PARAM_ original = FullOptParam();
  const OPT_PARAM_ copy(original);
  original = OPT_PARAM_();
  ExpectFull(copy);
}

TEST(OptParam, TakesAllValuesOfAnotherOne)
{
  const OPT_PARAM_ full = FullOptParam();
  OPT_PARAM_ command;
  static_assert(std::is_same_v<OPT_PARAM_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFull(command);
  command = OPT_PARAM_();
  ExpectDefaults(command);
}

TEST(OptParam, KeepsItsValuesWhenItIsAssignedToItself)
{
  OPT_PARAM_ command = FullOptParam();
  const OPT_PARAM_& same = command;
  command = same;
  ExpectFull(command);
}

TEST(Stop, TellsItsNames)
{
  EXPECT_STREQ(STOP_::COMMAND_NAME, "STOP");
  EXPECT_EQ(STOP_::s_type, "STOP_");
  EXPECT_EQ(STOP_().GetType(), "STOP_");
  EXPECT_EQ(&STOP_().GetType(), &STOP_::s_type);
}

TEST(Stop, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(STOP_());
}

TEST(Stop, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithStop("limits");
  LoadedAlone<STOP_>(storage, "limits");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(STOP_, limits, ITER_MAX_, 1, vtmInteger, int)",
                                           "GetValue(STOP_, limits, ITER_MIN_, 1, vtmInteger, int)",
                                           "GetValue(STOP_, limits, RESIDUAL_OBJ_, 1, vtmDouble, double)",
                                           "GetValue(STOP_, limits, RESIDUAL_DV_, 1, vtmDouble, double)"));
}

TEST(Stop, AsksForTheSameKeysWhereAllAreAbsentAndKeepsItsDefaults)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  ExpectDefaults(LoadedAlone<STOP_>(storage, ""));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(STOP_, , ITER_MAX_, 1, vtmInteger, int)",
                                           "GetValue(STOP_, , ITER_MIN_, 1, vtmInteger, int)",
                                           "GetValue(STOP_, , RESIDUAL_OBJ_, 1, vtmDouble, double)",
                                           "GetValue(STOP_, , RESIDUAL_DV_, 1, vtmDouble, double)"));
}

TEST(Stop, GivesWhatItLoaded)
{
  ExpectFull(FullStop());
}

TEST(Stop, LoadsALeastNumberOfIterationsAboveTheGreatest)
{
  RecordingStorage storage = StorageWithStop("limits");
  storage.Command("STOP_", "limits")["ITER_MIN_"] = {101};
  const STOP_ command = LoadedAlone<STOP_>(storage, "limits");
  EXPECT_EQ(command.GetITER_MAX_(), 100);
  EXPECT_EQ(command.GetITER_MIN_(), 101);
}

TEST(Stop, DependsOnItsKeysOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithStop("limits");
  storage.Command("STOP_", "limits").erase("RESIDUAL_OBJ_");
  STOP_ command;
  EXPECT_THROW(command.Load(storage, "limits"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "limits");
  EXPECT_EQ(command.GetITER_MAX_(), 100);
  EXPECT_EQ(command.GetITER_MIN_(), 20);
  EXPECT_EQ(command.GetRESIDUAL_OBJ_(), 0.0);
  EXPECT_EQ(command.GetRESIDUAL_DV_(), 0.0);
}

TEST(Stop, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(STOP_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3711);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|STOP_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_ITER_MAX_: 0\n"
                         "m_ITER_MIN_: 0\n"
                         "m_RESIDUAL_OBJ_: 0\n"
                         "m_RESIDUAL_DV_: 0\n");
}

TEST(Stop, PrintsAllItHoldsAsPartOfAJob)
{
  LinkedJob job(StorageWithStop("limits"));
  const KLV_LogRecord record = LogRecordOf(job->GetSTOP_("limits"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3711 [%T|%n|%P|OrvelCommands|STOP_] ");
  EXPECT_EQ(record.text, kFullStopText);
}

TEST(Stop, PrintsATextOf1023CharactersWholeAndCutsTheEndOfALongerOne)
{
  // All but the id are 91 characters.
  const std::string longest_id(932, 'x');
  const std::string whole = "m_ID_NAME_: " + longest_id +
                            "\n"
                            "m_ITER_MAX_: 100\n"
                            "m_ITER_MIN_: 20\n"
                            "m_RESIDUAL_OBJ_: 0.001\n"
                            "m_RESIDUAL_DV_: 0.002\n";
  ASSERT_EQ(whole.size(), 1023U);
  EXPECT_EQ(LogRecordOf(LoadedAlone<STOP_>(StorageWithStop(longest_id), longest_id)).text, whole);

  const std::string longer_id = longest_id + "yz";
  const std::string cut = "m_ID_NAME_: " + longer_id +
                          "\n"
                          "m_ITER_MAX_: 100\n"
                          "m_ITER_MIN_: 20\n"
                          "m_RESIDUAL_OBJ_: 0.001\n"
                          "m_RESIDUAL_DV_: 0.00";
  ASSERT_EQ(cut.size(), 1023U);
  EXPECT_EQ(LogRecordOf(LoadedAlone<STOP_>(StorageWithStop(longer_id), longer_id)).text, cut);
}

TEST(Stop, PrintsAPercentSignInItsIdAsAConversion)
{
  EXPECT_THAT(LogRecordOf(LoadedAlone<STOP_>(StorageWithStop("at %d%%"), "at %d%%")).text,
              StartsWith("m_ID_NAME_: at 0%\nm_ITER_MAX_: 100\n"));
}

TEST(Stop, IsNotAskedForReferencesWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithStop("limits"));
  EXPECT_EQ(job.CallsAbout("STOP_", "limits").size(), 4U);
}

TEST(Stop, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithStop("limits");
  STOP_ command = LoadedAlone<STOP_>(storage, "limits");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "limits"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Stop, CopiesItsValues)
{
  STOP_ original = FullStop();
  const STOP_ copy(original);
  original = STOP_();
  ExpectFull(copy);
}

TEST(Stop, TakesAllValuesOfAnotherOne)
{
  const STOP_ full = FullStop();
  STOP_ command;
  static_assert(std::is_same_v<STOP_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFull(command);
  command = STOP_();
  ExpectDefaults(command);
}

TEST(Stop, KeepsItsValuesWhenItIsAssignedToItself)
{
  STOP_ command = FullStop();
  const STOP_& same = command;
  command = same;
  ExpectFull(command);
}

TEST(PreParam, TellsItsNames)
{
  EXPECT_STREQ(PRE_PARAM_::COMMAND_NAME, "PRE_PARAM");
  EXPECT_EQ(PRE_PARAM_::s_type, "PRE_PARAM_");
  EXPECT_EQ(PRE_PARAM_().GetType(), "PRE_PARAM_");
  EXPECT_EQ(&PRE_PARAM_().GetType(), &PRE_PARAM_::s_type);
}

TEST(PreParam, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(PRE_PARAM_());
}

TEST(PreParam, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithPreParam();
  LoadedAlone<PRE_PARAM_>(storage, "flow");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(PRE_PARAM_, flow, PATCH_ID_, 1, vtmString, string)",
                                           "GetValue(PRE_PARAM_, flow, VISCOSITY_, 1, vtmDouble, double)",
                                           "GetValue(PRE_PARAM_, flow, RESIDUAL_, 1, vtmDouble, double)",
                                           "GetValue(PRE_PARAM_, flow, ITER_MAX_, 1, vtmInteger, int)",
                                           "GetValue(PRE_PARAM_, flow, BACKFLOW_ANGLE_, 1, vtmInteger, int)",
                                           "GetEnumValue(PRE_PARAM_, flow, PTRACK_PRI_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, flow, PTRACK_VAL_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, flow, REF_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, flow, PTRACK_KEEP_INVALID_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, flow, PTRACK_VRML_ADD_BOUNDS_, 1, vtmEnum)"));
}

TEST(PreParam, AsksForTheSameKeysWhereAllAreAbsentAndKeepsItsDefaults)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  ExpectDefaults(LoadedAlone<PRE_PARAM_>(storage, ""));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(PRE_PARAM_, , PATCH_ID_, 1, vtmString, string)",
                                           "GetValue(PRE_PARAM_, , VISCOSITY_, 1, vtmDouble, double)",
                                           "GetValue(PRE_PARAM_, , RESIDUAL_, 1, vtmDouble, double)",
                                           "GetValue(PRE_PARAM_, , ITER_MAX_, 1, vtmInteger, int)",
                                           "GetValue(PRE_PARAM_, , BACKFLOW_ANGLE_, 1, vtmInteger, int)",
                                           "GetEnumValue(PRE_PARAM_, , PTRACK_PRI_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, , PTRACK_VAL_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, , REF_VRML_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, , PTRACK_KEEP_INVALID_, 1, vtmEnum)",
                                           "GetEnumValue(PRE_PARAM_, , PTRACK_VRML_ADD_BOUNDS_, 1, vtmEnum)"));
}

TEST(PreParam, GivesWhatItLoaded)
{
  ExpectFull(FullPreParam());
}

TEST(PreParam, KeepsItsFiveSwitchesApart)
{
  EXPECT_THAT(SwitchesOf(PreParamWithSwitch("PTRACK_PRI_VRML_", 84)), ElementsAre(84, 0, 0, 0, 0));
  EXPECT_THAT(SwitchesOf(PreParamWithSwitch("PTRACK_VAL_VRML_", 84)), ElementsAre(0, 84, 0, 0, 0));
  EXPECT_THAT(SwitchesOf(PreParamWithSwitch("REF_VRML_", 84)), ElementsAre(0, 0, 84, 0, 0));
  EXPECT_THAT(SwitchesOf(PreParamWithSwitch("PTRACK_KEEP_INVALID_", 84)), ElementsAre(0, 0, 0, 84, 0));
  EXPECT_THAT(SwitchesOf(PreParamWithSwitch("PTRACK_VRML_ADD_BOUNDS_", 84)), ElementsAre(0, 0, 0, 0, 84));
}

TEST(PreParam, PrintsItsFiveSwitchesApart)
{
  const auto text_with = [](const char* key) { return LogRecordOf(PreParamWithSwitch(key, 70)).text; };
  EXPECT_THAT(text_with("PTRACK_PRI_VRML_"), HasSubstr("m_PTRACK_PRI_VRML_: NO\nm_PTRACK_VAL_VRML_: INVALID\n"));
  EXPECT_THAT(text_with("PTRACK_VAL_VRML_"), HasSubstr("m_PTRACK_VAL_VRML_: NO\nm_REF_VRML_: INVALID\n"));
  EXPECT_THAT(text_with("REF_VRML_"), HasSubstr("m_REF_VRML_: NO\nm_PTRACK_KEEP_INVALID_: INVALID\n"));
  EXPECT_THAT(text_with("PTRACK_KEEP_INVALID_"),
              HasSubstr("m_PTRACK_KEEP_INVALID_: NO\nm_PTRACK_VRML_ADD_BOUNDS_: INVALID\n"));
  EXPECT_THAT(text_with("PTRACK_VRML_ADD_BOUNDS_"),
              HasSubstr("m_PTRACK_KEEP_INVALID_: INVALID\nm_PTRACK_VRML_ADD_BOUNDS_: NO\n"));
}

TEST(PreParam, NamesYesAndNoOfItsFiveSwitches)
{
  ExpectEnumerators<PRE_PARAM_, PRE_PARAM_::Enum_PTRACK_PRI_VRML_>(
    {{PRE_PARAM_::PTRACK_PRI_VRML_NO, 70, "NO"}, {PRE_PARAM_::PTRACK_PRI_VRML_YES, 84, "YES"}});
  ExpectEnumerators<PRE_PARAM_, PRE_PARAM_::Enum_PTRACK_VAL_VRML_>(
    {{PRE_PARAM_::PTRACK_VAL_VRML_NO, 70, "NO"}, {PRE_PARAM_::PTRACK_VAL_VRML_YES, 84, "YES"}});
  ExpectEnumerators<PRE_PARAM_, PRE_PARAM_::Enum_REF_VRML_>(
    {{PRE_PARAM_::REF_VRML_NO, 70, "NO"}, {PRE_PARAM_::REF_VRML_YES, 84, "YES"}});
  ExpectEnumerators<PRE_PARAM_, PRE_PARAM_::Enum_PTRACK_KEEP_INVALID_>(
    {{PRE_PARAM_::PTRACK_KEEP_INVALID_NO, 70, "NO"}, {PRE_PARAM_::PTRACK_KEEP_INVALID_YES, 84, "YES"}});
  ExpectEnumerators<PRE_PARAM_, PRE_PARAM_::Enum_PTRACK_VRML_ADD_BOUNDS_>(
    {{PRE_PARAM_::PTRACK_VRML_ADD_BOUNDS_NO, 70, "NO"}, {PRE_PARAM_::PTRACK_VRML_ADD_BOUNDS_YES, 84, "YES"}});
}

TEST(PreParam, PrintsYesForTheLetterTAndNoForFAndInvalidForTheLettersOfDvConstraint)
{
  const auto text_of = [](int number) { return LogRecordOf(PreParamWithSwitch("REF_VRML_", number)).text; };
  EXPECT_THAT(text_of('T'), HasSubstr("m_REF_VRML_: YES\n"));
  EXPECT_THAT(text_of('F'), HasSubstr("m_REF_VRML_: NO\n"));
  EXPECT_THAT(text_of('Y'), HasSubstr("m_REF_VRML_: INVALID\n"));
  EXPECT_THAT(text_of('N'), HasSubstr("m_REF_VRML_: INVALID\n"));
}

TEST(PreParam, KeepsASwitchThatIsNoEnumerator)
{
  EXPECT_EQ(PreParamWithSwitch("PTRACK_KEEP_INVALID_", 89).GetPTRACK_KEEP_INVALID_(), 89);
}

TEST(PreParam, DependsOnItsKeysOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithPreParam();
  storage.Command("PRE_PARAM_", "flow").erase("REF_VRML_");
  PRE_PARAM_ command;
  EXPECT_THROW(command.Load(storage, "flow"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "flow");
  EXPECT_EQ(command.GetBACKFLOW_ANGLE_(), 85);
  EXPECT_THAT(SwitchesOf(command), ElementsAre(84, 70, 0, 0, 0));
}

TEST(PreParam, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(PRE_PARAM_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 4570);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|PRE_PARAM_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_VISCOSITY_: 0\n"
                         "m_RESIDUAL_: 0\n"
                         "m_ITER_MAX_: 0\n"
                         "m_BACKFLOW_ANGLE_: 0\n"
                         "m_PTRACK_PRI_VRML_: INVALID\n"
                         "m_PTRACK_VAL_VRML_: INVALID\n"
                         "m_REF_VRML_: INVALID\n"
                         "m_PTRACK_KEEP_INVALID_: INVALID\n"
                         "m_PTRACK_VRML_ADD_BOUNDS_: INVALID\n");
}

TEST(PreParam, PrintsAllItHoldsAsPartOfAJob)
{
  LinkedJob job(StorageWithPreParam());
  const KLV_LogRecord record = LogRecordOf(job->GetPRE_PARAM_("flow"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:4570 [%T|%n|%P|OrvelCommands|PRE_PARAM_] ");
  EXPECT_EQ(record.text, kFullPreParamText);
}

TEST(PreParam, PrintsAPercentSignInItsPatchAsAConversion)
{
  RecordingStorage storage = StorageWithPreParam();
  storage.Command("PRE_PARAM_", "flow")["PATCH_ID_"] = {std::string("inlet %d%s%%")};
  const PRE_PARAM_ command = LoadedAlone<PRE_PARAM_>(storage, "flow");
  EXPECT_EQ(command.GetPATCH_ID_(), "inlet %d%s%%");
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_PATCH_ID_: inlet 0%\nm_VISCOSITY_: 0.015\n"));
}

TEST(PreParam, IsNotAskedForReferencesWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithPreParam());
  EXPECT_EQ(job.CallsAbout("PRE_PARAM_", "flow").size(), 10U);
}

TEST(PreParam, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithPreParam();
  PRE_PARAM_ command = LoadedAlone<PRE_PARAM_>(storage, "flow");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "flow"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(PreParam, CopiesItsValues)
{
  PRE_PARAM_ original = FullPreParam();
  const PRE_PARAM_ copy(original);
  original = PRE_PARAM_();
  ExpectFull(copy);
}

TEST(PreParam, TakesAllValuesOfAnotherOne)
{
  const PRE_PARAM_ full = FullPreParam();
  PRE_PARAM_ command;
  static_assert(std::is_same_v<PRE_PARAM_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFull(command);
  command = PRE_PARAM_();
  ExpectDefaults(command);
}

TEST(PreParam, KeepsItsValuesWhenItIsAssignedToItself)
{
  PRE_PARAM_ command = FullPreParam();
  const PRE_PARAM_& same = command;
  command = same;
  ExpectFull(command);
}
