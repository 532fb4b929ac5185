#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/command_ids.h"
#include "support/complete_job.h"
#include "support/failures.h"

#include <gmock/gmock.h>

#include <algorithm>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using Calls = std::vector<std::string>;

// The last call of the first pass over CompleteJob().
const char* const kLastCallOfTheFirstPass = "GetValue(SMOOTH_, surface, WALL_TOLERANCE_, 1, vtmDouble, double)";

Calls SecondPassOf(const RecordingStorage& storage)
{
  const auto& calls = storage.Calls();
  const auto last = std::find(calls.begin(), calls.end(), kLastCallOfTheFirstPass);
  return last != calls.end() ? Calls(last + 1, calls.end()) : Calls{"the first pass did not end"};
}

// A loaded CompleteJob().
struct LoadedJob
{
  LoadedJob() { parfile.Load(); }

  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile{storage};
};

// How the linking of \p job ends.
Failure FailureOfLoading(RecordingStorage job)
{
  Gyre_Parfile parfile(job);
  return FailureOf([&] { parfile.Load(); });
}

// A reference key of a command of CompleteJob().
struct Reference
{
  const char* command;
  const char* id;
  const char* key;
  const char* target;
};

const std::vector<Reference> kReferences = {
  {"DV_", "variable", "FILTER_", "FILTER_"},
  {"DV_", "variable", "DV_", "DV_"},
  {"DRESP_", "volume", "DV_CONSTRAINT_", "DV_CONSTRAINT_"},
  {"OPERATOR_", "sum", "DRESP_", "DRESP_"},
  {"OPERATOR_", "sum", "OPERATOR_", "OPERATOR_"},
  {"OBJ_FUNC_", "objective", "DRESP_", "DRESP_"},
  {"OBJ_FUNC_", "objective", "OPERATOR_", "OPERATOR_"},
  {"OBJ_FUNC_", "objective", "FILTER_", "FILTER_"},
  {"CONSTRAINT_", "limit", "DRESP_", "DRESP_"},
  {"CONSTRAINT_", "limit", "OPERATOR_", "OPERATOR_"},
  {"CONSTRAINT_", "limit", "FILTER_", "FILTER_"},
  {"DV_CONSTRAINT_", "mirror", "CS_", "CS_"},
  {"DV_CONSTRAINT_", "mirror", "SCALING_CURVE_", "SCALING_CURVE_"},
  {"MONITOR_", "watch", "DRESP_", "DRESP_"},
  {"ALGO_", "algorithm", "DV_", "DV_"},
  {"ALGO_", "algorithm", "CONSTRAINT_", "CONSTRAINT_"},
  {"ALGO_", "algorithm", "DV_CONSTRAINT_", "DV_CONSTRAINT_"},
  {"ALGO_", "algorithm", "OPT_PARAM_", "OPT_PARAM_"},
  {"ALGO_", "algorithm", "STOP_", "STOP_"},
  {"ALGO_", "algorithm", "PRE_PARAM_", "PRE_PARAM_"},
  {"ALGO_", "algorithm", "MESH_SMOOTH_", "MESH_SMOOTH_"},
  {"ALGO_", "algorithm", "MONITOR_", "MONITOR_"},
  {"ALGO_", "algorithm", "AS_TOPO_OC_", "AS_TOPO_OC_"},
  {"ALGO_", "algorithm", "AS_TOPO_SENS_", "AS_TOPO_SENS_"},
  {"ALGO_", "algorithm", "AS_SHAPE_SENS_", "AS_SHAPE_SENS_"},
  {"MESH_SMOOTH_", "laplace", "FILTER_", "FILTER_"},
  {"MESH_SMOOTH_", "laplace", "DV_CONSTRAINT_", "DV_CONSTRAINT_"},
  {"AS_SHAPE_SENS_", "settings", "FILTER_", "FILTER_"},
};

}  // namespace

