#include "OrvelIds/KLV_IdMapsPool.h"

KLV_IdMapsPool::~KLV_IdMapsPool() = default;

KLV_IdMap& KLV_IdMapsPool::GetIdMap(KLV_IdType type)
{
  return m_maps[type];
}
