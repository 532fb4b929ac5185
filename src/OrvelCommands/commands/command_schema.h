/// \file
/// What the commands are, as data: for tools, documentation and whoever handles commands without knowing their classes.
/// Constants only, safe from any thread.
#pragma once

#include "OrvelCommands/commands/command_schema_types.h"
#include "OrvelCommands/commands/LocalGenerated/command_schema_data.h"

namespace orvel::schema
{

/// All kinds of command, in the order in which a job loads them.
constexpr Rows<Command> Commands()
{
  return data::commands;
}

/// The kind with this name, null when there is none.
constexpr const Command* FindCommand(std::string_view kind)
{
  for (const Command& command : Commands())
  {
    if (command.kind == kind)
    {
      return &command;
    }
  }
  return nullptr;
}

/// The key of a kind, null when it has none of this name.
constexpr const Field* FindField(const Command& command, std::string_view key)
{
  for (const Field& field : command.fields)
  {
    if (field.key == key)
    {
      return &field;
    }
  }
  return nullptr;
}

}  // namespace orvel::schema
