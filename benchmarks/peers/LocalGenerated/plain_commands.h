/// \file
/// The commands of a job as plain structs, as a program would have them that does without the library. A key that may
/// be absent is an optional, a key of any number of values a vector. One thread at a time.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "peers/plain_link.h"

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace plain
{

struct Model;
struct ElementGroup;
struct FaceGroup;
struct NodeGroup;
struct Dv;
struct Dresp;
struct Operator;
struct ObjFunc;
struct Constraint;
struct Cs;
struct DvConstraint;
struct Monitor;
struct Algo;
struct OptParam;
struct Stop;
struct MeshSmooth;
struct Filter;
struct PreParam;
struct AsTopoOc;
struct AsTopoSens;
struct AsShapeSens;
struct Flowpaths;
struct Output;
struct ScalingCurve;
struct Smooth;

struct Model
{
  std::string id;
  std::string file;
  std::optional<std::string> solver;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("FILE_", file);
    keys.Optional("SOLVER_", solver);
  }
};

struct ElementGroup
{
  std::string id;
  std::optional<std::vector<int>> list;
  std::vector<std::string> merge;
  std::vector<std::string> intersect;
  std::vector<std::string> exclusive_or;
  std::vector<std::string> subtract;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("LIST_", list);
    keys.Repeated("MERGE_", merge);
    keys.Repeated("INTERSECT_", intersect);
    keys.Repeated("XOR_", exclusive_or);
    keys.Repeated("SUBTRACT_", subtract);
  }
};

struct FaceGroup
{
  std::string id;
  std::optional<std::vector<int>> list;
  std::vector<std::string> merge;
  std::vector<std::string> intersect;
  std::vector<std::string> exclusive_or;
  std::vector<std::string> subtract;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("LIST_", list);
    keys.Repeated("MERGE_", merge);
    keys.Repeated("INTERSECT_", intersect);
    keys.Repeated("XOR_", exclusive_or);
    keys.Repeated("SUBTRACT_", subtract);
  }
};

struct NodeGroup
{
  std::string id;
  std::optional<std::vector<int>> list;
  std::vector<std::string> merge;
  std::vector<std::string> intersect;
  std::vector<std::string> exclusive_or;
  std::vector<std::string> subtract;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("LIST_", list);
    keys.Repeated("MERGE_", merge);
    keys.Repeated("INTERSECT_", intersect);
    keys.Repeated("XOR_", exclusive_or);
    keys.Repeated("SUBTRACT_", subtract);
  }
};

struct Dv
{
  std::string id;
  std::optional<std::string> element_group;
  std::optional<std::string> node_group;
  double initial = 0.0;
  std::optional<std::string> initial_dv_field;
  std::vector<Link<Filter>> filter;
  int type = 0;
  std::vector<Link<Dv>> dv;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Optional("NODE_GROUP_", node_group);
    keys.Always("INITIAL_", initial);
    keys.Optional("INITIAL_DV_FIELD_", initial_dv_field);
    keys.Repeated("FILTER_", filter);
    keys.Always("TYPE_", type);
    keys.Repeated("DV_", dv);
  }
};

struct Dresp
{
  std::string id;
  int type = 0;
  int update_type = 0;
  std::string update_id;
  int update_index = 0;
  std::optional<std::string> face_group;
  std::optional<std::string> face_group_add;
  std::optional<std::string> element_group;
  std::optional<std::string> node_group;
  int write_interval = 0;
  int loadcase = 0;
  int iter_max = 0;
  int iter_min = 0;
  double residual = 0.0;
  double adjoint_residual = 0.0;
  double adjoint_deviation = 0.0;
  double objective_deviation = 0.0;
  std::optional<Link<DvConstraint>> dv_constraint;
  std::optional<std::string> file;
  std::optional<std::string> cs_ref;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("TYPE_", type);
    keys.Always("UPDATE_TYPE_", update_type);
    keys.Always("UPDATE_ID_", update_id);
    keys.Always("UPDATE_INDEX_", update_index);
    keys.Optional("FACE_GROUP_", face_group);
    keys.Optional("FACE_GROUP_ADD_", face_group_add);
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Optional("NODE_GROUP_", node_group);
    keys.Always("WRITE_INTERVAL_", write_interval);
    keys.Always("LOADCASE_", loadcase);
    keys.Always("ITER_MAX_", iter_max);
    keys.Always("ITER_MIN_", iter_min);
    keys.Always("RESIDUAL_", residual);
    keys.Always("ADJOINT_RESIDUAL_", adjoint_residual);
    keys.Always("ADJOINT_DEVIATION_", adjoint_deviation);
    keys.Always("OBJECTIVE_DEVIATION_", objective_deviation);
    keys.Optional("DV_CONSTRAINT_", dv_constraint);
    keys.Optional("FILE_", file);
    keys.Optional("CS_REF_", cs_ref);
  }
};

