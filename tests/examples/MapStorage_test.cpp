#include "map_storage/MapStorage.h"
#include "OrvelCommands/parfile/Smooth_Parfile.h"
#include "support/failures.h"
#include "support/parsed_commands.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

// What the contract of all storages leaves to each of them. The contract itself is tested with the library's storages.

namespace
{

void AddFilter(const OrvelParfileStorage& storage, const std::string& id)
{
  storage.AddCommand("FILTER_", id);
  storage.AddValue("FILTER_", id, "RADIUS_", vtmDouble, 2.5);
}

Failure MapFailure(const std::string& message)
{
  return {message, "", "[%T|%n|%P|example|MapStorage] "};
}

}  // namespace

TEST(MapStorage, TellsWhetherACommandExists)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  EXPECT_TRUE(storage.HasCommand("FILTER_", "fine"));
  EXPECT_FALSE(storage.HasCommand("FILTER_", "coarse"));
  EXPECT_FALSE(storage.HasCommand("DV_", "fine"));
}

TEST(MapStorage, NamesCommandsInTheOrderOfTheirNames)
{
  MapStorage storage;
  AddFilter(storage, "b");
  AddFilter(storage, "a");
  EXPECT_EQ(NameAt(storage, "FILTER_", 0), "a");
  EXPECT_EQ(NameAt(storage, "FILTER_", 1), "b");
  EXPECT_EQ(FailureOf([&] { NameAt(storage, "FILTER_", 2); }), MapFailure("There is no command FILTER_ at position 2"));
  EXPECT_EQ(FailureOf([&] { NameAt(storage, "DV_", 0); }), MapFailure("There is no command DV_ at position 0"));
}

TEST(MapStorage, FailsToReadWhatIsAbsent)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  const KeysOf fine(storage, "FILTER_", "fine");
  EXPECT_EQ(FailureOf([&] { fine.Double("ALPHA_"); }), MapFailure("There is no such value of ALPHA_ in FILTER_ fine"));
  EXPECT_EQ(FailureOf([&] { fine.Double("RADIUS_", 2); }),
            MapFailure("There is no such value of RADIUS_ in FILTER_ fine"));
  EXPECT_EQ(FailureOf([&] { fine.Double("RADIUS_", 0); }),
            MapFailure("There is no such value of RADIUS_ in FILTER_ fine"));
  EXPECT_EQ(FailureOf([&] { KeysOf(storage, "FILTER_", "coarse").Double("RADIUS_"); }),
            MapFailure("There is no such value of RADIUS_ in FILTER_ coarse"));
  EXPECT_FALSE(KeysOf(storage, "FILTER_", "coarse").Has("RADIUS_"));
  EXPECT_EQ(KeysOf(storage, "DV_", "coarse").Count("RADIUS_"), 0U);
}

TEST(MapStorage, FailsToReadAValueAsAnotherType)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  const Failure failure = MapFailure("The values of RADIUS_ in FILTER_ fine are of another type");
  const KeysOf fine(storage, "FILTER_", "fine");
  EXPECT_EQ(FailureOf([&] { fine.Integer("RADIUS_"); }), failure);
  EXPECT_EQ(FailureOf([&] { fine.Text("RADIUS_"); }), failure);
  EXPECT_EQ(FailureOf([&] { fine.Enumerator("RADIUS_"); }), failure);
  EXPECT_EQ(FailureOf([&] { fine.Reference("RADIUS_"); }), failure);
}

TEST(MapStorage, OverwritesAndRemovesValues)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  storage.AddValue("FILTER_", "fine", "LETTER_", vtmString, 'a');
  storage.AddValue("FILTER_", "fine", "LIST_", vtmDoubleList, std::vector<double>{0.5});
  storage.SetValue("FILTER_", "fine", "RADIUS_", 1, vtmDouble, 3.5);
  storage.SetValue("FILTER_", "fine", "LIST_", 1, vtmDoubleList, std::vector<double>{1.5, 2.5});
  const KeysOf fine(storage, "FILTER_", "fine");
  EXPECT_EQ(fine.Double("RADIUS_"), 3.5);
  EXPECT_EQ(fine.Text("LETTER_"), "a");
  EXPECT_THAT(fine.Doubles("LIST_"), ElementsAre(1.5, 2.5));
  EXPECT_EQ(FailureOf([&] { storage.SetValue("FILTER_", "fine", "RADIUS_", -1, vtmDouble, 1.0); }),
            MapFailure("There is no such value of RADIUS_ in FILTER_ fine"));
  storage.DeleteValues("FILTER_", "fine", "RADIUS_");
  EXPECT_FALSE(fine.Has("RADIUS_"));
}

TEST(MapStorage, RefusesAWriteThatCannotBe)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  EXPECT_EQ(FailureOf([&] { storage.AddCommand("FILTER_", "fine"); }),
            MapFailure("There is a command FILTER_ fine already"));
  EXPECT_EQ(FailureOf([&] { storage.AddReference("FILTER_", "fine", "DV_", "DV_", "none"); }),
            MapFailure("There is no command DV_ none"));
  EXPECT_EQ(FailureOf([&] { storage.AddValue("DV_", "none", "INITIAL_", vtmDouble, 0.4); }),
            MapFailure("There is no command DV_ none"));
}

TEST(MapStorage, CopiesItsCommands)
{
  MapStorage storage;
  AddFilter(storage, "fine");
  const MapStorage copy = storage;
  AddFilter(storage, "late");
  EXPECT_EQ(copy.GetNumCommand("FILTER_"), 1U);
  EXPECT_EQ(KeysOf(copy, "FILTER_", "fine").Double("RADIUS_"), 2.5);
}

TEST(MapStorage, ServesAnAggregate)
{
  MapStorage storage;
  storage.AddCommand("SMOOTH_", "surface");
  Smooth_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).prefix, "[%T|%n|%P|example|MapStorage] ");
  Smooth_Parfile empty_parfile(storage);
  storage = MapStorage();
  empty_parfile.Load();
  EXPECT_EQ(empty_parfile.NumSMOOTH_(), 0U);
}
