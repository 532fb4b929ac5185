#include "peers/link_plain_job.h"
#include "peers/peers.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <utility>

namespace plain
{
namespace
{

class JsonKeys
{
public:
  explicit JsonKeys(const nlohmann::json& keys) : m_keys(keys) {}

  template <class Value>
  void Always(const char* key, Value& value) const
  {
    const auto found = m_keys.find(key);
    if (found != m_keys.end())
    {
      Read(*found, value);
    }
  }

  template <class Value>
  void Optional(const char* key, std::optional<Value>& value) const
  {
    const auto found = m_keys.find(key);
    if (found != m_keys.end())
    {
      Read(*found, value.emplace());
    }
  }

  template <class Value>
  void Repeated(const char* key, std::vector<Value>& values) const
  {
    const auto found = m_keys.find(key);
    if (found == m_keys.end())
    {
      return;
    }
    values.reserve(found->size());
    for (const nlohmann::json& one : *found)
    {
      Read(one, values.emplace_back());
    }
  }

private:
  template <class Value>
  static void Read(const nlohmann::json& json, Value& value)
  {
    json.get_to(value);
  }

  template <class Target>
  static void Read(const nlohmann::json& json, Link<Target>& link)
  {
    json.get_to(link.id);
  }

  const nlohmann::json& m_keys;
};

}  // namespace

Job ReadJson(const std::filesystem::path& file)
{
  std::ifstream text(file);
  const nlohmann::json json = nlohmann::json::parse(text);
  Job job;
  job.ForEachKind([&](const char* kind, auto& commands) {
    const auto of_kind = json.find(kind);
    if (of_kind == json.end())
    {
      return;
    }
    commands.reserve(of_kind->size());
    for (const auto& [id, keys] : of_kind->items())
    {
      auto& command = commands.emplace_back();
      command.id = id;
      JsonKeys reader(keys);
      command.Visit(reader);
    }
  });
  Linker linker(job);
  return job;
}

}  // namespace plain
