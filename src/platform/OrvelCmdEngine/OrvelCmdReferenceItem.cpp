#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"

#include "OrvelCmdEngine/OrvelCmd.h"

OrvelCmdReferenceItem::OrvelCmdReferenceItem(const OrvelCmd& command, OrvelCmdItemDefs::CmdItem item)
  : OrvelCmdItem(item, ValueType::Reference), m_command(&command), m_life(command.m_self)
{
}

OrvelCmdReferenceItem::~OrvelCmdReferenceItem() = default;

std::string OrvelCmdReferenceItem::AsString() const
{
  const OrvelCmd* command = ReferencedCommand();
  if (command == nullptr || !command->HasItem(OrvelCmdItemDefs::ID_NAME))
  {
    return std::string();
  }
  return command->Item(OrvelCmdItemDefs::ID_NAME, 0).AsString();
}

bool OrvelCmdReferenceItem::IsReference() const
{
  return true;
}

const OrvelCmd* OrvelCmdReferenceItem::ReferencedCommand() const
{
  return m_life.expired() ? nullptr : m_command;
}
