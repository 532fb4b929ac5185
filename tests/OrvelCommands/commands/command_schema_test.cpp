#include "OrvelCommands/commands/command_schema.h"

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace schema = orvel::schema;

using schema::Count;
using schema::Presence;
using testing::ElementsAre;

static_assert(schema::Commands().size() == 25);
static_assert(schema::Commands()[4].kind == "DV_");
static_assert(schema::FindCommand("DV_") == &schema::Commands()[4]);
static_assert(schema::FindCommand("DV") == nullptr);
static_assert(schema::FindCommand("DV_")->count == Count::Any);
static_assert(schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->type == vtmEnum);
static_assert(schema::FindField(*schema::FindCommand("DV_"), "SOLVER_") == nullptr);
static_assert(schema::EnumeratorName(schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->enumerators, 68) ==
              "DENSITY");
static_assert(schema::Rows<schema::Field>().empty() && schema::Rows<schema::Field>().size() == 0);
static_assert(vtmInteger == 0 && vtmModelId == 10);

namespace
{

const char* NameOf(VtmType type)
{
  switch (type)
  {
    case vtmInteger: return "int";
    case vtmDouble: return "double";
    case vtmEnum: return "enum";
    case vtmString: return "string";
    case vtmReference: return "reference";
    case vtmIntegerList: return "int list";
    case vtmDoubleList: return "double list";
    case vtmModelId: return "model id";
    default: return "no value";
  }
}

const char* NameOf(Presence presence)
{
  switch (presence)
  {
    case Presence::Always: return "always";
    case Presence::Optional: return "optional";
    case Presence::Repeated: return "repeated";
  }
  return "no presence";
}

/// Type and presence of a key, then the kind to which it refers, the number of the kind of name or the enumerators:
/// "optional model id of 9", "repeated reference to FILTER_", "always enum: AUTO 65, DENSITY 68".
std::string Described(const schema::Field& field)
{
  std::string text = std::string(NameOf(field.presence)) + " " + NameOf(field.type);
  if (!field.target.empty())
  {
    text += " to " + std::string(field.target);
  }
  if (field.id_type)
  {
    text += " of " + std::to_string(static_cast<int>(*field.id_type));
  }
  const char* separator = ": ";
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    text += separator + std::string(enumerator.name) + " " + std::to_string(enumerator.value);
    separator = ", ";
  }
  return text;
}

std::string Described(std::string_view kind, std::string_view key)
{
  const schema::Command* command = schema::FindCommand(kind);
  const schema::Field* field = command != nullptr ? schema::FindField(*command, key) : nullptr;
  return field != nullptr ? Described(*field) : "no such key";
}

std::string KeysOf(std::string_view kind)
{
  const schema::Command* command = schema::FindCommand(kind);
  if (command == nullptr)
  {
    return "no such kind";
  }
  std::string keys;
  for (const schema::Field& field : command->fields)
  {
    keys += (keys.empty() ? "" : " ") + std::string(field.key);
  }
  return keys;
}

/// Kind, text name, count and number of keys, as "MODEL_ MODEL_INPUT one 2".
std::vector<std::string> Kinds()
{
  std::vector<std::string> kinds;
  for (const schema::Command& command : schema::Commands())
  {
    kinds.push_back(std::string(command.kind) + " " + std::string(command.text_name) +
                    (command.count == Count::One ? " one " : " any ") + std::to_string(command.fields.size()));
  }
  return kinds;
}

bool IsOneSentence(std::string_view text)
{
  return text.size() > 1 && text.back() == '.' && text.find('\n') == std::string_view::npos;
}

}  // namespace

