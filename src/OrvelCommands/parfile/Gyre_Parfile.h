/// \file
/// The parameter file of a fluid optimization job. One thread at a time; the commands may be read from several threads.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/commands/smooth_commands.h"
#include "OrvelCommands/parfile/Parfile.h"

#include <cstdint>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

/// The parameter file of a fluid optimization job.
///
/// Construct it on a storage, call Load() once, then ValidateModelIds() where a database is open, then read.
///
/// Ownership: it owns every command; what its operations hand out belongs to it, passes on as it is moved, and lives as
/// long as the aggregate that owns it then. The storage is not owned and must outlive Load() and
/// ValidateModelIds(); nothing else touches it.
///
/// A kind of which a job has any number is read as a whole, by an id, or by a place counted from 1. Throws: "Invalid ID
/// %s of the parameter file command X_" with code "161700240908"; "Invalid index %d of the parameterfile command X_ to
/// retrieve. Number of available commands is %d" with code "204046270608".
/// A kind of which a job has exactly one is read as that one; by an id that is not its own comes a command that was
/// never loaded, with an empty id. Throws: "%d commands of type X_ detected. Only one is expected." with code
/// "204046270608", also while loading and, where such a command is referred to, while a second Load() links.
///
/// \warning A reference to such a kind links to the command that was never loaded when its id is wrong: nothing fails.
/// The commands that were never loaded stay behind when an aggregate is moved: what refers to one may use it only while
/// the aggregate lives that handed it out or linked to it.
///
/// \warning After a failure of Load() the number of references of the key that was being linked can be ahead of its
/// list, so that not every place below it is there: read the lists of such a job as a whole.
///
/// Cost: a command is found by its id in one pass over the commands of its kind, for each reference that is linked too.
class ORVELCOMMANDS_EXPORT Gyre_Parfile : public Parfile
{
public:
  /// An empty parameter file bound to \p storage, from which nothing is read yet.
  explicit Gyre_Parfile(OrvelParfileStorage& storage);

  /// Takes over all commands; \p other stays bound to its storage and is empty.
  Gyre_Parfile(Gyre_Parfile&& other);

  /// Deletes all commands. Does not touch the storage.
  ~Gyre_Parfile() override;

  Gyre_Parfile(const Gyre_Parfile&) = delete;
  Gyre_Parfile& operator=(const Gyre_Parfile&) = delete;

  /// Reads all commands from the storage, then links them by their references.
  ///
  /// Throws: what the storage throws; "Invalid ID %s of the parameter file command X_" with code
  /// "161700240908" for a reference to an unknown command. The commands loaded before then stay.
  ///
  /// \warning A second call appends a second set of commands. The command whose own loading fails is lost, not deleted.
  virtual void Load();

  /// Checks the model ids of all commands against the open database and reports all unknown ones in one failure.
  /// Nothing else may work on the id maps of the database meanwhile.
  ///
  /// Throws: "<count> model IDs referenced in the parameter file cannot be found...." without a code, cut at 1023
  /// characters; a failure without a code where there is an id to check and no database is open; what the storage
  /// throws. The problems found before one of the last two are lost.
  ///
  /// \warning A "%" in an unknown id acts as a printf conversion of a zero or empty argument.
  virtual void ValidateModelIds();

  /// \name MODEL_, of which a job has exactly one
  /// @{

  /// Model that the job works on: the file that holds it and the solver that it belongs to.
  const MODEL_& GetMODEL_() const;
  const MODEL_& GetMODEL_(const std::string& id) const;
  /// @}

  /// \name ELEMENT_GROUP_
  /// @{

  /// Recipe for a group of elements: listed numbers and operations with other element groups.
  std::vector<ELEMENT_GROUP_*> GetELEMENT_GROUP_() const;
  ELEMENT_GROUP_& GetELEMENT_GROUP_(const std::string& id) const;
  ELEMENT_GROUP_& GetELEMENT_GROUP_(std::uint64_t index) const;
  bool HasELEMENT_GROUP_(const std::string& id) const;
  std::uint64_t NumELEMENT_GROUP_() const;
  /// @}

  /// \name FACE_GROUP_
  /// @{

