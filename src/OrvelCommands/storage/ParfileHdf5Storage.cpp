#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include "OrvelCommands/storage/hdf5_failures.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <type_traits>

using namespace orvel::detail;

const std::string ParfileHdf5Storage::PARFILE_GROUP = "/PARFILE";

namespace
{

// Every value is a chunk of its own, so the cache holds many small chunks and keeps them all.
constexpr int kMetadataCacheElements = 100;
constexpr std::size_t kChunkCacheSlots = 5000;
constexpr std::size_t kChunkCacheBytes = 0x40000000;
constexpr double kChunkCachePreemption = 0.0;

[[noreturn]] void Fail(const FailureText& failure, std::initializer_list<PrintArgument> arguments = {})
{
  ThrowFailure(LogPrefix(kModuleName, "ParfileHdf5Storage"), failure, arguments);
}

// Runs an action and turns the one class of HDF5 failure that it names into ours; all others pass.
template <class Caught, class Action>
auto Guarded(const FailureText& failure, Action action) -> decltype(action())
{
  try
  {
    return action();
  }
  catch (const Caught& error)
  {
    Fail(failure, {error.getCDetailMsg()});
  }
}

// Runs an action and hands the one class of HDF5 failure that it names to the handler; all others pass.
template <class Caught, class Action, class Handler>
void Handled(Action action, Handler handler)
{
  try
  {
    action();
  }
  catch (const Caught& error)
  {
    handler(error);
  }
}

std::string GroupPath(const std::string& command, const std::string& id_name)
{
  return command + "/" + id_name;
}

std::string DatasetPath(const std::string& command, const std::string& id_name, const std::string& key)
{
  return GroupPath(command, id_name) + "/" + key;
}

// The one-element selections below point to one-element arrays, which a higher rank would read past.
void RequireRankOne(const H5::DataSpace& space)
{
  if (space.getSimpleExtentNdims() != 1)
  {
    throw H5::DataSetIException("ParfileHdf5Storage", hdf5_failures::kWrongRank);
  }
}

void SelectElement(const H5::DataSpace& space, std::size_t position)
{
  const hsize_t count[] = {1};
  const hsize_t start[] = {position};
  space.selectHyperslab(H5S_SELECT_SET, count, start);
}

// HDF5 zeroes its conversion buffer at each transfer that converts, a megabyte by default. One element needs no more
// than this.
constexpr std::size_t kConversionBufferBytes = 4096;

// Made once, as it costs as much as reading a number, and never closed here: HDF5 closes it as the process ends.
const H5::DSetMemXferPropList& ElementTransfer()
{
  static const H5::DSetMemXferPropList* const transfer = [] {
    auto list = std::make_unique<H5::DSetMemXferPropList>();
    list->setBuffer(kConversionBufferBytes, nullptr, nullptr);
    return list.release();
  }();
  return *transfer;
}

// One variable-length element as HDF5 gives it. HDF5 takes its memory from malloc and leaves it to the reader.
struct VariableLength
{
  hvl_t value{0, nullptr};

  VariableLength() = default;
  VariableLength(const VariableLength&) = delete;
  VariableLength& operator=(const VariableLength&) = delete;
  ~VariableLength() { std::free(value.p); }

