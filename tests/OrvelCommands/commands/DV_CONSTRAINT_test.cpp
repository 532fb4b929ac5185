#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <vector>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using Dvc = DV_CONSTRAINT_;

static_assert(kReturn<Dvc, const std::string&, &Dvc::GetType, &Dvc::GetID_NAME_, &Dvc::GetPATCH_ID_,
                      &Dvc::GetNODE_GROUP_, &Dvc::GetCHECK_GROUP_, &Dvc::GetREFERENCE_GROUP_, &Dvc::GetELEMENT_GROUP_>);
static_assert(kReturn<Dvc, const double&, &Dvc::GetX_POINT_, &Dvc::GetY_POINT_, &Dvc::GetZ_POINT_,
                      &Dvc::GetX_DIRECTION_, &Dvc::GetY_DIRECTION_, &Dvc::GetZ_DIRECTION_, &Dvc::GetX_START_DIRECTION_,
                      &Dvc::GetY_START_DIRECTION_, &Dvc::GetZ_START_DIRECTION_, &Dvc::GetANGLE_, &Dvc::GetRADIUS_,
                      &Dvc::GetAGGREGATION_PARAMETER_, &Dvc::GetTOLERANCE_>);
static_assert(kReturn<Dvc, const int&, &Dvc::GetAGGREGATION_NUM_CONSTRAINTS_>);
static_assert(kReturn<Dvc, const Dvc::Enum_DVC_TYPE_&, &Dvc::GetDVC_TYPE_>);
static_assert(kReturn<Dvc, const Dvc::Enum_FEASIBLE_START_&, &Dvc::GetFEASIBLE_START_>);
static_assert(kReturn<Dvc, const Dvc::Enum_SAVE_&, &Dvc::GetSAVE_>);
static_assert(kReturn<Dvc, const Dvc::Enum_DUMPOPTVALUES_&, &Dvc::GetDUMPOPTVALUES_>);
static_assert(kReturn<Dvc, const Dvc::Enum_FILTER_TYPE_&, &Dvc::GetFILTER_TYPE_>);
static_assert(kReturn<Dvc, const Dvc::Enum_MEMBERSIZE_TYPE_&, &Dvc::GetMEMBERSIZE_TYPE_>);
static_assert(kReturn<Dvc, const Dvc::Enum_AGGREGATION_METHOD_&, &Dvc::GetAGGREGATION_METHOD_>);
static_assert(kReturn<Dvc, const Dvc::Enum_X_DOF_&, &Dvc::GetX_DOF_>);
static_assert(kReturn<Dvc, const Dvc::Enum_Y_DOF_&, &Dvc::GetY_DOF_>);
static_assert(kReturn<Dvc, const Dvc::Enum_Z_DOF_&, &Dvc::GetZ_DOF_>);
static_assert(kReturn<Dvc, const Dvc::Enum_CHECK_ELGR_BLOCKING_&, &Dvc::GetCHECK_ELGR_BLOCKING_>);
static_assert(kReturn<Dvc, const Dvc::Enum_MID_PLANE_&, &Dvc::GetMID_PLANE_>);
static_assert(kReturn<Dvc, const CS_&, &Dvc::GetCS_>);
static_assert(kReturn<Dvc, const SCALING_CURVE_&, &Dvc::GetSCALING_CURVE_>);
static_assert(
  kReturn<Dvc, bool, &Dvc::HasNODE_GROUP_, &Dvc::HasCHECK_GROUP_, &Dvc::HasREFERENCE_GROUP_, &Dvc::HasELEMENT_GROUP_,
          &Dvc::HasX_POINT_, &Dvc::HasY_POINT_, &Dvc::HasZ_POINT_, &Dvc::HasX_DIRECTION_, &Dvc::HasY_DIRECTION_,
          &Dvc::HasZ_DIRECTION_, &Dvc::HasX_START_DIRECTION_, &Dvc::HasY_START_DIRECTION_, &Dvc::HasZ_START_DIRECTION_,
          &Dvc::HasANGLE_, &Dvc::HasRADIUS_, &Dvc::HasFILTER_TYPE_, &Dvc::HasMEMBERSIZE_TYPE_, &Dvc::HasCS_,
          &Dvc::HasX_DOF_, &Dvc::HasY_DOF_, &Dvc::HasZ_DOF_, &Dvc::HasSCALING_CURVE_>);

