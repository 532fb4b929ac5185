#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/HeapWatch.h"
#include "support/TwinJob.h"

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

}  // namespace

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadFails)
{
  const RecordingStorage job = CompleteJob();
  const auto copy = [&] { return job; };  // it notes what it is asked
  const std::set<std::size_t> sizes = SizesOfCommands();
  std::size_t failures = 0;
  for (std::size_t number = 1;; ++number)
  {
    const Attempt attempt = LoadWithout(copy, number);
    if (!attempt.failed)
    {
      EXPECT_EQ(attempt.in_vectors, 4U);
      EXPECT_THAT(attempt.lost, IsEmpty());
      break;
    }
    ++failures;
    ASSERT_TRUE(attempt.reported) << number;
    ASSERT_TRUE(IsOneCommandAtMost(attempt.lost, sizes)) << number;
  }
  EXPECT_GT(failures, 1000U);
}

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadOfParsedCommandsFails)
{
  TwinJob job;
  Gyre_Parfile(job.Parsed()).Load();  // what the first load makes for good is there now
  const std::set<std::size_t> sizes = SizesOfCommands();
  const auto parsed = [&]() -> OrvelParfileStorage& { return job.Parsed(); };
  std::size_t failures = 0;
  for (Attempt attempt = LoadWithout(parsed, 1); attempt.failed; attempt = LoadWithout(parsed, failures + 1))
  {
    ++failures;
    ASSERT_TRUE(attempt.reported) << failures;
    ASSERT_TRUE(IsOneCommandAtMost(attempt.lost, sizes)) << failures;
  }
  EXPECT_GT(failures, 100U);
}

TEST(GyreParfileWithoutMemory, CanBeDestroyedWhicheverAllocationOfALoadFromAFileFails)
{
  TwinJob job;
  Gyre_Parfile(job.File()).Load();
  const std::int64_t open_objects = plain_hdf5::NumOpenObjects();
  const std::set<std::size_t> sizes = SizesOfCommands();
  const auto file = [&]() -> OrvelParfileStorage& { return job.File(); };
  std::size_t failures = 0;
  for (Attempt attempt = LoadWithout(file, 1); attempt.failed; attempt = LoadWithout(file, failures + 1))
  {
    ++failures;
    ASSERT_TRUE(IsOneCommandAtMost(attempt.lost, sizes)) << failures;
    ASSERT_EQ(plain_hdf5::NumOpenObjects(), open_objects) << failures;
  }
  EXPECT_GT(failures, 500U);
}
