#include "job/file_lock.h"
#include "job/new_parameter_file.h"
#include "job/parameter_file.h"
#include "subcommands.h"
#include "support/plain_text.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace
{

struct Options
{
  std::string file = ".";
  bool force = false;
};

void Init(const Options& options)
{
  const std::filesystem::path place = NewParameterFilePath(options.file, options.force);
  const ReplacementLock lock(place);
  NewParameterFile file(place);
  file.Fill({});
  file.PutInPlace(options.force);
  std::cout << "made " << PrintableLines(place.string()) << ", without commands\n";
}

}  // namespace

void AddInit(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("init", "Make a parameter file without commands.");
  sub->add_option("file", options->file, "The new parameter file or its folder")->capture_default_str();
  sub->add_flag("--force", options->force, "Replace a file that is there");
  sub->footer("Example: orvel-parfile init run/");
  sub->callback([options] { Init(*options); });
}
