#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "support/parsed_commands.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;
using Storage = OrvelParfileStorageCmdContainer;

namespace
{

std::set<std::string> Words(const std::string& text)
{
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

// The commands.

enum class Counting
{
  Plain,
  Filtered,
  DesignVariable
};

struct CommandRow
{
  const char* command;
  int kind;
  int filter_item;   // 39 without a filter
  int filter_value;  // -1 without a filter
  Counting counting;
};

// clang-format off
constexpr CommandRow kCommands[] = {
  {"MODEL_",         0,  39, -1, Counting::Plain},
  {"DRESP_",         3,  39, -1, Counting::Plain},
  {"OPERATOR_",      4,  39, -1, Counting::Plain},
  {"OBJ_FUNC_",      5,  39, -1, Counting::Plain},
  {"CONSTRAINT_",    6,  39, -1, Counting::Plain},
  {"DV_CONSTRAINT_", 7,  39, -1, Counting::Plain},
  {"ALGO_",          9,  39, -1, Counting::Plain},
  {"OPT_PARAM_",     10, 39, -1, Counting::Plain},
  {"STOP_",          11, 39, -1, Counting::Plain},
  {"MESH_SMOOTH_",   8,  39, -1, Counting::Plain},
  {"OUTPUT_",        12, 39, -1, Counting::Plain},
  {"SMOOTH_",        13, 39, -1, Counting::Plain},
  {"AS_TOPO_OC_",    10, 39, -1, Counting::Plain},
  {"AS_TOPO_SENS_",  10, 39, -1, Counting::Plain},
  {"AS_SHAPE_SENS_", 10, 39, -1, Counting::Plain},
  {"SCALING_CURVE_", 16, 39, -1, Counting::Plain},
  {"FILTER_",        17, 39, -1, Counting::Plain},
  {"ELEMENT_GROUP_", 1,  1,  0,  Counting::Filtered},
  {"NODE_GROUP_",    1,  1,  2,  Counting::Filtered},
  {"DV_",            2,  39, -1, Counting::DesignVariable},
};
// clang-format on

Defs::Cmd Kind(int number)
{
  return static_cast<Defs::Cmd>(number);
}

Items::CmdItem Item(int number)
{
  return static_cast<Items::CmdItem>(number);
}

// A command of each kind for each of the numbers -1 to 3 as its TYPE, named "<kind> of type <number>". The OPTIMIZE
// commands refer to two design variables.
void AddCommandsOfAllKinds(OrvelCmdContainer& container)
{
  for (int kind = 0; kind <= 20; ++kind)
  {
    for (int type = -1; type <= 3; ++type)
    {
      OrvelCmd& command = AddParsed(container, Kind(kind), std::to_string(kind) + " of type " + std::to_string(type));
      command.AddEnumItem(Items::TYPE, Enumerator(type));
      command.AddStringItem(Items::DV, "one");
      command.AddStringItem(Items::DV, "two");
    }
  }
}

std::vector<std::string> NamesByRow(const CommandRow& row)
{
  const std::string kind = std::to_string(row.kind);
  if (row.counting == Counting::Filtered)
  {
    return {kind + " of type " + std::to_string(row.filter_value)};
  }
  std::vector<std::string> names = {kind + " of type -1", kind + " of type 0", kind + " of type 1", kind + " of type 2",
                                    kind + " of type 3"};
  if (row.counting == Counting::DesignVariable)
  {
    names.push_back("__v_merged_DV");
  }
  return names;
}

// The keys that read an item of their own command.

enum class Value
{
  Text,
  Integer,
  Double,
  Enumerator,
  Reference
};

struct DirectRow
{
  const char* command;
  int kind;
  const char* key;
  int item;
  Value value;
};

// clang-format off
constexpr DirectRow kDirectKeys[] = {
  {"MODEL_",         0,  "FILE_",             2,  Value::Text},
  {"DV_",            2,  "ELEMENT_GROUP_",    5,  Value::Text},
  {"DV_",            2,  "NODE_GROUP_",       6,  Value::Text},
  {"DV_",            2,  "INITIAL_",          10, Value::Double},
  {"DV_",            2,  "INITIAL_DV_FIELD_", 2,  Value::Text},
  {"DV_",            2,  "FILTER_",           24, Value::Reference},
  {"DV_",            2,  "TYPE_",             1,  Value::Enumerator},
  {"DRESP_",         3,  "TYPE_",             1,  Value::Enumerator},
  {"DRESP_",         3,  "ELEMENT_GROUP_",    5,  Value::Text},
  {"DRESP_",         3,  "NODE_GROUP_",       6,  Value::Text},
  {"DRESP_",         3,  "UPDATE_TYPE_",      28, Value::Enumerator},
  {"DRESP_",         3,  "UPDATE_ID_",        29, Value::Text},
  {"DRESP_",         3,  "LOADCASE_",         33, Value::Integer},
  {"DRESP_",         3,  "FILE_",             2,  Value::Text},
  {"DRESP_",         3,  "CS_REF_",           37, Value::Text},
  {"OPERATOR_",      4,  "TYPE_",             1,  Value::Enumerator},
  {"OPERATOR_",      4,  "UPDATE_TYPE_",      28, Value::Enumerator},
  {"OPERATOR_",      4,  "UPDATE_ID_",        29, Value::Text},
  {"OBJ_FUNC_",      5,  "TARGET_",           9,  Value::Enumerator},
  {"CONSTRAINT_",    6,  "TYPE_",             1,  Value::Enumerator},
  {"CONSTRAINT_",    6,  "VALUE_",            10, Value::Double},
  {"CONSTRAINT_",    6,  "COEFFICIENT_",      25, Value::Double},
  {"CONSTRAINT_",    6,  "MAGNITUDE_",        34, Value::Enumerator},
  {"DV_CONSTRAINT_", 7,  "DVC_TYPE_",         1,  Value::Enumerator},
  {"DV_CONSTRAINT_", 7,  "ELEMENT_GROUP_",    5,  Value::Text},
  {"DV_CONSTRAINT_", 7,  "NODE_GROUP_",       6,  Value::Text},
  {"DV_CONSTRAINT_", 7,  "SCALING_CURVE_",    24, Value::Reference},
  {"DV_CONSTRAINT_", 7,  "RADIUS_",           10, Value::Double},
  {"MESH_SMOOTH_",   8,  "METHOD_",           18, Value::Enumerator},
  {"ALGO_",          9,  "STRATEGY_",         18, Value::Enumerator},
  {"ALGO_",          9,  "OBJ_FUNC_",         15, Value::Reference},
  {"ALGO_",          9,  "CONSTRAINT_",       16, Value::Reference},
  {"ALGO_",          9,  "DV_CONSTRAINT_",    17, Value::Reference},
  {"ALGO_",          9,  "STOP_",             19, Value::Reference},
  {"ALGO_",          9,  "MESH_SMOOTH_",      20, Value::Reference},
  {"ALGO_",          9,  "OPT_PARAM_",        22, Value::Reference},
  {"ALGO_",          9,  "AS_TOPO_SENS_",     22, Value::Reference},
  {"ALGO_",          9,  "AS_SHAPE_SENS_",    22, Value::Reference},
  {"ALGO_",          9,  "AS_TOPO_OC_",       22, Value::Reference},
  {"STOP_",          11, "ITER_MAX_",         21, Value::Integer},
  {"OUTPUT_",        12, "FILENAME_",         2,  Value::Text},
  {"OUTPUT_",        12, "FORMAT_",           30, Value::Enumerator},
  {"OUTPUT_",        12, "TYPE_",             1,  Value::Enumerator},
  {"OUTPUT_",        12, "ELEMENT_GROUP_",    5,  Value::Text},
  {"SCALING_CURVE_", 16, "TYPE_",             1,  Value::Enumerator},
  {"SCALING_CURVE_", 16, "UPDATE_ID_",        29, Value::Text},
  {"SCALING_CURVE_", 16, "MIN_",              11, Value::Double},
  {"SCALING_CURVE_", 16, "MAX_",              12, Value::Double},
  {"SCALING_CURVE_", 16, "PENALISATION_",     10, Value::Double},
  {"SCALING_CURVE_", 16, "DATA_SHIFT_",       25, Value::Double},
  {"FILTER_",        17, "METHOD_",           1,  Value::Enumerator},
  {"FILTER_",        17, "RADIUS_",           10, Value::Double},
  {"FILTER_",        17, "ALPHA_",            9,  Value::Double},
};
// clang-format on

// Two values of the row's type, which are 7 and 8 in one form or another.
void AddTwoValues(OrvelCmdContainer& container, OrvelCmd& command, Items::CmdItem item, Value type)
{
  for (const int number : {7, 8})
  {
    switch (type)
    {
      case Value::Text: command.AddStringItem(item, std::to_string(number)); break;
      case Value::Integer: command.AddIntegerItem(item, number); break;
      case Value::Double: command.AddDoubleItem(item, number); break;
      case Value::Enumerator: command.AddEnumItem(item, Enumerator(number)); break;
      case Value::Reference:
        command.AddReferenceItem(item, AddParsed(container, Defs::REPORT, std::to_string(number)));
        break;
    }
  }
}

std::string ReadAs(Value type, const KeysOf& keys, const std::string& key, std::uint64_t index)
{
  switch (type)
  {
    case Value::Text: return keys.Text(key, index);
    case Value::Integer: return std::to_string(keys.Integer(key, index));
    case Value::Double: return keys.Double(key, index) == 7 ? "7" : keys.Double(key, index) == 8 ? "8" : "another";
    case Value::Enumerator: return std::to_string(keys.Enumerator(key, index));
    case Value::Reference: return keys.Reference(key, index);
  }
  return "";
}

// All items but `ID_NAME` and one, each twice, as numbers from 100 on.
void AddAllItemsBut(OrvelCmd& command, int item)
{
  for (int other = 1; other <= 38; ++other)
  {
    if (other != item)
    {
      command.AddIntegerItem(Item(other), 100 + other);
      command.AddIntegerItem(Item(other), 100 + other);
    }
  }
}

// The keys of groups.

struct GroupRow
{
  const char* key;
  int format;
};

// clang-format off
constexpr GroupRow kGroupKeys[] = {
  {"MERGE_",     77},
  {"SUBTRACT_",  83},
  {"INTERSECT_", 73},
  {"XOR_",       88},
};
// clang-format on

void AddGroup(OrvelCmdContainer& container, const std::string& id, int format)
{
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, id);
  group.AddEnumItem(Items::FORMAT, Enumerator(format));
  group.AddStringListItem(Items::LIST_BEGIN, {"a", "b", "c"});
}

// The keys that read one list by what stands beside it in another.

struct FilteredRow
{
  const char* command;
  int kind;
  const char* key;
  int value_item;
  int filter_item;
  int refers_to;
};

// clang-format off
constexpr FilteredRow kFilteredKeys[] = {
  {"OPERATOR_",   4, "DRESP_",           24, 24, 3},
  {"OPERATOR_",   4, "DRESP_WEIGHT_",    25, 24, 3},
  {"OPERATOR_",   4, "OPERATOR_",        24, 24, 4},
  {"OPERATOR_",   4, "OPERATOR_WEIGHT_", 25, 24, 4},
  {"OBJ_FUNC_",   5, "DRESP_",           8,  8,  3},
  {"OBJ_FUNC_",   5, "OPERATOR_",        8,  8,  4},
  {"CONSTRAINT_", 6, "DRESP_",           8,  8,  3},
  {"CONSTRAINT_", 6, "OPERATOR_",        8,  8,  4},
};
// clang-format on

// The keys that read the command to which the first OPTIMIZE refers.

struct ReferencedRow
{
  const char* key;
  int target_item;
};

// clang-format off
constexpr ReferencedRow kReferencedKeys[] = {
  {"MIN_",           11},
  {"MAX_",           12},
  {"ALGORITHM_",     18},
  {"MOVE_",          10},
  {"ASYM_MOVE_",     28},
  {"ASYM_MOVE_LOW_", 35},
  {"ASYM_MOVE_UP_",  36},
};
// clang-format on

constexpr const char* kCommandsOfOptParam[] = {"OPT_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"};

// All keys that parsed commands have, by command.
const std::map<std::string, std::set<std::string>>& ParsedKeys()
{
  static const std::set<std::string> groups = Words("MERGE_ SUBTRACT_ INTERSECT_ XOR_");
  static const std::set<std::string> settings =
    Words("MIN_ MAX_ ALGORITHM_ MOVE_ ASYM_MOVE_ ASYM_MOVE_LOW_ ASYM_MOVE_UP_");
  static const std::map<std::string, std::set<std::string>> keys = {
    {"MODEL_", Words("FILE_")},
    {"ELEMENT_GROUP_", groups},
    {"NODE_GROUP_", groups},
    {"DV_", Words("ELEMENT_GROUP_ NODE_GROUP_ INITIAL_ INITIAL_DV_FIELD_ FILTER_ TYPE_ DV_")},
    {"DRESP_", Words("TYPE_ ELEMENT_GROUP_ NODE_GROUP_ UPDATE_TYPE_ UPDATE_ID_ LOADCASE_ FILE_ CS_REF_")},
    {"OPERATOR_", Words("TYPE_ UPDATE_TYPE_ UPDATE_ID_ DRESP_ DRESP_WEIGHT_ OPERATOR_ OPERATOR_WEIGHT_")},
    {"OBJ_FUNC_", Words("TARGET_ DRESP_ OPERATOR_")},
    {"CONSTRAINT_", Words("TYPE_ VALUE_ COEFFICIENT_ MAGNITUDE_ DRESP_ OPERATOR_")},
    {"DV_CONSTRAINT_", Words("DVC_TYPE_ ELEMENT_GROUP_ NODE_GROUP_ SCALING_CURVE_ RADIUS_")},
    {"MESH_SMOOTH_", Words("METHOD_")},
    {"ALGO_", Words("STRATEGY_ OBJ_FUNC_ CONSTRAINT_ DV_CONSTRAINT_ STOP_ MESH_SMOOTH_ OPT_PARAM_ AS_TOPO_SENS_ "
                    "AS_SHAPE_SENS_ AS_TOPO_OC_ DV_")},
    {"OPT_PARAM_", settings},
    {"AS_TOPO_OC_", settings},
    {"AS_TOPO_SENS_", settings},
    {"AS_SHAPE_SENS_", settings},
    {"STOP_", Words("ITER_MAX_")},
    {"OUTPUT_", Words("FILENAME_ FORMAT_ TYPE_ ELEMENT_GROUP_")},
    {"SCALING_CURVE_", Words("TYPE_ UPDATE_ID_ MIN_ MAX_ PENALISATION_ DATA_SHIFT_")},
    {"FILTER_", Words("METHOD_ RADIUS_ ALPHA_")},
    {"SMOOTH_", {}},
    {"FACE_GROUP_", {}},
    {"CS_", {}},
    {"MONITOR_", {}},
    {"PRE_PARAM_", {}},
    {"FLOWPATHS_", {}},
  };
  return keys;
}

// All keys that the command classes ask for, and texts that are no key.
std::set<std::string> AllKeys()
{
  std::set<std::string> keys = Words(
    // MODEL_, the groups, DV_
    "FILE_ SOLVER_ LIST_ MERGE_ INTERSECT_ XOR_ SUBTRACT_ "
    "ELEMENT_GROUP_ NODE_GROUP_ INITIAL_ INITIAL_DV_FIELD_ FILTER_ TYPE_ DV_ "
    // DRESP_, OPERATOR_
    "TYPE_ UPDATE_TYPE_ UPDATE_ID_ UPDATE_INDEX_ FACE_GROUP_ FACE_GROUP_ADD_ ELEMENT_GROUP_ NODE_GROUP_ "
    "WRITE_INTERVAL_ LOADCASE_ ITER_MAX_ ITER_MIN_ RESIDUAL_ ADJOINT_RESIDUAL_ ADJOINT_DEVIATION_ "
    "OBJECTIVE_DEVIATION_ DV_CONSTRAINT_ FILE_ CS_REF_ "
    "DRESP_ DRESP_WEIGHT_ OPERATOR_ OPERATOR_WEIGHT_ FACTOR_ "
    // OBJ_FUNC_, CONSTRAINT_
    "TARGET_ SENSSCALING_TYPE_ SENSSCALING_VALUE_ MAGNITUDE_ VALUE_ COEFFICIENT_ A_MINMAX_COEFFICIENT_ "
    // CS_
    "X_ORIGIN_ Y_ORIGIN_ Z_ORIGIN_ X_VEC1_ Y_VEC1_ Z_VEC1_ X_VEC2_ Y_VEC2_ Z_VEC2_ X_VEC3_ Y_VEC3_ Z_VEC3_ "
    // DV_CONSTRAINT_
    "PATCH_ID_ DVC_TYPE_ CHECK_GROUP_ REFERENCE_GROUP_ X_POINT_ Y_POINT_ Z_POINT_ X_DIRECTION_ Y_DIRECTION_ "
    "Z_DIRECTION_ X_START_DIRECTION_ Y_START_DIRECTION_ Z_START_DIRECTION_ ANGLE_ FEASIBLE_START_ SAVE_ "
    "DUMPOPTVALUES_ RADIUS_ FILTER_TYPE_ MEMBERSIZE_TYPE_ AGGREGATION_METHOD_ AGGREGATION_PARAMETER_ "
    "AGGREGATION_NUM_CONSTRAINTS_ CS_ X_DOF_ Y_DOF_ Z_DOF_ CHECK_ELGR_BLOCKING_ TOLERANCE_ SCALING_CURVE_ MID_PLANE_ "
    // ALGO_, MONITOR_
    "STRATEGY_ OBJ_FUNC_ CONSTRAINT_ OPT_PARAM_ STOP_ PRE_PARAM_ MESH_SMOOTH_ MONITOR_ AS_TOPO_OC_ AS_TOPO_SENS_ "
    "AS_SHAPE_SENS_ DEVELOPER_OUTPUT_ "
    // OPT_PARAM_, STOP_, PRE_PARAM_
    "STORE_INT_ OPT_START_ SRC_SCALE_ RESIDUAL_OBJ_ RESIDUAL_DV_ VISCOSITY_ BACKFLOW_ANGLE_ PTRACK_PRI_VRML_ "
    "PTRACK_VAL_VRML_ REF_VRML_ PTRACK_KEEP_INVALID_ PTRACK_VRML_ADD_BOUNDS_ "
    // FILTER_, MESH_SMOOTH_
    "METHOD_ ALPHA_ BETA_ CYCLE_ SMOOTH_CYCLES_ "
    // AS_TOPO_OC_, AS_TOPO_SENS_, AS_SHAPE_SENS_, SCALING_CURVE_
    "BT_ TA_MIN_ TA_MAX_ SCALING_CURVE_TYPE_ SCALING_CURVE_UPDATE_ID_ SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ "
    "SCALING_CURVE_PENALISATION_ ALGORITHM_ MATH_KERNEL_ MIN_ MAX_ MOVE_ ASYM_MOVE_ ASYM_MOVE_LOW_ ASYM_MOVE_UP_ "
    "SUB_TOL_ PRIMAL_ITER_MIN_ PRIMAL_ITER_MAX_ PRIMAL_INTERVAL_ PRIMAL_RESIDUAL_ PRIMAL_DEVIATION_ "
    "ADJOINT_ITER_MIN_ ADJOINT_ITER_MAX_ ADJOINT_INTERVAL_ ADJOINT_DISC_ ADJOINT_DRIVER_ ADJOINT_CFL_ KEEP_INITIAL_ "
    "KEEP_ADJOINT_ SKIP_PRESSURE_SRC_ SKIP_TURBULENT_SRC_ NORMAL_UPDATE_ DV_TYPE_ PENALISATION_ DATA_SHIFT_ "
    // OUTPUT_, FLOWPATHS_
    "FILENAME_ FORMAT_ ITERATION_ RESULT_ SPREAD_ALGO_ CUTOFF_ SPREAD_PERCENTAGE_ INVERT_ DESIGN_ONLY_ "
    "KEEP_POST_DATA_ IN_ OUT_ "
    // SMOOTH_
    "TASK_ ALL_ITERATIONS_ ISO_VALUE_ TARGET_VOLUME_ MODEL_FILE_ RESULT_FILE_ VTM_RESULT_ OUTPUT_FILE_ STL_GROUPS_ "
    "OUTPUT_SURFACE_ VTF_ORGMODEL_ IGES_UNIT_ SLICES_ SLICE_X_ SLICE_Y_ SLICE_Z_ SLICE_PRIMARY_ SLICE_NUMBER_ "
    "SLICE_DISTANCE_ SLICE_INTERSECTION_ SLICE_REDUCTION_ SLICE_RED_ANGLE_ SLICE_OFFSET_ SLICE_REF_QUANT_ "
    "SLICE_REF_FACTOR_ SLICE_FILTER_CURVES_ SLICE_FORMAT_ BORDER_ BORDER_FORMAT_ GROUP_FILE_ EXCLUDE_GROUP_ "
    "INCLUDE_GROUP_ SURFACE_GROUP_ ND_GROUP_ ISO_GROUP_NAME_ ISO_GROUP_VALUE_ VOL_GROUP_NAME_ VOL_GROUP_VALUE_ "
    "NO_SORT_ MIN_DENS_WALL_ REDUCTION_ REDUCTION_RATE_ REDUCTION_ANGLE_ MIN_ANGLE_ MIN_FACE_ANGLE_ "
    "SELF_INTERSECTION_ ORIGINAL_SURFACE_TOLERANCE_VALUE_ ORIGINAL_SURFACE_TOLERANCE_TYPE_ MIXED_MESH_ "
    "EXCLUDE_LOADED_ ISO_SEQUENCE_ O_SURF_SMOOTHING_ RESULT_FILTERING_ INPUT_SCALE_ COMPONENT_LIM_SIZE_ "
    "IF_SMOOTHING_ IF_SMOOTH_FROZEN_ IF_TOLERANCE_ IF_BORDER_CYCLES_ IF_INNER_CYCLES_ SHRINKAGE_CORRECTION_ "
    "LAPLACE_ALPHA_ LAPLACE_BETA_ WALL_TOLERANCE_ "
    // the engine's words, with and without the underscore, and other spellings
    "ID_NAME ID_NAME_ TYPE FILE ADD_FILE ADD_FILE_ GROUP GROUP_ ELEMENT_GROUP LIST_BEGIN LIST_BEGIN_ DV "
    "DV_UPDATE_PARAM DV_UPDATE_PARAM_ REFERENCE REFERENCE_ COEFFICIENT SOLVER_RUN_MODE_ SENS_CALC_MODE_ FORMAT "
    "DESCRIPTION_ DIRECTION_ LOADCASE LOWER LOWER_ UPPER UPPER_ CS PLACEHOLDER PLACEHOLDER_ type_ TYPE__ _TYPE_");
  keys.insert("");
  keys.insert("TYPE_ ");
  return keys;
}

// A command "probe" of each kind with all items, in which every key that exists is present.
void AddProbes(OrvelCmdContainer& container)
{
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  AddAllItemsBut(update, Items::ID_NAME);
  for (int kind = 0; kind <= 20; ++kind)
  {
    OrvelCmd& probe = AddParsed(container, Kind(kind), "probe");
    probe.AddReferenceItem(Items::DV_UPDATE_PARAM, update);
    for (const int format : {77, 83, 73, 88})
    {
      probe.AddEnumItem(Items::FORMAT, Enumerator(format));
    }
    for (const Items::CmdItem item : {Items::REFERENCE, Items::DRESP})
    {
      probe.AddReferenceItem(item, AddParsed(container, Defs::DRESP, "response"));
      probe.AddReferenceItem(item, AddParsed(container, Defs::OPERATOR, "operator"));
    }
    AddAllItemsBut(probe, Items::ID_NAME);
  }
}

// What a storage delivers for a key, nothing for an absent one.
std::vector<std::string> WhatIsThere(const Storage& storage, const std::string& command, const std::string& key)
{
  const KeysOf keys(storage, command, "probe");
  std::vector<std::string> found;
  const auto add_if = [&](bool is_there, const char* what) {
    if (is_there)
    {
      found.push_back(what);
    }
  };
  add_if(keys.Has(key), "presence");
  add_if(keys.Count(key) != 0, "count");
  add_if(keys.Integer(key) != -4711, "integer");
  add_if(keys.Double(key) != -47.11, "double");
  add_if(keys.Text(key) != "kept", "text");
  add_if(keys.Enumerator(key) != 0, "enumerator");
  add_if(!keys.Reference(key).empty(), "reference");
  add_if(!keys.Integers(key).empty(), "integers");
  add_if(keys.Doubles(key) != std::vector<double>{-4.7, -1.1}, "doubles");
  return found;
}

}  // namespace

