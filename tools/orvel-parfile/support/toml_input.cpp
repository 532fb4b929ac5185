#include "toml_input.h"

#include "exit_code.h"

#include <algorithm>
#include <fstream>
#include <sstream>

toml::table ReadToml(const std::filesystem::path& path)
{
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || std::filesystem::is_directory(path) || (file.peek() != EOF && !(text << file.rdbuf())))
  {
    throw UnusableInput(path.string() + ": the file cannot be read");
  }
  try
  {
    return toml::parse(text.str(), path.string());
  }
  catch (const toml::parse_error& error)
  {
    throw UnusableInput(PlaceText(path, error.source()) + ": " + std::string(error.description()));
  }
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
