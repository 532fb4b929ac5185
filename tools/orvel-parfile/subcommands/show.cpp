#include "job/inventory.h"
#include "job/job_kind.h"
#include "job/parameter_file.h"
#include "job/read_parameter_file.h"
#include "subcommands.h"

#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelUtilities/KLV_LogMacros.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string file = ".";
  std::string job = kGyreJob;
};

void PrintRecord(const KLV_LogRecord& record)
{
  std::cout << record.prefix << record.source << ":" << record.line << "\n" << record.text;
  if (record.text.empty() || record.text.back() != '\n')
  {
    std::cout << "\n";  // the text of a large command is cut
  }
  std::cout << "\n";
}

void Show(const Options& options)
{
  const std::filesystem::path path = ParameterFilePath(options.file);
  const auto storage = OpenParameterFile(path);
  WithParfile(options.job, *storage, [&](auto& parfile) {
    parfile.Load();
    KLV_LogMacros::SetSink(PrintRecord);
    orvel::ForEachCommand(parfile, [](const auto& command) { command.ToString(); });
    KLV_LogMacros::SetSink(nullptr);
  });
  std::cout << AsText(CountContents(ReadParameterFile(path))) << "\n";
}

}  // namespace

void AddShow(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* show = tool.add_subcommand("show", "Print the commands of a parameter file as the debug log has them.");
  show->add_option("file", options->file, "A parameter file or its folder")->capture_default_str();
  show->add_option("--job", options->job, "The job that the file describes")
    ->check(CLI::IsMember({kGyreJob, kSmoothJob}))
    ->capture_default_str();
  show->footer("Example: orvel-parfile show run/");
  show->callback([options] { Show(*options); });
}
