#include "OrvelCommands/commands/smooth_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetITERATION_()), const std::vector<int>&>);
static_assert(
  std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetFORMAT_()), const std::vector<SMOOTH_::Enum_FORMAT_>&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetFORMAT_(1)), const SMOOTH_::Enum_FORMAT_&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetSLICE_X_()), const std::vector<double>&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetSLICE_X_(1)), const double&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetND_GROUP_()), const std::string&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().GetSURFACE_GROUP_(1)), const std::string&>);
static_assert(std::is_same_v<decltype(std::declval<const SMOOTH_&>().NumSURFACE_GROUP_()), std::uint64_t>);

namespace
{

void AddSparseCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("SMOOTH_", "job");
  keys["PATCH_ID_"] = {std::string("rib")};
  keys["TASK_"] = {73};
  keys["ALL_ITERATIONS_"] = {70};
  keys["ISO_VALUE_"] = {0.3};
  keys["TARGET_VOLUME_"] = {1.5};
  keys["RESULT_FILE_"] = {std::string("rib.onf")};
  keys["VTM_RESULT_"] = {70};
  keys["STL_GROUPS_"] = {70};
  keys["OUTPUT_SURFACE_"] = {78};
  keys["VTF_ORGMODEL_"] = {70};
  keys["IGES_UNIT_"] = {66};
  keys["SLICES_"] = {70};
  keys["SLICE_PRIMARY_"] = {70};
  keys["SLICE_NUMBER_"] = {12};
  keys["SLICE_DISTANCE_"] = {0.75};
  keys["SLICE_INTERSECTION_"] = {70};
  keys["SLICE_REDUCTION_"] = {70};
  keys["SLICE_RED_ANGLE_"] = {15.0};
  keys["SLICE_OFFSET_"] = {84};
  keys["SLICE_REF_QUANT_"] = {4};
  keys["SLICE_REF_FACTOR_"] = {0.5};
  keys["SLICE_FILTER_CURVES_"] = {70};
  keys["SLICE_FORMAT_"] = {76};
  keys["BORDER_"] = {84};
  keys["BORDER_FORMAT_"] = {88};
  keys["GROUP_FILE_"] = {std::string("groups.txt")};
  keys["SMOOTH_CYCLES_"] = {25};
  keys["NO_SORT_"] = {84};
  keys["MIN_DENS_WALL_"] = {0.11};
  keys["REDUCTION_"] = {70};
  keys["REDUCTION_RATE_"] = {0.22};
  keys["REDUCTION_ANGLE_"] = {33.0};
  keys["MIN_ANGLE_"] = {44.0};
  keys["MIN_FACE_ANGLE_"] = {55.0};
  keys["SELF_INTERSECTION_"] = {82};
  keys["MIXED_MESH_"] = {84};
  keys["EXCLUDE_LOADED_"] = {70};
  keys["ISO_SEQUENCE_"] = {67};
  keys["O_SURF_SMOOTHING_"] = {83};
  keys["RESULT_FILTERING_"] = {77};
  keys["INPUT_SCALE_"] = {1000.0};
  keys["COMPONENT_LIM_SIZE_"] = {0.66};
  keys["IF_SMOOTHING_"] = {84};
  keys["IF_SMOOTH_FROZEN_"] = {70};
  keys["IF_TOLERANCE_"] = {0.77};
  keys["IF_BORDER_CYCLES_"] = {8};
  keys["IF_INNER_CYCLES_"] = {-9};
  keys["SHRINKAGE_CORRECTION_"] = {84};
  keys["LAPLACE_ALPHA_"] = {0.88};
  keys["LAPLACE_BETA_"] = {-0.89};
  keys["WALL_TOLERANCE_"] = {0.99};
}

void AddFullCommand(RecordingStorage& storage)
{
  AddSparseCommand(storage);
  auto& keys = storage.Command("SMOOTH_", "job");
  keys["MODEL_FILE_"] = {std::string("rib.inp")};
  keys["ITERATION_"] = {std::vector<int>{5, 10}};
  keys["OUTPUT_FILE_"] = {std::string("smooth")};
  keys["FORMAT_"] = {83, 81, 68};
  keys["SLICE_X_"] = {-1.0, 2.5};
  keys["SLICE_Y_"] = {0.0};
  keys["SLICE_Z_"] = {1.0, 2.0, 3.0};
  keys["EXCLUDE_GROUP_"] = {std::string("bolt"), std::string("nut")};
  keys["INCLUDE_GROUP_"] = {std::string("web")};
  keys["SURFACE_GROUP_"] = {std::string("skin")};
  keys["ND_GROUP_"] = {std::string("frozen")};
  keys["ISO_GROUP_NAME_"] = {std::string("web"), std::string("rim")};
  keys["ISO_GROUP_VALUE_"] = {0.25};
  keys["VOL_GROUP_NAME_"] = {std::string("core")};
  keys["VOL_GROUP_VALUE_"] = {0.4, 0.6, 0.8};
  keys["ORIGINAL_SURFACE_TOLERANCE_VALUE_"] = {0.005};
  keys["ORIGINAL_SURFACE_TOLERANCE_TYPE_"] = {82};
}

SMOOTH_ SparseCommand()
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  return LoadedAlone<SMOOTH_>(storage, "job");
}

SMOOTH_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<SMOOTH_>(storage, "job");
}

/// The first 1023 characters.
const char* const kFullText = "m_ID_NAME_: job\n"
                              "m_PATCH_ID_: rib\n"
                              "m_TASK_: ISO\n"
                              "m_ALL_ITERATIONS_: NO\n"
                              "m_ISO_VALUE_: 0.3\n"
                              "m_TARGET_VOLUME_: 1.5\n"
                              "m_has_MODEL_FILE_: yes\n"
                              "m_MODEL_FILE_: rib.inp\n"
                              "m_RESULT_FILE_: rib.onf\n"
                              "m_has_ITERATION_: yes\n"
                              "m_ITERATION_: [\n"
                              "5 10]\n"
                              "m_VTM_RESULT_: NO\n"
                              "m_has_OUTPUT_FILE_: yes\n"
                              "m_OUTPUT_FILE_: smooth\n"
                              "m_num_FORMAT_: 3\n"
                              "m_FORMAT_: [\n"
                              "STL INP INVALID ]\n"
                              "m_STL_GROUPS_: NO\n"
                              "m_OUTPUT_SURFACE_: NEW\n"
                              "m_VTF_ORGMODEL_: NO\n"
                              "m_IGES_UNIT_: MM\n"
                              "m_SLICES_: NO\n"
                              "m_num_SLICE_X_: 2\n"
                              "m_SLICE_X_: [\n"
                              "-1 2.5]\n"
                              "m_num_SLICE_Y_: 1\n"
                              "m_SLICE_Y_: [\n"
                              "0]\n"
                              "m_num_SLICE_Z_: 3\n"
                              "m_SLICE_Z_: [\n"
                              "1 2 3]\n"
                              "m_SLICE_PRIMARY_: NO\n"
                              "m_SLICE_NUMBER_: 12\n"
                              "m_SLICE_DISTANCE_: 0.75\n"
                              "m_SLICE_INTERSECTION_: NO\n"
                              "m_SLICE_REDUCTION_: NO\n"
                              "m_SLICE_RED_ANGLE_: 15\n"
                              "m_SLICE_OFFSET_: YES\n"
                              "m_SLICE_REF_QUANT_: 4\n"
                              "m_SLICE_REF_FACTOR_: 0.5\n"
                              "m_SLICE_FILTER_CURVES_: NO\n"
                              "m_SLICE_FORMAT_: CLI\n"
                              "m_BORDER_: YES\n"
                              "m_BORDER_FORMAT_: ALL\n"
                              "m_GROUP_FILE_: groups.txt\n"
                              "m_num_EXCLUDE_GROUP_: 2\n"
                              "m_EXCLUDE_GROUP_: [\n"
                              "bolt nut]\n"
                              "m_num_INCLUDE_GROUP_: 1\n"
                              "m_INCLUDE_GROUP_: [\n"
                              "web]\n"
                              "m_num_SURFACE_GROUP_: 1\n"
                              "m_SURFACE_GROUP_: [\n"
                              "skin]\n"
                              "m_has_ND_GROU";

