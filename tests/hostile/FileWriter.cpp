#include "hostile/FileWriter.h"

#include "hostile/case_file.h"
#include "hostile/limits.h"
#include "hostile/random_elements.h"

#include <array>
#include <cstdlib>
#include <stdexcept>

using plain_hdf5::Id;

namespace
{

void Check(long long result, const std::string& what)
{
  if (result < 0)
  {
    throw std::runtime_error("HDF5 could not " + what);
  }
}

// Times of change would make two files of one case differ.
Id ListWithoutTimes(hid_t list_class)
{
  Id list{H5Pcreate(list_class), H5Pclose, "make a property list"};
  H5Pset_obj_track_times(list, 0);
  return list;
}

Id ChunkedList(const std::vector<hsize_t>& chunk)
{
  Id list = ListWithoutTimes(H5P_DATASET_CREATE);
  H5Pset_chunk(list, static_cast<int>(chunk.size()), chunk.data());
  return list;
}

Id Space(const std::vector<hsize_t>& extent, bool unlimited)
{
  const std::vector<hsize_t> limit(extent.size(), H5S_UNLIMITED);
  return {H5Screate_simple(static_cast<int>(extent.size()), extent.data(), unlimited ? limit.data() : nullptr),
          H5Sclose, "make a space"};
}

Id AccessList(bool newest_format)
{
  Id list{H5Pcreate(H5P_FILE_ACCESS), H5Pclose, "make an access list"};
  if (newest_format)
  {
    H5Pset_libver_bounds(list, H5F_LIBVER_LATEST, H5F_LIBVER_LATEST);
  }
  return list;
}

Id TransferList()
{
  Id list{H5Pcreate(H5P_DATASET_XFER), H5Pclose, "make a transfer list"};
  H5Pset_buffer(list, kConversionBufferBytes, nullptr, nullptr);
  return list;
}

hid_t CreateFile(const std::string& path, hid_t access, hsize_t user_block)
{
  const Id list = ListWithoutTimes(H5P_FILE_CREATE);
  H5Pset_userblock(list, user_block);
  return H5Fcreate(path.c_str(), H5F_ACC_TRUNC, list, access);
}

Id ItemType(VtmType type)
{
  switch (type)
  {
    case vtmInteger:
    case vtmEnum: return plain_hdf5::Copy(H5T_NATIVE_INT);
    case vtmDouble: return plain_hdf5::Copy(H5T_NATIVE_DOUBLE);
    case vtmIntegerList: return plain_hdf5::SequenceOf(H5T_NATIVE_INT);
    case vtmDoubleList: return plain_hdf5::SequenceOf(H5T_NATIVE_DOUBLE);
    case vtmReference: return plain_hdf5::Copy(H5T_STD_REF_OBJ);
    default: return plain_hdf5::SequenceOf(H5T_C_S1);
  }
}

Id Compound(hid_t second)
{
  Id type{H5Tcreate(H5T_COMPOUND, 8 + H5Tget_size(second)), H5Tclose, "make a compound"};
  H5Tinsert(type, "first", 0, H5T_NATIVE_INT);
  H5Tinsert(type, "second", 8, second);
  return type;
}

Id Array(hid_t item)
{
  const hsize_t extent[] = {2, 3};
  return {H5Tarray_create2(item, 2, extent), H5Tclose, "make an array"};
}

// Of a compound or an array: numbers, and what leads to other places of the file.
Id ItemOfAnyClass(Numbers& numbers)
{
  switch (numbers.Below(5))
  {
    case 0: return plain_hdf5::StringOf(H5T_VARIABLE);
    case 1: return plain_hdf5::SequenceOf(H5T_NATIVE_INT);
    case 2: return plain_hdf5::Copy(H5T_STD_REF_OBJ);
    case 3: return plain_hdf5::Copy(H5T_NATIVE_INT);
    default: return plain_hdf5::Copy(H5T_NATIVE_DOUBLE);
  }
}

Id FixedString(Numbers& numbers)
{
  const H5T_str_t paddings[] = {H5T_STR_NULLTERM, H5T_STR_NULLPAD, H5T_STR_SPACEPAD};
  Id type = plain_hdf5::StringOf(1 + numbers.Below(300));
  H5Tset_strpad(type, numbers.Choose(paddings));
  return type;
}

Id Enumeration()
{
  Id type{H5Tenum_create(H5T_NATIVE_SHORT), H5Tclose, "make an enumeration"};
  const short value = 7;
  H5Tenum_insert(type, "SEVEN", &value);
  return type;
}

Id Opaque()
{
  Id type{H5Tcreate(H5T_OPAQUE, 5), H5Tclose, "make an opaque type"};
  H5Tset_tag(type, "a tag");
  return type;
}

Id FloatOfAnySize(Numbers& numbers)
{
  const hid_t types[] = {H5T_NATIVE_FLOAT, H5T_NATIVE_LDOUBLE, H5T_IEEE_F64BE};
  return plain_hdf5::Copy(numbers.Choose(types));
}

Id IntegerOfAnySize(Numbers& numbers)
{
  const hid_t types[] = {H5T_STD_I8LE,  H5T_STD_U8BE,  H5T_STD_I16BE, H5T_STD_U32LE,
                         H5T_STD_I64LE, H5T_STD_U64BE, H5T_STD_B32LE};
  return plain_hdf5::Copy(numbers.Choose(types));
}

Id TypeOfAnyClass(Numbers& numbers)
{
  switch (numbers.Below(16))
  {
    case 0: return FloatOfAnySize(numbers);
    case 1: return Compound(ItemOfAnyClass(numbers));
    case 2: return FixedString(numbers);
    case 3: return plain_hdf5::StringOf(H5T_VARIABLE);
    case 4: return Opaque();
    case 5: return Array(ItemOfAnyClass(numbers));
    case 6: return Enumeration();
    case 7: return plain_hdf5::Copy(H5T_STD_REF_OBJ);
    case 8: return plain_hdf5::Copy(H5T_STD_REF_DSETREG);
    case 9: return plain_hdf5::SequenceOf(H5T_NATIVE_UCHAR);
    case 10: return plain_hdf5::SequenceOf(plain_hdf5::SequenceOf(H5T_C_S1));
    case 11: return plain_hdf5::SequenceOf(Compound(ItemOfAnyClass(numbers)));
    case 12: return plain_hdf5::SequenceOf(plain_hdf5::StringOf(H5T_VARIABLE));
    case 13: return plain_hdf5::SequenceOf(H5T_NATIVE_FLOAT);
    case 14: return plain_hdf5::Copy(H5T_UNIX_D32LE);
    default: return IntegerOfAnySize(numbers);
  }
}

}  // namespace

