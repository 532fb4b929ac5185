/// \file
/// Takes bytes as a small program that builds parsed commands, and loads what comes of it. `./run fuzz` runs it.
#include "OrvelCmdEngine/OrvelCmdContainer.h"
#include "OrvelCmdEngine/OrvelCmdItemError.h"
#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelUtilities/KLV_LogMacros.h"
#include "support/OpenDatabase.h"
#include "support/parsed_commands.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace
{

class Program
{
public:
  Program(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

  bool HasEnded() const { return m_next == m_end; }

  std::uint8_t Byte() { return HasEnded() ? 0 : *m_next++; }

  int Number() { return static_cast<int>(Byte()) | static_cast<int>(Byte()) << 8; }

  // Names that come again, so that commands find each other, and now and then any bytes.
  std::string Text()
  {
    const std::uint8_t length = Byte();
    if (length < 200)
    {
      return std::string(1, static_cast<char>('a' + length % 8));
    }
    std::string text;
    for (int i = 200; i < length; ++i)
    {
      text += static_cast<char>(Byte());
    }
    return text;
  }

private:
  const std::uint8_t* m_next;
  const std::uint8_t* m_end;
};

class Builder
{
public:
  explicit Builder(OrvelCmdContainer& container) : m_container(container) {}

  // The least that loads, so that a program need not find it before anything can be linked and checked.
  void BeginWithJob()
  {
    OrvelCmd& task = Add(OrvelCmdDefs::OPTIMIZE, "a");
    Add(OrvelCmdDefs::MODEL_INPUT, "a");
    task.AddReferenceItem(OrvelCmdItemDefs::OBJ_FUNC, Add(OrvelCmdDefs::OBJ_FUNC, "a"));
    task.AddReferenceItem(OrvelCmdItemDefs::DV, Add(OrvelCmdDefs::DV, "a"));
    task.AddReferenceItem(OrvelCmdItemDefs::STOP, Add(OrvelCmdDefs::STOP, "a"));
  }

  void Carry(Program& program)
  {
    const std::uint8_t operation = program.Byte() % 10;
    if (operation < 2 || m_commands.empty())
    {
      const auto kind = static_cast<OrvelCmdDefs::Cmd>(program.Byte() % OrvelCmdDefs::CMD_NONE);
      Add(kind, program.Text());
      return;
    }
    OrvelCmd& command = *m_commands[program.Byte() % m_commands.size()];
    const auto item = static_cast<OrvelCmdItemDefs::CmdItem>(program.Byte() % OrvelCmdItemDefs::ITEM_NONE);
    switch (operation)
    {
      case 2: command.AddStringItem(item, program.Text()); break;
      case 3: command.AddIntegerItem(item, program.Number()); break;
      case 4: command.AddDoubleItem(item, program.Number() / 7.0); break;
      case 5: command.AddEnumItem(item, static_cast<OrvelCmdItemDefs::EnumValue>(program.Number())); break;
      case 6: command.AddStringListItem(item, {program.Text(), program.Text()}); break;
      case 7: command.AddIntegerSetItem(item, {program.Number(), program.Number()}); break;
      case 8: command.AddReferenceItem(item, *m_commands[program.Byte() % m_commands.size()]); break;
      default: Remove(command, program.Byte()); break;
    }
  }

private:
  OrvelCmd& Add(OrvelCmdDefs::Cmd kind, const std::string& id)
  {
    m_commands.push_back(&AddParsed(m_container, kind, id));
    return *m_commands.back();
  }

  void Remove(OrvelCmd& command, std::uint8_t position)
  {
    const OrvelCmdDefs::Cmd kind = command.GetCmd();
    const auto place = std::find_if(m_container.GetCommandBegin(kind), m_container.GetCommandEnd(kind),
                                    [&](const auto& one) { return one.get() == &command; });
    if (position % 4 != 0 || place == m_container.GetCommandEnd(kind))
    {
      return;
    }
    m_commands.erase(std::find(m_commands.begin(), m_commands.end(), &command));
    m_container.RemoveCommand(kind, static_cast<std::uint64_t>(place - m_container.GetCommandBegin(kind)));
  }

  OrvelCmdContainer& m_container;
  std::vector<OrvelCmd*> m_commands;
};

// The ends that are allowed; everything else stops the fuzzer.
template <class Action>
void Try(Action action)
{
  try
  {
    action();
  }
  catch (const KLV_Failure&)
  {
  }
  catch (const OrvelCmdItemError&)
  {
  }
}

template <class Aggregate>
void Load(OrvelParfileStorageCmdContainer& storage)
{
  Aggregate parfile(storage);
  Try([&] {
    parfile.Load();
    Try([&] { parfile.ValidateModelIds(); });
    orvel::ForEachCommand(parfile, [](const auto& command) { command.ToString(); });
  });
}

void AskForKey(const OrvelParfileStorageCmdContainer& storage, const std::string& kind, const std::string& id,
               const std::string& key)
{
  Try([&] { storage.GetNumElements(kind, id, key); });
  Try([&] { storage.HasElement(kind, id, key); });
  for (const std::uint64_t index : {0, 1, 2, 1000})
  {
    int number = 0;
    double real = 0;
    std::string text;
    std::vector<int> list;
    std::vector<double> reals;
    Try([&] { storage.GetValue(kind, id, key, index, vtmInteger, number); });
    Try([&] { storage.GetEnumValue(kind, id, key, index, vtmEnum, number); });
    Try([&] { storage.GetValue(kind, id, key, index, vtmDouble, real); });
    Try([&] { storage.GetValue(kind, id, key, index, vtmString, text); });
    Try([&] { storage.GetValue(kind, id, key, index, vtmIntegerList, list); });
    Try([&] { storage.GetValue(kind, id, key, index, vtmDoubleList, reals); });
    Try([&] { storage.GetReference(kind, id, key, index, text); });
  }
}

void AskForCommand(const OrvelParfileStorageCmdContainer& storage, const orvel::schema::Command& command,
                   std::uint64_t position)
{
  const std::string kind(command.kind);
  std::string id;
  Try([&] { storage.GetCommandName(kind, position, id); });
  Try([&] { storage.HasCommand(kind, id); });
  AskForKey(storage, kind, id, "NO_KEY_");
  AskForKey(storage, kind, "nobody", "TYPE_");
  for (const orvel::schema::Field& field : command.fields)
  {
    AskForKey(storage, kind, id, std::string(field.key));
  }
}

// The first and the last command of each kind that has any: asking for the others takes most of the time and finds
// the same.
void AskForAll(const OrvelParfileStorageCmdContainer& storage)
{
  for (const orvel::schema::Command& command : orvel::schema::Commands())
  {
    const std::uint64_t count = storage.GetNumCommand(std::string(command.kind));
    if (count > 0)
    {
      AskForCommand(storage, command, 0);
      AskForCommand(storage, command, count - 1);
    }
    std::string id;
    Try([&] { storage.GetCommandName(std::string(command.kind), count, id); });
  }
  AskForKey(storage, "NO_KIND_", "nobody", "TYPE_");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  KLV_LogMacros::SetSink([](const KLV_LogRecord&) {});
  OpenDatabase database;
  for (const KLV_IdType type : {KLV_IdType::element_group, KLV_IdType::node_group, KLV_IdType::face_group})
  {
    database.Add(type, {"a", "b"});
  }
  OrvelCmdContainer container;
  Builder builder(container);
  Program program(data, size);
  if (program.Byte() % 4 != 0)
  {
    builder.BeginWithJob();
  }
  while (!program.HasEnded())
  {
    Try([&] { builder.Carry(program); });  // some items are refused
  }
  OrvelParfileStorageCmdContainer storage(container);
  AskForAll(storage);
  Load<Gyre_Parfile>(storage);
  Load<Smooth_Parfile>(storage);
  return 0;
}
