// Writes the generated jobs of the given sizes into the folder of the benchmarks, each as a parameter file and as JSON,
// and the job over parsed commands as JSON.

#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/generated_job.h"
#include "support/job_files.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <string>

namespace
{

using namespace benchmarks;

void WriteJson(const std::vector<JobCommand>& job, const std::filesystem::path& file)
{
  std::ofstream(file) << AsJson(job).dump(1) << "\n";
}

void MakeJob(std::size_t commands)
{
  const std::vector<JobCommand> job = BentDuctJob(commands);
  const std::filesystem::path folder = JobFolder(commands);
  std::filesystem::create_directories(folder);
  WriteJson(job, folder / "job.json");
  MakeEmptyParameterFile(folder);
  const Inside inside(folder);
  ParfileHdf5Storage storage(true);
  WriteToStorage(job, storage);
  std::cout << folder.string() << ": " << job.size() << " commands, " << CountValues(job) << " values and references\n";
}

}  // namespace

int main(int count, char** arguments)
{
  try
  {
    for (int place = 1; place < count; ++place)
    {
      MakeJob(std::stoul(arguments[place]));
    }
    WriteJson(ParsedBentDuctJob(kParsedJobSize), Folder() / "parsed_job.json");
  }
  catch (const std::exception& error)
  {
    std::cerr << "make_jobs: " << error.what() << "\n";
    return 1;
  }
}
