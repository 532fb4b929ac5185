#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/parsed_commands.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <sstream>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

// The keys that each kind reads without asking and that parsed commands do not have: a file must hold them.
struct FileOnlyKeys
{
  const char* kind;
  const char* texts;
  const char* integers;
  const char* doubles;
  const char* enumerators;
};

constexpr FileOnlyKeys kFileOnlyKeys[] = {
  {"DRESP_", "", "UPDATE_INDEX_ WRITE_INTERVAL_ ITER_MAX_ ITER_MIN_",
   "RESIDUAL_ ADJOINT_RESIDUAL_ ADJOINT_DEVIATION_ OBJECTIVE_DEVIATION_", ""},
  {"OPERATOR_", "", "UPDATE_INDEX_", "FACTOR_", ""},
  {"OBJ_FUNC_", "", "", "SENSSCALING_VALUE_", "SENSSCALING_TYPE_"},
  {"CONSTRAINT_", "", "", "A_MINMAX_COEFFICIENT_ SENSSCALING_VALUE_", "SENSSCALING_TYPE_"},
  {"DV_CONSTRAINT_", "PATCH_ID_", "AGGREGATION_NUM_CONSTRAINTS_", "AGGREGATION_PARAMETER_ TOLERANCE_",
   "FEASIBLE_START_ SAVE_ DUMPOPTVALUES_ AGGREGATION_METHOD_ CHECK_ELGR_BLOCKING_ MID_PLANE_"},
  {"ALGO_", "", "", "", "DEVELOPER_OUTPUT_"},
  {"OPT_PARAM_", "", "OPT_START_", "", ""},
  {"STOP_", "", "ITER_MIN_", "RESIDUAL_OBJ_ RESIDUAL_DV_", ""},
  {"MESH_SMOOTH_", "", "CYCLE_ SMOOTH_CYCLES_", "ALPHA_ BETA_", ""},
  {"FILTER_", "PATCH_ID_", "", "BETA_", ""},
  {"PRE_PARAM_", "PATCH_ID_", "ITER_MAX_ BACKFLOW_ANGLE_", "VISCOSITY_ RESIDUAL_",
   "PTRACK_PRI_VRML_ PTRACK_VAL_VRML_ REF_VRML_ PTRACK_KEEP_INVALID_ PTRACK_VRML_ADD_BOUNDS_"},
  {"AS_TOPO_OC_", "PATCH_ID_ SCALING_CURVE_UPDATE_ID_", "",
   "BT_ TA_MIN_ TA_MAX_ SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_", "SCALING_CURVE_TYPE_"},
  {"AS_TOPO_SENS_",
   "PATCH_ID_ SCALING_CURVE_UPDATE_ID_ ADJOINT_DISC_ ADJOINT_DRIVER_ KEEP_INITIAL_ KEEP_ADJOINT_ SKIP_PRESSURE_SRC_ "
   "SKIP_TURBULENT_SRC_",
   "PRIMAL_ITER_MIN_ PRIMAL_ITER_MAX_ PRIMAL_INTERVAL_ ADJOINT_ITER_MIN_ ADJOINT_ITER_MAX_ ADJOINT_INTERVAL_ "
   "ADJOINT_CFL_",
   "PRIMAL_RESIDUAL_ PRIMAL_DEVIATION_ SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_ SUB_TOL_",
   "MATH_KERNEL_ SCALING_CURVE_TYPE_"},
  {"AS_SHAPE_SENS_", "PATCH_ID_ SCALING_CURVE_UPDATE_ID_", "",
   "SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_ SUB_TOL_",
   "MATH_KERNEL_ SCALING_CURVE_TYPE_ NORMAL_UPDATE_ DV_TYPE_"},
  {"OUTPUT_", "", "BACKFLOW_ANGLE_", "SPREAD_PERCENTAGE_", "RESULT_ SPREAD_ALGO_ INVERT_ DESIGN_ONLY_ KEEP_POST_DATA_"},
  {"SMOOTH_", "PATCH_ID_ RESULT_FILE_ GROUP_FILE_",
   "SLICE_NUMBER_ SLICE_REF_QUANT_ SMOOTH_CYCLES_ IF_BORDER_CYCLES_ IF_INNER_CYCLES_",
   "ISO_VALUE_ TARGET_VOLUME_ SLICE_DISTANCE_ SLICE_RED_ANGLE_ SLICE_REF_FACTOR_ MIN_DENS_WALL_ REDUCTION_RATE_ "
   "REDUCTION_ANGLE_ MIN_ANGLE_ MIN_FACE_ANGLE_ INPUT_SCALE_ COMPONENT_LIM_SIZE_ IF_TOLERANCE_ LAPLACE_ALPHA_ "
   "LAPLACE_BETA_ WALL_TOLERANCE_",
   "TASK_ ALL_ITERATIONS_ VTM_RESULT_ STL_GROUPS_ OUTPUT_SURFACE_ VTF_ORGMODEL_ IGES_UNIT_ SLICES_ SLICE_PRIMARY_ "
   "SLICE_INTERSECTION_ SLICE_REDUCTION_ SLICE_OFFSET_ SLICE_FILTER_CURVES_ SLICE_FORMAT_ BORDER_ BORDER_FORMAT_ "
   "NO_SORT_ REDUCTION_ SELF_INTERSECTION_ MIXED_MESH_ EXCLUDE_LOADED_ ISO_SEQUENCE_ O_SURF_SMOOTHING_ "
   "RESULT_FILTERING_ IF_SMOOTHING_ IF_SMOOTH_FROZEN_ SHRINKAGE_CORRECTION_"},
};

