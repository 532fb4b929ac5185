#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"

#include "OrvelCmdEngine/OrvelCmd_Util.h"
#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"

#include <algorithm>

using namespace orvel::detail;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

// The command that stands for all design variables of a job, where there are several.
constexpr const char* kMergedDv = "__v_merged_DV";

void GiveIdName(const OrvelCmd& cmd, std::string& name)
{
  if (cmd.HasItem(Items::ID_NAME))
  {
    name = cmd.Item(Items::ID_NAME, 0).AsString();
  }
}

bool PassesFilter(const CommandRecord& record, const OrvelCmd& cmd)
{
  return OrvelCmd_Util::has_command_enum_with_value(cmd, record.filter_item, record.filter_value);
}

ItemSequence SequenceOf(const OrvelCmd& cmd, Items::CmdItem item)
{
  ItemSequence sequence;
  const auto& items = cmd.Items(item);
  sequence.reserve(items.size());
  for (const auto& one : items)
  {
    sequence.push_back(one.get());
  }
  return sequence;
}

ItemSequence FilteredSequenceOf(const OrvelCmd& cmd, const ItemMapping& mapping)
{
  ItemSequence sequence;
  const auto& filters = cmd.Items(mapping.filter_item);
  const auto& values = cmd.Items(mapping.value_item);
  for (std::size_t place = 0; place < std::min(filters.size(), values.size()); ++place)
  {
    if (filters[place] != nullptr && values[place] != nullptr && mapping.item_filter(*filters[place]))
    {
      sequence.push_back(values[place].get());
    }
  }
  return sequence;
}

}  // namespace

OrvelParfileStorageCmdContainer::OrvelParfileStorageCmdContainer(const OrvelCmdContainer& container)
  : m_cmd_container(&container)
{
  FillCommandRecords();
  FillSingletonCommands();
  FillKeyMappings();
  FillListItems();
  MapIdNamesToPosition();
}

OrvelParfileStorageCmdContainer::OrvelParfileStorageCmdContainer(const OrvelParfileStorageCmdContainer& other) =
  default;

OrvelParfileStorageCmdContainer&
OrvelParfileStorageCmdContainer::operator=(const OrvelParfileStorageCmdContainer& other) = default;

OrvelParfileStorageCmdContainer::~OrvelParfileStorageCmdContainer() = default;

// The first command of a name keeps it. The merged design variable is entered where no lookup of a DV finds it: that it
// is not found is how the handler of its key knows it.
void OrvelParfileStorageCmdContainer::MapIdNamesToPosition()
{
  for (std::size_t number = 0; number < kNumberOfKinds; ++number)
  {
    const auto kind = static_cast<Cmd>(number);
    for (std::uint64_t position = 0; position < m_cmd_container->GetNumberOfCommands(kind); ++position)
    {
      const OrvelCmd& cmd = m_cmd_container->_GetCommand(kind, position);
      if (cmd.HasItem(Items::ID_NAME))
      {
        m_id_positions[number].emplace(cmd.Item(Items::ID_NAME, 0).AsString(), position);
      }
    }
  }
  if (HasMergedDv(*m_cmd_container))
  {
    m_id_positions[Defs::OPTIONS].emplace(kMergedDv, m_cmd_container->GetNumberOfCommands(Defs::DV) + 1);
  }
}

const OrvelCmd& OrvelParfileStorageCmdContainer::FirstOptimize(const OrvelCmdContainer& container)
{
  return container._GetCommand(Defs::OPTIMIZE, 0);
}

bool OrvelParfileStorageCmdContainer::HasMergedDv(const OrvelCmdContainer& container)
{
  return FirstOptimize(container).Items(Items::DV).size() >= 2;
}

std::uint64_t OrvelParfileStorageCmdContainer::PlainCount(const CommandRecord& record,
                                                          const OrvelCmdContainer& container)
{
  return container.GetNumberOfCommands(record.kind);
}

std::uint64_t OrvelParfileStorageCmdContainer::FilteredCount(const CommandRecord& record,
                                                             const OrvelCmdContainer& container)
{
  return std::count_if(container.GetCommandBegin(record.kind), container.GetCommandEnd(record.kind),
                       [&](const auto& cmd) { return cmd != nullptr && PassesFilter(record, *cmd); });
}

std::uint64_t OrvelParfileStorageCmdContainer::DvCount(const CommandRecord& record, const OrvelCmdContainer& container)
{
  return PlainCount(record, container) + (HasMergedDv(container) ? 1 : 0);
}

void OrvelParfileStorageCmdContainer::PlainName(const CommandRecord& record, const OrvelCmdContainer& container,
                                                std::uint64_t position, std::string& name)
{
  if (container.HasCommand(record.kind))
  {
    GiveIdName(container._GetCommand(record.kind, position), name);
  }
}

