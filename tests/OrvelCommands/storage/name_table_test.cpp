#include "OrvelCommands/storage/name_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using orvel::detail::NameTable;

namespace
{

// Every name finds its own number and no other name finds any.
void ExpectAllFound(const std::vector<std::string>& names)
{
  NameTable<int> table;
  for (std::size_t number = 0; number < names.size(); ++number)
  {
    EXPECT_EQ(table.Find(names[number]), nullptr) << names[number];
    table.Add(names[number], static_cast<int>(number));
  }
  for (std::size_t number = 0; number < names.size(); ++number)
  {
    const int* found = table.Find(names[number]);
    ASSERT_NE(found, nullptr) << names[number];
    EXPECT_EQ(*found, static_cast<int>(number)) << names[number];
  }
}

}  // namespace

TEST(NameTable, IsEmptyAtFirst)
{
  const NameTable<int> table;
  EXPECT_EQ(table.Find(""), nullptr);
  EXPECT_EQ(table.Find("TYPE_"), nullptr);
}

TEST(NameTable, FindsTheEmptyName)
{
  NameTable<int> table;
  table.Add("", 7);
  ASSERT_NE(table.Find(""), nullptr);
  EXPECT_EQ(*table.Find(""), 7);
  EXPECT_EQ(table.Find(std::string(1, '\0')), nullptr);
}

TEST(NameTable, KeepsTheFirstValueOfAName)
{
  NameTable<int> table({{"TYPE_", 1}, {"TYPE_", 2}});
  table.Add("TYPE_", 3);
  EXPECT_EQ(*table.Find("TYPE_"), 1);
}

TEST(NameTable, TellsNamesApartThatDifferInOneCharacterAtAnyPlace)
{
  for (std::size_t size = 1; size <= 40; ++size)
  {
    std::vector<std::string> names = {std::string(size, 'a')};
    for (std::size_t place = 0; place < size; ++place)
    {
      names.push_back(std::string(size, 'a'));
      names.back()[place] = 'b';
    }
    ExpectAllFound(names);
  }
}

TEST(NameTable, TellsNamesApartThatDifferInLengthAlone)
{
  std::vector<std::string> names;
  for (std::size_t size = 0; size <= 64; ++size)
  {
    names.emplace_back(size, 'x');
  }
  ExpectAllFound(names);
}

TEST(NameTable, TakesANameWithZeroBytesAsItIs)
{
  const std::string zero(1, '\0');
  ExpectAllFound({"DV_", "DV_" + zero, zero + "DV_", "DV_" + zero + zero, zero, zero + zero});
}

TEST(NameTable, TellsNamesApartThatAreTheSameButForTheSignBitOfACharacter)
{
  ExpectAllFound({"a", "\xe1", "ab", "a\xe2", "abcdefgh", "abcdefg\xe8"});
}

TEST(NameTable, FindsEachOfManyNames)
{
  std::vector<std::string> names;
  for (int number = 0; number < 20000; ++number)
  {
    names.push_back("outlet_" + std::to_string(number) + "_pressure_drop");
  }
  ExpectAllFound(names);
}

TEST(NameTable, TellsManyNamesApartThatDifferInTheirMiddleAlone)
{
  std::vector<std::string> names;
  for (int number = 10000; number < 20000; ++number)
  {
    names.push_back("response_" + std::to_string(number) + "_pressure_drop");
  }
  ExpectAllFound(names);
}

TEST(NameTable, ACopyFindsWhatTheOriginalFinds)
{
  NameTable<int> table({{"TYPE_", 1}});
  const NameTable<int> copy = table;
  table.Add("FILE_", 2);
  EXPECT_EQ(*copy.Find("TYPE_"), 1);
  EXPECT_EQ(copy.Find("FILE_"), nullptr);
}
