/// \file
/// The command FLOWPATHS_. The const operations of a loaded command may be used from several threads.
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
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Flow paths of the fluid domain: the groups of faces where the flow enters and leaves.
class ORVELCOMMANDS_EXPORT FLOWPATHS_ : public OrvelCommand
{
public:
  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "FLOWPATHS";

  /// "FLOWPATHS_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  FLOWPATHS_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  FLOWPATHS_(const FLOWPATHS_& other) = default;

  /// References are taken as pointers too.
  FLOWPATHS_& operator=(const FLOWPATHS_& other) = default;

  ~FLOWPATHS_() override = default;

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

  /// Face groups of the model where the flow enters.
  const std::vector<std::string>& GetIN_() const { return m_IN_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumIN_().
  const std::string& GetIN_(std::uint64_t index) const { return m_IN_[index - 1]; }

  /// How many values IN_ has.
  std::uint64_t NumIN_() const { return m_num_IN_; }

  /// Face groups of the model where the flow leaves.
  const std::vector<std::string>& GetOUT_() const { return m_OUT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumOUT_().
  const std::string& GetOUT_(std::uint64_t index) const { return m_OUT_[index - 1]; }

  /// How many values OUT_ has.
  std::uint64_t NumOUT_() const { return m_num_OUT_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::uint64_t m_num_IN_ = 0;
  std::vector<std::string> m_IN_;
  std::uint64_t m_num_OUT_ = 0;
  std::vector<std::string> m_OUT_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
