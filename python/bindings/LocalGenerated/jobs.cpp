/// \file
/// The Python classes of the aggregates.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "JobBinding.h"
#include "LocalGenerated/command_bindings.h"

namespace orvel::python
{

void BindJobs(pybind11::module_& module)
{
  JobBinding<Gyre_Parfile>(module, "Gyre_Parfile", "The parameter file of a fluid optimization job.")
    .One("MODEL_", &Gyre_Parfile::GetMODEL_)
    .Any("ELEMENT_GROUP_", &Gyre_Parfile::GetELEMENT_GROUP_)
    .Any("FACE_GROUP_", &Gyre_Parfile::GetFACE_GROUP_)
    .Any("NODE_GROUP_", &Gyre_Parfile::GetNODE_GROUP_)
    .Any("DV_", &Gyre_Parfile::GetDV_)
    .Any("DRESP_", &Gyre_Parfile::GetDRESP_)
    .Any("OPERATOR_", &Gyre_Parfile::GetOPERATOR_)
    .One("OBJ_FUNC_", &Gyre_Parfile::GetOBJ_FUNC_)
    .Any("CONSTRAINT_", &Gyre_Parfile::GetCONSTRAINT_)
    .Any("CS_", &Gyre_Parfile::GetCS_)
    .Any("DV_CONSTRAINT_", &Gyre_Parfile::GetDV_CONSTRAINT_)
    .Any("MONITOR_", &Gyre_Parfile::GetMONITOR_)
    .One("ALGO_", &Gyre_Parfile::GetALGO_)
    .Any("OPT_PARAM_", &Gyre_Parfile::GetOPT_PARAM_)
    .Any("STOP_", &Gyre_Parfile::GetSTOP_)
    .Any("MESH_SMOOTH_", &Gyre_Parfile::GetMESH_SMOOTH_)
    .Any("FILTER_", &Gyre_Parfile::GetFILTER_)
    .Any("PRE_PARAM_", &Gyre_Parfile::GetPRE_PARAM_)
    .Any("AS_TOPO_OC_", &Gyre_Parfile::GetAS_TOPO_OC_)
    .Any("AS_TOPO_SENS_", &Gyre_Parfile::GetAS_TOPO_SENS_)
    .Any("AS_SHAPE_SENS_", &Gyre_Parfile::GetAS_SHAPE_SENS_)
    .One("FLOWPATHS_", &Gyre_Parfile::GetFLOWPATHS_)
    .Any("OUTPUT_", &Gyre_Parfile::GetOUTPUT_)
    .Any("SCALING_CURVE_", &Gyre_Parfile::GetSCALING_CURVE_)
    .Any("SMOOTH_", &Gyre_Parfile::GetSMOOTH_);

  JobBinding<Smooth_Parfile>(module, "Smooth_Parfile", "The parameter file of a smoothing job.")
    .Any("SMOOTH_", &Smooth_Parfile::GetSMOOTH_);
}

}  // namespace orvel::python
