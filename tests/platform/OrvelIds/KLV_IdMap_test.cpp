#include "OrvelIds/KLV_IdMap.h"

#include <gtest/gtest.h>

TEST(KLV_IdMapTest, KnowsNoIdAtFirst)
{
  KLV_IdMap map;

  EXPECT_FALSE(map.Has("inlet"));
  EXPECT_EQ(map.Lookup("inlet"), -1);
}

TEST(KLV_IdMapTest, NumbersIdsInTheOrderInWhichTheyAreAdded)
{
  KLV_IdMap map;

  EXPECT_EQ(map.Add("outlet"), 0);
  EXPECT_EQ(map.Add("inlet"), 1);
  EXPECT_EQ(map.Add("wall"), 2);

  EXPECT_EQ(map.Lookup("inlet"), 1);
  EXPECT_EQ(map.Lookup("outlet"), 0);
  EXPECT_EQ(map.Lookup("wall"), 2);
}

TEST(KLV_IdMapTest, GivesTheNumberOfAKnownIdAgain)
{
  KLV_IdMap map;
  map.Add("inlet");
  map.Add("outlet");

  EXPECT_EQ(map.Add("inlet"), 0);
  EXPECT_EQ(map.Add("wall"), 2);
}

TEST(KLV_IdMapTest, TellsIdsApartByCaseAndBlanks)
{
  KLV_IdMap map;
  map.Add("inlet");

  EXPECT_TRUE(map.Has("inlet"));
  EXPECT_FALSE(map.Has("INLET"));
  EXPECT_FALSE(map.Has("inlet "));
}

TEST(KLV_IdMapTest, TakesTheEmptyTextAsAnId)
{
  KLV_IdMap map;
  map.Add("");

  EXPECT_TRUE(map.Has(""));
}

TEST(KLV_IdMapTest, CountsTheLookUpsOfEachId)
{
  KLV_IdMap map;
  map.Add("inlet");
  map.Add("outlet");
  map.Lookup("inlet");
  map.Lookup("inlet");

  EXPECT_EQ(map.LookupCount("inlet"), 2u);
  EXPECT_EQ(map.LookupCount("outlet"), 0u);
}

TEST(KLV_IdMapTest, CountsTheLookUpOfAnUnknownIdWithoutLearningIt)
{
  KLV_IdMap map;
  map.Lookup("nowhere");

  EXPECT_EQ(map.LookupCount("nowhere"), 1u);
  EXPECT_FALSE(map.Has("nowhere"));
  EXPECT_EQ(map.Add("inlet"), 0);
}

TEST(KLV_IdMapTest, KeepsTheCountOfAnIdThatBecomesKnown)
{
  KLV_IdMap map;
  map.Lookup("inlet");
  map.Add("inlet");
  map.Lookup("inlet");

  EXPECT_EQ(map.LookupCount("inlet"), 2u);
}

TEST(KLV_IdMapTest, CountsNeitherTestsNorAdditions)
{
  KLV_IdMap map;
  map.Add("inlet");
  map.Has("inlet");
  map.Add("inlet");

  EXPECT_EQ(map.LookupCount("inlet"), 0u);
}

TEST(KLV_IdMapTest, AsksADerivedMapThroughItsBase)
{
  class AllKnown : public KLV_IdMap
  {
  public:
    bool Has(const std::string&) const override { return true; }

    std::int32_t Lookup(const std::string&) override { return 7; }
  };

  AllKnown all_known;
  KLV_IdMap& map = all_known;

  EXPECT_TRUE(map.Has("anything"));
  EXPECT_EQ(map.Lookup("anything"), 7);
}
