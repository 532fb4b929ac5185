/// \file
/// The references of each class, in the order in which they are linked. What a step does stands in link_steps.h.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "OrvelCommands/parfile/ResolveReferences.h"

#include "OrvelCommands/parfile/link_steps.h"

namespace orvel::detail
{

void ReferenceLinker::ResolveReferences(
  DV_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, DV_::s_type, id, parfile);
  references.Repeated("FILTER_", &Gyre_Parfile::GetFILTER_, self.m_num_FILTER_, self.m_FILTER_);
  references.Repeated("DV_", &Gyre_Parfile::GetDV_, self.m_num_DV_, self.m_DV_);
}

void ReferenceLinker::ResolveReferences(
  DRESP_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, DRESP_::s_type, id, parfile);
  references.Optional("DV_CONSTRAINT_", &Gyre_Parfile::GetDV_CONSTRAINT_, self.m_has_DV_CONSTRAINT_, self.m_DV_CONSTRAINT_);
}

void ReferenceLinker::ResolveReferences(
  OPERATOR_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, OPERATOR_::s_type, id, parfile);
  references.Repeated("DRESP_", &Gyre_Parfile::GetDRESP_, self.m_num_DRESP_, self.m_DRESP_);
  references.Repeated("OPERATOR_", &Gyre_Parfile::GetOPERATOR_, self.m_num_OPERATOR_, self.m_OPERATOR_);
}

void ReferenceLinker::ResolveReferences(
  OBJ_FUNC_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, OBJ_FUNC_::s_type, id, parfile);
  references.Optional("DRESP_", &Gyre_Parfile::GetDRESP_, self.m_has_DRESP_, self.m_DRESP_);
  references.Optional("OPERATOR_", &Gyre_Parfile::GetOPERATOR_, self.m_has_OPERATOR_, self.m_OPERATOR_);
  references.Repeated("FILTER_", &Gyre_Parfile::GetFILTER_, self.m_num_FILTER_, self.m_FILTER_);
}

void ReferenceLinker::ResolveReferences(
  CONSTRAINT_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, CONSTRAINT_::s_type, id, parfile);
  references.Optional("DRESP_", &Gyre_Parfile::GetDRESP_, self.m_has_DRESP_, self.m_DRESP_);
  references.Optional("OPERATOR_", &Gyre_Parfile::GetOPERATOR_, self.m_has_OPERATOR_, self.m_OPERATOR_);
  references.Repeated("FILTER_", &Gyre_Parfile::GetFILTER_, self.m_num_FILTER_, self.m_FILTER_);
}

void ReferenceLinker::ResolveReferences(
  DV_CONSTRAINT_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, DV_CONSTRAINT_::s_type, id, parfile);
  references.Optional("CS_", &Gyre_Parfile::GetCS_, self.m_has_CS_, self.m_CS_);
  references.Optional("SCALING_CURVE_", &Gyre_Parfile::GetSCALING_CURVE_, self.m_has_SCALING_CURVE_, self.m_SCALING_CURVE_);
}

void ReferenceLinker::ResolveReferences(
  MONITOR_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, MONITOR_::s_type, id, parfile);
  references.Always("DRESP_", &Gyre_Parfile::GetDRESP_, self.m_DRESP_);
}

void ReferenceLinker::ResolveReferences(
  ALGO_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, ALGO_::s_type, id, parfile);
  references.Always("DV_", &Gyre_Parfile::GetDV_, self.m_DV_);
  references.Always("OBJ_FUNC_", &Gyre_Parfile::GetOBJ_FUNC_, self.m_OBJ_FUNC_);
  references.Repeated("CONSTRAINT_", &Gyre_Parfile::GetCONSTRAINT_, self.m_num_CONSTRAINT_, self.m_CONSTRAINT_);
  references.Repeated("DV_CONSTRAINT_", &Gyre_Parfile::GetDV_CONSTRAINT_, self.m_num_DV_CONSTRAINT_, self.m_DV_CONSTRAINT_);
  references.Always("OPT_PARAM_", &Gyre_Parfile::GetOPT_PARAM_, self.m_OPT_PARAM_);
  references.Always("STOP_", &Gyre_Parfile::GetSTOP_, self.m_STOP_);
  references.Always("PRE_PARAM_", &Gyre_Parfile::GetPRE_PARAM_, self.m_PRE_PARAM_);
  references.Repeated("MESH_SMOOTH_", &Gyre_Parfile::GetMESH_SMOOTH_, self.m_num_MESH_SMOOTH_, self.m_MESH_SMOOTH_);
  references.Repeated("MONITOR_", &Gyre_Parfile::GetMONITOR_, self.m_num_MONITOR_, self.m_MONITOR_);
  references.Always("AS_TOPO_OC_", &Gyre_Parfile::GetAS_TOPO_OC_, self.m_AS_TOPO_OC_);
  references.Always("AS_TOPO_SENS_", &Gyre_Parfile::GetAS_TOPO_SENS_, self.m_AS_TOPO_SENS_);
  references.Always("AS_SHAPE_SENS_", &Gyre_Parfile::GetAS_SHAPE_SENS_, self.m_AS_SHAPE_SENS_);
}

void ReferenceLinker::ResolveReferences(
  MESH_SMOOTH_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, MESH_SMOOTH_::s_type, id, parfile);
  references.Optional("FILTER_", &Gyre_Parfile::GetFILTER_, self.m_has_FILTER_, self.m_FILTER_);
  references.Optional("DV_CONSTRAINT_", &Gyre_Parfile::GetDV_CONSTRAINT_, self.m_has_DV_CONSTRAINT_, self.m_DV_CONSTRAINT_);
}

void ReferenceLinker::ResolveReferences(
  AS_SHAPE_SENS_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
  std::vector<KLV_ParfileException>& /*problems*/)
{
  const ReferenceSteps<Gyre_Parfile> references(storage, AS_SHAPE_SENS_::s_type, id, parfile);
  references.Repeated("FILTER_", &Gyre_Parfile::GetFILTER_, self.m_num_FILTER_, self.m_FILTER_);
}

}  // namespace orvel::detail
