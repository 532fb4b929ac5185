/// \file
/// A row of a table of the optimization database. A plain value; one object belongs to one thread at a time.
#pragma once

#include <cstdint>

/// A reference between two commands, as a row of the database. The library carries the record and reads no field of it;
/// the names of the fields are chosen here, and what they hold is for the modules that keep this table.
struct XmlvtmReference
{
  /// Describes the row to the database: a letter for each field and one that closes it.
  static constexpr const char* DB_FORMAT = "IIIIIb";

  /// Every field is -1.
  XmlvtmReference() = default;

  /// One argument for each field, in their order.
  XmlvtmReference(int source_command_, int source_position_, int item_, int target_command_, int target_position_)
    : source_command(source_command_),
      source_position(source_position_),
      item(item_),
      target_command(target_command_),
      target_position(target_position_)
  {
  }

  std::int32_t source_command = -1;   ///< The kind of the command that refers.
  std::int32_t source_position = -1;  ///< Its place among the commands of its kind.
  std::int32_t item = -1;             ///< The kind of item that holds the reference.
  std::int32_t target_command = -1;   ///< The kind of the command referred to.
  std::int32_t target_position = -1;  ///< Its place among the commands of its kind.
};
