/// \file
/// A command as its own Load fills it, without a job around it. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <string>

/// The command \p id of \p storage, without its references.
template <class Command>
Command Loaded(const OrvelParfileStorage& storage, const std::string& id)
{
  Command command;
  command.Load(storage, id);
  return command;
}
