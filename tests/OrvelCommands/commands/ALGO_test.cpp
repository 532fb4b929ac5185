#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/command_ids.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::StaticAssertTypeEq;

static_assert(kReturn<ALGO_, const std::string&, &ALGO_::GetType, &ALGO_::GetID_NAME_>);
static_assert(kReturn<ALGO_, const ALGO_::Enum_STRATEGY_&, &ALGO_::GetSTRATEGY_>);
static_assert(kReturn<ALGO_, const ALGO_::Enum_DEVELOPER_OUTPUT_&, &ALGO_::GetDEVELOPER_OUTPUT_>);
static_assert(kReturn<ALGO_, const DV_&, &ALGO_::GetDV_>);
static_assert(kReturn<ALGO_, const OBJ_FUNC_&, &ALGO_::GetOBJ_FUNC_>);
static_assert(kReturn<ALGO_, const OPT_PARAM_&, &ALGO_::GetOPT_PARAM_>);
static_assert(kReturn<ALGO_, const STOP_&, &ALGO_::GetSTOP_>);
static_assert(kReturn<ALGO_, const PRE_PARAM_&, &ALGO_::GetPRE_PARAM_>);
static_assert(kReturn<ALGO_, const AS_TOPO_OC_&, &ALGO_::GetAS_TOPO_OC_>);
static_assert(kReturn<ALGO_, const AS_TOPO_SENS_&, &ALGO_::GetAS_TOPO_SENS_>);
static_assert(kReturn<ALGO_, const AS_SHAPE_SENS_&, &ALGO_::GetAS_SHAPE_SENS_>);
static_assert(kReturn<ALGO_, std::uint64_t, &ALGO_::NumCONSTRAINT_, &ALGO_::NumDV_CONSTRAINT_, &ALGO_::NumMESH_SMOOTH_,
                      &ALGO_::NumMONITOR_>);

namespace
{

const char* const kUnlinkedText = "m_ID_NAME_: algorithm\n"
                                  "m_STRATEGY_: SHAPE_SENS\n"
                                  "m_DV_: \n"
                                  "m_OBJ_FUNC_: \n"
                                  "m_num_CONSTRAINT_: 0\n"
                                  "m_CONSTRAINT_: [\n]\n"
                                  "m_num_DV_CONSTRAINT_: 0\n"
                                  "m_DV_CONSTRAINT_: [\n]\n"
                                  "m_OPT_PARAM_: \n"
                                  "m_STOP_: \n"
                                  "m_PRE_PARAM_: \n"
                                  "m_num_MESH_SMOOTH_: 0\n"
                                  "m_MESH_SMOOTH_: [\n]\n"
                                  "m_num_MONITOR_: 0\n"
                                  "m_MONITOR_: [\n]\n"
                                  "m_AS_TOPO_OC_: \n"
                                  "m_AS_TOPO_SENS_: \n"
                                  "m_AS_SHAPE_SENS_: \n"
                                  "m_DEVELOPER_OUTPUT_: YES\n";

const char* const kLinkedText = "m_ID_NAME_: algorithm\n"
                                "m_STRATEGY_: SHAPE_SENS\n"
                                "m_DV_: porosity\n"
                                "m_OBJ_FUNC_: objective\n"
                                "m_num_CONSTRAINT_: 3\n"
                                "m_CONSTRAINT_: [\nmass volume pressure ]\n"
                                "m_num_DV_CONSTRAINT_: 2\n"
                                "m_DV_CONSTRAINT_: [\nstamp mirror ]\n"
                                "m_OPT_PARAM_: general\n"
                                "m_STOP_: limits\n"
                                "m_PRE_PARAM_: flow\n"
                                "m_num_MESH_SMOOTH_: 1\n"
                                "m_MESH_SMOOTH_: [\nrelax ]\n"
                                "m_num_MONITOR_: 4\n"
                                "m_MONITOR_: [\nlift swirl drag heat ]\n"
                                "m_AS_TOPO_OC_: criteria\n"
                                "m_AS_TOPO_SENS_: gradients\n"
                                "m_AS_SHAPE_SENS_: morph\n"
                                "m_DEVELOPER_OUTPUT_: YES\n";

RecordingStorage StorageWithAlgorithm()
{
  RecordingStorage storage;
  auto& keys = storage.Command("ALGO_", "algorithm");
  keys["STRATEGY_"] = {83};
  keys["DEVELOPER_OUTPUT_"] = {84};
  return storage;
}

/// An algorithm that refers to something by each of its keys. What it refers to is no first command of its
/// kind where a job may have several, and its lists are in another order than the commands.
RecordingStorage StorageWithFullJob()
{
  RecordingStorage storage = StorageWithAlgorithm();
  AddRequiredCommands(storage);
  for (const auto& [kind, id] : {std::pair{"DV_", "porosity"},
                                 {"CONSTRAINT_", "pressure"},
                                 {"CONSTRAINT_", "mass"},
                                 {"CONSTRAINT_", "volume"},
                                 {"DV_CONSTRAINT_", "mirror"},
                                 {"DV_CONSTRAINT_", "ring"},
                                 {"DV_CONSTRAINT_", "stamp"},
                                 {"OPT_PARAM_", "general"},
                                 {"STOP_", "limits"},
                                 {"PRE_PARAM_", "flow"},
                                 {"MESH_SMOOTH_", "untangle"},
                                 {"MESH_SMOOTH_", "relax"},
                                 {"DRESP_", "response"},
                                 {"AS_TOPO_OC_", "criteria"},
                                 {"AS_TOPO_SENS_", "gradients"},
                                 {"AS_SHAPE_SENS_", "morph"}})
  {
    storage.Command(kind, id);
  }
  for (const char* id : {"drag", "heat", "lift", "swirl"})
  {
    storage.Command("MONITOR_", id)["DRESP_"] = {Ref{"response"}};
  }
  auto& keys = storage.Command("ALGO_", "algorithm");
  keys["DV_"] = {Ref{"porosity"}};
  keys["CONSTRAINT_"] = {Ref{"mass"}, Ref{"volume"}, Ref{"pressure"}};
  keys["DV_CONSTRAINT_"] = {Ref{"stamp"}, Ref{"mirror"}};
  keys["OPT_PARAM_"] = {Ref{"general"}};
  keys["STOP_"] = {Ref{"limits"}};
  keys["PRE_PARAM_"] = {Ref{"flow"}};
  keys["MESH_SMOOTH_"] = {Ref{"relax"}};
  keys["MONITOR_"] = {Ref{"lift"}, Ref{"swirl"}, Ref{"drag"}, Ref{"heat"}};
  keys["AS_TOPO_OC_"] = {Ref{"criteria"}};
  keys["AS_TOPO_SENS_"] = {Ref{"gradients"}};
  keys["AS_SHAPE_SENS_"] = {Ref{"morph"}};
  return storage;
}

/// The job of a storage, loaded and linked.
class LoadedJob
{
public:
  explicit LoadedJob(RecordingStorage storage) : m_storage(std::move(storage)), m_parfile(m_storage)
  {
    m_parfile.Load();
  }
  LoadedJob(const LoadedJob&) = delete;
  LoadedJob& operator=(const LoadedJob&) = delete;

