#include "read_value.h"

#include "job_description.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <utility>

namespace schema = orvel::schema;

namespace
{

std::optional<std::int64_t> AsInteger(const toml::node& node, const StoredType& type)
{
  const auto number = node.value_exact<std::int64_t>();
  return number && Holds(type, *number) ? std::optional<std::int64_t>(*number) : std::nullopt;
}

std::optional<double> AsDouble(const toml::node& node)
{
  return node.is_number() ? node.value<double>() : std::nullopt;
}

std::optional<double> AsDouble(const toml::node& node, const StoredType& type)
{
  const auto number = AsDouble(node);
  return number && Holds(type, *number) ? number : std::nullopt;
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

}  // namespace

bool IsName(const std::string& text)
{
  return !text.empty() && text != "." && text.find('/') == std::string::npos && text.find('\0') == std::string::npos;
}

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
    case ValueShape::Number: return "a number that its type holds";
    case ValueShape::IntegerList: return "a list of whole numbers of 32 bits";
    case ValueShape::NumberList: return "a list of numbers";
    case ValueShape::Reference: return "the kind and id of a command, \"KIND_/id\", or \"\" for a reference to nothing";
    default: return "a text without NUL";
  }
}

std::optional<JobValue> ReadValue(const toml::node& node, const StoredType& type)
{
  switch (type.shape)
  {
    case ValueShape::Integer: return AsJobValue(AsInteger(node, type));
    case ValueShape::Number: return AsJobValue(AsDouble(node, type));
    case ValueShape::Reference: return AsJobValue(AsReference(node));
    case ValueShape::NumberList:
      return AsJobValue(AsList<double>(node, [](const toml::node& item) { return AsDouble(item); }));
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
  return numbers.size() == 1 && Holds(type, numbers.front()) ? std::optional<JobValue>(numbers.front()) : std::nullopt;
}