void ExpectDefaults(const SMOOTH_& command)
{
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetTASK_(), 0);
  EXPECT_EQ(command.GetALL_ITERATIONS_(), 0);
  EXPECT_EQ(command.GetISO_VALUE_(), 0.0);
  EXPECT_EQ(command.GetTARGET_VOLUME_(), 0.0);
  EXPECT_FALSE(command.HasMODEL_FILE_());
  EXPECT_EQ(command.GetMODEL_FILE_(), "");
  EXPECT_EQ(command.GetRESULT_FILE_(), "");
  EXPECT_FALSE(command.HasITERATION_());
  EXPECT_THAT(command.GetITERATION_(), IsEmpty());
  EXPECT_EQ(command.GetVTM_RESULT_(), 0);
  EXPECT_FALSE(command.HasOUTPUT_FILE_());
  EXPECT_EQ(command.GetOUTPUT_FILE_(), "");
  EXPECT_EQ(command.NumFORMAT_(), 0U);
  EXPECT_THAT(command.GetFORMAT_(), IsEmpty());
  EXPECT_EQ(command.GetSTL_GROUPS_(), 0);
  EXPECT_EQ(command.GetOUTPUT_SURFACE_(), 0);
  EXPECT_EQ(command.GetVTF_ORGMODEL_(), 0);
  EXPECT_EQ(command.GetIGES_UNIT_(), 0);
  EXPECT_EQ(command.GetSLICES_(), 0);
  EXPECT_EQ(command.NumSLICE_X_(), 0U);
  EXPECT_THAT(command.GetSLICE_X_(), IsEmpty());
  EXPECT_EQ(command.NumSLICE_Y_(), 0U);
  EXPECT_THAT(command.GetSLICE_Y_(), IsEmpty());
  EXPECT_EQ(command.NumSLICE_Z_(), 0U);
  EXPECT_THAT(command.GetSLICE_Z_(), IsEmpty());
  EXPECT_EQ(command.GetSLICE_PRIMARY_(), 0);
  EXPECT_EQ(command.GetSLICE_NUMBER_(), 0);
  EXPECT_EQ(command.GetSLICE_DISTANCE_(), 0.0);
  EXPECT_EQ(command.GetSLICE_INTERSECTION_(), 0);
  EXPECT_EQ(command.GetSLICE_REDUCTION_(), 0);
  EXPECT_EQ(command.GetSLICE_RED_ANGLE_(), 0.0);
  EXPECT_EQ(command.GetSLICE_OFFSET_(), 0);
  EXPECT_EQ(command.GetSLICE_REF_QUANT_(), 0);
  EXPECT_EQ(command.GetSLICE_REF_FACTOR_(), 0.0);
  EXPECT_EQ(command.GetSLICE_FILTER_CURVES_(), 0);
  EXPECT_EQ(command.GetSLICE_FORMAT_(), 0);
  EXPECT_EQ(command.GetBORDER_(), 0);
  EXPECT_EQ(command.GetBORDER_FORMAT_(), 0);
  EXPECT_EQ(command.GetGROUP_FILE_(), "");
  EXPECT_EQ(command.NumEXCLUDE_GROUP_(), 0U);
  EXPECT_THAT(command.GetEXCLUDE_GROUP_(), IsEmpty());
  EXPECT_EQ(command.NumINCLUDE_GROUP_(), 0U);
  EXPECT_THAT(command.GetINCLUDE_GROUP_(), IsEmpty());
  EXPECT_EQ(command.NumSURFACE_GROUP_(), 0U);
  EXPECT_THAT(command.GetSURFACE_GROUP_(), IsEmpty());
  EXPECT_FALSE(command.HasND_GROUP_());
  EXPECT_EQ(command.GetND_GROUP_(), "");
  EXPECT_EQ(command.NumISO_GROUP_NAME_(), 0U);
  EXPECT_THAT(command.GetISO_GROUP_NAME_(), IsEmpty());
  EXPECT_EQ(command.NumISO_GROUP_VALUE_(), 0U);
  EXPECT_THAT(command.GetISO_GROUP_VALUE_(), IsEmpty());
  EXPECT_EQ(command.NumVOL_GROUP_NAME_(), 0U);
  EXPECT_THAT(command.GetVOL_GROUP_NAME_(), IsEmpty());
  EXPECT_EQ(command.NumVOL_GROUP_VALUE_(), 0U);
  EXPECT_THAT(command.GetVOL_GROUP_VALUE_(), IsEmpty());
  EXPECT_EQ(command.GetSMOOTH_CYCLES_(), 0);
  EXPECT_EQ(command.GetNO_SORT_(), 0);
  EXPECT_EQ(command.GetMIN_DENS_WALL_(), 0.0);
  EXPECT_EQ(command.GetREDUCTION_(), 0);
  EXPECT_EQ(command.GetREDUCTION_RATE_(), 0.0);
  EXPECT_EQ(command.GetREDUCTION_ANGLE_(), 0.0);
  EXPECT_EQ(command.GetMIN_ANGLE_(), 0.0);
  EXPECT_EQ(command.GetMIN_FACE_ANGLE_(), 0.0);
  EXPECT_EQ(command.GetSELF_INTERSECTION_(), 0);
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_VALUE_(), 0.0);
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_TYPE_(), 0);
  EXPECT_EQ(command.GetMIXED_MESH_(), 0);
  EXPECT_EQ(command.GetEXCLUDE_LOADED_(), 0);
  EXPECT_EQ(command.GetISO_SEQUENCE_(), 0);
  EXPECT_EQ(command.GetO_SURF_SMOOTHING_(), 0);
  EXPECT_EQ(command.GetRESULT_FILTERING_(), 0);
  EXPECT_EQ(command.GetINPUT_SCALE_(), 0.0);
  EXPECT_EQ(command.GetCOMPONENT_LIM_SIZE_(), 0.0);
  EXPECT_EQ(command.GetIF_SMOOTHING_(), 0);
  EXPECT_EQ(command.GetIF_SMOOTH_FROZEN_(), 0);
  EXPECT_EQ(command.GetIF_TOLERANCE_(), 0.0);
  EXPECT_EQ(command.GetIF_BORDER_CYCLES_(), 0);
  EXPECT_EQ(command.GetIF_INNER_CYCLES_(), 0);
  EXPECT_EQ(command.GetSHRINKAGE_CORRECTION_(), 0);
  EXPECT_EQ(command.GetLAPLACE_ALPHA_(), 0.0);
  EXPECT_EQ(command.GetLAPLACE_BETA_(), 0.0);
  EXPECT_EQ(command.GetWALL_TOLERANCE_(), 0.0);
}