  Gyre_Parfile* operator->() { return &m_parfile; }
  const ALGO_& Algorithm() const { return m_parfile.GetALGO_(); }
  const std::vector<std::string>& Calls() const { return m_storage.Calls(); }

private:
  RecordingStorage m_storage;
  Gyre_Parfile m_parfile;
};

/// The failure of a full job whose algorithm names \p id under \p key.
Failure FailureOfAlgorithmWith(const std::string& key, const std::string& id)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("ALGO_", "algorithm")[key] = {Ref{id}};
  return FailureOf([&] { LoadedJob{storage}; });
}

Failure UnknownId(const std::string& message)
{
  return {message, "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "};
}

Failure InvalidIndex(const std::string& message)
{
  return {message, "220653270608", "[%T|%n|%P|libxml2vtm|ALGO_] "};
}

void ExpectNoLists(const ALGO_& command)
{
  EXPECT_EQ(command.NumCONSTRAINT_(), 0U);
  EXPECT_THAT(command.GetCONSTRAINT_(), IsEmpty());
  EXPECT_EQ(command.NumDV_CONSTRAINT_(), 0U);
  EXPECT_THAT(command.GetDV_CONSTRAINT_(), IsEmpty());
  EXPECT_EQ(command.NumMESH_SMOOTH_(), 0U);
  EXPECT_THAT(command.GetMESH_SMOOTH_(), IsEmpty());
  EXPECT_EQ(command.NumMONITOR_(), 0U);
  EXPECT_THAT(command.GetMONITOR_(), IsEmpty());
}

void ExpectDefaults(const ALGO_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetSTRATEGY_(), 0);
  EXPECT_EQ(command.GetDEVELOPER_OUTPUT_(), 0);
  ExpectNoLists(command);
}

