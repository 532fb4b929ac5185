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
using testing::IsEmpty;

static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_OC_&>().GetBT_()), const double&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_OC_&>().GetPATCH_ID_()), const std::string&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_OC_&>().GetSCALING_CURVE_TYPE_()),
                             const AS_TOPO_OC_::Enum_SCALING_CURVE_TYPE_&>);
static_assert(sizeof(AS_TOPO_OC_::Enum_SCALING_CURVE_TYPE_) == 4);
static_assert(std::is_base_of_v<OrvelCommand, AS_TOPO_OC_> && std::has_virtual_destructor_v<AS_TOPO_OC_>);

namespace
{

void AddFullCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("AS_TOPO_OC_", "criteria");
  keys["PATCH_ID_"] = {std::string("casing")};
  keys["BT_"] = {0.25};
  keys["TA_MIN_"] = {0.001};
  keys["TA_MAX_"] = {1.5};
  keys["SCALING_CURVE_TYPE_"] = {88};
  keys["SCALING_CURVE_UPDATE_ID_"] = {std::string("ramp")};
  keys["SCALING_CURVE_MIN_"] = {-2.0};
  keys["SCALING_CURVE_MAX_"] = {40.0};
  keys["SCALING_CURVE_PENALISATION_"] = {3.5};
}

AS_TOPO_OC_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<AS_TOPO_OC_>(storage, "criteria");
}

const char* const kFullText = "m_ID_NAME_: criteria\n"
                              "m_PATCH_ID_: casing\n"
                              "m_BT_: 0.25\n"
                              "m_TA_MIN_: 0.001\n"
                              "m_TA_MAX_: 1.5\n"
                              "m_SCALING_CURVE_TYPE_: CONVEX\n"
                              "m_SCALING_CURVE_UPDATE_ID_: ramp\n"
                              "m_SCALING_CURVE_MIN_: -2\n"
                              "m_SCALING_CURVE_MAX_: 40\n"
                              "m_SCALING_CURVE_PENALISATION_: 3.5\n";

void ExpectDefaults(const AS_TOPO_OC_& command)
{
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetBT_(), 0.0);
  EXPECT_EQ(command.GetTA_MIN_(), 0.0);
  EXPECT_EQ(command.GetTA_MAX_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), 0);
  EXPECT_EQ(command.GetSCALING_CURVE_UPDATE_ID_(), "");
  EXPECT_EQ(command.GetSCALING_CURVE_MIN_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_MAX_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), 0.0);
}

void ExpectFull(const AS_TOPO_OC_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "criteria");
  EXPECT_EQ(command.GetPATCH_ID_(), "casing");
  EXPECT_EQ(command.GetBT_(), 0.25);
  EXPECT_EQ(command.GetTA_MIN_(), 0.001);
  EXPECT_EQ(command.GetTA_MAX_(), 1.5);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), AS_TOPO_OC_::SCALING_CURVE_TYPE_CONVEX);
  EXPECT_EQ(command.GetSCALING_CURVE_UPDATE_ID_(), "ramp");
  EXPECT_EQ(command.GetSCALING_CURVE_MIN_(), -2.0);
  EXPECT_EQ(command.GetSCALING_CURVE_MAX_(), 40.0);
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), 3.5);
}

}  // namespace

TEST(AsTopoOc, TellsItsNames)
{
  EXPECT_STREQ(AS_TOPO_OC_::COMMAND_NAME, "ALGO_SET_TOPO_OC");
  EXPECT_EQ(AS_TOPO_OC_::s_type, "AS_TOPO_OC_");
  EXPECT_EQ(AS_TOPO_OC_().GetType(), "AS_TOPO_OC_");
}

TEST(AsTopoOc, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const AS_TOPO_OC_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &AS_TOPO_OC_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "criteria");
}

TEST(AsTopoOc, IsEmptyBeforeItIsLoaded)
{
  const AS_TOPO_OC_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(AsTopoOc, LoadsAllItsKeysInOrderWithoutAskingForThem)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<AS_TOPO_OC_>(storage, "criteria");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetValue(AS_TOPO_OC_, criteria, PATCH_ID_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_OC_, criteria, BT_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_OC_, criteria, TA_MIN_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_OC_, criteria, TA_MAX_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_TOPO_OC_, criteria, SCALING_CURVE_TYPE_, 1, vtmEnum)",
                          "GetValue(AS_TOPO_OC_, criteria, SCALING_CURVE_UPDATE_ID_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_OC_, criteria, SCALING_CURVE_MIN_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_OC_, criteria, SCALING_CURVE_MAX_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_OC_, criteria, SCALING_CURVE_PENALISATION_, 1, vtmDouble, double)"));
}

