/// \file
/// What a job holds, by name: for messages that tell what is possible, and for completion.
#pragma once

#include "job.h"

#include <string>
#include <vector>

/// The names below a kind and id of a parameter file, foreign objects included: those of the kinds when both are empty,
/// of the ids when \p id is, else of the keys. Sorted.
std::vector<std::string> NamesIn(const Job& job, const std::string& kind = {}, const std::string& id = {});

/// Throws: UnusableInput when the name is none of those known, "there is no X; the nearest is Y; ...".
void RequireName(const std::string& what, const std::string& name, const std::vector<std::string>& known);

/// "DV_ porosity: TYPE_", as far as it is named.
std::string SubjectText(const std::string& kind, const std::string& id, const std::string& key = {});

/// The values of a key in one line. \p field may be null.
std::string ValuesText(const JobKey& key, const orvel::schema::Field* field);