/// All of \p command as a full job links it, its commands being those of \p job.
void ExpectLinked(const ALGO_& command, LoadedJob& job)
{
  EXPECT_EQ(command.GetID_NAME_(), "algorithm");
  EXPECT_EQ(command.GetSTRATEGY_(), ALGO_::STRATEGY_SHAPE_SENS);
  EXPECT_EQ(&command.GetDV_(), &job->GetDV_("porosity"));
  EXPECT_EQ(&command.GetOBJ_FUNC_(), &job->GetOBJ_FUNC_());
  EXPECT_EQ(command.NumCONSTRAINT_(), 3U);
  EXPECT_THAT(command.GetCONSTRAINT_(), ElementsAre(&job->GetCONSTRAINT_("mass"), &job->GetCONSTRAINT_("volume"),
                                                    &job->GetCONSTRAINT_("pressure")));
  EXPECT_EQ(command.NumDV_CONSTRAINT_(), 2U);
  EXPECT_THAT(command.GetDV_CONSTRAINT_(),
              ElementsAre(&job->GetDV_CONSTRAINT_("stamp"), &job->GetDV_CONSTRAINT_("mirror")));
  EXPECT_EQ(&command.GetOPT_PARAM_(), &job->GetOPT_PARAM_("general"));
  EXPECT_EQ(&command.GetSTOP_(), &job->GetSTOP_("limits"));
  EXPECT_EQ(&command.GetPRE_PARAM_(), &job->GetPRE_PARAM_("flow"));
  EXPECT_EQ(command.NumMESH_SMOOTH_(), 1U);
  EXPECT_THAT(command.GetMESH_SMOOTH_(), ElementsAre(&job->GetMESH_SMOOTH_("relax")));
  EXPECT_EQ(command.NumMONITOR_(), 4U);
  EXPECT_THAT(command.GetMONITOR_(), ElementsAre(&job->GetMONITOR_("lift"), &job->GetMONITOR_("swirl"),
                                                 &job->GetMONITOR_("drag"), &job->GetMONITOR_("heat")));
  EXPECT_EQ(&command.GetAS_TOPO_OC_(), &job->GetAS_TOPO_OC_("criteria"));
  EXPECT_EQ(&command.GetAS_TOPO_SENS_(), &job->GetAS_TOPO_SENS_("gradients"));
  EXPECT_EQ(&command.GetAS_SHAPE_SENS_(), &job->GetAS_SHAPE_SENS_("morph"));
  EXPECT_EQ(command.GetDEVELOPER_OUTPUT_(), ALGO_::DEVELOPER_OUTPUT_YES);
}

}  // namespace

TEST(Algo, TellsItsNamesOfWhichOneIsAnotherWord)
{
  EXPECT_STREQ(ALGO_::COMMAND_NAME, "OPTIMIZE");
  EXPECT_EQ(ALGO_::s_type, "ALGO_");
  EXPECT_EQ(ALGO_().GetType(), "ALGO_");
  EXPECT_EQ(&ALGO_().GetType(), &ALGO_::s_type);
}

TEST(Algo, HandsOutItsListsWithoutCopyingThem)
{
  const ALGO_ command;
  StaticAssertTypeEq<const std::vector<const CONSTRAINT_*>&, decltype(command.GetCONSTRAINT_())>();
  StaticAssertTypeEq<const CONSTRAINT_&, decltype(command.GetCONSTRAINT_(1))>();
  StaticAssertTypeEq<const std::vector<const DV_CONSTRAINT_*>&, decltype(command.GetDV_CONSTRAINT_())>();
  StaticAssertTypeEq<const DV_CONSTRAINT_&, decltype(command.GetDV_CONSTRAINT_(1))>();
  StaticAssertTypeEq<const std::vector<const MESH_SMOOTH_*>&, decltype(command.GetMESH_SMOOTH_())>();
  StaticAssertTypeEq<const MESH_SMOOTH_&, decltype(command.GetMESH_SMOOTH_(1))>();
  StaticAssertTypeEq<const std::vector<const MONITOR_*>&, decltype(command.GetMONITOR_())>();
  StaticAssertTypeEq<const MONITOR_&, decltype(command.GetMONITOR_(1))>();
}

TEST(Algo, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(ALGO_());
}

TEST(Algo, LoadsItsDeveloperOutputRightAfterItsStrategyAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullJob();
  const ALGO_ command = LoadedAlone<ALGO_>(storage, "algorithm");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(ALGO_, algorithm, STRATEGY_, 1, vtmEnum)",
                                           "GetEnumValue(ALGO_, algorithm, DEVELOPER_OUTPUT_, 1, vtmEnum)"));
  EXPECT_EQ(command.GetID_NAME_(), "algorithm");
  EXPECT_EQ(command.GetSTRATEGY_(), ALGO_::STRATEGY_SHAPE_SENS);
  EXPECT_EQ(command.GetDEVELOPER_OUTPUT_(), ALGO_::DEVELOPER_OUTPUT_YES);
  ExpectNoLists(command);
}

