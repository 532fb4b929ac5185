/// \file
/// Writing into parameter files, through the storage of the library where that can. The files are those of a
/// ReplacementFile: a failure leaves them half written.
#pragma once

#include "job.h"

#include <filesystem>
#include <string>
#include <vector>

/// Makes a file without commands and without /PARFILE. Throws: UnwritableFile.
void MakeParameterFile(const std::filesystem::path& file);

/// Writes the commands, then their values, then their references, into a file that has none.
/// Returns: each failure with the place in the job description; what failed is left out of the file.
/// Throws: UnwritableFile.
std::vector<std::string> WriteJob(const std::filesystem::path& file, const Job& job);

/// Writes the keys of one command into a file that lacks them.
/// \param is_new whether the file lacks the command too
/// Returns and throws as WriteJob.
std::vector<std::string> WriteKeys(const std::filesystem::path& file, const JobCommand& command, bool is_new);