template <class Action>
void ForEachWord(const char* words, Action action)
{
  std::istringstream stream(words);
  for (std::string word; stream >> word;)
  {
    action(word);
  }
}

// Calls the action with each of these keys and its type.
template <class Action>
void ForEachFileOnlyKey(const FileOnlyKeys& keys, Action action)
{
  ForEachWord(keys.texts, [&](const std::string& key) { action(key, vtmString); });
  ForEachWord(keys.integers, [&](const std::string& key) { action(key, vtmInteger); });
  ForEachWord(keys.doubles, [&](const std::string& key) { action(key, vtmDouble); });
  ForEachWord(keys.enumerators, [&](const std::string& key) { action(key, vtmEnum); });
}

void AddFileOnlyValue(const OrvelParfileStorage& file, const std::string& kind, const std::string& id,
                      const std::string& key, VtmType type)
{
  switch (type)
  {
    case vtmString: file.AddValue(kind, id, key, type, std::string("from file")); return;
    case vtmDouble: file.AddValue(kind, id, key, type, 47.11); return;
    default: file.AddValue(kind, id, key, type, 4711); return;
  }
}

// Adds the command with all that parsed commands of its kind do not have.
void AddStored(const OrvelParfileStorage& file, const std::string& kind, const std::string& id)
{
  file.AddCommand(kind, id);
  for (const FileOnlyKeys& keys : kFileOnlyKeys)
  {
    if (kind == keys.kind)
    {
      ForEachFileOnlyKey(keys, [&](auto& key, VtmType type) { AddFileOnlyValue(file, kind, id, key, type); });
    }
  }
  if (kind == "OUTPUT_")
  {
    file.AddValue(kind, id, "ITERATION_", vtmIntegerList, std::vector<int>{47, 11});
  }
}

// A command in both forms; what is added to it goes to both.
class TwinCommand
{
public:
  TwinCommand(const OrvelParfileStorage& file, std::string kind, std::string id, OrvelCmd& parsed)
    : m_file(file), m_kind(std::move(kind)), m_id(std::move(id)), m_parsed(parsed)
  {
  }

  TwinCommand& Text(const char* key, Items::CmdItem item, const std::string& value)
  {
    m_parsed.AddStringItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmString, value);
    return *this;
  }
  TwinCommand& Integer(const char* key, Items::CmdItem item, int value)
  {
    m_parsed.AddIntegerItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmInteger, value);
    return *this;
  }
  TwinCommand& Double(const char* key, Items::CmdItem item, double value)
  {
    m_parsed.AddDoubleItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmDouble, value);
    return *this;
  }
  TwinCommand& Enum(const char* key, Items::CmdItem item, int value)
  {
    m_parsed.AddEnumItem(item, Enumerator(value));
    m_file.AddValue(m_kind, m_id, key, vtmEnum, value);
    return *this;
  }
  TwinCommand& Reference(const char* key, Items::CmdItem item, const TwinCommand& target)
  {
    m_parsed.AddReferenceItem(item, target.m_parsed);
    return StoredReference(key, target);
  }
  TwinCommand& Operand(const char* key, const TwinCommand& target, const char* weight_key, double weight)
  {
    return Reference(key, Items::REFERENCE, target).Double(weight_key, Items::COEFFICIENT, weight);
  }
  TwinCommand& StoredReference(const char* key, const TwinCommand& target)
  {
    m_file.AddReference(m_kind, m_id, key, target.m_kind, target.m_id);
    return *this;
  }

  OrvelCmd& Parsed() { return m_parsed; }

