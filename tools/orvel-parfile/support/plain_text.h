/// \file
/// Texts of unknown origin as they may stand in a line of output.
#pragma once

#include <cstddef>
#include <string>

/// A text as it stands where nothing in it can be mistaken, else quoted, with escapes as in "a\nb": control characters,
/// bytes that are no UTF-8 and characters that turn the direction of writing do not reach a terminal. Quoted are also
/// the empty text and one with a comma, a quotation mark or a blank at an end.
std::string PlainText(const std::string& text);

/// A text of one or more lines, in which the same characters are written with the same escapes, but for line feeds.
/// Nothing is quoted, so that a text with a backslash of its own may look the same. Of JSON it makes the same JSON.
std::string PrintableLines(const std::string& text);

/// Whether all of a text is UTF-8.
bool IsUtf8(const std::string& text);

/// How many characters a UTF-8 text has.
std::size_t CharacterCount(const std::string& text);
