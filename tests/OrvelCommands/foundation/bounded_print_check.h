/// \file
/// What must hold of the bounded print of any text, for the fuzzer and for the tests. Safe from any thread.
#pragma once

#include "OrvelCommands/foundation/bounded_print.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

inline std::string FirstBytes(const std::string& text)
{
  return text.substr(0, 1023);
}

inline std::string WithDoubledPercentSigns(const std::string& text)
{
  std::string doubled;
  for (const char one : text)
  {
    doubled.append(one == '%' ? 2 : 1, one);
  }
  return doubled;
}

/// What the bounded print of \p format breaks, empty if it is as it must be. A NUL byte ends the format.
inline std::string BrokenRuleOfBoundedPrint(std::string format)
{
  using orvel::detail::BoundedPrint;
  format = format.c_str();
  const std::string printed = BoundedPrint(format.c_str());
  const std::string filled =
    BoundedPrint(format.c_str(), {"a text", -1, std::numeric_limits<std::uint64_t>::max(), std::string(2000, 'x'), 7});
  if (printed.size() > 1023 || filled.size() > 1023)
  {
    return "more than 1023 bytes";
  }
  if (printed.find('\0') != std::string::npos || filled.find('\0') != std::string::npos)
  {
    return "a NUL byte within the text";
  }
  if (printed != BoundedPrint(format.c_str()))
  {
    return "another text at the second time";
  }
  const std::size_t percent = format.find('%');
  if (percent == std::string::npos && (printed != FirstBytes(format) || filled != printed))
  {
    return "another text than the format, which has no percent sign";
  }
  if (printed.substr(0, percent) != FirstBytes(format.substr(0, percent)))
  {
    return "another text before the first percent sign";
  }
  if (BoundedPrint(WithDoubledPercentSigns(format).c_str()) != FirstBytes(format))
  {
    return "another text than the format when its percent signs are doubled";
  }
  return {};
}
