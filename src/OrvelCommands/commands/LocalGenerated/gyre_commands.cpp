/// \file
/// The command classes of commands/gyre_commands.h.
///
/// Generated from gyre_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "OrvelCommands/commands/gyre_commands.h"

#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/commands/load_steps.h"
#include "OrvelCommands/commands/model_id_steps.h"
#include "OrvelCommands/commands/print_steps.h"
#include "OrvelCommands/commands/reference_at.h"

using namespace orvel;
using namespace orvel::detail;

namespace
{
constexpr const char* kLogSource = "LocalGenerated\\win_b64\\gyre_commands";
}

// ---- MODEL_

const std::string MODEL_::s_type = "MODEL_";

const std::string& MODEL_::GetType() const
{
  return s_type;
}

void MODEL_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("FILE_", vtmString, m_FILE_);
  keys.Optional("SOLVER_", vtmString, m_has_SOLVER_, m_SOLVER_);
}

void MODEL_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("FILE_", m_FILE_);
  text.Optional("SOLVER_", m_has_SOLVER_, m_SOLVER_);
  text.Log(kLogSource, 104, s_type);
}

void MODEL_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

// ---- ELEMENT_GROUP_

const std::string ELEMENT_GROUP_::s_type = "ELEMENT_GROUP_";

const std::string& ELEMENT_GROUP_::GetType() const
{
  return s_type;
}

void ELEMENT_GROUP_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Optional("LIST_", vtmIntegerList, m_has_LIST_, m_LIST_);
  keys.Repeated("MERGE_", vtmModelId, m_num_MERGE_, m_MERGE_);
  keys.Repeated("INTERSECT_", vtmModelId, m_num_INTERSECT_, m_INTERSECT_);
  keys.Repeated("XOR_", vtmModelId, m_num_XOR_, m_XOR_);
  keys.Repeated("SUBTRACT_", vtmModelId, m_num_SUBTRACT_, m_SUBTRACT_);
}

void ELEMENT_GROUP_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("LIST_", m_has_LIST_, m_LIST_);
  text.Repeated("MERGE_", m_num_MERGE_, m_MERGE_);
  text.Repeated("INTERSECT_", m_num_INTERSECT_, m_INTERSECT_);
  text.Repeated("XOR_", m_num_XOR_, m_XOR_);
  text.Repeated("SUBTRACT_", m_num_SUBTRACT_, m_SUBTRACT_);
  text.Log(kLogSource, 357, s_type);
}

void ELEMENT_GROUP_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Repeated("MERGE_", m_num_MERGE_, KLV_IdType::element_group);
  ids.Repeated("INTERSECT_", m_num_INTERSECT_, KLV_IdType::element_group);
  ids.Repeated("XOR_", m_num_XOR_, KLV_IdType::element_group);
  ids.Repeated("SUBTRACT_", m_num_SUBTRACT_, KLV_IdType::element_group);
}

// ---- FACE_GROUP_

const std::string FACE_GROUP_::s_type = "FACE_GROUP_";

const std::string& FACE_GROUP_::GetType() const
{
  return s_type;
}

void FACE_GROUP_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Optional("LIST_", vtmIntegerList, m_has_LIST_, m_LIST_);
  keys.Repeated("MERGE_", vtmModelId, m_num_MERGE_, m_MERGE_);
  keys.Repeated("INTERSECT_", vtmModelId, m_num_INTERSECT_, m_INTERSECT_);
  keys.Repeated("XOR_", vtmModelId, m_num_XOR_, m_XOR_);
  keys.Repeated("SUBTRACT_", vtmModelId, m_num_SUBTRACT_, m_SUBTRACT_);
}

void FACE_GROUP_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("LIST_", m_has_LIST_, m_LIST_);
  text.Repeated("MERGE_", m_num_MERGE_, m_MERGE_);
  text.Repeated("INTERSECT_", m_num_INTERSECT_, m_INTERSECT_);
  text.Repeated("XOR_", m_num_XOR_, m_XOR_);
  text.Repeated("SUBTRACT_", m_num_SUBTRACT_, m_SUBTRACT_);
  text.Log(kLogSource, 610, s_type);
}

void FACE_GROUP_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Repeated("MERGE_", m_num_MERGE_, KLV_IdType::face_group);
  ids.Repeated("INTERSECT_", m_num_INTERSECT_, KLV_IdType::face_group);
  ids.Repeated("XOR_", m_num_XOR_, KLV_IdType::face_group);
  ids.Repeated("SUBTRACT_", m_num_SUBTRACT_, KLV_IdType::face_group);
}

// ---- NODE_GROUP_

const std::string NODE_GROUP_::s_type = "NODE_GROUP_";

const std::string& NODE_GROUP_::GetType() const
{
  return s_type;
}

void NODE_GROUP_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Optional("LIST_", vtmIntegerList, m_has_LIST_, m_LIST_);
  keys.Repeated("MERGE_", vtmModelId, m_num_MERGE_, m_MERGE_);
  keys.Repeated("INTERSECT_", vtmModelId, m_num_INTERSECT_, m_INTERSECT_);
  keys.Repeated("XOR_", vtmModelId, m_num_XOR_, m_XOR_);
  keys.Repeated("SUBTRACT_", vtmModelId, m_num_SUBTRACT_, m_SUBTRACT_);
}

void NODE_GROUP_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("LIST_", m_has_LIST_, m_LIST_);
  text.Repeated("MERGE_", m_num_MERGE_, m_MERGE_);
  text.Repeated("INTERSECT_", m_num_INTERSECT_, m_INTERSECT_);
  text.Repeated("XOR_", m_num_XOR_, m_XOR_);
  text.Repeated("SUBTRACT_", m_num_SUBTRACT_, m_SUBTRACT_);
  text.Log(kLogSource, 863, s_type);
}

void NODE_GROUP_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Repeated("MERGE_", m_num_MERGE_, KLV_IdType::node_group);
  ids.Repeated("INTERSECT_", m_num_INTERSECT_, KLV_IdType::node_group);
  ids.Repeated("XOR_", m_num_XOR_, KLV_IdType::node_group);
  ids.Repeated("SUBTRACT_", m_num_SUBTRACT_, KLV_IdType::node_group);
}

// ---- DV_

const std::string DV_::s_type = "DV_";

const std::string& DV_::GetType() const
{
  return s_type;
}

void DV_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Optional("ELEMENT_GROUP_", vtmModelId, m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  keys.Optional("NODE_GROUP_", vtmModelId, m_has_NODE_GROUP_, m_NODE_GROUP_);
  keys.Always("INITIAL_", vtmDouble, m_INITIAL_);
  keys.Optional("INITIAL_DV_FIELD_", vtmString, m_has_INITIAL_DV_FIELD_, m_INITIAL_DV_FIELD_);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
}

void DV_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  text.Optional("NODE_GROUP_", m_has_NODE_GROUP_, m_NODE_GROUP_);
  text.Always("INITIAL_", m_INITIAL_);
  text.Optional("INITIAL_DV_FIELD_", m_has_INITIAL_DV_FIELD_, m_INITIAL_DV_FIELD_);
  text.Repeated("FILTER_", m_num_FILTER_, m_FILTER_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Repeated("DV_", m_num_DV_, m_DV_);
  text.Log(kLogSource, 1089, s_type);
}

void DV_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, KLV_IdType::element_group);
  ids.Optional("NODE_GROUP_", m_has_NODE_GROUP_, KLV_IdType::node_group);
}

std::string DV_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::design_variable_type, value));
}

