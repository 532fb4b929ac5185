/// \file
/// Texts that begin with where they belong.
#pragma once

#include <string>

/// "file:line:column: text"; the text alone where the place is not known, as in a parameter file.
inline std::string AtPlace(const std::string& place, const std::string& text)
{
  return place.empty() ? text : place + ": " + text;
}
