#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "support/complete_job.h"
#include "support/HeapWatch.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <memory>

using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;
using testing::SizeIs;

namespace
{

using Sizes = std::vector<std::size_t>;

// What stays on the heap of a job that is loaded and destroyed, when its storage fails a call.
template <class Aggregate>
Sizes SizesLostBy(const RecordingStorage& job, const std::string& failing_call)
{
  const HeapWatch watch;
  {
    RecordingStorage storage = job;
    storage.FailOn(failing_call);
    Aggregate parfile(storage);
    try
    {
      parfile.Load();
    }
    catch (const std::exception&)
    {
    }
  }
  return watch.SizesLeft();
}

Sizes SizesLostByTheCompleteJob(const std::string& failing_call)
{
  return SizesLostBy<Gyre_Parfile>(CompleteJob(), failing_call);
}

// The size of each class, by its kind.
std::map<std::string, std::size_t> SizesOfKinds()
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::map<std::string, std::size_t> sizes;
  orvel::ForEachCommand(parfile, [&](const auto& command) { sizes[command.GetType()] = sizeof(command); });
  return sizes;
}

// The kind in the text of a call, "DV_" in "HasElement(DV_, porosity, NODE_GROUP_)".
std::string KindIn(const std::string& call)
{
  const std::size_t begin = call.find('(') + 1;
  return call.substr(begin, call.find_first_of(",)", begin) - begin);
}

}  // namespace

TEST(GyreParfileHeap, IsLeftAsItWasByAWholeLoad)
{
  EXPECT_THAT(SizesLostByTheCompleteJob(""), IsEmpty());
}

TEST(GyreParfileHeap, IsLeftAsItWasWhenACountFails)
{
  RecordingStorage job = CompleteJob();
  job.RemoveCommands("FLOWPATHS_");
  EXPECT_THAT(SizesLostBy<Gyre_Parfile>(job, ""), IsEmpty());
  EXPECT_THAT(SizesLostByTheCompleteJob("GetNumCommand(FILTER_)"), IsEmpty());
}

TEST(GyreParfileHeap, IsLeftAsItWasWhenALinkFails)
{
  RecordingStorage job = CompleteJob();
  job.Command("AS_SHAPE_SENS_", "settings")["FILTER_"] = {Ref{"fine"}, Ref{"nowhere"}};
  EXPECT_THAT(SizesLostBy<Gyre_Parfile>(job, ""), IsEmpty());
}

TEST(GyreParfileHeap, IsLeftAsItWasByASecondLoadThatFails)
{
  const HeapWatch watch;
  {
    RecordingStorage storage = CompleteJob();
    Gyre_Parfile parfile(storage);
    parfile.Load();
    EXPECT_THROW(parfile.Load(), KLV_Failure);
  }
  EXPECT_THAT(watch.SizesLeft(), IsEmpty());
}

TEST(GyreParfileHeap, IsLeftAsItWasByAnAggregateThatIsDeletedThroughItsBase)
{
  const HeapWatch watch;
  {
    RecordingStorage storage = CompleteJob();
    auto parfile = std::make_unique<Gyre_Parfile>(storage);
    parfile->Load();
    const std::unique_ptr<Parfile> base = std::move(parfile);
  }
  EXPECT_THAT(watch.SizesLeft(), IsEmpty());
}

TEST(GyreParfileHeap, IsLeftAsItWasByASourceThatIsLoadedAgain)
{
  const HeapWatch watch;
  {
    RecordingStorage storage = CompleteJob();
    Gyre_Parfile source(storage);
    source.Load();
    const Gyre_Parfile target(std::move(source));
    source.Load();  // NOLINT(bugprone-use-after-move): it can be used again
  }
  EXPECT_THAT(watch.SizesLeft(), IsEmpty());
}

TEST(GyreParfileHeap, LosesTheCommandWhoseOwnLoadFails)
{
  EXPECT_THAT(SizesLostByTheCompleteJob("GetEnumValue(DV_, other, TYPE_, 1, vtmEnum)"), ElementsAre(sizeof(DV_)));
  EXPECT_THAT(SizesLostByTheCompleteJob("GetEnumValue(ALGO_, algorithm, STRATEGY_, 1, vtmEnum)"),
              ElementsAre(sizeof(ALGO_)));
}

TEST(GyreParfileHeap, LosesWhatTheLostCommandHadRead)
{
  const Sizes lost = SizesLostByTheCompleteJob("GetValue(ELEMENT_GROUP_, duct, MERGE_, 2, vtmModelId, string)");
  EXPECT_THAT(lost, ElementsAre(sizeof(ELEMENT_GROUP_), 3 * sizeof(int), sizeof(std::string)));
}

TEST(GyreParfileHeap, LosesNothingButTheCommandThatWasBeingLoadedWhateverCallFails)
{
  const std::map<std::string, std::size_t> sizes = SizesOfKinds();
  const std::vector<std::string> calls = CallsOfAWholeLoad();
  const auto second_pass = std::find(calls.begin(), calls.end(), "GetNumElements(DV_, variable, FILTER_)");
  ASSERT_NE(second_pass, calls.end());
  for (auto call = calls.begin(); call != calls.end(); ++call)
  {
    const bool loads_a_command =
      call < second_pass && call->rfind("GetNumCommand(", 0) != 0 && call->rfind("GetCommandName(", 0) != 0;
    const Sizes lost = SizesLostByTheCompleteJob(*call);
    if (loads_a_command)
    {
      // The object, then at most the blocks of its lists and texts: no command has more than a few here.
      ASSERT_THAT(lost, SizeIs(AllOf(Ge(1U), Le(4U)))) << *call;
      EXPECT_EQ(lost.front(), sizes.at(KindIn(*call))) << *call;
    }
    else
    {
      EXPECT_THAT(lost, IsEmpty()) << *call;
    }
  }
}

TEST(GyreParfileHeap, FreesTheCommandsInTheOrderInWhichTheyWereLoaded)
{
  RecordingStorage storage = CompleteJob();
  auto parfile = std::make_unique<Gyre_Parfile>(storage);
  parfile->Load();
  std::vector<const void*> commands;
  orvel::ForEachCommand(*parfile, [&](const auto& command) { commands.push_back(&command); });
  ASSERT_THAT(commands, SizeIs(32));

  const HeapWatch watch;
  parfile.reset();
  std::vector<const void*> freed = watch.Freed();
  const auto is_other = [&](const void* block) {
    return std::find(commands.begin(), commands.end(), block) == commands.end();
  };
  freed.erase(std::remove_if(freed.begin(), freed.end(), is_other), freed.end());
  EXPECT_EQ(freed, commands);
}

TEST(SmoothParfileHeap, LosesNothingButTheCommandWhoseOwnLoadFails)
{
  RecordingStorage job;
  job.KeepOutputsOfAbsentKeys();
  job.Command("SMOOTH_", "outer");
  job.Command("SMOOTH_", "inner");
  EXPECT_THAT(SizesLostBy<Smooth_Parfile>(job, ""), IsEmpty());
  EXPECT_THAT(SizesLostBy<Smooth_Parfile>(job, "GetNumCommand(SMOOTH_)"), IsEmpty());
  EXPECT_THAT(SizesLostBy<Smooth_Parfile>(job, "GetEnumValue(SMOOTH_, inner, TASK_, 1, vtmEnum)"),
              ElementsAre(sizeof(SMOOTH_)));
}
