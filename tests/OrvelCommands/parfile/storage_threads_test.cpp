#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <thread>

namespace
{

// All that a SMOOTH_ always has.
void WriteSmoothJob(int commands)
{
  plain_hdf5::MakeEmptyFile();
  const ParfileHdf5Storage storage(true);
  for (int i = 0; i < commands; ++i)
  {
    const std::string id = "surface_" + std::to_string(i);
    storage.AddCommand("SMOOTH_", id);
    for (const orvel::schema::Field& field : orvel::schema::FindCommand("SMOOTH_")->fields)
    {
      const std::string key(field.key);
      storage.AddValue("SMOOTH_", id, key, field.type == vtmDouble ? vtmDouble : vtmUnknown, 0.5);
      storage.AddValue("SMOOTH_", id, key, field.type == vtmString ? vtmString : vtmUnknown, id);
      const bool is_number = field.type == vtmEnum || field.type == vtmInteger;
      storage.AddValue("SMOOTH_", id, key, is_number ? vtmInteger : vtmUnknown, 83);
    }
  }
}

std::size_t Load(ParfileHdf5Storage& storage)
{
  Smooth_Parfile parfile(storage);
  parfile.Load();
  return parfile.GetSMOOTH_().size();
}

}  // namespace

// Each thread has a storage and an aggregate of its own. HDF5 has to be built for threads, as Debian's is: it then lets
// one thread in at a time.
TEST(Threads, MayLoadFromAStorageOfTheirOwnEach)
{
  hbool_t for_threads = 0;
  ASSERT_GE(H5is_library_threadsafe(&for_threads), 0);
  ASSERT_TRUE(for_threads) << "this HDF5 is not built for threads";
  const H5::PredType& made_before_the_threads = H5::PredType::NATIVE_INT;
  made_before_the_threads.getId();
  H5::Exception::dontPrint();

  const TemporaryFolder first_folder;
  WriteSmoothJob(3);
  ParfileHdf5Storage first(false, true);
  const TemporaryFolder second_folder;
  WriteSmoothJob(5);
  ParfileHdf5Storage second(false, true);

  std::size_t found_in_first = 0;
  std::size_t found_in_second = 0;
  const auto load_often = [](ParfileHdf5Storage& storage, std::size_t& found) {
    for (int i = 0; i < 10; ++i)
    {
      found = Load(storage);
    }
  };
  std::thread first_thread(load_often, std::ref(first), std::ref(found_in_first));
  std::thread second_thread(load_often, std::ref(second), std::ref(found_in_second));
  first_thread.join();
  second_thread.join();
  EXPECT_EQ(found_in_first, 3U);
  EXPECT_EQ(found_in_second, 5U);
}
