#include "OrvelCmdEngine/OrvelCmdContainer.h"

#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OrvelCmdEngine/OrvelCmdItem.h"

using testing::ElementsAre;
using testing::IsNull;

// Stands in for the one class that the container lets at its private access to commands.
class OrvelParfileStorageCmdContainer
{
public:
  static OrvelCmd& GetCommand(const OrvelCmdContainer& container, OrvelCmdDefs::Cmd kind, std::uint64_t position)
  {
    return container._GetCommand(kind, position);
  }
};

namespace
{

OrvelCmd& GetCommand(const OrvelCmdContainer& container, OrvelCmdDefs::Cmd kind, std::uint64_t position)
{
  return OrvelParfileStorageCmdContainer::GetCommand(container, kind, position);
}

template <typename Failure, typename Action>
std::string FailureOf(Action action)
{
  try
  {
    action();
  }
  catch (const Failure& failure)
  {
    return failure.what();
  }
  return "nothing was thrown";
}

std::vector<const OrvelCmd*> EntriesOf(const OrvelCmdContainer& container, OrvelCmdDefs::Cmd kind)
{
  std::vector<const OrvelCmd*> entries;
  for (auto entry = container.GetCommandBegin(kind); entry != container.GetCommandEnd(kind); ++entry)
  {
    entries.push_back(entry->get());
  }
  return entries;
}

}  // namespace

TEST(OrvelCmdContainerTest, HoldsNoCommandAtFirst)
{
  const OrvelCmdContainer container;

  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DV), 0u);
  EXPECT_FALSE(container.HasCommand(OrvelCmdDefs::DV));
  EXPECT_THAT(EntriesOf(container, OrvelCmdDefs::DV), ElementsAre());
}

TEST(OrvelCmdContainerTest, AddsACommandOfTheKindWithoutItems)
{
  OrvelCmdContainer container;
  const OrvelCmd& command = container.AddCommand(OrvelCmdDefs::FILTER);

  EXPECT_EQ(command.GetCmd(), OrvelCmdDefs::FILTER);
  EXPECT_FALSE(command.HasItem(OrvelCmdItemDefs::ID_NAME));
  EXPECT_TRUE(container.HasCommand(OrvelCmdDefs::FILTER));
}

TEST(OrvelCmdContainerTest, CountsEachKindForItself)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV);
  container.AddCommand(OrvelCmdDefs::DRESP);
  container.AddCommand(OrvelCmdDefs::DV);
  container.AddCommand(OrvelCmdDefs::MODEL_INPUT);
  container.AddCommand(OrvelCmdDefs::CMD_PLACEHOLDER);

  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DV), 2u);
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DRESP), 1u);
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::MODEL_INPUT), 1u);
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::CMD_PLACEHOLDER), 1u);
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::STOP), 0u);
}

TEST(OrvelCmdContainerTest, WalksTheCommandsOfAKindInTheOrderInWhichTheyAreAdded)
{
  OrvelCmdContainer container;
  const OrvelCmd& first = container.AddCommand(OrvelCmdDefs::DV);
  container.AddCommand(OrvelCmdDefs::DRESP);
  const OrvelCmd& second = container.AddCommand(OrvelCmdDefs::DV);

  EXPECT_THAT(EntriesOf(container, OrvelCmdDefs::DV), ElementsAre(&first, &second));
}

TEST(OrvelCmdContainerTest, KeepsTheAddressOfACommandWhileOthersAreAdded)
{
  OrvelCmdContainer container;
  OrvelCmd& first = container.AddCommand(OrvelCmdDefs::DRESP);
  first.AddStringItem(OrvelCmdItemDefs::ID_NAME, "mass");
  OrvelCmd& optimize = container.AddCommand(OrvelCmdDefs::OBJ_FUNC);
  optimize.AddReferenceItem(OrvelCmdItemDefs::DRESP, first);
  for (int i = 0; i < 10000; ++i)
  {
    container.AddCommand(OrvelCmdDefs::DRESP);
  }

  EXPECT_EQ(container.GetCommandBegin(OrvelCmdDefs::DRESP)->get(), &first);
  EXPECT_EQ(optimize.Item(OrvelCmdItemDefs::DRESP, 0).ReferencedCommand(), &first);
  EXPECT_EQ(optimize.Item(OrvelCmdItemDefs::DRESP, 0).AsString(), "mass");
}

TEST(OrvelCmdContainerTest, LeavesANullEntryForARemovedCommand)
{
  OrvelCmdContainer container;
  const OrvelCmd& first = container.AddCommand(OrvelCmdDefs::DV);
  container.AddCommand(OrvelCmdDefs::DV);
  const OrvelCmd& third = container.AddCommand(OrvelCmdDefs::DV);

  container.RemoveCommand(OrvelCmdDefs::DV, 1);

  EXPECT_THAT(EntriesOf(container, OrvelCmdDefs::DV), ElementsAre(&first, IsNull(), &third));
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DV), 3u);
  EXPECT_TRUE(container.HasCommand(OrvelCmdDefs::DV));
}

TEST(OrvelCmdContainerTest, AddsBehindANullEntry)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV);
  container.RemoveCommand(OrvelCmdDefs::DV, 0);
  const OrvelCmd& second = container.AddCommand(OrvelCmdDefs::DV);

  EXPECT_THAT(EntriesOf(container, OrvelCmdDefs::DV), ElementsAre(IsNull(), &second));
}

