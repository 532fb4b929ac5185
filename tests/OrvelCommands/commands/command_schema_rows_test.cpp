#include "OrvelCommands/commands/command_schema.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace schema = orvel::schema;

using schema::Count;
using schema::Presence;

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

/// Key, presence and type, then the kind to which it refers, the number of the kind of name or the enumerators:
/// "NODE_GROUP_: optional model id of 7", "DV_: repeated reference to DV_", "TARGET_: always enum of MIN 77".
std::string Row(const schema::Field& field)
{
  std::string row = std::string(field.key) + ": " + NameOf(field.presence) + " " + NameOf(field.type);
  if (!field.target.empty())
  {
    row += " to " + std::string(field.target);
  }
  if (field.id_type)
  {
    row += " of " + std::to_string(static_cast<int>(*field.id_type));
  }
  const char* separator = " of ";
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    row += separator + std::string(enumerator.name) + " " + std::to_string(enumerator.value);
    separator = ", ";
  }
  return row;
}

/// As one text, of which a failing comparison shows the lines that differ.
std::string Lines(std::initializer_list<const char*> lines)
{
  std::string text;
  for (const char* line : lines)
  {
    text += std::string(line) + "\n";
  }
  return text;
}

/// A line for each key of a kind, in the order of its members.
std::string RowsOf(std::string_view kind)
{
  const schema::Command* command = schema::FindCommand(kind);
  if (command == nullptr)
  {
    return "no such kind";
  }
  std::string rows;
  for (const schema::Field& field : command->fields)
  {
    rows += Row(field) + "\n";
  }
  return rows;
}

/// A line for each kind: its name, its text name and how many a job has, as "MODEL_ MODEL_INPUT one".
std::string Kinds()
{
  std::string kinds;
  for (const schema::Command& command : schema::Commands())
  {
    kinds += std::string(command.kind) + " " + std::string(command.text_name) +
             (command.count == Count::One ? " one\n" : " any\n");
  }
  return kinds;
}

}  // namespace

TEST(CommandSchema, HasAllKindsInLoadOrderWithTheirTextNamesAndCounts)
{
  EXPECT_EQ(Kinds(), Lines({
                       "MODEL_ MODEL_INPUT one",
                       "ELEMENT_GROUP_ ELEMENT_GROUP any",
                       "FACE_GROUP_ FACE_GROUP any",
                       "NODE_GROUP_ NODE_GROUP any",
                       "DV_ DV any",
                       "DRESP_ DRESP any",
                       "OPERATOR_ OPERATOR any",
                       "OBJ_FUNC_ OBJ_FUNC one",
                       "CONSTRAINT_ CONSTRAINT any",
                       "CS_ CS any",
                       "DV_CONSTRAINT_ DV_CONSTRAINT any",
                       "MONITOR_ MONITOR any",
                       "ALGO_ OPTIMIZE one",
                       "OPT_PARAM_ OPT_PARAM any",
                       "STOP_ STOP any",
                       "MESH_SMOOTH_ MESH_SMOOTH any",
                       "FILTER_ FILTER any",
                       "PRE_PARAM_ PRE_PARAM any",
                       "AS_TOPO_OC_ ALGO_SET_TOPO_OC any",
                       "AS_TOPO_SENS_ ALGO_SET_TOPO_SENS any",
                       "AS_SHAPE_SENS_ ALGO_SET_SHAPE_SENS any",
                       "FLOWPATHS_ FLOWPATHS one",
                       "OUTPUT_ OUTPUT any",
                       "SCALING_CURVE_ SCALING_CURVE any",
                       "SMOOTH_ SMOOTH any",
                     }));
}

