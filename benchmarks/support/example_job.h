/// \file
/// The job that the jobs for measurements grow from. One thread at a time.
#pragma once

#include "OrvelCommands/commands/command_schema.h"

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace benchmarks
{

/// One value; a reference is the id of its target, an enumerator its number.
using JobValue = std::variant<int, double, std::string, std::vector<int>, std::vector<double>>;

struct JobKey
{
  const orvel::schema::Field* field;
  std::vector<JobValue> values;
};

struct JobCommand
{
  const orvel::schema::Command* kind;
  std::string id;
  std::vector<JobKey> keys;
};

/// The commands of a job description of the tool.
/// Throws: what the tool throws for a wrong description; std::runtime_error for a key that no command reads.
std::vector<JobCommand> ReadExample(const std::filesystem::path& path);

}  // namespace benchmarks
