#include "OrvelCommands/commands/command_schema.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <thread>

namespace
{

// What the command of an index of a file holds: no two hold the same.
struct Content
{
  Content(int file, int index) : number(1000 * file + index), id("surface_" + std::to_string(number)) {}

  int number;
  std::string id;  // and each text
};

// A file of commands with all that a SMOOTH_ always has.
void WriteSmoothJob(int file, int commands)
{
  plain_hdf5::MakeEmptyFile();
  const ParfileHdf5Storage storage(true);
  for (int i = 0; i < commands; ++i)
  {
    const Content content(file, i);
    storage.AddCommand("SMOOTH_", content.id);
    for (const orvel::schema::Field& field : orvel::schema::FindCommand("SMOOTH_")->fields)
    {
      const std::string key(field.key);
      storage.AddValue("SMOOTH_", content.id, key, field.type == vtmDouble ? vtmDouble : vtmUnknown,
                       content.number / 8.0);
      storage.AddValue("SMOOTH_", content.id, key, field.type == vtmString ? vtmString : vtmUnknown, content.id);
      const bool is_number = field.type == vtmEnum || field.type == vtmInteger;
      storage.AddValue("SMOOTH_", content.id, key, is_number ? vtmInteger : vtmUnknown, content.number);
    }
  }
}

void LoadOften(ParfileHdf5Storage& storage, int file, int commands)
{
  for (int time = 0; time < 10; ++time)
  {
    Smooth_Parfile parfile(storage);
    parfile.Load();
    ASSERT_EQ(parfile.GetSMOOTH_().size(), static_cast<std::size_t>(commands));
    for (int i = 0; i < commands; ++i)
    {
      const Content content(file, i);
      const SMOOTH_& smooth = parfile.GetSMOOTH_(content.id);
      EXPECT_EQ(smooth.GetRESULT_FILE_(), content.id);
      EXPECT_EQ(smooth.GetSMOOTH_CYCLES_(), content.number);
      EXPECT_EQ(smooth.GetISO_VALUE_(), content.number / 8.0);
    }
  }
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
  WriteSmoothJob(1, 3);
  ParfileHdf5Storage first(false, true);
  const TemporaryFolder second_folder;
  WriteSmoothJob(2, 5);
  ParfileHdf5Storage second(false, true);

  std::thread first_thread(LoadOften, std::ref(first), 1, 3);
  std::thread second_thread(LoadOften, std::ref(second), 2, 5);
  first_thread.join();
  second_thread.join();
}
