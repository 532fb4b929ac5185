/// \file
/// A row of a table of the optimization database. A plain value; one object belongs to one thread at a time.
#pragma once

#include <cstdint>

/// What one table holds, as a row of the database. The library carries the record and reads no field of it; the names
/// of the fields are chosen here, and what they hold is for the modules that keep this table. \warning It has no
/// constructor: the fields of `XmlvtmInfoRecord()` are 0, those of a plain local variable are not set.
struct XmlvtmInfoRecord
{
  /// Describes the row to the database: a letter for each field and one that closes it.
  static constexpr const char* DB_FORMAT = "IIIb";

  std::int32_t command;  ///< The kind of command that the table serves.
  std::int32_t type;     ///< The `VtmType` of its values.
  std::int32_t count;    ///< How many rows it has.
};
