#include "Storage.h"
#include "stored_value.h"
#include "text.h"

#include "OrvelCommands/commands/command_schema.h"

#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace orvel::python
{
namespace
{

using Self = std::shared_ptr<Storage>;

const schema::Command& KindOf(const Text& kind)
{
  const schema::Command* found = schema::FindCommand(kind.value);
  if (found == nullptr)
  {
    throw py::value_error("there is no kind of command " + kind.value);
  }
  return *found;
}

const schema::Field& FieldOf(const Text& kind, const Text& key)
{
  const schema::Field* found = schema::FindField(KindOf(kind), key.value);
  if (found == nullptr)
  {
    throw py::value_error("a " + kind.value + " has no key " + key.value);
  }
  return *found;
}

// Names are not escaped in the file: "/" would mean a level more, "." and nothing the group above.
void RequireName(const std::string& id_name)
{
  if (id_name.empty() || id_name == "." || id_name.find('/') != std::string::npos)
  {
    throw py::value_error("an ID_NAME is a text without a slash and not empty or a dot");
  }
}

// No operation of a storage tests for 0, and overwriting it would remove the values of the key.
std::uint64_t RequireIndex(const ParfileHdf5Storage& storage, const Text& kind, const Text& id_name, const Text& key,
                           std::int64_t index)
{
  const std::uint64_t count = storage.GetNumElements(kind.value, id_name.value, key.value);
  if (index < 1 || static_cast<std::uint64_t>(index) > count)
  {
    throw py::index_error(key.value + " has " + std::to_string(count) + " values, counted from 1; there is no value " +
                          std::to_string(index));
  }
  return static_cast<std::uint64_t>(index);
}

void AddCommand(const Self& self, const Text& kind, const Text& id_name)
{
  KindOf(kind);
  RequireName(id_name.value);
  self->Open().AddCommand(kind.value, id_name.value);
}

void AddValue(const Self& self, const Text& kind, const Text& id_name, const Text& key, const py::object& value)
{
  const schema::Field& field = FieldOf(kind, key);
  const StoredValue stored = FromPython(field, value);
  const auto& storage = self->Open();
  std::visit([&](const auto& typed) { storage.AddValue(kind.value, id_name.value, key.value, field.type, typed); },
             stored);
}

void SetValue(const Self& self, const Text& kind, const Text& id_name, const Text& key, std::int64_t index,
              const py::object& value)
{
  const schema::Field& field = FieldOf(kind, key);
  const StoredValue stored = FromPython(field, value);
  const auto& storage = self->Open();
  const auto place = static_cast<int>(RequireIndex(storage, kind, id_name, key, index));
  std::visit(
    [&](const auto& typed) { storage.SetValue(kind.value, id_name.value, key.value, place, field.type, typed); },
    stored);
}

void AddReference(const Self& self, const Text& kind, const Text& id_name, const Text& key, const Text& target_id_name)
{
  const schema::Field& field = FieldOf(kind, key);
  if (field.type != vtmReference)
  {
    throw py::type_error(key.value + " holds no references; AddValue adds its values");
  }
  RequireName(target_id_name.value);
  self->Open().AddReference(kind.value, id_name.value, key.value, std::string(field.target), target_id_name.value);
}

void DeleteValues(const Self& self, const Text& kind, const Text& id_name, const Text& key)
{
  FieldOf(kind, key);
  self->Open().DeleteValues(kind.value, id_name.value, key.value);
}

py::object GetValue(const Self& self, const Text& kind, const Text& id_name, const Text& key, std::int64_t index)
{
  const schema::Field& field = FieldOf(kind, key);
  const auto& storage = self->Open();
  const std::uint64_t place = RequireIndex(storage, kind, id_name, key, index);
  return ReadStoredValue(storage, kind.value, id_name.value, field, place);
}

py::object GetReference(const Self& self, const Text& kind, const Text& id_name, const Text& key, std::int64_t index)
{
  const auto& storage = self->Open();
  std::string target;
  storage.GetReference(kind.value, id_name.value, key.value, RequireIndex(storage, kind, id_name, key, index), target);
  return ToPythonText(target);
}

py::object GetCommandName(const Self& self, const Text& kind, std::uint64_t position)
{
  std::string id_name;
  self->Open().GetCommandName(kind.value, position, id_name);
  return ToPythonText(id_name);
}

void BindReading(py::class_<Storage, Self>& storage)
{
  storage
    .def(
      "HasCommand",
      [](const Self& self, const Text& kind, const Text& id_name) {
        return self->Open().HasCommand(kind.value, id_name.value);
      },
      py::arg("kind"), py::arg("id_name"),
      "Whether this command exists. Fails for a kind of which the file has no command yet.")
    .def(
      "GetNumCommand", [](const Self& self, const Text& kind) { return self->Open().GetNumCommand(kind.value); },
      py::arg("kind"), "How many commands of this kind exist.")
    .def("GetCommandName", &GetCommandName, py::arg("kind"), py::arg("position"),
         "The ID_NAME of the command at a position among its kind, counted from 0.")
    .def(
      "GetNumElements",
      [](const Self& self, const Text& kind, const Text& id_name, const Text& key) {
        return self->Open().GetNumElements(kind.value, id_name.value, key.value);
      },
      py::arg("kind"), py::arg("id_name"), py::arg("key"), "How many values the key holds, 0 for an absent key.")
    .def(
      "HasElement",
      [](const Self& self, const Text& kind, const Text& id_name, const Text& key) {
        return self->Open().HasElement(kind.value, id_name.value, key.value);
      },
      py::arg("kind"), py::arg("id_name"), py::arg("key"), "Whether the key is present.")
    .def("GetValue", &GetValue, py::arg("kind"), py::arg("id_name"), py::arg("key"), py::arg("index"),
         "One value of a key, counted from 1. An enumerator is its number.")
    .def("GetReference", &GetReference, py::arg("kind"), py::arg("id_name"), py::arg("key"), py::arg("index"),
         "The ID_NAME of the command to which a value refers, counted from 1.");
}

void BindWriting(py::class_<Storage, Self>& storage)
{
  storage.def("AddCommand", &AddCommand, py::arg("kind"), py::arg("id_name"), "Makes a new, empty command.")
    .def("AddValue", &AddValue, py::arg("kind"), py::arg("id_name"), py::arg("key"), py::arg("value"),
         "Appends one value to a key, which is made when it is not there.")
    .def("AddReference", &AddReference, py::arg("kind"), py::arg("id_name"), py::arg("key"), py::arg("target_id_name"),
         "Appends a reference to a command that exists already; the key says of which kind.")
    .def("SetValue", &SetValue, py::arg("kind"), py::arg("id_name"), py::arg("key"), py::arg("index"), py::arg("value"),
         "Overwrites one value of a key, counted from 1.")
    .def("DeleteValues", &DeleteValues, py::arg("kind"), py::arg("id_name"), py::arg("key"),
         "Removes a key with all its values. An absent key is no failure.");
}

}  // namespace

void BindStorage(py::module_& module)
{
  py::class_<Storage, Self> storage(
    module, "ParfileHdf5Storage",
    "The parameter file parfile_storage.hdf5 of a folder. It is open until close() or the end of a with block.");
  storage
    .def(py::init<const std::filesystem::path&, const std::string&>(), py::arg("folder") = ".", py::arg("mode") = "r",
         "Opens the file of a folder: mode 'r' to read, 'r+' to read and write, 'x' to make a new file.")
    .def(
      "close", [](const Self& self) { self->Close(); }, "Closes the file. Commands that were loaded stay.")
    .def_property_readonly(
      "closed", [](const Self& self) { return self->IsClosed(); }, "Whether the file is closed.")
    .def("__enter__", [](const Self& self) { return self; })
    .def("__exit__", [](const Self& self, const py::args&) { self->Close(); });
  BindReading(storage);
  BindWriting(storage);
}

}  // namespace orvel::python
