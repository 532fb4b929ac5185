#include "OrvelCommands/parfile/command_list.h"

#include "OrvelCommands/commands/gyre_commands.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <memory>

using namespace orvel::detail;
using testing::ElementsAre;

namespace
{

// Three stops of which two bear one id. Owned by the storage of the test, not by the list.
struct Stops
{
  explicit Stops(std::initializer_list<const char*> ids)
  {
    RecordingStorage storage;
    storage.KeepOutputsOfAbsentKeys();
    for (const char* id : ids)
    {
      owned.push_back(std::make_unique<STOP_>());
      owned.back()->Load(storage, id);
      list.push_back(owned.back().get());
    }
  }

  std::vector<std::unique_ptr<STOP_>> owned;
  std::vector<STOP_*> list;
};

Failure InSomeParfile(const char* message, const char* code)
{
  return {message, code, "[%T|%n|%P|OrvelCommands|Some_Parfile] "};
}

}  // namespace

TEST(CommandList, FindsTheFirstCommandOfAnId)
{
  const Stops stops{"early", "late", "late"};
  EXPECT_EQ(FindCommand(stops.list, "late"), stops.list[1]);
  EXPECT_EQ(FindCommand(stops.list, "Late"), nullptr);
  EXPECT_EQ(&CommandById(stops.list, "early", "Some_Parfile"), stops.list[0]);
  EXPECT_EQ(FailureOf([&] { CommandById(stops.list, "lat", "Some_Parfile"); }),
            InSomeParfile("Invalid ID lat of the parameter file command STOP_", "161700240908"));
}

TEST(CommandList, CountsPlacesFromOne)
{
  const Stops stops{"early", "late"};
  EXPECT_EQ(&CommandAt(stops.list, 1, "Some_Parfile"), stops.list[0]);
  EXPECT_EQ(&CommandAt(stops.list, 2, "Some_Parfile"), stops.list[1]);
  EXPECT_EQ(
    FailureOf([&] { CommandAt(stops.list, 0, "Some_Parfile"); }),
    InSomeParfile("Invalid index 0 of the parameterfile command STOP_ to retrieve. Number of available commands "
                  "is 2",
                  "204046270608"));
  EXPECT_EQ(FailureOf([&] { CommandAt(stops.list, 3, "Some_Parfile"); }).message,
            "Invalid index 3 of the parameterfile command STOP_ to retrieve. Number of available commands is 2");
}

TEST(CommandList, GivesTheOneCommandOrAnotherForAnIdThatIsNotItsOwn)
{
  const Stops one{"only"};
  const STOP_ other;
  EXPECT_EQ(&TheCommand(one.list, "Some_Parfile"), one.list[0]);
  EXPECT_EQ(&TheCommandById(one.list, "only", other, "Some_Parfile"), one.list[0]);
  EXPECT_EQ(&TheCommandById(one.list, "another", other, "Some_Parfile"), &other);

  const Stops two{"first", "second"};
  EXPECT_EQ(FailureOf([&] { TheCommandById(two.list, "first", other, "Some_Parfile"); }),
            InSomeParfile("2 commands of type STOP_ detected. Only one is expected.", "204046270608"));
}

TEST(CommandList, DeletesWhatItHoldsAndPassesOverNull)
{
  DeleteCommands(std::vector<STOP_*>{new STOP_(), nullptr, new STOP_()});
}

TEST(CommandList, AsksTheStorageForTheNameOfEachCommandThatItChecks)
{
  RecordingStorage storage;
  storage.Command("STOP_", "early");
  storage.Command("STOP_", "late");
  const Stops stops{"early", "late"};
  std::vector<KLV_ParfileException> problems;
  CheckCommands(stops.list, storage, problems);
  EXPECT_THAT(storage.Calls(), ElementsAre("GetCommandName(STOP_, 0)", "GetCommandName(STOP_, 1)"));
  EXPECT_TRUE(problems.empty());
}

TEST(CommandList, ReportsNothingWithoutProblems)
{
  ReportProblems({}, "Some_Parfile");
}

TEST(CommandList, ReportsAllProblemsOfAnyAggregateInOneFailureWithoutACode)
{
  const std::vector<KLV_ParfileException> problems = {
    {"Referenced ID is not found", "rim", "ND_GROUP", "outer", "SMOOTH"},
    {"Referenced ID is not found", "hub", "ND_GROUP", "inner", "SMOOTH"}};
  EXPECT_EQ(FailureOf([&] { ReportProblems(problems, "Smooth_Parfile"); }),
            (Failure{"2 model IDs referenced in the parameter file cannot be found.\n"
                     "Please check your parameterfile for errors.\n"
                     "Referenced ID is not found\n"
                     "  Value \"rim\" of parameter \"ND_GROUP\" is erroneous\n"
                     "  In \"SMOOTH\" command with ID_NAME \"outer\"\n"
                     "Referenced ID is not found\n"
                     "  Value \"hub\" of parameter \"ND_GROUP\" is erroneous\n"
                     "  In \"SMOOTH\" command with ID_NAME \"inner\"\n",
                     "", "[%T|%n|%P|OrvelCommands|Smooth_Parfile] "}));
}
