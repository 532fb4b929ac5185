#include "reference_graph.h"

#include <algorithm>

namespace schema = orvel::schema;

namespace
{

// Finds the circles of a graph without recursion: a job may have a chain of any length.
class CycleSearch
{
public:
  explicit CycleSearch(const ReferenceGraph& graph) : m_graph(graph), m_states(graph.Commands().size(), State::New) {}

  std::vector<ReferenceCycle> Search()
  {
    for (std::size_t start = 0; start < m_states.size(); ++start)
    {
      if (m_states[start] == State::New)
      {
        Open(start);
        while (!m_path.empty())
        {
          Step();
        }
      }
    }
    return std::move(m_cycles);
  }

private:
  enum class State
  {
    New,
    OnPath,
    Done
  };

  struct Visit
  {
    std::size_t command;
    std::size_t next_edge;
  };

  void Open(std::size_t command)
  {
    m_states[command] = State::OnPath;
    m_path.push_back({command, 0});
  }

  void Step()
  {
    Visit& last = m_path.back();
    const std::vector<ReferenceEdge>& edges = m_graph.From(last.command);
    if (last.next_edge == edges.size())
    {
      m_states[last.command] = State::Done;
      m_path.pop_back();
      return;
    }
    const ReferenceEdge& edge = edges[last.next_edge++];
    if (m_states[edge.target] == State::New)
    {
      Open(edge.target);
    }
    else if (m_states[edge.target] == State::OnPath)
    {
      Note(last.command, edge);
    }
  }

  void Note(std::size_t from, const ReferenceEdge& edge)
  {
    if (!m_closed.insert({from, edge.target}).second)
    {
      return;  // the same reference stands there twice
    }
    ReferenceCycle cycle{{}, edge};
    const auto first =
      std::find_if(m_path.begin(), m_path.end(), [&](const Visit& visit) { return visit.command == edge.target; });
    std::transform(first, m_path.end(), std::back_inserter(cycle.commands),
                   [](const Visit& visit) { return visit.command; });
    m_cycles.push_back(std::move(cycle));
  }

  const ReferenceGraph& m_graph;
  std::vector<State> m_states;
  std::vector<Visit> m_path;
  std::set<std::pair<std::size_t, std::size_t>> m_closed;
  std::vector<ReferenceCycle> m_cycles;
};

}  // namespace

ReferenceGraph::ReferenceGraph(const Job& job, const JobIndex& index) : m_edges(job.commands.size())
{
  for (const JobCommand& command : job.commands)
  {
    m_places.emplace(&command, m_commands.size());
    m_commands.push_back(&command);
  }
  for (std::size_t place = 0; place < m_commands.size(); ++place)
  {
    const schema::Command* kind = schema::FindCommand(m_commands[place]->kind);
    for (const schema::Field& field : kind != nullptr ? kind->fields : schema::Rows<schema::Field>())
    {
      if (field.type == vtmReference)
      {
        const JobKey* key = FindKey(*m_commands[place], field.key);
        const bool is_readable = key != nullptr && key->type == &ReferenceType();
        const auto& refused = m_commands[place]->refused_keys;
        if (is_readable)
        {
          AddReferences(place, *key, std::string(field.target), index);
        }
        if ((key != nullptr && !is_readable) || std::find(refused.begin(), refused.end(), field.key) != refused.end())
        {
          m_missed_kinds.emplace(field.target);
        }
      }
    }
  }
}

// The library takes the id of the target alone and looks for it in the kind that the key refers to.
void ReferenceGraph::AddReferences(std::size_t place, const JobKey& key, const std::string& kind, const JobIndex& index)
{
  for (const JobItem& item : key.items)
  {
    const JobCommand* target = index.Find(kind, std::get<JobReference>(item.value).id);
    if (target == nullptr)
    {
      m_missed_kinds.insert(kind);
    }
    else
    {
      m_edges[place].push_back({m_places.at(target), &key, &item});
    }
  }
}

std::vector<bool> ReachedFromAlgorithm(const ReferenceGraph& graph)
{
  const auto& commands = graph.Commands();
  std::vector<bool> reached(commands.size(), false);
  std::vector<std::size_t> ahead;
  for (std::size_t place = 0; place < commands.size(); ++place)
  {
    if (commands[place]->kind == kAlgorithm || graph.MissedKinds().count(commands[place]->kind) > 0)
    {
      reached[place] = true;
      ahead.push_back(place);
    }
  }
  while (!ahead.empty())
  {
    const std::size_t place = ahead.back();
    ahead.pop_back();
    for (const ReferenceEdge& edge : graph.From(place))
    {
      if (!reached[edge.target])
      {
        reached[edge.target] = true;
        ahead.push_back(edge.target);
      }
    }
  }
  return reached;
}

std::vector<ReferenceCycle> FindCycles(const ReferenceGraph& graph)
{
  return CycleSearch(graph).Search();
}
