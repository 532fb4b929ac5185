#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/failures.h"
#include "support/gyre_kinds.h"
#include "support/OpenDatabase.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

// A loaded aggregate on a storage that can be changed.
struct LoadedJob
{
  explicit LoadedJob(RecordingStorage job) : storage(std::move(job))
  {
    parfile.Load();
    storage.ForgetCalls();
  }

  RecordingStorage storage;
  Gyre_Parfile parfile{storage};
};

RecordingStorage LeastJob()
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  return storage;
}

void AddAllNamesOfTheCompleteJob(OpenDatabase& database)
{
  database.Add(KLV_IdType::element_group, {"bend", "inlet", "duct"});
  database.Add(KLV_IdType::face_group, {"lid", "walls", "inlet", "outlet", "drain"});
  database.Add(KLV_IdType::node_group, {"edge", "corners"});
}

// How a job ends whose element group "duct" merges these names, in a model without any name.
Failure FailureOfMerging(const std::vector<std::string>& names)
{
  RecordingStorage job = LeastJob();
  job.Command("ELEMENT_GROUP_", "duct")["MERGE_"].assign(names.begin(), names.end());
  LoadedJob loaded(job);
  const OpenDatabase database;
  return FailureOf([&] { loaded.parfile.ValidateModelIds(); });
}

std::string HeadFor(const std::string& count)
{
  return count + " model IDs referenced in the parameter file cannot be found.\n"
                 "Please check your parameterfile for errors.\n";
}

std::string LinesFor(const std::string& value, const std::string& parameter, const std::string& command,
                     const std::string& id)
{
  return "Referenced ID is not found\n  Value \"" + value + "\" of parameter \"" + parameter +
         "\" is erroneous\n  In \"" + command + "\" command with ID_NAME \"" + id + "\"\n";
}

}  // namespace

TEST(GyreParfileValidation, PassesWhenTheModelKnowsAllNames)
{
  LoadedJob job(CompleteJob());
  OpenDatabase database;
  AddAllNamesOfTheCompleteJob(database);
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }), kNoFailure);
}

TEST(GyreParfileValidation, VisitsAllCommandsOfAllKindsInTheOrderOfLoading)
{
  LoadedJob job(CompleteJob());
  OpenDatabase database;
  AddAllNamesOfTheCompleteJob(database);
  job.parfile.ValidateModelIds();
  EXPECT_THAT(
    job.storage.Calls(),
    ElementsAre("GetCommandName(MODEL_, 0)", "GetCommandName(ELEMENT_GROUP_, 0)",
                "GetValue(ELEMENT_GROUP_, duct, MERGE_, 1, vtmModelId, string)",
                "GetValue(ELEMENT_GROUP_, duct, MERGE_, 2, vtmModelId, string)", "GetCommandName(FACE_GROUP_, 0)",
                "GetValue(FACE_GROUP_, walls, XOR_, 1, vtmModelId, string)", "GetCommandName(NODE_GROUP_, 0)",
                "GetValue(NODE_GROUP_, corners, SUBTRACT_, 1, vtmModelId, string)", "GetCommandName(DV_, 0)",
                "GetValue(DV_, variable, ELEMENT_GROUP_, 1, vtmModelId, string)", "GetCommandName(DV_, 1)",
                "GetCommandName(DRESP_, 0)", "GetCommandName(DRESP_, 1)",
                "GetValue(DRESP_, pressure, FACE_GROUP_, 1, vtmModelId, string)", "GetCommandName(OPERATOR_, 0)",
                "GetCommandName(OPERATOR_, 1)", "GetCommandName(OBJ_FUNC_, 0)", "GetCommandName(CONSTRAINT_, 0)",
                "GetCommandName(CONSTRAINT_, 1)", "GetCommandName(CS_, 0)", "GetCommandName(DV_CONSTRAINT_, 0)",
                "GetValue(DV_CONSTRAINT_, mirror, NODE_GROUP_, 1, vtmModelId, string)",
                "GetCommandName(DV_CONSTRAINT_, 1)", "GetCommandName(MONITOR_, 0)", "GetCommandName(ALGO_, 0)",
                "GetCommandName(OPT_PARAM_, 0)", "GetCommandName(STOP_, 0)", "GetCommandName(MESH_SMOOTH_, 0)",
                "GetValue(MESH_SMOOTH_, laplace, FACE_GROUP_, 1, vtmModelId, string)",
                "GetCommandName(MESH_SMOOTH_, 1)", "GetCommandName(FILTER_, 0)",
                "GetValue(FILTER_, fine, NODE_GROUP_, 1, vtmModelId, string)", "GetCommandName(FILTER_, 1)",
                "GetCommandName(PRE_PARAM_, 0)", "GetCommandName(AS_TOPO_OC_, 0)", "GetCommandName(AS_TOPO_SENS_, 0)",
                "GetCommandName(AS_SHAPE_SENS_, 0)", "GetCommandName(FLOWPATHS_, 0)",
                "GetValue(FLOWPATHS_, paths, IN_, 1, vtmModelId, string)",
                "GetValue(FLOWPATHS_, paths, OUT_, 1, vtmModelId, string)",
                "GetValue(FLOWPATHS_, paths, OUT_, 2, vtmModelId, string)", "GetCommandName(OUTPUT_, 0)",
                "GetValue(OUTPUT_, picture, ELEMENT_GROUP_, 1, vtmModelId, string)",
                "GetCommandName(SCALING_CURVE_, 0)", "GetCommandName(SMOOTH_, 0)"));
}

