/// \file
/// A row of a table of the optimization database. A plain value; one object belongs to one thread at a time.
#pragma once

#include <cstdint>

/// The name of a command, as a row of the database. The library carries the record and reads no field of it; the names
/// of the fields are chosen here, and what they hold is for the modules that keep this table.
struct XmlvtmIdname
{
  /// Describes the row to the database: a letter for each field and one that closes it.
  static constexpr const char* DB_FORMAT = "IIIIb";

  /// Every field is -1.
  XmlvtmIdname() = default;

  /// One argument for each field, in their order.
  XmlvtmIdname(int command_, int position_, int name_begin_, int name_length_)
    : command(command_), position(position_), name_begin(name_begin_), name_length(name_length_)
  {
  }

  std::int32_t command = -1;      ///< The kind of the command.
  std::int32_t position = -1;     ///< Its place among the commands of its kind.
  std::int32_t name_begin = -1;   ///< Where its name begins in the table of characters.
  std::int32_t name_length = -1;  ///< How many characters its name has.
};
