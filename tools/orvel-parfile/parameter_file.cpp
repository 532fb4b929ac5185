#include "parameter_file.h"

#include "exit_code.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace fs = std::filesystem;

namespace
{

// The storage finds its file in the working directory alone.
class WorkingDirectory
{
public:
  explicit WorkingDirectory(const fs::path& folder) : m_former(fs::current_path()) { fs::current_path(folder); }
  ~WorkingDirectory()
  {
    std::error_code ignored;
    fs::current_path(m_former, ignored);
  }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;

private:
  fs::path m_former;
};

void BringToDisk(const fs::path& path)
{
  const int descriptor = open(path.c_str(), O_RDONLY);
  const bool good = descriptor >= 0 && fsync(descriptor) == 0;
  const int error = errno;
  if (descriptor >= 0)
  {
    close(descriptor);
  }
  if (!good)
  {
    throw UnusableInput(path.string() + " cannot be brought to disk: " + std::strerror(error));
  }
}

void WriteValue(const ParfileHdf5Storage& storage, const JobCommand& command, const JobKey& key, const JobValue& value)
{
  const std::string kind(command.kind->kind);
  const std::string name(key.field->key);
  if (key.field->type == vtmReference)
  {
    storage.AddReference(kind, command.id, name, std::string(key.field->target), std::get<std::string>(value));
    return;
  }
  std::visit([&](const auto& typed) { storage.AddValue(kind, command.id, name, key.field->type, typed); }, value);
}

void WriteOrNote(const ParfileHdf5Storage& storage, const JobCommand& command, const JobKey& key, const JobItem& item,
                 std::vector<std::string>& failures)
{
  try
  {
    WriteValue(storage, command, key, item.value);
  }
  catch (const KLV_Failure& failure)
  {
    failures.push_back(item.place + ": " + failure.what());
  }
}

template <class Visit>
void ForEachItem(const std::vector<JobCommand>& job, Visit visit)
{
  for (const JobCommand& command : job)
  {
    for (const JobKey& key : command.keys)
    {
      for (const JobItem& item : key.items)
      {
        visit(command, key, item);
      }
    }
  }
}

}  // namespace

fs::path ParameterFilePath(const fs::path& argument)
{
  if (argument.empty())
  {
    throw UnusableInput("the path of the parameter file is empty");
  }
  fs::path path = fs::absolute(argument).lexically_normal();
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

fs::path NewParameterFilePath(const fs::path& argument, bool force)
{
  fs::path path = ParameterFilePath(argument);
  if (fs::exists(path) && !force)
  {
    throw UnusableInput(path.string() + " exists already; --force replaces it");
  }
  return path;
}

std::unique_ptr<ParfileHdf5Storage> OpenParameterFile(const fs::path& path)
{
  if (!fs::exists(path))
  {
    throw UnusableInput(path.string() + ": there is no such file");
  }
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

FolderBeside::FolderBeside(const fs::path& place)
{
  std::string name = (place.parent_path() / ".orvel-parfile.XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
  {
    throw UnusableInput("nothing can be written in " + place.parent_path().string() + ": " + std::strerror(errno));
  }
  m_path = name;
}

FolderBeside::~FolderBeside()
{
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

NewParameterFile::NewParameterFile(const fs::path& place) : m_place(place), m_folder(place)
{
  try
  {
    const H5::H5File empty(Path().string(), H5F_ACC_EXCL);
  }
  catch (const H5::Exception& error)
  {
    throw UnusableInput(Path().string() + " cannot be made: " + error.getDetailMsg());
  }
}

std::vector<std::string> NewParameterFile::Fill(const std::vector<JobCommand>& job)
{
  const WorkingDirectory folder(m_folder.Path());
  const ParfileHdf5Storage storage(true);
  for (const JobCommand& command : job)
  {
    storage.AddCommand(std::string(command.kind->kind), command.id);
  }
  std::vector<std::string> failures;
  const auto write_keys = [&](bool references) {
    ForEachItem(job, [&](const JobCommand& command, const JobKey& key, const JobItem& item) {
      if ((key.field->type == vtmReference) == references)
      {
        WriteOrNote(storage, command, key, item, failures);
      }
    });
  };
  write_keys(false);
  write_keys(true);
  return failures;
}

fs::path NewParameterFile::Path() const
{
  return m_folder.Path() / PARFILE_STORAGE_FILE;
}

void NewParameterFile::PutInPlace()
{
  BringToDisk(Path());
  fs::rename(Path(), m_place);
  BringToDisk(m_place.parent_path());
}
