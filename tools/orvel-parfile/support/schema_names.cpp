#include "schema_names.h"

namespace schema = orvel::schema;

namespace
{

template <class Row, class Name>
std::vector<std::string> NamesOf(schema::Rows<Row> rows, Name name)
{
  std::vector<std::string> names;
  names.reserve(rows.size());
  for (const Row& row : rows)
  {
    names.emplace_back(name(row));
  }
  return names;
}

}  // namespace

std::vector<std::string> KindNames()
{
  return NamesOf(schema::Commands(), [](const schema::Command& command) { return command.kind; });
}

std::vector<std::string> KeyNames(const schema::Command& command)
{
  return NamesOf(command.fields, [](const schema::Field& field) { return field.key; });
}

std::vector<std::string> EnumeratorNames(const schema::Field& field)
{
  return NamesOf(field.enumerators, [](const schema::Enumerator& enumerator) { return enumerator.name; });
}

std::string IdListName(KLV_IdType type)
{
  switch (type)
  {
    case KLV_IdType::coordinate_system: return "coordinate_systems";
    case KLV_IdType::node_group: return "node_groups";
    case KLV_IdType::face_group: return "face_groups";
    default: return "element_groups";
  }
}

std::string_view KindOfIds(KLV_IdType type)
{
  switch (type)
  {
    case KLV_IdType::coordinate_system: return "CS_";
    case KLV_IdType::node_group: return "NODE_GROUP_";
    case KLV_IdType::face_group: return "FACE_GROUP_";
    default: return "ELEMENT_GROUP_";
  }
}
