/// \file
/// The rules that a check knows. Constants only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// How much a finding weighs.
enum class Severity
{
  Error,    ///< The job does not load, or means something else than it says.
  Warning,  ///< The job loads and is probably wrong.
  Note      ///< Worth knowing; does not count as a finding for the exit code.
};

/// What a severity is called in the output, "error".
std::string_view SeverityName(Severity severity);

/// Which jobs a rule is for.
enum class RuleScope
{
  EveryJob,
  GyreJob  ///< What it looks at is nothing that a smoothing job reads.
};

/// One rule. There is one object for each, so that rules compare by address.
struct Rule
{
  std::string_view name;  ///< As --ignore takes it.
  Severity severity;
  RuleScope scope;
  std::string_view what;     ///< What it finds, one line.
  std::string_view why;      ///< Why that matters, a sentence or two.
  std::string_view failing;  ///< Lines of a job description, or what a file holds, that it finds.
  std::string_view passing;  ///< The same, mended.
};

namespace rules
{
extern const Rule library;
extern const Rule unknown_kind;
extern const Rule unknown_key;
extern const Rule impossible_name;
extern const Rule missing_key;
extern const Rule wrong_type;
extern const Rule wrong_count;
extern const Rule not_an_enumerator;
extern const Rule foreign_object;
extern const Rule command_count;
extern const Rule unresolved_reference;
extern const Rule wrong_target;
extern const Rule unreachable_command;
extern const Rule reference_cycle;
extern const Rule list_lengths;
extern const Rule response_or_operator;
extern const Rule limits;
extern const Rule no_basis;
extern const Rule unknown_model_id;
extern const Rule unused_group;
extern const Rule unused_model_group;
}  // namespace rules

/// All rules, in the order in which a check reports what they find at one place.
const std::vector<const Rule*>& AllRules();

/// The rule with this name, null when there is none.
const Rule* FindRule(std::string_view name);

/// The names of all rules.
std::vector<std::string> RuleNames();
