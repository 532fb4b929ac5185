#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/TwinJob.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// The job below, written out by hand: each command with the keys that parsed commands of its kind have, an absent
// optional key left out; in the order of names. Its doubles have few binary digits.
constexpr const char* kJob = R"(ALGO_ task: STRATEGY_ 84
  DV_ __v_merged_DV, OBJ_FUNC_ objective, CONSTRAINT_ [limit bound], DV_CONSTRAINT_ [mirror stamp]
  STOP_ late, MESH_SMOOTH_ [tum laplace]
  OPT_PARAM_ usual, AS_TOPO_OC_ usual, AS_TOPO_SENS_ usual, AS_SHAPE_SENS_ usual
AS_SHAPE_SENS_ careful: ALGORITHM_ 77, MIN_ 0.0078125, MAX_ 0.9921875, MOVE_ 0.125
  ASYM_MOVE_ 83, ASYM_MOVE_LOW_ 0.0625, ASYM_MOVE_UP_ 0.1875
AS_SHAPE_SENS_ usual: ALGORITHM_ 77, MIN_ 0.0078125, MAX_ 0.9921875, MOVE_ 0.125
  ASYM_MOVE_ 83, ASYM_MOVE_LOW_ 0.0625, ASYM_MOVE_UP_ 0.1875
AS_TOPO_OC_ careful
AS_TOPO_OC_ usual
AS_TOPO_SENS_ careful: ALGORITHM_ 77, MIN_ 0.0078125, MAX_ 0.9921875, MOVE_ 0.125
  ASYM_MOVE_ 83, ASYM_MOVE_LOW_ 0.0625, ASYM_MOVE_UP_ 0.1875
AS_TOPO_SENS_ usual: ALGORITHM_ 77, MIN_ 0.0078125, MAX_ 0.9921875, MOVE_ 0.125
  ASYM_MOVE_ 83, ASYM_MOVE_LOW_ 0.0625, ASYM_MOVE_UP_ 0.1875
CONSTRAINT_ bound: OPERATOR_ norm, TYPE_ 71, MAGNITUDE_ 65, VALUE_ -2, COEFFICIENT_ 0
CONSTRAINT_ limit: DRESP_ volume, TYPE_ 76, MAGNITUDE_ 82, VALUE_ 0.3125, COEFFICIENT_ 9.5367431640625e-07
DRESP_ drop: TYPE_ 1001, UPDATE_TYPE_ 82, UPDATE_ID_ dp, NODE_GROUP_ borders, LOADCASE_ 2, CS_REF_ world
DRESP_ volume: TYPE_ 146, UPDATE_TYPE_ 67, UPDATE_ID_ vol, ELEMENT_GROUP_ space, LOADCASE_ 1, FILE_ volume.csv
DV_ __v_merged_DV: INITIAL_ 0, FILTER_ [], TYPE_ 0, DV_ [right left]
DV_ left: NODE_GROUP_ corners, INITIAL_ 0.625, INITIAL_DV_FIELD_ start.csv, FILTER_ [], TYPE_ 78, DV_ [right]
DV_ right: ELEMENT_GROUP_ space, INITIAL_ 0.375, FILTER_ [fine coarse], TYPE_ 68, DV_ []
DV_CONSTRAINT_ mirror: DVC_TYPE_ 80, NODE_GROUP_ corners, SCALING_CURVE_ ramp
DV_CONSTRAINT_ stamp: DVC_TYPE_ 65, ELEMENT_GROUP_ space, RADIUS_ 0.03125
ELEMENT_GROUP_ pipes: MERGE_ [outlet_pipe inlet_pipe], INTERSECT_ [], XOR_ [], SUBTRACT_ []
ELEMENT_GROUP_ space: MERGE_ [], INTERSECT_ [], XOR_ [], SUBTRACT_ [pipes]
FILTER_ coarse: METHOD_ 66, RADIUS_ 0.125, ALPHA_ -1
FILTER_ fine: METHOD_ 69, RADIUS_ 0.0625, ALPHA_ 0.5
MESH_SMOOTH_ laplace: METHOD_ 76
MESH_SMOOTH_ tum: METHOD_ 85
MODEL_ duct: FILE_ duct.cgns
NODE_GROUP_ borders: MERGE_ [], INTERSECT_ [], XOR_ [rim floor], SUBTRACT_ []
NODE_GROUP_ corners: MERGE_ [], INTERSECT_ [rim wall floor], XOR_ [], SUBTRACT_ []
OBJ_FUNC_ objective: TARGET_ 77, DRESP_ drop, OPERATOR_ sum
OPERATOR_ norm: TYPE_ 112, UPDATE_TYPE_ 67, UPDATE_ID_ 
  DRESP_ [drop], DRESP_WEIGHT_ [2], OPERATOR_ [], OPERATOR_WEIGHT_ []