const FILTER_& DV_::GetFILTER_(std::uint64_t index) const
{
  return ReferenceAt(m_FILTER_, m_num_FILTER_, index, "FILTER_", s_type);
}

const DV_& DV_::GetDV_(std::uint64_t index) const
{
  return ReferenceAt(m_DV_, m_num_DV_, index, "DV_", s_type);
}

// ---- DRESP_

const std::string DRESP_::s_type = "DRESP_";

const std::string& DRESP_::GetType() const
{
  return s_type;
}

void DRESP_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.AlwaysEnum("UPDATE_TYPE_", m_UPDATE_TYPE_);
  keys.Always("UPDATE_ID_", vtmString, m_UPDATE_ID_);
  keys.Always("UPDATE_INDEX_", vtmInteger, m_UPDATE_INDEX_);
  keys.Optional("FACE_GROUP_", vtmModelId, m_has_FACE_GROUP_, m_FACE_GROUP_);
  keys.Optional("FACE_GROUP_ADD_", vtmModelId, m_has_FACE_GROUP_ADD_, m_FACE_GROUP_ADD_);
  keys.Optional("ELEMENT_GROUP_", vtmModelId, m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  keys.Optional("NODE_GROUP_", vtmModelId, m_has_NODE_GROUP_, m_NODE_GROUP_);
  keys.Always("WRITE_INTERVAL_", vtmInteger, m_WRITE_INTERVAL_);
  keys.Always("LOADCASE_", vtmInteger, m_LOADCASE_);
  keys.Always("ITER_MAX_", vtmInteger, m_ITER_MAX_);
  keys.Always("ITER_MIN_", vtmInteger, m_ITER_MIN_);
  keys.Always("RESIDUAL_", vtmDouble, m_RESIDUAL_);
  keys.Always("ADJOINT_RESIDUAL_", vtmDouble, m_ADJOINT_RESIDUAL_);
  keys.Always("ADJOINT_DEVIATION_", vtmDouble, m_ADJOINT_DEVIATION_);
  keys.Always("OBJECTIVE_DEVIATION_", vtmDouble, m_OBJECTIVE_DEVIATION_);
  keys.Optional("FILE_", vtmString, m_has_FILE_, m_FILE_);
  keys.Optional("CS_REF_", vtmModelId, m_has_CS_REF_, m_CS_REF_);
}

void DRESP_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Always("UPDATE_TYPE_", GetEnumName(m_UPDATE_TYPE_));
  text.Always("UPDATE_ID_", m_UPDATE_ID_);
  text.Always("UPDATE_INDEX_", m_UPDATE_INDEX_);
  text.Optional("FACE_GROUP_", m_has_FACE_GROUP_, m_FACE_GROUP_);
  text.Optional("FACE_GROUP_ADD_", m_has_FACE_GROUP_ADD_, m_FACE_GROUP_ADD_);
  text.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  text.Optional("NODE_GROUP_", m_has_NODE_GROUP_, m_NODE_GROUP_);
  text.Always("WRITE_INTERVAL_", m_WRITE_INTERVAL_);
  text.Always("LOADCASE_", m_LOADCASE_);
  text.Always("ITER_MAX_", m_ITER_MAX_);
  text.Always("ITER_MIN_", m_ITER_MIN_);
  text.Always("RESIDUAL_", m_RESIDUAL_);
  text.Always("ADJOINT_RESIDUAL_", m_ADJOINT_RESIDUAL_);
  text.Always("ADJOINT_DEVIATION_", m_ADJOINT_DEVIATION_);
  text.Always("OBJECTIVE_DEVIATION_", m_OBJECTIVE_DEVIATION_);
  text.Optional("DV_CONSTRAINT_", m_has_DV_CONSTRAINT_, m_DV_CONSTRAINT_);
  text.Optional("FILE_", m_has_FILE_, m_FILE_);
  text.Optional("CS_REF_", m_has_CS_REF_, m_CS_REF_);
  text.Log(kLogSource, 1604, s_type);
}

void DRESP_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Optional("FACE_GROUP_", m_has_FACE_GROUP_, KLV_IdType::face_group);
  ids.Optional("FACE_GROUP_ADD_", m_has_FACE_GROUP_ADD_, KLV_IdType::face_group);
  ids.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, KLV_IdType::element_group);
  ids.Optional("NODE_GROUP_", m_has_NODE_GROUP_, KLV_IdType::node_group);
  ids.Optional("CS_REF_", m_has_CS_REF_, KLV_IdType::coordinate_system);
}

std::string DRESP_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::response_type, value));
}

std::string DRESP_::GetEnumName(Enum_UPDATE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::update_type, value));
}

// ---- OPERATOR_

const std::string OPERATOR_::s_type = "OPERATOR_";

const std::string& OPERATOR_::GetType() const
{
  return s_type;
}

void OPERATOR_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.AlwaysEnum("UPDATE_TYPE_", m_UPDATE_TYPE_);
  keys.Always("UPDATE_ID_", vtmString, m_UPDATE_ID_);
  keys.Always("UPDATE_INDEX_", vtmInteger, m_UPDATE_INDEX_);
  keys.Repeated("DRESP_WEIGHT_", vtmDouble, m_num_DRESP_WEIGHT_, m_DRESP_WEIGHT_);
  keys.Repeated("OPERATOR_WEIGHT_", vtmDouble, m_num_OPERATOR_WEIGHT_, m_OPERATOR_WEIGHT_);
  keys.Always("FACTOR_", vtmDouble, m_FACTOR_);
}

void OPERATOR_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Always("UPDATE_TYPE_", GetEnumName(m_UPDATE_TYPE_));
  text.Always("UPDATE_ID_", m_UPDATE_ID_);
  text.Always("UPDATE_INDEX_", m_UPDATE_INDEX_);
  text.Repeated("DRESP_", m_num_DRESP_, m_DRESP_);
  text.Repeated("DRESP_WEIGHT_", m_num_DRESP_WEIGHT_, m_DRESP_WEIGHT_);
  text.Repeated("OPERATOR_", m_num_OPERATOR_, m_OPERATOR_);
  text.Repeated("OPERATOR_WEIGHT_", m_num_OPERATOR_WEIGHT_, m_OPERATOR_WEIGHT_);
  text.Always("FACTOR_", m_FACTOR_);
  text.Log(kLogSource, 1809, s_type);
}

void OPERATOR_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string OPERATOR_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::operator_type, value));
}

std::string OPERATOR_::GetEnumName(Enum_UPDATE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::update_type, value));
}

const DRESP_& OPERATOR_::GetDRESP_(std::uint64_t index) const
{
  return ReferenceAt(m_DRESP_, m_num_DRESP_, index, "DRESP_", s_type);
}

const OPERATOR_& OPERATOR_::GetOPERATOR_(std::uint64_t index) const
{
  return ReferenceAt(m_OPERATOR_, m_num_OPERATOR_, index, "OPERATOR_", s_type);
}

// ---- OBJ_FUNC_

const std::string OBJ_FUNC_::s_type = "OBJ_FUNC_";

const std::string& OBJ_FUNC_::GetType() const
{
  return s_type;
}

void OBJ_FUNC_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TARGET_", m_TARGET_);
  keys.AlwaysEnum("SENSSCALING_TYPE_", m_SENSSCALING_TYPE_);
  keys.Always("SENSSCALING_VALUE_", vtmDouble, m_SENSSCALING_VALUE_);
}

