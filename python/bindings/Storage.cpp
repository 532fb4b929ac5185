#include "Storage.h"

#include <H5Cpp.h>

#include <algorithm>
#include <vector>

namespace fs = std::filesystem;

namespace orvel::python
{
namespace
{

// The storage finds its file in the working directory alone.
class WorkingDirectory
{
public:
  explicit WorkingDirectory(const fs::path& folder) : m_former(fs::current_path())
  {
    std::error_code error;
    fs::current_path(folder, error);
    if (error)
    {
      throw fs::filesystem_error("", folder, error);  // the function's own failure does not tell the folder
    }
  }
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

// HDF5 keeps the switch for each thread.
void SilenceHdf5()
{
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
}

std::vector<hid_t> OpenFiles()
{
  const ssize_t count = H5Fget_obj_count(H5F_OBJ_ALL, H5F_OBJ_FILE);
  std::vector<hid_t> files(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  if (!files.empty())
  {
    H5Fget_obj_ids(H5F_OBJ_ALL, H5F_OBJ_FILE, files.size(), files.data());
  }
  return files;
}

// A constructor that fails on /PARFILE leaves its file open, which would lock it until Python ends.
std::unique_ptr<ParfileHdf5Storage> OpenOrLeaveNothing(bool create_group, bool read_only)
{
  const std::vector<hid_t> before = OpenFiles();
  try
  {
    return std::make_unique<ParfileHdf5Storage>(create_group, read_only);
  }
  catch (...)
  {
    for (const hid_t file : OpenFiles())
    {
      if (std::find(before.begin(), before.end(), file) == before.end())
      {
        H5Fclose(file);
      }
    }
    throw;
  }
}

void MakeEmptyFile()
{
  if (fs::exists(PARFILE_STORAGE_FILE))
  {
    throw fs::filesystem_error("", fs::absolute(PARFILE_STORAGE_FILE), std::make_error_code(std::errc::file_exists));
  }
  const H5::H5File empty(PARFILE_STORAGE_FILE, H5F_ACC_EXCL);
}

}  // namespace

Storage::Storage(const fs::path& folder, const std::string& mode)
{
  if (mode != "r" && mode != "r+" && mode != "x")
  {
    throw pybind11::value_error("the mode of a storage is 'r', 'r+' or 'x', not '" + mode + "'");
  }
  SilenceHdf5();
  const WorkingDirectory working_directory(folder);
  if (mode == "x")
  {
    MakeEmptyFile();
  }
  m_storage = OpenOrLeaveNothing(mode == "x", mode == "r");
}

ParfileHdf5Storage& Storage::Open() const
{
  if (IsClosed())
  {
    throw pybind11::value_error("the storage is closed");
  }
  SilenceHdf5();
  return *m_storage;
}

}  // namespace orvel::python
