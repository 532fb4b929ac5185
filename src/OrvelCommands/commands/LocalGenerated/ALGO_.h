/// \file
/// The command ALGO_. The const operations of a loaded command may be used from several threads.
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
class AS_SHAPE_SENS_;
class AS_TOPO_OC_;
class AS_TOPO_SENS_;
class CONSTRAINT_;
class DV_;
class DV_CONSTRAINT_;
class MESH_SMOOTH_;
class MONITOR_;
class OBJ_FUNC_;
class OPT_PARAM_;
class PRE_PARAM_;
class STOP_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Optimization task: the strategy of the run and all commands that take part in it.
class ORVELCOMMANDS_EXPORT ALGO_ : public OrvelCommand
{
public:
  /// Strategy of the run: topology or shape optimization, by sensitivities or optimality criteria.
  enum Enum_STRATEGY_ : std::int32_t
  {
    STRATEGY_STRUCTURE_TOPO_SENS = 65,
    STRATEGY_TOPO_OC = 79,
    STRATEGY_SHAPE_SENS = 83,
    STRATEGY_TOPO_SENS = 84
  };

  /// Switch for output that is meant for developers.
  enum Enum_DEVELOPER_OUTPUT_ : std::int32_t
  {
    DEVELOPER_OUTPUT_NO = 70,
    DEVELOPER_OUTPUT_YES = 84
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "OPTIMIZE";

  /// "ALGO_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  ALGO_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  ALGO_(const ALGO_& other) = default;

  /// References are taken as pointers too.
  ALGO_& operator=(const ALGO_& other) = default;

  ~ALGO_() override = default;

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
  static std::string GetEnumName(Enum_STRATEGY_ value);
  static std::string GetEnumName(Enum_DEVELOPER_OUTPUT_ value);
  /// @}

  /// Strategy of the run: topology or shape optimization, by sensitivities or optimality criteria.
  const Enum_STRATEGY_& GetSTRATEGY_() const { return m_STRATEGY_; }

  /// Design variable of the job; the merged one where a job names several.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const DV_& GetDV_() const { return *m_DV_; }

  /// Objective of the job.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const OBJ_FUNC_& GetOBJ_FUNC_() const { return *m_OBJ_FUNC_; }

  /// Constraints of the job, in order. Ownership: the parameter file's.
  const std::vector<const CONSTRAINT_*>& GetCONSTRAINT_() const { return m_CONSTRAINT_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value CONSTRAINT_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumCONSTRAINT_().
  const CONSTRAINT_& GetCONSTRAINT_(std::uint64_t index) const;

  /// How many values CONSTRAINT_ has.
  std::uint64_t NumCONSTRAINT_() const { return m_num_CONSTRAINT_; }

  /// Restrictions on the design variables, in order. Ownership: the parameter file's.
  const std::vector<const DV_CONSTRAINT_*>& GetDV_CONSTRAINT_() const { return m_DV_CONSTRAINT_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value DV_CONSTRAINT_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumDV_CONSTRAINT_().
  const DV_CONSTRAINT_& GetDV_CONSTRAINT_(std::uint64_t index) const;

  /// How many values DV_CONSTRAINT_ has.
  std::uint64_t NumDV_CONSTRAINT_() const { return m_num_DV_CONSTRAINT_; }

  /// General parameters of the optimization.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const OPT_PARAM_& GetOPT_PARAM_() const { return *m_OPT_PARAM_; }

  /// Criteria that end the optimization.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const STOP_& GetSTOP_() const { return *m_STOP_; }

  /// Parameters of the pre-processing.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const PRE_PARAM_& GetPRE_PARAM_() const { return *m_PRE_PARAM_; }

  /// Smoothings of the mesh, in order. Ownership: the parameter file's.
  const std::vector<const MESH_SMOOTH_*>& GetMESH_SMOOTH_() const { return m_MESH_SMOOTH_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value MESH_SMOOTH_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumMESH_SMOOTH_().
  const MESH_SMOOTH_& GetMESH_SMOOTH_(std::uint64_t index) const;

  /// How many values MESH_SMOOTH_ has.
  std::uint64_t NumMESH_SMOOTH_() const { return m_num_MESH_SMOOTH_; }

  /// Monitors of the run, in order. Ownership: the parameter file's.
  const std::vector<const MONITOR_*>& GetMONITOR_() const { return m_MONITOR_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value MONITOR_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumMONITOR_().
  const MONITOR_& GetMONITOR_(std::uint64_t index) const;

  /// How many values MONITOR_ has.
  std::uint64_t NumMONITOR_() const { return m_num_MONITOR_; }

  /// Settings for topology optimization by optimality criteria; present with every strategy.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const AS_TOPO_OC_& GetAS_TOPO_OC_() const { return *m_AS_TOPO_OC_; }

  /// Settings for topology optimization by sensitivities; present with every strategy.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const AS_TOPO_SENS_& GetAS_TOPO_SENS_() const { return *m_AS_TOPO_SENS_; }

  /// Settings for shape optimization by sensitivities; present with every strategy.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const AS_SHAPE_SENS_& GetAS_SHAPE_SENS_() const { return *m_AS_SHAPE_SENS_; }

  /// Switch for output that is meant for developers.
  const Enum_DEVELOPER_OUTPUT_& GetDEVELOPER_OUTPUT_() const { return m_DEVELOPER_OUTPUT_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_STRATEGY_ m_STRATEGY_ = static_cast<Enum_STRATEGY_>(0);
  const DV_* m_DV_ = nullptr;
  const OBJ_FUNC_* m_OBJ_FUNC_ = nullptr;
  std::uint64_t m_num_CONSTRAINT_ = 0;
  std::vector<const CONSTRAINT_*> m_CONSTRAINT_;
  std::uint64_t m_num_DV_CONSTRAINT_ = 0;
  std::vector<const DV_CONSTRAINT_*> m_DV_CONSTRAINT_;
  const OPT_PARAM_* m_OPT_PARAM_ = nullptr;
  const STOP_* m_STOP_ = nullptr;
  const PRE_PARAM_* m_PRE_PARAM_ = nullptr;
  std::uint64_t m_num_MESH_SMOOTH_ = 0;
  std::vector<const MESH_SMOOTH_*> m_MESH_SMOOTH_;
  std::uint64_t m_num_MONITOR_ = 0;
  std::vector<const MONITOR_*> m_MONITOR_;
  const AS_TOPO_OC_* m_AS_TOPO_OC_ = nullptr;
  const AS_TOPO_SENS_* m_AS_TOPO_SENS_ = nullptr;
  const AS_SHAPE_SENS_* m_AS_SHAPE_SENS_ = nullptr;
  Enum_DEVELOPER_OUTPUT_ m_DEVELOPER_OUTPUT_ = static_cast<Enum_DEVELOPER_OUTPUT_>(0);
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
