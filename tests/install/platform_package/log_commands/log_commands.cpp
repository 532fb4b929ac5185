// Writes the design variables of the job in the working directory to the debug log.

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

int main()
{
  ParfileHdf5Storage storage(false, true);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  for (const DV_* variable : parfile.GetDV_())
  {
    variable->ToString();
  }
}
