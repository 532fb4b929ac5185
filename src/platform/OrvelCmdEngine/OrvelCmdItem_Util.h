/// \file
/// Questions about an item that several modules ask.
/// Thread safety: that of the item's operations.
#pragma once

#include "OrvelCmdEngine/OrvelCmdDefs.h"
#include "OrvelCmdEngine/orvelcmdengine_export.h"
#include "OrvelCmdEngine/OrvelCmdItem.h"

/// Questions about items.
class ORVELCMDENGINE_EXPORT OrvelCmdItem_Util
{
public:
  OrvelCmdItem_Util() = delete;

  /// Returns: whether the item refers to a command of the kind; false when that command has ended.
  static bool has_item_reference_of_type(const OrvelCmdItem& item, OrvelCmdDefs::Cmd kind);
};
