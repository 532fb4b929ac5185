/// \file
/// The kinds of value that a storage operation moves. Constants only, safe from any thread.
#pragma once

#include <cstdint>

/// What a typed storage call moves. The numbers are fixed: they select the type of a value in a parameter file.
enum VtmType : std::int32_t
{
  vtmInteger = 0,      ///< `int`
  vtmDouble = 1,       ///< `double`
  vtmEnum = 2,         ///< `int`, the number of an enumerator
  vtmString = 3,       ///< `std::string`, free text
  vtmIdName = 4,       ///< No value: an `ID_NAME` is the name of its command.
  vtmReference = 5,    ///< No value: references go through `AddReference` and `GetReference`.
  vtmIntegerList = 6,  ///< `std::vector<int>`, a whole list as one value
  vtmDoubleList = 7,   ///< `std::vector<double>`, a whole list as one value
  vtmSelect = 8,       ///< Named only.
  vtmComplexType = 9,  ///< Named only.
  vtmModelId = 10,     ///< `std::string`, the name of something in the model, such as a group
  vtmUnknown = 11      ///< Named only.
};
