#include "rules.h"

#include "support/plain_text.h"

#include <algorithm>

namespace schema = orvel::schema;

RefusedParts::RefusedParts(const std::vector<Finding>& faults)
{
  for (const Finding& fault : faults)
  {
    if (fault.key.empty())
    {
      kinds.insert(fault.kind);
      commands.emplace(fault.kind, fault.id);
    }
  }
}

bool RefusedParts::Has(const std::string& kind, const std::string& id) const
{
  return commands.count({kind, id}) > 0 || commands.count({kind, std::string()}) > 0;
}

std::string NameOf(const JobCommand& command)
{
  return PlainText(command.kind) + " " + PlainText(command.id);
}

Finding About(const Rule& rule, const JobCommand& command, const std::string& text, std::string remedy)
{
  return {&rule, command.kind, command.id, {}, {}, command.place, NameOf(command) + " " + text, std::move(remedy)};
}

Finding About(const Rule& rule, const JobCommand& command, const JobKey& key, const std::string& text,
              std::string remedy)
{
  return {&rule,
          command.kind,
          command.id,
          key.name,
          {},
          key.place,
          NameOf(command) + ": " + PlainText(key.name) + " " + text,
          std::move(remedy)};
}

Finding About(const Rule& rule, const JobCommand& command, const JobKey& key, const JobItem& item,
              const std::string& text, std::string remedy)
{
  Finding finding = About(rule, command, key, text, std::move(remedy));
  finding.value = ValueText(item.value, FieldOf(command, key.name));
  finding.place = item.place;
  return finding;
}

bool IsRefused(const JobCommand& command, std::string_view key)
{
  return std::find(command.refused_keys.begin(), command.refused_keys.end(), key) != command.refused_keys.end();
}

void ForEachKnownKey(const Job& job,
                     const std::function<void(const JobCommand&, const JobKey&, const schema::Field&)>& action)
{
  for (const JobCommand& command : job.commands)
  {
    const schema::Command* kind = schema::FindCommand(command.kind);
    for (const JobKey& key : command.keys)
    {
      if (const schema::Field* field = kind != nullptr ? schema::FindField(*kind, key.name) : nullptr)
      {
        action(command, key, *field);
      }
    }
  }
}
