/// \file
/// The command classes of commands/smooth_commands.h.
///
/// Generated from smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "OrvelCommands/commands/smooth_commands.h"

#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/commands/load_steps.h"
#include "OrvelCommands/commands/model_id_steps.h"
#include "OrvelCommands/commands/print_steps.h"
#include "OrvelCommands/commands/reference_at.h"

using namespace orvel;
using namespace orvel::detail;

namespace
{
constexpr const char* kLogSource = "LocalGenerated\\win_b64\\smooth_commands";
}

// ---- SMOOTH_

const std::string SMOOTH_::s_type = "SMOOTH_";

const std::string& SMOOTH_::GetType() const
{
  return s_type;
}

void SMOOTH_::Load(const OrvelParfileStorage& storage, const std::string& id)
{
  m_ID_NAME_ = id;
  const KeyLoader keys(storage, s_type, id);
  keys.Always("PATCH_ID_", vtmString, m_PATCH_ID_);
  keys.AlwaysEnum("TASK_", m_TASK_);
  keys.AlwaysEnum("ALL_ITERATIONS_", m_ALL_ITERATIONS_);
  keys.Always("ISO_VALUE_", vtmDouble, m_ISO_VALUE_);
  keys.Always("TARGET_VOLUME_", vtmDouble, m_TARGET_VOLUME_);
  keys.Optional("MODEL_FILE_", vtmString, m_has_MODEL_FILE_, m_MODEL_FILE_);
  keys.Always("RESULT_FILE_", vtmString, m_RESULT_FILE_);
  keys.Optional("ITERATION_", vtmIntegerList, m_has_ITERATION_, m_ITERATION_);
  keys.AlwaysEnum("VTM_RESULT_", m_VTM_RESULT_);
  keys.Optional("OUTPUT_FILE_", vtmString, m_has_OUTPUT_FILE_, m_OUTPUT_FILE_);
  keys.RepeatedEnum("FORMAT_", m_num_FORMAT_, m_FORMAT_);
  keys.AlwaysEnum("STL_GROUPS_", m_STL_GROUPS_);
  keys.AlwaysEnum("OUTPUT_SURFACE_", m_OUTPUT_SURFACE_);
  keys.AlwaysEnum("VTF_ORGMODEL_", m_VTF_ORGMODEL_);
  keys.AlwaysEnum("IGES_UNIT_", m_IGES_UNIT_);
  keys.AlwaysEnum("SLICES_", m_SLICES_);
  keys.Repeated("SLICE_X_", vtmDouble, m_num_SLICE_X_, m_SLICE_X_);
  keys.Repeated("SLICE_Y_", vtmDouble, m_num_SLICE_Y_, m_SLICE_Y_);
  keys.Repeated("SLICE_Z_", vtmDouble, m_num_SLICE_Z_, m_SLICE_Z_);
  keys.AlwaysEnum("SLICE_PRIMARY_", m_SLICE_PRIMARY_);
  keys.Always("SLICE_NUMBER_", vtmInteger, m_SLICE_NUMBER_);
  keys.Always("SLICE_DISTANCE_", vtmDouble, m_SLICE_DISTANCE_);
  keys.AlwaysEnum("SLICE_INTERSECTION_", m_SLICE_INTERSECTION_);
  keys.AlwaysEnum("SLICE_REDUCTION_", m_SLICE_REDUCTION_);
  keys.Always("SLICE_RED_ANGLE_", vtmDouble, m_SLICE_RED_ANGLE_);
  keys.AlwaysEnum("SLICE_OFFSET_", m_SLICE_OFFSET_);
  keys.Always("SLICE_REF_QUANT_", vtmInteger, m_SLICE_REF_QUANT_);
  keys.Always("SLICE_REF_FACTOR_", vtmDouble, m_SLICE_REF_FACTOR_);
  keys.AlwaysEnum("SLICE_FILTER_CURVES_", m_SLICE_FILTER_CURVES_);
  keys.AlwaysEnum("SLICE_FORMAT_", m_SLICE_FORMAT_);
  keys.AlwaysEnum("BORDER_", m_BORDER_);
  keys.AlwaysEnum("BORDER_FORMAT_", m_BORDER_FORMAT_);
  keys.Always("GROUP_FILE_", vtmString, m_GROUP_FILE_);
  keys.Repeated("EXCLUDE_GROUP_", vtmString, m_num_EXCLUDE_GROUP_, m_EXCLUDE_GROUP_);
  keys.Repeated("INCLUDE_GROUP_", vtmString, m_num_INCLUDE_GROUP_, m_INCLUDE_GROUP_);
  keys.Repeated("SURFACE_GROUP_", vtmString, m_num_SURFACE_GROUP_, m_SURFACE_GROUP_);
  keys.Optional("ND_GROUP_", vtmString, m_has_ND_GROUP_, m_ND_GROUP_);
  keys.Repeated("ISO_GROUP_NAME_", vtmString, m_num_ISO_GROUP_NAME_, m_ISO_GROUP_NAME_);
  keys.Repeated("ISO_GROUP_VALUE_", vtmDouble, m_num_ISO_GROUP_VALUE_, m_ISO_GROUP_VALUE_);
  keys.Repeated("VOL_GROUP_NAME_", vtmString, m_num_VOL_GROUP_NAME_, m_VOL_GROUP_NAME_);
  keys.Repeated("VOL_GROUP_VALUE_", vtmDouble, m_num_VOL_GROUP_VALUE_, m_VOL_GROUP_VALUE_);
  keys.Always("SMOOTH_CYCLES_", vtmInteger, m_SMOOTH_CYCLES_);
  keys.AlwaysEnum("NO_SORT_", m_NO_SORT_);
  keys.Always("MIN_DENS_WALL_", vtmDouble, m_MIN_DENS_WALL_);
  keys.AlwaysEnum("REDUCTION_", m_REDUCTION_);
  keys.Always("REDUCTION_RATE_", vtmDouble, m_REDUCTION_RATE_);
  keys.Always("REDUCTION_ANGLE_", vtmDouble, m_REDUCTION_ANGLE_);
  keys.Always("MIN_ANGLE_", vtmDouble, m_MIN_ANGLE_);
  keys.Always("MIN_FACE_ANGLE_", vtmDouble, m_MIN_FACE_ANGLE_);
  keys.AlwaysEnum("SELF_INTERSECTION_", m_SELF_INTERSECTION_);
  keys.Optional("ORIGINAL_SURFACE_TOLERANCE_VALUE_", vtmDouble, m_has_ORIGINAL_SURFACE_TOLERANCE_VALUE_, m_ORIGINAL_SURFACE_TOLERANCE_VALUE_);
  keys.OptionalEnum("ORIGINAL_SURFACE_TOLERANCE_TYPE_", m_has_ORIGINAL_SURFACE_TOLERANCE_TYPE_, m_ORIGINAL_SURFACE_TOLERANCE_TYPE_);
  keys.AlwaysEnum("MIXED_MESH_", m_MIXED_MESH_);
  keys.AlwaysEnum("EXCLUDE_LOADED_", m_EXCLUDE_LOADED_);
  keys.AlwaysEnum("ISO_SEQUENCE_", m_ISO_SEQUENCE_);
  keys.AlwaysEnum("O_SURF_SMOOTHING_", m_O_SURF_SMOOTHING_);
  keys.AlwaysEnum("RESULT_FILTERING_", m_RESULT_FILTERING_);
  keys.Always("INPUT_SCALE_", vtmDouble, m_INPUT_SCALE_);
  keys.Always("COMPONENT_LIM_SIZE_", vtmDouble, m_COMPONENT_LIM_SIZE_);
  keys.AlwaysEnum("IF_SMOOTHING_", m_IF_SMOOTHING_);
  keys.AlwaysEnum("IF_SMOOTH_FROZEN_", m_IF_SMOOTH_FROZEN_);
  keys.Always("IF_TOLERANCE_", vtmDouble, m_IF_TOLERANCE_);
  keys.Always("IF_BORDER_CYCLES_", vtmInteger, m_IF_BORDER_CYCLES_);
  keys.Always("IF_INNER_CYCLES_", vtmInteger, m_IF_INNER_CYCLES_);
  keys.AlwaysEnum("SHRINKAGE_CORRECTION_", m_SHRINKAGE_CORRECTION_);
  keys.Always("LAPLACE_ALPHA_", vtmDouble, m_LAPLACE_ALPHA_);
  keys.Always("LAPLACE_BETA_", vtmDouble, m_LAPLACE_BETA_);
  keys.Always("WALL_TOLERANCE_", vtmDouble, m_WALL_TOLERANCE_);
}

