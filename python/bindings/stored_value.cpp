#include "stored_value.h"

#include "text.h"

#include <pybind11/stl.h>

#include <algorithm>

namespace py = pybind11;

namespace orvel::python
{
namespace
{

[[noreturn]] void RefuseType(const schema::Field& field, const char* wanted, const py::object& value)
{
  throw py::type_error(std::string(field.key) + " takes " + wanted + ", not " + std::string(py::repr(value)));
}

// The casts of the binding would cut a fraction off.
bool IsWhole(const py::handle& value)
{
  const auto index = py::reinterpret_steal<py::object>(PyNumber_Index(value.ptr()));
  PyErr_Clear();
  return static_cast<bool>(index);
}

bool AreWhole(const py::object& value, const int*)
{
  return IsWhole(value);
}

bool AreWhole(const py::object& values, const std::vector<int>*)
{
  return !py::isinstance<py::sequence>(values) || std::all_of(values.begin(), values.end(), IsWhole);
}

bool AreWhole(const py::object&, const void*)
{
  return true;
}

template <class Value>
Value Take(const schema::Field& field, const char* wanted, const py::object& value)
{
  if (!AreWhole(value, static_cast<const Value*>(nullptr)))
  {
    RefuseType(field, wanted, value);
  }
  try
  {
    return value.cast<Value>();
  }
  catch (const py::cast_error&)
  {
    RefuseType(field, wanted, value);
  }
}

[[noreturn]] void RefuseEnumerator(const schema::Field& field, const py::object& value)
{
  std::string names;
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    names += (names.empty() ? "" : ", ") + std::string(enumerator.name);
  }
  throw py::value_error(std::string(field.key) + " is one of " + names + ", not " + std::string(py::repr(value)));
}

int TakeEnumerator(const schema::Field& field, const py::object& value)
{
  const bool by_name = py::isinstance<py::str>(value);
  const std::string name = by_name ? value.cast<Text>().value : std::string();
  const int number = by_name ? 0 : Take<int>(field, "an enumerator, its number or its name", value);
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    if (by_name ? enumerator.name == name : enumerator.value == number)
    {
      return enumerator.value;
    }
  }
  RefuseEnumerator(field, value);
}

template <class Value>
Value Read(const OrvelParfileStorage& storage, const std::string& kind, const std::string& id_name,
           const schema::Field& field, std::uint64_t index)
{
  Value value{};
  storage.GetValue(kind, id_name, std::string(field.key), index, field.type, value);
  return value;
}

}  // namespace

StoredValue FromPython(const schema::Field& field, const py::object& value)
{
  switch (field.type)
  {
    case vtmInteger: return Take<int>(field, "a whole number of 32 bits", value);
    case vtmDouble: return Take<double>(field, "a number", value);
    case vtmEnum: return TakeEnumerator(field, value);
    case vtmString:
    case vtmModelId: return Take<Text>(field, "a text", value).value;
    case vtmIntegerList: return Take<std::vector<int>>(field, "a list of whole numbers of 32 bits", value);
    case vtmDoubleList: return Take<std::vector<double>>(field, "a list of numbers", value);
    default: throw py::type_error(std::string(field.key) + " holds references, which AddReference adds");
  }
}

py::object ReadStoredValue(const OrvelParfileStorage& storage, const std::string& kind, const std::string& id_name,
                           const schema::Field& field, std::uint64_t index)
{
  switch (field.type)
  {
    case vtmInteger:
    case vtmEnum: return py::int_(Read<int>(storage, kind, id_name, field, index));
    case vtmDouble: return py::float_(Read<double>(storage, kind, id_name, field, index));
    case vtmString:
    case vtmModelId: return ToPythonText(Read<std::string>(storage, kind, id_name, field, index));
    case vtmIntegerList: return py::tuple(py::cast(Read<std::vector<int>>(storage, kind, id_name, field, index)));
    case vtmDoubleList: return py::tuple(py::cast(Read<std::vector<double>>(storage, kind, id_name, field, index)));
    default: throw py::type_error(std::string(field.key) + " holds references, which GetReference reads");
  }
}

}  // namespace orvel::python
