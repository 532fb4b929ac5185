#include "OrvelDbFactory/KLV_Database.h"

KLV_Database::~KLV_Database() = default;

KLV_IdMapsPool& KLV_Database::GetIdMapsPool() noexcept
{
  return m_id_maps_pool;
}