void OBJ_FUNC_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("DRESP_", m_has_DRESP_, m_DRESP_);
  text.Optional("OPERATOR_", m_has_OPERATOR_, m_OPERATOR_);
  text.Always("TARGET_", GetEnumName(m_TARGET_));
  text.Always("SENSSCALING_TYPE_", GetEnumName(m_SENSSCALING_TYPE_));
  text.Always("SENSSCALING_VALUE_", m_SENSSCALING_VALUE_);
  text.Repeated("FILTER_", m_num_FILTER_, m_FILTER_);
  text.Log(kLogSource, 1964, s_type);
}

void OBJ_FUNC_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string OBJ_FUNC_::GetEnumName(Enum_TARGET_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::objective_target, value));
}

std::string OBJ_FUNC_::GetEnumName(Enum_SENSSCALING_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::sensitivity_scaling, value));
}

const FILTER_& OBJ_FUNC_::GetFILTER_(std::uint64_t index) const
{
  return ReferenceAt(m_FILTER_, m_num_FILTER_, index, "FILTER_", s_type);
}

// ---- CONSTRAINT_

const std::string CONSTRAINT_::s_type = "CONSTRAINT_";

const std::string& CONSTRAINT_::GetType() const
{
  return s_type;
}

void CONSTRAINT_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.AlwaysEnum("MAGNITUDE_", m_MAGNITUDE_);
  keys.Always("VALUE_", vtmDouble, m_VALUE_);
  keys.Always("COEFFICIENT_", vtmDouble, m_COEFFICIENT_);
  keys.Always("A_MINMAX_COEFFICIENT_", vtmDouble, m_A_MINMAX_COEFFICIENT_);
  keys.AlwaysEnum("SENSSCALING_TYPE_", m_SENSSCALING_TYPE_);
  keys.Always("SENSSCALING_VALUE_", vtmDouble, m_SENSSCALING_VALUE_);
}

void CONSTRAINT_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("DRESP_", m_has_DRESP_, m_DRESP_);
  text.Optional("OPERATOR_", m_has_OPERATOR_, m_OPERATOR_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Always("MAGNITUDE_", GetEnumName(m_MAGNITUDE_));
  text.Always("VALUE_", m_VALUE_);
  text.Always("COEFFICIENT_", m_COEFFICIENT_);
  text.Always("A_MINMAX_COEFFICIENT_", m_A_MINMAX_COEFFICIENT_);
  text.Always("SENSSCALING_TYPE_", GetEnumName(m_SENSSCALING_TYPE_));
  text.Always("SENSSCALING_VALUE_", m_SENSSCALING_VALUE_);
  text.Repeated("FILTER_", m_num_FILTER_, m_FILTER_);
  text.Log(kLogSource, 2165, s_type);
}

void CONSTRAINT_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string CONSTRAINT_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::constraint_side, value));
}

std::string CONSTRAINT_::GetEnumName(Enum_MAGNITUDE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::constraint_magnitude, value));
}

std::string CONSTRAINT_::GetEnumName(Enum_SENSSCALING_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::sensitivity_scaling, value));
}

const FILTER_& CONSTRAINT_::GetFILTER_(std::uint64_t index) const
{
  return ReferenceAt(m_FILTER_, m_num_FILTER_, index, "FILTER_", s_type);
}

// ---- CS_

const std::string CS_::s_type = "CS_";

const std::string& CS_::GetType() const
{
  return s_type;
}

void CS_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.Optional("X_ORIGIN_", vtmDouble, m_has_X_ORIGIN_, m_X_ORIGIN_);
  keys.Optional("Y_ORIGIN_", vtmDouble, m_has_Y_ORIGIN_, m_Y_ORIGIN_);
  keys.Optional("Z_ORIGIN_", vtmDouble, m_has_Z_ORIGIN_, m_Z_ORIGIN_);
  keys.Always("X_VEC1_", vtmDouble, m_X_VEC1_);
  keys.Always("Y_VEC1_", vtmDouble, m_Y_VEC1_);
  keys.Always("Z_VEC1_", vtmDouble, m_Z_VEC1_);
  keys.Always("X_VEC2_", vtmDouble, m_X_VEC2_);
  keys.Always("Y_VEC2_", vtmDouble, m_Y_VEC2_);
  keys.Always("Z_VEC2_", vtmDouble, m_Z_VEC2_);
  keys.Always("X_VEC3_", vtmDouble, m_X_VEC3_);
  keys.Always("Y_VEC3_", vtmDouble, m_Y_VEC3_);
  keys.Always("Z_VEC3_", vtmDouble, m_Z_VEC3_);
}

void CS_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Optional("X_ORIGIN_", m_has_X_ORIGIN_, m_X_ORIGIN_);
  text.Optional("Y_ORIGIN_", m_has_Y_ORIGIN_, m_Y_ORIGIN_);
  text.Optional("Z_ORIGIN_", m_has_Z_ORIGIN_, m_Z_ORIGIN_);
  text.Always("X_VEC1_", m_X_VEC1_);
  text.Always("Y_VEC1_", m_Y_VEC1_);
  text.Always("Z_VEC1_", m_Z_VEC1_);
  text.Always("X_VEC2_", m_X_VEC2_);
  text.Always("Y_VEC2_", m_Y_VEC2_);
  text.Always("Z_VEC2_", m_Z_VEC2_);
  text.Always("X_VEC3_", m_X_VEC3_);
  text.Always("Y_VEC3_", m_Y_VEC3_);
  text.Always("Z_VEC3_", m_Z_VEC3_);
  text.Log(kLogSource, 2349, s_type);
}

void CS_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string CS_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::coordinate_system_type, value));
}

// ---- DV_CONSTRAINT_

const std::string DV_CONSTRAINT_::s_type = "DV_CONSTRAINT_";

const std::string& DV_CONSTRAINT_::GetType() const
{
  return s_type;
}

void DV_CONSTRAINT_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.AlwaysEnum("DVC_TYPE_", m_DVC_TYPE_);
  keys.Optional("NODE_GROUP_", vtmModelId, m_has_NODE_GROUP_, m_NODE_GROUP_);
  keys.Optional("CHECK_GROUP_", vtmModelId, m_has_CHECK_GROUP_, m_CHECK_GROUP_);
  keys.Optional("REFERENCE_GROUP_", vtmModelId, m_has_REFERENCE_GROUP_, m_REFERENCE_GROUP_);
  keys.Optional("ELEMENT_GROUP_", vtmModelId, m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  keys.Optional("X_POINT_", vtmDouble, m_has_X_POINT_, m_X_POINT_);
  keys.Optional("Y_POINT_", vtmDouble, m_has_Y_POINT_, m_Y_POINT_);
  keys.Optional("Z_POINT_", vtmDouble, m_has_Z_POINT_, m_Z_POINT_);
  keys.Optional("X_DIRECTION_", vtmDouble, m_has_X_DIRECTION_, m_X_DIRECTION_);
  keys.Optional("Y_DIRECTION_", vtmDouble, m_has_Y_DIRECTION_, m_Y_DIRECTION_);
  keys.Optional("Z_DIRECTION_", vtmDouble, m_has_Z_DIRECTION_, m_Z_DIRECTION_);
  keys.Optional("X_START_DIRECTION_", vtmDouble, m_has_X_START_DIRECTION_, m_X_START_DIRECTION_);
  keys.Optional("Y_START_DIRECTION_", vtmDouble, m_has_Y_START_DIRECTION_, m_Y_START_DIRECTION_);
  keys.Optional("Z_START_DIRECTION_", vtmDouble, m_has_Z_START_DIRECTION_, m_Z_START_DIRECTION_);
  keys.Optional("ANGLE_", vtmDouble, m_has_ANGLE_, m_ANGLE_);
  keys.AlwaysEnum("FEASIBLE_START_", m_FEASIBLE_START_);
  keys.AlwaysEnum("SAVE_", m_SAVE_);
  keys.AlwaysEnum("DUMPOPTVALUES_", m_DUMPOPTVALUES_);
  keys.Optional("RADIUS_", vtmDouble, m_has_RADIUS_, m_RADIUS_);
  keys.OptionalEnum("FILTER_TYPE_", m_has_FILTER_TYPE_, m_FILTER_TYPE_);
  keys.OptionalEnum("MEMBERSIZE_TYPE_", m_has_MEMBERSIZE_TYPE_, m_MEMBERSIZE_TYPE_);
  keys.AlwaysEnum("AGGREGATION_METHOD_", m_AGGREGATION_METHOD_);
  keys.Always("AGGREGATION_PARAMETER_", vtmDouble, m_AGGREGATION_PARAMETER_);
  keys.Always("AGGREGATION_NUM_CONSTRAINTS_", vtmInteger, m_AGGREGATION_NUM_CONSTRAINTS_);
  keys.OptionalEnum("X_DOF_", m_has_X_DOF_, m_X_DOF_);
  keys.OptionalEnum("Y_DOF_", m_has_Y_DOF_, m_Y_DOF_);
  keys.OptionalEnum("Z_DOF_", m_has_Z_DOF_, m_Z_DOF_);
  keys.AlwaysEnum("CHECK_ELGR_BLOCKING_", m_CHECK_ELGR_BLOCKING_);
  keys.Always("TOLERANCE_", vtmDouble, m_TOLERANCE_);
  keys.AlwaysEnum("MID_PLANE_", m_MID_PLANE_);
}

