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

static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_SENS_&>().GetADJOINT_CFL_()), const int&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_SENS_&>().GetMIN_()), const double&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_SENS_&>().GetKEEP_INITIAL_()), const std::string&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_SENS_&>().GetALGORITHM_()),
                             const AS_TOPO_SENS_::Enum_ALGORITHM_&>);
static_assert(std::is_same_v<decltype(std::declval<const AS_TOPO_SENS_&>().HasMIN_()), bool>);

namespace
{

void AddSparseCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("AS_TOPO_SENS_", "gradients");
  keys["PATCH_ID_"] = {std::string("duct")};
  keys["ALGORITHM_"] = {77};
  keys["MATH_KERNEL_"] = {73};
  keys["MOVE_"] = {0.2};
  keys["SCALING_CURVE_TYPE_"] = {76};
  keys["SCALING_CURVE_UPDATE_ID_"] = {std::string("ramp")};
  keys["SCALING_CURVE_MIN_"] = {0.01};
  keys["SCALING_CURVE_MAX_"] = {12.5};
  keys["SCALING_CURVE_PENALISATION_"] = {4.0};
  keys["ASYM_MOVE_"] = {83};
  keys["ASYM_MOVE_LOW_"] = {0.7};
  keys["ASYM_MOVE_UP_"] = {1.2};
  keys["SUB_TOL_"] = {1e-7};
  keys["PRIMAL_ITER_MIN_"] = {11};
  keys["PRIMAL_ITER_MAX_"] = {110};
  keys["PRIMAL_INTERVAL_"] = {5};
  keys["PRIMAL_RESIDUAL_"] = {1e-5};
  keys["PRIMAL_DEVIATION_"] = {0.03};
  keys["ADJOINT_ITER_MIN_"] = {22};
  keys["ADJOINT_ITER_MAX_"] = {220};
  keys["ADJOINT_INTERVAL_"] = {-6};
  keys["ADJOINT_DISC_"] = {std::string("upwind")};
  keys["ADJOINT_DRIVER_"] = {std::string("coupled")};
  keys["ADJOINT_CFL_"] = {50};
  keys["KEEP_INITIAL_"] = {std::string("yes")};
  keys["KEEP_ADJOINT_"] = {std::string("no")};
  keys["SKIP_PRESSURE_SRC_"] = {std::string("on")};
  keys["SKIP_TURBULENT_SRC_"] = {std::string("off")};
}

void AddFullCommand(RecordingStorage& storage)
{
  AddSparseCommand(storage);
  auto& keys = storage.Command("AS_TOPO_SENS_", "gradients");
  keys["MIN_"] = {-1.5};
  keys["MAX_"] = {1.75};
}

AS_TOPO_SENS_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
}

// 740 characters: all of it fits into one record.
const char* const kFullText = "m_ID_NAME_: gradients\n"
                              "m_PATCH_ID_: duct\n"
                              "m_ALGORITHM_: MMA\n"
                              "m_MATH_KERNEL_: INTERNAL\n"
                              "m_has_MIN_: yes\n"
                              "m_MIN_: -1.5\n"
                              "m_has_MAX_: yes\n"
                              "m_MAX_: 1.75\n"
                              "m_MOVE_: 0.2\n"
                              "m_SCALING_CURVE_TYPE_: LOG\n"
                              "m_SCALING_CURVE_UPDATE_ID_: ramp\n"
                              "m_SCALING_CURVE_MIN_: 0.01\n"
                              "m_SCALING_CURVE_MAX_: 12.5\n"
                              "m_SCALING_CURVE_PENALISATION_: 4\n"
                              "m_ASYM_MOVE_: CUSTOM\n"
                              "m_ASYM_MOVE_LOW_: 0.7\n"
                              "m_ASYM_MOVE_UP_: 1.2\n"
                              "m_SUB_TOL_: 1e-07\n"
                              "m_PRIMAL_ITER_MIN_: 11\n"
                              "m_PRIMAL_ITER_MAX_: 110\n"
                              "m_PRIMAL_INTERVAL_: 5\n"
                              "m_PRIMAL_RESIDUAL_: 1e-05\n"
                              "m_PRIMAL_DEVIATION_: 0.03\n"
                              "m_ADJOINT_ITER_MIN_: 22\n"
                              "m_ADJOINT_ITER_MAX_: 220\n"
                              "m_ADJOINT_INTERVAL_: -6\n"
                              "m_ADJOINT_DISC_: upwind\n"
                              "m_ADJOINT_DRIVER_: coupled\n"
                              "m_ADJOINT_CFL_: 50\n"
                              "m_KEEP_INITIAL_: yes\n"
                              "m_KEEP_ADJOINT_: no\n"
                              "m_SKIP_PRESSURE_SRC_: on\n"
                              "m_SKIP_TURBULENT_SRC_: off\n";

