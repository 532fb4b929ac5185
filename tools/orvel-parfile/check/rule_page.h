/// \file
/// What the rules are, for whoever meets one.
#pragma once

#include <string>

/// All rules as plain text.
std::string RulesAsText();

/// All rules as the page docs/rules.md.
std::string RulesAsMarkdown();
