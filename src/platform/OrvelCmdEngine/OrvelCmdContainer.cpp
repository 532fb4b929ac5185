#include "OrvelCmdEngine/OrvelCmdContainer.h"

#include <algorithm>
#include <stdexcept>

#include "OrvelUtilities/KLV_MESSAGE.h"

OrvelCmdContainer::OrvelCmdContainer()
{
  for (std::size_t place = 0; place <= number_of_kinds; ++place)
  {
    m_empty_commands.push_back(std::make_unique<OrvelCmd>(static_cast<OrvelCmdDefs::Cmd>(place)));
  }
}

OrvelCmdContainer::~OrvelCmdContainer() = default;

OrvelCmd& OrvelCmdContainer::AddCommand(OrvelCmdDefs::Cmd kind)
{
  const std::size_t place = PlaceOf(kind);
  if (place == number_of_kinds)
  {
    throw std::invalid_argument(KLV_MESSAGE("OrvelCmdContainer: %d is no kind of command.", static_cast<int>(kind)));
  }
  return *m_commands[place].emplace_back(std::make_unique<OrvelCmd>(kind));
}

void OrvelCmdContainer::RemoveCommand(OrvelCmdDefs::Cmd kind, std::uint64_t position)
{
  const std::uint64_t count = GetNumberOfCommands(kind);
  if (position >= count)
  {
    throw std::out_of_range(KLV_MESSAGE(
      "OrvelCmdContainer: kind %d has %llu entries, so that there is none at position %llu.", static_cast<int>(kind),
      static_cast<unsigned long long>(count), static_cast<unsigned long long>(position)));
  }
  m_commands[PlaceOf(kind)][position].reset();
}

std::uint64_t OrvelCmdContainer::GetNumberOfCommands(OrvelCmdDefs::Cmd kind) const
{
  return Commands(kind).size();
}

bool OrvelCmdContainer::HasCommand(OrvelCmdDefs::Cmd kind) const
{
  const auto is_command = [](const std::unique_ptr<OrvelCmd>& entry) { return entry != nullptr; };
  return std::any_of(GetCommandBegin(kind), GetCommandEnd(kind), is_command);
}

OrvelCmdContainer::const_iterator OrvelCmdContainer::GetCommandBegin(OrvelCmdDefs::Cmd kind) const
{
  return Commands(kind).begin();
}

OrvelCmdContainer::const_iterator OrvelCmdContainer::GetCommandEnd(OrvelCmdDefs::Cmd kind) const
{
  return Commands(kind).end();
}

const OrvelCmdContainer::CmdList& OrvelCmdContainer::Commands(OrvelCmdDefs::Cmd kind) const
{
  static const CmdList no_commands;
  const std::size_t place = PlaceOf(kind);
  return place == number_of_kinds ? no_commands : m_commands[place];
}
