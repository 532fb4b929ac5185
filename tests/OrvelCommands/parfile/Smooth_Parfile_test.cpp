#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "support/command_ids.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::is_base_of_v<Parfile, Smooth_Parfile>);
static_assert(std::is_constructible_v<Smooth_Parfile, OrvelParfileStorage&>);
static_assert(!std::is_convertible_v<OrvelParfileStorage&, Smooth_Parfile>);
static_assert(std::is_move_constructible_v<Smooth_Parfile>);
static_assert(!std::is_copy_constructible_v<Smooth_Parfile>);
static_assert(!std::is_copy_assignable_v<Smooth_Parfile>);
static_assert(!std::is_move_assignable_v<Smooth_Parfile>);
static_assert(std::is_same_v<decltype(&Smooth_Parfile::Load), void (Smooth_Parfile::*)()>);
static_assert(std::is_same_v<decltype(&Smooth_Parfile::ValidateModelIds), void (Smooth_Parfile::*)()>);
static_assert(
  std::is_same_v<decltype(&Smooth_Parfile::HasSMOOTH_), bool (Smooth_Parfile::*)(const std::string&) const>);
static_assert(std::is_same_v<decltype(&Smooth_Parfile::NumSMOOTH_), std::uint64_t (Smooth_Parfile::*)() const>);

namespace
{

constexpr std::vector<SMOOTH_*> (Smooth_Parfile::*kAll)() const = &Smooth_Parfile::GetSMOOTH_;
constexpr SMOOTH_& (Smooth_Parfile::*kById)(const std::string&) const = &Smooth_Parfile::GetSMOOTH_;
constexpr SMOOTH_& (Smooth_Parfile::*kByIndex)(std::uint64_t) const = &Smooth_Parfile::GetSMOOTH_;

const std::string kPrefix = "[%T|%n|%P|OrvelCommands|Smooth_Parfile] ";

// Three commands in an order that is not that of their names.
RecordingStorage ThreeSurfaces()
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("SMOOTH_", "outer")["ISO_VALUE_"] = {0.3};
  storage.Command("SMOOTH_", "inner")["ISO_VALUE_"] = {0.5};
  storage.Command("SMOOTH_", "middle")["ISO_VALUE_"] = {0.4};
  return storage;
}

}  // namespace

TEST(SmoothParfile, LoadsAndChecksAStorageWithoutCommands)
{
  RecordingStorage storage;
  Smooth_Parfile parfile(storage);
  parfile.Load();
  parfile.ValidateModelIds();
  EXPECT_EQ(parfile.NumSMOOTH_(), 0U);
  EXPECT_THAT(parfile.GetSMOOTH_(), IsEmpty());
  EXPECT_THAT(storage.Calls(), ElementsAre("GetNumCommand(SMOOTH_)"));
}

TEST(SmoothParfile, NamesItsCommandsFromPositionZero)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THAT(WalkOver(storage), ElementsAre("GetNumCommand(SMOOTH_)", "GetCommandName(SMOOTH_, 0)",
                                             "GetCommandName(SMOOTH_, 1)", "GetCommandName(SMOOTH_, 2)"));
}

TEST(SmoothParfile, LetsEachCommandReadItsKeysBeforeTheNextIsNamed)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  const auto& calls = storage.Calls();
  const auto second = std::find(calls.begin(), calls.end(), "GetCommandName(SMOOTH_, 1)");
  ASSERT_GE(second - calls.begin(), 4);
  EXPECT_THAT(std::vector<std::string>(calls.begin(), calls.begin() + 4),
              ElementsAre("GetNumCommand(SMOOTH_)", "GetCommandName(SMOOTH_, 0)",
                          "GetValue(SMOOTH_, outer, PATCH_ID_, 1, vtmString, string)",
                          "GetEnumValue(SMOOTH_, outer, TASK_, 1, vtmEnum)"));
  EXPECT_EQ(second[-1], "GetValue(SMOOTH_, outer, WALL_TOLERANCE_, 1, vtmDouble, double)");
  EXPECT_EQ(second[1], "GetValue(SMOOTH_, inner, PATCH_ID_, 1, vtmString, string)");
  EXPECT_EQ(calls.back(), "GetValue(SMOOTH_, middle, WALL_TOLERANCE_, 1, vtmDouble, double)");
}

