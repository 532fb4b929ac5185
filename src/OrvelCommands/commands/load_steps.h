/// \file
/// The steps by which a command loads its keys from a storage. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace orvel::detail
{

/// Reads the keys of one command, one call for one key. Whatever the storage throws passes; members read before then
/// keep what they got.
class KeyLoader
{
public:
  /// Not owned: all three must outlive the loader.
  KeyLoader(const OrvelParfileStorage& storage, const std::string& command, const std::string& id)
    : m_storage(storage), m_command(command), m_id(id)
  {
  }

  /// Reads a key that is always there, without asking.
  template <class Value>
  void Always(const char* key, VtmType type, Value& value) const
  {
    ReadValue(Key(key), 1, type, value);
  }

  /// Reads a key if the storage has it.
  template <class Value>
  void Optional(const char* key, VtmType type, bool& has, Value& value) const
  {
    has = m_storage.HasElement(m_command, m_id, Key(key));
    if (has)
    {
      ReadValue(m_key, 1, type, value);
    }
  }

  /// Appends all values of a key.
  template <class Value>
  void Repeated(const char* key, VtmType type, std::uint64_t& count, std::vector<Value>& values) const
  {
    count = m_storage.GetNumElements(m_command, m_id, Key(key));
    for (std::uint64_t index = 1; index <= count; ++index)
    {
      Value value{};
      ReadValue(m_key, index, type, value);
      values.push_back(std::move(value));
    }
  }

  /// Reads an enumerator that is always there. Any number is kept.
  template <class Enumeration>
  void AlwaysEnum(const char* key, Enumeration& value) const
  {
    value = ReadEnum<Enumeration>(Key(key), 1);
  }

  /// Reads an enumerator if the storage has it.
  template <class Enumeration>
  void OptionalEnum(const char* key, bool& has, Enumeration& value) const
  {
    has = m_storage.HasElement(m_command, m_id, Key(key));
    if (has)
    {
      value = ReadEnum<Enumeration>(m_key, 1);
    }
  }

  /// Appends all enumerators of a key.
  template <class Enumeration>
  void RepeatedEnum(const char* key, std::uint64_t& count, std::vector<Enumeration>& values) const
  {
    count = m_storage.GetNumElements(m_command, m_id, Key(key));
    for (std::uint64_t index = 1; index <= count; ++index)
    {
      values.push_back(ReadEnum<Enumeration>(m_key, index));
    }
  }

private:
  // A storage takes the key as a text. One text serves all calls, so that long keys do not cost an allocation for each.
  const std::string& Key(const char* key) const { return m_key = key; }

  template <class Value>
  void ReadValue(const std::string& key, std::uint64_t index, VtmType type, Value& value) const
  {
    m_storage.GetValue(m_command, m_id, key, index, type, value);
  }

  template <class Enumeration>
  Enumeration ReadEnum(const std::string& key, std::uint64_t index) const
  {
    int number = 0;
    m_storage.GetEnumValue(m_command, m_id, key, index, vtmEnum, number);
    return static_cast<Enumeration>(number);
  }

  const OrvelParfileStorage& m_storage;
  const std::string& m_command;
  const std::string& m_id;
  mutable std::string m_key;
};

}  // namespace orvel::detail