TEST(GyreParfileLinks, AsksTheStorageKindByKindAndKeyByKey)
{
  const LoadedJob job;
  EXPECT_THAT(
    SecondPassOf(job.storage),
    ElementsAre(
      "GetNumElements(DV_, variable, FILTER_)", "GetReference(DV_, variable, FILTER_, 1)",
      "GetReference(DV_, variable, FILTER_, 2)", "GetNumElements(DV_, variable, DV_)",
      "GetReference(DV_, variable, DV_, 1)", "GetReference(DV_, variable, DV_, 2)",  //
      "GetNumElements(DV_, other, FILTER_)", "GetNumElements(DV_, other, DV_)",      //
      "HasElement(DRESP_, volume, DV_CONSTRAINT_)", "GetReference(DRESP_, volume, DV_CONSTRAINT_, 1)",
      "HasElement(DRESP_, pressure, DV_CONSTRAINT_)",  //
      "GetNumElements(OPERATOR_, sum, DRESP_)", "GetReference(OPERATOR_, sum, DRESP_, 1)",
      "GetReference(OPERATOR_, sum, DRESP_, 2)", "GetReference(OPERATOR_, sum, DRESP_, 3)",
      "GetNumElements(OPERATOR_, sum, OPERATOR_)", "GetReference(OPERATOR_, sum, OPERATOR_, 1)",
      "GetReference(OPERATOR_, sum, OPERATOR_, 2)",  //
      "GetNumElements(OPERATOR_, norm, DRESP_)", "GetNumElements(OPERATOR_, norm, OPERATOR_)",
      "HasElement(OBJ_FUNC_, objective, DRESP_)", "GetReference(OBJ_FUNC_, objective, DRESP_, 1)",
      "HasElement(OBJ_FUNC_, objective, OPERATOR_)", "GetReference(OBJ_FUNC_, objective, OPERATOR_, 1)",
      "GetNumElements(OBJ_FUNC_, objective, FILTER_)", "GetReference(OBJ_FUNC_, objective, FILTER_, 1)",
      "HasElement(CONSTRAINT_, limit, DRESP_)", "GetReference(CONSTRAINT_, limit, DRESP_, 1)",
      "HasElement(CONSTRAINT_, limit, OPERATOR_)", "GetReference(CONSTRAINT_, limit, OPERATOR_, 1)",
      "GetNumElements(CONSTRAINT_, limit, FILTER_)", "GetReference(CONSTRAINT_, limit, FILTER_, 1)",
      "GetReference(CONSTRAINT_, limit, FILTER_, 2)",  //
      "HasElement(CONSTRAINT_, bare, DRESP_)", "HasElement(CONSTRAINT_, bare, OPERATOR_)",
      "GetNumElements(CONSTRAINT_, bare, FILTER_)",  //
      "HasElement(DV_CONSTRAINT_, mirror, CS_)", "GetReference(DV_CONSTRAINT_, mirror, CS_, 1)",
      "HasElement(DV_CONSTRAINT_, mirror, SCALING_CURVE_)", "GetReference(DV_CONSTRAINT_, mirror, SCALING_CURVE_, 1)",
      "HasElement(DV_CONSTRAINT_, stamp, CS_)", "HasElement(DV_CONSTRAINT_, stamp, SCALING_CURVE_)",
      "GetReference(MONITOR_, watch, DRESP_, 1)",  //
      "GetReference(ALGO_, algorithm, DV_, 1)", "GetReference(ALGO_, algorithm, OBJ_FUNC_, 1)",
      "GetNumElements(ALGO_, algorithm, CONSTRAINT_)", "GetReference(ALGO_, algorithm, CONSTRAINT_, 1)",
      "GetReference(ALGO_, algorithm, CONSTRAINT_, 2)", "GetNumElements(ALGO_, algorithm, DV_CONSTRAINT_)",
      "GetReference(ALGO_, algorithm, DV_CONSTRAINT_, 1)", "GetReference(ALGO_, algorithm, DV_CONSTRAINT_, 2)",
      "GetReference(ALGO_, algorithm, OPT_PARAM_, 1)", "GetReference(ALGO_, algorithm, STOP_, 1)",
      "GetReference(ALGO_, algorithm, PRE_PARAM_, 1)", "GetNumElements(ALGO_, algorithm, MESH_SMOOTH_)",
      "GetReference(ALGO_, algorithm, MESH_SMOOTH_, 1)", "GetNumElements(ALGO_, algorithm, MONITOR_)",
      "GetReference(ALGO_, algorithm, MONITOR_, 1)", "GetReference(ALGO_, algorithm, MONITOR_, 2)",
      "GetReference(ALGO_, algorithm, AS_TOPO_OC_, 1)", "GetReference(ALGO_, algorithm, AS_TOPO_SENS_, 1)",
      "GetReference(ALGO_, algorithm, AS_SHAPE_SENS_, 1)",  //
      "HasElement(MESH_SMOOTH_, laplace, FILTER_)", "GetReference(MESH_SMOOTH_, laplace, FILTER_, 1)",
      "HasElement(MESH_SMOOTH_, laplace, DV_CONSTRAINT_)", "GetReference(MESH_SMOOTH_, laplace, DV_CONSTRAINT_, 1)",
      "HasElement(MESH_SMOOTH_, plain, FILTER_)", "HasElement(MESH_SMOOTH_, plain, DV_CONSTRAINT_)",
      "GetNumElements(AS_SHAPE_SENS_, settings, FILTER_)", "GetReference(AS_SHAPE_SENS_, settings, FILTER_, 1)",
      "GetReference(AS_SHAPE_SENS_, settings, FILTER_, 2)"));
}