TEST(ParsedCommandTables, CountAndNameTheCommandsOfEachRow)
{
  OrvelCmdContainer container;
  AddCommandsOfAllKinds(container);
  const Storage storage(container);
  ASSERT_EQ(std::size(kCommands), 20U);
  for (const CommandRow& row : kCommands)
  {
    SCOPED_TRACE(row.command);
    EXPECT_EQ(NamesOf(storage, row.command), NamesByRow(row));
  }
}

TEST(ParsedCommandTables, FilterGroupsByTypeAlone)
{
  for (const CommandRow& row : kCommands)
  {
    if (row.counting != Counting::Filtered)
    {
      continue;
    }
    SCOPED_TRACE(row.command);
    OrvelCmdContainer container;
    for (int item = 1; item <= 38; ++item)
    {
      AddParsed(container, Kind(row.kind), "item " + std::to_string(item))
        .AddEnumItem(Item(item), Enumerator(row.filter_value));
    }
    EXPECT_THAT(NamesOf(Storage(container), row.command), ElementsAre("item " + std::to_string(row.filter_item)));
  }
}

TEST(ParsedCommandTables, MergeVariablesByTheDvItemsOfOptimizeAlone)
{
  for (int kind = 0; kind <= 20; ++kind)
  {
    for (int item = 1; item <= 38; ++item)
    {
      OrvelCmdContainer container;
      OrvelCmd& command = container.AddCommand(Kind(kind));
      command.AddIntegerItem(Item(item), 1);
      command.AddIntegerItem(Item(item), 2);
      const std::vector<std::string> names = NamesOf(Storage(container), "DV_");
      const bool has_merged = std::count(names.begin(), names.end(), "__v_merged_DV") > 0;
      EXPECT_EQ(has_merged, kind == 9 && item == 14) << "kind " << kind << ", item " << item;
    }
  }
}