TEST(CommandSchema, HasAllKindsInLoadOrderWithTheirTextNamesCountsAndNumbersOfKeys)
{
  EXPECT_THAT(Kinds(),
              ElementsAre("MODEL_ MODEL_INPUT one 2", "ELEMENT_GROUP_ ELEMENT_GROUP any 5",
                          "FACE_GROUP_ FACE_GROUP any 5", "NODE_GROUP_ NODE_GROUP any 5", "DV_ DV any 7",
                          "DRESP_ DRESP any 19", "OPERATOR_ OPERATOR any 9", "OBJ_FUNC_ OBJ_FUNC one 6",
                          "CONSTRAINT_ CONSTRAINT any 10", "CS_ CS any 13", "DV_CONSTRAINT_ DV_CONSTRAINT any 33",
                          "MONITOR_ MONITOR any 1", "ALGO_ OPTIMIZE one 14", "OPT_PARAM_ OPT_PARAM any 3",
                          "STOP_ STOP any 4", "MESH_SMOOTH_ MESH_SMOOTH any 10", "FILTER_ FILTER any 14",
                          "PRE_PARAM_ PRE_PARAM any 10", "AS_TOPO_OC_ ALGO_SET_TOPO_OC any 9",
                          "AS_TOPO_SENS_ ALGO_SET_TOPO_SENS any 30", "AS_SHAPE_SENS_ ALGO_SET_SHAPE_SENS any 18",
                          "FLOWPATHS_ FLOWPATHS one 2", "OUTPUT_ OUTPUT any 13", "SCALING_CURVE_ SCALING_CURVE any 6",
                          "SMOOTH_ SMOOTH any 68"));
}

