#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <limits>
#include <type_traits>
#include <utility>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

static_assert(
  std::is_same_v<decltype(std::declval<const AS_SHAPE_SENS_&>().GetFILTER_()), const std::vector<const FILTER_*>&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_SHAPE_SENS_&>().GetFILTER_(1)), const FILTER_&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_SHAPE_SENS_&>().NumFILTER_()), std::uint64_t>);
static_assert(
  std::is_same_v<decltype(std::declval<const AS_SHAPE_SENS_&>().GetDV_TYPE_()), const AS_SHAPE_SENS_::Enum_DV_TYPE_&>);

namespace
{

void AddSparseCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("AS_SHAPE_SENS_", "morphing");
  keys["PATCH_ID_"] = {std::string("wall")};
  keys["ALGORITHM_"] = {70};
  keys["MATH_KERNEL_"] = {77};
  keys["MOVE_"] = {0.05};
  keys["SCALING_CURVE_TYPE_"] = {73};
  keys["SCALING_CURVE_UPDATE_ID_"] = {std::string("late")};
  keys["SCALING_CURVE_MIN_"] = {0.125};
  keys["SCALING_CURVE_MAX_"] = {8.0};
  keys["SCALING_CURVE_PENALISATION_"] = {-1.0};
  keys["ASYM_MOVE_"] = {79};
  keys["ASYM_MOVE_LOW_"] = {0.6};
  keys["ASYM_MOVE_UP_"] = {1.6};
  keys["SUB_TOL_"] = {1e-9};
  keys["NORMAL_UPDATE_"] = {85};
  keys["DV_TYPE_"] = {83};
}

void AddFullCommand(RecordingStorage& storage)
{
  AddSparseCommand(storage);
  auto& keys = storage.Command("AS_SHAPE_SENS_", "morphing");
  keys["MIN_"] = {-0.5};
  keys["MAX_"] = {2.25};
  keys["FILTER_"] = {Ref{"fine"}, Ref{"coarse"}, Ref{"fine"}};
}

AS_SHAPE_SENS_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing");
}

RecordingStorage FullJob()
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  storage.Command("FILTER_", "coarse");
  storage.Command("FILTER_", "fine");
  return storage;
}

const char* const kLinkedText = "m_ID_NAME_: morphing\n"
                                "m_PATCH_ID_: wall\n"
                                "m_ALGORITHM_: FD_CHECK\n"
                                "m_MATH_KERNEL_: MKL\n"
                                "m_has_MIN_: yes\n"
                                "m_MIN_: -0.5\n"
                                "m_has_MAX_: yes\n"
                                "m_MAX_: 2.25\n"
                                "m_MOVE_: 0.05\n"
                                "m_SCALING_CURVE_TYPE_: LINEAR\n"
                                "m_SCALING_CURVE_UPDATE_ID_: late\n"
                                "m_SCALING_CURVE_MIN_: 0.125\n"
                                "m_SCALING_CURVE_MAX_: 8\n"
                                "m_SCALING_CURVE_PENALISATION_: -1\n"
                                "m_ASYM_MOVE_: ORIGINAL\n"
                                "m_ASYM_MOVE_LOW_: 0.6\n"
                                "m_ASYM_MOVE_UP_: 1.6\n"
                                "m_SUB_TOL_: 1e-09\n"
                                "m_num_FILTER_: 3\n"
                                "m_FILTER_: [\n"
                                "fine coarse fine ]\n"
                                "m_NORMAL_UPDATE_: UPDATE\n"
                                "m_DV_TYPE_: SPECIFIC\n";

void ExpectDefaults(const AS_SHAPE_SENS_& command)
{
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetALGORITHM_(), 0);
  EXPECT_EQ(command.GetMATH_KERNEL_(), 0);
  EXPECT_FALSE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), 0.0);
  EXPECT_FALSE(command.HasMAX_());
  EXPECT_EQ(command.GetMAX_(), 0.0);
  EXPECT_EQ(command.GetMOVE_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), 0);
  EXPECT_EQ(command.GetSCALING_CURVE_UPDATE_ID_(), "");
  EXPECT_EQ(command.GetSCALING_CURVE_MIN_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_MAX_(), 0.0);
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), 0.0);
  EXPECT_EQ(command.GetASYM_MOVE_(), 0);
  EXPECT_EQ(command.GetASYM_MOVE_LOW_(), 0.0);
  EXPECT_EQ(command.GetASYM_MOVE_UP_(), 0.0);
  EXPECT_EQ(command.GetSUB_TOL_(), 0.0);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
  EXPECT_EQ(command.GetNORMAL_UPDATE_(), 0);
  EXPECT_EQ(command.GetDV_TYPE_(), 0);
}