TEST(ParsedCommandTables, ReadTheItemOfEachDirectKeyInItsOrder)
{
  ASSERT_EQ(std::size(kDirectKeys), 53U);
  for (const DirectRow& row : kDirectKeys)
  {
    SCOPED_TRACE(std::string(row.command) + " " + row.key);
    OrvelCmdContainer container;
    OrvelCmd& command = AddParsed(container, Kind(row.kind), "probe");
    AddAllItemsBut(command, row.item);
    AddTwoValues(container, command, Item(row.item), row.value);
    const Storage storage(container);
    const KeysOf keys(storage, row.command, "probe");
    EXPECT_TRUE(keys.Has(row.key));
    EXPECT_EQ(keys.Count(row.key), 2U);
    EXPECT_EQ(ReadAs(row.value, keys, row.key, 1), "7");
    EXPECT_EQ(ReadAs(row.value, keys, row.key, 2), "8");
  }
}

TEST(ParsedCommandTables, ReadNothingForADirectKeyWhoseCommandLacksTheItem)
{
  for (const DirectRow& row : kDirectKeys)
  {
    SCOPED_TRACE(std::string(row.command) + " " + row.key);
    OrvelCmdContainer container;
    AddAllItemsBut(AddParsed(container, Kind(row.kind), "probe"), row.item);
    EXPECT_THAT(WhatIsThere(Storage(container), row.command, row.key), IsEmpty());
  }
}