TEST(Algo, LoadsTheSameWithoutAnyReference)
{
  const RecordingStorage storage = StorageWithAlgorithm();
  LoadedAlone<ALGO_>(storage, "algorithm");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(ALGO_, algorithm, STRATEGY_, 1, vtmEnum)",
                                           "GetEnumValue(ALGO_, algorithm, DEVELOPER_OUTPUT_, 1, vtmEnum)"));
}

TEST(Algo, KeepsItsDefaultsOnAStorageThatLeavesOutputsOfAbsentKeysAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  ExpectDefaults(LoadedAlone<ALGO_>(storage, ""));
}

TEST(Algo, DependsOnItsValuesOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithAlgorithm();
  storage.Command("ALGO_", "algorithm").erase("DEVELOPER_OUTPUT_");
  ALGO_ command;
  EXPECT_THROW(command.Load(storage, "algorithm"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "algorithm");
  EXPECT_EQ(command.GetSTRATEGY_(), ALGO_::STRATEGY_SHAPE_SENS);
  EXPECT_EQ(command.GetDEVELOPER_OUTPUT_(), 0);
}

TEST(Algo, NamesItsStrategies)
{
  ExpectEnumerators<ALGO_, ALGO_::Enum_STRATEGY_>({{ALGO_::STRATEGY_STRUCTURE_TOPO_SENS, 65, "STRUCTURE_TOPO_SENS"},
                                                   {ALGO_::STRATEGY_TOPO_OC, 79, "TOPO_OC"},
                                                   {ALGO_::STRATEGY_SHAPE_SENS, 83, "SHAPE_SENS"},
                                                   {ALGO_::STRATEGY_TOPO_SENS, 84, "TOPO_SENS"}});
  EXPECT_EQ(ALGO_::GetEnumName(static_cast<ALGO_::Enum_STRATEGY_>(0)), "INVALID");
  EXPECT_EQ(ALGO_::GetEnumName(static_cast<ALGO_::Enum_STRATEGY_>(85)), "INVALID");
}

TEST(Algo, NamesYesAndNoOfItsDeveloperOutput)
{
  ExpectEnumerators<ALGO_, ALGO_::Enum_DEVELOPER_OUTPUT_>(
    {{ALGO_::DEVELOPER_OUTPUT_NO, 70, "NO"}, {ALGO_::DEVELOPER_OUTPUT_YES, 84, "YES"}});
}

TEST(Algo, KeepsAStrategyOtherThanTheFourLettersAndPrintsItAsInvalid)
{
  for (const int number : {0, 66, 78, 115, -1, 1000})
  {
    SCOPED_TRACE(number);
    RecordingStorage storage = StorageWithAlgorithm();
    storage.Command("ALGO_", "algorithm")["STRATEGY_"] = {number};
    const ALGO_ command = LoadedAlone<ALGO_>(storage, "algorithm");
    EXPECT_EQ(command.GetSTRATEGY_(), number);
    EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_STRATEGY_: INVALID\n"));
  }
}

TEST(Algo, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(ALGO_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3522);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|ALGO_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_STRATEGY_: INVALID\n"
                         "m_DV_: \n"
                         "m_OBJ_FUNC_: \n"
                         "m_num_CONSTRAINT_: 0\n"
                         "m_CONSTRAINT_: [\n]\n"
                         "m_num_DV_CONSTRAINT_: 0\n"
                         "m_DV_CONSTRAINT_: [\n]\n"
                         "m_OPT_PARAM_: \n"
                         "m_STOP_: \n"
                         "m_PRE_PARAM_: \n"
                         "m_num_MESH_SMOOTH_: 0\n"
                         "m_MESH_SMOOTH_: [\n]\n"
                         "m_num_MONITOR_: 0\n"
                         "m_MONITOR_: [\n]\n"
                         "m_AS_TOPO_OC_: \n"
                         "m_AS_TOPO_SENS_: \n"
                         "m_AS_SHAPE_SENS_: \n"
                         "m_DEVELOPER_OUTPUT_: INVALID\n");
}

TEST(Algo, PrintsNothingForItsReferencesBeforeTheyAreResolved)
{
  EXPECT_EQ(LogRecordOf(LoadedAlone<ALGO_>(StorageWithFullJob(), "algorithm")).text, kUnlinkedText);
}

TEST(Algo, PrintsAllItHoldsOnceItIsLinked)
{
  const LoadedJob job(StorageWithFullJob());
  const KLV_LogRecord record = LogRecordOf(job.Algorithm());
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3522 [%T|%n|%P|OrvelCommands|ALGO_] ");
  EXPECT_EQ(record.text, kLinkedText);
}

