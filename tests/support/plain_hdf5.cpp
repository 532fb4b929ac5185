#include "support/plain_hdf5.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace plain_hdf5
{

namespace
{

constexpr unsigned kObjects = H5F_OBJ_FILE | H5F_OBJ_GROUP | H5F_OBJ_DATASET | H5F_OBJ_ATTR;

constexpr const char* kFile = "parfile_storage.hdf5";

template <class Result>
Result Checked(Result result, const std::string& what)
{
  if (result < 0)
  {
    throw std::runtime_error("HDF5 could not " + what);
  }
  return result;
}

Id OpenFile(unsigned access)
{
  return {H5Fopen(kFile, access, H5P_DEFAULT), H5Fclose, "open the file"};
}

Id OpenDataset(hid_t file, const std::string& path)
{
  return {H5Dopen2(file, path.c_str(), H5P_DEFAULT), H5Dclose, "open the dataset " + path};
}

Id SpaceOf(hid_t dataset)
{
  return {H5Dget_space(dataset), H5Sclose, "get the space of a dataset"};
}

Id Simple(const std::vector<hsize_t>& extent, const hsize_t* max_extent = nullptr)
{
  return {H5Screate_simple(static_cast<int>(extent.size()), extent.data(), max_extent), H5Sclose, "make a space"};
}

Id NewList(hid_t list_class)
{
  return {H5Pcreate(list_class), H5Pclose, "make a property list"};
}

void Make(const std::string& path, hid_t type, hid_t space, hid_t list, const void* data)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  const Id dataset{H5Dcreate2(file, path.c_str(), type, space, H5P_DEFAULT, list, H5P_DEFAULT), H5Dclose,
                   "make the dataset " + path};
  if (data != nullptr)
  {
    Checked(H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, data), "write " + path);
  }
}

void ReadAt(const std::string& path, hsize_t index, hid_t type, void* value)
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  const Id dataset = OpenDataset(file, path);
  const Id space = SpaceOf(dataset);
  const hsize_t one = 1;
  Checked(H5Sselect_hyperslab(space, H5S_SELECT_SET, &index, nullptr, &one, nullptr), "select in " + path);
  const Id memory = Simple({1});
  Checked(H5Dread(dataset, type, memory, space, H5P_DEFAULT, value), "read " + path);
}

// Overwrites the last of the structures in the file that begin with a signature.
void OverwriteLast(const std::string& signature)
{
  std::ifstream in(kFile, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  in.close();
  const std::size_t place = bytes.rfind(signature);
  if (place == std::string::npos)
  {
    throw std::runtime_error("no " + signature + " in the file");
  }
  bytes.replace(place, signature.size(), signature.size(), 'X');
  std::ofstream(kFile, std::ios::binary) << bytes;
}

std::int64_t NumOpen(unsigned kinds)
{
  return Checked(H5Fget_obj_count(static_cast<hid_t>(H5F_OBJ_ALL), kinds), "count what is open");
}

// Not held by the caller.
hid_t TheOpenFile()
{
  hid_t file = H5I_INVALID_HID;
  if (NumOpen(H5F_OBJ_FILE) != 1 || H5Fget_obj_ids(static_cast<hid_t>(H5F_OBJ_ALL), H5F_OBJ_FILE, 1, &file) != 1)
  {
    throw std::runtime_error("not one file is open");
  }
  return file;
}

template <class Item>
std::vector<Item> SequenceAt(const std::string& path, hsize_t index, hid_t item_type)
{
  hvl_t element{0, nullptr};
  ReadAt(path, index, SequenceOf(item_type), &element);
  const auto* items = static_cast<const Item*>(element.p);
  std::vector<Item> result(items, items + element.len);
  std::free(element.p);
  return result;
}

std::string NameOfType(hid_t type)
{
  const std::size_t size = H5Tget_size(type);
  const std::string bytes = std::to_string(size) + (size == 1 ? " byte" : " bytes");
  switch (H5Tget_class(type))
  {
    case H5T_INTEGER: return (H5Tget_sign(type) == H5T_SGN_2 ? "signed integer of " : "unsigned integer of ") + bytes;
    case H5T_FLOAT:
      return (H5Tequal(type, H5T_IEEE_F64LE) > 0 || H5Tequal(type, H5T_IEEE_F64BE) > 0 ? "IEEE float of "
                                                                                       : "float of ") +
             bytes;
    case H5T_STRING: return H5Tis_variable_str(type) > 0 ? "variable-length string" : "string of " + bytes;
    case H5T_REFERENCE:
      return (H5Tequal(type, H5T_STD_REF_OBJ) > 0 ? "object reference of " : "region reference of ") + bytes;
    case H5T_VLEN:
    {
      const Id item{H5Tget_super(type), H5Tclose, "get the type of a sequence's items"};
      return "sequence of " + NameOfType(item);
    }
    default: return "another type";
  }
}

// With the attributes of each object counted as well, for the two walks over a file.
struct Walk
{
  std::vector<std::string> objects;
  std::uint64_t attributes = 0;
};

herr_t Visit(hid_t, const char* name, const H5O_info_t* info, void* data)
{
  auto& walk = *static_cast<Walk*>(data);
  walk.attributes += info->num_attrs;
  if (std::string(name) != ".")
  {
    walk.objects.push_back((info->type == H5O_TYPE_GROUP ? "group /" : "dataset /") + std::string(name));
  }
  return 0;
}

Walk WalkOverFile()
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  Walk walk;
  Checked(H5Ovisit(file, H5_INDEX_NAME, H5_ITER_INC, Visit, &walk), "walk over the file");
  return walk;
}

}  // namespace

