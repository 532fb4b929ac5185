/// \file
/// The optimization database, as far as the names of the model go.
/// Thread safety: none; one database is used by one thread at a time.
#pragma once

#include "OrvelDbFactory/orveldbfactory_export.h"
#include "OrvelIds/KLV_IdMapsPool.h"

/// An optimization database in memory. A new one is empty: no name of the model is known.
class ORVELDBFACTORY_EXPORT KLV_Database
{
public:
  KLV_Database() = default;
  KLV_Database(const KLV_Database& other) = delete;
  KLV_Database& operator=(const KLV_Database& other) = delete;
  ~KLV_Database();

  /// Gives the id maps of the model.
  ///
  /// Ownership: the pool stays with the database; the reference holds as long as the database does.
  KLV_IdMapsPool& GetIdMapsPool() noexcept;

private:
  KLV_IdMapsPool m_id_maps_pool;
};