void SMOOTH_::ToString() const
{
  CommandPrinter text(m_ID_NAME_);
  text.Always("PATCH_ID_", m_PATCH_ID_);
  text.Always("TASK_", GetEnumName(m_TASK_));
  text.Always("ALL_ITERATIONS_", GetEnumName(m_ALL_ITERATIONS_));
  text.Always("ISO_VALUE_", m_ISO_VALUE_);
  text.Always("TARGET_VOLUME_", m_TARGET_VOLUME_);
  text.Optional("MODEL_FILE_", m_has_MODEL_FILE_, m_MODEL_FILE_);
  text.Always("RESULT_FILE_", m_RESULT_FILE_);
  text.Optional("ITERATION_", m_has_ITERATION_, m_ITERATION_);
  text.Always("VTM_RESULT_", GetEnumName(m_VTM_RESULT_));
  text.Optional("OUTPUT_FILE_", m_has_OUTPUT_FILE_, m_OUTPUT_FILE_);
  text.RepeatedEnum<Enum_FORMAT_>("FORMAT_", m_num_FORMAT_, m_FORMAT_, &GetEnumName);
  text.Always("STL_GROUPS_", GetEnumName(m_STL_GROUPS_));
  text.Always("OUTPUT_SURFACE_", GetEnumName(m_OUTPUT_SURFACE_));
  text.Always("VTF_ORGMODEL_", GetEnumName(m_VTF_ORGMODEL_));
  text.Always("IGES_UNIT_", GetEnumName(m_IGES_UNIT_));
  text.Always("SLICES_", GetEnumName(m_SLICES_));
  text.Repeated("SLICE_X_", m_num_SLICE_X_, m_SLICE_X_);
  text.Repeated("SLICE_Y_", m_num_SLICE_Y_, m_SLICE_Y_);
  text.Repeated("SLICE_Z_", m_num_SLICE_Z_, m_SLICE_Z_);
  text.Always("SLICE_PRIMARY_", GetEnumName(m_SLICE_PRIMARY_));
  text.Always("SLICE_NUMBER_", m_SLICE_NUMBER_);
  text.Always("SLICE_DISTANCE_", m_SLICE_DISTANCE_);
  text.Always("SLICE_INTERSECTION_", GetEnumName(m_SLICE_INTERSECTION_));
  text.Always("SLICE_REDUCTION_", GetEnumName(m_SLICE_REDUCTION_));
  text.Always("SLICE_RED_ANGLE_", m_SLICE_RED_ANGLE_);
  text.Always("SLICE_OFFSET_", GetEnumName(m_SLICE_OFFSET_));
  text.Always("SLICE_REF_QUANT_", m_SLICE_REF_QUANT_);
  text.Always("SLICE_REF_FACTOR_", m_SLICE_REF_FACTOR_);
  text.Always("SLICE_FILTER_CURVES_", GetEnumName(m_SLICE_FILTER_CURVES_));
  text.Always("SLICE_FORMAT_", GetEnumName(m_SLICE_FORMAT_));
  text.Always("BORDER_", GetEnumName(m_BORDER_));
  text.Always("BORDER_FORMAT_", GetEnumName(m_BORDER_FORMAT_));
  text.Always("GROUP_FILE_", m_GROUP_FILE_);
  text.Repeated("EXCLUDE_GROUP_", m_num_EXCLUDE_GROUP_, m_EXCLUDE_GROUP_);
  text.Repeated("INCLUDE_GROUP_", m_num_INCLUDE_GROUP_, m_INCLUDE_GROUP_);
  text.Repeated("SURFACE_GROUP_", m_num_SURFACE_GROUP_, m_SURFACE_GROUP_);
  text.Optional("ND_GROUP_", m_has_ND_GROUP_, m_ND_GROUP_);
  text.Repeated("ISO_GROUP_NAME_", m_num_ISO_GROUP_NAME_, m_ISO_GROUP_NAME_);
  text.Repeated("ISO_GROUP_VALUE_", m_num_ISO_GROUP_VALUE_, m_ISO_GROUP_VALUE_);
  text.Repeated("VOL_GROUP_NAME_", m_num_VOL_GROUP_NAME_, m_VOL_GROUP_NAME_);
  text.Repeated("VOL_GROUP_VALUE_", m_num_VOL_GROUP_VALUE_, m_VOL_GROUP_VALUE_);
  text.Always("SMOOTH_CYCLES_", m_SMOOTH_CYCLES_);
  text.Always("NO_SORT_", GetEnumName(m_NO_SORT_));
  text.Always("MIN_DENS_WALL_", m_MIN_DENS_WALL_);
  text.Always("REDUCTION_", GetEnumName(m_REDUCTION_));
  text.Always("REDUCTION_RATE_", m_REDUCTION_RATE_);
  text.Always("REDUCTION_ANGLE_", m_REDUCTION_ANGLE_);
  text.Always("MIN_ANGLE_", m_MIN_ANGLE_);
  text.Always("MIN_FACE_ANGLE_", m_MIN_FACE_ANGLE_);
  text.Always("SELF_INTERSECTION_", GetEnumName(m_SELF_INTERSECTION_));
  text.Optional("ORIGINAL_SURFACE_TOLERANCE_VALUE_", m_has_ORIGINAL_SURFACE_TOLERANCE_VALUE_, m_ORIGINAL_SURFACE_TOLERANCE_VALUE_);
  text.Optional("ORIGINAL_SURFACE_TOLERANCE_TYPE_", m_has_ORIGINAL_SURFACE_TOLERANCE_TYPE_, GetEnumName(m_ORIGINAL_SURFACE_TOLERANCE_TYPE_));
  text.Always("MIXED_MESH_", GetEnumName(m_MIXED_MESH_));
  text.Always("EXCLUDE_LOADED_", GetEnumName(m_EXCLUDE_LOADED_));
  text.Always("ISO_SEQUENCE_", GetEnumName(m_ISO_SEQUENCE_));
  text.Always("O_SURF_SMOOTHING_", GetEnumName(m_O_SURF_SMOOTHING_));
  text.Always("RESULT_FILTERING_", GetEnumName(m_RESULT_FILTERING_));
  text.Always("INPUT_SCALE_", m_INPUT_SCALE_);
  text.Always("COMPONENT_LIM_SIZE_", m_COMPONENT_LIM_SIZE_);
  text.Always("IF_SMOOTHING_", GetEnumName(m_IF_SMOOTHING_));
  text.Always("IF_SMOOTH_FROZEN_", GetEnumName(m_IF_SMOOTH_FROZEN_));
  text.Always("IF_TOLERANCE_", m_IF_TOLERANCE_);
  text.Always("IF_BORDER_CYCLES_", m_IF_BORDER_CYCLES_);
  text.Always("IF_INNER_CYCLES_", m_IF_INNER_CYCLES_);
  text.Always("SHRINKAGE_CORRECTION_", GetEnumName(m_SHRINKAGE_CORRECTION_));
  text.Always("LAPLACE_ALPHA_", m_LAPLACE_ALPHA_);
  text.Always("LAPLACE_BETA_", m_LAPLACE_BETA_);
  text.Always("WALL_TOLERANCE_", m_WALL_TOLERANCE_);
  text.Log(kLogSource, 1371, s_type);
}

