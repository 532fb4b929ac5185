/// \file
/// The constants behind command_schema.h, which is the header to include.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/command_schema_types.h"

namespace orvel::schema::data
{

namespace gyre_commands
{

inline constexpr Enumerator design_variable_type[] = {
  {"AUTO", 65},
  {"DENSITY", 68},
  {"DETACHED", 69},
  {"NODAL", 78},
  {"NODAL_VECTOR", 86}};

inline constexpr Enumerator response_type[] = {
  {"DISP_ABS", 8},
  {"ROT_ABS", 9},
  {"ROT_X", 11},
  {"ROT_Y", 13},
  {"ROT_Z", 15},
  {"DISP_X", 17},
  {"DISP_Y", 19},
  {"DISP_Z", 21},
  {"DYN_FREQ", 26},
  {"ENERGY_STIFF_MEASURE", 29},
  {"INTERNAL_FORCE_ABS", 60},
  {"INTERNAL_FORCE_X", 62},
  {"INTERNAL_FORCE_Y", 64},
  {"INTERNAL_FORCE_Z", 66},
  {"INTERNAL_MOMENT_ABS", 68},
  {"INTERNAL_MOMENT_X", 70},
  {"INTERNAL_MOMENT_Y", 72},
  {"INTERNAL_MOMENT_Z", 74},
  {"REACTION_FORCE_ABS", 87},
  {"REACTION_FORCE_X", 89},
  {"REACTION_FORCE_Y", 91},
  {"REACTION_FORCE_Z", 93},
  {"REACTION_MOMENT_ABS", 95},
  {"REACTION_MOMENT_X", 97},
  {"REACTION_MOMENT_Y", 99},
  {"REACTION_MOMENT_Z", 101},
  {"SENSITIVITY_ONF", 106},
  {"VOLUME", 146},
  {"CUSTOM", 1000},
  {"PRESSURE_DROP", 1001},
  {"UNIFORMITY", 1002},
  {"SWIRL", 1003},
  {"TUMBLE", 1004},
  {"BACKFLOW", 1005}};

inline constexpr Enumerator update_type[] = {
  {"CALCULATED", 67},
  {"RECEIVED", 82}};

inline constexpr Enumerator operator_type[] = {
  {"P_MEAN_NORM", 77},
  {"P_NORM", 80},
  {"WEIGHTED_SUM", 87},
  {"MAX", 88},
  {"P_MEAN_NORM_C", 109},
  {"P_NORM_C", 112}};

inline constexpr Enumerator sensitivity_scaling[] = {
  {"NONE", 78},
  {"NORMED_TO_ONE", 79},
  {"SCALED", 83}};

inline constexpr Enumerator objective_target[] = {
  {"MIN", 77}};

inline constexpr Enumerator constraint_magnitude[] = {
  {"ABS", 65},
  {"REL", 82},
  {"REL_VALUE", 86}};

inline constexpr Enumerator constraint_side[] = {
  {"GREATER_EQUAL", 71},
  {"LESS_EQUAL", 76}};

inline constexpr Enumerator coordinate_system_type[] = {
  {"CYLINDRICAL", 67},
  {"CARTESIAN", 82},
  {"SPHERICAL", 83}};

inline constexpr Enumerator design_restriction[] = {
  {"STAMP", 65},
  {"LSF_INIT", 66},
  {"CYCLIC_SYMMETRY", 67},
  {"DUMMY", 68},
  {"DEMOLD", 69},
  {"FILE", 70},
  {"SCALING_CURVE", 71},
  {"FILTER", 73},
  {"PLANE_LINK", 76},
  {"MEMBERSIZE", 77},
  {"LSF_SCALING", 78},
  {"OPT_DIR", 79},
  {"PLANE_SYMMETRY", 80},
  {"SURF_DIR_SMOOTH", 83},
  {"TRANSITION", 84},
  {"LEVELSET", 86},
  {"CYCLIC_PLANE_SYMMETRY", 89}};

inline constexpr Enumerator start_feasibility[] = {
  {"FEASIBLE", 70},
  {"INFEASIBLE", 73}};

inline constexpr Enumerator no_yes_by_initial[] = {
  {"NO", 78},
  {"YES", 89}};

inline constexpr Enumerator restriction_filter[] = {
  {"PROB_DENS", 80},
  {"SIGMUND", 83}};

inline constexpr Enumerator member_size_bound[] = {
  {"MAX", 65},
  {"MIN", 73}};

inline constexpr Enumerator aggregation_method[] = {
  {"PN", 65},
  {"PMN", 66},
  {"KS", 67},
  {"SOFTMAX", 68},
  {"NONE", 78},
  {"PN_C", 97},
  {"PMN_C", 98}};

inline constexpr Enumerator degree_of_freedom[] = {
  {"FREE", 69},
  {"FIX", 88}};

inline constexpr Enumerator blocking_check_side[] = {
  {"BOTH", 66},
  {"NEG", 78},
  {"POS", 80}};

inline constexpr Enumerator mid_plane[] = {
  {"POINT", 80},
  {"NONE", 95}};

inline constexpr Enumerator strategy[] = {
  {"STRUCTURE_TOPO_SENS", 65},
  {"TOPO_OC", 79},
  {"SHAPE_SENS", 83},
  {"TOPO_SENS", 84}};

inline constexpr Enumerator no_yes[] = {
  {"NO", 70},
  {"YES", 84}};

inline constexpr Enumerator mesh_smooth_method[] = {
  {"CONSTRAINED_LAPLACIAN", 67},
  {"RESTRICT_DOF", 68},
  {"LAPLACE", 76},
  {"NONE", 78},
  {"CHECK_PENETRATION", 80},
  {"RESTRICT_NODES_ON_PLANE", 82},
  {"TRANSITION", 84},
  {"TUM", 85}};

inline constexpr Enumerator filter_method[] = {
  {"DA_NORMAL", 65},
  {"BOUNDARY", 66},
  {"BD_TRANSITION", 67},
  {"DEMOLD", 68},
  {"SIGMUND", 69},
  {"SIGMUND_SURFACE", 70},
  {"MAXIMUM_MEMBER", 77},
  {"MEDIAN", 78},
  {"DA_PLANE_NORMAL", 80},
  {"SYMMETRY", 83},
  {"DISTANCE_TO_BORDER", 100}};

inline constexpr Enumerator settings_curve_type[] = {
  {"LINEAR", 73},
  {"LOG", 76},
  {"CONVEX", 88}};

inline constexpr Enumerator topology_algorithm[] = {
  {"STEEPEST", 67},
  {"MMA", 77},
  {"CSA", 80}};

inline constexpr Enumerator math_kernel[] = {
  {"INTERNAL", 73},
  {"MKL", 77}};

inline constexpr Enumerator asymmetric_move[] = {
  {"CONSERVATIVE", 67},
  {"ORIGINAL", 79},
  {"CUSTOM", 83}};

inline constexpr Enumerator shape_algorithm[] = {
  {"STEEPEST", 67},
  {"FD_CHECK", 70},
  {"MMA", 77},
  {"CSA", 80}};

inline constexpr Enumerator normal_update[] = {
  {"INCREMENTAL", 67},
  {"INITIAL", 73},
  {"UPDATE", 85}};

inline constexpr Enumerator shape_variable_type[] = {
  {"DEFAULT", 68},
  {"SPECIFIC", 83}};

inline constexpr Enumerator output_format[] = {
  {"CSV", 67},
  {"ONF", 79},
  {"VTFX_PLOT", 80},
  {"VTK", 86},
  {"WRL", 87}};

inline constexpr Enumerator output_data[] = {
  {"CONSTRAINT_DATA", 67},
  {"SENSITIVITY_DATA", 71},
  {"SHAPE_DATA", 72},
  {"LEVELSET_DATA", 76},
  {"MODEL", 77},
  {"OPT_FUNC_DATA", 79},
  {"CELL_SET", 83},
  {"TOPO_DATA", 84}};

inline constexpr Enumerator output_result[] = {
  {"PTRACK", 80},
  {"MATERIAL", 83},
  {"VELOCITY", 86}};

inline constexpr Enumerator spread_algorithm[] = {
  {"ALL_PTRACKS", 65},
  {"FASTEST_PTRACK", 70},
  {"POST_PRIMARY", 79},
  {"PRE_PRIMARY", 82},
  {"PTRACK_SET", 83}};

inline constexpr Enumerator scaling_curve_type[] = {
  {"HEAVYSIDE", 72},
  {"LINEAR", 73},
  {"LOG", 76},
  {"SIN", 83},
  {"CONVEX", 88}};

}  // namespace gyre_commands

namespace smooth_commands
{

inline constexpr Enumerator task[] = {
  {"ISO", 73},
  {"SURFACE", 83},
  {"VOLUME", 86}};

inline constexpr Enumerator no_yes[] = {
  {"NO", 70},
  {"YES", 84}};

inline constexpr Enumerator surface_format[] = {
  {"ASCII_VTF", 65},
  {"BDF", 66},
  {"CDB", 67},
  {"IGES1", 73},
  {"IGES2", 74},
  {"IGES3", 75},
  {"ONF", 79},
  {"INP", 81},
  {"STL", 83},
  {"OUT", 84},
  {"UNCOMPRESSED_VTF", 85},
  {"VTF", 86},
  {"WRL", 87},
  {"OBJ", 88},
  {"BINARY_VTF", 90}};

inline constexpr Enumerator output_surface[] = {
  {"BOTH", 66},
  {"NEW", 78},
  {"ORIGINAL", 79}};

inline constexpr Enumerator iges_unit[] = {
  {"UM", 65},
  {"MM", 66},
  {"CM", 67},
  {"M", 68},
  {"KM", 69},
  {"UIM", 70},
  {"MI", 71},
  {"I", 72},
  {"FT", 73},
  {"MIL", 74}};

inline constexpr Enumerator curve_format[] = {
  {"ASCII_POINTS", 65},
  {"IGES_CURVES", 67},
  {"CLI", 76},
  {"IGES_POLYGON", 80},
  {"ALL", 88}};

inline constexpr Enumerator self_intersection[] = {
  {"CHECK", 67},
  {"ITERATIVE", 73},
  {"OFF", 79},
  {"RUNTIME", 82}};

inline constexpr Enumerator tolerance_type[] = {
  {"ABS", 65},
  {"REL", 82}};

inline constexpr Enumerator iso_sequence[] = {
  {"CONST", 67},
  {"INCR", 70}};

inline constexpr Enumerator original_surface_smoothing[] = {
  {"FULL", 70},
  {"OFF", 79},
  {"SHRINK", 83}};

inline constexpr Enumerator result_filtering[] = {
  {"FULL", 70},
  {"MODERATE", 77},
  {"OFF", 79}};

}  // namespace smooth_commands

inline constexpr Field fields_of_MODEL_[] = {
  {"FILE_", vtmString, Presence::Always, {}, std::nullopt, {},
   "File that holds the model."},
  {"SOLVER_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "Solver that the model belongs to."},
};

inline constexpr Field fields_of_ELEMENT_GROUP_[] = {
  {"LIST_", vtmIntegerList, Presence::Optional, {}, std::nullopt, {},
   "Numbers of the elements that are listed one by one."},
  {"MERGE_", vtmModelId, Presence::Repeated, {}, KLV_IdType::element_group, {},
   "Element groups of the model that take part by merge."},
  {"INTERSECT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::element_group, {},
   "Element groups of the model that take part by intersection."},
  {"XOR_", vtmModelId, Presence::Repeated, {}, KLV_IdType::element_group, {},
   "Element groups of the model that take part by exclusive or."},
  {"SUBTRACT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::element_group, {},
   "Element groups of the model that are subtracted."},
};

inline constexpr Field fields_of_FACE_GROUP_[] = {
  {"LIST_", vtmIntegerList, Presence::Optional, {}, std::nullopt, {},
   "Numbers of the faces that are listed one by one."},
  {"MERGE_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model that take part by merge."},
  {"INTERSECT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model that take part by intersection."},
  {"XOR_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model that take part by exclusive or."},
  {"SUBTRACT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model that are subtracted."},
};

inline constexpr Field fields_of_NODE_GROUP_[] = {
  {"LIST_", vtmIntegerList, Presence::Optional, {}, std::nullopt, {},
   "Numbers of the nodes that are listed one by one."},
  {"MERGE_", vtmModelId, Presence::Repeated, {}, KLV_IdType::node_group, {},
   "Node groups of the model that take part by merge."},
  {"INTERSECT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::node_group, {},
   "Node groups of the model that take part by intersection."},
  {"XOR_", vtmModelId, Presence::Repeated, {}, KLV_IdType::node_group, {},
   "Node groups of the model that take part by exclusive or."},
  {"SUBTRACT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::node_group, {},
   "Node groups of the model that are subtracted."},
};

inline constexpr Field fields_of_DV_[] = {
  {"ELEMENT_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::element_group, {},
   "Elements whose values the optimization changes, such as their densities."},
  {"NODE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes whose values the optimization changes, such as their positions."},
  {"INITIAL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Start value of every variable."},
  {"INITIAL_DV_FIELD_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "Field of start values, as plain text that is not checked against the model."},
  {"FILTER_", vtmReference, Presence::Repeated, "FILTER_", std::nullopt, {},
   "Filters that act on the variable, in order."},
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::design_variable_type,
   "What one variable stands for."},
  {"DV_", vtmReference, Presence::Repeated, "DV_", std::nullopt, {},
   "Design variables that this one merges; empty unless it stands for several."},
};

inline constexpr Field fields_of_DRESP_[] = {
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::response_type,
   "Quantity of the analysis, such as a pressure drop, a swirl, a displacement or the volume."},
  {"UPDATE_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::update_type,
   "Whether the value is calculated or received."},
  {"UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the value is updated, as plain text that is not checked against the model."},
  {"UPDATE_INDEX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Index that goes with the name under which the value is updated."},
  {"FACE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::face_group, {},
   "Faces on which the response is taken."},
  {"FACE_GROUP_ADD_", vtmModelId, Presence::Optional, {}, KLV_IdType::face_group, {},
   "Second group of faces on which the response is taken."},
  {"ELEMENT_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::element_group, {},
   "Elements on which the response is taken."},
  {"NODE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes on which the response is taken."},
  {"WRITE_INTERVAL_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Interval of writing in the run that computes the response."},
  {"LOADCASE_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of the load case on which the response is taken."},
  {"ITER_MAX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Most iterations of the run that computes the response."},
  {"ITER_MIN_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Fewest iterations of the run that computes the response; not compared with the most."},
  {"RESIDUAL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual limit of the run that computes the response."},
  {"ADJOINT_RESIDUAL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual limit of the adjoint run."},
  {"ADJOINT_DEVIATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Deviation limit of the adjoint run."},
  {"OBJECTIVE_DEVIATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Deviation limit of the objective."},
  {"DV_CONSTRAINT_", vtmReference, Presence::Optional, "DV_CONSTRAINT_", std::nullopt, {},
   "Restriction on the design variables that belongs to the response."},
  {"FILE_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "File that belongs to the response."},
  {"CS_REF_", vtmModelId, Presence::Optional, {}, KLV_IdType::coordinate_system, {},
   "Coordinate system of the model for the response, not one defined in the parameter file."},
};

inline constexpr Field fields_of_OPERATOR_[] = {
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::operator_type,
   "How the terms are combined: as a weighted sum, a norm or a maximum."},
  {"UPDATE_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::update_type,
   "Whether the value is calculated or received."},
  {"UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the value is updated, as plain text that is not checked against the model."},
  {"UPDATE_INDEX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Index that goes with the name under which the value is updated."},
  {"DRESP_", vtmReference, Presence::Repeated, "DRESP_", std::nullopt, {},
   "Responses that are combined."},
  {"DRESP_WEIGHT_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Weights of the responses, in the same order; the two counts are not compared."},
  {"OPERATOR_", vtmReference, Presence::Repeated, "OPERATOR_", std::nullopt, {},
   "Operators that are combined, so that operators form a tree; cycles are not looked for."},
  {"OPERATOR_WEIGHT_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Weights of the operators, in the same order; the two counts are not compared."},
  {"FACTOR_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Factor that scales the combined value."},
};

inline constexpr Field fields_of_OBJ_FUNC_[] = {
  {"DRESP_", vtmReference, Presence::Optional, "DRESP_", std::nullopt, {},
   "Response to minimise."},
  {"OPERATOR_", vtmReference, Presence::Optional, "OPERATOR_", std::nullopt, {},
   "Operator to minimise in place of a response."},
  {"TARGET_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::objective_target,
   "Direction of the optimization; an objective is always minimised."},
  {"SENSSCALING_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::sensitivity_scaling,
   "How the sensitivities of the objective are scaled."},
  {"SENSSCALING_VALUE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Value that goes with the scaling of the sensitivities."},
  {"FILTER_", vtmReference, Presence::Repeated, "FILTER_", std::nullopt, {},
   "Filters that act on the sensitivities, in order."},
};

inline constexpr Field fields_of_CONSTRAINT_[] = {
  {"DRESP_", vtmReference, Presence::Optional, "DRESP_", std::nullopt, {},
   "Response that is bounded."},
  {"OPERATOR_", vtmReference, Presence::Optional, "OPERATOR_", std::nullopt, {},
   "Operator that is bounded in place of a response."},
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::constraint_side,
   "Whether the bound is an upper or a lower one."},
  {"MAGNITUDE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::constraint_magnitude,
   "Whether the bound is an absolute or a relative value."},
  {"VALUE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Bound of the constraint, absolute or relative as its magnitude says."},
  {"COEFFICIENT_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Coefficient of the constraint, handed on to the optimizer unread."},
  {"A_MINMAX_COEFFICIENT_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Coefficient a of a min-max formulation, handed on to the optimizer unread."},
  {"SENSSCALING_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::sensitivity_scaling,
   "How the sensitivities of the constraint are scaled."},
  {"SENSSCALING_VALUE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Value that goes with the scaling of the sensitivities."},
  {"FILTER_", vtmReference, Presence::Repeated, "FILTER_", std::nullopt, {},
   "Filters that act on the sensitivities, in order."},
};