void DV_CONSTRAINT_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("DVC_TYPE_", GetEnumName(m_DVC_TYPE_));
  text.Optional("NODE_GROUP_", m_has_NODE_GROUP_, m_NODE_GROUP_);
  text.Optional("CHECK_GROUP_", m_has_CHECK_GROUP_, m_CHECK_GROUP_);
  text.Optional("REFERENCE_GROUP_", m_has_REFERENCE_GROUP_, m_REFERENCE_GROUP_);
  text.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  text.Optional("X_POINT_", m_has_X_POINT_, m_X_POINT_);
  text.Optional("Y_POINT_", m_has_Y_POINT_, m_Y_POINT_);
  text.Optional("Z_POINT_", m_has_Z_POINT_, m_Z_POINT_);
  text.Optional("X_DIRECTION_", m_has_X_DIRECTION_, m_X_DIRECTION_);
  text.Optional("Y_DIRECTION_", m_has_Y_DIRECTION_, m_Y_DIRECTION_);
  text.Optional("Z_DIRECTION_", m_has_Z_DIRECTION_, m_Z_DIRECTION_);
  text.Optional("X_START_DIRECTION_", m_has_X_START_DIRECTION_, m_X_START_DIRECTION_);
  text.Optional("Y_START_DIRECTION_", m_has_Y_START_DIRECTION_, m_Y_START_DIRECTION_);
  text.Optional("Z_START_DIRECTION_", m_has_Z_START_DIRECTION_, m_Z_START_DIRECTION_);
  text.Optional("ANGLE_", m_has_ANGLE_, m_ANGLE_);
  text.Always("FEASIBLE_START_", GetEnumName(m_FEASIBLE_START_));
  text.Always("SAVE_", GetEnumName(m_SAVE_));
  text.Always("DUMPOPTVALUES_", GetEnumName(m_DUMPOPTVALUES_));
  text.Optional("RADIUS_", m_has_RADIUS_, m_RADIUS_);
  text.Optional("FILTER_TYPE_", m_has_FILTER_TYPE_, GetEnumName(m_FILTER_TYPE_));
  text.Optional("MEMBERSIZE_TYPE_", m_has_MEMBERSIZE_TYPE_, GetEnumName(m_MEMBERSIZE_TYPE_));
  text.Always("AGGREGATION_METHOD_", GetEnumName(m_AGGREGATION_METHOD_));
  text.Always("AGGREGATION_PARAMETER_", m_AGGREGATION_PARAMETER_);
  text.Always("AGGREGATION_NUM_CONSTRAINTS_", m_AGGREGATION_NUM_CONSTRAINTS_);
  text.Optional("CS_", m_has_CS_, m_CS_);
  text.Optional("X_DOF_", m_has_X_DOF_, GetEnumName(m_X_DOF_));
  text.Optional("Y_DOF_", m_has_Y_DOF_, GetEnumName(m_Y_DOF_));
  text.Optional("Z_DOF_", m_has_Z_DOF_, GetEnumName(m_Z_DOF_));
  text.Always("CHECK_ELGR_BLOCKING_", GetEnumName(m_CHECK_ELGR_BLOCKING_));
  text.Always("TOLERANCE_", m_TOLERANCE_);
  text.Optional("SCALING_CURVE_", m_has_SCALING_CURVE_, m_SCALING_CURVE_);
  text.Always("MID_PLANE_", GetEnumName(m_MID_PLANE_));
  text.Log(kLogSource, 3252, s_type);
}

void DV_CONSTRAINT_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Optional("NODE_GROUP_", m_has_NODE_GROUP_, KLV_IdType::node_group);
  ids.Optional("CHECK_GROUP_", m_has_CHECK_GROUP_, KLV_IdType::node_group);
  ids.Optional("REFERENCE_GROUP_", m_has_REFERENCE_GROUP_, KLV_IdType::node_group);
  ids.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, KLV_IdType::element_group);
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_DVC_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::design_restriction, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_FEASIBLE_START_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::start_feasibility, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_SAVE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes_by_initial, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_DUMPOPTVALUES_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes_by_initial, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_FILTER_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::restriction_filter, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_MEMBERSIZE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::member_size_bound, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_AGGREGATION_METHOD_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::aggregation_method, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_X_DOF_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::degree_of_freedom, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_Y_DOF_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::degree_of_freedom, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_Z_DOF_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::degree_of_freedom, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_CHECK_ELGR_BLOCKING_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::blocking_check_side, value));
}

std::string DV_CONSTRAINT_::GetEnumName(Enum_MID_PLANE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::mid_plane, value));
}

// ---- MONITOR_

const std::string MONITOR_::s_type = "MONITOR_";

const std::string& MONITOR_::GetType() const
{
  return s_type;
}

void MONITOR_::Load(const OrvelParfileStorage& /*storage*/, const std::string& id)
{
  m_ID_NAME_ = id;
}

void MONITOR_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("DRESP_", m_DRESP_);
  text.Log(kLogSource, 3323, s_type);
}

void MONITOR_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

// ---- ALGO_

const std::string ALGO_::s_type = "ALGO_";

const std::string& ALGO_::GetType() const
{
  return s_type;
}

void ALGO_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("STRATEGY_", m_STRATEGY_);
  keys.AlwaysEnum("DEVELOPER_OUTPUT_", m_DEVELOPER_OUTPUT_);
}

