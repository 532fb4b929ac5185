#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"

#include "OrvelCmdEngine/OrvelCmd_Util.h"
#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"

#include <algorithm>
#include <utility>

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

std::vector<const OrvelCmdItem*> FilteredItemsOf(const OrvelCmd& cmd, const ItemMapping& mapping)
{
  std::vector<const OrvelCmdItem*> chosen;
  const auto& filters = cmd.Items(mapping.filter_item);
  const auto& values = cmd.Items(mapping.value_item);
  for (std::size_t place = 0; place < std::min(filters.size(), values.size()); ++place)
  {
    if (filters[place] != nullptr && values[place] != nullptr && mapping.item_filter(*filters[place]))
    {
      chosen.push_back(values[place].get());
    }
  }
  return chosen;
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

// All or nothing: tables of one container beside another would lead to other commands without a word.
OrvelParfileStorageCmdContainer&
OrvelParfileStorageCmdContainer::operator=(const OrvelParfileStorageCmdContainer& other)
{
  OrvelParfileStorageCmdContainer copy(other);
  std::swap(m_cmd_container, copy.m_cmd_container);
  m_spare_names.swap(copy.m_spare_names);
  m_spare_name_pairs.swap(copy.m_spare_name_pairs);
  std::swap(m_command_records, copy.m_command_records);
  m_id_positions.swap(copy.m_id_positions);
  m_key_mappings.swap(copy.m_key_mappings);
  m_list_items.swap(copy.m_list_items);
  m_singleton_commands.swap(copy.m_singleton_commands);
  return *this;
}

OrvelParfileStorageCmdContainer::~OrvelParfileStorageCmdContainer() = default;

// The first command of a name keeps it. The merged design variable is entered where no lookup of a DV finds it: that it
// is not found is how the handler of its key knows it.
void OrvelParfileStorageCmdContainer::MapIdNamesToPosition()
{
  for (std::size_t number = 0; number < Defs::CMD_NONE; ++number)
  {
    const auto kind = static_cast<Cmd>(number);
    const std::uint64_t count = m_cmd_container->GetNumberOfCommands(kind);
    m_id_positions[number].Reserve(count);
    for (std::uint64_t position = 0; position < count; ++position)
    {
      const OrvelCmd& cmd = m_cmd_container->_GetCommand(kind, position);
      if (cmd.HasItem(Items::ID_NAME))
      {
        m_id_positions[number].Add(cmd.Item(Items::ID_NAME, 0).AsString(), position);
      }
    }
  }
  if (HasMergedDv(*m_cmd_container))
  {
    m_id_positions[Defs::OPTIONS].Add(kMergedDv, m_cmd_container->GetNumberOfCommands(Defs::DV) + 1);
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
  const auto end = container.GetCommandEnd(record.kind);
  for (auto cmd = container.GetCommandBegin(record.kind); cmd != end; ++cmd)
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
    reader(ItemSequence(cmd->Items(item)), item);
  }
  else if (item == Items::DV && HasMergedDv(container))
  {
    reader(ItemSequence(FirstOptimize(container).Items(Items::DV)), item);
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
    const OrvelCmdItem* only = &reference;
    reader(ItemSequence(only), item);
    return;
  }
  reader(ItemSequence(cmd->Items(item)), item);
}

OrvelCmdDefs::Cmd OrvelParfileStorageCmdContainer::GetCmdType(const std::string& command) const
{
  const CommandRecord* record = m_command_records.Find(command);
  return record != nullptr ? record->kind : Defs::CMD_NONE;
}

const OrvelCmd* OrvelParfileStorageCmdContainer::GetCmdObject(Cmd kind, const std::string& id_name) const
{
  const std::uint64_t* position = m_id_positions[kind].Find(id_name);
  return position != nullptr ? &m_cmd_container->_GetCommand(kind, *position) : nullptr;
}

bool OrvelParfileStorageCmdContainer::ConsiderAsList(const ItemSequence& items, Cmd kind, CmdItem item) const
{
  return m_list_items.count({kind, item}) > 0 && !items.empty() && items[0] != nullptr && items[0]->IsStringList();
}

template <class Reader>
void OrvelParfileStorageCmdContainer::ReadItems(const std::string& command, const std::string& id_name,
                                                const std::string& key, const Reader& reader) const
{
  const Cmd kind = GetCmdType(command);
  const ItemMapping* mapping = m_key_mappings[kind].Find(key);
  if (mapping == nullptr)
  {
    return;
  }
  const OrvelCmd* cmd = GetCmdObject(kind, id_name);
  if (mapping->mode != ItemMappingMode::DirectItem)
  {
    ReadDerivedItems(*mapping, cmd, [&](const ItemSequence& items, CmdItem item) { reader(items, kind, item); });
  }
  else if (cmd != nullptr && mapping->predicate(*cmd))
  {
    reader(ItemSequence(cmd->Items(mapping->item)), kind, mapping->item);
  }
}

void OrvelParfileStorageCmdContainer::ReadDerivedItems(const ItemMapping& mapping, const OrvelCmd* cmd,
                                                       const ItemReader& reader) const
{
  if (mapping.mode == ItemMappingMode::FilteredItem)
  {
    if (cmd != nullptr)
    {
      reader(ItemSequence(FilteredItemsOf(*cmd, mapping)), mapping.value_item);
    }
  }
  else if (mapping.mode == ItemMappingMode::ReferencedItem)
  {
    if (const OrvelCmd* target = ReferencedCommand(mapping))
    {
      reader(ItemSequence(target->Items(mapping.target_item)), mapping.target_item);
    }
  }
  else if (mapping.handler != nullptr)
  {
    mapping.handler(cmd, mapping.item, *m_cmd_container, reader);
  }
}

// The command that the first command of the source kind refers to, if it is one that the mapping reads.
const OrvelCmd* OrvelParfileStorageCmdContainer::ReferencedCommand(const ItemMapping& mapping) const
{
  if (!m_cmd_container->HasCommand(mapping.source_kind))
  {
    return nullptr;
  }
  const OrvelCmd& source = m_cmd_container->_GetCommand(mapping.source_kind, 0);
  if (!source.HasItem(mapping.source_item) || !source.Item(mapping.source_item, 0).IsReference())
  {
    return nullptr;
  }
  const OrvelCmd* target = source.Item(mapping.source_item, 0).ReferencedCommand();
  const bool is_read =
    target != nullptr && target->GetCmd() == mapping.target_kind && target->HasItem(mapping.target_item);
  return is_read ? target : nullptr;
}

template <class Action>
void OrvelParfileStorageCmdContainer::ReadItem(const std::string& command, const std::string& id_name,
                                               const std::string& key, std::uint64_t index, Action action) const
{
  ReadItems(command, id_name, key, [&](const ItemSequence& items, Cmd kind, CmdItem item) {
    const std::uint64_t place = ConsiderAsList(items, kind, item) ? 0 : index - 1;
    if (place < items.size() && items[place] != nullptr)
    {
      action(*items[place]);
    }
  });
}

bool OrvelParfileStorageCmdContainer::HasCommand(const std::string& /*command*/, const std::string& /*id_name*/) const
{
  return false;
}

std::uint64_t OrvelParfileStorageCmdContainer::GetNumCommand(const std::string& command) const
{
  const CommandRecord* record = m_command_records.Find(command);
  const std::uint64_t count = record != nullptr ? record->count(*record, *m_cmd_container) : 0;
  return count == 0 && m_singleton_commands.count(command) > 0 ? 1 : count;
}

std::uint64_t OrvelParfileStorageCmdContainer::GetNumElements(const std::string& command, const std::string& id_name,
                                                              const std::string& key) const
{
  std::uint64_t count = 0;
  ReadItems(command, id_name, key, [&](const ItemSequence& items, Cmd kind, CmdItem item) {
    count = ConsiderAsList(items, kind, item) ? items[0]->AsStringList().size() : items.size();
  });
  return count;
}

bool OrvelParfileStorageCmdContainer::HasElement(const std::string& command, const std::string& id_name,
                                                 const std::string& key) const
{
  bool has = false;
  ReadItems(command, id_name, key, [&](const ItemSequence& items, Cmd, CmdItem) { has = !items.empty(); });
  return has;
}

void OrvelParfileStorageCmdContainer::GetCommandName(const std::string& command, std::uint64_t position,
                                                     std::string& id_name) const
{
  id_name.clear();
  if (const CommandRecord* record = m_command_records.Find(command))
  {
    record->name_at(*record, *m_cmd_container, position, id_name);
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
    if (item.IsStringList())
    {
      std::vector<std::string> texts = item.AsStringList();
      if (index - 1 < texts.size())
      {
        value = std::move(texts[index - 1]);
        return;
      }
    }
    value = item.AsString();
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
