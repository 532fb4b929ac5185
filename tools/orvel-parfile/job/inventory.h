/// \file
/// What a job holds, in numbers.
#pragma once

#include "job.h"

#include <cstdint>
#include <string>

/// Counts over all commands and keys, known to the schema or not.
struct Inventory
{
  std::uint64_t kinds = 0;  ///< With at least one command.
  std::uint64_t commands = 0;
  std::uint64_t values = 0;  ///< Model ids included, references not.
  std::uint64_t references = 0;
  std::uint64_t model_ids = 0;
};

Inventory CountContents(const Job& job);

/// "25 kinds, 55 commands, ..."
std::string AsText(const Inventory& inventory);
