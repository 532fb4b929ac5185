/// \file
/// Parsed commands as an engine would make them, and what a storage reads from one command. One thread at a time.
#pragma once

#include "OrvelCmdEngine/OrvelCmdContainer.h"
#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "support/command_ids.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// Adds a command that has an `ID_NAME` and nothing else.
inline OrvelCmd& AddParsed(OrvelCmdContainer& container, OrvelCmdDefs::Cmd kind, const std::string& id)
{
  OrvelCmd& command = container.AddCommand(kind);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, id);
  return command;
}

/// The engine knows most enumerators by their number alone.
inline OrvelCmdItemDefs::EnumValue Enumerator(int number)
{
  return static_cast<OrvelCmdItemDefs::EnumValue>(number);
}

/// The reads of one command. Each output starts with something that cannot be a value: -4711, -47.11, "kept",
/// {-47, -11} or {-4.7, -1.1}.
class KeysOf
{
public:
  KeysOf(const OrvelParfileStorage& storage, std::string kind, std::string id)
    : m_storage(storage), m_kind(std::move(kind)), m_id(std::move(id))
  {
  }

  bool Has(const std::string& key) const { return m_storage.HasElement(m_kind, m_id, key); }
  std::uint64_t Count(const std::string& key) const { return m_storage.GetNumElements(m_kind, m_id, key); }

  int Integer(const std::string& key, std::uint64_t index = 1, VtmType type = vtmInteger) const
  {
    return Value(key, index, type, -4711);
  }
  double Double(const std::string& key, std::uint64_t index = 1, VtmType type = vtmDouble) const
  {
    return Value(key, index, type, -47.11);
  }
  std::string Text(const std::string& key, std::uint64_t index = 1, VtmType type = vtmString) const
  {
    return Value(key, index, type, std::string("kept"));
  }
  std::vector<int> Integers(const std::string& key, std::uint64_t index = 1, VtmType type = vtmIntegerList) const
  {
    return Value(key, index, type, std::vector<int>{-47, -11});
  }
  std::vector<double> Doubles(const std::string& key, std::uint64_t index = 1, VtmType type = vtmDoubleList) const
  {
    return Value(key, index, type, std::vector<double>{-4.7, -1.1});
  }
  int Enumerator(const std::string& key, std::uint64_t index = 1, VtmType type = vtmEnum) const
  {
    int value = -4711;
    m_storage.GetEnumValue(m_kind, m_id, key, index, type, value);
    return value;
  }
  std::string Reference(const std::string& key, std::uint64_t index = 1) const
  {
    std::string target = "kept";
    m_storage.GetReference(m_kind, m_id, key, index, target);
    return target;
  }

private:
  template <class T>
  T Value(const std::string& key, std::uint64_t index, VtmType type, T value) const
  {
    m_storage.GetValue(m_kind, m_id, key, index, type, value);
    return value;
  }

  const OrvelParfileStorage& m_storage;
  std::string m_kind;
  std::string m_id;
};

inline std::string NameAt(const OrvelParfileStorage& storage, const std::string& kind, std::uint64_t position)
{
  std::string name = "kept";
  storage.GetCommandName(kind, position, name);
  return name;
}

/// All commands of a kind in the order of their positions.
inline std::vector<std::string> NamesOf(const OrvelParfileStorage& storage, const std::string& kind)
{
  std::vector<std::string> names;
  for (std::uint64_t position = 0; position < storage.GetNumCommand(kind); ++position)
  {
    names.push_back(NameAt(storage, kind, position));
  }
  return names;
}
