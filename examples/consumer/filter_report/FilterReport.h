// What a job filters, as text. The header shows the types of OrvelCommands, so that its users need these headers too.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"

#include <string>

class FilterReport
{
public:
  // Loads the job in the working directory. Throws: KLV_Failure as OrvelCommands does.
  FilterReport();

  // Gives one line for each filter of each design variable.
  std::string GetText() const;

  // Gives the loaded job, for what the report leaves out.
  const Gyre_Parfile& GetJob() const { return m_job; }

private:
  Gyre_Parfile m_job;
};