void ExpectDefaults(const AS_TOPO_SENS_& command)
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
  EXPECT_EQ(command.GetPRIMAL_ITER_MIN_(), 0);
  EXPECT_EQ(command.GetPRIMAL_ITER_MAX_(), 0);
  EXPECT_EQ(command.GetPRIMAL_INTERVAL_(), 0);
  EXPECT_EQ(command.GetPRIMAL_RESIDUAL_(), 0.0);
  EXPECT_EQ(command.GetPRIMAL_DEVIATION_(), 0.0);
  EXPECT_EQ(command.GetADJOINT_ITER_MIN_(), 0);
  EXPECT_EQ(command.GetADJOINT_ITER_MAX_(), 0);
  EXPECT_EQ(command.GetADJOINT_INTERVAL_(), 0);
  EXPECT_EQ(command.GetADJOINT_DISC_(), "");
  EXPECT_EQ(command.GetADJOINT_DRIVER_(), "");
  EXPECT_EQ(command.GetADJOINT_CFL_(), 0);
  EXPECT_EQ(command.GetKEEP_INITIAL_(), "");
  EXPECT_EQ(command.GetKEEP_ADJOINT_(), "");
  EXPECT_EQ(command.GetSKIP_PRESSURE_SRC_(), "");
  EXPECT_EQ(command.GetSKIP_TURBULENT_SRC_(), "");
}

void ExpectFull(const AS_TOPO_SENS_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "gradients");
  EXPECT_EQ(command.GetPATCH_ID_(), "duct");
  EXPECT_EQ(command.GetALGORITHM_(), AS_TOPO_SENS_::ALGORITHM_MMA);
  EXPECT_EQ(command.GetMATH_KERNEL_(), AS_TOPO_SENS_::MATH_KERNEL_INTERNAL);
  EXPECT_TRUE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), -1.5);
  EXPECT_TRUE(command.HasMAX_());
  EXPECT_EQ(command.GetMAX_(), 1.75);
  EXPECT_EQ(command.GetMOVE_(), 0.2);
  EXPECT_EQ(command.GetSCALING_CURVE_TYPE_(), AS_TOPO_SENS_::SCALING_CURVE_TYPE_LOG);
  EXPECT_EQ(command.GetSCALING_CURVE_UPDATE_ID_(), "ramp");
  EXPECT_EQ(command.GetSCALING_CURVE_MIN_(), 0.01);
  EXPECT_EQ(command.GetSCALING_CURVE_MAX_(), 12.5);
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), 4.0);
  EXPECT_EQ(command.GetASYM_MOVE_(), AS_TOPO_SENS_::ASYM_MOVE_CUSTOM);
  EXPECT_EQ(command.GetASYM_MOVE_LOW_(), 0.7);
  EXPECT_EQ(command.GetASYM_MOVE_UP_(), 1.2);
  EXPECT_EQ(command.GetSUB_TOL_(), 1e-7);
  EXPECT_EQ(command.GetPRIMAL_ITER_MIN_(), 11);
  EXPECT_EQ(command.GetPRIMAL_ITER_MAX_(), 110);
  EXPECT_EQ(command.GetPRIMAL_INTERVAL_(), 5);
  EXPECT_EQ(command.GetPRIMAL_RESIDUAL_(), 1e-5);
  EXPECT_EQ(command.GetPRIMAL_DEVIATION_(), 0.03);
  EXPECT_EQ(command.GetADJOINT_ITER_MIN_(), 22);
  EXPECT_EQ(command.GetADJOINT_ITER_MAX_(), 220);
  EXPECT_EQ(command.GetADJOINT_INTERVAL_(), -6);
  EXPECT_EQ(command.GetADJOINT_DISC_(), "upwind");
  EXPECT_EQ(command.GetADJOINT_DRIVER_(), "coupled");
  EXPECT_EQ(command.GetADJOINT_CFL_(), 50);
  EXPECT_EQ(command.GetKEEP_INITIAL_(), "yes");
  EXPECT_EQ(command.GetKEEP_ADJOINT_(), "no");
  EXPECT_EQ(command.GetSKIP_PRESSURE_SRC_(), "on");
  EXPECT_EQ(command.GetSKIP_TURBULENT_SRC_(), "off");
}

}  // namespace