OPERATOR_ sum: TYPE_ 87, UPDATE_TYPE_ 82, UPDATE_ID_ of all
  DRESP_ [volume drop], DRESP_WEIGHT_ [0.5 1.5], OPERATOR_ [norm sum], OPERATOR_WEIGHT_ [-0.25 4]
OPT_PARAM_ careful
OPT_PARAM_ usual
OUTPUT_ history: FILENAME_ history.csv, FORMAT_ 67, TYPE_ 79, ELEMENT_GROUP_ pipes
OUTPUT_ picture: FILENAME_ picture.vtk, FORMAT_ 86, TYPE_ 84, ELEMENT_GROUP_ space
SCALING_CURVE_ ramp: TYPE_ 72, UPDATE_ID_ beta, MIN_ 1, MAX_ 16, PENALISATION_ 3, DATA_SHIFT_ 0.25
SMOOTH_ surface
STOP_ late: ITER_MAX_ 80
STOP_ soon: ITER_MAX_ 3
)";

// The text of one command in the form above.
class CommandText
{
public:
  explicit CommandText(const OrvelCommand& command)
  {
    m_text.precision(std::numeric_limits<double>::max_digits10);
    m_text << command.GetType() << " " << command.GetID_NAME_();
  }

  template <class T>
  CommandText& Key(const char* key, const T& value)
  {
    m_text << Separator() << key << " " << value;
    return *this;
  }
  template <class T>
  CommandText& Optional(bool has, const char* key, const T& value)
  {
    return has ? Key(key, value) : *this;
  }
  template <class T>
  CommandText& List(const char* key, const std::vector<T>& values)
  {
    m_text << Separator() << key << " [";
    const char* blank = "";
    for (const T& value : values)
    {
      m_text << blank;
      Put(value);
      blank = " ";
    }
    m_text << "]";
    return *this;
  }
  CommandText& Line()
  {
    m_separator = "\n  ";
    return *this;
  }
  std::string Text() const { return m_text.str() + "\n"; }

private:
  const char* Separator()
  {
    const char* separator = m_separator;
    m_separator = ", ";
    return separator;
  }
  template <class T>
  void Put(const T& value)
  {
    m_text << value;
  }
  template <class Command>
  void Put(const Command* const& command)
  {
    m_text << command->GetID_NAME_();
  }

  std::ostringstream m_text;
  const char* m_separator = ": ";
};

template <class Group>
CommandText TextOfGroup(const Group& group)
{
  CommandText text(group);
  text.List("MERGE_", group.GetMERGE_()).List("INTERSECT_", group.GetINTERSECT_());
  text.List("XOR_", group.GetXOR_()).List("SUBTRACT_", group.GetSUBTRACT_());
  return text;
}

template <class Settings>
CommandText TextOfSettings(const Settings& settings)
{
  CommandText text(settings);
  text.Key("ALGORITHM_", settings.GetALGORITHM_());
  text.Optional(settings.HasMIN_(), "MIN_", settings.GetMIN_());
  text.Optional(settings.HasMAX_(), "MAX_", settings.GetMAX_());
  text.Key("MOVE_", settings.GetMOVE_()).Line().Key("ASYM_MOVE_", settings.GetASYM_MOVE_());
  text.Key("ASYM_MOVE_LOW_", settings.GetASYM_MOVE_LOW_()).Key("ASYM_MOVE_UP_", settings.GetASYM_MOVE_UP_());
  return text;
}

// A reference that may be called only when it is there.
template <class Command>
void PutReferences(CommandText& text, const Command& command)
{
  if (command.HasDRESP_())
  {
    text.Key("DRESP_", command.GetDRESP_().GetID_NAME_());
  }
  if (command.HasOPERATOR_())
  {
    text.Key("OPERATOR_", command.GetOPERATOR_().GetID_NAME_());
  }
}

CommandText TextOf(const MODEL_& model)
{
  return std::move(CommandText(model).Key("FILE_", model.GetFILE_()));
}

CommandText TextOf(const ELEMENT_GROUP_& group)
{
  return TextOfGroup(group);
}