TEST(SmoothParfile, KeepsTheOrderOfTheStorageAndTheValues)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.NumSMOOTH_(), 3U);
  EXPECT_THAT(IdsOf(parfile.GetSMOOTH_()), ElementsAre("outer", "inner", "middle"));
  EXPECT_EQ(parfile.GetSMOOTH_("inner").GetISO_VALUE_(), 0.5);
}

TEST(SmoothParfile, IgnoresAllOtherKinds)
{
  RecordingStorage storage = ThreeSurfaces();
  storage.Command("DV_", "variable");
  storage.Command("MODEL_", "model");
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.NumSMOOTH_(), 3U);
}

TEST(SmoothParfile, GivesACommandByItsPlaceCountedFromOne)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ((parfile.*kByIndex)(1).GetID_NAME_(), "outer");
  EXPECT_EQ((parfile.*kByIndex)(3).GetID_NAME_(), "middle");
  EXPECT_EQ(&(parfile.*kByIndex)(2), (parfile.*kAll)()[1]);
}

TEST(SmoothParfile, RefusesAPlaceOutsideOneToTheCount)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(
    FailureOf([&] { parfile.GetSMOOTH_(0); }),
    (Failure{"Invalid index 0 of the parameterfile command SMOOTH_ to retrieve. Number of available commands is 3",
             "204046270608", "[%T|%n|%P|OrvelCommands|Smooth_Parfile] "}));
  EXPECT_EQ(
    FailureOf([&] { parfile.GetSMOOTH_(4); }),
    (Failure{"Invalid index 4 of the parameterfile command SMOOTH_ to retrieve. Number of available commands is 3",
             "204046270608", "[%T|%n|%P|OrvelCommands|Smooth_Parfile] "}));
}

TEST(SmoothParfile, GivesACommandByItsId)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(&(parfile.*kById)("inner"), parfile.GetSMOOTH_()[1]);
  EXPECT_TRUE(parfile.HasSMOOTH_("inner"));
  EXPECT_FALSE(parfile.HasSMOOTH_("Inner"));
  EXPECT_FALSE(parfile.HasSMOOTH_(""));
}

TEST(SmoothParfile, RefusesAnUnknownId)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.GetSMOOTH_("nowhere"); }),
            (Failure{"Invalid ID nowhere of the parameter file command SMOOTH_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Smooth_Parfile] "}));
}

TEST(SmoothParfile, FindsTheFirstOfTwoCommandsWithTheSameId)
{
  RecordingStorage storage = ThreeSurfaces();
  storage.AddSecondCommand("SMOOTH_", "inner");
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(parfile.NumSMOOTH_(), 4U);
  EXPECT_EQ(&parfile.GetSMOOTH_("inner"), parfile.GetSMOOTH_()[1]);
}

TEST(SmoothParfile, FindsNothingBeforeItIsLoaded)
{
  RecordingStorage storage = ThreeSurfaces();
  const Smooth_Parfile parfile(storage);
  EXPECT_EQ(parfile.NumSMOOTH_(), 0U);
  EXPECT_THAT(parfile.GetSMOOTH_(), IsEmpty());
  EXPECT_FALSE(parfile.HasSMOOTH_("outer"));
  EXPECT_EQ(FailureOf([&] { parfile.GetSMOOTH_(1); }).message,
            "Invalid index 1 of the parameterfile command SMOOTH_ to retrieve. Number of available commands is 0");
  EXPECT_EQ(FailureOf([&] { parfile.GetSMOOTH_("outer"); }),
            (Failure{"Invalid ID outer of the parameter file command SMOOTH_", "161700240908", kPrefix}));
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(SmoothParfile, HandsOutACopyOfItsPointers)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  parfile.GetSMOOTH_().clear();
  EXPECT_EQ(parfile.NumSMOOTH_(), 3U);
}

