#include "check/rules.h"
#include "job/file_lock.h"
#include "job/inventory.h"
#include "job/job_description.h"
#include "job/new_parameter_file.h"
#include "job/parameter_file.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/plain_text.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string job;
  std::string file = ".";
  bool force = false;
};

void Import(const Options& options)
{
  const std::filesystem::path place = NewParameterFilePath(options.file, options.force);
  const ReplacementLock lock(place);
  const Job job = ReadSoundJobDescription(options.job);
  NewParameterFile file(place);
  const std::vector<std::string> failures = file.Fill(job);
  if (!failures.empty())
  {
    throw FaultyInput(failures);
  }
  file.PutInPlace(options.force);
  for (const Finding& missing : FindMissingKeys(job))
  {
    std::cerr << AsLine(missing) << "\n";
  }
  std::cout << "imported " << PrintableLines(options.job) << ": " << AsText(CountContents(job)) << "\n";
}

}  // namespace

void AddImport(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("import", "Make a parameter file from a job description.");
  sub->add_option("job", options->job, "The job description, a TOML file")->required();
  sub->add_option("file", options->file, "The new parameter file or its folder")->capture_default_str();
  sub->add_flag("--force", options->force, "Replace a file that is there");
  sub->footer("Example: orvel-parfile import job.toml run/");
  sub->callback([options] { Import(*options); });
}
