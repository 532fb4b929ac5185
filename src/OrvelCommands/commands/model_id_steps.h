/// \file
/// The steps by which a command checks its model ids against the optimization database. They read the database and
/// tell its maps of lookups, so nothing else may work on it meanwhile.
#pragma once

#include "OrvelCommands/foundation/KLV_ParfileException.h"
#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "OrvelIds/KLV_IdType.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvel::detail
{

/// Whose model ids are checked.
struct CheckedCommand
{
  const std::string& kind;     ///< The name in the storage.
  const char* text_name;       ///< The name in a problem.
  const std::string& id_name;  ///< The id in a problem; the storage is asked by its own.
};

/// Checks the model ids of one command, one call for one key. An unknown id becomes a problem and stops nothing.
///
/// Throws: what the storage throws; a KLV_Failure without a code when a key is to be checked and no database is open.
class ModelIdChecker
{
public:
  /// Not owned: everything must outlive the checker.
  ModelIdChecker(const OrvelParfileStorage& storage, const CheckedCommand& command, const std::string& storage_id,
                 std::vector<KLV_ParfileException>& problems);

  void Always(const char* key, KLV_IdType ids);
  void Optional(const char* key, bool has, KLV_IdType ids);
  void Repeated(const char* key, std::uint64_t count, KLV_IdType ids);

private:
  void Check(const char* key, std::uint64_t index, KLV_IdType ids);

  const OrvelParfileStorage& m_storage;
  const CheckedCommand m_command;
  const std::string& m_storage_id;
  std::vector<KLV_ParfileException>& m_problems;
};

}  // namespace orvel::detail