TEST(GyreParfileValidation, PassesWithoutModelReferencesWithADatabase)
{
  LoadedJob job(LeastJob());
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }), kNoFailure);
}

TEST(GyreParfileValidation, PassesWithoutModelReferencesWithoutADatabase)
{
  ASSERT_EQ(OrvelDbInstance::s_Singleton, nullptr);
  LoadedJob job(LeastJob());
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }), kNoFailure);
}

TEST(GyreParfileValidation, PassesOnAnAggregateThatWasNeverLoadedAndAsksNothing)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.ValidateModelIds(); }), kNoFailure);
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(GyreParfileValidation, FailsClearlyWithoutADatabaseWhenThereIsANameToCheck)
{
  ASSERT_EQ(OrvelDbInstance::s_Singleton, nullptr);
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend")};
  LoadedJob job(storage);
  const Failure failure = FailureOf([&] { job.parfile.ValidateModelIds(); });
  EXPECT_THAT(failure.message,
              AllOf(HasSubstr("No optimization database is open"), HasSubstr("ELEMENT_GROUP"), HasSubstr("duct")));
  EXPECT_EQ(failure.code, "");
}

TEST(GyreParfileValidation, TellsOneUnknownNameInThePluralToo)
{
  EXPECT_EQ(FailureOfMerging({"no_such_group"}).message,
            "1 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            "  Value \"no_such_group\" of parameter \"MERGE\" is erroneous\n"
            "  In \"ELEMENT_GROUP\" command with ID_NAME \"duct\"\n");
}

TEST(GyreParfileValidation, FailsWithoutACodeAndWithItsPrefix)
{
  const Failure failure = FailureOfMerging({"no_such_group"});
  EXPECT_EQ(failure.code, "");
  EXPECT_EQ(failure.prefix, "[%T|%n|%P|OrvelCommands|Gyre_Parfile] ");
}

TEST(GyreParfileValidation, FailsWithTheStatusOfAFailureWithoutACode)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend")};
  LoadedJob job(storage);
  const OpenDatabase database;
  try
  {
    job.parfile.ValidateModelIds();
    FAIL() << "nothing was thrown";
  }
  catch (const KLV_Failure& failure)
  {
    EXPECT_FALSE(failure.GetCode().exists());
    EXPECT_EQ(failure.GetStatus(), -14);
    EXPECT_EQ(failure.GetCause(), nullptr);
  }
}