inline constexpr Field fields_of_CS_[] = {
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::coordinate_system_type,
   "Whether the coordinates are Cartesian, cylindrical or spherical."},
  {"X_ORIGIN_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X coordinate of the origin, 0 if left out."},
  {"Y_ORIGIN_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y coordinate of the origin, 0 if left out."},
  {"Z_ORIGIN_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z coordinate of the origin, 0 if left out."},
  {"X_VEC1_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "X component of the first axis vector."},
  {"Y_VEC1_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Y component of the first axis vector."},
  {"Z_VEC1_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Z component of the first axis vector."},
  {"X_VEC2_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "X component of the second axis vector."},
  {"Y_VEC2_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Y component of the second axis vector."},
  {"Z_VEC2_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Z component of the second axis vector."},
  {"X_VEC3_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "X component of the third axis vector."},
  {"Y_VEC3_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Y component of the third axis vector."},
  {"Z_VEC3_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Z component of the third axis vector."},
};

inline constexpr Field fields_of_DV_CONSTRAINT_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"DVC_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::design_restriction,
   "Which restriction this is; many of the other keys mean something only for some of them."},
  {"NODE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes that the restriction acts on."},
  {"CHECK_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes that the restriction checks."},
  {"REFERENCE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes that the restriction takes as its reference."},
  {"ELEMENT_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::element_group, {},
   "Elements that the restriction acts on."},
  {"X_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X coordinate of the point of the restriction."},
  {"Y_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y coordinate of the point of the restriction."},
  {"Z_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z coordinate of the point of the restriction."},
  {"X_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X component of the direction of the restriction."},
  {"Y_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y component of the direction of the restriction."},
  {"Z_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z component of the direction of the restriction."},
  {"X_START_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X component of the start direction of the restriction."},
  {"Y_START_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y component of the start direction of the restriction."},
  {"Z_START_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z component of the start direction of the restriction."},
  {"ANGLE_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Angle of the restriction, handed on without conversion."},
  {"FEASIBLE_START_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::start_feasibility,
   "Whether the start is a feasible or an infeasible one."},
  {"SAVE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes_by_initial,
   "Switch for saving, handed on unread."},
  {"DUMPOPTVALUES_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes_by_initial,
   "Switch for dumping the values of the optimization."},
  {"RADIUS_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Radius of the restriction."},
  {"FILTER_TYPE_", vtmEnum, Presence::Optional, {}, std::nullopt, gyre_commands::restriction_filter,
   "Kind of filter, for a restriction that filters."},
  {"MEMBERSIZE_TYPE_", vtmEnum, Presence::Optional, {}, std::nullopt, gyre_commands::member_size_bound,
   "Whether a member size is a largest or a smallest one."},
  {"AGGREGATION_METHOD_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::aggregation_method,
   "How many constraints are aggregated into few, such as by a norm or a soft maximum."},
  {"AGGREGATION_PARAMETER_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter of the aggregation, such as the exponent of a norm."},
  {"AGGREGATION_NUM_CONSTRAINTS_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of constraints of the aggregation; its sign is not checked."},
  {"CS_", vtmReference, Presence::Optional, "CS_", std::nullopt, {},
   "Coordinate system in which the restriction is told."},
  {"X_DOF_", vtmEnum, Presence::Optional, {}, std::nullopt, gyre_commands::degree_of_freedom,
   "Whether the degree of freedom in X is free or fixed."},
  {"Y_DOF_", vtmEnum, Presence::Optional, {}, std::nullopt, gyre_commands::degree_of_freedom,
   "Whether the degree of freedom in Y is free or fixed."},
  {"Z_DOF_", vtmEnum, Presence::Optional, {}, std::nullopt, gyre_commands::degree_of_freedom,
   "Whether the degree of freedom in Z is free or fixed."},
  {"CHECK_ELGR_BLOCKING_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::blocking_check_side,
   "Side on which blocking by the element group is checked: negative, positive or both."},
  {"TOLERANCE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Tolerance of the restriction; no range is checked."},
  {"SCALING_CURVE_", vtmReference, Presence::Optional, "SCALING_CURVE_", std::nullopt, {},
   "Scaling curve of the restriction."},
  {"MID_PLANE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::mid_plane,
   "How a mid plane is given: by the point or not at all."},
};

