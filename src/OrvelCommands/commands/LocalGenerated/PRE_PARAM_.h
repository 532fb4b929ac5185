/// \file
/// The command PRE_PARAM_. The const operations of a loaded command may be used from several threads.
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

/// Parameters of the pre-processing: fluid, limits of its run, backflow angle and switches for tracks.
class ORVELCOMMANDS_EXPORT PRE_PARAM_ : public OrvelCommand
{
public:
  /// Switch for the PRI file of the tracks in VRML, handed on unread.
  enum Enum_PTRACK_PRI_VRML_ : std::int32_t
  {
    PTRACK_PRI_VRML_NO = 70,
    PTRACK_PRI_VRML_YES = 84
  };

  /// Switch for the VAL file of the tracks in VRML, handed on unread.
  enum Enum_PTRACK_VAL_VRML_ : std::int32_t
  {
    PTRACK_VAL_VRML_NO = 70,
    PTRACK_VAL_VRML_YES = 84
  };

  /// Switch for the reference file in VRML, handed on unread.
  enum Enum_REF_VRML_ : std::int32_t
  {
    REF_VRML_NO = 70,
    REF_VRML_YES = 84
  };

  /// Switch for keeping invalid tracks.
  enum Enum_PTRACK_KEEP_INVALID_ : std::int32_t
  {
    PTRACK_KEEP_INVALID_NO = 70,
    PTRACK_KEEP_INVALID_YES = 84
  };

  /// Switch for adding the bounds to the VRML file of the tracks.
  enum Enum_PTRACK_VRML_ADD_BOUNDS_ : std::int32_t
  {
    PTRACK_VRML_ADD_BOUNDS_NO = 70,
    PTRACK_VRML_ADD_BOUNDS_YES = 84
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "PRE_PARAM";

  /// "PRE_PARAM_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  PRE_PARAM_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  PRE_PARAM_(const PRE_PARAM_& other) = default;

  /// References are taken as pointers too.
  PRE_PARAM_& operator=(const PRE_PARAM_& other) = default;

  ~PRE_PARAM_() override = default;

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
  static std::string GetEnumName(Enum_PTRACK_PRI_VRML_ value);
  static std::string GetEnumName(Enum_PTRACK_VAL_VRML_ value);
  static std::string GetEnumName(Enum_REF_VRML_ value);
  static std::string GetEnumName(Enum_PTRACK_KEEP_INVALID_ value);
  static std::string GetEnumName(Enum_PTRACK_VRML_ADD_BOUNDS_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Viscosity of the fluid, handed on without conversion.
  const double& GetVISCOSITY_() const { return m_VISCOSITY_; }

  /// Residual limit of the pre-processing.
  const double& GetRESIDUAL_() const { return m_RESIDUAL_; }

  /// Most iterations of the pre-processing.
  const int& GetITER_MAX_() const { return m_ITER_MAX_; }

  /// Angle for judging backflow, a whole number that is handed on without conversion.
  const int& GetBACKFLOW_ANGLE_() const { return m_BACKFLOW_ANGLE_; }

  /// Switch for the PRI file of the tracks in VRML, handed on unread.
  const Enum_PTRACK_PRI_VRML_& GetPTRACK_PRI_VRML_() const { return m_PTRACK_PRI_VRML_; }

  /// Switch for the VAL file of the tracks in VRML, handed on unread.
  const Enum_PTRACK_VAL_VRML_& GetPTRACK_VAL_VRML_() const { return m_PTRACK_VAL_VRML_; }

  /// Switch for the reference file in VRML, handed on unread.
  const Enum_REF_VRML_& GetREF_VRML_() const { return m_REF_VRML_; }

  /// Switch for keeping invalid tracks.
  const Enum_PTRACK_KEEP_INVALID_& GetPTRACK_KEEP_INVALID_() const { return m_PTRACK_KEEP_INVALID_; }

  /// Switch for adding the bounds to the VRML file of the tracks.
  const Enum_PTRACK_VRML_ADD_BOUNDS_& GetPTRACK_VRML_ADD_BOUNDS_() const { return m_PTRACK_VRML_ADD_BOUNDS_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  double m_VISCOSITY_ = 0.0;
  double m_RESIDUAL_ = 0.0;
  int m_ITER_MAX_ = 0;
  int m_BACKFLOW_ANGLE_ = 0;
  Enum_PTRACK_PRI_VRML_ m_PTRACK_PRI_VRML_ = static_cast<Enum_PTRACK_PRI_VRML_>(0);
  Enum_PTRACK_VAL_VRML_ m_PTRACK_VAL_VRML_ = static_cast<Enum_PTRACK_VAL_VRML_>(0);
  Enum_REF_VRML_ m_REF_VRML_ = static_cast<Enum_REF_VRML_>(0);
  Enum_PTRACK_KEEP_INVALID_ m_PTRACK_KEEP_INVALID_ = static_cast<Enum_PTRACK_KEEP_INVALID_>(0);
  Enum_PTRACK_VRML_ADD_BOUNDS_ m_PTRACK_VRML_ADD_BOUNDS_ = static_cast<Enum_PTRACK_VRML_ADD_BOUNDS_>(0);
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
