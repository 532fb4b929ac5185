/// \file
/// The command AS_TOPO_SENS_. The const operations of a loaded command may be used from several threads.
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

/// Settings for topology optimization by sensitivities: optimizer, move limits, primal and adjoint runs.
class ORVELCOMMANDS_EXPORT AS_TOPO_SENS_ : public OrvelCommand
{
public:
  /// Optimizer that updates the design variables.
  enum Enum_ALGORITHM_ : std::int32_t
  {
    ALGORITHM_STEEPEST = 67,
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

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "ALGO_SET_TOPO_SENS";

  /// "AS_TOPO_SENS_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  AS_TOPO_SENS_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  AS_TOPO_SENS_(const AS_TOPO_SENS_& other) = default;

  /// References are taken as pointers too.
  AS_TOPO_SENS_& operator=(const AS_TOPO_SENS_& other) = default;

  ~AS_TOPO_SENS_() override = default;

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
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Optimizer that updates the design variables.
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

  /// Fewest iterations of the primal run; not compared with the most.
  const int& GetPRIMAL_ITER_MIN_() const { return m_PRIMAL_ITER_MIN_; }

  /// Most iterations of the primal run.
  const int& GetPRIMAL_ITER_MAX_() const { return m_PRIMAL_ITER_MAX_; }

  /// Interval of the primal run, a whole number that is handed on to the solver unread.
  const int& GetPRIMAL_INTERVAL_() const { return m_PRIMAL_INTERVAL_; }

  /// Residual limit of the primal run.
  const double& GetPRIMAL_RESIDUAL_() const { return m_PRIMAL_RESIDUAL_; }

  /// Deviation limit of the primal run.
  const double& GetPRIMAL_DEVIATION_() const { return m_PRIMAL_DEVIATION_; }

  /// Fewest iterations of the adjoint run; not compared with the most.
  const int& GetADJOINT_ITER_MIN_() const { return m_ADJOINT_ITER_MIN_; }

  /// Most iterations of the adjoint run.
  const int& GetADJOINT_ITER_MAX_() const { return m_ADJOINT_ITER_MAX_; }

  /// Interval of the adjoint run, a whole number that is handed on to the solver unread.
  const int& GetADJOINT_INTERVAL_() const { return m_ADJOINT_INTERVAL_; }

  /// Discretisation of the adjoint run, as text that is handed on to the solver unread.
  const std::string& GetADJOINT_DISC_() const { return m_ADJOINT_DISC_; }

  /// Driver of the adjoint run, as text that is handed on to the solver unread.
  const std::string& GetADJOINT_DRIVER_() const { return m_ADJOINT_DRIVER_; }

  /// CFL number of the adjoint run, dimensionless and whole.
  const int& GetADJOINT_CFL_() const { return m_ADJOINT_CFL_; }

  /// Whether the initial solution is kept, as text that is handed on to the solver unread.
  const std::string& GetKEEP_INITIAL_() const { return m_KEEP_INITIAL_; }

  /// Whether the adjoint solution is kept, as text that is handed on to the solver unread.
  const std::string& GetKEEP_ADJOINT_() const { return m_KEEP_ADJOINT_; }

  /// Whether the pressure source is skipped, as text that is handed on to the solver unread.
  const std::string& GetSKIP_PRESSURE_SRC_() const { return m_SKIP_PRESSURE_SRC_; }

  /// Whether the turbulent source is skipped, as text that is handed on to the solver unread.
  const std::string& GetSKIP_TURBULENT_SRC_() const { return m_SKIP_TURBULENT_SRC_; }

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
  int m_PRIMAL_ITER_MIN_ = 0;
  int m_PRIMAL_ITER_MAX_ = 0;
  int m_PRIMAL_INTERVAL_ = 0;
  double m_PRIMAL_RESIDUAL_ = 0.0;
  double m_PRIMAL_DEVIATION_ = 0.0;
  int m_ADJOINT_ITER_MIN_ = 0;
  int m_ADJOINT_ITER_MAX_ = 0;
  int m_ADJOINT_INTERVAL_ = 0;
  std::string m_ADJOINT_DISC_;
  std::string m_ADJOINT_DRIVER_;
  int m_ADJOINT_CFL_ = 0;
  std::string m_KEEP_INITIAL_;
  std::string m_KEEP_ADJOINT_;
  std::string m_SKIP_PRESSURE_SRC_;
  std::string m_SKIP_TURBULENT_SRC_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
