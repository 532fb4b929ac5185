/// \file
/// The command SMOOTH_. The const operations of a loaded command may be used from several threads.
///
/// Generated from smooth_commands.toml
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

/// Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it.
class ORVELCOMMANDS_EXPORT SMOOTH_ : public OrvelCommand
{
public:
  /// What the job makes: an iso surface, a surface or a volume.
  enum Enum_TASK_ : std::int32_t
  {
    TASK_ISO = 73,
    TASK_SURFACE = 83,
    TASK_VOLUME = 86
  };

  /// Switch for working on all iterations of the result.
  enum Enum_ALL_ITERATIONS_ : std::int32_t
  {
    ALL_ITERATIONS_NO = 70,
    ALL_ITERATIONS_YES = 84
  };

  /// Switch for a result in the VTM form, handed on unread.
  enum Enum_VTM_RESULT_ : std::int32_t
  {
    VTM_RESULT_NO = 70,
    VTM_RESULT_YES = 84
  };

  /// Formats in which the output is written.
  enum Enum_FORMAT_ : std::int32_t
  {
    FORMAT_ASCII_VTF = 65,
    FORMAT_BDF = 66,
    FORMAT_CDB = 67,
    FORMAT_IGES1 = 73,
    FORMAT_IGES2 = 74,
    FORMAT_IGES3 = 75,
    FORMAT_ONF = 79,
    FORMAT_INP = 81,
    FORMAT_STL = 83,
    FORMAT_OUT = 84,
    FORMAT_UNCOMPRESSED_VTF = 85,
    FORMAT_VTF = 86,
    FORMAT_WRL = 87,
    FORMAT_OBJ = 88,
    FORMAT_BINARY_VTF = 90
  };

  /// Switch for groups in the STL file.
  enum Enum_STL_GROUPS_ : std::int32_t
  {
    STL_GROUPS_NO = 70,
    STL_GROUPS_YES = 84
  };

  /// Which surface is written: the new one, the original one or both.
  enum Enum_OUTPUT_SURFACE_ : std::int32_t
  {
    OUTPUT_SURFACE_BOTH = 66,
    OUTPUT_SURFACE_NEW = 78,
    OUTPUT_SURFACE_ORIGINAL = 79
  };

  /// Switch for the original model in the VTF file.
  enum Enum_VTF_ORGMODEL_ : std::int32_t
  {
    VTF_ORGMODEL_NO = 70,
    VTF_ORGMODEL_YES = 84
  };

  /// Unit of length in the IGES file.
  enum Enum_IGES_UNIT_ : std::int32_t
  {
    IGES_UNIT_UM = 65,
    IGES_UNIT_MM = 66,
    IGES_UNIT_CM = 67,
    IGES_UNIT_M = 68,
    IGES_UNIT_KM = 69,
    IGES_UNIT_UIM = 70,
    IGES_UNIT_MI = 71,
    IGES_UNIT_I = 72,
    IGES_UNIT_FT = 73,
    IGES_UNIT_MIL = 74
  };

  /// Switch for slicing.
  enum Enum_SLICES_ : std::int32_t
  {
    SLICES_NO = 70,
    SLICES_YES = 84
  };

  /// Switch for primary slices, handed on unread.
  enum Enum_SLICE_PRIMARY_ : std::int32_t
  {
    SLICE_PRIMARY_NO = 70,
    SLICE_PRIMARY_YES = 84
  };

  /// Switch for intersections of the slices.
  enum Enum_SLICE_INTERSECTION_ : std::int32_t
  {
    SLICE_INTERSECTION_NO = 70,
    SLICE_INTERSECTION_YES = 84
  };

  /// Switch for reducing the points of the slice curves.
  enum Enum_SLICE_REDUCTION_ : std::int32_t
  {
    SLICE_REDUCTION_NO = 70,
    SLICE_REDUCTION_YES = 84
  };

  /// Switch for the offset of the slices.
  enum Enum_SLICE_OFFSET_ : std::int32_t
  {
    SLICE_OFFSET_NO = 70,
    SLICE_OFFSET_YES = 84
  };

  /// Switch for filtering the slice curves.
  enum Enum_SLICE_FILTER_CURVES_ : std::int32_t
  {
    SLICE_FILTER_CURVES_NO = 70,
    SLICE_FILTER_CURVES_YES = 84
  };

