/// \file
/// The subcommands of orvel-parfile.
#pragma once

#include <string>

namespace CLI
{
class App;
}

/// Each adds one subcommand, which runs as the command line is parsed.
/// Throws (while running): UnusableInput, FaultyInput, and what the library throws.
/// @{
void AddInit(CLI::App& tool);
void AddImport(CLI::App& tool);
void AddExport(CLI::App& tool);
void AddCheck(CLI::App& tool);
void AddShow(CLI::App& tool);
void AddSet(CLI::App& tool);
void AddUnset(CLI::App& tool);
void AddComplete(CLI::App& tool);
void AddSchema(CLI::App& tool);
/// @}
