#include "OrvelCommands/foundation/bounded_print.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

namespace orvel::detail
{
namespace
{

// Far more than can be seen of a result, so that what stands right in a field of this width is cut off as in any wider
// one, and little enough to be printed at once.
constexpr int kFieldLimit = 4096;

struct Conversion
{
  std::string flags;
  int width = -1;
  int precision = -1;
  bool long_size = false;  // the length modifier "I" of a size
  char type = '\0';
  const char* end = nullptr;

  bool IsPlain() const { return flags.empty() && width < 0 && precision < 0; }
};

bool TakeOne(const char*& at, std::string_view choice)
{
  if (*at == '\0' || choice.find(*at) == std::string_view::npos)
  {
    return false;
  }
  ++at;
  return true;
}

bool TakeText(const char*& at, std::string_view text)
{
  if (std::strncmp(at, text.data(), text.size()) != 0)
  {
    return false;
  }
  at += text.size();
  return true;
}

// A width or precision. A "*" would take an argument, which counts as zero.
int TakeNumber(const char*& at)
{
  if (TakeOne(at, "*"))
  {
    return 0;
  }
  int number = 0;
  while (*at >= '0' && *at <= '9')
  {
    number = std::min(number * 10 + (*at - '0'), kFieldLimit);
    ++at;
  }
  return number;
}

std::optional<Conversion> ParseConversion(const char* at)
{
  Conversion conversion;
  ++at;  // the "%"
  for (const char* flag = at; TakeOne(at, "-+ #0'"); flag = at)
  {
    if (*flag != '\'')  // groups thousands, of which a zero has none
    {
      conversion.flags += *flag;
    }
  }
  if (*at == '*' || (*at >= '1' && *at <= '9'))
  {
    conversion.width = TakeNumber(at);
  }
  if (TakeOne(at, "."))
  {
    conversion.precision = TakeNumber(at);
  }
  for (const std::string_view modifier : {"hh", "h", "ll", "l", "j", "z", "t", "L", "q", "I64", "I32", "I"})
  {
    if (TakeText(at, modifier))
    {
      conversion.long_size = modifier == "I";
      break;
    }
  }
  conversion.type = *at;
  if (!TakeOne(at, "%diouxXcCsSpnfFeEgGaA"))
  {
    return std::nullopt;
  }
  conversion.end = at;
  return conversion;
}

bool IsOneOf(char type, std::string_view types)
{
  return types.find(type) != std::string_view::npos;
}

// printf defines a flag for some conversions only, and what it does with others is not to be relied upon.
bool TakesFlag(char type, char flag)
{
  switch (flag)
  {
    case '#': return IsOneOf(type, "oxXeEfFgGaA");
    case '0': return IsOneOf(type, "diouxXeEfFgGaA");
    case '+':
    case ' ': return IsOneOf(type, "dieEfFgGaA");
    default: return true;
  }
}

std::string PrintfFormat(const Conversion& conversion, char type)
{
  std::string format = "%";
  std::copy_if(conversion.flags.begin(), conversion.flags.end(), std::back_inserter(format),
               [&](char flag) { return TakesFlag(type, flag); });
  if (conversion.width >= 0)
  {
    format += std::to_string(conversion.width);
  }
  if (conversion.precision >= 0 && IsOneOf(type, "diouxXeEfFgGaAs"))
  {
    format += "." + std::to_string(conversion.precision);
  }
  return format + type;
}

// What printf gives for a zero, an empty text or null. The result may hold a NUL byte.
std::string PrintZero(const Conversion& conversion)
{
  std::array<char, kBoundedPrintLimit + 1> buffer{};
  const auto print = [&](char type, auto zero) {
    const int length = std::snprintf(buffer.data(), buffer.size(), PrintfFormat(conversion, type).c_str(), zero);
    return std::string(buffer.data(), std::clamp(length, 0, static_cast<int>(buffer.size()) - 1));
  };
  switch (conversion.type)
  {
    case '%': return "%";
    case 'n': return {};
    case 'd':
    case 'i': return print(conversion.type, 0);
    case 'o':
    case 'u':
    case 'x':
    case 'X': return print(conversion.type, 0U);
    case 'c':
    case 'C': return print('c', 0);
    case 's':
    case 'S': return print('s', "");
    case 'p': return print('p', static_cast<const void*>(nullptr));
    default: return print(conversion.type, 0.0);
  }
}

class ArgumentReader
{
public:
  ArgumentReader(const PrintArgument* begin, const PrintArgument* end) : m_next(begin), m_end(end) {}

  std::string Print(const Conversion& conversion)
  {
    const bool is_text = conversion.type == 's';
    const bool is_number = conversion.type == 'd' || (conversion.type == 'u' && conversion.long_size);
    if (m_next == m_end || !conversion.IsPlain() || !(is_text || is_number))
    {
      return PrintZero(conversion);
    }
    const PrintArgument& argument = *m_next++;
    return is_text ? argument.AsText() : argument.AsDigits();
  }

private:
  const PrintArgument* m_next;
  const PrintArgument* m_end;
};

}  // namespace

const char* PrintArgument::AsText() const
{
  const auto* text = std::get_if<const char*>(&m_value);
  return text != nullptr ? *text : "";
}

std::string PrintArgument::AsDigits() const
{
  if (const auto* number = std::get_if<int>(&m_value))
  {
    return std::to_string(*number);
  }
  const auto* size = std::get_if<std::uint64_t>(&m_value);
  return std::to_string(size != nullptr ? *size : 0);
}

std::string BoundedPrint(const char* format, std::initializer_list<PrintArgument> arguments)
{
  ArgumentReader reader(arguments.begin(), arguments.end());
  std::string result;
  bool ended = false;
  for (const char* at = format; *at != '\0' && !ended && result.size() < kBoundedPrintLimit;)
  {
    const auto conversion = *at == '%' ? ParseConversion(at) : std::nullopt;
    if (!conversion)
    {
      result += *at++;
      continue;
    }
    const std::string printed = reader.Print(*conversion);
    const std::size_t end = printed.find('\0');
    ended = end != std::string::npos;
    result.append(printed, 0, end);
    at = conversion->end;
  }
  result.resize(std::min(result.size(), kBoundedPrintLimit));
  return result;
}

}  // namespace orvel::detail
