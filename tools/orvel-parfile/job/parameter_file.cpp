#include "parameter_file.h"

#include "file_lock.h"
#include "support/exit_code.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

namespace fs = std::filesystem;

namespace
{

void RequireFile(const fs::path& path)
{
  if (!fs::exists(path))
  {
    throw UnusableInput(path.string() + ": there is no such file");
  }
  if (!fs::is_regular_file(path))
  {
    throw UnusableInput(path.string() + ": this is no file");
  }
}

// The shortest path that leads to the same place: behind a link to a folder ".." means more than the words tell.
fs::path Absolute(const fs::path& argument)
{
  fs::path path = fs::absolute(argument);
  fs::path shortest = path.lexically_normal();
  const bool may_differ = std::find(path.begin(), path.end(), "..") != path.end();
  const bool is_folder = path.filename() == ".." || path.filename() == "." || path.filename().empty();
  std::error_code missing;
  // Of a file its folders are compared: one file may stand in two of them.
  const bool is_same = !may_differ || (is_folder ? fs::equivalent(path, shortest, missing)
                                                 : fs::equivalent(path.parent_path(), shortest.parent_path(), missing));
  return is_same ? shortest : path;
}

}  // namespace

WorkingDirectory::WorkingDirectory(const fs::path& folder) : m_former(fs::current_path())
{
  fs::current_path(folder);
}

WorkingDirectory::~WorkingDirectory()
{
  std::error_code ignored;
  fs::current_path(m_former, ignored);
}

fs::path ParameterFilePath(const fs::path& argument)
{
  if (argument.empty())
  {
    throw UnusableInput("the path of the parameter file is empty");
  }
  fs::path path = Absolute(argument);
  if (fs::is_directory(path))
  {
    return path / PARFILE_STORAGE_FILE;
  }
  if (path.filename() != PARFILE_STORAGE_FILE)
  {
    if (path.filename().empty())
    {
      throw UnusableInput(argument.string() + ": there is no such folder");
    }
    throw UnusableInput(argument.string() + ": a parameter file must have the name " + PARFILE_STORAGE_FILE);
  }
  return path;
}

void RefuseWhatIsThere(const fs::path& path)
{
  throw UnusableInput(path.string() + " exists already; --force replaces it");
}

fs::path NewParameterFilePath(const fs::path& argument, bool force)
{
  fs::path path = ParameterFilePath(argument);
  if (fs::exists(path))
  {
    if (!force)
    {
      RefuseWhatIsThere(path);
    }
    RequireFile(path);
    RequireUnprotected(path);
  }
  return path;
}

void RequireUnprotected(const fs::path& path)
{
  if (fs::exists(path) && access(path.c_str(), W_OK) != 0)
  {
    throw UnusableInput(path.string() + ": the file is write-protected");
  }
}

std::unique_ptr<ParfileHdf5Storage> OpenParameterFile(const fs::path& path)
{
  RequireFile(path);
  if (access(path.c_str(), R_OK) != 0)
  {
    throw UnusableInput(path.string() + ": the file cannot be read: " + std::strerror(errno));
  }
  FileLock::AgainstWriters(path);
  const WorkingDirectory folder(path.parent_path());
  try
  {
    return std::make_unique<ParfileHdf5Storage>(false, true);
  }
  catch (const KLV_Failure& failure)
  {
    throw UnusableInput(path.string() + ": " + failure.what());
  }
}
