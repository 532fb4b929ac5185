#include "OrvelCmdEngine/OrvelCmdDefs.h"
#include "OrvelCmdEngine/OrvelCmdItemDefs.h"

#include <type_traits>

#include <gtest/gtest.h>

TEST(OrvelCmdDefsTest, NumbersTheKindsOfCommand)
{
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::MODEL_INPUT), 0);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::GROUP_DEF), 1);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::DV), 2);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::DRESP), 3);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OPERATOR), 4);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OBJ_FUNC), 5);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::CONSTRAINT), 6);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::DV_CONSTRAINT), 7);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::MESH_SMOOTH), 8);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OPTIMIZE), 9);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OPT_PARAM), 10);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::STOP), 11);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OUTPUT), 12);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::SMOOTH), 13);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::OPTIONS), 14);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::DV_UPDATE_PARAM), 15);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::SCALING_CURVE), 16);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::FILTER), 17);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::CONTOURPLOT), 18);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::REPORT), 19);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::CMD_PLACEHOLDER), 20);
  EXPECT_EQ(static_cast<int>(OrvelCmdDefs::CMD_NONE), 21);
}

TEST(OrvelCmdItemDefsTest, NumbersTheKindsOfItem)
{
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::ID_NAME), 0);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::TYPE), 1);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::FILE), 2);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::ADD_FILE), 3);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP), 4);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::ELEMENT_GROUP), 5);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::NODE_GROUP), 6);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::FACE_GROUP), 7);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DRESP), 8);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::TARGET), 9);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::VALUE), 10);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::MIN), 11);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::MAX), 12);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::LIST_BEGIN), 13);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DV), 14);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::OBJ_FUNC), 15);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::CONSTRAINT), 16);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DV_CONSTRAINT), 17);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::STRATEGY), 18);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::STOP), 19);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::MESH_SMOOTH), 20);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::ITER_MAX), 21);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::OPT_PARAM), 22);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DV_UPDATE_PARAM), 23);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::REFERENCE), 24);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::COEFFICIENT), 25);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::SOLVER_RUN_MODE), 26);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::SENS_CALC_MODE), 27);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::UPDATE_TYPE), 28);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::UPDATE_ID), 29);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::FORMAT), 30);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DESCRIPTION), 31);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::DIRECTION), 32);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::LOADCASE), 33);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::MAGNITUDE), 34);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::LOWER), 35);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::UPPER), 36);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::CS), 37);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::PLACEHOLDER), 38);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::ITEM_NONE), 39);
}

TEST(OrvelCmdItemDefsTest, NumbersTheEnumeratorsOfGroups)
{
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_TYPE_ELEMENT), 0);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_TYPE_NODE), 2);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_FORMAT_MERGE), 77);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_FORMAT_SUBTRACT), 83);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_FORMAT_INTERSECT), 73);
  EXPECT_EQ(static_cast<int>(OrvelCmdItemDefs::GROUP_FORMAT_XOR), 88);
}

TEST(OrvelCmdItemDefsTest, KeepsAllEnumerationsIn32SignedBits)
{
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OrvelCmdDefs::Cmd>, std::int32_t>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OrvelCmdItemDefs::CmdItem>, std::int32_t>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OrvelCmdItemDefs::EnumValue>, std::int32_t>));
}

TEST(OrvelCmdItemDefsTest, NamesItemsAsAParameterFileDoes)
{
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::ID_NAME), "ID_NAME");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::ADD_FILE), "ADD_FILE");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::VALUE), "VALUE");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::LIST_BEGIN), "LIST_BEGIN");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::ITER_MAX), "ITER_MAX");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::FORMAT), "FORMAT");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::PLACEHOLDER), "PLACEHOLDER");
}

TEST(OrvelCmdItemDefsTest, NamesANumberThatIsNoItemByTheNumber)
{
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(OrvelCmdItemDefs::ITEM_NONE), "CmdItem 39");
  EXPECT_EQ(OrvelCmdItemDefs::GetItemName(static_cast<OrvelCmdItemDefs::CmdItem>(-1)), "CmdItem -1");
}
