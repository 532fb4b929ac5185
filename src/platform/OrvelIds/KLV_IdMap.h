/// \file
/// The names of one kind that a model knows.
/// Thread safety: none; Lookup changes the map, so that one map is used by one thread at a time.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "OrvelIds/orvelids_export.h"

/// Maps ids to the numbers of the order in which they were added, and counts who asks for which.
class ORVELIDS_EXPORT KLV_IdMap
{
public:
  /// No ids.
  KLV_IdMap() = default;

  /// Copies the ids and the counts of their look-ups.
  KLV_IdMap(const KLV_IdMap& other) = default;

  /// Takes the ids and the counts of their look-ups of the other map.
  KLV_IdMap& operator=(const KLV_IdMap& other) = default;

  virtual ~KLV_IdMap();

  /// Returns: whether `id` has been added. Counts nothing.
  virtual bool Has(const std::string& id) const;

  /// Gives the number of `id` and counts the look-up, that of an unknown id too.
  ///
  /// Returns: the number that Add gave, -1 when `id` has not been added.
  virtual std::int32_t Lookup(const std::string& id);

  /// Makes `id` known.
  ///
  /// Returns: its number: 0 for the first id, 1 for the second and so on; an id that is known already keeps
  /// its number and gives it again.
  std::int32_t Add(const std::string& id);

  /// Returns: how often Lookup was asked for `id`, whether it was known or not.
  std::uint64_t LookupCount(const std::string& id) const;

private:
  std::unordered_map<std::string, std::int32_t> m_numbers;
  std::unordered_map<std::string, std::uint64_t> m_lookup_counts;
};
