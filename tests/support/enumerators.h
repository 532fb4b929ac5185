/// \file
/// All that an enumeration names, in a form that a test can compare and print.
#pragma once

#include <limits>
#include <string>
#include <utility>
#include <vector>

/// The numbers for which \p Command gives a text other than "INVALID", with their texts, in the order of the numbers.
/// Asks for every number from -1 to 1100 and for the two ends of the range, so that what is missing is no enumerator.
template <class Command, class Enumeration>
std::vector<std::pair<int, std::string>> EnumeratorsOf()
{
  std::vector<int> numbers = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
  for (int number = -1; number <= 1100; ++number)
  {
    numbers.push_back(number);
  }
  std::vector<std::pair<int, std::string>> enumerators;
  for (const int number : numbers)
  {
    const std::string name = Command::GetEnumName(static_cast<Enumeration>(number));
    if (name != "INVALID")
    {
      enumerators.emplace_back(number, name);
    }
  }
  return enumerators;
}