/// The keys that are always read.
void ExpectSparse(const SMOOTH_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "job");
  EXPECT_EQ(command.GetPATCH_ID_(), "rib");
  EXPECT_EQ(command.GetTASK_(), SMOOTH_::TASK_ISO);
  EXPECT_EQ(command.GetALL_ITERATIONS_(), SMOOTH_::ALL_ITERATIONS_NO);
  EXPECT_EQ(command.GetISO_VALUE_(), 0.3);
  EXPECT_EQ(command.GetTARGET_VOLUME_(), 1.5);
  EXPECT_EQ(command.GetRESULT_FILE_(), "rib.onf");
  EXPECT_EQ(command.GetVTM_RESULT_(), SMOOTH_::VTM_RESULT_NO);
  EXPECT_EQ(command.GetSTL_GROUPS_(), SMOOTH_::STL_GROUPS_NO);
  EXPECT_EQ(command.GetOUTPUT_SURFACE_(), SMOOTH_::OUTPUT_SURFACE_NEW);
  EXPECT_EQ(command.GetVTF_ORGMODEL_(), SMOOTH_::VTF_ORGMODEL_NO);
  EXPECT_EQ(command.GetIGES_UNIT_(), SMOOTH_::IGES_UNIT_MM);
  EXPECT_EQ(command.GetSLICES_(), SMOOTH_::SLICES_NO);
  EXPECT_EQ(command.GetSLICE_PRIMARY_(), SMOOTH_::SLICE_PRIMARY_NO);
  EXPECT_EQ(command.GetSLICE_NUMBER_(), 12);
  EXPECT_EQ(command.GetSLICE_DISTANCE_(), 0.75);
  EXPECT_EQ(command.GetSLICE_INTERSECTION_(), SMOOTH_::SLICE_INTERSECTION_NO);
  EXPECT_EQ(command.GetSLICE_REDUCTION_(), SMOOTH_::SLICE_REDUCTION_NO);
  EXPECT_EQ(command.GetSLICE_RED_ANGLE_(), 15.0);
  EXPECT_EQ(command.GetSLICE_OFFSET_(), SMOOTH_::SLICE_OFFSET_YES);
  EXPECT_EQ(command.GetSLICE_REF_QUANT_(), 4);
  EXPECT_EQ(command.GetSLICE_REF_FACTOR_(), 0.5);
  EXPECT_EQ(command.GetSLICE_FILTER_CURVES_(), SMOOTH_::SLICE_FILTER_CURVES_NO);
  EXPECT_EQ(command.GetSLICE_FORMAT_(), SMOOTH_::SLICE_FORMAT_CLI);
  EXPECT_EQ(command.GetBORDER_(), SMOOTH_::BORDER_YES);
  EXPECT_EQ(command.GetBORDER_FORMAT_(), SMOOTH_::BORDER_FORMAT_ALL);
  EXPECT_EQ(command.GetGROUP_FILE_(), "groups.txt");
  EXPECT_EQ(command.GetSMOOTH_CYCLES_(), 25);
  EXPECT_EQ(command.GetNO_SORT_(), SMOOTH_::NO_SORT_YES);
  EXPECT_EQ(command.GetMIN_DENS_WALL_(), 0.11);
  EXPECT_EQ(command.GetREDUCTION_(), SMOOTH_::REDUCTION_NO);
  EXPECT_EQ(command.GetREDUCTION_RATE_(), 0.22);
  EXPECT_EQ(command.GetREDUCTION_ANGLE_(), 33.0);
  EXPECT_EQ(command.GetMIN_ANGLE_(), 44.0);
  EXPECT_EQ(command.GetMIN_FACE_ANGLE_(), 55.0);
  EXPECT_EQ(command.GetSELF_INTERSECTION_(), SMOOTH_::SELF_INTERSECTION_RUNTIME);
  EXPECT_EQ(command.GetMIXED_MESH_(), SMOOTH_::MIXED_MESH_YES);
  EXPECT_EQ(command.GetEXCLUDE_LOADED_(), SMOOTH_::EXCLUDE_LOADED_NO);
  EXPECT_EQ(command.GetISO_SEQUENCE_(), SMOOTH_::ISO_SEQUENCE_CONST);
  EXPECT_EQ(command.GetO_SURF_SMOOTHING_(), SMOOTH_::O_SURF_SMOOTHING_SHRINK);
  EXPECT_EQ(command.GetRESULT_FILTERING_(), SMOOTH_::RESULT_FILTERING_MODERATE);
  EXPECT_EQ(command.GetINPUT_SCALE_(), 1000.0);
  EXPECT_EQ(command.GetCOMPONENT_LIM_SIZE_(), 0.66);
  EXPECT_EQ(command.GetIF_SMOOTHING_(), SMOOTH_::IF_SMOOTHING_YES);
  EXPECT_EQ(command.GetIF_SMOOTH_FROZEN_(), SMOOTH_::IF_SMOOTH_FROZEN_NO);
  EXPECT_EQ(command.GetIF_TOLERANCE_(), 0.77);
  EXPECT_EQ(command.GetIF_BORDER_CYCLES_(), 8);
  EXPECT_EQ(command.GetIF_INNER_CYCLES_(), -9);
  EXPECT_EQ(command.GetSHRINKAGE_CORRECTION_(), SMOOTH_::SHRINKAGE_CORRECTION_YES);
  EXPECT_EQ(command.GetLAPLACE_ALPHA_(), 0.88);
  EXPECT_EQ(command.GetLAPLACE_BETA_(), -0.89);
  EXPECT_EQ(command.GetWALL_TOLERANCE_(), 0.99);
}

void ExpectFull(const SMOOTH_& command)
{
  ExpectSparse(command);
  EXPECT_TRUE(command.HasMODEL_FILE_());
  EXPECT_EQ(command.GetMODEL_FILE_(), "rib.inp");
  EXPECT_TRUE(command.HasITERATION_());
  EXPECT_THAT(command.GetITERATION_(), ElementsAre(5, 10));
  EXPECT_TRUE(command.HasOUTPUT_FILE_());
  EXPECT_EQ(command.GetOUTPUT_FILE_(), "smooth");
  EXPECT_EQ(command.NumFORMAT_(), 3U);
  EXPECT_THAT(command.GetFORMAT_(),
              ElementsAre(SMOOTH_::FORMAT_STL, SMOOTH_::FORMAT_INP, static_cast<SMOOTH_::Enum_FORMAT_>(68)));
  EXPECT_EQ(command.NumSLICE_X_(), 2U);
  EXPECT_THAT(command.GetSLICE_X_(), ElementsAre(-1.0, 2.5));
  EXPECT_EQ(command.NumSLICE_Y_(), 1U);
  EXPECT_THAT(command.GetSLICE_Y_(), ElementsAre(0.0));
  EXPECT_EQ(command.NumSLICE_Z_(), 3U);
  EXPECT_THAT(command.GetSLICE_Z_(), ElementsAre(1.0, 2.0, 3.0));
  EXPECT_EQ(command.NumEXCLUDE_GROUP_(), 2U);
  EXPECT_THAT(command.GetEXCLUDE_GROUP_(), ElementsAre("bolt", "nut"));
  EXPECT_EQ(command.NumINCLUDE_GROUP_(), 1U);
  EXPECT_THAT(command.GetINCLUDE_GROUP_(), ElementsAre("web"));
  EXPECT_EQ(command.NumSURFACE_GROUP_(), 1U);
  EXPECT_THAT(command.GetSURFACE_GROUP_(), ElementsAre("skin"));
  EXPECT_TRUE(command.HasND_GROUP_());
  EXPECT_EQ(command.GetND_GROUP_(), "frozen");
  EXPECT_EQ(command.NumISO_GROUP_NAME_(), 2U);
  EXPECT_THAT(command.GetISO_GROUP_NAME_(), ElementsAre("web", "rim"));
  EXPECT_EQ(command.NumISO_GROUP_VALUE_(), 1U);
  EXPECT_THAT(command.GetISO_GROUP_VALUE_(), ElementsAre(0.25));
  EXPECT_EQ(command.NumVOL_GROUP_NAME_(), 1U);
  EXPECT_THAT(command.GetVOL_GROUP_NAME_(), ElementsAre("core"));
  EXPECT_EQ(command.NumVOL_GROUP_VALUE_(), 3U);
  EXPECT_THAT(command.GetVOL_GROUP_VALUE_(), ElementsAre(0.4, 0.6, 0.8));
  EXPECT_TRUE(command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_VALUE_(), 0.005);
  EXPECT_TRUE(command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_TYPE_(), SMOOTH_::ORIGINAL_SURFACE_TOLERANCE_TYPE_REL);
}

