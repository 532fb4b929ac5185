#include "new_parameter_file.h"

#include "write_job.h"

NewParameterFile::NewParameterFile(const std::filesystem::path& place) : m_place(place), m_file(place)
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
  if (!force)
  {
    m_file.PutInFreePlace();
    return;
  }
  if (std::filesystem::exists(m_place))
  {
    m_file.TakeRightsOfPlace();
  }
  m_file.PutInPlace();
}
