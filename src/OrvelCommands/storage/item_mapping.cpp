#include "OrvelCommands/storage/item_mapping.h"

#include <utility>

namespace orvel::detail
{

ItemMapping ItemMapping::Direct(OrvelCmdItemDefs::CmdItem item, Predicate predicate)
{
  ItemMapping mapping;
  mapping.mode = ItemMappingMode::DirectItem;
  mapping.item = item;
  mapping.predicate = std::move(predicate);
  return mapping;
}

ItemMapping ItemMapping::Filtered(OrvelCmdItemDefs::CmdItem value_item, OrvelCmdItemDefs::CmdItem filter_item,
                                  ItemFilter item_filter)
{
  ItemMapping mapping;
  mapping.mode = ItemMappingMode::FilteredItem;
  mapping.value_item = value_item;
  mapping.filter_item = filter_item;
  mapping.item_filter = std::move(item_filter);
  return mapping;
}

ItemMapping ItemMapping::Referenced(OrvelCmdDefs::Cmd source_kind, OrvelCmdItemDefs::CmdItem source_item,
                                    OrvelCmdDefs::Cmd target_kind, OrvelCmdItemDefs::CmdItem target_item)
{
  ItemMapping mapping;
  mapping.mode = ItemMappingMode::ReferencedItem;
  mapping.source_kind = source_kind;
  mapping.source_item = source_item;
  mapping.target_kind = target_kind;
  mapping.target_item = target_item;
  return mapping;
}

ItemMapping ItemMapping::Custom(OrvelCmdItemDefs::CmdItem item, Handler handler)
{
  ItemMapping mapping;
  mapping.mode = ItemMappingMode::CustomItem;
  mapping.item = item;
  mapping.handler = handler;
  return mapping;
}

}  // namespace orvel::detail
