/// \file
/// The command STOP_. The const operations of a loaded command may be used from several threads.
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

/// Criteria that end the optimization: limits of iterations and residuals.
class ORVELCOMMANDS_EXPORT STOP_ : public OrvelCommand
{
public:
  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "STOP";

  /// "STOP_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  STOP_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  STOP_(const STOP_& other) = default;

  /// References are taken as pointers too.
  STOP_& operator=(const STOP_& other) = default;

  ~STOP_() override = default;

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

  /// Most iterations of the optimization.
  const int& GetITER_MAX_() const { return m_ITER_MAX_; }

  /// Fewest iterations of the optimization; not compared with the most.
  const int& GetITER_MIN_() const { return m_ITER_MIN_; }

  /// Residual of the objective at which the optimization ends.
  const double& GetRESIDUAL_OBJ_() const { return m_RESIDUAL_OBJ_; }

  /// Residual of the design variables at which the optimization ends.
  const double& GetRESIDUAL_DV_() const { return m_RESIDUAL_DV_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  int m_ITER_MAX_ = 0;
  int m_ITER_MIN_ = 0;
  double m_RESIDUAL_OBJ_ = 0.0;
  double m_RESIDUAL_DV_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
