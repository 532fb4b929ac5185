/// \file
/// What to offer someone who mistyped a name.
#pragma once

#include <string>
#include <vector>

/// "the nearest is X; there are X, Y, Z", with the name that needs the fewest changes of a character.
std::string NearestName(const std::string& name, const std::vector<std::string>& known);
