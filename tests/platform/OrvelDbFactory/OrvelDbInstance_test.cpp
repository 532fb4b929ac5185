#include "OrvelDbFactory/OrvelDbInstance.h"

#include <gtest/gtest.h>

TEST(OrvelDbInstanceTest, RefersToNoDatabaseUntilOneIsAssigned)
{
  EXPECT_EQ(OrvelDbInstance::s_Singleton, nullptr);
}

TEST(OrvelDbInstanceTest, LeadsToTheDatabaseThatIsAssigned)
{
  KLV_Database database;
  database.GetIdMapsPool().GetIdMap(KLV_IdType::face_group).Add("outlet");

  OrvelDbInstance::s_Singleton = &database;
  const bool has_outlet = OrvelDbInstance::s_Singleton->GetIdMapsPool().GetIdMap(KLV_IdType::face_group).Has("outlet");
  OrvelDbInstance::s_Singleton = nullptr;

  EXPECT_TRUE(has_outlet);
}

TEST(KLV_DatabaseTest, IsEmptyAtFirst)
{
  KLV_Database database;

  EXPECT_FALSE(database.GetIdMapsPool().GetIdMap(KLV_IdType::element_group).Has("body"));
}

TEST(KLV_DatabaseTest, KeepsItsNamesApartFromThoseOfAnother)
{
  KLV_Database first;
  KLV_Database second;
  first.GetIdMapsPool().GetIdMap(KLV_IdType::element_group).Add("body");

  EXPECT_FALSE(second.GetIdMapsPool().GetIdMap(KLV_IdType::element_group).Has("body"));
}
