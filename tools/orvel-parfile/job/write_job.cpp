#include "write_job.h"

#include "foreign_keys.h"
#include "parameter_file.h"
#include "support/at_place.h"
#include "support/exit_code.h"
#include "support/hdf5_handle.h"
#include "support/progress.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace
{

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
    failures.push_back(AtPlace(item.place, failure.what()));
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
    failures.push_back(AtPlace(command.place, failure.what()));
  }
}

void WriteKeysOf(const ParfileHdf5Storage& storage, const JobCommand& command, bool references,
                 std::vector<std::string>& failures)
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
}

// The binding of HDF5 writes on standard error of each object that it cannot close, as on a full disk.
class QuietBinding
{
public:
  QuietBinding() : m_former(std::cerr.rdbuf(nullptr)) {}
  QuietBinding(const QuietBinding&) = delete;
  QuietBinding& operator=(const QuietBinding&) = delete;
  ~QuietBinding() { std::cerr.rdbuf(m_former); }

private:
  std::streambuf* m_former;
};

// Much of what is written stays in memory until a file is closed, when nobody is told of a failure any more.
void RequireWritten(const fs::path& file)
{
  const Hdf5Handle handle(H5Fopen(file.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), H5Fclose);
  if (!handle.IsOpen() || H5Fflush(handle.Id(), H5F_SCOPE_GLOBAL) < 0)
  {
    throw UnwritableFile(file.parent_path().parent_path().string());
  }
}

template <class Action>
void WithStorage(const fs::path& file, bool is_new, Action action)
{
  const QuietBinding quiet;
  {
    const WorkingDirectory folder(file.parent_path());
    std::unique_ptr<ParfileHdf5Storage> storage;
    try
    {
      storage = std::make_unique<ParfileHdf5Storage>(is_new);
    }
    catch (const KLV_Failure&)
    {
      throw UnwritableFile(file.parent_path().parent_path().string());
    }
    action(*storage);
    RequireWritten(file);
  }
  RequireWritten(file);  // what HDF5 wrote in closing
}

void WriteValues(const ParfileHdf5Storage& storage, const Job& job, Progress& progress,
                 std::vector<std::string>& failures)
{
  for (const bool references : {false, true})  // the targets of all references must be there
  {
    for (const JobCommand& command : job.commands)
    {
      WriteKeysOf(storage, command, references, failures);
      progress.Step();
    }
  }
}

}  // namespace

void MakeParameterFile(const fs::path& file)
{
  const hid_t made = H5Fcreate(file.c_str(), H5F_ACC_EXCL, H5P_DEFAULT, H5P_DEFAULT);
  if (made < 0 || H5Fclose(made) < 0)
  {
    throw UnwritableFile(file.parent_path().parent_path().string());
  }
}

std::vector<std::string> WriteJob(const fs::path& file, const Job& job)
{
  std::vector<std::string> failures;
  Progress progress("writing", 3 * job.commands.size());
  WithStorage(file, true, [&](const ParfileHdf5Storage& storage) {
    for (const JobCommand& command : job.commands)
    {
      AddCommandOrNote(storage, command, failures);
      progress.Step();
    }
    WriteValues(storage, job, progress, failures);
    WriteForeignKeys(file, job, failures);
  });
  return failures;
}

std::vector<std::string> WriteKeys(const fs::path& file, const JobCommand& command, bool is_new)
{
  std::vector<std::string> failures;
  Progress progress("writing", 2);
  WithStorage(file, false, [&](const ParfileHdf5Storage& storage) {
    if (is_new)
    {
      AddCommandOrNote(storage, command, failures);
    }
    const Job job{{command}, {}, {}};
    WriteValues(storage, job, progress, failures);
    WriteForeignKeys(file, job, failures);
  });
  return failures;
}
