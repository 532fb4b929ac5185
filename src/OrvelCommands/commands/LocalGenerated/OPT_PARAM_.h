/// \file
/// The command OPT_PARAM_. The const operations of a loaded command may be used from several threads.
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

/// General parameters of the optimization.
class ORVELCOMMANDS_EXPORT OPT_PARAM_ : public OrvelCommand
{
public:
  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "OPT_PARAM";

  /// "OPT_PARAM_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  OPT_PARAM_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  OPT_PARAM_(const OPT_PARAM_& other) = default;

  /// References are taken as pointers too.
  OPT_PARAM_& operator=(const OPT_PARAM_& other) = default;

  ~OPT_PARAM_() override = default;

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

  /// Integers of the store setting, read in one piece and handed on unread.
  const std::vector<int>& GetSTORE_INT_() const { return m_STORE_INT_; }

  /// Whether STORE_INT_ is there.
  bool HasSTORE_INT_() const { return m_has_STORE_INT_; }

  /// Start of the optimization, a whole number that is handed on unread.
  const int& GetOPT_START_() const { return m_OPT_START_; }

  /// Scale of the source terms, handed on to the solver unread.
  const double& GetSRC_SCALE_() const { return m_SRC_SCALE_; }

  /// Whether SRC_SCALE_ is there.
  bool HasSRC_SCALE_() const { return m_has_SRC_SCALE_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  bool m_has_STORE_INT_ = false;
  std::vector<int> m_STORE_INT_;
  int m_OPT_START_ = 0;
  bool m_has_SRC_SCALE_ = false;
  double m_SRC_SCALE_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
