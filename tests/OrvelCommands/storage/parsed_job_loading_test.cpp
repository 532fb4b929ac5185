#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "support/failures.h"
#include "support/parsed_commands.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

// The least of parsed commands that loads: every command that an OPTIMIZE must refer to and that does not exist anyway.
class SmallJob
{
public:
  SmallJob() : m_task(AddParsed(m_container, Defs::OPTIMIZE, "task"))
  {
    AddParsed(m_container, Defs::MODEL_INPUT, "duct");
    m_task.AddReferenceItem(Items::OBJ_FUNC, AddParsed(m_container, Defs::OBJ_FUNC, "objective"));
  }

  OrvelCmdContainer& Container() { return m_container; }
  OrvelCmd& Task() { return m_task; }
  SmallJob& WithVariable()
  {
    m_task.AddReferenceItem(Items::DV, AddParsed(m_container, Defs::DV, "variable"));
    return *this;
  }
  SmallJob& WithStop()
  {
    m_task.AddReferenceItem(Items::STOP, AddParsed(m_container, Defs::STOP, "end"));
    return *this;
  }

private:
  OrvelCmdContainer m_container;
  OrvelCmd& m_task;
};

// A storage over parsed commands with what was loaded from it.
class LoadedJob
{
public:
  explicit LoadedJob(const OrvelCmdContainer& container) : m_storage(container), m_parfile(m_storage)
  {
    m_parfile.Load();
  }

  Gyre_Parfile* operator->() { return &m_parfile; }

private:
  OrvelParfileStorageCmdContainer m_storage;
  Gyre_Parfile m_parfile;
};

Failure LoadFailure(const OrvelCmdContainer& container)
{
  return FailureOf([&] { LoadedJob job(container); });
}

Failure ParfileFailure(const std::string& message, const std::string& code)
{
  return {message, code, "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "};
}

Failure UnknownEmptyId(const std::string& kind)
{
  return ParfileFailure("Invalid ID  of the parameter file command " + kind, "161700240908");
}

// Every item but the name, each once as a number and once as a reference.
void AddAllItems(OrvelCmdContainer& container, OrvelCmd& command)
{
  const OrvelCmd& target = AddParsed(container, Defs::REPORT, "target");
  for (int item = 1; item <= 38; ++item)
  {
    command.AddIntegerItem(static_cast<Items::CmdItem>(item), 7);
    command.AddReferenceItem(static_cast<Items::CmdItem>(item), target);
  }
}

// Settings whose update parameters are all 7.
template <class Settings>
void ExpectUpdateParameters(const Settings& settings)
{
  EXPECT_EQ(settings.GetALGORITHM_(), 7);
  EXPECT_TRUE(settings.HasMIN_());
  EXPECT_EQ(settings.GetMIN_(), 7.0);
  EXPECT_TRUE(settings.HasMAX_());
  EXPECT_EQ(settings.GetMAX_(), 7.0);
  EXPECT_EQ(settings.GetMOVE_(), 7.0);
  EXPECT_EQ(settings.GetASYM_MOVE_(), 7);
  EXPECT_EQ(settings.GetASYM_MOVE_LOW_(), 7.0);
  EXPECT_EQ(settings.GetASYM_MOVE_UP_(), 7.0);
}