TEST(GyreParfileValidation, TellsFaultsInTheOrderOfTheKindsAndNotOfTheFile)
{
  RecordingStorage storage = LeastJob();
  storage.Command("FLOWPATHS_", "paths")["IN_"] = {std::string("wrong_in")};
  storage.Command("FILTER_", "fine")["NODE_GROUP_"] = {std::string("wrong_nodes")};
  storage.Command("DV_", "variable")["ELEMENT_GROUP_"] = {std::string("wrong_elements")};
  storage.Command("FACE_GROUP_", "walls")["MERGE_"] = {std::string("wrong_faces")};
  LoadedJob job(storage);
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            "4 model IDs referenced in the parameter file cannot be found.\n"
            "Please check your parameterfile for errors.\n"
            "Referenced ID is not found\n"
            "  Value \"wrong_faces\" of parameter \"MERGE\" is erroneous\n"
            "  In \"FACE_GROUP\" command with ID_NAME \"walls\"\n"
            "Referenced ID is not found\n"
            "  Value \"wrong_elements\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
            "  In \"DV\" command with ID_NAME \"variable\"\n"
            "Referenced ID is not found\n"
            "  Value \"wrong_nodes\" of parameter \"NODE_GROUP\" is erroneous\n"
            "  In \"FILTER\" command with ID_NAME \"fine\"\n"
            "Referenced ID is not found\n"
            "  Value \"wrong_in\" of parameter \"IN\" is erroneous\n"
            "  In \"FLOWPATHS\" command with ID_NAME \"paths\"\n");
}

TEST(GyreParfileValidation, FindsAFaultInEachOfTheTenKindsThatHaveModelReferences)
{
  struct Row
  {
    const char* kind;
    const char* id;
    const char* key;
    const char* lines;
  };
  const std::vector<Row> rows = {
    {"ELEMENT_GROUP_", "one", "XOR_", "\"wrong\" of parameter \"XOR\" is erroneous\n  In \"ELEMENT_GROUP\" command"},
    {"FACE_GROUP_", "one", "MERGE_", "\"wrong\" of parameter \"MERGE\" is erroneous\n  In \"FACE_GROUP\" command"},
    {"NODE_GROUP_", "one", "INTERSECT_",
     "\"wrong\" of parameter \"INTERSECT\" is erroneous\n  In \"NODE_GROUP\" command"},
    {"DV_", "one", "NODE_GROUP_", "\"wrong\" of parameter \"NODE_GROUP\" is erroneous\n  In \"DV\" command"},
    {"DRESP_", "one", "CS_REF_", "\"wrong\" of parameter \"CS_REF\" is erroneous\n  In \"DRESP\" command"},
    {"DV_CONSTRAINT_", "one", "CHECK_GROUP_",
     "\"wrong\" of parameter \"CHECK_GROUP\" is erroneous\n  In \"DV_CONSTRAINT\" command"},
    {"MESH_SMOOTH_", "one", "FACE_GROUP_",
     "\"wrong\" of parameter \"FACE_GROUP\" is erroneous\n  In \"MESH_SMOOTH\" command"},
    {"FILTER_", "one", "ELEMENT_GROUP_",
     "\"wrong\" of parameter \"ELEMENT_GROUP\" is erroneous\n  In \"FILTER\" command"},
    {"FLOWPATHS_", "paths", "OUT_", "\"wrong\" of parameter \"OUT\" is erroneous\n  In \"FLOWPATHS\" command"},
    {"OUTPUT_", "one", "ELEMENT_GROUP_",
     "\"wrong\" of parameter \"ELEMENT_GROUP\" is erroneous\n  In \"OUTPUT\" command"},
  };
  for (const Row& row : rows)
  {
    SCOPED_TRACE(row.kind);
    RecordingStorage storage = LeastJob();
    storage.Command(row.kind, row.id)[row.key] = {std::string("wrong")};
    LoadedJob job(storage);
    const OpenDatabase database;
    EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
              HeadFor("1") + "Referenced ID is not found\n  Value " + row.lines + " with ID_NAME \"" + row.id + "\"\n");
  }
}

TEST(GyreParfileValidation, TellsTheSameUnknownNameOfTwoCommandsTwice)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "one")["MERGE_"] = {std::string("wrong")};
  storage.Command("ELEMENT_GROUP_", "two")["MERGE_"] = {std::string("wrong")};
  LoadedJob job(storage);
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            HeadFor("2") + LinesFor("wrong", "MERGE", "ELEMENT_GROUP", "one") +
              LinesFor("wrong", "MERGE", "ELEMENT_GROUP", "two"));
}

