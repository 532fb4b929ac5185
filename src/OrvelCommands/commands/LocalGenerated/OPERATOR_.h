/// \file
/// The command OPERATOR_. The const operations of a loaded command may be used from several threads.
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

/// Operator: combines design responses and other operators, each with its weight, into one value.
class ORVELCOMMANDS_EXPORT OPERATOR_ : public OrvelCommand
{
public:
  /// How the terms are combined: as a weighted sum, a norm or a maximum.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_P_MEAN_NORM = 77,
    TYPE_P_NORM = 80,
    TYPE_WEIGHTED_SUM = 87,
    TYPE_MAX = 88,
    TYPE_P_MEAN_NORM_C = 109,
    TYPE_P_NORM_C = 112
  };

  /// Whether the value is calculated or received.
  enum Enum_UPDATE_TYPE_ : std::int32_t
  {
    UPDATE_TYPE_CALCULATED = 67,
    UPDATE_TYPE_RECEIVED = 82
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "OPERATOR";

  /// "OPERATOR_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  OPERATOR_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  OPERATOR_(const OPERATOR_& other) = default;

  /// References are taken as pointers too.
  OPERATOR_& operator=(const OPERATOR_& other) = default;

  ~OPERATOR_() override = default;

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
  static std::string GetEnumName(Enum_UPDATE_TYPE_ value);
  /// @}

  /// How the terms are combined: as a weighted sum, a norm or a maximum.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// Whether the value is calculated or received.
  const Enum_UPDATE_TYPE_& GetUPDATE_TYPE_() const { return m_UPDATE_TYPE_; }

  /// Name under which the value is updated, as plain text that is not checked against the model.
  const std::string& GetUPDATE_ID_() const { return m_UPDATE_ID_; }

  /// Index that goes with the name under which the value is updated.
  const int& GetUPDATE_INDEX_() const { return m_UPDATE_INDEX_; }

  /// Responses that are combined. Ownership: the parameter file's.
  const std::vector<const DRESP_*>& GetDRESP_() const { return m_DRESP_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value DRESP_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumDRESP_().
  const DRESP_& GetDRESP_(std::uint64_t index) const;

  /// How many values DRESP_ has.
  std::uint64_t NumDRESP_() const { return m_num_DRESP_; }

  /// Weights of the responses, in the same order; the two counts are not compared.
  const std::vector<double>& GetDRESP_WEIGHT_() const { return m_DRESP_WEIGHT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumDRESP_WEIGHT_().
  const double& GetDRESP_WEIGHT_(std::uint64_t index) const { return m_DRESP_WEIGHT_[index - 1]; }

  /// How many values DRESP_WEIGHT_ has.
  std::uint64_t NumDRESP_WEIGHT_() const { return m_num_DRESP_WEIGHT_; }

  /// Operators that are combined, so that operators form a tree; cycles are not looked for. Ownership: the parameter file's.
  const std::vector<const OPERATOR_*>& GetOPERATOR_() const { return m_OPERATOR_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value OPERATOR_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumOPERATOR_().
  const OPERATOR_& GetOPERATOR_(std::uint64_t index) const;

  /// How many values OPERATOR_ has.
  std::uint64_t NumOPERATOR_() const { return m_num_OPERATOR_; }

  /// Weights of the operators, in the same order; the two counts are not compared.
  const std::vector<double>& GetOPERATOR_WEIGHT_() const { return m_OPERATOR_WEIGHT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumOPERATOR_WEIGHT_().
  const double& GetOPERATOR_WEIGHT_(std::uint64_t index) const { return m_OPERATOR_WEIGHT_[index - 1]; }

  /// How many values OPERATOR_WEIGHT_ has.
  std::uint64_t NumOPERATOR_WEIGHT_() const { return m_num_OPERATOR_WEIGHT_; }

  /// Factor that scales the combined value.
  const double& GetFACTOR_() const { return m_FACTOR_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  Enum_UPDATE_TYPE_ m_UPDATE_TYPE_ = static_cast<Enum_UPDATE_TYPE_>(0);
  std::string m_UPDATE_ID_;
  int m_UPDATE_INDEX_ = 0;
  std::uint64_t m_num_DRESP_ = 0;
  std::vector<const DRESP_*> m_DRESP_;
  std::uint64_t m_num_DRESP_WEIGHT_ = 0;
  std::vector<double> m_DRESP_WEIGHT_;
  std::uint64_t m_num_OPERATOR_ = 0;
  std::vector<const OPERATOR_*> m_OPERATOR_;
  std::uint64_t m_num_OPERATOR_WEIGHT_ = 0;
  std::vector<double> m_OPERATOR_WEIGHT_;
  double m_FACTOR_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
