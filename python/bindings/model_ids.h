/// \file
/// The names that a model knows, from Python.
#pragma once

#include "OrvelDbFactory/KLV_Database.h"

#include <pybind11/pybind11.h>

#include <optional>

namespace orvel::python
{

/// The list that holds names of this kind, such as "element_groups"; None for a field that is no model id.
pybind11::object IdListName(std::optional<KLV_IdType> type);

/// While it lives it is the open database of the process, with the names that it was given.
class OpenModelIds
{
public:
  /// \param lists a mapping from the name of a list to an iterable of texts
  /// Raises ValueError for another name of a list, TypeError for what is no text.
  explicit OpenModelIds(const pybind11::object& lists);
  ~OpenModelIds();
  OpenModelIds(const OpenModelIds&) = delete;
  OpenModelIds& operator=(const OpenModelIds&) = delete;

private:
  KLV_Database m_database;
  KLV_Database* m_former;
};

}  // namespace orvel::python
