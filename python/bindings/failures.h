/// \file
/// The failures of the library as Python exceptions.
#pragma once

#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include <pybind11/pybind11.h>

namespace orvel::python
{

/// The exception object for a collected problem.
pybind11::object MakeProblem(const KLV_ParfileException& problem);

/// From here on a failure that leaves the library is raised as the class of orvelcommands.failures with its name.
void TranslateFailures();

}  // namespace orvel::python
