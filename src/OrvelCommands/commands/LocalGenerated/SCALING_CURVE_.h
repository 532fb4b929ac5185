/// \file
/// The command SCALING_CURVE_. The const operations of a loaded command may be used from several threads.
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

/// Scaling curve, to which a restriction on the design variables can refer.
class ORVELCOMMANDS_EXPORT SCALING_CURVE_ : public OrvelCommand
{
public:
  /// Form of the curve.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_HEAVYSIDE = 72,
    TYPE_LINEAR = 73,
    TYPE_LOG = 76,
    TYPE_SIN = 83,
    TYPE_CONVEX = 88
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "SCALING_CURVE";

  /// "SCALING_CURVE_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  SCALING_CURVE_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  SCALING_CURVE_(const SCALING_CURVE_& other) = default;

  /// References are taken as pointers too.
  SCALING_CURVE_& operator=(const SCALING_CURVE_& other) = default;

  ~SCALING_CURVE_() override = default;

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

  /// \name Names of enumerators
  /// @{

  /// The text of an enumerator, "INVALID" for any other number.
  static std::string GetEnumName(Enum_TYPE_ value);
  /// @}

  /// Form of the curve.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// Name under which the curve is updated, as plain text.
  const std::string& GetUPDATE_ID_() const { return m_UPDATE_ID_; }

  /// Lower limit of the curve.
  const double& GetMIN_() const { return m_MIN_; }

  /// Upper limit of the curve.
  const double& GetMAX_() const { return m_MAX_; }

  /// Penalisation of the curve; no range is checked.
  const double& GetPENALISATION_() const { return m_PENALISATION_; }

  /// Shift of the data of the curve.
  const double& GetDATA_SHIFT_() const { return m_DATA_SHIFT_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  std::string m_UPDATE_ID_;
  double m_MIN_ = 0.0;
  double m_MAX_ = 0.0;
  double m_PENALISATION_ = 0.0;
  double m_DATA_SHIFT_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
