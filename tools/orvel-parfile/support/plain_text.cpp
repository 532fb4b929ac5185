#include "plain_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace
{

struct Character
{
  std::uint32_t code;
  std::string_view bytes;
  bool is_utf8;
};

bool IsContinuation(char byte)
{
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// How many bytes a character has that begins with a byte; 0 where none does.
std::size_t SizeAfter(unsigned char first)
{
  return first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
}

// The first character of a text, which is taken away from it; a byte that begins none stands for itself.
Character TakeFirst(std::string_view& text)
{
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t size = SizeAfter(first);
  Character character{first, text.substr(0, 1), false};
  if (size != 0 && text.size() >= size && std::all_of(text.begin() + 1, text.begin() + size, IsContinuation))
  {
    std::uint32_t code = size == 1 ? first : first & (0x7FU >> size);
    for (const char byte : text.substr(1, size - 1))
    {
      code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    constexpr std::array<std::uint32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    if (code >= smallest[size] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF))
    {
      character = {code, text.substr(0, size), true};
    }
  }
  text.remove_prefix(character.bytes.size());
  return character;
}

bool IsIn(std::uint32_t code, std::uint32_t first, std::uint32_t last)
{
  return code >= first && code <= last;
}

// Control characters, line ends, what turns the direction of writing, and what is no character.
bool IsUnsafe(const Character& character)
{
  const std::uint32_t code = character.code;
  return !character.is_utf8 || code < 0x20 || IsIn(code, 0x7F, 0x9F) || code == 0x061C || IsIn(code, 0x200E, 0x200F) ||
         IsIn(code, 0x2028, 0x202E) || IsIn(code, 0x2066, 0x2069) || IsIn(code, 0xFFFE, 0xFFFF);
}

std::string Escaped(const Character& character)
{
  switch (character.code)
  {
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default: break;
  }
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), character.is_utf8 ? "\\u%04x" : "\\x%02x",
                static_cast<unsigned>(character.code));
  return text.data();
}

}  // namespace

std::string PlainText(const std::string& text)
{
  std::string quoted = "\"";
  bool is_plain = !text.empty() && text.front() != ' ' && text.back() != ' ';
  for (std::string_view rest = text; !rest.empty();)
  {
    const Character character = TakeFirst(rest);
    const bool is_unsafe = IsUnsafe(character);
    const bool is_quote = character.code == '"' || character.code == '\\';
    is_plain = is_plain && !is_unsafe && character.code != '"' && character.code != ',';
    quoted += is_unsafe ? Escaped(character) : (is_quote ? "\\" : "") + std::string(character.bytes);
  }
  return is_plain ? text : quoted + "\"";
}

std::string PrintableLines(const std::string& text)
{
  std::string printable;
  for (std::string_view rest = text; !rest.empty();)
  {
    const Character character = TakeFirst(rest);
    const bool stays = character.code == '\n' || !IsUnsafe(character);
    printable += stays ? std::string(character.bytes) : Escaped(character);
  }
  return printable;
}

bool IsUtf8(const std::string& text)
{
  for (std::string_view rest = text; !rest.empty();)
  {
    if (!TakeFirst(rest).is_utf8)
    {
      return false;
    }
  }
  return true;
}

std::size_t CharacterCount(const std::string& text)
{
  return static_cast<std::size_t>(
    std::count_if(text.begin(), text.end(), [](char byte) { return !IsContinuation(byte); }));
}
