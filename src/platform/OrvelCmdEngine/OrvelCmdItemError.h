/// \file
/// The failure of an item that is asked for what it does not hold.
/// Thread safety: immutable after construction.
#pragma once

#include <stdexcept>

#include "OrvelCmdEngine/orvelcmdengine_export.h"

/// Thrown by the readers of OrvelCmdItem and OrvelCmd; its text names the item and what is wrong with the
/// request.
class ORVELCMDENGINE_EXPORT OrvelCmdItemError : public std::runtime_error
{
public:
  using std::runtime_error::runtime_error;

  /// Copies the text.
  OrvelCmdItemError(const OrvelCmdItemError& other) = default;

  /// Takes the text of the other one.
  OrvelCmdItemError& operator=(const OrvelCmdItemError& other) = default;

  ~OrvelCmdItemError() override;
};
