#include "OrvelCommands/commands/model_id_steps.h"

#include "OrvelCommands/foundation/throw_failure.h"
#include "OrvelDbFactory/OrvelDbInstance.h"

namespace orvel::detail
{
namespace
{

constexpr FailureText kNoDatabase{
  "No optimization database is open to check the model IDs of the %s command with ID_NAME %s"};

std::string ParameterOf(const std::string& key)
{
  return key.substr(0, key.size() - 1);  // a parameter file spells a key without the trailing underscore
}

}  // namespace

ModelIdChecker::ModelIdChecker(const OrvelParfileStorage& storage, const CheckedCommand& command,
                               const std::string& storage_id, std::vector<KLV_ParfileException>& problems)
  : m_storage(storage), m_command(command), m_storage_id(storage_id), m_problems(problems)
{
}

void ModelIdChecker::Always(const char* key, KLV_IdType ids)
{
  Check(key, 1, ids);
}

void ModelIdChecker::Optional(const char* key, bool has, KLV_IdType ids)
{
  if (has)
  {
    Check(key, 1, ids);
  }
}

void ModelIdChecker::Repeated(const char* key, std::uint64_t count, KLV_IdType ids)
{
  for (std::uint64_t index = 1; index <= count; ++index)
  {
    Check(key, index, ids);
  }
}

void ModelIdChecker::Check(const char* key, std::uint64_t index, KLV_IdType ids)
{
  std::string value;
  m_storage.GetValue(m_command.kind, m_storage_id, key, index, vtmModelId, value);
  if (OrvelDbInstance::s_Singleton == nullptr)
  {
    ThrowFailure(LogPrefix(kModuleName, m_command.kind.c_str()), kNoDatabase, {m_command.text_name, m_command.id_name});
  }
  KLV_IdMap& map = OrvelDbInstance::s_Singleton->GetIdMapsPool().GetIdMap(ids);
  if (map.Has(value))
  {
    map.Lookup(value);  // counts the use; the number is of no interest here
    return;
  }
  m_problems.emplace_back("Referenced ID is not found", value, ParameterOf(key), m_command.id_name,
                          m_command.text_name);
}

}  // namespace orvel::detail
