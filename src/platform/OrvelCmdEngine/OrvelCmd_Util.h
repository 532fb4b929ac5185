/// \file
/// Questions about a command that several modules ask.
/// Thread safety: that of the command's const operations.
#pragma once

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/orvelcmdengine_export.h"

/// Questions about commands.
class ORVELCMDENGINE_EXPORT OrvelCmd_Util
{
public:
  OrvelCmd_Util() = delete;

  /// Returns: whether one of the command's items of the kind is an enumerator, or an integer, of this value.
  static bool has_command_enum_with_value(const OrvelCmd& command, OrvelCmdItemDefs::CmdItem item,
                                          OrvelCmdItemDefs::EnumValue value);
};
