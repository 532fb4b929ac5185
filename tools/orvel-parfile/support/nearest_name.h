/// \file
/// What to offer someone who mistyped a name.
#pragma once

#include <string>
#include <vector>

/// The name that needs the fewest changes of a character, the first of several. Null when there is none.
const std::string* FindNearest(const std::string& name, const std::vector<std::string>& known);

/// "there are X, Y, Z", each as PlainText has it; of very many names the first ones and the number of the others.
std::string NamesText(const std::vector<std::string>& known);

/// "the nearest is X; there are X, Y, Z"; without the nearest name when that is null.
std::string OfferText(const std::string* nearest, const std::vector<std::string>& known);

/// The same with the nearest name looked for.
std::string NearestName(const std::string& name, const std::vector<std::string>& known);