  /// Format in which the slices are written.
  enum Enum_SLICE_FORMAT_ : std::int32_t
  {
    SLICE_FORMAT_ASCII_POINTS = 65,
    SLICE_FORMAT_IGES_CURVES = 67,
    SLICE_FORMAT_CLI = 76,
    SLICE_FORMAT_IGES_POLYGON = 80,
    SLICE_FORMAT_ALL = 88
  };

  /// Switch for extracting the border.
  enum Enum_BORDER_ : std::int32_t
  {
    BORDER_NO = 70,
    BORDER_YES = 84
  };

  /// Format in which the border is written.
  enum Enum_BORDER_FORMAT_ : std::int32_t
  {
    BORDER_FORMAT_ASCII_POINTS = 65,
    BORDER_FORMAT_IGES_CURVES = 67,
    BORDER_FORMAT_CLI = 76,
    BORDER_FORMAT_IGES_POLYGON = 80,
    BORDER_FORMAT_ALL = 88
  };

  /// Switch that turns sorting off.
  enum Enum_NO_SORT_ : std::int32_t
  {
    NO_SORT_NO = 70,
    NO_SORT_YES = 84
  };

  /// Switch for reducing the number of surface faces.
  enum Enum_REDUCTION_ : std::int32_t
  {
    REDUCTION_NO = 70,
    REDUCTION_YES = 84
  };

  /// How self-intersections of the surface are dealt with.
  enum Enum_SELF_INTERSECTION_ : std::int32_t
  {
    SELF_INTERSECTION_CHECK = 67,
    SELF_INTERSECTION_ITERATIVE = 73,
    SELF_INTERSECTION_OFF = 79,
    SELF_INTERSECTION_RUNTIME = 82
  };

  /// Whether the tolerance of the original surface is absolute or relative.
  enum Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_ : std::int32_t
  {
    ORIGINAL_SURFACE_TOLERANCE_TYPE_ABS = 65,
    ORIGINAL_SURFACE_TOLERANCE_TYPE_REL = 82
  };

  /// Switch for a mesh of mixed elements.
  enum Enum_MIXED_MESH_ : std::int32_t
  {
    MIXED_MESH_NO = 70,
    MIXED_MESH_YES = 84
  };

  /// Switch for excluding what carries a load.
  enum Enum_EXCLUDE_LOADED_ : std::int32_t
  {
    EXCLUDE_LOADED_NO = 70,
    EXCLUDE_LOADED_YES = 84
  };

  /// Whether the sequence of iso values is constant or incremental.
  enum Enum_ISO_SEQUENCE_ : std::int32_t
  {
    ISO_SEQUENCE_CONST = 67,
    ISO_SEQUENCE_INCR = 70
  };

  /// How far the original surface is smoothed.
  enum Enum_O_SURF_SMOOTHING_ : std::int32_t
  {
    O_SURF_SMOOTHING_FULL = 70,
    O_SURF_SMOOTHING_OFF = 79,
    O_SURF_SMOOTHING_SHRINK = 83
  };

  /// How far the result is filtered.
  enum Enum_RESULT_FILTERING_ : std::int32_t
  {
    RESULT_FILTERING_FULL = 70,
    RESULT_FILTERING_MODERATE = 77,
    RESULT_FILTERING_OFF = 79
  };

  /// Switch for the IF smoothing, handed on unread.
  enum Enum_IF_SMOOTHING_ : std::int32_t
  {
    IF_SMOOTHING_NO = 70,
    IF_SMOOTHING_YES = 84
  };

  /// Switch for the IF smoothing of frozen regions, handed on unread.
  enum Enum_IF_SMOOTH_FROZEN_ : std::int32_t
  {
    IF_SMOOTH_FROZEN_NO = 70,
    IF_SMOOTH_FROZEN_YES = 84
  };

  /// Switch for correcting the shrinkage that smoothing causes.
  enum Enum_SHRINKAGE_CORRECTION_ : std::int32_t
  {
    SHRINKAGE_CORRECTION_NO = 70,
    SHRINKAGE_CORRECTION_YES = 84
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "SMOOTH";

  /// "SMOOTH_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  SMOOTH_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  SMOOTH_(const SMOOTH_& other) = default;