void ALGO_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("STRATEGY_", GetEnumName(m_STRATEGY_));
  text.Always("DV_", m_DV_);
  text.Always("OBJ_FUNC_", m_OBJ_FUNC_);
  text.Repeated("CONSTRAINT_", m_num_CONSTRAINT_, m_CONSTRAINT_);
  text.Repeated("DV_CONSTRAINT_", m_num_DV_CONSTRAINT_, m_DV_CONSTRAINT_);
  text.Always("OPT_PARAM_", m_OPT_PARAM_);
  text.Always("STOP_", m_STOP_);
  text.Always("PRE_PARAM_", m_PRE_PARAM_);
  text.Repeated("MESH_SMOOTH_", m_num_MESH_SMOOTH_, m_MESH_SMOOTH_);
  text.Repeated("MONITOR_", m_num_MONITOR_, m_MONITOR_);
  text.Always("AS_TOPO_OC_", m_AS_TOPO_OC_);
  text.Always("AS_TOPO_SENS_", m_AS_TOPO_SENS_);
  text.Always("AS_SHAPE_SENS_", m_AS_SHAPE_SENS_);
  text.Always("DEVELOPER_OUTPUT_", GetEnumName(m_DEVELOPER_OUTPUT_));
  text.Log(kLogSource, 3522, s_type);
}

void ALGO_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string ALGO_::GetEnumName(Enum_STRATEGY_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::strategy, value));
}

std::string ALGO_::GetEnumName(Enum_DEVELOPER_OUTPUT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

const CONSTRAINT_& ALGO_::GetCONSTRAINT_(std::uint64_t index) const
{
  return ReferenceAt(m_CONSTRAINT_, m_num_CONSTRAINT_, index, "CONSTRAINT_", s_type);
}

const DV_CONSTRAINT_& ALGO_::GetDV_CONSTRAINT_(std::uint64_t index) const
{
  return ReferenceAt(m_DV_CONSTRAINT_, m_num_DV_CONSTRAINT_, index, "DV_CONSTRAINT_", s_type);
}

const MESH_SMOOTH_& ALGO_::GetMESH_SMOOTH_(std::uint64_t index) const
{
  return ReferenceAt(m_MESH_SMOOTH_, m_num_MESH_SMOOTH_, index, "MESH_SMOOTH_", s_type);
}

const MONITOR_& ALGO_::GetMONITOR_(std::uint64_t index) const
{
  return ReferenceAt(m_MONITOR_, m_num_MONITOR_, index, "MONITOR_", s_type);
}

// ---- OPT_PARAM_

const std::string OPT_PARAM_::s_type = "OPT_PARAM_";

const std::string& OPT_PARAM_::GetType() const
{
  return s_type;
}

void OPT_PARAM_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Optional("STORE_INT_", vtmIntegerList, m_has_STORE_INT_, m_STORE_INT_);
  keys.Always("OPT_START_", vtmInteger, m_OPT_START_);
  keys.Optional("SRC_SCALE_", vtmDouble, m_has_SRC_SCALE_, m_SRC_SCALE_);
}

void OPT_PARAM_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Optional("STORE_INT_", m_has_STORE_INT_, m_STORE_INT_);
  text.Always("OPT_START_", m_OPT_START_);
  text.Optional("SRC_SCALE_", m_has_SRC_SCALE_, m_SRC_SCALE_);
  text.Log(kLogSource, 3628, s_type);
}

void OPT_PARAM_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

// ---- STOP_

const std::string STOP_::s_type = "STOP_";

const std::string& STOP_::GetType() const
{
  return s_type;
}

void STOP_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("ITER_MAX_", vtmInteger, m_ITER_MAX_);
  keys.Always("ITER_MIN_", vtmInteger, m_ITER_MIN_);
  keys.Always("RESIDUAL_OBJ_", vtmDouble, m_RESIDUAL_OBJ_);
  keys.Always("RESIDUAL_DV_", vtmDouble, m_RESIDUAL_DV_);
}

void STOP_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("ITER_MAX_", m_ITER_MAX_);
  text.Always("ITER_MIN_", m_ITER_MIN_);
  text.Always("RESIDUAL_OBJ_", m_RESIDUAL_OBJ_);
  text.Always("RESIDUAL_DV_", m_RESIDUAL_DV_);
  text.Log(kLogSource, 3711, s_type);
}

void STOP_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

// ---- MESH_SMOOTH_

const std::string MESH_SMOOTH_::s_type = "MESH_SMOOTH_";

const std::string& MESH_SMOOTH_::GetType() const
{
  return s_type;
}

void MESH_SMOOTH_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("METHOD_", m_METHOD_);
  keys.Always("CYCLE_", vtmInteger, m_CYCLE_);
  keys.Optional("FACE_GROUP_", vtmModelId, m_has_FACE_GROUP_, m_FACE_GROUP_);
  keys.Optional("NODE_GROUP_", vtmModelId, m_has_NODE_GROUP_, m_NODE_GROUP_);
  keys.Optional("ELEMENT_GROUP_", vtmModelId, m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  keys.Always("SMOOTH_CYCLES_", vtmInteger, m_SMOOTH_CYCLES_);
  keys.Always("ALPHA_", vtmDouble, m_ALPHA_);
  keys.Always("BETA_", vtmDouble, m_BETA_);
}

void MESH_SMOOTH_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("METHOD_", GetEnumName(m_METHOD_));
  text.Always("CYCLE_", m_CYCLE_);
  text.Optional("FACE_GROUP_", m_has_FACE_GROUP_, m_FACE_GROUP_);
  text.Optional("NODE_GROUP_", m_has_NODE_GROUP_, m_NODE_GROUP_);
  text.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  text.Always("SMOOTH_CYCLES_", m_SMOOTH_CYCLES_);
  text.Always("ALPHA_", m_ALPHA_);
  text.Always("BETA_", m_BETA_);
  text.Optional("FILTER_", m_has_FILTER_, m_FILTER_);
  text.Optional("DV_CONSTRAINT_", m_has_DV_CONSTRAINT_, m_DV_CONSTRAINT_);
  text.Log(kLogSource, 3986, s_type);
}

void MESH_SMOOTH_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Optional("FACE_GROUP_", m_has_FACE_GROUP_, KLV_IdType::face_group);
  ids.Optional("NODE_GROUP_", m_has_NODE_GROUP_, KLV_IdType::node_group);
  ids.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, KLV_IdType::element_group);
}

std::string MESH_SMOOTH_::GetEnumName(Enum_METHOD_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::mesh_smooth_method, value));
}

// ---- FILTER_

const std::string FILTER_::s_type = "FILTER_";

const std::string& FILTER_::GetType() const
{
  return s_type;
}

void FILTER_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.AlwaysEnum("METHOD_", m_METHOD_);
  keys.Always("RADIUS_", vtmDouble, m_RADIUS_);
  keys.Optional("X_DIRECTION_", vtmDouble, m_has_X_DIRECTION_, m_X_DIRECTION_);
  keys.Optional("Y_DIRECTION_", vtmDouble, m_has_Y_DIRECTION_, m_Y_DIRECTION_);
  keys.Optional("Z_DIRECTION_", vtmDouble, m_has_Z_DIRECTION_, m_Z_DIRECTION_);
  keys.Optional("X_POINT_", vtmDouble, m_has_X_POINT_, m_X_POINT_);
  keys.Optional("Y_POINT_", vtmDouble, m_has_Y_POINT_, m_Y_POINT_);
  keys.Optional("Z_POINT_", vtmDouble, m_has_Z_POINT_, m_Z_POINT_);
  keys.Optional("FACE_GROUP_", vtmModelId, m_has_FACE_GROUP_, m_FACE_GROUP_);
  keys.Optional("NODE_GROUP_", vtmModelId, m_has_NODE_GROUP_, m_NODE_GROUP_);
  keys.Optional("ELEMENT_GROUP_", vtmModelId, m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  keys.Always("ALPHA_", vtmDouble, m_ALPHA_);
  keys.Always("BETA_", vtmDouble, m_BETA_);
}

