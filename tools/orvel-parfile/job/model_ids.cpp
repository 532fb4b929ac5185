#include "model_ids.h"

#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"
#include "support/schema_names.h"
#include "support/toml_input.h"

#include <algorithm>
#include <array>

namespace
{

constexpr std::array<KLV_IdType, 4> kIdTypes = {KLV_IdType::element_group, KLV_IdType::node_group,
                                                KLV_IdType::face_group, KLV_IdType::coordinate_system};

std::vector<std::string> ListNames()
{
  std::vector<std::string> names;
  std::transform(kIdTypes.begin(), kIdTypes.end(), std::back_inserter(names), IdListName);
  std::sort(names.begin(), names.end());
  return names;
}

class ModelIdsReader
{
public:
  explicit ModelIdsReader(const std::filesystem::path& path) : m_path(path) {}

  ModelIds Read()
  {
    const toml::table lists = ReadToml(m_path);
    for (const auto& [name, node] : InTextOrder(lists))
    {
      ReadList(name, *node);
    }
    if (!m_faults.empty())
    {
      throw FaultyInput(m_faults);
    }
    return std::move(m_ids);
  }

private:
  std::string PlaceOf(const toml::node& node) const { return PlaceText(m_path, node.source()); }

  void Fault(const toml::node& node, const std::string& what)
  {
    m_faults.push_back(PlaceOf(node) + ": " + PrintableLines(what));
  }

  void ReadList(const std::string& name, const toml::node& node)
  {
    const auto* type =
      std::find_if(kIdTypes.begin(), kIdTypes.end(), [&](KLV_IdType one) { return IdListName(one) == name; });
    if (type == kIdTypes.end())
    {
      Fault(node, "there is no list " + name + "; " + NearestName(name, ListNames()));
      return;
    }
    if (!node.is_array())
    {
      Fault(node, name + " must be an array of names");
      return;
    }
    for (const toml::node& id : *node.as_array())
    {
      if (const auto text = id.value_exact<std::string>())
      {
        m_ids.lists[*type].emplace(*text, PlaceOf(id));
      }
      else
      {
        Fault(id, name + " holds names, not " + NodeText(id));
      }
    }
  }

  std::filesystem::path m_path;
  std::vector<std::string> m_faults;
  ModelIds m_ids;
};

}  // namespace

std::size_t ModelIds::Count() const
{
  std::size_t count = 0;
  for (const auto& [type, names] : lists)
  {
    count += names.size();
  }
  return count;
}

ModelIds ReadModelIds(const std::filesystem::path& path)
{
  return ModelIdsReader(path).Read();
}

void AddTo(KLV_Database& database, const ModelIds& ids)
{
  for (const auto& [type, names] : ids.lists)
  {
    KLV_IdMap& map = database.GetIdMapsPool().GetIdMap(type);
    for (const auto& [name, place] : names)
    {
      map.Add(name);
    }
  }
}
