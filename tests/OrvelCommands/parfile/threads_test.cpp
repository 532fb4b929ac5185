// What several threads may do at once. Run it under the thread sanitizer: -DORVEL_SANITIZE=thread. What is filled at
// its first use must be seen there, so the first use is that of the threads.

#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/TwinJob.h"

#include "OrvelUtilities/KLV_LogMacros.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <tuple>
#include <vector>

namespace
{

// A loaded job that nobody has read yet.
struct LoadedJob
{
  LoadedJob() { parfile.Load(); }

  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile{storage};
};

// The length of all ids, reached by getters, by lookups and by references.
std::size_t LengthOfIds(const Gyre_Parfile& parfile)
{
  std::size_t length = 0;
  orvel::ForEachCommand(parfile, [&](const auto& command) { length += command.GetID_NAME_().size(); });
  length += parfile.GetDV_("other").GetID_NAME_().size() + parfile.GetFILTER_("fine").GetID_NAME_().size();
  const ALGO_& algorithm = parfile.GetALGO_();
  for (std::uint64_t index = 1; index <= algorithm.NumCONSTRAINT_(); ++index)
  {
    length += algorithm.GetCONSTRAINT_(index).GetID_NAME_().size();
  }
  return length + algorithm.GetDV_().GetID_NAME_().size() + ALGO_::GetEnumName(algorithm.GetSTRATEGY_()).size();
}

// Reads all values of all commands.
void Print(const Gyre_Parfile& parfile)
{
  orvel::ForEachCommand(parfile, [](const auto& command) { command.ToString(); });
}

// What tells of a loaded TwinJob: its variables, the filters of the first of them, and what its ALGO_ refers to.
using Told = std::tuple<std::uint64_t, std::uint64_t, std::string, std::string>;

Told LoadAndTell(OrvelParfileStorage& storage)
{
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const ALGO_& algorithm = parfile.GetALGO_();
  return {parfile.NumDV_(), parfile.GetDV_(1).NumFILTER_(), algorithm.GetDV_().GetID_NAME_(),
          algorithm.GetCONSTRAINT_(2).GetID_NAME_()};
}

template <class Work>
void OnEightThreads(Work work)
{
  std::vector<std::thread> threads;
  for (int number = 0; number < 8; ++number)
  {
    threads.emplace_back(work, number);
  }
  for (std::thread& thread : threads)
  {
    thread.join();
  }
}

}  // namespace

TEST(Threads, MayReadLoadedCommandsAtOnce)
{
  const LoadedJob read_before;
  const LoadedJob shared;
  std::vector<std::size_t> found(8);
  OnEightThreads([&](int number) { found[number] = LengthOfIds(shared.parfile); });
  EXPECT_EQ(found, std::vector<std::size_t>(8, LengthOfIds(read_before.parfile)));
  EXPECT_GT(found.front(), 100U);
}

TEST(Threads, MayPrintLoadedCommandsAtOnce)
{
  const LoadedJob read_before;
  const LoadedJob shared;
  std::size_t printed = 0;  // the sink is called by one thread at a time
  KLV_LogMacros::SetSink([&](const KLV_LogRecord& record) { printed += record.text.size(); });
  OnEightThreads([&](int) { Print(shared.parfile); });
  const std::size_t printed_by_eight = printed;
  Print(read_before.parfile);
  KLV_LogMacros::SetSink(nullptr);
  EXPECT_EQ(printed_by_eight, 8 * (printed - printed_by_eight));
  EXPECT_GT(printed_by_eight, 8000U);
}

TEST(Threads, MayLoadAnAggregateOfTheirOwnEach)
{
  std::vector<std::uint64_t> found(8);
  OnEightThreads([&](int number) {
    const LoadedJob own;
    found[number] = own.parfile.NumDV_() * 10 + own.parfile.GetDV_(1).NumFILTER_();
  });
  EXPECT_EQ(found, std::vector<std::uint64_t>(8, 22));
}

TEST(Threads, MayLoadFromOneStorageOverParsedCommandsAtOnce)
{
  TwinJob job;
  std::vector<Told> told(8);
  OnEightThreads([&](int number) { told[number] = LoadAndTell(job.Parsed()); });
  EXPECT_EQ(told, std::vector<Told>(8, Told(3, 2, "__v_merged_DV", "bound")));
}
