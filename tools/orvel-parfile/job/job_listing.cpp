#include "job_listing.h"

#include "support/plain_text.h"

#include <algorithm>
#include <ostream>

namespace schema = orvel::schema;

namespace
{

constexpr std::size_t kLineWidth = 100;
constexpr std::size_t kIndent = 2;
constexpr std::size_t kWidestKey = 40;

// A piece of a line that is not broken.
struct Word
{
  std::string text;
  std::string styled;
};

std::string Padding(const std::string& text, std::size_t width)
{
  const std::size_t size = CharacterCount(text);
  return std::string(size < width ? width - size : 0, ' ');
}

// The values of one key as words.
class ValueWords
{
public:
  ValueWords(const schema::Field* field, const JobIndex& all, const Style& style)
    : m_field(field), m_all(all), m_style(style)
  {
  }

  std::vector<Word> Of(const JobKey& key)
  {
    for (const JobItem& item : key.items)
    {
      std::visit(*this, item.value);
      if (&item != &key.items.back())
      {
        Append(",");
      }
    }
    return std::move(m_words);
  }

  void AddRemark(const std::string& text) { Add("(" + text + ")", Role::Remark); }

  void operator()(std::int64_t value)
  {
    const std::string text = ValueText(value, m_field);
    if (m_field == nullptr || m_field->enumerators.empty())
    {
      Add(text);
    }
    else if (text != std::to_string(value))
    {
      Add(text, Role::Enumerator);
    }
    else
    {
      Add(text, Role::Wrong);
      AddRemark("no enumerator");
    }
  }
  void operator()(double value) { Add(NumberText(value)); }
  void operator()(const std::string& value) { Add(PlainText(value)); }
  void operator()(const JobReference& value)
  {
    if (value.IsNull())
    {
      Add("nothing", Role::Wrong);
      return;
    }
    const bool is_there = m_all.Find(value.kind, value.id) != nullptr;
    const std::string kind = PlainText(value.kind);
    const std::string id = PlainText(value.id);
    m_words.push_back({kind + " " + id, m_style(is_there ? Role::Kind : Role::Wrong, kind) + " " +
                                          m_style(is_there ? Role::Id : Role::Wrong, id)});
    if (!is_there)
    {
      AddRemark("there is none");
    }
  }
  template <class Item>
  void operator()(const std::vector<Item>& values)
  {
    const std::size_t first = m_words.size();
    for (const Item& value : values)
    {
      Add(ValueText(value, nullptr) + (&value == &values.back() ? "" : ","));
    }
    if (values.empty())
    {
      Add("");
    }
    m_words[first] = {"[" + m_words[first].text, "[" + m_words[first].styled};
    Append("]");
  }

private:
  void Add(const std::string& text) { m_words.push_back({text, text}); }
  void Add(const std::string& text, Role role) { m_words.push_back({text, m_style(role, text)}); }
  void Append(const std::string& text)
  {
    m_words.back().text += text;
    m_words.back().styled += text;
  }

  const schema::Field* m_field;
  const JobIndex& m_all;
  const Style& m_style;
  std::vector<Word> m_words;
};

// What a reader of the values must know of their key, empty for a key as a command reads it.
std::string RemarkOn(const JobCommand& command, const JobKey& key, const schema::Field* field)
{
  if (key.type == nullptr)
  {
    return key.unreadable + ", which this tool cannot read";
  }
  const std::string type(key.type->name);
  if (field == nullptr)
  {
    const bool is_known = schema::FindCommand(command.kind) != nullptr;
    return type + (key.items.empty() ? ", no values" : "") + (is_known ? ", a key that no command reads" : "");
  }
  if (const StoredType& wanted = StoredTypeOf(field->type); key.type != &wanted)
  {
    return type + " where " + std::string(wanted.name) + " is read";
  }
  if (key.items.empty())
  {
    return "no values";
  }
  if (field->presence != schema::Presence::Repeated && key.items.size() > 1)
  {
    return std::to_string(key.items.size()) + " values where one is read";
  }
  return {};
}

class Listing
{
public:
  Listing(std::ostream& stream, const JobIndex& all, const Style& style) : m_stream(stream), m_all(all), m_style(style)
  {
  }

  void Print(const JobCommand& command)
  {
    PrintTitle(command.kind, PlainText(command.id));
    std::size_t width = 0;
    for (const JobKey& key : command.keys)
    {
      width = std::max(width, CharacterCount(PlainText(key.name)));
    }
    for (const JobKey& key : command.keys)
    {
      Print(command, key, std::min(width, kWidestKey));
    }
    m_stream << "\n";
  }

  void PrintEmptyKind(const std::string& kind)
  {
    PrintTitle(kind, m_style(Role::Remark, "(no commands)"));
    m_stream << "\n";
  }

  void Print(const ForeignObject& object)
  {
    m_stream << PlainText(object.path) << " " << m_style(Role::Remark, "(" + object.what + ", no part of the layout)")
             << "\n\n";
  }

private:
  void PrintTitle(const std::string& kind, const std::string& rest)
  {
    m_stream << m_style(Role::Kind, PlainText(kind)) << " " << m_style(Role::Id, rest);
    if (schema::FindCommand(kind) == nullptr)
    {
      m_stream << " " << m_style(Role::Remark, "(a kind that no command reads)");
    }
    m_stream << "\n";
  }

  void Print(const JobCommand& command, const JobKey& key, std::size_t key_width)
  {
    const schema::Field* field = FieldOf(command, key.name);
    const std::string name = PlainText(key.name);
    m_stream << std::string(kIndent, ' ') << m_style(Role::Key, name) << Padding(name, key_width) << " ";
    ValueWords words(field, m_all, m_style);
    std::vector<Word> all = words.Of(key);
    if (const std::string remark = RemarkOn(command, key, field); !remark.empty())
    {
      all.push_back({"(" + remark + ")", m_style(Role::Remark, "(" + remark + ")")});
    }
    PrintWrapped(all, kIndent + key_width + 1);
  }

  void PrintWrapped(const std::vector<Word>& words, std::size_t indent)
  {
    std::size_t column = indent;
    for (const Word& word : words)
    {
      const std::size_t width = CharacterCount(word.text) + 1;
      if (column + width > kLineWidth && column > indent)
      {
        m_stream << "\n" << std::string(indent, ' ');
        column = indent;
      }
      m_stream << " " << word.styled;
      column += width;
    }
    m_stream << "\n";
  }

  std::ostream& m_stream;
  const JobIndex& m_all;
  const Style& m_style;
};

}  // namespace

void PrintListing(std::ostream& stream, const Job& part, const JobIndex& all, const Style& style)
{
  const Job ordered = InStableOrder(part);
  Listing listing(stream, all, style);
  for (const JobCommand& command : ordered.commands)
  {
    listing.Print(command);
  }
  for (const std::string& kind : ordered.empty_kinds)
  {
    listing.PrintEmptyKind(kind);
  }
  for (const ForeignObject& object : ordered.foreign_objects)
  {
    listing.Print(object);
  }
}