TEST(CommandSchema, ListsTheModelAndItsGroups)
{
  EXPECT_EQ(RowsOf("MODEL_"), Lines({
                                "FILE_: always string",
                                "SOLVER_: optional string",
                              }));

  EXPECT_EQ(RowsOf("ELEMENT_GROUP_"), Lines({
                                        "LIST_: optional int list",
                                        "MERGE_: repeated model id of 9",
                                        "INTERSECT_: repeated model id of 9",
                                        "XOR_: repeated model id of 9",
                                        "SUBTRACT_: repeated model id of 9",
                                      }));

  EXPECT_EQ(RowsOf("FACE_GROUP_"), Lines({
                                     "LIST_: optional int list",
                                     "MERGE_: repeated model id of 8",
                                     "INTERSECT_: repeated model id of 8",
                                     "XOR_: repeated model id of 8",
                                     "SUBTRACT_: repeated model id of 8",
                                   }));

  EXPECT_EQ(RowsOf("NODE_GROUP_"), Lines({
                                     "LIST_: optional int list",
                                     "MERGE_: repeated model id of 7",
                                     "INTERSECT_: repeated model id of 7",
                                     "XOR_: repeated model id of 7",
                                     "SUBTRACT_: repeated model id of 7",
                                   }));
}

TEST(CommandSchema, ListsDesignVariables)
{
  EXPECT_EQ(RowsOf("DV_"), Lines({
                             "ELEMENT_GROUP_: optional model id of 9",
                             "NODE_GROUP_: optional model id of 7",
                             "INITIAL_: always double",
                             "INITIAL_DV_FIELD_: optional string",
                             "FILTER_: repeated reference to FILTER_",
                             "TYPE_: always enum of AUTO 65, DENSITY 68, DETACHED 69, NODAL 78, NODAL_VECTOR 86",
                             "DV_: repeated reference to DV_",
                           }));
}

TEST(CommandSchema, ListsResponsesAndWhatIsMadeOfThem)
{
  EXPECT_EQ(RowsOf("DRESP_"),
            Lines({
              "TYPE_: always enum of DISP_ABS 8, ROT_ABS 9, ROT_X 11, ROT_Y 13, ROT_Z 15, DISP_X 17, DISP_Y 19, "
              "DISP_Z 21, DYN_FREQ 26, ENERGY_STIFF_MEASURE 29, INTERNAL_FORCE_ABS 60, INTERNAL_FORCE_X 62, "
              "INTERNAL_FORCE_Y 64, INTERNAL_FORCE_Z 66, INTERNAL_MOMENT_ABS 68, INTERNAL_MOMENT_X 70, "
              "INTERNAL_MOMENT_Y 72, INTERNAL_MOMENT_Z 74, REACTION_FORCE_ABS 87, REACTION_FORCE_X 89, "
              "REACTION_FORCE_Y 91, REACTION_FORCE_Z 93, REACTION_MOMENT_ABS 95, REACTION_MOMENT_X 97, "
              "REACTION_MOMENT_Y 99, REACTION_MOMENT_Z 101, SENSITIVITY_ONF 106, VOLUME 146, CUSTOM 1000, "
              "PRESSURE_DROP 1001, UNIFORMITY 1002, SWIRL 1003, TUMBLE 1004, BACKFLOW 1005",
              "UPDATE_TYPE_: always enum of CALCULATED 67, RECEIVED 82",
              "UPDATE_ID_: always string",
              "UPDATE_INDEX_: always int",
              "FACE_GROUP_: optional model id of 8",
              "FACE_GROUP_ADD_: optional model id of 8",
              "ELEMENT_GROUP_: optional model id of 9",
              "NODE_GROUP_: optional model id of 7",
              "WRITE_INTERVAL_: always int",
              "LOADCASE_: always int",
              "ITER_MAX_: always int",
              "ITER_MIN_: always int",
              "RESIDUAL_: always double",
              "ADJOINT_RESIDUAL_: always double",
              "ADJOINT_DEVIATION_: always double",
              "OBJECTIVE_DEVIATION_: always double",
              "DV_CONSTRAINT_: optional reference to DV_CONSTRAINT_",
              "FILE_: optional string",
              "CS_REF_: optional model id of 5",
            }));

  EXPECT_EQ(RowsOf("OPERATOR_"),
            Lines({
              "TYPE_: always enum of P_MEAN_NORM 77, P_NORM 80, WEIGHTED_SUM 87, MAX 88, P_MEAN_NORM_C 109, "
              "P_NORM_C 112",
              "UPDATE_TYPE_: always enum of CALCULATED 67, RECEIVED 82",
              "UPDATE_ID_: always string",
              "UPDATE_INDEX_: always int",
              "DRESP_: repeated reference to DRESP_",
              "DRESP_WEIGHT_: repeated double",
              "OPERATOR_: repeated reference to OPERATOR_",
              "OPERATOR_WEIGHT_: repeated double",
              "FACTOR_: always double",
            }));

  EXPECT_EQ(RowsOf("OBJ_FUNC_"), Lines({
                                   "DRESP_: optional reference to DRESP_",
                                   "OPERATOR_: optional reference to OPERATOR_",
                                   "TARGET_: always enum of MIN 77",
                                   "SENSSCALING_TYPE_: always enum of NONE 78, NORMED_TO_ONE 79, SCALED 83",
                                   "SENSSCALING_VALUE_: always double",
                                   "FILTER_: repeated reference to FILTER_",
                                 }));

  EXPECT_EQ(RowsOf("CONSTRAINT_"), Lines({
                                     "DRESP_: optional reference to DRESP_",
                                     "OPERATOR_: optional reference to OPERATOR_",
                                     "TYPE_: always enum of GREATER_EQUAL 71, LESS_EQUAL 76",
                                     "MAGNITUDE_: always enum of ABS 65, REL 82, REL_VALUE 86",
                                     "VALUE_: always double",
                                     "COEFFICIENT_: always double",
                                     "A_MINMAX_COEFFICIENT_: always double",
                                     "SENSSCALING_TYPE_: always enum of NONE 78, NORMED_TO_ONE 79, SCALED 83",
                                     "SENSSCALING_VALUE_: always double",
                                     "FILTER_: repeated reference to FILTER_",
                                   }));
}

