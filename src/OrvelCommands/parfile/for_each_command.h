/// \file
/// A walk over all commands of a loaded parameter file, whatever their classes. As safe as reading the commands.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"

namespace orvel
{

/// Calls \p visit with a const reference to each command, in the order in which the commands were loaded.
/// Throws: what the getters of Gyre_Parfile throw, and what \p visit throws.
template <class Visitor>
void ForEachCommand(const Gyre_Parfile& parfile, Visitor&& visit)
{
  visit(parfile.GetMODEL_());
  for (const ELEMENT_GROUP_* command : parfile.GetELEMENT_GROUP_())
  {
    visit(*command);
  }
  for (const FACE_GROUP_* command : parfile.GetFACE_GROUP_())
  {
    visit(*command);
  }
  for (const NODE_GROUP_* command : parfile.GetNODE_GROUP_())
  {
    visit(*command);
  }
  for (const DV_* command : parfile.GetDV_())
  {
    visit(*command);
  }
  for (const DRESP_* command : parfile.GetDRESP_())
  {
    visit(*command);
  }
  for (const OPERATOR_* command : parfile.GetOPERATOR_())
  {
    visit(*command);
  }
  visit(parfile.GetOBJ_FUNC_());
  for (const CONSTRAINT_* command : parfile.GetCONSTRAINT_())
  {
    visit(*command);
  }
  for (const CS_* command : parfile.GetCS_())
  {
    visit(*command);
  }
  for (const DV_CONSTRAINT_* command : parfile.GetDV_CONSTRAINT_())
  {
    visit(*command);
  }
  for (const MONITOR_* command : parfile.GetMONITOR_())
  {
    visit(*command);
  }
  visit(parfile.GetALGO_());
  for (const OPT_PARAM_* command : parfile.GetOPT_PARAM_())
  {
    visit(*command);
  }
  for (const STOP_* command : parfile.GetSTOP_())
  {
    visit(*command);
  }
  for (const MESH_SMOOTH_* command : parfile.GetMESH_SMOOTH_())
  {
    visit(*command);
  }
  for (const FILTER_* command : parfile.GetFILTER_())
  {
    visit(*command);
  }
  for (const PRE_PARAM_* command : parfile.GetPRE_PARAM_())
  {
    visit(*command);
  }
  for (const AS_TOPO_OC_* command : parfile.GetAS_TOPO_OC_())
  {
    visit(*command);
  }
  for (const AS_TOPO_SENS_* command : parfile.GetAS_TOPO_SENS_())
  {
    visit(*command);
  }
  for (const AS_SHAPE_SENS_* command : parfile.GetAS_SHAPE_SENS_())
  {
    visit(*command);
  }
  visit(parfile.GetFLOWPATHS_());
  for (const OUTPUT_* command : parfile.GetOUTPUT_())
  {
    visit(*command);
  }
  for (const SCALING_CURVE_* command : parfile.GetSCALING_CURVE_())
  {
    visit(*command);
  }
  for (const SMOOTH_* command : parfile.GetSMOOTH_())
  {
    visit(*command);
  }
}

/// Calls \p visit with a const reference to each command, in the order in which the commands were loaded.
/// Throws: what the getters of Smooth_Parfile throw, and what \p visit throws.
template <class Visitor>
void ForEachCommand(const Smooth_Parfile& parfile, Visitor&& visit)
{
  for (const SMOOTH_* command : parfile.GetSMOOTH_())
  {
    visit(*command);
  }
}

}  // namespace orvel
