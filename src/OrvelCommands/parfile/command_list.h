/// \file
/// What an aggregate does with the commands of one kind, whatever the kind. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/KLV_ParfileException.h"
#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace orvel::detail
{

struct ReferenceLinker;

/// Throws: "Invalid ID %s of the parameter file command %s" with code "161700240908".
[[noreturn]] void FailOnId(const std::string& id, const std::string& kind, const char* aggregate);

/// Throws: "Invalid index %d of the parameterfile command %s to retrieve..." with code "204046270608" unless \p index
/// is in 1 to \p count.
void RequireCommandIndex(std::uint64_t index, std::uint64_t count, const std::string& kind, const char* aggregate);

/// Throws: "%d commands of type %s detected. Only one is expected." with code "204046270608" unless \p count is 1.
void RequireOneCommand(std::uint64_t count, const std::string& kind, const char* aggregate);

/// Throws: one failure without a code that tells the number of problems and then each of them, if there is any.
void ReportProblems(const std::vector<KLV_ParfileException>& problems, const char* aggregate);

/// Loads the command at a position and appends it.
/// \warning A command whose own loading fails is not deleted: it is lost together with what it had read.
template <class Command>
void LoadOneCommand(const OrvelParfileStorage& storage, std::uint64_t position, std::vector<Command*>& list)
{
  auto owner = std::make_unique<Command>();
  std::string name;
  storage.GetCommandName(Command::s_type, position, name);
  Command* command = owner.release();
  command->Load(storage, name);
  owner.reset(command);
  list.push_back(command);
  static_cast<void>(owner.release());  // the list's now
}

/// Loads all commands of a kind, in the storage's order.
template <class Command>
void LoadCommands(const OrvelParfileStorage& storage, std::vector<Command*>& list)
{
  const std::uint64_t count = storage.GetNumCommand(Command::s_type);
  for (std::uint64_t position = 0; position < count; ++position)
  {
    LoadOneCommand(storage, position, list);
  }
}

/// Loads the command of a kind of which a job has exactly one.
template <class Command>
void LoadTheCommand(const OrvelParfileStorage& storage, std::vector<Command*>& list, const char* aggregate)
{
  RequireOneCommand(storage.GetNumCommand(Command::s_type), Command::s_type, aggregate);
  LoadOneCommand(storage, 0, list);
}

/// Fills the references of all commands of a kind. The linker is a parameter so that it is looked up where it is known:
/// an aggregate without references has none.
template <class Command, class Aggregate, class Linker = ReferenceLinker>
void LinkCommands(const std::vector<Command*>& list, const OrvelParfileStorage& storage, Aggregate& parfile,
                  std::vector<KLV_ParfileException>& problems)
{
  for (Command* command : list)
  {
    Linker::ResolveReferences(*command, storage, parfile, command->GetID_NAME_(), problems);
  }
}

/// Checks the model ids of all commands of a kind under the names that the storage has for them now.
template <class Command>
void CheckCommands(const std::vector<Command*>& list, const OrvelParfileStorage& storage,
                   std::vector<KLV_ParfileException>& problems)
{
  std::string name;
  for (std::uint64_t position = 0; position < list.size(); ++position)
  {
    storage.GetCommandName(Command::s_type, position, name);
    list[position]->ValidateModelIds(storage, name, problems);
  }
}

template <class Command>
void DeleteCommands(const std::vector<Command*>& list)
{
  for (const Command* command : list)
  {
    delete command;
  }
}

/// Whether two ids are the same. The ids of a kind often have one length and begin alike, so the ends are compared
/// before all bytes are.
inline bool IsSameId(const std::string& left, const std::string& right)
{
  return left.size() == right.size() &&
         (left.empty() || (left.back() == right.back() && std::memcmp(left.data(), right.data(), left.size()) == 0));
}

/// The first command with this id, null when there is none.
/// Cost: one pass over the ids.
template <class Command>
Command* FindCommand(const std::vector<Command*>& list, const std::string& id)
{
  for (Command* command : list)
  {
    if (IsSameId(command->GetID_NAME_(), id))
    {
      return command;
    }
  }
  return nullptr;
}

template <class Command>
Command& CommandById(const std::vector<Command*>& list, const std::string& id, const char* aggregate)
{
  Command* command = FindCommand(list, id);
  if (command == nullptr)
  {
    FailOnId(id, Command::s_type, aggregate);
  }
  return *command;
}

/// The command at a place counted from 1.
template <class Command>
Command& CommandAt(const std::vector<Command*>& list, std::uint64_t index, const char* aggregate)
{
  RequireCommandIndex(index, list.size(), Command::s_type, aggregate);
  return *list[index - 1];
}

/// The command of a kind of which a job has exactly one.
template <class Command>
const Command& TheCommand(const std::vector<Command*>& list, const char* aggregate)
{
  RequireOneCommand(list.size(), Command::s_type, aggregate);
  return *list.front();
}

/// The one command if it has this id, else \p other.
template <class Command>
const Command& TheCommandById(const std::vector<Command*>& list, const std::string& id, const Command& other,
                              const char* aggregate)
{
  const Command& command = TheCommand(list, aggregate);
  return command.GetID_NAME_() == id ? command : other;
}

}  // namespace orvel::detail
