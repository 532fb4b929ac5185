/// \file
/// All names of a model, one map for each kind of name.
/// Thread safety: none; GetIdMap may add a map, so that one pool is used by one thread at a time.
#pragma once

#include <map>

#include "OrvelIds/KLV_IdMap.h"
#include "OrvelIds/KLV_IdType.h"
#include "OrvelIds/orvelids_export.h"

/// Owns the id maps of one model.
class ORVELIDS_EXPORT KLV_IdMapsPool
{
public:
  KLV_IdMapsPool() = default;
  KLV_IdMapsPool(const KLV_IdMapsPool& other) = delete;
  KLV_IdMapsPool& operator=(const KLV_IdMapsPool& other) = delete;
  ~KLV_IdMapsPool();

  /// Gives the map of a kind of name, an empty one when the kind is asked for the first time. Any number is
  /// a kind, one without an enumerator too.
  ///
  /// Ownership: the map stays with the pool; the reference holds as long as the pool does.
  KLV_IdMap& GetIdMap(KLV_IdType type);

private:
  std::map<KLV_IdType, KLV_IdMap> m_maps;
};
