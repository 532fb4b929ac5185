#include "job/inventory.h"
#include "job/job_kind.h"
#include "job/job_listing.h"
#include "job/job_text.h"
#include "job/parameter_file.h"
#include "job/read_job.h"
#include "job/read_parameter_file.h"
#include "job/selection.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/file_argument.h"
#include "support/plain_text.h"
#include "support/style.h"

#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelUtilities/KLV_LogMacros.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <optional>

namespace
{

struct Options
{
  std::optional<std::string> file;
  std::optional<std::string> kind;
  std::optional<std::string> id;
  bool log = false;
  bool json = false;
  std::string job = kGyreJob;
  std::string color = kColorAuto;
};

// The file may be left out, so what stands at its place may be a kind.
FileArgument ArgumentOf(const Options& options)
{
  std::vector<std::string> words;
  for (const std::optional<std::string>& word : {options.file, options.kind, options.id})
  {
    if (word)
    {
      words.push_back(*word);
    }
  }
  return SplitFileArgument(std::move(words));
}

void PrintRecord(const KLV_LogRecord& record)
{
  std::cout << record.prefix << record.source << ":" << record.line << "\n" << PrintableLines(record.text);
  if (record.text.empty() || record.text.back() != '\n')
  {
    std::cout << "\n";  // the text of a large command is cut
  }
  std::cout << "\n";
}

// The commands as they print themselves. They must load for that.
void ShowLog(const Options& options, const FileArgument& argument)
{
  const std::filesystem::path path = ParameterFilePath(argument.file);
  const auto storage = OpenParameterFile(path);
  WithParfile(options.job, *storage, [&](auto& parfile) {
    parfile.Load();
    const Job job = ReadParameterFile(path);
    const Selection selection = Select(job, argument.words, argument.file);
    KLV_LogMacros::SetSink(PrintRecord);
    orvel::ForEachCommand(parfile, [&](const auto& command) {
      if (selection.Has(command.GetType(), command.GetID_NAME_()))
      {
        command.ToString();
      }
    });
    KLV_LogMacros::SetSink(nullptr);
    std::cout << AsText(CountContents(PartOf(job, selection))) << "\n";
  });
}

void ShowJson(const Job& part)
{
  std::vector<std::string> not_carried = NotCarried(part);
  if (!not_carried.empty())
  {
    not_carried.emplace_back("JSON cannot hold this; show it without --json");
    throw FaultyInput(not_carried);
  }
  std::cout << AsJson(part);
}

void Show(const Options& options)
{
  const FileArgument argument = ArgumentOf(options);
  if (options.log)
  {
    ShowLog(options, argument);
    return;
  }
  const Job job = ReadJob(argument.file);
  const Job part = PartOf(job, Select(job, argument.words, argument.file));
  if (options.json)
  {
    ShowJson(part);
    return;
  }
  PrintListing(std::cout, part, JobIndex(job), Style(options.color));
  std::cout << AsText(CountContents(part)) << "\n";
}

}  // namespace

void AddShow(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* show = tool.add_subcommand("show", "Print the commands of a parameter file or a job description.");
  show->add_option("file", options->file,
                   "A parameter file, its folder, or a job description (.toml); the working directory when left out");
  show->add_option("kind", options->kind, "A kind of command, to show these alone");
  show->add_option("id", options->id, "An id of this kind");
  CLI::Option* log = show->add_flag("--log", options->log, "As the debug log has them; they must load for that");
  show->add_flag("--json", options->json, "As JSON, for programs, in the form of export --json")->excludes(log);
  show->add_option("--job", options->job, "The job that the file describes, for --log")
    ->check(CLI::IsMember({kGyreJob, kSmoothJob}))
    ->needs(log)
    ->capture_default_str();
  AddColorOption(*show, options->color);
  show->footer("Example: orvel-parfile show run/ DV_ porosity");
  show->callback([options] { Show(*options); });
}
