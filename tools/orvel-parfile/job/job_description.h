/// \file
/// A job description: the commands of a parameter file as TOML text.
///
/// There is one table for each command, `[DV_.porosity]`. Enumerators stand by name, by letter where their numbers are
/// letters, or by number; references by id, repeated keys as arrays. What no command reads stands with its type,
/// `WEIGHT_ = { type = "number", values = [0.5] }`, in kinds that `extra_kinds` names.
#pragma once

#include "job.h"

#include "check/finding.h"

#include <filesystem>
#include <vector>

/// A job description as it was read.
struct JobDescription
{
  Job job;                      ///< Without what was refused; commands in the order of the text.
  std::vector<Finding> faults;  ///< What was refused, in the order of the text, with its place.
};

/// Throws: UnusableInput for a file that cannot be read or is no TOML.
JobDescription ReadJobDescription(const std::filesystem::path& path);

/// Throws: also FaultyInput with every fault.
Job ReadSoundJobDescription(const std::filesystem::path& path);

/// Whether an argument of the command line means a job description and no parameter file.
bool IsJobDescription(const std::filesystem::path& path);

/// The member of a job description that names the kinds no command reads.
inline constexpr const char* kExtraKinds = "extra_kinds";

/// \name Members of a key that stands with its type
/// @{
inline constexpr const char* kTypeMember = "type";
inline constexpr const char* kValuesMember = "values";
/// In place of the values: texts that are no UTF-8, byte by byte; numbers by the 16 digits of their bits, lists of
/// numbers without anything between. It carries what a number in text cannot, the payload of a NaN.
inline constexpr const char* kHexMember = "hex";
inline constexpr int kHexDigitsOfNumber = 16;
/// @}