/// The optional and the repeated keys are absent.
void ExpectNothingOptional(const SMOOTH_& command)
{
  EXPECT_FALSE(command.HasMODEL_FILE_());
  EXPECT_EQ(command.GetMODEL_FILE_(), "");
  EXPECT_FALSE(command.HasITERATION_());
  EXPECT_THAT(command.GetITERATION_(), IsEmpty());
  EXPECT_FALSE(command.HasOUTPUT_FILE_());
  EXPECT_EQ(command.GetOUTPUT_FILE_(), "");
  EXPECT_EQ(command.NumFORMAT_(), 0U);
  EXPECT_EQ(command.NumSLICE_X_(), 0U);
  EXPECT_EQ(command.NumSLICE_Y_(), 0U);
  EXPECT_EQ(command.NumSLICE_Z_(), 0U);
  EXPECT_EQ(command.NumEXCLUDE_GROUP_(), 0U);
  EXPECT_EQ(command.NumINCLUDE_GROUP_(), 0U);
  EXPECT_EQ(command.NumSURFACE_GROUP_(), 0U);
  EXPECT_FALSE(command.HasND_GROUP_());
  EXPECT_EQ(command.GetND_GROUP_(), "");
  EXPECT_EQ(command.NumISO_GROUP_NAME_(), 0U);
  EXPECT_EQ(command.NumISO_GROUP_VALUE_(), 0U);
  EXPECT_EQ(command.NumVOL_GROUP_NAME_(), 0U);
  EXPECT_EQ(command.NumVOL_GROUP_VALUE_(), 0U);
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_VALUE_(), 0.0);
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_TYPE_(), 0);
}

}  // namespace

TEST(Smooth, TellsItsNames)
{
  EXPECT_STREQ(SMOOTH_::COMMAND_NAME, "SMOOTH");
  EXPECT_EQ(SMOOTH_::s_type, "SMOOTH_");
  EXPECT_EQ(SMOOTH_().GetType(), "SMOOTH_");
}

TEST(Smooth, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const SMOOTH_ command = SparseCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &SMOOTH_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "job");
}

TEST(Smooth, IsEmptyBeforeItIsLoaded)
{
  const SMOOTH_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(Smooth, LoadsItsSixtyEightKeysInOrder)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<SMOOTH_>(storage, "job");
  const std::vector<std::string> expected = {
    "GetValue(SMOOTH_, job, PATCH_ID_, 1, vtmString, string)",
    "GetEnumValue(SMOOTH_, job, TASK_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, ALL_ITERATIONS_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, ISO_VALUE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, TARGET_VOLUME_, 1, vtmDouble, double)",
    "HasElement(SMOOTH_, job, MODEL_FILE_)",
    "GetValue(SMOOTH_, job, MODEL_FILE_, 1, vtmString, string)",
    "GetValue(SMOOTH_, job, RESULT_FILE_, 1, vtmString, string)",
    "HasElement(SMOOTH_, job, ITERATION_)",
    "GetValue(SMOOTH_, job, ITERATION_, 1, vtmIntegerList, vector<int>)",
    "GetEnumValue(SMOOTH_, job, VTM_RESULT_, 1, vtmEnum)",
    "HasElement(SMOOTH_, job, OUTPUT_FILE_)",
    "GetValue(SMOOTH_, job, OUTPUT_FILE_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, FORMAT_)",
    "GetEnumValue(SMOOTH_, job, FORMAT_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, FORMAT_, 2, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, FORMAT_, 3, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, STL_GROUPS_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, OUTPUT_SURFACE_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, VTF_ORGMODEL_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, IGES_UNIT_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICES_, 1, vtmEnum)",
    "GetNumElements(SMOOTH_, job, SLICE_X_)",
    "GetValue(SMOOTH_, job, SLICE_X_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, SLICE_X_, 2, vtmDouble, double)",
    "GetNumElements(SMOOTH_, job, SLICE_Y_)",
    "GetValue(SMOOTH_, job, SLICE_Y_, 1, vtmDouble, double)",
    "GetNumElements(SMOOTH_, job, SLICE_Z_)",
    "GetValue(SMOOTH_, job, SLICE_Z_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, SLICE_Z_, 2, vtmDouble, double)",
    "GetValue(SMOOTH_, job, SLICE_Z_, 3, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_PRIMARY_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_NUMBER_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, SLICE_DISTANCE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_INTERSECTION_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICE_REDUCTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_RED_ANGLE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_OFFSET_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_REF_QUANT_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, SLICE_REF_FACTOR_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_FILTER_CURVES_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICE_FORMAT_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, BORDER_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, BORDER_FORMAT_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, GROUP_FILE_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, EXCLUDE_GROUP_)",
    "GetValue(SMOOTH_, job, EXCLUDE_GROUP_, 1, vtmString, string)",
    "GetValue(SMOOTH_, job, EXCLUDE_GROUP_, 2, vtmString, string)",
    "GetNumElements(SMOOTH_, job, INCLUDE_GROUP_)",
    "GetValue(SMOOTH_, job, INCLUDE_GROUP_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, SURFACE_GROUP_)",
    "GetValue(SMOOTH_, job, SURFACE_GROUP_, 1, vtmString, string)",
    "HasElement(SMOOTH_, job, ND_GROUP_)",
    "GetValue(SMOOTH_, job, ND_GROUP_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, ISO_GROUP_NAME_)",
    "GetValue(SMOOTH_, job, ISO_GROUP_NAME_, 1, vtmString, string)",
    "GetValue(SMOOTH_, job, ISO_GROUP_NAME_, 2, vtmString, string)",
    "GetNumElements(SMOOTH_, job, ISO_GROUP_VALUE_)",
    "GetValue(SMOOTH_, job, ISO_GROUP_VALUE_, 1, vtmDouble, double)",
    "GetNumElements(SMOOTH_, job, VOL_GROUP_NAME_)",
    "GetValue(SMOOTH_, job, VOL_GROUP_NAME_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, VOL_GROUP_VALUE_)",
    "GetValue(SMOOTH_, job, VOL_GROUP_VALUE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, VOL_GROUP_VALUE_, 2, vtmDouble, double)",
    "GetValue(SMOOTH_, job, VOL_GROUP_VALUE_, 3, vtmDouble, double)",
    "GetValue(SMOOTH_, job, SMOOTH_CYCLES_, 1, vtmInteger, int)",
    "GetEnumValue(SMOOTH_, job, NO_SORT_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, MIN_DENS_WALL_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, REDUCTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, REDUCTION_RATE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, REDUCTION_ANGLE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, MIN_ANGLE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, MIN_FACE_ANGLE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SELF_INTERSECTION_, 1, vtmEnum)",
    "HasElement(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_VALUE_)",
    "GetValue(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_VALUE_, 1, vtmDouble, double)",
    "HasElement(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_TYPE_)",
    "GetEnumValue(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_TYPE_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, MIXED_MESH_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, EXCLUDE_LOADED_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, ISO_SEQUENCE_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, O_SURF_SMOOTHING_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, RESULT_FILTERING_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, INPUT_SCALE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, COMPONENT_LIM_SIZE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, IF_SMOOTHING_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, IF_SMOOTH_FROZEN_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, IF_TOLERANCE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, IF_BORDER_CYCLES_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, IF_INNER_CYCLES_, 1, vtmInteger, int)",
    "GetEnumValue(SMOOTH_, job, SHRINKAGE_CORRECTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, LAPLACE_ALPHA_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, LAPLACE_BETA_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, WALL_TOLERANCE_, 1, vtmDouble, double)",
  };
  EXPECT_EQ(storage.Calls(), expected);
}

