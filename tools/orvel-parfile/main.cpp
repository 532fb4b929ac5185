#include "job/scratch_folder.h"
#include "subcommands/subcommands.h"
#include "support/exit_code.h"
#include "support/plain_text.h"
#include "support/raw_words.h"

#include "OrvelCommands/foundation/KLV_Exception.h"

#include <CLI/CLI.hpp>
#include <H5Cpp.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <utility>

namespace
{

int Report(const std::string& what, ExitCode code)
{
  std::cerr << PrintableLines(what) << "\n";
  return code;
}

// A pipe that nobody reads any more: where the signal that tells so is blocked, the tool ends as quietly without it.
bool IsBrokenPipe(int descriptor)
{
  pollfd output{descriptor, POLLOUT, 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

// Output that is lost is no success.
ExitCode FlushOutput()
{
  if (!std::cout.flush())
  {
    if (IsBrokenPipe(STDOUT_FILENO))
    {
      return exitUnusable;
    }
    throw UnusableInput("the output cannot be written");
  }
  return exitGood;
}

int Run(int argument_count, char** arguments)
{
  CLI::App tool("Parameter files of an optimization job: make them, check them, look into them.", "orvel-parfile");
  tool.set_version_flag("--version", ORVEL_VERSION);
  tool.require_subcommand(1);
  AddInit(tool);
  AddImport(tool);
  AddExport(tool);
  AddCheck(tool);
  AddShow(tool);
  AddDiff(tool);
  AddGraph(tool);
  AddSet(tool);
  AddUnset(tool);
  AddSchema(tool);
  AddComplete(tool);
  try
  {
    std::vector<std::string> words = ReadArguments(argument_count, arguments);
    std::reverse(words.begin(), words.end());  // the order that CLI11 takes
    tool.parse(std::move(words));
  }
  catch (const CLI::ParseError& error)
  {
    std::ostringstream fault;
    const bool is_fault = tool.exit(error, std::cout, fault) != 0;
    std::cerr << PrintableLines(fault.str());
    return is_fault ? exitUnusable : FlushOutput();
  }
  catch (const FaultsPrinted&)
  {
    const ExitCode output = FlushOutput();
    return output == exitGood ? exitFaults : output;
  }
  return FlushOutput();
}

}  // namespace

int main(int argument_count, char** arguments)
{
  // Our own text tells what happened; HDF5's report of forty lines would bury it.
  H5::Exception::dontPrint();
  RemoveScratchFolderOnSignals();
  try
  {
    return Run(argument_count, arguments);
  }
  catch (const UnwritableFile& error)
  {
    std::_Exit(Report(error.what(), exitUnusable));
  }
  catch (const UnusableInput& error)
  {
    return Report(error.what(), exitUnusable);
  }
  catch (const FaultyInput& error)
  {
    return Report(error.what(), exitFaults);
  }
  catch (const KLV_Exception& failure)
  {
    return Report(failure.GetMessage(), exitFaults);
  }
  catch (const H5::Exception& error)
  {
    return Report("HDF5 cannot work on the parameter file: " + error.getDetailMsg(), exitFaults);
  }
  catch (const std::exception& error)
  {
    return Report(error.what(), exitUnusable);
  }
}