void OrvelParfileStorageCmdContainer::FilteredName(const CommandRecord& record, const OrvelCmdContainer& container,
                                                   std::uint64_t position, std::string& name)
{
  std::uint64_t passed = 0;
  for (auto cmd = container.GetCommandBegin(record.kind); cmd != container.GetCommandEnd(record.kind); ++cmd)
  {
    if (*cmd == nullptr || !PassesFilter(record, **cmd))
    {
      continue;
    }
    if (passed == position)
    {
      GiveIdName(**cmd, name);
      return;
    }
    ++passed;
  }
}

void OrvelParfileStorageCmdContainer::DvName(const CommandRecord& record, const OrvelCmdContainer& container,
                                             std::uint64_t position, std::string& name)
{
  if (HasMergedDv(container) && position + 1 == DvCount(record, container))
  {
    name = kMergedDv;
    return;
  }
  PlainName(record, container, position, name);
}

// A design variable gives its own members; the merged one, which no parsed command is, all that OPTIMIZE names.
void OrvelParfileStorageCmdContainer::MergedDvMembers(const OrvelCmd* cmd, CmdItem item,
                                                      const OrvelCmdContainer& container, const ItemReader& reader)
{
  if (cmd != nullptr)
  {
    reader(SequenceOf(*cmd, item), item);
  }
  else if (item == Items::DV && HasMergedDv(container))
  {
    reader(SequenceOf(FirstOptimize(container), Items::DV), item);
  }
}

// Several design variables appear as one reference to the merged one.
void OrvelParfileStorageCmdContainer::OptimizeDvReferences(const OrvelCmd* cmd, CmdItem item,
                                                           const OrvelCmdContainer& container, const ItemReader& reader)
{
  if (cmd == nullptr)
  {
    return;
  }
  if (HasMergedDv(container))
  {
    OrvelCmd merged(Defs::DV);
    merged.AddStringItem(Items::ID_NAME, kMergedDv);
    const OrvelCmdReferenceItem reference(merged);
    reader({&reference}, item);
    return;
  }
  reader(SequenceOf(*cmd, item), item);
}

OrvelCmdDefs::Cmd OrvelParfileStorageCmdContainer::GetCmdType(const std::string& command) const
{
  const auto record = m_command_records.find(command);
  return record != m_command_records.end() ? record->second.kind : Defs::CMD_NONE;
}

const OrvelCmd* OrvelParfileStorageCmdContainer::GetCmdObject(Cmd kind, const std::string& id_name) const
{
  if (kind == Defs::CMD_NONE)
  {
    return nullptr;
  }
  const auto position = m_id_positions[kind].find(id_name);
  return position != m_id_positions[kind].end() ? &m_cmd_container->_GetCommand(kind, position->second) : nullptr;
}

const OrvelCmd* OrvelParfileStorageCmdContainer::GetCmdObject(const std::string& command,
                                                              const std::string& id_name) const
{
  return GetCmdObject(GetCmdType(command), id_name);
}

bool OrvelParfileStorageCmdContainer::ConsiderAsList(const ItemSequence& items, Cmd kind, CmdItem item) const
{
  return !items.empty() && items.front() != nullptr && items.front()->IsStringList() &&
         m_list_items.count({kind, item}) > 0;
}

void OrvelParfileStorageCmdContainer::ReadItems(const std::string& command, const std::string& id_name,
                                                const std::string& key, const ItemReader& reader) const
{
  const Cmd kind = GetCmdType(command);
  if (kind == Defs::CMD_NONE)
  {
    return;
  }
  const auto found = m_key_mappings[kind].find(key);
  if (found == m_key_mappings[kind].end())
  {
    return;
  }
  const ItemMapping& mapping = found->second;
  const OrvelCmd* cmd = GetCmdObject(kind, id_name);
  switch (mapping.mode)
  {
    case ItemMappingMode::DirectItem:
      if (cmd != nullptr && mapping.predicate(*cmd))
      {
        reader(SequenceOf(*cmd, mapping.item), mapping.item);
      }
      return;
    case ItemMappingMode::FilteredItem:
      if (cmd != nullptr)
      {
        reader(FilteredSequenceOf(*cmd, mapping), mapping.value_item);
      }
      return;
    case ItemMappingMode::ReferencedItem: ReadReferencedItems(mapping, reader); return;
    case ItemMappingMode::CustomItem:
      if (mapping.handler != nullptr)
      {
        mapping.handler(cmd, mapping.item, *m_cmd_container, reader);
      }
      return;
  }
}

void OrvelParfileStorageCmdContainer::ReadReferencedItems(const ItemMapping& mapping, const ItemReader& reader) const
{
  if (!m_cmd_container->HasCommand(mapping.source_kind))
  {
    return;
  }
  const OrvelCmd& source = m_cmd_container->_GetCommand(mapping.source_kind, 0);
  if (!source.HasItem(mapping.source_item) || !source.Item(mapping.source_item, 0).IsReference())
  {
    return;
  }
  const OrvelCmd* target = source.Item(mapping.source_item, 0).ReferencedCommand();
  if (target != nullptr && target->GetCmd() == mapping.target_kind && target->HasItem(mapping.target_item))
  {
    reader(SequenceOf(*target, mapping.target_item), mapping.target_item);
  }
}