TEST(GyreParfileValidation, AsksTheModelAndNotTheCommandsOfTheFile)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct");
  storage.Command("ELEMENT_GROUP_", "bend")["MERGE_"] = {std::string("duct")};
  LoadedJob job(storage);
  OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            HeadFor("1") + LinesFor("duct", "MERGE", "ELEMENT_GROUP", "bend"));
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }), kNoFailure);
}

TEST(GyreParfileValidation, CutsALongListAt1023CharactersAndTellsTheTrueCount)
{
  const std::string value(40, 'v');
  std::string whole = HeadFor("20");
  for (int i = 0; i < 20; ++i)
  {
    whole += LinesFor(value, "MERGE", "ELEMENT_GROUP", "duct");
  }
  const Failure failure = FailureOfMerging(std::vector<std::string>(20, value));
  EXPECT_EQ(failure.message.size(), 1023U);
  EXPECT_EQ(failure.message, whole.substr(0, 1023));
  EXPECT_EQ(failure.message.rfind("20 model IDs referenced in the parameter file cannot be found.\n", 0), 0U);
  EXPECT_NE(failure.message.back(), '\n') << "the cut is in the middle of a line";
}

TEST(GyreParfileValidation, KeepsAListOf1023CharactersWhole)
{
  const std::size_t around_the_value = (HeadFor("1") + LinesFor("", "MERGE", "ELEMENT_GROUP", "duct")).size();
  const std::string value(1023 - around_the_value, 'v');
  const std::string message = FailureOfMerging({value}).message;
  EXPECT_EQ(message.size(), 1023U);
  EXPECT_EQ(message, HeadFor("1") + LinesFor(value, "MERGE", "ELEMENT_GROUP", "duct"));
}

TEST(GyreParfileValidation, TakesAPercentSignInANameAsAConversion)
{
  EXPECT_EQ(FailureOfMerging({"50%done"}).message, HeadFor("1") + LinesFor("500one", "MERGE", "ELEMENT_GROUP", "duct"));
  EXPECT_EQ(FailureOfMerging({"a%sb"}).message, HeadFor("1") + LinesFor("ab", "MERGE", "ELEMENT_GROUP", "duct"));
  EXPECT_EQ(FailureOfMerging({"a%%b"}).message, HeadFor("1") + LinesFor("a%b", "MERGE", "ELEMENT_GROUP", "duct"));
  EXPECT_EQ(FailureOfMerging({"a%nb"}).message, HeadFor("1") + LinesFor("ab", "MERGE", "ELEMENT_GROUP", "duct"));
  EXPECT_EQ(FailureOfMerging({"a%3xb"}).message, HeadFor("1") + LinesFor("a  0b", "MERGE", "ELEMENT_GROUP", "duct"));
}

TEST(GyreParfileValidation, EndsItsTextAtACharacterConversionInAName)
{
  EXPECT_EQ(FailureOfMerging({"a%cb", "another"}).message, HeadFor("2") + "Referenced ID is not found\n  Value \"a");
}

TEST(GyreParfileValidation, TakesAPercentSignInAnIdNameAsAConversion)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "100%dense")["MERGE_"] = {std::string("wrong")};
  LoadedJob job(storage);
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            HeadFor("1") + LinesFor("wrong", "MERGE", "ELEMENT_GROUP", "1000ense"));
}

TEST(GyreParfileValidation, AsksTheStorageByTheNamesThatItHasNow)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend")};
  LoadedJob job(storage);
  job.storage.RemoveCommands("ELEMENT_GROUP_");
  job.storage.Command("ELEMENT_GROUP_", "renamed")["MERGE_"] = {std::string("elbow")};
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            HeadFor("1") + LinesFor("elbow", "MERGE", "ELEMENT_GROUP", "duct"))
    << "the value comes from the storage, the id in the text is the command's own";
  EXPECT_THAT(job.storage.Calls(),
              testing::Contains("GetValue(ELEMENT_GROUP_, renamed, MERGE_, 1, vtmModelId, string)"));
}

TEST(GyreParfileValidation, LetsTheFailureOfTheStoragePassAndDropsTheProblems)
{
  RecordingStorage storage = CompleteJob();
  LoadedJob job(storage);
  job.storage.FailOn("GetCommandName(SMOOTH_, 0)");
  const OpenDatabase database;
  EXPECT_THROW(job.parfile.ValidateModelIds(), FailedOnDemand);
  EXPECT_EQ(job.parfile.GetDV_("variable").GetID_NAME_(), "variable");
}

