/// \file
/// The commands of a job and what they refer to, as the library links them.
#pragma once

#include "job/job.h"

#include <cstddef>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

/// The kind from which all references start.
inline constexpr const char* kAlgorithm = "ALGO_";

/// One reference from a command to another.
struct ReferenceEdge
{
  std::size_t target;  ///< Place among the commands.
  const JobKey* key;
  const JobItem* item;
};

/// The references of all commands. Not owned: the job must outlive it.
class ReferenceGraph
{
public:
  ReferenceGraph(const Job& job, const JobIndex& index);

  const std::vector<const JobCommand*>& Commands() const { return m_commands; }

  /// The references of the command at a place, in the order of the job.
  const std::vector<ReferenceEdge>& From(std::size_t place) const { return m_edges[place]; }

  /// The kinds of which a command is meant by a reference that leads to none.
  const std::set<std::string>& MissedKinds() const { return m_missed_kinds; }

private:
  void AddReferences(std::size_t place, const JobKey& key, const std::string& kind, const JobIndex& index);

  std::vector<const JobCommand*> m_commands;
  std::vector<std::vector<ReferenceEdge>> m_edges;
  std::unordered_map<const JobCommand*, std::size_t> m_places;
  std::set<std::string> m_missed_kinds;
};

/// For each command whether ALGO_ reaches it. What a missed reference may have meant counts as reached.
std::vector<bool> ReachedFromAlgorithm(const ReferenceGraph& graph);

/// One circle: its commands in the order of their references, and the reference of the last one to the first.
struct ReferenceCycle
{
  std::vector<std::size_t> commands;
  ReferenceEdge closing;
};

/// The circles among the commands, one for each reference that closes one.
std::vector<ReferenceCycle> FindCycles(const ReferenceGraph& graph);
