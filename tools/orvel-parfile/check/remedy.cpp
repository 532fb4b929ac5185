#include "remedy.h"

#include "support/plain_text.h"
#include "support/schema_names.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

namespace schema = orvel::schema;

namespace
{

// Longer commands are no help any more.
constexpr std::size_t kMostWords = 20;

std::string ShellWord(const std::string& word)
{
  const bool is_plain = !word.empty() && std::all_of(word.begin(), word.end(), [](char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           std::string_view("_-./:@%+=,").find(character) != std::string_view::npos;
  });
  if (is_plain)
  {
    return word;
  }
  // Names that a terminal must not see are written with escapes, which shells read in $'...'.
  const std::string plain = PlainText(word);
  const bool has_escapes = plain.front() == '"' && plain.find('\\') != std::string::npos;
  const std::string text = has_escapes ? plain.substr(1, plain.size() - 2) : word;
  std::string quoted = has_escapes ? "$'" : "'";
  for (const char character : text)
  {
    quoted += character != '\'' ? std::string(1, character) : has_escapes ? "\\'" : "'\\''";
  }
  return quoted + "'";
}

// Whether the tool may take a word for one: none is what begins like a negative number.
bool IsLikeAnOption(const std::string& word)
{
  const bool is_number = word.size() > 1 && std::isdigit(static_cast<unsigned char>(word[1])) != 0;
  return word.rfind('-', 0) == 0 && !is_number;
}

bool IsBareInToml(const schema::Field& field)
{
  return field.type == vtmInteger || field.type == vtmDouble || field.type == vtmIntegerList ||
         field.type == vtmDoubleList;
}

std::string TomlText(const std::string& text)
{
  std::string plain = PlainText(text);
  if (!text.empty() && plain.front() == '"')
  {
    return plain;
  }
  std::string quoted = "\"";
  for (const char character : text)
  {
    quoted += character == '\\' ? std::string("\\\\") : std::string(1, character);
  }
  return quoted + "\"";
}

std::string TomlWord(const std::string& value, const schema::Field& field)
{
  if (!IsBareInToml(field))
  {
    return TomlText(value);
  }
  const bool is_whole = value.find_first_not_of("+-0123456789") == std::string::npos;
  return field.type == vtmDouble && is_whole ? value + ".0" : value;
}

// Stands for a value that the user has to find.
std::string Placeholder(const schema::Field& field)
{
  switch (field.type)
  {
    case vtmInteger: return "INTEGER";
    case vtmDouble: return "NUMBER";
    case vtmEnum: return "ENUMERATOR";
    case vtmReference: return "ID";
    case vtmIntegerList:
    case vtmDoubleList: return "LIST";
    default: return "TEXT";
  }
}

std::string MeaningOfPlaceholder(const schema::Field& field)
{
  return ", where " + Placeholder(field) + " is " + ExpectedText(field);
}

std::string TomlValue(const schema::Field& field, const std::vector<std::string>& values)
{
  std::string text;
  for (const std::string& value : values)
  {
    text += (text.empty() ? "" : ", ") + TomlWord(value, field);
  }
  return field.presence == schema::Presence::Repeated ? "[" + text + "]" : text;
}

template <class Number>
std::optional<Number> NumberOf(const std::string& text)
{
  Number number{};
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end ? std::optional<Number>(number) : std::nullopt;
}

std::optional<double> AsNumber(const JobValue& value)
{
  if (const auto* number = std::get_if<double>(&value))
  {
    return *number;
  }
  if (const auto* integer = std::get_if<std::int64_t>(&value))
  {
    return static_cast<double>(*integer);
  }
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? NumberOf<double>(*text) : std::nullopt;
}

std::optional<std::string> AsIntegerText(const JobValue& value)
{
  const auto number = AsNumber(value);
  using Limits = std::numeric_limits<std::int32_t>;
  const bool fits = number && *number == std::trunc(*number) && *number >= Limits::min() && *number <= Limits::max();
  return fits ? std::optional<std::string>(std::to_string(static_cast<std::int64_t>(*number))) : std::nullopt;
}

std::optional<std::string> AsEnumeratorText(const JobValue& value, const schema::Field& field)
{
  const auto* text = std::get_if<std::string>(&value);
  const auto number = AsIntegerText(value);
  for (const schema::Enumerator& enumerator : field.enumerators)
  {
    if ((text != nullptr && enumerator.name == *text) || number == std::to_string(enumerator.value))
    {
      return std::string(enumerator.name);
    }
  }
  return std::nullopt;
}

std::optional<std::string> Converted(const JobValue& value, const schema::Field& field)
{
  switch (field.type)
  {
    case vtmInteger: return AsIntegerText(value);
    case vtmDouble:
    {
      const auto number = AsNumber(value);
      return number ? std::optional<std::string>(NumberText(*number)) : std::nullopt;
    }
    case vtmEnum: return AsEnumeratorText(value, field);
    case vtmString:
    case vtmModelId:
    {
      const auto* text = std::get_if<std::string>(&value);
      return text != nullptr ? std::optional<std::string>(*text) : std::nullopt;
    }
    default: return std::nullopt;
  }
}

}  // namespace

