/// \file
/// The code of a failure: a short text that leads from a report to the place in the source that raised it.
/// Thread safety: a value type; one object belongs to one thread at a time, as with std::string.
#pragma once

#include <string>

#include "OrvelUtilities/orvelutilities_export.h"

/// A failure's code, or the statement that a failure has none.
///
/// Codes are by custom twelve decimal digits in the shape hhmmssDDMMYY, the moment at which the site was
/// written; the class carries any text and reads nothing into it.
class ORVELUTILITIES_EXPORT KLV_Code
{
public:
  /// Makes an object that holds no code.
  KLV_Code() = default;

  /// Makes an object that holds `text`. The empty text is no code.
  explicit KLV_Code(std::string text);

  /// Returns: whether a code is held.
  bool exists() const noexcept;

  /// Returns: the code as it was given, the empty text when none is held.
  const std::string& GetText() const noexcept;

private:
  std::string m_text;
};