TEST(Smooth, AsksForOptionalAndRepeatedKeysAndDoesNotReadThemWhenTheyAreAbsent)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  LoadedAlone<SMOOTH_>(storage, "job");
  const std::vector<std::string> expected = {
    "GetValue(SMOOTH_, job, PATCH_ID_, 1, vtmString, string)",
    "GetEnumValue(SMOOTH_, job, TASK_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, ALL_ITERATIONS_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, ISO_VALUE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, TARGET_VOLUME_, 1, vtmDouble, double)",
    "HasElement(SMOOTH_, job, MODEL_FILE_)",
    "GetValue(SMOOTH_, job, RESULT_FILE_, 1, vtmString, string)",
    "HasElement(SMOOTH_, job, ITERATION_)",
    "GetEnumValue(SMOOTH_, job, VTM_RESULT_, 1, vtmEnum)",
    "HasElement(SMOOTH_, job, OUTPUT_FILE_)",
    "GetNumElements(SMOOTH_, job, FORMAT_)",
    "GetEnumValue(SMOOTH_, job, STL_GROUPS_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, OUTPUT_SURFACE_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, VTF_ORGMODEL_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, IGES_UNIT_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICES_, 1, vtmEnum)",
    "GetNumElements(SMOOTH_, job, SLICE_X_)",
    "GetNumElements(SMOOTH_, job, SLICE_Y_)",
    "GetNumElements(SMOOTH_, job, SLICE_Z_)",
    "GetEnumValue(SMOOTH_, job, SLICE_PRIMARY_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_NUMBER_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, SLICE_DISTANCE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_INTERSECTION_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICE_REDUCTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_RED_ANGLE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_OFFSET_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, SLICE_REF_QUANT_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, SLICE_REF_FACTOR_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SLICE_FILTER_CURVES_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, SLICE_FORMAT_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, BORDER_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, BORDER_FORMAT_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, GROUP_FILE_, 1, vtmString, string)",
    "GetNumElements(SMOOTH_, job, EXCLUDE_GROUP_)",
    "GetNumElements(SMOOTH_, job, INCLUDE_GROUP_)",
    "GetNumElements(SMOOTH_, job, SURFACE_GROUP_)",
    "HasElement(SMOOTH_, job, ND_GROUP_)",
    "GetNumElements(SMOOTH_, job, ISO_GROUP_NAME_)",
    "GetNumElements(SMOOTH_, job, ISO_GROUP_VALUE_)",
    "GetNumElements(SMOOTH_, job, VOL_GROUP_NAME_)",
    "GetNumElements(SMOOTH_, job, VOL_GROUP_VALUE_)",
    "GetValue(SMOOTH_, job, SMOOTH_CYCLES_, 1, vtmInteger, int)",
    "GetEnumValue(SMOOTH_, job, NO_SORT_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, MIN_DENS_WALL_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, REDUCTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, REDUCTION_RATE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, REDUCTION_ANGLE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, MIN_ANGLE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, MIN_FACE_ANGLE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, SELF_INTERSECTION_, 1, vtmEnum)",
    "HasElement(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_VALUE_)",
    "HasElement(SMOOTH_, job, ORIGINAL_SURFACE_TOLERANCE_TYPE_)",
    "GetEnumValue(SMOOTH_, job, MIXED_MESH_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, EXCLUDE_LOADED_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, ISO_SEQUENCE_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, O_SURF_SMOOTHING_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, RESULT_FILTERING_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, INPUT_SCALE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, COMPONENT_LIM_SIZE_, 1, vtmDouble, double)",
    "GetEnumValue(SMOOTH_, job, IF_SMOOTHING_, 1, vtmEnum)",
    "GetEnumValue(SMOOTH_, job, IF_SMOOTH_FROZEN_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, IF_TOLERANCE_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, IF_BORDER_CYCLES_, 1, vtmInteger, int)",
    "GetValue(SMOOTH_, job, IF_INNER_CYCLES_, 1, vtmInteger, int)",
    "GetEnumValue(SMOOTH_, job, SHRINKAGE_CORRECTION_, 1, vtmEnum)",
    "GetValue(SMOOTH_, job, LAPLACE_ALPHA_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, LAPLACE_BETA_, 1, vtmDouble, double)",
    "GetValue(SMOOTH_, job, WALL_TOLERANCE_, 1, vtmDouble, double)",
  };
  EXPECT_EQ(storage.Calls(), expected);
}

TEST(Smooth, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(Smooth, KeepsDefaultsOfOptionalAndRepeatedKeysThatAreAbsent)
{
  const SMOOTH_ command = SparseCommand();
  ExpectSparse(command);
  ExpectNothingOptional(command);
}

TEST(Smooth, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("SMOOTH_", "bare");
  const auto command = LoadedAlone<SMOOTH_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
}

TEST(Smooth, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.FailOn("GetEnumValue(SMOOTH_, job, FORMAT_, 2, vtmEnum)");
  SMOOTH_ command;
  EXPECT_THROW(command.Load(storage, "job"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "job");
  EXPECT_EQ(command.GetOUTPUT_FILE_(), "smooth");
  EXPECT_EQ(command.NumFORMAT_(), 3U);
  EXPECT_THAT(command.GetFORMAT_(), ElementsAre(SMOOTH_::FORMAT_STL));
  EXPECT_EQ(command.GetOUTPUT_SURFACE_(), 0);
}

TEST(Smooth, KeepsAnEmptyOptionalTextThatIsPresent)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("SMOOTH_", "job")["ND_GROUP_"] = {std::string()};
  const auto command = LoadedAlone<SMOOTH_>(storage, "job");
  EXPECT_TRUE(command.HasND_GROUP_());
  EXPECT_EQ(command.GetND_GROUP_(), "");
}

TEST(Smooth, HasAToleranceTypeWithoutAToleranceValue)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("SMOOTH_", "job")["ORIGINAL_SURFACE_TOLERANCE_TYPE_"] = {65};
  const auto command = LoadedAlone<SMOOTH_>(storage, "job");
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_VALUE_(), 0.0);
  EXPECT_TRUE(command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
  EXPECT_EQ(command.GetORIGINAL_SURFACE_TOLERANCE_TYPE_(), SMOOTH_::ORIGINAL_SURFACE_TOLERANCE_TYPE_ABS);
}

TEST(Smooth, HasAToleranceValueWithoutAToleranceType)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("SMOOTH_", "job")["ORIGINAL_SURFACE_TOLERANCE_VALUE_"] = {0.0};
  const auto command = LoadedAlone<SMOOTH_>(storage, "job");
  EXPECT_TRUE(command.HasORIGINAL_SURFACE_TOLERANCE_VALUE_());
  EXPECT_FALSE(command.HasORIGINAL_SURFACE_TOLERANCE_TYPE_());
}

