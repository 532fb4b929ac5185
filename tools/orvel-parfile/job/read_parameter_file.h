/// \file
/// Parameter files as jobs.
#pragma once

#include "job.h"

#include <filesystem>

/// All that stands in a parameter file, also what no command reads and what the library could not read. Kinds, commands
/// and keys come in the byte order of their names.
///
/// Throws: UnusableInput for a file that is no parameter file, that cannot be opened, or that another process holds
/// open for writing. Cost: opens each key once.
Job ReadParameterFile(const std::filesystem::path& path);
