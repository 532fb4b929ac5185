/// \file
/// The command OUTPUT_. The const operations of a loaded command may be used from several threads.
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

/// What the job writes out: file, format, iterations and the kind of data and result.
class ORVELCOMMANDS_EXPORT OUTPUT_ : public OrvelCommand
{
public:
  /// Format of the file.
  enum Enum_FORMAT_ : std::int32_t
  {
    FORMAT_CSV = 67,
    FORMAT_ONF = 79,
    FORMAT_VTFX_PLOT = 80,
    FORMAT_VTK = 86,
    FORMAT_WRL = 87
  };

  /// Kind of data that is written.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_CONSTRAINT_DATA = 67,
    TYPE_SENSITIVITY_DATA = 71,
    TYPE_SHAPE_DATA = 72,
    TYPE_LEVELSET_DATA = 76,
    TYPE_MODEL = 77,
    TYPE_OPT_FUNC_DATA = 79,
    TYPE_CELL_SET = 83,
    TYPE_TOPO_DATA = 84
  };

  /// Result that is written: tracks, material or velocity.
  enum Enum_RESULT_ : std::int32_t
  {
    RESULT_PTRACK = 80,
    RESULT_MATERIAL = 83,
    RESULT_VELOCITY = 86
  };

  /// Algorithm of the spread, named by the tracks that it takes.
  enum Enum_SPREAD_ALGO_ : std::int32_t
  {
    SPREAD_ALGO_ALL_PTRACKS = 65,
    SPREAD_ALGO_FASTEST_PTRACK = 70,
    SPREAD_ALGO_POST_PRIMARY = 79,
    SPREAD_ALGO_PRE_PRIMARY = 82,
    SPREAD_ALGO_PTRACK_SET = 83
  };

  /// Switch for inverting what is written.
  enum Enum_INVERT_ : std::int32_t
  {
    INVERT_NO = 70,
    INVERT_YES = 84
  };

  /// Switch for writing the design space alone.
  enum Enum_DESIGN_ONLY_ : std::int32_t
  {
    DESIGN_ONLY_NO = 70,
    DESIGN_ONLY_YES = 84
  };

  /// Switch for keeping the data of the post-processing.
  enum Enum_KEEP_POST_DATA_ : std::int32_t
  {
    KEEP_POST_DATA_NO = 70,
    KEEP_POST_DATA_YES = 84
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "OUTPUT";

  /// "OUTPUT_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  OUTPUT_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  OUTPUT_(const OUTPUT_& other) = default;

  /// References are taken as pointers too.
  OUTPUT_& operator=(const OUTPUT_& other) = default;

  ~OUTPUT_() override = default;

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
  static std::string GetEnumName(Enum_FORMAT_ value);
  static std::string GetEnumName(Enum_TYPE_ value);
  static std::string GetEnumName(Enum_RESULT_ value);
  static std::string GetEnumName(Enum_SPREAD_ALGO_ value);
  static std::string GetEnumName(Enum_INVERT_ value);
  static std::string GetEnumName(Enum_DESIGN_ONLY_ value);
  static std::string GetEnumName(Enum_KEEP_POST_DATA_ value);
  /// @}

  /// Name of the file that is written.
  const std::string& GetFILENAME_() const { return m_FILENAME_; }

  /// Format of the file.
  const Enum_FORMAT_& GetFORMAT_() const { return m_FORMAT_; }

  /// Iterations at which to write, read in one piece.
  const std::vector<int>& GetITERATION_() const { return m_ITERATION_; }

  /// Kind of data that is written.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// Result that is written: tracks, material or velocity.
  const Enum_RESULT_& GetRESULT_() const { return m_RESULT_; }

  /// Algorithm of the spread, named by the tracks that it takes.
  const Enum_SPREAD_ALGO_& GetSPREAD_ALGO_() const { return m_SPREAD_ALGO_; }

  /// Values of the cut-off, read in one piece and handed on unread.
  const std::vector<double>& GetCUTOFF_() const { return m_CUTOFF_; }

  /// Whether CUTOFF_ is there.
  bool HasCUTOFF_() const { return m_has_CUTOFF_; }

  /// Angle for judging backflow, a whole number that is handed on without conversion.
  const int& GetBACKFLOW_ANGLE_() const { return m_BACKFLOW_ANGLE_; }

  /// Percentage of the spread; no range is checked.
  const double& GetSPREAD_PERCENTAGE_() const { return m_SPREAD_PERCENTAGE_; }

  /// Switch for inverting what is written.
  const Enum_INVERT_& GetINVERT_() const { return m_INVERT_; }

  /// Switch for writing the design space alone.
  const Enum_DESIGN_ONLY_& GetDESIGN_ONLY_() const { return m_DESIGN_ONLY_; }

  /// Switch for keeping the data of the post-processing.
  const Enum_KEEP_POST_DATA_& GetKEEP_POST_DATA_() const { return m_KEEP_POST_DATA_; }

  /// Elements that are written; the name is checked against the model even if it is empty.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  std::string m_FILENAME_;
  Enum_FORMAT_ m_FORMAT_ = static_cast<Enum_FORMAT_>(0);
  std::vector<int> m_ITERATION_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  Enum_RESULT_ m_RESULT_ = static_cast<Enum_RESULT_>(0);
  Enum_SPREAD_ALGO_ m_SPREAD_ALGO_ = static_cast<Enum_SPREAD_ALGO_>(0);
  bool m_has_CUTOFF_ = false;
  std::vector<double> m_CUTOFF_;
  int m_BACKFLOW_ANGLE_ = 0;
  double m_SPREAD_PERCENTAGE_ = 0.0;
  Enum_INVERT_ m_INVERT_ = static_cast<Enum_INVERT_>(0);
  Enum_DESIGN_ONLY_ m_DESIGN_ONLY_ = static_cast<Enum_DESIGN_ONLY_>(0);
  Enum_KEEP_POST_DATA_ m_KEEP_POST_DATA_ = static_cast<Enum_KEEP_POST_DATA_>(0);
  std::string m_ELEMENT_GROUP_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
