// Lists the filters that act on the design variables of the job in the working directory.

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <iostream>

int main()
{
  try
  {
    ParfileHdf5Storage storage(false, true);
    Gyre_Parfile parfile(storage);
    parfile.Load();
    for (const DV_* variable : parfile.GetDV_())
    {
      for (const FILTER_* filter : variable->GetFILTER_())
      {
        std::cout << variable->GetID_NAME_() << ": " << filter->GetID_NAME_() << ", "
                  << FILTER_::GetEnumName(filter->GetMETHOD_()) << ", radius " << filter->GetRADIUS_() << "\n";
      }
    }
  }
  catch (const KLV_Failure& failure)
  {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
