/// \file
/// What the elements of a key are in a parameter file. Constants only.
#pragma once

#include "OrvelCommands/foundation/VtmType.h"

#include <hdf5.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// How a value looks, whatever its width in the file.
enum class ValueShape
{
  Integer,
  Number,
  Text,
  IntegerList,
  NumberList,
  Reference
};

/// One type of element. There is one object for each, so that types compare by address.
struct StoredType
{
  std::string_view name;  ///< As a job description has it, "integer".
  ValueShape shape;
  VtmType written_as;  ///< vtmUnknown for what the library never writes; it stands in files of other programs.
  hid_t (*make)();     ///< The HDF5 type, which the caller closes.
};

/// \name The types that the library writes
/// @{
const StoredType& IntegerType();
const StoredType& NumberType();
const StoredType& TextType();
const StoredType& IntegerListType();
const StoredType& NumberListType();
const StoredType& ReferenceType();
/// @}

/// The type in which the library keeps values of this sort.
const StoredType& StoredTypeOf(VtmType type);

/// The type with this name, null when there is none.
const StoredType* FindStoredType(std::string_view name);

/// The type of the elements of a dataset, null for one that is none of ours.
const StoredType* ClassifyType(hid_t type);

/// Whether two types hold the same numbers, in whatever order of bytes; for other than numbers, whether they are one.
bool AreSameButForByteOrder(const StoredType& one, const StoredType& other);

/// \name Whether a type of numbers holds this one, a float rounded
/// @{
bool Holds(const StoredType& type, std::int64_t value);
bool Holds(const StoredType& type, double value);
/// @}

/// What HDF5 calls a type, for messages: "a compound of 12 bytes".
std::string DescribeType(hid_t type);

/// The names of all types.
std::vector<std::string> StoredTypeNames();