TEST(GyreParfileLinks, LinksADvToItsFiltersAndVariables)
{
  const LoadedJob job;
  const DV_& variable = job.parfile.GetDV_("variable");
  EXPECT_EQ(variable.NumFILTER_(), 2U);
  EXPECT_THAT(variable.GetFILTER_(), ElementsAre(&job.parfile.GetFILTER_("fine"), &job.parfile.GetFILTER_("coarse")));
  EXPECT_EQ(variable.NumDV_(), 2U);
  EXPECT_THAT(variable.GetDV_(), ElementsAre(&variable, &job.parfile.GetDV_("other")));
  const DV_& other = job.parfile.GetDV_("other");
  EXPECT_EQ(other.NumFILTER_(), 0U);
  EXPECT_THAT(other.GetFILTER_(), IsEmpty());
  EXPECT_EQ(other.NumDV_(), 0U);
  EXPECT_THAT(other.GetDV_(), IsEmpty());
}

TEST(GyreParfileLinks, LinksADrespToItsDvConstraintIfItHasOne)
{
  const LoadedJob job;
  EXPECT_TRUE(job.parfile.GetDRESP_("volume").HasDV_CONSTRAINT_());
  EXPECT_EQ(&job.parfile.GetDRESP_("volume").GetDV_CONSTRAINT_(), &job.parfile.GetDV_CONSTRAINT_("mirror"));
  EXPECT_FALSE(job.parfile.GetDRESP_("pressure").HasDV_CONSTRAINT_());
}

TEST(GyreParfileLinks, LinksAnOperatorToItsResponsesAndOperators)
{
  const LoadedJob job;
  const OPERATOR_& sum = job.parfile.GetOPERATOR_("sum");
  const DRESP_* volume = &job.parfile.GetDRESP_("volume");
  EXPECT_EQ(sum.NumDRESP_(), 3U);
  EXPECT_THAT(sum.GetDRESP_(), ElementsAre(volume, &job.parfile.GetDRESP_("pressure"), volume));
  EXPECT_EQ(sum.NumOPERATOR_(), 2U);
  EXPECT_THAT(sum.GetOPERATOR_(), ElementsAre(&sum, &job.parfile.GetOPERATOR_("norm")));
  EXPECT_EQ(job.parfile.GetOPERATOR_("norm").NumDRESP_(), 0U);
  EXPECT_EQ(job.parfile.GetOPERATOR_("norm").NumOPERATOR_(), 0U);
}

