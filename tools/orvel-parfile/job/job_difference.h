/// \file
/// In what two jobs differ.
#pragma once

#include "job.h"

#include <string>
#include <vector>

/// How something differs.
enum class Change
{
  Added,
  Removed,
  Changed
};

/// One difference: of a command, of a key, of a kind without commands, or of an object that is no part of the layout.
/// Not owned: the keys belong to the jobs.
struct Difference
{
  Change change;
  std::string kind;
  std::string id;                  ///< Empty for a kind without commands.
  std::string key;                 ///< Empty for a whole command.
  const JobKey* before = nullptr;  ///< Null for what is added, and where there is no key.
  const JobKey* after = nullptr;   ///< Null for what is removed, and where there is no key.
  std::string path;                ///< Of an object that is no part of the layout, else empty.
  std::string what_before;         ///< What stands at the path.
  std::string what_after;
};

/// All differences, in stable order, and what the tool could not compare.
struct Comparison
{
  std::vector<Difference> differences;
  std::vector<std::string> not_compared;  ///< A line for each.
};

/// Numbers are the same when their bits are. The order of the commands and keys of the jobs does not matter, that of
/// the values of a key does.
Comparison Compare(const Job& before, const Job& after);
