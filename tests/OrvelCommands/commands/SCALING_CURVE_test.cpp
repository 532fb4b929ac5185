#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <type_traits>
#include <utility>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static_assert(
  std::is_same_v<decltype(std::declval<const SCALING_CURVE_&>().GetTYPE_()), const SCALING_CURVE_::Enum_TYPE_&>);
static_assert(std::is_same_v<decltype(std::declval<const SCALING_CURVE_&>().GetDATA_SHIFT_()), const double&>);
static_assert(std::is_same_v<decltype(std::declval<const SCALING_CURVE_&>().GetUPDATE_ID_()), const std::string&>);

namespace
{

void AddFullCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("SCALING_CURVE_", "ramp");
  keys["TYPE_"] = {83};
  keys["UPDATE_ID_"] = {std::string("each")};
  keys["MIN_"] = {-0.75};
  keys["MAX_"] = {1e6};
  keys["PENALISATION_"] = {3.0};
  keys["DATA_SHIFT_"] = {0.1};
}

SCALING_CURVE_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<SCALING_CURVE_>(storage, "ramp");
}

const char* const kFullText = "m_ID_NAME_: ramp\n"
                              "m_TYPE_: SIN\n"
                              "m_UPDATE_ID_: each\n"
                              "m_MIN_: -0.75\n"
                              "m_MAX_: 1e+06\n"
                              "m_PENALISATION_: 3\n"
                              "m_DATA_SHIFT_: 0.1\n";

void ExpectDefaults(const SCALING_CURVE_& command)
{
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetUPDATE_ID_(), "");
  EXPECT_EQ(command.GetMIN_(), 0.0);
  EXPECT_EQ(command.GetMAX_(), 0.0);
  EXPECT_EQ(command.GetPENALISATION_(), 0.0);
  EXPECT_EQ(command.GetDATA_SHIFT_(), 0.0);
}

void ExpectFull(const SCALING_CURVE_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "ramp");
  EXPECT_EQ(command.GetTYPE_(), SCALING_CURVE_::TYPE_SIN);
  EXPECT_EQ(command.GetUPDATE_ID_(), "each");
  EXPECT_EQ(command.GetMIN_(), -0.75);
  EXPECT_EQ(command.GetMAX_(), 1e6);
  EXPECT_EQ(command.GetPENALISATION_(), 3.0);
  EXPECT_EQ(command.GetDATA_SHIFT_(), 0.1);
}

}  // namespace

TEST(ScalingCurve, TellsItsNames)
{
  EXPECT_STREQ(SCALING_CURVE_::COMMAND_NAME, "SCALING_CURVE");
  EXPECT_EQ(SCALING_CURVE_::s_type, "SCALING_CURVE_");
  EXPECT_EQ(SCALING_CURVE_().GetType(), "SCALING_CURVE_");
}

TEST(ScalingCurve, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const SCALING_CURVE_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &SCALING_CURVE_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "ramp");
}

TEST(ScalingCurve, IsEmptyBeforeItIsLoaded)
{
  const SCALING_CURVE_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(ScalingCurve, LoadsAllItsKeysInOrderWithoutAskingForThem)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<SCALING_CURVE_>(storage, "ramp");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(SCALING_CURVE_, ramp, TYPE_, 1, vtmEnum)",
                                           "GetValue(SCALING_CURVE_, ramp, UPDATE_ID_, 1, vtmString, string)",
                                           "GetValue(SCALING_CURVE_, ramp, MIN_, 1, vtmDouble, double)",
                                           "GetValue(SCALING_CURVE_, ramp, MAX_, 1, vtmDouble, double)",
                                           "GetValue(SCALING_CURVE_, ramp, PENALISATION_, 1, vtmDouble, double)",
                                           "GetValue(SCALING_CURVE_, ramp, DATA_SHIFT_, 1, vtmDouble, double)"));
}

TEST(ScalingCurve, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("SCALING_CURVE_", "bare");
  const auto command = LoadedAlone<SCALING_CURVE_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
  EXPECT_EQ(storage.Calls().size(), 6U);
}

TEST(ScalingCurve, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("SCALING_CURVE_", "ramp").erase("MAX_");
  SCALING_CURVE_ command;
  EXPECT_THROW(command.Load(storage, "ramp"), AbsentFromStorage);
  EXPECT_EQ(command.GetMIN_(), -0.75);
  EXPECT_EQ(command.GetMAX_(), 0.0);
  EXPECT_EQ(command.GetPENALISATION_(), 0.0);
}

TEST(ScalingCurve, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(ScalingCurve, NamesItsTypes)
{
  ExpectEnumerators<SCALING_CURVE_, SCALING_CURVE_::Enum_TYPE_>({{SCALING_CURVE_::TYPE_HEAVYSIDE, 72, "HEAVYSIDE"},
                                                                 {SCALING_CURVE_::TYPE_LINEAR, 73, "LINEAR"},
                                                                 {SCALING_CURVE_::TYPE_LOG, 76, "LOG"},
                                                                 {SCALING_CURVE_::TYPE_SIN, 83, "SIN"},
                                                                 {SCALING_CURVE_::TYPE_CONVEX, 88, "CONVEX"}});
}

TEST(ScalingCurve, PrintsTheHeavysideThatTheAlgorithmSettingsDoNotKnow)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("SCALING_CURVE_", "ramp")["TYPE_"] = {72};
  EXPECT_THAT(LogRecordOf(LoadedAlone<SCALING_CURVE_>(storage, "ramp")).text, HasSubstr("\nm_TYPE_: HEAVYSIDE\n"));
}

TEST(ScalingCurve, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(SCALING_CURVE_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5971);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|SCALING_CURVE_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_TYPE_: INVALID\n"
                         "m_UPDATE_ID_: \n"
                         "m_MIN_: 0\n"
                         "m_MAX_: 0\n"
                         "m_PENALISATION_: 0\n"
                         "m_DATA_SHIFT_: 0\n");
}

TEST(ScalingCurve, PrintsAllItHoldsWithinAJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetSCALING_CURVE_("ramp"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5971);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|SCALING_CURVE_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(ScalingCurve, TakesAPercentSignInAValueAsAConversion)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("SCALING_CURVE_", "ramp")["UPDATE_ID_"] = {std::string("50%% <%d>")};
  EXPECT_THAT(LogRecordOf(LoadedAlone<SCALING_CURVE_>(storage, "ramp")).text, HasSubstr("\nm_UPDATE_ID_: 50% <0>\n"));
}

TEST(ScalingCurve, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("SCALING_CURVE_", "ramp")["UPDATE_ID_"] = {std::string(1100, 'u')};
  EXPECT_EQ(LogRecordOf(LoadedAlone<SCALING_CURVE_>(storage, "ramp")).text,
            "m_ID_NAME_: ramp\nm_TYPE_: SIN\nm_UPDATE_ID_: " + std::string(979, 'u'));
}

TEST(ScalingCurve, HasNoModelIdsToCheck)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<SCALING_CURVE_>(storage, "ramp");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "ramp"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(ScalingCurve, CopiesEveryMember)
{
  const SCALING_CURVE_ original = FullCommand();
  const SCALING_CURVE_ copy(original);
  ExpectFull(copy);
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(ScalingCurve, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const SCALING_CURVE_ original = FullCommand();
  SCALING_CURVE_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const SCALING_CURVE_& itself = other;
  other = itself;
  ExpectFull(other);
  other = SCALING_CURVE_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}
