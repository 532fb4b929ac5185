#include "job_text.h"

#include "job_description.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iomanip>
#include <set>
#include <sstream>

namespace schema = orvel::schema;
using Json = nlohmann::ordered_json;

namespace
{

constexpr std::size_t kLineWidth = 100;

bool IsUtf8(const std::string& text)
{
  try
  {
    return !Json(text).dump().empty();
  }
  catch (const Json::type_error&)
  {
    return false;
  }
}

bool IsEnumerator(const schema::Field& field, std::int64_t value)
{
  return std::any_of(field.enumerators.begin(), field.enumerators.end(),
                     [value](const schema::Enumerator& enumerator) { return enumerator.value == value; });
}

bool IsPlainValue(const JobValue& value, const schema::Field& field)
{
  if (const auto* number = std::get_if<std::int64_t>(&value))
  {
    return field.enumerators.empty() || IsEnumerator(field, *number);
  }
  if (const auto* target = std::get_if<JobReference>(&value))
  {
    return target->kind == field.target;
  }
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr || IsUtf8(*text);
}

// Whether a key stands as a command reads it, so that its type need not be told.
bool IsPlain(const JobKey& key, const schema::Field* field)
{
  if (field == nullptr || key.type != &StoredTypeOf(field->type) || key.items.empty() ||
      (field->presence != schema::Presence::Repeated && key.items.size() != 1))
  {
    return false;
  }
  return std::all_of(key.items.begin(), key.items.end(),
                     [field](const JobItem& item) { return IsPlainValue(item.value, *field); });
}

struct PlainJson
{
  const schema::Field& field;

