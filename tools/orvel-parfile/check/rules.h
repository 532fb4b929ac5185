/// \file
/// The rules at work. Each function looks for what the rules of its source find and adds to the findings.
#pragma once

#include "finding.h"
#include "job/job.h"
#include "job/model_ids.h"
#include "remedy.h"

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// What a reader of job descriptions has refused, so that it is neither there nor missing.
struct RefusedParts
{
  std::set<std::string> kinds;                             ///< Of which something was refused.
  std::set<std::pair<std::string, std::string>> commands;  ///< Kind and id, or a whole kind without an id.

  RefusedParts() = default;
  explicit RefusedParts(const std::vector<Finding>& faults);

  bool Has(const std::string& kind, const std::string& id) const;
};

/// What a check looks at. Not owned.
struct CheckSubject
{
  const Job& job;  ///< The commands that the checked job reads, and those of unknown kinds.
  const JobIndex& index;
  const RefusedParts& refused;
  const ModelIds* model_ids;  ///< Null when they are not known.
  const Remedies& remedies;
};

/// \name Findings about a command, a key, one value of a key
/// The text begins with the names of what they are about.
/// @{
Finding About(const Rule& rule, const JobCommand& command, const std::string& text, std::string remedy);
Finding About(const Rule& rule, const JobCommand& command, const JobKey& key, const std::string& text,
              std::string remedy);
Finding About(const Rule& rule, const JobCommand& command, const JobKey& key, const JobItem& item,
              const std::string& text, std::string remedy);
/// @}

/// A command as messages name it, "DV_ porosity".
std::string NameOf(const JobCommand& command);

/// Whether a key of a job description was there and refused.
bool IsRefused(const JobCommand& command, std::string_view key);

/// Calls \p action for each key that its command reads, in the order of the job.
void ForEachKnownKey(const Job& job,
                     const std::function<void(const JobCommand&, const JobKey&, const orvel::schema::Field&)>& action);

/// The keys that are always read and not there, of all commands.
std::vector<Finding> FindMissingKeys(const Job& job);

void CheckSchema(const CheckSubject& subject, std::vector<Finding>& findings);
void CheckValues(const CheckSubject& subject, std::vector<Finding>& findings);

/// \name For a gyre job alone
/// @{
void CheckReferences(const CheckSubject& subject, std::vector<Finding>& findings);
void CheckModel(const CheckSubject& subject, std::vector<Finding>& findings);
/// @}
