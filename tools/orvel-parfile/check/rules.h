/// \file
/// The rules at work. Each function looks for what the rules of its source find and adds to the findings.
#pragma once

#include "finding.h"
#include "job/job.h"
#include "job/model_ids.h"

#include <string>
#include <vector>

/// What a check looks at. Not owned.
struct CheckSubject
{
  const Job& job;
  const JobIndex& index;
  const std::string& job_kind;  ///< kGyreJob or kSmoothJob.
  const ModelIds* model_ids;    ///< Null when they are not known.
};

/// The keys that are always read and not there, of all commands.
std::vector<Finding> FindMissingKeys(const Job& job);

void CheckSchema(const CheckSubject& subject, std::vector<Finding>& findings);
void CheckReferences(const CheckSubject& subject, std::vector<Finding>& findings);
void CheckValues(const CheckSubject& subject, std::vector<Finding>& findings);
void CheckModel(const CheckSubject& subject, std::vector<Finding>& findings);
