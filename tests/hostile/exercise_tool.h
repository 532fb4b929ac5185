/// \file
/// What orvel-parfile does with a file that may be hostile. One thread at a time.
#pragma once

#include "hostile/exercise.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The command lines of orvel-parfile that read the parameter file of the working directory: both kinds of check and
/// all forms of show.
const std::vector<std::vector<std::string>>& ReadingCommandLines();

/// Runs check and show within this process, and of their other forms the one that depends on \p number. What they print
/// goes nowhere.
///
/// Throws: what the tool itself would not catch; std::logic_error for a command line that the tool does not understand.
///
/// \p tell is called with each command line and with whether it has found the file to be good.
Ends ExerciseTool(
  std::uint64_t number, const std::function<void(const std::string&, bool)>& tell = [](const std::string&, bool) {});
