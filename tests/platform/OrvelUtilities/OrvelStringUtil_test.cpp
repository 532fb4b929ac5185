#include "OrvelUtilities/OrvelStringUtil.h"

#include <limits>

#include <gtest/gtest.h>

TEST(OrvelStringUtilTest, WritesIntegersInDecimal)
{
  EXPECT_EQ(OrvelStringUtil::String(0), "0");
  EXPECT_EQ(OrvelStringUtil::String(42), "42");
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<int>::max()), "2147483647");
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(OrvelStringUtilTest, WritesUnsignedCountsInDecimal)
{
  EXPECT_EQ(OrvelStringUtil::String(std::uint64_t{0}), "0");
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(OrvelStringUtilTest, WritesADoubleAsTheShortestTextThatReadsBack)
{
  EXPECT_EQ(OrvelStringUtil::String(0.0), "0");
  EXPECT_EQ(OrvelStringUtil::String(1.0), "1");
  EXPECT_EQ(OrvelStringUtil::String(0.1), "0.1");
  EXPECT_EQ(OrvelStringUtil::String(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(OrvelStringUtil::String(-2.5), "-2.5");
  EXPECT_EQ(OrvelStringUtil::String(1234.5678), "1234.5678");
}

TEST(OrvelStringUtilTest, WritesAnExponentWhereThatIsShorter)
{
  EXPECT_EQ(OrvelStringUtil::String(1e22), "1e+22");
  EXPECT_EQ(OrvelStringUtil::String(1e-300), "1e-300");
  EXPECT_EQ(OrvelStringUtil::String(100000.0), "1e+05");
  EXPECT_EQ(OrvelStringUtil::String(120000.0), "120000");
}

TEST(OrvelStringUtilTest, WritesTheSignOfNegativeZero)
{
  EXPECT_EQ(OrvelStringUtil::String(-0.0), "-0");
}

TEST(OrvelStringUtilTest, WritesTheExtremesOfDoubleInFull)
{
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
  EXPECT_EQ(OrvelStringUtil::String(-std::numeric_limits<double>::min()), "-2.2250738585072014e-308");
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(OrvelStringUtilTest, WritesValuesThatAreNoFiniteNumber)
{
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<double>::quiet_NaN()), "nan");
  EXPECT_EQ(OrvelStringUtil::String(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(OrvelStringUtil::String(-std::numeric_limits<double>::infinity()), "-inf");
}