inline constexpr Field fields_of_MONITOR_[] = {
  {"DRESP_", vtmReference, Presence::Always, "DRESP_", std::nullopt, {},
   "Response to watch."},
};

inline constexpr Field fields_of_ALGO_[] = {
  {"STRATEGY_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::strategy,
   "Strategy of the run: topology or shape optimization, by sensitivities or optimality criteria."},
  {"DV_", vtmReference, Presence::Always, "DV_", std::nullopt, {},
   "Design variable of the job; the merged one where a job names several."},
  {"OBJ_FUNC_", vtmReference, Presence::Always, "OBJ_FUNC_", std::nullopt, {},
   "Objective of the job."},
  {"CONSTRAINT_", vtmReference, Presence::Repeated, "CONSTRAINT_", std::nullopt, {},
   "Constraints of the job, in order."},
  {"DV_CONSTRAINT_", vtmReference, Presence::Repeated, "DV_CONSTRAINT_", std::nullopt, {},
   "Restrictions on the design variables, in order."},
  {"OPT_PARAM_", vtmReference, Presence::Always, "OPT_PARAM_", std::nullopt, {},
   "General parameters of the optimization."},
  {"STOP_", vtmReference, Presence::Always, "STOP_", std::nullopt, {},
   "Criteria that end the optimization."},
  {"PRE_PARAM_", vtmReference, Presence::Always, "PRE_PARAM_", std::nullopt, {},
   "Parameters of the pre-processing."},
  {"MESH_SMOOTH_", vtmReference, Presence::Repeated, "MESH_SMOOTH_", std::nullopt, {},
   "Smoothings of the mesh, in order."},
  {"MONITOR_", vtmReference, Presence::Repeated, "MONITOR_", std::nullopt, {},
   "Monitors of the run, in order."},
  {"AS_TOPO_OC_", vtmReference, Presence::Always, "AS_TOPO_OC_", std::nullopt, {},
   "Settings for topology optimization by optimality criteria; present with every strategy."},
  {"AS_TOPO_SENS_", vtmReference, Presence::Always, "AS_TOPO_SENS_", std::nullopt, {},
   "Settings for topology optimization by sensitivities; present with every strategy."},
  {"AS_SHAPE_SENS_", vtmReference, Presence::Always, "AS_SHAPE_SENS_", std::nullopt, {},
   "Settings for shape optimization by sensitivities; present with every strategy."},
  {"DEVELOPER_OUTPUT_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for output that is meant for developers."},
};

