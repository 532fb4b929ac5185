/// \file
/// The operations of Gyre_Parfile. What each step does stands in command_list.h.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "OrvelCommands/parfile/Gyre_Parfile.h"

#include "OrvelCommands/parfile/ResolveReferences.h"
#include "OrvelCommands/parfile/command_list.h"

#include <utility>

using namespace orvel::detail;

namespace
{
constexpr const char* kAggregate = "Gyre_Parfile";
}

Gyre_Parfile::Gyre_Parfile(OrvelParfileStorage& storage) : Parfile(storage) {}

Gyre_Parfile::Gyre_Parfile(Gyre_Parfile&& other)
  : Parfile(static_cast<Parfile&&>(other)),
    m_MODEL_(std::move(other.m_MODEL_)),
    m_ELEMENT_GROUP_(std::move(other.m_ELEMENT_GROUP_)),
    m_FACE_GROUP_(std::move(other.m_FACE_GROUP_)),
    m_NODE_GROUP_(std::move(other.m_NODE_GROUP_)),
    m_DV_(std::move(other.m_DV_)),
    m_DRESP_(std::move(other.m_DRESP_)),
    m_OPERATOR_(std::move(other.m_OPERATOR_)),
    m_OBJ_FUNC_(std::move(other.m_OBJ_FUNC_)),
    m_CONSTRAINT_(std::move(other.m_CONSTRAINT_)),
    m_CS_(std::move(other.m_CS_)),
    m_DV_CONSTRAINT_(std::move(other.m_DV_CONSTRAINT_)),
    m_MONITOR_(std::move(other.m_MONITOR_)),
    m_ALGO_(std::move(other.m_ALGO_)),
    m_OPT_PARAM_(std::move(other.m_OPT_PARAM_)),
    m_STOP_(std::move(other.m_STOP_)),
    m_MESH_SMOOTH_(std::move(other.m_MESH_SMOOTH_)),
    m_FILTER_(std::move(other.m_FILTER_)),
    m_PRE_PARAM_(std::move(other.m_PRE_PARAM_)),
    m_AS_TOPO_OC_(std::move(other.m_AS_TOPO_OC_)),
    m_AS_TOPO_SENS_(std::move(other.m_AS_TOPO_SENS_)),
    m_AS_SHAPE_SENS_(std::move(other.m_AS_SHAPE_SENS_)),
    m_FLOWPATHS_(std::move(other.m_FLOWPATHS_)),
    m_OUTPUT_(std::move(other.m_OUTPUT_)),
    m_SCALING_CURVE_(std::move(other.m_SCALING_CURVE_)),
    m_SMOOTH_(std::move(other.m_SMOOTH_))
{
}

Gyre_Parfile::~Gyre_Parfile()
{
  DeleteCommands(m_MODEL_);
  DeleteCommands(m_ELEMENT_GROUP_);
  DeleteCommands(m_FACE_GROUP_);
  DeleteCommands(m_NODE_GROUP_);
  DeleteCommands(m_DV_);
  DeleteCommands(m_DRESP_);
  DeleteCommands(m_OPERATOR_);
  DeleteCommands(m_OBJ_FUNC_);
  DeleteCommands(m_CONSTRAINT_);
  DeleteCommands(m_CS_);
  DeleteCommands(m_DV_CONSTRAINT_);
  DeleteCommands(m_MONITOR_);
  DeleteCommands(m_ALGO_);
  DeleteCommands(m_OPT_PARAM_);
  DeleteCommands(m_STOP_);
  DeleteCommands(m_MESH_SMOOTH_);
  DeleteCommands(m_FILTER_);
  DeleteCommands(m_PRE_PARAM_);
  DeleteCommands(m_AS_TOPO_OC_);
  DeleteCommands(m_AS_TOPO_SENS_);
  DeleteCommands(m_AS_SHAPE_SENS_);
  DeleteCommands(m_FLOWPATHS_);
  DeleteCommands(m_OUTPUT_);
  DeleteCommands(m_SCALING_CURVE_);
  DeleteCommands(m_SMOOTH_);
}

