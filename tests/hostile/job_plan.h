/// \file
/// What a case writes: a sound job, and the places where it goes wrong. One thread at a time.
#pragma once

#include "hostile/Numbers.h"

#include "OrvelCommands/commands/command_schema.h"

#include <string>
#include <vector>

struct PlannedKey
{
  std::string name;
  VtmType type;
  std::string target;  ///< The id of a command of the kind `name`, for a reference.
  std::uint64_t count;
  bool wrong = false;
};

struct PlannedCommand
{
  std::string id;
  std::vector<PlannedKey> keys;
  bool wrong = false;
};

struct PlannedKind
{
  std::string name;
  std::vector<PlannedCommand> commands;
  bool wrong = false;
};

struct JobPlan
{
  std::vector<PlannedKind> kinds;
  bool wrong_top = false;  ///< The group "/PARFILE" itself.
};

/// A job that loads: all that must be there, and one in \p sparseness of what may be there.
/// Requires: \p sparseness is not 0.
JobPlan PlanSoundJob(Numbers& numbers, std::uint64_t sparseness);

/// A job of the kinds \p names alone, with all their keys. A fluid job does not load with it.
JobPlan PlanSmallJob(Numbers& numbers, const std::vector<std::string>& names);

/// A name of 1 to 65,535 bytes without "/": any bytes, UTF-8, conversions of printf or a control character.
std::string WrongName(Numbers& numbers);

/// Marks \p count places of the plan as wrong, most of them keys, or gives a command a wrong name, which the references
/// to it follow.
void SpoilPlan(JobPlan& plan, Numbers& numbers, std::uint64_t count);