namespace
{

// The 1023 characters of the full command that fit into one record: the last line is cut within its label.
// What does not fit is
//   _: yes                          m_Z_DOF_: FREE
//   m_CS_: axis                     m_CHECK_ELGR_BLOCKING_: NEG
//   m_has_X_DOF_: yes               m_TOLERANCE_: 0.001
//   m_X_DOF_: FREE                  m_has_SCALING_CURVE_: yes
//   m_has_Y_DOF_: yes               m_SCALING_CURVE_: ramp
//   m_Y_DOF_: FIX                   m_MID_PLANE_: POINT
//   m_has_Z_DOF_: yes
const char* const kFullTextCut = "m_ID_NAME_: mirror\n"
                                 "m_PATCH_ID_: outer wall\n"
                                 "m_DVC_TYPE_: PLANE_SYMMETRY\n"
                                 "m_has_NODE_GROUP_: yes\n"
                                 "m_NODE_GROUP_: wall_nodes\n"
                                 "m_has_CHECK_GROUP_: yes\n"
                                 "m_CHECK_GROUP_: rim_nodes\n"
                                 "m_has_REFERENCE_GROUP_: yes\n"
                                 "m_REFERENCE_GROUP_: base_nodes\n"
                                 "m_has_ELEMENT_GROUP_: yes\n"
                                 "m_ELEMENT_GROUP_: duct\n"
                                 "m_has_X_POINT_: yes\n"
                                 "m_X_POINT_: 1.5\n"
                                 "m_has_Y_POINT_: yes\n"
                                 "m_Y_POINT_: 2.5\n"
                                 "m_has_Z_POINT_: yes\n"
                                 "m_Z_POINT_: 3.5\n"
                                 "m_has_X_DIRECTION_: yes\n"
                                 "m_X_DIRECTION_: 0.1\n"
                                 "m_has_Y_DIRECTION_: yes\n"
                                 "m_Y_DIRECTION_: 0.2\n"
                                 "m_has_Z_DIRECTION_: yes\n"
                                 "m_Z_DIRECTION_: 0.3\n"
                                 "m_has_X_START_DIRECTION_: yes\n"
                                 "m_X_START_DIRECTION_: -0.4\n"
                                 "m_has_Y_START_DIRECTION_: yes\n"
                                 "m_Y_START_DIRECTION_: -0.5\n"
                                 "m_has_Z_START_DIRECTION_: yes\n"
                                 "m_Z_START_DIRECTION_: -0.6\n"
                                 "m_has_ANGLE_: yes\n"
                                 "m_ANGLE_: 45.5\n"
                                 "m_FEASIBLE_START_: INFEASIBLE\n"
                                 "m_SAVE_: YES\n"
                                 "m_DUMPOPTVALUES_: NO\n"
                                 "m_has_RADIUS_: yes\n"
                                 "m_RADIUS_: 7.25\n"
                                 "m_has_FILTER_TYPE_: yes\n"
                                 "m_FILTER_TYPE_: SIGMUND\n"
                                 "m_has_MEMBERSIZE_TYPE_: yes\n"
                                 "m_MEMBERSIZE_TYPE_: MIN\n"
                                 "m_AGGREGATION_METHOD_: PMN_C\n"
                                 "m_AGGREGATION_PARAMETER_: 8.5\n"
                                 "m_AGGREGATION_NUM_CONSTRAINTS_: 12\n"
                                 "m_has_CS";

const char* const kSparseText = "m_ID_NAME_: bare\n"
                                "m_PATCH_ID_: outer wall\n"
                                "m_DVC_TYPE_: PLANE_SYMMETRY\n"
                                "m_has_NODE_GROUP_: no\n"
                                "m_has_CHECK_GROUP_: no\n"
                                "m_has_REFERENCE_GROUP_: no\n"
                                "m_has_ELEMENT_GROUP_: no\n"
                                "m_has_X_POINT_: no\n"
                                "m_has_Y_POINT_: no\n"
                                "m_has_Z_POINT_: no\n"
                                "m_has_X_DIRECTION_: no\n"
                                "m_has_Y_DIRECTION_: no\n"
                                "m_has_Z_DIRECTION_: no\n"
                                "m_has_X_START_DIRECTION_: no\n"
                                "m_has_Y_START_DIRECTION_: no\n"
                                "m_has_Z_START_DIRECTION_: no\n"
                                "m_has_ANGLE_: no\n"
                                "m_FEASIBLE_START_: INFEASIBLE\n"
                                "m_SAVE_: YES\n"
                                "m_DUMPOPTVALUES_: NO\n"
                                "m_has_RADIUS_: no\n"
                                "m_has_FILTER_TYPE_: no\n"
                                "m_has_MEMBERSIZE_TYPE_: no\n"
                                "m_AGGREGATION_METHOD_: PMN_C\n"
                                "m_AGGREGATION_PARAMETER_: 8.5\n"
                                "m_AGGREGATION_NUM_CONSTRAINTS_: 12\n"
                                "m_has_CS_: no\n"
                                "m_has_X_DOF_: no\n"
                                "m_has_Y_DOF_: no\n"
                                "m_has_Z_DOF_: no\n"
                                "m_CHECK_ELGR_BLOCKING_: NEG\n"
                                "m_TOLERANCE_: 0.001\n"
                                "m_has_SCALING_CURVE_: no\n"
                                "m_MID_PLANE_: POINT\n";

RecordingStorage StorageWithSparseConstraint(const std::string& id)
{
  RecordingStorage storage;
  auto& keys = storage.Command("DV_CONSTRAINT_", id);
  keys["PATCH_ID_"] = {std::string("outer wall")};
  keys["DVC_TYPE_"] = {80};
  keys["FEASIBLE_START_"] = {73};
  keys["SAVE_"] = {89};
  keys["DUMPOPTVALUES_"] = {78};
  keys["AGGREGATION_METHOD_"] = {98};
  keys["AGGREGATION_PARAMETER_"] = {8.5};
  keys["AGGREGATION_NUM_CONSTRAINTS_"] = {12};
  keys["CHECK_ELGR_BLOCKING_"] = {78};
  keys["TOLERANCE_"] = {0.001};
  keys["MID_PLANE_"] = {80};
  return storage;
}

/// The constraint "mirror" with one key more than it needs.
RecordingStorage StorageWithConstraintWith(const std::string& key, const StoredValue& value)
{
  RecordingStorage storage = StorageWithSparseConstraint("mirror");
  storage.Command("DV_CONSTRAINT_", "mirror")[key] = {value};
  return storage;
}

void AddLinks(RecordingStorage& storage, const std::string& id)
{
  auto& keys = storage.Command("DV_CONSTRAINT_", id);
  keys["CS_"] = {Ref{"axis"}};
  keys["SCALING_CURVE_"] = {Ref{"ramp"}};
}

/// What the links lead to, behind other commands of the same kinds.
void AddTargets(RecordingStorage& storage)
{
  storage.Command("CS_", "base");
  storage.Command("CS_", "axis");
  storage.Command("SCALING_CURVE_", "flat");
  storage.Command("SCALING_CURVE_", "ramp");
}

RecordingStorage StorageWithFullConstraint()
{
  RecordingStorage storage = StorageWithSparseConstraint("mirror");
  auto& keys = storage.Command("DV_CONSTRAINT_", "mirror");
  keys["NODE_GROUP_"] = {std::string("wall_nodes")};
  keys["CHECK_GROUP_"] = {std::string("rim_nodes")};
  keys["REFERENCE_GROUP_"] = {std::string("base_nodes")};
  keys["ELEMENT_GROUP_"] = {std::string("duct")};
  keys["X_POINT_"] = {1.5};
  keys["Y_POINT_"] = {2.5};
  keys["Z_POINT_"] = {3.5};
  keys["X_DIRECTION_"] = {0.1};
  keys["Y_DIRECTION_"] = {0.2};
  keys["Z_DIRECTION_"] = {0.3};
  keys["X_START_DIRECTION_"] = {-0.4};
  keys["Y_START_DIRECTION_"] = {-0.5};
  keys["Z_START_DIRECTION_"] = {-0.6};
  keys["ANGLE_"] = {45.5};
  keys["RADIUS_"] = {7.25};
  keys["FILTER_TYPE_"] = {83};
  keys["MEMBERSIZE_TYPE_"] = {73};
  keys["X_DOF_"] = {69};
  keys["Y_DOF_"] = {88};
  keys["Z_DOF_"] = {69};
  AddLinks(storage, "mirror");
  return storage;
}

RecordingStorage StorageWithFullConstraintAndTargets()
{
  RecordingStorage storage = StorageWithFullConstraint();
  AddTargets(storage);
  return storage;
}

DV_CONSTRAINT_ FullConstraint()
{
  return LoadedAlone<DV_CONSTRAINT_>(StorageWithFullConstraint(), "mirror");
}

/// A problem of the constraint "mirror".
Problem Unknown(const char* group, const char* parameter)
{
  return {group, parameter, "mirror", "DV_CONSTRAINT"};
}

/// The numbers of the kinds of name in which a constraint looks for the group under \p key.
std::vector<int> KindsForGroupUnder(const char* key)
{
  const RecordingStorage storage = StorageWithConstraintWith(key, std::string("skin"));
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  return KindsThatSatisfy(command, storage, "mirror", "skin");
}

void ExpectNoOptionalValues(const DV_CONSTRAINT_& command)
{
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_FALSE(command.HasCHECK_GROUP_());
  EXPECT_EQ(command.GetCHECK_GROUP_(), "");
  EXPECT_FALSE(command.HasREFERENCE_GROUP_());
  EXPECT_EQ(command.GetREFERENCE_GROUP_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
  EXPECT_FALSE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), 0.0);
  EXPECT_FALSE(command.HasY_POINT_());
  EXPECT_EQ(command.GetY_POINT_(), 0.0);
  EXPECT_FALSE(command.HasZ_POINT_());
  EXPECT_EQ(command.GetZ_POINT_(), 0.0);
  EXPECT_FALSE(command.HasX_DIRECTION_());
  EXPECT_EQ(command.GetX_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasZ_DIRECTION_());
  EXPECT_EQ(command.GetZ_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasX_START_DIRECTION_());
  EXPECT_EQ(command.GetX_START_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasY_START_DIRECTION_());
  EXPECT_EQ(command.GetY_START_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasZ_START_DIRECTION_());
  EXPECT_EQ(command.GetZ_START_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasANGLE_());
  EXPECT_EQ(command.GetANGLE_(), 0.0);
  EXPECT_FALSE(command.HasRADIUS_());
  EXPECT_EQ(command.GetRADIUS_(), 0.0);
  EXPECT_FALSE(command.HasFILTER_TYPE_());
  EXPECT_EQ(command.GetFILTER_TYPE_(), 0);
  EXPECT_FALSE(command.HasMEMBERSIZE_TYPE_());
  EXPECT_EQ(command.GetMEMBERSIZE_TYPE_(), 0);
  EXPECT_FALSE(command.HasX_DOF_());
  EXPECT_EQ(command.GetX_DOF_(), 0);
  EXPECT_FALSE(command.HasY_DOF_());
  EXPECT_EQ(command.GetY_DOF_(), 0);
  EXPECT_FALSE(command.HasZ_DOF_());
  EXPECT_EQ(command.GetZ_DOF_(), 0);
}

