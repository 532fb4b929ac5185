#include "toml_input.h"

#include "exit_code.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

namespace
{

// A job description needs four. Each part of a key is a table within the one before it, and tables are released by a
// function that calls itself: with some ten thousand of them the stack would end.
constexpr int kMostPartsOfKey = 16;

// Behind the quoted text that begins at a place; of one that has no end, the end of the line or of the whole text.
std::size_t BehindQuoted(const std::string& text, std::size_t begin)
{
  const char quote = text[begin];
  const bool has_lines = text.compare(begin, 3, std::string(3, quote)) == 0;
  const std::string end(has_lines ? 3 : 1, quote);
  std::size_t at = begin + end.size();
  while (at < text.size() && text.compare(at, end.size(), end) != 0)
  {
    if (text[at] == '\n' && !has_lines)
    {
      return at;
    }
    at += text[at] == '\\' && quote == '"' ? 2 : 1;
  }
  at = std::min(at + end.size(), text.size());
  // A text of several lines may itself end in one or two quotation marks.
  const std::size_t behind = has_lines ? std::min(text.find_first_not_of(quote, at), text.size()) : at;
  return std::min(behind, at + 2);
}

bool CanStandInKey(unsigned char character)
{
  return std::isalnum(character) != 0 || character == '_' || character == '-' || character == ' ' || character == '\t';
}

// Whether a key has more parts than any key that we read. Without this the parser would nest as many tables.
bool HasEndlessKey(const std::string& text)
{
  int parts = 1;
  for (std::size_t at = 0; at < text.size() && parts <= kMostPartsOfKey;)
  {
    const char character = text[at];
    if (character == '"' || character == '\'')
    {
      at = BehindQuoted(text, at);
    }
    else if (character == '#')
    {
      at = std::min(text.find('\n', at), text.size());
    }
    else
    {
      parts = character == '.' ? parts + 1 : CanStandInKey(static_cast<unsigned char>(character)) ? parts : 1;
      ++at;
    }
  }
  return parts > kMostPartsOfKey;
}

toml::table Parse(const std::string& text, const std::filesystem::path& path)
{
  if (HasEndlessKey(text))
  {
    throw UnusableInput(path.string() + ": a key has more than " + std::to_string(kMostPartsOfKey) + " parts");
  }
  try
  {
    return toml::parse(text, path.string());
  }
  catch (const toml::parse_error& error)
  {
    throw UnusableInput(PlaceText(path, error.source()) + ": " + std::string(error.description()));
  }
}

}  // namespace

toml::table ReadToml(const std::filesystem::path& path)
{
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || std::filesystem::is_directory(path) || (file.peek() != EOF && !(text << file.rdbuf())))
  {
    throw UnusableInput(path.string() + ": the file cannot be read");
  }
  return Parse(text.str(), path);
}

std::string PlaceText(const std::filesystem::path& path, const toml::source_region& source)
{
  return path.string() + ":" + std::to_string(source.begin.line) + ":" + std::to_string(source.begin.column);
}

std::string NodeText(const toml::node& node)
{
  std::ostringstream text;
  node.visit([&](const auto& value) { text << value; });
  return text.str();
}

std::vector<std::pair<std::string, const toml::node*>> InTextOrder(const toml::table& table)
{
  std::vector<std::pair<std::string, const toml::node*>> members;
  members.reserve(table.size());
  for (const auto& [key, node] : table)
  {
    members.emplace_back(key.str(), &node);
  }
  std::stable_sort(members.begin(), members.end(), [](const auto& one, const auto& other) {
    return one.second->source().begin < other.second->source().begin;
  });
  return members;
}
