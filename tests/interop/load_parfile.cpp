// Loads the parameter file of the working directory and writes every command with all its values as plain text.
//
//   load_parfile fluid|smooth
//
// A command is its kind and its name; then comes a line for each key: `KEY_ = value` for a value, an enumerator or a
// list, `KEY_ -> name` for a reference, `KEY_ absent` for an optional key that is not there. Numbers have the fewest
// digits that tell them apart. Ends with 1 and the text of the failure on standard error when the file does not load.

#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/commands/smooth_commands.h"
#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <charconv>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

namespace
{

std::string TextOf(const std::string& value)
{
  return '"' + value + '"';
}

template <class Number>
std::string TextOf(Number value)
{
  char digits[64];
  const auto end = std::to_chars(digits, digits + sizeof(digits), value);
  return {digits, end.ptr};
}

template <class Item>
std::string TextOf(const std::vector<Item>& list)
{
  std::string text;
  for (const Item& item : list)
  {
    text += (text.empty() ? "" : ", ") + TextOf(item);
  }
  return '[' + text + ']';
}

class Listing
{
public:
  explicit Listing(const OrvelCommand& command)
  {
    std::cout << command.GetType() << ' ' << command.GetID_NAME_() << '\n';
  }

  template <class Value>
  void Has(const char* key, const Value& value)
  {
    Line(key, " = " + TextOf(value));
  }

  template <class Value>
  void MayHave(const char* key, bool has, const Value& value)
  {
    Line(key, has ? " = " + TextOf(value) : " absent");
  }

  template <class Value>
  void Repeats(const char* key, std::uint64_t count, const std::vector<Value>& values)
  {
    Line(key, " = " + TextOf(values) + WrongCount(count, values.size()));
  }

  void HasName(const char* key, const std::string& name) { Line(key, " = " + name); }

  void MayHaveName(const char* key, bool has, const std::string& name) { Line(key, has ? " = " + name : " absent"); }

  void Refers(const char* key, const OrvelCommand& target) { Line(key, " -> " + target.GetID_NAME_()); }

  // The reference may be asked for only when it is there.
  template <class Get>
  void MayRefer(const char* key, bool has, Get get)
  {
    Line(key, has ? " -> " + get().GetID_NAME_() : " absent");
  }

  template <class Target>
  void RefersToMany(const char* key, std::uint64_t count, const std::vector<const Target*>& targets)
  {
    std::string names;
    for (const Target* target : targets)
    {
      names += (names.empty() ? "" : ", ") + target->GetID_NAME_();
    }
    Line(key, " -> [" + names + ']' + WrongCount(count, targets.size()));
  }

private:
  static void Line(const char* key, const std::string& text) { std::cout << "  " << key << text << '\n'; }

