/// \file
/// The place of a virtual operation in the table of its class, which programs built against the library rely on.
/// Safe from any thread.
#pragma once

#include <cstddef>
#include <cstring>

#if defined(__x86_64__) && defined(__GXX_ABI_VERSION)
constexpr bool kVirtualSlotsAreReadable = true;
#else
constexpr bool kVirtualSlotsAreReadable = false;
#endif

/// The place after the destructor, which has the place 0.
/// Requires: kVirtualSlotsAreReadable, and a class whose destructor is its first virtual operation.
template <class Operation>
std::size_t PlaceAfterDestructor(Operation operation)
{
  // A pointer to a virtual member holds 1 + the distance in the table; a destructor has two entries there.
  std::ptrdiff_t distance = 0;
  static_assert(sizeof(operation) >= sizeof(distance));
  std::memcpy(&distance, &operation, sizeof(distance));
  return static_cast<std::size_t>(distance - 1) / sizeof(void*) - 1;
}