void ExpectDefaults(const SMOOTH_& smooth)
{
  EXPECT_EQ(smooth.GetPATCH_ID_(), "");
  EXPECT_EQ(smooth.GetTASK_(), 0);
  EXPECT_EQ(smooth.GetISO_VALUE_(), 0.0);
  EXPECT_EQ(smooth.GetRESULT_FILE_(), "");
  EXPECT_EQ(smooth.GetSLICE_NUMBER_(), 0);
  EXPECT_EQ(smooth.NumFORMAT_(), 0U);
  EXPECT_EQ(smooth.NumSLICE_X_(), 0U);
  EXPECT_EQ(smooth.NumEXCLUDE_GROUP_(), 0U);
  EXPECT_FALSE(smooth.HasMODEL_FILE_());
  EXPECT_FALSE(smooth.HasITERATION_());
  EXPECT_FALSE(smooth.HasOUTPUT_FILE_());
  EXPECT_FALSE(smooth.HasND_GROUP_());
  EXPECT_FALSE(smooth.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_FALSE(smooth.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
  EXPECT_EQ(smooth.GetWALL_TOLERANCE_(), 0.0);
}

}  // namespace

TEST(ParsedJob, LoadsWithOnlyWhatOptimizeMustReferTo)
{
  SmallJob small;
  small.WithVariable().WithStop();
  LoadedJob job(small.Container());
  EXPECT_EQ(job->GetALGO_().GetDV_().GetID_NAME_(), "variable");
  EXPECT_EQ(job->GetALGO_().GetSTOP_().GetID_NAME_(), "end");
  EXPECT_EQ(job->GetALGO_().GetOBJ_FUNC_().GetID_NAME_(), "objective");
  EXPECT_EQ(&job->GetALGO_().GetOPT_PARAM_(), &job->GetOPT_PARAM_(""));
  EXPECT_EQ(&job->GetALGO_().GetPRE_PARAM_(), &job->GetPRE_PARAM_(""));
  EXPECT_EQ(&job->GetALGO_().GetAS_TOPO_OC_(), &job->GetAS_TOPO_OC_(""));
  EXPECT_EQ(&job->GetALGO_().GetAS_TOPO_SENS_(), &job->GetAS_TOPO_SENS_(""));
  EXPECT_EQ(&job->GetALGO_().GetAS_SHAPE_SENS_(), &job->GetAS_SHAPE_SENS_(""));
}

TEST(ParsedJob, LoadsWithoutAnyFileInTheWorkingDirectory)
{
  const TemporaryFolder folder;
  SmallJob small;
  small.WithVariable().WithStop();
  LoadedJob job(small.Container());
  EXPECT_EQ(job->NumDV_(), 1U);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(ParsedJob, HasEachKindOfSettingsOnceWithoutAnyParsed)
{
  SmallJob small;
  small.WithVariable().WithStop();
  LoadedJob job(small.Container());
  EXPECT_THAT(IdsOf(job->GetOPT_PARAM_()), ElementsAre(""));
  EXPECT_THAT(IdsOf(job->GetPRE_PARAM_()), ElementsAre(""));
  EXPECT_THAT(IdsOf(job->GetAS_TOPO_OC_()), ElementsAre(""));
  EXPECT_THAT(IdsOf(job->GetAS_TOPO_SENS_()), ElementsAre(""));
  EXPECT_THAT(IdsOf(job->GetAS_SHAPE_SENS_()), ElementsAre(""));
}

TEST(ParsedJob, FillsTheSensitivitySettingsFromTheUpdateParametersAndKeepsTheirOtherDefaults)
{
  SmallJob small;
  small.WithVariable().WithStop();
  OrvelCmd& update = AddParsed(small.Container(), Defs::DV_UPDATE_PARAM, "update");
  AddAllItems(small.Container(), update);
  small.Task().AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  LoadedJob job(small.Container());

  const AS_TOPO_SENS_& topo = job->GetAS_TOPO_SENS_(1);
  ExpectUpdateParameters(topo);
  EXPECT_EQ(topo.GetPATCH_ID_(), "");
  EXPECT_EQ(topo.GetMATH_KERNEL_(), 0);
  EXPECT_EQ(topo.GetSCALING_CURVE_TYPE_(), 0);
  EXPECT_EQ(topo.GetSCALING_CURVE_UPDATE_ID_(), "");
  EXPECT_EQ(topo.GetSCALING_CURVE_MIN_(), 0.0);
  EXPECT_EQ(topo.GetSCALING_CURVE_MAX_(), 0.0);
  EXPECT_EQ(topo.GetSCALING_CURVE_PENALISATION_(), 0.0);
  EXPECT_EQ(topo.GetSUB_TOL_(), 0.0);
  EXPECT_EQ(topo.GetPRIMAL_ITER_MAX_(), 0);
  EXPECT_EQ(topo.GetADJOINT_DISC_(), "");
  EXPECT_EQ(topo.GetADJOINT_CFL_(), 0);
  EXPECT_EQ(topo.GetSKIP_TURBULENT_SRC_(), "");

  const AS_SHAPE_SENS_& shape = job->GetAS_SHAPE_SENS_(1);
  ExpectUpdateParameters(shape);
  EXPECT_EQ(shape.GetPATCH_ID_(), "");
  EXPECT_EQ(shape.GetSUB_TOL_(), 0.0);
  EXPECT_EQ(shape.NumFILTER_(), 0U);
  EXPECT_EQ(shape.GetNORMAL_UPDATE_(), 0);
  EXPECT_EQ(shape.GetDV_TYPE_(), 0);
}

TEST(ParsedJob, LeavesTheOptimalityCriteriaSettingsAtTheirDefaults)
{
  SmallJob small;
  small.WithVariable().WithStop();
  OrvelCmd& update = AddParsed(small.Container(), Defs::DV_UPDATE_PARAM, "update");
  AddAllItems(small.Container(), update);
  small.Task().AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  OrvelCmd& parsed = AddParsed(small.Container(), Defs::OPT_PARAM, "settings");
  AddAllItems(small.Container(), parsed);
  small.Task().AddReferenceItem(Items::OPT_PARAM, parsed);
  LoadedJob job(small.Container());
  const AS_TOPO_OC_& settings = job->GetAS_TOPO_OC_("settings");
  EXPECT_EQ(settings.GetPATCH_ID_(), "");
  EXPECT_EQ(settings.GetBT_(), 0.0);
  EXPECT_EQ(settings.GetTA_MIN_(), 0.0);
  EXPECT_EQ(settings.GetTA_MAX_(), 0.0);
  EXPECT_EQ(settings.GetSCALING_CURVE_TYPE_(), 0);
  EXPECT_EQ(settings.GetSCALING_CURVE_UPDATE_ID_(), "");
  EXPECT_EQ(settings.GetSCALING_CURVE_MIN_(), 0.0);
  EXPECT_EQ(settings.GetSCALING_CURVE_MAX_(), 0.0);
  EXPECT_EQ(settings.GetSCALING_CURVE_PENALISATION_(), 0.0);
}

TEST(ParsedJob, HasOneFlowpathsWithoutANameAndWithEmptyLists)
{
  SmallJob small;
  small.WithVariable().WithStop();
  LoadedJob job(small.Container());
  EXPECT_EQ(job->GetFLOWPATHS_().GetID_NAME_(), "");
  EXPECT_EQ(job->GetFLOWPATHS_().NumIN_(), 0U);
  EXPECT_EQ(job->GetFLOWPATHS_().NumOUT_(), 0U);
  EXPECT_THAT(job->GetFLOWPATHS_().GetIN_(), IsEmpty());
  EXPECT_THAT(job->GetFLOWPATHS_().GetOUT_(), IsEmpty());
}

TEST(ParsedJob, GivesAnOutputFourKeysAndNoOther)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddAllItems(small.Container(), AddParsed(small.Container(), Defs::OUTPUT, "picture"));
  LoadedJob job(small.Container());
  const OUTPUT_& output = job->GetOUTPUT_("picture");
  EXPECT_EQ(output.GetFILENAME_(), "7");
  EXPECT_EQ(output.GetFORMAT_(), 7);
  EXPECT_EQ(output.GetTYPE_(), 7);
  EXPECT_EQ(output.GetELEMENT_GROUP_(), "7");
  EXPECT_THAT(output.GetITERATION_(), IsEmpty());
  EXPECT_EQ(output.GetRESULT_(), 0);
  EXPECT_EQ(output.GetSPREAD_ALGO_(), 0);
  EXPECT_FALSE(output.HasCUTOFF_());
  EXPECT_THAT(output.GetCUTOFF_(), IsEmpty());
  EXPECT_EQ(output.GetBACKFLOW_ANGLE_(), 0);
  EXPECT_EQ(output.GetSPREAD_PERCENTAGE_(), 0.0);
  EXPECT_EQ(output.GetINVERT_(), 0);
  EXPECT_EQ(output.GetDESIGN_ONLY_(), 0);
  EXPECT_EQ(output.GetKEEP_POST_DATA_(), 0);
}

TEST(ParsedJob, HasSmoothCommandsUnderTheirNamesWithAllDefaults)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddAllItems(small.Container(), AddParsed(small.Container(), Defs::SMOOTH, "surface"));
  LoadedJob job(small.Container());
  EXPECT_THAT(IdsOf(job->GetSMOOTH_()), ElementsAre("surface"));
  ExpectDefaults(job->GetSMOOTH_("surface"));
}