TEST(Smooth, CountsGroupNamesAndGroupValuesApartAndDoesNotCompareThem)
{
  const SMOOTH_ command = FullCommand();
  EXPECT_EQ(command.NumISO_GROUP_NAME_(), 2U);
  EXPECT_EQ(command.NumISO_GROUP_VALUE_(), 1U);
  EXPECT_EQ(command.NumVOL_GROUP_NAME_(), 1U);
  EXPECT_EQ(command.NumVOL_GROUP_VALUE_(), 3U);
}

TEST(Smooth, GivesTheElementsOfItsListsByPlacesCountedFromOne)
{
  const SMOOTH_ command = FullCommand();
  EXPECT_EQ(command.GetFORMAT_(1), SMOOTH_::FORMAT_STL);
  EXPECT_EQ(command.GetFORMAT_(2), SMOOTH_::FORMAT_INP);
  EXPECT_EQ(command.GetFORMAT_(command.NumFORMAT_()), 68);
  EXPECT_EQ(command.GetSLICE_X_(1), -1.0);
  EXPECT_EQ(command.GetSLICE_X_(2), 2.5);
  EXPECT_EQ(command.GetSLICE_Y_(1), 0.0);
  EXPECT_EQ(command.GetSLICE_Z_(1), 1.0);
  EXPECT_EQ(command.GetSLICE_Z_(3), 3.0);
  EXPECT_EQ(command.GetEXCLUDE_GROUP_(1), "bolt");
  EXPECT_EQ(command.GetEXCLUDE_GROUP_(2), "nut");
  EXPECT_EQ(command.GetINCLUDE_GROUP_(1), "web");
  EXPECT_EQ(command.GetSURFACE_GROUP_(1), "skin");
  EXPECT_EQ(command.GetISO_GROUP_NAME_(1), "web");
  EXPECT_EQ(command.GetISO_GROUP_NAME_(2), "rim");
  EXPECT_EQ(command.GetISO_GROUP_VALUE_(1), 0.25);
  EXPECT_EQ(command.GetVOL_GROUP_NAME_(1), "core");
  EXPECT_EQ(command.GetVOL_GROUP_VALUE_(1), 0.4);
  EXPECT_EQ(command.GetVOL_GROUP_VALUE_(3), 0.8);
  EXPECT_EQ(&command.GetSLICE_Z_(2), &command.GetSLICE_Z_()[1]);
}

TEST(Smooth, AppendsToItsListsWhenItIsLoadedAgain)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<SMOOTH_>(storage, "job");
  storage.Command("SMOOTH_", "job")["FORMAT_"] = {67};
  command.Load(storage, "job");
  EXPECT_EQ(command.NumFORMAT_(), 1U);
  EXPECT_THAT(command.GetFORMAT_(), ElementsAre(SMOOTH_::FORMAT_STL, SMOOTH_::FORMAT_INP, 68, SMOOTH_::FORMAT_CDB));
  EXPECT_THAT(command.GetITERATION_(), ElementsAre(5, 10));
}

TEST(Smooth, NamesItsTasks)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_TASK_>(
    {{SMOOTH_::TASK_ISO, 73, "ISO"}, {SMOOTH_::TASK_SURFACE, 83, "SURFACE"}, {SMOOTH_::TASK_VOLUME, 86, "VOLUME"}});
}

TEST(Smooth, NamesItsFormatsOfWhichNotAllStartWithTheLetterOfTheirNumber)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_FORMAT_>({
    {SMOOTH_::FORMAT_ASCII_VTF, 65, "ASCII_VTF"},
    {SMOOTH_::FORMAT_BDF, 66, "BDF"},
    {SMOOTH_::FORMAT_CDB, 67, "CDB"},
    {SMOOTH_::FORMAT_IGES1, 73, "IGES1"},
    {SMOOTH_::FORMAT_IGES2, 74, "IGES2"},
    {SMOOTH_::FORMAT_IGES3, 75, "IGES3"},
    {SMOOTH_::FORMAT_ONF, 79, "ONF"},
    {SMOOTH_::FORMAT_INP, 81, "INP"},
    {SMOOTH_::FORMAT_STL, 83, "STL"},
    {SMOOTH_::FORMAT_OUT, 84, "OUT"},
    {SMOOTH_::FORMAT_UNCOMPRESSED_VTF, 85, "UNCOMPRESSED_VTF"},
    {SMOOTH_::FORMAT_VTF, 86, "VTF"},
    {SMOOTH_::FORMAT_WRL, 87, "WRL"},
    {SMOOTH_::FORMAT_OBJ, 88, "OBJ"},
    {SMOOTH_::FORMAT_BINARY_VTF, 90, "BINARY_VTF"},
  });
}

TEST(Smooth, NamesItsIgesUnits)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_IGES_UNIT_>({
    {SMOOTH_::IGES_UNIT_UM, 65, "UM"},
    {SMOOTH_::IGES_UNIT_MM, 66, "MM"},
    {SMOOTH_::IGES_UNIT_CM, 67, "CM"},
    {SMOOTH_::IGES_UNIT_M, 68, "M"},
    {SMOOTH_::IGES_UNIT_KM, 69, "KM"},
    {SMOOTH_::IGES_UNIT_UIM, 70, "UIM"},
    {SMOOTH_::IGES_UNIT_MI, 71, "MI"},
    {SMOOTH_::IGES_UNIT_I, 72, "I"},
    {SMOOTH_::IGES_UNIT_FT, 73, "FT"},
    {SMOOTH_::IGES_UNIT_MIL, 74, "MIL"},
  });
}

TEST(Smooth, NamesItsOutputSurfaces)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_OUTPUT_SURFACE_>({
    {SMOOTH_::OUTPUT_SURFACE_BOTH, 66, "BOTH"},
    {SMOOTH_::OUTPUT_SURFACE_NEW, 78, "NEW"},
    {SMOOTH_::OUTPUT_SURFACE_ORIGINAL, 79, "ORIGINAL"},
  });
}

TEST(Smooth, NamesItsSliceFormatsAndItsBorderFormatsAlike)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_FORMAT_>({
    {SMOOTH_::SLICE_FORMAT_ASCII_POINTS, 65, "ASCII_POINTS"},
    {SMOOTH_::SLICE_FORMAT_IGES_CURVES, 67, "IGES_CURVES"},
    {SMOOTH_::SLICE_FORMAT_CLI, 76, "CLI"},
    {SMOOTH_::SLICE_FORMAT_IGES_POLYGON, 80, "IGES_POLYGON"},
    {SMOOTH_::SLICE_FORMAT_ALL, 88, "ALL"},
  });
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_BORDER_FORMAT_>({
    {SMOOTH_::BORDER_FORMAT_ASCII_POINTS, 65, "ASCII_POINTS"},
    {SMOOTH_::BORDER_FORMAT_IGES_CURVES, 67, "IGES_CURVES"},
    {SMOOTH_::BORDER_FORMAT_CLI, 76, "CLI"},
    {SMOOTH_::BORDER_FORMAT_IGES_POLYGON, 80, "IGES_POLYGON"},
    {SMOOTH_::BORDER_FORMAT_ALL, 88, "ALL"},
  });
}

TEST(Smooth, NamesItsChecksOfSelfIntersection)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SELF_INTERSECTION_>({
    {SMOOTH_::SELF_INTERSECTION_CHECK, 67, "CHECK"},
    {SMOOTH_::SELF_INTERSECTION_ITERATIVE, 73, "ITERATIVE"},
    {SMOOTH_::SELF_INTERSECTION_OFF, 79, "OFF"},
    {SMOOTH_::SELF_INTERSECTION_RUNTIME, 82, "RUNTIME"},
  });
}

