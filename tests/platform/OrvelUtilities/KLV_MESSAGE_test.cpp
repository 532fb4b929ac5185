#include "OrvelUtilities/KLV_MESSAGE.h"

#include <clocale>
#include <stdexcept>

#include <gtest/gtest.h>

TEST(KLV_MESSAGETest, GivesTheFormatWithItsArguments)
{
  EXPECT_EQ(KLV_MESSAGE("Value \"%s\" at %d of %.2f%%", "x", -7, 12.5), "Value \"x\" at -7 of 12.50%");
}

TEST(KLV_MESSAGETest, GivesATextWithoutConversionsAsItIs)
{
  EXPECT_EQ(KLV_MESSAGE("plain"), "plain");
}

TEST(KLV_MESSAGETest, GivesTheEmptyTextForAnEmptyResult)
{
  EXPECT_EQ(KLV_MESSAGE("%s", ""), "");
}

TEST(KLV_MESSAGETest, DoesNotCutTextsOfBufferSize)
{
  for (const std::size_t length : {1022u, 1023u, 1024u, 1025u})
  {
    const std::string value(length, 'x');
    EXPECT_EQ(KLV_MESSAGE("%s", value.c_str()), value) << "length " << length;
  }
}

TEST(KLV_MESSAGETest, DoesNotCutALongText)
{
  const std::string value(1000000, 'a');

  EXPECT_EQ(KLV_MESSAGE("<%s>", value.c_str()), "<" + value + ">");
}

TEST(KLV_MESSAGETest, DoesNotTakeAnArgumentAsAFormat)
{
  EXPECT_EQ(KLV_MESSAGE("%s", "100%n %s"), "100%n %s");
}

TEST(KLV_MESSAGETest, ThrowsWithTheFormatWhenTheLocaleDoesNotKnowACharacter)
{
  ASSERT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
  try
  {
    KLV_MESSAGE("id %ls", L"\u20ac");
    FAIL() << "nothing was thrown";
  }
  catch (const std::runtime_error& failure)
  {
    EXPECT_STREQ(failure.what(), "KLV_MESSAGE: the format \"id %ls\" can't be carried out.");
  }
}