/// All but the filters.
void ExpectFull(const AS_SHAPE_SENS_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "morphing");
  EXPECT_EQ(command.GetPATCH_ID_(), "wall");
  EXPECT_EQ(command.GetALGORITHM_(), AS_SHAPE_SENS_::ALGORITHM_FD_CHECK);
  EXPECT_EQ(command.GetMATH_KERNEL_(), AS_SHAPE_SENS_::MATH_KERNEL_MKL);
  EXPECT_TRUE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), -0.5);
  EXPECT_TRUE(command.HasMAX_());
  EXPECT_EQ(command.GetMAX_(), 2.25);
  EXPECT_EQ(command.GetMOVE_(), 0.05);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), AS_SHAPE_SENS_::SCALING_CURVE_TYPE_LINEAR);
  EXPECT_EQ(command.GetSCALING_CURVE_UPDATE_ID_(), "late");
  EXPECT_EQ(command.GetSCALING_CURVE_MIN_(), 0.125);
  EXPECT_EQ(command.GetSCALING_CURVE_MAX_(), 8.0);
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), -1.0);
  EXPECT_EQ(command.GetASYM_MOVE_(), AS_SHAPE_SENS_::ASYM_MOVE_ORIGINAL);
  EXPECT_EQ(command.GetASYM_MOVE_LOW_(), 0.6);
  EXPECT_EQ(command.GetASYM_MOVE_UP_(), 1.6);
  EXPECT_EQ(command.GetSUB_TOL_(), 1e-9);
  EXPECT_EQ(command.GetNORMAL_UPDATE_(), AS_SHAPE_SENS_::NORMAL_UPDATE_UPDATE);
  EXPECT_EQ(command.GetDV_TYPE_(), AS_SHAPE_SENS_::DV_TYPE_SPECIFIC);
}

Failure InvalidFilter(const std::string& index, const std::string& count)
{
  return {"Invalid index " + index +
            " of the parameterfile value FILTER_ to retrieve from AS_SHAPE_SENS_. Number of "
            "available values is " +
            count + ".",
          "220653270608", "[%T|%n|%P|libxml2vtm|AS_SHAPE_SENS_] "};
}

}  // namespace

TEST(AsShapeSens, TellsItsNames)
{
  EXPECT_STREQ(AS_SHAPE_SENS_::COMMAND_NAME, "ALGO_SET_SHAPE_SENS");
  EXPECT_EQ(AS_SHAPE_SENS_::s_type, "AS_SHAPE_SENS_");
  EXPECT_EQ(AS_SHAPE_SENS_().GetType(), "AS_SHAPE_SENS_");
}

TEST(AsShapeSens, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const AS_SHAPE_SENS_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &AS_SHAPE_SENS_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "morphing");
}

TEST(AsShapeSens, IsEmptyBeforeItIsLoaded)
{
  const AS_SHAPE_SENS_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(AsShapeSens, LoadsItsKeysInOrderAndLeavesTheFiltersAlone)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetValue(AS_SHAPE_SENS_, morphing, PATCH_ID_, 1, vtmString, string)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, ALGORITHM_, 1, vtmEnum)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, MATH_KERNEL_, 1, vtmEnum)",
                          "HasElement(AS_SHAPE_SENS_, morphing, MIN_)",
                          "GetValue(AS_SHAPE_SENS_, morphing, MIN_, 1, vtmDouble, double)",
                          "HasElement(AS_SHAPE_SENS_, morphing, MAX_)",
                          "GetValue(AS_SHAPE_SENS_, morphing, MAX_, 1, vtmDouble, double)",
                          "GetValue(AS_SHAPE_SENS_, morphing, MOVE_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, SCALING_CURVE_TYPE_, 1, vtmEnum)",
                          "GetValue(AS_SHAPE_SENS_, morphing, SCALING_CURVE_UPDATE_ID_, 1, vtmString, string)",
                          "GetValue(AS_SHAPE_SENS_, morphing, SCALING_CURVE_MIN_, 1, vtmDouble, double)",
                          "GetValue(AS_SHAPE_SENS_, morphing, SCALING_CURVE_MAX_, 1, vtmDouble, double)",
                          "GetValue(AS_SHAPE_SENS_, morphing, SCALING_CURVE_PENALISATION_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, ASYM_MOVE_, 1, vtmEnum)",
                          "GetValue(AS_SHAPE_SENS_, morphing, ASYM_MOVE_LOW_, 1, vtmDouble, double)",
                          "GetValue(AS_SHAPE_SENS_, morphing, ASYM_MOVE_UP_, 1, vtmDouble, double)",
                          "GetValue(AS_SHAPE_SENS_, morphing, SUB_TOL_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, NORMAL_UPDATE_, 1, vtmEnum)",
                          "GetEnumValue(AS_SHAPE_SENS_, morphing, DV_TYPE_, 1, vtmEnum)"));
}