TEST(ParsedJob, GivesASmoothingJobItsCommandsWithAllDefaults)
{
  OrvelCmdContainer container;
  AddAllItems(container, AddParsed(container, Defs::SMOOTH, "surface"));
  AddParsed(container, Defs::SMOOTH, "again");
  OrvelParfileStorageCmdContainer storage(container);
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(IdsOf(parfile.GetSMOOTH_()), ElementsAre("surface", "again"));
  ExpectDefaults(parfile.GetSMOOTH_("surface"));
}

TEST(ParsedJob, LinksTheMergedVariableLikeAnyOther)
{
  SmallJob small;
  small.WithVariable().WithStop();
  small.Task().AddReferenceItem(Items::DV, AddParsed(small.Container(), Defs::DV, "other"));
  LoadedJob job(small.Container());
  EXPECT_THAT(IdsOf(job->GetDV_()), ElementsAre("variable", "other", "__v_merged_DV"));
  const DV_& merged = job->GetALGO_().GetDV_();
  EXPECT_EQ(&merged, &job->GetDV_("__v_merged_DV"));
  EXPECT_EQ(merged.NumDV_(), 2U);
  EXPECT_EQ(&merged.GetDV_(1), &job->GetDV_("variable"));
  EXPECT_EQ(&merged.GetDV_(2), &job->GetDV_("other"));
  EXPECT_EQ(merged.GetTYPE_(), 0);
  EXPECT_EQ(merged.GetINITIAL_(), 0.0);
  EXPECT_EQ(job->GetDV_("variable").NumDV_(), 0U);
}

