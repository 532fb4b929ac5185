#include "read_parameter_file.h"

#include "parameter_file.h"
#include "support/exit_code.h"
#include "support/hdf5_handle.h"
#include "support/progress.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace
{

// A count above this is a damaged file or none of a parameter file: its values would not fit into memory.
constexpr hssize_t kMostValues = 100'000'000;

// HDF5 zeroes its buffer at each read, by default a megabyte. Most keys have one value.
constexpr std::size_t kTransferBytes = 16384;

struct Link
{
  std::string name;
  H5L_type_t type;
  haddr_t address;
};

// All links of a group in name order.
std::vector<Link> LinksOf(hid_t group)
{
  std::vector<Link> links;
  const auto note = [](hid_t, const char* name, const H5L_info_t* info, void* data) -> herr_t {
    try
    {
      static_cast<std::vector<Link>*>(data)->push_back(
        {name, info->type, info->type == H5L_TYPE_HARD ? info->u.address : HADDR_UNDEF});
      return 0;
    }
    catch (...)  // must not pass through HDF5
    {
      return -1;
    }
  };
  hsize_t start = 0;
  if (H5Literate(group, H5_INDEX_NAME, H5_ITER_INC, &start, note, &links) < 0)
  {
    throw UnusableInput("the names of a group of the parameter file cannot be read");
  }
  return links;
}

// How many members the groups have to which these links lead.
std::size_t MembersOf(hid_t group, const std::vector<Link>& links)
{
  std::size_t count = 0;
  for (const Link& link : links)
  {
    H5G_info_t info{};
    if (link.type == H5L_TYPE_HARD && H5Gget_info_by_name(group, link.name.c_str(), &info, H5P_DEFAULT) >= 0)
    {
      count += info.nlinks;
    }
  }
  return count;
}

const char* LinkText(H5L_type_t type)
{
  switch (type)
  {
    case H5L_TYPE_SOFT: return "a soft link";
    case H5L_TYPE_EXTERNAL: return "a link to another file";
    default: return "a link that leads to no object";
  }
}

hid_t SmallTransfer()
{
  const hid_t list = H5Pcreate(H5P_DATASET_XFER);
  H5Pset_buffer(list, kTransferBytes, nullptr, nullptr);
  return list;
}

// All elements of a dataset.
bool Read(hid_t dataset, hid_t type, void* elements)
{
  static const hid_t transfer = SmallTransfer();  // for HDF5 to close
  return H5Dread(dataset, type, H5S_ALL, H5S_ALL, transfer, elements) >= 0;
}

// Sequences as HDF5 gives them, which leaves their memory to the reader.
class Sequences
{
public:
  Sequences(hid_t dataset, hid_t type, std::size_t count)
    : m_type(type), m_space(H5Dget_space(dataset), H5Sclose), m_values(count)
  {
    m_good = Read(dataset, type, m_values.data());
  }
  Sequences(const Sequences&) = delete;
  Sequences& operator=(const Sequences&) = delete;
  ~Sequences()
  {
    if (m_good)
    {
      H5Dvlen_reclaim(m_type, m_space.Id(), H5P_DEFAULT, m_values.data());
    }
  }

  bool AreRead() const { return m_good; }
  const std::vector<hvl_t>& Values() const { return m_values; }

private:
  hid_t m_type;
  Hdf5Handle m_space;
  std::vector<hvl_t> m_values;
  bool m_good = false;
};

// Reads the elements of a dataset that HDF5 converts to fixed-size elements of memory.
template <class Element>
bool ReadElements(hid_t dataset, hid_t memory_type, std::vector<Element>& elements)
{
  return elements.empty() || Read(dataset, memory_type, elements.data());
}

template <class Element>
std::vector<Element> ItemsOf(const hvl_t& sequence)
{
  const auto* items = static_cast<const Element*>(sequence.p);
  return items != nullptr ? std::vector<Element>(items, items + sequence.len) : std::vector<Element>();
}

// A text ends at its first NUL or with its element.
std::string TextOf(const hvl_t& sequence)
{
  const auto* characters = static_cast<const char*>(sequence.p);
  return characters != nullptr ? std::string(characters, strnlen(characters, sequence.len)) : std::string();
}

class FileReader
{
public:
  explicit FileReader(hid_t file) : m_file(file) {}

  Job Read()
  {
    const Hdf5Handle parfile(H5Gopen2(m_file, "/PARFILE", H5P_DEFAULT), H5Gclose);
    if (!parfile.IsOpen())
    {
      throw UnusableInput("the group /PARFILE cannot be opened");
    }
    NoteAttributes(parfile.Id(), "/PARFILE");
    const std::vector<Link> kinds = LinksOf(parfile.Id());
    Progress progress("reading", MembersOf(parfile.Id(), kinds));
    for (const Link& link : kinds)
    {
      ReadKind(parfile.Id(), link, progress);
    }
    for (JobCommand& command : m_job.commands)
    {
      std::for_each(command.keys.begin(), command.keys.end(), [&](JobKey& key) { ResolveReferences(command, key); });
    }
    return std::move(m_job);
  }

private:
  void NoteForeign(const std::string& path, const std::string& what) { m_job.foreign_objects.push_back({path, what}); }

  void NoteAttributes(hid_t object, const std::string& path)
  {
    const int count = H5Aget_num_attrs(object);
    if (count > 0)
    {
      NoteForeign(path, std::to_string(count) + (count == 1 ? " attribute" : " attributes"));
    }
  }

  // Opens what a link leads to, if that is an object of the wanted type. Notes it as foreign otherwise.
  hid_t OpenMember(hid_t group, const Link& link, H5I_type_t wanted, const std::string& path)
  {
    if (link.type != H5L_TYPE_HARD)
    {
      NoteForeign(path, LinkText(link.type));
      return H5I_INVALID_HID;
    }
    const hid_t object = H5Oopen(group, link.name.c_str(), H5P_DEFAULT);
    if (object < 0)
    {
      NoteForeign(path, "an object that HDF5 cannot open");
      return H5I_INVALID_HID;
    }
    const H5I_type_t type = H5Iget_type(object);
    if (type != wanted)
    {
      NoteForeign(path, type == H5I_GROUP     ? "a group where a key stands"
                        : type == H5I_DATASET ? "a dataset where a group stands"
                                              : "a named type");
      H5Oclose(object);
      return H5I_INVALID_HID;
    }
    NoteAttributes(object, path);
    return object;
  }

  void ReadKind(hid_t parfile, const Link& link, Progress& progress)
  {
    const std::string path = "/PARFILE/" + link.name;
    const Hdf5Handle kind(OpenMember(parfile, link, H5I_GROUP, path), H5Oclose);
    if (!kind.IsOpen())
    {
      return;
    }
    const std::vector<Link> commands = LinksOf(kind.Id());
    if (commands.empty())
    {
      m_job.empty_kinds.push_back(link.name);
    }
    for (const Link& command : commands)
    {
      ReadCommand(kind.Id(), link.name, command, path + "/" + command.name);
      progress.Step();
    }
  }

  void ReadCommand(hid_t kind, const std::string& kind_name, const Link& link, const std::string& path)
  {
    const Hdf5Handle group(OpenMember(kind, link, H5I_GROUP, path), H5Oclose);
    if (!group.IsOpen())
    {
      return;
    }
    JobCommand command{kind_name, link.name, {}, {}, {}};
    for (const Link& key : LinksOf(group.Id()))
    {
      const Hdf5Handle dataset(OpenMember(group.Id(), key, H5I_DATASET, path + "/" + key.name), H5Oclose);
      if (dataset.IsOpen())
      {
        command.keys.push_back(ReadKey(dataset.Id(), key.name));
      }
    }
    m_targets[link.address].push_back({kind_name, link.name});
    m_job.commands.push_back(std::move(command));
  }

  JobKey ReadKey(hid_t dataset, const std::string& name)
  {
    JobKey key;
    key.name = name;
    const Hdf5Handle space(H5Dget_space(dataset), H5Sclose);
    const Hdf5Handle type(H5Dget_type(dataset), H5Tclose);
    const hssize_t count = H5Sget_simple_extent_npoints(space.Id());
    const int rank = H5Sget_simple_extent_ndims(space.Id());
    if (!space.IsOpen() || !type.IsOpen() || count < 0)
    {
      key.unreadable = "a dataset that HDF5 cannot open";
    }
    else if (H5Sget_simple_extent_type(space.Id()) != H5S_SIMPLE || rank != 1)
    {
      key.unreadable = "a dataset of rank " + std::to_string(rank) + ", where a key has rank 1";
    }
    else if (count > kMostValues)
    {
      key.unreadable = std::to_string(count) + " values";
    }
    else
    {
      key.type = ClassifyType(type.Id());
      ReadValues(dataset, type.Id(), static_cast<std::size_t>(count), key);
    }
    return key;
  }

  void ReadValues(hid_t dataset, hid_t type, std::size_t count, JobKey& key)
  {
    if (key.type == nullptr)
    {
      key.unreadable = DescribeType(type);
    }
    else if (!ReadShape(dataset, type, count, key))
    {
      key.type = nullptr;
      key.items.clear();
      key.unreadable = "values that HDF5 cannot read";
    }
  }

  static bool ReadShape(hid_t dataset, hid_t type, std::size_t count, JobKey& key)
  {
    switch (key.type->shape)
    {
      case ValueShape::Integer: return ReadIntegers(dataset, type, count, key);
      case ValueShape::Number: return ReadPlain<double>(dataset, H5T_NATIVE_DOUBLE, count, key);
      case ValueShape::Reference: return ReadReferences(dataset, count, key);
      case ValueShape::IntegerList: return ReadIntegerLists(dataset, count, key);
      case ValueShape::NumberList: return ReadNumberLists(dataset, count, key);
      case ValueShape::Text:
        return key.type == &TextType() ? ReadTexts(dataset, count, key) : ReadStrings(dataset, count, key);
    }
    return false;
  }

  template <class Element>
  static bool ReadPlain(hid_t dataset, hid_t memory_type, std::size_t count, JobKey& key)
  {
    std::vector<Element> elements(count);
    const bool good = ReadElements(dataset, memory_type, elements);
    for (const Element& element : elements)
    {
      key.items.push_back({JobValue(element), {}});
    }
    return good;
  }

  // HDF5 would cut an unsigned number of 64 bits to what a signed one holds.
  static bool ReadIntegers(hid_t dataset, hid_t type, std::size_t count, JobKey& key)
  {
    if (H5Tget_sign(type) == H5T_SGN_NONE)
    {
      std::vector<std::uint64_t> elements(count);
      constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
      if (!ReadElements(dataset, H5T_NATIVE_UINT64, elements) ||
          std::any_of(elements.begin(), elements.end(), [](std::uint64_t element) { return element > most; }))
      {
        return false;
      }
    }
    return ReadPlain<std::int64_t>(dataset, H5T_NATIVE_INT64, count, key);
  }

  // What the address leads to is only known when all commands are.
  static bool ReadReferences(hid_t dataset, std::size_t count, JobKey& key)
  {
    std::vector<hobj_ref_t> addresses(count);
    const bool good = ReadElements(dataset, H5T_STD_REF_OBJ, addresses);
    for (const hobj_ref_t address : addresses)
    {
      key.items.push_back({JobValue(static_cast<std::int64_t>(address)), {}});
    }
    return good;
  }

  template <class Convert>
  static bool ReadSequences(hid_t dataset, const StoredType& type, std::size_t count, JobKey& key, Convert convert)
  {
    const Hdf5Handle memory_type(type.make(), H5Tclose);
    const Sequences sequences(dataset, memory_type.Id(), count);
    if (!sequences.AreRead())
    {
      return false;
    }
    for (const hvl_t& sequence : sequences.Values())
    {
      key.items.push_back({JobValue(convert(sequence)), {}});
    }
    return true;
  }

  static bool ReadTexts(hid_t dataset, std::size_t count, JobKey& key)
  {
    return ReadSequences(dataset, TextType(), count, key, TextOf);
  }

  static bool ReadIntegerLists(hid_t dataset, std::size_t count, JobKey& key)
  {
    return ReadSequences(dataset, IntegerListType(), count, key, [](const hvl_t& sequence) {
      const std::vector<std::int32_t> items = ItemsOf<std::int32_t>(sequence);
      return std::vector<std::int64_t>(items.begin(), items.end());
    });
  }

  static bool ReadNumberLists(hid_t dataset, std::size_t count, JobKey& key)
  {
    return ReadSequences(dataset, NumberListType(), count, key, ItemsOf<double>);
  }

  static bool ReadStrings(hid_t dataset, std::size_t count, JobKey& key)
  {
    const Hdf5Handle memory_type(key.type->make(), H5Tclose);
    const Hdf5Handle space(H5Dget_space(dataset), H5Sclose);
    std::vector<char*> strings(count);
    if (!ReadElements(dataset, memory_type.Id(), strings))
    {
      return false;
    }
    for (const char* string : strings)
    {
      key.items.push_back({JobValue(std::string(string != nullptr ? string : "")), {}});
    }
    H5Dvlen_reclaim(memory_type.Id(), space.Id(), H5P_DEFAULT, strings.data());
    return true;
  }

  // The address of a group has one command, or several where hard links give it more names; the one that the key may
  // refer to comes first.
  JobReference TargetAt(haddr_t address, const orvel::schema::Field* field) const
  {
    const auto targets = m_targets.find(address);
    if (targets == m_targets.end())
    {
      return {};
    }
    const auto wanted = std::find_if(targets->second.begin(), targets->second.end(), [&](const JobReference& target) {
      return field != nullptr && target.kind == field->target;
    });
    return wanted != targets->second.end() ? *wanted : targets->second.front();
  }

  void ResolveReferences(const JobCommand& command, JobKey& key)
  {
    if (key.type != &ReferenceType())
    {
      return;
    }
    for (JobItem& item : key.items)
    {
      const auto address = static_cast<haddr_t>(std::get<std::int64_t>(item.value));
      item.value = TargetAt(address, FieldOf(command, key.name));
    }
  }

  hid_t m_file;
  Job m_job;
  std::map<haddr_t, std::vector<JobReference>> m_targets;
};

}  // namespace

Job ReadParameterFile(const std::filesystem::path& path)
{
  const auto storage = OpenParameterFile(path);  // tells what is wrong with a file that is none
  const Hdf5Handle file(H5Fopen(path.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
  if (!file.IsOpen())
  {
    throw UnusableInput(path.string() + ": HDF5 cannot open the file");
  }
  return FileReader(file.Id()).Read();
}
