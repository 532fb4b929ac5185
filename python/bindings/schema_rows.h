/// \file
/// The description of all commands for orvelcommands.schema.
#pragma once

#include <pybind11/pybind11.h>

namespace orvel::python
{

/// Adds `schema_rows`: tuples of the fields of orvelcommands.schema.Command, in their order.
void BindSchemaRows(pybind11::module_& module);

}  // namespace orvel::python
