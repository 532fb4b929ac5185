// A generated job as the command engine holds it.

#include "support/generated_job.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace benchmarks
{
namespace
{

using Cmd = OrvelCmdDefs;
using Item = OrvelCmdItemDefs;

struct ParsedKey
{
  const char* key;
  Item::CmdItem item;
};

struct ParsedKind
{
  Cmd::Cmd cmd;
  std::vector<ParsedKey> keys;
};

// Kinds with one command each of the engine, typed by hand from docs/parsed_commands.md. Of DV_ and ALGO_ the design
// variables, of groups the operands, of operators the operands are added by functions of their own below.
const std::map<std::string, ParsedKind>& Kinds()
{
  static const std::map<std::string, ParsedKind> kinds = {
    {"MODEL_", {Cmd::MODEL_INPUT, {{"FILE_", Item::FILE}}}},
    {"ELEMENT_GROUP_", {Cmd::GROUP_DEF, {}}},
    {"NODE_GROUP_", {Cmd::GROUP_DEF, {}}},
    {"DV_",
     {Cmd::DV,
      {{"ELEMENT_GROUP_", Item::ELEMENT_GROUP},
       {"NODE_GROUP_", Item::NODE_GROUP},
       {"INITIAL_", Item::VALUE},
       {"INITIAL_DV_FIELD_", Item::FILE},
       {"FILTER_", Item::REFERENCE},
       {"TYPE_", Item::TYPE}}}},
    {"DRESP_",
     {Cmd::DRESP,
      {{"TYPE_", Item::TYPE},
       {"ELEMENT_GROUP_", Item::ELEMENT_GROUP},
       {"NODE_GROUP_", Item::NODE_GROUP},
       {"UPDATE_TYPE_", Item::UPDATE_TYPE},
       {"UPDATE_ID_", Item::UPDATE_ID},
       {"LOADCASE_", Item::LOADCASE},
       {"FILE_", Item::FILE},
       {"CS_REF_", Item::CS}}}},
    {"OPERATOR_",
     {Cmd::OPERATOR, {{"TYPE_", Item::TYPE}, {"UPDATE_TYPE_", Item::UPDATE_TYPE}, {"UPDATE_ID_", Item::UPDATE_ID}}}},
    {"OBJ_FUNC_", {Cmd::OBJ_FUNC, {{"TARGET_", Item::TARGET}, {"DRESP_", Item::DRESP}, {"OPERATOR_", Item::DRESP}}}},
    {"CONSTRAINT_",
     {Cmd::CONSTRAINT,
      {{"TYPE_", Item::TYPE},
       {"VALUE_", Item::VALUE},
       {"COEFFICIENT_", Item::COEFFICIENT},
       {"MAGNITUDE_", Item::MAGNITUDE},
       {"DRESP_", Item::DRESP},
       {"OPERATOR_", Item::DRESP}}}},
    {"DV_CONSTRAINT_",
     {Cmd::DV_CONSTRAINT,
      {{"DVC_TYPE_", Item::TYPE},
       {"ELEMENT_GROUP_", Item::ELEMENT_GROUP},
       {"NODE_GROUP_", Item::NODE_GROUP},
       {"SCALING_CURVE_", Item::REFERENCE},
       {"RADIUS_", Item::VALUE}}}},
    {"ALGO_",
     {Cmd::OPTIMIZE,
      {{"STRATEGY_", Item::STRATEGY},
       {"OBJ_FUNC_", Item::OBJ_FUNC},
       {"CONSTRAINT_", Item::CONSTRAINT},
       {"DV_CONSTRAINT_", Item::DV_CONSTRAINT},
       {"STOP_", Item::STOP},
       {"MESH_SMOOTH_", Item::MESH_SMOOTH},
       {"OPT_PARAM_", Item::OPT_PARAM}}}},
    {"OPT_PARAM_", {Cmd::OPT_PARAM, {}}},
    {"STOP_", {Cmd::STOP, {{"ITER_MAX_", Item::ITER_MAX}}}},
    {"MESH_SMOOTH_", {Cmd::MESH_SMOOTH, {{"METHOD_", Item::STRATEGY}}}},
    {"FILTER_", {Cmd::FILTER, {{"METHOD_", Item::TYPE}, {"RADIUS_", Item::VALUE}, {"ALPHA_", Item::TARGET}}}},
    {"OUTPUT_",
     {Cmd::OUTPUT,
      {{"FILENAME_", Item::FILE},
       {"FORMAT_", Item::FORMAT},
       {"TYPE_", Item::TYPE},
       {"ELEMENT_GROUP_", Item::ELEMENT_GROUP}}}},
    {"SCALING_CURVE_",
     {Cmd::SCALING_CURVE,
      {{"TYPE_", Item::TYPE},
       {"UPDATE_ID_", Item::UPDATE_ID},
       {"MIN_", Item::MIN},
       {"MAX_", Item::MAX},
       {"PENALISATION_", Item::VALUE},
       {"DATA_SHIFT_", Item::COEFFICIENT}}}},
    {"SMOOTH_", {Cmd::SMOOTH, {}}},
  };
  return kinds;
}

// What the four kinds over OPT_PARAM read from the one DV_UPDATE_PARAM.
constexpr ParsedKey kUpdateKeys[] = {{"MIN_", Item::MIN},
                                     {"MAX_", Item::MAX},
                                     {"ALGORITHM_", Item::STRATEGY},
                                     {"MOVE_", Item::VALUE},
                                     {"ASYM_MOVE_", Item::UPDATE_TYPE},
                                     {"ASYM_MOVE_LOW_", Item::LOWER},
                                     {"ASYM_MOVE_UP_", Item::UPPER}};

struct GroupFormat
{
  const char* key;
  Item::EnumValue format;
};
constexpr GroupFormat kGroupFormats[] = {{"MERGE_", Item::GROUP_FORMAT_MERGE},
                                         {"XOR_", Item::GROUP_FORMAT_XOR},
                                         {"INTERSECT_", Item::GROUP_FORMAT_INTERSECT},
                                         {"SUBTRACT_", Item::GROUP_FORMAT_SUBTRACT}};

const JobKey* FindKey(const JobCommand& command, std::string_view name)
{
  const auto is_key = [&](const JobKey& key) { return key.field->key == name; };
  const auto found = std::find_if(command.keys.begin(), command.keys.end(), is_key);
  return found != command.keys.end() ? &*found : nullptr;
}

const std::string& Text(const JobValue& value)
{
  return std::get<std::string>(value);
}

bool IsGroup(const JobCommand& command)
{
  return Kinds().count(std::string(command.kind->kind)) > 0 &&
         Kinds().at(std::string(command.kind->kind)).cmd == Cmd::GROUP_DEF;
}

const JobCommand& OfKind(const std::vector<JobCommand>& job, std::string_view kind)
{
  return *std::find_if(job.begin(), job.end(), [&](const JobCommand& command) { return command.kind->kind == kind; });
}

template <class Keys>
bool Names(const Keys& keys, std::string_view name)
{
  return std::any_of(std::begin(keys), std::end(keys), [&](const auto& key) { return key.key == name; });
}

bool HasParsedForm(const JobCommand& command, const JobKey& key)
{
  const std::string kind(command.kind->kind);
  const auto parsed = Kinds().find(kind);
  if (parsed == Kinds().end())
  {
    return kind.rfind("AS_", 0) == 0 && Names(kUpdateKeys, key.field->key);
  }
  if (IsGroup(command))
  {
    const auto is_there = [&](const GroupFormat& format) { return FindKey(command, format.key) != nullptr; };
    const auto* first = std::find_if(std::begin(kGroupFormats), std::end(kGroupFormats), is_there);
    return first != std::end(kGroupFormats) && first->key == key.field->key;
  }
  const bool is_operand =
    kind == "OPERATOR_" &&
    (key.field->type == vtmReference || key.field->key == "DRESP_WEIGHT_" || key.field->key == "OPERATOR_WEIGHT_");
  const bool is_setting = kind == "ALGO_" && (key.field->key == "DV_" || key.field->key == "PRE_PARAM_" ||
                                              key.field->key.substr(0, 3) == "AS_");
  return is_operand || is_setting || Names(parsed->second.keys, key.field->key);
}

bool IsAbsentFromEngine(const JobCommand& command)
{
  const std::string_view kind = command.kind->kind;
  return kind == "FACE_GROUP_" || kind == "CS_" || kind == "MONITOR_";
}

// The design variable of ALGO_ merges all others, as the storage has it where OPTIMIZE names several.
void MergeDesignVariables(std::vector<JobCommand>& job)
{
  const std::string merged = Text(FindKey(OfKind(job, "ALGO_"), "DV_")->values.front());
  JobKey members{orvel::schema::FindField(*OfKind(job, "DV_").kind, "DV_"), {}};
  for (const JobCommand& command : job)
  {
    if (command.kind->kind == "DV_" && command.id != merged)
    {
      members.values.emplace_back(command.id);
    }
  }
  for (JobCommand& command : job)
  {
    if (command.kind->kind == "DV_" && command.id == merged)
    {
      command.keys = {members};
    }
  }
}

class Filler
{
public:
  explicit Filler(OrvelCmdContainer& container) : m_container(container) {}

  void Fill(const std::vector<JobCommand>& job)
  {
    const std::string merged = Text(FindKey(OfKind(job, "ALGO_"), "DV_")->values.front());
    for (const JobCommand& command : job)
    {
      const auto kind = Kinds().find(std::string(command.kind->kind));
      const bool is_merged = command.kind->kind == "DV_" && command.id == merged;
      if (kind != Kinds().end() && !is_merged)
      {
        OrvelCmd& cmd = m_container.AddCommand(kind->second.cmd);
        cmd.AddStringItem(Item::ID_NAME, command.id);
        m_commands[{command.kind->kind, command.id}] = &cmd;
      }
    }
    for (const JobCommand& command : job)
    {
      const auto cmd = m_commands.find({command.kind->kind, command.id});
      if (cmd != m_commands.end())
      {
        FillCommand(command, *cmd->second);
      }
      else if (command.kind->kind == "DV_")
      {
        AddReferences(*m_commands.at({"ALGO_", OfKind(job, "ALGO_").id}), Item::DV, *FindKey(command, "DV_"));
      }
    }
    AddUpdate(job);
  }

private:
  void FillCommand(const JobCommand& command, OrvelCmd& cmd)
  {
    if (IsGroup(command))
    {
      AddGroup(command, cmd);
    }
    for (const auto& [key, item] : Kinds().at(std::string(command.kind->kind)).keys)
    {
      if (const JobKey* values = FindKey(command, key))
      {
        AddItems(cmd, item, *values);
      }
    }
    if (command.kind->kind == "OPERATOR_")
    {
      AddOperands(cmd, command, "DRESP_", "DRESP_WEIGHT_");
      AddOperands(cmd, command, "OPERATOR_", "OPERATOR_WEIGHT_");
    }
  }

  static void AddGroup(const JobCommand& command, OrvelCmd& cmd)
  {
    cmd.AddEnumItem(Item::TYPE, command.kind->kind == "NODE_GROUP_" ? Item::GROUP_TYPE_NODE : Item::GROUP_TYPE_ELEMENT);
    for (const GroupFormat& format : kGroupFormats)
    {
      if (const JobKey* operands = FindKey(command, format.key))
      {
        std::vector<std::string> names;
        for (const JobValue& name : operands->values)
        {
          names.push_back(Text(name));
        }
        cmd.AddEnumItem(Item::FORMAT, format.format);
        cmd.AddStringListItem(Item::LIST_BEGIN, names);
      }
    }
  }

  void AddOperands(OrvelCmd& cmd, const JobCommand& command, const char* references, const char* weights)
  {
    const JobKey* operands = FindKey(command, references);
    if (operands != nullptr)
    {
      AddReferences(cmd, Item::REFERENCE, *operands);
      AddItems(cmd, Item::COEFFICIENT, *FindKey(command, weights));
    }
  }

  void AddReferences(OrvelCmd& cmd, Item::CmdItem item, const JobKey& key)
  {
    for (const JobValue& reference : key.values)
    {
      cmd.AddReferenceItem(item, *m_commands.at({key.field->target, Text(reference)}));
    }
  }

  void AddItems(OrvelCmd& cmd, Item::CmdItem item, const JobKey& key)
  {
    if (key.field->type == vtmReference)
    {
      AddReferences(cmd, item, key);
      return;
    }
    for (const JobValue& value : key.values)
    {
      switch (key.field->type)
      {
        case vtmEnum: cmd.AddEnumItem(item, static_cast<Item::EnumValue>(std::get<int>(value))); break;
        case vtmInteger: cmd.AddIntegerItem(item, std::get<int>(value)); break;
        case vtmDouble: cmd.AddDoubleItem(item, std::get<double>(value)); break;
        default: cmd.AddStringItem(item, Text(value)); break;
      }
    }
  }

  void AddUpdate(const std::vector<JobCommand>& job)
  {
    OrvelCmd& update = m_container.AddCommand(Cmd::DV_UPDATE_PARAM);
    update.AddStringItem(Item::ID_NAME, "update");
    for (const auto& [key, item] : kUpdateKeys)
    {
      AddItems(update, item, *FindKey(OfKind(job, "AS_TOPO_SENS_"), key));
    }
    m_commands.at({"ALGO_", OfKind(job, "ALGO_").id})->AddReferenceItem(Item::DV_UPDATE_PARAM, update);
  }

  OrvelCmdContainer& m_container;
  std::map<std::pair<std::string_view, std::string>, OrvelCmd*> m_commands;
};

}  // namespace

std::vector<JobCommand> ParsedPart(const std::vector<JobCommand>& job)
{
  std::vector<JobCommand> parsed;
  for (const JobCommand& command : job)
  {
    if (IsAbsentFromEngine(command))
    {
      continue;
    }
    JobCommand copy{command.kind, command.id, {}};
    std::copy_if(command.keys.begin(), command.keys.end(), std::back_inserter(copy.keys),
                 [&](const JobKey& key) { return HasParsedForm(command, key); });
    parsed.push_back(std::move(copy));
  }
  MergeDesignVariables(parsed);
  return parsed;
}

void FillContainer(const std::vector<JobCommand>& job, OrvelCmdContainer& container)
{
  Filler(container).Fill(job);
}

}  // namespace benchmarks
