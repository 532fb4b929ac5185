/// \file
/// The command OBJ_FUNC_. The const operations of a loaded command may be used from several threads.
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
class FILTER_;
class OPERATOR_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Objective of the optimization: the response or operator to minimise, its scaling and its filters.
class ORVELCOMMANDS_EXPORT OBJ_FUNC_ : public OrvelCommand
{
public:
  /// Direction of the optimization; an objective is always minimised.
  enum Enum_TARGET_ : std::int32_t
  {
    TARGET_MIN = 77
  };

  /// How the sensitivities of the objective are scaled.
  enum Enum_SENSSCALING_TYPE_ : std::int32_t
  {
    SENSSCALING_TYPE_NONE = 78,
    SENSSCALING_TYPE_NORMED_TO_ONE = 79,
    SENSSCALING_TYPE_SCALED = 83
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "OBJ_FUNC";

  /// "OBJ_FUNC_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  OBJ_FUNC_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  OBJ_FUNC_(const OBJ_FUNC_& other) = default;

  /// References are taken as pointers too.
  OBJ_FUNC_& operator=(const OBJ_FUNC_& other) = default;

  ~OBJ_FUNC_() override = default;

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
  static std::string GetEnumName(Enum_TARGET_ value);
  static std::string GetEnumName(Enum_SENSSCALING_TYPE_ value);
  /// @}

  /// Response to minimise.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const DRESP_& GetDRESP_() const { return *m_DRESP_; }

  /// Whether DRESP_ is there.
  bool HasDRESP_() const { return m_has_DRESP_; }

  /// Operator to minimise in place of a response.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const OPERATOR_& GetOPERATOR_() const { return *m_OPERATOR_; }

  /// Whether OPERATOR_ is there.
  bool HasOPERATOR_() const { return m_has_OPERATOR_; }

  /// Direction of the optimization; an objective is always minimised.
  const Enum_TARGET_& GetTARGET_() const { return m_TARGET_; }

  /// How the sensitivities of the objective are scaled.
  const Enum_SENSSCALING_TYPE_& GetSENSSCALING_TYPE_() const { return m_SENSSCALING_TYPE_; }

  /// Value that goes with the scaling of the sensitivities.
  const double& GetSENSSCALING_VALUE_() const { return m_SENSSCALING_VALUE_; }

  /// Filters that act on the sensitivities, in order. Ownership: the parameter file's.
  const std::vector<const FILTER_*>& GetFILTER_() const { return m_FILTER_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value FILTER_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumFILTER_().
  const FILTER_& GetFILTER_(std::uint64_t index) const;

  /// How many values FILTER_ has.
  std::uint64_t NumFILTER_() const { return m_num_FILTER_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  bool m_has_DRESP_ = false;
  const DRESP_* m_DRESP_ = nullptr;
  bool m_has_OPERATOR_ = false;
  const OPERATOR_* m_OPERATOR_ = nullptr;
  Enum_TARGET_ m_TARGET_ = static_cast<Enum_TARGET_>(0);
  Enum_SENSSCALING_TYPE_ m_SENSSCALING_TYPE_ = static_cast<Enum_SENSSCALING_TYPE_>(0);
  double m_SENSSCALING_VALUE_ = 0.0;
  std::uint64_t m_num_FILTER_ = 0;
  std::vector<const FILTER_*> m_FILTER_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
