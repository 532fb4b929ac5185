#include "OrvelCmdEngine/OrvelCmd.h"

#include <utility>

#include "OrvelCmdEngine/OrvelCmdItemError.h"
#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"
#include "OrvelCmdEngine/OrvelCmdValueItems.h"
#include "OrvelUtilities/KLV_MESSAGE.h"

using orvel::detail::DoubleItem;
using orvel::detail::IntegerSetItem;
using orvel::detail::NumberItem;
using orvel::detail::TextItem;
using orvel::detail::TextListItem;

OrvelCmd::OrvelCmd(OrvelCmdDefs::Cmd kind) : m_kind(kind), m_self(this, [](const OrvelCmd*) {}) {}

OrvelCmd::~OrvelCmd() = default;

const OrvelCmdItem& OrvelCmd::Item(OrvelCmdItemDefs::CmdItem item, std::uint64_t position) const
{
  const ItemList& items = Items(item);
  if (position >= items.size())
  {
    throw OrvelCmdItemError(KLV_MESSAGE("Item %s has %zu entries, so that there is none at position %llu.",
                                        OrvelCmdItemDefs::GetItemName(item).c_str(), items.size(),
                                        static_cast<unsigned long long>(position)));
  }
  return *items[position];
}

const OrvelCmd::ItemList& OrvelCmd::NoItems() noexcept
{
  static const ItemList no_items;
  return no_items;
}

void OrvelCmd::AddStringItem(OrvelCmdItemDefs::CmdItem item, const std::string& value)
{
  AddItem(std::make_unique<TextItem>(item, value));
}

void OrvelCmd::AddIntegerItem(OrvelCmdItemDefs::CmdItem item, int value)
{
  AddItem(std::make_unique<NumberItem>(item, OrvelCmdItem::ValueType::Integer, value));
}

void OrvelCmd::AddDoubleItem(OrvelCmdItemDefs::CmdItem item, double value)
{
  AddItem(std::make_unique<DoubleItem>(item, value));
}

void OrvelCmd::AddEnumItem(OrvelCmdItemDefs::CmdItem item, OrvelCmdItemDefs::EnumValue value)
{
  AddItem(std::make_unique<NumberItem>(item, OrvelCmdItem::ValueType::Enumerator, value));
}

void OrvelCmd::AddStringListItem(OrvelCmdItemDefs::CmdItem item, const std::vector<std::string>& values)
{
  AddItem(std::make_unique<TextListItem>(item, values));
}

void OrvelCmd::AddIntegerSetItem(OrvelCmdItemDefs::CmdItem item, const std::set<int>& values)
{
  AddItem(std::make_unique<IntegerSetItem>(item, values));
}

void OrvelCmd::AddReferenceItem(OrvelCmdItemDefs::CmdItem item, const OrvelCmd& command)
{
  if (item == OrvelCmdItemDefs::ID_NAME)
  {
    throw OrvelCmdItemError("A reference cannot be the ID_NAME of a command.");
  }
  AddItem(std::make_unique<OrvelCmdReferenceItem>(command, item));
}

void OrvelCmd::AddItem(std::unique_ptr<const OrvelCmdItem> item)
{
  const OrvelCmdItemDefs::CmdItem kind = item->GetItem();
  if (kind < 0 || kind >= OrvelCmdItemDefs::ITEM_NONE)
  {
    throw OrvelCmdItemError(OrvelCmdItemDefs::GetItemName(kind) + " is no kind of item.");
  }
  if (m_items[kind] == nullptr)
  {
    m_items[kind] = std::make_unique<ItemList>();
  }
  m_items[kind]->push_back(std::move(item));
}
