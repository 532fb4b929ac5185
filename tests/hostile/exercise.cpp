#include "hostile/exercise.h"

#include "hostile/limits.h"
#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/OpenDatabase.h"
#include "support/plain_hdf5.h"

#include "OrvelUtilities/KLV_LogMacros.h"

#include <algorithm>
#include <memory>

namespace
{

constexpr std::uint64_t kCommandsOfAKind = 4;
constexpr std::uint64_t kValuesOfAKey = 3;

class ImpatientStorage : public ParfileHdf5Storage
{
public:
  explicit ImpatientStorage(bool patient) : ParfileHdf5Storage(false, true), m_patient(patient) {}

  std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                               const std::string& key) const override
  {
    const std::uint64_t count = ParfileHdf5Storage::GetNumElements(command, id_name, key);
    if (count > kPatience && !m_patient)
    {
      throw TooManyValues(key);
    }
    return count;
  }

private:
  bool m_patient;
};

// The ends that are allowed; everything else passes.
template <class Action>
bool Note(Ends& ends, Action action)
{
  try
  {
    action();
    ++ends.good;
    return true;
  }
  catch (const KLV_Failure&)
  {
    ++ends.failures;
  }
  catch (const H5::Exception&)
  {
    ++ends.binding_failures;
  }
  return false;
}

using Tell = std::function<void(const std::string&)>;

template <class Aggregate>
void UseAs(const std::string& name, ParfileHdf5Storage& storage, Ends& ends, const Tell& tell)
{
  Aggregate parfile(storage);
  if (!Note(ends, [&] { parfile.Load(); }))
  {
    return;
  }
  tell(name + " loaded");
  if (Note(ends, [&] { parfile.ValidateModelIds(); }))
  {
    tell(name + " validated");
  }
  if (Note(ends, [&] { orvel::ForEachCommand(parfile, [](const auto& command) { command.ToString(); }); }))
  {
    tell(name + " shown");
  }
}

template <class Value>
void ReadAs(const ParfileHdf5Storage& storage, const std::string& kind, const std::string& id, const std::string& key,
            std::uint64_t index, VtmType type, Ends& ends)
{
  Value value{};
  Note(ends, [&] { storage.GetValue(kind, id, key, index, type, value); });
}

void ReadAsType(const ParfileHdf5Storage& storage, const std::string& kind, const std::string& id,
                const std::string& key, std::uint64_t index, VtmType type, Ends& ends)
{
  switch (type)
  {
    case vtmInteger:
    case vtmEnum: ReadAs<int>(storage, kind, id, key, index, type, ends); break;
    case vtmDouble: ReadAs<double>(storage, kind, id, key, index, type, ends); break;
    case vtmIntegerList: ReadAs<std::vector<int>>(storage, kind, id, key, index, type, ends); break;
    case vtmDoubleList: ReadAs<std::vector<double>>(storage, kind, id, key, index, type, ends); break;
    case vtmReference:
    {
      std::string target;
      Note(ends, [&] { storage.GetReference(kind, id, key, index, target); });
      break;
    }
    default: ReadAs<std::string>(storage, kind, id, key, index, type, ends); break;
  }
}

class Walk
{
public:
  Walk(const ParfileHdf5Storage& storage, std::uint64_t number, Ends& ends)
    : m_storage(storage), m_number(number), m_ends(ends)
  {
  }

  void Go()
  {
    for (const orvel::schema::Command& command : orvel::schema::Commands())
    {
      const std::string kind(command.kind);
      std::uint64_t count = 0;
      Note(m_ends, [&] { count = m_storage.GetNumCommand(kind); });
      for (std::uint64_t position = 0; position < std::min(count, kCommandsOfAKind); ++position)
      {
        std::string id;
        if (Note(m_ends, [&] { m_storage.GetCommandName(kind, position, id); }))
        {
          Note(m_ends, [&] { m_storage.HasCommand(kind, id); });
          ReadKeys(command, id);
        }
      }
    }
  }

private:
  void ReadKeys(const orvel::schema::Command& command, const std::string& id)
  {
    const VtmType types[] = {vtmInteger, vtmDouble, vtmString, vtmIntegerList, vtmDoubleList, vtmReference};
    const std::string kind(command.kind);
    for (const orvel::schema::Field& field : command.fields)
    {
      const std::string key(field.key);
      std::uint64_t count = 0;
      Note(m_ends, [&] { count = m_storage.ParfileHdf5Storage::GetNumElements(kind, id, key); });
      for (std::uint64_t index = 1; index <= std::min(count, kValuesOfAKey); ++index)
      {
        ReadAsType(m_storage, kind, id, key, index, field.type, m_ends);
        if (++m_number % 3 == 0)
        {
          ReadAsType(m_storage, kind, id, key, index, types[m_number / 3 % std::size(types)], m_ends);
        }
      }
    }
  }

  const ParfileHdf5Storage& m_storage;
  std::uint64_t m_number;
  Ends& m_ends;
};

}  // namespace

Ends ExerciseFile(std::uint64_t number, bool patient, const Tell& tell)
{
  KLV_LogMacros::SetSink([](const KLV_LogRecord&) {});
  Ends ends;
  OpenDatabase database;
  for (const KLV_IdType type :
       {KLV_IdType::element_group, KLV_IdType::node_group, KLV_IdType::face_group, KLV_IdType::coordinate_system})
  {
    database.Add(type, {"porosity"});
  }
  {
    std::unique_ptr<ImpatientStorage> storage;
    if (!Note(ends, [&] { storage = std::make_unique<ImpatientStorage>(patient); }))
    {
      plain_hdf5::CloseWhatIsLeftOpen();  // as the storage documents; any other must leave nothing
      return ends;
    }
    tell("opened");
    Walk(*storage, number, ends).Go();
    UseAs<Gyre_Parfile>("Gyre_Parfile", *storage, ends, tell);
    UseAs<Smooth_Parfile>("Smooth_Parfile", *storage, ends, tell);
  }
  if (plain_hdf5::NumOpenObjects() != 0)
  {
    throw std::logic_error("an object of the file is still open");
  }
  return ends;
}
