#include "check/rules.h"
#include "job/inventory.h"
#include "job/job_description.h"
#include "job/job_kind.h"
#include "job/model_ids.h"
#include "job/new_parameter_file.h"
#include "job/parameter_file.h"
#include "job/read_parameter_file.h"
#include "subcommands.h"
#include "support/exit_code.h"

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelDbFactory/OrvelDbInstance.h"

#include <CLI/CLI.hpp>

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
};

// The database that the model ids are checked against, as long as the object lives.
class OpenModel
{
public:
  explicit OpenModel(const ModelIds& ids)
  {
    AddTo(m_database, ids);
    OrvelDbInstance::s_Singleton = &m_database;
  }
  OpenModel(const OpenModel&) = delete;
  OpenModel& operator=(const OpenModel&) = delete;
  ~OpenModel() { OrvelDbInstance::s_Singleton = nullptr; }

private:
  KLV_Database m_database;
};

// What the library says of a parameter file: it stops at the first fault of loading.
void AskLibrary(const std::filesystem::path& path, const std::string& job, const std::optional<ModelIds>& model_ids,
                std::vector<Finding>& findings)
{
  const auto storage = OpenParameterFile(path);
  try
  {
    WithParfile(job, *storage, [&](auto& parfile) {
      parfile.Load();
      if (model_ids)
      {
        const OpenModel model(*model_ids);
        parfile.ValidateModelIds();
      }
    });
  }
  catch (const KLV_Failure& failure)
  {
    findings.push_back({&rules::library, {}, {}, {}, {}, {}, failure.what(), {}});
  }
}

// A job description is loaded from a file of its own, which lacks what was refused.
Job ReadDescription(const Options& options, const std::optional<ModelIds>& model_ids, std::vector<Finding>& findings)
{
  JobDescription description = ReadJobDescription(options.file);
  NewParameterFile scratch(std::filesystem::temp_directory_path() / PARFILE_STORAGE_FILE);
  for (const std::string& failure : scratch.Fill(description.job))
  {
    findings.push_back({&rules::library, {}, {}, {}, {}, {}, failure, {}});
  }
  AskLibrary(scratch.Path(), options.job, model_ids, findings);
  findings.insert(findings.end(), description.faults.begin(), description.faults.end());
  return std::move(description.job);
}

Job ReadFile(const Options& options, const std::optional<ModelIds>& model_ids, std::vector<Finding>& findings)
{
  const std::filesystem::path path = ParameterFilePath(options.file);
  AskLibrary(path, options.job, model_ids, findings);
  return ReadParameterFile(path);
}

void PrintVerdict(const Options& options, const std::optional<ModelIds>& model_ids, const Job& job)
{
  std::cout << options.file << " is good: " << AsText(CountContents(job)) << "\n";
  if (model_ids)
  {
    std::cout << "model ids checked against " << model_ids->Count() << " names of " << *options.model_ids << "\n";
  }
  else
  {
    std::cout << "model ids not checked: give the names that the model knows with --model-ids\n";
  }
}

void Check(const Options& options)
{
  const auto model_ids = options.model_ids ? std::optional<ModelIds>(ReadModelIds(*options.model_ids)) : std::nullopt;
  std::vector<Finding> findings;
  const Job job = IsJobDescription(options.file) ? ReadDescription(options, model_ids, findings)
                                                 : ReadFile(options, model_ids, findings);
  const JobIndex index(job);
  const CheckSubject subject{job, index, options.job, model_ids ? &*model_ids : nullptr};
  CheckSchema(subject, findings);
  CheckReferences(subject, findings);
  CheckValues(subject, findings);
  CheckModel(subject, findings);
  if (!findings.empty())
  {
    throw FaultyInput(AsLines(findings));
  }
  PrintVerdict(options, model_ids, job);
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
  check->footer("Example: orvel-parfile check run/ --model-ids model_ids.toml");
  check->callback([options] { Check(*options); });
}
