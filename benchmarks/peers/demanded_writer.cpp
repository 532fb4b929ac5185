#include "peers/demanded_calls.h"
#include "peers/peers.h"

#include <type_traits>

namespace plain
{
namespace
{

Type MakeType(VtmType type)
{
  switch (type)
  {
    case vtmInteger:
    case vtmEnum: return Type(H5Tcopy(H5T_NATIVE_INT));
    case vtmDouble: return Type(H5Tcopy(H5T_NATIVE_DOUBLE));
    case vtmIntegerList: return Type(H5Tvlen_create(H5T_NATIVE_INT));
    case vtmDoubleList: return Type(H5Tvlen_create(H5T_NATIVE_DOUBLE));
    default: return Type(H5Tvlen_create(H5T_C_S1));
  }
}

class Writer
{
public:
  Writer(hid_t parfile, hid_t transfer) : m_parfile(parfile), m_transfer(transfer), m_value_space(ValueSpace()) {}

  void AddCommand(const std::string& kind, const std::string& id) const
  {
    const Group group(HasName(m_parfile, kind)
                        ? H5Gopen2(m_parfile, kind.c_str(), H5P_DEFAULT)
                        : H5Gcreate2(m_parfile, kind.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT));
    if (HasName(group, id))
    {
      throw std::runtime_error(id + " is taken");
    }
    const Group command(H5Gcreate2(group, id.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT));
  }

  void AddValue(const std::string& command, const std::string& key, VtmType type, const void* value) const
  {
    const Type data_type = MakeType(type);
    Append(command, key, data_type, value);
  }

  void AddReference(const std::string& command, const std::string& key, const std::string& target) const
  {
    hobj_ref_t reference = 0;
    Checked(H5Rcreate(&reference, m_parfile, target.c_str(), H5R_OBJECT, -1));
    Append(command, key, H5T_STD_REF_OBJ, &reference);
  }

private:
  void Append(const std::string& command, const std::string& key, hid_t type, const void* value) const
  {
    const Group group(H5Gopen2(m_parfile, command.c_str(), H5P_DEFAULT));
    const std::string path = command + "/" + key;
    if (HasName(group, key))
    {
      const Dataset dataset(H5Dopen2(m_parfile, path.c_str(), H5P_DEFAULT));
      const Space space(H5Dget_space(dataset));
      Write(dataset, type, static_cast<hsize_t>(Checked(H5Sget_select_npoints(space))), value);
      return;
    }
    const hsize_t chunk = 1;
    const PropertyList layout(H5Pcreate(H5P_DATASET_CREATE));
    Checked(H5Pset_chunk(layout, 1, &chunk));
    const Dataset dataset(H5Dcreate2(m_parfile, path.c_str(), type, m_value_space, H5P_DEFAULT, layout, H5P_DEFAULT));
    Write(dataset, type, 0, value);
  }

  void Write(hid_t dataset, hid_t type, hsize_t position, const void* value) const
  {
    const Space space(H5Dget_space(dataset));
    if (position < static_cast<hsize_t>(Checked(H5Sget_simple_extent_npoints(space))))
    {
      WriteElement(dataset, type, space, position, value);
      return;
    }
    const hsize_t size = position + 1;
    Checked(H5Dset_extent(dataset, &size));
    const Space grown(H5Dget_space(dataset));
    WriteElement(dataset, type, grown, position, value);
  }

  void WriteElement(hid_t dataset, hid_t type, hid_t space, hsize_t position, const void* value) const
  {
    Select(space, position);
    Checked(H5Dwrite(dataset, type, m_value_space, space, m_transfer, value));
  }

  hid_t m_parfile;
  hid_t m_transfer;
  Space m_value_space;
};

// The memory that HDF5 moves for a value.
struct Buffer
{
  hvl_t list{0, nullptr};

  const void* Of(const int& value) { return &value; }
  const void* Of(const double& value) { return &value; }
  const void* Of(const std::string& value)
  {
    list = {value.size() + 1, const_cast<char*>(value.c_str())};
    return &list;
  }
  template <class Item>
  const void* Of(const std::vector<Item>& values)
  {
    list = {values.size(), const_cast<Item*>(values.data())};
    return &list;
  }
};

}  // namespace

void WriteWithDemandedCalls(const std::filesystem::path& file, const std::vector<JobCommand>& job, hid_t transfer)
{
  const File opened(OpenAsDemanded(file.c_str(), H5F_ACC_RDWR));
  const Group parfile(H5Gcreate2(opened, "/PARFILE", H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT));
  const Writer writer(parfile, transfer);
  for (const JobCommand& command : job)
  {
    writer.AddCommand(std::string(command.kind->kind), command.id);
  }
  for (const JobCommand& command : job)
  {
    const std::string path = std::string(command.kind->kind) + "/" + command.id;
    for (const JobKey& key : command.keys)
    {
      const std::string name(key.field->key);
      for (const JobValue& value : key.values)
      {
        if (key.field->type == vtmReference)
        {
          writer.AddReference(path, name,
                              "/PARFILE/" + std::string(key.field->target) + "/" + std::get<std::string>(value));
          continue;
        }
        Buffer buffer;
        std::visit([&](const auto& one) { writer.AddValue(path, name, key.field->type, buffer.Of(one)); }, value);
      }
    }
  }
}

}  // namespace plain