// A reference that parsed commands lack asks for the empty name.

TEST(ParsedJob, FailsToLinkOptimizeWithoutAVariable)
{
  SmallJob small;
  small.WithStop();
  AddParsed(small.Container(), Defs::DV, "unused");
  EXPECT_EQ(LoadFailure(small.Container()), UnknownEmptyId("DV_"));
}

TEST(ParsedJob, FailsToLinkOptimizeWithoutAStop)
{
  SmallJob small;
  small.WithVariable();
  EXPECT_EQ(LoadFailure(small.Container()), UnknownEmptyId("STOP_"));
}

TEST(ParsedJob, FailsToLinkOptimizeThatLeavesOutAnOptParamThatWasParsed)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddParsed(small.Container(), Defs::OPT_PARAM, "unused");
  EXPECT_EQ(LoadFailure(small.Container()), UnknownEmptyId("OPT_PARAM_"));
}

TEST(ParsedJob, FailsToLinkAReferenceToAnotherKind)
{
  SmallJob small;
  small.WithVariable();
  small.Task().AddReferenceItem(Items::STOP, AddParsed(small.Container(), Defs::REPORT, "report"));
  EXPECT_EQ(LoadFailure(small.Container()),
            ParfileFailure("Invalid ID report of the parameter file command STOP_", "161700240908"));
}

