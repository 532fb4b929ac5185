#include "job/job_description.h"
#include "job/stored_type.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/schema_names.h"

#include "OrvelCommands/commands/command_schema.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <limits>
#include <memory>

namespace schema = orvel::schema;
using Json = nlohmann::ordered_json;

namespace
{

struct Options
{
  std::string kind;
  bool markdown = false;
  bool json_schema = false;
};

const char* TypeText(VtmType type)
{
  switch (type)
  {
    case vtmInteger: return "whole number";
    case vtmDouble: return "number";
    case vtmEnum: return "enumerator";
    case vtmModelId: return "model id";
    case vtmIntegerList: return "list of whole numbers";
    case vtmDoubleList: return "list of numbers";
    case vtmReference: return "reference";
    default: return "text";
  }
}

const char* PresenceText(schema::Presence presence)
{
  switch (presence)
  {
    case schema::Presence::Always: return "always";
    case schema::Presence::Optional: return "optional";
    default: return "any number";
  }
}

// What a value of the key must be, beyond its type.
std::string RangeText(const schema::Field& field)
{
  if (!field.target.empty())
  {
    return "to a " + std::string(field.target);
  }
  if (field.id_type)
  {
    return "one of the " + IdListName(*field.id_type) + " of the model";
  }
  std::string names;
  for (const std::string& name : EnumeratorNames(field))
  {
    names += (names.empty() ? "" : ", ") + name;
  }
  return names;
}

std::string CountText(schema::Count count)
{
  return count == schema::Count::One ? "exactly one" : "any number";
}

void PrintText(const schema::Command& command)
{
  std::cout << command.kind << " (" << command.text_name << "), " << CountText(command.count) << "\n  "
            << command.documentation << "\n";
  for (const schema::Field& field : command.fields)
  {
    const std::string range = RangeText(field);
    std::cout << "  " << field.key << ": " << TypeText(field.type) << ", " << PresenceText(field.presence) << "\n"
              << "      " << field.documentation << "\n"
              << (range.empty() ? "" : "      " + range + "\n");
  }
  std::cout << "\n";
}

void PrintMarkdown(const schema::Command& command)
{
  std::cout << "\n## " << command.kind << "\n\n"
            << command.documentation << " A job has " << CountText(command.count) << "; a parameter file calls it `"
            << command.text_name << "`.\n\n"
            << "| Key | Value | There | What it is |\n|---|---|---|---|\n";
  for (const schema::Field& field : command.fields)
  {
    const std::string range = RangeText(field);
    std::cout << "| `" << field.key << "` | " << TypeText(field.type) << (range.empty() ? "" : ": " + range) << " | "
              << PresenceText(field.presence) << " | " << field.documentation << " |\n";
  }
}

// The JSON schema of one value of a key, as a job description holds it.
Json ValueSchema(const schema::Field& field)
{
  constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
  constexpr auto highest = std::numeric_limits<std::int32_t>::max();
  Json integer = {{"type", "integer"}, {"minimum", lowest}, {"maximum", highest}};
  switch (field.type)
  {
    case vtmInteger: return integer;
    case vtmDouble: return {{"type", "number"}};
    case vtmIntegerList: return {{"type", "array"}, {"items", integer}};
    case vtmDoubleList: return {{"type", "array"}, {"items", {{"type", "number"}}}};
    case vtmEnum: return {{"enum", EnumeratorNames(field)}};
    default: return {{"type", "string"}};
  }
}

constexpr const char* kTypedKey = "typed_key";

Json TypedKeyReference()
{
  return {{"$ref", std::string("#/$defs/") + kTypedKey}};
}

// A key that stands with its type, as an export has what no command reads.
Json TypedKeySchema()
{
  return {{"description", "What no command reads in this form, with its type in the parameter file."},
          {"type", "object"},
          {"properties",
           {{kTypeMember, {{"enum", StoredTypeNames()}}},
            {kValuesMember, {{"type", "array"}}},
            {kHexMember, {{"type", "array"}, {"items", {{"type", "string"}}}}}}},
          {"required", {kTypeMember}},
          {"minProperties", 2},
          {"maxProperties", 2},
          {"additionalProperties", false}};
}

// Commands of kinds that no command class reads.
Json ExtraKindSchema()
{
  const Json one = {{"type", "object"}, {"additionalProperties", TypedKeyReference()}};
  return {{"type", "object"}, {"additionalProperties", one}};
}

Json KindSchema(const schema::Command& command)
{
  Json keys = Json::object();
  Json required = Json::array();
  for (const schema::Field& field : command.fields)
  {
    const Json plain = field.presence == schema::Presence::Repeated
                         ? Json{{"type", "array"}, {"items", ValueSchema(field)}}
                         : ValueSchema(field);
    keys[std::string(field.key)] = {{"description", field.documentation}, {"anyOf", {plain, TypedKeyReference()}}};
    if (field.presence == schema::Presence::Always)
    {
      required.push_back(field.key);
    }
  }
  const Json one = {
    {"type", "object"}, {"properties", keys}, {"required", required}, {"additionalProperties", TypedKeyReference()}};
  return {{"description", command.documentation}, {"type", "object"}, {"additionalProperties", one}};
}

void PrintJsonSchema()
{
  Json kinds = Json::object();
  for (const schema::Command& command : schema::Commands())
  {
    kinds[std::string(command.kind)] = KindSchema(command);
  }
  kinds[kExtraKinds] = {{"description", "Kinds of this description that no command class reads."},
                        {"type", "array"},
                        {"items", {{"type", "string"}}}};
  const Json all = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                    {"title", "A job description for orvel-parfile"},
                    {"type", "object"},
                    {"properties", kinds},
                    {"additionalProperties", ExtraKindSchema()},
                    {"$defs", {{kTypedKey, TypedKeySchema()}}}};
  std::cout << all.dump(2) << "\n";
}

void Schema(const Options& options)
{
  if (!options.kind.empty() && schema::FindCommand(options.kind) == nullptr)
  {
    throw UnusableInput("there is no kind of command " + options.kind + "; " + NearestName(options.kind, KindNames()));
  }
  if (options.json_schema)
  {
    PrintJsonSchema();
    return;
  }
  if (options.markdown)
  {
    std::cout << "# The commands\n\nMade by `orvel-parfile schema --markdown` from the command tables.\n";
  }
  for (const schema::Command& command : schema::Commands())
  {
    if (options.kind.empty() || command.kind == options.kind)
    {
      (options.markdown ? PrintMarkdown : PrintText)(command);
    }
  }
}

}  // namespace

void AddSchema(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand("schema", "Tell what commands there are and what they hold.");
  sub->add_option("kind", options->kind, "One kind of command; all without it");
  auto* markdown = sub->add_flag("--markdown", options->markdown, "As a page of documentation");
  sub->add_flag("--json-schema", options->json_schema, "All kinds, as a JSON schema for editors of job descriptions")
    ->excludes(markdown);
  sub->footer("Example: orvel-parfile schema DV_");
  sub->callback([options] { Schema(*options); });
}
