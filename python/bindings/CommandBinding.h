/// \file
/// How one command class becomes a Python class.
#pragma once

#include "command_values.h"

#include "OrvelCommands/commands/command_schema.h"

#include <pybind11/pybind11.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace orvel::python
{

/// The Python enumeration for a key of a command, an attribute of the command's class; null for a key without
/// enumerators.
pybind11::object MakeEnumeration(const pybind11::object& command_class, const schema::Field& field);

/// Makes the Python class of a command, with the documentation of the schema, then one read-only property for each
/// call.
///
/// The objects are made by the aggregate alone and share its ownership, so each keeps all commands of its job alive.
template <class Command>
class CommandBinding
{
public:
  explicit CommandBinding(pybind11::module_& module)
    : m_schema(*schema::FindCommand(Command::s_type)),
      m_class(module, Command::s_type.c_str(), std::string(m_schema.documentation).c_str())
  {
  }

  /// A key that is always there.
  template <class Value>
  CommandBinding& Always(const char* key, const Value& (Command::*get)() const)
  {
    return Add(
      key, [get, to_python = Converter(key)](const Pointer& self) { return to_python(self, (self.get()->*get)()); });
  }

  /// A key that reads as None where it is not there.
  template <class Value>
  CommandBinding& Optional(const char* key, bool (Command::*has)() const, const Value& (Command::*get)() const)
  {
    return Add(key, [has, get, to_python = Converter(key)](const Pointer& self) {
      return (self.get()->*has)() ? to_python(self, (self.get()->*get)()) : pybind11::object(pybind11::none());
    });
  }

  /// A key of any number of values, which reads as a tuple.
  template <class Value>
  CommandBinding& Repeated(const char* key, const std::vector<Value>& (Command::*get)() const)
  {
    return Always(key, get);
  }

private:
  using Pointer = std::shared_ptr<Command>;

  const schema::Field& Field(const char* key) const { return *schema::FindField(m_schema, key); }

  ValueConverter Converter(const char* key) const { return {key, MakeEnumeration(m_class, Field(key))}; }

  // One type of function for all keys of a class: pybind11's part of it is built once.
  CommandBinding& Add(const char* key, std::function<pybind11::object(const Pointer&)> read)
  {
    m_class.def_property_readonly(
      key, [read = std::move(read)](const Pointer& self) { return read(self); },
      std::string(Field(key).documentation).c_str());
    return *this;
  }

  const schema::Command& m_schema;
  pybind11::class_<Command, OrvelCommand, Pointer> m_class;
};

}  // namespace orvel::python