TEST(CommandSchema, ListsTheKeysOfEachKindInTheOrderOfItsMembers)
{
  EXPECT_EQ(KeysOf("MODEL_"), "FILE_ SOLVER_");
  EXPECT_EQ(KeysOf("ELEMENT_GROUP_"), "LIST_ MERGE_ INTERSECT_ XOR_ SUBTRACT_");
  EXPECT_EQ(KeysOf("FACE_GROUP_"), "LIST_ MERGE_ INTERSECT_ XOR_ SUBTRACT_");
  EXPECT_EQ(KeysOf("NODE_GROUP_"), "LIST_ MERGE_ INTERSECT_ XOR_ SUBTRACT_");
  EXPECT_EQ(KeysOf("DV_"), "ELEMENT_GROUP_ NODE_GROUP_ INITIAL_ INITIAL_DV_FIELD_ FILTER_ TYPE_ DV_");
  EXPECT_EQ(KeysOf("DRESP_"),
            "TYPE_ UPDATE_TYPE_ UPDATE_ID_ UPDATE_INDEX_ FACE_GROUP_ FACE_GROUP_ADD_ ELEMENT_GROUP_ NODE_GROUP_ "
            "WRITE_INTERVAL_ LOADCASE_ ITER_MAX_ ITER_MIN_ RESIDUAL_ ADJOINT_RESIDUAL_ ADJOINT_DEVIATION_ "
            "OBJECTIVE_DEVIATION_ DV_CONSTRAINT_ FILE_ CS_REF_");
  EXPECT_EQ(KeysOf("OPERATOR_"),
            "TYPE_ UPDATE_TYPE_ UPDATE_ID_ UPDATE_INDEX_ DRESP_ DRESP_WEIGHT_ OPERATOR_ OPERATOR_WEIGHT_ FACTOR_");
  EXPECT_EQ(KeysOf("OBJ_FUNC_"), "DRESP_ OPERATOR_ TARGET_ SENSSCALING_TYPE_ SENSSCALING_VALUE_ FILTER_");
  EXPECT_EQ(KeysOf("CONSTRAINT_"),
            "DRESP_ OPERATOR_ TYPE_ MAGNITUDE_ VALUE_ COEFFICIENT_ A_MINMAX_COEFFICIENT_ SENSSCALING_TYPE_ "
            "SENSSCALING_VALUE_ FILTER_");
  EXPECT_EQ(KeysOf("CS_"),
            "TYPE_ X_ORIGIN_ Y_ORIGIN_ Z_ORIGIN_ X_VEC1_ Y_VEC1_ Z_VEC1_ X_VEC2_ Y_VEC2_ Z_VEC2_ X_VEC3_ Y_VEC3_ "
            "Z_VEC3_");
  EXPECT_EQ(KeysOf("DV_CONSTRAINT_"),
            "PATCH_ID_ DVC_TYPE_ NODE_GROUP_ CHECK_GROUP_ REFERENCE_GROUP_ ELEMENT_GROUP_ X_POINT_ Y_POINT_ Z_POINT_ "
            "X_DIRECTION_ Y_DIRECTION_ Z_DIRECTION_ X_START_DIRECTION_ Y_START_DIRECTION_ Z_START_DIRECTION_ ANGLE_ "
            "FEASIBLE_START_ SAVE_ DUMPOPTVALUES_ RADIUS_ FILTER_TYPE_ MEMBERSIZE_TYPE_ AGGREGATION_METHOD_ "
            "AGGREGATION_PARAMETER_ AGGREGATION_NUM_CONSTRAINTS_ CS_ X_DOF_ Y_DOF_ Z_DOF_ CHECK_ELGR_BLOCKING_ "
            "TOLERANCE_ SCALING_CURVE_ MID_PLANE_");
  EXPECT_EQ(KeysOf("MONITOR_"), "DRESP_");
  EXPECT_EQ(KeysOf("ALGO_"),
            "STRATEGY_ DV_ OBJ_FUNC_ CONSTRAINT_ DV_CONSTRAINT_ OPT_PARAM_ STOP_ PRE_PARAM_ MESH_SMOOTH_ MONITOR_ "
            "AS_TOPO_OC_ AS_TOPO_SENS_ AS_SHAPE_SENS_ DEVELOPER_OUTPUT_");
  EXPECT_EQ(KeysOf("OPT_PARAM_"), "STORE_INT_ OPT_START_ SRC_SCALE_");
  EXPECT_EQ(KeysOf("STOP_"), "ITER_MAX_ ITER_MIN_ RESIDUAL_OBJ_ RESIDUAL_DV_");
  EXPECT_EQ(KeysOf("MESH_SMOOTH_"),
            "METHOD_ CYCLE_ FACE_GROUP_ NODE_GROUP_ ELEMENT_GROUP_ SMOOTH_CYCLES_ ALPHA_ BETA_ FILTER_ DV_CONSTRAINT_");
  EXPECT_EQ(KeysOf("FILTER_"),
            "PATCH_ID_ METHOD_ RADIUS_ X_DIRECTION_ Y_DIRECTION_ Z_DIRECTION_ X_POINT_ Y_POINT_ Z_POINT_ FACE_GROUP_ "
            "NODE_GROUP_ ELEMENT_GROUP_ ALPHA_ BETA_");
  EXPECT_EQ(KeysOf("PRE_PARAM_"),
            "PATCH_ID_ VISCOSITY_ RESIDUAL_ ITER_MAX_ BACKFLOW_ANGLE_ PTRACK_PRI_VRML_ PTRACK_VAL_VRML_ REF_VRML_ "
            "PTRACK_KEEP_INVALID_ PTRACK_VRML_ADD_BOUNDS_");
  EXPECT_EQ(KeysOf("AS_TOPO_OC_"),
            "PATCH_ID_ BT_ TA_MIN_ TA_MAX_ SCALING_CURVE_TYPE_ SCALING_CURVE_UPDATE_ID_ SCALING_CURVE_MIN_ "
            "SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_");
  EXPECT_EQ(KeysOf("AS_TOPO_SENS_"),
            "PATCH_ID_ ALGORITHM_ MATH_KERNEL_ MIN_ MAX_ MOVE_ SCALING_CURVE_TYPE_ SCALING_CURVE_UPDATE_ID_ "
            "SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_ ASYM_MOVE_ ASYM_MOVE_LOW_ ASYM_MOVE_UP_ "
            "SUB_TOL_ PRIMAL_ITER_MIN_ PRIMAL_ITER_MAX_ PRIMAL_INTERVAL_ PRIMAL_RESIDUAL_ PRIMAL_DEVIATION_ "
            "ADJOINT_ITER_MIN_ ADJOINT_ITER_MAX_ ADJOINT_INTERVAL_ ADJOINT_DISC_ ADJOINT_DRIVER_ ADJOINT_CFL_ "
            "KEEP_INITIAL_ KEEP_ADJOINT_ SKIP_PRESSURE_SRC_ SKIP_TURBULENT_SRC_");
  EXPECT_EQ(KeysOf("AS_SHAPE_SENS_"),
            "PATCH_ID_ ALGORITHM_ MATH_KERNEL_ MIN_ MAX_ MOVE_ SCALING_CURVE_TYPE_ SCALING_CURVE_UPDATE_ID_ "
            "SCALING_CURVE_MIN_ SCALING_CURVE_MAX_ SCALING_CURVE_PENALISATION_ ASYM_MOVE_ ASYM_MOVE_LOW_ ASYM_MOVE_UP_ "
            "SUB_TOL_ FILTER_ NORMAL_UPDATE_ DV_TYPE_");
  EXPECT_EQ(KeysOf("FLOWPATHS_"), "IN_ OUT_");
  EXPECT_EQ(
    KeysOf("OUTPUT_"),
    "FILENAME_ FORMAT_ ITERATION_ TYPE_ RESULT_ SPREAD_ALGO_ CUTOFF_ BACKFLOW_ANGLE_ SPREAD_PERCENTAGE_ INVERT_ "
    "DESIGN_ONLY_ KEEP_POST_DATA_ ELEMENT_GROUP_");
  EXPECT_EQ(KeysOf("SCALING_CURVE_"), "TYPE_ UPDATE_ID_ MIN_ MAX_ PENALISATION_ DATA_SHIFT_");
  EXPECT_EQ(KeysOf("SMOOTH_"),
            "PATCH_ID_ TASK_ ALL_ITERATIONS_ ISO_VALUE_ TARGET_VOLUME_ MODEL_FILE_ RESULT_FILE_ ITERATION_ VTM_RESULT_ "
            "OUTPUT_FILE_ FORMAT_ STL_GROUPS_ OUTPUT_SURFACE_ VTF_ORGMODEL_ IGES_UNIT_ SLICES_ SLICE_X_ SLICE_Y_ "
            "SLICE_Z_ SLICE_PRIMARY_ SLICE_NUMBER_ SLICE_DISTANCE_ SLICE_INTERSECTION_ SLICE_REDUCTION_ "
            "SLICE_RED_ANGLE_ SLICE_OFFSET_ SLICE_REF_QUANT_ SLICE_REF_FACTOR_ SLICE_FILTER_CURVES_ SLICE_FORMAT_ "
            "BORDER_ BORDER_FORMAT_ GROUP_FILE_ EXCLUDE_GROUP_ INCLUDE_GROUP_ SURFACE_GROUP_ ND_GROUP_ ISO_GROUP_NAME_ "
            "ISO_GROUP_VALUE_ VOL_GROUP_NAME_ VOL_GROUP_VALUE_ SMOOTH_CYCLES_ NO_SORT_ MIN_DENS_WALL_ REDUCTION_ "
            "REDUCTION_RATE_ REDUCTION_ANGLE_ MIN_ANGLE_ MIN_FACE_ANGLE_ SELF_INTERSECTION_ "
            "ORIGINAL_SURFACE_TOLERANCE_VALUE_ ORIGINAL_SURFACE_TOLERANCE_TYPE_ MIXED_MESH_ EXCLUDE_LOADED_ "
            "ISO_SEQUENCE_ O_SURF_SMOOTHING_ RESULT_FILTERING_ INPUT_SCALE_ COMPONENT_LIM_SIZE_ IF_SMOOTHING_ "
            "IF_SMOOTH_FROZEN_ IF_TOLERANCE_ IF_BORDER_CYCLES_ IF_INNER_CYCLES_ SHRINKAGE_CORRECTION_ LAPLACE_ALPHA_ "
            "LAPLACE_BETA_ WALL_TOLERANCE_");
}