CommandText TextOf(const NODE_GROUP_& group)
{
  return TextOfGroup(group);
}

CommandText TextOf(const DV_& variable)
{
  CommandText text(variable);
  text.Optional(variable.HasELEMENT_GROUP_(), "ELEMENT_GROUP_", variable.GetELEMENT_GROUP_());
  text.Optional(variable.HasNODE_GROUP_(), "NODE_GROUP_", variable.GetNODE_GROUP_());
  text.Key("INITIAL_", variable.GetINITIAL_());
  text.Optional(variable.HasINITIAL_DV_FIELD_(), "INITIAL_DV_FIELD_", variable.GetINITIAL_DV_FIELD_());
  text.List("FILTER_", variable.GetFILTER_()).Key("TYPE_", variable.GetTYPE_()).List("DV_", variable.GetDV_());
  return text;
}

CommandText TextOf(const DRESP_& response)
{
  CommandText text(response);
  text.Key("TYPE_", response.GetTYPE_()).Key("UPDATE_TYPE_", response.GetUPDATE_TYPE_());
  text.Key("UPDATE_ID_", response.GetUPDATE_ID_());
  text.Optional(response.HasELEMENT_GROUP_(), "ELEMENT_GROUP_", response.GetELEMENT_GROUP_());
  text.Optional(response.HasNODE_GROUP_(), "NODE_GROUP_", response.GetNODE_GROUP_());
  text.Key("LOADCASE_", response.GetLOADCASE_());
  text.Optional(response.HasFILE_(), "FILE_", response.GetFILE_());
  text.Optional(response.HasCS_REF_(), "CS_REF_", response.GetCS_REF_());
  return text;
}

CommandText TextOf(const OPERATOR_& sum)
{
  CommandText text(sum);
  text.Key("TYPE_", sum.GetTYPE_()).Key("UPDATE_TYPE_", sum.GetUPDATE_TYPE_());
  text.Key("UPDATE_ID_", sum.GetUPDATE_ID_()).Line();
  text.List("DRESP_", sum.GetDRESP_()).List("DRESP_WEIGHT_", sum.GetDRESP_WEIGHT_());
  text.List("OPERATOR_", sum.GetOPERATOR_()).List("OPERATOR_WEIGHT_", sum.GetOPERATOR_WEIGHT_());
  return text;
}

CommandText TextOf(const OBJ_FUNC_& objective)
{
  CommandText text(objective);
  text.Key("TARGET_", objective.GetTARGET_());
  PutReferences(text, objective);
  return text;
}

CommandText TextOf(const CONSTRAINT_& constraint)
{
  CommandText text(constraint);
  PutReferences(text, constraint);
  text.Key("TYPE_", constraint.GetTYPE_()).Key("MAGNITUDE_", constraint.GetMAGNITUDE_());
  text.Key("VALUE_", constraint.GetVALUE_()).Key("COEFFICIENT_", constraint.GetCOEFFICIENT_());
  return text;
}

CommandText TextOf(const DV_CONSTRAINT_& constraint)
{
  CommandText text(constraint);
  text.Key("DVC_TYPE_", constraint.GetDVC_TYPE_());
  text.Optional(constraint.HasNODE_GROUP_(), "NODE_GROUP_", constraint.GetNODE_GROUP_());
  text.Optional(constraint.HasELEMENT_GROUP_(), "ELEMENT_GROUP_", constraint.GetELEMENT_GROUP_());
  text.Optional(constraint.HasRADIUS_(), "RADIUS_", constraint.GetRADIUS_());
  if (constraint.HasSCALING_CURVE_())
  {
    text.Key("SCALING_CURVE_", constraint.GetSCALING_CURVE_().GetID_NAME_());
  }
  return text;
}

CommandText TextOf(const ALGO_& task)
{
  CommandText text(task);
  text.Key("STRATEGY_", task.GetSTRATEGY_()).Line();
  text.Key("DV_", task.GetDV_().GetID_NAME_()).Key("OBJ_FUNC_", task.GetOBJ_FUNC_().GetID_NAME_());
  text.List("CONSTRAINT_", task.GetCONSTRAINT_()).List("DV_CONSTRAINT_", task.GetDV_CONSTRAINT_()).Line();
  text.Key("STOP_", task.GetSTOP_().GetID_NAME_()).List("MESH_SMOOTH_", task.GetMESH_SMOOTH_()).Line();
  text.Key("OPT_PARAM_", task.GetOPT_PARAM_().GetID_NAME_());
  text.Key("AS_TOPO_OC_", task.GetAS_TOPO_OC_().GetID_NAME_());
  text.Key("AS_TOPO_SENS_", task.GetAS_TOPO_SENS_().GetID_NAME_());
  text.Key("AS_SHAPE_SENS_", task.GetAS_SHAPE_SENS_().GetID_NAME_());
  return text;
}