QuietErrors::QuietErrors()
{
  H5Eget_auto2(H5E_DEFAULT, &m_print, &m_data);
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
}

QuietErrors::~QuietErrors()
{
  H5Eset_auto2(H5E_DEFAULT, m_print, m_data);
}

Id::Id(hid_t id, Release release, const std::string& what) : m_id(Checked(id, what)), m_release(release) {}

Id::Id(Id&& other) noexcept : m_id(std::exchange(other.m_id, H5I_INVALID_HID)), m_release(other.m_release) {}

Id::~Id()
{
  if (m_id >= 0)
  {
    m_release(m_id);
  }
}

std::int64_t NumOpenObjects()
{
  return NumOpen(kObjects);
}

std::int64_t NumOpenFiles()
{
  return NumOpen(H5F_OBJ_FILE);
}

std::int64_t NumOpenTypes()
{
  return NumOpen(H5F_OBJ_DATATYPE);
}

void CloseWhatIsLeftOpen()
{
  hid_t ids[64];
  const ssize_t count = H5Fget_obj_ids(static_cast<hid_t>(H5F_OBJ_ALL), kObjects, std::size(ids), ids);
  for (ssize_t i = 0; i < count; ++i)
  {
    H5Idec_ref(ids[i]);
  }
}

int NumHoldersOfTheOpenFile()
{
  return Checked(H5Iget_ref(TheOpenFile()), "count the holders of the open file");
}

ChunkCache ChunkCacheOfTheOpenFile()
{
  const Id list{H5Fget_access_plist(TheOpenFile()), H5Pclose, "get the access list"};
  ChunkCache cache{};
  Checked(H5Pget_cache(list, nullptr, &cache.slots, &cache.bytes, &cache.preemption), "get the cache");
  return cache;
}

void MakeEmptyFile()
{
  const Id file{H5Fcreate(kFile, H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT), H5Fclose, "make the file"};
}

void MakeFileWithParfile()
{
  MakeEmptyFile();
  MakeGroup("/PARFILE");
}

void MakeFileWithBrokenRoot()
{
  {
    const Id access = NewList(H5P_FILE_ACCESS);
    Checked(H5Pset_libver_bounds(access, H5F_LIBVER_LATEST, H5F_LIBVER_LATEST), "choose a format");
    const Id file{H5Fcreate(kFile, H5F_ACC_TRUNC, H5P_DEFAULT, access), H5Fclose, "make the file"};
  }
  OverwriteLast("OHDR");
  OpenFile(H5F_ACC_RDONLY);  // the file itself is sound
}

