#include "rules.h"

#include <algorithm>

namespace schema = orvel::schema;

namespace
{

void FindMissingKeysOf(const JobCommand& command, const schema::Command& kind, std::vector<Finding>& findings)
{
  for (const schema::Field& field : kind.fields)
  {
    const bool is_refused =
      std::find(command.refused_keys.begin(), command.refused_keys.end(), field.key) != command.refused_keys.end();
    if (field.presence == schema::Presence::Always && FindKey(command, field.key) == nullptr && !is_refused)
    {
      findings.push_back(
        {&rules::missing_key,
         command.kind,
         command.id,
         std::string(field.key),
         {},
         command.place,
         command.kind + " " + command.id + " lacks the key " + std::string(field.key) + ", which must always be there",
         {}});
    }
  }
}

}  // namespace

std::vector<Finding> FindMissingKeys(const Job& job)
{
  std::vector<Finding> findings;
  for (const JobCommand& command : job.commands)
  {
    if (const schema::Command* kind = schema::FindCommand(command.kind))
    {
      FindMissingKeysOf(command, *kind, findings);
    }
  }
  return findings;
}

void CheckSchema(const CheckSubject& subject, std::vector<Finding>& findings)
{
  const std::vector<Finding> missing = FindMissingKeys(subject.job);
  findings.insert(findings.end(), missing.begin(), missing.end());
}