struct Operator
{
  std::string id;
  int type = 0;
  int update_type = 0;
  std::string update_id;
  int update_index = 0;
  std::vector<Link<Dresp>> dresp;
  std::vector<double> dresp_weight;
  std::vector<Link<Operator>> operators;
  std::vector<double> operator_weight;
  double factor = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("TYPE_", type);
    keys.Always("UPDATE_TYPE_", update_type);
    keys.Always("UPDATE_ID_", update_id);
    keys.Always("UPDATE_INDEX_", update_index);
    keys.Repeated("DRESP_", dresp);
    keys.Repeated("DRESP_WEIGHT_", dresp_weight);
    keys.Repeated("OPERATOR_", operators);
    keys.Repeated("OPERATOR_WEIGHT_", operator_weight);
    keys.Always("FACTOR_", factor);
  }
};

struct ObjFunc
{
  std::string id;
  std::optional<Link<Dresp>> dresp;
  std::optional<Link<Operator>> operators;
  int target = 0;
  int sensscaling_type = 0;
  double sensscaling_value = 0.0;
  std::vector<Link<Filter>> filter;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("DRESP_", dresp);
    keys.Optional("OPERATOR_", operators);
    keys.Always("TARGET_", target);
    keys.Always("SENSSCALING_TYPE_", sensscaling_type);
    keys.Always("SENSSCALING_VALUE_", sensscaling_value);
    keys.Repeated("FILTER_", filter);
  }
};

struct Constraint
{
  std::string id;
  std::optional<Link<Dresp>> dresp;
  std::optional<Link<Operator>> operators;
  int type = 0;
  int magnitude = 0;
  double value = 0.0;
  double coefficient = 0.0;
  double a_minmax_coefficient = 0.0;
  int sensscaling_type = 0;
  double sensscaling_value = 0.0;
  std::vector<Link<Filter>> filter;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("DRESP_", dresp);
    keys.Optional("OPERATOR_", operators);
    keys.Always("TYPE_", type);
    keys.Always("MAGNITUDE_", magnitude);
    keys.Always("VALUE_", value);
    keys.Always("COEFFICIENT_", coefficient);
    keys.Always("A_MINMAX_COEFFICIENT_", a_minmax_coefficient);
    keys.Always("SENSSCALING_TYPE_", sensscaling_type);
    keys.Always("SENSSCALING_VALUE_", sensscaling_value);
    keys.Repeated("FILTER_", filter);
  }
};

struct Cs
{
  std::string id;
  int type = 0;
  std::optional<double> x_origin;
  std::optional<double> y_origin;
  std::optional<double> z_origin;
  double x_vec1 = 0.0;
  double y_vec1 = 0.0;
  double z_vec1 = 0.0;
  double x_vec2 = 0.0;
  double y_vec2 = 0.0;
  double z_vec2 = 0.0;
  double x_vec3 = 0.0;
  double y_vec3 = 0.0;
  double z_vec3 = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("TYPE_", type);
    keys.Optional("X_ORIGIN_", x_origin);
    keys.Optional("Y_ORIGIN_", y_origin);
    keys.Optional("Z_ORIGIN_", z_origin);
    keys.Always("X_VEC1_", x_vec1);
    keys.Always("Y_VEC1_", y_vec1);
    keys.Always("Z_VEC1_", z_vec1);
    keys.Always("X_VEC2_", x_vec2);
    keys.Always("Y_VEC2_", y_vec2);
    keys.Always("Z_VEC2_", z_vec2);
    keys.Always("X_VEC3_", x_vec3);
    keys.Always("Y_VEC3_", y_vec3);
    keys.Always("Z_VEC3_", z_vec3);
  }
};

