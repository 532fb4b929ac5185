#include "support/job_files.h"

#include "OrvelCommands/foundation/parfile_constants.h"
#include "support/generated_job.h"

#include <hdf5.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace benchmarks
{
namespace
{

const std::vector<JobCommand>& BentDuct()
{
  static const std::vector<JobCommand> example = ReadExample(ORVEL_BENT_DUCT_JOB);
  return example;
}

}  // namespace

std::filesystem::path Folder()
{
  const char* folder = std::getenv("ORVEL_BENCHMARK_FOLDER");
  if (folder == nullptr)
  {
    throw std::runtime_error("the environment variable ORVEL_BENCHMARK_FOLDER names no folder");
  }
  return folder;
}

std::filesystem::path JobFolder(std::size_t commands)
{
  return Folder() / std::to_string(commands);
}

std::vector<JobCommand> BentDuctJob(std::size_t commands)
{
  return GrowJob(BentDuct(), commands);
}

std::vector<JobCommand> ParsedBentDuctJob(std::size_t commands)
{
  return ParsedPart(GrowJob(ParsedPart(BentDuct()), commands));
}

void MakeEmptyParameterFile(const std::filesystem::path& folder)
{
  const hid_t file = H5Fcreate((folder / PARFILE_STORAGE_FILE).c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT);
  if (file < 0 || H5Fclose(file) < 0)
  {
    throw std::runtime_error("cannot make a parameter file in " + folder.string());
  }
}

}  // namespace benchmarks
