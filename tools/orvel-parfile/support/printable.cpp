#include "printable.h"

#include <nlohmann/json.hpp>

#include <iomanip>
#include <sstream>

bool IsUtf8(const std::string& text)
{
  try
  {
    return !nlohmann::json(text).dump().empty();
  }
  catch (const nlohmann::json::type_error&)
  {
    return false;
  }
}

std::string Printable(const std::string& text)
{
  const unsigned first_beyond = IsUtf8(text) ? 0x100 : 0x80;
  std::ostringstream printable;
  for (const char character : text)
  {
    const unsigned code = static_cast<unsigned char>(character);
    if (character != '\n' && (code < 0x20 || code == 0x7f || code >= first_beyond))
    {
      printable << "\\u" << std::hex << std::setw(4) << std::setfill('0') << code;
    }
    else
    {
      printable << character;
    }
  }
  return printable.str();
}
