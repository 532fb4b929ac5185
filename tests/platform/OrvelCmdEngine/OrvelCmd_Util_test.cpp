#include "OrvelCmdEngine/OrvelCmd_Util.h"

#include <gtest/gtest.h>

namespace
{

constexpr auto merge = OrvelCmdItemDefs::GROUP_FORMAT_MERGE;

bool HasMergeFormat(const OrvelCmd& command)
{
  return OrvelCmd_Util::has_command_enum_with_value(command, OrvelCmdItemDefs::FORMAT, merge);
}

}  // namespace

TEST(OrvelCmd_UtilTest, FindsAnEnumeratorOfTheItem)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddEnumItem(OrvelCmdItemDefs::FORMAT, merge);

  EXPECT_TRUE(HasMergeFormat(command));
}

TEST(OrvelCmd_UtilTest, FindsNothingInACommandWithoutTheItem)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddEnumItem(OrvelCmdItemDefs::TYPE, merge);

  EXPECT_FALSE(HasMergeFormat(command));
}

TEST(OrvelCmd_UtilTest, DoesNotFindAnotherEnumerator)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddEnumItem(OrvelCmdItemDefs::FORMAT, OrvelCmdItemDefs::GROUP_FORMAT_XOR);

  EXPECT_FALSE(HasMergeFormat(command));
}

TEST(OrvelCmd_UtilTest, LooksAtAllItemsOfTheKind)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddEnumItem(OrvelCmdItemDefs::FORMAT, OrvelCmdItemDefs::GROUP_FORMAT_XOR);
  command.AddEnumItem(OrvelCmdItemDefs::FORMAT, merge);

  EXPECT_TRUE(HasMergeFormat(command));
}

TEST(OrvelCmd_UtilTest, TakesAnIntegerAsAnEnumerator)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddIntegerItem(OrvelCmdItemDefs::FORMAT, 77);

  EXPECT_TRUE(HasMergeFormat(command));
}

TEST(OrvelCmd_UtilTest, PassesOverAnItemThatIsNoNumber)
{
  OrvelCmd command(OrvelCmdDefs::GROUP_DEF);
  command.AddStringItem(OrvelCmdItemDefs::FORMAT, "77");
  command.AddDoubleItem(OrvelCmdItemDefs::FORMAT, 77.0);

  EXPECT_FALSE(HasMergeFormat(command));
}