  /// Recipe for a group of faces: listed numbers and operations with other face groups.
  std::vector<FACE_GROUP_*> GetFACE_GROUP_() const;
  FACE_GROUP_& GetFACE_GROUP_(const std::string& id) const;
  FACE_GROUP_& GetFACE_GROUP_(std::uint64_t index) const;
  bool HasFACE_GROUP_(const std::string& id) const;
  std::uint64_t NumFACE_GROUP_() const;
  /// @}

  /// \name NODE_GROUP_
  /// @{

  /// Recipe for a group of nodes: listed numbers and operations with other node groups.
  std::vector<NODE_GROUP_*> GetNODE_GROUP_() const;
  NODE_GROUP_& GetNODE_GROUP_(const std::string& id) const;
  NODE_GROUP_& GetNODE_GROUP_(std::uint64_t index) const;
  bool HasNODE_GROUP_(const std::string& id) const;
  std::uint64_t NumNODE_GROUP_() const;
  /// @}

  /// \name DV_
  /// @{

  /// Design variable: the group whose values the optimization changes, its start value and its filters.
  std::vector<DV_*> GetDV_() const;
  DV_& GetDV_(const std::string& id) const;
  DV_& GetDV_(std::uint64_t index) const;
  bool HasDV_(const std::string& id) const;
  std::uint64_t NumDV_() const;
  /// @}

  /// \name DRESP_
  /// @{

  /// Design response: a quantity of the analysis to minimise, to constrain or merely to watch.
  std::vector<DRESP_*> GetDRESP_() const;
  DRESP_& GetDRESP_(const std::string& id) const;
  DRESP_& GetDRESP_(std::uint64_t index) const;
  bool HasDRESP_(const std::string& id) const;
  std::uint64_t NumDRESP_() const;
  /// @}

  /// \name OPERATOR_
  /// @{

  /// Operator: combines design responses and other operators, each with its weight, into one value.
  std::vector<OPERATOR_*> GetOPERATOR_() const;
  OPERATOR_& GetOPERATOR_(const std::string& id) const;
  OPERATOR_& GetOPERATOR_(std::uint64_t index) const;
  bool HasOPERATOR_(const std::string& id) const;
  std::uint64_t NumOPERATOR_() const;
  /// @}

  /// \name OBJ_FUNC_, of which a job has exactly one
  /// @{

  /// Objective of the optimization: the response or operator to minimise, its scaling and its filters.
  const OBJ_FUNC_& GetOBJ_FUNC_() const;
  const OBJ_FUNC_& GetOBJ_FUNC_(const std::string& id) const;
  /// @}

  /// \name CONSTRAINT_
  /// @{

  /// Constraint of the optimization: a bound on a response or an operator.
  std::vector<CONSTRAINT_*> GetCONSTRAINT_() const;
  CONSTRAINT_& GetCONSTRAINT_(const std::string& id) const;
  CONSTRAINT_& GetCONSTRAINT_(std::uint64_t index) const;
  bool HasCONSTRAINT_(const std::string& id) const;
  std::uint64_t NumCONSTRAINT_() const;
  /// @}

  /// \name CS_
  /// @{

  /// Coordinate system defined in the parameter file: a type, an origin and three axis vectors.
  std::vector<CS_*> GetCS_() const;
  CS_& GetCS_(const std::string& id) const;
  CS_& GetCS_(std::uint64_t index) const;
  bool HasCS_(const std::string& id) const;
  std::uint64_t NumCS_() const;
  /// @}

  /// \name DV_CONSTRAINT_
  /// @{

  /// Restriction on the design variables, such as a symmetry, a demolding direction or a member size.
  std::vector<DV_CONSTRAINT_*> GetDV_CONSTRAINT_() const;
  DV_CONSTRAINT_& GetDV_CONSTRAINT_(const std::string& id) const;
  DV_CONSTRAINT_& GetDV_CONSTRAINT_(std::uint64_t index) const;
  bool HasDV_CONSTRAINT_(const std::string& id) const;
  std::uint64_t NumDV_CONSTRAINT_() const;
  /// @}

  /// \name MONITOR_
  /// @{