TEST(CommandSchema, ListsCoordinateSystemsAndConstraintsOfDesignVariables)
{
  EXPECT_EQ(RowsOf("CS_"), Lines({
                             "TYPE_: always enum of CYLINDRICAL 67, CARTESIAN 82, SPHERICAL 83",
                             "X_ORIGIN_: optional double",
                             "Y_ORIGIN_: optional double",
                             "Z_ORIGIN_: optional double",
                             "X_VEC1_: always double",
                             "Y_VEC1_: always double",
                             "Z_VEC1_: always double",
                             "X_VEC2_: always double",
                             "Y_VEC2_: always double",
                             "Z_VEC2_: always double",
                             "X_VEC3_: always double",
                             "Y_VEC3_: always double",
                             "Z_VEC3_: always double",
                           }));

  EXPECT_EQ(RowsOf("DV_CONSTRAINT_"),
            Lines({
              "PATCH_ID_: always string",
              "DVC_TYPE_: always enum of STAMP 65, LSF_INIT 66, CYCLIC_SYMMETRY 67, DUMMY 68, DEMOLD 69, FILE 70, "
              "SCALING_CURVE 71, FILTER 73, PLANE_LINK 76, MEMBERSIZE 77, LSF_SCALING 78, OPT_DIR 79, "
              "PLANE_SYMMETRY 80, SURF_DIR_SMOOTH 83, TRANSITION 84, LEVELSET 86, CYCLIC_PLANE_SYMMETRY 89",
              "NODE_GROUP_: optional model id of 7",
              "CHECK_GROUP_: optional model id of 7",
              "REFERENCE_GROUP_: optional model id of 7",
              "ELEMENT_GROUP_: optional model id of 9",
              "X_POINT_: optional double",
              "Y_POINT_: optional double",
              "Z_POINT_: optional double",
              "X_DIRECTION_: optional double",
              "Y_DIRECTION_: optional double",
              "Z_DIRECTION_: optional double",
              "X_START_DIRECTION_: optional double",
              "Y_START_DIRECTION_: optional double",
              "Z_START_DIRECTION_: optional double",
              "ANGLE_: optional double",
              "FEASIBLE_START_: always enum of FEASIBLE 70, INFEASIBLE 73",
              "SAVE_: always enum of NO 78, YES 89",
              "DUMPOPTVALUES_: always enum of NO 78, YES 89",
              "RADIUS_: optional double",
              "FILTER_TYPE_: optional enum of PROB_DENS 80, SIGMUND 83",
              "MEMBERSIZE_TYPE_: optional enum of MAX 65, MIN 73",
              "AGGREGATION_METHOD_: always enum of PN 65, PMN 66, KS 67, SOFTMAX 68, NONE 78, PN_C 97, PMN_C 98",
              "AGGREGATION_PARAMETER_: always double",
              "AGGREGATION_NUM_CONSTRAINTS_: always int",
              "CS_: optional reference to CS_",
              "X_DOF_: optional enum of FREE 69, FIX 88",
              "Y_DOF_: optional enum of FREE 69, FIX 88",
              "Z_DOF_: optional enum of FREE 69, FIX 88",
              "CHECK_ELGR_BLOCKING_: always enum of BOTH 66, NEG 78, POS 80",
              "TOLERANCE_: always double",
              "SCALING_CURVE_: optional reference to SCALING_CURVE_",
              "MID_PLANE_: always enum of POINT 80, NONE 95",
            }));
}

