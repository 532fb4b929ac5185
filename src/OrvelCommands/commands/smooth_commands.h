/// \file
/// All command classes of smooth_commands.
///
/// Generated from smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/LocalGenerated/SMOOTH_.h"
