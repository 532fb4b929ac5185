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

// The lock of a folder, held by the process that works in it. -1 when another has it.
int TryToLock(const fs::path& folder)
{
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) != 0)
  {
    close(descriptor);
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
  // Another process may take a folder for abandoned between its making and its locking: then comes the next one.
  while (m_lock < 0 || !fs::exists(m_path))
  {
    if (m_lock >= 0)
    {
      close(m_lock);
    }
    std::string name = (parent / (std::string(kPrefix) + "XXXXXX")).string();
    if (mkdtemp(name.data()) == nullptr)
    {
      throw UnusableInput("nothing can be written in " + parent.string() + ": " + std::strerror(errno));
    }
    m_path = name;
    m_lock = TryToLock(m_path);
  }
  SetName(scratch_file, (m_path / PARFILE_STORAGE_FILE).string());
  SetName(scratch_folder, m_path.string());
}

ScratchFolder::~ScratchFolder()
{
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
  scratch_folder[0] = '\0';
  close(m_lock);
}

void RemoveScratchFolderOnSignals()
{
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
  {
    ::signal(signal, RemoveAndEnd);
  }
  ::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failure of writing like any other
}