TEST(Smooth, NamesItsToleranceTypes)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_>({
    {SMOOTH_::ORIGINAL_SURFACE_TOLERANCE_TYPE_ABS, 65, "ABS"},
    {SMOOTH_::ORIGINAL_SURFACE_TOLERANCE_TYPE_REL, 82, "REL"},
  });
}

TEST(Smooth, NamesItsIsoSequences)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_ISO_SEQUENCE_>(
    {{SMOOTH_::ISO_SEQUENCE_CONST, 67, "CONST"}, {SMOOTH_::ISO_SEQUENCE_INCR, 70, "INCR"}});
}

TEST(Smooth, NamesItsSmoothingsOfTheOriginalSurface)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_O_SURF_SMOOTHING_>({
    {SMOOTH_::O_SURF_SMOOTHING_FULL, 70, "FULL"},
    {SMOOTH_::O_SURF_SMOOTHING_OFF, 79, "OFF"},
    {SMOOTH_::O_SURF_SMOOTHING_SHRINK, 83, "SHRINK"},
  });
}

TEST(Smooth, NamesItsResultFilterings)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_RESULT_FILTERING_>({
    {SMOOTH_::RESULT_FILTERING_FULL, 70, "FULL"},
    {SMOOTH_::RESULT_FILTERING_MODERATE, 77, "MODERATE"},
    {SMOOTH_::RESULT_FILTERING_OFF, 79, "OFF"},
  });
}

