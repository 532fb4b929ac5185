#include "CommandBinding.h"

namespace py = pybind11;

namespace orvel::python
{

py::object MakeEnumeration(const py::object& command_class, const schema::Field& field)
{
  if (field.enumerators.empty())
  {
    return {};
  }
  py::dict enumerators;
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    enumerators[py::str(std::string(enumerator.name))] = enumerator.value;
  }
  return py::module_::import("orvelcommands._enumeration")
    .attr("make_enumeration")(command_class, std::string(field.key), enumerators, std::string(field.documentation));
}

}  // namespace orvel::python