TEST(ParsedCommandTables, ReadNothingForADirectKeyOfAnotherKind)
{
  for (const DirectRow& row : kDirectKeys)
  {
    SCOPED_TRACE(std::string(row.command) + " " + row.key);
    OrvelCmdContainer container;
    for (int kind = 0; kind <= 20; ++kind)
    {
      if (kind != row.kind)
      {
        AddAllItemsBut(AddParsed(container, Kind(kind), "probe"), Items::ID_NAME);
      }
    }
    EXPECT_THAT(WhatIsThere(Storage(container), row.command, row.key), IsEmpty());
  }
}

TEST(ParsedCommandTables, ReadTheListOfAGroupUnderTheKeyOfItsFormat)
{
  for (const GroupRow& row : kGroupKeys)
  {
    OrvelCmdContainer container;
    AddGroup(container, "group", row.format);
    const Storage storage(container);
    for (const char* command : {"ELEMENT_GROUP_", "NODE_GROUP_"})
    {
      SCOPED_TRACE(std::string(command) + " " + row.key);
      const KeysOf keys(storage, command, "group");
      for (const GroupRow& other : kGroupKeys)
      {
        EXPECT_EQ(keys.Has(other.key), other.format == row.format) << other.key;
        EXPECT_EQ(keys.Count(other.key), other.format == row.format ? 3U : 0U) << other.key;
      }
      EXPECT_EQ(keys.Text(row.key, 1, vtmModelId), "a");
      EXPECT_EQ(keys.Text(row.key, 2, vtmModelId), "b");
      EXPECT_EQ(keys.Text(row.key, 3, vtmModelId), "c");
    }
  }
}

