/// \file
/// How one plain command refers to another. One thread at a time.
#pragma once

#include <string>

namespace plain
{

/// A reference by id and, once linked, by address.
template <class Target>
struct Link
{
  std::string id;
  const Target* target = nullptr;
};

}  // namespace plain