TEST(Algo, PrintsAPercentSignInTheIdOfACommandItRefersToAsAConversion)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("STOP_", "at 5%% or %d");
  storage.Command("ALGO_", "algorithm")["STOP_"] = {Ref{"at 5%% or %d"}};
  const LoadedJob job(storage);
  EXPECT_EQ(job.Algorithm().GetSTOP_().GetID_NAME_(), "at 5%% or %d");
  EXPECT_THAT(LogRecordOf(job.Algorithm()).text, HasSubstr("m_STOP_: at 5% or 0\n"));
}

TEST(Algo, IsLinkedByTheNamesInItsReferenceKeys)
{
  LoadedJob job(StorageWithFullJob());
  ExpectLinked(job.Algorithm(), job);
  EXPECT_EQ(job.Algorithm().GetDV_().GetID_NAME_(), "porosity");
  EXPECT_EQ(job.Algorithm().GetOBJ_FUNC_().GetID_NAME_(), "objective");
  EXPECT_THAT(IdsOf(job.Algorithm().GetCONSTRAINT_()), ElementsAre("mass", "volume", "pressure"));
  EXPECT_THAT(IdsOf(job.Algorithm().GetMONITOR_()), ElementsAre("lift", "swirl", "drag", "heat"));
}

TEST(Algo, AsksForItsReferencesInOrderAndForEachListFromTheFirstToTheLastValue)
{
  const LoadedJob job(StorageWithFullJob());
  std::vector<std::string> links;
  for (const std::string& call : job.Calls())
  {
    const bool is_about_algorithm = call.find("(ALGO_, algorithm, ") != std::string::npos;
    if (is_about_algorithm && call.find("GetEnumValue") == std::string::npos)
    {
      links.push_back(call);
    }
  }
  EXPECT_THAT(
    links, ElementsAre(
             "GetReference(ALGO_, algorithm, DV_, 1)", "GetReference(ALGO_, algorithm, OBJ_FUNC_, 1)",
             "GetNumElements(ALGO_, algorithm, CONSTRAINT_)", "GetReference(ALGO_, algorithm, CONSTRAINT_, 1)",
             "GetReference(ALGO_, algorithm, CONSTRAINT_, 2)", "GetReference(ALGO_, algorithm, CONSTRAINT_, 3)",
             "GetNumElements(ALGO_, algorithm, DV_CONSTRAINT_)", "GetReference(ALGO_, algorithm, DV_CONSTRAINT_, 1)",
             "GetReference(ALGO_, algorithm, DV_CONSTRAINT_, 2)", "GetReference(ALGO_, algorithm, OPT_PARAM_, 1)",
             "GetReference(ALGO_, algorithm, STOP_, 1)", "GetReference(ALGO_, algorithm, PRE_PARAM_, 1)",
             "GetNumElements(ALGO_, algorithm, MESH_SMOOTH_)", "GetReference(ALGO_, algorithm, MESH_SMOOTH_, 1)",
             "GetNumElements(ALGO_, algorithm, MONITOR_)", "GetReference(ALGO_, algorithm, MONITOR_, 1)",
             "GetReference(ALGO_, algorithm, MONITOR_, 2)", "GetReference(ALGO_, algorithm, MONITOR_, 3)",
             "GetReference(ALGO_, algorithm, MONITOR_, 4)", "GetReference(ALGO_, algorithm, AS_TOPO_OC_, 1)",
             "GetReference(ALGO_, algorithm, AS_TOPO_SENS_, 1)", "GetReference(ALGO_, algorithm, AS_SHAPE_SENS_, 1)"));
}

TEST(Algo, ReadsNothingFromListsThatAreAbsent)
{
  const LinkedJob job(StorageWithAlgorithm());
  EXPECT_THAT(
    job.CallsAbout("ALGO_", "algorithm"),
    ElementsAre("GetEnumValue(ALGO_, algorithm, STRATEGY_, 1, vtmEnum)",
                "GetEnumValue(ALGO_, algorithm, DEVELOPER_OUTPUT_, 1, vtmEnum)",
                "GetReference(ALGO_, algorithm, DV_, 1)", "GetReference(ALGO_, algorithm, OBJ_FUNC_, 1)",
                "GetNumElements(ALGO_, algorithm, CONSTRAINT_)", "GetNumElements(ALGO_, algorithm, DV_CONSTRAINT_)",
                "GetReference(ALGO_, algorithm, OPT_PARAM_, 1)", "GetReference(ALGO_, algorithm, STOP_, 1)",
                "GetReference(ALGO_, algorithm, PRE_PARAM_, 1)", "GetNumElements(ALGO_, algorithm, MESH_SMOOTH_)",
                "GetNumElements(ALGO_, algorithm, MONITOR_)", "GetReference(ALGO_, algorithm, AS_TOPO_OC_, 1)",
                "GetReference(ALGO_, algorithm, AS_TOPO_SENS_, 1)",
                "GetReference(ALGO_, algorithm, AS_SHAPE_SENS_, 1)"));
}

