/// \file
/// The extension module behind the package orvelcommands.
///
/// Python's global lock is held throughout: the storages, the working directory and the open database of the process
/// serve one thread at a time, and h5py relies on the same lock around HDF5.

#include "failures.h"
#include "LocalGenerated/command_bindings.h"
#include "schema_rows.h"
#include "Storage.h"
#include "text.h"

#include "OrvelCommands/commands/OrvelCommand.h"

#include <memory>

namespace py = pybind11;

namespace orvel::python
{
namespace
{

py::str Representation(const std::shared_ptr<OrvelCommand>& command)
{
  return py::str("<{} {!r}>").format(command->GetType(), ToPythonText(command->GetID_NAME_()));
}

void BindOrvelCommand(py::module_& module)
{
  py::class_<OrvelCommand, std::shared_ptr<OrvelCommand>>(module, "OrvelCommand",
                                                          "A command of a job. It keeps the commands of its job alive.")
    .def_property_readonly(
      "ID_NAME_", [](const std::shared_ptr<OrvelCommand>& self) { return ToPythonText(self->GetID_NAME_()); },
      "The name of the command, unique within its kind.")
    .def("__repr__", &Representation);
}

// A module with the name under which users import its classes.
py::module_ MakePart(py::module_& module, const char* name, const char* documentation)
{
  py::module_ part = module.def_submodule(name, documentation);
  part.attr("__name__") = std::string("orvelcommands.") + name;
  return part;
}

}  // namespace
}  // namespace orvel::python

PYBIND11_MODULE(_native, module)
{
  using namespace orvel::python;
  TranslateFailures();
  BindSchemaRows(module);
  py::module_ commands = MakePart(module, "commands", "The commands of a job, one class for each kind.");
  BindOrvelCommand(commands);
  BindCommands(commands);
  py::module_ storage = MakePart(module, "storage", "Where parameter files are kept.");
  BindStorage(storage);
  py::module_ parfile = MakePart(module, "parfile", "The jobs: all commands of a parameter file, loaded and linked.");
  BindJobs(parfile);
}
