/// \file
/// Lists as one line of text.
/// Thread safety: every operation may be called from several threads at once.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "OrvelUtilities/orvelutilities_export.h"

/// Joins the elements of a list, numbers in the form of OrvelStringUtil and texts as they are.
class ORVELUTILITIES_EXPORT KLV_ListFormatUtil
{
public:
  KLV_ListFormatUtil() = delete;

  /// Returns: the elements in order with `separator` between them, none at the end and no line feed; the
  /// empty text for an empty list.
  static std::string format_list_as_line(const std::vector<int>& list, std::string_view separator);

  /// \copydoc format_list_as_line
  static std::string format_list_as_line(const std::vector<double>& list, std::string_view separator);

  /// \copydoc format_list_as_line
  static std::string format_list_as_line(const std::vector<std::string>& list, std::string_view separator);
};
