#include "OrvelUtilities/KLV_Code.h"

#include <gtest/gtest.h>

TEST(KLV_CodeTest, HoldsNoCodeWhenDefaultConstructed)
{
  const KLV_Code code;

  EXPECT_FALSE(code.exists());
  EXPECT_EQ(code.GetText(), "");
}

TEST(KLV_CodeTest, HoldsTheTextThatItIsGiven)
{
  const KLV_Code code("220653270608");

  EXPECT_TRUE(code.exists());
  EXPECT_EQ(code.GetText(), "220653270608");
}

TEST(KLV_CodeTest, TakesTheEmptyTextAsNoCode)
{
  EXPECT_FALSE(KLV_Code(std::string()).exists());
}

TEST(KLV_CodeTest, KeepsTheTextInACopy)
{
  const KLV_Code code("103000010120");
  const KLV_Code copy(code);

  EXPECT_TRUE(copy.exists());
  EXPECT_EQ(copy.GetText(), "103000010120");
}