std::string ExpectedText(const schema::Field& field)
{
  switch (field.type)
  {
    case vtmInteger: return "a whole number";
    case vtmDouble: return "a number";
    case vtmIntegerList: return "a list of whole numbers";
    case vtmDoubleList: return "a list of numbers";
    case vtmReference: return "the id of a " + std::string(field.target);
    case vtmModelId: return "a name of the model";
    case vtmEnum:
    {
      std::string names;
      for (const std::string& name : EnumeratorNames(field))
      {
        names += (names.empty() ? "" : ", ") + name;
      }
      return field.enumerators.size() == 1 ? names : "one of " + names;
    }
    default: return "a text";
  }
}

std::vector<std::string> ConvertedValues(const JobKey& key, const schema::Field& field)
{
  std::vector<std::string> values;
  for (const JobItem& item : key.items)
  {
    const auto value = Converted(item.value, field);
    if (!value)
    {
      return {};
    }
    values.push_back(*value);
  }
  if (field.presence != schema::Presence::Repeated && values.size() > 1)
  {
    values.resize(1);  // what loading takes
  }
  return values;
}

std::string Joined(const std::string& one, const std::string& other)
{
  return one + (one.empty() || other.empty() ? "" : "; ") + other;
}

Remedies::Remedies(std::filesystem::path file, bool is_description)
  : m_file(std::move(file)), m_is_description(is_description)
{
}

std::string Remedies::Command(const std::string& subcommand, std::vector<std::string> words,
                              const std::string& option) const
{
  if (m_file != ".")
  {
    words.insert(words.begin(), m_file.string());
  }
  const bool are_plain = std::none_of(words.begin(), words.end(), IsLikeAnOption);
  std::string text = "orvel-parfile " + subcommand + (are_plain ? "" : (option.empty() ? "" : " " + option) + " --");
  for (const std::string& word : words)
  {
    text += " " + ShellWord(word);
  }
  return text + (are_plain && !option.empty() ? " " + option : "");
}

std::string Remedies::WordFor(const JobReference& target)
{
  return target.IsNull() ? "ID" : target.id;
}

std::string Remedies::TakeAway(const std::vector<std::string>& words, const std::string& option) const
{
  return "take it away with: " + Command("unset", words, option);
}

std::string Remedies::Set(const JobCommand& command, const schema::Field& field,
                          const std::vector<std::string>& values) const
{
  const std::string key(field.key);
  if (values.empty() || values.size() > kMostWords)
  {
    const std::string placeholder = Placeholder(field);
    return (m_is_description ? "write " + key + " = " + placeholder
                             : Command("set", {command.kind, command.id, key, placeholder})) +
           MeaningOfPlaceholder(field);
  }
  if (m_is_description)
  {
    return "write " + key + " = " + TomlValue(field, values);
  }
  std::vector<std::string> words = {command.kind, command.id, key};
  words.insert(words.end(), values.begin(), values.end());
  return Command("set", words);
}

std::string Remedies::Replace(const JobCommand& command, const JobKey& key, std::size_t place,
                              const std::string& value) const
{
  const schema::Field& field = *FieldOf(command, key.name);
  if (key.items.size() > kMostWords)  // Set would leave them out, and each of them may need a remedy
  {
    return Set(command, field, {});
  }
  std::vector<std::string> values;
  for (std::size_t each = 0; each < key.items.size(); ++each)
  {
    const auto* target = std::get_if<JobReference>(&key.items[each].value);
    values.push_back(each == place       ? value
                     : target == nullptr ? ValueText(key.items[each].value, &field)
                                         : WordFor(*target));
  }
  return Set(command, field, values);
}

std::string Remedies::ReplaceByAny(const JobCommand& command, const JobKey& key, std::size_t place) const
{
  const schema::Field& field = *FieldOf(command, key.name);
  if (key.items.size() == 1 || key.items.size() > kMostWords)
  {
    return Set(command, field, {});
  }
  return Replace(command, key, place, Placeholder(field)) + MeaningOfPlaceholder(field);
}

std::string Remedies::Remove(const JobCommand& command, const std::string& key) const
{
  return m_is_description ? "take the key away" : TakeAway({command.kind, command.id, key});
}

std::string Remedies::Remove(const JobCommand& command) const
{
  return m_is_description ? "take its table away" : TakeAway({command.kind, command.id});
}

std::string Remedies::RemoveKind(const std::string& kind, const std::vector<std::string>& ids) const
{
  if (m_is_description)
  {
    return "take its tables away";
  }
  std::string commands;
  for (std::size_t place = 0; place < std::min(ids.size(), kMostWords); ++place)
  {
    commands += Command("unset", {kind, ids[place]}) + "; ";
  }
  const std::string others = ids.size() > kMostWords ? "the same for each of its commands; " : "";
  return "take it away with: " + commands + others + Command("unset", {kind});
}

std::string Remedies::RemoveForeign(const std::vector<std::string>& names, bool is_attribute) const
{
  std::vector<std::string> words = names;
  words.erase(std::remove(words.begin(), words.end(), std::string()), words.end());
  return TakeAway(words, is_attribute ? "--attributes" : "");
}
