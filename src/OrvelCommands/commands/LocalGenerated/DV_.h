/// \file
/// The command DV_. The const operations of a loaded command may be used from several threads.
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

/// Design variable: the group whose values the optimization changes, its start value and its filters.
class ORVELCOMMANDS_EXPORT DV_ : public OrvelCommand
{
public:
  /// What one variable stands for.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_AUTO = 65,
    TYPE_DENSITY = 68,
    TYPE_DETACHED = 69,
    TYPE_NODAL = 78,
    TYPE_NODAL_VECTOR = 86
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "DV";

  /// "DV_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  DV_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  DV_(const DV_& other) = default;

  /// References are taken as pointers too.
  DV_& operator=(const DV_& other) = default;

  ~DV_() override = default;

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

  /// Elements whose values the optimization changes, such as their densities.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

  /// Whether ELEMENT_GROUP_ is there.
  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }

  /// Nodes whose values the optimization changes, such as their positions.
  const std::string& GetNODE_GROUP_() const { return m_NODE_GROUP_; }

  /// Whether NODE_GROUP_ is there.
  bool HasNODE_GROUP_() const { return m_has_NODE_GROUP_; }

  /// Start value of every variable.
  const double& GetINITIAL_() const { return m_INITIAL_; }

  /// Field of start values, as plain text that is not checked against the model.
  const std::string& GetINITIAL_DV_FIELD_() const { return m_INITIAL_DV_FIELD_; }

  /// Whether INITIAL_DV_FIELD_ is there.
  bool HasINITIAL_DV_FIELD_() const { return m_has_INITIAL_DV_FIELD_; }

  /// Filters that act on the variable, in order. Ownership: the parameter file's.
  const std::vector<const FILTER_*>& GetFILTER_() const { return m_FILTER_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value FILTER_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumFILTER_().
  const FILTER_& GetFILTER_(std::uint64_t index) const;

  /// How many values FILTER_ has.
  std::uint64_t NumFILTER_() const { return m_num_FILTER_; }

  /// What one variable stands for.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// Design variables that this one merges; empty unless it stands for several. Ownership: the parameter file's.
  const std::vector<const DV_*>& GetDV_() const { return m_DV_; }

  /// The command at a place counted from 1.
  /// Throws: "Invalid index ... of the parameterfile value DV_ to retrieve from ..." with code "220653270608" for an
  /// \p index outside 1 to NumDV_().
  const DV_& GetDV_(std::uint64_t index) const;

  /// How many values DV_ has.
  std::uint64_t NumDV_() const { return m_num_DV_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  bool m_has_ELEMENT_GROUP_ = false;
  std::string m_ELEMENT_GROUP_;
  bool m_has_NODE_GROUP_ = false;
  std::string m_NODE_GROUP_;
  double m_INITIAL_ = 0.0;
  bool m_has_INITIAL_DV_FIELD_ = false;
  std::string m_INITIAL_DV_FIELD_;
  std::uint64_t m_num_FILTER_ = 0;
  std::vector<const FILTER_*> m_FILTER_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  std::uint64_t m_num_DV_ = 0;
  std::vector<const DV_*> m_DV_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
