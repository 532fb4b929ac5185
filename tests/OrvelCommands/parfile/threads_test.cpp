// What several threads may do at once. Run it under the thread sanitizer: -DORVEL_SANITIZE=thread.

#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"

#include "OrvelUtilities/KLV_LogMacros.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace
{

// The length of all ids, reached by getters, by lookups and by references. Each command is printed too, which reads all
// of its values.
std::size_t ReadAll(const Gyre_Parfile& parfile)
{
  std::size_t length = 0;
  orvel::ForEachCommand(parfile, [&](const auto& command) {
    length += command.GetID_NAME_().size();
    command.ToString();
  });
  length += parfile.GetDV_("other").GetID_NAME_().size() + parfile.GetFILTER_("fine").GetID_NAME_().size();
  const ALGO_& algorithm = parfile.GetALGO_();
  for (std::uint64_t index = 1; index <= algorithm.NumCONSTRAINT_(); ++index)
  {
    length += algorithm.GetCONSTRAINT_(index).GetID_NAME_().size();
  }
  return length + algorithm.GetDV_().GetID_NAME_().size() + ALGO_::GetEnumName(algorithm.GetSTRATEGY_()).size();
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
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::size_t printed = 0;  // the sink is called by one thread at a time
  KLV_LogMacros::SetSink([&](const KLV_LogRecord& record) { printed += record.text.size(); });
  const std::size_t expected = ReadAll(parfile);
  const std::size_t printed_by_one = printed;
  std::vector<std::size_t> found(8);
  OnEightThreads([&](int number) { found[number] = ReadAll(parfile); });
  KLV_LogMacros::SetSink(nullptr);
  EXPECT_EQ(found, std::vector<std::size_t>(8, expected));
  EXPECT_GT(printed_by_one, 1000U);
  EXPECT_EQ(printed, 9 * printed_by_one);
}

TEST(Threads, MayLoadAnAggregateOfTheirOwnEach)
{
  std::vector<std::uint64_t> found(8);
  OnEightThreads([&](int number) {
    RecordingStorage storage = CompleteJob();
    Gyre_Parfile parfile(storage);
    parfile.Load();
    found[number] = parfile.NumDV_() + parfile.GetDV_(1).NumFILTER_();
  });
  for (const std::uint64_t one : found)
  {
    EXPECT_EQ(one, found.front());
  }
  EXPECT_GT(found.front(), 0U);
}