void ExpectNoLinks(const DV_CONSTRAINT_& command)
{
  EXPECT_FALSE(command.HasCS_());
  EXPECT_FALSE(command.HasSCALING_CURVE_());
}

void ExpectDefaults(const DV_CONSTRAINT_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetDVC_TYPE_(), 0);
  EXPECT_EQ(command.GetFEASIBLE_START_(), 0);
  EXPECT_EQ(command.GetSAVE_(), 0);
  EXPECT_EQ(command.GetDUMPOPTVALUES_(), 0);
  EXPECT_EQ(command.GetAGGREGATION_METHOD_(), 0);
  EXPECT_EQ(command.GetAGGREGATION_PARAMETER_(), 0.0);
  EXPECT_EQ(command.GetAGGREGATION_NUM_CONSTRAINTS_(), 0);
  EXPECT_EQ(command.GetCHECK_ELGR_BLOCKING_(), 0);
  EXPECT_EQ(command.GetTOLERANCE_(), 0.0);
  EXPECT_EQ(command.GetMID_PLANE_(), 0);
  ExpectNoOptionalValues(command);
  ExpectNoLinks(command);
}

void ExpectRequiredValues(const DV_CONSTRAINT_& command)
{
  EXPECT_EQ(command.GetPATCH_ID_(), "outer wall");
  EXPECT_EQ(command.GetDVC_TYPE_(), DV_CONSTRAINT_::DVC_TYPE_PLANE_SYMMETRY);
  EXPECT_EQ(command.GetFEASIBLE_START_(), DV_CONSTRAINT_::FEASIBLE_START_INFEASIBLE);
  EXPECT_EQ(command.GetSAVE_(), DV_CONSTRAINT_::SAVE_YES);
  EXPECT_EQ(command.GetDUMPOPTVALUES_(), DV_CONSTRAINT_::DUMPOPTVALUES_NO);
  EXPECT_EQ(command.GetAGGREGATION_METHOD_(), DV_CONSTRAINT_::AGGREGATION_METHOD_PMN_C);
  EXPECT_EQ(command.GetAGGREGATION_PARAMETER_(), 8.5);
  EXPECT_EQ(command.GetAGGREGATION_NUM_CONSTRAINTS_(), 12);
  EXPECT_EQ(command.GetCHECK_ELGR_BLOCKING_(), DV_CONSTRAINT_::CHECK_ELGR_BLOCKING_NEG);
  EXPECT_EQ(command.GetTOLERANCE_(), 0.001);
  EXPECT_EQ(command.GetMID_PLANE_(), DV_CONSTRAINT_::MID_PLANE_POINT);
}

void ExpectFullButTheLinks(const DV_CONSTRAINT_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "mirror");
  ExpectRequiredValues(command);
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_TRUE(command.HasCHECK_GROUP_());
  EXPECT_EQ(command.GetCHECK_GROUP_(), "rim_nodes");
  EXPECT_TRUE(command.HasREFERENCE_GROUP_());
  EXPECT_EQ(command.GetREFERENCE_GROUP_(), "base_nodes");
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_TRUE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), 1.5);
  EXPECT_TRUE(command.HasY_POINT_());
  EXPECT_EQ(command.GetY_POINT_(), 2.5);
  EXPECT_TRUE(command.HasZ_POINT_());
  EXPECT_EQ(command.GetZ_POINT_(), 3.5);
  EXPECT_TRUE(command.HasX_DIRECTION_());
  EXPECT_EQ(command.GetX_DIRECTION_(), 0.1);
  EXPECT_TRUE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.2);
  EXPECT_TRUE(command.HasZ_DIRECTION_());
  EXPECT_EQ(command.GetZ_DIRECTION_(), 0.3);
  EXPECT_TRUE(command.HasX_START_DIRECTION_());
  EXPECT_EQ(command.GetX_START_DIRECTION_(), -0.4);
  EXPECT_TRUE(command.HasY_START_DIRECTION_());
  EXPECT_EQ(command.GetY_START_DIRECTION_(), -0.5);
  EXPECT_TRUE(command.HasZ_START_DIRECTION_());
  EXPECT_EQ(command.GetZ_START_DIRECTION_(), -0.6);
  EXPECT_TRUE(command.HasANGLE_());
  EXPECT_EQ(command.GetANGLE_(), 45.5);
  EXPECT_TRUE(command.HasRADIUS_());
  EXPECT_EQ(command.GetRADIUS_(), 7.25);
  EXPECT_TRUE(command.HasFILTER_TYPE_());
  EXPECT_EQ(command.GetFILTER_TYPE_(), DV_CONSTRAINT_::FILTER_TYPE_SIGMUND);
  EXPECT_TRUE(command.HasMEMBERSIZE_TYPE_());
  EXPECT_EQ(command.GetMEMBERSIZE_TYPE_(), DV_CONSTRAINT_::MEMBERSIZE_TYPE_MIN);
  EXPECT_TRUE(command.HasX_DOF_());
  EXPECT_EQ(command.GetX_DOF_(), DV_CONSTRAINT_::X_DOF_FREE);
  EXPECT_TRUE(command.HasY_DOF_());
  EXPECT_EQ(command.GetY_DOF_(), DV_CONSTRAINT_::Y_DOF_FIX);
  EXPECT_TRUE(command.HasZ_DOF_());
  EXPECT_EQ(command.GetZ_DOF_(), DV_CONSTRAINT_::Z_DOF_FREE);
}

}  // namespace

TEST(DvConstraint, TellsItsNames)
{
  EXPECT_STREQ(DV_CONSTRAINT_::COMMAND_NAME, "DV_CONSTRAINT");
  EXPECT_EQ(DV_CONSTRAINT_::s_type, "DV_CONSTRAINT_");
  EXPECT_EQ(DV_CONSTRAINT_().GetType(), "DV_CONSTRAINT_");
  EXPECT_EQ(&DV_CONSTRAINT_().GetType(), &DV_CONSTRAINT_::s_type);
}