TEST(GyreParfileLinks, LinksAnObjectiveToItsResponseOperatorAndFilters)
{
  const LoadedJob job;
  const OBJ_FUNC_& objective = job.parfile.GetOBJ_FUNC_();
  EXPECT_TRUE(objective.HasDRESP_());
  EXPECT_EQ(&objective.GetDRESP_(), &job.parfile.GetDRESP_("volume"));
  EXPECT_TRUE(objective.HasOPERATOR_());
  EXPECT_EQ(&objective.GetOPERATOR_(), &job.parfile.GetOPERATOR_("sum"));
  EXPECT_EQ(objective.NumFILTER_(), 1U);
  EXPECT_THAT(objective.GetFILTER_(), ElementsAre(&job.parfile.GetFILTER_("coarse")));
}

TEST(GyreParfileLinks, LinksAConstraintToItsResponseOperatorAndFilters)
{
  const LoadedJob job;
  const CONSTRAINT_& limit = job.parfile.GetCONSTRAINT_("limit");
  EXPECT_TRUE(limit.HasDRESP_());
  EXPECT_EQ(&limit.GetDRESP_(), &job.parfile.GetDRESP_("pressure"));
  EXPECT_TRUE(limit.HasOPERATOR_());
  EXPECT_EQ(&limit.GetOPERATOR_(), &job.parfile.GetOPERATOR_("norm"));
  EXPECT_EQ(limit.NumFILTER_(), 2U);
}

TEST(GyreParfileLinks, LeavesAConstraintWithNeitherResponseNorOperatorWithoutLinks)
{
  const LoadedJob job;
  const CONSTRAINT_& bare = job.parfile.GetCONSTRAINT_("bare");
  EXPECT_FALSE(bare.HasDRESP_());
  EXPECT_FALSE(bare.HasOPERATOR_());
  EXPECT_EQ(bare.NumFILTER_(), 0U);
  EXPECT_THAT(bare.GetFILTER_(), IsEmpty());
}

TEST(GyreParfileLinks, LinksADvConstraintToItsCoordinateSystemAndScalingCurve)
{
  const LoadedJob job;
  const DV_CONSTRAINT_& mirror = job.parfile.GetDV_CONSTRAINT_("mirror");
  EXPECT_TRUE(mirror.HasCS_());
  EXPECT_EQ(&mirror.GetCS_(), &job.parfile.GetCS_("axes"));
  EXPECT_TRUE(mirror.HasSCALING_CURVE_());
  EXPECT_EQ(&mirror.GetSCALING_CURVE_(), &job.parfile.GetSCALING_CURVE_("ramp"));
  EXPECT_FALSE(job.parfile.GetDV_CONSTRAINT_("stamp").HasCS_());
  EXPECT_FALSE(job.parfile.GetDV_CONSTRAINT_("stamp").HasSCALING_CURVE_());
}

TEST(GyreParfileLinks, LinksAMonitorToItsResponse)
{
  const LoadedJob job;
  EXPECT_EQ(&job.parfile.GetMONITOR_("watch").GetDRESP_(), &job.parfile.GetDRESP_("pressure"));
}

