#include "job/difference_text.h"
#include "job/inventory.h"
#include "job/job_difference.h"
#include "job/read_job.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/plain_text.h"
#include "support/style.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string before;
  std::string after;
  bool json = false;
  std::string color = kColorAuto;
};

// A job description with faults is no job to compare: its exit code must not be that of a difference.
Job ReadEither(const std::string& path)
{
  try
  {
    return ReadJob(path);
  }
  catch (const FaultyInput& faults)
  {
    throw UnusableInput(faults.what());
  }
}

void Diff(const Options& options)
{
  const Job before = ReadEither(options.before);
  const Job after = ReadEither(options.after);
  const Comparison comparison = Compare(before, after);
  if (options.json)
  {
    std::cout << AsJson(comparison);
  }
  else
  {
    const Style style(options.color);
    for (const Difference& difference : comparison.differences)
    {
      std::cout << AsLine(difference, style) << "\n";
    }
    for (const std::string& note : comparison.not_compared)
    {
      std::cerr << note << "\n";
    }
  }
  if (!comparison.differences.empty())
  {
    throw FaultsPrinted();
  }
  if (!options.json)
  {
    std::cout << PrintableLines(options.before + " and " + options.after)
              << " hold the same: " << AsText(CountContents(before)) << "\n";
  }
}

}  // namespace

void AddDiff(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("diff", "Tell in what two parameter files or job descriptions differ.");
  sub->add_option("before", options->before, "A parameter file, its folder, or a job description (.toml)")->required();
  sub->add_option("after", options->after, "The other one")->required();
  sub->add_flag("--json", options->json, "As JSON, for programs");
  AddColorOption(*sub, options->color);
  sub->footer("Example: orvel-parfile diff run/ job.toml");
  sub->callback([options] { Diff(*options); });
}
