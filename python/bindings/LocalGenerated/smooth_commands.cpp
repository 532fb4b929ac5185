/// \file
/// The Python classes of commands/smooth_commands.h.
///
/// Generated from smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "CommandBinding.h"
#include "LocalGenerated/command_bindings.h"

#include "OrvelCommands/commands/smooth_commands.h"

namespace orvel::python
{

void Bind_smooth_commands(pybind11::module_& module)
{
  CommandBinding<SMOOTH_>(module)
    .Always("PATCH_ID_", &SMOOTH_::GetPATCH_ID_)
    .Always("TASK_", &SMOOTH_::GetTASK_)
    .Always("ALL_ITERATIONS_", &SMOOTH_::GetALL_ITERATIONS_)
    .Always("ISO_VALUE_", &SMOOTH_::GetISO_VALUE_)
    .Always("TARGET_VOLUME_", &SMOOTH_::GetTARGET_VOLUME_)
    .Optional("MODEL_FILE_", &SMOOTH_::HasMODEL_FILE_, &SMOOTH_::GetMODEL_FILE_)
    .Always("RESULT_FILE_", &SMOOTH_::GetRESULT_FILE_)
    .Optional("ITERATION_", &SMOOTH_::HasITERATION_, &SMOOTH_::GetITERATION_)
    .Always("VTM_RESULT_", &SMOOTH_::GetVTM_RESULT_)
    .Optional("OUTPUT_FILE_", &SMOOTH_::HasOUTPUT_FILE_, &SMOOTH_::GetOUTPUT_FILE_)
    .Repeated("FORMAT_", &SMOOTH_::GetFORMAT_)
    .Always("STL_GROUPS_", &SMOOTH_::GetSTL_GROUPS_)
    .Always("OUTPUT_SURFACE_", &SMOOTH_::GetOUTPUT_SURFACE_)
    .Always("VTF_ORGMODEL_", &SMOOTH_::GetVTF_ORGMODEL_)
    .Always("IGES_UNIT_", &SMOOTH_::GetIGES_UNIT_)
    .Always("SLICES_", &SMOOTH_::GetSLICES_)
    .Repeated("SLICE_X_", &SMOOTH_::GetSLICE_X_)
    .Repeated("SLICE_Y_", &SMOOTH_::GetSLICE_Y_)
    .Repeated("SLICE_Z_", &SMOOTH_::GetSLICE_Z_)
    .Always("SLICE_PRIMARY_", &SMOOTH_::GetSLICE_PRIMARY_)
    .Always("SLICE_NUMBER_", &SMOOTH_::GetSLICE_NUMBER_)
    .Always("SLICE_DISTANCE_", &SMOOTH_::GetSLICE_DISTANCE_)
    .Always("SLICE_INTERSECTION_", &SMOOTH_::GetSLICE_INTERSECTION_)
    .Always("SLICE_REDUCTION_", &SMOOTH_::GetSLICE_REDUCTION_)
    .Always("SLICE_RED_ANGLE_", &SMOOTH_::GetSLICE_RED_ANGLE_)
    .Always("SLICE_OFFSET_", &SMOOTH_::GetSLICE_OFFSET_)
    .Always("SLICE_REF_QUANT_", &SMOOTH_::GetSLICE_REF_QUANT_)
    .Always("SLICE_REF_FACTOR_", &SMOOTH_::GetSLICE_REF_FACTOR_)
    .Always("SLICE_FILTER_CURVES_", &SMOOTH_::GetSLICE_FILTER_CURVES_)
    .Always("SLICE_FORMAT_", &SMOOTH_::GetSLICE_FORMAT_)
    .Always("BORDER_", &SMOOTH_::GetBORDER_)
    .Always("BORDER_FORMAT_", &SMOOTH_::GetBORDER_FORMAT_)
    .Always("GROUP_FILE_", &SMOOTH_::GetGROUP_FILE_)
    .Repeated("EXCLUDE_GROUP_", &SMOOTH_::GetEXCLUDE_GROUP_)
    .Repeated("INCLUDE_GROUP_", &SMOOTH_::GetINCLUDE_GROUP_)
    .Repeated("SURFACE_GROUP_", &SMOOTH_::GetSURFACE_GROUP_)
    .Optional("ND_GROUP_", &SMOOTH_::HasND_GROUP_, &SMOOTH_::GetND_GROUP_)
    .Repeated("ISO_GROUP_NAME_", &SMOOTH_::GetISO_GROUP_NAME_)
    .Repeated("ISO_GROUP_VALUE_", &SMOOTH_::GetISO_GROUP_VALUE_)
    .Repeated("VOL_GROUP_NAME_", &SMOOTH_::GetVOL_GROUP_NAME_)
    .Repeated("VOL_GROUP_VALUE_", &SMOOTH_::GetVOL_GROUP_VALUE_)
    .Always("SMOOTH_CYCLES_", &SMOOTH_::GetSMOOTH_CYCLES_)
    .Always("NO_SORT_", &SMOOTH_::GetNO_SORT_)
    .Always("MIN_DENS_WALL_", &SMOOTH_::GetMIN_DENS_WALL_)
    .Always("REDUCTION_", &SMOOTH_::GetREDUCTION_)
    .Always("REDUCTION_RATE_", &SMOOTH_::GetREDUCTION_RATE_)
    .Always("REDUCTION_ANGLE_", &SMOOTH_::GetREDUCTION_ANGLE_)
    .Always("MIN_ANGLE_", &SMOOTH_::GetMIN_ANGLE_)
    .Always("MIN_FACE_ANGLE_", &SMOOTH_::GetMIN_FACE_ANGLE_)
    .Always("SELF_INTERSECTION_", &SMOOTH_::GetSELF_INTERSECTION_)
    .Optional("ORIGINAL_SURFACE_TOLERANCE_VALUE_", &SMOOTH_::HasORIGINAL_SURFACE_TOLERANCE_VALUE_, &SMOOTH_::GetORIGINAL_SURFACE_TOLERANCE_VALUE_)
    .Optional("ORIGINAL_SURFACE_TOLERANCE_TYPE_", &SMOOTH_::HasORIGINAL_SURFACE_TOLERANCE_TYPE_, &SMOOTH_::GetORIGINAL_SURFACE_TOLERANCE_TYPE_)
    .Always("MIXED_MESH_", &SMOOTH_::GetMIXED_MESH_)
    .Always("EXCLUDE_LOADED_", &SMOOTH_::GetEXCLUDE_LOADED_)
    .Always("ISO_SEQUENCE_", &SMOOTH_::GetISO_SEQUENCE_)
    .Always("O_SURF_SMOOTHING_", &SMOOTH_::GetO_SURF_SMOOTHING_)
    .Always("RESULT_FILTERING_", &SMOOTH_::GetRESULT_FILTERING_)
    .Always("INPUT_SCALE_", &SMOOTH_::GetINPUT_SCALE_)
    .Always("COMPONENT_LIM_SIZE_", &SMOOTH_::GetCOMPONENT_LIM_SIZE_)
    .Always("IF_SMOOTHING_", &SMOOTH_::GetIF_SMOOTHING_)
    .Always("IF_SMOOTH_FROZEN_", &SMOOTH_::GetIF_SMOOTH_FROZEN_)
    .Always("IF_TOLERANCE_", &SMOOTH_::GetIF_TOLERANCE_)
    .Always("IF_BORDER_CYCLES_", &SMOOTH_::GetIF_BORDER_CYCLES_)
    .Always("IF_INNER_CYCLES_", &SMOOTH_::GetIF_INNER_CYCLES_)
    .Always("SHRINKAGE_CORRECTION_", &SMOOTH_::GetSHRINKAGE_CORRECTION_)
    .Always("LAPLACE_ALPHA_", &SMOOTH_::GetLAPLACE_ALPHA_)
    .Always("LAPLACE_BETA_", &SMOOTH_::GetLAPLACE_BETA_)
    .Always("WALL_TOLERANCE_", &SMOOTH_::GetWALL_TOLERANCE_);
}

}  // namespace orvel::python