TEST(GyreParfileLinks, LinksTheAlgorithmToAllThatTakesPartInIt)
{
  const LoadedJob job;
  const Gyre_Parfile& parfile = job.parfile;
  const ALGO_& algorithm = parfile.GetALGO_();
  EXPECT_EQ(&algorithm.GetDV_(), &parfile.GetDV_("variable"));
  EXPECT_EQ(&algorithm.GetOBJ_FUNC_(), &parfile.GetOBJ_FUNC_());
  EXPECT_EQ(algorithm.NumCONSTRAINT_(), 2U);
  EXPECT_THAT(algorithm.GetCONSTRAINT_(),
              ElementsAre(&parfile.GetCONSTRAINT_("limit"), &parfile.GetCONSTRAINT_("bare")));
  EXPECT_EQ(algorithm.NumDV_CONSTRAINT_(), 2U);
  EXPECT_THAT(algorithm.GetDV_CONSTRAINT_(),
              ElementsAre(&parfile.GetDV_CONSTRAINT_("stamp"), &parfile.GetDV_CONSTRAINT_("mirror")));
  EXPECT_EQ(&algorithm.GetOPT_PARAM_(), &parfile.GetOPT_PARAM_("settings"));
  EXPECT_EQ(&algorithm.GetSTOP_(), &parfile.GetSTOP_("settings"));
  EXPECT_EQ(&algorithm.GetPRE_PARAM_(), &parfile.GetPRE_PARAM_("settings"));
  EXPECT_EQ(algorithm.NumMESH_SMOOTH_(), 1U);
  EXPECT_THAT(algorithm.GetMESH_SMOOTH_(), ElementsAre(&parfile.GetMESH_SMOOTH_("laplace")));
  EXPECT_EQ(algorithm.NumMONITOR_(), 2U);
  EXPECT_THAT(algorithm.GetMONITOR_(), ElementsAre(&parfile.GetMONITOR_("watch"), &parfile.GetMONITOR_("watch")));
  EXPECT_EQ(&algorithm.GetAS_TOPO_OC_(), &parfile.GetAS_TOPO_OC_("settings"));
  EXPECT_EQ(&algorithm.GetAS_TOPO_SENS_(), &parfile.GetAS_TOPO_SENS_("settings"));
  EXPECT_EQ(&algorithm.GetAS_SHAPE_SENS_(), &parfile.GetAS_SHAPE_SENS_("settings"));
}

TEST(GyreParfileLinks, LinksAMeshSmoothToItsFilterAndDvConstraintIfItHasThem)
{
  const LoadedJob job;
  const MESH_SMOOTH_& laplace = job.parfile.GetMESH_SMOOTH_("laplace");
  EXPECT_TRUE(laplace.HasFILTER_());
  EXPECT_EQ(&laplace.GetFILTER_(), &job.parfile.GetFILTER_("coarse"));
  EXPECT_TRUE(laplace.HasDV_CONSTRAINT_());
  EXPECT_EQ(&laplace.GetDV_CONSTRAINT_(), &job.parfile.GetDV_CONSTRAINT_("stamp"));
  EXPECT_FALSE(job.parfile.GetMESH_SMOOTH_("plain").HasFILTER_());
  EXPECT_FALSE(job.parfile.GetMESH_SMOOTH_("plain").HasDV_CONSTRAINT_());
}

TEST(GyreParfileLinks, LinksTheShapeSettingsToTheirFilters)
{
  const LoadedJob job;
  const AS_SHAPE_SENS_& settings = job.parfile.GetAS_SHAPE_SENS_("settings");
  EXPECT_EQ(settings.NumFILTER_(), 2U);
  EXPECT_THAT(settings.GetFILTER_(), ElementsAre(&job.parfile.GetFILTER_("coarse"), &job.parfile.GetFILTER_("fine")));
}

TEST(GyreParfileLinks, ResolvesAReferenceToAKindThatIsLoadedLater)
{
  const LoadedJob job;  // DRESP_ before DV_CONSTRAINT_, ALGO_ before AS_SHAPE_SENS_, DV_ before FILTER_
  EXPECT_EQ(job.parfile.GetDRESP_("volume").GetDV_CONSTRAINT_().GetID_NAME_(), "mirror");
  EXPECT_EQ(job.parfile.GetALGO_().GetAS_SHAPE_SENS_().NumFILTER_(), 2U);
  EXPECT_EQ(job.parfile.GetDV_("variable").GetFILTER_(1).GetID_NAME_(), "fine");
}

