#include "foreign_keys.h"

#include "support/at_place.h"
#include "support/exit_code.h"
#include "support/hdf5_handle.h"

#include <algorithm>
#include <optional>

namespace
{

bool IsNullReference(const JobItem& item)
{
  const auto* reference = std::get_if<JobReference>(&item.value);
  return reference != nullptr && reference->IsNull();
}

bool HasForeignParts(const Job& job)
{
  return !job.empty_kinds.empty() ||
         std::any_of(job.commands.begin(), job.commands.end(), [](const JobCommand& command) {
           return std::any_of(command.keys.begin(), command.keys.end(), IsForeign);
         });
}

// The layout that the library gives its keys: any number of elements, one in each chunk.
hid_t MakeDataset(hid_t group, const JobKey& key)
{
  const hsize_t size = key.items.size();
  const hsize_t unlimited = H5S_UNLIMITED;
  const hsize_t chunk = 1;
  const Hdf5Handle space(H5Screate_simple(1, &size, &unlimited), H5Sclose);
  const Hdf5Handle properties(H5Pcreate(H5P_DATASET_CREATE), H5Pclose);
  const Hdf5Handle type(key.type->make(), H5Tclose);
  H5Pset_chunk(properties.Id(), 1, &chunk);
  return H5Dcreate2(group, key.name.c_str(), type.Id(), space.Id(), H5P_DEFAULT, properties.Id(), H5P_DEFAULT);
}

template <class Value>
std::vector<Value> ValuesOf(const JobKey& key)
{
  std::vector<Value> values;
  for (const JobItem& item : key.items)
  {
    values.push_back(std::get<Value>(item.value));
  }
  return values;
}

// 0 for a reference to nothing, none for one to a command that is not there.
std::optional<hobj_ref_t> AddressOf(hid_t file, const JobReference& target)
{
  hobj_ref_t address = 0;
  const std::string path = "/PARFILE/" + target.kind + "/" + target.id;
  if (!target.IsNull() && H5Rcreate(&address, file, path.c_str(), H5R_OBJECT, -1) < 0)
  {
    return std::nullopt;
  }
  return address;
}

std::vector<hobj_ref_t> AddressesOf(hid_t file, const JobKey& key)
{
  std::vector<hobj_ref_t> addresses;
  for (const JobReference& target : ValuesOf<JobReference>(key))
  {
    addresses.push_back(AddressOf(file, target).value_or(0));
  }
  return addresses;
}

// Notes each reference to a command that is not there. Returns whether there is none.
bool HasItsTargets(hid_t file, const JobCommand& command, const JobKey& key, std::vector<std::string>& failures)
{
  bool has_all = true;
  for (const JobItem& item : key.items)
  {
    const auto* target = std::get_if<JobReference>(&item.value);
    if (target != nullptr && !AddressOf(file, *target))
    {
      failures.push_back(AtPlace(item.place, command.kind + " " + command.id + ": " + key.name + ": there is no " +
                                               target->kind + " " + target->id));
      has_all = false;
    }
  }
  return has_all;
}

bool WriteElements(hid_t dataset, hid_t memory_type, const void* elements)
{
  return H5Dwrite(dataset, memory_type, H5S_ALL, H5S_ALL, H5P_DEFAULT, elements) >= 0;
}

bool WriteItems(hid_t file, hid_t dataset, const JobKey& key)
{
  if (key.items.empty())
  {
    return true;
  }
  switch (key.type->shape)
  {
    case ValueShape::Integer: return WriteElements(dataset, H5T_NATIVE_INT64, ValuesOf<std::int64_t>(key).data());
    case ValueShape::Number: return WriteElements(dataset, H5T_NATIVE_DOUBLE, ValuesOf<double>(key).data());
    case ValueShape::Reference: return WriteElements(dataset, H5T_STD_REF_OBJ, AddressesOf(file, key).data());
    case ValueShape::Text:
    {
      const std::vector<std::string> texts = ValuesOf<std::string>(key);
      std::vector<const char*> strings;
      std::transform(texts.begin(), texts.end(), std::back_inserter(strings),
                     [](const std::string& text) { return text.c_str(); });
      const Hdf5Handle type(key.type->make(), H5Tclose);
      return WriteElements(dataset, type.Id(), strings.data());
    }
    default: return false;  // lists with items are the library's to write
  }
}

bool WriteKey(hid_t file, const JobCommand& command, const JobKey& key)
{
  const Hdf5Handle group(H5Gopen2(file, ("/PARFILE/" + command.kind + "/" + command.id).c_str(), H5P_DEFAULT),
                         H5Gclose);
  const Hdf5Handle dataset(MakeDataset(group.Id(), key), H5Dclose);
  return dataset.IsOpen() && WriteItems(file, dataset.Id(), key);
}

bool WriteKind(hid_t file, const std::string& kind)
{
  const Hdf5Handle group(H5Gcreate2(file, ("/PARFILE/" + kind).c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT),
                         H5Gclose);
  return group.IsOpen();
}

}  // namespace

bool IsForeign(const JobKey& key)
{
  return key.type->written_as == vtmUnknown || key.items.empty() ||
         std::any_of(key.items.begin(), key.items.end(), IsNullReference);
}

void WriteForeignKeys(const std::filesystem::path& file, const Job& job, std::vector<std::string>& failures)
{
  if (!HasForeignParts(job))
  {
    return;
  }
  const Hdf5Handle handle(H5Fopen(file.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), H5Fclose);
  if (!handle.IsOpen())
  {
    throw UnusableInput(file.string() + ": HDF5 cannot open the file");
  }
  for (const std::string& kind : job.empty_kinds)
  {
    if (!WriteKind(handle.Id(), kind))
    {
      failures.push_back("the kind " + kind + " cannot be written");
    }
  }
  for (const JobCommand& command : job.commands)
  {
    for (const JobKey& key : command.keys)
    {
      if (IsForeign(key) && HasItsTargets(handle.Id(), command, key, failures) && !WriteKey(handle.Id(), command, key))
      {
        failures.push_back(
          AtPlace(key.place, command.kind + " " + command.id + ": " + key.name + " cannot be written"));
      }
    }
  }
}
