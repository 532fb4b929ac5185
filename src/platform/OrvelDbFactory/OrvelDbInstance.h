/// \file
/// The one database that a process works on.
/// Thread safety: none; assign the pointer while nothing else reads it.
#pragma once

#include "OrvelDbFactory/KLV_Database.h"
#include "OrvelDbFactory/orveldbfactory_export.h"

/// Keeps the process-wide database.
class ORVELDBFACTORY_EXPORT OrvelDbInstance
{
public:
  OrvelDbInstance() = delete;

  /// The database of the process; null until someone assigns one.
  ///
  /// Ownership: none; who assigns a database sets the pointer back to null before that database ends.
  static KLV_Database* s_Singleton;
};