TEST(AsTopoSens, TellsItsNames)
{
  EXPECT_STREQ(AS_TOPO_SENS_::COMMAND_NAME, "ALGO_SET_TOPO_SENS");
  EXPECT_EQ(AS_TOPO_SENS_::s_type, "AS_TOPO_SENS_");
  EXPECT_EQ(AS_TOPO_SENS_().GetType(), "AS_TOPO_SENS_");
}

TEST(AsTopoSens, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const AS_TOPO_SENS_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &AS_TOPO_SENS_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "gradients");
}

TEST(AsTopoSens, IsEmptyBeforeItIsLoaded)
{
  const AS_TOPO_SENS_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(AsTopoSens, LoadsItsKeysInOrderAndAsksForTheBoundsFirst)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetValue(AS_TOPO_SENS_, gradients, PATCH_ID_, 1, vtmString, string)",
                          "GetEnumValue(AS_TOPO_SENS_, gradients, ALGORITHM_, 1, vtmEnum)",
                          "GetEnumValue(AS_TOPO_SENS_, gradients, MATH_KERNEL_, 1, vtmEnum)",
                          "HasElement(AS_TOPO_SENS_, gradients, MIN_)",
                          "GetValue(AS_TOPO_SENS_, gradients, MIN_, 1, vtmDouble, double)",
                          "HasElement(AS_TOPO_SENS_, gradients, MAX_)",
                          "GetValue(AS_TOPO_SENS_, gradients, MAX_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, MOVE_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_TOPO_SENS_, gradients, SCALING_CURVE_TYPE_, 1, vtmEnum)",
                          "GetValue(AS_TOPO_SENS_, gradients, SCALING_CURVE_UPDATE_ID_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, SCALING_CURVE_MIN_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, SCALING_CURVE_MAX_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, SCALING_CURVE_PENALISATION_, 1, vtmDouble, double)",
                          "GetEnumValue(AS_TOPO_SENS_, gradients, ASYM_MOVE_, 1, vtmEnum)",
                          "GetValue(AS_TOPO_SENS_, gradients, ASYM_MOVE_LOW_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, ASYM_MOVE_UP_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, SUB_TOL_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, PRIMAL_ITER_MIN_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, PRIMAL_ITER_MAX_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, PRIMAL_INTERVAL_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, PRIMAL_RESIDUAL_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, PRIMAL_DEVIATION_, 1, vtmDouble, double)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_ITER_MIN_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_ITER_MAX_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_INTERVAL_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_DISC_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_DRIVER_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, ADJOINT_CFL_, 1, vtmInteger, int)",
                          "GetValue(AS_TOPO_SENS_, gradients, KEEP_INITIAL_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, KEEP_ADJOINT_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, SKIP_PRESSURE_SRC_, 1, vtmString, string)",
                          "GetValue(AS_TOPO_SENS_, gradients, SKIP_TURBULENT_SRC_, 1, vtmString, string)"));
}

