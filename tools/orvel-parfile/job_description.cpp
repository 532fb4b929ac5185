#include "job_description.h"

#include "exit_code.h"
#include "nearest_name.h"
#include "schema_names.h"
#include "toml_input.h"

#include <toml++/toml.h>

#include <algorithm>
#include <cctype>
#include <limits>
#include <optional>

namespace schema = orvel::schema;

namespace
{

const char* ExpectedValue(VtmType type)
{
  switch (type)
  {
    case vtmInteger: return "a whole number of 32 bits";
    case vtmDouble: return "a number";
    case vtmEnum: return "an enumerator";
    case vtmIntegerList: return "a list of whole numbers of 32 bits";
    case vtmDoubleList: return "a list of numbers";
    case vtmReference: return "the id of a command";
    default: return "a text without NUL";
  }
}

std::optional<int> AsInteger(const toml::node& node)
{
  const auto number = node.value_exact<std::int64_t>();
  if (!number || *number < std::numeric_limits<int>::min() || *number > std::numeric_limits<int>::max())
  {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

std::optional<double> AsDouble(const toml::node& node)
{
  return node.is_number() ? node.value<double>() : std::nullopt;
}

std::optional<std::string> AsText(const toml::node& node)
{
  auto text = node.value_exact<std::string>();
  return text && text->find('\0') == std::string::npos ? text : std::nullopt;
}

// Most enumerations have the codes of letters as their numbers.
bool HaveLetters(schema::Rows<schema::Enumerator> enumerators)
{
  return std::all_of(enumerators.begin(), enumerators.end(), [](const schema::Enumerator& enumerator) {
    return enumerator.value == '_' || (enumerator.value < 128 && std::isalpha(enumerator.value) != 0);
  });
}

bool IsEnumerator(const toml::node& node, const schema::Enumerator& enumerator, bool by_letter)
{
  const auto text = node.value_exact<std::string_view>();
  const bool is_letter = by_letter && text && text->size() == 1 && text->front() == enumerator.value;
  return enumerator.name == text || is_letter || AsInteger(node) == enumerator.value;
}

std::optional<int> AsEnumerator(const toml::node& node, schema::Rows<schema::Enumerator> enumerators)
{
  const bool by_letter = HaveLetters(enumerators);
  for (const schema::Enumerator& enumerator : enumerators)
  {
    if (IsEnumerator(node, enumerator, by_letter))
    {
      return enumerator.value;
    }
  }
  return std::nullopt;
}

// The names that a group of the file can have: others would mean another place in it.
bool IsId(const std::string& text)
{
  return !text.empty() && text != "." && text.find('/') == std::string::npos && text.find('\0') == std::string::npos;
}

std::optional<std::string> AsId(const toml::node& node)
{
  auto text = node.value_exact<std::string>();
  return text && IsId(*text) ? text : std::nullopt;
}

template <class Item, class Read>
std::optional<std::vector<Item>> AsList(const toml::node& node, Read read)
{
  const toml::array* array = node.as_array();
  if (array == nullptr)
  {
    return std::nullopt;
  }
  std::vector<Item> items;
  for (const toml::node& element : *array)
  {
    const std::optional<Item> item = read(element);
    if (!item)
    {
      return std::nullopt;
    }
    items.push_back(*item);
  }
  return items;
}

template <class Value>
std::optional<JobValue> AsJobValue(std::optional<Value> value)
{
  return value ? std::optional<JobValue>(std::move(*value)) : std::nullopt;
}

std::optional<JobValue> ReadValue(const toml::node& node, const schema::Field& field)
{
  switch (field.type)
  {
    case vtmInteger: return AsJobValue(AsInteger(node));
    case vtmDouble: return AsJobValue(AsDouble(node));
    case vtmEnum: return AsJobValue(AsEnumerator(node, field.enumerators));
    case vtmIntegerList: return AsJobValue(AsList<int>(node, AsInteger));
    case vtmDoubleList: return AsJobValue(AsList<double>(node, AsDouble));
    case vtmReference: return AsJobValue(AsId(node));
    default: return AsJobValue(AsText(node));
  }
}

class JobReader
{
public:
  explicit JobReader(const std::filesystem::path& path) : m_path(path) {}

  std::vector<JobCommand> Read()
  {
    const toml::table job = ReadToml(m_path);
    for (const auto& [kind, commands] : InTextOrder(job))
    {
      ReadKind(kind, *commands);
    }
    if (!m_faults.empty())
    {
      throw FaultyInput(m_faults);
    }
    return std::move(m_commands);
  }

private:
  std::string PlaceOf(const toml::node& node) const { return PlaceText(m_path, node.source()); }

  void Fault(const std::string& place, const std::string& what) { m_faults.push_back(place + ": " + Printable(what)); }

  void ReadKind(const std::string& name, const toml::node& node)
  {
    const schema::Command* kind = schema::FindCommand(name);
    if (kind == nullptr)
    {
      Fault(PlaceOf(node), "there is no kind of command " + name + "; " + NearestName(name, KindNames()));
      return;
    }
    if (!node.is_table())
    {
      Fault(PlaceOf(node), name + " must be a table of commands, [" + name + ".an_id]");
      return;
    }
    for (const auto& [id, command] : InTextOrder(*node.as_table()))
    {
      ReadCommand(*kind, id, *command);
    }
  }

  void ReadCommand(const schema::Command& kind, const std::string& id, const toml::node& node)
  {
    const std::string name = std::string(kind.kind) + " " + id;
    if (!node.is_table())
    {
      Fault(PlaceOf(node), name + " must be a table of keys, [" + std::string(kind.kind) + "." + id + "]");
      return;
    }
    if (!IsId(id))
    {
      Fault(PlaceOf(node), "the id \"" + id + "\" of a " + std::string(kind.kind) +
                             " cannot stand in a parameter file: an id is not empty, not \".\" and has no \"/\"");
      return;
    }
    JobCommand command{&kind, id, {}, PlaceOf(node)};
    for (const auto& [key, value] : InTextOrder(*node.as_table()))
    {
      ReadKey(command, key, *value);
    }
    RequireKeys(command, *node.as_table());
    m_commands.push_back(std::move(command));
  }

  void ReadKey(JobCommand& command, const std::string& name, const toml::node& node)
  {
    const std::string owner = std::string(command.kind->kind) + " " + command.id;
    const schema::Field* field = schema::FindField(*command.kind, name);
    if (field == nullptr)
    {
      Fault(PlaceOf(node), owner + " has no key " + name + "; " + NearestName(name, KeyNames(*command.kind)));
      return;
    }
    JobKey key{field, {}};
    if (field->presence != schema::Presence::Repeated)
    {
      AddValue(key, owner, node);
    }
    else if (const toml::array* array = node.as_array())
    {
      std::for_each(array->begin(), array->end(), [&](const toml::node& one) { AddValue(key, owner, one); });
    }
    else
    {
      Fault(PlaceOf(node), owner + ": " + name + " holds any number of values and must be an array");
    }
    command.keys.push_back(std::move(key));
  }

  void AddValue(JobKey& key, const std::string& owner, const toml::node& node)
  {
    if (auto value = ReadValue(node, *key.field))
    {
      key.items.push_back({std::move(*value), PlaceOf(node)});
      return;
    }
    std::string fault = owner + ": " + std::string(key.field->key) + " must be " + ExpectedValue(key.field->type) +
                        ", not " + NodeText(node);
    if (!key.field->enumerators.empty())
    {
      fault += "; " + NearestName(node.value_or(std::string()), EnumeratorNames(*key.field));
    }
    Fault(PlaceOf(node), fault);
  }

  void RequireKeys(const JobCommand& command, const toml::table& keys)
  {
    for (const schema::Field& field : command.kind->fields)
    {
      if (field.presence == schema::Presence::Always && !keys.contains(field.key))
      {
        Fault(command.place, std::string(command.kind->kind) + " " + command.id + " lacks the key " +
                               std::string(field.key) + ", which must always be there");
      }
    }
  }

  std::filesystem::path m_path;
  std::vector<std::string> m_faults;
  std::vector<JobCommand> m_commands;
};

}  // namespace

std::vector<JobCommand> ReadJobDescription(const std::filesystem::path& path)
{
  return JobReader(path).Read();
}
