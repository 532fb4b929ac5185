#include "FilterReport.h"

#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <sstream>

namespace
{

Gyre_Parfile LoadJob()
{
  ParfileHdf5Storage storage(false, true);
  Gyre_Parfile job(storage);
  job.Load();
  return job;
}

}  // namespace

FilterReport::FilterReport() : m_job(LoadJob()) {}

std::string FilterReport::GetText() const
{
  std::ostringstream text;
  for (const DV_* variable : m_job.GetDV_())
  {
    for (const FILTER_* filter : variable->GetFILTER_())
    {
      text << filter->GetID_NAME_() << " filters " << variable->GetID_NAME_() << "\n";
    }
  }
  return text.str();
}