TEST(ParsedCommandTables, HaveMergedGroupsForFormat77AndNoneOfTheOtherThree)
{
  OrvelCmdContainer container;
  AddGroup(container, "pipes", 77);
  const Storage storage(container);
  const KeysOf keys(storage, "ELEMENT_GROUP_", "pipes");
  EXPECT_EQ(keys.Count("MERGE_"), 3U);
  EXPECT_EQ(keys.Count("SUBTRACT_"), 0U);
  EXPECT_EQ(keys.Count("INTERSECT_"), 0U);
  EXPECT_EQ(keys.Count("XOR_"), 0U);
}

TEST(ParsedCommandTables, ReadNothingForAGroupOfAnotherFormat)
{
  for (const int format : {0, 1, 2, 65, 72, 74, 76, 78, 82, 84, 87, 89})
  {
    OrvelCmdContainer container;
    AddGroup(container, "group", format);
    const Storage storage(container);
    for (const GroupRow& row : kGroupKeys)
    {
      EXPECT_FALSE(KeysOf(storage, "ELEMENT_GROUP_", "group").Has(row.key)) << row.key << " " << format;
    }
  }
}

TEST(ParsedCommandTables, TakeTheFormatOfAGroupFromNoOtherItem)
{
  OrvelCmdContainer container;
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, "group");
  group.AddStringListItem(Items::LIST_BEGIN, {"a"});
  group.AddStringItem(Items::FORMAT, "77");
  for (int item = 1; item <= 38; ++item)
  {
    if (item != Items::FORMAT)
    {
      group.AddEnumItem(Item(item), Enumerator(77));
    }
  }
  EXPECT_FALSE(KeysOf(Storage(container), "ELEMENT_GROUP_", "group").Has("MERGE_"));
}

