#include "new_parameter_file.h"

#include "foreign_keys.h"
#include "parameter_file.h"
#include "support/exit_code.h"
#include "support/progress.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace fs = std::filesystem;

namespace
{

void BringToDisk(const fs::path& path)
{
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
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

// Adds one value in the C++ type that the storage has for it.
struct AddTo
{
  const ParfileHdf5Storage& storage;
  const JobCommand& command;
  const JobKey& key;

  void operator()(std::int64_t value) const { Add(static_cast<int>(value)); }
  void operator()(double value) const { Add(value); }
  void operator()(const std::string& value) const { Add(value); }
  void operator()(const std::vector<std::int64_t>& values) const
  {
    Add(std::vector<int>(values.begin(), values.end()));
  }
  void operator()(const std::vector<double>& values) const { Add(values); }
  void operator()(const JobReference& target) const
  {
    storage.AddReference(command.kind, command.id, key.name, target.kind, target.id);
  }

  template <class Value>
  void Add(const Value& value) const
  {
    storage.AddValue(command.kind, command.id, key.name, key.type->written_as, value);
  }
};

void WriteOrNote(const AddTo& add, const JobItem& item, std::vector<std::string>& failures)
{
  try
  {
    std::visit(add, item.value);
  }
  catch (const KLV_Failure& failure)
  {
    failures.push_back((item.place.empty() ? "" : item.place + ": ") + failure.what());
  }
}

void AddCommandOrNote(const ParfileHdf5Storage& storage, const JobCommand& command, std::vector<std::string>& failures)
{
  try
  {
    storage.AddCommand(command.kind, command.id);
  }
  catch (const KLV_Failure& failure)
  {
    failures.push_back((command.place.empty() ? "" : command.place + ": ") + failure.what());
  }
}

}  // namespace

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

std::vector<std::string> NewParameterFile::Fill(const Job& job)
{
  std::vector<std::string> failures;
  Progress progress("writing", 3 * job.commands.size());
  {
    const WorkingDirectory folder(m_folder.Path());
    const ParfileHdf5Storage storage(true);
    for (const JobCommand& command : job.commands)
    {
      AddCommandOrNote(storage, command, failures);
      progress.Step();
    }
    for (const bool references : {false, true})  // the targets of all references must be there
    {
      for (const JobCommand& command : job.commands)
      {
        for (const JobKey& key : command.keys)
        {
          if (!IsForeign(key) && (key.type == &ReferenceType()) == references)
          {
            std::for_each(key.items.begin(), key.items.end(), [&](const JobItem& item) {
              WriteOrNote({storage, command, key}, item, failures);
            });
          }
        }
        progress.Step();
      }
    }
  }
  WriteForeignKeys(Path(), job, failures);
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
