/// \file
/// A job as text that can be read back.
#pragma once

#include "job.h"

#include <string>
#include <vector>

/// What a text cannot carry: values that the tool cannot read, objects that are no part of the layout, names that are
/// no UTF-8. A line for each.
std::vector<std::string> NotCarried(const Job& job);

/// A job description of the job. It reads back to the same job, numbers to the last bit.
/// Requires: nothing that NotCarried names.
std::string AsToml(const Job& job);

/// The same in JSON. A number that is not finite is the text "nan", "inf" or "-inf".
std::string AsJson(const Job& job);
