/// \file
/// The storage over parsed commands. Its reads may run on several threads as far as those of the container may.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "OrvelCommands/storage/item_mapping.h"
#include "OrvelCommands/storage/name_table.h"

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

/// The commands that the engine has parsed, read as a parameter file. No file is needed and nothing can be written.
///
/// Only some kinds and keys come from parsed commands, as docs/parsed_commands.md lists; any other reads as absent.
/// Nothing absent is a failure: reads of an unknown kind, id or key leave the output as each operation tells, counts
/// are 0, names and references empty. An index outside 1 to the count reads nothing, or the whole text of a list of
/// groups. Where the first `OPTIMIZE` names two or more design variables, one further `DV_` "__v_merged_DV" holds them
/// all, and `ALGO_` refers to that one. The `VtmType` of a call plays no part.
///
/// Ownership: the container is not owned and must outlive the storage. Commands added to it later are counted, but not
/// found by name. A copy shares the container and copies the tables.
///
/// Throws: nothing of its own. An item that holds another type than the one asked for is a failure of the engine,
/// OrvelCmdItemError with the item and both types.
///
/// Cost: names are found by hashing. The numbers and names of element and node groups walk all groups at each call.
/// Reading one name of a list of groups copies the list.
class ORVELCOMMANDS_EXPORT OrvelParfileStorageCmdContainer : public OrvelParfileStorage
{
public:
  /// Takes the names of all commands that \p container holds now.
  explicit OrvelParfileStorageCmdContainer(const OrvelCmdContainer& container);

  /// Shares the container of \p other.
  OrvelParfileStorageCmdContainer(const OrvelParfileStorageCmdContainer& other);

  /// Shares the container of \p other. When there is no memory for its tables, nothing changes.
  OrvelParfileStorageCmdContainer& operator=(const OrvelParfileStorageCmdContainer& other);

  ~OrvelParfileStorageCmdContainer() override;

  /// False, whatever is asked: this storage does not answer by name whether a command exists.
  bool HasCommand(const std::string& command, const std::string& id_name) const override;

  /// At least 1 for "FLOWPATHS_", "OPT_PARAM_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_" and "AS_SHAPE_SENS_", of
  /// which a job has one even if none was parsed.
  std::uint64_t GetNumCommand(const std::string& command) const override;
  std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                               const std::string& key) const override;
  bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const override;

  /// The empty text for a position without a command and for one that was not parsed.
  void GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const override;

  /// The empty text where there is no reference.
  void GetReference(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    std::string& target_id_name) const override;

  /// Does nothing: parsed commands hold no lists of doubles.
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<double>& value) const override;

  /// Empties the vector where there is no set of integers.
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<int>& value) const override;

  /// \name Reading one value
  /// @{

  /// Keeps the output where there is no value.
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::string& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, double& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, int& value) const override;
  /// @}

  /// 0 where there is no value.
  void GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    VtmType type, int& value) const override;

  /// \name Writing
  /// @{

  /// Does nothing and reports nothing.
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::vector<double>& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::vector<int>& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const char& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::string& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const double& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const int& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::vector<double>& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::vector<int>& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const char& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::string& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const double& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const int& value) const override;
  void DeleteValues(const std::string& command, const std::string& id_name, const std::string& key) override;
  void AddCommand(const std::string& command, const std::string& id_name) const override;
  void AddReference(const std::string& command, const std::string& id_name, const std::string& key,
                    const std::string& target_command, const std::string& target_id_name) const override;
  /// @}

private:
  using Cmd = OrvelCmdDefs::Cmd;
  using CmdItem = OrvelCmdItemDefs::CmdItem;
  using CommandRecord = orvel::detail::CommandRecord;
  using ItemMapping = orvel::detail::ItemMapping;
  using ItemSequence = orvel::detail::ItemSequence;
  using ItemReader = orvel::detail::ItemReader;
  using KeyTable = orvel::detail::NameTable<ItemMapping>;

  // With CMD_NONE, which has neither ids nor keys.
  static constexpr std::size_t kNumberOfKinds = OrvelCmdDefs::CMD_NONE + 1;

  /// \name The tables, in OrvelParfileStorageCmdContainer_tables.cpp
  /// @{
  void FillCommandRecords();
  void FillSingletonCommands();
  void FillKeyMappings();
  void FillListItems();
  /// @}

  void MapIdNamesToPosition();

  static const OrvelCmd& FirstOptimize(const OrvelCmdContainer& container);
  static bool HasMergedDv(const OrvelCmdContainer& container);

  static std::uint64_t PlainCount(const CommandRecord& record, const OrvelCmdContainer& container);
  static std::uint64_t FilteredCount(const CommandRecord& record, const OrvelCmdContainer& container);
  static std::uint64_t DvCount(const CommandRecord& record, const OrvelCmdContainer& container);
  static void PlainName(const CommandRecord& record, const OrvelCmdContainer& container, std::uint64_t position,
                        std::string& name);
  static void FilteredName(const CommandRecord& record, const OrvelCmdContainer& container, std::uint64_t position,
                           std::string& name);
  static void DvName(const CommandRecord& record, const OrvelCmdContainer& container, std::uint64_t position,
                     std::string& name);

  static void MergedDvMembers(const OrvelCmd* cmd, CmdItem item, const OrvelCmdContainer& container,
                              const ItemReader& reader);
  static void OptimizeDvReferences(const OrvelCmd* cmd, CmdItem item, const OrvelCmdContainer& container,
                                   const ItemReader& reader);

  Cmd GetCmdType(const std::string& command) const;
  const OrvelCmd* GetCmdObject(Cmd kind, const std::string& id_name) const;
  bool ConsiderAsList(const ItemSequence& items, Cmd kind, CmdItem item) const;

  // Hands the items of a key to the reader, with the kind of the command and the kind of item that they are.
  template <class Reader>
  void ReadItems(const std::string& command, const std::string& id_name, const std::string& key,
                 const Reader& reader) const;
  // Those of the keys that are not simply the items of the command.
  void ReadDerivedItems(const ItemMapping& mapping, const OrvelCmd* cmd, const ItemReader& reader) const;
  const OrvelCmd* ReferencedCommand(const ItemMapping& mapping) const;

  // Hands the one item that an index means to the action; nothing for an index past the end.
  template <class Action>
  void ReadItem(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                Action action) const;

  const OrvelCmdContainer* m_cmd_container;
  // Part of what a copy carries; nothing fills or reads these two.
  std::unordered_map<std::string, std::uint64_t> m_spare_names;
  std::unordered_map<std::string, std::pair<std::uint64_t, std::uint64_t>> m_spare_name_pairs;
  orvel::detail::NameTable<CommandRecord> m_command_records;
  std::array<orvel::detail::NameTable<std::uint64_t>, kNumberOfKinds> m_id_positions;
  std::array<KeyTable, kNumberOfKinds> m_key_mappings;
  std::set<std::pair<Cmd, CmdItem>> m_list_items;
  std::unordered_set<std::string> m_singleton_commands;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
