#include "OrvelCmdEngine/OrvelCmd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OrvelCmdEngine/OrvelCmdItemError.h"

using testing::IsEmpty;
using testing::SizeIs;

namespace
{

template <typename Action>
std::string FailureOf(Action action)
{
  try
  {
    action();
  }
  catch (const OrvelCmdItemError& failure)
  {
    return failure.what();
  }
  return "nothing was thrown";
}

}  // namespace

TEST(OrvelCmdTest, HasItsKindAndNoItemAtFirst)
{
  const OrvelCmd command(OrvelCmdDefs::DRESP);

  EXPECT_EQ(command.GetCmd(), OrvelCmdDefs::DRESP);
  EXPECT_FALSE(command.HasItem(OrvelCmdItemDefs::ID_NAME));
  EXPECT_THAT(command.Items(OrvelCmdItemDefs::ID_NAME), IsEmpty());
}

TEST(OrvelCmdTest, HoldsAnItemUnderItsKindOnly)
{
  OrvelCmd command(OrvelCmdDefs::DV);
  command.AddStringItem(OrvelCmdItemDefs::FILE, "start.vtm");

  EXPECT_TRUE(command.HasItem(OrvelCmdItemDefs::FILE));
  EXPECT_EQ(command.Item(OrvelCmdItemDefs::FILE, 0).AsString(), "start.vtm");
  EXPECT_EQ(command.Item(OrvelCmdItemDefs::FILE, 0).GetItem(), OrvelCmdItemDefs::FILE);
  EXPECT_FALSE(command.HasItem(OrvelCmdItemDefs::ADD_FILE));
}

TEST(OrvelCmdTest, KeepsTheItemsOfAKindInTheOrderInWhichTheyAreAdded)
{
  OrvelCmd command(OrvelCmdDefs::OPERATOR);
  command.AddDoubleItem(OrvelCmdItemDefs::COEFFICIENT, 1.5);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, "sum");
  command.AddIntegerItem(OrvelCmdItemDefs::COEFFICIENT, 2);
  command.AddStringItem(OrvelCmdItemDefs::COEFFICIENT, "three");

  const OrvelCmd::ItemList& items = command.Items(OrvelCmdItemDefs::COEFFICIENT);
  ASSERT_THAT(items, SizeIs(3));
  EXPECT_EQ(items[0]->AsString(), "1.5");
  EXPECT_EQ(items[1]->AsString(), "2");
  EXPECT_EQ(items[2]->AsString(), "three");
}

TEST(OrvelCmdTest, MakesAnItemOfTheTypeOfEachAddition)
{
  OrvelCmd command(OrvelCmdDefs::OPTIONS);
  command.AddStringItem(OrvelCmdItemDefs::VALUE, "x");
  command.AddIntegerItem(OrvelCmdItemDefs::VALUE, 1);
  command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 1.0);
  command.AddEnumItem(OrvelCmdItemDefs::VALUE, OrvelCmdItemDefs::GROUP_FORMAT_XOR);
  command.AddStringListItem(OrvelCmdItemDefs::VALUE, {"x"});
  command.AddIntegerSetItem(OrvelCmdItemDefs::VALUE, {1});
  command.AddReferenceItem(OrvelCmdItemDefs::VALUE, command);

  const auto type_at = [&command](std::uint64_t position) {
    return command.Item(OrvelCmdItemDefs::VALUE, position).GetValueType();
  };
  EXPECT_EQ(type_at(0), OrvelCmdItem::ValueType::Text);
  EXPECT_EQ(type_at(1), OrvelCmdItem::ValueType::Integer);
  EXPECT_EQ(type_at(2), OrvelCmdItem::ValueType::Double);
  EXPECT_EQ(type_at(3), OrvelCmdItem::ValueType::Enumerator);
  EXPECT_EQ(type_at(4), OrvelCmdItem::ValueType::TextList);
  EXPECT_EQ(type_at(5), OrvelCmdItem::ValueType::IntegerSet);
  EXPECT_EQ(type_at(6), OrvelCmdItem::ValueType::Reference);
}

TEST(OrvelCmdTest, KeepsTheAddressOfAnItemWhileOthersAreAdded)
{
  OrvelCmd command(OrvelCmdDefs::DRESP);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, "first");
  const OrvelCmdItem* const first = &command.Item(OrvelCmdItemDefs::ID_NAME, 0);
  for (int i = 0; i < 1000; ++i)
  {
    command.AddIntegerItem(OrvelCmdItemDefs::ID_NAME, i);
  }

  EXPECT_EQ(&command.Item(OrvelCmdItemDefs::ID_NAME, 0), first);
  EXPECT_EQ(first->AsString(), "first");
}

TEST(OrvelCmdTest, NamesTheItemAndThePositionThatIsNotThere)
{
  OrvelCmd command(OrvelCmdDefs::DRESP);
  command.AddIntegerItem(OrvelCmdItemDefs::VALUE, 1);
  command.AddIntegerItem(OrvelCmdItemDefs::VALUE, 2);

  EXPECT_EQ(FailureOf([&command] { command.Item(OrvelCmdItemDefs::VALUE, 2); }),
            "Item VALUE has 2 entries, so that there is none at position 2.");
  EXPECT_EQ(FailureOf([&command] { command.Item(OrvelCmdItemDefs::FILE, 0); }),
            "Item FILE has 0 entries, so that there is none at position 0.");
}

TEST(OrvelCmdTest, RefusesANumberThatIsNoKindOfItem)
{
  OrvelCmd command(OrvelCmdDefs::DRESP);

  EXPECT_EQ(FailureOf([&command] { command.AddIntegerItem(OrvelCmdItemDefs::ITEM_NONE, 1); }),
            "CmdItem 39 is no kind of item.");
  EXPECT_EQ(FailureOf([&command] { command.AddStringItem(static_cast<OrvelCmdItemDefs::CmdItem>(-1), "x"); }),
            "CmdItem -1 is no kind of item.");
  EXPECT_FALSE(command.HasItem(OrvelCmdItemDefs::ITEM_NONE));
}

TEST(OrvelCmdTest, RefusesAReferenceAsItsName)
{
  OrvelCmd command(OrvelCmdDefs::DRESP);

  EXPECT_EQ(FailureOf([&command] { command.AddReferenceItem(OrvelCmdItemDefs::ID_NAME, command); }),
            "A reference cannot be the ID_NAME of a command.");
  EXPECT_FALSE(command.HasItem(OrvelCmdItemDefs::ID_NAME));
}
