#include "OrvelCmdEngine/OrvelCmdItem_Util.h"

#include <memory>

#include <gtest/gtest.h>

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/OrvelCmdReferenceItem.h"

TEST(OrvelCmdItem_UtilTest, KnowsAReferenceToACommandOfTheKind)
{
  const OrvelCmd command(OrvelCmdDefs::DRESP);
  const OrvelCmdReferenceItem item(command);

  EXPECT_TRUE(OrvelCmdItem_Util::has_item_reference_of_type(item, OrvelCmdDefs::DRESP));
  EXPECT_FALSE(OrvelCmdItem_Util::has_item_reference_of_type(item, OrvelCmdDefs::OPERATOR));
}

TEST(OrvelCmdItem_UtilTest, IsFalseForAnItemThatIsNoReference)
{
  OrvelCmd command(OrvelCmdDefs::DRESP);
  command.AddStringItem(OrvelCmdItemDefs::REFERENCE, "mass");

  EXPECT_FALSE(
    OrvelCmdItem_Util::has_item_reference_of_type(command.Item(OrvelCmdItemDefs::REFERENCE, 0), OrvelCmdDefs::DRESP));
}

TEST(OrvelCmdItem_UtilTest, IsFalseWhenTheCommandHasEnded)
{
  auto command = std::make_unique<OrvelCmd>(OrvelCmdDefs::DRESP);
  const OrvelCmdReferenceItem item(*command);
  command.reset();

  EXPECT_FALSE(OrvelCmdItem_Util::has_item_reference_of_type(item, OrvelCmdDefs::DRESP));
}