TEST(AsTopoSens, DoesNotReadBoundsThatAreAbsent)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  const auto command = LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
  ASSERT_EQ(storage.Calls().size(), 30U);
  EXPECT_THAT(std::vector<std::string>(storage.Calls().begin() + 2, storage.Calls().begin() + 6),
              ElementsAre("GetEnumValue(AS_TOPO_SENS_, gradients, MATH_KERNEL_, 1, vtmEnum)",
                          "HasElement(AS_TOPO_SENS_, gradients, MIN_)", "HasElement(AS_TOPO_SENS_, gradients, MAX_)",
                          "GetValue(AS_TOPO_SENS_, gradients, MOVE_, 1, vtmDouble, double)"));
  EXPECT_FALSE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), 0.0);
  EXPECT_FALSE(command.HasMAX_());
  EXPECT_EQ(command.GetMAX_(), 0.0);
  EXPECT_EQ(command.GetMOVE_(), 0.2);
}

TEST(AsTopoSens, HasOneBoundWithoutTheOther)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("AS_TOPO_SENS_", "gradients")["MAX_"] = {0.0};
  const auto command = LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
  EXPECT_FALSE(command.HasMIN_());
  EXPECT_TRUE(command.HasMAX_());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_has_MIN_: no\nm_has_MAX_: yes\nm_MAX_: 0\nm_MOVE_: 0.2\n"));
}

TEST(AsTopoSens, KeepsAnEarlierBoundWhenItIsLoadedAgainWithoutIt)
{
  RecordingStorage full;
  AddFullCommand(full);
  RecordingStorage sparse;
  AddSparseCommand(sparse);
  auto command = LoadedAlone<AS_TOPO_SENS_>(full, "gradients");
  command.Load(sparse, "gradients");
  EXPECT_FALSE(command.HasMIN_());
  EXPECT_EQ(command.GetMIN_(), -1.5);
}

TEST(AsTopoSens, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("AS_TOPO_SENS_", "bare");
  const auto command = LoadedAlone<AS_TOPO_SENS_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
}

TEST(AsTopoSens, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.FailOn("GetEnumValue(AS_TOPO_SENS_, gradients, ASYM_MOVE_, 1, vtmEnum)");
  AS_TOPO_SENS_ command;
  EXPECT_THROW(command.Load(storage, "gradients"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "gradients");
  EXPECT_EQ(command.GetSCALING_CURVE_PENALISATION_(), 4.0);
  EXPECT_EQ(command.GetASYM_MOVE_(), 0);
  EXPECT_EQ(command.GetASYM_MOVE_LOW_(), 0.0);
  EXPECT_EQ(command.GetSKIP_TURBULENT_SRC_(), "");
}

TEST(AsTopoSens, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(AsTopoSens, NamesItsAlgorithms)
{
  ExpectEnumerators<AS_TOPO_SENS_, AS_TOPO_SENS_::Enum_ALGORITHM_>({{AS_TOPO_SENS_::ALGORITHM_STEEPEST, 67, "STEEPEST"},
                                                                    {AS_TOPO_SENS_::ALGORITHM_MMA, 77, "MMA"},
                                                                    {AS_TOPO_SENS_::ALGORITHM_CSA, 80, "CSA"}});
}

TEST(AsTopoSens, NamesItsMathKernels)
{
  ExpectEnumerators<AS_TOPO_SENS_, AS_TOPO_SENS_::Enum_MATH_KERNEL_>(
    {{AS_TOPO_SENS_::MATH_KERNEL_INTERNAL, 73, "INTERNAL"}, {AS_TOPO_SENS_::MATH_KERNEL_MKL, 77, "MKL"}});
}

TEST(AsTopoSens, NamesItsScalingCurves)
{
  ExpectEnumerators<AS_TOPO_SENS_, AS_TOPO_SENS_::Enum_SCALING_CURVE_TYPE_>(
    {{AS_TOPO_SENS_::SCALING_CURVE_TYPE_LINEAR, 73, "LINEAR"},
     {AS_TOPO_SENS_::SCALING_CURVE_TYPE_LOG, 76, "LOG"},
     {AS_TOPO_SENS_::SCALING_CURVE_TYPE_CONVEX, 88, "CONVEX"}});
}

TEST(AsTopoSens, NamesItsAsymptoteMoves)
{
  ExpectEnumerators<AS_TOPO_SENS_, AS_TOPO_SENS_::Enum_ASYM_MOVE_>(
    {{AS_TOPO_SENS_::ASYM_MOVE_CONSERVATIVE, 67, "CONSERVATIVE"},
     {AS_TOPO_SENS_::ASYM_MOVE_ORIGINAL, 79, "ORIGINAL"},
     {AS_TOPO_SENS_::ASYM_MOVE_CUSTOM, 83, "CUSTOM"}});
}

TEST(AsTopoSens, PrintsTheFiniteDifferenceCheckOfTheShapeSettingsAsInvalid)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_SENS_", "gradients")["ALGORITHM_"] = {70};
  const auto command = LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
  EXPECT_EQ(command.GetALGORITHM_(), 70);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_ALGORITHM_: INVALID\n"));
}

TEST(AsTopoSens, KnowsNoHeavysideThoughAScalingCurveCommandDoes)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_SENS_", "gradients")["SCALING_CURVE_TYPE_"] = {72};
  EXPECT_THAT(LogRecordOf(LoadedAlone<AS_TOPO_SENS_>(storage, "gradients")).text,
              HasSubstr("\nm_SCALING_CURVE_TYPE_: INVALID\n"));
}

