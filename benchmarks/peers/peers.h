/// \file
/// What users would write themselves in place of the library. One thread at a time. Each throws std::runtime_error for
/// a file that does not hold a generated job.
#pragma once

#include "peers/LocalGenerated/plain_commands.h"
#include "support/example_job.h"

#include <hdf5.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace plain
{

using benchmarks::JobCommand;
using benchmarks::JobKey;
using benchmarks::JobValue;

/// Reads a parameter file with the calls of HDF5's C interface that the storage's contract demands for each value: the
/// group of the command opened, its names walked, the type made, the dataset opened by its path, one element selected
/// and read. The id of a reference is found as the library does, by the address of a link of the target's kind.
/// \param transfer the property list of each read; the contract names the default
Job ReadWithDemandedCalls(const std::filesystem::path& file, hid_t transfer);

/// The path and element type of a key.
struct DatasetPlace
{
  std::string path;
  VtmType type;
};

std::vector<DatasetPlace> PlacesOf(const std::vector<JobCommand>& job);

/// Opens each dataset by its known path and reads it in one piece, looking nothing up: the least that the layout of the
/// file allows. References stay as they are.
/// Returns: the number of values.
std::size_t ReadEachDatasetOnce(const std::filesystem::path& file, const std::vector<DatasetPlace>& places,
                                hid_t transfer);

/// Reads the job from JSON text.
Job ReadJson(const std::filesystem::path& file);

/// Writes a job into a file that is there, with the calls of HDF5's C interface that the storage's contract demands.
void WriteWithDemandedCalls(const std::filesystem::path& file, const std::vector<JobCommand>& job, hid_t transfer);

}  // namespace plain
