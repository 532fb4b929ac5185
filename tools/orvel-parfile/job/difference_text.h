/// \file
/// Differences of two jobs as text.
#pragma once

#include "job_difference.h"

#include "support/style.h"

#include <string>

/// A line: "~ DV_ porosity INITIAL_: 0.35 -> 0.4", "+ FILTER_ new". Of long lists it tells the items that differ.
std::string AsLine(const Difference& difference, const Style& style);

/// {"differences": [{"change": "changed", "kind": ..., "id": ..., "key": ..., "before": {"type": "number", "values":
/// [0.35]}, "after": ...}], "not_compared": [...]}. Enumerators stand by name, references as "KIND_/id", a number that
/// is not finite as a text.
std::string AsJson(const Comparison& comparison);
