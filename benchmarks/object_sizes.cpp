// Includes everything that a user can include and prints the bytes of each command object, of the aggregates and
// storages.

#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <iostream>

namespace
{

template <class... Commands>
void PrintSizes()
{
  ((std::cout << Commands::s_type << " " << sizeof(Commands) << "\n"), ...);
}

}  // namespace

int main()
{
  PrintSizes<MODEL_, ELEMENT_GROUP_, FACE_GROUP_, NODE_GROUP_, DV_, DRESP_, OPERATOR_, OBJ_FUNC_, CONSTRAINT_, CS_,
             DV_CONSTRAINT_, MONITOR_, ALGO_, OPT_PARAM_, STOP_, MESH_SMOOTH_, FILTER_, PRE_PARAM_, AS_TOPO_OC_,
             AS_TOPO_SENS_, AS_SHAPE_SENS_, FLOWPATHS_, OUTPUT_, SCALING_CURVE_, SMOOTH_>();
  std::cout << "Gyre_Parfile " << sizeof(Gyre_Parfile) << "\n"
            << "Smooth_Parfile " << sizeof(Smooth_Parfile) << "\n"
            << "ParfileHdf5Storage " << sizeof(ParfileHdf5Storage) << "\n"
            << "OrvelParfileStorageCmdContainer " << sizeof(OrvelParfileStorageCmdContainer) << "\n";
}