void FILTER_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("METHOD_", GetEnumName(m_METHOD_));
  text.Always("RADIUS_", m_RADIUS_);
  text.Optional("X_DIRECTION_", m_has_X_DIRECTION_, m_X_DIRECTION_);
  text.Optional("Y_DIRECTION_", m_has_Y_DIRECTION_, m_Y_DIRECTION_);
  text.Optional("Z_DIRECTION_", m_has_Z_DIRECTION_, m_Z_DIRECTION_);
  text.Optional("X_POINT_", m_has_X_POINT_, m_X_POINT_);
  text.Optional("Y_POINT_", m_has_Y_POINT_, m_Y_POINT_);
  text.Optional("Z_POINT_", m_has_Z_POINT_, m_Z_POINT_);
  text.Optional("FACE_GROUP_", m_has_FACE_GROUP_, m_FACE_GROUP_);
  text.Optional("NODE_GROUP_", m_has_NODE_GROUP_, m_NODE_GROUP_);
  text.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, m_ELEMENT_GROUP_);
  text.Always("ALPHA_", m_ALPHA_);
  text.Always("BETA_", m_BETA_);
  text.Log(kLogSource, 4353, s_type);
}

void FILTER_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Optional("FACE_GROUP_", m_has_FACE_GROUP_, KLV_IdType::face_group);
  ids.Optional("NODE_GROUP_", m_has_NODE_GROUP_, KLV_IdType::node_group);
  ids.Optional("ELEMENT_GROUP_", m_has_ELEMENT_GROUP_, KLV_IdType::element_group);
}

std::string FILTER_::GetEnumName(Enum_METHOD_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::filter_method, value));
}

// ---- PRE_PARAM_

const std::string PRE_PARAM_::s_type = "PRE_PARAM_";

const std::string& PRE_PARAM_::GetType() const
{
  return s_type;
}

void PRE_PARAM_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.Always("VISCOSITY_", vtmDouble, m_VISCOSITY_);
  keys.Always("RESIDUAL_", vtmDouble, m_RESIDUAL_);
  keys.Always("ITER_MAX_", vtmInteger, m_ITER_MAX_);
  keys.Always("BACKFLOW_ANGLE_", vtmInteger, m_BACKFLOW_ANGLE_);
  keys.AlwaysEnum("PTRACK_PRI_VRML_", m_PTRACK_PRI_VRML_);
  keys.AlwaysEnum("PTRACK_VAL_VRML_", m_PTRACK_VAL_VRML_);
  keys.AlwaysEnum("REF_VRML_", m_REF_VRML_);
  keys.AlwaysEnum("PTRACK_KEEP_INVALID_", m_PTRACK_KEEP_INVALID_);
  keys.AlwaysEnum("PTRACK_VRML_ADD_BOUNDS_", m_PTRACK_VRML_ADD_BOUNDS_);
}

void PRE_PARAM_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("VISCOSITY_", m_VISCOSITY_);
  text.Always("RESIDUAL_", m_RESIDUAL_);
  text.Always("ITER_MAX_", m_ITER_MAX_);
  text.Always("BACKFLOW_ANGLE_", m_BACKFLOW_ANGLE_);
  text.Always("PTRACK_PRI_VRML_", GetEnumName(m_PTRACK_PRI_VRML_));
  text.Always("PTRACK_VAL_VRML_", GetEnumName(m_PTRACK_VAL_VRML_));
  text.Always("REF_VRML_", GetEnumName(m_REF_VRML_));
  text.Always("PTRACK_KEEP_INVALID_", GetEnumName(m_PTRACK_KEEP_INVALID_));
  text.Always("PTRACK_VRML_ADD_BOUNDS_", GetEnumName(m_PTRACK_VRML_ADD_BOUNDS_));
  text.Log(kLogSource, 4570, s_type);
}

void PRE_PARAM_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string PRE_PARAM_::GetEnumName(Enum_PTRACK_PRI_VRML_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string PRE_PARAM_::GetEnumName(Enum_PTRACK_VAL_VRML_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string PRE_PARAM_::GetEnumName(Enum_REF_VRML_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string PRE_PARAM_::GetEnumName(Enum_PTRACK_KEEP_INVALID_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string PRE_PARAM_::GetEnumName(Enum_PTRACK_VRML_ADD_BOUNDS_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

// ---- AS_TOPO_OC_

const std::string AS_TOPO_OC_::s_type = "AS_TOPO_OC_";

const std::string& AS_TOPO_OC_::GetType() const
{
  return s_type;
}

void AS_TOPO_OC_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.Always("BT_", vtmDouble, m_BT_);
  keys.Always("TA_MIN_", vtmDouble, m_TA_MIN_);
  keys.Always("TA_MAX_", vtmDouble, m_TA_MAX_);
  keys.AlwaysEnum("SCALING_CURVE_TYPE_", m_SCALING_CURVE_TYPE_);
  keys.Always("SCALING_CURVE_UPDATE_ID_", vtmString, m_SCALING_CURVE_UPDATE_ID_);
  keys.Always("SCALING_CURVE_MIN_", vtmDouble, m_SCALING_CURVE_MIN_);
  keys.Always("SCALING_CURVE_MAX_", vtmDouble, m_SCALING_CURVE_MAX_);
  keys.Always("SCALING_CURVE_PENALISATION_", vtmDouble, m_SCALING_CURVE_PENALISATION_);
}

void AS_TOPO_OC_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("BT_", m_BT_);
  text.Always("TA_MIN_", m_TA_MIN_);
  text.Always("TA_MAX_", m_TA_MAX_);
  text.Always("SCALING_CURVE_TYPE_", GetEnumName(m_SCALING_CURVE_TYPE_));
  text.Always("SCALING_CURVE_UPDATE_ID_", m_SCALING_CURVE_UPDATE_ID_);
  text.Always("SCALING_CURVE_MIN_", m_SCALING_CURVE_MIN_);
  text.Always("SCALING_CURVE_MAX_", m_SCALING_CURVE_MAX_);
  text.Always("SCALING_CURVE_PENALISATION_", m_SCALING_CURVE_PENALISATION_);
  text.Log(kLogSource, 4699, s_type);
}

void AS_TOPO_OC_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string AS_TOPO_OC_::GetEnumName(Enum_SCALING_CURVE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::settings_curve_type, value));
}

// ---- AS_TOPO_SENS_

const std::string AS_TOPO_SENS_::s_type = "AS_TOPO_SENS_";

const std::string& AS_TOPO_SENS_::GetType() const
{
  return s_type;
}

void AS_TOPO_SENS_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.AlwaysEnum("ALGORITHM_", m_ALGORITHM_);
  keys.AlwaysEnum("MATH_KERNEL_", m_MATH_KERNEL_);
  keys.Optional("MIN_", vtmDouble, m_has_MIN_, m_MIN_);
  keys.Optional("MAX_", vtmDouble, m_has_MAX_, m_MAX_);
  keys.Always("MOVE_", vtmDouble, m_MOVE_);
  keys.AlwaysEnum("SCALING_CURVE_TYPE_", m_SCALING_CURVE_TYPE_);
  keys.Always("SCALING_CURVE_UPDATE_ID_", vtmString, m_SCALING_CURVE_UPDATE_ID_);
  keys.Always("SCALING_CURVE_MIN_", vtmDouble, m_SCALING_CURVE_MIN_);
  keys.Always("SCALING_CURVE_MAX_", vtmDouble, m_SCALING_CURVE_MAX_);
  keys.Always("SCALING_CURVE_PENALISATION_", vtmDouble, m_SCALING_CURVE_PENALISATION_);
  keys.AlwaysEnum("ASYM_MOVE_", m_ASYM_MOVE_);
  keys.Always("ASYM_MOVE_LOW_", vtmDouble, m_ASYM_MOVE_LOW_);
  keys.Always("ASYM_MOVE_UP_", vtmDouble, m_ASYM_MOVE_UP_);
  keys.Always("SUB_TOL_", vtmDouble, m_SUB_TOL_);
  keys.Always("PRIMAL_ITER_MIN_", vtmInteger, m_PRIMAL_ITER_MIN_);
  keys.Always("PRIMAL_ITER_MAX_", vtmInteger, m_PRIMAL_ITER_MAX_);
  keys.Always("PRIMAL_INTERVAL_", vtmInteger, m_PRIMAL_INTERVAL_);
  keys.Always("PRIMAL_RESIDUAL_", vtmDouble, m_PRIMAL_RESIDUAL_);
  keys.Always("PRIMAL_DEVIATION_", vtmDouble, m_PRIMAL_DEVIATION_);
  keys.Always("ADJOINT_ITER_MIN_", vtmInteger, m_ADJOINT_ITER_MIN_);
  keys.Always("ADJOINT_ITER_MAX_", vtmInteger, m_ADJOINT_ITER_MAX_);
  keys.Always("ADJOINT_INTERVAL_", vtmInteger, m_ADJOINT_INTERVAL_);
  keys.Always("ADJOINT_DISC_", vtmString, m_ADJOINT_DISC_);
  keys.Always("ADJOINT_DRIVER_", vtmString, m_ADJOINT_DRIVER_);
  keys.Always("ADJOINT_CFL_", vtmInteger, m_ADJOINT_CFL_);
  keys.Always("KEEP_INITIAL_", vtmString, m_KEEP_INITIAL_);
  keys.Always("KEEP_ADJOINT_", vtmString, m_KEEP_ADJOINT_);
  keys.Always("SKIP_PRESSURE_SRC_", vtmString, m_SKIP_PRESSURE_SRC_);
  keys.Always("SKIP_TURBULENT_SRC_", vtmString, m_SKIP_TURBULENT_SRC_);
}