TEST(CommandSchema, DescribesTheModelAndItsGroups)
{
  EXPECT_EQ(Described("MODEL_", "FILE_"), "always string");
  EXPECT_EQ(Described("MODEL_", "SOLVER_"), "optional string");

  EXPECT_EQ(Described("ELEMENT_GROUP_", "LIST_"), "optional int list");
  EXPECT_EQ(Described("ELEMENT_GROUP_", "MERGE_"), "repeated model id of 9");
  EXPECT_EQ(Described("ELEMENT_GROUP_", "SUBTRACT_"), "repeated model id of 9");

  EXPECT_EQ(Described("FACE_GROUP_", "LIST_"), "optional int list");
  EXPECT_EQ(Described("FACE_GROUP_", "INTERSECT_"), "repeated model id of 8");
  EXPECT_EQ(Described("FACE_GROUP_", "XOR_"), "repeated model id of 8");

  EXPECT_EQ(Described("NODE_GROUP_", "LIST_"), "optional int list");
  EXPECT_EQ(Described("NODE_GROUP_", "MERGE_"), "repeated model id of 7");
  EXPECT_EQ(Described("NODE_GROUP_", "XOR_"), "repeated model id of 7");
}

TEST(CommandSchema, DescribesDesignVariablesAndTheirConstraints)
{
  EXPECT_EQ(Described("DV_", "ELEMENT_GROUP_"), "optional model id of 9");
  EXPECT_EQ(Described("DV_", "NODE_GROUP_"), "optional model id of 7");
  EXPECT_EQ(Described("DV_", "INITIAL_"), "always double");
  EXPECT_EQ(Described("DV_", "FILTER_"), "repeated reference to FILTER_");
  EXPECT_EQ(Described("DV_", "TYPE_"), "always enum: AUTO 65, DENSITY 68, DETACHED 69, NODAL 78, NODAL_VECTOR 86");
  EXPECT_EQ(Described("DV_", "DV_"), "repeated reference to DV_");

  EXPECT_EQ(Described("DV_CONSTRAINT_", "CHECK_GROUP_"), "optional model id of 7");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "ELEMENT_GROUP_"), "optional model id of 9");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "Y_START_DIRECTION_"), "optional double");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "SAVE_"), "always enum: NO 78, YES 89");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "FILTER_TYPE_"), "optional enum: PROB_DENS 80, SIGMUND 83");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "AGGREGATION_METHOD_"),
            "always enum: PN 65, PMN 66, KS 67, SOFTMAX 68, NONE 78, PN_C 97, PMN_C 98");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "AGGREGATION_NUM_CONSTRAINTS_"), "always int");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "CS_"), "optional reference to CS_");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "Z_DOF_"), "optional enum: FREE 69, FIX 88");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "SCALING_CURVE_"), "optional reference to SCALING_CURVE_");
  EXPECT_EQ(Described("DV_CONSTRAINT_", "MID_PLANE_"), "always enum: POINT 80, NONE 95");

  EXPECT_EQ(Described("CS_", "TYPE_"), "always enum: CYLINDRICAL 67, CARTESIAN 82, SPHERICAL 83");
  EXPECT_EQ(Described("CS_", "Z_ORIGIN_"), "optional double");
  EXPECT_EQ(Described("CS_", "X_VEC1_"), "always double");

  EXPECT_EQ(Described("SCALING_CURVE_", "TYPE_"), "always enum: HEAVYSIDE 72, LINEAR 73, LOG 76, SIN 83, CONVEX 88");
  EXPECT_EQ(Described("SCALING_CURVE_", "UPDATE_ID_"), "always string");
  EXPECT_EQ(Described("SCALING_CURVE_", "DATA_SHIFT_"), "always double");

  EXPECT_EQ(Described("FILTER_", "METHOD_"),
            "always enum: DA_NORMAL 65, BOUNDARY 66, BD_TRANSITION 67, DEMOLD 68, SIGMUND 69, SIGMUND_SURFACE 70, "
            "MAXIMUM_MEMBER 77, MEDIAN 78, DA_PLANE_NORMAL 80, SYMMETRY 83, DISTANCE_TO_BORDER 100");
  EXPECT_EQ(Described("FILTER_", "Y_POINT_"), "optional double");
  EXPECT_EQ(Described("FILTER_", "FACE_GROUP_"), "optional model id of 8");
  EXPECT_EQ(Described("FILTER_", "BETA_"), "always double");
}