template <class Action>
void OrvelParfileStorageCmdContainer::ReadItem(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, Action action) const
{
  const auto read = [&](const ItemSequence& items, CmdItem item) {
    const std::uint64_t place = ConsiderAsList(items, GetCmdType(command), item) ? 0 : index - 1;
    if (place < items.size() && items[place] != nullptr)
    {
      action(*items[place]);
    }
  };
  ReadItems(command, id_name, key, std::ref(read));
}

bool OrvelParfileStorageCmdContainer::HasCommand(const std::string& /*command*/, const std::string& /*id_name*/) const
{
  return false;
}

std::uint64_t OrvelParfileStorageCmdContainer::GetNumCommand(const std::string& command) const
{
  const auto record = m_command_records.find(command);
  const std::uint64_t count =
    record != m_command_records.end() ? record->second.count(record->second, *m_cmd_container) : 0;
  return count == 0 && m_singleton_commands.count(command) > 0 ? 1 : count;
}

std::uint64_t OrvelParfileStorageCmdContainer::GetNumElements(const std::string& command, const std::string& id_name,
                                                              const std::string& key) const
{
  std::uint64_t count = 0;
  ReadItems(command, id_name, key, [&](const ItemSequence& items, CmdItem item) {
    count = ConsiderAsList(items, GetCmdType(command), item) ? items.front()->AsStringList().size() : items.size();
  });
  return count;
}

bool OrvelParfileStorageCmdContainer::HasElement(const std::string& command, const std::string& id_name,
                                                 const std::string& key) const
{
  bool has = false;
  ReadItems(command, id_name, key, [&](const ItemSequence& items, CmdItem) { has = !items.empty(); });
  return has;
}

void OrvelParfileStorageCmdContainer::GetCommandName(const std::string& command, std::uint64_t position,
                                                     std::string& id_name) const
{
  id_name.clear();
  const auto record = m_command_records.find(command);
  if (record != m_command_records.end())
  {
    record->second.name_at(record->second, *m_cmd_container, position, id_name);
  }
}

void OrvelParfileStorageCmdContainer::GetReference(const std::string& command, const std::string& id_name,
                                                   const std::string& key, std::uint64_t index,
                                                   std::string& target_id_name) const
{
  target_id_name.clear();
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) {
    if (item.IsReference())
    {
      target_id_name = item.AsString();
    }
  });
}

void OrvelParfileStorageCmdContainer::GetValue(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, VtmType /*type*/,
                                               std::vector<int>& value) const
{
  value.clear();
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) {
    if (item.IsIntegerSet())
    {
      const std::set<int> members = item.AsIntegerSet();
      value.assign(members.begin(), members.end());
    }
  });
}

void OrvelParfileStorageCmdContainer::GetValue(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, VtmType /*type*/,
                                               std::string& value) const
{
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) {
    const auto texts = item.IsStringList() ? item.AsStringList() : std::vector<std::string>();
    value = index - 1 < texts.size() ? texts[index - 1] : item.AsString();
  });
}

void OrvelParfileStorageCmdContainer::GetValue(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, VtmType /*type*/,
                                               double& value) const
{
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) { value = item.AsDouble(); });
}

void OrvelParfileStorageCmdContainer::GetValue(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, VtmType /*type*/,
                                               int& value) const
{
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) { value = item.AsInteger(); });
}

void OrvelParfileStorageCmdContainer::GetEnumValue(const std::string& command, const std::string& id_name,
                                                   const std::string& key, std::uint64_t index, VtmType /*type*/,
                                                   int& value) const
{
  value = 0;
  ReadItem(command, id_name, key, index, [&](const OrvelCmdItem& item) { value = item.AsEnumValue(); });
}

// What parsed commands cannot give or take.

void OrvelParfileStorageCmdContainer::GetValue(const std::string&, const std::string&, const std::string&,
                                               std::uint64_t, VtmType, std::vector<double>&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const std::vector<double>&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const std::vector<int>&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const char&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const std::string&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const double&) const
{
}

void OrvelParfileStorageCmdContainer::SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                                               const int&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const std::vector<double>&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const std::vector<int>&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const char&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const std::string&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const double&) const
{
}

void OrvelParfileStorageCmdContainer::AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                                               const int&) const
{
}

void OrvelParfileStorageCmdContainer::DeleteValues(const std::string&, const std::string&, const std::string&) {}

void OrvelParfileStorageCmdContainer::AddCommand(const std::string&, const std::string&) const {}

void OrvelParfileStorageCmdContainer::AddReference(const std::string&, const std::string&, const std::string&,
                                                   const std::string&, const std::string&) const
{
}
