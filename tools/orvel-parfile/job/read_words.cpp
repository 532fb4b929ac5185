#include "read_words.h"

#include "read_value.h"
#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"
#include "support/schema_names.h"

#include <toml++/toml.h>

#include <algorithm>
#include <functional>

namespace schema = orvel::schema;

namespace
{

constexpr const char* kMember = "value";

toml::table AsText(const std::string& word)
{
  return toml::table{{kMember, word}};
}

// A word as it would stand in a job description, or a text where it is nothing of TOML. What could end the value or
// begin a comment stands in no number and no list of numbers.
toml::table AsToml(const std::string& word)
{
  if (word.find_first_of("#\"'{\r\n") == std::string::npos)
  {
    try
    {
      toml::table table = toml::parse(std::string(kMember) + " = " + word);
      if (table.size() == 1)
      {
        return table;
      }
    }
    catch (const toml::parse_error&)
    {
      return AsText(word);
    }
  }
  return AsText(word);
}

// A name that looks like a number of TOML, such as "inf", is a name all the same.
toml::table AsEnumerator(const std::string& word)
{
  toml::table table = AsToml(word);
  return table[kMember].is_integer() ? table : AsText(word);
}

toml::table NodeOf(const std::string& word, VtmType type)
{
  switch (type)
  {
    case vtmEnum: return AsEnumerator(word);
    case vtmString:
    case vtmModelId:
    case vtmReference: return AsText(word);
    default: return AsToml(word);
  }
}

toml::table NodeOf(const std::string& word, const StoredType& type)
{
  return type.shape == ValueShape::Text || type.shape == ValueShape::Reference ? AsText(word) : AsToml(word);
}

bool IsList(const StoredType& type)
{
  return type.shape == ValueShape::IntegerList || type.shape == ValueShape::NumberList;
}

// Words that are the items of one list, as this list.
std::vector<std::string> InLists(const std::vector<std::string>& words)
{
  if (words.front().rfind('[', 0) == 0)
  {
    return words;
  }
  std::string list;
  for (const std::string& word : words)
  {
    list += (list.empty() ? "[" : ", ") + word;
  }
  return {list + "]"};
}

std::string MustBe(const std::string& subject, const char* expected, const std::string& word)
{
  return subject + " must be " + expected + ", not " + PrintableLines(word);
}

}  // namespace

std::vector<JobItem> ReadWords(const std::vector<std::string>& words, const schema::Field& field,
                               const std::string& subject)
{
  const std::vector<std::string> values = IsList(StoredTypeOf(field.type)) ? InLists(words) : words;
  if (field.presence != schema::Presence::Repeated && values.size() != 1)
  {
    throw UnusableInput(subject + " holds one value, not " + std::to_string(values.size()));
  }
  std::vector<JobItem> items;
  for (const std::string& word : values)
  {
    const toml::table table = NodeOf(word, field.type);
    auto value = ReadValue(*table.get(kMember), field);
    if (!value)
    {
      throw UnusableInput(
        MustBe(subject, ExpectedValue(field.type), word) +
        (field.enumerators.empty() ? "" : "; " + NearestName(PrintableLines(word), EnumeratorNames(field))));
    }
    items.push_back({std::move(*value), {}});
  }
  return items;
}

std::vector<JobItem> ReadWords(const std::vector<std::string>& words, const StoredType& type,
                               const std::string& subject)
{
  std::vector<JobItem> items;
  for (const std::string& word : IsList(type) ? InLists(words) : words)
  {
    const toml::table table = NodeOf(word, type);
    auto value = ReadValue(*table.get(kMember), type);
    if (!value)
    {
      throw UnusableInput(MustBe(subject, ExpectedValue(type), word));
    }
    items.push_back({std::move(*value), {}});
  }
  return items;
}
