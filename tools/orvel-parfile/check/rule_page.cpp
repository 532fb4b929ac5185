#include "rule_page.h"

#include "rule.h"

#include <sstream>

namespace
{

std::string Indented(std::string_view text)
{
  std::string indented = "    ";
  for (const char character : text)
  {
    indented += character == '\n' ? std::string("\n    ") : std::string(1, character);
  }
  return indented + "\n";
}

const char* ScopeText(const Rule& rule)
{
  return rule.scope == RuleScope::EveryJob ? "every job" : "a gyre job";
}

bool IsToml(std::string_view example)
{
  return example.find('[') != std::string_view::npos;
}

void PrintExample(std::ostream& page, const char* what, std::string_view example)
{
  page << what << ":\n\n```" << (IsToml(example) ? "toml" : "text") << "\n" << example << "\n```\n\n";
}

}  // namespace

std::string RulesAsText()
{
  std::ostringstream text;
  for (const Rule* rule : AllRules())
  {
    text << rule->name << " (" << SeverityName(rule->severity) << ", for " << ScopeText(*rule) << ")\n"
         << "  " << rule->what << "\n"
         << "  " << rule->why << "\n"
         << "  fails:\n"
         << Indented(rule->failing) << "  passes:\n"
         << Indented(rule->passing) << "\n";
  }
  return text.str();
}

std::string RulesAsMarkdown()
{
  std::ostringstream page;
  page
    << "# The rules of a check\n\n"
       "Made by `orvel-parfile check --rules --markdown` from the rules themselves.\n\n"
       "`orvel-parfile check` first loads the job as every module does and tells what the library says. Then it looks "
       "for what the library leaves to its callers. Each finding names its rule; `--ignore RULE` silences one. Errors "
       "and warnings make the exit code 1, notes do not.\n\n"
       "With `--job smooth` a check looks at the commands of a smoothing job, `SMOOTH_`, and at kinds that no command "
       "reads; rules for a gyre job rest.\n\n"
       "The examples are parts of job descriptions. What stands in a parameter file is checked in the same way.\n\n"
       "| Rule | Severity | For | Finds |\n|---|---|---|---|\n";
  for (const Rule* rule : AllRules())
  {
    page << "| `" << rule->name << "` | " << SeverityName(rule->severity) << " | " << ScopeText(*rule) << " | "
         << rule->what << " |\n";
  }
  for (const Rule* rule : AllRules())
  {
    page << "\n## " << rule->name << "\n\n" << rule->what << " " << rule->why << "\n\n";
    std::ostringstream examples;
    PrintExample(examples, "Fails", rule->failing);
    PrintExample(examples, "Passes", rule->passing);
    const std::string text = examples.str();
    page << text.substr(0, text.size() - 1);
  }
  return page.str();
}