inline constexpr Field fields_of_OPT_PARAM_[] = {
  {"STORE_INT_", vtmIntegerList, Presence::Optional, {}, std::nullopt, {},
   "Integers of the store setting, read in one piece and handed on unread."},
  {"OPT_START_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Start of the optimization, a whole number that is handed on unread."},
  {"SRC_SCALE_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Scale of the source terms, handed on to the solver unread."},
};

inline constexpr Field fields_of_STOP_[] = {
  {"ITER_MAX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Most iterations of the optimization."},
  {"ITER_MIN_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Fewest iterations of the optimization; not compared with the most."},
  {"RESIDUAL_OBJ_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual of the objective at which the optimization ends."},
  {"RESIDUAL_DV_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual of the design variables at which the optimization ends."},
};

inline constexpr Field fields_of_MESH_SMOOTH_[] = {
  {"METHOD_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::mesh_smooth_method,
   "How the mesh is smoothed or its nodes are restricted."},
  {"CYCLE_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Cycle of the smoothing, a whole number; how many cycles are run is a key of its own."},
  {"FACE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::face_group, {},
   "Faces that the smoothing acts on."},
  {"NODE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes that the smoothing acts on."},
  {"ELEMENT_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::element_group, {},
   "Elements that the smoothing acts on."},
  {"SMOOTH_CYCLES_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of smoothing cycles."},
  {"ALPHA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter alpha of the method."},
  {"BETA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter beta of the method."},
  {"FILTER_", vtmReference, Presence::Optional, "FILTER_", std::nullopt, {},
   "Filter that belongs to the smoothing."},
  {"DV_CONSTRAINT_", vtmReference, Presence::Optional, "DV_CONSTRAINT_", std::nullopt, {},
   "Restriction on the design variables that belongs to the smoothing."},
};