  std::size_t Size() const { return value.p != nullptr ? value.len : 0; }
};

template <class Item>
void CopyItems(const VariableLength& element, std::vector<Item>& items)
{
  items.clear();
  items.resize(element.Size());
  if (!items.empty())
  {
    std::memcpy(items.data(), element.value.p, items.size() * sizeof(Item));
  }
}

// HDF5 only reads through the pointer; hvl_t serves both directions and so has no const.
template <class Item>
hvl_t AsVariableLength(const Item* items, std::size_t count)
{
  return {count, const_cast<Item*>(items)};
}

// Whether a value of this C++ type has the memory that HDF5 moves for this kind of value. A char is moved through a
// buffer that is wide enough for all.
template <class Value>
bool CanMove(VtmType type)
{
  if constexpr (std::is_same_v<Value, int>)
  {
    return type == vtmInteger || type == vtmEnum;
  }
  else if constexpr (std::is_same_v<Value, double>)
  {
    return type == vtmDouble;
  }
  else if constexpr (std::is_same_v<Value, std::string>)
  {
    return type == vtmString || type == vtmModelId;
  }
  else if constexpr (std::is_same_v<Value, std::vector<int>>)
  {
    return type == vtmIntegerList;
  }
  else if constexpr (std::is_same_v<Value, std::vector<double>>)
  {
    return type == vtmDoubleList;
  }
  else
  {
    static_assert(std::is_same_v<Value, char>);
    return true;
  }
}

template <class Value>
void RequireMovable(VtmType type, const FailureText& failure)
{
  if (!CanMove<Value>(type))
  {
    Fail(failure, {hdf5_failures::kWrongVtmType});
  }
}

// HDF5 writes a value as its dataset is closed. A destructor would keep to itself that there was no room for it.
void CloseWritten(H5::DataSet& dataset)
{
  Guarded<H5::DataSetIException>(hdf5_failures::kWriteElement, [&] { dataset.close(); });
}

// Not so where an external link has led to the dataset.
bool LieInOneFile(const H5::DataSet& dataset, const H5::Group& group)
{
  const hid_t one = H5Iget_file_id(dataset.getId());
  const hid_t other = H5Iget_file_id(group.getId());
  H5Idec_ref(one);
  H5Idec_ref(other);
  return one == other;
}

// One pass over the links of a group in name order, ending at the match. It raises nothing for an absent name and
// compares names as they stand, where HDF5's own test would resolve "/" and ".".
bool HasMatch(const H5::Group& group, H5L_iterate_t is_match, const void* wanted)
{
  hsize_t start = 0;
  const herr_t result =
    H5Literate(group.getId(), H5_INDEX_NAME, H5_ITER_INC, &start, is_match, const_cast<void*>(wanted));
  if (result < 0)
  {
    throw H5::GroupIException("ParfileHdf5Storage::HasGroupOrSet", hdf5_failures::kNoWalk);
  }
  return result > 0;
}

// Whether a group has a member in its own file, which a soft or external link need not lead to.
bool HasHardLink(const H5::Group& group, const std::string& name)
{
  const auto is_match = [](hid_t, const char* member, const H5L_info_t* link, void* wanted) -> herr_t {
    return link->type == H5L_TYPE_HARD && *static_cast<const std::string*>(wanted) == member ? 1 : 0;
  };
  return HasMatch(group, is_match, &name);
}

// The name of the link in a kind's group that leads to the object, if there is one: one pass that opens no member.
bool FindLinkTo(const H5::Group& parfile, const std::string& kind, hobj_ref_t object, std::string& name)
{
  struct Search
  {
    hobj_ref_t object;
    std::string& name;
  } search{object, name};
  const auto leads_to = [](hid_t, const char* member, const H5L_info_t* link, void* data) -> herr_t {
    auto& wanted = *static_cast<Search*>(data);
    if (link->type != H5L_TYPE_HARD || link->u.address != wanted.object)
    {
      return 0;
    }
    try
    {
      wanted.name = member;
    }
    catch (...)  // must not pass through HDF5; the caller's other way to the name meets the same want of memory
    {
      return -1;
    }
    return 1;
  };
  hsize_t start = 0;
  return H5Literate_by_name(parfile.getId(), kind.c_str(), H5_INDEX_NAME, H5_ITER_INC, &start, leads_to, &search,
                            H5P_DEFAULT) > 0;
}

std::string PathOf(const H5::Group& group)
{
  const ssize_t length = H5Iget_name(group.getId(), nullptr, 0);
  if (length <= 0)  // 0 for a group that has been removed
  {
    throw H5::IdComponentException("ParfileHdf5Storage::GetReference", hdf5_failures::kUnnamedTarget);
  }
  std::vector<char> path(static_cast<std::size_t>(length) + 1);
  H5Iget_name(group.getId(), path.data(), path.size());
  return path.data();
}

}  // namespace

