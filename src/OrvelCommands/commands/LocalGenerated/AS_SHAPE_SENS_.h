/// \file
/// The command AS_SHAPE_SENS_. The const operations of a loaded command may be used from several threads.
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
class FILTER_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Settings for shape optimization by sensitivities: optimizer, move limits, filters and normals.
class ORVELCOMMANDS_EXPORT AS_SHAPE_SENS_ : public OrvelCommand
{
public:
  /// Optimizer that updates the design variables, or a check by finite differences.
  enum Enum_ALGORITHM_ : std::int32_t
  {
    ALGORITHM_STEEPEST = 67,
    ALGORITHM_FD_CHECK = 70,
    ALGORITHM_MMA = 77,
    ALGORITHM_CSA = 80
  };

  /// Mathematical kernel of the optimizer: the internal one or MKL.
  enum Enum_MATH_KERNEL_ : std::int32_t
  {
    MATH_KERNEL_INTERNAL = 73,
    MATH_KERNEL_MKL = 77
  };

  /// Form of the scaling curve.
  enum Enum_SCALING_CURVE_TYPE_ : std::int32_t
  {
    SCALING_CURVE_TYPE_LINEAR = 73,
    SCALING_CURVE_TYPE_LOG = 76,
    SCALING_CURVE_TYPE_CONVEX = 88
  };

  /// Kind of the asymmetric move limits: original, conservative or custom ones.
  enum Enum_ASYM_MOVE_ : std::int32_t
  {
    ASYM_MOVE_CONSERVATIVE = 67,
    ASYM_MOVE_ORIGINAL = 79,
    ASYM_MOVE_CUSTOM = 83
  };

  /// How surface normals follow the shape: the initial ones, incremental or updated ones.
  enum Enum_NORMAL_UPDATE_ : std::int32_t
  {
    NORMAL_UPDATE_INCREMENTAL = 67,
    NORMAL_UPDATE_INITIAL = 73,
    NORMAL_UPDATE_UPDATE = 85
  };

  /// Kind of the design variables: default or specific ones.
  enum Enum_DV_TYPE_ : std::int32_t
  {
    DV_TYPE_DEFAULT = 68,
    DV_TYPE_SPECIFIC = 83
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "ALGO_SET_SHAPE_SENS";

  /// "AS_SHAPE_SENS_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  AS_SHAPE_SENS_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  AS_SHAPE_SENS_(const AS_SHAPE_SENS_& other) = default;

  /// References are taken as pointers too.
  AS_SHAPE_SENS_& operator=(const AS_SHAPE_SENS_& other) = default;

  ~AS_SHAPE_SENS_() override = default;

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
  static std::string GetEnumName(Enum_ALGORITHM_ value);
  static std::string GetEnumName(Enum_MATH_KERNEL_ value);
  static std::string GetEnumName(Enum_SCALING_CURVE_TYPE_ value);
  static std::string GetEnumName(Enum_ASYM_MOVE_ value);
  static std::string GetEnumName(Enum_NORMAL_UPDATE_ value);
  static std::string GetEnumName(Enum_DV_TYPE_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Optimizer that updates the design variables, or a check by finite differences.
  const Enum_ALGORITHM_& GetALGORITHM_() const { return m_ALGORITHM_; }

  /// Mathematical kernel of the optimizer: the internal one or MKL.
  const Enum_MATH_KERNEL_& GetMATH_KERNEL_() const { return m_MATH_KERNEL_; }

  /// Lower bound of the design variables.
  const double& GetMIN_() const { return m_MIN_; }

  /// Whether MIN_ is there.
  bool HasMIN_() const { return m_has_MIN_; }

  /// Upper bound of the design variables.
  const double& GetMAX_() const { return m_MAX_; }

  /// Whether MAX_ is there.
  bool HasMAX_() const { return m_has_MAX_; }

  /// Move limit of the design variables for one update.
  const double& GetMOVE_() const { return m_MOVE_; }

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

  /// Kind of the asymmetric move limits: original, conservative or custom ones.
  const Enum_ASYM_MOVE_& GetASYM_MOVE_() const { return m_ASYM_MOVE_; }

  /// Lower asymmetric move limit.
  const double& GetASYM_MOVE_LOW_() const { return m_ASYM_MOVE_LOW_; }

  /// Upper asymmetric move limit.
  const double& GetASYM_MOVE_UP_() const { return m_ASYM_MOVE_UP_; }

  /// Tolerance of the subproblem, handed on to the optimizer unread.
  const double& GetSUB_TOL_() const { return m_SUB_TOL_; }

  /// Filters of the shape optimization, in order. Ownership: the parameter file's.
  const std::vector<const FILTER_*>& GetFILTER_() const { return m_FILTER_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value FILTER_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumFILTER_().
  const FILTER_& GetFILTER_(std::uint64_t index) const;

  /// How many values FILTER_ has.
  std::uint64_t NumFILTER_() const { return m_num_FILTER_; }

  /// How surface normals follow the shape: the initial ones, incremental or updated ones.
  const Enum_NORMAL_UPDATE_& GetNORMAL_UPDATE_() const { return m_NORMAL_UPDATE_; }

  /// Kind of the design variables: default or specific ones.
  const Enum_DV_TYPE_& GetDV_TYPE_() const { return m_DV_TYPE_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  Enum_ALGORITHM_ m_ALGORITHM_ = static_cast<Enum_ALGORITHM_>(0);
  Enum_MATH_KERNEL_ m_MATH_KERNEL_ = static_cast<Enum_MATH_KERNEL_>(0);
  bool m_has_MIN_ = false;
  double m_MIN_ = 0.0;
  bool m_has_MAX_ = false;
  double m_MAX_ = 0.0;
  double m_MOVE_ = 0.0;
  Enum_SCALING_CURVE_TYPE_ m_SCALING_CURVE_TYPE_ = static_cast<Enum_SCALING_CURVE_TYPE_>(0);
  std::string m_SCALING_CURVE_UPDATE_ID_;
  double m_SCALING_CURVE_MIN_ = 0.0;
  double m_SCALING_CURVE_MAX_ = 0.0;
  double m_SCALING_CURVE_PENALISATION_ = 0.0;
  Enum_ASYM_MOVE_ m_ASYM_MOVE_ = static_cast<Enum_ASYM_MOVE_>(0);
  double m_ASYM_MOVE_LOW_ = 0.0;
  double m_ASYM_MOVE_UP_ = 0.0;
  double m_SUB_TOL_ = 0.0;
  std::uint64_t m_num_FILTER_ = 0;
  std::vector<const FILTER_*> m_FILTER_;
  Enum_NORMAL_UPDATE_ m_NORMAL_UPDATE_ = static_cast<Enum_NORMAL_UPDATE_>(0);
  Enum_DV_TYPE_ m_DV_TYPE_ = static_cast<Enum_DV_TYPE_>(0);
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
