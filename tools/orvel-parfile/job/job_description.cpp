#include "job_description.h"

#include "read_value.h"
#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"
#include "support/schema_names.h"
#include "support/toml_input.h"

#include <toml++/toml.h>

#include <algorithm>
#include <set>

namespace schema = orvel::schema;

namespace
{

class JobReader
{
public:
  explicit JobReader(const std::filesystem::path& path) : m_path(path) {}

  JobDescription Read()
  {
    const toml::table job = ReadToml(m_path);
    if (const toml::node* extra_kinds = job.get(kExtraKinds))
    {
      ReadExtraKinds(*extra_kinds);
    }
    for (const auto& [kind, commands] : InTextOrder(job))
    {
      if (kind != kExtraKinds)
      {
        ReadKind(kind, *commands);
      }
    }
    return std::move(m_description);
  }

private:
  // What a fault is about.
  struct Subject
  {
    std::string kind;
    std::string id;
    std::string key;

    std::string Name() const { return kind + (id.empty() ? "" : " " + id) + (key.empty() ? "" : ": " + key); }
  };

  std::string PlaceOf(const toml::node& node) const { return PlaceText(m_path, node.source()); }

  void Fault(const Rule& rule, const Subject& subject, const toml::node& node, const std::string& text,
             const std::string& remedy = {}, const std::string& value = {})
  {
    m_description.faults.push_back({&rule, subject.kind, subject.id, subject.key, PrintableLines(value), PlaceOf(node),
                                    PrintableLines(text), PrintableLines(remedy)});
  }

  void ReadExtraKinds(const toml::node& node)
  {
    std::set<std::string> names;
    const toml::array* array = node.as_array();
    for (const toml::node& item : array != nullptr ? *array : toml::array())
    {
      names.insert(item.value_exact<std::string>().value_or(std::string()));
    }
    if (array == nullptr || !std::all_of(names.begin(), names.end(), IsName))
    {
      Fault(rules::wrong_type, {kExtraKinds, {}, {}}, node, std::string(kExtraKinds) + " must be a list of kinds");
      return;
    }
    m_extra_kinds = std::move(names);
  }

  void ReadKind(const std::string& name, const toml::node& node)
  {
    const Subject subject{name, {}, {}};
    if (schema::FindCommand(name) == nullptr && m_extra_kinds.count(name) == 0)
    {
      Fault(rules::unknown_kind, subject, node, "there is no kind of command " + name, NearestName(name, KindNames()));
      return;
    }
    if (!node.is_table())
    {
      Fault(rules::wrong_type, subject, node, name + " must be a table of commands, [" + name + ".an_id]");
      return;
    }
    if (node.as_table()->empty())
    {
      m_description.job.empty_kinds.push_back(name);
    }
    for (const auto& [id, command] : InTextOrder(*node.as_table()))
    {
      ReadCommand({name, id, {}}, *command);
    }
  }

  void ReadCommand(const Subject& subject, const toml::node& node)
  {
    if (!node.is_table())
    {
      Fault(rules::wrong_type, subject, node,
            subject.Name() + " must be a table of keys, [" + subject.kind + "." + subject.id + "]");
      return;
    }
    if (!IsName(subject.id))
    {
      Fault(rules::impossible_name, subject, node,
            "the id \"" + subject.id + "\" of a " + subject.kind +
              " cannot stand in a parameter file: an id is not empty, not \".\" and has no \"/\"");
      return;
    }
    JobCommand command{subject.kind, subject.id, {}, {}, PlaceOf(node)};
    for (const auto& [key, value] : InTextOrder(*node.as_table()))
    {
      const std::size_t faults = m_description.faults.size();
      ReadKey(command, {subject.kind, subject.id, key}, *value);
      if (m_description.faults.size() > faults)
      {
        command.refused_keys.push_back(key);
      }
    }
    m_description.job.commands.push_back(std::move(command));
  }

