/// \file
/// The bounded print behind every message and log text of the library. Safe from any thread.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <variant>

namespace orvel::detail
{

/// One argument of BoundedPrint(): an int for `%d`, a 64-bit unsigned for `%Iu`, a text for `%s`. A text is never
/// null, not owned, and must outlive the call.
class PrintArgument
{
public:
  PrintArgument(int value) : m_value(value) {}                       // NOLINT(google-explicit-constructor)
  PrintArgument(std::uint64_t value) : m_value(value) {}             // NOLINT(google-explicit-constructor)
  PrintArgument(const char* text) : m_value(text) {}                 // NOLINT(google-explicit-constructor)
  PrintArgument(const std::string& text) : m_value(text.c_str()) {}  // NOLINT(google-explicit-constructor)

  /// The argument as a text, empty for a number.
  const char* AsText() const;

  /// The argument as decimal digits, "0" for a text.
  std::string AsDigits() const;

private:
  std::variant<int, std::uint64_t, const char*> m_value;
};

/// The longest text that a bounded print gives, in bytes.
constexpr std::size_t kBoundedPrintLimit = 1023;

/// Prints \p arguments by the printf format \p format and cuts the result at kBoundedPrintLimit bytes, with no mark
/// of the cut.
///
/// `%s`, `%d` and `%Iu` without flags take the next argument. Every other conversion, and each of these when no
/// argument is left, prints what printf gives for a zero, an empty text or a null, so that a finished text which
/// happens to hold a "%" can stand as the format: nothing is ever read that was not passed. `%%` gives "%", `%n`
/// writes nothing, widths and precisions are limited to 4096, and what is no conversion stays as it stands. As in a C
/// string, a NUL byte (`%c` of a zero) ends the result.
///
/// Cost: linear in the format.
std::string BoundedPrint(const char* format, std::initializer_list<PrintArgument> arguments = {});

}  // namespace orvel::detail
