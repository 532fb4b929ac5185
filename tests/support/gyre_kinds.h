/// \file
/// The getters of Gyre_Parfile for tests that ask the same of every kind of command. Safe from any thread.
#pragma once

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"

#include <cstdint>
#include <string>
#include <vector>

/// The operations for a kind of which a job has any number. The types pin results and constness.
template <class Command>
struct ManyKind
{
  const char* name;
  std::vector<Command*> (Gyre_Parfile::*all)() const;
  Command& (Gyre_Parfile::*by_id)(const std::string&) const;
  Command& (Gyre_Parfile::*by_index)(std::uint64_t) const;
  bool (Gyre_Parfile::*has)(const std::string&) const;
  std::uint64_t (Gyre_Parfile::*num)() const;
};

/// The operations for a kind of which a job has exactly one.
template <class Command>
struct SingleKind
{
  const char* name;
  const Command& (Gyre_Parfile::*get)() const;
  const Command& (Gyre_Parfile::*by_id)(const std::string&) const;
};

/// Calls \p visit with a ManyKind or a SingleKind for each of the 25 kinds in the order in which they are loaded.
template <class Visitor>
void ForEachKind(Visitor visit)
{
  using P = Gyre_Parfile;
  visit(SingleKind<MODEL_>{"MODEL_", &P::GetMODEL_, &P::GetMODEL_});
  visit(ManyKind<ELEMENT_GROUP_>{"ELEMENT_GROUP_", &P::GetELEMENT_GROUP_, &P::GetELEMENT_GROUP_, &P::GetELEMENT_GROUP_,
                                 &P::HasELEMENT_GROUP_, &P::NumELEMENT_GROUP_});
  visit(ManyKind<FACE_GROUP_>{"FACE_GROUP_", &P::GetFACE_GROUP_, &P::GetFACE_GROUP_, &P::GetFACE_GROUP_,
                              &P::HasFACE_GROUP_, &P::NumFACE_GROUP_});
  visit(ManyKind<NODE_GROUP_>{"NODE_GROUP_", &P::GetNODE_GROUP_, &P::GetNODE_GROUP_, &P::GetNODE_GROUP_,
                              &P::HasNODE_GROUP_, &P::NumNODE_GROUP_});
  visit(ManyKind<DV_>{"DV_", &P::GetDV_, &P::GetDV_, &P::GetDV_, &P::HasDV_, &P::NumDV_});
  visit(ManyKind<DRESP_>{"DRESP_", &P::GetDRESP_, &P::GetDRESP_, &P::GetDRESP_, &P::HasDRESP_, &P::NumDRESP_});
  visit(ManyKind<OPERATOR_>{"OPERATOR_", &P::GetOPERATOR_, &P::GetOPERATOR_, &P::GetOPERATOR_, &P::HasOPERATOR_,
                            &P::NumOPERATOR_});
  visit(SingleKind<OBJ_FUNC_>{"OBJ_FUNC_", &P::GetOBJ_FUNC_, &P::GetOBJ_FUNC_});
  visit(ManyKind<CONSTRAINT_>{"CONSTRAINT_", &P::GetCONSTRAINT_, &P::GetCONSTRAINT_, &P::GetCONSTRAINT_,
                              &P::HasCONSTRAINT_, &P::NumCONSTRAINT_});
  visit(ManyKind<CS_>{"CS_", &P::GetCS_, &P::GetCS_, &P::GetCS_, &P::HasCS_, &P::NumCS_});
  visit(ManyKind<DV_CONSTRAINT_>{"DV_CONSTRAINT_", &P::GetDV_CONSTRAINT_, &P::GetDV_CONSTRAINT_, &P::GetDV_CONSTRAINT_,
                                 &P::HasDV_CONSTRAINT_, &P::NumDV_CONSTRAINT_});
  visit(ManyKind<MONITOR_>{"MONITOR_", &P::GetMONITOR_, &P::GetMONITOR_, &P::GetMONITOR_, &P::HasMONITOR_,
                           &P::NumMONITOR_});
  visit(SingleKind<ALGO_>{"ALGO_", &P::GetALGO_, &P::GetALGO_});
  visit(ManyKind<OPT_PARAM_>{"OPT_PARAM_", &P::GetOPT_PARAM_, &P::GetOPT_PARAM_, &P::GetOPT_PARAM_, &P::HasOPT_PARAM_,
                             &P::NumOPT_PARAM_});
  visit(ManyKind<STOP_>{"STOP_", &P::GetSTOP_, &P::GetSTOP_, &P::GetSTOP_, &P::HasSTOP_, &P::NumSTOP_});
  visit(ManyKind<MESH_SMOOTH_>{"MESH_SMOOTH_", &P::GetMESH_SMOOTH_, &P::GetMESH_SMOOTH_, &P::GetMESH_SMOOTH_,
                               &P::HasMESH_SMOOTH_, &P::NumMESH_SMOOTH_});
  visit(ManyKind<FILTER_>{"FILTER_", &P::GetFILTER_, &P::GetFILTER_, &P::GetFILTER_, &P::HasFILTER_, &P::NumFILTER_});
  visit(ManyKind<PRE_PARAM_>{"PRE_PARAM_", &P::GetPRE_PARAM_, &P::GetPRE_PARAM_, &P::GetPRE_PARAM_, &P::HasPRE_PARAM_,
                             &P::NumPRE_PARAM_});
  visit(ManyKind<AS_TOPO_OC_>{"AS_TOPO_OC_", &P::GetAS_TOPO_OC_, &P::GetAS_TOPO_OC_, &P::GetAS_TOPO_OC_,
                              &P::HasAS_TOPO_OC_, &P::NumAS_TOPO_OC_});
  visit(ManyKind<AS_TOPO_SENS_>{"AS_TOPO_SENS_", &P::GetAS_TOPO_SENS_, &P::GetAS_TOPO_SENS_, &P::GetAS_TOPO_SENS_,
                                &P::HasAS_TOPO_SENS_, &P::NumAS_TOPO_SENS_});
  visit(ManyKind<AS_SHAPE_SENS_>{"AS_SHAPE_SENS_", &P::GetAS_SHAPE_SENS_, &P::GetAS_SHAPE_SENS_, &P::GetAS_SHAPE_SENS_,
                                 &P::HasAS_SHAPE_SENS_, &P::NumAS_SHAPE_SENS_});
  visit(SingleKind<FLOWPATHS_>{"FLOWPATHS_", &P::GetFLOWPATHS_, &P::GetFLOWPATHS_});
  visit(ManyKind<OUTPUT_>{"OUTPUT_", &P::GetOUTPUT_, &P::GetOUTPUT_, &P::GetOUTPUT_, &P::HasOUTPUT_, &P::NumOUTPUT_});
  visit(ManyKind<SCALING_CURVE_>{"SCALING_CURVE_", &P::GetSCALING_CURVE_, &P::GetSCALING_CURVE_, &P::GetSCALING_CURVE_,
                                 &P::HasSCALING_CURVE_, &P::NumSCALING_CURVE_});
  visit(ManyKind<SMOOTH_>{"SMOOTH_", &P::GetSMOOTH_, &P::GetSMOOTH_, &P::GetSMOOTH_, &P::HasSMOOTH_, &P::NumSMOOTH_});
}

