/// \file
/// The debug log of the job's modules.
/// Thread safety: every operation may be called from several threads at once; records reach the sink one by
/// one.
#pragma once

#include <functional>
#include <string_view>

#include "OrvelUtilities/KLV_LogRecord.h"
#include "OrvelUtilities/orvelutilities_export.h"

/// Hands log records to one sink that serves the whole process.
class ORVELUTILITIES_EXPORT KLV_LogMacros
{
public:
  /// Takes one record at a time.
  using Sink = std::function<void(const KLV_LogRecord&)>;

  KLV_LogMacros() = delete;

  /// Logs one message at the debug level.
  ///
  /// Without a sink of the caller's the record goes to the standard error stream, as the time, the level,
  /// "source:line: ", the prefix as it stands and the text; a line feed at its end is not written twice.
  ///
  /// Throws: what the sink throws; the log stays usable.
  /// Cost: copies the three texts and waits while another thread's record is being written.
  static void debug(std::string_view source, int line, std::string_view prefix, std::string_view text);

  /// Sends all further records to `sink`; null restores the standard error stream.
  ///
  /// When the call returns, no thread is within the former sink and none will enter it, so that what that
  /// sink refers to may end.
  ///
  /// Ownership: `sink` is copied or moved in and kept until it is replaced.
  /// Warning: a sink must call neither debug nor SetSink; the call would wait for itself.
  static void SetSink(Sink sink);
};
