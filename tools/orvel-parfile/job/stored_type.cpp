#include "stored_type.h"

#include "support/hdf5_handle.h"

#include <array>
#include <cmath>

namespace
{

hid_t SequenceOf(hid_t element)
{
  return H5Tvlen_create(element);
}

hid_t VariableLengthString(H5T_cset_t characters)
{
  const hid_t type = H5Tcopy(H5T_C_S1);
  H5Tset_size(type, H5T_VARIABLE);
  H5Tset_cset(type, characters);
  return type;
}

// The six of the library come first. The others are what programs write that do not know the layout.
const std::array<StoredType, 28>& AllTypes()
{
  static const std::array<StoredType, 28> types = {{
    {"integer", ValueShape::Integer, vtmInteger, [] { return H5Tcopy(H5T_NATIVE_INT32); }},
    {"number", ValueShape::Number, vtmDouble, [] { return H5Tcopy(H5T_NATIVE_DOUBLE); }},
    {"text", ValueShape::Text, vtmString, [] { return SequenceOf(H5T_C_S1); }},
    {"integers", ValueShape::IntegerList, vtmIntegerList, [] { return SequenceOf(H5T_NATIVE_INT32); }},
    {"numbers", ValueShape::NumberList, vtmDoubleList, [] { return SequenceOf(H5T_NATIVE_DOUBLE); }},
    {"reference", ValueShape::Reference, vtmReference, [] { return H5Tcopy(H5T_STD_REF_OBJ); }},
    {"int8", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I8LE); }},
    {"int16", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I16LE); }},
    {"int32", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I32LE); }},
    {"int64", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I64LE); }},
    {"uint8", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U8LE); }},
    {"uint16", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U16LE); }},
    {"uint32", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U32LE); }},
    {"uint64", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U64LE); }},
    {"int8be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I8BE); }},
    {"int16be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I16BE); }},
    {"int32be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I32BE); }},
    {"int64be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_I64BE); }},
    {"uint8be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U8BE); }},
    {"uint16be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U16BE); }},
    {"uint32be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U32BE); }},
    {"uint64be", ValueShape::Integer, vtmUnknown, [] { return H5Tcopy(H5T_STD_U64BE); }},
    {"float32", ValueShape::Number, vtmUnknown, [] { return H5Tcopy(H5T_IEEE_F32LE); }},
    {"float64", ValueShape::Number, vtmUnknown, [] { return H5Tcopy(H5T_IEEE_F64LE); }},
    {"float32be", ValueShape::Number, vtmUnknown, [] { return H5Tcopy(H5T_IEEE_F32BE); }},
    {"float64be", ValueShape::Number, vtmUnknown, [] { return H5Tcopy(H5T_IEEE_F64BE); }},
    {"string", ValueShape::Text, vtmUnknown, [] { return VariableLengthString(H5T_CSET_ASCII); }},
    {"utf8_string", ValueShape::Text, vtmUnknown, [] { return VariableLengthString(H5T_CSET_UTF8); }},
  }};
  return types;
}

// H5Tequal does not look at the character set of a string, but HDF5 does not convert from one set to another.
bool HaveSameCharacters(hid_t one, hid_t other)
{
  return H5Tget_class(one) != H5T_STRING || H5Tget_cset(one) == H5Tget_cset(other);
}

std::string ClassName(H5T_class_t type_class)
{
  switch (type_class)
  {
    case H5T_INTEGER: return "whole number";
    case H5T_FLOAT: return "number";
    case H5T_STRING: return "string";
    case H5T_BITFIELD: return "bit field";
    case H5T_OPAQUE: return "opaque value";
    case H5T_COMPOUND: return "compound";
    case H5T_REFERENCE: return "reference";
    case H5T_ENUM: return "enumeration of HDF5";
    case H5T_ARRAY: return "array";
    default: return "value of an unknown type";
  }
}

}  // namespace

const StoredType& IntegerType()
{
  return AllTypes()[0];
}

const StoredType& NumberType()
{
  return AllTypes()[1];
}

const StoredType& TextType()
{
  return AllTypes()[2];
}

const StoredType& IntegerListType()
{
  return AllTypes()[3];
}

const StoredType& NumberListType()
{
  return AllTypes()[4];
}

const StoredType& ReferenceType()
{
  return AllTypes()[5];
}

const StoredType& StoredTypeOf(VtmType type)
{
  switch (type)
  {
    case vtmInteger:
    case vtmEnum: return IntegerType();
    case vtmDouble: return NumberType();
    case vtmIntegerList: return IntegerListType();
    case vtmDoubleList: return NumberListType();
    case vtmReference: return ReferenceType();
    default: return TextType();
  }
}

const StoredType* FindStoredType(std::string_view name)
{
  for (const StoredType& type : AllTypes())
  {
    if (type.name == name)
    {
      return &type;
    }
  }
  return nullptr;
}

const StoredType* ClassifyType(hid_t type)
{
  for (const StoredType& candidate : AllTypes())
  {
    const hid_t wanted = candidate.make();
    const bool same = H5Tequal(type, wanted) > 0 && HaveSameCharacters(type, wanted);
    H5Tclose(wanted);
    if (same)
    {
      return &candidate;
    }
  }
  return nullptr;
}

bool AreSameButForByteOrder(const StoredType& one, const StoredType& other)
{
  const bool are_numbers = one.shape == ValueShape::Integer || one.shape == ValueShape::Number;
  if (&one == &other || one.shape != other.shape || !are_numbers)
  {
    return &one == &other;
  }
  const Hdf5Handle first(one.make(), H5Tclose);
  const Hdf5Handle second(other.make(), H5Tclose);
  return H5Tget_size(first.Id()) == H5Tget_size(second.Id()) &&
         (one.shape == ValueShape::Number || H5Tget_sign(first.Id()) == H5Tget_sign(second.Id()));
}

bool Holds(const StoredType& type, double value)
{
  const hid_t stored = type.make();
  const bool is_narrow = H5Tget_size(stored) == sizeof(float);
  H5Tclose(stored);
  return !is_narrow || !std::isfinite(value) || std::isfinite(static_cast<float>(value));
}

bool Holds(const StoredType& type, std::int64_t value)
{
  const hid_t stored = type.make();
  const std::size_t bits = 8 * H5Tget_size(stored);
  const bool is_signed = H5Tget_sign(stored) == H5T_SGN_2;
  H5Tclose(stored);
  if (bits >= 64)
  {
    return is_signed || value >= 0;
  }
  const std::int64_t values = std::int64_t{1} << bits;
  return is_signed ? value >= -values / 2 && value < values / 2 : value >= 0 && value < values;
}

std::string DescribeType(hid_t type)
{
  const H5T_class_t type_class = H5Tget_class(type);
  if (type_class == H5T_VLEN)
  {
    const hid_t element = H5Tget_super(type);
    std::string text = "a sequence, each item " + DescribeType(element);
    H5Tclose(element);
    return text;
  }
  const std::string article =
    type_class == H5T_OPAQUE || type_class == H5T_ENUM || type_class == H5T_ARRAY ? "an " : "a ";
  return article + ClassName(type_class) + " of " + std::to_string(H5Tget_size(type)) + " bytes";
}

std::vector<std::string> StoredTypeNames()
{
  std::vector<std::string> names;
  for (const StoredType& type : AllTypes())
  {
    names.emplace_back(type.name);
  }
  return names;
}