TEST(CommandSchema, DescribesResponsesAndWhatIsMadeOfThem)
{
  const schema::Command& response = *schema::FindCommand("DRESP_");
  const schema::Field& type = *schema::FindField(response, "TYPE_");
  EXPECT_EQ(type.enumerators.size(), 34U);
  EXPECT_EQ(type.enumerators[0].name, "DISP_ABS");
  EXPECT_EQ(type.enumerators[0].value, 8);
  EXPECT_EQ(schema::EnumeratorName(type.enumerators, 146), "VOLUME");
  EXPECT_EQ(schema::EnumeratorName(type.enumerators, 1005), "BACKFLOW");
  EXPECT_EQ(Described("DRESP_", "UPDATE_TYPE_"), "always enum: CALCULATED 67, RECEIVED 82");
  EXPECT_EQ(Described("DRESP_", "FACE_GROUP_ADD_"), "optional model id of 8");
  EXPECT_EQ(Described("DRESP_", "ITER_MIN_"), "always int");
  EXPECT_EQ(Described("DRESP_", "DV_CONSTRAINT_"), "optional reference to DV_CONSTRAINT_");
  EXPECT_EQ(Described("DRESP_", "CS_REF_"), "optional model id of 5");

  EXPECT_EQ(Described("OPERATOR_", "TYPE_"),
            "always enum: P_MEAN_NORM 77, P_NORM 80, WEIGHTED_SUM 87, MAX 88, P_MEAN_NORM_C 109, P_NORM_C 112");
  EXPECT_EQ(Described("OPERATOR_", "DRESP_"), "repeated reference to DRESP_");
  EXPECT_EQ(Described("OPERATOR_", "DRESP_WEIGHT_"), "repeated double");
  EXPECT_EQ(Described("OPERATOR_", "UPDATE_INDEX_"), "always int");

  EXPECT_EQ(Described("OBJ_FUNC_", "OPERATOR_"), "optional reference to OPERATOR_");
  EXPECT_EQ(Described("OBJ_FUNC_", "SENSSCALING_TYPE_"), "always enum: NONE 78, NORMED_TO_ONE 79, SCALED 83");
  EXPECT_EQ(Described("OBJ_FUNC_", "FILTER_"), "repeated reference to FILTER_");

  EXPECT_EQ(Described("CONSTRAINT_", "DRESP_"), "optional reference to DRESP_");
  EXPECT_EQ(Described("CONSTRAINT_", "TYPE_"), "always enum: GREATER_EQUAL 71, LESS_EQUAL 76");
  EXPECT_EQ(Described("CONSTRAINT_", "MAGNITUDE_"), "always enum: ABS 65, REL 82, REL_VALUE 86");
  EXPECT_EQ(Described("CONSTRAINT_", "A_MINMAX_COEFFICIENT_"), "always double");

  EXPECT_EQ(Described("MONITOR_", "DRESP_"), "always reference to DRESP_");
}

