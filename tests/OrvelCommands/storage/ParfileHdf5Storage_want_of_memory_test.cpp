#include "ParfileHdf5StorageTest.h"
#include "support/HeapWatch.h"

#include <new>

namespace
{

// Longer than what a std::string holds without an allocation.
const std::string kTarget = "filter_of_the_outlet_and_its_neighbours";

struct Attempt
{
  bool failed = false;    // the allocation
  bool reported = false;  // by std::bad_alloc
  std::string target;
};

// A read of the reference whose allocation of this number fails.
Attempt ReadWithout(const ParfileHdf5Storage& storage, std::size_t number)
{
  Attempt attempt;
  HeapWatch watch;
  watch.FailAllocation(number);
  try
  {
    storage.GetReference("DV_", "porosity", "FILTER_", 1, attempt.target);
  }
  catch (const std::bad_alloc&)
  {
    attempt.reported = true;
  }
  attempt.failed = watch.HasFailed();
  watch.FailAllocation(0);
  return attempt;
}

class ParfileHdf5StorageWithoutMemory : public ParfileHdf5StorageTest
{
};

}  // namespace

TEST_F(ParfileHdf5StorageWithoutMemory, ReadsAReferenceOrReportsWhicheverAllocationFails)
{
  const ParfileHdf5Storage storage = StorageWithCommand();
  storage.AddCommand("FILTER_", kTarget);
  storage.AddReference("DV_", "porosity", "FILTER_", "FILTER_", kTarget);
  std::size_t failures = 0;
  std::size_t read_all_the_same = 0;
  for (Attempt attempt = ReadWithout(storage, 1); attempt.failed; attempt = ReadWithout(storage, failures + 1))
  {
    ++failures;
    ASSERT_NE(attempt.reported, attempt.target == kTarget) << failures;
    read_all_the_same += attempt.reported ? 0 : 1;
  }
  EXPECT_GE(failures, 2U);
  // HDF5 tells the name too when there is no memory for it in the walk over the names.
  EXPECT_EQ(read_all_the_same, 1U);
}