TEST(CommandSchema, ListsMonitorsAndTheAlgorithm)
{
  EXPECT_EQ(RowsOf("MONITOR_"), Lines({
                                  "DRESP_: always reference to DRESP_",
                                }));

  EXPECT_EQ(RowsOf("ALGO_"),
            Lines({
              "STRATEGY_: always enum of STRUCTURE_TOPO_SENS 65, TOPO_OC 79, SHAPE_SENS 83, TOPO_SENS 84",
              "DV_: always reference to DV_",
              "OBJ_FUNC_: always reference to OBJ_FUNC_",
              "CONSTRAINT_: repeated reference to CONSTRAINT_",
              "DV_CONSTRAINT_: repeated reference to DV_CONSTRAINT_",
              "OPT_PARAM_: always reference to OPT_PARAM_",
              "STOP_: always reference to STOP_",
              "PRE_PARAM_: always reference to PRE_PARAM_",
              "MESH_SMOOTH_: repeated reference to MESH_SMOOTH_",
              "MONITOR_: repeated reference to MONITOR_",
              "AS_TOPO_OC_: always reference to AS_TOPO_OC_",
              "AS_TOPO_SENS_: always reference to AS_TOPO_SENS_",
              "AS_SHAPE_SENS_: always reference to AS_SHAPE_SENS_",
              "DEVELOPER_OUTPUT_: always enum of NO 70, YES 84",
            }));
}

TEST(CommandSchema, ListsWhatSteersARun)
{
  EXPECT_EQ(RowsOf("OPT_PARAM_"), Lines({
                                    "STORE_INT_: optional int list",
                                    "OPT_START_: always int",
                                    "SRC_SCALE_: optional double",
                                  }));

  EXPECT_EQ(RowsOf("STOP_"), Lines({
                               "ITER_MAX_: always int",
                               "ITER_MIN_: always int",
                               "RESIDUAL_OBJ_: always double",
                               "RESIDUAL_DV_: always double",
                             }));

  EXPECT_EQ(RowsOf("MESH_SMOOTH_"),
            Lines({
              "METHOD_: always enum of CONSTRAINED_LAPLACIAN 67, RESTRICT_DOF 68, LAPLACE 76, NONE 78, "
              "CHECK_PENETRATION 80, RESTRICT_NODES_ON_PLANE 82, TRANSITION 84, TUM 85",
              "CYCLE_: always int",
              "FACE_GROUP_: optional model id of 8",
              "NODE_GROUP_: optional model id of 7",
              "ELEMENT_GROUP_: optional model id of 9",
              "SMOOTH_CYCLES_: always int",
              "ALPHA_: always double",
              "BETA_: always double",
              "FILTER_: optional reference to FILTER_",
              "DV_CONSTRAINT_: optional reference to DV_CONSTRAINT_",
            }));

  EXPECT_EQ(RowsOf("FILTER_"),
            Lines({
              "PATCH_ID_: always string",
              "METHOD_: always enum of DA_NORMAL 65, BOUNDARY 66, BD_TRANSITION 67, DEMOLD 68, SIGMUND 69, "
              "SIGMUND_SURFACE 70, MAXIMUM_MEMBER 77, MEDIAN 78, DA_PLANE_NORMAL 80, SYMMETRY 83, "
              "DISTANCE_TO_BORDER 100",
              "RADIUS_: always double",
              "X_DIRECTION_: optional double",
              "Y_DIRECTION_: optional double",
              "Z_DIRECTION_: optional double",
              "X_POINT_: optional double",
              "Y_POINT_: optional double",
              "Z_POINT_: optional double",
              "FACE_GROUP_: optional model id of 8",
              "NODE_GROUP_: optional model id of 7",
              "ELEMENT_GROUP_: optional model id of 9",
              "ALPHA_: always double",
              "BETA_: always double",
            }));

  EXPECT_EQ(RowsOf("PRE_PARAM_"), Lines({
                                    "PATCH_ID_: always string",
                                    "VISCOSITY_: always double",
                                    "RESIDUAL_: always double",
                                    "ITER_MAX_: always int",
                                    "BACKFLOW_ANGLE_: always int",
                                    "PTRACK_PRI_VRML_: always enum of NO 70, YES 84",
                                    "PTRACK_VAL_VRML_: always enum of NO 70, YES 84",
                                    "REF_VRML_: always enum of NO 70, YES 84",
                                    "PTRACK_KEEP_INVALID_: always enum of NO 70, YES 84",
                                    "PTRACK_VRML_ADD_BOUNDS_: always enum of NO 70, YES 84",
                                  }));
}