void AS_TOPO_SENS_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("ALGORITHM_", GetEnumName(m_ALGORITHM_));
  text.Always("MATH_KERNEL_", GetEnumName(m_MATH_KERNEL_));
  text.Optional("MIN_", m_has_MIN_, m_MIN_);
  text.Optional("MAX_", m_has_MAX_, m_MAX_);
  text.Always("MOVE_", m_MOVE_);
  text.Always("SCALING_CURVE_TYPE_", GetEnumName(m_SCALING_CURVE_TYPE_));
  text.Always("SCALING_CURVE_UPDATE_ID_", m_SCALING_CURVE_UPDATE_ID_);
  text.Always("SCALING_CURVE_MIN_", m_SCALING_CURVE_MIN_);
  text.Always("SCALING_CURVE_MAX_", m_SCALING_CURVE_MAX_);
  text.Always("SCALING_CURVE_PENALISATION_", m_SCALING_CURVE_PENALISATION_);
  text.Always("ASYM_MOVE_", GetEnumName(m_ASYM_MOVE_));
  text.Always("ASYM_MOVE_LOW_", m_ASYM_MOVE_LOW_);
  text.Always("ASYM_MOVE_UP_", m_ASYM_MOVE_UP_);
  text.Always("SUB_TOL_", m_SUB_TOL_);
  text.Always("PRIMAL_ITER_MIN_", m_PRIMAL_ITER_MIN_);
  text.Always("PRIMAL_ITER_MAX_", m_PRIMAL_ITER_MAX_);
  text.Always("PRIMAL_INTERVAL_", m_PRIMAL_INTERVAL_);
  text.Always("PRIMAL_RESIDUAL_", m_PRIMAL_RESIDUAL_);
  text.Always("PRIMAL_DEVIATION_", m_PRIMAL_DEVIATION_);
  text.Always("ADJOINT_ITER_MIN_", m_ADJOINT_ITER_MIN_);
  text.Always("ADJOINT_ITER_MAX_", m_ADJOINT_ITER_MAX_);
  text.Always("ADJOINT_INTERVAL_", m_ADJOINT_INTERVAL_);
  text.Always("ADJOINT_DISC_", m_ADJOINT_DISC_);
  text.Always("ADJOINT_DRIVER_", m_ADJOINT_DRIVER_);
  text.Always("ADJOINT_CFL_", m_ADJOINT_CFL_);
  text.Always("KEEP_INITIAL_", m_KEEP_INITIAL_);
  text.Always("KEEP_ADJOINT_", m_KEEP_ADJOINT_);
  text.Always("SKIP_PRESSURE_SRC_", m_SKIP_PRESSURE_SRC_);
  text.Always("SKIP_TURBULENT_SRC_", m_SKIP_TURBULENT_SRC_);
  text.Log(kLogSource, 5012, s_type);
}

void AS_TOPO_SENS_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string AS_TOPO_SENS_::GetEnumName(Enum_ALGORITHM_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::topology_algorithm, value));
}

std::string AS_TOPO_SENS_::GetEnumName(Enum_MATH_KERNEL_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::math_kernel, value));
}

std::string AS_TOPO_SENS_::GetEnumName(Enum_SCALING_CURVE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::settings_curve_type, value));
}

std::string AS_TOPO_SENS_::GetEnumName(Enum_ASYM_MOVE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::asymmetric_move, value));
}

// ---- AS_SHAPE_SENS_

const std::string AS_SHAPE_SENS_::s_type = "AS_SHAPE_SENS_";

const std::string& AS_SHAPE_SENS_::GetType() const
{
  return s_type;
}

void AS_SHAPE_SENS_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.AlwaysEnum("ALGORITHM_", m_ALGORITHM_);
  keys.AlwaysEnum("MATH_KERNEL_", m_MATH_KERNEL_);
  keys.Optional("MIN_", vtmDouble, m_has_MIN_, m_MIN_);
  keys.Optional("MAX_", vtmDouble, m_has_MAX_, m_MAX_);
  keys.Always("MOVE_", vtmDouble, m_MOVE_);
  keys.AlwaysEnum("SCALING_CURVE_TYPE_", m_SCALING_CURVE_TYPE_);
  keys.Always("SCALING_CURVE_UPDATE_ID_", vtmString, m_SCALING_CURVE_UPDATE_ID_);
  keys.Always("SCALING_CURVE_MIN_", vtmDouble, m_SCALING_CURVE_MIN_);
  keys.Always("SCALING_CURVE_MAX_", vtmDouble, m_SCALING_CURVE_MAX_);
  keys.Always("SCALING_CURVE_PENALISATION_", vtmDouble, m_SCALING_CURVE_PENALISATION_);
  keys.AlwaysEnum("ASYM_MOVE_", m_ASYM_MOVE_);
  keys.Always("ASYM_MOVE_LOW_", vtmDouble, m_ASYM_MOVE_LOW_);
  keys.Always("ASYM_MOVE_UP_", vtmDouble, m_ASYM_MOVE_UP_);
  keys.Always("SUB_TOL_", vtmDouble, m_SUB_TOL_);
  keys.AlwaysEnum("NORMAL_UPDATE_", m_NORMAL_UPDATE_);
  keys.AlwaysEnum("DV_TYPE_", m_DV_TYPE_);
}