ParfileHdf5Storage::ParfileHdf5Storage(bool create_group, bool read_only)
{
  const hsize_t size[] = {1};
  const hsize_t unlimited[] = {H5S_UNLIMITED};
  m_value_space = H5::DataSpace(1, size, unlimited);
  H5check();

  Guarded<H5::Exception>(hdf5_failures::kOpenFile, [&] {
    H5::FileAccPropList access;
    access.setCache(kMetadataCacheElements, kChunkCacheSlots, kChunkCacheBytes, kChunkCachePreemption);
    auto file = std::make_unique<H5::H5File>(PARFILE_STORAGE_FILE, read_only ? H5F_ACC_RDONLY : H5F_ACC_RDWR,
                                             H5::FileCreatPropList::DEFAULT, access);
    file->openGroup("/");  // proves that the file can be read
    m_file = file.release();
  });
  if (create_group)
  {
    Guarded<H5::Exception>(hdf5_failures::kMakeParfile,
                           [&] { m_parfile_group = m_file->createGroup(PARFILE_GROUP, 0); });
  }
  else
  {
    Guarded<H5::Exception>(hdf5_failures::kOpenParfile, [&] { m_parfile_group = m_file->openGroup(PARFILE_GROUP); });
  }
}

ParfileHdf5Storage::ParfileHdf5Storage(const ParfileHdf5Storage& other) = default;

ParfileHdf5Storage& ParfileHdf5Storage::operator=(const ParfileHdf5Storage& other) = default;

// HDF5 keeps a file alive while an object of it is open, so it closes as the group goes, after this body.
ParfileHdf5Storage::~ParfileHdf5Storage()
{
  delete m_file;
}

bool ParfileHdf5Storage::HasGroupOrSet(const H5::Group& group, const std::string& name) const
{
  const auto is_match = [](hid_t, const char* member, const H5L_info_t*, void* wanted) -> herr_t {
    return *static_cast<const std::string*>(wanted) == member ? 1 : 0;
  };
  return HasMatch(group, is_match, &name);
}

std::unique_ptr<H5::DataType> ParfileHdf5Storage::MakeDataType(VtmType type) const
{
  switch (type)
  {
    case vtmInteger:
    case vtmEnum: return std::make_unique<H5::IntType>(H5::PredType::NATIVE_INT);
    case vtmDouble: return std::make_unique<H5::FloatType>(H5::PredType::NATIVE_DOUBLE);
    case vtmString:
    case vtmModelId: return std::make_unique<H5::VarLenType>(&H5::PredType::C_S1);
    case vtmIntegerList: return std::make_unique<H5::VarLenType>(&H5::PredType::NATIVE_INT);
    case vtmDoubleList: return std::make_unique<H5::VarLenType>(&H5::PredType::NATIVE_DOUBLE);
    default: return nullptr;
  }
}

bool ParfileHdf5Storage::HasCommand(const std::string& command, const std::string& id_name) const
{
  return Guarded<H5::GroupIException>(hdf5_failures::kCommandSize,
                                      [&] { return HasGroupOrSet(m_parfile_group.openGroup(command), id_name); });
}

std::uint64_t ParfileHdf5Storage::GetNumCommand(const std::string& command) const
{
  return Guarded<H5::GroupIException>(hdf5_failures::kCommandSize, [&]() -> std::uint64_t {
    return HasGroupOrSet(m_parfile_group, command) ? m_parfile_group.openGroup(command).getNumObjs() : 0;
  });
}

std::uint64_t ParfileHdf5Storage::GetNumElements(const std::string& command, const std::string& id_name,
                                                 const std::string& key) const
{
  return Guarded<H5::GroupIException>(hdf5_failures::kNumElements, [&]() -> std::uint64_t {
    const H5::Group group = m_parfile_group.openGroup(GroupPath(command, id_name));
    return HasGroupOrSet(group, key) ? group.openDataSet(key).getSpace().getSelectNpoints() : 0;
  });
}

