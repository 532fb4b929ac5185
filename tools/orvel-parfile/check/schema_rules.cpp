#include "rules.h"

#include "support/nearest_name.h"
#include "support/plain_text.h"
#include "support/schema_names.h"

#include <algorithm>
#include <map>

namespace schema = orvel::schema;

namespace
{

void FindMissingKeysOf(const JobCommand& command, const schema::Command& kind, std::vector<Finding>& findings)
{
  for (const schema::Field& field : kind.fields)
  {
    if (field.presence == schema::Presence::Always && FindKey(command, field.key) == nullptr &&
        !IsRefused(command, field.key))
    {
      const std::string key(field.key);
      Finding finding = About(rules::missing_key, command, "lacks the key " + key + ", which must always be there", {});
      finding.key = key;
      findings.push_back(std::move(finding));
    }
  }
}

void FindUnknownKinds(const CheckSubject& subject, std::vector<Finding>& findings)
{
  std::map<std::string, std::string> places;
  for (const JobCommand& command : subject.job.commands)
  {
    places.emplace(command.kind, command.place);
  }
  for (const std::string& kind : subject.job.empty_kinds)
  {
    places.emplace(kind, std::string());
  }
  for (const auto& [kind, place] : places)
  {
    if (schema::FindCommand(kind) == nullptr)
    {
      findings.push_back(
        {&rules::unknown_kind,
         kind,
         {},
         {},
         {},
         place,
         "there is no kind of command " + PlainText(kind),
         Joined(NearestName(kind, KindNames()), "or " + subject.remedies.RemoveKind(kind, subject.index.Ids(kind)))});
    }
  }
}

void FindUnknownKeys(const CheckSubject& subject, std::vector<Finding>& findings)
{
  for (const JobCommand& command : subject.job.commands)
  {
    const schema::Command* kind = schema::FindCommand(command.kind);
    for (const JobKey& key : command.keys)
    {
      if (kind != nullptr && schema::FindField(*kind, key.name) == nullptr)
      {
        Finding finding =
          About(rules::unknown_key, command, key, "is no key that this command reads",
                Joined(NearestName(key.name, KeyNames(*kind)), "or " + subject.remedies.Remove(command, key.name)));
        findings.push_back(std::move(finding));
      }
    }
  }
}

void AddMissingKeys(const CheckSubject& subject, std::vector<Finding>& findings)
{
  for (Finding& missing : FindMissingKeys(subject.job))
  {
    const JobCommand& command = *subject.index.Find(missing.kind, missing.id);
    const schema::Field& field = *FieldOf(command, missing.key);
    missing.remedy = subject.remedies.Set(command, field, {}) + " (" + std::string(field.documentation) + ")";
    findings.push_back(std::move(missing));
  }
}

// What stands in the file, for a person: the type, or why there is none.
std::string FoundType(const JobKey& key)
{
  return key.type != nullptr ? "of the type " + std::string(key.type->name) : key.unreadable;
}

bool HasType(const JobKey& key, const schema::Field& field)
{
  return key.type != nullptr && AreSameButForByteOrder(*key.type, StoredTypeOf(field.type));
}

void CheckEnumerators(const CheckSubject& subject, const JobCommand& command, const JobKey& key,
                      const schema::Field& field, std::vector<Finding>& findings)
{
  for (std::size_t place = 0; place < key.items.size(); ++place)
  {
    const auto number = std::get<std::int64_t>(key.items[place].value);
    const bool is_one =
      std::any_of(field.enumerators.begin(), field.enumerators.end(),
                  [number](const schema::Enumerator& enumerator) { return enumerator.value == number; });
    if (!is_one)
    {
      findings.push_back(About(rules::not_an_enumerator, command, key, key.items[place],
                               "must be an enumerator, not " + std::to_string(number),
                               subject.remedies.ReplaceByAny(command, key, place)));
    }
  }
}

void CheckCount(const CheckSubject& subject, const JobCommand& command, const JobKey& key, const schema::Field& field,
                std::vector<Finding>& findings)
{
  if (field.presence == schema::Presence::Repeated || key.items.size() == 1)
  {
    return;
  }
  const std::string found = key.items.empty() ? "no value" : std::to_string(key.items.size()) + " values";
  std::vector<std::string> first;
  if (!key.items.empty())
  {
    const JobValue& value = key.items.front().value;
    const auto* target = std::get_if<JobReference>(&value);
    first.push_back(target != nullptr ? target->id : ValueText(value, &field));
  }
  findings.push_back(About(rules::wrong_count, command, key, "has " + found + " where one is read",
                           subject.remedies.Set(command, field, first)));
}

void CheckKey(const CheckSubject& subject, const JobCommand& command, const JobKey& key, const schema::Field& field,
              std::vector<Finding>& findings)
{
  if (!HasType(key, field))
  {
    findings.push_back(
      About(rules::wrong_type, command, key,
            "is " + FoundType(key) + "; its command reads the type " + std::string(StoredTypeOf(field.type).name),
            subject.remedies.Set(command, field, ConvertedValues(key, field))));
    return;
  }
  CheckCount(subject, command, key, field, findings);
  if (field.type == vtmEnum)
  {
    CheckEnumerators(subject, command, key, field, findings);
  }
}

// The names in "/PARFILE/kind/id/key".
std::vector<std::string> NamesIn(const std::string& path)
{
  std::vector<std::string> names;
  for (std::size_t start = path.find('/', 1); start != std::string::npos;)
  {
    const std::size_t end = path.find('/', start + 1);
    names.push_back(path.substr(start + 1, end == std::string::npos ? end : end - start - 1));
    start = end;
  }
  names.resize(3);
  return names;
}

void FindForeignObjects(const CheckSubject& subject, std::vector<Finding>& findings)
{
  for (const ForeignObject& object : subject.job.foreign_objects)
  {
    const std::vector<std::string> names = NamesIn(object.path);
    findings.push_back({&rules::foreign_object,
                        names[0],
                        names[1],
                        names[2],
                        object.what,
                        {},
                        PlainText(object.path) + ": " + object.what + ", which no command reads",
                        subject.remedies.RemoveForeign(names, object.IsAttribute())});
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
  FindForeignObjects(subject, findings);
  FindUnknownKinds(subject, findings);
  FindUnknownKeys(subject, findings);
  AddMissingKeys(subject, findings);
  ForEachKnownKey(subject.job, [&](const JobCommand& command, const JobKey& key, const schema::Field& field) {
    CheckKey(subject, command, key, field, findings);
  });
}
