/// \file
/// Links the references of a plain job. One thread at a time.
#pragma once

#include "peers/LocalGenerated/plain_commands.h"

#include <stdexcept>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace plain
{

/// Sets the target of each reference, found by id in a hash table for each kind.
class Linker
{
public:
  explicit Linker(Job& job)
  {
    job.ForEachKind([&](const char*, auto& commands) { Index(commands); });
    job.ForEachKind([&](const char*, auto& commands) {
      for (auto& command : commands)
      {
        command.Visit(*this);
      }
    });
  }

  template <class Value>
  void Always(const char*, Value& value)
  {
    Set(value);
  }

  template <class Value>
  void Optional(const char*, std::optional<Value>& value)
  {
    if (value)
    {
      Set(*value);
    }
  }

  template <class Value>
  void Repeated(const char*, std::vector<Value>& values)
  {
    for (Value& value : values)
    {
      Set(value);
    }
  }

private:
  template <class Target>
  using TargetsById = std::unordered_map<std::string_view, const Target*>;

  template <class Command>
  void Index(const std::vector<Command>& commands)
  {
    for (const Command& command : commands)
    {
      std::get<TargetsById<Command>>(m_commands).emplace(command.id, &command);
    }
  }

  template <class Value>
  void Set(const Value&)
  {
  }

  template <class Target>
  void Set(Link<Target>& link)
  {
    const auto& targets = std::get<TargetsById<Target>>(m_commands);
    const auto found = targets.find(link.id);
    if (found == targets.end())
    {
      throw std::runtime_error("no command has the id " + link.id);
    }
    link.target = found->second;
  }

  OneOfEachKind<TargetsById> m_commands;
};

}  // namespace plain