TEST(SmoothParfile, AsksForTheNameOfEachCommandWhenItChecksAndNeedsNoDatabase)
{
  RecordingStorage storage = ThreeSurfaces();
  storage.Command("SMOOTH_", "outer")["SURFACE_GROUP_"] = {std::string("no group of the model")};
  Smooth_Parfile parfile(storage);
  parfile.Load();
  storage.ForgetCalls();
  EXPECT_EQ(FailureOf([&] { parfile.ValidateModelIds(); }), kNoFailure);
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetCommandName(SMOOTH_, 0)", "GetCommandName(SMOOTH_, 1)", "GetCommandName(SMOOTH_, 2)"));
}

TEST(SmoothParfile, LetsTheFailureOfTheStoragePassWhenItChecks)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  storage.FailOn("GetCommandName(SMOOTH_, 1)");
  EXPECT_THROW(parfile.ValidateModelIds(), FailedOnDemand);
  EXPECT_EQ(parfile.NumSMOOTH_(), 3U);
}

TEST(SmoothParfile, KeepsTheCommandsBeforeOneWhoseLoadFails)
{
  RecordingStorage storage = ThreeSurfaces();
  storage.FailOn("GetValue(SMOOTH_, inner, ISO_VALUE_, 1, vtmDouble, double)");
  Smooth_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), FailedOnDemand);
  EXPECT_THAT(IdsOf(parfile.GetSMOOTH_()), ElementsAre("outer"));
}

TEST(SmoothParfile, CanBeDestroyedAfterALoadThatFailedAtAnyCall)
{
  RecordingStorage whole = ThreeSurfaces();
  Smooth_Parfile loaded(whole);
  loaded.Load();
  ASSERT_GT(whole.Calls().size(), 200U);
  for (const std::string& call : whole.Calls())
  {
    RecordingStorage storage = ThreeSurfaces();
    storage.FailOn(call);
    Smooth_Parfile parfile(storage);
    EXPECT_THROW(parfile.Load(), FailedOnDemand) << call;
    EXPECT_LT(parfile.NumSMOOTH_(), 3U) << call;
  }
}

TEST(SmoothParfile, AppendsASecondSetWhenItIsLoadedTwice)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile parfile(storage);
  parfile.Load();
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), kNoFailure) << "it has no kind of which only one is expected";
  EXPECT_THAT(IdsOf(parfile.GetSMOOTH_()), ElementsAre("outer", "inner", "middle", "outer", "inner", "middle"));
  EXPECT_NE(parfile.GetSMOOTH_()[0], parfile.GetSMOOTH_()[3]);
  EXPECT_THROW(parfile.ValidateModelIds(), AbsentFromStorage) << "the storage has no fourth command";
}

TEST(SmoothParfile, TakesOverTheCommandsOfAnotherAndLeavesItEmptyAndBound)
{
  RecordingStorage storage = ThreeSurfaces();
  Smooth_Parfile source(storage);
  source.Load();
  const std::vector<SMOOTH_*> commands = source.GetSMOOTH_();
  Smooth_Parfile target(std::move(source));
  EXPECT_EQ(target.GetSMOOTH_(), commands);
  EXPECT_EQ(source.NumSMOOTH_(), 0U);  // NOLINT(bugprone-use-after-move): it can be used again
  source.Load();
  EXPECT_THAT(IdsOf(source.GetSMOOTH_()), ElementsAre("outer", "inner", "middle"));
  EXPECT_NE(source.GetSMOOTH_()[0], target.GetSMOOTH_()[0]);
  EXPECT_EQ(FailureOf([&] { target.ValidateModelIds(); }), kNoFailure) << "it is bound to the storage, too";
}

TEST(SmoothParfile, DoesNotTouchItsStorageInItsGettersAndItsDestructor)
{
  RecordingStorage storage = ThreeSurfaces();
  {
    Smooth_Parfile parfile(storage);
    parfile.Load();
    storage.ForgetCalls();
    parfile.GetSMOOTH_("inner");
    parfile.GetSMOOTH_(1);
  }
  EXPECT_THAT(storage.Calls(), IsEmpty());
}
