#include "failures.h"

#include "text.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <H5Cpp.h>

#include <filesystem>

namespace py = pybind11;

namespace orvel::python
{
namespace
{

py::object ExceptionClass(const char* name)
{
  return py::module_::import("orvelcommands.failures").attr(name);
}

py::object CodeOf(const KLV_Exception& failure)
{
  return failure.GetCode().exists() ? py::object(ToPythonText(failure.GetCode().GetText())) : py::none();
}

py::object MakeFailure(const KLV_Exception& failure)
{
  return ExceptionClass("KLV_Failure")(ToPythonText(failure.GetMessage()), CodeOf(failure),
                                       ToPythonText(failure.GetLogPrefix()));
}

void Raise(const py::object& exception)
{
  PyErr_SetObject(py::type::of(exception).ptr(), exception.ptr());
}

void RaiseOsError(const std::filesystem::filesystem_error& error)
{
  errno = error.code().value();
  PyErr_SetFromErrnoWithFilename(PyExc_OSError, error.path1().c_str());
}

void Translate(std::exception_ptr thrown)
{
  try
  {
    std::rethrow_exception(thrown);
  }
  catch (const KLV_ParfileException& problem)
  {
    Raise(MakeProblem(problem));
  }
  catch (const KLV_Exception& failure)
  {
    Raise(MakeFailure(failure));
  }
  catch (const H5::Exception& error)
  {
    Raise(ExceptionClass("Hdf5Exception")(ToPythonText(error.getFuncName() + ": " + error.getDetailMsg())));
  }
  catch (const std::filesystem::filesystem_error& error)
  {
    RaiseOsError(error);
  }
}

}  // namespace

py::object MakeProblem(const KLV_ParfileException& problem)
{
  return ExceptionClass("KLV_ParfileException")(ToPythonText(problem.GetMessage()), CodeOf(problem),
                                                ToPythonText(problem.GetLogPrefix()), ToPythonText(problem.GetValue()),
                                                ToPythonText(problem.GetParameter()), ToPythonText(problem.GetIdName()),
                                                ToPythonText(problem.GetCommand()));
}

void TranslateFailures()
{
  py::register_local_exception_translator(&Translate);
}

}  // namespace orvel::python
