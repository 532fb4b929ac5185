#include "OrvelIds/KLV_IdMapsPool.h"

#include <gtest/gtest.h>

TEST(KLV_IdMapsPoolTest, NumbersTheKindsOfNameAsTheJobDoes)
{
  EXPECT_EQ(static_cast<int>(KLV_IdType::coordinate_system), 5);
  EXPECT_EQ(static_cast<int>(KLV_IdType::node_group), 7);
  EXPECT_EQ(static_cast<int>(KLV_IdType::face_group), 8);
  EXPECT_EQ(static_cast<int>(KLV_IdType::element_group), 9);
  EXPECT_EQ(sizeof(KLV_IdType), 4u);
}

TEST(KLV_IdMapsPoolTest, GivesAnEmptyMapForAKindThatIsAskedFirst)
{
  KLV_IdMapsPool pool;

  EXPECT_FALSE(pool.GetIdMap(KLV_IdType::node_group).Has("inlet"));
}

TEST(KLV_IdMapsPoolTest, GivesTheSameMapForTheSameKind)
{
  KLV_IdMapsPool pool;
  pool.GetIdMap(KLV_IdType::node_group).Add("inlet");

  EXPECT_TRUE(pool.GetIdMap(KLV_IdType::node_group).Has("inlet"));
}

TEST(KLV_IdMapsPoolTest, KeepsTheKindsApart)
{
  KLV_IdMapsPool pool;
  pool.GetIdMap(KLV_IdType::node_group).Add("inlet");

  EXPECT_FALSE(pool.GetIdMap(KLV_IdType::element_group).Has("inlet"));
  EXPECT_FALSE(pool.GetIdMap(KLV_IdType::face_group).Has("inlet"));
  EXPECT_FALSE(pool.GetIdMap(KLV_IdType::coordinate_system).Has("inlet"));
}

TEST(KLV_IdMapsPoolTest, TakesANumberWithoutEnumeratorAsAKind)
{
  KLV_IdMapsPool pool;
  pool.GetIdMap(static_cast<KLV_IdType>(42)).Add("inlet");

  EXPECT_TRUE(pool.GetIdMap(static_cast<KLV_IdType>(42)).Has("inlet"));
  EXPECT_FALSE(pool.GetIdMap(static_cast<KLV_IdType>(-1)).Has("inlet"));
}

TEST(KLV_IdMapsPoolTest, KeepsTheAddressOfAMapWhileOthersAreAdded)
{
  KLV_IdMapsPool pool;
  KLV_IdMap* const first = &pool.GetIdMap(KLV_IdType::node_group);
  for (int number = 0; number < 1000; ++number)
  {
    pool.GetIdMap(static_cast<KLV_IdType>(number));
  }

  EXPECT_EQ(&pool.GetIdMap(KLV_IdType::node_group), first);
}