TEST(Algo, IsFoundByPlacesCountedFromZeroAndNeverByAskingWhetherItExists)
{
  const LoadedJob job(StorageWithFullJob());
  EXPECT_THAT(job.Calls(), Contains("GetCommandName(ALGO_, 0)"));
  EXPECT_THAT(job.Calls(), Not(Contains("GetCommandName(ALGO_, 1)")));
  EXPECT_THAT(job.Calls(), Contains("GetCommandName(MONITOR_, 0)"));
  EXPECT_THAT(job.Calls(), Contains("GetCommandName(MONITOR_, 3)"));
  EXPECT_THAT(job.Calls(), Not(Contains("GetCommandName(MONITOR_, 4)")));
  EXPECT_THAT(job.Calls(), Not(Contains(StartsWith("HasCommand"))));
}

TEST(Algo, TellsCommandsOfOneNameApartByTheirKinds)
{
  LinkedJob job(StorageWithAlgorithm());
  const ALGO_& command = job->GetALGO_();
  EXPECT_EQ(command.GetSTOP_().GetID_NAME_(), "settings");
  EXPECT_EQ(command.GetOPT_PARAM_().GetID_NAME_(), "settings");
  EXPECT_EQ(command.GetSTOP_().GetType(), "STOP_");
  EXPECT_EQ(command.GetOPT_PARAM_().GetType(), "OPT_PARAM_");
}

TEST(Algo, ListsACommandTwiceThatIsNamedTwice)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("ALGO_", "algorithm")["CONSTRAINT_"] = {Ref{"mass"}, Ref{"mass"}};
  LoadedJob job(storage);
  EXPECT_EQ(job.Algorithm().NumCONSTRAINT_(), 2U);
  EXPECT_THAT(job.Algorithm().GetCONSTRAINT_(),
              ElementsAre(&job->GetCONSTRAINT_("mass"), &job->GetCONSTRAINT_("mass")));
}

TEST(Algo, IsLinkedToTheEarlierOfTwoCommandsOfOneName)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.AddSecondCommand("STOP_", "limits");
  LoadedJob job(storage);
  ASSERT_EQ(job->NumSTOP_(), 3U);
  EXPECT_EQ(&job.Algorithm().GetSTOP_(), &job->GetSTOP_(2));
}

TEST(Algo, IsLinkedToAnEmptyObjectiveUnderAWrongName)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("ALGO_", "algorithm")["OBJ_FUNC_"] = {Ref{"missing"}};
  LoadedJob job(storage);
  EXPECT_EQ(job.Algorithm().GetOBJ_FUNC_().GetID_NAME_(), "");
  EXPECT_EQ(&job.Algorithm().GetOBJ_FUNC_(), &job->GetOBJ_FUNC_("missing"));
  EXPECT_NE(&job.Algorithm().GetOBJ_FUNC_(), &job->GetOBJ_FUNC_());
  EXPECT_THAT(LogRecordOf(job.Algorithm()).text, HasSubstr("m_OBJ_FUNC_: \n"));
}

TEST(Algo, EndsTheLoadOfAJobWhenAnyOtherReferenceNamesNoCommand)
{
  EXPECT_EQ(FailureOfAlgorithmWith("DV_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command DV_"));
  EXPECT_EQ(FailureOfAlgorithmWith("CONSTRAINT_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command CONSTRAINT_"));
  EXPECT_EQ(FailureOfAlgorithmWith("DV_CONSTRAINT_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command DV_CONSTRAINT_"));
  EXPECT_EQ(FailureOfAlgorithmWith("OPT_PARAM_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command OPT_PARAM_"));
  EXPECT_EQ(FailureOfAlgorithmWith("STOP_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command STOP_"));
  EXPECT_EQ(FailureOfAlgorithmWith("PRE_PARAM_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command PRE_PARAM_"));
  EXPECT_EQ(FailureOfAlgorithmWith("MESH_SMOOTH_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command MESH_SMOOTH_"));
  EXPECT_EQ(FailureOfAlgorithmWith("MONITOR_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command MONITOR_"));
  EXPECT_EQ(FailureOfAlgorithmWith("AS_TOPO_OC_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command AS_TOPO_OC_"));
  EXPECT_EQ(FailureOfAlgorithmWith("AS_TOPO_SENS_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command AS_TOPO_SENS_"));
  EXPECT_EQ(FailureOfAlgorithmWith("AS_SHAPE_SENS_", "missing"),
            UnknownId("Invalid ID missing of the parameter file command AS_SHAPE_SENS_"));
}

