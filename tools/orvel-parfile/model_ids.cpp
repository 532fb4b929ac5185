#include "model_ids.h"

#include "exit_code.h"
#include "nearest_name.h"
#include "schema_names.h"
#include "toml_input.h"

#include <map>

namespace
{

const std::map<std::string, KLV_IdType>& Lists()
{
  static const std::map<std::string, KLV_IdType> lists = [] {
    std::map<std::string, KLV_IdType> all;
    for (const KLV_IdType type :
         {KLV_IdType::element_group, KLV_IdType::node_group, KLV_IdType::face_group, KLV_IdType::coordinate_system})
    {
      all.emplace(IdListName(type), type);
    }
    return all;
  }();
  return lists;
}

std::vector<std::string> ListNames()
{
  std::vector<std::string> names;
  names.reserve(Lists().size());
  for (const auto& [name, type] : Lists())
  {
    names.push_back(name);
  }
  return names;
}

}  // namespace

std::size_t ReadModelIds(const std::filesystem::path& path, KLV_Database& database)
{
  std::vector<std::string> faults;
  const auto fault = [&](const toml::node& node, const std::string& what) {
    faults.push_back(PlaceText(path, node.source()) + ": " + Printable(what));
  };
  std::size_t count = 0;
  const toml::table lists = ReadToml(path);
  for (const auto& [name, node] : InTextOrder(lists))
  {
    const auto list = Lists().find(name);
    if (list == Lists().end() || !node->is_array())
    {
      fault(*node, list == Lists().end() ? "there is no list " + name + "; " + NearestName(name, ListNames())
                                         : name + " must be an array of names");
      continue;
    }
    KLV_IdMap& ids = database.GetIdMapsPool().GetIdMap(list->second);
    for (const toml::node& id : *node->as_array())
    {
      if (const auto text = id.value_exact<std::string>())
      {
        ids.Add(*text);
        ++count;
      }
      else
      {
        fault(id, name + " holds names, not " + NodeText(id));
      }
    }
  }
  if (!faults.empty())
  {
    throw FaultyInput(faults);
  }
  return count;
}
