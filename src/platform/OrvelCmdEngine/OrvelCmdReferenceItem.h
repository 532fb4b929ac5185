/// \file
/// An item that refers to a command.
/// Thread safety: may be read from several threads at once while nobody changes the command referred to.
#pragma once

#include <memory>
#include <string>

#include "OrvelCmdEngine/orvelcmdengine_export.h"
#include "OrvelCmdEngine/OrvelCmdItem.h"

/// Refers to a command without owning it, and knows when that command has ended.
class ORVELCMDENGINE_EXPORT OrvelCmdReferenceItem final : public OrvelCmdItem
{
public:
  /// Makes an item of the kind `item` that refers to `command`.
  ///
  /// Ownership: the command stays with its owner; when it ends first, ReferencedCommand gives null.
  explicit OrvelCmdReferenceItem(const OrvelCmd& command, OrvelCmdItemDefs::CmdItem item = OrvelCmdItemDefs::REFERENCE);
  ~OrvelCmdReferenceItem() override;

  /// Returns: the `ID_NAME` of the command referred to; the empty text when that command has none or has
  /// ended.
  std::string AsString() const override;
  bool IsReference() const override;
  const OrvelCmd* ReferencedCommand() const override;

private:
  const OrvelCmd* m_command;
  std::weak_ptr<const OrvelCmd> m_life;  // tells whether the command is still there, without counting a reader
};
