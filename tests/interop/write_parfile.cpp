// Makes the parameter file of the working directory anew and writes a small job into it through the storage: every
// type of value, repeated keys, empty values, a gap, a deleted key and references.
//
//   write_parfile

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <hdf5.h>

#include <iostream>
#include <string>
#include <vector>

namespace
{

// The storage opens a file and never makes one.
bool MakeEmptyFile()
{
  const hid_t file = H5Fcreate(PARFILE_STORAGE_FILE, H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT);
  return file >= 0 && H5Fclose(file) >= 0;
}

void WriteOutput(OrvelParfileStorage& storage)
{
  storage.AddCommand("OUTPUT_", "fields");
  storage.AddValue("OUTPUT_", "fields", "FILENAME_", vtmString, std::string("Kr\xc3\xbcmmer"));
  storage.AddValue("OUTPUT_", "fields", "FORMAT_", vtmEnum, 86);
  storage.AddValue("OUTPUT_", "fields", "ITERATION_", vtmIntegerList, std::vector<int>{1, 10, -100});
  storage.AddValue("OUTPUT_", "fields", "CUTOFF_", vtmDoubleList, std::vector<double>{0.1, 0.9});
  storage.AddValue("OUTPUT_", "fields", "BACKFLOW_ANGLE_", vtmInteger, -60);
  storage.AddValue("OUTPUT_", "fields", "SPREAD_PERCENTAGE_", vtmDouble, 12.5);
  storage.AddValue("OUTPUT_", "fields", "ELEMENT_GROUP_", vtmModelId, std::string("design"));
  storage.AddValue("OUTPUT_", "fields", "TYPE_", vtmEnum, 84);
  storage.DeleteValues("OUTPUT_", "fields", "TYPE_");
}

void WriteSmoothing(OrvelParfileStorage& storage)
{
  storage.AddCommand("SMOOTH_", "surface");
  for (const double place : {0.5, 0.25, 0.125})
  {
    storage.AddValue("SMOOTH_", "surface", "SLICE_X_", vtmDouble, place);
  }
  storage.AddValue("SMOOTH_", "surface", "EXCLUDE_GROUP_", vtmString, std::string("frozen"));
  storage.SetValue("SMOOTH_", "surface", "EXCLUDE_GROUP_", 3, vtmString, std::string("bolts"));
  storage.AddValue("SMOOTH_", "surface", "FORMAT_", vtmEnum, 65);
  storage.SetValue("SMOOTH_", "surface", "FORMAT_", 1, vtmEnum, 83);
  storage.SetValue("SMOOTH_", "surface", "FORMAT_", 3, vtmEnum, 90);
  storage.AddValue("SMOOTH_", "surface", "GROUP_FILE_", vtmString, std::string());
  storage.AddValue("SMOOTH_", "surface", "ITERATION_", vtmIntegerList, std::vector<int>{});
}

void WriteDesignVariables(OrvelParfileStorage& storage)
{
  storage.AddCommand("FILTER_", "fine");
  storage.AddCommand("FILTER_", "coarse");
  storage.AddCommand("DV_", "porosity");
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "fine");
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", "coarse");
  storage.AddReference("DV_", "porosity", "DV_", "DV_", "porosity");
}

}  // namespace

int main()
{
  if (!MakeEmptyFile())
  {
    std::cerr << "cannot make " << PARFILE_STORAGE_FILE << '\n';
    return 1;
  }
  try
  {
    ParfileHdf5Storage storage(true);
    WriteOutput(storage);
    WriteSmoothing(storage);
    WriteDesignVariables(storage);
  }
  catch (const KLV_Failure& failure)
  {
    std::cerr << failure.what() << '\n';
    return 1;
  }
  return 0;
}
