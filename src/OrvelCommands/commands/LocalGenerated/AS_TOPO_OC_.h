/// \file
/// The command AS_TOPO_OC_. The const operations of a loaded command may be used from several threads.
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

/// Settings for topology optimization by optimality criteria.
class ORVELCOMMANDS_EXPORT AS_TOPO_OC_ : public OrvelCommand
{
public:
  /// Form of the scaling curve.
  enum Enum_SCALING_CURVE_TYPE_ : std::int32_t
  {
    SCALING_CURVE_TYPE_LINEAR = 73,
    SCALING_CURVE_TYPE_LOG = 76,
    SCALING_CURVE_TYPE_CONVEX = 88
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "ALGO_SET_TOPO_OC";

  /// "AS_TOPO_OC_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  AS_TOPO_OC_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  AS_TOPO_OC_(const AS_TOPO_OC_& other) = default;

  /// References are taken as pointers too.
  AS_TOPO_OC_& operator=(const AS_TOPO_OC_& other) = default;

  ~AS_TOPO_OC_() override = default;

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
  static std::string GetEnumName(Enum_SCALING_CURVE_TYPE_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Parameter bt of the algorithm, handed on unread.
  const double& GetBT_() const { return m_BT_; }

  /// Lower limit of the parameter ta of the algorithm, handed on unread.
  const double& GetTA_MIN_() const { return m_TA_MIN_; }

  /// Upper limit of the parameter ta of the algorithm, handed on unread.
  const double& GetTA_MAX_() const { return m_TA_MAX_; }

  /// Form of the scaling curve.
  const Enum_SCALING_CURVE_TYPE_& GetSCALING_CURVE_TYPE_() const { return m_SCALING_CURVE_TYPE_; }

  /// Name under which the scaling curve is updated, as plain text.
  const std::string& GetSCALING_CURVE_UPDATE_ID_() const { return m_SCALING_CURVE_UPDATE_ID_; }

  /// Lower limit of the scaling curve.
  const double& GetSCALING_CURVE_MIN_() const { return m_SCALING_CURVE_MIN_; }

  /// Upper limit of the scaling curve.
  const double& GetSCALING_CURVE_MAX_() const { return m_SCALING_CURVE_MAX_; }

  /// Penalisation of the scaling curve; no range is checked.
  const double& GetSCALING_CURVE_PENALISATION_() const { return m_SCALING_CURVE_PENALISATION_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  double m_BT_ = 0.0;
  double m_TA_MIN_ = 0.0;
  double m_TA_MAX_ = 0.0;
  Enum_SCALING_CURVE_TYPE_ m_SCALING_CURVE_TYPE_ = static_cast<Enum_SCALING_CURVE_TYPE_>(0);
  std::string m_SCALING_CURVE_UPDATE_ID_;
  double m_SCALING_CURVE_MIN_ = 0.0;
  double m_SCALING_CURVE_MAX_ = 0.0;
  double m_SCALING_CURVE_PENALISATION_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