void MakeGroup(const std::string& path)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  const Id group{H5Gcreate2(file, path.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT), H5Gclose,
                 "make the group " + path};
}

std::vector<std::string> Objects()
{
  return WalkOverFile().objects;
}

std::uint64_t NumAttributes()
{
  return WalkOverFile().attributes;
}

std::uint64_t AddressOf(const std::string& path)
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  H5O_info_t info;
  Checked(H5Oget_info_by_name(file, path.c_str(), &info, H5P_DEFAULT), "look at " + path);
  return info.addr;
}

unsigned SuperblockVersion()
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  H5F_info2_t info{};
  Checked(H5Fget_info2(file, &info), "ask for the superblock");
  return info.super.version;
}

Shape ShapeOf(const std::string& path)
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  const Id dataset = OpenDataset(file, path);
  const Id space = SpaceOf(dataset);
  Shape shape{};
  shape.rank = Checked(H5Sget_simple_extent_ndims(space), "get the rank of " + path);
  if (shape.rank != 1)
  {
    throw std::runtime_error(path + " has not rank 1");
  }
  H5Sget_simple_extent_dims(space, &shape.extent, &shape.max_extent);
  const Id list{H5Dget_create_plist(dataset), H5Pclose, "get the creation list of " + path};
  shape.layout = H5Pget_layout(list);
  if (shape.layout == H5D_CHUNKED)
  {
    H5Pget_chunk(list, 1, &shape.chunk);
  }
  shape.filters = H5Pget_nfilters(list);
  return shape;
}

std::string TypeOf(const std::string& path)
{
  const Id file = OpenFile(H5F_ACC_RDONLY);
  const Id dataset = OpenDataset(file, path);
  const Id type{H5Dget_type(dataset), H5Tclose, "get the type of " + path};
  return NameOfType(type);
}

std::string BytesAt(const std::string& path, hsize_t index)
{
  const std::vector<char> bytes = SequenceAt<char>(path, index, H5T_C_S1);
  return {bytes.begin(), bytes.end()};
}

std::vector<int> IntegersAt(const std::string& path, hsize_t index)
{
  return SequenceAt<int>(path, index, H5T_NATIVE_INT);
}

std::vector<double> DoublesAt(const std::string& path, hsize_t index)
{
  return SequenceAt<double>(path, index, H5T_NATIVE_DOUBLE);
}

int IntegerAt(const std::string& path, hsize_t index)
{
  int value = 0;
  ReadAt(path, index, H5T_NATIVE_INT, &value);
  return value;
}

double DoubleAt(const std::string& path, hsize_t index)
{
  double value = 0;
  ReadAt(path, index, H5T_NATIVE_DOUBLE, &value);
  return value;
}

std::string TargetAt(const std::string& path, hsize_t index)
{
  hobj_ref_t reference = 0;
  ReadAt(path, index, H5T_STD_REF_OBJ, &reference);
  const Id file = OpenFile(H5F_ACC_RDONLY);
  const Id dataset = OpenDataset(file, path);
  std::array<char, 1024> name{};
  Checked(H5Rget_name(dataset, H5R_OBJECT, &reference, name.data(), name.size()), "follow the reference " + path);
  return name.data();
}

Id Copy(hid_t type)
{
  return {H5Tcopy(type), H5Tclose, "copy a type"};
}

Id StringOf(std::size_t size)
{
  Id type = Copy(H5T_C_S1);
  Checked(H5Tset_size(type, size), "set the size of a string");
  return type;
}

Id SequenceOf(hid_t type)
{
  return {H5Tvlen_create(type), H5Tclose, "make a sequence"};
}

