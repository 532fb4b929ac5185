/// \file
/// Links the commands of a parameter file. One thread at a time.
///
/// Generated from gyre_commands.toml and smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"

namespace orvel::detail
{

/// The one place that may set the references of a command: by the ids that the storage holds, each an operation of a
/// class with references. None collects a problem; an unknown id is the failure of the aggregate's getter.
struct ReferenceLinker
{
  static void ResolveReferences(
    DV_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    DRESP_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    OPERATOR_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    OBJ_FUNC_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    CONSTRAINT_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    DV_CONSTRAINT_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    MONITOR_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    ALGO_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    MESH_SMOOTH_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
  static void ResolveReferences(
    AS_SHAPE_SENS_& self, const OrvelParfileStorage& storage, Gyre_Parfile& parfile, const std::string& id,
    std::vector<KLV_ParfileException>& problems);
};

}  // namespace orvel::detail
