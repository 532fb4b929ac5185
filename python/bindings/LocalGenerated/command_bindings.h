/// \file
/// The Python classes of all commands and aggregates.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include <pybind11/pybind11.h>

namespace orvel::python
{

void Bind_gyre_commands(pybind11::module_& module);
void Bind_smooth_commands(pybind11::module_& module);

inline void BindCommands(pybind11::module_& module)
{
  Bind_gyre_commands(module);
  Bind_smooth_commands(module);
}

void BindJobs(pybind11::module_& module);

}  // namespace orvel::python