private:
  const OrvelParfileStorage& m_file;
  std::string m_kind;
  std::string m_id;
  OrvelCmd& m_parsed;
};

// One job as parsed commands and in a file. Its commands are added in an order that is not that of their names.
class TwinJob
{
public:
  TwinJob()
  {
    plain_hdf5::MakeEmptyFile();
    m_file = std::make_unique<ParfileHdf5Storage>(true);
    Add("MODEL_", Defs::MODEL_INPUT, "duct").Text("FILE_", Items::FILE, "duct.cgns");
    AddGroups();
    AddVariables();
    AddResponses();
    AddOperators();
    AddFunctions();
    AddTask();
    AddOutputs();
    m_parsed = std::make_unique<OrvelParfileStorageCmdContainer>(m_container);
  }

  OrvelParfileStorage& Parsed() { return *m_parsed; }
  OrvelParfileStorage& File() { return *m_file; }

private:
  TwinCommand& Add(const std::string& kind, Defs::Cmd parsed_kind, const std::string& id)
  {
    AddStored(*m_file, kind, id);
    OrvelCmd& parsed = AddParsed(m_container, parsed_kind, id);
    return m_commands.try_emplace({kind, id}, *m_file, kind, id, parsed).first->second;
  }
  const TwinCommand& Get(const std::string& kind, const std::string& id) const { return m_commands.at({kind, id}); }

  void AddGroup(const char* kind, int type, const char* id, const char* key, int format,
                const std::vector<std::string>& groups)
  {
    OrvelCmd& parsed = Add(kind, Defs::GROUP_DEF, id).Parsed();
    parsed.AddEnumItem(Items::TYPE, Enumerator(type));
    parsed.AddEnumItem(Items::FORMAT, Enumerator(format));
    parsed.AddStringListItem(Items::LIST_BEGIN, groups);
    for (const std::string& group : groups)
    {
      m_file->AddValue(kind, id, key, vtmModelId, group);
    }
  }
  void AddGroups()
  {
    AddGroup("ELEMENT_GROUP_", 0, "space", "SUBTRACT_", 83, {"pipes"});
    AddGroup("NODE_GROUP_", 2, "corners", "INTERSECT_", 73, {"rim", "wall", "floor"});
    AddGroup("ELEMENT_GROUP_", 0, "pipes", "MERGE_", 77, {"outlet_pipe", "inlet_pipe"});
    AddGroup("NODE_GROUP_", 2, "borders", "XOR_", 88, {"rim", "floor"});
  }

  void AddFilter(const char* id, int method, double radius, double alpha)
  {
    Add("FILTER_", Defs::FILTER, id)
      .Enum("METHOD_", Items::TYPE, method)
      .Double("RADIUS_", Items::VALUE, radius)
      .Double("ALPHA_", Items::TARGET, alpha);
  }
  void AddVariables()
  {
    AddFilter("fine", 69, 0.0625, 0.5);
    AddFilter("coarse", 66, 0.125, -1);
    TwinCommand& right = Add("DV_", Defs::DV, "right")
                           .Text("ELEMENT_GROUP_", Items::ELEMENT_GROUP, "space")
                           .Double("INITIAL_", Items::VALUE, 0.375)
                           .Reference("FILTER_", Items::REFERENCE, Get("FILTER_", "fine"))
                           .Reference("FILTER_", Items::REFERENCE, Get("FILTER_", "coarse"))
                           .Enum("TYPE_", Items::TYPE, 68);
    Add("DV_", Defs::DV, "left")
      .Text("NODE_GROUP_", Items::NODE_GROUP, "corners")
      .Double("INITIAL_", Items::VALUE, 0.625)
      .Text("INITIAL_DV_FIELD_", Items::FILE, "start.csv")
      .Enum("TYPE_", Items::TYPE, 78)
      .Reference("DV_", Items::DV, right);
    // What two references of the ALGO_ make of parsed variables, a file tells in so many words.
    m_file->AddCommand("DV_", "__v_merged_DV");
    m_file->AddValue("DV_", "__v_merged_DV", "INITIAL_", vtmDouble, 0.0);
    m_file->AddValue("DV_", "__v_merged_DV", "TYPE_", vtmEnum, 0);
    m_file->AddReference("DV_", "__v_merged_DV", "DV_", "DV_", "right");
    m_file->AddReference("DV_", "__v_merged_DV", "DV_", "DV_", "left");
  }