CommandText TextOf(const STOP_& stop)
{
  return std::move(CommandText(stop).Key("ITER_MAX_", stop.GetITER_MAX_()));
}

CommandText TextOf(const MESH_SMOOTH_& smooth)
{
  return std::move(CommandText(smooth).Key("METHOD_", smooth.GetMETHOD_()));
}

CommandText TextOf(const FILTER_& filter)
{
  CommandText text(filter);
  text.Key("METHOD_", filter.GetMETHOD_()).Key("RADIUS_", filter.GetRADIUS_()).Key("ALPHA_", filter.GetALPHA_());
  return text;
}

CommandText TextOf(const AS_TOPO_SENS_& settings)
{
  return TextOfSettings(settings);
}

CommandText TextOf(const AS_SHAPE_SENS_& settings)
{
  return TextOfSettings(settings);
}

CommandText TextOf(const OUTPUT_& output)
{
  CommandText text(output);
  text.Key("FILENAME_", output.GetFILENAME_()).Key("FORMAT_", output.GetFORMAT_());
  text.Key("TYPE_", output.GetTYPE_()).Key("ELEMENT_GROUP_", output.GetELEMENT_GROUP_());
  return text;
}

CommandText TextOf(const SCALING_CURVE_& curve)
{
  CommandText text(curve);
  text.Key("TYPE_", curve.GetTYPE_()).Key("UPDATE_ID_", curve.GetUPDATE_ID_());
  text.Key("MIN_", curve.GetMIN_()).Key("MAX_", curve.GetMAX_());
  text.Key("PENALISATION_", curve.GetPENALISATION_()).Key("DATA_SHIFT_", curve.GetDATA_SHIFT_());
  return text;
}

// Kinds of which parsed commands have no key: OPT_PARAM_, AS_TOPO_OC_, SMOOTH_, and those that the job lacks.
CommandText TextOf(const OrvelCommand& command)
{
  return CommandText(command);
}

// All commands in the order of names. The two kinds that parsed commands do not name are left out.
std::string TextOf(const Gyre_Parfile& parfile)
{
  std::vector<std::string> texts;
  orvel::ForEachCommand(parfile, [&](const auto& command) {
    if (command.GetType() != "PRE_PARAM_" && command.GetType() != "FLOWPATHS_")
    {
      texts.push_back(TextOf(command).Text());
    }
  });
  std::sort(texts.begin(), texts.end());
  std::string all;
  for (const std::string& text : texts)
  {
    all += text;
  }
  return all;
}

std::string FirstLine(const std::string& text)
{
  return text.substr(0, text.find('\n'));
}

}  // namespace

// The same job from both storages.

TEST(ParsedAndStoredJob, LoadsFromParsedCommands)
{
  TwinJob job;
  Gyre_Parfile parfile(job.Parsed());
  parfile.Load();
  EXPECT_EQ(TextOf(parfile), kJob);
}

TEST(ParsedAndStoredJob, LoadsFromAFile)
{
  TwinJob job;
  Gyre_Parfile parfile(job.File());
  parfile.Load();
  EXPECT_EQ(TextOf(parfile), kJob);
}

TEST(ParsedAndStoredJob, IsTheSameFromBothForEveryKeyThatParsedCommandsHave)
{
  TwinJob job;
  Gyre_Parfile parsed(job.Parsed());
  parsed.Load();
  Gyre_Parfile stored(job.File());
  stored.Load();
  EXPECT_EQ(TextOf(parsed), TextOf(stored));
}

TEST(ParsedAndStoredJob, StandsInTheOrderOfParsingOrInThatOfNames)
{
  TwinJob job;
  Gyre_Parfile parsed(job.Parsed());
  parsed.Load();
  Gyre_Parfile stored(job.File());
  stored.Load();
  EXPECT_THAT(IdsOf(parsed.GetDV_()), ElementsAre("right", "left", "__v_merged_DV"));
  EXPECT_THAT(IdsOf(stored.GetDV_()), ElementsAre("__v_merged_DV", "left", "right"));
  EXPECT_THAT(IdsOf(parsed.GetELEMENT_GROUP_()), ElementsAre("space", "pipes"));
  EXPECT_THAT(IdsOf(stored.GetELEMENT_GROUP_()), ElementsAre("pipes", "space"));
}

