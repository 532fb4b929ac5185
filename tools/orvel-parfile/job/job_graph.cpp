#include "job_graph.h"

#include "support/schema_names.h"

#include <algorithm>

namespace schema = orvel::schema;

namespace
{

bool LeadsTo(const schema::Field& field, std::string_view kind)
{
  return field.target == kind || (field.id_type && KindOfIds(*field.id_type) == kind);
}

// Whether there is a kind of this name to which no key leads, such as that of the outputs.
bool IsStandalone(const std::string& kind)
{
  const auto leads_there = [&](const schema::Command& command) {
    return std::any_of(command.fields.begin(), command.fields.end(),
                       [&](const schema::Field& field) { return LeadsTo(field, kind); });
  };
  return schema::FindCommand(kind) != nullptr &&
         std::none_of(schema::Commands().begin(), schema::Commands().end(), leads_there);
}

}  // namespace

JobGraph::JobGraph(const Job& job, bool with_model_ids)
{
  const Job ordered = InStableOrder(job);
  for (const JobCommand& command : ordered.commands)
  {
    m_places.emplace(std::make_pair(command.kind, command.id), m_nodes.size());
    m_nodes.push_back({command.kind, command.id, true});
  }
  for (std::size_t node = 0; node < ordered.commands.size(); ++node)
  {
    AddEdges(node, ordered.commands[node], with_model_ids);
  }
  m_targets.resize(m_nodes.size());
  m_source_counts.resize(m_nodes.size());
  std::vector<std::size_t> roots;
  std::vector<std::size_t> standalone;
  for (const Edge& edge : m_edges)
  {
    m_targets[edge.from].push_back(edge.to);
    ++m_source_counts[edge.to];
  }
  for (std::size_t node = 0; node < m_nodes.size(); ++node)
  {
    if (m_nodes[node].kind == kRootKind)
    {
      roots.push_back(node);
    }
    else if (IsStandalone(m_nodes[node].kind))
    {
      standalone.push_back(node);
    }
  }
  Reach(Part::Reached, std::move(roots));
  Reach(Part::Standalone, std::move(standalone));
}

std::size_t JobGraph::NodeOf(const JobReference& target)
{
  const auto [place, is_new] = m_places.emplace(std::make_pair(target.kind, target.id), m_nodes.size());
  if (is_new)
  {
    m_nodes.push_back({target.kind, target.id, false});
  }
  return place->second;
}

void JobGraph::AddEdges(std::size_t from, const JobCommand& command, bool with_model_ids)
{
  for (const JobKey& key : command.keys)
  {
    const schema::Field* field = FieldOf(command, key.name);
    const bool names_model = field != nullptr && field->id_type && with_model_ids;
    for (const JobItem& item : key.items)
    {
      if (const auto* target = std::get_if<JobReference>(&item.value))
      {
        m_edges.push_back({from, NodeOf(*target), key.name, false});
      }
      else if (const auto* name = std::get_if<std::string>(&item.value); name != nullptr && names_model)
      {
        const auto place = m_places.find({std::string(KindOfIds(*field->id_type)), *name});
        if (place != m_places.end())
        {
          m_edges.push_back({from, place->second, key.name, true});
        }
      }
    }
  }
}

void JobGraph::Reach(Part part, std::vector<std::size_t> from)
{
  while (!from.empty())
  {
    const std::size_t node = from.back();
    from.pop_back();
    if (m_nodes[node].part == Part::Unused)
    {
      m_nodes[node].part = part;
      from.insert(from.end(), m_targets[node].begin(), m_targets[node].end());
    }
  }
}

std::size_t JobGraph::Depth() const
{
  struct Step
  {
    std::size_t node;
    std::size_t next_target;
  };
  std::vector<std::size_t> depths(m_nodes.size());  // below each node, as far as that is known
  std::vector<bool> is_met(m_nodes.size());
  std::vector<Step> way;  // no recursion: it would be as deep as the job has commands in a row
  const auto enter = [&](std::size_t node) {
    if (!is_met[node])
    {
      is_met[node] = true;
      way.push_back({node, 0});
    }
  };
  std::size_t deepest = 0;
  for (std::size_t root = 0; root < m_nodes.size(); ++root)
  {
    if (m_nodes[root].kind == kRootKind)
    {
      enter(root);
    }
    while (!way.empty())
    {
      const std::size_t node = way.back().node;
      if (way.back().next_target < m_targets[node].size())
      {
        enter(m_targets[node][way.back().next_target++]);
        continue;
      }
      for (const std::size_t target : m_targets[node])
      {
        depths[node] = std::max(depths[node], depths[target] + 1);
      }
      deepest = std::max(deepest, depths[node]);
      way.pop_back();
    }
  }
  return deepest;
}