TEST(CommandSchema, ListsTheSettingsOfTheAlgorithms)
{
  EXPECT_EQ(RowsOf("AS_TOPO_OC_"), Lines({
                                     "PATCH_ID_: always string",
                                     "BT_: always double",
                                     "TA_MIN_: always double",
                                     "TA_MAX_: always double",
                                     "SCALING_CURVE_TYPE_: always enum of LINEAR 73, LOG 76, CONVEX 88",
                                     "SCALING_CURVE_UPDATE_ID_: always string",
                                     "SCALING_CURVE_MIN_: always double",
                                     "SCALING_CURVE_MAX_: always double",
                                     "SCALING_CURVE_PENALISATION_: always double",
                                   }));

  EXPECT_EQ(RowsOf("AS_TOPO_SENS_"), Lines({
                                       "PATCH_ID_: always string",
                                       "ALGORITHM_: always enum of STEEPEST 67, MMA 77, CSA 80",
                                       "MATH_KERNEL_: always enum of INTERNAL 73, MKL 77",
                                       "MIN_: optional double",
                                       "MAX_: optional double",
                                       "MOVE_: always double",
                                       "SCALING_CURVE_TYPE_: always enum of LINEAR 73, LOG 76, CONVEX 88",
                                       "SCALING_CURVE_UPDATE_ID_: always string",
                                       "SCALING_CURVE_MIN_: always double",
                                       "SCALING_CURVE_MAX_: always double",
                                       "SCALING_CURVE_PENALISATION_: always double",
                                       "ASYM_MOVE_: always enum of CONSERVATIVE 67, ORIGINAL 79, CUSTOM 83",
                                       "ASYM_MOVE_LOW_: always double",
                                       "ASYM_MOVE_UP_: always double",
                                       "SUB_TOL_: always double",
                                       "PRIMAL_ITER_MIN_: always int",
                                       "PRIMAL_ITER_MAX_: always int",
                                       "PRIMAL_INTERVAL_: always int",
                                       "PRIMAL_RESIDUAL_: always double",
                                       "PRIMAL_DEVIATION_: always double",
                                       "ADJOINT_ITER_MIN_: always int",
                                       "ADJOINT_ITER_MAX_: always int",
                                       "ADJOINT_INTERVAL_: always int",
                                       "ADJOINT_DISC_: always string",
                                       "ADJOINT_DRIVER_: always string",
                                       "ADJOINT_CFL_: always int",
                                       "KEEP_INITIAL_: always string",
                                       "KEEP_ADJOINT_: always string",
                                       "SKIP_PRESSURE_SRC_: always string",
                                       "SKIP_TURBULENT_SRC_: always string",
                                     }));

  EXPECT_EQ(RowsOf("AS_SHAPE_SENS_"), Lines({
                                        "PATCH_ID_: always string",
                                        "ALGORITHM_: always enum of STEEPEST 67, FD_CHECK 70, MMA 77, CSA 80",
                                        "MATH_KERNEL_: always enum of INTERNAL 73, MKL 77",
                                        "MIN_: optional double",
                                        "MAX_: optional double",
                                        "MOVE_: always double",
                                        "SCALING_CURVE_TYPE_: always enum of LINEAR 73, LOG 76, CONVEX 88",
                                        "SCALING_CURVE_UPDATE_ID_: always string",
                                        "SCALING_CURVE_MIN_: always double",
                                        "SCALING_CURVE_MAX_: always double",
                                        "SCALING_CURVE_PENALISATION_: always double",
                                        "ASYM_MOVE_: always enum of CONSERVATIVE 67, ORIGINAL 79, CUSTOM 83",
                                        "ASYM_MOVE_LOW_: always double",
                                        "ASYM_MOVE_UP_: always double",
                                        "SUB_TOL_: always double",
                                        "FILTER_: repeated reference to FILTER_",
                                        "NORMAL_UPDATE_: always enum of INCREMENTAL 67, INITIAL 73, UPDATE 85",
                                        "DV_TYPE_: always enum of DEFAULT 68, SPECIFIC 83",
                                      }));
}