TEST(AsTopoSens, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(AS_TOPO_SENS_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5012);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_TOPO_SENS_] ");
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
                         "m_PRIMAL_ITER_MIN_: 0\n"
                         "m_PRIMAL_ITER_MAX_: 0\n"
                         "m_PRIMAL_INTERVAL_: 0\n"
                         "m_PRIMAL_RESIDUAL_: 0\n"
                         "m_PRIMAL_DEVIATION_: 0\n"
                         "m_ADJOINT_ITER_MIN_: 0\n"
                         "m_ADJOINT_ITER_MAX_: 0\n"
                         "m_ADJOINT_INTERVAL_: 0\n"
                         "m_ADJOINT_DISC_: \n"
                         "m_ADJOINT_DRIVER_: \n"
                         "m_ADJOINT_CFL_: 0\n"
                         "m_KEEP_INITIAL_: \n"
                         "m_KEEP_ADJOINT_: \n"
                         "m_SKIP_PRESSURE_SRC_: \n"
                         "m_SKIP_TURBULENT_SRC_: \n");
}

TEST(AsTopoSens, PrintsAllItHoldsWithinAJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetAS_TOPO_SENS_("gradients"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5012);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|AS_TOPO_SENS_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(AsTopoSens, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("AS_TOPO_SENS_", "gradients")["SKIP_TURBULENT_SRC_"] = {std::string(500, 's')};
  const std::string text = LogRecordOf(LoadedAlone<AS_TOPO_SENS_>(storage, "gradients")).text;
  EXPECT_EQ(text.size(), 1023U);
  EXPECT_THAT(text, testing::EndsWith("\nm_SKIP_PRESSURE_SRC_: on\nm_SKIP_TURBULENT_SRC_: " + std::string(287, 's')));
}

TEST(AsTopoSens, HasNoModelIdsToCheck)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<AS_TOPO_SENS_>(storage, "gradients");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "gradients"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(AsTopoSens, CopiesEveryMember)
{
  const AS_TOPO_SENS_ original = FullCommand();
  const AS_TOPO_SENS_ copy(original);
  ExpectFull(copy);
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(AsTopoSens, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const AS_TOPO_SENS_ original = FullCommand();
  AS_TOPO_SENS_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const AS_TOPO_SENS_& itself = other;
  other = itself;
  ExpectFull(other);
  other = AS_TOPO_SENS_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}
