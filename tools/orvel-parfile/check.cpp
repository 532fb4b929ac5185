#include "exit_code.h"
#include "inventory.h"
#include "job_description.h"
#include "job_kind.h"
#include "model_ids.h"
#include "parameter_file.h"
#include "subcommands.h"

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelDbFactory/OrvelDbInstance.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string file = ".";
  std::string model_ids;
  std::string job = kGyreJob;
};

bool IsJobDescription(const std::string& file)
{
  return std::filesystem::path(file).extension() == ".toml";
}

// Runs one stage of a check and notes how it fails.
template <class Stage>
void NoteFailure(std::vector<std::string>& faults, Stage stage)
{
  try
  {
    stage();
  }
  catch (const KLV_Failure& failure)
  {
    faults.emplace_back(failure.what());
  }
}

void CheckParfile(const Options& options, const std::filesystem::path& path, std::vector<std::string> faults)
{
  KLV_Database database;
  const std::size_t known_ids = options.model_ids.empty() ? 0 : ReadModelIds(options.model_ids, database);
  OrvelDbInstance::s_Singleton = &database;
  const auto storage = OpenParameterFile(path);
  WithParfile(options.job, *storage, [&](auto& parfile) {
    NoteFailure(faults, [&] {
      parfile.Load();
      if (!options.model_ids.empty())
      {
        parfile.ValidateModelIds();
      }
    });
  });
  OrvelDbInstance::s_Singleton = nullptr;
  if (!faults.empty())
  {
    throw FaultyInput(faults);
  }
  std::cout << options.file << " is good: " << AsText(CountContents(*storage)) << "\n";
  if (options.model_ids.empty())
  {
    std::cout << "model ids not checked: give the names that the model knows with --model-ids\n";
  }
  else
  {
    std::cout << "model ids checked against " << known_ids << " names of " << options.model_ids << "\n";
  }
}

void Check(const Options& options)
{
  if (!IsJobDescription(options.file))
  {
    CheckParfile(options, ParameterFilePath(options.file), {});
    return;
  }
  NewParameterFile scratch(std::filesystem::temp_directory_path() / PARFILE_STORAGE_FILE);
  std::vector<std::string> faults = scratch.Fill(ReadJobDescription(options.file));
  CheckParfile(options, scratch.Path(), std::move(faults));
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