struct DvConstraint
{
  std::string id;
  std::string patch_id;
  int dvc_type = 0;
  std::optional<std::string> node_group;
  std::optional<std::string> check_group;
  std::optional<std::string> reference_group;
  std::optional<std::string> element_group;
  std::optional<double> x_point;
  std::optional<double> y_point;
  std::optional<double> z_point;
  std::optional<double> x_direction;
  std::optional<double> y_direction;
  std::optional<double> z_direction;
  std::optional<double> x_start_direction;
  std::optional<double> y_start_direction;
  std::optional<double> z_start_direction;
  std::optional<double> angle;
  int feasible_start = 0;
  int save = 0;
  int dumpoptvalues = 0;
  std::optional<double> radius;
  std::optional<int> filter_type;
  std::optional<int> membersize_type;
  int aggregation_method = 0;
  double aggregation_parameter = 0.0;
  int aggregation_num_constraints = 0;
  std::optional<Link<Cs>> cs;
  std::optional<int> x_dof;
  std::optional<int> y_dof;
  std::optional<int> z_dof;
  int check_elgr_blocking = 0;
  double tolerance = 0.0;
  std::optional<Link<ScalingCurve>> scaling_curve;
  int mid_plane = 0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("DVC_TYPE_", dvc_type);
    keys.Optional("NODE_GROUP_", node_group);
    keys.Optional("CHECK_GROUP_", check_group);
    keys.Optional("REFERENCE_GROUP_", reference_group);
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Optional("X_POINT_", x_point);
    keys.Optional("Y_POINT_", y_point);
    keys.Optional("Z_POINT_", z_point);
    keys.Optional("X_DIRECTION_", x_direction);
    keys.Optional("Y_DIRECTION_", y_direction);
    keys.Optional("Z_DIRECTION_", z_direction);
    keys.Optional("X_START_DIRECTION_", x_start_direction);
    keys.Optional("Y_START_DIRECTION_", y_start_direction);
    keys.Optional("Z_START_DIRECTION_", z_start_direction);
    keys.Optional("ANGLE_", angle);
    keys.Always("FEASIBLE_START_", feasible_start);
    keys.Always("SAVE_", save);
    keys.Always("DUMPOPTVALUES_", dumpoptvalues);
    keys.Optional("RADIUS_", radius);
    keys.Optional("FILTER_TYPE_", filter_type);
    keys.Optional("MEMBERSIZE_TYPE_", membersize_type);
    keys.Always("AGGREGATION_METHOD_", aggregation_method);
    keys.Always("AGGREGATION_PARAMETER_", aggregation_parameter);
    keys.Always("AGGREGATION_NUM_CONSTRAINTS_", aggregation_num_constraints);
    keys.Optional("CS_", cs);
    keys.Optional("X_DOF_", x_dof);
    keys.Optional("Y_DOF_", y_dof);
    keys.Optional("Z_DOF_", z_dof);
    keys.Always("CHECK_ELGR_BLOCKING_", check_elgr_blocking);
    keys.Always("TOLERANCE_", tolerance);
    keys.Optional("SCALING_CURVE_", scaling_curve);
    keys.Always("MID_PLANE_", mid_plane);
  }
};

struct Monitor
{
  std::string id;
  Link<Dresp> dresp;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("DRESP_", dresp);
  }
};

struct Algo
{
  std::string id;
  int strategy = 0;
  Link<Dv> dv;
  Link<ObjFunc> obj_func;
  std::vector<Link<Constraint>> constraint;
  std::vector<Link<DvConstraint>> dv_constraint;
  Link<OptParam> opt_param;
  Link<Stop> stop;
  Link<PreParam> pre_param;
  std::vector<Link<MeshSmooth>> mesh_smooth;
  std::vector<Link<Monitor>> monitor;
  Link<AsTopoOc> as_topo_oc;
  Link<AsTopoSens> as_topo_sens;
  Link<AsShapeSens> as_shape_sens;
  int developer_output = 0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("STRATEGY_", strategy);
    keys.Always("DV_", dv);
    keys.Always("OBJ_FUNC_", obj_func);
    keys.Repeated("CONSTRAINT_", constraint);
    keys.Repeated("DV_CONSTRAINT_", dv_constraint);
    keys.Always("OPT_PARAM_", opt_param);
    keys.Always("STOP_", stop);
    keys.Always("PRE_PARAM_", pre_param);
    keys.Repeated("MESH_SMOOTH_", mesh_smooth);
    keys.Repeated("MONITOR_", monitor);
    keys.Always("AS_TOPO_OC_", as_topo_oc);
    keys.Always("AS_TOPO_SENS_", as_topo_sens);
    keys.Always("AS_SHAPE_SENS_", as_shape_sens);
    keys.Always("DEVELOPER_OUTPUT_", developer_output);
  }
};

