/// \file
/// A row of a table of the optimization database. A plain value; one object belongs to one thread at a time.
#pragma once

#include <cstdint>

/// A name that a command takes from the model, as a row of the database. The library carries the record and reads no
/// field of it; the names of the fields are chosen here, and what they hold is for the modules that keep this table.
struct XmlvtmModelId
{
  /// Describes the row to the database: a letter for each field and one that closes it.
  static constexpr const char* DB_FORMAT = "IIIb";

  /// Every field is -1.
  XmlvtmModelId() = default;

  /// One argument for each field, in their order.
  XmlvtmModelId(int command_, int item_, int model_id_) : command(command_), item(item_), model_id(model_id_) {}

  std::int32_t command = -1;   ///< The row of the command in the table of names.
  std::int32_t item = -1;      ///< The kind of item that holds the name.
  std::int32_t model_id = -1;  ///< The number of the name in the id map of its kind.
};