TEST(ParsedJob, LinksOptimizeWithoutAnObjectiveToTheDefaultOne)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::MODEL_INPUT, "duct");
  AddParsed(container, Defs::OBJ_FUNC, "objective");
  OrvelCmd& task = AddParsed(container, Defs::OPTIMIZE, "task");
  task.AddReferenceItem(Items::DV, AddParsed(container, Defs::DV, "variable"));
  task.AddReferenceItem(Items::STOP, AddParsed(container, Defs::STOP, "end"));
  LoadedJob job(container);
  EXPECT_EQ(job->GetALGO_().GetOBJ_FUNC_().GetID_NAME_(), "");
  EXPECT_NE(&job->GetALGO_().GetOBJ_FUNC_(), &job->GetOBJ_FUNC_());
}

TEST(ParsedJob, FailsToLoadAnEmptyContainer)
{
  const OrvelCmdContainer container;
  EXPECT_EQ(LoadFailure(container),
            ParfileFailure("0 commands of type MODEL_ detected. Only one is expected.", "204046270608"));
}

TEST(ParsedJob, FailsToLoadASecondOptimize)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddParsed(small.Container(), Defs::OPTIMIZE, "second");
  EXPECT_EQ(LoadFailure(small.Container()),
            ParfileFailure("2 commands of type ALGO_ detected. Only one is expected.", "204046270608"));
}

TEST(ParsedJob, LoadsTheValuesOfTheFirstOfTwoCommandsOfOneNameTwice)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddParsed(small.Container(), Defs::DRESP, "drop").AddStringItem(Items::UPDATE_ID, "first");
  AddParsed(small.Container(), Defs::DRESP, "drop").AddStringItem(Items::UPDATE_ID, "second");
  LoadedJob job(small.Container());
  EXPECT_THAT(IdsOf(job->GetDRESP_()), ElementsAre("drop", "drop"));
  EXPECT_EQ(job->GetDRESP_(1).GetUPDATE_ID_(), "first");
  EXPECT_EQ(job->GetDRESP_(2).GetUPDATE_ID_(), "first");
}

TEST(ParsedJob, LoadsARemovedCommandWithoutNameAndValues)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddParsed(small.Container(), Defs::DRESP, "drop").AddStringItem(Items::UPDATE_ID, "dp");
  AddParsed(small.Container(), Defs::DRESP, "volume").AddStringItem(Items::UPDATE_ID, "vol");
  small.Container().RemoveCommand(Defs::DRESP, 0);
  LoadedJob job(small.Container());
  EXPECT_THAT(IdsOf(job->GetDRESP_()), ElementsAre("", "volume"));
  EXPECT_EQ(job->GetDRESP_(1).GetUPDATE_ID_(), "");
  EXPECT_EQ(job->GetDRESP_(2).GetUPDATE_ID_(), "vol");
}

TEST(ParsedJob, PassesAFailureOfTheEngineThroughLoad)
{
  SmallJob small;
  small.WithVariable().WithStop();
  AddParsed(small.Container(), Defs::DRESP, "drop").AddStringItem(Items::LOADCASE, "one");
  try
  {
    LoadedJob job(small.Container());
    FAIL() << "nothing was thrown";
  }
  catch (const std::runtime_error& error)
  {
    EXPECT_STREQ(error.what(), "Item LOADCASE holds a text (one) and cannot be read as an integer.");
  }
}

TEST(ParsedJob, OutlivesItsStorageAndCommandsOnceItIsLoaded)
{
  auto small = std::make_unique<SmallJob>();
  small->WithVariable().WithStop();
  auto storage = std::make_unique<OrvelParfileStorageCmdContainer>(small->Container());
  Gyre_Parfile parfile(*storage);
  parfile.Load();
  storage.reset();
  small.reset();
  EXPECT_EQ(parfile.GetALGO_().GetDV_().GetID_NAME_(), "variable");
}
