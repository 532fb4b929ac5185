#include "style.h"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace
{

std::string_view Environment(const char* name)
{
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): the tool has one thread
  return value != nullptr ? value : "";
}

bool IsColorTerminal()
{
  return Environment("NO_COLOR").empty() && Environment("TERM") != "dumb" && isatty(STDOUT_FILENO) == 1;
}

// Colours that a terminal shows well on a dark and on a light ground.
const char* CodeOf(Role role)
{
  switch (role)
  {
    case Role::Kind: return "1;34";
    case Role::Id: return "1";
    case Role::Key: return "36";
    case Role::Enumerator: return "35";
    case Role::Remark: return "2";
    case Role::Wrong: return "1;31";
    case Role::Added: return "32";
    case Role::Removed: return "31";
    case Role::Changed: return "33";
  }
  return "0";
}

}  // namespace

void AddColorOption(CLI::App& subcommand, std::string& choice)
{
  subcommand.add_option("--color", choice, "Whether to color the output")
    ->check(CLI::IsMember({kColorAlways, kColorAuto, kColorNever}))
    ->capture_default_str();
}

Style::Style(const std::string& choice)
  : m_has_colors(choice == kColorAlways || (choice == kColorAuto && IsColorTerminal()))
{
}

std::string Style::operator()(Role role, const std::string& text) const
{
  return m_has_colors && !text.empty() ? std::string("\033[") + CodeOf(role) + "m" + text + "\033[0m" : text;
}
