/// \file
/// The call stack as readable texts, for failures that tell where they come from.
/// Thread safety: every operation may be called from several threads at once.
#pragma once

#include <string>
#include <vector>

#include "OrvelUtilities/orvelutilities_export.h"

/// Reads the call stack of the calling thread.
class ORVELUTILITIES_EXPORT KLV_Backtrace
{
public:
  KLV_Backtrace() = delete;

  /// Gives one text for each frame, the caller's own frame first, `main` or the thread's start last.
  ///
  /// The form of a text is "function+0xOFFSET [module]": the demangled name, the distance of the frame's
  /// address from the function's start, and the file of the program or shared library. A frame whose
  /// function has no exported name reads "??+0xOFFSET [module]" with the distance from the module's start,
  /// which addr2line understands; a frame in no known module reads "??+0xADDRESS [??]".
  ///
  /// Returns: at most 128 frames; what is deeper is left out. Frames that the compiler inlined are not there.
  /// Cost: some microseconds for each frame and one allocation or more; meant for failures, not for loops.
  static std::vector<std::string> GetBacktrace();
};