void AS_SHAPE_SENS_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("ALGORITHM_", GetEnumName(m_ALGORITHM_));
  text.Always("MATH_KERNEL_", GetEnumName(m_MATH_KERNEL_));
  text.Optional("MIN_", m_has_MIN_, m_MIN_);
  text.Optional("MAX_", m_has_MAX_, m_MAX_);
  text.Always("MOVE_", m_MOVE_);
  text.Always("SCALING_CURVE_TYPE_", GetEnumName(m_SCALING_CURVE_TYPE_));
  text.Always("SCALING_CURVE_UPDATE_ID_", m_SCALING_CURVE_UPDATE_ID_);
  text.Always("SCALING_CURVE_MIN_", m_SCALING_CURVE_MIN_);
  text.Always("SCALING_CURVE_MAX_", m_SCALING_CURVE_MAX_);
  text.Always("SCALING_CURVE_PENALISATION_", m_SCALING_CURVE_PENALISATION_);
  text.Always("ASYM_MOVE_", GetEnumName(m_ASYM_MOVE_));
  text.Always("ASYM_MOVE_LOW_", m_ASYM_MOVE_LOW_);
  text.Always("ASYM_MOVE_UP_", m_ASYM_MOVE_UP_);
  text.Always("SUB_TOL_", m_SUB_TOL_);
  text.Repeated("FILTER_", m_num_FILTER_, m_FILTER_);
  text.Always("NORMAL_UPDATE_", GetEnumName(m_NORMAL_UPDATE_));
  text.Always("DV_TYPE_", GetEnumName(m_DV_TYPE_));
  text.Log(kLogSource, 5335, s_type);
}

void AS_SHAPE_SENS_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_ALGORITHM_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::shape_algorithm, value));
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_MATH_KERNEL_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::math_kernel, value));
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_SCALING_CURVE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::settings_curve_type, value));
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_ASYM_MOVE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::asymmetric_move, value));
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_NORMAL_UPDATE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::normal_update, value));
}

std::string AS_SHAPE_SENS_::GetEnumName(Enum_DV_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::shape_variable_type, value));
}

const FILTER_& AS_SHAPE_SENS_::GetFILTER_(std::uint64_t index) const
{
  return ReferenceAt(m_FILTER_, m_num_FILTER_, index, "FILTER_", s_type);
}

// ---- FLOWPATHS_

const std::string FLOWPATHS_::s_type = "FLOWPATHS_";

const std::string& FLOWPATHS_::GetType() const
{
  return s_type;
}

void FLOWPATHS_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Repeated("IN_", vtmModelId, m_num_IN_, m_IN_);
  keys.Repeated("OUT_", vtmModelId, m_num_OUT_, m_OUT_);
}

void FLOWPATHS_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Repeated("IN_", m_num_IN_, m_IN_);
  text.Repeated("OUT_", m_num_OUT_, m_OUT_);
  text.Log(kLogSource, 5486, s_type);
}

void FLOWPATHS_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Repeated("IN_", m_num_IN_, KLV_IdType::face_group);
  ids.Repeated("OUT_", m_num_OUT_, KLV_IdType::face_group);
}

// ---- OUTPUT_

const std::string OUTPUT_::s_type = "OUTPUT_";

const std::string& OUTPUT_::GetType() const
{
  return s_type;
}

void OUTPUT_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("FILENAME_", vtmString, m_FILENAME_);
  keys.AlwaysEnum("FORMAT_", m_FORMAT_);
  keys.Always("ITERATION_", vtmIntegerList, m_ITERATION_);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.AlwaysEnum("RESULT_", m_RESULT_);
  keys.AlwaysEnum("SPREAD_ALGO_", m_SPREAD_ALGO_);
  keys.Optional("CUTOFF_", vtmDoubleList, m_has_CUTOFF_, m_CUTOFF_);
  keys.Always("BACKFLOW_ANGLE_", vtmInteger, m_BACKFLOW_ANGLE_);
  keys.Always("SPREAD_PERCENTAGE_", vtmDouble, m_SPREAD_PERCENTAGE_);
  keys.AlwaysEnum("INVERT_", m_INVERT_);
  keys.AlwaysEnum("DESIGN_ONLY_", m_DESIGN_ONLY_);
  keys.AlwaysEnum("KEEP_POST_DATA_", m_KEEP_POST_DATA_);
  keys.Always("ELEMENT_GROUP_", vtmModelId, m_ELEMENT_GROUP_);
}

void OUTPUT_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("FILENAME_", m_FILENAME_);
  text.Always("FORMAT_", GetEnumName(m_FORMAT_));
  text.Always("ITERATION_", m_ITERATION_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Always("RESULT_", GetEnumName(m_RESULT_));
  text.Always("SPREAD_ALGO_", GetEnumName(m_SPREAD_ALGO_));
  text.Optional("CUTOFF_", m_has_CUTOFF_, m_CUTOFF_);
  text.Always("BACKFLOW_ANGLE_", m_BACKFLOW_ANGLE_);
  text.Always("SPREAD_PERCENTAGE_", m_SPREAD_PERCENTAGE_);
  text.Always("INVERT_", GetEnumName(m_INVERT_));
  text.Always("DESIGN_ONLY_", GetEnumName(m_DESIGN_ONLY_));
  text.Always("KEEP_POST_DATA_", GetEnumName(m_KEEP_POST_DATA_));
  text.Always("ELEMENT_GROUP_", m_ELEMENT_GROUP_);
  text.Log(kLogSource, 5846, s_type);
}

void OUTPUT_::ValidateModelIds(
  const OrvelParfileStorage& storage, std::string& id, std::vector<KLV_ParfileException>& errors)
{
  ModelIdChecker ids(storage, {s_type, COMMAND_NAME, m_ID_NAME_}, id, errors);
  ids.Always("ELEMENT_GROUP_", KLV_IdType::element_group);
}

std::string OUTPUT_::GetEnumName(Enum_FORMAT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::output_format, value));
}

std::string OUTPUT_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::output_data, value));
}

std::string OUTPUT_::GetEnumName(Enum_RESULT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::output_result, value));
}

std::string OUTPUT_::GetEnumName(Enum_SPREAD_ALGO_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::spread_algorithm, value));
}

std::string OUTPUT_::GetEnumName(Enum_INVERT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string OUTPUT_::GetEnumName(Enum_DESIGN_ONLY_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

std::string OUTPUT_::GetEnumName(Enum_KEEP_POST_DATA_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::no_yes, value));
}

// ---- SCALING_CURVE_

const std::string SCALING_CURVE_::s_type = "SCALING_CURVE_";

const std::string& SCALING_CURVE_::GetType() const
{
  return s_type;
}

void SCALING_CURVE_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.AlwaysEnum("TYPE_", m_TYPE_);
  keys.Always("UPDATE_ID_", vtmString, m_UPDATE_ID_);
  keys.Always("MIN_", vtmDouble, m_MIN_);
  keys.Always("MAX_", vtmDouble, m_MAX_);
  keys.Always("PENALISATION_", vtmDouble, m_PENALISATION_);
  keys.Always("DATA_SHIFT_", vtmDouble, m_DATA_SHIFT_);
}

void SCALING_CURVE_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("TYPE_", GetEnumName(m_TYPE_));
  text.Always("UPDATE_ID_", m_UPDATE_ID_);
  text.Always("MIN_", m_MIN_);
  text.Always("MAX_", m_MAX_);
  text.Always("PENALISATION_", m_PENALISATION_);
  text.Always("DATA_SHIFT_", m_DATA_SHIFT_);
  text.Log(kLogSource, 5971, s_type);
}

void SCALING_CURVE_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string SCALING_CURVE_::GetEnumName(Enum_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::gyre_commands::scaling_curve_type, value));
}