TEST(GyreParfileLinks, ResolvesAReferenceToAKindThatIsLoadedEarlier)
{
  const LoadedJob job;  // OPERATOR_ after DRESP_, MONITOR_ after DRESP_
  EXPECT_EQ(job.parfile.GetOPERATOR_("sum").GetDRESP_(2).GetID_NAME_(), "pressure");
  EXPECT_EQ(job.parfile.GetMONITOR_("watch").GetDRESP_().GetID_NAME_(), "pressure");
}

TEST(GyreParfileLinks, LinksADvThatRefersToItselfToItself)
{
  const LoadedJob job;
  const DV_& variable = job.parfile.GetDV_("variable");
  EXPECT_EQ(&variable.GetDV_(1), &variable);
  EXPECT_EQ(&variable.GetDV_(1).GetDV_(1).GetDV_(1), &variable);
}

TEST(GyreParfileLinks, LinksAnOperatorThatRefersToItselfToItself)
{
  const LoadedJob job;
  const OPERATOR_& sum = job.parfile.GetOPERATOR_("sum");
  EXPECT_EQ(&sum.GetOPERATOR_(1), &sum);
}

TEST(GyreParfileLinks, LinksCommandsThatReferToEachOther)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("OPERATOR_", "norm")["OPERATOR_"] = {Ref{"sum"}};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const OPERATOR_& sum = parfile.GetOPERATOR_("sum");
  EXPECT_EQ(&sum.GetOPERATOR_(2).GetOPERATOR_(1), &sum);
}

TEST(GyreParfileLinks, GivesTwoEqualPointersForAnIdThatIsListedTwice)
{
  const LoadedJob job;
  const CONSTRAINT_& limit = job.parfile.GetCONSTRAINT_("limit");
  const FILTER_* fine = &job.parfile.GetFILTER_("fine");
  EXPECT_EQ(limit.NumFILTER_(), 2U);
  EXPECT_THAT(limit.GetFILTER_(), ElementsAre(fine, fine));
}

TEST(GyreParfileLinks, ResolvesADuplicateNameToTheEarlierObject)
{
  RecordingStorage storage = CompleteJob();
  storage.AddSecondCommand("FILTER_", "fine");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ASSERT_EQ(parfile.NumFILTER_(), 3U);
  EXPECT_EQ(&parfile.GetDV_("variable").GetFILTER_(1), parfile.GetFILTER_()[0]);
  EXPECT_NE(&parfile.GetDV_("variable").GetFILTER_(1), parfile.GetFILTER_()[2]);
}

TEST(GyreParfileLinks, LinksEachOfTwoCommandsWithTheSameName)
{
  RecordingStorage storage = CompleteJob();
  storage.AddSecondCommand("MONITOR_", "watch");  // the storage tells the keys of the first for both
  Gyre_Parfile parfile(storage);
  parfile.Load();
  ASSERT_EQ(parfile.NumMONITOR_(), 2U);
  EXPECT_EQ(&parfile.GetMONITOR_(2).GetDRESP_(), &parfile.GetDRESP_("pressure"));
}

TEST(GyreParfileLinks, TakesTheReservedNameOfAMergedVariableLikeAnyOther)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("DV_", "__v_merged_DV")["DV_"] = {Ref{"variable"}, Ref{"other"}};
  storage.Command("ALGO_", "algorithm")["DV_"] = {Ref{"__v_merged_DV"}};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const DV_& merged = parfile.GetALGO_().GetDV_();
  EXPECT_EQ(merged.GetID_NAME_(), "__v_merged_DV");
  EXPECT_THAT(IdsOf(merged.GetDV_()), ElementsAre("variable", "other"));
}