  static std::string WrongCount(std::uint64_t count, std::size_t size)
  {
    return count == size ? "" : " but counts " + std::to_string(count);
  }
};

void List(const MODEL_& command)
{
  Listing list(command);
  list.Has("FILE_", command.GetFILE_());
  list.MayHave("SOLVER_", command.HasSOLVER_(), command.GetSOLVER_());
}

template <class Group>
void ListGroup(const Group& command)
{
  Listing list(command);
  list.MayHave("LIST_", command.HasLIST_(), command.GetLIST_());
  list.Repeats("MERGE_", command.NumMERGE_(), command.GetMERGE_());
  list.Repeats("INTERSECT_", command.NumINTERSECT_(), command.GetINTERSECT_());
  list.Repeats("XOR_", command.NumXOR_(), command.GetXOR_());
  list.Repeats("SUBTRACT_", command.NumSUBTRACT_(), command.GetSUBTRACT_());
}

void List(const ELEMENT_GROUP_& command)
{
  ListGroup(command);
}

void List(const FACE_GROUP_& command)
{
  ListGroup(command);
}

void List(const NODE_GROUP_& command)
{
  ListGroup(command);
}

void List(const DV_& command)
{
  Listing list(command);
  list.MayHave("ELEMENT_GROUP_", command.HasELEMENT_GROUP_(), command.GetELEMENT_GROUP_());
  list.MayHave("NODE_GROUP_", command.HasNODE_GROUP_(), command.GetNODE_GROUP_());
  list.Has("INITIAL_", command.GetINITIAL_());
  list.MayHave("INITIAL_DV_FIELD_", command.HasINITIAL_DV_FIELD_(), command.GetINITIAL_DV_FIELD_());
  list.RefersToMany("FILTER_", command.NumFILTER_(), command.GetFILTER_());
  list.HasName("TYPE_", DV_::GetEnumName(command.GetTYPE_()));
  list.RefersToMany("DV_", command.NumDV_(), command.GetDV_());
}

void List(const DRESP_& command)
{
  Listing list(command);
  list.HasName("TYPE_", DRESP_::GetEnumName(command.GetTYPE_()));
  list.HasName("UPDATE_TYPE_", DRESP_::GetEnumName(command.GetUPDATE_TYPE_()));
  list.Has("UPDATE_ID_", command.GetUPDATE_ID_());
  list.Has("UPDATE_INDEX_", command.GetUPDATE_INDEX_());
  list.MayHave("FACE_GROUP_", command.HasFACE_GROUP_(), command.GetFACE_GROUP_());
  list.MayHave("FACE_GROUP_ADD_", command.HasFACE_GROUP_ADD_(), command.GetFACE_GROUP_ADD_());
  list.MayHave("ELEMENT_GROUP_", command.HasELEMENT_GROUP_(), command.GetELEMENT_GROUP_());
  list.MayHave("NODE_GROUP_", command.HasNODE_GROUP_(), command.GetNODE_GROUP_());
  list.Has("WRITE_INTERVAL_", command.GetWRITE_INTERVAL_());
  list.Has("LOADCASE_", command.GetLOADCASE_());
  list.Has("ITER_MAX_", command.GetITER_MAX_());
  list.Has("ITER_MIN_", command.GetITER_MIN_());
  list.Has("RESIDUAL_", command.GetRESIDUAL_());
  list.Has("ADJOINT_RESIDUAL_", command.GetADJOINT_RESIDUAL_());
  list.Has("ADJOINT_DEVIATION_", command.GetADJOINT_DEVIATION_());
  list.Has("OBJECTIVE_DEVIATION_", command.GetOBJECTIVE_DEVIATION_());
  list.MayRefer("DV_CONSTRAINT_", command.HasDV_CONSTRAINT_(),
                [&]() -> const OrvelCommand& { return command.GetDV_CONSTRAINT_(); });
  list.MayHave("FILE_", command.HasFILE_(), command.GetFILE_());
  list.MayHave("CS_REF_", command.HasCS_REF_(), command.GetCS_REF_());
}

void List(const OPERATOR_& command)
{
  Listing list(command);
  list.HasName("TYPE_", OPERATOR_::GetEnumName(command.GetTYPE_()));
  list.HasName("UPDATE_TYPE_", OPERATOR_::GetEnumName(command.GetUPDATE_TYPE_()));
  list.Has("UPDATE_ID_", command.GetUPDATE_ID_());
  list.Has("UPDATE_INDEX_", command.GetUPDATE_INDEX_());
  list.RefersToMany("DRESP_", command.NumDRESP_(), command.GetDRESP_());
  list.Repeats("DRESP_WEIGHT_", command.NumDRESP_WEIGHT_(), command.GetDRESP_WEIGHT_());
  list.RefersToMany("OPERATOR_", command.NumOPERATOR_(), command.GetOPERATOR_());
  list.Repeats("OPERATOR_WEIGHT_", command.NumOPERATOR_WEIGHT_(), command.GetOPERATOR_WEIGHT_());
  list.Has("FACTOR_", command.GetFACTOR_());
}

void List(const OBJ_FUNC_& command)
{
  Listing list(command);
  list.MayRefer("DRESP_", command.HasDRESP_(), [&]() -> const OrvelCommand& { return command.GetDRESP_(); });
  list.MayRefer("OPERATOR_", command.HasOPERATOR_(), [&]() -> const OrvelCommand& { return command.GetOPERATOR_(); });
  list.HasName("TARGET_", OBJ_FUNC_::GetEnumName(command.GetTARGET_()));
  list.HasName("SENSSCALING_TYPE_", OBJ_FUNC_::GetEnumName(command.GetSENSSCALING_TYPE_()));
  list.Has("SENSSCALING_VALUE_", command.GetSENSSCALING_VALUE_());
  list.RefersToMany("FILTER_", command.NumFILTER_(), command.GetFILTER_());
}

void List(const CONSTRAINT_& command)
{
  Listing list(command);
  list.MayRefer("DRESP_", command.HasDRESP_(), [&]() -> const OrvelCommand& { return command.GetDRESP_(); });
  list.MayRefer("OPERATOR_", command.HasOPERATOR_(), [&]() -> const OrvelCommand& { return command.GetOPERATOR_(); });
  list.HasName("TYPE_", CONSTRAINT_::GetEnumName(command.GetTYPE_()));
  list.HasName("MAGNITUDE_", CONSTRAINT_::GetEnumName(command.GetMAGNITUDE_()));
  list.Has("VALUE_", command.GetVALUE_());
  list.Has("COEFFICIENT_", command.GetCOEFFICIENT_());
  list.Has("A_MINMAX_COEFFICIENT_", command.GetA_MINMAX_COEFFICIENT_());
  list.HasName("SENSSCALING_TYPE_", CONSTRAINT_::GetEnumName(command.GetSENSSCALING_TYPE_()));
  list.Has("SENSSCALING_VALUE_", command.GetSENSSCALING_VALUE_());
  list.RefersToMany("FILTER_", command.NumFILTER_(), command.GetFILTER_());
}

void List(const CS_& command)
{
  Listing list(command);
  list.HasName("TYPE_", CS_::GetEnumName(command.GetTYPE_()));
  list.MayHave("X_ORIGIN_", command.HasX_ORIGIN_(), command.GetX_ORIGIN_());
  list.MayHave("Y_ORIGIN_", command.HasY_ORIGIN_(), command.GetY_ORIGIN_());
  list.MayHave("Z_ORIGIN_", command.HasZ_ORIGIN_(), command.GetZ_ORIGIN_());
  list.Has("X_VEC1_", command.GetX_VEC1_());
  list.Has("Y_VEC1_", command.GetY_VEC1_());
  list.Has("Z_VEC1_", command.GetZ_VEC1_());
  list.Has("X_VEC2_", command.GetX_VEC2_());
  list.Has("Y_VEC2_", command.GetY_VEC2_());
  list.Has("Z_VEC2_", command.GetZ_VEC2_());
  list.Has("X_VEC3_", command.GetX_VEC3_());
  list.Has("Y_VEC3_", command.GetY_VEC3_());
  list.Has("Z_VEC3_", command.GetZ_VEC3_());
}

void List(const DV_CONSTRAINT_& command)
{
  Listing list(command);
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.HasName("DVC_TYPE_", DV_CONSTRAINT_::GetEnumName(command.GetDVC_TYPE_()));
  list.MayHave("NODE_GROUP_", command.HasNODE_GROUP_(), command.GetNODE_GROUP_());
  list.MayHave("CHECK_GROUP_", command.HasCHECK_GROUP_(), command.GetCHECK_GROUP_());
  list.MayHave("REFERENCE_GROUP_", command.HasREFERENCE_GROUP_(), command.GetREFERENCE_GROUP_());
  list.MayHave("ELEMENT_GROUP_", command.HasELEMENT_GROUP_(), command.GetELEMENT_GROUP_());
  list.MayHave("X_POINT_", command.HasX_POINT_(), command.GetX_POINT_());
  list.MayHave("Y_POINT_", command.HasY_POINT_(), command.GetY_POINT_());
  list.MayHave("Z_POINT_", command.HasZ_POINT_(), command.GetZ_POINT_());
  list.MayHave("X_DIRECTION_", command.HasX_DIRECTION_(), command.GetX_DIRECTION_());
  list.MayHave("Y_DIRECTION_", command.HasY_DIRECTION_(), command.GetY_DIRECTION_());
  list.MayHave("Z_DIRECTION_", command.HasZ_DIRECTION_(), command.GetZ_DIRECTION_());
  list.MayHave("X_START_DIRECTION_", command.HasX_START_DIRECTION_(), command.GetX_START_DIRECTION_());
  list.MayHave("Y_START_DIRECTION_", command.HasY_START_DIRECTION_(), command.GetY_START_DIRECTION_());
  list.MayHave("Z_START_DIRECTION_", command.HasZ_START_DIRECTION_(), command.GetZ_START_DIRECTION_());
  list.MayHave("ANGLE_", command.HasANGLE_(), command.GetANGLE_());
  list.HasName("FEASIBLE_START_", DV_CONSTRAINT_::GetEnumName(command.GetFEASIBLE_START_()));
  list.HasName("SAVE_", DV_CONSTRAINT_::GetEnumName(command.GetSAVE_()));
  list.HasName("DUMPOPTVALUES_", DV_CONSTRAINT_::GetEnumName(command.GetDUMPOPTVALUES_()));
  list.MayHave("RADIUS_", command.HasRADIUS_(), command.GetRADIUS_());
  list.MayHaveName("FILTER_TYPE_", command.HasFILTER_TYPE_(), DV_CONSTRAINT_::GetEnumName(command.GetFILTER_TYPE_()));
  list.MayHaveName("MEMBERSIZE_TYPE_", command.HasMEMBERSIZE_TYPE_(),
                   DV_CONSTRAINT_::GetEnumName(command.GetMEMBERSIZE_TYPE_()));
  list.HasName("AGGREGATION_METHOD_", DV_CONSTRAINT_::GetEnumName(command.GetAGGREGATION_METHOD_()));
  list.Has("AGGREGATION_PARAMETER_", command.GetAGGREGATION_PARAMETER_());
  list.Has("AGGREGATION_NUM_CONSTRAINTS_", command.GetAGGREGATION_NUM_CONSTRAINTS_());
  list.MayRefer("CS_", command.HasCS_(), [&]() -> const OrvelCommand& { return command.GetCS_(); });
  list.MayHaveName("X_DOF_", command.HasX_DOF_(), DV_CONSTRAINT_::GetEnumName(command.GetX_DOF_()));
  list.MayHaveName("Y_DOF_", command.HasY_DOF_(), DV_CONSTRAINT_::GetEnumName(command.GetY_DOF_()));
  list.MayHaveName("Z_DOF_", command.HasZ_DOF_(), DV_CONSTRAINT_::GetEnumName(command.GetZ_DOF_()));
  list.HasName("CHECK_ELGR_BLOCKING_", DV_CONSTRAINT_::GetEnumName(command.GetCHECK_ELGR_BLOCKING_()));
  list.Has("TOLERANCE_", command.GetTOLERANCE_());
  list.MayRefer("SCALING_CURVE_", command.HasSCALING_CURVE_(),
                [&]() -> const OrvelCommand& { return command.GetSCALING_CURVE_(); });
  list.HasName("MID_PLANE_", DV_CONSTRAINT_::GetEnumName(command.GetMID_PLANE_()));
}

void List(const MONITOR_& command)
{
  Listing list(command);
  list.Refers("DRESP_", command.GetDRESP_());
}

void List(const ALGO_& command)
{
  Listing list(command);
  list.HasName("STRATEGY_", ALGO_::GetEnumName(command.GetSTRATEGY_()));
  list.Refers("DV_", command.GetDV_());
  list.Refers("OBJ_FUNC_", command.GetOBJ_FUNC_());
  list.RefersToMany("CONSTRAINT_", command.NumCONSTRAINT_(), command.GetCONSTRAINT_());
  list.RefersToMany("DV_CONSTRAINT_", command.NumDV_CONSTRAINT_(), command.GetDV_CONSTRAINT_());
  list.Refers("OPT_PARAM_", command.GetOPT_PARAM_());
  list.Refers("STOP_", command.GetSTOP_());
  list.Refers("PRE_PARAM_", command.GetPRE_PARAM_());
  list.RefersToMany("MESH_SMOOTH_", command.NumMESH_SMOOTH_(), command.GetMESH_SMOOTH_());
  list.RefersToMany("MONITOR_", command.NumMONITOR_(), command.GetMONITOR_());
  list.Refers("AS_TOPO_OC_", command.GetAS_TOPO_OC_());
  list.Refers("AS_TOPO_SENS_", command.GetAS_TOPO_SENS_());
  list.Refers("AS_SHAPE_SENS_", command.GetAS_SHAPE_SENS_());
  list.HasName("DEVELOPER_OUTPUT_", ALGO_::GetEnumName(command.GetDEVELOPER_OUTPUT_()));
}

void List(const OPT_PARAM_& command)
{
  Listing list(command);
  list.MayHave("STORE_INT_", command.HasSTORE_INT_(), command.GetSTORE_INT_());
  list.Has("OPT_START_", command.GetOPT_START_());
  list.MayHave("SRC_SCALE_", command.HasSRC_SCALE_(), command.GetSRC_SCALE_());
}

void List(const STOP_& command)
{
  Listing list(command);
  list.Has("ITER_MAX_", command.GetITER_MAX_());
  list.Has("ITER_MIN_", command.GetITER_MIN_());
  list.Has("RESIDUAL_OBJ_", command.GetRESIDUAL_OBJ_());
  list.Has("RESIDUAL_DV_", command.GetRESIDUAL_DV_());
}

void List(const MESH_SMOOTH_& command)
{
  Listing list(command);
  list.HasName("METHOD_", MESH_SMOOTH_::GetEnumName(command.GetMETHOD_()));
  list.Has("CYCLE_", command.GetCYCLE_());
  list.MayHave("FACE_GROUP_", command.HasFACE_GROUP_(), command.GetFACE_GROUP_());
  list.MayHave("NODE_GROUP_", command.HasNODE_GROUP_(), command.GetNODE_GROUP_());
  list.MayHave("ELEMENT_GROUP_", command.HasELEMENT_GROUP_(), command.GetELEMENT_GROUP_());
  list.Has("SMOOTH_CYCLES_", command.GetSMOOTH_CYCLES_());
  list.Has("ALPHA_", command.GetALPHA_());
  list.Has("BETA_", command.GetBETA_());
  list.MayRefer("FILTER_", command.HasFILTER_(), [&]() -> const OrvelCommand& { return command.GetFILTER_(); });
  list.MayRefer("DV_CONSTRAINT_", command.HasDV_CONSTRAINT_(),
                [&]() -> const OrvelCommand& { return command.GetDV_CONSTRAINT_(); });
}

void List(const FILTER_& command)
{
  Listing list(command);
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.HasName("METHOD_", FILTER_::GetEnumName(command.GetMETHOD_()));
  list.Has("RADIUS_", command.GetRADIUS_());
  list.MayHave("X_DIRECTION_", command.HasX_DIRECTION_(), command.GetX_DIRECTION_());
  list.MayHave("Y_DIRECTION_", command.HasY_DIRECTION_(), command.GetY_DIRECTION_());
  list.MayHave("Z_DIRECTION_", command.HasZ_DIRECTION_(), command.GetZ_DIRECTION_());
  list.MayHave("X_POINT_", command.HasX_POINT_(), command.GetX_POINT_());
  list.MayHave("Y_POINT_", command.HasY_POINT_(), command.GetY_POINT_());
  list.MayHave("Z_POINT_", command.HasZ_POINT_(), command.GetZ_POINT_());
  list.MayHave("FACE_GROUP_", command.HasFACE_GROUP_(), command.GetFACE_GROUP_());
  list.MayHave("NODE_GROUP_", command.HasNODE_GROUP_(), command.GetNODE_GROUP_());
  list.MayHave("ELEMENT_GROUP_", command.HasELEMENT_GROUP_(), command.GetELEMENT_GROUP_());
  list.Has("ALPHA_", command.GetALPHA_());
  list.Has("BETA_", command.GetBETA_());
}

void List(const PRE_PARAM_& command)
{
  Listing list(command);
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.Has("VISCOSITY_", command.GetVISCOSITY_());
  list.Has("RESIDUAL_", command.GetRESIDUAL_());
  list.Has("ITER_MAX_", command.GetITER_MAX_());
  list.Has("BACKFLOW_ANGLE_", command.GetBACKFLOW_ANGLE_());
  list.HasName("PTRACK_PRI_VRML_", PRE_PARAM_::GetEnumName(command.GetPTRACK_PRI_VRML_()));
  list.HasName("PTRACK_VAL_VRML_", PRE_PARAM_::GetEnumName(command.GetPTRACK_VAL_VRML_()));
  list.HasName("REF_VRML_", PRE_PARAM_::GetEnumName(command.GetREF_VRML_()));
  list.HasName("PTRACK_KEEP_INVALID_", PRE_PARAM_::GetEnumName(command.GetPTRACK_KEEP_INVALID_()));
  list.HasName("PTRACK_VRML_ADD_BOUNDS_", PRE_PARAM_::GetEnumName(command.GetPTRACK_VRML_ADD_BOUNDS_()));
}

template <class Settings>
void ListScalingCurve(Listing& list, const Settings& command)
{
  list.HasName("SCALING_CURVE_TYPE_", Settings::GetEnumName(command.GetSCALING_CURVE_TYPE_()));
  list.Has("SCALING_CURVE_UPDATE_ID_", command.GetSCALING_CURVE_UPDATE_ID_());
  list.Has("SCALING_CURVE_MIN_", command.GetSCALING_CURVE_MIN_());
  list.Has("SCALING_CURVE_MAX_", command.GetSCALING_CURVE_MAX_());
  list.Has("SCALING_CURVE_PENALISATION_", command.GetSCALING_CURVE_PENALISATION_());
}

// The keys that the settings of the two sensitivity algorithms share.
template <class Settings>
void ListSensitivitySettings(Listing& list, const Settings& command)
{
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.HasName("ALGORITHM_", Settings::GetEnumName(command.GetALGORITHM_()));
  list.HasName("MATH_KERNEL_", Settings::GetEnumName(command.GetMATH_KERNEL_()));
  list.MayHave("MIN_", command.HasMIN_(), command.GetMIN_());
  list.MayHave("MAX_", command.HasMAX_(), command.GetMAX_());
  list.Has("MOVE_", command.GetMOVE_());
  ListScalingCurve(list, command);
  list.HasName("ASYM_MOVE_", Settings::GetEnumName(command.GetASYM_MOVE_()));
  list.Has("ASYM_MOVE_LOW_", command.GetASYM_MOVE_LOW_());
  list.Has("ASYM_MOVE_UP_", command.GetASYM_MOVE_UP_());
  list.Has("SUB_TOL_", command.GetSUB_TOL_());
}

void List(const AS_TOPO_OC_& command)
{
  Listing list(command);
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.Has("BT_", command.GetBT_());
  list.Has("TA_MIN_", command.GetTA_MIN_());
  list.Has("TA_MAX_", command.GetTA_MAX_());
  ListScalingCurve(list, command);
}

void List(const AS_TOPO_SENS_& command)
{
  Listing list(command);
  ListSensitivitySettings(list, command);
  list.Has("PRIMAL_ITER_MIN_", command.GetPRIMAL_ITER_MIN_());
  list.Has("PRIMAL_ITER_MAX_", command.GetPRIMAL_ITER_MAX_());
  list.Has("PRIMAL_INTERVAL_", command.GetPRIMAL_INTERVAL_());
  list.Has("PRIMAL_RESIDUAL_", command.GetPRIMAL_RESIDUAL_());
  list.Has("PRIMAL_DEVIATION_", command.GetPRIMAL_DEVIATION_());
  list.Has("ADJOINT_ITER_MIN_", command.GetADJOINT_ITER_MIN_());
  list.Has("ADJOINT_ITER_MAX_", command.GetADJOINT_ITER_MAX_());
  list.Has("ADJOINT_INTERVAL_", command.GetADJOINT_INTERVAL_());
  list.Has("ADJOINT_DISC_", command.GetADJOINT_DISC_());
  list.Has("ADJOINT_DRIVER_", command.GetADJOINT_DRIVER_());
  list.Has("ADJOINT_CFL_", command.GetADJOINT_CFL_());
  list.Has("KEEP_INITIAL_", command.GetKEEP_INITIAL_());
  list.Has("KEEP_ADJOINT_", command.GetKEEP_ADJOINT_());
  list.Has("SKIP_PRESSURE_SRC_", command.GetSKIP_PRESSURE_SRC_());
  list.Has("SKIP_TURBULENT_SRC_", command.GetSKIP_TURBULENT_SRC_());
}

void List(const AS_SHAPE_SENS_& command)
{
  Listing list(command);
  ListSensitivitySettings(list, command);
  list.RefersToMany("FILTER_", command.NumFILTER_(), command.GetFILTER_());
  list.HasName("NORMAL_UPDATE_", AS_SHAPE_SENS_::GetEnumName(command.GetNORMAL_UPDATE_()));
  list.HasName("DV_TYPE_", AS_SHAPE_SENS_::GetEnumName(command.GetDV_TYPE_()));
}

void List(const FLOWPATHS_& command)
{
  Listing list(command);
  list.Repeats("IN_", command.NumIN_(), command.GetIN_());
  list.Repeats("OUT_", command.NumOUT_(), command.GetOUT_());
}

void List(const OUTPUT_& command)
{
  Listing list(command);
  list.Has("FILENAME_", command.GetFILENAME_());
  list.HasName("FORMAT_", OUTPUT_::GetEnumName(command.GetFORMAT_()));
  list.Has("ITERATION_", command.GetITERATION_());
  list.HasName("TYPE_", OUTPUT_::GetEnumName(command.GetTYPE_()));
  list.HasName("RESULT_", OUTPUT_::GetEnumName(command.GetRESULT_()));
  list.HasName("SPREAD_ALGO_", OUTPUT_::GetEnumName(command.GetSPREAD_ALGO_()));
  list.MayHave("CUTOFF_", command.HasCUTOFF_(), command.GetCUTOFF_());
  list.Has("BACKFLOW_ANGLE_", command.GetBACKFLOW_ANGLE_());
  list.Has("SPREAD_PERCENTAGE_", command.GetSPREAD_PERCENTAGE_());
  list.HasName("INVERT_", OUTPUT_::GetEnumName(command.GetINVERT_()));
  list.HasName("DESIGN_ONLY_", OUTPUT_::GetEnumName(command.GetDESIGN_ONLY_()));
  list.HasName("KEEP_POST_DATA_", OUTPUT_::GetEnumName(command.GetKEEP_POST_DATA_()));
  list.Has("ELEMENT_GROUP_", command.GetELEMENT_GROUP_());
}

void List(const SCALING_CURVE_& command)
{
  Listing list(command);
  list.HasName("TYPE_", SCALING_CURVE_::GetEnumName(command.GetTYPE_()));
  list.Has("UPDATE_ID_", command.GetUPDATE_ID_());
  list.Has("MIN_", command.GetMIN_());
  list.Has("MAX_", command.GetMAX_());
  list.Has("PENALISATION_", command.GetPENALISATION_());
  list.Has("DATA_SHIFT_", command.GetDATA_SHIFT_());
}

void List(const SMOOTH_& command)
{
  Listing list(command);
  list.Has("PATCH_ID_", command.GetPATCH_ID_());
  list.HasName("TASK_", SMOOTH_::GetEnumName(command.GetTASK_()));
  list.HasName("ALL_ITERATIONS_", SMOOTH_::GetEnumName(command.GetALL_ITERATIONS_()));
  list.Has("ISO_VALUE_", command.GetISO_VALUE_());
  list.Has("TARGET_VOLUME_", command.GetTARGET_VOLUME_());
  list.MayHave("MODEL_FILE_", command.HasMODEL_FILE_(), command.GetMODEL_FILE_());
  list.Has("RESULT_FILE_", command.GetRESULT_FILE_());
  list.MayHave("ITERATION_", command.HasITERATION_(), command.GetITERATION_());
  list.HasName("VTM_RESULT_", SMOOTH_::GetEnumName(command.GetVTM_RESULT_()));
  list.MayHave("OUTPUT_FILE_", command.HasOUTPUT_FILE_(), command.GetOUTPUT_FILE_());
  std::string formats;
  for (const SMOOTH_::Enum_FORMAT_ format : command.GetFORMAT_())
  {
    formats += (formats.empty() ? "" : ", ") + SMOOTH_::GetEnumName(format);
  }
  list.HasName("FORMAT_", std::to_string(command.NumFORMAT_()) + " [" + formats + "]");
  list.HasName("STL_GROUPS_", SMOOTH_::GetEnumName(command.GetSTL_GROUPS_()));
  list.HasName("OUTPUT_SURFACE_", SMOOTH_::GetEnumName(command.GetOUTPUT_SURFACE_()));
  list.HasName("VTF_ORGMODEL_", SMOOTH_::GetEnumName(command.GetVTF_ORGMODEL_()));
  list.HasName("IGES_UNIT_", SMOOTH_::GetEnumName(command.GetIGES_UNIT_()));
  list.HasName("SLICES_", SMOOTH_::GetEnumName(command.GetSLICES_()));
  list.Repeats("SLICE_X_", command.NumSLICE_X_(), command.GetSLICE_X_());
  list.Repeats("SLICE_Y_", command.NumSLICE_Y_(), command.GetSLICE_Y_());
  list.Repeats("SLICE_Z_", command.NumSLICE_Z_(), command.GetSLICE_Z_());
  list.HasName("SLICE_PRIMARY_", SMOOTH_::GetEnumName(command.GetSLICE_PRIMARY_()));
  list.Has("SLICE_NUMBER_", command.GetSLICE_NUMBER_());
  list.Has("SLICE_DISTANCE_", command.GetSLICE_DISTANCE_());
  list.HasName("SLICE_INTERSECTION_", SMOOTH_::GetEnumName(command.GetSLICE_INTERSECTION_()));
  list.HasName("SLICE_REDUCTION_", SMOOTH_::GetEnumName(command.GetSLICE_REDUCTION_()));
  list.Has("SLICE_RED_ANGLE_", command.GetSLICE_RED_ANGLE_());
  list.HasName("SLICE_OFFSET_", SMOOTH_::GetEnumName(command.GetSLICE_OFFSET_()));
  list.Has("SLICE_REF_QUANT_", command.GetSLICE_REF_QUANT_());
  list.Has("SLICE_REF_FACTOR_", command.GetSLICE_REF_FACTOR_());
  list.HasName("SLICE_FILTER_CURVES_", SMOOTH_::GetEnumName(command.GetSLICE_FILTER_CURVES_()));
  list.HasName("SLICE_FORMAT_", SMOOTH_::GetEnumName(command.GetSLICE_FORMAT_()));
  list.HasName("BORDER_", SMOOTH_::GetEnumName(command.GetBORDER_()));
  list.HasName("BORDER_FORMAT_", SMOOTH_::GetEnumName(command.GetBORDER_FORMAT_()));
  list.Has("GROUP_FILE_", command.GetGROUP_FILE_());
  list.Repeats("EXCLUDE_GROUP_", command.NumEXCLUDE_GROUP_(), command.GetEXCLUDE_GROUP_());
  list.Repeats("INCLUDE_GROUP_", command.NumINCLUDE_GROUP_(), command.GetINCLUDE_GROUP_());
  list.Repeats("SURFACE_GROUP_", command.NumSURFACE_GROUP_(), command.GetSURFACE_GROUP_());
  list.MayHave("ND_GROUP_", command.HasND_GROUP_(), command.GetND_GROUP_());
  list.Repeats("ISO_GROUP_NAME_", command.NumISO_GROUP_NAME_(), command.GetISO_GROUP_NAME_());
  list.Repeats("ISO_GROUP_VALUE_", command.NumISO_GROUP_VALUE_(), command.GetISO_GROUP_VALUE_());
  list.Repeats("VOL_GROUP_NAME_", command.NumVOL_GROUP_NAME_(), command.GetVOL_GROUP_NAME_());
  list.Repeats("VOL_GROUP_VALUE_", command.NumVOL_GROUP_VALUE_(), command.GetVOL_GROUP_VALUE_());
  list.Has("SMOOTH_CYCLES_", command.GetSMOOTH_CYCLES_());
  list.HasName("NO_SORT_", SMOOTH_::GetEnumName(command.GetNO_SORT_()));
  list.Has("MIN_DENS_WALL_", command.GetMIN_DENS_WALL_());
  list.HasName("REDUCTION_", SMOOTH_::GetEnumName(command.GetREDUCTION_()));
  list.Has("REDUCTION_RATE_", command.GetREDUCTION_RATE_());
  list.Has("REDUCTION_ANGLE_", command.GetREDUCTION_ANGLE_());
  list.Has("MIN_ANGLE_", command.GetMIN_ANGLE_());
  list.Has("MIN_FACE_ANGLE_", command.GetMIN_FACE_ANGLE_());
  list.HasName("SELF_INTERSECTION_", SMOOTH_::GetEnumName(command.GetSELF_INTERSECTION_()));
  list.MayHave("ORIGINAL_SURFACE_TOLERANCE_VALUE_", command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_(),
               command.GetORIGINAL_SURFACE_TOLERANCE_VALUE_());
  list.MayHaveName("ORIGINAL_SURFACE_TOLERANCE_TYPE_", command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_(),
                   SMOOTH_::GetEnumName(command.GetORIGINAL_SURFACE_TOLERANCE_TYPE_()));
  list.HasName("MIXED_MESH_", SMOOTH_::GetEnumName(command.GetMIXED_MESH_()));
  list.HasName("EXCLUDE_LOADED_", SMOOTH_::GetEnumName(command.GetEXCLUDE_LOADED_()));
  list.HasName("ISO_SEQUENCE_", SMOOTH_::GetEnumName(command.GetISO_SEQUENCE_()));
  list.HasName("O_SURF_SMOOTHING_", SMOOTH_::GetEnumName(command.GetO_SURF_SMOOTHING_()));
  list.HasName("RESULT_FILTERING_", SMOOTH_::GetEnumName(command.GetRESULT_FILTERING_()));
  list.Has("INPUT_SCALE_", command.GetINPUT_SCALE_());
  list.Has("COMPONENT_LIM_SIZE_", command.GetCOMPONENT_LIM_SIZE_());
  list.HasName("IF_SMOOTHING_", SMOOTH_::GetEnumName(command.GetIF_SMOOTHING_()));
  list.HasName("IF_SMOOTH_FROZEN_", SMOOTH_::GetEnumName(command.GetIF_SMOOTH_FROZEN_()));
  list.Has("IF_TOLERANCE_", command.GetIF_TOLERANCE_());
  list.Has("IF_BORDER_CYCLES_", command.GetIF_BORDER_CYCLES_());
  list.Has("IF_INNER_CYCLES_", command.GetIF_INNER_CYCLES_());
  list.HasName("SHRINKAGE_CORRECTION_", SMOOTH_::GetEnumName(command.GetSHRINKAGE_CORRECTION_()));
  list.Has("LAPLACE_ALPHA_", command.GetLAPLACE_ALPHA_());
  list.Has("LAPLACE_BETA_", command.GetLAPLACE_BETA_());
  list.Has("WALL_TOLERANCE_", command.GetWALL_TOLERANCE_());
}

template <class Commands>
void ListAll(const Commands& commands)
{
  for (const auto* command : commands)
  {
    List(*command);
  }
}

void ListFluidJob(OrvelParfileStorage& storage)
{
  Gyre_Parfile parfile(storage);
  parfile.Load();
  List(parfile.GetMODEL_());
  ListAll(parfile.GetELEMENT_GROUP_());
  ListAll(parfile.GetFACE_GROUP_());
  ListAll(parfile.GetNODE_GROUP_());
  ListAll(parfile.GetDV_());
  ListAll(parfile.GetDRESP_());
  ListAll(parfile.GetOPERATOR_());
  List(parfile.GetOBJ_FUNC_());
  ListAll(parfile.GetCONSTRAINT_());
  ListAll(parfile.GetCS_());
  ListAll(parfile.GetDV_CONSTRAINT_());
  ListAll(parfile.GetMONITOR_());
  List(parfile.GetALGO_());
  ListAll(parfile.GetOPT_PARAM_());
  ListAll(parfile.GetSTOP_());
  ListAll(parfile.GetMESH_SMOOTH_());
  ListAll(parfile.GetFILTER_());
  ListAll(parfile.GetPRE_PARAM_());
  ListAll(parfile.GetAS_TOPO_OC_());
  ListAll(parfile.GetAS_TOPO_SENS_());
  ListAll(parfile.GetAS_SHAPE_SENS_());
  List(parfile.GetFLOWPATHS_());
  ListAll(parfile.GetOUTPUT_());
  ListAll(parfile.GetSCALING_CURVE_());
  ListAll(parfile.GetSMOOTH_());
}

void ListSmoothingJob(OrvelParfileStorage& storage)
{
  Smooth_Parfile parfile(storage);
  parfile.Load();
  ListAll(parfile.GetSMOOTH_());
}

}  // namespace

int main(int count, char** arguments)
{
  const std::string job = count == 2 ? arguments[1] : "";
  if (job != "fluid" && job != "smooth")
  {
    std::cerr << "usage: load_parfile fluid|smooth\n";
    return 2;
  }
  H5::Exception::dontPrint();
  try
  {
    ParfileHdf5Storage storage(false, true);
    job == "fluid" ? ListFluidJob(storage) : ListSmoothingJob(storage);
  }
  catch (const KLV_Failure& failure)
  {
    std::cerr << failure.what() << '\n';
    return 1;
  }
  return 0;
}
