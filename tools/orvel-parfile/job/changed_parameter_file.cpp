#include "changed_parameter_file.h"

#include "parameter_file.h"
#include "read_parameter_file.h"
#include "support/exit_code.h"
#include "support/hdf5_handle.h"
#include "write_job.h"

namespace fs = std::filesystem;

namespace
{

constexpr const char* kRoot = "/PARFILE/";

bool IsHardLink(hid_t file, const std::string& path)
{
  H5L_info_t link{};
  return H5Lget_info(file, path.c_str(), &link, H5P_DEFAULT) >= 0 && link.type == H5L_TYPE_HARD;
}

// What a link leads to may lie in another file, which would then be changed in place.
void RequireCommandsOfItsOwn(const fs::path& path)
{
  const Hdf5Handle file(H5Fopen(path.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
  if (!IsHardLink(file.Id(), "/PARFILE"))
  {
    throw UnusableInput(path.string() + ": /PARFILE is a link, and what it leads to is not changed");
  }
}

Job ReadToChange(const fs::path& path)
{
  RequireUnprotected(path);
  Job job = ReadParameterFile(path);
  RequireCommandsOfItsOwn(path);
  return job;
}

bool HasLink(hid_t file, const std::string& path)
{
  const std::size_t id = path.find('/', std::string(kRoot).size());
  const std::size_t key = id != std::string::npos ? path.find('/', id + 1) : id;
  for (const std::size_t end : {id, key, path.size()})
  {
    if (end != std::string::npos && H5Lexists(file, path.substr(0, end).c_str(), H5P_DEFAULT) <= 0)
    {
      return false;
    }
  }
  return true;
}

// Opens the file, lets the action change it, and sees to it that the change is written.
template <class Action>
void Change(const fs::path& path, Action action)
{
  const Hdf5Handle file(H5Fopen(path.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), H5Fclose);
  if (!file.IsOpen() || !action(file.Id()) || H5Fflush(file.Id(), H5F_SCOPE_GLOBAL) < 0)
  {
    throw UnwritableFile(path.parent_path().parent_path().string());
  }
}

}  // namespace

ChangedParameterFile::ChangedParameterFile(const fs::path& path)
  : m_lock(path), m_before(ReadToChange(path)), m_file(path)
{
  m_file.CopyFromPlace();
}

void ChangedParameterFile::SetKeys(const JobCommand& command) const
{
  const bool is_new = JobIndex(m_before).Find(command.kind, command.id) == nullptr;
  for (const JobKey& key : command.keys)
  {
    const std::string path = kRoot + command.kind + "/" + command.id + "/" + key.name;
    Change(m_file.Path(),
           [&](hid_t file) { return !HasLink(file, path) || H5Ldelete(file, path.c_str(), H5P_DEFAULT) >= 0; });
  }
  const std::vector<std::string> failures = WriteKeys(m_file.Path(), command, is_new);
  if (!failures.empty())
  {
    throw FaultyInput(failures);
  }
}

void ChangedParameterFile::MakeNull(const std::string& path, const std::vector<bool>& chosen) const
{
  Change(m_file.Path(), [&](hid_t file) {
    const Hdf5Handle key(H5Dopen2(file, (kRoot + path).c_str(), H5P_DEFAULT), H5Dclose);
    std::vector<hobj_ref_t> addresses(chosen.size());
    if (!key.IsOpen() || H5Dread(key.Id(), H5T_STD_REF_OBJ, H5S_ALL, H5S_ALL, H5P_DEFAULT, addresses.data()) < 0)
    {
      return false;
    }
    for (std::size_t place = 0; place < chosen.size(); ++place)
    {
      addresses[place] = chosen[place] ? 0 : addresses[place];
    }
    return H5Dwrite(key.Id(), H5T_STD_REF_OBJ, H5S_ALL, H5S_ALL, H5P_DEFAULT, addresses.data()) >= 0;
  });
}

void ChangedParameterFile::Remove(const std::string& path) const
{
  Change(m_file.Path(), [&](hid_t file) { return H5Ldelete(file, (kRoot + path).c_str(), H5P_DEFAULT) >= 0; });
}

void ChangedParameterFile::RemoveAttributes(const std::string& path) const
{
  Change(m_file.Path(), [&](hid_t file) {
    const Hdf5Handle object(H5Oopen(file, (kRoot + path).c_str(), H5P_DEFAULT), H5Oclose);
    while (object.IsOpen() && H5Aget_num_attrs(object.Id()) > 0)
    {
      if (H5Adelete_by_idx(object.Id(), ".", H5_INDEX_NAME, H5_ITER_INC, 0, H5P_DEFAULT) < 0)
      {
        return false;
      }
    }
    return object.IsOpen();
  });
}

void ChangedParameterFile::PutInPlace() const
{
  m_file.PutInPlace();
}