TEST(CommandSchema, DescribesTheAlgorithmAndItsSettings)
{
  EXPECT_EQ(Described("ALGO_", "STRATEGY_"),
            "always enum: STRUCTURE_TOPO_SENS 65, TOPO_OC 79, SHAPE_SENS 83, TOPO_SENS 84");
  EXPECT_EQ(Described("ALGO_", "OBJ_FUNC_"), "always reference to OBJ_FUNC_");
  EXPECT_EQ(Described("ALGO_", "MESH_SMOOTH_"), "repeated reference to MESH_SMOOTH_");
  EXPECT_EQ(Described("ALGO_", "AS_TOPO_OC_"), "always reference to AS_TOPO_OC_");
  EXPECT_EQ(Described("ALGO_", "DEVELOPER_OUTPUT_"), "always enum: NO 70, YES 84");

  EXPECT_EQ(Described("OPT_PARAM_", "STORE_INT_"), "optional int list");
  EXPECT_EQ(Described("OPT_PARAM_", "OPT_START_"), "always int");
  EXPECT_EQ(Described("OPT_PARAM_", "SRC_SCALE_"), "optional double");

  EXPECT_EQ(Described("STOP_", "ITER_MAX_"), "always int");
  EXPECT_EQ(Described("STOP_", "RESIDUAL_OBJ_"), "always double");
  EXPECT_EQ(Described("STOP_", "RESIDUAL_DV_"), "always double");

  EXPECT_EQ(Described("MESH_SMOOTH_", "METHOD_"),
            "always enum: CONSTRAINED_LAPLACIAN 67, RESTRICT_DOF 68, LAPLACE 76, NONE 78, CHECK_PENETRATION 80, "
            "RESTRICT_NODES_ON_PLANE 82, TRANSITION 84, TUM 85");
  EXPECT_EQ(Described("MESH_SMOOTH_", "NODE_GROUP_"), "optional model id of 7");
  EXPECT_EQ(Described("MESH_SMOOTH_", "FILTER_"), "optional reference to FILTER_");

  EXPECT_EQ(Described("PRE_PARAM_", "VISCOSITY_"), "always double");
  EXPECT_EQ(Described("PRE_PARAM_", "BACKFLOW_ANGLE_"), "always int");
  EXPECT_EQ(Described("PRE_PARAM_", "REF_VRML_"), "always enum: NO 70, YES 84");

  EXPECT_EQ(Described("AS_TOPO_OC_", "PATCH_ID_"), "always string");
  EXPECT_EQ(Described("AS_TOPO_OC_", "TA_MIN_"), "always double");
  EXPECT_EQ(Described("AS_TOPO_OC_", "SCALING_CURVE_TYPE_"), "always enum: LINEAR 73, LOG 76, CONVEX 88");

  EXPECT_EQ(Described("AS_TOPO_SENS_", "ALGORITHM_"), "always enum: STEEPEST 67, MMA 77, CSA 80");
  EXPECT_EQ(Described("AS_TOPO_SENS_", "MIN_"), "optional double");
  EXPECT_EQ(Described("AS_TOPO_SENS_", "ASYM_MOVE_"), "always enum: CONSERVATIVE 67, ORIGINAL 79, CUSTOM 83");
  EXPECT_EQ(Described("AS_TOPO_SENS_", "ADJOINT_CFL_"), "always int");
  EXPECT_EQ(Described("AS_TOPO_SENS_", "SKIP_TURBULENT_SRC_"), "always string");

  EXPECT_EQ(Described("AS_SHAPE_SENS_", "ALGORITHM_"), "always enum: STEEPEST 67, FD_CHECK 70, MMA 77, CSA 80");
  EXPECT_EQ(Described("AS_SHAPE_SENS_", "MATH_KERNEL_"), "always enum: INTERNAL 73, MKL 77");
  EXPECT_EQ(Described("AS_SHAPE_SENS_", "FILTER_"), "repeated reference to FILTER_");
  EXPECT_EQ(Described("AS_SHAPE_SENS_", "NORMAL_UPDATE_"), "always enum: INCREMENTAL 67, INITIAL 73, UPDATE 85");
  EXPECT_EQ(Described("AS_SHAPE_SENS_", "DV_TYPE_"), "always enum: DEFAULT 68, SPECIFIC 83");
}

