#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/parfile/Parfile.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "support/complete_job.h"
#include "support/VirtualSlot.h"

#include <gmock/gmock.h>

#include <memory>
#include <type_traits>

using testing::IsEmpty;

static_assert(std::is_constructible_v<Parfile, const OrvelParfileStorage&>);
static_assert(!std::is_convertible_v<const OrvelParfileStorage&, Parfile>);
static_assert(std::is_copy_constructible_v<Parfile>);
static_assert(std::is_move_constructible_v<Parfile>);
static_assert(!std::is_copy_assignable_v<Parfile>);
static_assert(!std::is_move_assignable_v<Parfile>);
static_assert(std::has_virtual_destructor_v<Parfile>);
static_assert(!std::is_abstract_v<Parfile>);
static_assert(sizeof(Parfile) == 2 * sizeof(void*), "it holds the binding to the storage and nothing else");

static_assert(std::is_base_of_v<Parfile, Gyre_Parfile>);
static_assert(std::is_constructible_v<Gyre_Parfile, OrvelParfileStorage&>);
static_assert(!std::is_convertible_v<OrvelParfileStorage&, Gyre_Parfile>);
static_assert(std::is_move_constructible_v<Gyre_Parfile>);
static_assert(!std::is_copy_constructible_v<Gyre_Parfile>);
static_assert(!std::is_copy_assignable_v<Gyre_Parfile>);
static_assert(!std::is_move_assignable_v<Gyre_Parfile>);
static_assert(std::is_same_v<decltype(&Gyre_Parfile::Load), void (Gyre_Parfile::*)()>);
static_assert(std::is_same_v<decltype(&Gyre_Parfile::ValidateModelIds), void (Gyre_Parfile::*)()>);

namespace
{

// Shows what a Parfile is bound to.
class ParfileInSight : public Parfile
{
public:
  using Parfile::Parfile;
  const OrvelParfileStorage* Storage() const { return &m_storage; }
};

}  // namespace

TEST(Parfile, IsBoundToItsStorage)
{
  const RecordingStorage storage;
  EXPECT_EQ(ParfileInSight(storage).Storage(), &storage);
}

TEST(Parfile, TakesOverTheStorageOfAnotherWhenItIsCopiedOrMoved)
{
  const RecordingStorage storage;
  ParfileInSight parfile(storage);
  const ParfileInSight copy(parfile);
  const ParfileInSight moved(std::move(parfile));
  EXPECT_EQ(copy.Storage(), &storage);
  EXPECT_EQ(moved.Storage(), &storage);
  EXPECT_EQ(parfile.Storage(), &storage);  // NOLINT(bugprone-use-after-move): it stays bound
}

TEST(Parfile, DoesNotTouchItsStorage)
{
  const RecordingStorage storage;
  {
    const Parfile parfile(storage);
    const Parfile copy(parfile);  // NOLINT(performance-unnecessary-copy-initialization)
  }
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Parfile, HasNoVirtualOperationButItsDestructor)
{
  if (!kVirtualSlotsAreReadable)
  {
    GTEST_SKIP() << "no known layout of virtual tables";
  }
  EXPECT_EQ(PlaceAfterDestructor(&Gyre_Parfile::Load), 1U);
  EXPECT_EQ(PlaceAfterDestructor(&Gyre_Parfile::ValidateModelIds), 2U);
  EXPECT_EQ(PlaceAfterDestructor(&Smooth_Parfile::Load), 1U);
  EXPECT_EQ(PlaceAfterDestructor(&Smooth_Parfile::ValidateModelIds), 2U);
}

TEST(GyreParfile, TouchesItsStorageNeitherWhenItIsConstructedNorWhenItIsDestroyed)
{
  RecordingStorage storage = CompleteJob();
  {
    const Gyre_Parfile never_loaded(storage);
    EXPECT_THAT(storage.Calls(), IsEmpty());
    Gyre_Parfile loaded(storage);
    loaded.Load();
    storage.ForgetCalls();
  }
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(GyreParfile, OutlivesItsStorageOnceItIsLoaded)
{
  auto storage = std::make_unique<RecordingStorage>(CompleteJob());
  Gyre_Parfile parfile(*storage);
  parfile.Load();
  storage.reset();
  EXPECT_EQ(parfile.GetMODEL_().GetID_NAME_(), "model");
  EXPECT_EQ(parfile.NumDV_(), 2U);
  EXPECT_EQ(parfile.GetDV_("variable").GetFILTER_(1).GetID_NAME_(), "fine");
}