TEST(GyreParfileValidation, LetsTheFailureOfAReadWithinACheckPass)
{
  LoadedJob job(CompleteJob());
  job.storage.FailOn("GetValue(FILTER_, fine, NODE_GROUP_, 1, vtmModelId, string)");
  const OpenDatabase database;
  EXPECT_THROW(job.parfile.ValidateModelIds(), FailedOnDemand);
  EXPECT_EQ(job.storage.Calls().back(), "GetValue(FILTER_, fine, NODE_GROUP_, 1, vtmModelId, string)");
}

TEST(GyreParfileValidation, AsksAlsoTheKindsWithoutModelReferencesForTheirNames)
{
  for (const char* kind :
       {"MODEL_", "OPERATOR_", "OBJ_FUNC_", "CONSTRAINT_", "CS_", "MONITOR_", "ALGO_", "OPT_PARAM_", "STOP_",
        "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_", "SCALING_CURVE_", "SMOOTH_"})
  {
    LoadedJob job(CompleteJob());
    job.storage.FailOn(std::string("GetCommandName(") + kind + ", 0)");
    const OpenDatabase database;
    EXPECT_THROW(job.parfile.ValidateModelIds(), FailedOnDemand) << kind;
  }
}

TEST(GyreParfileValidation, FindsTheSameProblemsWhenItIsRepeated)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend"), std::string("inlet")};
  LoadedJob job(storage);
  const OpenDatabase database;
  const Failure first = FailureOf([&] { job.parfile.ValidateModelIds(); });
  EXPECT_EQ(first.message, HeadFor("2") + LinesFor("bend", "MERGE", "ELEMENT_GROUP", "duct") +
                             LinesFor("inlet", "MERGE", "ELEMENT_GROUP", "duct"));
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }), first);
}

TEST(GyreParfileValidation, SeesWhatTheModelHasLearntMeanwhile)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend"), std::string("inlet")};
  LoadedJob job(storage);
  OpenDatabase database;
  EXPECT_THROW(job.parfile.ValidateModelIds(), KLV_Failure);
  database.Add(KLV_IdType::element_group, {"bend"});
  EXPECT_EQ(FailureOf([&] { job.parfile.ValidateModelIds(); }).message,
            HeadFor("1") + LinesFor("inlet", "MERGE", "ELEMENT_GROUP", "duct"));
}

TEST(GyreParfileValidation, ChangesNothingInTheAggregate)
{
  LoadedJob job(CompleteJob());
  const OpenDatabase database;
  const std::vector<std::string> counts = CommandCounts(job.parfile);
  const std::vector<DV_*> variables = job.parfile.GetDV_();
  EXPECT_THROW(job.parfile.ValidateModelIds(), KLV_Failure);
  EXPECT_EQ(CommandCounts(job.parfile), counts);
  EXPECT_EQ(job.parfile.GetDV_(), variables);
  EXPECT_EQ(job.parfile.GetDV_("variable").GetELEMENT_GROUP_(), "duct");
  EXPECT_EQ(job.parfile.GetDV_("variable").NumFILTER_(), 2U);
}

TEST(GyreParfileValidation, WorksOnWhatAFailedLoadLeft)
{
  RecordingStorage storage = LeastJob();
  storage.Command("ELEMENT_GROUP_", "duct")["MERGE_"] = {std::string("bend")};
  storage.RemoveCommands("FLOWPATHS_");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  const OpenDatabase database;
  EXPECT_EQ(FailureOf([&] { parfile.ValidateModelIds(); }).message,
            HeadFor("1") + LinesFor("bend", "MERGE", "ELEMENT_GROUP", "duct"));
}

TEST(GyreParfileValidation, RunsPastTheStorageAfterASecondLoad)
{
  LoadedJob job(LeastJob());
  EXPECT_THROW(job.parfile.Load(), KLV_Failure);
  EXPECT_THROW(job.parfile.ValidateModelIds(), AbsentFromStorage);
  EXPECT_EQ(job.storage.Calls().back(), "GetCommandName(MODEL_, 1)");
}