TEST(CommandSchema, DescribesOutputAndSmoothing)
{
  EXPECT_EQ(Described("FLOWPATHS_", "IN_"), "repeated model id of 8");
  EXPECT_EQ(Described("FLOWPATHS_", "OUT_"), "repeated model id of 8");

  EXPECT_EQ(Described("OUTPUT_", "FORMAT_"), "always enum: CSV 67, ONF 79, VTFX_PLOT 80, VTK 86, WRL 87");
  EXPECT_EQ(Described("OUTPUT_", "ITERATION_"), "always int list");
  EXPECT_EQ(Described("OUTPUT_", "CUTOFF_"), "optional double list");
  EXPECT_EQ(Described("OUTPUT_", "KEEP_POST_DATA_"), "always enum: NO 70, YES 84");
  EXPECT_EQ(Described("OUTPUT_", "ELEMENT_GROUP_"), "always model id of 9");

  EXPECT_EQ(Described("SMOOTH_", "TASK_"), "always enum: ISO 73, SURFACE 83, VOLUME 86");
  EXPECT_EQ(Described("SMOOTH_", "ITERATION_"), "optional int list");
  EXPECT_EQ(
    Described("SMOOTH_", "FORMAT_"),
    "repeated enum: ASCII_VTF 65, BDF 66, CDB 67, IGES1 73, IGES2 74, IGES3 75, ONF 79, INP 81, STL 83, OUT 84, "
    "UNCOMPRESSED_VTF 85, VTF 86, WRL 87, OBJ 88, BINARY_VTF 90");
  EXPECT_EQ(Described("SMOOTH_", "SLICE_Z_"), "repeated double");
  EXPECT_EQ(Described("SMOOTH_", "SURFACE_GROUP_"), "repeated string");
  EXPECT_EQ(Described("SMOOTH_", "ND_GROUP_"), "optional string");
  EXPECT_EQ(Described("SMOOTH_", "SMOOTH_CYCLES_"), "always int");
  EXPECT_EQ(Described("SMOOTH_", "ORIGINAL_SURFACE_TOLERANCE_TYPE_"), "optional enum: ABS 65, REL 82");
  EXPECT_EQ(Described("SMOOTH_", "SHRINKAGE_CORRECTION_"), "always enum: NO 70, YES 84");
  EXPECT_EQ(Described("SMOOTH_", "WALL_TOLERANCE_"), "always double");
}

TEST(CommandSchema, FindsEachKindUnderItsExactNameOnly)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_EQ(schema::FindCommand(command.kind), &command) << command.kind;
  }
  EXPECT_EQ(schema::FindCommand("SMOOTH_")->text_name, "SMOOTH");
  EXPECT_EQ(schema::FindCommand(""), nullptr);
  EXPECT_EQ(schema::FindCommand("ALGO"), nullptr);
  EXPECT_EQ(schema::FindCommand("OPTIMIZE"), nullptr);
  EXPECT_EQ(schema::FindCommand("algo_"), nullptr);
  EXPECT_EQ(schema::FindCommand("ALGO_ "), nullptr);
}