TEST(ParsedCommandTables, ReadNothingButTheListForAGroup)
{
  OrvelCmdContainer container;
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, "probe");
  group.AddEnumItem(Items::FORMAT, Enumerator(77));
  AddAllItemsBut(group, Items::LIST_BEGIN);
  EXPECT_THAT(WhatIsThere(Storage(container), "ELEMENT_GROUP_", "MERGE_"), IsEmpty());
}

TEST(ParsedCommandTables, SelectTheEntriesOfEachFilteredKeyByTheKindReferredTo)
{
  ASSERT_EQ(std::size(kFilteredKeys), 8U);
  for (const FilteredRow& row : kFilteredKeys)
  {
    SCOPED_TRACE(std::string(row.command) + " " + row.key);
    OrvelCmdContainer container;
    OrvelCmd& command = AddParsed(container, Kind(row.kind), "probe");
    const bool is_one_list = row.value_item == row.filter_item;
    for (int kind = 0; kind <= 20; ++kind)
    {
      const std::string name = "of kind " + std::to_string(kind);
      command.AddReferenceItem(Item(row.filter_item), AddParsed(container, Kind(kind), name));
      if (!is_one_list)
      {
        command.AddStringItem(Item(row.value_item), name);
      }
    }
    for (int item = 1; item <= 38; ++item)
    {
      if (item != row.value_item && item != row.filter_item)
      {
        command.AddReferenceItem(Item(item), AddParsed(container, Kind(row.refers_to), "decoy"));
      }
    }
    const Storage storage(container);
    const KeysOf keys(storage, row.command, "probe");
    const std::string selected = "of kind " + std::to_string(row.refers_to);
    EXPECT_TRUE(keys.Has(row.key));
    EXPECT_EQ(keys.Count(row.key), 1U);
    EXPECT_EQ(keys.Text(row.key), selected);
    EXPECT_EQ(keys.Reference(row.key), is_one_list ? selected : "");
  }
}

