#include "OrvelCommands/parfile/command_list.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/HeapWatch.h"
#include "support/TwinJob.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <new>
#include <set>
#include <vector>

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
template <class MakeStorage>
Attempt LoadWithout(MakeStorage make_storage, std::size_t number)
{
  Attempt attempt;
  HeapWatch watch;
  {
    auto&& storage = make_storage();
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

// The command that was being loaded, and the texts and lists that it had read: no command has more of them.
bool IsOneCommandAtMost(const std::vector<std::size_t>& lost, const std::set<std::size_t>& sizes)
{
  return lost.empty() || (sizes.count(lost.front()) != 0 && lost.size() <= 4);
}

// Lets each allocation of a load fail, one after the other, up to the first that is not reached or the first failed
// expectation, and calls a check with each attempt. Gives how many allocations have failed.
template <class MakeStorage, class Check>
std::size_t FailEachAllocation(MakeStorage make_storage, Check check)
{
  const std::set<std::size_t> sizes = SizesOfCommands();
  std::size_t number = 1;
  for (Attempt attempt = LoadWithout(make_storage, number); attempt.failed && !testing::Test::HasFailure();
       attempt = LoadWithout(make_storage, ++number))
  {
    EXPECT_TRUE(IsOneCommandAtMost(attempt.lost, sizes)) << number;
    check(attempt, number);
  }
  return number - 1;
}

// A load of one command into a list of its own.
Attempt LoadOneStopWithout(const RecordingStorage& job, std::size_t number)
{
  Attempt attempt;
  HeapWatch watch;
  {
    const RecordingStorage storage = job;
    std::vector<STOP_*> list;
    watch.FailAllocation(number);
    try
    {
      orvel::detail::LoadOneCommand(storage, 0, list);
    }
    catch (const std::bad_alloc&)
    {
      attempt.reported = true;
    }
    attempt.failed = watch.HasFailed();
    watch.FailAllocation(0);
    attempt.in_vectors = list.size();
    std::for_each(list.begin(), list.end(), std::default_delete<STOP_>());
  }
  attempt.lost = watch.SizesLeft();
  return attempt;
}

void ExpectReport(const Attempt& attempt, std::size_t number)
{
  EXPECT_TRUE(attempt.reported) << number;
}

}  // namespace

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadFails)
{
  const RecordingStorage job = CompleteJob();
  const auto copy = [&] { return job; };  // it notes what it is asked
  const std::size_t failures = FailEachAllocation(copy, ExpectReport);
  EXPECT_GT(failures, 1000U);
  const Attempt whole = LoadWithout(copy, failures + 1);
  EXPECT_EQ(whole.in_vectors, 4U);
  EXPECT_THAT(whole.lost, IsEmpty());
}

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadOfParsedCommandsFails)
{
  TwinJob job;
  Gyre_Parfile(job.Parsed()).Load();  // what the first load makes for good is there now
  EXPECT_GT(FailEachAllocation([&]() -> OrvelParfileStorage& { return job.Parsed(); }, ExpectReport), 100U);
}

// The growth of the list is the last that allocates.
TEST(GyreParfileWithoutMemory, DeletesALoadedCommandThatItsListCannotTake)
{
  const RecordingStorage job = CompleteJob();
  Attempt last;
  std::size_t number = 1;
  for (Attempt attempt = LoadOneStopWithout(job, number); attempt.failed; attempt = LoadOneStopWithout(job, ++number))
  {
    last = attempt;
  }
  EXPECT_TRUE(last.reported);
  EXPECT_EQ(last.in_vectors, 0U);
  EXPECT_THAT(last.lost, IsEmpty());
}

// HDF5 tells the name of a reference's target also without memory for it in the walk over the names, so that not every
// failure is reported.
TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadFromAFileFails)
{
  TwinJob job;
  Gyre_Parfile(job.File()).Load();
  const std::int64_t open_objects = plain_hdf5::NumOpenObjects();
  const auto expect_closed = [&](const Attempt&, std::size_t number) {
    EXPECT_EQ(plain_hdf5::NumOpenObjects(), open_objects) << number;
  };
  EXPECT_GT(FailEachAllocation([&]() -> OrvelParfileStorage& { return job.File(); }, expect_closed), 500U);
}