  /// References are taken as pointers too.
  SMOOTH_& operator=(const SMOOTH_& other) = default;

  ~SMOOTH_() override = default;

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
  static std::string GetEnumName(Enum_TASK_ value);
  static std::string GetEnumName(Enum_ALL_ITERATIONS_ value);
  static std::string GetEnumName(Enum_VTM_RESULT_ value);
  static std::string GetEnumName(Enum_FORMAT_ value);
  static std::string GetEnumName(Enum_STL_GROUPS_ value);
  static std::string GetEnumName(Enum_OUTPUT_SURFACE_ value);
  static std::string GetEnumName(Enum_VTF_ORGMODEL_ value);
  static std::string GetEnumName(Enum_IGES_UNIT_ value);
  static std::string GetEnumName(Enum_SLICES_ value);
  static std::string GetEnumName(Enum_SLICE_PRIMARY_ value);
  static std::string GetEnumName(Enum_SLICE_INTERSECTION_ value);
  static std::string GetEnumName(Enum_SLICE_REDUCTION_ value);
  static std::string GetEnumName(Enum_SLICE_OFFSET_ value);
  static std::string GetEnumName(Enum_SLICE_FILTER_CURVES_ value);
  static std::string GetEnumName(Enum_SLICE_FORMAT_ value);
  static std::string GetEnumName(Enum_BORDER_ value);
  static std::string GetEnumName(Enum_BORDER_FORMAT_ value);
  static std::string GetEnumName(Enum_NO_SORT_ value);
  static std::string GetEnumName(Enum_REDUCTION_ value);
  static std::string GetEnumName(Enum_SELF_INTERSECTION_ value);
  static std::string GetEnumName(Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_ value);
  static std::string GetEnumName(Enum_MIXED_MESH_ value);
  static std::string GetEnumName(Enum_EXCLUDE_LOADED_ value);
  static std::string GetEnumName(Enum_ISO_SEQUENCE_ value);
  static std::string GetEnumName(Enum_O_SURF_SMOOTHING_ value);
  static std::string GetEnumName(Enum_RESULT_FILTERING_ value);
  static std::string GetEnumName(Enum_IF_SMOOTHING_ value);
  static std::string GetEnumName(Enum_IF_SMOOTH_FROZEN_ value);
  static std::string GetEnumName(Enum_SHRINKAGE_CORRECTION_ value);
  /// @}

  /// Patch id, as plain text that is handed on unread and not checked against the model.
  const std::string& GetPATCH_ID_() const { return m_PATCH_ID_; }

  /// What the job makes: an iso surface, a surface or a volume.
  const Enum_TASK_& GetTASK_() const { return m_TASK_; }

  /// Switch for working on all iterations of the result.
  const Enum_ALL_ITERATIONS_& GetALL_ITERATIONS_() const { return m_ALL_ITERATIONS_; }

  /// Iso value at which the surface is cut from the result; no range is checked.
  const double& GetISO_VALUE_() const { return m_ISO_VALUE_; }

  /// Volume to reach, in place of an iso value; no range is checked.
  const double& GetTARGET_VOLUME_() const { return m_TARGET_VOLUME_; }

  /// File that holds the model.
  const std::string& GetMODEL_FILE_() const { return m_MODEL_FILE_; }

  /// Whether MODEL_FILE_ is there.
  bool HasMODEL_FILE_() const { return m_has_MODEL_FILE_; }

  /// File that holds the result of the optimization.
  const std::string& GetRESULT_FILE_() const { return m_RESULT_FILE_; }

  /// Iterations to work from, read in one piece.
  const std::vector<int>& GetITERATION_() const { return m_ITERATION_; }

  /// Whether ITERATION_ is there.
  bool HasITERATION_() const { return m_has_ITERATION_; }

  /// Switch for a result in the VTM form, handed on unread.
  const Enum_VTM_RESULT_& GetVTM_RESULT_() const { return m_VTM_RESULT_; }

  /// Name of the file that is written.
  const std::string& GetOUTPUT_FILE_() const { return m_OUTPUT_FILE_; }

  /// Whether OUTPUT_FILE_ is there.
  bool HasOUTPUT_FILE_() const { return m_has_OUTPUT_FILE_; }

