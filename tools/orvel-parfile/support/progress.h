/// \file
/// A line on the terminal for work that takes its time.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

/// Tells on a terminal how far some work has come, from its second second on. Writes nothing where standard error is no
/// terminal, and takes its line away at the end.
class Progress
{
public:
  /// \param what what is going on, "writing"
  /// \param steps how many steps the whole has; with 0 the line tells the time that has passed
  Progress(std::string what, std::size_t steps);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// One step is done.
  void Step();

private:
  std::string State(std::chrono::steady_clock::time_point now) const;

  std::string m_what;
  std::size_t m_steps;
  std::size_t m_done = 0;
  bool m_is_shown = false;
  bool m_is_terminal;
  std::chrono::steady_clock::time_point m_start;
  std::chrono::steady_clock::time_point m_next;
};
