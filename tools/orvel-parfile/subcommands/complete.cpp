// The words that a shell offers for a command line, for completions/. The subcommand is for the shells alone and stands
// in no help: `orvel-parfile complete -- WORDS`, where WORDS are those behind "orvel-parfile" up to the one at the
// cursor, which may be empty. Each line of the answer is a candidate, whether it begins like the word at the cursor or
// not; two lines mean more:
//   <folders>       names of folders
//   <files .EXT>    names of folders and of files with this ending
// What cannot be read has no candidates: nothing of a completion is an error. Names that would steer a terminal are
// left out.

#include "check/rule.h"
#include "job/contents.h"
#include "job/job_kind.h"
#include "job/read_job.h"
#include "subcommands.h"
#include "support/file_argument.h"
#include "support/plain_text.h"
#include "support/raw_words.h"
#include "support/schema_names.h"
#include "support/style.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace schema = orvel::schema;

namespace
{

using Candidates = std::vector<std::string>;

constexpr const char* kFolders = "<folders>";
constexpr const char* kTomlFiles = "<files .toml>";
constexpr const char* kParameterFiles = "<files .hdf5>";

Candidates Together(Candidates all, const Candidates& others)
{
  for (const std::string& other : others)
  {
    if (std::find(all.begin(), all.end(), other) == all.end())
    {
      all.push_back(other);
    }
  }
  return all;
}

Candidates SubcommandNames(const CLI::App& tool)
{
  Candidates names;
  for (const CLI::App* sub : tool.get_subcommands([](const CLI::App*) { return true; }))
  {
    if (sub->get_name() != kComplete)
    {
      names.push_back(sub->get_name());
    }
  }
  return names;
}

Candidates OptionNames(const CLI::App& app)
{
  Candidates names;
  for (const CLI::Option* option : app.get_options())
  {
    for (const std::string& name : option->get_lnames())
    {
      names.push_back("--" + name);
    }
    for (const std::string& name : option->get_snames())
    {
      names.push_back("-" + name);
    }
  }
  return names;
}

Candidates RuleNames()
{
  Candidates names;
  for (const Rule* rule : AllRules())
  {
    names.emplace_back(rule->name);
  }
  return names;
}

// What an option takes as its value.
Candidates ValuesOf(const std::string& option)
{
  if (option == "--job")
  {
    return {kGyreJob, kSmoothJob};
  }
  if (option == "--ignore")
  {
    return RuleNames();
  }
  if (option == "--type")
  {
    return StoredTypeNames();
  }
  if (option == "--color")
  {
    return {kColorAuto, kColorAlways, kColorNever};
  }
  return option == "--model-ids" ? Candidates{kTomlFiles} : Candidates{kFolders};
}

// The job that a command line is about, empty when it cannot be read.
Job ReadJobOrNone(const std::filesystem::path& file)
{
  try
  {
    return ReadJob(file);
  }
  catch (const std::exception&)
  {
    return {};
  }
}

Candidates Enumerators(const JobCommand& command, const Job& job, const std::string& key)
{
  const schema::Field* field = FieldOf(command, key);
  if (field == nullptr)
  {
    return {};
  }
  return field->target.empty() ? EnumeratorNames(*field) : NamesIn(job, std::string(field->target));
}

// The words behind the file: a kind, an id, a key, values.
Candidates PartsOf(const std::vector<std::string>& words, bool all_of_schema)
{
  const FileArgument argument = SplitFileArgument(words);
  const Job job = ReadJobOrNone(argument.file);
  const std::vector<std::string>& parts = argument.words;
  if (parts.empty())
  {
    const Candidates kinds = all_of_schema ? Together(KindNames(), NamesIn(job)) : NamesIn(job);
    return words.empty() ? Together(kinds, {kParameterFiles}) : kinds;
  }
  if (parts.size() == 1)
  {
    return NamesIn(job, parts[0]);
  }
  const schema::Command* kind = schema::FindCommand(parts[0]);
  if (parts.size() == 2)
  {
    return all_of_schema && kind != nullptr ? KeyNames(*kind) : NamesIn(job, parts[0], parts[1]);
  }
  return all_of_schema ? Enumerators({parts[0], parts[1], {}, {}, {}}, job, parts[2]) : Candidates();
}

Candidates Positionals(const std::string& sub, const std::vector<std::string>& words)
{
  const std::size_t place = words.size();
  if (sub == kSet)
  {
    return PartsOf(words, true);
  }
  if (sub == kUnset || sub == "show")
  {
    return PartsOf(words, false);
  }
  if (sub == "schema")
  {
    return place == 0 ? KindNames() : Candidates();
  }
  if (sub == "import")
  {
    return place == 0 ? Candidates{kTomlFiles} : Candidates{kFolders};
  }
  if (sub == "init")
  {
    return {kFolders};
  }
  return sub == "export" ? Candidates{kParameterFiles} : Candidates{kParameterFiles, kTomlFiles};
}

// Whether an option is followed by a value of its own.
bool TakesValue(const CLI::App& sub, const std::string& word)
{
  const CLI::Option* option = word.rfind('-', 0) == 0 ? sub.get_option_no_throw(word) : nullptr;
  return option != nullptr && option->get_items_expected_max() > 0;
}

// Whether a shell may list it as it stands.
bool IsOnePrintableLine(const std::string& text)
{
  return PrintableLines(text) == text && text.find('\n') == std::string::npos;
}

const CLI::App* FindSubcommand(const CLI::App& tool, const std::string& name)
{
  const auto found = tool.get_subcommands([&](const CLI::App* sub) { return sub->get_name() == name; });
  return found.empty() ? nullptr : found.front();
}

Candidates CandidatesFor(const CLI::App& tool, std::vector<std::string> words)
{
  const std::string current = words.empty() ? std::string() : words.back();
  const bool is_option = current.rfind('-', 0) == 0;
  if (words.size() < 2)
  {
    return is_option ? OptionNames(tool) : SubcommandNames(tool);
  }
  const CLI::App* sub = FindSubcommand(tool, words.front());
  if (sub == nullptr || TakesValue(*sub, words[words.size() - 2]))
  {
    return sub != nullptr ? ValuesOf(words[words.size() - 2]) : Candidates();
  }
  std::vector<std::string> positionals;
  for (std::size_t place = 1; place + 1 < words.size(); ++place)
  {
    if (words[place].rfind('-', 0) != 0 && !TakesValue(*sub, words[place - 1]))
    {
      positionals.push_back(words[place]);
    }
  }
  return is_option ? OptionNames(*sub) : Positionals(words.front(), positionals);
}

}  // namespace

void AddComplete(CLI::App& tool)
{
  const auto words = std::make_shared<std::vector<std::string>>();
  CLI::App* sub = tool.add_subcommand(kComplete, "Print what a shell offers for a command line.")->group("");
  sub->add_option("words", *words);
  sub->callback([words, &tool] {
    for (const std::string& candidate : CandidatesFor(tool, RawWords(*words)))
    {
      if (IsOnePrintableLine(candidate))
      {
        std::cout << candidate << "\n";
      }
    }
  });
}