FileWriter::FileWriter(const std::string& path, bool newest_format, hsize_t user_block, Numbers& numbers)
  : m_numbers(numbers),
    m_path(path),
    m_access(AccessList(newest_format)),
    m_transfer(TransferList()),
    m_file(CreateFile(path, m_access, user_block), H5Fclose, "make the file")
{
}

void FileWriter::Write(const JobPlan& plan)
{
  if (plan.wrong_top)
  {
    MakeWrongLink("/PARFILE");
    return;
  }
  MakeGroup("/PARFILE");
  // References need their targets, so all groups come first.
  std::vector<std::pair<std::string, const PlannedCommand*>> commands;
  for (const PlannedKind& kind : plan.kinds)
  {
    const std::string kind_path = "/PARFILE/" + kind.name;
    if (kind.wrong)
    {
      MakeWrongLink(kind_path);
      continue;
    }
    MakeGroup(kind_path);
    for (const PlannedCommand& command : kind.commands)
    {
      WriteCommand(kind_path, command);
      commands.emplace_back(kind_path + "/" + command.id, &command);
    }
  }
  for (const auto& [path, command] : commands)
  {
    if (!command->wrong)
    {
      for (const PlannedKey& key : command->keys)
      {
        WriteKey(path, key);
      }
    }
  }
}

void FileWriter::WriteCommand(const std::string& kind_path, const PlannedCommand& command)
{
  if (!command.wrong)
  {
    MakeGroup(kind_path + "/" + command.id);
  }
  else if (m_numbers.OneIn(3))
  {
    MakeGroup(kind_path + "/" + WrongName(m_numbers));
  }
  else
  {
    MakeWrongLink(kind_path + "/" + command.id);
  }
}

