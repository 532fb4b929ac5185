#include "model_ids.h"

#include "text.h"

#include "OrvelDbFactory/OrvelDbInstance.h"

#include <array>

namespace py = pybind11;

namespace orvel::python
{
namespace
{

struct IdList
{
  const char* name;
  KLV_IdType type;
};

// The lists of orvel-parfile's file of model ids, so that one file serves both.
constexpr std::array<IdList, 4> kLists = {{{"element_groups", KLV_IdType::element_group},
                                           {"node_groups", KLV_IdType::node_group},
                                           {"face_groups", KLV_IdType::face_group},
                                           {"coordinate_systems", KLV_IdType::coordinate_system}}};

KLV_IdType TypeOf(const std::string& name)
{
  std::string names;
  for (const IdList& list : kLists)
  {
    if (list.name == name)
    {
      return list.type;
    }
    names += (names.empty() ? "" : ", ") + std::string(list.name);
  }
  throw py::value_error("there is no list " + name + " of model ids; the lists are " + names);
}

std::string NameOf(const py::handle& name, const std::string& where)
{
  try
  {
    return name.cast<Text>().value;
  }
  catch (const py::cast_error&)
  {
    throw py::type_error(where + " holds names, not " + std::string(py::repr(name)));
  }
}

void AddNames(KLV_IdMap& map, const std::string& list, const py::handle& names)
{
  if (py::isinstance<py::str>(names))  // which would be taken for a list of its letters
  {
    throw py::type_error(list + " is a list of names, not one name");
  }
  for (const py::handle& name : names)
  {
    map.Add(NameOf(name, list));
  }
}

}  // namespace

py::object IdListName(std::optional<KLV_IdType> type)
{
  for (const IdList& list : kLists)
  {
    if (type == list.type)
    {
      return py::str(list.name);
    }
  }
  return py::none();
}

OpenModelIds::OpenModelIds(const py::object& lists) : m_former(OrvelDbInstance::s_Singleton)
{
  for (const auto& [name, names] : py::dict(lists))
  {
    const std::string list = NameOf(name, "a mapping of model ids");
    AddNames(m_database.GetIdMapsPool().GetIdMap(TypeOf(list)), list, names);
  }
  OrvelDbInstance::s_Singleton = &m_database;
}

OpenModelIds::~OpenModelIds()
{
  OrvelDbInstance::s_Singleton = m_former;
}

}  // namespace orvel::python