bool ParfileHdf5Storage::HasElement(const std::string& command, const std::string& id_name,
                                    const std::string& key) const
{
  return Guarded<H5::GroupIException>(hdf5_failures::kHasElement, [&] {
    return HasGroupOrSet(m_parfile_group.openGroup(GroupPath(command, id_name)), key);
  });
}

void ParfileHdf5Storage::GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const
{
  Guarded<H5::GroupIException>(hdf5_failures::kCommandName,
                               [&] { id_name = m_parfile_group.openGroup(command).getObjnameByIdx(position); });
}

void ParfileHdf5Storage::GetReference(const std::string& command, const std::string& id_name, const std::string& key,
                                      std::uint64_t index, std::string& target_id_name) const
{
  Guarded<H5::Exception>(hdf5_failures::kReference, [&] {
    const H5::DataSet dataset = m_parfile_group.openDataSet(DatasetPath(command, id_name, key));
    hobj_ref_t reference = 0;
    Get(dataset, H5::PredType::STD_REF_OBJ, index - 1, &reference);
    H5O_type_t type = H5O_TYPE_UNKNOWN;
    if (H5Rget_obj_type2(dataset.getId(), H5R_OBJECT, &reference, &type) < 0 || type != H5O_TYPE_GROUP)
    {
      // A dataset dereferenced into a group would keep the file open for good.
      throw H5::ReferenceException("ParfileHdf5Storage::GetReference", hdf5_failures::kNoGroup);
    }
    // Asked for the path of a dereferenced group, HDF5 searches the whole file. A key bears the name of the kind that
    // it refers to, so a look at that kind's links finds nearly every name first. A reference is an address, which
    // means something in its own file alone.
    const bool is_found = LieInOneFile(dataset, m_parfile_group) && HasHardLink(m_parfile_group, key) &&
                          FindLinkTo(m_parfile_group, key, reference, target_id_name);
    if (!is_found)
    {
      H5::Group target;
      target.dereference(dataset, &reference, H5R_OBJECT);
      const std::string path = PathOf(target);
      target_id_name = path.substr(path.rfind('/') + 1);
    }
  });
}

H5::DataSet ParfileHdf5Storage::OpenKey(const std::string& command, const std::string& id_name, const std::string& key,
                                        const FailureText& absent, const FailureText& not_reached) const
{
  return Guarded<H5::Exception>(not_reached, [&] {
    const H5::Group group = m_parfile_group.openGroup(GroupPath(command, id_name));
    if (!HasGroupOrSet(group, key))
    {
      Fail(absent);
    }
    return group.openDataSet(key);
  });
}

template <class Value>
void ParfileHdf5Storage::ReadValue(const std::string& command, const std::string& id_name, const std::string& key,
                                   std::uint64_t index, VtmType type, Value& value) const
{
  const H5::DataSet dataset = OpenKey(command, id_name, key, hdf5_failures::kGetAbsent, hdf5_failures::kGetNotReached);
  const auto data_type = Guarded<H5::Exception>(hdf5_failures::kGetNotReached, [&] { return MakeDataType(type); });
  if (data_type != nullptr)
  {
    RequireMovable<Value>(type, hdf5_failures::kReadElement);
    Get(dataset, *data_type, index - 1, value);
  }
}

template <class Value>
void ParfileHdf5Storage::OverwriteValue(const std::string& command, const std::string& id_name, const std::string& key,
                                        int index, VtmType type, const Value& value) const
{
  H5::DataSet dataset = OpenKey(command, id_name, key, hdf5_failures::kSetAbsent, hdf5_failures::kSetNotReached);
  const auto data_type = Guarded<H5::Exception>(hdf5_failures::kSetNotReached, [&] { return MakeDataType(type); });
  if (data_type != nullptr)
  {
    RequireMovable<Value>(type, hdf5_failures::kWriteElement);
    // In 32 bits, as the index is, and widened with its sign.
    const auto position = static_cast<std::int32_t>(static_cast<std::uint32_t>(index) - 1U);
    Set(dataset, *data_type, static_cast<std::size_t>(position), value);
    CloseWritten(dataset);
  }
}

