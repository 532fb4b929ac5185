/// \file
/// Code that may end its process, in a process of its own. POSIX only; a caller with one thread.
#pragma once

#include "hostile/limits.h"

#include <functional>
#include <string>
#include <vector>

/// How a process ended.
enum class End
{
  Well,
  Crash,    ///< By a signal, or by the exit code of a sanitizer or of valgrind, kCrashExit.
  Hang,     ///< Longer than its limit without a sign of life.
  Memory,   ///< It wanted more than kMemoryLimit.
  Refused,  ///< By an exception, a state or an exit code that is not allowed.
  Stopped   ///< From outside, which says nothing.
};

/// How long a process may work without a sign of life.
enum class Limit
{
  Full,  ///< kHangSeconds of processor time, or kWaitSeconds of the clock.
  Quick  ///< kQuickMilliseconds of processor time, to find out which cases are worth the full time.
};

/// In words, for reports.
const char* NameOf(End end);

struct Outcome
{
  End end = End::Well;
  std::string detail;  ///< "signal 11", or what was thrown.
};

/// Runs \p action in a copy of this process, without its output and within the limits of time and memory. The action
/// calls SignOfLife() where the time starts anew.
///
/// Throws: std::runtime_error when no process can be made.
Outcome RunSupervised(const std::function<void()>& action, Limit limit);

/// The same for a program in the working directory. Any exit code is a good end unless it is above \p highest_good.
Outcome RunProgram(const std::string& program, const std::vector<std::string>& arguments, int highest_good,
                   Limit limit);

/// Starts the time of a supervised process anew.
void SignOfLife(Limit limit);
