#include "OrvelCommands/parfile/for_each_command.h"
#include "support/complete_job.h"
#include "support/failures.h"

#include <gmock/gmock.h>

#include <type_traits>

using orvel::ForEachCommand;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// "DV_ porosity" for each command.
template <class Aggregate>
std::vector<std::string> NamesIn(const Aggregate& parfile)
{
  std::vector<std::string> names;
  ForEachCommand(parfile,
                 [&](const auto& command) { names.push_back(command.GetType() + " " + command.GetID_NAME_()); });
  return names;
}

}  // namespace

TEST(ForEachCommand, VisitsAllCommandsOnceInTheOrderOfLoading)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(NamesIn(parfile),
              ElementsAre("MODEL_ model", "ELEMENT_GROUP_ duct", "FACE_GROUP_ walls", "NODE_GROUP_ corners",
                          "DV_ variable", "DV_ other", "DRESP_ volume", "DRESP_ pressure", "OPERATOR_ sum",
                          "OPERATOR_ norm", "OBJ_FUNC_ objective", "CONSTRAINT_ limit", "CONSTRAINT_ bare", "CS_ axes",
                          "DV_CONSTRAINT_ mirror", "DV_CONSTRAINT_ stamp", "MONITOR_ watch", "ALGO_ algorithm",
                          "OPT_PARAM_ settings", "STOP_ settings", "MESH_SMOOTH_ laplace", "MESH_SMOOTH_ plain",
                          "FILTER_ fine", "FILTER_ coarse", "PRE_PARAM_ settings", "AS_TOPO_OC_ settings",
                          "AS_TOPO_SENS_ settings", "AS_SHAPE_SENS_ settings", "FLOWPATHS_ paths", "OUTPUT_ picture",
                          "SCALING_CURVE_ ramp", "SMOOTH_ surface"));
}

TEST(ForEachCommand, GivesTheCommandsThemselvesAsConstReferencesOfTheirOwnClass)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::vector<const OrvelCommand*> variables;
  ForEachCommand(parfile, [&](auto& command) {
    static_assert(std::is_const_v<std::remove_reference_t<decltype(command)>>);
    if constexpr (std::is_same_v<decltype(command), const DV_&>)
    {
      variables.push_back(&command);
    }
  });
  EXPECT_THAT(variables, ElementsAre(&parfile.GetDV_("variable"), &parfile.GetDV_("other")));
}

TEST(ForEachCommand, KeepsTheStateOfAVisitorThatIsNoTemporary)
{
  struct Counter
  {
    int count = 0;
    void operator()(const OrvelCommand&) { ++count; }
  };
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  Counter counter;
  ForEachCommand(parfile, counter);
  EXPECT_EQ(counter.count, 32);
}

TEST(ForEachCommand, DoesNotTouchTheStorage)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  storage.ForgetCalls();
  NamesIn(parfile);
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(ForEachCommand, FailsAtTheFirstSingleKindThatIsNotThereOnce)
{
  RecordingStorage storage = CompleteJob();
  storage.RemoveCommands("OBJ_FUNC_");
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { NamesIn(parfile); }).message, "0 commands of type MODEL_ detected. Only one is expected.");
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  int visited = 0;
  EXPECT_EQ(FailureOf([&] { ForEachCommand(parfile, [&](const auto&) { ++visited; }); }),
            (Failure{"0 commands of type OBJ_FUNC_ detected. Only one is expected.", "204046270608",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
  EXPECT_EQ(visited, 10);
}

TEST(ForEachCommand, LetsTheFailureOfTheVisitorPass)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile parfile(storage);
  parfile.Load();
  int visited = 0;
  const auto visitor = [&](const auto&) {
    if (++visited == 3)
    {
      throw FailedOnDemand("third");
    }
  };
  EXPECT_THROW(ForEachCommand(parfile, visitor), FailedOnDemand);
  EXPECT_EQ(visited, 3);
}

TEST(ForEachCommand, VisitsTheCommandsOfASmoothingJob)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("SMOOTH_", "outer");
  storage.Command("SMOOTH_", "inner");
  Smooth_Parfile parfile(storage);
  EXPECT_THAT(NamesIn(parfile), IsEmpty());
  parfile.Load();
  EXPECT_THAT(NamesIn(parfile), ElementsAre("SMOOTH_ outer", "SMOOTH_ inner"));
}
