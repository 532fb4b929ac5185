/// \file
/// A job from whatever the command line names.
#pragma once

#include "job.h"

#include <filesystem>

/// The job of a job description (.toml), or of a parameter file, given by itself or its folder.
/// Throws: UnusableInput for what cannot be read; FaultyInput with every fault of a job description.
Job ReadJob(const std::filesystem::path& path);
