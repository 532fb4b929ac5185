/// \file
/// What a check finds.
#pragma once

#include "rule.h"

#include <string>
#include <vector>

/// One finding. Texts that do not apply are empty.
struct Finding
{
  const Rule* rule;
  std::string kind;
  std::string id;
  std::string key;
  std::string value;   ///< What was found.
  std::string place;   ///< "file:line:column" in a job description.
  std::string text;    ///< What is wrong, with the names that it is about.
  std::string remedy;  ///< What to do about it.
};

/// "place: text; remedy", without what is empty.
std::string AsLine(const Finding& finding);

/// The lines of several findings.
std::vector<std::string> AsLines(const std::vector<Finding>& findings);
