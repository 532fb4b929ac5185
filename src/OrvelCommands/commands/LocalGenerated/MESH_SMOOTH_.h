/// \file
/// The command MESH_SMOOTH_. The const operations of a loaded command may be used from several threads.
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
class FILTER_;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Smoothing of the mesh during the run, on a group of faces, nodes or elements.
class ORVELCOMMANDS_EXPORT MESH_SMOOTH_ : public OrvelCommand
{
public:
  /// How the mesh is smoothed or its nodes are restricted.
  enum Enum_METHOD_ : std::int32_t
  {
    METHOD_CONSTRAINED_LAPLACIAN = 67,
    METHOD_RESTRICT_DOF = 68,
    METHOD_LAPLACE = 76,
    METHOD_NONE = 78,
    METHOD_CHECK_PENETRATION = 80,
    METHOD_RESTRICT_NODES_ON_PLANE = 82,
    METHOD_TRANSITION = 84,
    METHOD_TUM = 85
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "MESH_SMOOTH";

  /// "MESH_SMOOTH_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  MESH_SMOOTH_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  MESH_SMOOTH_(const MESH_SMOOTH_& other) = default;

  /// References are taken as pointers too.
  MESH_SMOOTH_& operator=(const MESH_SMOOTH_& other) = default;

  ~MESH_SMOOTH_() override = default;

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

  /// How the mesh is smoothed or its nodes are restricted.
  const Enum_METHOD_& GetMETHOD_() const { return m_METHOD_; }

  /// Cycle of the smoothing, a whole number; how many cycles are run is a key of its own.
  const int& GetCYCLE_() const { return m_CYCLE_; }

  /// Faces that the smoothing acts on.
  const std::string& GetFACE_GROUP_() const { return m_FACE_GROUP_; }

  /// Whether FACE_GROUP_ is there.
  bool HasFACE_GROUP_() const { return m_has_FACE_GROUP_; }

  /// Nodes that the smoothing acts on.
  const std::string& GetNODE_GROUP_() const { return m_NODE_GROUP_; }

  /// Whether NODE_GROUP_ is there.
  bool HasNODE_GROUP_() const { return m_has_NODE_GROUP_; }

  /// Elements that the smoothing acts on.
  const std::string& GetELEMENT_GROUP_() const { return m_ELEMENT_GROUP_; }

  /// Whether ELEMENT_GROUP_ is there.
  bool HasELEMENT_GROUP_() const { return m_has_ELEMENT_GROUP_; }

  /// Number of smoothing cycles.
  const int& GetSMOOTH_CYCLES_() const { return m_SMOOTH_CYCLES_; }

  /// Parameter alpha of the method.
  const double& GetALPHA_() const { return m_ALPHA_; }

  /// Parameter beta of the method.
  const double& GetBETA_() const { return m_BETA_; }

  /// Filter that belongs to the smoothing.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const FILTER_& GetFILTER_() const { return *m_FILTER_; }

  /// Whether FILTER_ is there.
  bool HasFILTER_() const { return m_has_FILTER_; }

  /// Restriction on the design variables that belongs to the smoothing.
  /// Requires: the reference is there and resolved; nothing is tested. Ownership: the parameter file's.
  const DV_CONSTRAINT_& GetDV_CONSTRAINT_() const { return *m_DV_CONSTRAINT_; }

  /// Whether DV_CONSTRAINT_ is there.
  bool HasDV_CONSTRAINT_() const { return m_has_DV_CONSTRAINT_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_METHOD_ m_METHOD_ = static_cast<Enum_METHOD_>(0);
  int m_CYCLE_ = 0;
  bool m_has_FACE_GROUP_ = false;
  std::string m_FACE_GROUP_;
  bool m_has_NODE_GROUP_ = false;
  std::string m_NODE_GROUP_;
  bool m_has_ELEMENT_GROUP_ = false;
  std::string m_ELEMENT_GROUP_;
  int m_SMOOTH_CYCLES_ = 0;
  double m_ALPHA_ = 0.0;
  double m_BETA_ = 0.0;
  bool m_has_FILTER_ = false;
  const FILTER_* m_FILTER_ = nullptr;
  bool m_has_DV_CONSTRAINT_ = false;
  const DV_CONSTRAINT_* m_DV_CONSTRAINT_ = nullptr;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