TEST(CommandSchema, FindsAKeyInItsOwnKindOnly)
{
  const schema::Command& algorithm = *schema::FindCommand("ALGO_");
  EXPECT_EQ(schema::FindField(algorithm, "STRATEGY_"), &algorithm.fields[0]);
  EXPECT_EQ(schema::FindField(algorithm, "DEVELOPER_OUTPUT_"), &algorithm.fields[13]);
  EXPECT_EQ(schema::FindField(algorithm, "STRATEGY"), nullptr);
  EXPECT_EQ(schema::FindField(algorithm, "METHOD_"), nullptr);
  EXPECT_EQ(schema::FindField(algorithm, ""), nullptr);
}

TEST(CommandSchema, HasNoRowForTheIdOfACommandNorForFlagsAndCounts)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_EQ(schema::FindField(command, "ID_NAME_"), nullptr) << command.kind;
  }
  EXPECT_EQ(Described("DV_", "m_has_ELEMENT_GROUP_"), "no such key");
  EXPECT_EQ(Described("DV_", "num_FILTER_"), "no such key");
}

TEST(CommandSchema, NamesEnumeratorsAndCallsEveryOtherNumberInvalid)
{
  const schema::Rows<schema::Enumerator> types = schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->enumerators;
  EXPECT_EQ(schema::EnumeratorName(types, 65), "AUTO");
  EXPECT_EQ(schema::EnumeratorName(types, 86), "NODAL_VECTOR");
  EXPECT_EQ(schema::EnumeratorName(types, 66), "INVALID");
  EXPECT_EQ(schema::EnumeratorName(types, 0), "INVALID");
  EXPECT_EQ(schema::EnumeratorName(types, -65), "INVALID");
  EXPECT_EQ(schema::EnumeratorName({}, 65), "INVALID");
}

TEST(CommandSchema, WalksRowsFromBeginToEnd)
{
  static constexpr schema::Enumerator kRows[] = {{"ONE", 1}, {"TWO", 2}};
  constexpr schema::Rows<schema::Enumerator> rows(kRows);
  EXPECT_EQ(rows.size(), 2U);
  EXPECT_FALSE(rows.empty());
  EXPECT_EQ(rows.begin(), &kRows[0]);
  EXPECT_EQ(rows.end(), &kRows[0] + 2);
  EXPECT_EQ(&rows[1], &kRows[1]);
}

TEST(CommandSchema, DocumentsEveryRowInOneLine)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_TRUE(IsOneSentence(command.documentation)) << command.kind << ": " << command.documentation;
    for (const schema::Field& field : command.fields)
    {
      EXPECT_TRUE(IsOneSentence(field.documentation)) << command.kind << field.key << ": " << field.documentation;
    }
  }
}

TEST(CommandSchema, GivesEachTypeWhatItNeedsAndNoMore)
{
  for (const schema::Command& command : schema::Commands())
  {
    for (const schema::Field& field : command.fields)
    {
      SCOPED_TRACE(std::string(command.kind) + " " + std::string(field.key));
      EXPECT_STRNE(NameOf(field.type), "no value");
      EXPECT_EQ(!field.enumerators.empty(), field.type == vtmEnum);
      EXPECT_EQ(field.id_type.has_value(), field.type == vtmModelId);
      EXPECT_EQ(!field.target.empty(), field.type == vtmReference);
      EXPECT_TRUE(field.target.empty() || schema::FindCommand(field.target) != nullptr);
    }
  }
}

TEST(CommandSchema, NamesNoKindTwiceAndNoKeyTwiceWithinAKind)
{
  std::set<std::string_view> kinds;
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_TRUE(kinds.insert(command.kind).second) << command.kind;
    std::set<std::string_view> keys;
    for (const schema::Field& field : command.fields)
    {
      EXPECT_TRUE(keys.insert(field.key).second) << command.kind << " " << field.key;
    }
  }
}

TEST(CommandSchema, TellsWhichKindsAJobHasExactlyOnce)
{
  std::vector<std::string_view> single;
  for (const schema::Command& command : schema::Commands())
  {
    if (command.count == Count::One)
    {
      single.push_back(command.kind);
    }
  }
  EXPECT_THAT(single, ElementsAre("MODEL_", "OBJ_FUNC_", "ALGO_", "FLOWPATHS_"));
}
