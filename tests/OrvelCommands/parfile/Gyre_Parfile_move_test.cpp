#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/complete_job.h"
#include "support/failures.h"
#include "support/gyre_kinds.h"

#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

// An aggregate can be used after it was moved from, which is what these tests are about.
// NOLINTBEGIN(bugprone-use-after-move)

namespace
{

// All commands of an aggregate in the order of loading.
std::vector<const OrvelCommand*> CommandsOf(const Gyre_Parfile& parfile)
{
  std::vector<const OrvelCommand*> commands = {&parfile.GetMODEL_(), &parfile.GetOBJ_FUNC_(), &parfile.GetALGO_(),
                                               &parfile.GetFLOWPATHS_()};
  ForEachManyKind([&](const auto& kind) {
    for (const auto* command : (parfile.*kind.all)())
    {
      commands.push_back(command);
    }
  });
  return commands;
}

Gyre_Parfile Loaded(RecordingStorage& storage)
{
  Gyre_Parfile parfile(storage);
  parfile.Load();
  return Gyre_Parfile(std::move(parfile));
}

}  // namespace

TEST(GyreParfileMove, TakesOverAllCommandsOfAllKinds)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  const std::vector<const OrvelCommand*> commands = CommandsOf(source);
  ASSERT_EQ(commands.size(), 32U);
  const Gyre_Parfile target(std::move(source));
  EXPECT_EQ(CommandsOf(target), commands);
}

TEST(GyreParfileMove, LeavesTheSourceEmpty)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  const Gyre_Parfile target(std::move(source));
  EXPECT_THAT(CommandCounts(source), IsEmpty());
  EXPECT_EQ(source.NumDV_(), 0U);
  EXPECT_FALSE(source.HasDV_("variable"));
  EXPECT_EQ(FailureOf([&] { source.GetMODEL_(); }),
            (Failure{"0 commands of type MODEL_ detected. Only one is expected.", "204046270608",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(GyreParfileMove, DoesNotTouchTheStorage)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  storage.ForgetCalls();
  const Gyre_Parfile target(std::move(source));
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(GyreParfileMove, KeepsThePointersBetweenCommands)
{
  RecordingStorage storage = CompleteJob();
  auto source = std::make_unique<Gyre_Parfile>(storage);
  source->Load();
  const Gyre_Parfile target(std::move(*source));
  source.reset();
  EXPECT_EQ(&target.GetALGO_().GetDV_(), &target.GetDV_("variable"));
  EXPECT_EQ(&target.GetALGO_().GetOBJ_FUNC_(), &target.GetOBJ_FUNC_());
  EXPECT_EQ(&target.GetDV_("variable").GetFILTER_(2), &target.GetFILTER_("coarse"));
  EXPECT_EQ(&target.GetOPERATOR_("sum").GetOPERATOR_(1), &target.GetOPERATOR_("sum"));
  EXPECT_EQ(target.GetALGO_().GetCONSTRAINT_(1).GetDRESP_().GetID_NAME_(), "pressure");
}

TEST(GyreParfileMove, BindsTheTargetToTheStorageOfTheSource)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  Gyre_Parfile source(storage);
  source.Load();
  Gyre_Parfile target(std::move(source));
  storage.ForgetCalls();
  target.ValidateModelIds();
  EXPECT_EQ(storage.Calls().front(), "GetCommandName(MODEL_, 0)");
}

TEST(GyreParfileMove, LetsTheTargetOfAnEmptySourceBeLoaded)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  Gyre_Parfile target(std::move(source));
  EXPECT_THAT(CommandCounts(target), IsEmpty());
  target.Load();
  EXPECT_EQ(CommandsOf(target).size(), 32U);
}

TEST(GyreParfileMove, LetsTheSourceBeLoadedAgainWithASecondSetOfItsOwn)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  const Gyre_Parfile target(std::move(source));
  source.Load();
  EXPECT_EQ(CommandCounts(source), CommandCounts(target));
  EXPECT_EQ(source.GetMODEL_().GetID_NAME_(), "model");
  EXPECT_NE(&source.GetMODEL_(), &target.GetMODEL_());
  EXPECT_EQ(&source.GetALGO_().GetDV_(), &source.GetDV_("variable"));
  EXPECT_EQ(&target.GetALGO_().GetDV_(), &target.GetDV_("variable"));
  EXPECT_NE(&source.GetDV_("variable"), &target.GetDV_("variable"));
}