  void ReadKey(JobCommand& command, const Subject& subject, const toml::node& node)
  {
    if (const toml::table* table = node.as_table(); table != nullptr && table->contains(kTypeMember))
    {
      ReadTypedKey(command, subject, *table);
      return;
    }
    const schema::Field* field = FieldOf(command, subject.key);
    if (field == nullptr)
    {
      const schema::Command* kind = schema::FindCommand(command.kind);
      Fault(rules::unknown_key, subject, node, command.kind + " " + command.id + " has no key " + subject.key,
            kind != nullptr ? NearestName(subject.key, KeyNames(*kind))
                            : "what no command reads stands with its type, { type = \"number\", values = [0.5] }");
      return;
    }
    JobKey key{subject.key, &StoredTypeOf(field->type), {}, PlaceOf(node), {}};
    if (field->presence != schema::Presence::Repeated)
    {
      AddValue(key, subject, *field, node);
    }
    else if (const toml::array* array = node.as_array())
    {
      std::for_each(array->begin(), array->end(), [&](const toml::node& one) { AddValue(key, subject, *field, one); });
    }
    else
    {
      Fault(rules::wrong_type, subject, node, subject.Name() + " holds any number of values and must be an array", {},
            NodeText(node));
    }
    if (!key.items.empty())
    {
      command.keys.push_back(std::move(key));
    }
  }

  void AddValue(JobKey& key, const Subject& subject, const schema::Field& field, const toml::node& node)
  {
    if (auto value = ReadValue(node, field))
    {
      key.items.push_back({std::move(*value), PlaceOf(node)});
      return;
    }
    const bool is_enumeration = !field.enumerators.empty();
    Fault(is_enumeration ? rules::not_an_enumerator : rules::wrong_type, subject, node,
          subject.Name() + " must be " + ExpectedValue(field.type) + ", not " + NodeText(node),
          is_enumeration ? NearestName(node.value_or(std::string()), EnumeratorNames(field)) : "", NodeText(node));
  }

  // A key that stands with its type: how an export carries what no command reads, or what no command can read.
  void ReadTypedKey(JobCommand& command, const Subject& subject, const toml::table& table)
  {
    const auto name = table[kTypeMember].value_or(std::string());
    const StoredType* type = FindStoredType(name);
    if (type == nullptr)
    {
      Fault(rules::wrong_type, subject, table, subject.Name() + " has no type " + name,
            NearestName(name, StoredTypeNames()), name);
      return;
    }
    const bool in_hex = HasHexForm(*type) && table.contains(kHexMember);
    const toml::array* values = table[in_hex ? kHexMember : kValuesMember].as_array();
    if (!IsName(subject.key))
    {
      Fault(rules::impossible_name, subject, table, "the key \"" + subject.key + "\" cannot stand in a parameter file");
      return;
    }
    if (values == nullptr || table.size() != 2)
    {
      Fault(rules::wrong_type, subject, table, subject.Name() + " must be { type = \"" + name + "\", values = [...] }");
      return;
    }
    JobKey key{subject.key, type, {}, PlaceOf(table), {}};
    for (const toml::node& node : *values)
    {
      if (auto value = in_hex ? ReadHexValue(node, *type) : ReadValue(node, *type))
      {
        key.items.push_back({std::move(*value), PlaceOf(node)});
      }
      else
      {
        Fault(rules::wrong_type, subject, node,
              subject.Name() + " must be " + ExpectedValue(*type) + ", not " + NodeText(node), {}, NodeText(node));
      }
    }
    command.keys.push_back(std::move(key));
  }

  std::filesystem::path m_path;
  std::set<std::string> m_extra_kinds;
  JobDescription m_description;
};

}  // namespace

JobDescription ReadJobDescription(const std::filesystem::path& path)
{
  return JobReader(path).Read();
}

Job ReadSoundJobDescription(const std::filesystem::path& path)
{
  JobDescription description = ReadJobDescription(path);
  if (!description.faults.empty())
  {
    throw FaultyInput(AsLines(description.faults));
  }
  return std::move(description.job);
}

bool IsJobDescription(const std::filesystem::path& path)
{
  return path.extension() == ".toml";
}
