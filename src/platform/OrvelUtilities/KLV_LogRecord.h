/// \file
/// One line of the debug log before it is written.
/// Thread safety: a plain value; one object belongs to one thread at a time.
#pragma once

#include <string>

/// What a caller of the log hands over, unchanged.
struct KLV_LogRecord
{
  std::string source;  ///< The source that logs, as it names itself.
  int line = 0;        ///< The line in that source.
  std::string prefix;  ///< The line's head, with placeholders that nobody has expanded.
  std::string text;    ///< The message; may hold line feeds.
};