inline constexpr Field fields_of_FILTER_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"METHOD_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::filter_method,
   "Method of the filter, such as a Sigmund filter, a symmetry or a demolding."},
  {"RADIUS_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Radius of the filter; no range is checked."},
  {"X_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X component of the direction of the filter."},
  {"Y_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y component of the direction of the filter."},
  {"Z_DIRECTION_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z component of the direction of the filter."},
  {"X_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "X coordinate of the point of the filter."},
  {"Y_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Y coordinate of the point of the filter."},
  {"Z_POINT_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Z coordinate of the point of the filter."},
  {"FACE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::face_group, {},
   "Faces that the filter acts on."},
  {"NODE_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::node_group, {},
   "Nodes that the filter acts on."},
  {"ELEMENT_GROUP_", vtmModelId, Presence::Optional, {}, KLV_IdType::element_group, {},
   "Elements that the filter acts on."},
  {"ALPHA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter alpha of the method."},
  {"BETA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter beta of the method."},
};

inline constexpr Field fields_of_PRE_PARAM_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"VISCOSITY_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Viscosity of the fluid, handed on without conversion."},
  {"RESIDUAL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual limit of the pre-processing."},
  {"ITER_MAX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Most iterations of the pre-processing."},
  {"BACKFLOW_ANGLE_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Angle for judging backflow, a whole number that is handed on without conversion."},
  {"PTRACK_PRI_VRML_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for the PRI file of the tracks in VRML, handed on unread."},
  {"PTRACK_VAL_VRML_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for the VAL file of the tracks in VRML, handed on unread."},
  {"REF_VRML_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for the reference file in VRML, handed on unread."},
  {"PTRACK_KEEP_INVALID_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for keeping invalid tracks."},
  {"PTRACK_VRML_ADD_BOUNDS_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for adding the bounds to the VRML file of the tracks."},
};

inline constexpr Field fields_of_AS_TOPO_OC_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"BT_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter bt of the algorithm, handed on unread."},
  {"TA_MIN_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the parameter ta of the algorithm, handed on unread."},
  {"TA_MAX_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper limit of the parameter ta of the algorithm, handed on unread."},
  {"SCALING_CURVE_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::settings_curve_type,
   "Form of the scaling curve."},
  {"SCALING_CURVE_UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the scaling curve is updated, as plain text."},
  {"SCALING_CURVE_MIN_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the scaling curve."},
  {"SCALING_CURVE_MAX_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper limit of the scaling curve."},
  {"SCALING_CURVE_PENALISATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Penalisation of the scaling curve; no range is checked."},
};

