#include "job_description.h"

#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/printable.h"
#include "support/schema_names.h"
#include "support/toml_input.h"

#include <toml++/toml.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <optional>
#include <set>

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

const char* ExpectedValue(const StoredType& type)
{
  switch (type.shape)
  {
    case ValueShape::Integer: return "a whole number that its type holds";
    case ValueShape::Number: return "a number";
    case ValueShape::IntegerList: return "a list of whole numbers of 32 bits";
    case ValueShape::NumberList: return "a list of numbers";
    case ValueShape::Reference: return "the kind and id of a command, \"KIND_/id\", or \"\" for a reference to nothing";
    default: return "a text without NUL";
  }
}

std::optional<std::int64_t> AsInteger(const toml::node& node, const StoredType& type)
{
  const auto number = node.value_exact<std::int64_t>();
  return number && Holds(type, *number) ? std::optional<std::int64_t>(*number) : std::nullopt;
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

bool AreHexDigits(const std::string& text, std::size_t group)
{
  return text.size() % group == 0 &&
         std::all_of(text.begin(), text.end(), [](unsigned char character) { return std::isxdigit(character) != 0; });
}

std::optional<std::string> BytesOfHex(const std::string& digits)
{
  std::string bytes;
  for (std::size_t start = 0; start < digits.size(); start += 2)
  {
    bytes += static_cast<char>(std::stoul(digits.substr(start, 2), nullptr, 16));
  }
  return bytes.find('\0') == std::string::npos ? std::optional<std::string>(bytes) : std::nullopt;
}

std::vector<double> NumbersOfHex(const std::string& digits)
{
  std::vector<double> numbers;
  for (std::size_t start = 0; start < digits.size(); start += kHexDigitsOfNumber)
  {
    const std::uint64_t bits = std::stoull(digits.substr(start, kHexDigitsOfNumber), nullptr, 16);
    std::memcpy(&numbers.emplace_back(), &bits, sizeof bits);
  }
  return numbers;
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
  return enumerator.name == text || is_letter || node.value_exact<std::int64_t>() == enumerator.value;
}

std::optional<std::int64_t> AsEnumerator(const toml::node& node, schema::Rows<schema::Enumerator> enumerators)
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
bool IsName(const std::string& text)
{
  return !text.empty() && text != "." && text.find('/') == std::string::npos && text.find('\0') == std::string::npos;
}

std::optional<JobReference> AsTarget(const toml::node& node, std::string_view kind)
{
  const auto text = node.value_exact<std::string>();
  return text && IsName(*text) ? std::optional<JobReference>({std::string(kind), *text}) : std::nullopt;
}

std::optional<JobReference> AsReference(const toml::node& node)
{
  const auto text = node.value_exact<std::string>();
  if (!text || text->empty())
  {
    return text ? std::optional<JobReference>(JobReference()) : std::nullopt;
  }
  const std::size_t slash = text->find('/');
  const std::string kind = text->substr(0, slash);
  const std::string id = slash != std::string::npos ? text->substr(slash + 1) : std::string();
  return IsName(kind) && IsName(id) ? std::optional<JobReference>({kind, id}) : std::nullopt;
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

std::optional<JobValue> ReadValue(const toml::node& node, const StoredType& type)
{
  switch (type.shape)
  {
    case ValueShape::Integer: return AsJobValue(AsInteger(node, type));
    case ValueShape::Number: return AsJobValue(AsDouble(node));
    case ValueShape::Reference: return AsJobValue(AsReference(node));
    case ValueShape::NumberList: return AsJobValue(AsList<double>(node, AsDouble));
    case ValueShape::IntegerList:
      return AsJobValue(
        AsList<std::int64_t>(node, [](const toml::node& item) { return AsInteger(item, IntegerType()); }));
    default: return AsJobValue(AsText(node));
  }
}

std::optional<JobValue> ReadValue(const toml::node& node, const schema::Field& field)
{
  switch (field.type)
  {
    case vtmEnum: return AsJobValue(AsEnumerator(node, field.enumerators));
    case vtmReference: return AsJobValue(AsTarget(node, field.target));
    default: return ReadValue(node, StoredTypeOf(field.type));
  }
}

bool HasHexForm(const StoredType& type)
{
  return type.shape == ValueShape::Text || type.shape == ValueShape::Number || type.shape == ValueShape::NumberList;
}

std::optional<JobValue> ReadHexValue(const toml::node& node, const StoredType& type)
{
  const auto digits = node.value_exact<std::string>();
  if (!digits || !AreHexDigits(*digits, type.shape == ValueShape::Text ? 2 : kHexDigitsOfNumber))
  {
    return std::nullopt;
  }
  if (type.shape == ValueShape::Text)
  {
    return AsJobValue(BytesOfHex(*digits));
  }
  std::vector<double> numbers = NumbersOfHex(*digits);
  if (type.shape == ValueShape::NumberList)
  {
    return JobValue(std::move(numbers));
  }
  return numbers.size() == 1 ? std::optional<JobValue>(numbers.front()) : std::nullopt;
}

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
    m_description.faults.push_back({&rule, subject.kind, subject.id, subject.key, Printable(value), PlaceOf(node),
                                    Printable(text), Printable(remedy)});
  }

  void ReadExtraKinds(const toml::node& node)
  {
    const auto names = AsList<std::string>(node, AsText);
    if (!names || !std::all_of(names->begin(), names->end(), IsName))
    {
      Fault(rules::wrong_type, {kExtraKinds, {}, {}}, node, std::string(kExtraKinds) + " must be a list of kinds");
      return;
    }
    m_extra_kinds.insert(names->begin(), names->end());
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
