#include "job.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <tuple>

namespace schema = orvel::schema;

namespace
{

// The place of a name among the rows, behind all of them for a name that has none.
template <class Row, class Name>
std::size_t PlaceIn(schema::Rows<Row> rows, std::string_view wanted, Name name)
{
  const auto* row = std::find_if(rows.begin(), rows.end(), [&](const Row& one) { return name(one) == wanted; });
  return static_cast<std::size_t>(row - rows.begin());
}

std::size_t PlaceOfKind(std::string_view kind)
{
  return PlaceIn(schema::Commands(), kind, [](const schema::Command& command) { return command.kind; });
}

std::size_t PlaceOfKey(const schema::Command* command, std::string_view key)
{
  return command == nullptr ? 0 : PlaceIn(command->fields, key, [](const schema::Field& field) { return field.key; });
}

template <class Items, class Text>
std::string ListText(const Items& items, Text text)
{
  std::string list = "[";
  for (const auto& item : items)
  {
    list += (list.size() > 1 ? ", " : "") + text(item);
  }
  return list + "]";
}

std::string EnumeratorText(std::int64_t value, const schema::Field& field)
{
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    if (enumerator.value == value)
    {
      return std::string(enumerator.name);
    }
  }
  return std::to_string(value);
}

struct TextOf
{
  const schema::Field* field;

  std::string operator()(std::int64_t value) const
  {
    return field != nullptr ? EnumeratorText(value, *field) : std::to_string(value);
  }
  std::string operator()(double value) const { return NumberText(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const std::vector<std::int64_t>& values) const
  {
    return ListText(values, [](std::int64_t value) { return std::to_string(value); });
  }
  std::string operator()(const std::vector<double>& values) const { return ListText(values, NumberText); }
  std::string operator()(const JobReference& value) const
  {
    return value.IsNull() ? "nothing" : value.kind + " " + value.id;
  }
};

}  // namespace

const JobKey* FindKey(const JobCommand& command, std::string_view name)
{
  const auto key =
    std::find_if(command.keys.begin(), command.keys.end(), [&](const JobKey& one) { return one.name == name; });
  return key != command.keys.end() ? &*key : nullptr;
}

bool RefersTo(const JobKey& key, const JobReference& target)
{
  return std::any_of(key.items.begin(), key.items.end(), [&](const JobItem& item) {
    const auto* reference = std::get_if<JobReference>(&item.value);
    return reference != nullptr && *reference == target;
  });
}

const schema::Field* FieldOf(const JobCommand& command, std::string_view key)
{
  const schema::Command* kind = schema::FindCommand(command.kind);
  return kind != nullptr ? schema::FindField(*kind, key) : nullptr;
}

JobIndex::JobIndex(const Job& job)
{
  for (const JobCommand& command : job.commands)
  {
    m_commands[command.kind].emplace(command.id, &command);
  }
}

const JobCommand* JobIndex::Find(const std::string& kind, const std::string& id) const
{
  const auto commands = m_commands.find(kind);
  if (commands == m_commands.end())
  {
    return nullptr;
  }
  const auto command = commands->second.find(id);
  return command != commands->second.end() ? command->second : nullptr;
}

std::vector<std::string> JobIndex::Ids(const std::string& kind) const
{
  std::vector<std::string> ids;
  const auto commands = m_commands.find(kind);
  if (commands != m_commands.end())
  {
    for (const auto& [id, command] : commands->second)
    {
      ids.push_back(id);
    }
  }
  return ids;
}

Job InStableOrder(Job job)
{
  std::sort(job.commands.begin(), job.commands.end(), [](const JobCommand& one, const JobCommand& other) {
    return std::make_tuple(PlaceOfKind(one.kind), std::string_view(one.kind), std::string_view(one.id)) <
           std::make_tuple(PlaceOfKind(other.kind), std::string_view(other.kind), std::string_view(other.id));
  });
  for (JobCommand& command : job.commands)
  {
    const schema::Command* kind = schema::FindCommand(command.kind);
    std::sort(command.keys.begin(), command.keys.end(), [kind](const JobKey& one, const JobKey& other) {
      return std::make_tuple(PlaceOfKey(kind, one.name), std::string_view(one.name)) <
             std::make_tuple(PlaceOfKey(kind, other.name), std::string_view(other.name));
    });
  }
  std::sort(job.empty_kinds.begin(), job.empty_kinds.end());
  return job;
}

std::string ValueText(const JobValue& value, const schema::Field* field)
{
  return std::visit(TextOf{field}, value);
}

std::string NumberText(double value)
{
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}
