/// \file
/// The findings of a check as a person or a program reads them.
#pragma once

#include "finding.h"
#include "job/inventory.h"

#include <filesystem>
#include <string>
#include <vector>

/// How many findings there are.
struct FindingCounts
{
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t notes = 0;
  std::size_t ignored = 0;

  /// Notes do not keep a job from being good.
  bool IsGood() const { return errors == 0 && warnings == 0; }
};

/// What a check has to tell.
struct Report
{
  std::filesystem::path file;  ///< As the user named it.
  std::string job;
  bool is_description = false;
  std::vector<Finding> findings;
  std::size_t ignored = 0;
  Inventory inventory;
};

FindingCounts Count(const Report& report);

/// Brings the findings into the order in which they are read: what the library says, then by the place in the text of a
/// job description, or by kind, id and key in the order of the schema; what is about the model comes last.
void Sort(Report& report);

/// The findings as blocks of lines with a last line that counts them; empty when there are none.
std::string AsText(const Report& report);

/// The same with all that a program may want to know.
std::string AsJson(const Report& report);
