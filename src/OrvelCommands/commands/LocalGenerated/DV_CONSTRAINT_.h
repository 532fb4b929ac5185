/// \file
/// The command DV_CONSTRAINT_. The const operations of a loaded command may be used from several threads.
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
class CS_;
class SCALING_CURVE_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Restriction on the design variables, such as a symmetry, a demolding direction or a member size.
class ORVELCOMMANDS_EXPORT DV_CONSTRAINT_ : public OrvelCommand
{
public:
  /// Which restriction this is; many of the other keys mean something only for some of them.
  enum Enum_DVC_TYPE_ : std::int32_t
  {
    DVC_TYPE_STAMP = 65,
    DVC_TYPE_LSF_INIT = 66,
    DVC_TYPE_CYCLIC_SYMMETRY = 67,
    DVC_TYPE_DUMMY = 68,
    DVC_TYPE_DEMOLD = 69,
    DVC_TYPE_FILE = 70,
    DVC_TYPE_SCALING_CURVE = 71,
    DVC_TYPE_FILTER = 73,
    DVC_TYPE_PLANE_LINK = 76,
    DVC_TYPE_MEMBERSIZE = 77,
    DVC_TYPE_LSF_SCALING = 78,
    DVC_TYPE_OPT_DIR = 79,
    DVC_TYPE_PLANE_SYMMETRY = 80,
    DVC_TYPE_SURF_DIR_SMOOTH = 83,
    DVC_TYPE_TRANSITION = 84,
    DVC_TYPE_LEVELSET = 86,
    DVC_TYPE_CYCLIC_PLANE_SYMMETRY = 89
  };

  /// Whether the start is a feasible or an infeasible one.
  enum Enum_FEASIBLE_START_ : std::int32_t
  {
    FEASIBLE_START_FEASIBLE = 70,
    FEASIBLE_START_INFEASIBLE = 73
  };

  /// Switch for saving, handed on unread.
  enum Enum_SAVE_ : std::int32_t
  {
    SAVE_NO = 78,
    SAVE_YES = 89
  };

  /// Switch for dumping the values of the optimization.
  enum Enum_DUMPOPTVALUES_ : std::int32_t
  {
    DUMPOPTVALUES_NO = 78,
    DUMPOPTVALUES_YES = 89
  };

  /// Kind of filter, for a restriction that filters.
  enum Enum_FILTER_TYPE_ : std::int32_t
  {
    FILTER_TYPE_PROB_DENS = 80,
    FILTER_TYPE_SIGMUND = 83
  };

  /// Whether a member size is a largest or a smallest one.
  enum Enum_MEMBERSIZE_TYPE_ : std::int32_t
  {
    MEMBERSIZE_TYPE_MAX = 65,
    MEMBERSIZE_TYPE_MIN = 73
  };

  /// How many constraints are aggregated into few, such as by a norm or a soft maximum.
  enum Enum_AGGREGATION_METHOD_ : std::int32_t
  {
    AGGREGATION_METHOD_PN = 65,
    AGGREGATION_METHOD_PMN = 66,
    AGGREGATION_METHOD_KS = 67,
    AGGREGATION_METHOD_SOFTMAX = 68,
    AGGREGATION_METHOD_NONE = 78,
    AGGREGATION_METHOD_PN_C = 97,
    AGGREGATION_METHOD_PMN_C = 98
  };

  /// Whether the degree of freedom in X is free or fixed.
  enum Enum_X_DOF_ : std::int32_t
  {
    X_DOF_FREE = 69,
    X_DOF_FIX = 88
  };

  /// Whether the degree of freedom in Y is free or fixed.
  enum Enum_Y_DOF_ : std::int32_t
  {
    Y_DOF_FREE = 69,
    Y_DOF_FIX = 88
  };

  /// Whether the degree of freedom in Z is free or fixed.
  enum Enum_Z_DOF_ : std::int32_t
  {
    Z_DOF_FREE = 69,
    Z_DOF_FIX = 88
  };

  /// Side on which blocking by the element group is checked: negative, positive or both.
  enum Enum_CHECK_ELGR_BLOCKING_ : std::int32_t
  {
    CHECK_ELGR_BLOCKING_BOTH = 66,
    CHECK_ELGR_BLOCKING_NEG = 78,
    CHECK_ELGR_BLOCKING_POS = 80
  };

