/// \file
/// The command DRESP_. The const operations of a loaded command may be used from several threads.
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
class DV_CONSTRAINT_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Design response: a quantity of the analysis to minimise, to constrain or merely to watch.
class ORVELCOMMANDS_EXPORT DRESP_ : public OrvelCommand
{
public:
  /// Quantity of the analysis, such as a pressure drop, a swirl, a displacement or the volume.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_DISP_ABS = 8,
    TYPE_ROT_ABS = 9,
    TYPE_ROT_X = 11,
    TYPE_ROT_Y = 13,
    TYPE_ROT_Z = 15,
    TYPE_DISP_X = 17,
    TYPE_DISP_Y = 19,
    TYPE_DISP_Z = 21,
    TYPE_DYN_FREQ = 26,
    TYPE_ENERGY_STIFF_MEASURE = 29,
    TYPE_INTERNAL_FORCE_ABS = 60,
    TYPE_INTERNAL_FORCE_X = 62,
    TYPE_INTERNAL_FORCE_Y = 64,
    TYPE_INTERNAL_FORCE_Z = 66,
    TYPE_INTERNAL_MOMENT_ABS = 68,
    TYPE_INTERNAL_MOMENT_X = 70,
    TYPE_INTERNAL_MOMENT_Y = 72,
    TYPE_INTERNAL_MOMENT_Z = 74,
    TYPE_REACTION_FORCE_ABS = 87,
    TYPE_REACTION_FORCE_X = 89,
    TYPE_REACTION_FORCE_Y = 91,
    TYPE_REACTION_FORCE_Z = 93,
    TYPE_REACTION_MOMENT_ABS = 95,
    TYPE_REACTION_MOMENT_X = 97,
    TYPE_REACTION_MOMENT_Y = 99,
    TYPE_REACTION_MOMENT_Z = 101,
    TYPE_SENSITIVITY_ONF = 106,
    TYPE_VOLUME = 146,
    TYPE_CUSTOM = 1000,
    TYPE_PRESSURE_DROP = 1001,
    TYPE_UNIFORMITY = 1002,
    TYPE_SWIRL = 1003,
    TYPE_TUMBLE = 1004,
    TYPE_BACKFLOW = 1005
  };

  /// Whether the value is calculated or received.
  enum Enum_UPDATE_TYPE_ : std::int32_t
  {
    UPDATE_TYPE_CALCULATED = 67,
    UPDATE_TYPE_RECEIVED = 82
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "DRESP";

  /// "DRESP_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  DRESP_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  DRESP_(const DRESP_& other) = default;

  /// References are taken as pointers too.
  DRESP_& operator=(const DRESP_& other) = default;

  ~DRESP_() override = default;

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

  /// Quantity of the analysis, such as a pressure drop, a swirl, a displacement or the volume.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// Whether the value is calculated or received.
  const Enum_UPDATE_TYPE_& GetUPDATE_TYPE_() const { return m_UPDATE_TYPE_; }

  /// Name under which the value is updated, as plain text that is not checked against the model.
  const std::string& GetUPDATE_ID_() const { return m_UPDATE_ID_; }

  /// Index that goes with the name under which the value is updated.
  const int& GetUPDATE_INDEX_() const { return m_UPDATE_INDEX_; }

  /// Faces on which the response is taken.
  const std::string& GetFACE_GROUP_() const { return m_FACE_GROUP_; }

  /// Whether FACE_GROUP_ is there.
  bool HasFACE_GROUP_() const { return m_has_FACE_GROUP_; }

  /// Second group of faces on which the response is taken.
  const std::string& GetFACE_GROUP_ADD_() const { return m_FACE_GROUP_ADD_; }

  /// Whether FACE_GROUP_ADD_ is there.
  bool HasFACE_GROUP_ADD_() const { return m_has_FACE_GROUP_ADD_; }

  /// Elements on which the response is taken.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

  /// Whether ELEMENT_GROUP_ is there.
  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }

  /// Nodes on which the response is taken.
  const std::string& GetNODE_GROUP_() const { return m_NODE_GROUP_; }

  /// Whether NODE_GROUP_ is there.
  bool HasNODE_GROUP_() const { return m_has_NODE_GROUP_; }

  /// Interval of writing in the run that computes the response.
  const int& GetWRITE_INTERVAL_() const { return m_WRITE_INTERVAL_; }

  /// Number of the load case on which the response is taken.
  const int& GetLOADCASE_() const { return m_LOADCASE_; }

  /// Most iterations of the run that computes the response.
  const int& GetITER_MAX_() const { return m_ITER_MAX_; }

  /// Fewest iterations of the run that computes the response; not compared with the most.
  const int& GetITER_MIN_() const { return m_ITER_MIN_; }

  /// Residual limit of the run that computes the response.
  const double& GetRESIDUAL_() const { return m_RESIDUAL_; }

  /// Residual limit of the adjoint run.
  const double& GetADJOINT_RESIDUAL_() const { return m_ADJOINT_RESIDUAL_; }

  /// Deviation limit of the adjoint run.
  const double& GetADJOINT_DEVIATION_() const { return m_ADJOINT_DEVIATION_; }

  /// Deviation limit of the objective.
  const double& GetOBJECTIVE_DEVIATION_() const { return m_OBJECTIVE_DEVIATION_; }

  /// Restriction on the design variables that belongs to the response.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const DV_CONSTRAINT_& GetDV_CONSTRAINT_() const { return *m_DV_CONSTRAINT_; }

  /// Whether DV_CONSTRAINT_ is there.
  bool HasDV_CONSTRAINT_() const { return m_has_DV_CONSTRAINT_; }

  /// File that belongs to the response.
  const std::string& GetFILE_() const { return m_FILE_; }

  /// Whether FILE_ is there.
  bool HasFILE_() const { return m_has_FILE_; }

  /// Coordinate system of the model for the response, not one defined in the parameter file.
  const std::string& GetCS_REF_() const { return m_CS_REF_; }

  /// Whether CS_REF_ is there.
  bool HasCS_REF_() const { return m_has_CS_REF_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  Enum_UPDATE_TYPE_ m_UPDATE_TYPE_ = static_cast<Enum_UPDATE_TYPE_>(0);
  std::string m_UPDATE_ID_;
  int m_UPDATE_INDEX_ = 0;
  bool m_has_FACE_GROUP_ = false;
  std::string m_FACE_GROUP_;
  bool m_has_FACE_GROUP_ADD_ = false;
  std::string m_FACE_GROUP_ADD_;
  bool m_has_ELEMENT_GROUP_ = false;
  std::string m_ELEMENT_GROUP_;
  bool m_has_NODE_GROUP_ = false;
  std::string m_NODE_GROUP_;
  int m_WRITE_INTERVAL_ = 0;
  int m_LOADCASE_ = 0;
  int m_ITER_MAX_ = 0;
  int m_ITER_MIN_ = 0;
  double m_RESIDUAL_ = 0.0;
  double m_ADJOINT_RESIDUAL_ = 0.0;
  double m_ADJOINT_DEVIATION_ = 0.0;
  double m_OBJECTIVE_DEVIATION_ = 0.0;
  bool m_has_DV_CONSTRAINT_ = false;
  const DV_CONSTRAINT_* m_DV_CONSTRAINT_ = nullptr;
  bool m_has_FILE_ = false;
  std::string m_FILE_;
  bool m_has_CS_REF_ = false;
  std::string m_CS_REF_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
