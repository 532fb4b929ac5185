#include "new_parameter_file.h"

#include "write_job.h"

NewParameterFile::NewParameterFile(const std::filesystem::path& place) : m_file(place)
{
  MakeParameterFile(Path());
}

std::vector<std::string> NewParameterFile::Fill(const Job& job)
{
  return WriteJob(Path(), job);
}

std::filesystem::path NewParameterFile::Path() const
{
  return m_file.Path();
}

void NewParameterFile::PutInPlace(bool force)
{
  force ? m_file.PutInPlace() : m_file.PutInFreePlace();
}
