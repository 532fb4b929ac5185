#include "read_job.h"

#include "job_description.h"
#include "parameter_file.h"
#include "read_parameter_file.h"

Job ReadJob(const std::filesystem::path& path)
{
  return IsJobDescription(path) ? ReadSoundJobDescription(path) : ReadParameterFile(ParameterFilePath(path));
}
