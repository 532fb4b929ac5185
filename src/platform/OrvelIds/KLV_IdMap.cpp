#include "OrvelIds/KLV_IdMap.h"

KLV_IdMap::~KLV_IdMap() = default;

bool KLV_IdMap::Has(const std::string& id) const
{
  return m_numbers.count(id) != 0;
}

std::int32_t KLV_IdMap::Lookup(const std::string& id)
{
  ++m_lookup_counts[id];
  const auto found = m_numbers.find(id);
  return found == m_numbers.end() ? -1 : found->second;
}

std::int32_t KLV_IdMap::Add(const std::string& id)
{
  const auto next_number = static_cast<std::int32_t>(m_numbers.size());
  return m_numbers.emplace(id, next_number).first->second;
}

std::uint64_t KLV_IdMap::LookupCount(const std::string& id) const
{
  const auto found = m_lookup_counts.find(id);
  return found == m_lookup_counts.end() ? 0 : found->second;
}