TEST(GyreParfileMove, LetsTheSecondSetOutliveTheFirst)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  {
    const Gyre_Parfile target(std::move(source));
    source.Load();
  }
  EXPECT_EQ(source.GetALGO_().GetDV_().GetID_NAME_(), "variable");
}

TEST(GyreParfileMove, DoesNotMoveTheDefaultCommands)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile source(storage);
  source.Load();
  const MODEL_* const model = &source.GetMODEL_("another");
  const OBJ_FUNC_* const objective = &source.GetOBJ_FUNC_("another");
  const ALGO_* const algorithm = &source.GetALGO_("another");
  const FLOWPATHS_* const paths = &source.GetFLOWPATHS_("another");
  const Gyre_Parfile target(std::move(source));
  EXPECT_NE(&target.GetMODEL_("another"), model);
  EXPECT_NE(&target.GetOBJ_FUNC_("another"), objective);
  EXPECT_NE(&target.GetALGO_("another"), algorithm);
  EXPECT_NE(&target.GetFLOWPATHS_("another"), paths);
  EXPECT_EQ(target.GetMODEL_("another").GetID_NAME_(), "");
}

TEST(GyreParfileMove, KeepsAPointerToADefaultObjectiveOnTheSource)
{
  RecordingStorage storage = CompleteJob();
  storage.Command("ALGO_", "algorithm")["OBJ_FUNC_"] = {Ref{"nowhere"}};
  Gyre_Parfile source(storage);
  source.Load();
  const OBJ_FUNC_* const of_source = &source.GetOBJ_FUNC_("nowhere");
  const Gyre_Parfile target(std::move(source));
  EXPECT_EQ(&target.GetALGO_().GetOBJ_FUNC_(), of_source);
  EXPECT_NE(&target.GetALGO_().GetOBJ_FUNC_(), &target.GetOBJ_FUNC_("nowhere"));
  source.Load();
  EXPECT_EQ(&source.GetOBJ_FUNC_("nowhere"), of_source) << "it is the source's own still";
}

TEST(GyreParfileMove, TakesOverWhatAFailedLoadLeft)
{
  RecordingStorage storage = CompleteJob();
  storage.RemoveCommands("OBJ_FUNC_");
  Gyre_Parfile source(storage);
  EXPECT_THROW(source.Load(), KLV_Failure);
  const Gyre_Parfile target(std::move(source));
  EXPECT_THAT(CommandCounts(target), ElementsAre("MODEL_ 1", "ELEMENT_GROUP_ 1", "FACE_GROUP_ 1", "NODE_GROUP_ 1",
                                                 "DV_ 2", "DRESP_ 2", "OPERATOR_ 2"));
  EXPECT_THAT(CommandCounts(source), IsEmpty());
}

TEST(GyreParfileMove, CanBeRepeated)
{
  RecordingStorage storage = CompleteJob();
  Gyre_Parfile first(storage);
  first.Load();
  const DV_* const variable = &first.GetDV_("variable");
  Gyre_Parfile second(std::move(first));
  const Gyre_Parfile third(std::move(second));
  EXPECT_EQ(&third.GetDV_("variable"), variable);
  EXPECT_EQ(second.NumDV_(), 0U);
  EXPECT_EQ(first.NumDV_(), 0U);
}

TEST(GyreParfileMove, LetsAFunctionReturnALoadedAggregate)
{
  RecordingStorage storage = CompleteJob();
  const Gyre_Parfile parfile = Loaded(storage);
  EXPECT_EQ(CommandsOf(parfile).size(), 32U);
  EXPECT_EQ(&parfile.GetALGO_().GetDV_(), &parfile.GetDV_("variable"));
}

// NOLINTEND(bugprone-use-after-move)
