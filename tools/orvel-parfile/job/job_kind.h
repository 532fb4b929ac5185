/// \file
/// The two jobs that a parameter file can describe.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"

#include <string>

/// What the option --job takes.
inline constexpr const char* kGyreJob = "gyre";
inline constexpr const char* kSmoothJob = "smooth";

/// Calls \p action with the empty aggregate of the job, bound to \p storage.
template <class Action>
void WithParfile(const std::string& job, OrvelParfileStorage& storage, Action action)
{
  if (job == kSmoothJob)
  {
    Smooth_Parfile parfile(storage);
    action(parfile);
  }
  else
  {
    Gyre_Parfile parfile(storage);
    action(parfile);
  }
}
