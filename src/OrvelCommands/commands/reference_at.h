/// \file
/// The range test of a command's list of references. Safe from any thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvel::detail
{

/// Throws: "Invalid index ... of the parameterfile value ..." with code "220653270608" unless \p index is in 1 to
/// \p count.
void RequireReferenceIndex(std::uint64_t index, std::uint64_t count, const char* key, const std::string& class_name);

/// The target at a place of a list, counted from 1. The test is against the count that the command tells, not against
/// the length of the list.
template <class Target>
const Target& ReferenceAt(const std::vector<const Target*>& list, std::uint64_t count, std::uint64_t index,
                          const char* key, const std::string& class_name)
{
  RequireReferenceIndex(index, count, key, class_name);
  return *list[index - 1];
}

}  // namespace orvel::detail