TEST(DvConstraint, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(DV_CONSTRAINT_());
}

TEST(DvConstraint, LoadsItsThirtyOneKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullConstraint();
  LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetValue(DV_CONSTRAINT_, mirror, PATCH_ID_, 1, vtmString, string)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, DVC_TYPE_, 1, vtmEnum)", "HasElement(DV_CONSTRAINT_, mirror, NODE_GROUP_)",
      "GetValue(DV_CONSTRAINT_, mirror, NODE_GROUP_, 1, vtmModelId, string)",
      "HasElement(DV_CONSTRAINT_, mirror, CHECK_GROUP_)",
      "GetValue(DV_CONSTRAINT_, mirror, CHECK_GROUP_, 1, vtmModelId, string)",
      "HasElement(DV_CONSTRAINT_, mirror, REFERENCE_GROUP_)",
      "GetValue(DV_CONSTRAINT_, mirror, REFERENCE_GROUP_, 1, vtmModelId, string)",
      "HasElement(DV_CONSTRAINT_, mirror, ELEMENT_GROUP_)",
      "GetValue(DV_CONSTRAINT_, mirror, ELEMENT_GROUP_, 1, vtmModelId, string)",
      "HasElement(DV_CONSTRAINT_, mirror, X_POINT_)",
      "GetValue(DV_CONSTRAINT_, mirror, X_POINT_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Y_POINT_)",
      "GetValue(DV_CONSTRAINT_, mirror, Y_POINT_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Z_POINT_)",
      "GetValue(DV_CONSTRAINT_, mirror, Z_POINT_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, X_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, X_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Y_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, Y_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Z_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, Z_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, X_START_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, X_START_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Y_START_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, Y_START_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, Z_START_DIRECTION_)",
      "GetValue(DV_CONSTRAINT_, mirror, Z_START_DIRECTION_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, ANGLE_)", "GetValue(DV_CONSTRAINT_, mirror, ANGLE_, 1, vtmDouble, double)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, FEASIBLE_START_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, SAVE_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, DUMPOPTVALUES_, 1, vtmEnum)", "HasElement(DV_CONSTRAINT_, mirror, RADIUS_)",
      "GetValue(DV_CONSTRAINT_, mirror, RADIUS_, 1, vtmDouble, double)",
      "HasElement(DV_CONSTRAINT_, mirror, FILTER_TYPE_)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, FILTER_TYPE_, 1, vtmEnum)",
      "HasElement(DV_CONSTRAINT_, mirror, MEMBERSIZE_TYPE_)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, MEMBERSIZE_TYPE_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, AGGREGATION_METHOD_, 1, vtmEnum)",
      "GetValue(DV_CONSTRAINT_, mirror, AGGREGATION_PARAMETER_, 1, vtmDouble, double)",
      "GetValue(DV_CONSTRAINT_, mirror, AGGREGATION_NUM_CONSTRAINTS_, 1, vtmInteger, "
      "int)",
      "HasElement(DV_CONSTRAINT_, mirror, X_DOF_)", "GetEnumValue(DV_CONSTRAINT_, mirror, X_DOF_, 1, vtmEnum)",
      "HasElement(DV_CONSTRAINT_, mirror, Y_DOF_)", "GetEnumValue(DV_CONSTRAINT_, mirror, Y_DOF_, 1, vtmEnum)",
      "HasElement(DV_CONSTRAINT_, mirror, Z_DOF_)", "GetEnumValue(DV_CONSTRAINT_, mirror, Z_DOF_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, CHECK_ELGR_BLOCKING_, 1, vtmEnum)",
      "GetValue(DV_CONSTRAINT_, mirror, TOLERANCE_, 1, vtmDouble, double)",
      "GetEnumValue(DV_CONSTRAINT_, mirror, MID_PLANE_, 1, vtmEnum)"));
}

TEST(DvConstraint, DoesNotReadOptionalKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithSparseConstraint("bare");
  LoadedAlone<DV_CONSTRAINT_>(storage, "bare");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetValue(DV_CONSTRAINT_, bare, PATCH_ID_, 1, vtmString, string)",
      "GetEnumValue(DV_CONSTRAINT_, bare, DVC_TYPE_, 1, vtmEnum)", "HasElement(DV_CONSTRAINT_, bare, NODE_GROUP_)",
      "HasElement(DV_CONSTRAINT_, bare, CHECK_GROUP_)", "HasElement(DV_CONSTRAINT_, bare, REFERENCE_GROUP_)",
      "HasElement(DV_CONSTRAINT_, bare, ELEMENT_GROUP_)", "HasElement(DV_CONSTRAINT_, bare, X_POINT_)",
      "HasElement(DV_CONSTRAINT_, bare, Y_POINT_)", "HasElement(DV_CONSTRAINT_, bare, Z_POINT_)",
      "HasElement(DV_CONSTRAINT_, bare, X_DIRECTION_)", "HasElement(DV_CONSTRAINT_, bare, Y_DIRECTION_)",
      "HasElement(DV_CONSTRAINT_, bare, Z_DIRECTION_)", "HasElement(DV_CONSTRAINT_, bare, X_START_DIRECTION_)",
      "HasElement(DV_CONSTRAINT_, bare, Y_START_DIRECTION_)", "HasElement(DV_CONSTRAINT_, bare, Z_START_DIRECTION_)",
      "HasElement(DV_CONSTRAINT_, bare, ANGLE_)", "GetEnumValue(DV_CONSTRAINT_, bare, FEASIBLE_START_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, bare, SAVE_, 1, vtmEnum)",
      "GetEnumValue(DV_CONSTRAINT_, bare, DUMPOPTVALUES_, 1, vtmEnum)", "HasElement(DV_CONSTRAINT_, bare, RADIUS_)",
      "HasElement(DV_CONSTRAINT_, bare, FILTER_TYPE_)", "HasElement(DV_CONSTRAINT_, bare, MEMBERSIZE_TYPE_)",
      "GetEnumValue(DV_CONSTRAINT_, bare, AGGREGATION_METHOD_, 1, vtmEnum)",
      "GetValue(DV_CONSTRAINT_, bare, AGGREGATION_PARAMETER_, 1, vtmDouble, double)",
      "GetValue(DV_CONSTRAINT_, bare, AGGREGATION_NUM_CONSTRAINTS_, 1, vtmInteger, int)",
      "HasElement(DV_CONSTRAINT_, bare, X_DOF_)", "HasElement(DV_CONSTRAINT_, bare, Y_DOF_)",
      "HasElement(DV_CONSTRAINT_, bare, Z_DOF_)",
      "GetEnumValue(DV_CONSTRAINT_, bare, CHECK_ELGR_BLOCKING_, 1, vtmEnum)",
      "GetValue(DV_CONSTRAINT_, bare, TOLERANCE_, 1, vtmDouble, double)",
      "GetEnumValue(DV_CONSTRAINT_, bare, MID_PLANE_, 1, vtmEnum)"));
}

TEST(DvConstraint, GivesWhatItLoadedAndHasNoReferencesYet)
{
  const DV_CONSTRAINT_ command = FullConstraint();
  ExpectFullButTheLinks(command);
  ExpectNoLinks(command);
}

