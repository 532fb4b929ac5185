/// \file
/// A job description: the commands of a parameter file as TOML text.
#pragma once

#include "OrvelCommands/commands/command_schema.h"

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

/// One value of a key in the type that its schema row tells. An enumerator is its number, a reference the target's id.
using JobValue = std::variant<int, double, std::string, std::vector<int>, std::vector<double>>;

/// One value where it stands.
struct JobItem
{
  JobValue value;
  std::string place;  ///< "file:line:column", for messages.
};

/// One key of a command.
struct JobKey
{
  const orvel::schema::Field* field;
  std::vector<JobItem> items;
};

/// One command.
struct JobCommand
{
  const orvel::schema::Command* kind;
  std::string id;
  std::vector<JobKey> keys;  ///< In the order of the text.
  std::string place;
};

/// Reads a job description: one table for each command, `[DV_.porosity]`, whose keys are those of the kind. Enumerators
/// stand by name, by letter where their numbers are letters, or by number; references by id, repeated keys as arrays.
///
/// Returns: the commands in the order of the text.
/// Throws: UnusableInput for a file that cannot be read or is no TOML; FaultyInput with every fault, each with its
/// file, line and column, what was found and what is possible.
std::vector<JobCommand> ReadJobDescription(const std::filesystem::path& path);