TEST(GyreParfileLinks, FailsOnAnUnknownIdOfAnyReferenceButOne)
{
  ASSERT_EQ(kReferences.size(), 28U);
  for (const Reference& reference : kReferences)
  {
    SCOPED_TRACE(std::string(reference.command) + " " + reference.key);
    RecordingStorage job = CompleteJob();
    job.Command(reference.command, reference.id)[reference.key] = {Ref{"nowhere"}};
    EXPECT_EQ(FailureOfLoading(job),
              (Failure{std::string("Invalid ID nowhere of the parameter file command ") + reference.target,
                       "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  }
}

TEST(GyreParfileLinks, FindsAnIdOnlyAmongTheCommandsOfTheTargetsKind)
{
  RecordingStorage job = CompleteJob();
  job.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"sum"}};
  EXPECT_EQ(FailureOfLoading(job).message, "Invalid ID sum of the parameter file command DRESP_");
}

TEST(GyreParfileLinks, StopsAtTheFirstUnknownId)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("OPERATOR_", "sum")["DRESP_"] = {Ref{"volume"}, Ref{"first_wrong"}, Ref{"second_wrong"}};
  storage.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"third_wrong"}};
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "Invalid ID first_wrong of the parameter file command DRESP_");
  EXPECT_EQ(storage.Calls().back(), "GetReference(OPERATOR_, sum, DRESP_, 2)");
}

TEST(GyreParfileLinks, KeepsTheLinksOfCommandsBeforeAFailureAndNoneAfterIt)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("OPERATOR_", "sum")["DRESP_"] = {Ref{"volume"}, Ref{"wrong"}, Ref{"pressure"}};
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);

  EXPECT_EQ(parfile.GetDV_("variable").NumFILTER_(), 2U);
  EXPECT_EQ(&parfile.GetDV_("variable").GetFILTER_(2), &parfile.GetFILTER_("coarse"));
  EXPECT_TRUE(parfile.GetDRESP_("volume").HasDV_CONSTRAINT_());

  const OPERATOR_& sum = parfile.GetOPERATOR_("sum");
  EXPECT_EQ(sum.NumDRESP_(), 3U) << "the count is taken before the references";
  EXPECT_THAT(sum.GetDRESP_(), ElementsAre(&parfile.GetDRESP_("volume")));
  EXPECT_EQ(sum.NumOPERATOR_(), 0U);

  EXPECT_FALSE(parfile.GetOBJ_FUNC_().HasDRESP_());
  EXPECT_EQ(parfile.GetOBJ_FUNC_().NumFILTER_(), 0U);
  EXPECT_FALSE(parfile.GetCONSTRAINT_("limit").HasOPERATOR_());
  EXPECT_FALSE(parfile.GetDV_CONSTRAINT_("mirror").HasCS_());
  EXPECT_EQ(parfile.GetALGO_().NumMONITOR_(), 0U);
  EXPECT_FALSE(parfile.GetMESH_SMOOTH_("laplace").HasFILTER_());
  EXPECT_EQ(parfile.GetAS_SHAPE_SENS_("settings").NumFILTER_(), 0U);
}

TEST(GyreParfileLinks, SetsTheFlagOfAnOptionalReferenceBeforeItsUnknownIdFails)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("DRESP_", "volume")["DV_CONSTRAINT_"] = {Ref{"wrong"}};
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_TRUE(parfile.GetDRESP_("volume").HasDV_CONSTRAINT_());
  EXPECT_FALSE(parfile.GetDRESP_("pressure").HasDV_CONSTRAINT_());
}

TEST(GyreParfileLinks, ReadsOnlyTheFirstValueOfASingleAndOfAnOptionalReference)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"volume"}, Ref{"nowhere"}};
  storage.Command("OBJ_FUNC_", "objective")["DRESP_"] = {Ref{"pressure"}, Ref{"nowhere"}};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.GetMONITOR_("watch").GetDRESP_().GetID_NAME_(), "volume");
  EXPECT_EQ(parfile.GetOBJ_FUNC_().GetDRESP_().GetID_NAME_(), "pressure");
}

