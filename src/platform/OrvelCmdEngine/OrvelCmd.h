/// \file
/// One parsed command of a parameter file.
/// Thread safety: the const operations may be called from several threads at once while nobody adds an item.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "OrvelCmdEngine/OrvelCmdDefs.h"
#include "OrvelCmdEngine/orvelcmdengine_export.h"
#include "OrvelCmdEngine/OrvelCmdItem.h"
#include "OrvelCmdEngine/OrvelCmdItemDefs.h"

/// A command: its kind and, for each kind of item, the items in parameter-file order.
///
/// An object keeps its address for life, so that other commands can refer to it. Items are only added;
/// an item too keeps its address for the life of the command.
class ORVELCMDENGINE_EXPORT OrvelCmd
{
public:
  /// The items of one kind.
  using ItemList = std::vector<std::unique_ptr<const OrvelCmdItem>>;

  /// Makes a command without items.
  explicit OrvelCmd(OrvelCmdDefs::Cmd kind);
  OrvelCmd(const OrvelCmd& other) = delete;
  OrvelCmd& operator=(const OrvelCmd& other) = delete;
  ~OrvelCmd();

  /// Returns: the kind of the command.
  OrvelCmdDefs::Cmd GetCmd() const noexcept { return m_kind; }

  /// Returns: whether the command holds an item of the kind.
  bool HasItem(OrvelCmdItemDefs::CmdItem item) const { return !Items(item).empty(); }

  /// Gives the item of the kind at a position that counts from 0.
  ///
  /// Throws: OrvelCmdItemError "Item VALUE has 2 entries, so that there is none at position 2." or the like.
  const OrvelCmdItem& Item(OrvelCmdItemDefs::CmdItem item, std::uint64_t position) const;

  /// Gives all items of the kind in parameter-file order, none of them null; an empty sequence when there is
  /// none.
  ///
  /// Ownership: the items stay with the command; adding an item of this kind ends the sequence's iterators.
  const ItemList& Items(OrvelCmdItemDefs::CmdItem item) const
  {
    const bool is_kind = item >= 0 && item < OrvelCmdItemDefs::ITEM_NONE;
    return is_kind && m_items[item] != nullptr ? *m_items[item] : NoItems();
  }

  /// \name Adding an item behind those of its kind
  /// @{

  /// Throws: OrvelCmdItemError "CmdItem 39 is no kind of item." or the like for a number that is no kind.
  void AddStringItem(OrvelCmdItemDefs::CmdItem item, const std::string& value);
  void AddIntegerItem(OrvelCmdItemDefs::CmdItem item, int value);
  void AddDoubleItem(OrvelCmdItemDefs::CmdItem item, double value);
  void AddEnumItem(OrvelCmdItemDefs::CmdItem item, OrvelCmdItemDefs::EnumValue value);
  void AddStringListItem(OrvelCmdItemDefs::CmdItem item, const std::vector<std::string>& values);
  void AddIntegerSetItem(OrvelCmdItemDefs::CmdItem item, const std::set<int>& values);

  /// Adds a reference to `command`.
  ///
  /// Ownership: the command stays with its owner; when it ends first, the item refers to null.
  /// Throws: OrvelCmdItemError "A reference cannot be the ID_NAME of a command." for that kind of item, since
  /// a reference reads as the `ID_NAME` of its command and could lead to itself.
  void AddReferenceItem(OrvelCmdItemDefs::CmdItem item, const OrvelCmd& command);
  /// @}

private:
  friend class OrvelCmdReferenceItem;

  static const ItemList& NoItems() noexcept;
  void AddItem(std::unique_ptr<const OrvelCmdItem> item);

  OrvelCmdDefs::Cmd m_kind;
  // Owns nothing: references watch it to learn that the command has ended.
  std::shared_ptr<const OrvelCmd> m_self;
  std::array<std::unique_ptr<ItemList>, OrvelCmdItemDefs::ITEM_NONE> m_items;  // null where there is none of the kind
};