inline constexpr Field fields_of_AS_TOPO_SENS_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"ALGORITHM_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::topology_algorithm,
   "Optimizer that updates the design variables."},
  {"MATH_KERNEL_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::math_kernel,
   "Mathematical kernel of the optimizer: the internal one or MKL."},
  {"MIN_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Lower bound of the design variables."},
  {"MAX_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Upper bound of the design variables."},
  {"MOVE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Move limit of the design variables for one update."},
  {"SCALING_CURVE_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::settings_curve_type,
   "Form of the scaling curve."},
  {"SCALING_CURVE_UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the scaling curve is updated, as plain text."},
  {"SCALING_CURVE_MIN_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the scaling curve."},
  {"SCALING_CURVE_MAX_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper limit of the scaling curve."},
  {"SCALING_CURVE_PENALISATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Penalisation of the scaling curve; no range is checked."},
  {"ASYM_MOVE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::asymmetric_move,
   "Kind of the asymmetric move limits: original, conservative or custom ones."},
  {"ASYM_MOVE_LOW_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower asymmetric move limit."},
  {"ASYM_MOVE_UP_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper asymmetric move limit."},
  {"SUB_TOL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Tolerance of the subproblem, handed on to the optimizer unread."},
  {"PRIMAL_ITER_MIN_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Fewest iterations of the primal run; not compared with the most."},
  {"PRIMAL_ITER_MAX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Most iterations of the primal run."},
  {"PRIMAL_INTERVAL_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Interval of the primal run, a whole number that is handed on to the solver unread."},
  {"PRIMAL_RESIDUAL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Residual limit of the primal run."},
  {"PRIMAL_DEVIATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Deviation limit of the primal run."},
  {"ADJOINT_ITER_MIN_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Fewest iterations of the adjoint run; not compared with the most."},
  {"ADJOINT_ITER_MAX_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Most iterations of the adjoint run."},
  {"ADJOINT_INTERVAL_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Interval of the adjoint run, a whole number that is handed on to the solver unread."},
  {"ADJOINT_DISC_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Discretisation of the adjoint run, as text that is handed on to the solver unread."},
  {"ADJOINT_DRIVER_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Driver of the adjoint run, as text that is handed on to the solver unread."},
  {"ADJOINT_CFL_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "CFL number of the adjoint run, dimensionless and whole."},
  {"KEEP_INITIAL_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Whether the initial solution is kept, as text that is handed on to the solver unread."},
  {"KEEP_ADJOINT_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Whether the adjoint solution is kept, as text that is handed on to the solver unread."},
  {"SKIP_PRESSURE_SRC_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Whether the pressure source is skipped, as text that is handed on to the solver unread."},
  {"SKIP_TURBULENT_SRC_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Whether the turbulent source is skipped, as text that is handed on to the solver unread."},
};

inline constexpr Field fields_of_AS_SHAPE_SENS_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"ALGORITHM_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::shape_algorithm,
   "Optimizer that updates the design variables, or a check by finite differences."},
  {"MATH_KERNEL_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::math_kernel,
   "Mathematical kernel of the optimizer: the internal one or MKL."},
  {"MIN_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Lower bound of the design variables."},
  {"MAX_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Upper bound of the design variables."},
  {"MOVE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Move limit of the design variables for one update."},
  {"SCALING_CURVE_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::settings_curve_type,
   "Form of the scaling curve."},
  {"SCALING_CURVE_UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the scaling curve is updated, as plain text."},
  {"SCALING_CURVE_MIN_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the scaling curve."},
  {"SCALING_CURVE_MAX_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper limit of the scaling curve."},
  {"SCALING_CURVE_PENALISATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Penalisation of the scaling curve; no range is checked."},
  {"ASYM_MOVE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::asymmetric_move,
   "Kind of the asymmetric move limits: original, conservative or custom ones."},
  {"ASYM_MOVE_LOW_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower asymmetric move limit."},
  {"ASYM_MOVE_UP_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper asymmetric move limit."},
  {"SUB_TOL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Tolerance of the subproblem, handed on to the optimizer unread."},
  {"FILTER_", vtmReference, Presence::Repeated, "FILTER_", std::nullopt, {},
   "Filters of the shape optimization, in order."},
  {"NORMAL_UPDATE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::normal_update,
   "How surface normals follow the shape: the initial ones, incremental or updated ones."},
  {"DV_TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::shape_variable_type,
   "Kind of the design variables: default or specific ones."},
};

inline constexpr Field fields_of_FLOWPATHS_[] = {
  {"IN_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model where the flow enters."},
  {"OUT_", vtmModelId, Presence::Repeated, {}, KLV_IdType::face_group, {},
   "Face groups of the model where the flow leaves."},
};

inline constexpr Field fields_of_OUTPUT_[] = {
  {"FILENAME_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name of the file that is written."},
  {"FORMAT_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::output_format,
   "Format of the file."},
  {"ITERATION_", vtmIntegerList, Presence::Always, {}, std::nullopt, {},
   "Iterations at which to write, read in one piece."},
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::output_data,
   "Kind of data that is written."},
  {"RESULT_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::output_result,
   "Result that is written: tracks, material or velocity."},
  {"SPREAD_ALGO_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::spread_algorithm,
   "Algorithm of the spread, named by the tracks that it takes."},
  {"CUTOFF_", vtmDoubleList, Presence::Optional, {}, std::nullopt, {},
   "Values of the cut-off, read in one piece and handed on unread."},
  {"BACKFLOW_ANGLE_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Angle for judging backflow, a whole number that is handed on without conversion."},
  {"SPREAD_PERCENTAGE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Percentage of the spread; no range is checked."},
  {"INVERT_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for inverting what is written."},
  {"DESIGN_ONLY_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for writing the design space alone."},
  {"KEEP_POST_DATA_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::no_yes,
   "Switch for keeping the data of the post-processing."},
  {"ELEMENT_GROUP_", vtmModelId, Presence::Always, {}, KLV_IdType::element_group, {},
   "Elements that are written; the name is checked against the model even if it is empty."},
};

