#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"

#include <memory>

#include <gtest/gtest.h>

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/OrvelCmdContainer.h"

TEST(OrvelCmdReferenceItemTest, LeadsToTheCommandItself)
{
  const OrvelCmd command(OrvelCmdDefs::DV);
  const OrvelCmdReferenceItem item(command);

  EXPECT_TRUE(item.IsReference());
  EXPECT_EQ(item.ReferencedCommand(), &command);
}

TEST(OrvelCmdReferenceItemTest, ReadsAsTheNameOfTheCommand)
{
  OrvelCmd command(OrvelCmdDefs::DV);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, "density");

  EXPECT_EQ(OrvelCmdReferenceItem(command).AsString(), "density");
}

TEST(OrvelCmdReferenceItemTest, ReadsAsTheEmptyTextWhenTheCommandHasNoName)
{
  const OrvelCmd command(OrvelCmdDefs::DV);

  EXPECT_EQ(OrvelCmdReferenceItem(command).AsString(), "");
}

TEST(OrvelCmdReferenceItemTest, SeesANameThatTheCommandIsGivenLater)
{
  OrvelCmd command(OrvelCmdDefs::DV);
  const OrvelCmdReferenceItem item(command);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, "density");

  EXPECT_EQ(item.AsString(), "density");
}

TEST(OrvelCmdReferenceItemTest, IsAReferenceItemUnlessToldOtherwise)
{
  const OrvelCmd command(OrvelCmdDefs::DV);

  EXPECT_EQ(OrvelCmdReferenceItem(command).GetItem(), OrvelCmdItemDefs::REFERENCE);
  EXPECT_EQ(OrvelCmdReferenceItem(command, OrvelCmdItemDefs::DV).GetItem(), OrvelCmdItemDefs::DV);
}

TEST(OrvelCmdReferenceItemTest, LeadsNowhereWhenTheCommandHasEnded)
{
  auto command = std::make_unique<OrvelCmd>(OrvelCmdDefs::DV);
  command->AddStringItem(OrvelCmdItemDefs::ID_NAME, "density");
  const OrvelCmdReferenceItem item(*command);
  command.reset();

  EXPECT_TRUE(item.IsReference());
  EXPECT_EQ(item.ReferencedCommand(), nullptr);
  EXPECT_EQ(item.AsString(), "");
}

TEST(OrvelCmdReferenceItemTest, LeadsNowhereWhenTheCommandIsRemovedFromItsContainer)
{
  OrvelCmdContainer container;
  const OrvelCmd& target = container.AddCommand(OrvelCmdDefs::DV);
  OrvelCmd& optimize = container.AddCommand(OrvelCmdDefs::OPTIMIZE);
  optimize.AddReferenceItem(OrvelCmdItemDefs::DV, target);
  container.RemoveCommand(OrvelCmdDefs::DV, 0);

  EXPECT_EQ(optimize.Item(OrvelCmdItemDefs::DV, 0).ReferencedCommand(), nullptr);
}

TEST(OrvelCmdReferenceItemTest, MayLeadFromACommandToItself)
{
  OrvelCmd command(OrvelCmdDefs::OPERATOR);
  command.AddStringItem(OrvelCmdItemDefs::ID_NAME, "sum");
  command.AddReferenceItem(OrvelCmdItemDefs::REFERENCE, command);

  EXPECT_EQ(command.Item(OrvelCmdItemDefs::REFERENCE, 0).ReferencedCommand(), &command);
  EXPECT_EQ(command.Item(OrvelCmdItemDefs::REFERENCE, 0).AsString(), "sum");
}
