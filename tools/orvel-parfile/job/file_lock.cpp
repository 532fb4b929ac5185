#include "file_lock.h"

#include "replacement_file.h"
#include "support/exit_code.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace fs = std::filesystem;

FileLock::FileLock(const fs::path& path, int operation, const char* refusal)
  : m_descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
{
  if (m_descriptor >= 0 && flock(m_descriptor, operation | LOCK_NB) != 0 && errno == EWOULDBLOCK)
  {
    close(m_descriptor);
    throw UnusableInput(path.string() + ": " + refusal + "; try again when it has ended");
  }
}

FileLock::~FileLock()
{
  if (m_descriptor >= 0)
  {
    close(m_descriptor);
  }
}

FileLock FileLock::AgainstWriters(const fs::path& file)
{
  return {file, LOCK_SH, "another process holds the file open for writing"};
}

FileLock FileLock::AgainstReplacement(const fs::path& file)
{
  return {PlaceOf(file).parent_path(), LOCK_EX, "another orvel-parfile is changing a parameter file of this folder"};
}