template <class Value>
void ParfileHdf5Storage::AppendValue(const std::string& command, const std::string& id_name, const std::string& key,
                                     VtmType type, const Value& value) const
{
  const auto data_type = Guarded<H5::Exception>(hdf5_failures::kAddNotReached, [&] { return MakeDataType(type); });
  if (data_type == nullptr)
  {
    return;
  }
  std::size_t position = 0;
  H5::DataSet dataset = Guarded<H5::Exception>(hdf5_failures::kAddNotReached, [&] {
    const H5::Group group = m_parfile_group.openGroup(GroupPath(command, id_name));
    RequireMovable<Value>(type, hdf5_failures::kWriteElement);  // before a key is made for nothing
    return OpenForAppend(group, GroupPath(command, id_name), key, *data_type, position);
  });
  Set(dataset, *data_type, position, value);
  CloseWritten(dataset);
}

void ParfileHdf5Storage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  std::uint64_t index, VtmType type, std::vector<double>& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  std::uint64_t index, VtmType type, std::vector<int>& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  std::uint64_t index, VtmType type, std::string& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  std::uint64_t index, VtmType type, double& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  std::uint64_t index, VtmType type, int& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key,
                                      std::uint64_t index, VtmType type, int& value) const
{
  ReadValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const std::vector<double>& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const std::vector<int>& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const char& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const std::string& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const double& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::SetValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  int index, VtmType type, const int& value) const
{
  OverwriteValue(command, id_name, key, index, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const std::vector<double>& value) const
{
  AppendValue(command, id_name, key, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const std::vector<int>& value) const
{
  AppendValue(command, id_name, key, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const char& value) const
{
  AppendValue(command, id_name, key, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const std::string& value) const
{
  AppendValue(command, id_name, key, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const double& value) const
{
  AppendValue(command, id_name, key, type, value);
}

void ParfileHdf5Storage::AddValue(const std::string& command, const std::string& id_name, const std::string& key,
                                  VtmType type, const int& value) const
{
  AppendValue(command, id_name, key, type, value);
}

H5::DataSet ParfileHdf5Storage::OpenForAppend(const H5::Group& group, const std::string& group_path,
                                              const std::string& key, const H5::DataType& type,
                                              std::size_t& position) const
{
  if (HasGroupOrSet(group, key))
  {
    H5::DataSet dataset = group.openDataSet(key);
    position = dataset.getSpace().getSelectNpoints();
    return dataset;
  }
  const hsize_t chunk[] = {1};
  H5::DSetCreatPropList layout;
  layout.setChunk(1, chunk);
  position = 0;  // a key is made with room for its first value
  // By its path, as HDF5 would make "/KEY" of a group at the root of the file.
  return m_parfile_group.createDataSet(group_path + "/" + key, type, m_value_space, layout);
}

void ParfileHdf5Storage::DeleteValues(const std::string& command, const std::string& id_name, const std::string& key)
{
  Guarded<H5::Exception>(hdf5_failures::kDeleteValues, [&] {
    if (HasElement(command, id_name, key))
    {
      m_parfile_group.openGroup(GroupPath(command, id_name)).unlink(key);
    }
  });
}

void ParfileHdf5Storage::AddCommand(const std::string& command, const std::string& id_name) const
{
  const H5::Group kind = Guarded<H5::GroupIException>(hdf5_failures::kAddCommandKind, [&] {
    return HasGroupOrSet(m_parfile_group, command) ? m_parfile_group.openGroup(command)
                                                   : m_parfile_group.createGroup(command, 0);
  });
  if (HasGroupOrSet(kind, id_name))
  {
    Fail(hdf5_failures::kAddCommandTaken, {id_name});
  }
  Guarded<H5::GroupIException>(hdf5_failures::kAddCommandId, [&] { kind.createGroup(id_name, 0); });
}

void ParfileHdf5Storage::AddReference(const std::string& command, const std::string& id_name, const std::string& key,
                                      const std::string& target_command, const std::string& target_id_name) const
{
  const auto fail_on_target = [&](const H5::Exception&) {
    Fail(hdf5_failures::kReferenceTarget, {target_command, target_id_name, command, id_name});
  };
  hobj_ref_t reference = 0;
  const auto refer_to_target = [&] {
    m_parfile_group.reference(&reference, PARFILE_GROUP + "/" + GroupPath(target_command, target_id_name), H5R_OBJECT);
  };
  std::size_t position = 0;
  H5::DataSet dataset = Guarded<H5::Exception>(hdf5_failures::kReference, [&] {
    // The binding's class for a target that is not there has moved between versions.
    Handled<H5::IdComponentException>([&] { Handled<H5::ReferenceException>(refer_to_target, fail_on_target); },
                                      fail_on_target);
    const std::string group_path = GroupPath(command, id_name);
    return OpenForAppend(m_parfile_group.openGroup(group_path), group_path, key, H5::PredType::STD_REF_OBJ, position);
  });
  Set(dataset, H5::PredType::STD_REF_OBJ, position, &reference);
  CloseWritten(dataset);
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const void* buffer) const
{
  Guarded<H5::DataSetIException>(hdf5_failures::kWriteElement, [&] {
    H5::DataSpace space = dataset.getSpace();
    RequireRankOne(space);
    if (position >= static_cast<std::size_t>(space.getSimpleExtentNpoints()))
    {
      const hsize_t size[] = {position + 1};
      dataset.extend(size);
      space = dataset.getSpace();
    }
    SelectElement(space, position);
    dataset.write(buffer, type, m_value_space, space, ElementTransfer());
  });
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const std::string& value) const
{
  const hvl_t element = AsVariableLength(value.c_str(), value.size() + 1);
  Set(dataset, type, position, static_cast<const void*>(&element));
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const std::vector<int>& value) const
{
  const hvl_t element = AsVariableLength(value.data(), value.size());
  Set(dataset, type, position, static_cast<const void*>(&element));
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const std::vector<double>& value) const
{
  const hvl_t element = AsVariableLength(value.data(), value.size());
  Set(dataset, type, position, static_cast<const void*>(&element));
}

// The byte becomes the first of an element that is zero otherwise, wide enough for every type in memory.
void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const char& value) const
{
  alignas(hvl_t) std::array<char, sizeof(hvl_t)> element{};
  element[0] = value;
  Set(dataset, type, position, static_cast<const void*>(element.data()));
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const int& value) const
{
  Set(dataset, type, position, static_cast<const void*>(&value));
}

void ParfileHdf5Storage::Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             const double& value) const
{
  Set(dataset, type, position, static_cast<const void*>(&value));
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             void* buffer) const
{
  Guarded<H5::DataSetIException>(hdf5_failures::kReadElement, [&] {
    const H5::DataSpace space = dataset.getSpace();
    RequireRankOne(space);
    SelectElement(space, position);
    dataset.read(buffer, type, m_value_space, space, ElementTransfer());
  });
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             std::string& value) const
{
  VariableLength element;
  Get(dataset, type, position, static_cast<void*>(&element.value));
  value.clear();
  if (element.Size() > 0)
  {
    const auto* text = static_cast<const char*>(element.value.p);
    const void* end = std::memchr(text, '\0', element.Size());
    value.assign(text, end != nullptr ? static_cast<const char*>(end) - text : element.Size());
  }
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             std::vector<int>& value) const
{
  VariableLength element;
  Get(dataset, type, position, static_cast<void*>(&element.value));
  CopyItems(element, value);
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             std::vector<double>& value) const
{
  VariableLength element;
  Get(dataset, type, position, static_cast<void*>(&element.value));
  CopyItems(element, value);
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             int& value) const
{
  Get(dataset, type, position, static_cast<void*>(&value));
}

void ParfileHdf5Storage::Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
                             double& value) const
{
  Get(dataset, type, position, static_cast<void*>(&value));
}