TEST(ParsedCommandTables, ReadTheUpdateParametersOfTheFirstOptimizeForAllFourKindsAndAnyName)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  for (int item = 1; item <= 38; ++item)
  {
    update.AddIntegerItem(Item(item), 100 + item);
  }
  AddAllItemsBut(AddParsed(container, Defs::OPT_PARAM, "settings"), Items::ID_NAME);
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  for (int item = 1; item <= 38; ++item)
  {
    if (item != Items::DV_UPDATE_PARAM)
    {
      optimize.AddReferenceItem(Item(item), AddParsed(container, Defs::DV_UPDATE_PARAM, "decoy"));
    }
  }
  optimize.AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  const Storage storage(container);
  ASSERT_EQ(std::size(kReferencedKeys), 7U);
  for (const char* command : kCommandsOfOptParam)
  {
    for (const char* id : {"settings", "", "no such command"})
    {
      for (const ReferencedRow& row : kReferencedKeys)
      {
        SCOPED_TRACE(std::string(command) + " " + row.key + " of " + id);
        const KeysOf keys(storage, command, id);
        EXPECT_EQ(keys.Count(row.key), 1U);
        EXPECT_EQ(keys.Integer(row.key), 100 + row.target_item);
        EXPECT_EQ(keys.Double(row.key), 100.0 + row.target_item);
        EXPECT_EQ(keys.Enumerator(row.key), 100 + row.target_item);
      }
    }
  }
}

TEST(ParsedCommandTables, ReadTheUpdateParametersFromNoOtherKindOfSourceOrTarget)
{
  for (int source = 0; source <= 20; ++source)
  {
    for (int target = 0; target <= 20; ++target)
    {
      OrvelCmdContainer container;
      OrvelCmd& referred = AddParsed(container, Kind(target), "referred");
      AddAllItemsBut(referred, Items::ID_NAME);
      AddParsed(container, Kind(source), "source").AddReferenceItem(Items::DV_UPDATE_PARAM, referred);
      const Storage storage(container);
      // Of one kind, the referred command stands first and refers to nothing.
      const bool reads = source == 9 && target == 15;
      for (const ReferencedRow& row : kReferencedKeys)
      {
        EXPECT_EQ(KeysOf(storage, "OPT_PARAM_", "").Has(row.key), reads)
          << row.key << " with source " << source << " and target " << target;
      }
    }
  }
}

TEST(ParsedCommandTables, ReadTheMembersOfTheMergedVariableFromTheDvItems)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  AddAllItemsBut(optimize, Items::DV);
  for (const char* id : {"left", "right", "middle"})
  {
    optimize.AddReferenceItem(Items::DV, AddParsed(container, Defs::DV, id));
  }
  const Storage storage(container);
  const KeysOf merged(storage, "DV_", "__v_merged_DV");
  EXPECT_TRUE(merged.Has("DV_"));
  EXPECT_EQ(merged.Count("DV_"), 3U);
  EXPECT_EQ(merged.Reference("DV_", 1), "left");
  EXPECT_EQ(merged.Reference("DV_", 2), "right");
  EXPECT_EQ(merged.Reference("DV_", 3), "middle");
  EXPECT_EQ(storage.GetNumElements("ALGO_", "task", "DV_"), 1U);
  EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_"), "__v_merged_DV");
}

TEST(ParsedCommandTables, ReadTheMembersOfAParsedVariableFromItsOwnDvItems)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  OrvelCmd& left = AddParsed(container, Defs::DV, "left");
  OrvelCmd& right = AddParsed(container, Defs::DV, "right");
  optimize.AddReferenceItem(Items::DV, left);
  optimize.AddReferenceItem(Items::DV, right);
  AddAllItemsBut(left, Items::DV);
  left.AddReferenceItem(Items::DV, right);
  const Storage storage(container);
  EXPECT_EQ(storage.GetNumElements("DV_", "left", "DV_"), 1U);
  EXPECT_EQ(KeysOf(storage, "DV_", "left").Reference("DV_"), "right");
  EXPECT_EQ(storage.GetNumElements("DV_", "right", "DV_"), 0U);
}

TEST(ParsedCommandTables, ReadNothingForTheMergedVariableOfOneReference)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  optimize.AddReferenceItem(Items::DV, AddParsed(container, Defs::DV, "only"));
  const Storage storage(container);
  const KeysOf merged(storage, "DV_", "__v_merged_DV");
  EXPECT_FALSE(merged.Has("DV_"));
  EXPECT_EQ(merged.Count("DV_"), 0U);
  EXPECT_EQ(merged.Reference("DV_"), "");
  EXPECT_EQ(merged.Enumerator("TYPE_"), 0);
  EXPECT_EQ(merged.Double("INITIAL_"), -47.11);
  EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_"), "only");
}

TEST(ParsedCommandTables, ReadNoOtherKeyOfTheMergedVariable)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  ASSERT_EQ(KeysOf(storage, "DV_", "__v_merged_DV").Count("DV_"), 2U);
  for (const std::string& key : AllKeys())
  {
    EXPECT_EQ(KeysOf(storage, "DV_", "__v_merged_DV").Has(key), key == "DV_") << key;
  }
}

