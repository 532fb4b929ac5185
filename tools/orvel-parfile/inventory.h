/// \file
/// What a parameter file holds, in numbers.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <cstdint>
#include <string>

/// Counts over all kinds and keys that the schema knows.
struct Inventory
{
  std::uint64_t kinds = 0;  ///< With at least one command.
  std::uint64_t commands = 0;
  std::uint64_t values = 0;  ///< Model ids included, references not.
  std::uint64_t references = 0;
  std::uint64_t model_ids = 0;
};

/// Throws: what the storage throws.
Inventory CountContents(const OrvelParfileStorage& storage);

/// "25 kinds, 55 commands, ..."
std::string AsText(const Inventory& inventory);