TEST(DvConstraint, LoadsWithoutAnyOptionalKeyAndPrintsNoForAllFlags)
{
  const RecordingStorage storage = StorageWithSparseConstraint("bare");
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectRequiredValues(command);
  ExpectNoOptionalValues(command);
  ExpectNoLinks(command);
  EXPECT_EQ(LogRecordOf(command).text, kSparseText);
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
}

TEST(DvConstraint, TakesTheCoordinatesOfPointAndDirectionsOneByOne)
{
  RecordingStorage storage = StorageWithConstraintWith("X_POINT_", 1.5);
  storage.Command("DV_CONSTRAINT_", "mirror")["Y_DIRECTION_"] = {0.2};
  storage.Command("DV_CONSTRAINT_", "mirror")["Z_START_DIRECTION_"] = {-0.6};
  const DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  EXPECT_TRUE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), 1.5);
  EXPECT_FALSE(command.HasY_POINT_());
  EXPECT_FALSE(command.HasZ_POINT_());
  EXPECT_FALSE(command.HasX_DIRECTION_());
  EXPECT_TRUE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.2);
  EXPECT_FALSE(command.HasZ_DIRECTION_());
  EXPECT_FALSE(command.HasX_START_DIRECTION_());
  EXPECT_FALSE(command.HasY_START_DIRECTION_());
  EXPECT_TRUE(command.HasZ_START_DIRECTION_());
  EXPECT_EQ(command.GetZ_START_DIRECTION_(), -0.6);
}

TEST(DvConstraint, TakesItsDegreesOfFreedomOneByOne)
{
  const auto x_only = LoadedAlone<DV_CONSTRAINT_>(StorageWithConstraintWith("X_DOF_", 88), "mirror");
  EXPECT_TRUE(x_only.HasX_DOF_());
  EXPECT_EQ(x_only.GetX_DOF_(), DV_CONSTRAINT_::X_DOF_FIX);
  EXPECT_FALSE(x_only.HasY_DOF_());
  EXPECT_EQ(x_only.GetY_DOF_(), 0);
  EXPECT_FALSE(x_only.HasZ_DOF_());
  EXPECT_EQ(x_only.GetZ_DOF_(), 0);

  const auto y_only = LoadedAlone<DV_CONSTRAINT_>(StorageWithConstraintWith("Y_DOF_", 69), "mirror");
  EXPECT_FALSE(y_only.HasX_DOF_());
  EXPECT_EQ(y_only.GetX_DOF_(), 0);
  EXPECT_TRUE(y_only.HasY_DOF_());
  EXPECT_EQ(y_only.GetY_DOF_(), DV_CONSTRAINT_::Y_DOF_FREE);
  EXPECT_FALSE(y_only.HasZ_DOF_());
  EXPECT_EQ(y_only.GetZ_DOF_(), 0);

  const auto z_only = LoadedAlone<DV_CONSTRAINT_>(StorageWithConstraintWith("Z_DOF_", 88), "mirror");
  EXPECT_FALSE(z_only.HasX_DOF_());
  EXPECT_EQ(z_only.GetX_DOF_(), 0);
  EXPECT_FALSE(z_only.HasY_DOF_());
  EXPECT_EQ(z_only.GetY_DOF_(), 0);
  EXPECT_TRUE(z_only.HasZ_DOF_());
  EXPECT_EQ(z_only.GetZ_DOF_(), DV_CONSTRAINT_::Z_DOF_FIX);
}

TEST(DvConstraint, KeepsValuesThatMakeNoSense)
{
  RecordingStorage storage = StorageWithConstraintWith("AGGREGATION_NUM_CONSTRAINTS_", -3);
  storage.Command("DV_CONSTRAINT_", "mirror")["TOLERANCE_"] = {0.0};
  storage.Command("DV_CONSTRAINT_", "mirror")["RADIUS_"] = {-1.0};
  const DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  EXPECT_EQ(command.GetAGGREGATION_NUM_CONSTRAINTS_(), -3);
  EXPECT_EQ(command.GetTOLERANCE_(), 0.0);
  EXPECT_EQ(command.GetRADIUS_(), -1.0);
}

TEST(DvConstraint, TakesKeysThatMeanNothingForItsType)
{
  RecordingStorage storage = StorageWithConstraintWith("MEMBERSIZE_TYPE_", 65);
  storage.Command("DV_CONSTRAINT_", "mirror")["DVC_TYPE_"] = {68};
  const DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  EXPECT_EQ(command.GetDVC_TYPE_(), DV_CONSTRAINT_::DVC_TYPE_DUMMY);
  EXPECT_EQ(command.GetMEMBERSIZE_TYPE_(), DV_CONSTRAINT_::MEMBERSIZE_TYPE_MAX);
}

TEST(DvConstraint, PrintsATypeThatIsNoEnumeratorAsInvalid)
{
  const auto command = LoadedAlone<DV_CONSTRAINT_>(StorageWithConstraintWith("DVC_TYPE_", 72), "mirror");
  EXPECT_EQ(command.GetDVC_TYPE_(), 72);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_PATCH_ID_: outer wall\nm_DVC_TYPE_: INVALID\nm_has_"));
}

TEST(DvConstraint, KeepsEarlierOptionalValuesInASecondLoadWithoutThem)
{
  DV_CONSTRAINT_ command = FullConstraint();
  command.Load(StorageWithSparseConstraint("bare"), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_FALSE(command.HasANGLE_());
  EXPECT_EQ(command.GetANGLE_(), 45.5);
  EXPECT_FALSE(command.HasY_DOF_());
  EXPECT_EQ(command.GetY_DOF_(), DV_CONSTRAINT_::Y_DOF_FIX);
}

TEST(DvConstraint, KeepsTheDefaultsOfAbsentKeysOnAStorageThatLeavesOutputsAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("DV_CONSTRAINT_", "");
  ExpectDefaults(LoadedAlone<DV_CONSTRAINT_>(storage, ""));
}

TEST(DvConstraint, DependsOnItsRequiredKeysOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithFullConstraint();
  storage.Command("DV_CONSTRAINT_", "mirror").erase("AGGREGATION_METHOD_");
  DV_CONSTRAINT_ command;
  EXPECT_THROW(command.Load(storage, "mirror"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "mirror");
  EXPECT_EQ(command.GetMEMBERSIZE_TYPE_(), DV_CONSTRAINT_::MEMBERSIZE_TYPE_MIN);
  EXPECT_EQ(command.GetAGGREGATION_METHOD_(), 0);
  EXPECT_EQ(command.GetAGGREGATION_PARAMETER_(), 0.0);
  EXPECT_FALSE(command.HasX_DOF_());
  EXPECT_EQ(command.GetMID_PLANE_(), 0);
}

TEST(DvConstraint, NamesItsSeventeenTypes)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_DVC_TYPE_>(
    {{DV_CONSTRAINT_::DVC_TYPE_STAMP, 65, "STAMP"},
     {DV_CONSTRAINT_::DVC_TYPE_LSF_INIT, 66, "LSF_INIT"},
     {DV_CONSTRAINT_::DVC_TYPE_CYCLIC_SYMMETRY, 67, "CYCLIC_SYMMETRY"},
     {DV_CONSTRAINT_::DVC_TYPE_DUMMY, 68, "DUMMY"},
     {DV_CONSTRAINT_::DVC_TYPE_DEMOLD, 69, "DEMOLD"},
     {DV_CONSTRAINT_::DVC_TYPE_FILE, 70, "FILE"},
     {DV_CONSTRAINT_::DVC_TYPE_SCALING_CURVE, 71, "SCALING_CURVE"},
     {DV_CONSTRAINT_::DVC_TYPE_FILTER, 73, "FILTER"},
     {DV_CONSTRAINT_::DVC_TYPE_PLANE_LINK, 76, "PLANE_LINK"},
     {DV_CONSTRAINT_::DVC_TYPE_MEMBERSIZE, 77, "MEMBERSIZE"},
     {DV_CONSTRAINT_::DVC_TYPE_LSF_SCALING, 78, "LSF_SCALING"},
     {DV_CONSTRAINT_::DVC_TYPE_OPT_DIR, 79, "OPT_DIR"},
     {DV_CONSTRAINT_::DVC_TYPE_PLANE_SYMMETRY, 80, "PLANE_SYMMETRY"},
     {DV_CONSTRAINT_::DVC_TYPE_SURF_DIR_SMOOTH, 83, "SURF_DIR_SMOOTH"},
     {DV_CONSTRAINT_::DVC_TYPE_TRANSITION, 84, "TRANSITION"},
     {DV_CONSTRAINT_::DVC_TYPE_LEVELSET, 86, "LEVELSET"},
     {DV_CONSTRAINT_::DVC_TYPE_CYCLIC_PLANE_SYMMETRY, 89, "CYCLIC_PLANE_SYMMETRY"}});
}

TEST(DvConstraint, NamesItsFeasibleStarts)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_FEASIBLE_START_>(
    {{DV_CONSTRAINT_::FEASIBLE_START_FEASIBLE, 70, "FEASIBLE"},
     {DV_CONSTRAINT_::FEASIBLE_START_INFEASIBLE, 73, "INFEASIBLE"}});
}

