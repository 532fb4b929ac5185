/// \file
/// Texts from files, as a terminal can take them.
#pragma once

#include <string>

/// Whether all of a text is UTF-8.
bool IsUtf8(const std::string& text);

/// A text with its control characters, but for line feeds, written as "\u0000" is; in a text that is no UTF-8 also all
/// bytes beyond ASCII.
std::string Printable(const std::string& text);
