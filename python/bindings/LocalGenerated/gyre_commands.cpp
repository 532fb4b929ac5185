/// \file
/// The Python classes of commands/gyre_commands.h.
///
/// Generated from gyre_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "CommandBinding.h"
#include "LocalGenerated/command_bindings.h"

#include "OrvelCommands/commands/gyre_commands.h"

namespace orvel::python
{

void Bind_gyre_commands(pybind11::module_& module)
{
  CommandBinding<MODEL_>(module)
    .Always("FILE_", &MODEL_::GetFILE_)
    .Optional("SOLVER_", &MODEL_::HasSOLVER_, &MODEL_::GetSOLVER_);

  CommandBinding<ELEMENT_GROUP_>(module)
    .Optional("LIST_", &ELEMENT_GROUP_::HasLIST_, &ELEMENT_GROUP_::GetLIST_)
    .Repeated("MERGE_", &ELEMENT_GROUP_::GetMERGE_)
    .Repeated("INTERSECT_", &ELEMENT_GROUP_::GetINTERSECT_)
    .Repeated("XOR_", &ELEMENT_GROUP_::GetXOR_)
    .Repeated("SUBTRACT_", &ELEMENT_GROUP_::GetSUBTRACT_);

  CommandBinding<FACE_GROUP_>(module)
    .Optional("LIST_", &FACE_GROUP_::HasLIST_, &FACE_GROUP_::GetLIST_)
    .Repeated("MERGE_", &FACE_GROUP_::GetMERGE_)
    .Repeated("INTERSECT_", &FACE_GROUP_::GetINTERSECT_)
    .Repeated("XOR_", &FACE_GROUP_::GetXOR_)
    .Repeated("SUBTRACT_", &FACE_GROUP_::GetSUBTRACT_);

  CommandBinding<NODE_GROUP_>(module)
    .Optional("LIST_", &NODE_GROUP_::HasLIST_, &NODE_GROUP_::GetLIST_)
    .Repeated("MERGE_", &NODE_GROUP_::GetMERGE_)
    .Repeated("INTERSECT_", &NODE_GROUP_::GetINTERSECT_)
    .Repeated("XOR_", &NODE_GROUP_::GetXOR_)
    .Repeated("SUBTRACT_", &NODE_GROUP_::GetSUBTRACT_);

  CommandBinding<DV_>(module)
    .Optional("ELEMENT_GROUP_", &DV_::HasELEMENT_GROUP_, &DV_::GetELEMENT_GROUP_)
    .Optional("NODE_GROUP_", &DV_::HasNODE_GROUP_, &DV_::GetNODE_GROUP_)
    .Always("INITIAL_", &DV_::GetINITIAL_)
    .Optional("INITIAL_DV_FIELD_", &DV_::HasINITIAL_DV_FIELD_, &DV_::GetINITIAL_DV_FIELD_)
    .Repeated("FILTER_", &DV_::GetFILTER_)
    .Always("TYPE_", &DV_::GetTYPE_)
    .Repeated("DV_", &DV_::GetDV_);

  CommandBinding<DRESP_>(module)
    .Always("TYPE_", &DRESP_::GetTYPE_)
    .Always("UPDATE_TYPE_", &DRESP_::GetUPDATE_TYPE_)
    .Always("UPDATE_ID_", &DRESP_::GetUPDATE_ID_)
    .Always("UPDATE_INDEX_", &DRESP_::GetUPDATE_INDEX_)
    .Optional("FACE_GROUP_", &DRESP_::HasFACE_GROUP_, &DRESP_::GetFACE_GROUP_)
    .Optional("FACE_GROUP_ADD_", &DRESP_::HasFACE_GROUP_ADD_, &DRESP_::GetFACE_GROUP_ADD_)
    .Optional("ELEMENT_GROUP_", &DRESP_::HasELEMENT_GROUP_, &DRESP_::GetELEMENT_GROUP_)
    .Optional("NODE_GROUP_", &DRESP_::HasNODE_GROUP_, &DRESP_::GetNODE_GROUP_)
    .Always("WRITE_INTERVAL_", &DRESP_::GetWRITE_INTERVAL_)
    .Always("LOADCASE_", &DRESP_::GetLOADCASE_)
    .Always("ITER_MAX_", &DRESP_::GetITER_MAX_)
    .Always("ITER_MIN_", &DRESP_::GetITER_MIN_)
    .Always("RESIDUAL_", &DRESP_::GetRESIDUAL_)
    .Always("ADJOINT_RESIDUAL_", &DRESP_::GetADJOINT_RESIDUAL_)
    .Always("ADJOINT_DEVIATION_", &DRESP_::GetADJOINT_DEVIATION_)
    .Always("OBJECTIVE_DEVIATION_", &DRESP_::GetOBJECTIVE_DEVIATION_)
    .Optional("DV_CONSTRAINT_", &DRESP_::HasDV_CONSTRAINT_, &DRESP_::GetDV_CONSTRAINT_)
    .Optional("FILE_", &DRESP_::HasFILE_, &DRESP_::GetFILE_)
    .Optional("CS_REF_", &DRESP_::HasCS_REF_, &DRESP_::GetCS_REF_);

  CommandBinding<OPERATOR_>(module)
    .Always("TYPE_", &OPERATOR_::GetTYPE_)
    .Always("UPDATE_TYPE_", &OPERATOR_::GetUPDATE_TYPE_)
    .Always("UPDATE_ID_", &OPERATOR_::GetUPDATE_ID_)
    .Always("UPDATE_INDEX_", &OPERATOR_::GetUPDATE_INDEX_)
    .Repeated("DRESP_", &OPERATOR_::GetDRESP_)
    .Repeated("DRESP_WEIGHT_", &OPERATOR_::GetDRESP_WEIGHT_)
    .Repeated("OPERATOR_", &OPERATOR_::GetOPERATOR_)
    .Repeated("OPERATOR_WEIGHT_", &OPERATOR_::GetOPERATOR_WEIGHT_)
    .Always("FACTOR_", &OPERATOR_::GetFACTOR_);

  CommandBinding<OBJ_FUNC_>(module)
    .Optional("DRESP_", &OBJ_FUNC_::HasDRESP_, &OBJ_FUNC_::GetDRESP_)
    .Optional("OPERATOR_", &OBJ_FUNC_::HasOPERATOR_, &OBJ_FUNC_::GetOPERATOR_)
    .Always("TARGET_", &OBJ_FUNC_::GetTARGET_)
    .Always("SENSSCALING_TYPE_", &OBJ_FUNC_::GetSENSSCALING_TYPE_)
    .Always("SENSSCALING_VALUE_", &OBJ_FUNC_::GetSENSSCALING_VALUE_)
    .Repeated("FILTER_", &OBJ_FUNC_::GetFILTER_);

  CommandBinding<CONSTRAINT_>(module)
    .Optional("DRESP_", &CONSTRAINT_::HasDRESP_, &CONSTRAINT_::GetDRESP_)
    .Optional("OPERATOR_", &CONSTRAINT_::HasOPERATOR_, &CONSTRAINT_::GetOPERATOR_)
    .Always("TYPE_", &CONSTRAINT_::GetTYPE_)
    .Always("MAGNITUDE_", &CONSTRAINT_::GetMAGNITUDE_)
    .Always("VALUE_", &CONSTRAINT_::GetVALUE_)
    .Always("COEFFICIENT_", &CONSTRAINT_::GetCOEFFICIENT_)
    .Always("A_MINMAX_COEFFICIENT_", &CONSTRAINT_::GetA_MINMAX_COEFFICIENT_)
    .Always("SENSSCALING_TYPE_", &CONSTRAINT_::GetSENSSCALING_TYPE_)
    .Always("SENSSCALING_VALUE_", &CONSTRAINT_::GetSENSSCALING_VALUE_)
    .Repeated("FILTER_", &CONSTRAINT_::GetFILTER_);

  CommandBinding<CS_>(module)
    .Always("TYPE_", &CS_::GetTYPE_)
    .Optional("X_ORIGIN_", &CS_::HasX_ORIGIN_, &CS_::GetX_ORIGIN_)
    .Optional("Y_ORIGIN_", &CS_::HasY_ORIGIN_, &CS_::GetY_ORIGIN_)
    .Optional("Z_ORIGIN_", &CS_::HasZ_ORIGIN_, &CS_::GetZ_ORIGIN_)
    .Always("X_VEC1_", &CS_::GetX_VEC1_)
    .Always("Y_VEC1_", &CS_::GetY_VEC1_)
    .Always("Z_VEC1_", &CS_::GetZ_VEC1_)
    .Always("X_VEC2_", &CS_::GetX_VEC2_)
    .Always("Y_VEC2_", &CS_::GetY_VEC2_)
    .Always("Z_VEC2_", &CS_::GetZ_VEC2_)
    .Always("X_VEC3_", &CS_::GetX_VEC3_)
    .Always("Y_VEC3_", &CS_::GetY_VEC3_)
    .Always("Z_VEC3_", &CS_::GetZ_VEC3_);

  CommandBinding<DV_CONSTRAINT_>(module)
    .Always("PATCH_ID_", &DV_CONSTRAINT_::GetPATCH_ID_)
    .Always("DVC_TYPE_", &DV_CONSTRAINT_::GetDVC_TYPE_)
    .Optional("NODE_GROUP_", &DV_CONSTRAINT_::HasNODE_GROUP_, &DV_CONSTRAINT_::GetNODE_GROUP_)
    .Optional("CHECK_GROUP_", &DV_CONSTRAINT_::HasCHECK_GROUP_, &DV_CONSTRAINT_::GetCHECK_GROUP_)
    .Optional("REFERENCE_GROUP_", &DV_CONSTRAINT_::HasREFERENCE_GROUP_, &DV_CONSTRAINT_::GetREFERENCE_GROUP_)
    .Optional("ELEMENT_GROUP_", &DV_CONSTRAINT_::HasELEMENT_GROUP_, &DV_CONSTRAINT_::GetELEMENT_GROUP_)
    .Optional("X_POINT_", &DV_CONSTRAINT_::HasX_POINT_, &DV_CONSTRAINT_::GetX_POINT_)
    .Optional("Y_POINT_", &DV_CONSTRAINT_::HasY_POINT_, &DV_CONSTRAINT_::GetY_POINT_)
    .Optional("Z_POINT_", &DV_CONSTRAINT_::HasZ_POINT_, &DV_CONSTRAINT_::GetZ_POINT_)
    .Optional("X_DIRECTION_", &DV_CONSTRAINT_::HasX_DIRECTION_, &DV_CONSTRAINT_::GetX_DIRECTION_)
    .Optional("Y_DIRECTION_", &DV_CONSTRAINT_::HasY_DIRECTION_, &DV_CONSTRAINT_::GetY_DIRECTION_)
    .Optional("Z_DIRECTION_", &DV_CONSTRAINT_::HasZ_DIRECTION_, &DV_CONSTRAINT_::GetZ_DIRECTION_)
    .Optional("X_START_DIRECTION_", &DV_CONSTRAINT_::HasX_START_DIRECTION_, &DV_CONSTRAINT_::GetX_START_DIRECTION_)
    .Optional("Y_START_DIRECTION_", &DV_CONSTRAINT_::HasY_START_DIRECTION_, &DV_CONSTRAINT_::GetY_START_DIRECTION_)
    .Optional("Z_START_DIRECTION_", &DV_CONSTRAINT_::HasZ_START_DIRECTION_, &DV_CONSTRAINT_::GetZ_START_DIRECTION_)
    .Optional("ANGLE_", &DV_CONSTRAINT_::HasANGLE_, &DV_CONSTRAINT_::GetANGLE_)
    .Always("FEASIBLE_START_", &DV_CONSTRAINT_::GetFEASIBLE_START_)
    .Always("SAVE_", &DV_CONSTRAINT_::GetSAVE_)
    .Always("DUMPOPTVALUES_", &DV_CONSTRAINT_::GetDUMPOPTVALUES_)
    .Optional("RADIUS_", &DV_CONSTRAINT_::HasRADIUS_, &DV_CONSTRAINT_::GetRADIUS_)
    .Optional("FILTER_TYPE_", &DV_CONSTRAINT_::HasFILTER_TYPE_, &DV_CONSTRAINT_::GetFILTER_TYPE_)
    .Optional("MEMBERSIZE_TYPE_", &DV_CONSTRAINT_::HasMEMBERSIZE_TYPE_, &DV_CONSTRAINT_::GetMEMBERSIZE_TYPE_)
    .Always("AGGREGATION_METHOD_", &DV_CONSTRAINT_::GetAGGREGATION_METHOD_)
    .Always("AGGREGATION_PARAMETER_", &DV_CONSTRAINT_::GetAGGREGATION_PARAMETER_)
    .Always("AGGREGATION_NUM_CONSTRAINTS_", &DV_CONSTRAINT_::GetAGGREGATION_NUM_CONSTRAINTS_)
    .Optional("CS_", &DV_CONSTRAINT_::HasCS_, &DV_CONSTRAINT_::GetCS_)
    .Optional("X_DOF_", &DV_CONSTRAINT_::HasX_DOF_, &DV_CONSTRAINT_::GetX_DOF_)
    .Optional("Y_DOF_", &DV_CONSTRAINT_::HasY_DOF_, &DV_CONSTRAINT_::GetY_DOF_)
    .Optional("Z_DOF_", &DV_CONSTRAINT_::HasZ_DOF_, &DV_CONSTRAINT_::GetZ_DOF_)
    .Always("CHECK_ELGR_BLOCKING_", &DV_CONSTRAINT_::GetCHECK_ELGR_BLOCKING_)
    .Always("TOLERANCE_", &DV_CONSTRAINT_::GetTOLERANCE_)
    .Optional("SCALING_CURVE_", &DV_CONSTRAINT_::HasSCALING_CURVE_, &DV_CONSTRAINT_::GetSCALING_CURVE_)
    .Always("MID_PLANE_", &DV_CONSTRAINT_::GetMID_PLANE_);

  CommandBinding<MONITOR_>(module)
    .Always("DRESP_", &MONITOR_::GetDRESP_);

  CommandBinding<ALGO_>(module)
    .Always("STRATEGY_", &ALGO_::GetSTRATEGY_)
    .Always("DV_", &ALGO_::GetDV_)
    .Always("OBJ_FUNC_", &ALGO_::GetOBJ_FUNC_)
    .Repeated("CONSTRAINT_", &ALGO_::GetCONSTRAINT_)
    .Repeated("DV_CONSTRAINT_", &ALGO_::GetDV_CONSTRAINT_)
    .Always("OPT_PARAM_", &ALGO_::GetOPT_PARAM_)
    .Always("STOP_", &ALGO_::GetSTOP_)
    .Always("PRE_PARAM_", &ALGO_::GetPRE_PARAM_)
    .Repeated("MESH_SMOOTH_", &ALGO_::GetMESH_SMOOTH_)
    .Repeated("MONITOR_", &ALGO_::GetMONITOR_)
    .Always("AS_TOPO_OC_", &ALGO_::GetAS_TOPO_OC_)
    .Always("AS_TOPO_SENS_", &ALGO_::GetAS_TOPO_SENS_)
    .Always("AS_SHAPE_SENS_", &ALGO_::GetAS_SHAPE_SENS_)
    .Always("DEVELOPER_OUTPUT_", &ALGO_::GetDEVELOPER_OUTPUT_);

  CommandBinding<OPT_PARAM_>(module)
    .Optional("STORE_INT_", &OPT_PARAM_::HasSTORE_INT_, &OPT_PARAM_::GetSTORE_INT_)
    .Always("OPT_START_", &OPT_PARAM_::GetOPT_START_)
    .Optional("SRC_SCALE_", &OPT_PARAM_::HasSRC_SCALE_, &OPT_PARAM_::GetSRC_SCALE_);

  CommandBinding<STOP_>(module)
    .Always("ITER_MAX_", &STOP_::GetITER_MAX_)
    .Always("ITER_MIN_", &STOP_::GetITER_MIN_)
    .Always("RESIDUAL_OBJ_", &STOP_::GetRESIDUAL_OBJ_)
    .Always("RESIDUAL_DV_", &STOP_::GetRESIDUAL_DV_);

  CommandBinding<MESH_SMOOTH_>(module)
    .Always("METHOD_", &MESH_SMOOTH_::GetMETHOD_)
    .Always("CYCLE_", &MESH_SMOOTH_::GetCYCLE_)
    .Optional("FACE_GROUP_", &MESH_SMOOTH_::HasFACE_GROUP_, &MESH_SMOOTH_::GetFACE_GROUP_)
    .Optional("NODE_GROUP_", &MESH_SMOOTH_::HasNODE_GROUP_, &MESH_SMOOTH_::GetNODE_GROUP_)
    .Optional("ELEMENT_GROUP_", &MESH_SMOOTH_::HasELEMENT_GROUP_, &MESH_SMOOTH_::GetELEMENT_GROUP_)
    .Always("SMOOTH_CYCLES_", &MESH_SMOOTH_::GetSMOOTH_CYCLES_)
    .Always("ALPHA_", &MESH_SMOOTH_::GetALPHA_)
    .Always("BETA_", &MESH_SMOOTH_::GetBETA_)
    .Optional("FILTER_", &MESH_SMOOTH_::HasFILTER_, &MESH_SMOOTH_::GetFILTER_)
    .Optional("DV_CONSTRAINT_", &MESH_SMOOTH_::HasDV_CONSTRAINT_, &MESH_SMOOTH_::GetDV_CONSTRAINT_);

  CommandBinding<FILTER_>(module)
    .Always("PATCH_ID_", &FILTER_::GetPATCH_ID_)
    .Always("METHOD_", &FILTER_::GetMETHOD_)
    .Always("RADIUS_", &FILTER_::GetRADIUS_)
    .Optional("X_DIRECTION_", &FILTER_::HasX_DIRECTION_, &FILTER_::GetX_DIRECTION_)
    .Optional("Y_DIRECTION_", &FILTER_::HasY_DIRECTION_, &FILTER_::GetY_DIRECTION_)
    .Optional("Z_DIRECTION_", &FILTER_::HasZ_DIRECTION_, &FILTER_::GetZ_DIRECTION_)
    .Optional("X_POINT_", &FILTER_::HasX_POINT_, &FILTER_::GetX_POINT_)
    .Optional("Y_POINT_", &FILTER_::HasY_POINT_, &FILTER_::GetY_POINT_)
    .Optional("Z_POINT_", &FILTER_::HasZ_POINT_, &FILTER_::GetZ_POINT_)
    .Optional("FACE_GROUP_", &FILTER_::HasFACE_GROUP_, &FILTER_::GetFACE_GROUP_)
    .Optional("NODE_GROUP_", &FILTER_::HasNODE_GROUP_, &FILTER_::GetNODE_GROUP_)
    .Optional("ELEMENT_GROUP_", &FILTER_::HasELEMENT_GROUP_, &FILTER_::GetELEMENT_GROUP_)
    .Always("ALPHA_", &FILTER_::GetALPHA_)
    .Always("BETA_", &FILTER_::GetBETA_);

  CommandBinding<PRE_PARAM_>(module)
    .Always("PATCH_ID_", &PRE_PARAM_::GetPATCH_ID_)
    .Always("VISCOSITY_", &PRE_PARAM_::GetVISCOSITY_)
    .Always("RESIDUAL_", &PRE_PARAM_::GetRESIDUAL_)
    .Always("ITER_MAX_", &PRE_PARAM_::GetITER_MAX_)
    .Always("BACKFLOW_ANGLE_", &PRE_PARAM_::GetBACKFLOW_ANGLE_)
    .Always("PTRACK_PRI_VRML_", &PRE_PARAM_::GetPTRACK_PRI_VRML_)
    .Always("PTRACK_VAL_VRML_", &PRE_PARAM_::GetPTRACK_VAL_VRML_)
    .Always("REF_VRML_", &PRE_PARAM_::GetREF_VRML_)
    .Always("PTRACK_KEEP_INVALID_", &PRE_PARAM_::GetPTRACK_KEEP_INVALID_)
    .Always("PTRACK_VRML_ADD_BOUNDS_", &PRE_PARAM_::GetPTRACK_VRML_ADD_BOUNDS_);

  CommandBinding<AS_TOPO_OC_>(module)
    .Always("PATCH_ID_", &AS_TOPO_OC_::GetPATCH_ID_)
    .Always("BT_", &AS_TOPO_OC_::GetBT_)
    .Always("TA_MIN_", &AS_TOPO_OC_::GetTA_MIN_)
    .Always("TA_MAX_", &AS_TOPO_OC_::GetTA_MAX_)
    .Always("SCALING_CURVE_TYPE_", &AS_TOPO_OC_::GetSCALING_CURVE_TYPE_)
    .Always("SCALING_CURVE_UPDATE_ID_", &AS_TOPO_OC_::GetSCALING_CURVE_UPDATE_ID_)
    .Always("SCALING_CURVE_MIN_", &AS_TOPO_OC_::GetSCALING_CURVE_MIN_)
    .Always("SCALING_CURVE_MAX_", &AS_TOPO_OC_::GetSCALING_CURVE_MAX_)
    .Always("SCALING_CURVE_PENALISATION_", &AS_TOPO_OC_::GetSCALING_CURVE_PENALISATION_);

  CommandBinding<AS_TOPO_SENS_>(module)
    .Always("PATCH_ID_", &AS_TOPO_SENS_::GetPATCH_ID_)
    .Always("ALGORITHM_", &AS_TOPO_SENS_::GetALGORITHM_)
    .Always("MATH_KERNEL_", &AS_TOPO_SENS_::GetMATH_KERNEL_)
    .Optional("MIN_", &AS_TOPO_SENS_::HasMIN_, &AS_TOPO_SENS_::GetMIN_)
    .Optional("MAX_", &AS_TOPO_SENS_::HasMAX_, &AS_TOPO_SENS_::GetMAX_)
    .Always("MOVE_", &AS_TOPO_SENS_::GetMOVE_)
    .Always("SCALING_CURVE_TYPE_", &AS_TOPO_SENS_::GetSCALING_CURVE_TYPE_)
    .Always("SCALING_CURVE_UPDATE_ID_", &AS_TOPO_SENS_::GetSCALING_CURVE_UPDATE_ID_)
    .Always("SCALING_CURVE_MIN_", &AS_TOPO_SENS_::GetSCALING_CURVE_MIN_)
    .Always("SCALING_CURVE_MAX_", &AS_TOPO_SENS_::GetSCALING_CURVE_MAX_)
    .Always("SCALING_CURVE_PENALISATION_", &AS_TOPO_SENS_::GetSCALING_CURVE_PENALISATION_)
    .Always("ASYM_MOVE_", &AS_TOPO_SENS_::GetASYM_MOVE_)
    .Always("ASYM_MOVE_LOW_", &AS_TOPO_SENS_::GetASYM_MOVE_LOW_)
    .Always("ASYM_MOVE_UP_", &AS_TOPO_SENS_::GetASYM_MOVE_UP_)
    .Always("SUB_TOL_", &AS_TOPO_SENS_::GetSUB_TOL_)
    .Always("PRIMAL_ITER_MIN_", &AS_TOPO_SENS_::GetPRIMAL_ITER_MIN_)
    .Always("PRIMAL_ITER_MAX_", &AS_TOPO_SENS_::GetPRIMAL_ITER_MAX_)
    .Always("PRIMAL_INTERVAL_", &AS_TOPO_SENS_::GetPRIMAL_INTERVAL_)
    .Always("PRIMAL_RESIDUAL_", &AS_TOPO_SENS_::GetPRIMAL_RESIDUAL_)
    .Always("PRIMAL_DEVIATION_", &AS_TOPO_SENS_::GetPRIMAL_DEVIATION_)
    .Always("ADJOINT_ITER_MIN_", &AS_TOPO_SENS_::GetADJOINT_ITER_MIN_)
    .Always("ADJOINT_ITER_MAX_", &AS_TOPO_SENS_::GetADJOINT_ITER_MAX_)
    .Always("ADJOINT_INTERVAL_", &AS_TOPO_SENS_::GetADJOINT_INTERVAL_)
    .Always("ADJOINT_DISC_", &AS_TOPO_SENS_::GetADJOINT_DISC_)
    .Always("ADJOINT_DRIVER_", &AS_TOPO_SENS_::GetADJOINT_DRIVER_)
    .Always("ADJOINT_CFL_", &AS_TOPO_SENS_::GetADJOINT_CFL_)
    .Always("KEEP_INITIAL_", &AS_TOPO_SENS_::GetKEEP_INITIAL_)
    .Always("KEEP_ADJOINT_", &AS_TOPO_SENS_::GetKEEP_ADJOINT_)
    .Always("SKIP_PRESSURE_SRC_", &AS_TOPO_SENS_::GetSKIP_PRESSURE_SRC_)
    .Always("SKIP_TURBULENT_SRC_", &AS_TOPO_SENS_::GetSKIP_TURBULENT_SRC_);

  CommandBinding<AS_SHAPE_SENS_>(module)
    .Always("PATCH_ID_", &AS_SHAPE_SENS_::GetPATCH_ID_)
    .Always("ALGORITHM_", &AS_SHAPE_SENS_::GetALGORITHM_)
    .Always("MATH_KERNEL_", &AS_SHAPE_SENS_::GetMATH_KERNEL_)
    .Optional("MIN_", &AS_SHAPE_SENS_::HasMIN_, &AS_SHAPE_SENS_::GetMIN_)
    .Optional("MAX_", &AS_SHAPE_SENS_::HasMAX_, &AS_SHAPE_SENS_::GetMAX_)
    .Always("MOVE_", &AS_SHAPE_SENS_::GetMOVE_)
    .Always("SCALING_CURVE_TYPE_", &AS_SHAPE_SENS_::GetSCALING_CURVE_TYPE_)
    .Always("SCALING_CURVE_UPDATE_ID_", &AS_SHAPE_SENS_::GetSCALING_CURVE_UPDATE_ID_)
    .Always("SCALING_CURVE_MIN_", &AS_SHAPE_SENS_::GetSCALING_CURVE_MIN_)
    .Always("SCALING_CURVE_MAX_", &AS_SHAPE_SENS_::GetSCALING_CURVE_MAX_)
    .Always("SCALING_CURVE_PENALISATION_", &AS_SHAPE_SENS_::GetSCALING_CURVE_PENALISATION_)
    .Always("ASYM_MOVE_", &AS_SHAPE_SENS_::GetASYM_MOVE_)
    .Always("ASYM_MOVE_LOW_", &AS_SHAPE_SENS_::GetASYM_MOVE_LOW_)
    .Always("ASYM_MOVE_UP_", &AS_SHAPE_SENS_::GetASYM_MOVE_UP_)
    .Always("SUB_TOL_", &AS_SHAPE_SENS_::GetSUB_TOL_)
    .Repeated("FILTER_", &AS_SHAPE_SENS_::GetFILTER_)
    .Always("NORMAL_UPDATE_", &AS_SHAPE_SENS_::GetNORMAL_UPDATE_)
    .Always("DV_TYPE_", &AS_SHAPE_SENS_::GetDV_TYPE_);

  CommandBinding<FLOWPATHS_>(module)
    .Repeated("IN_", &FLOWPATHS_::GetIN_)
    .Repeated("OUT_", &FLOWPATHS_::GetOUT_);

  CommandBinding<OUTPUT_>(module)
    .Always("FILENAME_", &OUTPUT_::GetFILENAME_)
    .Always("FORMAT_", &OUTPUT_::GetFORMAT_)
    .Always("ITERATION_", &OUTPUT_::GetITERATION_)
    .Always("TYPE_", &OUTPUT_::GetTYPE_)
    .Always("RESULT_", &OUTPUT_::GetRESULT_)
    .Always("SPREAD_ALGO_", &OUTPUT_::GetSPREAD_ALGO_)
    .Optional("CUTOFF_", &OUTPUT_::HasCUTOFF_, &OUTPUT_::GetCUTOFF_)
    .Always("BACKFLOW_ANGLE_", &OUTPUT_::GetBACKFLOW_ANGLE_)
    .Always("SPREAD_PERCENTAGE_", &OUTPUT_::GetSPREAD_PERCENTAGE_)
    .Always("INVERT_", &OUTPUT_::GetINVERT_)
    .Always("DESIGN_ONLY_", &OUTPUT_::GetDESIGN_ONLY_)
    .Always("KEEP_POST_DATA_", &OUTPUT_::GetKEEP_POST_DATA_)
    .Always("ELEMENT_GROUP_", &OUTPUT_::GetELEMENT_GROUP_);

  CommandBinding<SCALING_CURVE_>(module)
    .Always("TYPE_", &SCALING_CURVE_::GetTYPE_)
    .Always("UPDATE_ID_", &SCALING_CURVE_::GetUPDATE_ID_)
    .Always("MIN_", &SCALING_CURVE_::GetMIN_)
    .Always("MAX_", &SCALING_CURVE_::GetMAX_)
    .Always("PENALISATION_", &SCALING_CURVE_::GetPENALISATION_)
    .Always("DATA_SHIFT_", &SCALING_CURVE_::GetDATA_SHIFT_);
}

}  // namespace orvel::python
