/// \file
/// Where the files of the generated jobs lie. One thread at a time.
#pragma once

#include "support/example_job.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace benchmarks
{

/// Of the jobs in files.
inline constexpr std::size_t kJobSizes[] = {25, 250, 2500, 25000};

/// Of the job over parsed commands.
inline constexpr std::size_t kParsedJobSize = 2500;

/// The folder that the environment variable ORVEL_BENCHMARK_FOLDER names.
/// Throws: std::runtime_error when it names none.
std::filesystem::path Folder();

/// The folder of the job of this size; the parameter file and "job.json" lie in it.
std::filesystem::path JobFolder(std::size_t commands);

/// The job grown from examples/bent_duct.
std::vector<JobCommand> BentDuctJob(std::size_t commands);

/// A job of this many commands that the engine can hold.
std::vector<JobCommand> ParsedBentDuctJob(std::size_t commands);

/// Makes an empty HDF5 file where the storage expects it, in place of any that is there.
void MakeEmptyParameterFile(const std::filesystem::path& folder);

/// Enters a folder for the life of the object: the storage looks for its file in the working directory.
class Inside
{
public:
  explicit Inside(const std::filesystem::path& folder) : m_before(std::filesystem::current_path())
  {
    std::filesystem::current_path(folder);
  }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;
  ~Inside() { std::filesystem::current_path(m_before); }

private:
  std::filesystem::path m_before;
};

}  // namespace benchmarks