TEST(OrvelCmdContainerTest, HasNoCommandOfAKindWhenAllAreRemoved)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV);
  container.RemoveCommand(OrvelCmdDefs::DV, 0);

  EXPECT_FALSE(container.HasCommand(OrvelCmdDefs::DV));
  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DV), 1u);
}

TEST(OrvelCmdContainerTest, RemovesANullEntryWithoutEffect)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV);
  container.RemoveCommand(OrvelCmdDefs::DV, 0);
  container.RemoveCommand(OrvelCmdDefs::DV, 0);

  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::DV), 1u);
}

TEST(OrvelCmdContainerTest, NamesTheKindAndThePositionThatCannotBeRemoved)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV);

  EXPECT_EQ(FailureOf<std::out_of_range>([&container] { container.RemoveCommand(OrvelCmdDefs::DV, 1); }),
            "OrvelCmdContainer: kind 2 has 1 entries, so that there is none at position 1.");
}

TEST(OrvelCmdContainerTest, RefusesToAddANumberThatIsNoKind)
{
  OrvelCmdContainer container;

  EXPECT_EQ(FailureOf<std::invalid_argument>([&container] { container.AddCommand(OrvelCmdDefs::CMD_NONE); }),
            "OrvelCmdContainer: 21 is no kind of command.");
  EXPECT_EQ(
    FailureOf<std::invalid_argument>([&container] { container.AddCommand(static_cast<OrvelCmdDefs::Cmd>(-1)); }),
    "OrvelCmdContainer: -1 is no kind of command.");
}

TEST(OrvelCmdContainerTest, HoldsNothingUnderANumberThatIsNoKind)
{
  const OrvelCmdContainer container;

  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::CMD_NONE), 0u);
  EXPECT_FALSE(container.HasCommand(static_cast<OrvelCmdDefs::Cmd>(-1)));
  EXPECT_THAT(EntriesOf(container, OrvelCmdDefs::CMD_NONE), ElementsAre());
}

TEST(OrvelCmdContainerTest, GivesItsFriendTheCommandAtAPosition)
{
  OrvelCmdContainer container;
  const OrvelCmd& first = container.AddCommand(OrvelCmdDefs::DV);
  const OrvelCmd& second = container.AddCommand(OrvelCmdDefs::DV);

  EXPECT_EQ(&GetCommand(container, OrvelCmdDefs::DV, 0), &first);
  EXPECT_EQ(&GetCommand(container, OrvelCmdDefs::DV, 1), &second);
}

TEST(OrvelCmdContainerTest, GivesItsFriendAnEmptyCommandForAPositionWithoutOne)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV).AddStringItem(OrvelCmdItemDefs::ID_NAME, "density");

  const OrvelCmd& missing = GetCommand(container, OrvelCmdDefs::DV, 1);
  EXPECT_EQ(missing.GetCmd(), OrvelCmdDefs::DV);
  EXPECT_FALSE(missing.HasItem(OrvelCmdItemDefs::ID_NAME));
  EXPECT_EQ(GetCommand(container, OrvelCmdDefs::OPTIMIZE, 0).GetCmd(), OrvelCmdDefs::OPTIMIZE);
}

TEST(OrvelCmdContainerTest, GivesItsFriendAnEmptyCommandForANullEntry)
{
  OrvelCmdContainer container;
  container.AddCommand(OrvelCmdDefs::DV).AddStringItem(OrvelCmdItemDefs::ID_NAME, "density");
  container.RemoveCommand(OrvelCmdDefs::DV, 0);

  const OrvelCmd& removed = GetCommand(container, OrvelCmdDefs::DV, 0);
  EXPECT_EQ(removed.GetCmd(), OrvelCmdDefs::DV);
  EXPECT_FALSE(removed.HasItem(OrvelCmdItemDefs::ID_NAME));
}

TEST(OrvelCmdContainerTest, SharesOneEmptyCommandOfAKindWithinAContainer)
{
  const OrvelCmdContainer container;
  const OrvelCmdContainer other;

  const OrvelCmd* const empty = &GetCommand(container, OrvelCmdDefs::DV, 0);
  EXPECT_EQ(&GetCommand(container, OrvelCmdDefs::DV, 18446744073709551615u), empty);
  EXPECT_NE(&GetCommand(container, OrvelCmdDefs::DRESP, 0), empty);
  EXPECT_NE(&GetCommand(other, OrvelCmdDefs::DV, 0), empty);
}

TEST(OrvelCmdContainerTest, GivesItsFriendAnEmptyCommandOfNoKindForANumberThatIsNone)
{
  const OrvelCmdContainer container;

  EXPECT_EQ(GetCommand(container, static_cast<OrvelCmdDefs::Cmd>(-7), 0).GetCmd(), OrvelCmdDefs::CMD_NONE);
}

TEST(OrvelCmdContainerTest, DoesNotCountTheEmptyCommandsThatItGives)
{
  const OrvelCmdContainer container;
  GetCommand(container, OrvelCmdDefs::OPTIMIZE, 0);

  EXPECT_EQ(container.GetNumberOfCommands(OrvelCmdDefs::OPTIMIZE), 0u);
  EXPECT_FALSE(container.HasCommand(OrvelCmdDefs::OPTIMIZE));
}
