#include "OrvelUtilities/KLV_ListFormatUtil.h"

#include <gtest/gtest.h>

TEST(KLV_ListFormatUtilTest, GivesTheEmptyTextForAnEmptyList)
{
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<int>(), " "), "");
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<double>(), " "), "");
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<std::string>(), " "), "");
}

TEST(KLV_ListFormatUtilTest, WritesNoSeparatorForOneElement)
{
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<int>{7}, " "), "7");
}

TEST(KLV_ListFormatUtilTest, PutsTheSeparatorOnlyBetweenElements)
{
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<int>{3, -1, 2}, " "), "3 -1 2");
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<int>{3, -1, 2}, ", "), "3, -1, 2");
  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(std::vector<int>{3, -1, 2}, ""), "3-12");
}

TEST(KLV_ListFormatUtilTest, WritesDoublesInTheirShortestForm)
{
  const std::vector<double> list = {0.1, 2.0, -1e-300};

  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(list, " "), "0.1 2 -1e-300");
}

TEST(KLV_ListFormatUtilTest, WritesTextsAsTheyAre)
{
  const std::vector<std::string> list = {"inlet", "", "a b", "100%"};

  EXPECT_EQ(KLV_ListFormatUtil::format_list_as_line(list, "|"), "inlet||a b|100%");
}
