/// \file
/// The command MONITOR_. The const operations of a loaded command may be used from several threads.
///
/// Generated from gyre_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/OrvelCommand.h"
#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include <cstdint>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

class OrvelParfileStorage;
class DRESP_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Monitor: one design response that is watched during the run.
class ORVELCOMMANDS_EXPORT MONITOR_ : public OrvelCommand
{
public:
  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "MONITOR";

  /// "MONITOR_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  MONITOR_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  MONITOR_(const MONITOR_& other) = default;

  /// References are taken as pointers too.
  MONITOR_& operator=(const MONITOR_& other) = default;

  ~MONITOR_() override = default;

  /// Reads all keys but the references from the storage. Nothing is cleared first and no value is tested.
  /// Throws: what the storage throws; members read before then keep what they got.
  /// \warning After a failure the number of values of a key can be ahead of its list: read that as a whole.
  void Load(const OrvelParfileStorage& storage, const std::string& id);

  /// Writes one record to the debug log: a line for each member, cut at 1023 characters.
  /// \warning A "%" in a value acts as a printf conversion of a zero or empty argument.
  void ToString() const;

  /// Appends a problem for each model id that the open database does not know.
  /// \param id the command's name in the storage, from which the ids are read again
  /// Throws: what the storage throws; without an open database a KLV_Failure as soon as there is an id to check.
  void ValidateModelIds(const OrvelParfileStorage& storage, std::string& id,
                        std::vector<KLV_ParfileException>& errors);

  const std::string& GetType() const override;
  const std::string& GetID_NAME_() const override { return m_ID_NAME_; }

  /// Response to watch.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const DRESP_& GetDRESP_() const { return *m_DRESP_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  const DRESP_* m_DRESP_ = nullptr;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
