/// \file
/// A job as people read it.
#pragma once

#include "job.h"

#include "support/style.h"

#include <iosfwd>

/// Prints the commands of \p part, each with its keys one below the other, in stable order. Enumerators stand by name,
/// references with kind and id; what no command reads, and what the tool cannot read, is told with its type.
/// \param all the commands among which references find their targets
void PrintListing(std::ostream& stream, const Job& part, const JobIndex& all, const Style& style);