struct OptParam
{
  std::string id;
  std::optional<std::vector<int>> store_int;
  int opt_start = 0;
  std::optional<double> src_scale;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Optional("STORE_INT_", store_int);
    keys.Always("OPT_START_", opt_start);
    keys.Optional("SRC_SCALE_", src_scale);
  }
};

struct Stop
{
  std::string id;
  int iter_max = 0;
  int iter_min = 0;
  double residual_obj = 0.0;
  double residual_dv = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("ITER_MAX_", iter_max);
    keys.Always("ITER_MIN_", iter_min);
    keys.Always("RESIDUAL_OBJ_", residual_obj);
    keys.Always("RESIDUAL_DV_", residual_dv);
  }
};

struct MeshSmooth
{
  std::string id;
  int method = 0;
  int cycle = 0;
  std::optional<std::string> face_group;
  std::optional<std::string> node_group;
  std::optional<std::string> element_group;
  int smooth_cycles = 0;
  double alpha = 0.0;
  double beta = 0.0;
  std::optional<Link<Filter>> filter;
  std::optional<Link<DvConstraint>> dv_constraint;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("METHOD_", method);
    keys.Always("CYCLE_", cycle);
    keys.Optional("FACE_GROUP_", face_group);
    keys.Optional("NODE_GROUP_", node_group);
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Always("SMOOTH_CYCLES_", smooth_cycles);
    keys.Always("ALPHA_", alpha);
    keys.Always("BETA_", beta);
    keys.Optional("FILTER_", filter);
    keys.Optional("DV_CONSTRAINT_", dv_constraint);
  }
};

struct Filter
{
  std::string id;
  std::string patch_id;
  int method = 0;
  double radius = 0.0;
  std::optional<double> x_direction;
  std::optional<double> y_direction;
  std::optional<double> z_direction;
  std::optional<double> x_point;
  std::optional<double> y_point;
  std::optional<double> z_point;
  std::optional<std::string> face_group;
  std::optional<std::string> node_group;
  std::optional<std::string> element_group;
  double alpha = 0.0;
  double beta = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("METHOD_", method);
    keys.Always("RADIUS_", radius);
    keys.Optional("X_DIRECTION_", x_direction);
    keys.Optional("Y_DIRECTION_", y_direction);
    keys.Optional("Z_DIRECTION_", z_direction);
    keys.Optional("X_POINT_", x_point);
    keys.Optional("Y_POINT_", y_point);
    keys.Optional("Z_POINT_", z_point);
    keys.Optional("FACE_GROUP_", face_group);
    keys.Optional("NODE_GROUP_", node_group);
    keys.Optional("ELEMENT_GROUP_", element_group);
    keys.Always("ALPHA_", alpha);
    keys.Always("BETA_", beta);
  }
};

struct PreParam
{
  std::string id;
  std::string patch_id;
  double viscosity = 0.0;
  double residual = 0.0;
  int iter_max = 0;
  int backflow_angle = 0;
  int ptrack_pri_vrml = 0;
  int ptrack_val_vrml = 0;
  int ref_vrml = 0;
  int ptrack_keep_invalid = 0;
  int ptrack_vrml_add_bounds = 0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("VISCOSITY_", viscosity);
    keys.Always("RESIDUAL_", residual);
    keys.Always("ITER_MAX_", iter_max);
    keys.Always("BACKFLOW_ANGLE_", backflow_angle);
    keys.Always("PTRACK_PRI_VRML_", ptrack_pri_vrml);
    keys.Always("PTRACK_VAL_VRML_", ptrack_val_vrml);
    keys.Always("REF_VRML_", ref_vrml);
    keys.Always("PTRACK_KEEP_INVALID_", ptrack_keep_invalid);
    keys.Always("PTRACK_VRML_ADD_BOUNDS_", ptrack_vrml_add_bounds);
  }
};

struct AsTopoOc
{
  std::string id;
  std::string patch_id;
  double bt = 0.0;
  double ta_min = 0.0;
  double ta_max = 0.0;
  int scaling_curve_type = 0;
  std::string scaling_curve_update_id;
  double scaling_curve_min = 0.0;
  double scaling_curve_max = 0.0;
  double scaling_curve_penalisation = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("BT_", bt);
    keys.Always("TA_MIN_", ta_min);
    keys.Always("TA_MAX_", ta_max);
    keys.Always("SCALING_CURVE_TYPE_", scaling_curve_type);
    keys.Always("SCALING_CURVE_UPDATE_ID_", scaling_curve_update_id);
    keys.Always("SCALING_CURVE_MIN_", scaling_curve_min);
    keys.Always("SCALING_CURVE_MAX_", scaling_curve_max);
    keys.Always("SCALING_CURVE_PENALISATION_", scaling_curve_penalisation);
  }
};

