/// \file
/// The command FILTER_. The const operations of a loaded command may be used from several threads.
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

/// Filter that design variables or sensitivities pass through, on a group of the model.
class ORVELCOMMANDS_EXPORT FILTER_ : public OrvelCommand
{
public:
  /// Method of the filter, such as a Sigmund filter, a symmetry or a demolding.
  enum Enum_METHOD_ : std::int32_t
  {
    METHOD_DA_NORMAL = 65,
    METHOD_BOUNDARY = 66,
    METHOD_BD_TRANSITION = 67,
    METHOD_DEMOLD = 68,
    METHOD_SIGMUND = 69,
    METHOD_SIGMUND_SURFACE = 70,
    METHOD_MAXIMUM_MEMBER = 77,
    METHOD_MEDIAN = 78,
    METHOD_DA_PLANE_NORMAL = 80,
    METHOD_SYMMETRY = 83,
    METHOD_DISTANCE_TO_BORDER = 100
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "FILTER";

  /// "FILTER_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  FILTER_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  FILTER_(const FILTER_& other) = default;

  /// References are taken as pointers too.
  FILTER_& operator=(const FILTER_& other) = default;

  ~FILTER_() override = default;

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
  static std::string GetEnumName(Enum_METHOD_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Method of the filter, such as a Sigmund filter, a symmetry or a demolding.
  const Enum_METHOD_& GetMETHOD_() const { return m_METHOD_; }

  /// Radius of the filter; no range is checked.
  const double& GetRADIUS_() const { return m_RADIUS_; }

  /// X component of the direction of the filter.
  const double& GetX_DIRECTION_() const { return m_X_DIRECTION_; }

  /// Whether X_DIRECTION_ is there.
  bool HasX_DIRECTION_() const { return m_has_X_DIRECTION_; }

  /// Y component of the direction of the filter.
  const double& GetY_DIRECTION_() const { return m_Y_DIRECTION_; }

  /// Whether Y_DIRECTION_ is there.
  bool HasY_DIRECTION_() const { return m_has_Y_DIRECTION_; }

  /// Z component of the direction of the filter.
  const double& GetZ_DIRECTION_() const { return m_Z_DIRECTION_; }

  /// Whether Z_DIRECTION_ is there.
  bool HasZ_DIRECTION_() const { return m_has_Z_DIRECTION_; }

  /// X coordinate of the point of the filter.
  const double& GetX_POINT_() const { return m_X_POINT_; }

  /// Whether X_POINT_ is there.
  bool HasX_POINT_() const { return m_has_X_POINT_; }

  /// Y coordinate of the point of the filter.
  const double& GetY_POINT_() const { return m_Y_POINT_; }

  /// Whether Y_POINT_ is there.
  bool HasY_POINT_() const { return m_has_Y_POINT_; }

  /// Z coordinate of the point of the filter.
  const double& GetZ_POINT_() const { return m_Z_POINT_; }

  /// Whether Z_POINT_ is there.
  bool HasZ_POINT_() const { return m_has_Z_POINT_; }

  /// Faces that the filter acts on.
  const std::string& GetFACE_GROUP_() const { return m_FACE_GROUP_; }

  /// Whether FACE_GROUP_ is there.
  bool HasFACE_GROUP_() const { return m_has_FACE_GROUP_; }

  /// Nodes that the filter acts on.
  const std::string& GetNODE_GROUP_() const { return m_NODE_GROUP_; }

  /// Whether NODE_GROUP_ is there.
  bool HasNODE_GROUP_() const { return m_has_NODE_GROUP_; }

  /// Elements that the filter acts on.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

  /// Whether ELEMENT_GROUP_ is there.
  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }

  /// Parameter alpha of the method.
  const double& GetALPHA_() const { return m_ALPHA_; }

  /// Parameter beta of the method.
  const double& GetBETA_() const { return m_BETA_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  Enum_METHOD_ m_METHOD_ = static_cast<Enum_METHOD_>(0);
  double m_RADIUS_ = 0.0;
  bool m_has_X_DIRECTION_ = false;
  double m_X_DIRECTION_ = 0.0;
  bool m_has_Y_DIRECTION_ = false;
  double m_Y_DIRECTION_ = 0.0;
  bool m_has_Z_DIRECTION_ = false;
  double m_Z_DIRECTION_ = 0.0;
  bool m_has_X_POINT_ = false;
  double m_X_POINT_ = 0.0;
  bool m_has_Y_POINT_ = false;
  double m_Y_POINT_ = 0.0;
  bool m_has_Z_POINT_ = false;
  double m_Z_POINT_ = 0.0;
  bool m_has_FACE_GROUP_ = false;
  std::string m_FACE_GROUP_;
  bool m_has_NODE_GROUP_ = false;
  std::string m_NODE_GROUP_;
  bool m_has_ELEMENT_GROUP_ = false;
  std::string m_ELEMENT_GROUP_;
  double m_ALPHA_ = 0.0;
  double m_BETA_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