  /// Monitor: one design response that is watched during the run.
  std::vector<MONITOR_*> GetMONITOR_() const;
  MONITOR_& GetMONITOR_(const std::string& id) const;
  MONITOR_& GetMONITOR_(std::uint64_t index) const;
  bool HasMONITOR_(const std::string& id) const;
  std::uint64_t NumMONITOR_() const;
  /// @}

  /// \name ALGO_, of which a job has exactly one
  /// @{

  /// Optimization task: the strategy of the run and all commands that take part in it.
  const ALGO_& GetALGO_() const;
  const ALGO_& GetALGO_(const std::string& id) const;
  /// @}

  /// \name OPT_PARAM_
  /// @{

  /// General parameters of the optimization.
  std::vector<OPT_PARAM_*> GetOPT_PARAM_() const;
  OPT_PARAM_& GetOPT_PARAM_(const std::string& id) const;
  OPT_PARAM_& GetOPT_PARAM_(std::uint64_t index) const;
  bool HasOPT_PARAM_(const std::string& id) const;
  std::uint64_t NumOPT_PARAM_() const;
  /// @}

  /// \name STOP_
  /// @{

  /// Criteria that end the optimization: limits of iterations and residuals.
  std::vector<STOP_*> GetSTOP_() const;
  STOP_& GetSTOP_(const std::string& id) const;
  STOP_& GetSTOP_(std::uint64_t index) const;
  bool HasSTOP_(const std::string& id) const;
  std::uint64_t NumSTOP_() const;
  /// @}

  /// \name MESH_SMOOTH_
  /// @{

  /// Smoothing of the mesh during the run, on a group of faces, nodes or elements.
  std::vector<MESH_SMOOTH_*> GetMESH_SMOOTH_() const;
  MESH_SMOOTH_& GetMESH_SMOOTH_(const std::string& id) const;
  MESH_SMOOTH_& GetMESH_SMOOTH_(std::uint64_t index) const;
  bool HasMESH_SMOOTH_(const std::string& id) const;
  std::uint64_t NumMESH_SMOOTH_() const;
  /// @}

  /// \name FILTER_
  /// @{

  /// Filter that design variables or sensitivities pass through, on a group of the model.
  std::vector<FILTER_*> GetFILTER_() const;
  FILTER_& GetFILTER_(const std::string& id) const;
  FILTER_& GetFILTER_(std::uint64_t index) const;
  bool HasFILTER_(const std::string& id) const;
  std::uint64_t NumFILTER_() const;
  /// @}

  /// \name PRE_PARAM_
  /// @{

  /// Parameters of the pre-processing: fluid, limits of its run, backflow angle and switches for tracks.
  std::vector<PRE_PARAM_*> GetPRE_PARAM_() const;
  PRE_PARAM_& GetPRE_PARAM_(const std::string& id) const;
  PRE_PARAM_& GetPRE_PARAM_(std::uint64_t index) const;
  bool HasPRE_PARAM_(const std::string& id) const;
  std::uint64_t NumPRE_PARAM_() const;
  /// @}

  /// \name AS_TOPO_OC_
  /// @{

  /// Settings for topology optimization by optimality criteria.
  std::vector<AS_TOPO_OC_*> GetAS_TOPO_OC_() const;
  AS_TOPO_OC_& GetAS_TOPO_OC_(const std::string& id) const;
  AS_TOPO_OC_& GetAS_TOPO_OC_(std::uint64_t index) const;
  bool HasAS_TOPO_OC_(const std::string& id) const;
  std::uint64_t NumAS_TOPO_OC_() const;
  /// @}

  /// \name AS_TOPO_SENS_
  /// @{

  /// Settings for topology optimization by sensitivities: optimizer, move limits, primal and adjoint runs.
  std::vector<AS_TOPO_SENS_*> GetAS_TOPO_SENS_() const;
  AS_TOPO_SENS_& GetAS_TOPO_SENS_(const std::string& id) const;
  AS_TOPO_SENS_& GetAS_TOPO_SENS_(std::uint64_t index) const;
  bool HasAS_TOPO_SENS_(const std::string& id) const;
  std::uint64_t NumAS_TOPO_SENS_() const;
  /// @}

  /// \name AS_SHAPE_SENS_
  /// @{