TEST(CommandSchema, ListsFlowPathsOutputAndCurves)
{
  EXPECT_EQ(RowsOf("FLOWPATHS_"), Lines({
                                    "IN_: repeated model id of 8",
                                    "OUT_: repeated model id of 8",
                                  }));

  EXPECT_EQ(RowsOf("OUTPUT_"),
            Lines({
              "FILENAME_: always string",
              "FORMAT_: always enum of CSV 67, ONF 79, VTFX_PLOT 80, VTK 86, WRL 87",
              "ITERATION_: always int list",
              "TYPE_: always enum of CONSTRAINT_DATA 67, SENSITIVITY_DATA 71, SHAPE_DATA 72, LEVELSET_DATA 76, "
              "MODEL 77, OPT_FUNC_DATA 79, CELL_SET 83, TOPO_DATA 84",
              "RESULT_: always enum of PTRACK 80, MATERIAL 83, VELOCITY 86",
              "SPREAD_ALGO_: always enum of ALL_PTRACKS 65, FASTEST_PTRACK 70, POST_PRIMARY 79, PRE_PRIMARY 82, "
              "PTRACK_SET 83",
              "CUTOFF_: optional double list",
              "BACKFLOW_ANGLE_: always int",
              "SPREAD_PERCENTAGE_: always double",
              "INVERT_: always enum of NO 70, YES 84",
              "DESIGN_ONLY_: always enum of NO 70, YES 84",
              "KEEP_POST_DATA_: always enum of NO 70, YES 84",
              "ELEMENT_GROUP_: always model id of 9",
            }));

  EXPECT_EQ(RowsOf("SCALING_CURVE_"), Lines({
                                        "TYPE_: always enum of HEAVYSIDE 72, LINEAR 73, LOG 76, SIN 83, CONVEX 88",
                                        "UPDATE_ID_: always string",
                                        "MIN_: always double",
                                        "MAX_: always double",
                                        "PENALISATION_: always double",
                                        "DATA_SHIFT_: always double",
                                      }));
}