  /// How a mid plane is given: by the point or not at all.
  enum Enum_MID_PLANE_ : std::int32_t
  {
    MID_PLANE_POINT = 80,
    MID_PLANE_NONE = 95
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "DV_CONSTRAINT";

  /// "DV_CONSTRAINT_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  DV_CONSTRAINT_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  DV_CONSTRAINT_(const DV_CONSTRAINT_& other) = default;

  /// References are taken as pointers too.
  DV_CONSTRAINT_& operator=(const DV_CONSTRAINT_& other) = default;

  ~DV_CONSTRAINT_() override = default;

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
  static std::string GetEnumName(Enum_DVC_TYPE_ value);
  static std::string GetEnumName(Enum_FEASIBLE_START_ value);
  static std::string GetEnumName(Enum_SAVE_ value);
  static std::string GetEnumName(Enum_DUMPOPTVALUES_ value);
  static std::string GetEnumName(Enum_FILTER_TYPE_ value);
  static std::string GetEnumName(Enum_MEMBERSIZE_TYPE_ value);
  static std::string GetEnumName(Enum_AGGREGATION_METHOD_ value);
  static std::string GetEnumName(Enum_X_DOF_ value);
  static std::string GetEnumName(Enum_Y_DOF_ value);
  static std::string GetEnumName(Enum_Z_DOF_ value);
  static std::string GetEnumName(Enum_CHECK_ELGR_BLOCKING_ value);
  static std::string GetEnumName(Enum_MID_PLANE_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// Which restriction this is; many of the other keys mean something only for some of them.
  const Enum_DVC_TYPE_& GetDVC_TYPE_() const { return m_DVC_TYPE_; }

  /// Nodes that the restriction acts on.
  const std::string& GetNODE_GROUP_() const { return m_NODE_GROUP_; }

  /// Whether NODE_GROUP_ is there.
  bool HasNODE_GROUP_() const { return m_has_NODE_GROUP_; }

  /// Nodes that the restriction checks.
  const std::string& GetCHECK_GROUP_() const { return m_CHECK_GROUP_; }

  /// Whether CHECK_GROUP_ is there.
  bool HasCHECK_GROUP_() const { return m_has_CHECK_GROUP_; }

  /// Nodes that the restriction takes as its reference.
  const std::string& GetREFERENCE_GROUP_() const { return m_REFERENCE_GROUP_; }

  /// Whether REFERENCE_GROUP_ is there.
  bool HasREFERENCE_GROUP_() const { return m_has_REFERENCE_GROUP_; }

  /// Elements that the restriction acts on.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

  /// Whether ELEMENT_GROUP_ is there.
  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }

  /// X coordinate of the point of the restriction.
  const double& GetX_POINT_() const { return m_X_POINT_; }

  /// Whether X_POINT_ is there.
  bool HasX_POINT_() const { return m_has_X_POINT_; }

  /// Y coordinate of the point of the restriction.
  const double& GetY_POINT_() const { return m_Y_POINT_; }

  /// Whether Y_POINT_ is there.
  bool HasY_POINT_() const { return m_has_Y_POINT_; }

  /// Z coordinate of the point of the restriction.
  const double& GetZ_POINT_() const { return m_Z_POINT_; }

  /// Whether Z_POINT_ is there.
  bool HasZ_POINT_() const { return m_has_Z_POINT_; }

  /// X component of the direction of the restriction.
  const double& GetX_DIRECTION_() const { return m_X_DIRECTION_; }

  /// Whether X_DIRECTION_ is there.
  bool HasX_DIRECTION_() const { return m_has_X_DIRECTION_; }

  /// Y component of the direction of the restriction.
  const double& GetY_DIRECTION_() const { return m_Y_DIRECTION_; }

  /// Whether Y_DIRECTION_ is there.
  bool HasY_DIRECTION_() const { return m_has_Y_DIRECTION_; }

  /// Z component of the direction of the restriction.
  const double& GetZ_DIRECTION_() const { return m_Z_DIRECTION_; }

  /// Whether Z_DIRECTION_ is there.
  bool HasZ_DIRECTION_() const { return m_has_Z_DIRECTION_; }

  /// X component of the start direction of the restriction.
  const double& GetX_START_DIRECTION_() const { return m_X_START_DIRECTION_; }

