/// \file
/// The values of a loaded command as Python objects.
#pragma once

#include "text.h"

#include "OrvelCommands/commands/OrvelCommand.h"

#include <pybind11/pybind11.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace orvel::python
{

/// The Python object of a command that lives as long as \p owner does. The same command gives the same object while
/// that is in use.
template <class Command>
pybind11::object ToPythonCommand(const std::shared_ptr<const void>& owner, const Command& command)
{
  // Nothing that is bound changes a command; Python's objects know no const.
  return pybind11::cast(std::shared_ptr<Command>(owner, &const_cast<Command&>(command)));
}

/// Raises LookupError for a reference that the library has linked, for want of another, with a command that was never
/// loaded: it has no id, its values are nobody's, and its own references are null.
void RequireLoaded(const OrvelCommand& owner, const char* key, const OrvelCommand& target);

/// Turns the values of one key into Python objects.
class ValueConverter
{
public:
  /// \param enumeration the Python class for an enumerator; null for keys of another type
  ValueConverter(const char* key, pybind11::object enumeration) : m_key(key), m_enumeration(std::move(enumeration)) {}

  template <class Value>
  pybind11::object operator()(const std::shared_ptr<const OrvelCommand>& owner, const Value& value) const
  {
    if constexpr (std::is_same_v<Value, int>)
    {
      return pybind11::int_(value);
    }
    else if constexpr (std::is_same_v<Value, double>)
    {
      return pybind11::float_(value);
    }
    else if constexpr (std::is_same_v<Value, std::string>)
    {
      return ToPythonText(value);
    }
    else if constexpr (std::is_enum_v<Value>)
    {
      return m_enumeration.attr("_of_number")(static_cast<std::int32_t>(value));
    }
    else if constexpr (std::is_pointer_v<Value>)
    {
      return (*this)(owner, *value);
    }
    else
    {
      static_assert(std::is_base_of_v<OrvelCommand, Value>);
      RequireLoaded(*owner, m_key, value);
      return ToPythonCommand(owner, value);
    }
  }

  template <class Item>
  pybind11::object operator()(const std::shared_ptr<const OrvelCommand>& owner, const std::vector<Item>& values) const
  {
    pybind11::tuple items(values.size());
    for (std::size_t position = 0; position < values.size(); ++position)
    {
      items[position] = (*this)(owner, values[position]);
    }
    return items;
  }

private:
  const char* m_key;
  pybind11::object m_enumeration;
};

}  // namespace orvel::python