  /// Formats in which the output is written.
  const std::vector<Enum_FORMAT_>& GetFORMAT_() const { return m_FORMAT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumFORMAT_().
  const Enum_FORMAT_& GetFORMAT_(std::uint64_t index) const { return m_FORMAT_[index - 1]; }

  /// How many values FORMAT_ has.
  std::uint64_t NumFORMAT_() const { return m_num_FORMAT_; }

  /// Switch for groups in the STL file.
  const Enum_STL_GROUPS_& GetSTL_GROUPS_() const { return m_STL_GROUPS_; }

  /// Which surface is written: the new one, the original one or both.
  const Enum_OUTPUT_SURFACE_& GetOUTPUT_SURFACE_() const { return m_OUTPUT_SURFACE_; }

  /// Switch for the original model in the VTF file.
  const Enum_VTF_ORGMODEL_& GetVTF_ORGMODEL_() const { return m_VTF_ORGMODEL_; }

  /// Unit of length in the IGES file.
  const Enum_IGES_UNIT_& GetIGES_UNIT_() const { return m_IGES_UNIT_; }

  /// Switch for slicing.
  const Enum_SLICES_& GetSLICES_() const { return m_SLICES_; }

  /// Positions of the slices along X.
  const std::vector<double>& GetSLICE_X_() const { return m_SLICE_X_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumSLICE_X_().
  const double& GetSLICE_X_(std::uint64_t index) const { return m_SLICE_X_[index - 1]; }

  /// How many values SLICE_X_ has.
  std::uint64_t NumSLICE_X_() const { return m_num_SLICE_X_; }

  /// Positions of the slices along Y.
  const std::vector<double>& GetSLICE_Y_() const { return m_SLICE_Y_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumSLICE_Y_().
  const double& GetSLICE_Y_(std::uint64_t index) const { return m_SLICE_Y_[index - 1]; }

  /// How many values SLICE_Y_ has.
  std::uint64_t NumSLICE_Y_() const { return m_num_SLICE_Y_; }

  /// Positions of the slices along Z.
  const std::vector<double>& GetSLICE_Z_() const { return m_SLICE_Z_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumSLICE_Z_().
  const double& GetSLICE_Z_(std::uint64_t index) const { return m_SLICE_Z_[index - 1]; }

  /// How many values SLICE_Z_ has.
  std::uint64_t NumSLICE_Z_() const { return m_num_SLICE_Z_; }

  /// Switch for primary slices, handed on unread.
  const Enum_SLICE_PRIMARY_& GetSLICE_PRIMARY_() const { return m_SLICE_PRIMARY_; }

  /// Number of slices.
  const int& GetSLICE_NUMBER_() const { return m_SLICE_NUMBER_; }

  /// Distance between slices; no range is checked.
  const double& GetSLICE_DISTANCE_() const { return m_SLICE_DISTANCE_; }

  /// Switch for intersections of the slices.
  const Enum_SLICE_INTERSECTION_& GetSLICE_INTERSECTION_() const { return m_SLICE_INTERSECTION_; }

  /// Switch for reducing the points of the slice curves.
  const Enum_SLICE_REDUCTION_& GetSLICE_REDUCTION_() const { return m_SLICE_REDUCTION_; }

  /// Angle for reducing the slice curves, handed on without conversion.
  const double& GetSLICE_RED_ANGLE_() const { return m_SLICE_RED_ANGLE_; }

  /// Switch for the offset of the slices.
  const Enum_SLICE_OFFSET_& GetSLICE_OFFSET_() const { return m_SLICE_OFFSET_; }

  /// Quantity of the slice refinement, a whole number that is handed on unread.
  const int& GetSLICE_REF_QUANT_() const { return m_SLICE_REF_QUANT_; }

  /// Factor of the slice refinement, handed on unread.
  const double& GetSLICE_REF_FACTOR_() const { return m_SLICE_REF_FACTOR_; }

  /// Switch for filtering the slice curves.
  const Enum_SLICE_FILTER_CURVES_& GetSLICE_FILTER_CURVES_() const { return m_SLICE_FILTER_CURVES_; }

  /// Format in which the slices are written.
  const Enum_SLICE_FORMAT_& GetSLICE_FORMAT_() const { return m_SLICE_FORMAT_; }

  /// Switch for extracting the border.
  const Enum_BORDER_& GetBORDER_() const { return m_BORDER_; }

  /// Format in which the border is written.
  const Enum_BORDER_FORMAT_& GetBORDER_FORMAT_() const { return m_BORDER_FORMAT_; }

  /// File that holds groups.
  const std::string& GetGROUP_FILE_() const { return m_GROUP_FILE_; }

  /// Groups to exclude, as plain names that are not checked against the model.
  const std::vector<std::string>& GetEXCLUDE_GROUP_() const { return m_EXCLUDE_GROUP_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumEXCLUDE_GROUP_().
  const std::string& GetEXCLUDE_GROUP_(std::uint64_t index) const { return m_EXCLUDE_GROUP_[index - 1]; }

  /// How many values EXCLUDE_GROUP_ has.
  std::uint64_t NumEXCLUDE_GROUP_() const { return m_num_EXCLUDE_GROUP_; }

  /// Groups to include, as plain names that are not checked against the model.
  const std::vector<std::string>& GetINCLUDE_GROUP_() const { return m_INCLUDE_GROUP_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumINCLUDE_GROUP_().
  const std::string& GetINCLUDE_GROUP_(std::uint64_t index) const { return m_INCLUDE_GROUP_[index - 1]; }

  /// How many values INCLUDE_GROUP_ has.
  std::uint64_t NumINCLUDE_GROUP_() const { return m_num_INCLUDE_GROUP_; }

  /// Groups of the surface, as plain names that are not checked against the model.
  const std::vector<std::string>& GetSURFACE_GROUP_() const { return m_SURFACE_GROUP_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumSURFACE_GROUP_().
  const std::string& GetSURFACE_GROUP_(std::uint64_t index) const { return m_SURFACE_GROUP_[index - 1]; }

  /// How many values SURFACE_GROUP_ has.
  std::uint64_t NumSURFACE_GROUP_() const { return m_num_SURFACE_GROUP_; }

  /// Name of the ND group, as plain text that is not checked against the model.
  const std::string& GetND_GROUP_() const { return m_ND_GROUP_; }

  /// Whether ND_GROUP_ is there.
  bool HasND_GROUP_() const { return m_has_ND_GROUP_; }

  /// Groups with an iso value of their own, as plain names that are not checked against the model.
  const std::vector<std::string>& GetISO_GROUP_NAME_() const { return m_ISO_GROUP_NAME_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumISO_GROUP_NAME_().
  const std::string& GetISO_GROUP_NAME_(std::uint64_t index) const { return m_ISO_GROUP_NAME_[index - 1]; }

  /// How many values ISO_GROUP_NAME_ has.
  std::uint64_t NumISO_GROUP_NAME_() const { return m_num_ISO_GROUP_NAME_; }

  /// Iso values of these groups, in the same order; the two counts are not compared.
  const std::vector<double>& GetISO_GROUP_VALUE_() const { return m_ISO_GROUP_VALUE_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumISO_GROUP_VALUE_().
  const double& GetISO_GROUP_VALUE_(std::uint64_t index) const { return m_ISO_GROUP_VALUE_[index - 1]; }

  /// How many values ISO_GROUP_VALUE_ has.
  std::uint64_t NumISO_GROUP_VALUE_() const { return m_num_ISO_GROUP_VALUE_; }

  /// Groups with a volume of their own, as plain names that are not checked against the model.
  const std::vector<std::string>& GetVOL_GROUP_NAME_() const { return m_VOL_GROUP_NAME_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumVOL_GROUP_NAME_().
  const std::string& GetVOL_GROUP_NAME_(std::uint64_t index) const { return m_VOL_GROUP_NAME_[index - 1]; }

  /// How many values VOL_GROUP_NAME_ has.
  std::uint64_t NumVOL_GROUP_NAME_() const { return m_num_VOL_GROUP_NAME_; }

  /// Volumes of these groups, in the same order; the two counts are not compared.
  const std::vector<double>& GetVOL_GROUP_VALUE_() const { return m_VOL_GROUP_VALUE_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumVOL_GROUP_VALUE_().
  const double& GetVOL_GROUP_VALUE_(std::uint64_t index) const { return m_VOL_GROUP_VALUE_[index - 1]; }

  /// How many values VOL_GROUP_VALUE_ has.
  std::uint64_t NumVOL_GROUP_VALUE_() const { return m_num_VOL_GROUP_VALUE_; }

  /// Number of smoothing cycles.
  const int& GetSMOOTH_CYCLES_() const { return m_SMOOTH_CYCLES_; }

  /// Switch that turns sorting off.
  const Enum_NO_SORT_& GetNO_SORT_() const { return m_NO_SORT_; }

  /// Lower limit of the density at a wall.
  const double& GetMIN_DENS_WALL_() const { return m_MIN_DENS_WALL_; }

  /// Switch for reducing the number of surface faces.
  const Enum_REDUCTION_& GetREDUCTION_() const { return m_REDUCTION_; }

  /// Rate of the reduction; no range is checked.
  const double& GetREDUCTION_RATE_() const { return m_REDUCTION_RATE_; }

  /// Angle for the reduction, handed on without conversion.
  const double& GetREDUCTION_ANGLE_() const { return m_REDUCTION_ANGLE_; }

  /// Smallest angle, handed on without conversion.
  const double& GetMIN_ANGLE_() const { return m_MIN_ANGLE_; }

  /// Smallest face angle, handed on without conversion.
  const double& GetMIN_FACE_ANGLE_() const { return m_MIN_FACE_ANGLE_; }

  /// How self-intersections of the surface are dealt with.
  const Enum_SELF_INTERSECTION_& GetSELF_INTERSECTION_() const { return m_SELF_INTERSECTION_; }

  /// Tolerance of the original surface; independent of whether its type is given.
  const double& GetORIGINAL_SURFACE_TOLERANCE_VALUE_() const { return m_ORIGINAL_SURFACE_TOLERANCE_VALUE_; }

  /// Whether ORIGINAL_SURFACE_TOLERANCE_VALUE_ is there.
  bool HasORIGINAL_SURFACE_TOLERANCE_VALUE_() const { return m_has_ORIGINAL_SURFACE_TOLERANCE_VALUE_; }

  /// Whether the tolerance of the original surface is absolute or relative.
  const Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_& GetORIGINAL_SURFACE_TOLERANCE_TYPE_() const { return m_ORIGINAL_SURFACE_TOLERANCE_TYPE_; }

  /// Whether ORIGINAL_SURFACE_TOLERANCE_TYPE_ is there.
  bool HasORIGINAL_SURFACE_TOLERANCE_TYPE_() const { return m_has_ORIGINAL_SURFACE_TOLERANCE_TYPE_; }

  /// Switch for a mesh of mixed elements.
  const Enum_MIXED_MESH_& GetMIXED_MESH_() const { return m_MIXED_MESH_; }

  /// Switch for excluding what carries a load.
  const Enum_EXCLUDE_LOADED_& GetEXCLUDE_LOADED_() const { return m_EXCLUDE_LOADED_; }

  /// Whether the sequence of iso values is constant or incremental.
  const Enum_ISO_SEQUENCE_& GetISO_SEQUENCE_() const { return m_ISO_SEQUENCE_; }

  /// How far the original surface is smoothed.
  const Enum_O_SURF_SMOOTHING_& GetO_SURF_SMOOTHING_() const { return m_O_SURF_SMOOTHING_; }

  /// How far the result is filtered.
  const Enum_RESULT_FILTERING_& GetRESULT_FILTERING_() const { return m_RESULT_FILTERING_; }

  /// Scale of the input; no range is checked.
  const double& GetINPUT_SCALE_() const { return m_INPUT_SCALE_; }

  /// Limit size of a component; no range is checked.
  const double& GetCOMPONENT_LIM_SIZE_() const { return m_COMPONENT_LIM_SIZE_; }

  /// Switch for the IF smoothing, handed on unread.
  const Enum_IF_SMOOTHING_& GetIF_SMOOTHING_() const { return m_IF_SMOOTHING_; }

  /// Switch for the IF smoothing of frozen regions, handed on unread.
  const Enum_IF_SMOOTH_FROZEN_& GetIF_SMOOTH_FROZEN_() const { return m_IF_SMOOTH_FROZEN_; }

  /// Tolerance of the IF smoothing; no range is checked.
  const double& GetIF_TOLERANCE_() const { return m_IF_TOLERANCE_; }

  /// Number of cycles at the border in the IF smoothing.
  const int& GetIF_BORDER_CYCLES_() const { return m_IF_BORDER_CYCLES_; }

  /// Number of inner cycles in the IF smoothing.
  const int& GetIF_INNER_CYCLES_() const { return m_IF_INNER_CYCLES_; }

  /// Switch for correcting the shrinkage that smoothing causes.
  const Enum_SHRINKAGE_CORRECTION_& GetSHRINKAGE_CORRECTION_() const { return m_SHRINKAGE_CORRECTION_; }

  /// Parameter alpha of the Laplace smoothing.
  const double& GetLAPLACE_ALPHA_() const { return m_LAPLACE_ALPHA_; }

  /// Parameter beta of the Laplace smoothing.
  const double& GetLAPLACE_BETA_() const { return m_LAPLACE_BETA_; }

  /// Tolerance at a wall; no range is checked.
  const double& GetWALL_TOLERANCE_() const { return m_WALL_TOLERANCE_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_PATCH_ID_;
  Enum_TASK_ m_TASK_ = static_cast<Enum_TASK_>(0);
  Enum_ALL_ITERATIONS_ m_ALL_ITERATIONS_ = static_cast<Enum_ALL_ITERATIONS_>(0);
  double m_ISO_VALUE_ = 0.0;
  double m_TARGET_VOLUME_ = 0.0;
  bool m_has_MODEL_FILE_ = false;
  std::string m_MODEL_FILE_;
  std::string m_RESULT_FILE_;
  bool m_has_ITERATION_ = false;
  std::vector<int> m_ITERATION_;
  Enum_VTM_RESULT_ m_VTM_RESULT_ = static_cast<Enum_VTM_RESULT_>(0);
  bool m_has_OUTPUT_FILE_ = false;
  std::string m_OUTPUT_FILE_;
  std::uint64_t m_num_FORMAT_ = 0;
  std::vector<Enum_FORMAT_> m_FORMAT_;
  Enum_STL_GROUPS_ m_STL_GROUPS_ = static_cast<Enum_STL_GROUPS_>(0);
  Enum_OUTPUT_SURFACE_ m_OUTPUT_SURFACE_ = static_cast<Enum_OUTPUT_SURFACE_>(0);
  Enum_VTF_ORGMODEL_ m_VTF_ORGMODEL_ = static_cast<Enum_VTF_ORGMODEL_>(0);
  Enum_IGES_UNIT_ m_IGES_UNIT_ = static_cast<Enum_IGES_UNIT_>(0);
  Enum_SLICES_ m_SLICES_ = static_cast<Enum_SLICES_>(0);
  std::uint64_t m_num_SLICE_X_ = 0;
  std::vector<double> m_SLICE_X_;
  std::uint64_t m_num_SLICE_Y_ = 0;
  std::vector<double> m_SLICE_Y_;
  std::uint64_t m_num_SLICE_Z_ = 0;
  std::vector<double> m_SLICE_Z_;
  Enum_SLICE_PRIMARY_ m_SLICE_PRIMARY_ = static_cast<Enum_SLICE_PRIMARY_>(0);
  int m_SLICE_NUMBER_ = 0;
  double m_SLICE_DISTANCE_ = 0.0;
  Enum_SLICE_INTERSECTION_ m_SLICE_INTERSECTION_ = static_cast<Enum_SLICE_INTERSECTION_>(0);
  Enum_SLICE_REDUCTION_ m_SLICE_REDUCTION_ = static_cast<Enum_SLICE_REDUCTION_>(0);
  double m_SLICE_RED_ANGLE_ = 0.0;
  Enum_SLICE_OFFSET_ m_SLICE_OFFSET_ = static_cast<Enum_SLICE_OFFSET_>(0);
  int m_SLICE_REF_QUANT_ = 0;
  double m_SLICE_REF_FACTOR_ = 0.0;
  Enum_SLICE_FILTER_CURVES_ m_SLICE_FILTER_CURVES_ = static_cast<Enum_SLICE_FILTER_CURVES_>(0);
  Enum_SLICE_FORMAT_ m_SLICE_FORMAT_ = static_cast<Enum_SLICE_FORMAT_>(0);
  Enum_BORDER_ m_BORDER_ = static_cast<Enum_BORDER_>(0);
  Enum_BORDER_FORMAT_ m_BORDER_FORMAT_ = static_cast<Enum_BORDER_FORMAT_>(0);
  std::string m_GROUP_FILE_;
  std::uint64_t m_num_EXCLUDE_GROUP_ = 0;
  std::vector<std::string> m_EXCLUDE_GROUP_;
  std::uint64_t m_num_INCLUDE_GROUP_ = 0;
  std::vector<std::string> m_INCLUDE_GROUP_;
  std::uint64_t m_num_SURFACE_GROUP_ = 0;
  std::vector<std::string> m_SURFACE_GROUP_;
  bool m_has_ND_GROUP_ = false;
  std::string m_ND_GROUP_;
  std::uint64_t m_num_ISO_GROUP_NAME_ = 0;
  std::vector<std::string> m_ISO_GROUP_NAME_;
  std::uint64_t m_num_ISO_GROUP_VALUE_ = 0;
  std::vector<double> m_ISO_GROUP_VALUE_;
  std::uint64_t m_num_VOL_GROUP_NAME_ = 0;
  std::vector<std::string> m_VOL_GROUP_NAME_;
  std::uint64_t m_num_VOL_GROUP_VALUE_ = 0;
  std::vector<double> m_VOL_GROUP_VALUE_;
  int m_SMOOTH_CYCLES_ = 0;
  Enum_NO_SORT_ m_NO_SORT_ = static_cast<Enum_NO_SORT_>(0);
  double m_MIN_DENS_WALL_ = 0.0;
  Enum_REDUCTION_ m_REDUCTION_ = static_cast<Enum_REDUCTION_>(0);
  double m_REDUCTION_RATE_ = 0.0;
  double m_REDUCTION_ANGLE_ = 0.0;
  double m_MIN_ANGLE_ = 0.0;
  double m_MIN_FACE_ANGLE_ = 0.0;
  Enum_SELF_INTERSECTION_ m_SELF_INTERSECTION_ = static_cast<Enum_SELF_INTERSECTION_>(0);
  bool m_has_ORIGINAL_SURFACE_TOLERANCE_VALUE_ = false;
  double m_ORIGINAL_SURFACE_TOLERANCE_VALUE_ = 0.0;
  bool m_has_ORIGINAL_SURFACE_TOLERANCE_TYPE_ = false;
  Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_ m_ORIGINAL_SURFACE_TOLERANCE_TYPE_ = static_cast<Enum_ORIGINAL_SURFACE_TOLERANCE_TYPE_>(0);
  Enum_MIXED_MESH_ m_MIXED_MESH_ = static_cast<Enum_MIXED_MESH_>(0);
  Enum_EXCLUDE_LOADED_ m_EXCLUDE_LOADED_ = static_cast<Enum_EXCLUDE_LOADED_>(0);
  Enum_ISO_SEQUENCE_ m_ISO_SEQUENCE_ = static_cast<Enum_ISO_SEQUENCE_>(0);
  Enum_O_SURF_SMOOTHING_ m_O_SURF_SMOOTHING_ = static_cast<Enum_O_SURF_SMOOTHING_>(0);
  Enum_RESULT_FILTERING_ m_RESULT_FILTERING_ = static_cast<Enum_RESULT_FILTERING_>(0);
  double m_INPUT_SCALE_ = 0.0;
  double m_COMPONENT_LIM_SIZE_ = 0.0;
  Enum_IF_SMOOTHING_ m_IF_SMOOTHING_ = static_cast<Enum_IF_SMOOTHING_>(0);
  Enum_IF_SMOOTH_FROZEN_ m_IF_SMOOTH_FROZEN_ = static_cast<Enum_IF_SMOOTH_FROZEN_>(0);
  double m_IF_TOLERANCE_ = 0.0;
  int m_IF_BORDER_CYCLES_ = 0;
  int m_IF_INNER_CYCLES_ = 0;
  Enum_SHRINKAGE_CORRECTION_ m_SHRINKAGE_CORRECTION_ = static_cast<Enum_SHRINKAGE_CORRECTION_>(0);
  double m_LAPLACE_ALPHA_ = 0.0;
  double m_LAPLACE_BETA_ = 0.0;
  double m_WALL_TOLERANCE_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