TEST(DvConstraint, NamesYesAndNoOfItsTwoSwitches)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_SAVE_>(
    {{DV_CONSTRAINT_::SAVE_NO, 78, "NO"}, {DV_CONSTRAINT_::SAVE_YES, 89, "YES"}});
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_DUMPOPTVALUES_>(
    {{DV_CONSTRAINT_::DUMPOPTVALUES_NO, 78, "NO"}, {DV_CONSTRAINT_::DUMPOPTVALUES_YES, 89, "YES"}});
}

TEST(DvConstraint, TakesTheLettersYAndNForYesAndNoAndPreParamTAndF)
{
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_SAVE_>('Y')), "YES");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_SAVE_>('N')), "NO");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_SAVE_>('T')), "INVALID");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_SAVE_>('F')), "INVALID");
  EXPECT_EQ(PRE_PARAM_::GetEnumName(static_cast<PRE_PARAM_::Enum_REF_VRML_>('T')), "YES");
  EXPECT_EQ(PRE_PARAM_::GetEnumName(static_cast<PRE_PARAM_::Enum_REF_VRML_>('F')), "NO");
  EXPECT_EQ(PRE_PARAM_::GetEnumName(static_cast<PRE_PARAM_::Enum_REF_VRML_>('Y')), "INVALID");
  EXPECT_EQ(PRE_PARAM_::GetEnumName(static_cast<PRE_PARAM_::Enum_REF_VRML_>('N')), "INVALID");
}

TEST(DvConstraint, NamesItsFilterTypes)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_FILTER_TYPE_>(
    {{DV_CONSTRAINT_::FILTER_TYPE_PROB_DENS, 80, "PROB_DENS"}, {DV_CONSTRAINT_::FILTER_TYPE_SIGMUND, 83, "SIGMUND"}});
}

TEST(DvConstraint, NamesItsMemberSizeTypes)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_MEMBERSIZE_TYPE_>(
    {{DV_CONSTRAINT_::MEMBERSIZE_TYPE_MAX, 65, "MAX"}, {DV_CONSTRAINT_::MEMBERSIZE_TYPE_MIN, 73, "MIN"}});
}

TEST(DvConstraint, NamesItsAggregationMethodsOfWhichTwoHaveSmallLetters)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_AGGREGATION_METHOD_>(
    {{DV_CONSTRAINT_::AGGREGATION_METHOD_PN, 65, "PN"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_PMN, 66, "PMN"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_KS, 67, "KS"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_SOFTMAX, 68, "SOFTMAX"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_NONE, 78, "NONE"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_PN_C, 97, "PN_C"},
     {DV_CONSTRAINT_::AGGREGATION_METHOD_PMN_C, 98, "PMN_C"}});
}

TEST(DvConstraint, NamesTheStatesOfItsThreeDegreesOfFreedom)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_X_DOF_>(
    {{DV_CONSTRAINT_::X_DOF_FREE, 69, "FREE"}, {DV_CONSTRAINT_::X_DOF_FIX, 88, "FIX"}});
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_Y_DOF_>(
    {{DV_CONSTRAINT_::Y_DOF_FREE, 69, "FREE"}, {DV_CONSTRAINT_::Y_DOF_FIX, 88, "FIX"}});
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_Z_DOF_>(
    {{DV_CONSTRAINT_::Z_DOF_FREE, 69, "FREE"}, {DV_CONSTRAINT_::Z_DOF_FIX, 88, "FIX"}});
}

TEST(DvConstraint, ReadsTheLetterEByTheEnumerationItStandsIn)
{
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_X_DOF_>('E')), "FREE");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_Y_DOF_>('E')), "FREE");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_Z_DOF_>('E')), "FREE");
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_DVC_TYPE_>('E')), "DEMOLD");
}

TEST(DvConstraint, NamesTheSidesThatItsElementGroupBlocks)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_CHECK_ELGR_BLOCKING_>(
    {{DV_CONSTRAINT_::CHECK_ELGR_BLOCKING_BOTH, 66, "BOTH"},
     {DV_CONSTRAINT_::CHECK_ELGR_BLOCKING_NEG, 78, "NEG"},
     {DV_CONSTRAINT_::CHECK_ELGR_BLOCKING_POS, 80, "POS"}});
}

TEST(DvConstraint, NamesItsMidPlanesOfWhichNoneHasAnUnderscore)
{
  ExpectEnumerators<DV_CONSTRAINT_, DV_CONSTRAINT_::Enum_MID_PLANE_>(
    {{DV_CONSTRAINT_::MID_PLANE_POINT, 80, "POINT"}, {DV_CONSTRAINT_::MID_PLANE_NONE, 95, "NONE"}});
  EXPECT_EQ(DV_CONSTRAINT_::GetEnumName(static_cast<DV_CONSTRAINT_::Enum_MID_PLANE_>('_')), "NONE");
}