TEST(AsShapeSens, DoesNotReadBoundsThatAreAbsent)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  const auto command = LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing");
  ASSERT_EQ(storage.Calls().size(), 17U);
  EXPECT_THAT(std::vector<std::string>(storage.Calls().begin() + 2, storage.Calls().begin() + 6),
              ElementsAre("GetEnumValue(AS_SHAPE_SENS_, morphing, MATH_KERNEL_, 1, vtmEnum)",
                          "HasElement(AS_SHAPE_SENS_, morphing, MIN_)", "HasElement(AS_SHAPE_SENS_, morphing, MAX_)",
                          "GetValue(AS_SHAPE_SENS_, morphing, MOVE_, 1, vtmDouble, double)"));
  EXPECT_FALSE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), 0.0);
  EXPECT_FALSE(command.HasMAX_());
  EXPECT_EQ(command.GetMAX_(), 0.0);
  EXPECT_EQ(command.GetMOVE_(), 0.05);
}

TEST(AsShapeSens, HasOneBoundWithoutTheOther)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("AS_SHAPE_SENS_", "morphing")["MIN_"] = {0.0};
  const auto command = LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing");
  EXPECT_TRUE(command.HasMIN_());
  EXPECT_FALSE(command.HasMAX_());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_has_MIN_: yes\nm_MIN_: 0\nm_has_MAX_: no\nm_MOVE_: 0.05\n"));
}

TEST(AsShapeSens, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("AS_SHAPE_SENS_", "bare");
  const auto command = LoadedAlone<AS_SHAPE_SENS_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
}

TEST(AsShapeSens, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_SHAPE_SENS_", "morphing").erase("NORMAL_UPDATE_");
  AS_SHAPE_SENS_ command;
  EXPECT_THROW(command.Load(storage, "morphing"), AbsentFromStorage);
  EXPECT_EQ(command.GetSUB_TOL_(), 1e-9);
  EXPECT_EQ(command.GetNORMAL_UPDATE_(), 0);
  EXPECT_EQ(command.GetDV_TYPE_(), 0);
}

TEST(AsShapeSens, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(AsShapeSens, HasNoFiltersAfterItsOwnLoadWhateverTheStorageHolds)
{
  const AS_SHAPE_SENS_ command = FullCommand();
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(1); }), InvalidFilter("1", "0"));
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_num_FILTER_: 0\nm_FILTER_: [\n]\nm_NORMAL_UPDATE_: UPDATE\n"));
}

TEST(AsShapeSens, NamesItsAlgorithms)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_ALGORITHM_>(
    {{AS_SHAPE_SENS_::ALGORITHM_STEEPEST, 67, "STEEPEST"},
     {AS_SHAPE_SENS_::ALGORITHM_FD_CHECK, 70, "FD_CHECK"},
     {AS_SHAPE_SENS_::ALGORITHM_MMA, 77, "MMA"},
     {AS_SHAPE_SENS_::ALGORITHM_CSA, 80, "CSA"}});
}

TEST(AsShapeSens, NamesItsMathKernels)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_MATH_KERNEL_>(
    {{AS_SHAPE_SENS_::MATH_KERNEL_INTERNAL, 73, "INTERNAL"}, {AS_SHAPE_SENS_::MATH_KERNEL_MKL, 77, "MKL"}});
}

TEST(AsShapeSens, NamesItsScalingCurves)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_SCALING_CURVE_TYPE_>(
    {{AS_SHAPE_SENS_::SCALING_CURVE_TYPE_LINEAR, 73, "LINEAR"},
     {AS_SHAPE_SENS_::SCALING_CURVE_TYPE_LOG, 76, "LOG"},
     {AS_SHAPE_SENS_::SCALING_CURVE_TYPE_CONVEX, 88, "CONVEX"}});
}

TEST(AsShapeSens, NamesItsAsymptoteMoves)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_ASYM_MOVE_>(
    {{AS_SHAPE_SENS_::ASYM_MOVE_CONSERVATIVE, 67, "CONSERVATIVE"},
     {AS_SHAPE_SENS_::ASYM_MOVE_ORIGINAL, 79, "ORIGINAL"},
     {AS_SHAPE_SENS_::ASYM_MOVE_CUSTOM, 83, "CUSTOM"}});
}