struct AsTopoSens
{
  std::string id;
  std::string patch_id;
  int algorithm = 0;
  int math_kernel = 0;
  std::optional<double> min;
  std::optional<double> max;
  double move = 0.0;
  int scaling_curve_type = 0;
  std::string scaling_curve_update_id;
  double scaling_curve_min = 0.0;
  double scaling_curve_max = 0.0;
  double scaling_curve_penalisation = 0.0;
  int asym_move = 0;
  double asym_move_low = 0.0;
  double asym_move_up = 0.0;
  double sub_tol = 0.0;
  int primal_iter_min = 0;
  int primal_iter_max = 0;
  int primal_interval = 0;
  double primal_residual = 0.0;
  double primal_deviation = 0.0;
  int adjoint_iter_min = 0;
  int adjoint_iter_max = 0;
  int adjoint_interval = 0;
  std::string adjoint_disc;
  std::string adjoint_driver;
  int adjoint_cfl = 0;
  std::string keep_initial;
  std::string keep_adjoint;
  std::string skip_pressure_src;
  std::string skip_turbulent_src;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("ALGORITHM_", algorithm);
    keys.Always("MATH_KERNEL_", math_kernel);
    keys.Optional("MIN_", min);
    keys.Optional("MAX_", max);
    keys.Always("MOVE_", move);
    keys.Always("SCALING_CURVE_TYPE_", scaling_curve_type);
    keys.Always("SCALING_CURVE_UPDATE_ID_", scaling_curve_update_id);
    keys.Always("SCALING_CURVE_MIN_", scaling_curve_min);
    keys.Always("SCALING_CURVE_MAX_", scaling_curve_max);
    keys.Always("SCALING_CURVE_PENALISATION_", scaling_curve_penalisation);
    keys.Always("ASYM_MOVE_", asym_move);
    keys.Always("ASYM_MOVE_LOW_", asym_move_low);
    keys.Always("ASYM_MOVE_UP_", asym_move_up);
    keys.Always("SUB_TOL_", sub_tol);
    keys.Always("PRIMAL_ITER_MIN_", primal_iter_min);
    keys.Always("PRIMAL_ITER_MAX_", primal_iter_max);
    keys.Always("PRIMAL_INTERVAL_", primal_interval);
    keys.Always("PRIMAL_RESIDUAL_", primal_residual);
    keys.Always("PRIMAL_DEVIATION_", primal_deviation);
    keys.Always("ADJOINT_ITER_MIN_", adjoint_iter_min);
    keys.Always("ADJOINT_ITER_MAX_", adjoint_iter_max);
    keys.Always("ADJOINT_INTERVAL_", adjoint_interval);
    keys.Always("ADJOINT_DISC_", adjoint_disc);
    keys.Always("ADJOINT_DRIVER_", adjoint_driver);
    keys.Always("ADJOINT_CFL_", adjoint_cfl);
    keys.Always("KEEP_INITIAL_", keep_initial);
    keys.Always("KEEP_ADJOINT_", keep_adjoint);
    keys.Always("SKIP_PRESSURE_SRC_", skip_pressure_src);
    keys.Always("SKIP_TURBULENT_SRC_", skip_turbulent_src);
  }
};

