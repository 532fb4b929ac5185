#include "rule.h"

#include <algorithm>

std::string_view SeverityName(Severity severity)
{
  switch (severity)
  {
    case Severity::Error: return "error";
    case Severity::Warning: return "warning";
    default: return "note";
  }
}

const Rule* FindRule(std::string_view name)
{
  const auto rule =
    std::find_if(AllRules().begin(), AllRules().end(), [name](const Rule* one) { return one->name == name; });
  return rule != AllRules().end() ? *rule : nullptr;
}

std::vector<std::string> RuleNames()
{
  std::vector<std::string> names;
  for (const Rule* rule : AllRules())
  {
    names.emplace_back(rule->name);
  }
  return names;
}
