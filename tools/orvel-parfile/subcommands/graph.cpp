#include "job/graph_text.h"
#include "job/inventory.h"
#include "job/job_graph.h"
#include "job/picture.h"
#include "job/read_job.h"
#include "subcommands.h"
#include "support/plain_text.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <optional>

namespace
{

struct Options
{
  std::string file = ".";
  std::optional<std::string> output;
  bool without_groups = false;
};

void Graph(const Options& options)
{
  if (options.output)
  {
    RequirePictureEnding(*options.output);
  }
  const Job job = ReadJob(options.file);
  const std::string contents = AsText(CountContents(job));
  const std::string text = GraphText(JobGraph(job, !options.without_groups), PlainText(options.file) + ": " + contents);
  if (!options.output)
  {
    std::cout << text;
    return;
  }
  WritePicture(text, *options.output);
  std::cout << "drew " << PrintableLines(options.file + " as " + *options.output) << ": " << contents << "\n";
}

}  // namespace

void AddGraph(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("graph", "Draw which command refers to which.");
  sub->add_option("file", options->file, "A parameter file, its folder, or a job description (.toml)")
    ->capture_default_str();
  sub->add_option("-o,--output", options->output,
                  "The picture: .svg, .png or .pdf, drawn by Graphviz, or .dot for its text; standard output gets the "
                  "text without this");
  sub->add_flag("--no-groups", options->without_groups,
                "Without the arrows to groups and coordinate systems that are named as model ids");
  sub->footer("Example: orvel-parfile graph run/ -o job.svg");
  sub->callback([options] { Graph(*options); });
}
