#include "job_description.h"

#include "exit_code.h"
#include "nearest_name.h"
#include "toml_input.h"

#include <toml++/toml.h>

#include <algorithm>
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

// By name, else by letter, else by number.
std::optional<int> AsEnumerator(const toml::node& node, schema::Rows<schema::Enumerator> enumerators)
{
  const auto name = node.value_exact<std::string_view>();
  const auto number = AsInteger(node);
  for (const schema::Enumerator& enumerator : enumerators)
  {
    if (enumerator.name == name || enumerator.value == number)
    {
      return enumerator.value;
    }
  }
  for (const schema::Enumerator& enumerator : enumerators)
  {
    if (name && name->size() == 1 && enumerator.value == name->front())
    {
      return enumerator.value;
    }
  }
  return std::nullopt;
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
    default: return AsJobValue(AsText(node));
  }
}

template <class Row, class Name>
std::vector<std::string> NamesOf(schema::Rows<Row> rows, Name name)
{
  std::vector<std::string> names;
  for (const Row& row : rows)
  {
    names.emplace_back(name(row));
  }
  return names;
}

// A table keeps its members by name; people expect faults, and files, in the order of the text.
std::vector<std::pair<std::string, const toml::node*>> InTextOrder(const toml::table& table)
{
  std::vector<std::pair<std::string, const toml::node*>> members;
  for (const auto& [key, node] : table)
  {
    members.emplace_back(key.str(), &node);
  }
  std::stable_sort(members.begin(), members.end(), [](const auto& one, const auto& other) {
    return one.second->source().begin < other.second->source().begin;
  });
  return members;
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

  void Fault(const std::string& place, const std::string& what) { m_faults.push_back(place + ": " + what); }

  void ReadKind(const std::string& name, const toml::node& node)
  {
    const schema::Command* kind = schema::FindCommand(name);
    if (kind == nullptr)
    {
      const auto kinds = NamesOf(schema::Commands(), [](const schema::Command& one) { return one.kind; });
      Fault(PlaceOf(node), "there is no kind of command " + name + "; " + NearestName(name, kinds));
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
    if (id.empty() || id == "." || id.find('/') != std::string::npos || id.find('\0') != std::string::npos)
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
      const auto keys = NamesOf(command.kind->fields, [](const schema::Field& one) { return one.key; });
      Fault(PlaceOf(node), owner + " has no key " + name + "; " + NearestName(name, keys));
      return;
    }
    JobKey key{field, {}, PlaceOf(node)};
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
      Fault(key.place, owner + ": " + name + " holds any number of values and must be an array");
    }
    command.keys.push_back(std::move(key));
  }

  void AddValue(JobKey& key, const std::string& owner, const toml::node& node)
  {
    if (auto value = ReadValue(node, *key.field))
    {
      key.values.push_back(std::move(*value));
      return;
    }
    std::string fault = owner + ": " + std::string(key.field->key) + " must be " +
                        ExpectedValue(key.field->type) + ", not " + NodeText(node);
    if (!key.field->enumerators.empty())
    {
      fault += "; " + NearestName(node.value_or(std::string()),
                                  NamesOf(key.field->enumerators, [](const auto& one) { return one.name; }));
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
