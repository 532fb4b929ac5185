/// \file
/// Jobs of any size for measurements, grown from an example. One thread at a time.
#pragma once

#include "OrvelCmdEngine/OrvelCmdContainer.h"
#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "support/example_job.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <filesystem>
#include <vector>

namespace benchmarks
{

/// Grows a job description to a number of commands. The same arguments give the same job.
///
/// Kinds that one ALGO_ needs once stay at one command; the others keep the shares that they have in the example. A
/// command is a copy of one of the example with a number behind its id and refers to the copies of what that one refers
/// to; ALGO_ names all commands of the kinds of which it takes any number.
///
/// Requires: at least one command for each kind of the example.
std::vector<JobCommand> GrowJob(const std::vector<JobCommand>& example, std::size_t commands);

/// How many values and references there are.
std::size_t CountValues(const std::vector<JobCommand>& job);

/// Writes a job into an empty storage.
void WriteToStorage(const std::vector<JobCommand>& job, OrvelParfileStorage& storage);

/// Kind to id to key to value; a repeated key is an array, an enumerator its number, a reference the target's id.
nlohmann::json AsJson(const std::vector<JobCommand>& job);

/// What of a job the command engine can hold: the kinds and keys of docs/parsed_commands.md.
std::vector<JobCommand> ParsedPart(const std::vector<JobCommand>& job);

/// Fills a container as the engine does when it has parsed the job. The design variables that the DV_ of ALGO_ merges
/// are named by OPTIMIZE itself.
/// Requires: a job from ParsedPart.
void FillContainer(const std::vector<JobCommand>& job, OrvelCmdContainer& container);

}  // namespace benchmarks
