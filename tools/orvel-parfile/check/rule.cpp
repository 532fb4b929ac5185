#include "rule.h"

#include <algorithm>

namespace rules
{

const Rule library{
  "library", Severity::Error, "What the library says as it loads the job and checks its model ids.", "", "", ""};
const Rule unknown_kind{"unknown-kind", Severity::Error, "A kind of command that no command class reads.", "", "", ""};
const Rule unknown_key{"unknown-key", Severity::Error, "A key that its command does not read.", "", "", ""};
const Rule impossible_name{
  "impossible-name", Severity::Error, "A name that the layout of the file cannot hold.", "", "", ""};
const Rule missing_key{"missing-key", Severity::Error, "A key that is always read and is not there.", "", "", ""};
const Rule wrong_type{"wrong-type", Severity::Error, "A value of another type than its key has.", "", "", ""};
const Rule wrong_count{"wrong-count", Severity::Error, "No value, or several, where a key has one.", "", "", ""};
const Rule not_an_enumerator{
  "not-an-enumerator", Severity::Error, "A number or name that is no enumerator of its key.", "", "", ""};
const Rule foreign_object{
  "foreign-object", Severity::Warning, "An object that is no part of the file's layout.", "", "", ""};
const Rule command_count{
  "command-count", Severity::Error, "More or fewer commands of a kind than a job has.", "", "", ""};
const Rule unresolved_reference{
  "unresolved-reference", Severity::Error, "A reference to a command that is not there.", "", "", ""};
const Rule wrong_target{"wrong-target", Severity::Error, "A reference to a command of another kind.", "", "", ""};
const Rule unreachable_command{
  "unreachable-command", Severity::Warning, "A command that nothing reaches from ALGO_.", "", "", ""};
const Rule reference_cycle{
  "reference-cycle", Severity::Error, "Commands that refer to themselves in a circle.", "", "", ""};
const Rule list_lengths{
  "list-lengths", Severity::Error, "Lists that stand beside each other with different lengths.", "", "", ""};
const Rule response_or_operator{"response-or-operator",
                                Severity::Error,
                                "Both or neither of DRESP_ and OPERATOR_ in an objective or constraint.",
                                "",
                                "",
                                ""};
const Rule limits{"limits", Severity::Error, "A lower limit above its upper limit.", "", "", ""};
const Rule no_basis{"no-basis", Severity::Error, "Vectors of a coordinate system that are no basis.", "", "", ""};
const Rule unknown_model_id{"unknown-model-id", Severity::Error, "A name that the model does not know.", "", "", ""};
const Rule unused_group{
  "unused-group", Severity::Warning, "A group command that nothing in the job names.", "", "", ""};
const Rule unused_model_group{
  "unused-model-group", Severity::Note, "A group of the model that the job never uses.", "", "", ""};

}  // namespace rules

std::string_view SeverityName(Severity severity)
{
  switch (severity)
  {
    case Severity::Error: return "error";
    case Severity::Warning: return "warning";
    default: return "note";
  }
}

const std::vector<const Rule*>& AllRules()
{
  static const std::vector<const Rule*> all = {&rules::library,
                                               &rules::impossible_name,
                                               &rules::foreign_object,
                                               &rules::unknown_kind,
                                               &rules::unknown_key,
                                               &rules::missing_key,
                                               &rules::wrong_type,
                                               &rules::wrong_count,
                                               &rules::not_an_enumerator,
                                               &rules::command_count,
                                               &rules::unresolved_reference,
                                               &rules::wrong_target,
                                               &rules::unreachable_command,
                                               &rules::reference_cycle,
                                               &rules::list_lengths,
                                               &rules::response_or_operator,
                                               &rules::limits,
                                               &rules::no_basis,
                                               &rules::unknown_model_id,
                                               &rules::unused_group,
                                               &rules::unused_model_group};
  return all;
}

const Rule* FindRule(std::string_view name)
{
  const auto rule =
    std::find_if(AllRules().begin(), AllRules().end(), [name](const Rule* one) { return one->name == name; });
  return rule != AllRules().end() ? *rule : nullptr;
}
