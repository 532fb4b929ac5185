#include "OrvelCommands/foundation/XmlvtmIdname.h"
#include "OrvelCommands/foundation/XmlvtmInfoRecord.h"
#include "OrvelCommands/foundation/XmlvtmModelId.h"
#include "OrvelCommands/foundation/XmlvtmReference.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <type_traits>

namespace
{

// The fields of a record in order, as the database reads them.
template <std::size_t Count, class Record>
std::array<std::int32_t, Count> FieldsOf(const Record& record)
{
  static_assert(sizeof(Record) == Count * sizeof(std::int32_t));
  std::array<std::int32_t, Count> fields;
  std::memcpy(fields.data(), &record, sizeof(record));
  return fields;
}

}  // namespace

TEST(XmlvtmRecords, HaveEveryFieldMinusOneByDefault)
{
  EXPECT_EQ(FieldsOf<4>(XmlvtmIdname()), (std::array{-1, -1, -1, -1}));
  EXPECT_EQ(FieldsOf<3>(XmlvtmModelId()), (std::array{-1, -1, -1}));
  EXPECT_EQ(FieldsOf<5>(XmlvtmReference()), (std::array{-1, -1, -1, -1, -1}));
}

TEST(XmlvtmRecords, TakeTheirFieldsInOrder)
{
  EXPECT_EQ(FieldsOf<4>(XmlvtmIdname(1, 2, 3, 4)), (std::array{1, 2, 3, 4}));
  EXPECT_EQ(FieldsOf<3>(XmlvtmModelId(1, 2, 3)), (std::array{1, 2, 3}));
  EXPECT_EQ(FieldsOf<5>(XmlvtmReference(1, 2, 3, 4, 5)), (std::array{1, 2, 3, 4, 5}));
  EXPECT_EQ(FieldsOf<3>(XmlvtmInfoRecord{1, 2, 3}), (std::array{1, 2, 3}));
}

TEST(XmlvtmRecords, DescribeTheirRowsToTheDatabase)
{
  EXPECT_STREQ(XmlvtmIdname::DB_FORMAT, "IIIIb");
  EXPECT_STREQ(XmlvtmModelId::DB_FORMAT, "IIIb");
  EXPECT_STREQ(XmlvtmReference::DB_FORMAT, "IIIIIb");
  EXPECT_STREQ(XmlvtmInfoRecord::DB_FORMAT, "IIIb");
}

TEST(XmlvtmRecords, AreCopiedAndMovedMemberWise)
{
  static_assert(std::is_trivially_copyable_v<XmlvtmIdname> && std::is_trivially_copyable_v<XmlvtmModelId>);
  static_assert(std::is_trivially_copyable_v<XmlvtmReference> && std::is_trivially_copyable_v<XmlvtmInfoRecord>);
  XmlvtmReference target;
  target = XmlvtmReference(1, 2, 3, 4, 5);
  EXPECT_EQ(FieldsOf<5>(target), (std::array{1, 2, 3, 4, 5}));
}

TEST(XmlvtmRecords, DeclareNoConstructorForTheInfoRecord)
{
  static_assert(std::is_aggregate_v<XmlvtmInfoRecord> && std::is_trivial_v<XmlvtmInfoRecord>);
  EXPECT_EQ(FieldsOf<3>(XmlvtmInfoRecord()), (std::array{0, 0, 0}));
}
