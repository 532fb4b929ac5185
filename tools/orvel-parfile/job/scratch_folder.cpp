#include "scratch_folder.h"

#include "parameter_file.h"
#include "support/exit_code.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace
{

constexpr const char* kPrefix = ".orvel-parfile.";

// What the handler of signals removes. It may not allocate, so the names lie ready; an empty folder means none.
std::array<char, 4096> scratch_folder{};
std::array<char, 4096> scratch_file{};

constexpr std::array<int, 4> kEndingSignals = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

// Lets the signals that end the tool wait: a folder that is made must be known to their handler.
class SignalsWait
{
public:
  SignalsWait()
  {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : kEndingSignals)
    {
      sigaddset(&ending, signal);
    }
    sigprocmask(SIG_BLOCK, &ending, &m_former);
  }
  SignalsWait(const SignalsWait&) = delete;
  SignalsWait& operator=(const SignalsWait&) = delete;
  ~SignalsWait() { sigprocmask(SIG_SETMASK, &m_former, nullptr); }

private:
  sigset_t m_former{};
};

void RemoveAndEnd(int signal)
{
  if (scratch_folder[0] != '\0')
  {
    unlink(scratch_file.data());
    rmdir(scratch_folder.data());
  }
  ::signal(signal, SIG_DFL);
  raise(signal);
}

void SetName(std::array<char, 4096>& name, const std::string& text)
{
  name[0] = '\0';
  if (text.size() < name.size())
  {
    std::memcpy(name.data() + 1, text.c_str() + 1, text.size());
    name[0] = text[0];  // last, as it tells the handler that the name is there
  }
}

// The lock of a folder, held by the process that works in it. -1 and errno when it cannot be had.
int TryToLock(const fs::path& folder)
{
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) != 0)
  {
    const int error = errno;
    close(descriptor);
    errno = error;
    return -1;
  }
  return descriptor;
}

// A folder whose lock can be had was left by a process that was killed.
void RemoveAbandoned(const fs::path& parent)
{
  std::error_code ignored;
  for (fs::directory_iterator entry(parent, ignored), end; !ignored && entry != end; entry.increment(ignored))
  {
    if (entry->path().filename().string().rfind(kPrefix, 0) == 0 && entry->is_directory(ignored))
    {
      if (const int lock = TryToLock(entry->path()); lock >= 0)
      {
        std::error_code not_ours;
        fs::remove_all(entry->path(), not_ours);
        close(lock);
      }
    }
  }
}

}  // namespace

ScratchFolder::ScratchFolder(const fs::path& place) : m_lock(-1)
{
  const fs::path parent = place.parent_path();
  RemoveAbandoned(parent);
  const SignalsWait wait;
  // Another process may take a folder for abandoned between its making and its locking: then comes the next one. Where
  // the file system has no locks nobody takes folders for abandoned, and this one does without.
  bool is_taken = true;
  while (is_taken)
  {
    std::string name = (parent / (std::string(kPrefix) + "XXXXXX")).string();
    if (mkdtemp(name.data()) == nullptr)
    {
      throw UnusableInput("nothing can be written in " + parent.string() + ": " + std::strerror(errno));
    }
    m_path = name;
    m_lock = TryToLock(m_path);
    is_taken = (m_lock < 0 && errno == EWOULDBLOCK) || !fs::exists(m_path);
    if (is_taken && m_lock >= 0)
    {
      close(m_lock);
    }
  }
  SetName(scratch_file, File().string());
  SetName(scratch_folder, m_path.string());
}

ScratchFolder::~ScratchFolder()
{
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
  scratch_folder[0] = '\0';
  if (m_lock >= 0)
  {
    close(m_lock);
  }
}

fs::path ScratchFolder::File() const
{
  return m_path / PARFILE_STORAGE_FILE;
}

void RemoveScratchFolderOnSignals()
{
  for (const int signal : kEndingSignals)
  {
    // A signal that the parent has ignored, as nohup does, stays ignored. A broken pipe ends the tool in any case: who
    // has stopped reading wants no more work and no message.
    if (::signal(signal, RemoveAndEnd) == SIG_IGN && signal != SIGPIPE)
    {
      ::signal(signal, SIG_IGN);
    }
  }
  ::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failure of writing like any other
}