TEST(AsTopoOc, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("AS_TOPO_OC_", "bare");
  const auto command = LoadedAlone<AS_TOPO_OC_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
  EXPECT_EQ(storage.Calls().size(), 9U);
}

TEST(AsTopoOc, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_OC_", "criteria").erase("TA_MAX_");
  AS_TOPO_OC_ command;
  EXPECT_THROW(command.Load(storage, "criteria"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "criteria");
  EXPECT_EQ(command.GetPATCH_ID_(), "casing");
  EXPECT_EQ(command.GetBT_(), 0.25);
  EXPECT_EQ(command.GetTA_MIN_(), 0.001);
  EXPECT_EQ(command.GetTA_MAX_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), 0);
}

TEST(AsTopoOc, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(AsTopoOc, ReadsTheCommandOfItsOwnKindWhereAnotherKindHasTheSameId)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_SENS_", "criteria")["PATCH_ID_"] = {std::string("another")};
  EXPECT_EQ(LoadedAlone<AS_TOPO_OC_>(storage, "criteria").GetPATCH_ID_(), "casing");
}

TEST(AsTopoOc, NamesItsScalingCurves)
{
  ExpectEnumerators<AS_TOPO_OC_, AS_TOPO_OC_::Enum_SCALING_CURVE_TYPE_>(
    {{AS_TOPO_OC_::SCALING_CURVE_TYPE_LINEAR, 73, "LINEAR"},
     {AS_TOPO_OC_::SCALING_CURVE_TYPE_LOG, 76, "LOG"},
     {AS_TOPO_OC_::SCALING_CURVE_TYPE_CONVEX, 88, "CONVEX"}});
}

TEST(AsTopoOc, KeepsANumberThatIsNoEnumerator)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_OC_", "criteria")["SCALING_CURVE_TYPE_"] = {-7};
  EXPECT_EQ(LoadedAlone<AS_TOPO_OC_>(storage, "criteria").GetSCALING_CURVE_TYPE_(), -7);
}

TEST(AsTopoOc, KnowsNoHeavysideThoughAScalingCurveCommandDoes)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_OC_", "criteria")["SCALING_CURVE_TYPE_"] = {72};
  EXPECT_THAT(LogRecordOf(LoadedAlone<AS_TOPO_OC_>(storage, "criteria")).text,
              testing::HasSubstr("\nm_SCALING_CURVE_TYPE_: INVALID\n"));
}

TEST(AsTopoOc, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(AS_TOPO_OC_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 4699);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_TOPO_OC_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_BT_: 0\n"
                         "m_TA_MIN_: 0\n"
                         "m_TA_MAX_: 0\n"
                         "m_SCALING_CURVE_TYPE_: INVALID\n"
                         "m_SCALING_CURVE_UPDATE_ID_: \n"
                         "m_SCALING_CURVE_MIN_: 0\n"
                         "m_SCALING_CURVE_MAX_: 0\n"
                         "m_SCALING_CURVE_PENALISATION_: 0\n");
}

TEST(AsTopoOc, PrintsAllItHoldsWithinAJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetAS_TOPO_OC_("criteria"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 4699);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_TOPO_OC_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(AsTopoOc, TakesAPercentSignInAValueAsAConversion)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("AS_TOPO_OC_", "a%%b")["PATCH_ID_"] = {std::string("<%s>")};
  EXPECT_THAT(LogRecordOf(LoadedAlone<AS_TOPO_OC_>(storage, "a%%b")).text,
              testing::StartsWith("m_ID_NAME_: a%b\nm_PATCH_ID_: <>\nm_BT_: 0\n"));
}

TEST(AsTopoOc, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_OC_", "criteria")["PATCH_ID_"] = {std::string(2000, 'p')};
  EXPECT_EQ(LogRecordOf(LoadedAlone<AS_TOPO_OC_>(storage, "criteria")).text,
            "m_ID_NAME_: criteria\nm_PATCH_ID_: " + std::string(989, 'p'));
}

TEST(AsTopoOc, HasNoModelIdsToCheck)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<AS_TOPO_OC_>(storage, "criteria");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "criteria"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(AsTopoOc, CopiesEveryMember)
{
  const AS_TOPO_OC_ original = FullCommand();
  const AS_TOPO_OC_ copy(original);
  ExpectFull(copy);
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(AsTopoOc, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const AS_TOPO_OC_ original = FullCommand();
  AS_TOPO_OC_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const AS_TOPO_OC_& itself = other;
  other = itself;
  ExpectFull(other);
  other = AS_TOPO_OC_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}
