#include "hostile/Supervised.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <stdexcept>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ORVEL_TEST_SANITIZED 1
#else
#define ORVEL_TEST_SANITIZED 0
#endif

// kCrashExit, which a program's own failure must not look like.
#if defined(__SANITIZE_ADDRESS__)
extern "C" const char* __asan_default_options()  // NOLINT(bugprone-reserved-identifier): the name that it looks for
{
  return "exitcode=99";
}
#endif

namespace
{

// Exit codes that no sanitizer and no program of ours uses.
constexpr int kMemoryExit = 90;
constexpr int kRefusedExit = 91;

// What a child has to say, in memory that it shares with its parent.
using Note = std::array<char, 512>;

Note& SharedNote()
{
  static auto* note =
    static_cast<Note*>(mmap(nullptr, sizeof(Note), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  if (note == MAP_FAILED)
  {
    throw std::runtime_error("no memory to share");
  }
  return *note;
}

void SetLimits(Limit limit)
{
  SignOfLife(limit);
  // A sanitizer reserves address space without end and widens the frames of the stack; its limit of memory is set where
  // it is run.
  if (ORVEL_TEST_SANITIZED == 0)
  {
    const rlimit memory{kMemoryLimit, kMemoryLimit};
    setrlimit(RLIMIT_AS, &memory);
    const rlimit stack{kStackLimit, kStackLimit};
    setrlimit(RLIMIT_STACK, &stack);
  }
}

void DropOutput()
{
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDERR_FILENO);
  dup2(nowhere, STDOUT_FILENO);
}

[[noreturn]] void EndWith(int exit_code, const char* text)
{
  std::snprintf(SharedNote().data(), SharedNote().size(), "%s", text);
  std::_Exit(exit_code);
}

pid_t Fork()
{
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0)
  {
    throw std::runtime_error("no process can be made");
  }
  return child;
}

Outcome EndBySignal(int number)
{
  const bool is_out_of_time = number == SIGALRM || number == SIGPROF;
  const bool is_from_outside = number == SIGTERM || number == SIGINT || number == SIGHUP || number == SIGKILL;
  return {is_out_of_time ? End::Hang : is_from_outside ? End::Stopped : End::Crash, "signal " + std::to_string(number)};
}

Outcome WaitFor(pid_t child, int highest_good)
{
  int status = 0;
  while (waitpid(child, &status, 0) < 0)
  {
  }
  if (WIFSIGNALED(status))
  {
    return EndBySignal(WTERMSIG(status));
  }
  const int code = WEXITSTATUS(status);
  if (code <= highest_good)
  {
    return {};
  }
  const std::string note = SharedNote().data();
  switch (code)
  {
    case kMemoryExit: return {End::Memory, note};
    case kRefusedExit: return {End::Refused, note};
    default: return {code == kCrashExit ? End::Crash : End::Refused, "exit code " + std::to_string(code)};
  }
}

}  // namespace

const char* NameOf(End end)
{
  switch (end)
  {
    case End::Well: return "ends well";
    case End::Crash: return "crashes";
    case End::Hang: return "hangs";
    case End::Memory: return "wants too much memory";
    case End::Refused: return "ends as it must not";
    case End::Stopped: return "is stopped from outside";
  }
  return "";
}

void SignOfLife(Limit limit)
{
  alarm(kWaitSeconds);
  const timeval full{kHangSeconds, 0};
  const timeval quick{0, kQuickMilliseconds * 1000};
  const itimerval work{{0, 0}, limit == Limit::Quick ? quick : full};
  setitimer(ITIMER_PROF, &work, nullptr);
}

Outcome RunSupervised(const std::function<void()>& action, Limit limit)
{
  SharedNote()[0] = '\0';
  const pid_t child = Fork();
  if (child == 0)
  {
    DropOutput();
    SetLimits(limit);
    std::set_terminate([] { EndWith(kRefusedExit, "std::terminate"); });  // no crash, which HDF5 might share
    try
    {
      action();
    }
    catch (const std::bad_alloc& error)
    {
      EndWith(kMemoryExit, error.what());
    }
    catch (const std::length_error& error)
    {
      EndWith(kMemoryExit, error.what());
    }
    catch (const std::exception& error)
    {
      EndWith(kRefusedExit, error.what());
    }
    catch (...)
    {
      EndWith(kRefusedExit, "something that is no std::exception");
    }
    std::_Exit(0);
  }
  return WaitFor(child, 0);
}

Outcome RunProgram(const std::string& program, const std::vector<std::string>& arguments, int highest_good, Limit limit)
{
  std::vector<char*> words{const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments)
  {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  SharedNote()[0] = '\0';
  const pid_t child = Fork();
  if (child == 0)
  {
    DropOutput();
    SetLimits(limit);
    execv(program.c_str(), words.data());
    std::_Exit(kRefusedExit);
  }
  return WaitFor(child, highest_good);
}
