#include "check/library.h"
#include "check/report.h"
#include "check/rule_page.h"
#include "check/rules.h"
#include "job/job_description.h"
#include "job/job_kind.h"
#include "job/model_ids.h"
#include "job/parameter_file.h"
#include "job/read_parameter_file.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"

#include "OrvelCommands/commands/LocalGenerated/SMOOTH_.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>

namespace
{

struct Options
{
  std::string file = ".";
  std::optional<std::string> model_ids;
  std::string job = kGyreJob;
  std::vector<std::string> ignored;
  bool json = false;
  bool rules = false;
  bool markdown = false;
};

// A job with what reading it has found.
struct ReadResult
{
  Job job;
  std::vector<Finding> findings;
  RefusedParts refused;
};

ReadResult ReadDescription(const Options& options, const ModelIds* model_ids)
{
  ReadResult result;
  JobDescription description = ReadJobDescription(options.file);
  AskLibrary(description.job, options.job, model_ids, result.findings);
  result.refused = RefusedParts(description.faults);
  result.findings.insert(result.findings.end(), description.faults.begin(), description.faults.end());
  result.job = std::move(description.job);
  return result;
}

ReadResult ReadFile(const Options& options, const ModelIds* model_ids)
{
  ReadResult result;
  const std::filesystem::path path = ParameterFilePath(options.file);
  AskLibrary(path, options.job, model_ids, result.findings);
  result.job = InStableOrder(ReadParameterFile(path));
  return result;
}

bool IsReadBy(const std::string& job, const std::string& kind)
{
  return job == kGyreJob || kind == SMOOTH_::s_type || orvel::schema::FindCommand(kind) == nullptr;
}

// What the checked job reads, and what no job reads.
Job PartOf(Job job, const std::string& name)
{
  const auto is_unread = [&name](const JobCommand& command) { return !IsReadBy(name, command.kind); };
  job.commands.erase(std::remove_if(job.commands.begin(), job.commands.end(), is_unread), job.commands.end());
  return job;
}

void ApplyRules(const Options& options, const ModelIds* model_ids, bool is_description, ReadResult& result)
{
  const Job job = PartOf(std::move(result.job), options.job);
  const JobIndex index(job);
  const Remedies remedies(options.file, is_description);
  const CheckSubject subject{job, index, result.refused, model_ids, remedies};
  CheckSchema(subject, result.findings);
  CheckValues(subject, result.findings);
  if (options.job == kGyreJob)
  {
    CheckReferences(subject, result.findings);
    CheckModel(subject, result.findings);
  }
}

void TakeIgnoredAway(const std::vector<std::string>& names, Report& report)
{
  const auto is_ignored = [&names](const Finding& finding) {
    return std::find(names.begin(), names.end(), finding.rule->name) != names.end();
  };
  const auto first = std::remove_if(report.findings.begin(), report.findings.end(), is_ignored);
  report.ignored = static_cast<std::size_t>(report.findings.end() - first);
  report.findings.erase(first, report.findings.end());
}

// The library stops at its first fault; who reads it should read on.
void PointFromLibrary(std::vector<Finding>& findings)
{
  const bool has_others = std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
    return finding.rule != &rules::library && finding.rule->severity == Severity::Error;
  });
  for (Finding& finding : findings)
  {
    if (has_others && finding.rule == &rules::library)
    {
      finding.remedy = "see to what is found below, then check again";
    }
  }
}

void PrintVerdict(const Options& options, const ModelIds* model_ids, const Inventory& inventory)
{
  std::cout << PrintableLines(options.file) << " is good: " << AsText(inventory) << "\n";
  if (model_ids != nullptr)
  {
    std::cout << "model ids checked against " << model_ids->Count() << " names of "
              << PrintableLines(*options.model_ids) << "\n";
  }
  else
  {
    std::cout << "model ids not checked: give the names that the model knows with --model-ids\n";
  }
}

void Check(const Options& options)
{
  const auto ids = options.model_ids ? std::optional<ModelIds>(ReadModelIds(*options.model_ids)) : std::nullopt;
  const ModelIds* model_ids = ids ? &*ids : nullptr;
  const bool is_description = IsJobDescription(options.file);
  ReadResult result = is_description ? ReadDescription(options, model_ids) : ReadFile(options, model_ids);
  Report report{options.file, options.job, is_description, {}, 0, CountContents(result.job)};
  ApplyRules(options, model_ids, is_description, result);
  report.findings = std::move(result.findings);
  TakeIgnoredAway(options.ignored, report);
  PointFromLibrary(report.findings);
  Sort(report);
  const bool is_good = Count(report).IsGood();
  std::cout << (options.json ? AsJson(report) : PrintableLines(AsText(report)));
  if (is_good && !options.json)
  {
    PrintVerdict(options, model_ids, report.inventory);
  }
  if (!is_good)
  {
    throw FaultsPrinted();
  }
}

void Run(const Options& options)
{
  if (options.rules)
  {
    std::cout << (options.markdown ? RulesAsMarkdown() : RulesAsText());
  }
  else
  {
    Check(options);
  }
}

std::string FaultOfRuleName(const std::string& name)
{
  return FindRule(name) != nullptr ? "" : "there is no rule " + name + "; " + NearestName(name, RuleNames());
}

}  // namespace

void AddCheck(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* check = tool.add_subcommand("check", "Load a parameter file or a job description and check it.");
  check->add_option("file", options->file, "A parameter file, its folder, or a job description (.toml)")
    ->capture_default_str();
  check->add_option("--model-ids", options->model_ids, "The names that the model knows, a TOML file");
  check->add_option("--job", options->job, "The job that the file describes")
    ->check(CLI::IsMember({kGyreJob, kSmoothJob}))
    ->capture_default_str();
  check->add_option("--ignore", options->ignored, "A rule whose findings do not count; may be given again")
    ->check(FaultOfRuleName)
    ->type_name("RULE")
    ->allow_extra_args(false);
  check->add_flag("--json", options->json, "The findings as JSON, for programs");
  CLI::Option* rules = check->add_flag("--rules", options->rules, "Tell what the rules are, and check nothing");
  check->add_flag("--markdown", options->markdown, "With --rules: as a page")->needs(rules);
  check->footer("Example: orvel-parfile check run/ --model-ids model_ids.toml");
  check->callback([options] { Run(*options); });
}
