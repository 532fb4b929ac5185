/// \file
/// What the library says of a job.
#pragma once

#include "finding.h"
#include "job/job.h"
#include "job/model_ids.h"

#include <filesystem>
#include <string>
#include <vector>

/// Loads a parameter file and, if that went well and \p model_ids is not null, checks its model ids. Adds a finding for
/// the failure.
/// \param job kGyreJob or kSmoothJob
/// Throws: UnusableInput for a file that cannot be opened.
void AskLibrary(const std::filesystem::path& file, const std::string& job, const ModelIds* model_ids,
                std::vector<Finding>& findings);

/// The same for a job that is in no file yet. References to nothing are left out, as they cannot be written.
void AskLibrary(const Job& description, const std::string& job, const ModelIds* model_ids,
                std::vector<Finding>& findings);