TEST(Algo, NeedsItsSingleReferencesBecauseNobodyAsksWhetherTheyArePresent)
{
  for (const char* key : {"DV_", "OPT_PARAM_", "STOP_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    SCOPED_TRACE(key);
    RecordingStorage storage = StorageWithFullJob();
    storage.Command("ALGO_", "algorithm").erase(key);
    const Failure failure = FailureOf([&] { LoadedJob{storage}; });
    EXPECT_EQ(failure.message, "Invalid ID  of the parameter file command " + std::string(key));
    EXPECT_EQ(failure.code, "161700240908");
  }
}

TEST(Algo, GetsByOnASingleReferenceWithoutANameWhenACommandHasNone)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("ALGO_", "algorithm").erase("PRE_PARAM_");
  storage.Command("PRE_PARAM_", "");
  LoadedJob job(storage);
  EXPECT_EQ(&job.Algorithm().GetPRE_PARAM_(), &job->GetPRE_PARAM_(""));
}

TEST(Algo, IsLinkedUpToTheReferenceThatEndsTheLoad)
{
  RecordingStorage storage = StorageWithFullJob();
  storage.Command("ALGO_", "algorithm")["DV_CONSTRAINT_"] = {Ref{"stamp"}, Ref{"missing"}};
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  const ALGO_& command = parfile.GetALGO_();
  EXPECT_EQ(command.GetDV_().GetID_NAME_(), "porosity");
  EXPECT_EQ(command.NumCONSTRAINT_(), 3U);
  EXPECT_EQ(command.NumDV_CONSTRAINT_(), 2U);
  EXPECT_THAT(IdsOf(command.GetDV_CONSTRAINT_()), ElementsAre("stamp"));
  EXPECT_EQ(command.NumMONITOR_(), 0U);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_OPT_PARAM_: \nm_STOP_: \nm_PRE_PARAM_: \n"));
}

TEST(Algo, GivesTheCommandsOfItsListsByPlacesCountedFromOne)
{
  LoadedJob job(StorageWithFullJob());
  const ALGO_& command = job.Algorithm();
  EXPECT_EQ(&command.GetCONSTRAINT_(1), &job->GetCONSTRAINT_("mass"));
  EXPECT_EQ(&command.GetCONSTRAINT_(2), &job->GetCONSTRAINT_("volume"));
  EXPECT_EQ(&command.GetCONSTRAINT_(command.NumCONSTRAINT_()), &job->GetCONSTRAINT_("pressure"));
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(1), &job->GetDV_CONSTRAINT_("stamp"));
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(command.NumDV_CONSTRAINT_()), &job->GetDV_CONSTRAINT_("mirror"));
  EXPECT_EQ(&command.GetMESH_SMOOTH_(command.NumMESH_SMOOTH_()), &job->GetMESH_SMOOTH_("relax"));
  EXPECT_EQ(&command.GetMONITOR_(1), &job->GetMONITOR_("lift"));
  EXPECT_EQ(&command.GetMONITOR_(command.NumMONITOR_()), &job->GetMONITOR_("heat"));
}

TEST(Algo, RefusesThePlaceZeroOfListsThatAreNotEmpty)
{
  const LoadedJob job(StorageWithFullJob());
  const ALGO_& command = job.Algorithm();
  EXPECT_EQ(FailureOf([&] { command.GetCONSTRAINT_(0); }),
            InvalidIndex("Invalid index 0 of the parameterfile value CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 3."));
  EXPECT_EQ(FailureOf([&] { command.GetDV_CONSTRAINT_(0); }),
            InvalidIndex("Invalid index 0 of the parameterfile value DV_CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 2."));
  EXPECT_EQ(FailureOf([&] { command.GetMESH_SMOOTH_(0); }),
            InvalidIndex("Invalid index 0 of the parameterfile value MESH_SMOOTH_ to retrieve from ALGO_. "
                         "Number of available values is 1."));
  EXPECT_EQ(FailureOf([&] { command.GetMONITOR_(0); }),
            InvalidIndex("Invalid index 0 of the parameterfile value MONITOR_ to retrieve from ALGO_. "
                         "Number of available values is 4."));
}