struct AsShapeSens
{
  std::string id;
  std::string patch_id;
  int algorithm = 0;
  int math_kernel = 0;
  std::optional<double> min;
  std::optional<double> max;
  double move = 0.0;
  int scaling_curve_type = 0;
  std::string scaling_curve_update_id;
  double scaling_curve_min = 0.0;
  double scaling_curve_max = 0.0;
  double scaling_curve_penalisation = 0.0;
  int asym_move = 0;
  double asym_move_low = 0.0;
  double asym_move_up = 0.0;
  double sub_tol = 0.0;
  std::vector<Link<Filter>> filter;
  int normal_update = 0;
  int dv_type = 0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("ALGORITHM_", algorithm);
    keys.Always("MATH_KERNEL_", math_kernel);
    keys.Optional("MIN_", min);
    keys.Optional("MAX_", max);
    keys.Always("MOVE_", move);
    keys.Always("SCALING_CURVE_TYPE_", scaling_curve_type);
    keys.Always("SCALING_CURVE_UPDATE_ID_", scaling_curve_update_id);
    keys.Always("SCALING_CURVE_MIN_", scaling_curve_min);
    keys.Always("SCALING_CURVE_MAX_", scaling_curve_max);
    keys.Always("SCALING_CURVE_PENALISATION_", scaling_curve_penalisation);
    keys.Always("ASYM_MOVE_", asym_move);
    keys.Always("ASYM_MOVE_LOW_", asym_move_low);
    keys.Always("ASYM_MOVE_UP_", asym_move_up);
    keys.Always("SUB_TOL_", sub_tol);
    keys.Repeated("FILTER_", filter);
    keys.Always("NORMAL_UPDATE_", normal_update);
    keys.Always("DV_TYPE_", dv_type);
  }
};

struct Flowpaths
{
  std::string id;
  std::vector<std::string> in;
  std::vector<std::string> out;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Repeated("IN_", in);
    keys.Repeated("OUT_", out);
  }
};

struct Output
{
  std::string id;
  std::string filename;
  int format = 0;
  std::vector<int> iteration;
  int type = 0;
  int result = 0;
  int spread_algo = 0;
  std::optional<std::vector<double>> cutoff;
  int backflow_angle = 0;
  double spread_percentage = 0.0;
  int invert = 0;
  int design_only = 0;
  int keep_post_data = 0;
  std::string element_group;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("FILENAME_", filename);
    keys.Always("FORMAT_", format);
    keys.Always("ITERATION_", iteration);
    keys.Always("TYPE_", type);
    keys.Always("RESULT_", result);
    keys.Always("SPREAD_ALGO_", spread_algo);
    keys.Optional("CUTOFF_", cutoff);
    keys.Always("BACKFLOW_ANGLE_", backflow_angle);
    keys.Always("SPREAD_PERCENTAGE_", spread_percentage);
    keys.Always("INVERT_", invert);
    keys.Always("DESIGN_ONLY_", design_only);
    keys.Always("KEEP_POST_DATA_", keep_post_data);
    keys.Always("ELEMENT_GROUP_", element_group);
  }
};

struct ScalingCurve
{
  std::string id;
  int type = 0;
  std::string update_id;
  double min = 0.0;
  double max = 0.0;
  double penalisation = 0.0;
  double data_shift = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("TYPE_", type);
    keys.Always("UPDATE_ID_", update_id);
    keys.Always("MIN_", min);
    keys.Always("MAX_", max);
    keys.Always("PENALISATION_", penalisation);
    keys.Always("DATA_SHIFT_", data_shift);
  }
};

struct Smooth
{
  std::string id;
  std::string patch_id;
  int task = 0;
  int all_iterations = 0;
  double iso_value = 0.0;
  double target_volume = 0.0;
  std::optional<std::string> model_file;
  std::string result_file;
  std::optional<std::vector<int>> iteration;
  int vtm_result = 0;
  std::optional<std::string> output_file;
  std::vector<int> format;
  int stl_groups = 0;
  int output_surface = 0;
  int vtf_orgmodel = 0;
  int iges_unit = 0;
  int slices = 0;
  std::vector<double> slice_x;
  std::vector<double> slice_y;
  std::vector<double> slice_z;
  int slice_primary = 0;
  int slice_number = 0;
  double slice_distance = 0.0;
  int slice_intersection = 0;
  int slice_reduction = 0;
  double slice_red_angle = 0.0;
  int slice_offset = 0;
  int slice_ref_quant = 0;
  double slice_ref_factor = 0.0;
  int slice_filter_curves = 0;
  int slice_format = 0;
  int border = 0;
  int border_format = 0;
  std::string group_file;
  std::vector<std::string> exclude_group;
  std::vector<std::string> include_group;
  std::vector<std::string> surface_group;
  std::optional<std::string> nd_group;
  std::vector<std::string> iso_group_name;
  std::vector<double> iso_group_value;
  std::vector<std::string> vol_group_name;
  std::vector<double> vol_group_value;
  int smooth_cycles = 0;
  int no_sort = 0;
  double min_dens_wall = 0.0;
  int reduction = 0;
  double reduction_rate = 0.0;
  double reduction_angle = 0.0;
  double min_angle = 0.0;
  double min_face_angle = 0.0;
  int self_intersection = 0;
  std::optional<double> original_surface_tolerance_value;
  std::optional<int> original_surface_tolerance_type;
  int mixed_mesh = 0;
  int exclude_loaded = 0;
  int iso_sequence = 0;
  int o_surf_smoothing = 0;
  int result_filtering = 0;
  double input_scale = 0.0;
  double component_lim_size = 0.0;
  int if_smoothing = 0;
  int if_smooth_frozen = 0;
  double if_tolerance = 0.0;
  int if_border_cycles = 0;
  int if_inner_cycles = 0;
  int shrinkage_correction = 0;
  double laplace_alpha = 0.0;
  double laplace_beta = 0.0;
  double wall_tolerance = 0.0;

