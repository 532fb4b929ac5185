#include "OrvelCommands/commands/OrvelCommand.h"

const std::string OrvelCommand::s_type = "OrvelCommand";

OrvelCommand::OrvelCommand() = default;

OrvelCommand::OrvelCommand(const OrvelCommand& other) = default;

OrvelCommand& OrvelCommand::operator=(const OrvelCommand& other) = default;

OrvelCommand::~OrvelCommand() = default;

const std::string& OrvelCommand::GetType() const
{
  return s_type;
}