void FileWriter::WriteKey(const std::string& command_path, const PlannedKey& key)
{
  const std::string path = command_path + "/" + key.name;
  if (!key.wrong)
  {
    WriteSoundKey(path, key);
    return;
  }
  try
  {
    MakeWrongKey(path, key);
  }
  catch (const std::runtime_error&)
  {
    // HDF5 refuses some combinations; then the key is absent, which is wrong as well.
  }
}

Id FileWriter::MakeDataset(const std::string& path, hid_t type, hid_t space, hid_t list)
{
  return {H5Dcreate2(m_file, path.c_str(), type, space, H5P_DEFAULT, list, H5P_DEFAULT), H5Dclose,
          "make the dataset " + path};
}

void FileWriter::WriteSoundKey(const std::string& path, const PlannedKey& key)
{
  const Id type = ItemType(key.type);
  const Id dataset = MakeDataset(path, type, Space({key.count}, true), ChunkedList({1}));
  const std::vector<int> integers(key.count, static_cast<int>(m_numbers.Below(100)));
  const std::vector<double> doubles(key.count, 0.5);
  const hvl_t text{9, const_cast<char*>("porosity")};
  int items[] = {1, 10, 100};
  double places[] = {0.25, 0.75};
  const std::vector<hvl_t> texts(key.count, text);
  const std::vector<hvl_t> lists(key.count, hvl_t{3, items});
  const std::vector<hvl_t> cutoffs(key.count, hvl_t{2, places});
  std::vector<hobj_ref_t> references(key.count, 0);
  const void* data = texts.data();
  switch (key.type)
  {
    case vtmInteger:
    case vtmEnum: data = integers.data(); break;
    case vtmDouble: data = doubles.data(); break;
    case vtmIntegerList: data = lists.data(); break;
    case vtmDoubleList: data = cutoffs.data(); break;
    case vtmReference:
      H5Rcreate(references.data(), m_file, ("/PARFILE/" + key.name + "/" + key.target).c_str(), H5R_OBJECT, -1);
      references.assign(key.count, references.front());
      data = references.data();
      break;
    default: break;
  }
  Check(H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, m_transfer, data), "write " + path);
}

void FileWriter::MakeGroup(const std::string& path)
{
  const Id list = ListWithoutTimes(H5P_GROUP_CREATE);
  const Id group{H5Gcreate2(m_file, path.c_str(), H5P_DEFAULT, list, H5P_DEFAULT), H5Gclose, "make " + path};
  m_groups.push_back(path);
}

std::string FileWriter::AnyPath()
{
  return m_groups.empty() ? "/" : m_numbers.Choose(m_groups);
}