  Json operator()(std::int64_t value) const
  {
    return field.enumerators.empty() ? Json(value) : Json(ValueText(value, &field));
  }
  Json operator()(const JobReference& target) const { return target.id; }
  template <class Value>
  Json operator()(const Value& value) const
  {
    return value;
  }
};

struct TypedJson
{
  Json operator()(const JobReference& target) const
  {
    return target.IsNull() ? std::string() : target.kind + "/" + target.id;
  }
  template <class Value>
  Json operator()(const Value& value) const
  {
    return value;
  }
};

std::string HexText(const std::string& text)
{
  std::ostringstream digits;
  digits << std::hex << std::setfill('0');
  for (const char character : text)
  {
    digits << std::setw(2) << static_cast<unsigned>(static_cast<unsigned char>(character));
  }
  return digits.str();
}

bool NeedsHex(const JobKey& key)
{
  return key.type->shape == ValueShape::Text &&
         std::any_of(key.items.begin(), key.items.end(),
                     [](const JobItem& item) { return !IsUtf8(std::get<std::string>(item.value)); });
}

Json TypedKey(const JobKey& key)
{
  const bool in_hex = NeedsHex(key);
  Json values = Json::array();
  for (const JobItem& item : key.items)
  {
    values.push_back(in_hex ? Json(HexText(std::get<std::string>(item.value))) : std::visit(TypedJson{}, item.value));
  }
  return {{kTypeMember, key.type->name}, {in_hex ? kHexMember : kValuesMember, values}};
}

Json KeyJson(const JobKey& key, const schema::Field* field)
{
  if (!IsPlain(key, field))
  {
    return TypedKey(key);
  }
  if (field->presence != schema::Presence::Repeated)
  {
    return std::visit(PlainJson{*field}, key.items.front().value);
  }
  Json values = Json::array();
  for (const JobItem& item : key.items)
  {
    values.push_back(std::visit(PlainJson{*field}, item.value));
  }
  return values;
}

Json ExtraKinds(const Job& job)
{
  std::set<std::string> extra(job.empty_kinds.begin(), job.empty_kinds.end());
  for (const JobCommand& command : job.commands)
  {
    extra.insert(command.kind);
  }
  Json names = Json::array();
  for (const std::string& kind : extra)
  {
    if (schema::FindCommand(kind) == nullptr)
    {
      names.push_back(kind);
    }
  }
  return names;
}

// The job in the shape of its description.
Json Description(const Job& job)
{
  Json description = Json::object();
  if (Json extra = ExtraKinds(job); !extra.empty())
  {
    description[kExtraKinds] = std::move(extra);
  }
  const Job ordered = InStableOrder(job);
  for (const JobCommand& command : ordered.commands)
  {
    Json& keys = description[command.kind][command.id];
    keys = Json::object();
    for (const JobKey& key : command.keys)
    {
      keys[key.name] = KeyJson(key, FieldOf(command, key.name));
    }
  }
  for (const std::string& kind : ordered.empty_kinds)
  {
    description[kind] = Json::object();
  }
  return description;
}

// JSON's escapes are those of TOML, which also wants one for the delete character.
std::string TomlText(const std::string& text)
{
  std::string quoted = Json(text).dump();
  for (std::size_t at = quoted.find('\x7f'); at != std::string::npos; at = quoted.find('\x7f', at))
  {
    quoted.replace(at, 1, "\\u007f");
  }
  return quoted;
}

std::string TomlName(const std::string& name)
{
  const bool is_bare = !name.empty() && std::all_of(name.begin(), name.end(), [](unsigned char character) {
    return character < 128 && (std::isalnum(character) != 0 || character == '_' || character == '-');
  });
  return is_bare ? name : TomlText(name);
}

// What makes a number of TOML one with a fraction.
std::string TomlNumber(double value)
{
  std::string text = NumberText(value);
  const bool is_whole = std::isfinite(value) && text.find_first_of(".e") == std::string::npos;
  return is_whole ? text + ".0" : text;
}

std::string TomlValue(const Json& value);

std::string TomlArray(const Json& items)
{
  std::string line = "[";
  std::string lines = "[\n ";
  std::size_t width = 1;
  for (const Json& item : items)
  {
    const std::string text = TomlValue(item) + (&item == &items.back() ? "" : ",");
    line += (line.size() > 1 ? " " : "") + text;
    if (width + text.size() + 1 > kLineWidth && width > 1)
    {
      lines += "\n ";
      width = 1;
    }
    lines += " " + text;
    width += text.size() + 1;
  }
  return line.size() < kLineWidth ? line + "]" : lines + "\n]";
}

std::string TomlTable(const Json& members)
{
  std::string text;
  for (const auto& [name, value] : members.items())
  {
    text += (text.empty() ? " " : ", ") + TomlName(name) + " = " + TomlValue(value);
  }
  return "{" + text + " }";
}

std::string TomlValue(const Json& value)
{
  switch (value.type())
  {
    case Json::value_t::array: return TomlArray(value);
    case Json::value_t::object: return TomlTable(value);
    case Json::value_t::string: return TomlText(value.get<std::string>());
    case Json::value_t::number_float: return TomlNumber(value.get<double>());
    default: return value.dump();
  }
}

std::string TomlCommand(const std::string& kind, const std::string& id, const Json& keys)
{
  std::string text = "[" + TomlName(kind) + "." + TomlName(id) + "]\n";
  for (const auto& [key, value] : keys.items())
  {
    text += TomlName(key) + " = " + TomlValue(value) + "\n";
  }
  return text;
}

std::string TomlKind(const std::string& kind, const Json& commands)
{
  if (commands.empty())
  {
    return "[" + TomlName(kind) + "]\n";
  }
  std::string text;
  for (const auto& [id, keys] : commands.items())
  {
    text += (text.empty() ? "" : "\n") + TomlCommand(kind, id, keys);
  }
  return text;
}

// JSON has no number for them.
void NameNonFinite(Json& node)
{
  if (node.is_structured())
  {
    std::for_each(node.begin(), node.end(), NameNonFinite);
  }
  else if (node.is_number_float() && !std::isfinite(node.get<double>()))
  {
    node = NumberText(node.get<double>());
  }
}

void NoteName(const std::string& name, const std::string& what, std::vector<std::string>& notes)
{
  if (!IsUtf8(name))
  {
    notes.push_back(what + " has a name that is no UTF-8");
  }
}

}  // namespace

std::vector<std::string> NotCarried(const Job& job)
{
  std::vector<std::string> notes;
  for (const ForeignObject& object : job.foreign_objects)
  {
    notes.push_back(object.path + " is " + object.what);
  }
  for (const std::string& kind : job.empty_kinds)
  {
    NoteName(kind, "the kind " + kind, notes);
  }
  for (const JobCommand& command : job.commands)
  {
    const std::string owner = command.kind + " " + command.id;
    NoteName(command.kind + command.id, owner, notes);
    for (const JobKey& key : command.keys)
    {
      NoteName(key.name, owner + ": " + key.name, notes);
      if (!key.unreadable.empty())
      {
        notes.push_back(owner + ": " + key.name + " is " + key.unreadable);
      }
    }
  }
  return notes;
}

std::string AsToml(const Job& job)
{
  const Json description = Description(job);  // items() refers to it
  std::string text;
  for (const auto& [name, value] : description.items())
  {
    text += (text.empty() ? "" : "\n") +
            (name == kExtraKinds ? TomlName(name) + " = " + TomlValue(value) + "\n" : TomlKind(name, value));
  }
  return text;
}

std::string AsJson(const Job& job)
{
  Json description = Description(job);
  NameNonFinite(description);
  return description.dump(2) + "\n";
}
