/// \file
/// What a parameter file can hold although the library never writes it: keys of other types, keys without values,
/// references to nothing, kinds without commands. They come from other programs and must survive an export and import.
#pragma once

#include "job.h"

#include <filesystem>
#include <string>
#include <vector>

/// Whether the storage of the library cannot write a key.
bool IsForeign(const JobKey& key);

/// Writes the foreign keys and the kinds without commands into a parameter file that has all commands.
/// \param failures takes what cannot be written, a line for each
void WriteForeignKeys(const std::filesystem::path& file, const Job& job, std::vector<std::string>& failures);