TEST(Smooth, NamesNoAndYesOfItsEighteenSwitches)
{
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_ALL_ITERATIONS_>(
    {{SMOOTH_::ALL_ITERATIONS_NO, 70, "NO"}, {SMOOTH_::ALL_ITERATIONS_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_VTM_RESULT_>(
    {{SMOOTH_::VTM_RESULT_NO, 70, "NO"}, {SMOOTH_::VTM_RESULT_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_STL_GROUPS_>(
    {{SMOOTH_::STL_GROUPS_NO, 70, "NO"}, {SMOOTH_::STL_GROUPS_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_VTF_ORGMODEL_>(
    {{SMOOTH_::VTF_ORGMODEL_NO, 70, "NO"}, {SMOOTH_::VTF_ORGMODEL_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICES_>({{SMOOTH_::SLICES_NO, 70, "NO"}, {SMOOTH_::SLICES_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_PRIMARY_>(
    {{SMOOTH_::SLICE_PRIMARY_NO, 70, "NO"}, {SMOOTH_::SLICE_PRIMARY_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_INTERSECTION_>(
    {{SMOOTH_::SLICE_INTERSECTION_NO, 70, "NO"}, {SMOOTH_::SLICE_INTERSECTION_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_REDUCTION_>(
    {{SMOOTH_::SLICE_REDUCTION_NO, 70, "NO"}, {SMOOTH_::SLICE_REDUCTION_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_OFFSET_>(
    {{SMOOTH_::SLICE_OFFSET_NO, 70, "NO"}, {SMOOTH_::SLICE_OFFSET_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SLICE_FILTER_CURVES_>(
    {{SMOOTH_::SLICE_FILTER_CURVES_NO, 70, "NO"}, {SMOOTH_::SLICE_FILTER_CURVES_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_BORDER_>({{SMOOTH_::BORDER_NO, 70, "NO"}, {SMOOTH_::BORDER_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_NO_SORT_>(
    {{SMOOTH_::NO_SORT_NO, 70, "NO"}, {SMOOTH_::NO_SORT_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_REDUCTION_>(
    {{SMOOTH_::REDUCTION_NO, 70, "NO"}, {SMOOTH_::REDUCTION_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_MIXED_MESH_>(
    {{SMOOTH_::MIXED_MESH_NO, 70, "NO"}, {SMOOTH_::MIXED_MESH_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_EXCLUDE_LOADED_>(
    {{SMOOTH_::EXCLUDE_LOADED_NO, 70, "NO"}, {SMOOTH_::EXCLUDE_LOADED_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_IF_SMOOTHING_>(
    {{SMOOTH_::IF_SMOOTHING_NO, 70, "NO"}, {SMOOTH_::IF_SMOOTHING_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_IF_SMOOTH_FROZEN_>(
    {{SMOOTH_::IF_SMOOTH_FROZEN_NO, 70, "NO"}, {SMOOTH_::IF_SMOOTH_FROZEN_YES, 84, "YES"}});
  ExpectEnumerators<SMOOTH_, SMOOTH_::Enum_SHRINKAGE_CORRECTION_>(
    {{SMOOTH_::SHRINKAGE_CORRECTION_NO, 70, "NO"}, {SMOOTH_::SHRINKAGE_CORRECTION_YES, 84, "YES"}});
}

TEST(Smooth, PrintsTheFirst1023CharactersOfItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(SMOOTH_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\smooth_commands");
  EXPECT_EQ(record.line, 1371);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|SMOOTH_] ");
  EXPECT_EQ(record.text.size(), 1023U);
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_TASK_: INVALID\n"
                         "m_ALL_ITERATIONS_: INVALID\n"
                         "m_ISO_VALUE_: 0\n"
                         "m_TARGET_VOLUME_: 0\n"
                         "m_has_MODEL_FILE_: no\n"
                         "m_RESULT_FILE_: \n"
                         "m_has_ITERATION_: no\n"
                         "m_VTM_RESULT_: INVALID\n"
                         "m_has_OUTPUT_FILE_: no\n"
                         "m_num_FORMAT_: 0\n"
                         "m_FORMAT_: [\n"
                         "]\n"
                         "m_STL_GROUPS_: INVALID\n"
                         "m_OUTPUT_SURFACE_: INVALID\n"
                         "m_VTF_ORGMODEL_: INVALID\n"
                         "m_IGES_UNIT_: INVALID\n"
                         "m_SLICES_: INVALID\n"
                         "m_num_SLICE_X_: 0\n"
                         "m_SLICE_X_: [\n"
                         "]\n"
                         "m_num_SLICE_Y_: 0\n"
                         "m_SLICE_Y_: [\n"
                         "]\n"
                         "m_num_SLICE_Z_: 0\n"
                         "m_SLICE_Z_: [\n"
                         "]\n"
                         "m_SLICE_PRIMARY_: INVALID\n"
                         "m_SLICE_NUMBER_: 0\n"
                         "m_SLICE_DISTANCE_: 0\n"
                         "m_SLICE_INTERSECTION_: INVALID\n"
                         "m_SLICE_REDUCTION_: INVALID\n"
                         "m_SLICE_RED_ANGLE_: 0\n"
                         "m_SLICE_OFFSET_: INVALID\n"
                         "m_SLICE_REF_QUANT_: 0\n"
                         "m_SLICE_REF_FACTOR_: 0\n"
                         "m_SLICE_FILTER_CURVES_: INVALID\n"
                         "m_SLICE_FORMAT_: INVALID\n"
                         "m_BORDER_: INVALID\n"
                         "m_BORDER_FORMAT_: INVALID\n"
                         "m_GROUP_FILE_: \n"
                         "m_num_EXCLUDE_GROUP_: 0\n"
                         "m_EXCLUDE_GROUP_: [\n"
                         "]\n"
                         "m_num_INCLUDE_GROUP_: 0\n"
                         "m_INCLUDE_GROUP_: [\n"
                         "]\n"
                         "m_num_SURFACE_GROUP_: 0\n"
                         "m_SURFACE_GROUP_: [\n"
                         "]\n"
                         "m_has_ND_GROUP_: no\n"
                         "m_num_ISO_GROUP_NAME_: 0\n"
                         "m_ISO_GROUP_NAME_: [\n"
                         "]\n"
                         "m_num_ISO_GROUP_VAL");
}

TEST(Smooth, PrintsTheFirst1023CharactersOfAllItHoldsWithinASmoothingJob)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  Smooth_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetSMOOTH_("job"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\smooth_commands");
  EXPECT_EQ(record.line, 1371);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|SMOOTH_] ");
  EXPECT_EQ(record.text.size(), 1023U);
  EXPECT_EQ(record.text, kFullText);
}

TEST(Smooth, PrintsTheSameWithinAFluidJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(LogRecordOf(parfile.GetSMOOTH_("job")).text, kFullText);
}

TEST(Smooth, PrintsACountOfNoFormatsAndAnEmptyList)
{
  EXPECT_THAT(LogRecordOf(SparseCommand()).text, StartsWith("m_ID_NAME_: job\n"
                                                            "m_PATCH_ID_: rib\n"
                                                            "m_TASK_: ISO\n"
                                                            "m_ALL_ITERATIONS_: NO\n"
                                                            "m_ISO_VALUE_: 0.3\n"
                                                            "m_TARGET_VOLUME_: 1.5\n"
                                                            "m_has_MODEL_FILE_: no\n"
                                                            "m_RESULT_FILE_: rib.onf\n"
                                                            "m_has_ITERATION_: no\n"
                                                            "m_VTM_RESULT_: NO\n"
                                                            "m_has_OUTPUT_FILE_: no\n"
                                                            "m_num_FORMAT_: 0\n"
                                                            "m_FORMAT_: [\n"
                                                            "]\n"
                                                            "m_STL_GROUPS_: NO\n"));
}

TEST(Smooth, PrintsItsGroupListsWhereTheLinesBeforeThemAreShort)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  auto& keys = storage.Command("SMOOTH_", "");
  for (const char* key : {"ALL_ITERATIONS_", "VTM_RESULT_", "STL_GROUPS_", "VTF_ORGMODEL_", "SLICES_", "SLICE_PRIMARY_",
                          "SLICE_INTERSECTION_", "SLICE_REDUCTION_", "SLICE_OFFSET_", "SLICE_FILTER_CURVES_"})
  {
    keys[key] = {70};
  }
  keys["IGES_UNIT_"] = {68};
  keys["BORDER_FORMAT_"] = {76};
  keys["ND_GROUP_"] = {std::string("n")};
  keys["ISO_GROUP_NAME_"] = {std::string("a"), std::string("b")};
  keys["ISO_GROUP_VALUE_"] = {0.5};
  const std::string text = LogRecordOf(LoadedAlone<SMOOTH_>(storage, "")).text;
  EXPECT_EQ(text.size(), 1023U);
  EXPECT_THAT(text, HasSubstr("\nm_BORDER_: INVALID\n"
                              "m_BORDER_FORMAT_: CLI\n"
                              "m_GROUP_FILE_: \n"
                              "m_num_EXCLUDE_GROUP_: 0\n"
                              "m_EXCLUDE_GROUP_: [\n"
                              "]\n"
                              "m_num_INCLUDE_GROUP_: 0\n"
                              "m_INCLUDE_GROUP_: [\n"
                              "]\n"
                              "m_num_SURFACE_GROUP_: 0\n"
                              "m_SURFACE_GROUP_: [\n"
                              "]\n"
                              "m_has_ND_GROUP_: yes\n"
                              "m_ND_GROUP_: n\n"
                              "m_num_ISO_GROUP_NAME_: 2\n"
                              "m_ISO_GROUP_NAME_: [\n"
                              "a b]\n"
                              "m_num_ISO_GROUP_VALUE_: 1\n"
                              "m_ISO_GROUP_VALUE_: [\n"
                              "0.5]\n"));
}

TEST(Smooth, TakesAPercentSignInAValueAsAConversion)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto& keys = storage.Command("SMOOTH_", "job");
  keys["PATCH_ID_"] = {std::string("<%s>")};
  keys["MODEL_FILE_"] = {std::string("100%%.inp")};
  EXPECT_THAT(LogRecordOf(LoadedAlone<SMOOTH_>(storage, "job")).text,
              StartsWith("m_ID_NAME_: job\nm_PATCH_ID_: <>\nm_TASK_: ISO\nm_ALL_ITERATIONS_: NO\nm_ISO_VALUE_: 0.3\n"
                         "m_TARGET_VOLUME_: 1.5\nm_has_MODEL_FILE_: yes\nm_MODEL_FILE_: 100%.inp\n"));
}

TEST(Smooth, ChecksNoneOfItsGroupsAmongThoseOfTheModel)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<SMOOTH_>(storage, "job");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "job"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Smooth, CopiesEveryMember)
{
  const SMOOTH_ original = FullCommand();
  const SMOOTH_ copy(original);
  ExpectFull(copy);
  EXPECT_NE(copy.GetFORMAT_().data(), original.GetFORMAT_().data());
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(Smooth, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const SMOOTH_ original = FullCommand();
  SMOOTH_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const SMOOTH_& itself = other;
  other = itself;
  ExpectFull(other);
  other = SMOOTH_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}

TEST(Smooth, KeepsItsEighteenSwitchesApart)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  auto& keys = storage.Command("SMOOTH_", "switches");
  keys["ALL_ITERATIONS_"] = {101};
  keys["VTM_RESULT_"] = {102};
  keys["STL_GROUPS_"] = {103};
  keys["VTF_ORGMODEL_"] = {104};
  keys["SLICES_"] = {105};
  keys["SLICE_PRIMARY_"] = {106};
  keys["SLICE_INTERSECTION_"] = {107};
  keys["SLICE_REDUCTION_"] = {108};
  keys["SLICE_OFFSET_"] = {109};
  keys["SLICE_FILTER_CURVES_"] = {110};
  keys["BORDER_"] = {111};
  keys["NO_SORT_"] = {112};
  keys["REDUCTION_"] = {113};
  keys["MIXED_MESH_"] = {114};
  keys["EXCLUDE_LOADED_"] = {115};
  keys["IF_SMOOTHING_"] = {116};
  keys["IF_SMOOTH_FROZEN_"] = {117};
  keys["SHRINKAGE_CORRECTION_"] = {118};
  SMOOTH_ command;
  command.Load(storage, "switches");
  EXPECT_EQ(command.GetALL_ITERATIONS_(), 101);
  EXPECT_EQ(command.GetVTM_RESULT_(), 102);
  EXPECT_EQ(command.GetSTL_GROUPS_(), 103);
  EXPECT_EQ(command.GetVTF_ORGMODEL_(), 104);
  EXPECT_EQ(command.GetSLICES_(), 105);
  EXPECT_EQ(command.GetSLICE_PRIMARY_(), 106);
  EXPECT_EQ(command.GetSLICE_INTERSECTION_(), 107);
  EXPECT_EQ(command.GetSLICE_REDUCTION_(), 108);
  EXPECT_EQ(command.GetSLICE_OFFSET_(), 109);
  EXPECT_EQ(command.GetSLICE_FILTER_CURVES_(), 110);
  EXPECT_EQ(command.GetBORDER_(), 111);
  EXPECT_EQ(command.GetNO_SORT_(), 112);
  EXPECT_EQ(command.GetREDUCTION_(), 113);
  EXPECT_EQ(command.GetMIXED_MESH_(), 114);
  EXPECT_EQ(command.GetEXCLUDE_LOADED_(), 115);
  EXPECT_EQ(command.GetIF_SMOOTHING_(), 116);
  EXPECT_EQ(command.GetIF_SMOOTH_FROZEN_(), 117);
  EXPECT_EQ(command.GetSHRINKAGE_CORRECTION_(), 118);
}
