/// \file
/// Which command leads to which.
#pragma once

#include "job.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// The reference graph of a job: its commands, what their references lead to, and the groups and coordinate systems
/// that they name as model ids where a command of the job defines them.
class JobGraph
{
public:
  /// How a command is reached.
  enum class Part
  {
    Reached,     ///< From ALGO_.
    Standalone,  ///< Of a kind that no key refers to, so that it is read without a reference; or reached from one.
    Unused       ///< Nothing leads there.
  };

  struct Node
  {
    std::string kind;  ///< Empty for the target of a reference that leads nowhere in a parameter file.
    std::string id;
    bool is_there;  ///< False for a target that is no command of the job.
    Part part = Part::Unused;
  };

  struct Edge
  {
    std::size_t from;
    std::size_t to;
    std::string key;
    bool is_model_id;
  };

  /// \param with_model_ids whether model ids that name commands are edges too
  JobGraph(const Job& job, bool with_model_ids);

  /// The commands in stable order, then the targets that are not there.
  const std::vector<Node>& Nodes() const { return m_nodes; }
  const std::vector<Edge>& Edges() const { return m_edges; }

  /// The nodes to which a node leads, as often as it does.
  const std::vector<std::size_t>& TargetsOf(std::size_t node) const { return m_targets[node]; }

  /// How many edges lead to a node.
  std::size_t SourceCount(std::size_t node) const { return m_source_counts[node]; }

  /// The number of edges of the longest way from the roots, edges that close a cycle left out.
  std::size_t Depth() const;

private:
  std::size_t NodeOf(const JobReference& target);
  void AddEdges(std::size_t from, const JobCommand& command, bool with_model_ids);
  void Reach(Part part, std::vector<std::size_t> from);

  std::vector<Node> m_nodes;
  std::vector<Edge> m_edges;
  std::vector<std::vector<std::size_t>> m_targets;
  std::vector<std::size_t> m_source_counts;
  std::map<std::pair<std::string, std::string>, std::size_t> m_places;
};

/// The kind of command from which a job starts.
inline constexpr const char* kRootKind = "ALGO_";