void FileWriter::MakeWrongLink(const std::string& path)
{
  const char* name = path.c_str();
  const std::string other = path + "_again";
  switch (m_numbers.Below(16))
  {
    case 0: H5Lcreate_soft("/PARFILE/nowhere", m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 1: H5Lcreate_soft(name, m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 2: H5Lcreate_soft(AnyPath().c_str(), m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 3: H5Lcreate_hard(m_file, "/", m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 4: H5Lcreate_hard(m_file, AnyPath().c_str(), m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 5: H5Lcreate_external("missing.hdf5", "/PARFILE", m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 6: H5Lcreate_external(m_path.c_str(), name, m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 7: H5Lcreate_external("/dev/null", "/", m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 8: H5Lcreate_external(m_path.c_str(), AnyPath().c_str(), m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 9:
      H5Lcreate_soft(other.c_str(), m_file, name, H5P_DEFAULT, H5P_DEFAULT);
      H5Lcreate_soft(name, m_file, other.c_str(), H5P_DEFAULT, H5P_DEFAULT);
      break;
    case 10: H5Tcommit2(m_file, name, Compound(H5T_NATIVE_DOUBLE), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT); break;
    case 11: MakeDataset(path, H5T_NATIVE_INT, Space({1}, true), ChunkedList({1})); break;
    case 12: H5Lcreate_external(kForeignFile, name, m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 13: H5Lcreate_external(kForeignFile, AnyPath().c_str(), m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    case 14: H5Lcreate_external(kForeignFile, kWayBack, m_file, name, H5P_DEFAULT, H5P_DEFAULT); break;
    default: break;  // absent
  }
}

void FileWriter::WriteWayBack(const std::string& file)
{
  H5Lcreate_external(file.c_str(), "/PARFILE", m_file, kWayBack, H5P_DEFAULT, H5P_DEFAULT);
}

void FileWriter::MakeWrongKey(const std::string& path, const PlannedKey& key)
{
  switch (m_numbers.Below(12))
  {
    case 0:
    case 1: MakeWithWrongSpace(path, key); break;
    case 2:
    case 3:
    case 4: MakeWithWrongType(path); break;
    case 5: MakeWithWrongLayout(path, key); break;
    case 6: MakeWrongText(path); break;
    case 7: MakeWrongReferences(path); break;
    case 8: MakeWrongLength(path, key); break;
    case 9: MakeGroup(path); break;
    case 10:
      WriteSoundKey(path, key);
      MakeGroup(path.substr(0, path.rfind('/') + 1) + WrongName(m_numbers));
      break;
    default: MakeWrongLink(path); break;
  }
}

void FileWriter::MakeWithWrongSpace(const std::string& path, const PlannedKey& key)
{
  const Id type = ItemType(key.type);
  const Id list = ListWithoutTimes(H5P_DATASET_CREATE);
  const auto of_class = [](H5S_class_t space_class) { return Id{H5Screate(space_class), H5Sclose, "make a space"}; };
  const auto make = [&](const Id& space, const Id& creation, std::size_t count) {
    const Id dataset = MakeDataset(path, type, space, creation);
    if (count > 0 && m_numbers.OneIn(2))
    {
      WriteSomething(dataset, type, count);
    }
  };
  switch (m_numbers.Below(8))
  {
    case 0: make(of_class(H5S_SCALAR), list, 1); break;
    case 1: make(of_class(H5S_NULL), list, 0); break;
    case 2: make(Space({2, 2}, true), ChunkedList({1, 1}), 4); break;
    case 3: make(Space({1, 2, 3}, true), ChunkedList({1, 1, 2}), 6); break;
    case 4: make(Space(std::vector<hsize_t>(H5S_MAX_RANK, 1), false), list, 1); break;
    case 5: make(Space({0}, true), ChunkedList({1}), 0); break;
    case 6: make(Space({1 + m_numbers.Below(5)}, true), ChunkedList({1}), 0); break;
    default:
      // Few of these: each holds up whoever reads all that it declares.
      make(Space({m_numbers.OneIn(50) ? hsize_t{1} << m_numbers.Below(62) : 1000}, true), ChunkedList({1}), 0);
      break;
  }
}

void FileWriter::WriteSomething(hid_t dataset, hid_t type, std::size_t count)
{
  const std::vector<std::string> paths = m_groups.empty() ? std::vector<std::string>{"/"} : m_groups;
  const RandomElements elements(m_file, paths, type, count, m_numbers);
  H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, m_transfer, elements.Data());
}

void FileWriter::MakeWithWrongType(const std::string& path)
{
  const Id type = TypeOfAnyClass(m_numbers);
  const std::size_t count = 1 + m_numbers.Below(3);
  const Id dataset = MakeDataset(path, type, Space({count}, true), ChunkedList({1 + m_numbers.Below(4)}));
  if (!m_numbers.OneIn(4))
  {
    WriteSomething(dataset, type, count);
  }
}

void FileWriter::MakeWithWrongLayout(const std::string& path, const PlannedKey& key)
{
  const Id type = ItemType(key.type);
  Id list = ListWithoutTimes(H5P_DATASET_CREATE);
  const std::uint64_t kind = m_numbers.Below(8);
  const bool chunked = kind < 4;
  if (chunked)
  {
    const hsize_t chunk[] = {kind == 0 ? hsize_t{1} << 16U : 1 + m_numbers.Below(100)};
    H5Pset_chunk(list, 1, chunk);
  }
  switch (kind)
  {
    case 1: H5Pset_deflate(list, 9); break;
    case 2: H5Pset_fletcher32(list); break;
    case 3: H5Pset_shuffle(list); break;
    case 4: H5Pset_layout(list, H5D_COMPACT); break;
    case 5: H5Pset_external(list, "missing.raw", 0, H5F_UNLIMITED); break;
    case 6: H5Pset_external(list, "/dev/zero", 0, 1 << 20); break;
    case 7:
      H5Pset_virtual(list, Space({1}, false), m_numbers.OneIn(2) ? "." : "missing.hdf5", path.c_str(),
                     Space({1}, false));
      break;
    default: break;
  }
  const Id dataset = MakeDataset(path, type, Space({1}, chunked), list);
  if (kind < 5 && !m_numbers.OneIn(4))
  {
    WriteSomething(dataset, type, 1);
  }
}

void FileWriter::MakeWrongText(const std::string& path)
{
  const std::size_t sizes[] = {0, 1, 2, 1022, 1023, 1024, 5000, 70000};
  std::string text(m_numbers.Choose(sizes), '%');
  for (char& one : text)
  {
    one = m_numbers.OneIn(4) ? '%' : static_cast<char>(m_numbers.Next());
  }
  const Id type = plain_hdf5::SequenceOf(H5T_C_S1);
  const Id dataset = MakeDataset(path, type, Space({1}, true), ChunkedList({1}));
  const hvl_t element{text.size(), text.data()};
  Check(H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, m_transfer, &element), "write " + path);
}

void FileWriter::MakeWrongReferences(const std::string& path)
{
  std::array<hobj_ref_t, 3> references{};
  for (hobj_ref_t& one : references)
  {
    switch (m_numbers.Below(6))
    {
      case 0: one = m_numbers.Next(); break;
      case 1: one = m_numbers.Below(1 << 16); break;
      case 2: H5Rcreate(&one, m_file, "/", H5R_OBJECT, -1); break;
      case 3: H5Rcreate(&one, m_file, AnyPath().c_str(), H5R_OBJECT, -1); break;
      case 4:
      {
        const std::string gone = path + "_gone";
        MakeGroup(gone);
        m_groups.pop_back();
        H5Rcreate(&one, m_file, gone.c_str(), H5R_OBJECT, -1);
        H5Ldelete(m_file, gone.c_str(), H5P_DEFAULT);
        break;
      }
      default: one = 0; break;
    }
  }
  const Id dataset = MakeDataset(path, H5T_STD_REF_OBJ, Space({references.size()}, true), ChunkedList({1}));
  H5Dwrite(dataset, H5T_STD_REF_OBJ, H5S_ALL, H5S_ALL, m_transfer, references.data());
  if (m_numbers.OneIn(3))
  {
    hobj_ref_t itself = 0;
    H5Rcreate(&itself, m_file, path.c_str(), H5R_OBJECT, -1);
    references.fill(itself);
    H5Dwrite(dataset, H5T_STD_REF_OBJ, H5S_ALL, H5S_ALL, m_transfer, references.data());
  }
}

// A variable-length element is its length in four bytes, then the address and the number of its data in a heap.
void FileWriter::MakeWrongLength(const std::string& path, const PlannedKey& key)
{
  const Id type = key.type == vtmIntegerList  ? plain_hdf5::SequenceOf(H5T_NATIVE_INT)
                  : key.type == vtmDoubleList ? plain_hdf5::SequenceOf(H5T_NATIVE_DOUBLE)
                                              : plain_hdf5::SequenceOf(H5T_C_S1);
  const Id dataset = MakeDataset(path, type, Space({1}, false),
                                 ListWithoutTimes(H5P_DATASET_CREATE));  // contiguous, so it has an address
  std::array<double, 8> items{};
  const hvl_t element{8, items.data()};
  Check(H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, m_transfer, &element), "write " + path);
  const haddr_t address = H5Dget_offset(dataset);
  if (address == HADDR_UNDEF)
  {
    return;
  }
  const std::uint32_t lengths[] = {0, 7, 9, 4096, 0x7fffffff, 0x80000000, 0xffffffff};
  const std::uint32_t length = m_numbers.Choose(lengths);
  std::string bytes;
  for (unsigned i = 0; i < 4; ++i)
  {
    bytes += static_cast<char>(length >> (8U * i));
  }
  m_patches.emplace_back(address, bytes);
  if (m_numbers.OneIn(4))
  {
    m_patches.emplace_back(address + 4 + m_numbers.Below(12), std::string(1, static_cast<char>(m_numbers.Next())));
  }
}
