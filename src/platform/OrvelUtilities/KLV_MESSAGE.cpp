#include "OrvelUtilities/KLV_MESSAGE.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <stdexcept>

namespace
{

// -1 when the C library can't carry out the format.
int MeasureMessage(const char* format, std::va_list arguments)
{
  std::va_list copy;
  va_copy(copy, arguments);
  // The analyser does not see that the caller has started the list.
  const int length = std::vsnprintf(nullptr, 0, format, copy);  // NOLINT(clang-analyzer-valist.Uninitialized)
  va_end(copy);
  return length;
}

}  // namespace

std::string KLV_MESSAGE(const char* format, ...)
{
  std::va_list arguments;
  va_start(arguments, format);
  const int length = MeasureMessage(format, arguments);
  std::string text;
  if (length > 0)
  {
    text.resize(static_cast<std::size_t>(length));
    // The terminating zero goes where the string has its own.
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
  }
  va_end(arguments);

  if (length < 0)
  {
    throw std::runtime_error("KLV_MESSAGE: the format \"" + std::string(format) + "\" can't be carried out.");
  }
  return text;
}