TEST(DvConstraint, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(DV_CONSTRAINT_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3252);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|DV_CONSTRAINT_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_DVC_TYPE_: INVALID\n"
                         "m_has_NODE_GROUP_: no\n"
                         "m_has_CHECK_GROUP_: no\n"
                         "m_has_REFERENCE_GROUP_: no\n"
                         "m_has_ELEMENT_GROUP_: no\n"
                         "m_has_X_POINT_: no\n"
                         "m_has_Y_POINT_: no\n"
                         "m_has_Z_POINT_: no\n"
                         "m_has_X_DIRECTION_: no\n"
                         "m_has_Y_DIRECTION_: no\n"
                         "m_has_Z_DIRECTION_: no\n"
                         "m_has_X_START_DIRECTION_: no\n"
                         "m_has_Y_START_DIRECTION_: no\n"
                         "m_has_Z_START_DIRECTION_: no\n"
                         "m_has_ANGLE_: no\n"
                         "m_FEASIBLE_START_: INVALID\n"
                         "m_SAVE_: INVALID\n"
                         "m_DUMPOPTVALUES_: INVALID\n"
                         "m_has_RADIUS_: no\n"
                         "m_has_FILTER_TYPE_: no\n"
                         "m_has_MEMBERSIZE_TYPE_: no\n"
                         "m_AGGREGATION_METHOD_: INVALID\n"
                         "m_AGGREGATION_PARAMETER_: 0\n"
                         "m_AGGREGATION_NUM_CONSTRAINTS_: 0\n"
                         "m_has_CS_: no\n"
                         "m_has_X_DOF_: no\n"
                         "m_has_Y_DOF_: no\n"
                         "m_has_Z_DOF_: no\n"
                         "m_CHECK_ELGR_BLOCKING_: INVALID\n"
                         "m_TOLERANCE_: 0\n"
                         "m_has_SCALING_CURVE_: no\n"
                         "m_MID_PLANE_: INVALID\n");
}

TEST(DvConstraint, PrintsJustTheFirst1023CharactersOfAFullCommand)
{
  LinkedJob job(StorageWithFullConstraintAndTargets());
  const KLV_LogRecord record = LogRecordOf(job->GetDV_CONSTRAINT_("mirror"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3252 [%T|%n|%P|OrvelCommands|DV_CONSTRAINT_] ");
  EXPECT_EQ(record.text.size(), 1023U);
  EXPECT_EQ(record.text, kFullTextCut);
}

TEST(DvConstraint, PrintsItsLastLinesWhereTheEarlierOnesAreFew)
{
  RecordingStorage storage = StorageWithConstraintWith("X_DOF_", 69);
  auto& keys = storage.Command("DV_CONSTRAINT_", "mirror");
  keys["Y_DOF_"] = {88};
  keys["Z_DOF_"] = {88};
  keys["CHECK_ELGR_BLOCKING_"] = {66};
  keys["TOLERANCE_"] = {0.25};
  keys["MID_PLANE_"] = {95};
  AddLinks(storage, "mirror");
  AddTargets(storage);
  LinkedJob job(storage);
  EXPECT_THAT(LogRecordOf(job->GetDV_CONSTRAINT_("mirror")).text, EndsWith("m_has_RADIUS_: no\n"
                                                                           "m_has_FILTER_TYPE_: no\n"
                                                                           "m_has_MEMBERSIZE_TYPE_: no\n"
                                                                           "m_AGGREGATION_METHOD_: PMN_C\n"
                                                                           "m_AGGREGATION_PARAMETER_: 8.5\n"
                                                                           "m_AGGREGATION_NUM_CONSTRAINTS_: 12\n"
                                                                           "m_has_CS_: yes\n"
                                                                           "m_CS_: axis\n"
                                                                           "m_has_X_DOF_: yes\n"
                                                                           "m_X_DOF_: FREE\n"
                                                                           "m_has_Y_DOF_: yes\n"
                                                                           "m_Y_DOF_: FIX\n"
                                                                           "m_has_Z_DOF_: yes\n"
                                                                           "m_Z_DOF_: FIX\n"
                                                                           "m_CHECK_ELGR_BLOCKING_: BOTH\n"
                                                                           "m_TOLERANCE_: 0.25\n"
                                                                           "m_has_SCALING_CURVE_: yes\n"
                                                                           "m_SCALING_CURVE_: ramp\n"
                                                                           "m_MID_PLANE_: NONE\n"));
}

TEST(DvConstraint, PrintsNoReferencesBeforeTheyAreResolved)
{
  RecordingStorage storage = StorageWithSparseConstraint("bare");
  AddLinks(storage, "bare");
  EXPECT_EQ(LogRecordOf(LoadedAlone<DV_CONSTRAINT_>(storage, "bare")).text, kSparseText);
}

TEST(DvConstraint, PrintsAPercentSignInItsPatchAsAConversion)
{
  const RecordingStorage storage = StorageWithConstraintWith("PATCH_ID_", std::string("wall %d at 5%%"));
  const DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  EXPECT_EQ(command.GetPATCH_ID_(), "wall %d at 5%%");
  EXPECT_THAT(LogRecordOf(command).text,
              StartsWith("m_ID_NAME_: mirror\nm_PATCH_ID_: wall 0 at 5%\nm_DVC_TYPE_: PLANE_SYMMETRY\n"));
}

TEST(DvConstraint, IsLinkedByTheNamesInItsReferenceKeys)
{
  LinkedJob job(StorageWithFullConstraintAndTargets());
  const DV_CONSTRAINT_& command = job->GetDV_CONSTRAINT_("mirror");
  ExpectFullButTheLinks(command);
  EXPECT_TRUE(command.HasCS_());
  EXPECT_EQ(&command.GetCS_(), &job->GetCS_("axis"));
  EXPECT_EQ(command.GetCS_().GetID_NAME_(), "axis");
  EXPECT_TRUE(command.HasSCALING_CURVE_());
  EXPECT_EQ(&command.GetSCALING_CURVE_(), &job->GetSCALING_CURVE_("ramp"));
  EXPECT_EQ(command.GetSCALING_CURVE_().GetID_NAME_(), "ramp");
}

TEST(DvConstraint, MayHaveOneReferenceWithoutTheOther)
{
  RecordingStorage storage = StorageWithConstraintWith("SCALING_CURVE_", Ref{"ramp"});
  AddTargets(storage);
  LinkedJob job(storage);
  const DV_CONSTRAINT_& command = job->GetDV_CONSTRAINT_("mirror");
  EXPECT_FALSE(command.HasCS_());
  EXPECT_TRUE(command.HasSCALING_CURVE_());
  EXPECT_EQ(&command.GetSCALING_CURVE_(), &job->GetSCALING_CURVE_("ramp"));
}

TEST(DvConstraint, AsksForItsReferencesInOrderWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithFullConstraintAndTargets());
  std::vector<std::string> calls = job.CallsAbout("DV_CONSTRAINT_", "mirror");
  ASSERT_EQ(calls.size(), 55U);
  calls.erase(calls.begin(), calls.begin() + 51);
  EXPECT_THAT(calls,
              ElementsAre("HasElement(DV_CONSTRAINT_, mirror, CS_)", "GetReference(DV_CONSTRAINT_, mirror, CS_, 1)",
                          "HasElement(DV_CONSTRAINT_, mirror, SCALING_CURVE_)",
                          "GetReference(DV_CONSTRAINT_, mirror, SCALING_CURVE_, 1)"));
}

TEST(DvConstraint, DoesNotReadReferencesThatAreAbsent)
{
  const LinkedJob job(StorageWithSparseConstraint("bare"));
  std::vector<std::string> calls = job.CallsAbout("DV_CONSTRAINT_", "bare");
  ASSERT_EQ(calls.size(), 33U);
  calls.erase(calls.begin(), calls.begin() + 31);
  EXPECT_THAT(calls,
              ElementsAre("HasElement(DV_CONSTRAINT_, bare, CS_)", "HasElement(DV_CONSTRAINT_, bare, SCALING_CURVE_)"));
}

TEST(DvConstraint, EndsTheLoadOfAJobWhenAReferenceNamesNoCommand)
{
  RecordingStorage storage = StorageWithFullConstraintAndTargets();
  storage.Command("DV_CONSTRAINT_", "mirror")["CS_"] = {Ref{"missing"}};
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID missing of the parameter file command CS_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));

  storage.Command("DV_CONSTRAINT_", "mirror")["CS_"] = {Ref{"axis"}};
  storage.Command("DV_CONSTRAINT_", "mirror")["SCALING_CURVE_"] = {Ref{"absent"}};
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID absent of the parameter file command SCALING_CURVE_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(DvConstraint, ChecksItsThreeNodeGroupsAmongTheNodeGroupsAndNowhereElse)
{
  EXPECT_THAT(KindsForGroupUnder("NODE_GROUP_"), ElementsAre(7));
  EXPECT_THAT(KindsForGroupUnder("CHECK_GROUP_"), ElementsAre(7));
  EXPECT_THAT(KindsForGroupUnder("REFERENCE_GROUP_"), ElementsAre(7));
}

