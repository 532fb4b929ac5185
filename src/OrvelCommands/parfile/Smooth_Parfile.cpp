/// \file
/// The operations of Smooth_Parfile. What each step does stands in command_list.h.
///
/// Generated from smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#include "OrvelCommands/parfile/Smooth_Parfile.h"

#include "OrvelCommands/parfile/command_list.h"

#include <utility>

using namespace orvel::detail;

namespace
{
constexpr const char* kAggregate = "Smooth_Parfile";
}

Smooth_Parfile::Smooth_Parfile(OrvelParfileStorage& storage) : Parfile(storage) {}

Smooth_Parfile::Smooth_Parfile(Smooth_Parfile&& other)
  : Parfile(static_cast<Parfile&&>(other)),
    m_SMOOTH_(std::move(other.m_SMOOTH_))
{
}

Smooth_Parfile::~Smooth_Parfile()
{
  DeleteCommands(m_SMOOTH_);
}

void Smooth_Parfile::Load()
{
  LoadCommands(m_storage, m_SMOOTH_);
}

void Smooth_Parfile::ValidateModelIds()
{
  std::vector<KLV_ParfileException> problems;
  CheckCommands(m_SMOOTH_, m_storage, problems);
  ReportProblems(problems, kAggregate);
}

// ---- SMOOTH_

std::vector<SMOOTH_*> Smooth_Parfile::GetSMOOTH_() const
{
  return m_SMOOTH_;
}

SMOOTH_& Smooth_Parfile::GetSMOOTH_(const std::string& id) const
{
  return CommandById(m_SMOOTH_, id, kAggregate);
}

SMOOTH_& Smooth_Parfile::GetSMOOTH_(std::uint64_t index) const
{
  return CommandAt(m_SMOOTH_, index, kAggregate);
}

bool Smooth_Parfile::HasSMOOTH_(const std::string& id) const
{
  return FindCommand(m_SMOOTH_, id) != nullptr;
}

std::uint64_t Smooth_Parfile::NumSMOOTH_() const
{
  return m_SMOOTH_.size();
}