void Gyre_Parfile::Load()
{
  LoadTheCommand(m_storage, m_MODEL_, kAggregate);
  LoadCommands(m_storage, m_ELEMENT_GROUP_);
  LoadCommands(m_storage, m_FACE_GROUP_);
  LoadCommands(m_storage, m_NODE_GROUP_);
  LoadCommands(m_storage, m_DV_);
  LoadCommands(m_storage, m_DRESP_);
  LoadCommands(m_storage, m_OPERATOR_);
  LoadTheCommand(m_storage, m_OBJ_FUNC_, kAggregate);
  LoadCommands(m_storage, m_CONSTRAINT_);
  LoadCommands(m_storage, m_CS_);
  LoadCommands(m_storage, m_DV_CONSTRAINT_);
  LoadCommands(m_storage, m_MONITOR_);
  LoadTheCommand(m_storage, m_ALGO_, kAggregate);
  LoadCommands(m_storage, m_OPT_PARAM_);
  LoadCommands(m_storage, m_STOP_);
  LoadCommands(m_storage, m_MESH_SMOOTH_);
  LoadCommands(m_storage, m_FILTER_);
  LoadCommands(m_storage, m_PRE_PARAM_);
  LoadCommands(m_storage, m_AS_TOPO_OC_);
  LoadCommands(m_storage, m_AS_TOPO_SENS_);
  LoadCommands(m_storage, m_AS_SHAPE_SENS_);
  LoadTheCommand(m_storage, m_FLOWPATHS_, kAggregate);
  LoadCommands(m_storage, m_OUTPUT_);
  LoadCommands(m_storage, m_SCALING_CURVE_);
  LoadCommands(m_storage, m_SMOOTH_);

  std::vector<KLV_ParfileException> problems;
  LinkCommands(m_DV_, m_storage, *this, problems);
  LinkCommands(m_DRESP_, m_storage, *this, problems);
  LinkCommands(m_OPERATOR_, m_storage, *this, problems);
  LinkCommands(m_OBJ_FUNC_, m_storage, *this, problems);
  LinkCommands(m_CONSTRAINT_, m_storage, *this, problems);
  LinkCommands(m_DV_CONSTRAINT_, m_storage, *this, problems);
  LinkCommands(m_MONITOR_, m_storage, *this, problems);
  LinkCommands(m_ALGO_, m_storage, *this, problems);
  LinkCommands(m_MESH_SMOOTH_, m_storage, *this, problems);
  LinkCommands(m_AS_SHAPE_SENS_, m_storage, *this, problems);
}

void Gyre_Parfile::ValidateModelIds()
{
  std::vector<KLV_ParfileException> problems;
  CheckCommands(m_MODEL_, m_storage, problems);
  CheckCommands(m_ELEMENT_GROUP_, m_storage, problems);
  CheckCommands(m_FACE_GROUP_, m_storage, problems);
  CheckCommands(m_NODE_GROUP_, m_storage, problems);
  CheckCommands(m_DV_, m_storage, problems);
  CheckCommands(m_DRESP_, m_storage, problems);
  CheckCommands(m_OPERATOR_, m_storage, problems);
  CheckCommands(m_OBJ_FUNC_, m_storage, problems);
  CheckCommands(m_CONSTRAINT_, m_storage, problems);
  CheckCommands(m_CS_, m_storage, problems);
  CheckCommands(m_DV_CONSTRAINT_, m_storage, problems);
  CheckCommands(m_MONITOR_, m_storage, problems);
  CheckCommands(m_ALGO_, m_storage, problems);
  CheckCommands(m_OPT_PARAM_, m_storage, problems);
  CheckCommands(m_STOP_, m_storage, problems);
  CheckCommands(m_MESH_SMOOTH_, m_storage, problems);
  CheckCommands(m_FILTER_, m_storage, problems);
  CheckCommands(m_PRE_PARAM_, m_storage, problems);
  CheckCommands(m_AS_TOPO_OC_, m_storage, problems);
  CheckCommands(m_AS_TOPO_SENS_, m_storage, problems);
  CheckCommands(m_AS_SHAPE_SENS_, m_storage, problems);
  CheckCommands(m_FLOWPATHS_, m_storage, problems);
  CheckCommands(m_OUTPUT_, m_storage, problems);
  CheckCommands(m_SCALING_CURVE_, m_storage, problems);
  CheckCommands(m_SMOOTH_, m_storage, problems);
  ReportProblems(problems, kAggregate);
}

// ---- MODEL_

const MODEL_& Gyre_Parfile::GetMODEL_() const
{
  return TheCommand(m_MODEL_, kAggregate);
}

