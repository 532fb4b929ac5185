/// \file
/// One fluid job in both forms that a storage can have. It works in a temporary folder: one job at a time.
#pragma once

#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/parsed_commands.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace twin_job
{

/// The keys that a kind reads without asking and that parsed commands do not have: a file must hold them.
struct FileOnlyKeys
{
  const char* kind;
  const char* texts;
  const char* integers;
  const char* doubles;
  const char* enumerators;
};

inline constexpr FileOnlyKeys kFileOnlyKeys[] = {
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

/// Calls \p action with each of these keys and its type.
template <class Action>
void ForEachFileOnlyKey(const FileOnlyKeys& keys, Action action)
{
  ForEachWord(keys.texts, [&](const std::string& key) { action(key, vtmString); });
  ForEachWord(keys.integers, [&](const std::string& key) { action(key, vtmInteger); });
  ForEachWord(keys.doubles, [&](const std::string& key) { action(key, vtmDouble); });
  ForEachWord(keys.enumerators, [&](const std::string& key) { action(key, vtmEnum); });
}

inline void AddFileOnlyValue(const OrvelParfileStorage& file, const std::string& kind, const std::string& id,
                             const std::string& key, VtmType type)
{
  switch (type)
  {
    case vtmString: file.AddValue(kind, id, key, type, std::string("from file")); return;
    case vtmDouble: file.AddValue(kind, id, key, type, 47.11); return;
    default: file.AddValue(kind, id, key, type, 4711); return;
  }
}

/// Adds the command with all that parsed commands of its kind do not have.
inline void AddStored(const OrvelParfileStorage& file, const std::string& kind, const std::string& id)
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

/// A command in both forms; what is added to it goes to both.
class TwinCommand
{
public:
  TwinCommand(const OrvelParfileStorage& file, std::string kind, std::string id, OrvelCmd& parsed)
    : m_file(file), m_kind(std::move(kind)), m_id(std::move(id)), m_parsed(parsed)
  {
  }

  TwinCommand& Text(const char* key, OrvelCmdItemDefs::CmdItem item, const std::string& value)
  {
    m_parsed.AddStringItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmString, value);
    return *this;
  }
  TwinCommand& Integer(const char* key, OrvelCmdItemDefs::CmdItem item, int value)
  {
    m_parsed.AddIntegerItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmInteger, value);
    return *this;
  }
  TwinCommand& Double(const char* key, OrvelCmdItemDefs::CmdItem item, double value)
  {
    m_parsed.AddDoubleItem(item, value);
    m_file.AddValue(m_kind, m_id, key, vtmDouble, value);
    return *this;
  }
  TwinCommand& Enum(const char* key, OrvelCmdItemDefs::CmdItem item, int value)
  {
    m_parsed.AddEnumItem(item, Enumerator(value));
    m_file.AddValue(m_kind, m_id, key, vtmEnum, value);
    return *this;
  }
  TwinCommand& Reference(const char* key, OrvelCmdItemDefs::CmdItem item, const TwinCommand& target)
  {
    m_parsed.AddReferenceItem(item, target.m_parsed);
    return StoredReference(key, target);
  }
  TwinCommand& Operand(const char* key, const TwinCommand& target, const char* weight_key, double weight)
  {
    return Reference(key, OrvelCmdItemDefs::REFERENCE, target)
      .Double(weight_key, OrvelCmdItemDefs::COEFFICIENT, weight);
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

}  // namespace twin_job

/// A job that fills every key that parsed commands have. Its commands are added in an order that is not that of their
/// names, and its doubles have few binary digits. The keys that only a file has hold "from file", 4711 or 47.11.
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

  /// The job as parsed commands.
  OrvelParfileStorage& Parsed() { return *m_parsed; }
  /// The job in a file.
  OrvelParfileStorage& File() { return *m_file; }

private:
  using Defs = OrvelCmdDefs;
  using Items = OrvelCmdItemDefs;
  using Command = twin_job::TwinCommand;

  Command& Add(const std::string& kind, Defs::Cmd parsed_kind, const std::string& id)
  {
    twin_job::AddStored(*m_file, kind, id);
    OrvelCmd& parsed = AddParsed(m_container, parsed_kind, id);
    return m_commands.try_emplace({kind, id}, *m_file, kind, id, parsed).first->second;
  }
  const Command& Get(const std::string& kind, const std::string& id) const { return m_commands.at({kind, id}); }

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
    Command& right = Add("DV_", Defs::DV, "right")
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
    const Command& volume = Get("DRESP_", "volume");
    const Command& drop = Get("DRESP_", "drop");
    Command& sum = Add("OPERATOR_", Defs::OPERATOR, "sum");
    Command& norm = Add("OPERATOR_", Defs::OPERATOR, "norm");
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
      twin_job::AddStored(*m_file, kind, id);
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
    twin_job::AddStored(*m_file, "PRE_PARAM_", "preparation");
    twin_job::AddStored(*m_file, "FLOWPATHS_", "paths");

    Command& task = Add("ALGO_", Defs::OPTIMIZE, "task")
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
      Command variable = Get("DV_", id);
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
  std::map<std::pair<std::string, std::string>, Command> m_commands;
  std::unique_ptr<OrvelParfileStorage> m_file;
  std::unique_ptr<OrvelParfileStorage> m_parsed;
};
