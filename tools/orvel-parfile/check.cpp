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
#include <optional>

namespace
{

struct Options
{
  std::string file = ".";
  std::optional<std::string> model_ids;
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

// The database that the model ids are checked against.
struct Model
{
  explicit Model(const std::optional<std::string>& file) : is_known(file.has_value())
  {
    known_ids = file ? ReadModelIds(*file, database) : 0;
    OrvelDbInstance::s_Singleton = &database;
  }
  ~Model() { OrvelDbInstance::s_Singleton = nullptr; }
  Model(const Model&) = delete;
  Model& operator=(const Model&) = delete;

  bool is_known;
  KLV_Database database;
  std::size_t known_ids = 0;
};

void PrintVerdict(const Options& options, const Model& model, const OrvelParfileStorage& storage)
{
  std::cout << options.file << " is good: " << AsText(CountContents(storage)) << "\n";
  if (model.is_known)
  {
    std::cout << "model ids checked against " << model.known_ids << " names of " << *options.model_ids << "\n";
  }
  else
  {
    std::cout << "model ids not checked: give the names that the model knows with --model-ids\n";
  }
}

void CheckParfile(const Options& options, const Model& model, const std::filesystem::path& path,
                  std::vector<std::string> faults)
{
  const auto storage = OpenParameterFile(path);
  WithParfile(options.job, *storage, [&](auto& parfile) {
    NoteFailure(faults, [&] {
      parfile.Load();
      if (model.is_known)
      {
        parfile.ValidateModelIds();
      }
    });
  });
  if (!faults.empty())
  {
    throw FaultyInput(faults);
  }
  PrintVerdict(options, model, *storage);
}

void Check(const Options& options)
{
  const Model model(options.model_ids);
  if (!IsJobDescription(options.file))
  {
    CheckParfile(options, model, ParameterFilePath(options.file), {});
    return;
  }
  NewParameterFile scratch(std::filesystem::temp_directory_path() / PARFILE_STORAGE_FILE);
  std::vector<std::string> faults = scratch.Fill(ReadJobDescription(options.file));
  CheckParfile(options, model, scratch.Path(), std::move(faults));
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
