/// \file
/// The steps by which the references of a command are filled. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvel::detail
{

/// Fills the references of one command, one call for one key. The getter of a step is the one of the aggregate that
/// finds a command of the target's kind by its id.
///
/// Throws: what the storage and the getter throw; references filled before then stay.
template <class Aggregate>
class ReferenceSteps
{
public:
  template <class Target>
  using Getter = Target& (Aggregate::*)(const std::string&) const;

  /// Not owned: everything must outlive the steps.
  ReferenceSteps(const OrvelParfileStorage& storage, const std::string& kind, const std::string& id,
                 const Aggregate& parfile)
    : m_storage(storage), m_kind(kind), m_id(id), m_parfile(parfile)
  {
  }

  /// Fills a reference without asking whether the storage has it.
  template <class Found, class Target>
  void Always(const char* key, Getter<Found> get, const Target*& target) const
  {
    target = &Find(key, 1, get);
  }

  /// Fills a reference if the storage has it.
  template <class Found, class Target>
  void Optional(const char* key, Getter<Found> get, bool& has, const Target*& target) const
  {
    has = m_storage.HasElement(m_kind, m_id, key);
    if (has)
    {
      Always(key, get, target);
    }
  }

  /// Appends all references of a key.
  template <class Found, class Target>
  void Repeated(const char* key, Getter<Found> get, std::uint64_t& count, std::vector<const Target*>& targets) const
  {
    count = m_storage.GetNumElements(m_kind, m_id, key);
    for (std::uint64_t index = 1; index <= count; ++index)
    {
      targets.push_back(&Find(key, index, get));
    }
  }

private:
  template <class Found>
  Found& Find(const char* key, std::uint64_t index, Getter<Found> get) const
  {
    std::string name;
    m_storage.GetReference(m_kind, m_id, key, index, name);
    return (m_parfile.*get)(name);
  }

  const OrvelParfileStorage& m_storage;
  const std::string& m_kind;
  const std::string& m_id;
  const Aggregate& m_parfile;
};

}  // namespace orvel::detail
