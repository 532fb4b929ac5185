/// \file
/// How an aggregate becomes a Python class.
#pragma once

#include "command_values.h"
#include "failures.h"
#include "model_ids.h"
#include "Storage.h"

#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/parfile/for_each_command.h"

#include <pybind11/pybind11.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvel::python
{

/// An aggregate that is loaded from the start, so that no one sees half of it or loads it twice.
template <class Parfile>
struct Job
{
  explicit Job(std::shared_ptr<Storage> source) : storage(std::move(source)), parfile(storage->Open())
  {
    parfile.Load();
  }

  std::shared_ptr<Storage> storage;
  Parfile parfile;
};

/// Makes the Python class of an aggregate, then one read-only property for each call.
template <class Parfile>
class JobBinding
{
public:
  JobBinding(pybind11::module_& module, const char* name, const char* documentation)
    : m_class(module, name, documentation)
  {
    namespace py = pybind11;
    m_class.def(py::init<std::shared_ptr<Storage>>(), py::arg("storage").none(false),
                "Loads all commands of the storage and links them.");
    m_class.def("ValidateModelIds", &ValidateModelIds, py::arg("model_ids"),
                "Checks the names of the model that the commands use; raises one failure for all unknown ones.");
    m_class.def("FindModelIdProblems", &FindModelIdProblems, py::arg("model_ids"),
                "The same check; gives one KLV_ParfileException for each unknown name.");
    m_class.def(
      "__iter__", [](const Pointer& self) { return py::iter(AllCommands(self)); },
      "All commands in the order in which they were loaded.");
    m_class.def("__len__", [](const Pointer& self) { return AllCommands(self).size(); });
  }

  /// A kind of which the job has exactly one command.
  template <class Command>
  JobBinding& One(const char* kind, const Command& (Parfile::*get)() const)
  {
    return Add(kind, [get](const Pointer& self) { return ToPythonCommand(self, (self->parfile.*get)()); });
  }

  /// A kind of which the job has any number of commands, which read as a tuple.
  template <class Command>
  JobBinding& Any(const char* kind, std::vector<Command*> (Parfile::*get)() const)
  {
    return Add(kind, [get](const Pointer& self) {
      pybind11::list commands;
      for (const Command* command : (self->parfile.*get)())
      {
        commands.append(ToPythonCommand(self, *command));
      }
      return pybind11::tuple(commands);
    });
  }

private:
  using Pointer = std::shared_ptr<Job<Parfile>>;

  static pybind11::list AllCommands(const Pointer& self)
  {
    pybind11::list commands;
    ForEachCommand(self->parfile, [&](const auto& command) { commands.append(ToPythonCommand(self, command)); });
    return commands;
  }

  static void ValidateModelIds(const Pointer& self, const pybind11::object& model_ids)
  {
    self->storage->Open();  // the aggregate asks it for the ids once more
    const OpenModelIds database(model_ids);
    self->parfile.ValidateModelIds();
  }

  static pybind11::list FindModelIdProblems(const Pointer& self, const pybind11::object& model_ids)
  {
    const ParfileHdf5Storage& storage = self->storage->Open();
    const OpenModelIds database(model_ids);
    std::vector<KLV_ParfileException> problems;
    ForEachCommand(self->parfile, [&](auto command) {  // a copy: the check is no const operation
      std::string id = command.GetID_NAME_();
      command.ValidateModelIds(storage, id, problems);
    });
    pybind11::list found;
    for (const KLV_ParfileException& problem : problems)
    {
      found.append(MakeProblem(problem));
    }
    return found;
  }

  JobBinding& Add(const char* kind, std::function<pybind11::object(const Pointer&)> read)
  {
    m_class.def_property_readonly(
      kind, [read = std::move(read)](const Pointer& self) { return read(self); },
      std::string(schema::FindCommand(kind)->documentation).c_str());
    return *this;
  }

  pybind11::class_<Job<Parfile>, Pointer> m_class;
};

}  // namespace orvel::python