  void AddResponses()
  {
    Add("DRESP_", Defs::DRESP, "volume")
      .Enum("TYPE_", Items::TYPE, 146)
      .Enum("UPDATE_TYPE_", Items::UPDATE_TYPE, 67)
      .Text("UPDATE_ID_", Items::UPDATE_ID, "vol")
      .Text("ELEMENT_GROUP_", Items::ELEMENT_GROUP, "space")
      .Integer("LOADCASE_", Items::LOADCASE, 1)
      .Text("FILE_", Items::FILE, "volume.csv");
    Add("DRESP_", Defs::DRESP, "drop")
      .Enum("TYPE_", Items::TYPE, 1001)
      .Enum("UPDATE_TYPE_", Items::UPDATE_TYPE, 82)
      .Text("UPDATE_ID_", Items::UPDATE_ID, "dp")
      .Text("NODE_GROUP_", Items::NODE_GROUP, "borders")
      .Integer("LOADCASE_", Items::LOADCASE, 2)
      .Text("CS_REF_", Items::CS, "world");
  }

  void AddOperators()
  {
    const TwinCommand& volume = Get("DRESP_", "volume");
    const TwinCommand& drop = Get("DRESP_", "drop");
    TwinCommand& sum = Add("OPERATOR_", Defs::OPERATOR, "sum");
    TwinCommand& norm = Add("OPERATOR_", Defs::OPERATOR, "norm");
    sum.Enum("TYPE_", Items::TYPE, 87)
      .Enum("UPDATE_TYPE_", Items::UPDATE_TYPE, 82)
      .Text("UPDATE_ID_", Items::UPDATE_ID, "of all")
      .Operand("DRESP_", volume, "DRESP_WEIGHT_", 0.5)
      .Operand("OPERATOR_", norm, "OPERATOR_WEIGHT_", -0.25)
      .Operand("DRESP_", drop, "DRESP_WEIGHT_", 1.5)
      .Operand("OPERATOR_", sum, "OPERATOR_WEIGHT_", 4);
    norm.Enum("TYPE_", Items::TYPE, 112)
      .Enum("UPDATE_TYPE_", Items::UPDATE_TYPE, 67)
      .Text("UPDATE_ID_", Items::UPDATE_ID, "")
      .Operand("DRESP_", drop, "DRESP_WEIGHT_", 2);
  }

  void AddFunctions()
  {
    Add("OBJ_FUNC_", Defs::OBJ_FUNC, "objective")
      .Reference("DRESP_", Items::DRESP, Get("DRESP_", "drop"))
      .Reference("OPERATOR_", Items::DRESP, Get("OPERATOR_", "sum"))
      .Enum("TARGET_", Items::TARGET, 77);
    Add("CONSTRAINT_", Defs::CONSTRAINT, "limit")
      .Reference("DRESP_", Items::DRESP, Get("DRESP_", "volume"))
      .Enum("TYPE_", Items::TYPE, 76)
      .Enum("MAGNITUDE_", Items::MAGNITUDE, 82)
      .Double("VALUE_", Items::VALUE, 0.3125)
      .Double("COEFFICIENT_", Items::COEFFICIENT, 9.5367431640625e-07);
    Add("CONSTRAINT_", Defs::CONSTRAINT, "bound")
      .Reference("OPERATOR_", Items::DRESP, Get("OPERATOR_", "norm"))
      .Enum("TYPE_", Items::TYPE, 71)
      .Enum("MAGNITUDE_", Items::MAGNITUDE, 65)
      .Double("VALUE_", Items::VALUE, -2)
      .Double("COEFFICIENT_", Items::COEFFICIENT, 0);
    Add("SCALING_CURVE_", Defs::SCALING_CURVE, "ramp")
      .Enum("TYPE_", Items::TYPE, 72)
      .Text("UPDATE_ID_", Items::UPDATE_ID, "beta")
      .Double("MIN_", Items::MIN, 1)
      .Double("MAX_", Items::MAX, 16)
      .Double("PENALISATION_", Items::VALUE, 3)
      .Double("DATA_SHIFT_", Items::COEFFICIENT, 0.25);
    Add("DV_CONSTRAINT_", Defs::DV_CONSTRAINT, "stamp")
      .Enum("DVC_TYPE_", Items::TYPE, 65)
      .Text("ELEMENT_GROUP_", Items::ELEMENT_GROUP, "space")
      .Double("RADIUS_", Items::VALUE, 0.03125);
    Add("DV_CONSTRAINT_", Defs::DV_CONSTRAINT, "mirror")
      .Enum("DVC_TYPE_", Items::TYPE, 80)
      .Text("NODE_GROUP_", Items::NODE_GROUP, "corners")
      .Reference("SCALING_CURVE_", Items::REFERENCE, Get("SCALING_CURVE_", "ramp"));
  }

