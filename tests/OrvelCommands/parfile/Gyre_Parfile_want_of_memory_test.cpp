#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/HeapWatch.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <new>
#include <set>

using testing::IsEmpty;

namespace
{

struct Attempt
{
  bool failed = false;    // the allocation
  bool reported = false;  // by std::bad_alloc
  std::size_t in_vectors = 0;
  std::vector<std::size_t> lost;
};

// A load whose allocation of this number fails, with the end of the aggregate.
Attempt LoadWithout(const RecordingStorage& job, std::size_t number)
{
  Attempt attempt;
  HeapWatch watch;
  {
    RecordingStorage storage = job;
    Gyre_Parfile parfile(storage);
    watch.FailAllocation(number);
    try
    {
      parfile.Load();
    }
    catch (const std::bad_alloc&)
    {
      attempt.reported = true;
    }
    attempt.failed = watch.HasFailed();
    watch.FailAllocation(0);
    attempt.in_vectors = parfile.GetDV_().size() + parfile.GetFILTER_().size();
  }
  attempt.lost = watch.SizesLeft();
  return attempt;
}

std::set<std::size_t> SizesOfCommands()
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::set<std::size_t> sizes;
  orvel::ForEachCommand(parfile, [&](const auto& command) { sizes.insert(sizeof(command)); });
  return sizes;
}

}  // namespace

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadFails)
{
  const RecordingStorage job = CompleteJob();
  const std::set<std::size_t> sizes = SizesOfCommands();
  std::size_t failures = 0;
  for (std::size_t number = 1;; ++number)
  {
    const Attempt attempt = LoadWithout(job, number);
    if (!attempt.failed)
    {
      EXPECT_EQ(attempt.in_vectors, 4U);
      EXPECT_THAT(attempt.lost, IsEmpty());
      break;
    }
    ++failures;
    ASSERT_TRUE(attempt.reported) << number;
    // The command that was being loaded, and what it had read.
    const auto commands_lost =
      std::count_if(attempt.lost.begin(), attempt.lost.end(), [&](std::size_t size) { return sizes.count(size) != 0; });
    ASSERT_LE(commands_lost, 1) << number;
    ASSERT_TRUE(attempt.lost.empty() || sizes.count(attempt.lost.front()) != 0) << number;
  }
  EXPECT_GT(failures, 1000U);
}