  template <class Keys>
  void Visit(Keys& keys)
  {
    keys.Always("PATCH_ID_", patch_id);
    keys.Always("TASK_", task);
    keys.Always("ALL_ITERATIONS_", all_iterations);
    keys.Always("ISO_VALUE_", iso_value);
    keys.Always("TARGET_VOLUME_", target_volume);
    keys.Optional("MODEL_FILE_", model_file);
    keys.Always("RESULT_FILE_", result_file);
    keys.Optional("ITERATION_", iteration);
    keys.Always("VTM_RESULT_", vtm_result);
    keys.Optional("OUTPUT_FILE_", output_file);
    keys.Repeated("FORMAT_", format);
    keys.Always("STL_GROUPS_", stl_groups);
    keys.Always("OUTPUT_SURFACE_", output_surface);
    keys.Always("VTF_ORGMODEL_", vtf_orgmodel);
    keys.Always("IGES_UNIT_", iges_unit);
    keys.Always("SLICES_", slices);
    keys.Repeated("SLICE_X_", slice_x);
    keys.Repeated("SLICE_Y_", slice_y);
    keys.Repeated("SLICE_Z_", slice_z);
    keys.Always("SLICE_PRIMARY_", slice_primary);
    keys.Always("SLICE_NUMBER_", slice_number);
    keys.Always("SLICE_DISTANCE_", slice_distance);
    keys.Always("SLICE_INTERSECTION_", slice_intersection);
    keys.Always("SLICE_REDUCTION_", slice_reduction);
    keys.Always("SLICE_RED_ANGLE_", slice_red_angle);
    keys.Always("SLICE_OFFSET_", slice_offset);
    keys.Always("SLICE_REF_QUANT_", slice_ref_quant);
    keys.Always("SLICE_REF_FACTOR_", slice_ref_factor);
    keys.Always("SLICE_FILTER_CURVES_", slice_filter_curves);
    keys.Always("SLICE_FORMAT_", slice_format);
    keys.Always("BORDER_", border);
    keys.Always("BORDER_FORMAT_", border_format);
    keys.Always("GROUP_FILE_", group_file);
    keys.Repeated("EXCLUDE_GROUP_", exclude_group);
    keys.Repeated("INCLUDE_GROUP_", include_group);
    keys.Repeated("SURFACE_GROUP_", surface_group);
    keys.Optional("ND_GROUP_", nd_group);
    keys.Repeated("ISO_GROUP_NAME_", iso_group_name);
    keys.Repeated("ISO_GROUP_VALUE_", iso_group_value);
    keys.Repeated("VOL_GROUP_NAME_", vol_group_name);
    keys.Repeated("VOL_GROUP_VALUE_", vol_group_value);
    keys.Always("SMOOTH_CYCLES_", smooth_cycles);
    keys.Always("NO_SORT_", no_sort);
    keys.Always("MIN_DENS_WALL_", min_dens_wall);
    keys.Always("REDUCTION_", reduction);
    keys.Always("REDUCTION_RATE_", reduction_rate);
    keys.Always("REDUCTION_ANGLE_", reduction_angle);
    keys.Always("MIN_ANGLE_", min_angle);
    keys.Always("MIN_FACE_ANGLE_", min_face_angle);
    keys.Always("SELF_INTERSECTION_", self_intersection);
    keys.Optional("ORIGINAL_SURFACE_TOLERANCE_VALUE_", original_surface_tolerance_value);
    keys.Optional("ORIGINAL_SURFACE_TOLERANCE_TYPE_", original_surface_tolerance_type);
    keys.Always("MIXED_MESH_", mixed_mesh);
    keys.Always("EXCLUDE_LOADED_", exclude_loaded);
    keys.Always("ISO_SEQUENCE_", iso_sequence);
    keys.Always("O_SURF_SMOOTHING_", o_surf_smoothing);
    keys.Always("RESULT_FILTERING_", result_filtering);
    keys.Always("INPUT_SCALE_", input_scale);
    keys.Always("COMPONENT_LIM_SIZE_", component_lim_size);
    keys.Always("IF_SMOOTHING_", if_smoothing);
    keys.Always("IF_SMOOTH_FROZEN_", if_smooth_frozen);
    keys.Always("IF_TOLERANCE_", if_tolerance);
    keys.Always("IF_BORDER_CYCLES_", if_border_cycles);
    keys.Always("IF_INNER_CYCLES_", if_inner_cycles);
    keys.Always("SHRINKAGE_CORRECTION_", shrinkage_correction);
    keys.Always("LAPLACE_ALPHA_", laplace_alpha);
    keys.Always("LAPLACE_BETA_", laplace_beta);
    keys.Always("WALL_TOLERANCE_", wall_tolerance);
  }
};