  /// Whether X_START_DIRECTION_ is there.
  bool HasX_START_DIRECTION_() const { return m_has_X_START_DIRECTION_; }

  /// Y component of the start direction of the restriction.
  const double& GetY_START_DIRECTION_() const { return m_Y_START_DIRECTION_; }

  /// Whether Y_START_DIRECTION_ is there.
  bool HasY_START_DIRECTION_() const { return m_has_Y_START_DIRECTION_; }

  /// Z component of the start direction of the restriction.
  const double& GetZ_START_DIRECTION_() const { return m_Z_START_DIRECTION_; }

  /// Whether Z_START_DIRECTION_ is there.
  bool HasZ_START_DIRECTION_() const { return m_has_Z_START_DIRECTION_; }

  /// Angle of the restriction, handed on without conversion.
  const double& GetANGLE_() const { return m_ANGLE_; }

  /// Whether ANGLE_ is there.
  bool HasANGLE_() const { return m_has_ANGLE_; }

  /// Whether the start is a feasible or an infeasible one.
  const Enum_FEASIBLE_START_& GetFEASIBLE_START_() const { return m_FEASIBLE_START_; }

  /// Switch for saving, handed on unread.
  const Enum_SAVE_& GetSAVE_() const { return m_SAVE_; }

  /// Switch for dumping the values of the optimization.
  const Enum_DUMPOPTVALUES_& GetDUMPOPTVALUES_() const { return m_DUMPOPTVALUES_; }

  /// Radius of the restriction.
  const double& GetRADIUS_() const { return m_RADIUS_; }

  /// Whether RADIUS_ is there.
  bool HasRADIUS_() const { return m_has_RADIUS_; }

  /// Kind of filter, for a restriction that filters.
  const Enum_FILTER_TYPE_& GetFILTER_TYPE_() const { return m_FILTER_TYPE_; }

  /// Whether FILTER_TYPE_ is there.
  bool HasFILTER_TYPE_() const { return m_has_FILTER_TYPE_; }

  /// Whether a member size is a largest or a smallest one.
  const Enum_MEMBERSIZE_TYPE_& GetMEMBERSIZE_TYPE_() const { return m_MEMBERSIZE_TYPE_; }

  /// Whether MEMBERSIZE_TYPE_ is there.
  bool HasMEMBERSIZE_TYPE_() const { return m_has_MEMBERSIZE_TYPE_; }

  /// How many constraints are aggregated into few, such as by a norm or a soft maximum.
  const Enum_AGGREGATION_METHOD_& GetAGGREGATION_METHOD_() const { return m_AGGREGATION_METHOD_; }

  /// Parameter of the aggregation, such as the exponent of a norm.
  const double& GetAGGREGATION_PARAMETER_() const { return m_AGGREGATION_PARAMETER_; }

  /// Number of constraints of the aggregation; its sign is not checked.
  const int& GetAGGREGATION_NUM_CONSTRAINTS_() const { return m_AGGREGATION_NUM_CONSTRAINTS_; }

  /// Coordinate system in which the restriction is told.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const CS_& GetCS_() const { return *m_CS_; }

  /// Whether CS_ is there.
  bool HasCS_() const { return m_has_CS_; }

  /// Whether the degree of freedom in X is free or fixed.
  const Enum_X_DOF_& GetX_DOF_() const { return m_X_DOF_; }

  /// Whether X_DOF_ is there.
  bool HasX_DOF_() const { return m_has_X_DOF_; }

  /// Whether the degree of freedom in Y is free or fixed.
  const Enum_Y_DOF_& GetY_DOF_() const { return m_Y_DOF_; }

  /// Whether Y_DOF_ is there.
  bool HasY_DOF_() const { return m_has_Y_DOF_; }

  /// Whether the degree of freedom in Z is free or fixed.
  const Enum_Z_DOF_& GetZ_DOF_() const { return m_Z_DOF_; }

  /// Whether Z_DOF_ is there.
  bool HasZ_DOF_() const { return m_has_Z_DOF_; }

  /// Side on which blocking by the element group is checked: negative, positive or both.
  const Enum_CHECK_ELGR_BLOCKING_& GetCHECK_ELGR_BLOCKING_() const { return m_CHECK_ELGR_BLOCKING_; }

  /// Tolerance of the restriction; no range is checked.
  const double& GetTOLERANCE_() const { return m_TOLERANCE_; }

