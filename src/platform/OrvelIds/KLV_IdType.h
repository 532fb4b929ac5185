/// \file
/// The kinds of name that a model gives to its parts.
/// Thread safety: a plain number.
#pragma once

#include <cstdint>

/// Chooses one map of a KLV_IdMapsPool. The numbers are fixed, since modules of the job exchange them; other
/// modules use numbers that have no enumerator here.
enum class KLV_IdType : std::int32_t
{
  coordinate_system = 5,
  node_group = 7,
  face_group = 8,
  element_group = 9
};