/// All commands of a job.
struct Job
{
  std::vector<Model> model;
  std::vector<ElementGroup> element_group;
  std::vector<FaceGroup> face_group;
  std::vector<NodeGroup> node_group;
  std::vector<Dv> dv;
  std::vector<Dresp> dresp;
  std::vector<Operator> operators;
  std::vector<ObjFunc> obj_func;
  std::vector<Constraint> constraint;
  std::vector<Cs> cs;
  std::vector<DvConstraint> dv_constraint;
  std::vector<Monitor> monitor;
  std::vector<Algo> algo;
  std::vector<OptParam> opt_param;
  std::vector<Stop> stop;
  std::vector<MeshSmooth> mesh_smooth;
  std::vector<Filter> filter;
  std::vector<PreParam> pre_param;
  std::vector<AsTopoOc> as_topo_oc;
  std::vector<AsTopoSens> as_topo_sens;
  std::vector<AsShapeSens> as_shape_sens;
  std::vector<Flowpaths> flowpaths;
  std::vector<Output> output;
  std::vector<ScalingCurve> scaling_curve;
  std::vector<Smooth> smooth;

  template <class Action>
  void ForEachKind(Action action)
  {
    action("MODEL_", model);
    action("ELEMENT_GROUP_", element_group);
    action("FACE_GROUP_", face_group);
    action("NODE_GROUP_", node_group);
    action("DV_", dv);
    action("DRESP_", dresp);
    action("OPERATOR_", operators);
    action("OBJ_FUNC_", obj_func);
    action("CONSTRAINT_", constraint);
    action("CS_", cs);
    action("DV_CONSTRAINT_", dv_constraint);
    action("MONITOR_", monitor);
    action("ALGO_", algo);
    action("OPT_PARAM_", opt_param);
    action("STOP_", stop);
    action("MESH_SMOOTH_", mesh_smooth);
    action("FILTER_", filter);
    action("PRE_PARAM_", pre_param);
    action("AS_TOPO_OC_", as_topo_oc);
    action("AS_TOPO_SENS_", as_topo_sens);
    action("AS_SHAPE_SENS_", as_shape_sens);
    action("FLOWPATHS_", flowpaths);
    action("OUTPUT_", output);
    action("SCALING_CURVE_", scaling_curve);
    action("SMOOTH_", smooth);
  }
};

/// One of something for each kind of command.
template <template <class> class OfKind>
using OneOfEachKind = std::tuple<
  OfKind<Model>,
  OfKind<ElementGroup>,
  OfKind<FaceGroup>,
  OfKind<NodeGroup>,
  OfKind<Dv>,
  OfKind<Dresp>,
  OfKind<Operator>,
  OfKind<ObjFunc>,
  OfKind<Constraint>,
  OfKind<Cs>,
  OfKind<DvConstraint>,
  OfKind<Monitor>,
  OfKind<Algo>,
  OfKind<OptParam>,
  OfKind<Stop>,
  OfKind<MeshSmooth>,
  OfKind<Filter>,
  OfKind<PreParam>,
  OfKind<AsTopoOc>,
  OfKind<AsTopoSens>,
  OfKind<AsShapeSens>,
  OfKind<Flowpaths>,
  OfKind<Output>,
  OfKind<ScalingCurve>,
  OfKind<Smooth>>;

}  // namespace plain
