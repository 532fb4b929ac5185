/// \file
/// Numbers as text, the same in every locale.
/// Thread safety: every operation may be called from several threads at once.
#pragma once

#include <cstdint>
#include <string>

#include "OrvelUtilities/orvelutilities_export.h"

/// Writes numbers in the form in which the job logs and reports them.
class ORVELUTILITIES_EXPORT OrvelStringUtil
{
public:
  OrvelStringUtil() = delete;

  /// Returns: the decimal digits, behind a minus sign for a negative value.
  static std::string String(int value);

  /// Returns: the decimal digits.
  static std::string String(std::uint64_t value);

  /// Gives the shortest text that reads back to the same number, as a fraction or with an exponent, whichever
  /// is shorter: "0.1", "2", "-0", "1e+22", "1e-300". Infinities read "inf" and "-inf", a value that is no
  /// number "nan" or "-nan".
  static std::string String(double value);
};