TEST(CommandSchema, ListsSmoothing)
{
  EXPECT_EQ(RowsOf("SMOOTH_"),
            Lines({
              "PATCH_ID_: always string",
              "TASK_: always enum of ISO 73, SURFACE 83, VOLUME 86",
              "ALL_ITERATIONS_: always enum of NO 70, YES 84",
              "ISO_VALUE_: always double",
              "TARGET_VOLUME_: always double",
              "MODEL_FILE_: optional string",
              "RESULT_FILE_: always string",
              "ITERATION_: optional int list",
              "VTM_RESULT_: always enum of NO 70, YES 84",
              "OUTPUT_FILE_: optional string",
              "FORMAT_: repeated enum of ASCII_VTF 65, BDF 66, CDB 67, IGES1 73, IGES2 74, IGES3 75, ONF 79, "
              "INP 81, STL 83, OUT 84, UNCOMPRESSED_VTF 85, VTF 86, WRL 87, OBJ 88, BINARY_VTF 90",
              "STL_GROUPS_: always enum of NO 70, YES 84",
              "OUTPUT_SURFACE_: always enum of BOTH 66, NEW 78, ORIGINAL 79",
              "VTF_ORGMODEL_: always enum of NO 70, YES 84",
              "IGES_UNIT_: always enum of UM 65, MM 66, CM 67, M 68, KM 69, UIM 70, MI 71, I 72, FT 73, MIL 74",
              "SLICES_: always enum of NO 70, YES 84",
              "SLICE_X_: repeated double",
              "SLICE_Y_: repeated double",
              "SLICE_Z_: repeated double",
              "SLICE_PRIMARY_: always enum of NO 70, YES 84",
              "SLICE_NUMBER_: always int",
              "SLICE_DISTANCE_: always double",
              "SLICE_INTERSECTION_: always enum of NO 70, YES 84",
              "SLICE_REDUCTION_: always enum of NO 70, YES 84",
              "SLICE_RED_ANGLE_: always double",
              "SLICE_OFFSET_: always enum of NO 70, YES 84",
              "SLICE_REF_QUANT_: always int",
              "SLICE_REF_FACTOR_: always double",
              "SLICE_FILTER_CURVES_: always enum of NO 70, YES 84",
              "SLICE_FORMAT_: always enum of ASCII_POINTS 65, IGES_CURVES 67, CLI 76, IGES_POLYGON 80, ALL 88",
              "BORDER_: always enum of NO 70, YES 84",
              "BORDER_FORMAT_: always enum of ASCII_POINTS 65, IGES_CURVES 67, CLI 76, IGES_POLYGON 80, ALL 88",
              "GROUP_FILE_: always string",
              "EXCLUDE_GROUP_: repeated string",
              "INCLUDE_GROUP_: repeated string",
              "SURFACE_GROUP_: repeated string",
              "ND_GROUP_: optional string",
              "ISO_GROUP_NAME_: repeated string",
              "ISO_GROUP_VALUE_: repeated double",
              "VOL_GROUP_NAME_: repeated string",
              "VOL_GROUP_VALUE_: repeated double",
              "SMOOTH_CYCLES_: always int",
              "NO_SORT_: always enum of NO 70, YES 84",
              "MIN_DENS_WALL_: always double",
              "REDUCTION_: always enum of NO 70, YES 84",
              "REDUCTION_RATE_: always double",
              "REDUCTION_ANGLE_: always double",
              "MIN_ANGLE_: always double",
              "MIN_FACE_ANGLE_: always double",
              "SELF_INTERSECTION_: always enum of CHECK 67, ITERATIVE 73, OFF 79, RUNTIME 82",
              "ORIGINAL_SURFACE_TOLERANCE_VALUE_: optional double",
              "ORIGINAL_SURFACE_TOLERANCE_TYPE_: optional enum of ABS 65, REL 82",
              "MIXED_MESH_: always enum of NO 70, YES 84",
              "EXCLUDE_LOADED_: always enum of NO 70, YES 84",
              "ISO_SEQUENCE_: always enum of CONST 67, INCR 70",
              "O_SURF_SMOOTHING_: always enum of FULL 70, OFF 79, SHRINK 83",
              "RESULT_FILTERING_: always enum of FULL 70, MODERATE 77, OFF 79",
              "INPUT_SCALE_: always double",
              "COMPONENT_LIM_SIZE_: always double",
              "IF_SMOOTHING_: always enum of NO 70, YES 84",
              "IF_SMOOTH_FROZEN_: always enum of NO 70, YES 84",
              "IF_TOLERANCE_: always double",
              "IF_BORDER_CYCLES_: always int",
              "IF_INNER_CYCLES_: always int",
              "SHRINKAGE_CORRECTION_: always enum of NO 70, YES 84",
              "LAPLACE_ALPHA_: always double",
              "LAPLACE_BETA_: always double",
              "WALL_TOLERANCE_: always double",
            }));
}
