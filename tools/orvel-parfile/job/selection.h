/// \file
/// A part of a job: one kind, or one command.
#pragma once

#include "job.h"

#include <filesystem>
#include <string>
#include <vector>

/// Empty texts stand for all kinds, all ids.
struct Selection
{
  std::string kind;
  std::string id;

  bool Has(const std::string& a_kind, const std::string& an_id) const
  {
    return (kind.empty() || kind == a_kind) && (id.empty() || id == an_id);
  }
};

/// What the words of a command line, a kind and an id at most, select of a job that was read from \p file.
/// Throws: UnusableInput for a kind or id that the job does not have, with the nearest one and those that there are.
Selection Select(const Job& job, const std::vector<std::string>& words, const std::filesystem::path& file);

/// The part of a job that is selected.
Job PartOf(const Job& job, const Selection& selection);
