#include "progress.h"

#include <unistd.h>

#include <iostream>
#include <utility>

namespace
{

constexpr std::chrono::milliseconds kFirst(1000);
constexpr std::chrono::milliseconds kInterval(200);

}  // namespace

Progress::Progress(std::string what, std::size_t steps)
  : m_what(std::move(what)),
    m_steps(steps),
    m_is_terminal(isatty(STDERR_FILENO) == 1),
    m_next(std::chrono::steady_clock::now() + kFirst)
{
}

Progress::~Progress()
{
  if (m_is_shown)
  {
    std::clog << "\r\033[K" << std::flush;
  }
}

void Progress::Step()
{
  ++m_done;
  if (!m_is_terminal)
  {
    return;
  }
  const auto now = std::chrono::steady_clock::now();
  if (now >= m_next)
  {
    m_next = now + kInterval;
    m_is_shown = true;
    std::clog << "\r\033[K" << m_what << ": " << 100 * m_done / (m_steps > 0 ? m_steps : 1) << "%" << std::flush;
  }
}
