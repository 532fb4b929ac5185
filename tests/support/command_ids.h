/// \file
/// The names of commands in a form that a test can compare.
#pragma once

#include <string>
#include <vector>

/// The `ID_NAME` of each of \p commands, in their order. \p Command may be const.
template <class Command>
std::vector<std::string> IdsOf(const std::vector<Command*>& commands)
{
  std::vector<std::string> ids;
  for (const Command* command : commands)
  {
    ids.push_back(command->GetID_NAME_());
  }
  return ids;
}
