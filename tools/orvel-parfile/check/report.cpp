#include "report.h"

#include "OrvelCommands/commands/command_schema.h"
#include "support/plain_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <limits>
#include <tuple>

namespace schema = orvel::schema;

namespace
{

constexpr const char* kIndent = "    ";

// "file:line:column" taken apart. Line and column are 0 where there are none.
struct Place
{
  std::string file;
  unsigned line = 0;
  unsigned column = 0;
};

unsigned NumberAfter(const std::string& text, std::size_t colon)
{
  unsigned number = 0;
  std::from_chars(text.data() + colon + 1, text.data() + text.size(), number);
  return number;
}

// What is about the whole of a job description stands at its beginning.
Place PlaceOf(const Finding& finding, const Report& report)
{
  const std::size_t column = finding.place.rfind(':');
  const std::size_t line = column != std::string::npos && column > 0 ? finding.place.rfind(':', column - 1) : column;
  if (line == std::string::npos)
  {
    const unsigned first = report.is_description ? 1 : 0;
    return {report.file.string(), first, first};
  }
  return {finding.place.substr(0, line), NumberAfter(finding.place, line), NumberAfter(finding.place, column)};
}

std::string AsText(const Place& place)
{
  return place.line == 0 ? place.file
                         : place.file + ":" + std::to_string(place.line) + ":" + std::to_string(place.column);
}

// The place of a name among the rows of the schema, behind all of them for one that has none.
template <class Rows, class Name>
std::size_t RankIn(const Rows& rows, Name is_named)
{
  return static_cast<std::size_t>(std::find_if(rows.begin(), rows.end(), is_named) - rows.begin());
}

struct SortKey
{
  int group;  // the library, the job, the model
  unsigned line;
  unsigned column;
  std::size_t kind_rank;
  std::string_view kind;
  std::string_view id;
  std::size_t key_rank;
  std::string_view key;
  std::size_t rule;

  auto Tie() const { return std::tie(group, line, column, kind_rank, kind, id, key_rank, key, rule); }
};

SortKey SortKeyOf(const Finding& finding, const Report& report)
{
  const Place place = PlaceOf(finding, report);
  const bool is_elsewhere = place.file != report.file.string();
  const schema::Command* kind = schema::FindCommand(finding.kind);
  const auto kinds = schema::Commands();
  const std::size_t kind_rank =
    finding.kind.empty() ? 0 : 1 + RankIn(kinds, [&](const schema::Command& one) { return one.kind == finding.kind; });
  const std::size_t key_rank =
    finding.key.empty() || kind == nullptr
      ? 0
      : 1 + RankIn(kind->fields, [&](const schema::Field& one) { return one.key == finding.key; });
  return {finding.rule == &rules::library ? 0
          : is_elsewhere                  ? 2
                                          : 1,
          place.line,
          place.column,
          kind_rank,
          finding.kind,
          finding.id,
          key_rank,
          finding.key,
          RankIn(AllRules(), [&](const Rule* one) { return one == finding.rule; })};
}

// A text of several lines keeps them below its first one.
std::string Indented(const std::string& text)
{
  std::string indented;
  for (const char character : text)
  {
    indented += character == '\n' ? std::string("\n") + kIndent : std::string(1, character);
  }
  return indented;
}

std::string Block(const Finding& finding, const Report& report)
{
  const std::string text = PrintableLines(finding.text);
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string block = AsText(PlaceOf(finding, report)) + ": " + std::string(SeverityName(finding.rule->severity)) +
                      ": " + text.substr(0, end) + " [" + std::string(finding.rule->name) + "]" +
                      Indented(text.substr(end)) + "\n";
  if (!finding.remedy.empty())
  {
    block += kIndent + ("mend: " + Indented(PrintableLines(finding.remedy))) + "\n";
  }
  return block;
}

std::string CountText(std::size_t count, const std::string& what)
{
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string CountLine(const FindingCounts& counts)
{
  std::string line;
  const auto add = [&line](const std::string& text) { line += (line.empty() ? "" : ", ") + text; };
  for (const auto& [count, what] :
       {std::pair(counts.errors, "error"), std::pair(counts.warnings, "warning"), std::pair(counts.notes, "note")})
  {
    if (count > 0)
    {
      add(CountText(count, what));
    }
  }
  if (counts.ignored > 0)
  {
    add(std::to_string(counts.ignored) + " ignored");
  }
  return line.empty() ? line : line + "\n";
}

using Json = nlohmann::ordered_json;

Json AsJson(const Finding& finding, const Report& report)
{
  const Place place = PlaceOf(finding, report);
  const auto number = [](unsigned value) { return value == 0 ? Json(nullptr) : Json(value); };
  return {{"rule", finding.rule->name},
          {"severity", SeverityName(finding.rule->severity)},
          {"kind", finding.kind},
          {"id", finding.id},
          {"key", finding.key},
          {"value", finding.value},
          {"file", place.file},
          {"line", number(place.line)},
          {"column", number(place.column)},
          {"text", finding.text},
          {"remedy", finding.remedy}};
}

}  // namespace

FindingCounts Count(const Report& report)
{
  FindingCounts counts;
  counts.ignored = report.ignored;
  for (const Finding& finding : report.findings)
  {
    const Severity severity = finding.rule->severity;
    ++(severity == Severity::Error ? counts.errors : severity == Severity::Warning ? counts.warnings : counts.notes);
  }
  return counts;
}

void Sort(Report& report)
{
  std::vector<std::pair<SortKey, const Finding*>> order;
  order.reserve(report.findings.size());
  for (const Finding& finding : report.findings)
  {
    order.emplace_back(SortKeyOf(finding, report), &finding);
  }
  std::stable_sort(order.begin(), order.end(),
                   [](const auto& one, const auto& other) { return one.first.Tie() < other.first.Tie(); });
  std::vector<Finding> sorted;
  sorted.reserve(order.size());
  for (const auto& [key, finding] : order)
  {
    sorted.push_back(*finding);
  }
  report.findings = std::move(sorted);
}

std::string AsText(const Report& report)
{
  std::string text;
  for (const Finding& finding : report.findings)
  {
    text += Block(finding, report);
  }
  return text + CountLine(Count(report));
}

std::string AsJson(const Report& report)
{
  const FindingCounts counts = Count(report);
  Json findings = Json::array();
  for (const Finding& finding : report.findings)
  {
    findings.push_back(AsJson(finding, report));
  }
  const Json json = {
    {"file", report.file.string()},
    {"job", report.job},
    {"findings", findings},
    {"counts",
     {{"errors", counts.errors}, {"warnings", counts.warnings}, {"notes", counts.notes}, {"ignored", counts.ignored}}},
    {"inventory",
     {{"kinds", report.inventory.kinds},
      {"commands", report.inventory.commands},
      {"values", report.inventory.values},
      {"model_ids", report.inventory.model_ids},
      {"references", report.inventory.references}}}};
  // Names in a file need not be UTF-8.
  return PrintableLines(json.dump(2, ' ', false, Json::error_handler_t::replace)) + "\n";
}