TEST(GyreParfileLinks, LooksForTheEmptyIdWhereTheStorageDeliversNothingForASingleReference)
{
  for (const char* key : {"DV_", "OPT_PARAM_", "STOP_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    RecordingStorage job = CompleteJob();
    job.Command("ALGO_", "algorithm").erase(key);
    EXPECT_EQ(FailureOfLoading(job), (Failure{std::string("Invalid ID  of the parameter file command ") + key,
                                              "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  }
  RecordingStorage job = CompleteJob();
  job.Command("MONITOR_", "watch").erase("DRESP_");
  EXPECT_EQ(FailureOfLoading(job).message, "Invalid ID  of the parameter file command DRESP_");
}

TEST(GyreParfileLinks, FindsACommandWithAnEmptyIdWhereTheStorageDeliversNothing)
{
  RecordingStorage storage = CompleteJob();
  storage.RemoveCommands("PRE_PARAM_");
  storage.AddSecondCommand("PRE_PARAM_", "");
  storage.Command("ALGO_", "algorithm").erase("PRE_PARAM_");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(&parfile.GetALGO_().GetPRE_PARAM_(), &parfile.GetPRE_PARAM_(1));
}

TEST(GyreParfileLinks, LetsTheFailureOfTheStoragePass)
{
  RecordingStorage storage = CompleteJob();
  storage.FailOn("GetReference(ALGO_, algorithm, STOP_, 1)");
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), FailedOnDemand);
}

TEST(GyreParfileLinks, LinksAWrongNameOfTheObjectiveToADefaultOne)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("ALGO_", "algorithm")["OBJ_FUNC_"] = {Ref{"nowhere"}};
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const OBJ_FUNC_& linked = parfile.GetALGO_().GetOBJ_FUNC_();
  EXPECT_EQ(linked.GetID_NAME_(), "");
  EXPECT_FALSE(linked.HasDRESP_());
  EXPECT_NE(&linked, &parfile.GetOBJ_FUNC_());
  EXPECT_EQ(&linked, &parfile.GetOBJ_FUNC_("nowhere"));
}

TEST(GyreParfileLinks, LinksAMissingNameOfTheObjectiveToADefaultOne)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("ALGO_", "algorithm").erase("OBJ_FUNC_");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(&parfile.GetALGO_().GetOBJ_FUNC_(), &parfile.GetOBJ_FUNC_("nowhere"));
}

TEST(GyreParfileLinks, EndsASecondLoadAtTheObjectiveOfWhichThereAreTwoThen)
{
  LoadedJob job;
  job.storage.ForgetCalls();
  EXPECT_EQ(FailureOf([&] { job.parfile.Load(); }),
            (Failure{"2 commands of type OBJ_FUNC_ detected. Only one is expected.", "204046270608",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_EQ(job.storage.Calls().back(), "GetReference(ALGO_, algorithm, OBJ_FUNC_, 1)");
}

TEST(GyreParfileLinks, MakesListsLongerThanTheirCountInASecondLoad)
{
  LoadedJob job;
  EXPECT_THROW(job.parfile.Load(), KLV_Failure);
  const DV_& first = job.parfile.GetDV_(1);
  EXPECT_EQ(first.NumFILTER_(), 2U);
  EXPECT_THAT(IdsOf(first.GetFILTER_()), ElementsAre("fine", "coarse", "fine", "coarse"));
  EXPECT_EQ(
    FailureOf([&] { first.GetFILTER_(3); }).message,
    "Invalid index 3 of the parameterfile value FILTER_ to retrieve from DV_. Number of available values is 2.");
  const DV_& second = job.parfile.GetDV_(3);
  EXPECT_EQ(second.GetID_NAME_(), "variable");
  EXPECT_EQ(second.NumFILTER_(), 2U);
  EXPECT_THAT(IdsOf(second.GetFILTER_()), ElementsAre("fine", "coarse"));
}

TEST(GyreParfileLinks, LinksTheSecondSetOfCommandsToTheFirst)
{
  LoadedJob job;
  EXPECT_THROW(job.parfile.Load(), KLV_Failure);
  EXPECT_EQ(&job.parfile.GetDV_(3).GetFILTER_(1), job.parfile.GetFILTER_()[0]);
  EXPECT_EQ(&job.parfile.GetDV_(3).GetDV_(1), job.parfile.GetDV_()[0]) << "the first of that name, not itself";
}
