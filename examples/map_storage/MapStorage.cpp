#include "MapStorage.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <iterator>

namespace
{

[[noreturn]] void Fail(const std::string& text)
{
  throw KLV_Failure(text, "[%T|%n|%P|example|MapStorage] ");
}

}  // namespace

const std::vector<MapStorage::Value>* MapStorage::FindValues(Name command, Name id, Name key) const
{
  if (!HasCommand(command, id))
  {
    return nullptr;
  }
  const Keys& keys = KeysOf(command, id);
  const auto found = keys.find(key);
  return found != keys.end() ? &found->second : nullptr;
}

MapStorage::Keys& MapStorage::KeysOf(Name command, Name id) const
{
  if (!HasCommand(command, id))
  {
    Fail("There is no command " + command + " " + id);
  }
  return m_kinds[command][id];
}

// Indices count from 1, so that 0 wraps to a number that is out of range too.
MapStorage::Value& MapStorage::ValueAt(Name command, Name id, Name key, std::uint64_t index) const
{
  if (index - 1 >= GetNumElements(command, id, key))
  {
    Fail("There is no such value of " + key + " in " + command + " " + id);
  }
  return KeysOf(command, id)[key][index - 1];
}

template <class Item>
const Item& MapStorage::Read(Name command, Name id, Name key, std::uint64_t index) const
{
  const Item* item = std::get_if<Item>(&ValueAt(command, id, key, index));
  if (item == nullptr)
  {
    Fail("The values of " + key + " in " + command + " " + id + " are of another type");
  }
  return *item;
}

bool MapStorage::HasCommand(Name command, Name id) const
{
  const auto kind = m_kinds.find(command);
  return kind != m_kinds.end() && kind->second.count(id) > 0;
}

std::uint64_t MapStorage::GetNumCommand(Name command) const
{
  const auto kind = m_kinds.find(command);
  return kind != m_kinds.end() ? kind->second.size() : 0;
}

std::uint64_t MapStorage::GetNumElements(Name command, Name id, Name key) const
{
  const auto* values = FindValues(command, id, key);
  return values != nullptr ? values->size() : 0;
}

bool MapStorage::HasElement(Name command, Name id, Name key) const
{
  return FindValues(command, id, key) != nullptr;
}

void MapStorage::GetCommandName(Name command, std::uint64_t position, std::string& id) const
{
  if (position >= GetNumCommand(command))
  {
    Fail("There is no command " + command + " at position " + std::to_string(position));
  }
  id = std::next(m_kinds[command].begin(), static_cast<std::ptrdiff_t>(position))->first;
}

void MapStorage::GetReference(Name command, Name id, Name key, std::uint64_t index, std::string& target_id) const
{
  target_id = Read<Reference>(command, id, key, index).id;
}

void MapStorage::DeleteValues(Name command, Name id, Name key)
{
  KeysOf(command, id).erase(key);
}

void MapStorage::AddCommand(Name command, Name id) const
{
  if (!m_kinds[command].try_emplace(id).second)
  {
    Fail("There is a command " + command + " " + id + " already");
  }
}

void MapStorage::AddReference(Name command, Name id, Name key, Name target_command, Name target_id) const
{
  KeysOf(target_command, target_id);  // fails for an absent target
  KeysOf(command, id)[key].emplace_back(Reference{target_id});
}

// The overloads. The compiler knows the type of a value, so that no VtmType is needed.
// clang-format off
using Index = std::uint64_t;
void MapStorage::GetValue(Name c, Name i, Name k, Index n, VtmType, std::vector<double>& v) const { v = Read<std::vector<double>>(c, i, k, n); }
void MapStorage::GetValue(Name c, Name i, Name k, Index n, VtmType, std::vector<int>& v) const { v = Read<std::vector<int>>(c, i, k, n); }
void MapStorage::GetValue(Name c, Name i, Name k, Index n, VtmType, std::string& v) const { v = Read<std::string>(c, i, k, n); }
void MapStorage::GetValue(Name c, Name i, Name k, Index n, VtmType, double& v) const { v = Read<double>(c, i, k, n); }
void MapStorage::GetValue(Name c, Name i, Name k, Index n, VtmType, int& v) const { v = Read<int>(c, i, k, n); }
void MapStorage::GetEnumValue(Name c, Name i, Name k, Index n, VtmType, int& v) const { v = Read<int>(c, i, k, n); }

void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const std::vector<double>& v) const { ValueAt(c, i, k, n) = v; }
void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const std::vector<int>& v) const { ValueAt(c, i, k, n) = v; }
void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const char& v) const { ValueAt(c, i, k, n) = std::string(1, v); }
void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const std::string& v) const { ValueAt(c, i, k, n) = v; }
void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const double& v) const { ValueAt(c, i, k, n) = v; }
void MapStorage::SetValue(Name c, Name i, Name k, int n, VtmType, const int& v) const { ValueAt(c, i, k, n) = v; }

void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const std::vector<double>& v) const { KeysOf(c, i)[k].emplace_back(v); }
void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const std::vector<int>& v) const { KeysOf(c, i)[k].emplace_back(v); }
void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const char& v) const { KeysOf(c, i)[k].emplace_back(std::string(1, v)); }
void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const std::string& v) const { KeysOf(c, i)[k].emplace_back(v); }
void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const double& v) const { KeysOf(c, i)[k].emplace_back(v); }
void MapStorage::AddValue(Name c, Name i, Name k, VtmType, const int& v) const { KeysOf(c, i)[k].emplace_back(v); }
// clang-format on