TEST(AsShapeSens, NamesItsNormalUpdates)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_NORMAL_UPDATE_>(
    {{AS_SHAPE_SENS_::NORMAL_UPDATE_INCREMENTAL, 67, "INCREMENTAL"},
     {AS_SHAPE_SENS_::NORMAL_UPDATE_INITIAL, 73, "INITIAL"},
     {AS_SHAPE_SENS_::NORMAL_UPDATE_UPDATE, 85, "UPDATE"}});
}

TEST(AsShapeSens, NamesItsDesignVariableTypes)
{
  ExpectEnumerators<AS_SHAPE_SENS_, AS_SHAPE_SENS_::Enum_DV_TYPE_>(
    {{AS_SHAPE_SENS_::DV_TYPE_DEFAULT, 68, "DEFAULT"}, {AS_SHAPE_SENS_::DV_TYPE_SPECIFIC, 83, "SPECIFIC"}});
}

TEST(AsShapeSens, PrintsTheFiniteDifferenceCheckThatTheTopologySettingsDoNotKnow)
{
  EXPECT_THAT(LogRecordOf(FullCommand()).text, HasSubstr("\nm_ALGORITHM_: FD_CHECK\n"));
}

TEST(AsShapeSens, KnowsNoHeavysideThoughAScalingCurveCommandDoes)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_SHAPE_SENS_", "morphing")["SCALING_CURVE_TYPE_"] = {72};
  EXPECT_THAT(LogRecordOf(LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing")).text,
              HasSubstr("\nm_SCALING_CURVE_TYPE_: INVALID\n"));
}

TEST(AsShapeSens, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(AS_SHAPE_SENS_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5335);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_SHAPE_SENS_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_ALGORITHM_: INVALID\n"
                         "m_MATH_KERNEL_: INVALID\n"
                         "m_has_MIN_: no\n"
                         "m_has_MAX_: no\n"
                         "m_MOVE_: 0\n"
                         "m_SCALING_CURVE_TYPE_: INVALID\n"
                         "m_SCALING_CURVE_UPDATE_ID_: \n"
                         "m_SCALING_CURVE_MIN_: 0\n"
                         "m_SCALING_CURVE_MAX_: 0\n"
                         "m_SCALING_CURVE_PENALISATION_: 0\n"
                         "m_ASYM_MOVE_: INVALID\n"
                         "m_ASYM_MOVE_LOW_: 0\n"
                         "m_ASYM_MOVE_UP_: 0\n"
                         "m_SUB_TOL_: 0\n"
                         "m_num_FILTER_: 0\n"
                         "m_FILTER_: [\n]\n"
                         "m_NORMAL_UPDATE_: INVALID\n"
                         "m_DV_TYPE_: INVALID\n");
}

TEST(AsShapeSens, PrintsAllItHoldsOnceItIsLinked)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetAS_SHAPE_SENS_("morphing"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5335);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_SHAPE_SENS_] ");
  EXPECT_EQ(record.text, kLinkedText);
}

TEST(AsShapeSens, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_SHAPE_SENS_", "morphing")["PATCH_ID_"] = {std::string(990, 'p')};
  EXPECT_EQ(LogRecordOf(LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing")).text,
            "m_ID_NAME_: morphing\nm_PATCH_ID_: " + std::string(989, 'p'));
}

TEST(AsShapeSens, IsLinkedToItsFiltersInTheOrderOfItsKeyAndAfterAllOthers)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const AS_SHAPE_SENS_& command = parfile.GetAS_SHAPE_SENS_("morphing");
  ExpectFull(command);
  EXPECT_EQ(command.NumFILTER_(), 3U);
  EXPECT_THAT(command.GetFILTER_(),
              ElementsAre(&parfile.GetFILTER_("fine"), &parfile.GetFILTER_("coarse"), &parfile.GetFILTER_("fine")));

  const auto& calls = storage.Calls();
  ASSERT_GE(calls.size(), 4U);
  EXPECT_THAT(std::vector<std::string>(calls.end() - 4, calls.end()),
              ElementsAre("GetNumElements(AS_SHAPE_SENS_, morphing, FILTER_)",
                          "GetReference(AS_SHAPE_SENS_, morphing, FILTER_, 1)",
                          "GetReference(AS_SHAPE_SENS_, morphing, FILTER_, 2)",
                          "GetReference(AS_SHAPE_SENS_, morphing, FILTER_, 3)"));
}