TEST(DvConstraint, ChecksItsElementGroupAmongTheElementGroups)
{
  EXPECT_THAT(KindsForGroupUnder("ELEMENT_GROUP_"), ElementsAre(9));
}

TEST(DvConstraint, DoesNotCheckItsPatch)
{
  const RecordingStorage storage = StorageWithSparseConstraint("bare");
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "bare");
  EXPECT_EQ(command.GetPATCH_ID_(), "outer wall");
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
}

TEST(DvConstraint, FindsAllUnknownGroupsInTheOrderOfItsKeys)
{
  RecordingStorage storage = StorageWithFullConstraint();
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  storage.ForgetCalls();
  OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "mirror"),
              ElementsAre(Unknown("wall_nodes", "NODE_GROUP"), Unknown("rim_nodes", "CHECK_GROUP"),
                          Unknown("base_nodes", "REFERENCE_GROUP"), Unknown("duct", "ELEMENT_GROUP")));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(DV_CONSTRAINT_, mirror, NODE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DV_CONSTRAINT_, mirror, CHECK_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DV_CONSTRAINT_, mirror, REFERENCE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DV_CONSTRAINT_, mirror, ELEMENT_GROUP_, 1, vtmModelId, string)"));
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("rim_nodes"), 0U);
}

TEST(DvConstraint, TakesAnElementGroupInTheCheckGroupForAnError)
{
  const RecordingStorage storage = StorageWithConstraintWith("CHECK_GROUP_", std::string("duct"));
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "mirror"), ElementsAre(Unknown("duct", "CHECK_GROUP")));
}

TEST(DvConstraint, GoesOnToTheNextGroupAfterAnUnknownOne)
{
  const RecordingStorage storage = StorageWithFullConstraint();
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"rim_nodes"});
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "mirror"),
              ElementsAre(Unknown("wall_nodes", "NODE_GROUP"), Unknown("base_nodes", "REFERENCE_GROUP")));
}

TEST(DvConstraint, TellsTheMapsWhichOfTheirIdsItUses)
{
  const RecordingStorage storage = StorageWithFullConstraint();
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"wall_nodes", "rim_nodes", "base_nodes", "duct"});
  database.Add(KLV_IdType::element_group, {"duct", "rim_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "mirror"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("wall_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("rim_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("base_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("duct"), 0U);
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("duct"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("rim_nodes"), 0U);
}

TEST(DvConstraint, CountsALookUpForEachKeyThatNamesAGroup)
{
  RecordingStorage storage = StorageWithConstraintWith("NODE_GROUP_", std::string("skin"));
  storage.Command("DV_CONSTRAINT_", "mirror")["REFERENCE_GROUP_"] = {std::string("skin")};
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"skin"});
  EXPECT_THAT(ProblemsIn(command, storage, "mirror"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("skin"), 2U);
}

TEST(DvConstraint, ChecksWhatTheStorageHoldsNowUnderTheNameGivenAndReportsItsOwnId)
{
  const RecordingStorage loaded = StorageWithConstraintWith("CHECK_GROUP_", std::string("then"));
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(loaded, "mirror");
  RecordingStorage storage;
  storage.Command("DV_CONSTRAINT_", "renamed")["CHECK_GROUP_"] = {std::string("now")};
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"), ElementsAre(Unknown("now", "CHECK_GROUP")));
  EXPECT_EQ(command.GetCHECK_GROUP_(), "then");
}

TEST(DvConstraint, SaysWhatIsWrongWithAGroup)
{
  const RecordingStorage storage = StorageWithConstraintWith("REFERENCE_GROUP_", std::string("skin"));
  DV_CONSTRAINT_ command = LoadedAlone<DV_CONSTRAINT_>(storage, "mirror");
  const OpenDatabase database;
  EXPECT_THAT(MessagesIn(command, storage, "mirror"),
              ElementsAre("Referenced ID is not found\n"
                          "  Value \"skin\" of parameter \"REFERENCE_GROUP\" is erroneous\n"
                          "  In \"DV_CONSTRAINT\" command with ID_NAME \"mirror\""));
}

TEST(DvConstraint, RefersToTheSameCommandsInACopy)
{
  LinkedJob job(StorageWithFullConstraintAndTargets());
  DV_CONSTRAINT_& original = job->GetDV_CONSTRAINT_("mirror");
  const DV_CONSTRAINT_ copy(original);
  original = DV_CONSTRAINT_();
  ExpectFullButTheLinks(copy);
  EXPECT_TRUE(copy.HasCS_());
  EXPECT_EQ(&copy.GetCS_(), &job->GetCS_("axis"));
  EXPECT_TRUE(copy.HasSCALING_CURVE_());
  EXPECT_EQ(&copy.GetSCALING_CURVE_(), &job->GetSCALING_CURVE_("ramp"));
}

TEST(DvConstraint, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithFullConstraintAndTargets());
  const DV_CONSTRAINT_& full = job->GetDV_CONSTRAINT_("mirror");
  DV_CONSTRAINT_ command;
  static_assert(std::is_same_v<DV_CONSTRAINT_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFullButTheLinks(command);
  EXPECT_EQ(&command.GetCS_(), &full.GetCS_());
  EXPECT_EQ(&command.GetSCALING_CURVE_(), &full.GetSCALING_CURVE_());
  command = DV_CONSTRAINT_();
  ExpectDefaults(command);
}

TEST(DvConstraint, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithFullConstraintAndTargets());
  DV_CONSTRAINT_& command = job->GetDV_CONSTRAINT_("mirror");
  const DV_CONSTRAINT_& same = command;
  command = same;
  ExpectFullButTheLinks(command);
  EXPECT_EQ(&command.GetCS_(), &job->GetCS_("axis"));
  EXPECT_EQ(&command.GetSCALING_CURVE_(), &job->GetSCALING_CURVE_("ramp"));
}
