/// \file
/// Values on their way between Python and a storage, with the type that the schema gives them.
#pragma once

#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <pybind11/pybind11.h>

#include <string>
#include <variant>
#include <vector>

namespace orvel::python
{

/// Any value but a reference. An enumerator is its number.
using StoredValue = std::variant<int, double, std::string, std::vector<int>, std::vector<double>>;

/// Raises TypeError for an object that the type of the key does not take, ValueError for what is no enumerator.
StoredValue FromPython(const schema::Field& field, const pybind11::object& value);

/// One value of a key that is no reference. Throws: what the storage throws.
pybind11::object ReadStoredValue(const OrvelParfileStorage& storage, const std::string& kind,
                                 const std::string& id_name, const schema::Field& field, std::uint64_t index);

}  // namespace orvel::python
