#include "OrvelUtilities/OrvelStringUtil.h"

#include <array>
#include <charconv>

namespace
{

// The longest text is that of a double such as -2.2250738585072014e-308, with 24 characters.
constexpr std::size_t max_length = 32;

template <typename Number>
std::string ToText(Number value)
{
  std::array<char, max_length> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), result.ptr);
}

}  // namespace

std::string OrvelStringUtil::String(int value)
{
  return ToText(value);
}

std::string OrvelStringUtil::String(std::uint64_t value)
{
  return ToText(value);
}

std::string OrvelStringUtil::String(double value)
{
  return ToText(value);
}