TEST(ParsedCommandTables, GiveTheSameReferenceUnderTheFourNamesOfTheOptParam)
{
  OrvelCmdContainer container;
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  optimize.AddReferenceItem(Items::OPT_PARAM, AddParsed(container, Defs::OPT_PARAM, "settings"));
  const Storage storage(container);
  for (const char* key : {"OPT_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"})
  {
    EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference(key), "settings") << key;
  }
  EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("PRE_PARAM_"), "");
}

TEST(ParsedCommandTables, ReadFormatForOutputAndDvcTypeForDvConstraintOnly)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  for (const auto& [command, keys] : ParsedKeys())
  {
    EXPECT_EQ(KeysOf(storage, command, "probe").Has("FORMAT_"), command == "OUTPUT_") << command;
    EXPECT_EQ(KeysOf(storage, command, "probe").Has("DVC_TYPE_"), command == "DV_CONSTRAINT_") << command;
  }
  EXPECT_FALSE(KeysOf(storage, "DV_CONSTRAINT_", "probe").Has("TYPE_"));
}

TEST(ParsedCommandTables, ReadOneKeyFromDifferentItemsInDifferentKinds)
{
  OrvelCmdContainer container;
  for (const Defs::Cmd kind : {Defs::FILTER, Defs::MESH_SMOOTH, Defs::DV_CONSTRAINT})
  {
    OrvelCmd& command = AddParsed(container, kind, "probe");
    command.AddEnumItem(Items::TYPE, Enumerator(69));
    command.AddEnumItem(Items::STRATEGY, Enumerator(76));
    command.AddDoubleItem(Items::VALUE, 0.25);
    command.AddDoubleItem(Items::TARGET, 0.5);
  }
  const Storage storage(container);
  EXPECT_EQ(KeysOf(storage, "FILTER_", "probe").Enumerator("METHOD_"), 69);
  EXPECT_EQ(KeysOf(storage, "MESH_SMOOTH_", "probe").Enumerator("METHOD_"), 76);
  EXPECT_EQ(KeysOf(storage, "FILTER_", "probe").Double("RADIUS_"), 0.25);
  EXPECT_EQ(KeysOf(storage, "DV_CONSTRAINT_", "probe").Double("RADIUS_"), 0.25);
  EXPECT_EQ(KeysOf(storage, "FILTER_", "probe").Double("ALPHA_"), 0.5);
  EXPECT_EQ(KeysOf(storage, "MESH_SMOOTH_", "probe").Double("ALPHA_"), -47.11);
}

TEST(ParsedCommandTables, ReadTheUpdateTypeOfTheUpdateParametersAsTheAsymmetricMove)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddEnumItem(Items::UPDATE_TYPE, Enumerator(83));
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  EXPECT_EQ(KeysOf(Storage(container), "AS_TOPO_SENS_", "").Enumerator("ASYM_MOVE_"), 83);
}

TEST(ParsedCommandTables, TakeTheListOfAGroupApartAndNoOtherList)
{
  for (const DirectRow& row : kDirectKeys)
  {
    SCOPED_TRACE(std::string(row.command) + " " + row.key);
    OrvelCmdContainer container;
    AddParsed(container, Kind(row.kind), "probe").AddStringListItem(Item(row.item), {"a", "b", "c"});
    EXPECT_EQ(KeysOf(Storage(container), row.command, "probe").Count(row.key), 1U);
  }
}

TEST(ParsedCommandTables, HaveEveryKeyOfTheTablesInACommandWithAllItems)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  std::size_t pairs = 0;
  for (const auto& [command, keys] : ParsedKeys())
  {
    for (const std::string& key : keys)
    {
      EXPECT_TRUE(KeysOf(storage, command, "probe").Has(key)) << command << " " << key;
      EXPECT_GT(KeysOf(storage, command, "probe").Count(key), 0U) << command << " " << key;
      ++pairs;
    }
  }
  // 53 of one item each, 4 of groups for 2 kinds, 8 of lists side by side, 7 of the update for 4 kinds, 2 of variables
  EXPECT_EQ(pairs, 99U);
}

TEST(ParsedCommandTables, HaveNoOtherKeyInACommandWithAllItems)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  ASSERT_EQ(ParsedKeys().size(), 25U);
  for (const auto& [command, keys] : ParsedKeys())
  {
    for (const std::string& key : AllKeys())
    {
      if (keys.count(key) == 0)
      {
        EXPECT_THAT(WhatIsThere(storage, command, key), IsEmpty()) << command << " " << key;
      }
    }
  }
}

TEST(ParsedCommandTables, HaveNoKeyForTheEnginesKindsWithoutStorageCommand)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  for (const char* command : {"GROUP_DEF_", "OPTIMIZE_", "MODEL_INPUT_", "OPTIONS_", "DV_UPDATE_PARAM_", "CONTOURPLOT_",
                              "REPORT_", "CMD_PLACEHOLDER_", "DV", "DRESP", "OPTIMIZE", "SMOOTH", ""})
  {
    for (const std::string& key : AllKeys())
    {
      EXPECT_THAT(WhatIsThere(storage, command, key), IsEmpty()) << command << " " << key;
    }
  }
}

TEST(ParsedCommandTables, AreTheSameInEveryObject)
{
  OrvelCmdContainer container;
  AddProbes(container);
  const Storage storage(container);
  const OrvelCmdContainer empty;
  Storage copy((Storage(empty)));
  copy = storage;
  for (const auto& [command, keys] : ParsedKeys())
  {
    EXPECT_EQ(NamesOf(copy, command), NamesOf(storage, command));
    for (const std::string& key : AllKeys())
    {
      EXPECT_EQ(KeysOf(copy, command, "probe").Has(key), keys.count(key) > 0) << command << " " << key;
    }
  }
}
