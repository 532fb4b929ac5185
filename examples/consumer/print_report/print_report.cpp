// Prints the report on the filters of the job in the working directory, and what the job minimises or maximises.

#include "FilterReport.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <iostream>

int main()
{
  try
  {
    const FilterReport report;
    std::cout << report.GetText() << "objective: " << report.GetJob().GetOBJ_FUNC_().GetID_NAME_() << "\n";
  }
  catch (const KLV_Failure& failure)
  {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
