#include "job/job_text.h"
#include "job/parameter_file.h"
#include "job/read_parameter_file.h"
#include "subcommands.h"
#include "support/exit_code.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string file = ".";
  bool json = false;
};

void Export(const Options& options)
{
  const Job job = ReadParameterFile(ParameterFilePath(options.file));
  std::vector<std::string> not_carried = NotCarried(job);
  if (!not_carried.empty())
  {
    not_carried.emplace_back("a job description cannot hold this; mend it with set or unset, then export again");
    throw FaultyInput(not_carried);
  }
  std::cout << (options.json ? AsJson(job) : AsToml(job));
}

}  // namespace

void AddExport(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("export", "Print a parameter file as a job description.");
  sub->add_option("file", options->file, "A parameter file or its folder")->capture_default_str();
  sub->add_flag("--json", options->json, "As JSON, for programs");
  sub->footer("Example: orvel-parfile export run/ > job.toml");
  sub->callback([options] { Export(*options); });
}