TEST(ParsedAndStoredJob, HasTheKindsThatExistAnywayWithoutANameOrAsTheFileNamesThem)
{
  TwinJob job;
  Gyre_Parfile parsed(job.Parsed());
  parsed.Load();
  Gyre_Parfile stored(job.File());
  stored.Load();
  EXPECT_THAT(IdsOf(parsed.GetPRE_PARAM_()), ElementsAre(""));
  EXPECT_EQ(parsed.GetFLOWPATHS_().GetID_NAME_(), "");
  EXPECT_EQ(parsed.GetALGO_().GetPRE_PARAM_().GetID_NAME_(), "");
  EXPECT_THAT(IdsOf(stored.GetPRE_PARAM_()), ElementsAre("preparation"));
  EXPECT_EQ(stored.GetFLOWPATHS_().GetID_NAME_(), "paths");
  EXPECT_EQ(stored.GetALGO_().GetPRE_PARAM_().GetID_NAME_(), "preparation");
}

TEST(ParsedAndStoredJob, KeepsTheDefaultsOfTheKeysThatParsedCommandsLack)
{
  TwinJob job;
  Gyre_Parfile parsed(job.Parsed());
  parsed.Load();
  Gyre_Parfile stored(job.File());
  stored.Load();
  EXPECT_EQ(parsed.GetDRESP_("drop").GetITER_MAX_(), 0);
  EXPECT_EQ(stored.GetDRESP_("drop").GetITER_MAX_(), 4711);
  EXPECT_EQ(parsed.GetOPERATOR_("sum").GetFACTOR_(), 0.0);
  EXPECT_EQ(stored.GetOPERATOR_("sum").GetFACTOR_(), 47.11);
  EXPECT_EQ(parsed.GetDV_CONSTRAINT_("stamp").GetPATCH_ID_(), "");
  EXPECT_EQ(stored.GetDV_CONSTRAINT_("stamp").GetPATCH_ID_(), "from file");
  EXPECT_EQ(parsed.GetOUTPUT_("picture").GetRESULT_(), 0);
  EXPECT_EQ(stored.GetOUTPUT_("picture").GetRESULT_(), 4711);
  EXPECT_THAT(parsed.GetOUTPUT_("picture").GetITERATION_(), IsEmpty());
  EXPECT_THAT(stored.GetOUTPUT_("picture").GetITERATION_(), ElementsAre(47, 11));
}

TEST(ParsedAndStoredJob, NamesTheSameModelIds)
{
  TwinJob job;
  const OpenDatabase empty_database;
  for (OrvelParfileStorage* storage : {&job.Parsed(), &job.File()})
  {
    Gyre_Parfile parfile(*storage);
    parfile.Load();
    EXPECT_EQ(FirstLine(FailureOf([&] { parfile.ValidateModelIds(); }).message),
              "17 model IDs referenced in the parameter file cannot be found.");
  }
}

TEST(ParsedAndStoredJob, PassesTheCheckOfItsModelIds)
{
  TwinJob job;
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"space", "pipes", "inlet_pipe", "outlet_pipe"});
  database.Add(KLV_IdType::node_group, {"corners", "borders", "rim", "wall", "floor"});
  database.Add(KLV_IdType::coordinate_system, {"world"});
  for (OrvelParfileStorage* storage : {&job.Parsed(), &job.File()})
  {
    Gyre_Parfile parfile(*storage);
    parfile.Load();
    EXPECT_NO_THROW(parfile.ValidateModelIds());
  }
}

TEST(ParsedAndStoredJob, NeedsEveryKeyInTheFileThatAKindReadsWithoutAsking)
{
  TwinJob job;
  for (const twin_job::FileOnlyKeys& keys : twin_job::kFileOnlyKeys)
  {
    const std::string id = NameAt(job.File(), keys.kind, 0);
    twin_job::ForEachFileOnlyKey(keys, [&](const std::string& key, VtmType type) {
      SCOPED_TRACE(keys.kind + (" " + key));
      job.File().DeleteValues(keys.kind, id, key);
      Gyre_Parfile parfile(job.File());
      EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "Failed to retrieve value from the optimization database.");
      twin_job::AddFileOnlyValue(job.File(), keys.kind, id, key, type);
    });
  }
  Gyre_Parfile parfile(job.File());
  EXPECT_NO_THROW(parfile.Load());
}