  // One OPT_PARAM stands for four kinds, whose keys come from the update parameters.
  void AddSettings(const char* id)
  {
    Add("OPT_PARAM_", Defs::OPT_PARAM, id);
    for (const char* kind : {"AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
    {
      AddStored(*m_file, kind, id);
    }
    for (const char* kind : {"AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
    {
      m_file->AddValue(kind, id, "ALGORITHM_", vtmEnum, 77);
      m_file->AddValue(kind, id, "MIN_", vtmDouble, 0.0078125);
      m_file->AddValue(kind, id, "MAX_", vtmDouble, 0.9921875);
      m_file->AddValue(kind, id, "MOVE_", vtmDouble, 0.125);
      m_file->AddValue(kind, id, "ASYM_MOVE_", vtmEnum, 83);
      m_file->AddValue(kind, id, "ASYM_MOVE_LOW_", vtmDouble, 0.0625);
      m_file->AddValue(kind, id, "ASYM_MOVE_UP_", vtmDouble, 0.1875);
    }
  }
  OrvelCmd& AddUpdateParameters()
  {
    OrvelCmd& update = AddParsed(m_container, Defs::DV_UPDATE_PARAM, "update");
    update.AddEnumItem(Items::STRATEGY, Enumerator(77));
    update.AddDoubleItem(Items::MIN, 0.0078125);
    update.AddDoubleItem(Items::MAX, 0.9921875);
    update.AddDoubleItem(Items::VALUE, 0.125);
    update.AddEnumItem(Items::UPDATE_TYPE, Enumerator(83));
    update.AddDoubleItem(Items::LOWER, 0.0625);
    update.AddDoubleItem(Items::UPPER, 0.1875);
    return update;
  }
  void AddTask()
  {
    AddSettings("usual");
    AddSettings("careful");
    Add("STOP_", Defs::STOP, "soon").Integer("ITER_MAX_", Items::ITER_MAX, 3);
    Add("STOP_", Defs::STOP, "late").Integer("ITER_MAX_", Items::ITER_MAX, 80);
    Add("MESH_SMOOTH_", Defs::MESH_SMOOTH, "tum").Enum("METHOD_", Items::STRATEGY, 85);
    Add("MESH_SMOOTH_", Defs::MESH_SMOOTH, "laplace").Enum("METHOD_", Items::STRATEGY, 76);
    AddStored(*m_file, "PRE_PARAM_", "preparation");
    AddStored(*m_file, "FLOWPATHS_", "paths");

    TwinCommand& task = Add("ALGO_", Defs::OPTIMIZE, "task")
                          .Enum("STRATEGY_", Items::STRATEGY, 84)
                          .Reference("OBJ_FUNC_", Items::OBJ_FUNC, Get("OBJ_FUNC_", "objective"))
                          .Reference("CONSTRAINT_", Items::CONSTRAINT, Get("CONSTRAINT_", "limit"))
                          .Reference("CONSTRAINT_", Items::CONSTRAINT, Get("CONSTRAINT_", "bound"))
                          .Reference("DV_CONSTRAINT_", Items::DV_CONSTRAINT, Get("DV_CONSTRAINT_", "mirror"))
                          .Reference("DV_CONSTRAINT_", Items::DV_CONSTRAINT, Get("DV_CONSTRAINT_", "stamp"))
                          .Reference("STOP_", Items::STOP, Get("STOP_", "late"))
                          .Reference("MESH_SMOOTH_", Items::MESH_SMOOTH, Get("MESH_SMOOTH_", "tum"))
                          .Reference("MESH_SMOOTH_", Items::MESH_SMOOTH, Get("MESH_SMOOTH_", "laplace"))
                          .Reference("OPT_PARAM_", Items::OPT_PARAM, Get("OPT_PARAM_", "usual"));
    task.Parsed().AddReferenceItem(Items::DV_UPDATE_PARAM, AddUpdateParameters());
    for (const char* id : {"right", "left"})
    {
      TwinCommand variable = Get("DV_", id);
      task.Parsed().AddReferenceItem(Items::DV, variable.Parsed());
    }
    m_file->AddReference("ALGO_", "task", "DV_", "DV_", "__v_merged_DV");
    m_file->AddReference("ALGO_", "task", "PRE_PARAM_", "PRE_PARAM_", "preparation");
    for (const char* kind : {"AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
    {
      m_file->AddReference("ALGO_", "task", kind, kind, "usual");
    }
  }

  void AddOutputs()
  {
    Add("OUTPUT_", Defs::OUTPUT, "picture")
      .Text("FILENAME_", Items::FILE, "picture.vtk")
      .Enum("FORMAT_", Items::FORMAT, 86)
      .Enum("TYPE_", Items::TYPE, 84)
      .Text("ELEMENT_GROUP_", Items::ELEMENT_GROUP, "space");
    Add("OUTPUT_", Defs::OUTPUT, "history")
      .Text("FILENAME_", Items::FILE, "history.csv")
      .Enum("FORMAT_", Items::FORMAT, 67)
      .Enum("TYPE_", Items::TYPE, 79)
      .Text("ELEMENT_GROUP_", Items::ELEMENT_GROUP, "pipes");
    Add("SMOOTH_", Defs::SMOOTH, "surface");
  }

  TemporaryFolder m_folder;
  plain_hdf5::QuietErrors m_quiet;
  OrvelCmdContainer m_container;
  std::map<std::pair<std::string, std::string>, TwinCommand> m_commands;
  std::unique_ptr<OrvelParfileStorage> m_file;
  std::unique_ptr<OrvelParfileStorage> m_parsed;
};

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
OPERATOR_ norm: TYPE_ 112, UPDATE_TYPE_ 67, UPDATE_ID_ , DRESP_ [drop], DRESP_WEIGHT_ [2], OPERATOR_ [], OPERATOR_WEIGHT_ []
OPERATOR_ sum: TYPE_ 87, UPDATE_TYPE_ 82, UPDATE_ID_ of all, DRESP_ [volume drop], DRESP_WEIGHT_ [0.5 1.5], OPERATOR_ [norm sum], OPERATOR_WEIGHT_ [-0.25 4]
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
  text.Key("UPDATE_ID_", sum.GetUPDATE_ID_());
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

template <class Command>
std::vector<std::string> IdsOf(const std::vector<Command*>& commands)
{
  std::vector<std::string> ids;
  for (const Command* command : commands)
  {
    ids.push_back(command->GetID_NAME_());
  }
  return ids;
}

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
  for (const FileOnlyKeys& keys : kFileOnlyKeys)
  {
    const std::string id = NameAt(job.File(), keys.kind, 0);
    ForEachFileOnlyKey(keys, [&](const std::string& key, VtmType type) {
      SCOPED_TRACE(keys.kind + (" " + key));
      job.File().DeleteValues(keys.kind, id, key);
      Gyre_Parfile parfile(job.File());
      EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "Failed to retrieve value from the optimization database.");
      AddFileOnlyValue(job.File(), keys.kind, id, key, type);
    });
  }
  Gyre_Parfile parfile(job.File());
  EXPECT_NO_THROW(parfile.Load());
}

// What parsed commands mean for single kinds.

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
  EXPECT_EQ(TextOf(topo).Text(), "AS_TOPO_SENS_ : ALGORITHM_ 7, MIN_ 7, MAX_ 7, MOVE_ 7\n"
                                 "  ASYM_MOVE_ 7, ASYM_MOVE_LOW_ 7, ASYM_MOVE_UP_ 7\n");
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
  EXPECT_EQ(TextOf(shape).Text(), "AS_SHAPE_SENS_ : ALGORITHM_ 7, MIN_ 7, MAX_ 7, MOVE_ 7\n"
                                  "  ASYM_MOVE_ 7, ASYM_MOVE_LOW_ 7, ASYM_MOVE_UP_ 7\n");
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
  EXPECT_EQ(TextOf(output).Text(), "OUTPUT_ picture: FILENAME_ 7, FORMAT_ 7, TYPE_ 7, ELEMENT_GROUP_ 7\n");
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