Id PairOfIntegers()
{
  Id type{H5Tcreate(H5T_COMPOUND, 2 * sizeof(int)), H5Tclose, "make a compound"};
  Checked(H5Tinsert(type, "first", 0, H5T_NATIVE_INT), "add a member");
  Checked(H5Tinsert(type, "second", sizeof(int), H5T_NATIVE_INT), "add a member");
  return type;
}

void MakeKey(const std::string& path, hid_t type, hsize_t extent, const void* data)
{
  MakeChunked(path, type, {extent}, data);
}

void MakeText(const std::string& path, const std::vector<std::string>& elements)
{
  std::vector<hvl_t> sequences;
  for (const std::string& element : elements)
  {
    sequences.push_back({element.size(), const_cast<char*>(element.data())});
  }
  MakeKey(path, SequenceOf(H5T_C_S1), sequences.size(), sequences.data());
}

void MakeChunked(const std::string& path, hid_t type, const std::vector<hsize_t>& extent, const void* data)
{
  const std::vector<hsize_t> unlimited(extent.size(), H5S_UNLIMITED);
  const std::vector<hsize_t> chunk(extent.size(), 1);
  const Id list = NewList(H5P_DATASET_CREATE);
  Checked(H5Pset_chunk(list, static_cast<int>(chunk.size()), chunk.data()), "set the chunk");
  Make(path, type, Simple(extent, unlimited.data()), list, data);
}

void MakeContiguous(const std::string& path, hid_t type, const std::vector<hsize_t>& extent, const void* data)
{
  Make(path, type, Simple(extent), H5P_DEFAULT, data);
}

void MakeScalar(const std::string& path, hid_t type, const void* data)
{
  Make(path, type, Id{H5Screate(H5S_SCALAR), H5Sclose, "make a space"}, H5P_DEFAULT, data);
}

void MakeNull(const std::string& path, hid_t type)
{
  Make(path, type, Id{H5Screate(H5S_NULL), H5Sclose, "make a space"}, H5P_DEFAULT, nullptr);
}

void MakeSoftLink(const std::string& path, const std::string& target)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  Checked(H5Lcreate_soft(target.c_str(), file, path.c_str(), H5P_DEFAULT, H5P_DEFAULT), "make the link " + path);
}

void MakeExternalLink(const std::string& path, const std::string& file_name, const std::string& target)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  Checked(H5Lcreate_external(file_name.c_str(), target.c_str(), file, path.c_str(), H5P_DEFAULT, H5P_DEFAULT),
          "make the link " + path);
}

void MakeReferences(const std::string& path, const std::vector<std::string>& targets)
{
  std::vector<hobj_ref_t> references(targets.size(), 0);
  {
    const Id file = OpenFile(H5F_ACC_RDWR);
    for (std::size_t i = 0; i < targets.size(); ++i)
    {
      if (!targets[i].empty())
      {
        Checked(H5Rcreate(&references[i], file, targets[i].c_str(), H5R_OBJECT, -1), "refer to " + targets[i]);
      }
    }
  }
  MakeKey(path, H5T_STD_REF_OBJ, references.size(), references.data());
}

void MakeRegionReference(const std::string& path, const std::string& target)
{
  hdset_reg_ref_t reference{};
  {
    const Id file = OpenFile(H5F_ACC_RDWR);
    const Id dataset = OpenDataset(file, target);
    const Id space = SpaceOf(dataset);
    Checked(H5Rcreate(&reference, file, target.c_str(), H5R_DATASET_REGION, space), "refer to " + target);
  }
  MakeKey(path, H5T_STD_REF_DSETREG, 1, &reference);
}

void Move(const std::string& from, const std::string& to)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  Checked(H5Lmove(file, from.c_str(), file, to.c_str(), H5P_DEFAULT, H5P_DEFAULT), "move " + from);
}

void Remove(const std::string& path)
{
  const Id file = OpenFile(H5F_ACC_RDWR);
  Checked(H5Ldelete(file, path.c_str(), H5P_DEFAULT), "remove " + path);
}

void BreakLastGroup()
{
  OverwriteLast("SNOD");
}

}  // namespace plain_hdf5