TEST(AsShapeSens, IsLinkedToNothingWithoutFilters)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddSparseCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetAS_SHAPE_SENS_("morphing").NumFILTER_(), 0U);
  EXPECT_THAT(parfile.GetAS_SHAPE_SENS_("morphing").GetFILTER_(), IsEmpty());
  EXPECT_THAT(storage.Calls(), Contains("GetNumElements(AS_SHAPE_SENS_, morphing, FILTER_)"));
  EXPECT_THAT(storage.Calls(), Not(Contains(HasSubstr("GetReference(AS_SHAPE_SENS_"))));
}

TEST(AsShapeSens, EndsTheLoadOfAJobThatLacksOneOfItsFilters)
{
  RecordingStorage storage = FullJob();
  storage.RemoveCommands("FILTER_");
  storage.Command("FILTER_", "fine");
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"Invalid ID coarse of the parameter file command FILTER_",
                                                         "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(AsShapeSens, IsLinkedBeforeALaterOneFailsAndNotAfterIt)
{
  RecordingStorage storage = FullJob();
  storage.Command("AS_SHAPE_SENS_", "wrong")["FILTER_"] = {Ref{"fine"}, Ref{"missing"}};
  storage.Command("AS_SHAPE_SENS_", "late")["FILTER_"] = {Ref{"fine"}};
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "Invalid ID missing of the parameter file command FILTER_");
  EXPECT_EQ(parfile.GetAS_SHAPE_SENS_("morphing").NumFILTER_(), 3U);
  EXPECT_EQ(parfile.GetAS_SHAPE_SENS_("morphing").GetFILTER_().size(), 3U);
  EXPECT_EQ(parfile.GetAS_SHAPE_SENS_("late").NumFILTER_(), 0U);
  EXPECT_THAT(parfile.GetAS_SHAPE_SENS_("late").GetFILTER_(), IsEmpty());
}

TEST(AsShapeSens, TakesTheEarlierOfTwoFiltersWithOneId)
{
  RecordingStorage storage = FullJob();
  storage.AddSecondCommand("FILTER_", "fine");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(&parfile.GetAS_SHAPE_SENS_("morphing").GetFILTER_(1), parfile.GetFILTER_()[1]);
}

TEST(AsShapeSens, GivesItsFiltersByPlacesCountedFromOne)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const AS_SHAPE_SENS_& command = parfile.GetAS_SHAPE_SENS_("morphing");
  EXPECT_EQ(&command.GetFILTER_(1), &parfile.GetFILTER_("fine"));
  EXPECT_EQ(&command.GetFILTER_(2), &parfile.GetFILTER_("coarse"));
  EXPECT_EQ(&command.GetFILTER_(command.NumFILTER_()), &parfile.GetFILTER_("fine"));
}

TEST(AsShapeSens, RefusesAnIndexOutsideItsFilters)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const AS_SHAPE_SENS_& command = parfile.GetAS_SHAPE_SENS_("morphing");
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(0); }), InvalidFilter("0", "3"));
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(4); }), InvalidFilter("4", "3"));
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(std::numeric_limits<std::uint64_t>::max()); }),
            InvalidFilter("18446744073709551615", "3"));
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(4294967297); }), InvalidFilter("4294967297", "3"));
}

TEST(AsShapeSens, HasNoModelIdsToCheck)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<AS_SHAPE_SENS_>(storage, "morphing");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "morphing"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(AsShapeSens, CopiesEveryMemberAndPointsToTheSameFilters)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const AS_SHAPE_SENS_& original = parfile.GetAS_SHAPE_SENS_("morphing");
  const AS_SHAPE_SENS_ copy(original);
  ExpectFull(copy);
  EXPECT_EQ(copy.NumFILTER_(), 3U);
  EXPECT_EQ(copy.GetFILTER_(), original.GetFILTER_());
  EXPECT_EQ(&copy.GetFILTER_(2), &parfile.GetFILTER_("coarse"));
  EXPECT_EQ(LogRecordOf(copy).text, kLinkedText);
}

TEST(AsShapeSens, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  RecordingStorage storage = FullJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  AS_SHAPE_SENS_ other;
  EXPECT_EQ(&(other = parfile.GetAS_SHAPE_SENS_("morphing")), &other);
  const AS_SHAPE_SENS_& itself = other;
  other = itself;
  ExpectFull(other);
  EXPECT_EQ(LogRecordOf(other).text, kLinkedText);
  other = AS_SHAPE_SENS_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}