TEST(Algo, RefusesThePlaceAfterTheLastOfItsLists)
{
  const LoadedJob job(StorageWithFullJob());
  const ALGO_& command = job.Algorithm();
  EXPECT_EQ(FailureOf([&] { command.GetCONSTRAINT_(4); }),
            InvalidIndex("Invalid index 4 of the parameterfile value CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 3."));
  EXPECT_EQ(FailureOf([&] { command.GetDV_CONSTRAINT_(3); }),
            InvalidIndex("Invalid index 3 of the parameterfile value DV_CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 2."));
  EXPECT_EQ(FailureOf([&] { command.GetMESH_SMOOTH_(2); }),
            InvalidIndex("Invalid index 2 of the parameterfile value MESH_SMOOTH_ to retrieve from ALGO_. "
                         "Number of available values is 1."));
  EXPECT_EQ(FailureOf([&] { command.GetMONITOR_(5); }),
            InvalidIndex("Invalid index 5 of the parameterfile value MONITOR_ to retrieve from ALGO_. "
                         "Number of available values is 4."));
}

TEST(Algo, RefusesTheFirstPlaceOfEmptyLists)
{
  const ALGO_ command;
  EXPECT_EQ(FailureOf([&] { command.GetCONSTRAINT_(1); }),
            InvalidIndex("Invalid index 1 of the parameterfile value CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 0."));
  EXPECT_EQ(FailureOf([&] { command.GetDV_CONSTRAINT_(1); }),
            InvalidIndex("Invalid index 1 of the parameterfile value DV_CONSTRAINT_ to retrieve from ALGO_. "
                         "Number of available values is 0."));
  EXPECT_EQ(FailureOf([&] { command.GetMESH_SMOOTH_(1); }),
            InvalidIndex("Invalid index 1 of the parameterfile value MESH_SMOOTH_ to retrieve from ALGO_. "
                         "Number of available values is 0."));
}

TEST(Algo, RefusesTheFirstMonitorOfAJobWithoutMonitors)
{
  LinkedJob job(StorageWithAlgorithm());
  EXPECT_EQ(FailureOf([&] { job->GetALGO_().GetMONITOR_(1); }),
            InvalidIndex("Invalid index 1 of the parameterfile value MONITOR_ to retrieve from ALGO_. "
                         "Number of available values is 0."));
}

TEST(Algo, TellsAVeryLargePlaceInFull)
{
  const ALGO_ command;
  EXPECT_EQ(FailureOf([&] { command.GetMONITOR_(std::numeric_limits<std::uint64_t>::max()); }),
            InvalidIndex("Invalid index 18446744073709551615 of the parameterfile value MONITOR_ to retrieve "
                         "from ALGO_. Number of available values is 0."));
  EXPECT_EQ(FailureOf([&] { command.GetCONSTRAINT_(4294967296U); }).message,
            "Invalid index 4294967296 of the parameterfile value CONSTRAINT_ to retrieve from ALGO_. "
            "Number of available values is 0.");
}

TEST(Algo, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullJob();
  ALGO_ command = LoadedAlone<ALGO_>(storage, "algorithm");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "algorithm"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Algo, IsTheEmptyOneForAnIdThatTheJobDoesNotHave)
{
  LoadedJob job(StorageWithFullJob());
  EXPECT_EQ(&job->GetALGO_("algorithm"), &job.Algorithm());
  ExpectDefaults(job->GetALGO_("another"));
}

TEST(Algo, RefersToTheSameCommandsInACopy)
{
  LoadedJob job(StorageWithFullJob());
  const ALGO_ copy(job.Algorithm());
  ExpectLinked(copy, job);
  EXPECT_NE(&copy.GetMONITOR_(), &job.Algorithm().GetMONITOR_());
  EXPECT_EQ(LogRecordOf(copy).text, kLinkedText);
}

TEST(Algo, LeavesTheCommandsThatItRefersToAliveWhenItEnds)
{
  LoadedJob job(StorageWithFullJob());
  {
    const ALGO_ copy(job.Algorithm());
  }
  EXPECT_EQ(LogRecordOf(job.Algorithm()).text, kLinkedText);
}

TEST(Algo, TakesAllValuesOfAnotherOne)
{
  LoadedJob job(StorageWithFullJob());
  const ALGO_& full = job.Algorithm();
  ALGO_ command;
  static_assert(std::is_same_v<ALGO_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectLinked(command, job);
  command = ALGO_();
  ExpectDefaults(command);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_OPT_PARAM_: \nm_STOP_: \nm_PRE_PARAM_: \n"));
}

TEST(Algo, KeepsItsValuesWhenItIsAssignedToItself)
{
  LoadedJob job(StorageWithFullJob());
  ALGO_ command(job.Algorithm());
  const ALGO_& same = command;
  command = same;
  ExpectLinked(command, job);
}
