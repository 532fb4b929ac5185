#include "job_text.h"

#include "job_description.h"
#include "support/plain_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <set>
#include <sstream>

namespace schema = orvel::schema;
using Json = nlohmann::ordered_json;

namespace
{

constexpr std::size_t kLineWidth = 100;

// The bits of the NaN that a text can name.
bool IsNamedNumber(double value)
{
  const double named = std::numeric_limits<double>::quiet_NaN();
  return !std::isnan(value) ||
         std::memcmp(&value, &named, sizeof value) == 0;  // NOLINT(*-suspicious-memory-comparison)
}

// Whether a text tells all of a value.
struct IsTold
{
  bool operator()(double value) const { return IsNamedNumber(value); }
  bool operator()(const std::vector<double>& values) const
  {
    return std::all_of(values.begin(), values.end(), IsNamedNumber);
  }
  bool operator()(const std::string& text) const { return IsUtf8(text); }
  template <class Value>
  bool operator()(const Value&) const
  {
    return true;
  }
};

std::string HexText(std::uint64_t bits, int digits)
{
  std::ostringstream text;
  text << std::hex << std::setfill('0') << std::setw(digits) << bits;
  return text.str();
}

struct HexJson
{
  std::string operator()(double value) const
  {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return HexText(bits, kHexDigitsOfNumber);
  }
  std::string operator()(const std::vector<double>& values) const
  {
    std::string text;
    std::for_each(values.begin(), values.end(), [&](double value) { text += (*this)(value); });
    return text;
  }
  std::string operator()(const std::string& bytes) const
  {
    std::string text;
    std::for_each(bytes.begin(), bytes.end(), [&](unsigned char byte) { text += HexText(byte, 2); });
    return text;
  }
  template <class Value>
  std::string operator()(const Value&) const
  {
    return {};
  }
};

bool IsToldByText(const JobItem& item)
{
  return std::visit(IsTold{}, item.value);
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
  const auto* target = std::get_if<JobReference>(&value);
  return target == nullptr || target->kind == field.target;
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
                     [field](const JobItem& item) { return IsPlainValue(item.value, *field) && IsToldByText(item); });
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

Json TypedKey(const JobKey& key)
{
  const bool in_hex = !std::all_of(key.items.begin(), key.items.end(), IsToldByText);
  Json values = Json::array();
  for (const JobItem& item : key.items)
  {
    values.push_back(in_hex ? Json(std::visit(HexJson{}, item.value)) : std::visit(TypedJson{}, item.value));
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

// JSON's escapes are those of TOML.
std::string TomlText(const std::string& text)
{
  return PrintableLines(Json(text).dump());
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

bool Contains(const std::vector<std::string>& names, std::string_view name)
{
  return std::find(names.begin(), names.end(), name) != names.end();
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
  if (!JobIndex(job).Ids(kExtraKinds).empty() || Contains(job.empty_kinds, kExtraKinds))
  {
    notes.push_back(std::string("the kind ") + kExtraKinds + " has the name of another thing in a job description");
  }
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
    NoteName(IsUtf8(command.kind) ? command.id : command.kind, owner, notes);
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
  return PrintableLines(description.dump(2)) + "\n";
}
