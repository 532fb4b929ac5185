#include "OrvelCmdEngine/OrvelCmd_Util.h"

#include <algorithm>

namespace
{

bool HasEnumValue(const OrvelCmdItem& item, OrvelCmdItemDefs::EnumValue value)
{
  const OrvelCmdItem::ValueType type = item.GetValueType();
  const bool is_number = type == OrvelCmdItem::ValueType::Enumerator || type == OrvelCmdItem::ValueType::Integer;
  return is_number && item.AsEnumValue() == value;
}

}  // namespace

bool OrvelCmd_Util::has_command_enum_with_value(const OrvelCmd& command, OrvelCmdItemDefs::CmdItem item,
                                                OrvelCmdItemDefs::EnumValue value)
{
  const OrvelCmd::ItemList& items = command.Items(item);
  return std::any_of(items.begin(), items.end(), [value](const auto& entry) { return HasEnumValue(*entry, value); });
}