void SMOOTH_::ValidateModelIds(
  const OrvelParfileStorage& /*storage*/, std::string& /*id*/, std::vector<KLV_ParfileException>& /*errors*/)
{
}

std::string SMOOTH_::GetEnumName(Enum_TASK_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::task, value));
}

std::string SMOOTH_::GetEnumName(Enum_ALL_ITERATIONS_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_VTM_RESULT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_FORMAT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::surface_format, value));
}

std::string SMOOTH_::GetEnumName(Enum_STL_GROUPS_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_OUTPUT_SURFACE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::output_surface, value));
}

std::string SMOOTH_::GetEnumName(Enum_VTF_ORGMODEL_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_IGES_UNIT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::iges_unit, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICES_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_PRIMARY_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_INTERSECTION_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_REDUCTION_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_OFFSET_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_FILTER_CURVES_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SLICE_FORMAT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::curve_format, value));
}

std::string SMOOTH_::GetEnumName(Enum_BORDER_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_BORDER_FORMAT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::curve_format, value));
}

std::string SMOOTH_::GetEnumName(Enum_NO_SORT_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_REDUCTION_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SELF_INTERSECTION_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::self_intersection, value));
}

std::string SMOOTH_::GetEnumName(Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::tolerance_type, value));
}

std::string SMOOTH_::GetEnumName(Enum_MIXED_MESH_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_EXCLUDE_LOADED_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_ISO_SEQUENCE_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::iso_sequence, value));
}

std::string SMOOTH_::GetEnumName(Enum_O_SURF_SMOOTHING_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::original_surface_smoothing, value));
}

std::string SMOOTH_::GetEnumName(Enum_RESULT_FILTERING_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::result_filtering, value));
}

std::string SMOOTH_::GetEnumName(Enum_IF_SMOOTHING_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_IF_SMOOTH_FROZEN_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}

std::string SMOOTH_::GetEnumName(Enum_SHRINKAGE_CORRECTION_ value)
{
  return std::string(schema::EnumeratorName(schema::data::smooth_commands::no_yes, value));
}