  /// Scaling curve of the restriction.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const SCALING_CURVE_& GetSCALING_CURVE_() const { return *m_SCALING_CURVE_; }

  /// Whether SCALING_CURVE_ is there.
  bool HasSCALING_CURVE_() const { return m_has_SCALING_CURVE_; }

  /// How a mid plane is given: by the point or not at all.
  const Enum_MID_PLANE_& GetMID_PLANE_() const { return m_MID_PLANE_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  Enum_DVC_TYPE_ m_DVC_TYPE_ = static_cast<Enum_DVC_TYPE_>(0);
  bool m_has_NODE_GROUP_ = false;
  std::string m_NODE_GROUP_;
  bool m_has_CHECK_GROUP_ = false;
  std::string m_CHECK_GROUP_;
  bool m_has_REFERENCE_GROUP_ = false;
  std::string m_REFERENCE_GROUP_;
  bool m_has_ELEMENT_GROUP_ = false;
  std::string m_ELEMENT_GROUP_;
  bool m_has_X_POINT_ = false;
  double m_X_POINT_ = 0.0;
  bool m_has_Y_POINT_ = false;
  double m_Y_POINT_ = 0.0;
  bool m_has_Z_POINT_ = false;
  double m_Z_POINT_ = 0.0;
  bool m_has_X_DIRECTION_ = false;
  double m_X_DIRECTION_ = 0.0;
  bool m_has_Y_DIRECTION_ = false;
  double m_Y_DIRECTION_ = 0.0;
  bool m_has_Z_DIRECTION_ = false;
  double m_Z_DIRECTION_ = 0.0;
  bool m_has_X_START_DIRECTION_ = false;
  double m_X_START_DIRECTION_ = 0.0;
  bool m_has_Y_START_DIRECTION_ = false;
  double m_Y_START_DIRECTION_ = 0.0;
  bool m_has_Z_START_DIRECTION_ = false;
  double m_Z_START_DIRECTION_ = 0.0;
  bool m_has_ANGLE_ = false;
  double m_ANGLE_ = 0.0;
  Enum_FEASIBLE_START_ m_FEASIBLE_START_ = static_cast<Enum_FEASIBLE_START_>(0);
  Enum_SAVE_ m_SAVE_ = static_cast<Enum_SAVE_>(0);
  Enum_DUMPOPTVALUES_ m_DUMPOPTVALUES_ = static_cast<Enum_DUMPOPTVALUES_>(0);
  bool m_has_RADIUS_ = false;
  double m_RADIUS_ = 0.0;
  bool m_has_FILTER_TYPE_ = false;
  Enum_FILTER_TYPE_ m_FILTER_TYPE_ = static_cast<Enum_FILTER_TYPE_>(0);
  bool m_has_MEMBERSIZE_TYPE_ = false;
  Enum_MEMBERSIZE_TYPE_ m_MEMBERSIZE_TYPE_ = static_cast<Enum_MEMBERSIZE_TYPE_>(0);
  Enum_AGGREGATION_METHOD_ m_AGGREGATION_METHOD_ = static_cast<Enum_AGGREGATION_METHOD_>(0);
  double m_AGGREGATION_PARAMETER_ = 0.0;
  int m_AGGREGATION_NUM_CONSTRAINTS_ = 0;
  bool m_has_CS_ = false;
  const CS_* m_CS_ = nullptr;
  bool m_has_X_DOF_ = false;
  Enum_X_DOF_ m_X_DOF_ = static_cast<Enum_X_DOF_>(0);
  bool m_has_Y_DOF_ = false;
  Enum_Y_DOF_ m_Y_DOF_ = static_cast<Enum_Y_DOF_>(0);
  bool m_has_Z_DOF_ = false;
  Enum_Z_DOF_ m_Z_DOF_ = static_cast<Enum_Z_DOF_>(0);
  Enum_CHECK_ELGR_BLOCKING_ m_CHECK_ELGR_BLOCKING_ = static_cast<Enum_CHECK_ELGR_BLOCKING_>(0);
  double m_TOLERANCE_ = 0.0;
  bool m_has_SCALING_CURVE_ = false;
  const SCALING_CURVE_* m_SCALING_CURVE_ = nullptr;
  Enum_MID_PLANE_ m_MID_PLANE_ = static_cast<Enum_MID_PLANE_>(0);
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
