#include "peers/demanded_calls.h"
#include "peers/link_plain_job.h"
#include "peers/peers.h"

#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

namespace plain
{
namespace
{

Type MakeType(const int*)
{
  return Type(H5Tcopy(H5T_NATIVE_INT));
}

Type MakeType(const double*)
{
  return Type(H5Tcopy(H5T_NATIVE_DOUBLE));
}

Type MakeType(const std::string*)
{
  return Type(H5Tvlen_create(H5T_C_S1));
}

Type MakeType(const std::vector<int>*)
{
  return Type(H5Tvlen_create(H5T_NATIVE_INT));
}

Type MakeType(const std::vector<double>*)
{
  return Type(H5Tvlen_create(H5T_NATIVE_DOUBLE));
}

class Reader
{
public:
  Reader(hid_t parfile, hid_t transfer) : m_parfile(parfile), m_transfer(transfer), m_value_space(ValueSpace()) {}

  hsize_t CountCommands(const std::string& kind) const
  {
    if (!HasName(m_parfile, kind))
    {
      return 0;
    }
    const Group group(H5Gopen2(m_parfile, kind.c_str(), H5P_DEFAULT));
    hsize_t count = 0;
    Checked(H5Gget_num_objs(group, &count));
    return count;
  }

  std::string NameAt(const std::string& kind, hsize_t position) const
  {
    const Group group(H5Gopen2(m_parfile, kind.c_str(), H5P_DEFAULT));
    const ssize_t length = Checked(H5Gget_objname_by_idx(group, position, nullptr, 0));
    std::string name(static_cast<std::size_t>(length), '\0');
    Checked(H5Gget_objname_by_idx(group, position, name.data(), name.size() + 1));
    return name;
  }

  bool Has(const std::string& command, const std::string& key) const
  {
    const Group group(H5Gopen2(m_parfile, command.c_str(), H5P_DEFAULT));
    return HasName(group, key);
  }

  hsize_t Count(const std::string& command, const std::string& key) const
  {
    const Group group(H5Gopen2(m_parfile, command.c_str(), H5P_DEFAULT));
    if (!HasName(group, key))
    {
      return 0;
    }
    const Dataset dataset(H5Dopen2(group, key.c_str(), H5P_DEFAULT));
    const Space space(H5Dget_space(dataset));
    return static_cast<hsize_t>(Checked(H5Sget_select_npoints(space)));
  }

  template <class Value>
  void Read(const std::string& command, const std::string& key, hsize_t position, Value& value) const
  {
    const Group group(H5Gopen2(m_parfile, command.c_str(), H5P_DEFAULT));
    if (!HasName(group, key))
    {
      throw std::runtime_error(command + " has no key " + key);
    }
    const Type type = MakeType(&value);
    const Dataset dataset(H5Dopen2(m_parfile, (command + "/" + key).c_str(), H5P_DEFAULT));
    if constexpr (std::is_arithmetic_v<Value>)
    {
      ReadElement(dataset, type, position, &value);
    }
    else
    {
      hvl_t element{0, nullptr};
      ReadElement(dataset, type, position, &element);
      Take(element, value);
      std::free(element.p);
    }
  }

  template <class Target>
  void Read(const std::string& command, const std::string& key, hsize_t position, Link<Target>& link) const
  {
    const Dataset dataset(H5Dopen2(m_parfile, (command + "/" + key).c_str(), H5P_DEFAULT));
    hobj_ref_t reference = 0;
    ReadElement(dataset, H5T_STD_REF_OBJ, position, &reference);
    H5O_type_t type = H5O_TYPE_UNKNOWN;
    Checked(H5Rget_obj_type2(dataset, H5R_OBJECT, &reference, &type));
    if (type != H5O_TYPE_GROUP || !HasName(m_parfile, key))
    {
      throw std::runtime_error(command + "/" + key + " refers to no command");
    }
    link.id = NameOf(key, reference);
  }

private:
  void ReadElement(hid_t dataset, hid_t type, hsize_t position, void* buffer) const
  {
    const Space space(H5Dget_space(dataset));
    Select(space, position);
    Checked(H5Dread(dataset, type, m_value_space, space, m_transfer, buffer));
  }

  static void Take(const hvl_t& element, std::string& text)
  {
    text.assign(static_cast<const char*>(element.p), strnlen(static_cast<const char*>(element.p), element.len));
  }

  template <class Item>
  static void Take(const hvl_t& element, std::vector<Item>& items)
  {
    const auto* first = static_cast<const Item*>(element.p);
    items.assign(first, first + element.len);
  }

  std::string NameOf(const std::string& kind, hobj_ref_t object) const
  {
    struct Search
    {
      hobj_ref_t object;
      std::string name;
    } search{object, {}};
    const auto leads_to = [](hid_t, const char* member, const H5L_info_t* link, void* data) -> herr_t {
      auto& wanted = *static_cast<Search*>(data);
      if (link->type != H5L_TYPE_HARD || link->u.address != wanted.object)
      {
        return 0;
      }
      wanted.name = member;
      return 1;
    };
    hsize_t start = 0;
    Checked(
      H5Literate_by_name(m_parfile, kind.c_str(), H5_INDEX_NAME, H5_ITER_INC, &start, leads_to, &search, H5P_DEFAULT));
    return search.name;
  }

  hid_t m_parfile;
  hid_t m_transfer;
  Space m_value_space;
};

template <class Value>
struct IsLink : std::false_type
{
};

template <class Target>
struct IsLink<Link<Target>> : std::true_type
{
};

// Visits the keys of one command twice: values when it is made, references when all commands are there.
template <bool links>
class Keys
{
public:
  Keys(const Reader& reader, std::string command) : m_reader(reader), m_command(std::move(command)) {}

  template <class Value>
  void Always(const char* key, Value& value) const
  {
    if constexpr (IsLink<Value>::value == links)
    {
      m_reader.Read(m_command, key, 0, value);
    }
  }

  template <class Value>
  void Optional(const char* key, std::optional<Value>& value) const
  {
    if constexpr (IsLink<Value>::value == links)
    {
      if (m_reader.Has(m_command, key))
      {
        m_reader.Read(m_command, key, 0, value.emplace());
      }
    }
  }

  template <class Value>
  void Repeated(const char* key, std::vector<Value>& values) const
  {
    if constexpr (IsLink<Value>::value == links)
    {
      const hsize_t count = m_reader.Count(m_command, key);
      for (hsize_t position = 0; position < count; ++position)
      {
        m_reader.Read(m_command, key, position, values.emplace_back());
      }
    }
  }

private:
  const Reader& m_reader;
  std::string m_command;
};

}  // namespace

Job ReadWithDemandedCalls(const std::filesystem::path& file, hid_t transfer)
{
  const File opened(OpenAsDemanded(file.c_str(), H5F_ACC_RDONLY));
  const Group parfile(H5Gopen2(opened, "/PARFILE", H5P_DEFAULT));
  const Reader reader(parfile, transfer);
  Job job;
  job.ForEachKind([&](const std::string& kind, auto& commands) {
    const hsize_t count = reader.CountCommands(kind);
    commands.resize(count);
    for (hsize_t position = 0; position < count; ++position)
    {
      auto& command = commands[position];
      command.id = reader.NameAt(kind, position);
      const Keys<false> keys(reader, kind + "/" + command.id);
      command.Visit(keys);
    }
  });
  job.ForEachKind([&](const std::string& kind, auto& commands) {
    for (auto& command : commands)
    {
      const Keys<true> keys(reader, kind + "/" + command.id);
      command.Visit(keys);
    }
  });
  Linker linker(job);
  return job;
}

}  // namespace plain