inline constexpr Field fields_of_SCALING_CURVE_[] = {
  {"TYPE_", vtmEnum, Presence::Always, {}, std::nullopt, gyre_commands::scaling_curve_type,
   "Form of the curve."},
  {"UPDATE_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Name under which the curve is updated, as plain text."},
  {"MIN_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the curve."},
  {"MAX_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Upper limit of the curve."},
  {"PENALISATION_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Penalisation of the curve; no range is checked."},
  {"DATA_SHIFT_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Shift of the data of the curve."},
};

inline constexpr Field fields_of_SMOOTH_[] = {
  {"PATCH_ID_", vtmString, Presence::Always, {}, std::nullopt, {},
   "Patch id, as plain text that is handed on unread and not checked against the model."},
  {"TASK_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::task,
   "What the job makes: an iso surface, a surface or a volume."},
  {"ALL_ITERATIONS_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for working on all iterations of the result."},
  {"ISO_VALUE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Iso value at which the surface is cut from the result; no range is checked."},
  {"TARGET_VOLUME_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Volume to reach, in place of an iso value; no range is checked."},
  {"MODEL_FILE_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "File that holds the model."},
  {"RESULT_FILE_", vtmString, Presence::Always, {}, std::nullopt, {},
   "File that holds the result of the optimization."},
  {"ITERATION_", vtmIntegerList, Presence::Optional, {}, std::nullopt, {},
   "Iterations to work from, read in one piece."},
  {"VTM_RESULT_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for a result in the VTM form, handed on unread."},
  {"OUTPUT_FILE_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "Name of the file that is written."},
  {"FORMAT_", vtmEnum, Presence::Repeated, {}, std::nullopt, smooth_commands::surface_format,
   "Formats in which the output is written."},
  {"STL_GROUPS_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for groups in the STL file."},
  {"OUTPUT_SURFACE_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::output_surface,
   "Which surface is written: the new one, the original one or both."},
  {"VTF_ORGMODEL_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for the original model in the VTF file."},
  {"IGES_UNIT_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::iges_unit,
   "Unit of length in the IGES file."},
  {"SLICES_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for slicing."},
  {"SLICE_X_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Positions of the slices along X."},
  {"SLICE_Y_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Positions of the slices along Y."},
  {"SLICE_Z_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Positions of the slices along Z."},
  {"SLICE_PRIMARY_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for primary slices, handed on unread."},
  {"SLICE_NUMBER_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of slices."},
  {"SLICE_DISTANCE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Distance between slices; no range is checked."},
  {"SLICE_INTERSECTION_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for intersections of the slices."},
  {"SLICE_REDUCTION_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for reducing the points of the slice curves."},
  {"SLICE_RED_ANGLE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Angle for reducing the slice curves, handed on without conversion."},
  {"SLICE_OFFSET_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for the offset of the slices."},
  {"SLICE_REF_QUANT_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Quantity of the slice refinement, a whole number that is handed on unread."},
  {"SLICE_REF_FACTOR_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Factor of the slice refinement, handed on unread."},
  {"SLICE_FILTER_CURVES_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for filtering the slice curves."},
  {"SLICE_FORMAT_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::curve_format,
   "Format in which the slices are written."},
  {"BORDER_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for extracting the border."},
  {"BORDER_FORMAT_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::curve_format,
   "Format in which the border is written."},
  {"GROUP_FILE_", vtmString, Presence::Always, {}, std::nullopt, {},
   "File that holds groups."},
  {"EXCLUDE_GROUP_", vtmString, Presence::Repeated, {}, std::nullopt, {},
   "Groups to exclude, as plain names that are not checked against the model."},
  {"INCLUDE_GROUP_", vtmString, Presence::Repeated, {}, std::nullopt, {},
   "Groups to include, as plain names that are not checked against the model."},
  {"SURFACE_GROUP_", vtmString, Presence::Repeated, {}, std::nullopt, {},
   "Groups of the surface, as plain names that are not checked against the model."},
  {"ND_GROUP_", vtmString, Presence::Optional, {}, std::nullopt, {},
   "Name of the ND group, as plain text that is not checked against the model."},
  {"ISO_GROUP_NAME_", vtmString, Presence::Repeated, {}, std::nullopt, {},
   "Groups with an iso value of their own, as plain names that are not checked against the model."},
  {"ISO_GROUP_VALUE_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Iso values of these groups, in the same order; the two counts are not compared."},
  {"VOL_GROUP_NAME_", vtmString, Presence::Repeated, {}, std::nullopt, {},
   "Groups with a volume of their own, as plain names that are not checked against the model."},
  {"VOL_GROUP_VALUE_", vtmDouble, Presence::Repeated, {}, std::nullopt, {},
   "Volumes of these groups, in the same order; the two counts are not compared."},
  {"SMOOTH_CYCLES_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of smoothing cycles."},
  {"NO_SORT_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch that turns sorting off."},
  {"MIN_DENS_WALL_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Lower limit of the density at a wall."},
  {"REDUCTION_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for reducing the number of surface faces."},
  {"REDUCTION_RATE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Rate of the reduction; no range is checked."},
  {"REDUCTION_ANGLE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Angle for the reduction, handed on without conversion."},
  {"MIN_ANGLE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Smallest angle, handed on without conversion."},
  {"MIN_FACE_ANGLE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Smallest face angle, handed on without conversion."},
  {"SELF_INTERSECTION_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::self_intersection,
   "How self-intersections of the surface are dealt with."},
  {"ORIGINAL_SURFACE_TOLERANCE_VALUE_", vtmDouble, Presence::Optional, {}, std::nullopt, {},
   "Tolerance of the original surface; independent of whether its type is given."},
  {"ORIGINAL_SURFACE_TOLERANCE_TYPE_", vtmEnum, Presence::Optional, {}, std::nullopt, smooth_commands::tolerance_type,
   "Whether the tolerance of the original surface is absolute or relative."},
  {"MIXED_MESH_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for a mesh of mixed elements."},
  {"EXCLUDE_LOADED_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for excluding what carries a load."},
  {"ISO_SEQUENCE_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::iso_sequence,
   "Whether the sequence of iso values is constant or incremental."},
  {"O_SURF_SMOOTHING_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::original_surface_smoothing,
   "How far the original surface is smoothed."},
  {"RESULT_FILTERING_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::result_filtering,
   "How far the result is filtered."},
  {"INPUT_SCALE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Scale of the input; no range is checked."},
  {"COMPONENT_LIM_SIZE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Limit size of a component; no range is checked."},
  {"IF_SMOOTHING_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for the IF smoothing, handed on unread."},
  {"IF_SMOOTH_FROZEN_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for the IF smoothing of frozen regions, handed on unread."},
  {"IF_TOLERANCE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Tolerance of the IF smoothing; no range is checked."},
  {"IF_BORDER_CYCLES_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of cycles at the border in the IF smoothing."},
  {"IF_INNER_CYCLES_", vtmInteger, Presence::Always, {}, std::nullopt, {},
   "Number of inner cycles in the IF smoothing."},
  {"SHRINKAGE_CORRECTION_", vtmEnum, Presence::Always, {}, std::nullopt, smooth_commands::no_yes,
   "Switch for correcting the shrinkage that smoothing causes."},
  {"LAPLACE_ALPHA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter alpha of the Laplace smoothing."},
  {"LAPLACE_BETA_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Parameter beta of the Laplace smoothing."},
  {"WALL_TOLERANCE_", vtmDouble, Presence::Always, {}, std::nullopt, {},
   "Tolerance at a wall; no range is checked."},
};

inline constexpr Command commands[] = {
  {"MODEL_", "MODEL_INPUT", Count::One, fields_of_MODEL_,
   "Model that the job works on: the file that holds it and the solver that it belongs to."},
  {"ELEMENT_GROUP_", "ELEMENT_GROUP", Count::Any, fields_of_ELEMENT_GROUP_,
   "Recipe for a group of elements: listed numbers and operations with other element groups."},
  {"FACE_GROUP_", "FACE_GROUP", Count::Any, fields_of_FACE_GROUP_,
   "Recipe for a group of faces: listed numbers and operations with other face groups."},
  {"NODE_GROUP_", "NODE_GROUP", Count::Any, fields_of_NODE_GROUP_,
   "Recipe for a group of nodes: listed numbers and operations with other node groups."},
  {"DV_", "DV", Count::Any, fields_of_DV_,
   "Design variable: the group whose values the optimization changes, its start value and its filters."},
  {"DRESP_", "DRESP", Count::Any, fields_of_DRESP_,
   "Design response: a quantity of the analysis to minimise, to constrain or merely to watch."},
  {"OPERATOR_", "OPERATOR", Count::Any, fields_of_OPERATOR_,
   "Operator: combines design responses and other operators, each with its weight, into one value."},
  {"OBJ_FUNC_", "OBJ_FUNC", Count::One, fields_of_OBJ_FUNC_,
   "Objective of the optimization: the response or operator to minimise, its scaling and its filters."},
  {"CONSTRAINT_", "CONSTRAINT", Count::Any, fields_of_CONSTRAINT_,
   "Constraint of the optimization: a bound on a response or an operator."},
  {"CS_", "CS", Count::Any, fields_of_CS_,
   "Coordinate system defined in the parameter file: a type, an origin and three axis vectors."},
  {"DV_CONSTRAINT_", "DV_CONSTRAINT", Count::Any, fields_of_DV_CONSTRAINT_,
   "Restriction on the design variables, such as a symmetry, a demolding direction or a member size."},
  {"MONITOR_", "MONITOR", Count::Any, fields_of_MONITOR_,
   "Monitor: one design response that is watched during the run."},
  {"ALGO_", "OPTIMIZE", Count::One, fields_of_ALGO_,
   "Optimization task: the strategy of the run and all commands that take part in it."},
  {"OPT_PARAM_", "OPT_PARAM", Count::Any, fields_of_OPT_PARAM_,
   "General parameters of the optimization."},
  {"STOP_", "STOP", Count::Any, fields_of_STOP_,
   "Criteria that end the optimization: limits of iterations and residuals."},
  {"MESH_SMOOTH_", "MESH_SMOOTH", Count::Any, fields_of_MESH_SMOOTH_,
   "Smoothing of the mesh during the run, on a group of faces, nodes or elements."},
  {"FILTER_", "FILTER", Count::Any, fields_of_FILTER_,
   "Filter that design variables or sensitivities pass through, on a group of the model."},
  {"PRE_PARAM_", "PRE_PARAM", Count::Any, fields_of_PRE_PARAM_,
   "Parameters of the pre-processing: fluid, limits of its run, backflow angle and switches for tracks."},
  {"AS_TOPO_OC_", "ALGO_SET_TOPO_OC", Count::Any, fields_of_AS_TOPO_OC_,
   "Settings for topology optimization by optimality criteria."},
  {"AS_TOPO_SENS_", "ALGO_SET_TOPO_SENS", Count::Any, fields_of_AS_TOPO_SENS_,
   "Settings for topology optimization by sensitivities: optimizer, move limits, primal and adjoint runs."},
  {"AS_SHAPE_SENS_", "ALGO_SET_SHAPE_SENS", Count::Any, fields_of_AS_SHAPE_SENS_,
   "Settings for shape optimization by sensitivities: optimizer, move limits, filters and normals."},
  {"FLOWPATHS_", "FLOWPATHS", Count::One, fields_of_FLOWPATHS_,
   "Flow paths of the fluid domain: the groups of faces where the flow enters and leaves."},
  {"OUTPUT_", "OUTPUT", Count::Any, fields_of_OUTPUT_,
   "What the job writes out: file, format, iterations and the kind of data and result."},
  {"SCALING_CURVE_", "SCALING_CURVE", Count::Any, fields_of_SCALING_CURVE_,
   "Scaling curve, to which a restriction on the design variables can refer."},
  {"SMOOTH_", "SMOOTH", Count::Any, fields_of_SMOOTH_,
   "Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it."},
};

}  // namespace orvel::schema::data