/// A visitor of ForEachKind() that passes on the kinds of which a job has any number.
template <class Visitor>
struct ManyKindsOnly
{
  Visitor visit;

  template <class Command>
  void operator()(const ManyKind<Command>& kind)
  {
    visit(kind);
  }
  template <class Command>
  void operator()(const SingleKind<Command>&)
  {
  }
};

/// A visitor of ForEachKind() that passes on the kinds of which a job has exactly one.
template <class Visitor>
struct SingleKindsOnly
{
  Visitor visit;

  template <class Command>
  void operator()(const SingleKind<Command>& kind)
  {
    visit(kind);
  }
  template <class Command>
  void operator()(const ManyKind<Command>&)
  {
  }
};

/// Calls \p visit with a ManyKind for each of the 21 kinds of which a job has any number.
template <class Visitor>
void ForEachManyKind(Visitor visit)
{
  ForEachKind(ManyKindsOnly<Visitor>{visit});
}

/// Calls \p visit with a SingleKind for each of the 4 kinds of which a job has exactly one.
template <class Visitor>
void ForEachSingleKind(Visitor visit)
{
  ForEachKind(SingleKindsOnly<Visitor>{visit});
}

template <class Command>
std::uint64_t CountOf(const Gyre_Parfile& parfile, const ManyKind<Command>& kind)
{
  return (parfile.*kind.num)();
}

/// The count as the getter's failure tells it.
template <class Command>
std::uint64_t CountOf(const Gyre_Parfile& parfile, const SingleKind<Command>& kind)
{
  try
  {
    (parfile.*kind.get)();
    return 1;
  }
  catch (const KLV_Failure& failure)
  {
    return std::stoull(failure.GetMessage());
  }
}

/// The commands that \p parfile holds, as texts such as "DV_ 2" in the order of loading, without the kinds that it
/// lacks.
inline std::vector<std::string> CommandCounts(const Gyre_Parfile& parfile)
{
  std::vector<std::string> counts;
  ForEachKind([&](const auto& kind) {
    const std::uint64_t count = CountOf(parfile, kind);
    if (count != 0)
    {
      counts.push_back(std::string(kind.name) + " " + std::to_string(count));
    }
  });
  return counts;
}
