/// \file
/// The shape of the tables by which a storage over parsed commands translates names. Constants once built, safe to read
/// from several threads.
#pragma once

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/OrvelCmdContainer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvel::detail
{

/// The items that a key stands for: all of one kind of a command, or pointers to chosen ones. Not owned, valid during
/// one operation; nothing is copied, as a read of one value of a long key would copy them all.
class ItemSequence
{
public:
  explicit ItemSequence(const OrvelCmd::ItemList& items) : m_items(items.data()), m_size(items.size()) {}
  explicit ItemSequence(const std::vector<const OrvelCmdItem*>& chosen) : m_chosen(chosen.data()), m_size(chosen.size())
  {
  }

  /// A sequence of one; the pointer must outlive it.
  explicit ItemSequence(const OrvelCmdItem* const& only) : m_chosen(&only), m_size(1) {}

  std::size_t size() const { return m_size; }
  bool empty() const { return m_size == 0; }

  /// Counted from 0; may be null.
  const OrvelCmdItem* operator[](std::size_t place) const
  {
    return m_items != nullptr ? m_items[place].get() : m_chosen[place];
  }

private:
  const OrvelCmd::ItemList::value_type* m_items = nullptr;
  const OrvelCmdItem* const* m_chosen = nullptr;
  std::size_t m_size;
};

/// Takes the items of a key and the kind of item that they are.
using ItemReader = std::function<void(const ItemSequence&, OrvelCmdItemDefs::CmdItem)>;

/// How a kind of storage command comes from parsed commands.
struct CommandRecord
{
  using Count = std::uint64_t (*)(const CommandRecord&, const OrvelCmdContainer&);
  using NameAt = void (*)(const CommandRecord&, const OrvelCmdContainer&, std::uint64_t position, std::string& name);

  OrvelCmdDefs::Cmd kind;
  OrvelCmdItemDefs::CmdItem filter_item;     ///< ITEM_NONE without a filter.
  OrvelCmdItemDefs::EnumValue filter_value;  ///< -1 without a filter.
  Count count;                               ///< How many commands there are.
  NameAt name_at;                            ///< The `ID_NAME` at a position counted from 0.
};

enum class ItemMappingMode : std::int32_t
{
  DirectItem = 0,      ///< The items of the command.
  FilteredItem = 1,    ///< Those items of the command whose neighbours in another list pass a filter.
  ReferencedItem = 2,  ///< The items of the command that the first command of some kind refers to.
  CustomItem = 3       ///< Whatever a function makes of it.
};

/// How a key comes from the items of parsed commands. Only the members of the mode have a meaning.
struct ItemMapping
{
  using Predicate = std::function<bool(const OrvelCmd&)>;
  using ItemFilter = std::function<bool(const OrvelCmdItem&)>;
  using Handler = void (*)(const OrvelCmd*, OrvelCmdItemDefs::CmdItem, const OrvelCmdContainer&, const ItemReader&);

  /// The key is there for the commands that \p predicate holds for.
  static ItemMapping Direct(OrvelCmdItemDefs::CmdItem item, Predicate predicate);
  static ItemMapping Filtered(OrvelCmdItemDefs::CmdItem value_item, OrvelCmdItemDefs::CmdItem filter_item,
                              ItemFilter item_filter);
  static ItemMapping Referenced(OrvelCmdDefs::Cmd source_kind, OrvelCmdItemDefs::CmdItem source_item,
                                OrvelCmdDefs::Cmd target_kind, OrvelCmdItemDefs::CmdItem target_item);
  static ItemMapping Custom(OrvelCmdItemDefs::CmdItem item, Handler handler);

  ItemMappingMode mode = ItemMappingMode::DirectItem;

  OrvelCmdItemDefs::CmdItem item = OrvelCmdItemDefs::ITEM_NONE;  // DirectItem, CustomItem
  Predicate predicate;                                           // DirectItem

  OrvelCmdItemDefs::CmdItem value_item = OrvelCmdItemDefs::ITEM_NONE;  // FilteredItem
  OrvelCmdItemDefs::CmdItem filter_item = OrvelCmdItemDefs::ITEM_NONE;
  ItemFilter item_filter;

  OrvelCmdDefs::Cmd source_kind = OrvelCmdDefs::CMD_NONE;  // ReferencedItem
  OrvelCmdItemDefs::CmdItem source_item = OrvelCmdItemDefs::ITEM_NONE;
  OrvelCmdDefs::Cmd target_kind = OrvelCmdDefs::CMD_NONE;
  OrvelCmdItemDefs::CmdItem target_item = OrvelCmdItemDefs::ITEM_NONE;

  Handler handler = nullptr;  // CustomItem
};

}  // namespace orvel::detail