  /// Settings for shape optimization by sensitivities: optimizer, move limits, filters and normals.
  std::vector<AS_SHAPE_SENS_*> GetAS_SHAPE_SENS_() const;
  AS_SHAPE_SENS_& GetAS_SHAPE_SENS_(const std::string& id) const;
  AS_SHAPE_SENS_& GetAS_SHAPE_SENS_(std::uint64_t index) const;
  bool HasAS_SHAPE_SENS_(const std::string& id) const;
  std::uint64_t NumAS_SHAPE_SENS_() const;
  /// @}

  /// \name FLOWPATHS_, of which a job has exactly one
  /// @{

  /// Flow paths of the fluid domain: the groups of faces where the flow enters and leaves.
  const FLOWPATHS_& GetFLOWPATHS_() const;
  const FLOWPATHS_& GetFLOWPATHS_(const std::string& id) const;
  /// @}

  /// \name OUTPUT_
  /// @{

  /// What the job writes out: file, format, iterations and the kind of data and result.
  std::vector<OUTPUT_*> GetOUTPUT_() const;
  OUTPUT_& GetOUTPUT_(const std::string& id) const;
  OUTPUT_& GetOUTPUT_(std::uint64_t index) const;
  bool HasOUTPUT_(const std::string& id) const;
  std::uint64_t NumOUTPUT_() const;
  /// @}

  /// \name SCALING_CURVE_
  /// @{

  /// Scaling curve, to which a restriction on the design variables can refer.
  std::vector<SCALING_CURVE_*> GetSCALING_CURVE_() const;
  SCALING_CURVE_& GetSCALING_CURVE_(const std::string& id) const;
  SCALING_CURVE_& GetSCALING_CURVE_(std::uint64_t index) const;
  bool HasSCALING_CURVE_(const std::string& id) const;
  std::uint64_t NumSCALING_CURVE_() const;
  /// @}

  /// \name SMOOTH_
  /// @{

  /// Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it.
  std::vector<SMOOTH_*> GetSMOOTH_() const;
  SMOOTH_& GetSMOOTH_(const std::string& id) const;
  SMOOTH_& GetSMOOTH_(std::uint64_t index) const;
  bool HasSMOOTH_(const std::string& id) const;
  std::uint64_t NumSMOOTH_() const;
  /// @}

private:
  std::vector<MODEL_*> m_MODEL_;
  MODEL_ m_MODEL_default;
  std::vector<ELEMENT_GROUP_*> m_ELEMENT_GROUP_;
  std::vector<FACE_GROUP_*> m_FACE_GROUP_;
  std::vector<NODE_GROUP_*> m_NODE_GROUP_;
  std::vector<DV_*> m_DV_;
  std::vector<DRESP_*> m_DRESP_;
  std::vector<OPERATOR_*> m_OPERATOR_;
  std::vector<OBJ_FUNC_*> m_OBJ_FUNC_;
  OBJ_FUNC_ m_OBJ_FUNC_default;
  std::vector<CONSTRAINT_*> m_CONSTRAINT_;
  std::vector<CS_*> m_CS_;
  std::vector<DV_CONSTRAINT_*> m_DV_CONSTRAINT_;
  std::vector<MONITOR_*> m_MONITOR_;
  std::vector<ALGO_*> m_ALGO_;
  ALGO_ m_ALGO_default;
  std::vector<OPT_PARAM_*> m_OPT_PARAM_;
  std::vector<STOP_*> m_STOP_;
  std::vector<MESH_SMOOTH_*> m_MESH_SMOOTH_;
  std::vector<FILTER_*> m_FILTER_;
  std::vector<PRE_PARAM_*> m_PRE_PARAM_;
  std::vector<AS_TOPO_OC_*> m_AS_TOPO_OC_;
  std::vector<AS_TOPO_SENS_*> m_AS_TOPO_SENS_;
  std::vector<AS_SHAPE_SENS_*> m_AS_SHAPE_SENS_;
  std::vector<FLOWPATHS_*> m_FLOWPATHS_;
  FLOWPATHS_ m_FLOWPATHS_default;
  std::vector<OUTPUT_*> m_OUTPUT_;
  std::vector<SCALING_CURVE_*> m_SCALING_CURVE_;
  std::vector<SMOOTH_*> m_SMOOTH_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