const MODEL_& Gyre_Parfile::GetMODEL_(const std::string& id) const
{
  return TheCommandById(m_MODEL_, id, m_MODEL_default, kAggregate);
}

// ---- ELEMENT_GROUP_

std::vector<ELEMENT_GROUP_*> Gyre_Parfile::GetELEMENT_GROUP_() const
{
  return m_ELEMENT_GROUP_;
}

ELEMENT_GROUP_& Gyre_Parfile::GetELEMENT_GROUP_(const std::string& id) const
{
  return CommandById(m_ELEMENT_GROUP_, id, kAggregate);
}

ELEMENT_GROUP_& Gyre_Parfile::GetELEMENT_GROUP_(std::uint64_t index) const
{
  return CommandAt(m_ELEMENT_GROUP_, index, kAggregate);
}

bool Gyre_Parfile::HasELEMENT_GROUP_(const std::string& id) const
{
  return FindCommand(m_ELEMENT_GROUP_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumELEMENT_GROUP_() const
{
  return m_ELEMENT_GROUP_.size();
}

// ---- FACE_GROUP_

std::vector<FACE_GROUP_*> Gyre_Parfile::GetFACE_GROUP_() const
{
  return m_FACE_GROUP_;
}

FACE_GROUP_& Gyre_Parfile::GetFACE_GROUP_(const std::string& id) const
{
  return CommandById(m_FACE_GROUP_, id, kAggregate);
}

FACE_GROUP_& Gyre_Parfile::GetFACE_GROUP_(std::uint64_t index) const
{
  return CommandAt(m_FACE_GROUP_, index, kAggregate);
}

bool Gyre_Parfile::HasFACE_GROUP_(const std::string& id) const
{
  return FindCommand(m_FACE_GROUP_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumFACE_GROUP_() const
{
  return m_FACE_GROUP_.size();
}

// ---- NODE_GROUP_

std::vector<NODE_GROUP_*> Gyre_Parfile::GetNODE_GROUP_() const
{
  return m_NODE_GROUP_;
}

NODE_GROUP_& Gyre_Parfile::GetNODE_GROUP_(const std::string& id) const
{
  return CommandById(m_NODE_GROUP_, id, kAggregate);
}

NODE_GROUP_& Gyre_Parfile::GetNODE_GROUP_(std::uint64_t index) const
{
  return CommandAt(m_NODE_GROUP_, index, kAggregate);
}

bool Gyre_Parfile::HasNODE_GROUP_(const std::string& id) const
{
  return FindCommand(m_NODE_GROUP_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumNODE_GROUP_() const
{
  return m_NODE_GROUP_.size();
}

// ---- DV_

std::vector<DV_*> Gyre_Parfile::GetDV_() const
{
  return m_DV_;
}

DV_& Gyre_Parfile::GetDV_(const std::string& id) const
{
  return CommandById(m_DV_, id, kAggregate);
}

DV_& Gyre_Parfile::GetDV_(std::uint64_t index) const
{
  return CommandAt(m_DV_, index, kAggregate);
}

bool Gyre_Parfile::HasDV_(const std::string& id) const
{
  return FindCommand(m_DV_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumDV_() const
{
  return m_DV_.size();
}

// ---- DRESP_

std::vector<DRESP_*> Gyre_Parfile::GetDRESP_() const
{
  return m_DRESP_;
}

DRESP_& Gyre_Parfile::GetDRESP_(const std::string& id) const
{
  return CommandById(m_DRESP_, id, kAggregate);
}

DRESP_& Gyre_Parfile::GetDRESP_(std::uint64_t index) const
{
  return CommandAt(m_DRESP_, index, kAggregate);
}

bool Gyre_Parfile::HasDRESP_(const std::string& id) const
{
  return FindCommand(m_DRESP_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumDRESP_() const
{
  return m_DRESP_.size();
}

// ---- OPERATOR_

std::vector<OPERATOR_*> Gyre_Parfile::GetOPERATOR_() const
{
  return m_OPERATOR_;
}

OPERATOR_& Gyre_Parfile::GetOPERATOR_(const std::string& id) const
{
  return CommandById(m_OPERATOR_, id, kAggregate);
}

OPERATOR_& Gyre_Parfile::GetOPERATOR_(std::uint64_t index) const
{
  return CommandAt(m_OPERATOR_, index, kAggregate);
}

bool Gyre_Parfile::HasOPERATOR_(const std::string& id) const
{
  return FindCommand(m_OPERATOR_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumOPERATOR_() const
{
  return m_OPERATOR_.size();
}

// ---- OBJ_FUNC_

const OBJ_FUNC_& Gyre_Parfile::GetOBJ_FUNC_() const
{
  return TheCommand(m_OBJ_FUNC_, kAggregate);
}

const OBJ_FUNC_& Gyre_Parfile::GetOBJ_FUNC_(const std::string& id) const
{
  return TheCommandById(m_OBJ_FUNC_, id, m_OBJ_FUNC_default, kAggregate);
}

// ---- CONSTRAINT_

std::vector<CONSTRAINT_*> Gyre_Parfile::GetCONSTRAINT_() const
{
  return m_CONSTRAINT_;
}

CONSTRAINT_& Gyre_Parfile::GetCONSTRAINT_(const std::string& id) const
{
  return CommandById(m_CONSTRAINT_, id, kAggregate);
}

CONSTRAINT_& Gyre_Parfile::GetCONSTRAINT_(std::uint64_t index) const
{
  return CommandAt(m_CONSTRAINT_, index, kAggregate);
}

bool Gyre_Parfile::HasCONSTRAINT_(const std::string& id) const
{
  return FindCommand(m_CONSTRAINT_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumCONSTRAINT_() const
{
  return m_CONSTRAINT_.size();
}

// ---- CS_

std::vector<CS_*> Gyre_Parfile::GetCS_() const
{
  return m_CS_;
}

CS_& Gyre_Parfile::GetCS_(const std::string& id) const
{
  return CommandById(m_CS_, id, kAggregate);
}

CS_& Gyre_Parfile::GetCS_(std::uint64_t index) const
{
  return CommandAt(m_CS_, index, kAggregate);
}

bool Gyre_Parfile::HasCS_(const std::string& id) const
{
  return FindCommand(m_CS_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumCS_() const
{
  return m_CS_.size();
}

// ---- DV_CONSTRAINT_

std::vector<DV_CONSTRAINT_*> Gyre_Parfile::GetDV_CONSTRAINT_() const
{
  return m_DV_CONSTRAINT_;
}

DV_CONSTRAINT_& Gyre_Parfile::GetDV_CONSTRAINT_(const std::string& id) const
{
  return CommandById(m_DV_CONSTRAINT_, id, kAggregate);
}

DV_CONSTRAINT_& Gyre_Parfile::GetDV_CONSTRAINT_(std::uint64_t index) const
{
  return CommandAt(m_DV_CONSTRAINT_, index, kAggregate);
}

bool Gyre_Parfile::HasDV_CONSTRAINT_(const std::string& id) const
{
  return FindCommand(m_DV_CONSTRAINT_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumDV_CONSTRAINT_() const
{
  return m_DV_CONSTRAINT_.size();
}

// ---- MONITOR_

std::vector<MONITOR_*> Gyre_Parfile::GetMONITOR_() const
{
  return m_MONITOR_;
}

MONITOR_& Gyre_Parfile::GetMONITOR_(const std::string& id) const
{
  return CommandById(m_MONITOR_, id, kAggregate);
}

MONITOR_& Gyre_Parfile::GetMONITOR_(std::uint64_t index) const
{
  return CommandAt(m_MONITOR_, index, kAggregate);
}

bool Gyre_Parfile::HasMONITOR_(const std::string& id) const
{
  return FindCommand(m_MONITOR_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumMONITOR_() const
{
  return m_MONITOR_.size();
}

// ---- ALGO_

const ALGO_& Gyre_Parfile::GetALGO_() const
{
  return TheCommand(m_ALGO_, kAggregate);
}

const ALGO_& Gyre_Parfile::GetALGO_(const std::string& id) const
{
  return TheCommandById(m_ALGO_, id, m_ALGO_default, kAggregate);
}

// ---- OPT_PARAM_

std::vector<OPT_PARAM_*> Gyre_Parfile::GetOPT_PARAM_() const
{
  return m_OPT_PARAM_;
}

OPT_PARAM_& Gyre_Parfile::GetOPT_PARAM_(const std::string& id) const
{
  return CommandById(m_OPT_PARAM_, id, kAggregate);
}

OPT_PARAM_& Gyre_Parfile::GetOPT_PARAM_(std::uint64_t index) const
{
  return CommandAt(m_OPT_PARAM_, index, kAggregate);
}

bool Gyre_Parfile::HasOPT_PARAM_(const std::string& id) const
{
  return FindCommand(m_OPT_PARAM_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumOPT_PARAM_() const
{
  return m_OPT_PARAM_.size();
}

// ---- STOP_

std::vector<STOP_*> Gyre_Parfile::GetSTOP_() const
{
  return m_STOP_;
}

STOP_& Gyre_Parfile::GetSTOP_(const std::string& id) const
{
  return CommandById(m_STOP_, id, kAggregate);
}

STOP_& Gyre_Parfile::GetSTOP_(std::uint64_t index) const
{
  return CommandAt(m_STOP_, index, kAggregate);
}

bool Gyre_Parfile::HasSTOP_(const std::string& id) const
{
  return FindCommand(m_STOP_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumSTOP_() const
{
  return m_STOP_.size();
}

// ---- MESH_SMOOTH_

std::vector<MESH_SMOOTH_*> Gyre_Parfile::GetMESH_SMOOTH_() const
{
  return m_MESH_SMOOTH_;
}

MESH_SMOOTH_& Gyre_Parfile::GetMESH_SMOOTH_(const std::string& id) const
{
  return CommandById(m_MESH_SMOOTH_, id, kAggregate);
}

MESH_SMOOTH_& Gyre_Parfile::GetMESH_SMOOTH_(std::uint64_t index) const
{
  return CommandAt(m_MESH_SMOOTH_, index, kAggregate);
}

bool Gyre_Parfile::HasMESH_SMOOTH_(const std::string& id) const
{
  return FindCommand(m_MESH_SMOOTH_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumMESH_SMOOTH_() const
{
  return m_MESH_SMOOTH_.size();
}

// ---- FILTER_

std::vector<FILTER_*> Gyre_Parfile::GetFILTER_() const
{
  return m_FILTER_;
}

FILTER_& Gyre_Parfile::GetFILTER_(const std::string& id) const
{
  return CommandById(m_FILTER_, id, kAggregate);
}

FILTER_& Gyre_Parfile::GetFILTER_(std::uint64_t index) const
{
  return CommandAt(m_FILTER_, index, kAggregate);
}

bool Gyre_Parfile::HasFILTER_(const std::string& id) const
{
  return FindCommand(m_FILTER_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumFILTER_() const
{
  return m_FILTER_.size();
}

// ---- PRE_PARAM_

std::vector<PRE_PARAM_*> Gyre_Parfile::GetPRE_PARAM_() const
{
  return m_PRE_PARAM_;
}

PRE_PARAM_& Gyre_Parfile::GetPRE_PARAM_(const std::string& id) const
{
  return CommandById(m_PRE_PARAM_, id, kAggregate);
}

PRE_PARAM_& Gyre_Parfile::GetPRE_PARAM_(std::uint64_t index) const
{
  return CommandAt(m_PRE_PARAM_, index, kAggregate);
}

bool Gyre_Parfile::HasPRE_PARAM_(const std::string& id) const
{
  return FindCommand(m_PRE_PARAM_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumPRE_PARAM_() const
{
  return m_PRE_PARAM_.size();
}

// ---- AS_TOPO_OC_

std::vector<AS_TOPO_OC_*> Gyre_Parfile::GetAS_TOPO_OC_() const
{
  return m_AS_TOPO_OC_;
}

AS_TOPO_OC_& Gyre_Parfile::GetAS_TOPO_OC_(const std::string& id) const
{
  return CommandById(m_AS_TOPO_OC_, id, kAggregate);
}

AS_TOPO_OC_& Gyre_Parfile::GetAS_TOPO_OC_(std::uint64_t index) const
{
  return CommandAt(m_AS_TOPO_OC_, index, kAggregate);
}

bool Gyre_Parfile::HasAS_TOPO_OC_(const std::string& id) const
{
  return FindCommand(m_AS_TOPO_OC_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumAS_TOPO_OC_() const
{
  return m_AS_TOPO_OC_.size();
}

// ---- AS_TOPO_SENS_

std::vector<AS_TOPO_SENS_*> Gyre_Parfile::GetAS_TOPO_SENS_() const
{
  return m_AS_TOPO_SENS_;
}

AS_TOPO_SENS_& Gyre_Parfile::GetAS_TOPO_SENS_(const std::string& id) const
{
  return CommandById(m_AS_TOPO_SENS_, id, kAggregate);
}

AS_TOPO_SENS_& Gyre_Parfile::GetAS_TOPO_SENS_(std::uint64_t index) const
{
  return CommandAt(m_AS_TOPO_SENS_, index, kAggregate);
}

bool Gyre_Parfile::HasAS_TOPO_SENS_(const std::string& id) const
{
  return FindCommand(m_AS_TOPO_SENS_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumAS_TOPO_SENS_() const
{
  return m_AS_TOPO_SENS_.size();
}

// ---- AS_SHAPE_SENS_

std::vector<AS_SHAPE_SENS_*> Gyre_Parfile::GetAS_SHAPE_SENS_() const
{
  return m_AS_SHAPE_SENS_;
}

AS_SHAPE_SENS_& Gyre_Parfile::GetAS_SHAPE_SENS_(const std::string& id) const
{
  return CommandById(m_AS_SHAPE_SENS_, id, kAggregate);
}

AS_SHAPE_SENS_& Gyre_Parfile::GetAS_SHAPE_SENS_(std::uint64_t index) const
{
  return CommandAt(m_AS_SHAPE_SENS_, index, kAggregate);
}

bool Gyre_Parfile::HasAS_SHAPE_SENS_(const std::string& id) const
{
  return FindCommand(m_AS_SHAPE_SENS_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumAS_SHAPE_SENS_() const
{
  return m_AS_SHAPE_SENS_.size();
}

// ---- FLOWPATHS_

const FLOWPATHS_& Gyre_Parfile::GetFLOWPATHS_() const
{
  return TheCommand(m_FLOWPATHS_, kAggregate);
}

const FLOWPATHS_& Gyre_Parfile::GetFLOWPATHS_(const std::string& id) const
{
  return TheCommandById(m_FLOWPATHS_, id, m_FLOWPATHS_default, kAggregate);
}

// ---- OUTPUT_

std::vector<OUTPUT_*> Gyre_Parfile::GetOUTPUT_() const
{
  return m_OUTPUT_;
}

OUTPUT_& Gyre_Parfile::GetOUTPUT_(const std::string& id) const
{
  return CommandById(m_OUTPUT_, id, kAggregate);
}

OUTPUT_& Gyre_Parfile::GetOUTPUT_(std::uint64_t index) const
{
  return CommandAt(m_OUTPUT_, index, kAggregate);
}

bool Gyre_Parfile::HasOUTPUT_(const std::string& id) const
{
  return FindCommand(m_OUTPUT_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumOUTPUT_() const
{
  return m_OUTPUT_.size();
}

// ---- SCALING_CURVE_

std::vector<SCALING_CURVE_*> Gyre_Parfile::GetSCALING_CURVE_() const
{
  return m_SCALING_CURVE_;
}

SCALING_CURVE_& Gyre_Parfile::GetSCALING_CURVE_(const std::string& id) const
{
  return CommandById(m_SCALING_CURVE_, id, kAggregate);
}

SCALING_CURVE_& Gyre_Parfile::GetSCALING_CURVE_(std::uint64_t index) const
{
  return CommandAt(m_SCALING_CURVE_, index, kAggregate);
}

bool Gyre_Parfile::HasSCALING_CURVE_(const std::string& id) const
{
  return FindCommand(m_SCALING_CURVE_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumSCALING_CURVE_() const
{
  return m_SCALING_CURVE_.size();
}

// ---- SMOOTH_

std::vector<SMOOTH_*> Gyre_Parfile::GetSMOOTH_() const
{
  return m_SMOOTH_;
}

SMOOTH_& Gyre_Parfile::GetSMOOTH_(const std::string& id) const
{
  return CommandById(m_SMOOTH_, id, kAggregate);
}

SMOOTH_& Gyre_Parfile::GetSMOOTH_(std::uint64_t index) const
{
  return CommandAt(m_SMOOTH_, index, kAggregate);
}

bool Gyre_Parfile::HasSMOOTH_(const std::string& id) const
{
  return FindCommand(m_SMOOTH_, id) != nullptr;
}

std::uint64_t Gyre_Parfile::NumSMOOTH_() const
{
  return m_SMOOTH_.size();
}
