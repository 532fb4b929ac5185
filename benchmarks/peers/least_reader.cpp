#include "peers/hdf5_handle.h"
#include "peers/peers.h"

#include <vector>

namespace plain
{
namespace
{

// What any element takes in memory at most: a variable-length one is a length and a pointer.
using Element = hvl_t;

// The types in memory, made once.
struct Types
{
  Type texts{H5Tvlen_create(H5T_C_S1)};
  Type integer_lists{H5Tvlen_create(H5T_NATIVE_INT)};
  Type double_lists{H5Tvlen_create(H5T_NATIVE_DOUBLE)};

  hid_t For(VtmType type) const
  {
    switch (type)
    {
      case vtmInteger:
      case vtmEnum: return H5T_NATIVE_INT;
      case vtmDouble: return H5T_NATIVE_DOUBLE;
      case vtmReference: return H5T_STD_REF_OBJ;
      case vtmIntegerList: return integer_lists;
      case vtmDoubleList: return double_lists;
      default: return texts;
    }
  }
};

bool IsVariableLength(VtmType type)
{
  return type == vtmString || type == vtmModelId || type == vtmIntegerList || type == vtmDoubleList;
}

}  // namespace

std::vector<DatasetPlace> PlacesOf(const std::vector<JobCommand>& job)
{
  std::vector<DatasetPlace> places;
  for (const JobCommand& command : job)
  {
    const std::string group = "/PARFILE/" + std::string(command.kind->kind) + "/" + command.id + "/";
    for (const JobKey& key : command.keys)
    {
      if (!key.values.empty())
      {
        places.push_back({group + std::string(key.field->key), key.field->type});
      }
    }
  }
  return places;
}

std::size_t ReadEachDatasetOnce(const std::filesystem::path& file, const std::vector<DatasetPlace>& places,
                                hid_t transfer)
{
  const Types types;
  const File opened(H5Fopen(file.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT));
  std::vector<Element> buffer;
  std::size_t values = 0;
  for (const DatasetPlace& place : places)
  {
    const Dataset dataset(H5Dopen2(opened, place.path.c_str(), H5P_DEFAULT));
    const Space space(H5Dget_space(dataset));
    const auto count = static_cast<std::size_t>(Checked(H5Sget_simple_extent_npoints(space)));
    buffer.resize(count);
    Checked(H5Dread(dataset, types.For(place.type), H5S_ALL, H5S_ALL, transfer, buffer.data()));
    if (IsVariableLength(place.type))
    {
      Checked(H5Dvlen_reclaim(types.For(place.type), space, transfer, buffer.data()));
    }
    values += count;
  }
  return values;
}

}  // namespace plain
