#include "command_values.h"

namespace orvel::python
{

void RequireLoaded(const OrvelCommand& owner, const char* key, const OrvelCommand& target)
{
  if (target.GetID_NAME_().empty())
  {
    PyErr_Format(PyExc_LookupError, "%s of the %s command %s leads to no command of the job", key,
                 owner.GetType().c_str(), owner.GetID_NAME_().c_str());
    throw pybind11::error_already_set();
  }
}

}  // namespace orvel::python
