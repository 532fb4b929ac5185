#include "support/RecordingStorage.h"

#include <algorithm>
#include <iterator>

namespace
{

const char* NameOf(VtmType type)
{
  switch (type)
  {
    case vtmInteger: return "vtmInteger";
    case vtmDouble: return "vtmDouble";
    case vtmEnum: return "vtmEnum";
    case vtmString: return "vtmString";
    case vtmIntegerList: return "vtmIntegerList";
    case vtmDoubleList: return "vtmDoubleList";
    case vtmModelId: return "vtmModelId";
    default: return "another VtmType";
  }
}

}  // namespace

RecordingStorage::Keys& RecordingStorage::Command(const std::string& command, const std::string& id_name)
{
  if (Find(command, id_name) == nullptr)
  {
    AddSecondCommand(command, id_name);
  }
  auto& commands = m_commands[command];
  return std::find_if(commands.begin(), commands.end(), [&](const auto& one) { return one.id == id_name; })->keys;
}

void RecordingStorage::AddSecondCommand(const std::string& command, const std::string& id_name)
{
  m_commands[command].push_back({id_name, {}});
}

void RecordingStorage::RemoveCommands(const std::string& command)
{
  m_commands.erase(command);
}

bool RecordingStorage::HasCommand(const std::string& command, const std::string& id_name) const
{
  Record("HasCommand(" + command + ", " + id_name + ")");
  return Find(command, id_name) != nullptr;
}

std::uint64_t RecordingStorage::GetNumCommand(const std::string& command) const
{
  Record("GetNumCommand(" + command + ")");
  const auto found = m_commands.find(command);
  return found != m_commands.end() ? found->second.size() : 0;
}

std::uint64_t RecordingStorage::GetNumElements(const std::string& command, const std::string& id_name,
                                               const std::string& key) const
{
  Record("GetNumElements(" + command + ", " + id_name + ", " + key + ")");
  const auto* values = FindKey(command, id_name, key);
  return values != nullptr ? values->size() : 0;
}

bool RecordingStorage::HasElement(const std::string& command, const std::string& id_name, const std::string& key) const
{
  Record("HasElement(" + command + ", " + id_name + ", " + key + ")");
  return FindKey(command, id_name, key) != nullptr;
}

void RecordingStorage::GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const
{
  Record("GetCommandName(" + command + ", " + std::to_string(position) + ")");
  const auto found = m_commands.find(command);
  if (found == m_commands.end() || position >= found->second.size())
  {
    throw AbsentFromStorage("no command " + command + " at position " + std::to_string(position));
  }
  id_name = found->second[position].id;
}

void RecordingStorage::GetReference(const std::string& command, const std::string& id_name, const std::string& key,
                                    std::uint64_t index, std::string& target_id_name) const
{
  Record("GetReference(" + command + ", " + id_name + ", " + key + ", " + std::to_string(index) + ")");
  Ref reference;
  Read(command, id_name, key, index, reference);
  target_id_name = reference.id;
}

void RecordingStorage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                std::uint64_t index, VtmType type, std::vector<double>& value) const
{
  RecordValue(command, id_name, key, index, type, "vector<double>");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                std::uint64_t index, VtmType type, std::vector<int>& value) const
{
  RecordValue(command, id_name, key, index, type, "vector<int>");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                std::uint64_t index, VtmType type, std::string& value) const
{
  RecordValue(command, id_name, key, index, type, "string");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                std::uint64_t index, VtmType type, double& value) const
{
  RecordValue(command, id_name, key, index, type, "double");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                std::uint64_t index, VtmType type, int& value) const
{
  RecordValue(command, id_name, key, index, type, "int");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key,
                                    std::uint64_t index, VtmType type, int& value) const
{
  Record("GetEnumValue(" + command + ", " + id_name + ", " + key + ", " + std::to_string(index) + ", " + NameOf(type) +
         ")");
  Read(command, id_name, key, index, value);
}

void RecordingStorage::RefuseToWrite()
{
  throw std::logic_error("the library wrote to a storage");
}

void RecordingStorage::Record(const std::string& call) const
{
  m_calls.push_back(call);
  if (call == m_failing_call)
  {
    throw FailedOnDemand(call);
  }
}

void RecordingStorage::RecordValue(const std::string& command, const std::string& id_name, const std::string& key,
                                   std::uint64_t index, VtmType type, const char* output) const
{
  Record("GetValue(" + command + ", " + id_name + ", " + key + ", " + std::to_string(index) + ", " + NameOf(type) +
         ", " + output + ")");
}

const RecordingStorage::StoredCommand* RecordingStorage::Find(const std::string& command,
                                                              const std::string& id_name) const
{
  const auto found = m_commands.find(command);
  if (found == m_commands.end())
  {
    return nullptr;
  }
  for (const StoredCommand& one : found->second)
  {
    if (one.id == id_name)
    {
      return &one;
    }
  }
  return nullptr;
}

const std::vector<StoredValue>* RecordingStorage::FindKey(const std::string& command, const std::string& id_name,
                                                          const std::string& key) const
{
  const StoredCommand* one = Find(command, id_name);
  if (one == nullptr)
  {
    return nullptr;
  }
  const auto found = one->keys.find(key);
  return found != one->keys.end() ? &found->second : nullptr;
}

template <class Value>
void RecordingStorage::Read(const std::string& command, const std::string& id_name, const std::string& key,
                            std::uint64_t index, Value& value) const
{
  const auto* values = FindKey(command, id_name, key);
  if (values == nullptr && m_keep_absent)
  {
    return;
  }
  const std::string place = command + ", " + id_name + ", " + key + ", " + std::to_string(index);
  if (values == nullptr || index < 1 || index > values->size())
  {
    throw AbsentFromStorage(place);
  }
  const auto* stored = std::get_if<Value>(&(*values)[index - 1]);
  if (stored == nullptr)
  {
    throw std::logic_error("read as another type than it was stored: " + place);
  }
  value = *stored;
}

bool CountsOrNamesCommands(const std::string& call)
{
  return call.rfind("GetNumCommand(", 0) == 0 || call.rfind("GetCommandName(", 0) == 0;
}

std::vector<std::string> WalkOver(const RecordingStorage& storage)
{
  std::vector<std::string> walk;
  std::copy_if(storage.Calls().begin(), storage.Calls().end(), std::back_inserter(walk), CountsOrNamesCommands);
  return walk;
}
