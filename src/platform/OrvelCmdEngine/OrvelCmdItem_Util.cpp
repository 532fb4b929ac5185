#include "OrvelCmdEngine/OrvelCmdItem_Util.h"

#include "OrvelCmdEngine/OrvelCmd.h"

bool OrvelCmdItem_Util::has_item_reference_of_type(const OrvelCmdItem& item, OrvelCmdDefs::Cmd kind)
{
  if (!item.IsReference())
  {
    return false;
  }
  const OrvelCmd* command = item.ReferencedCommand();
  return command != nullptr && command->GetCmd() == kind;
}
