#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "support/RecordingStorage.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using Storage = OrvelParfileStorage;
using Text = const std::string&;

template <class Value>
using Reader = void (Storage::*)(Text, Text, Text, std::uint64_t, VtmType, Value&) const;

template <class Value>
using Setter = void (Storage::*)(Text, Text, Text, int, VtmType, const Value&) const;

template <class Value>
using Adder = void (Storage::*)(Text, Text, Text, VtmType, const Value&) const;

template <class Value>
std::size_t PlaceOfReader()
{
  return PlaceAfterDestructor(static_cast<Reader<Value>>(&Storage::GetValue));
}

template <class Value>
std::size_t PlaceOfSetter()
{
  return PlaceAfterDestructor(static_cast<Setter<Value>>(&Storage::SetValue));
}

template <class Value>
std::size_t PlaceOfAdder()
{
  return PlaceAfterDestructor(static_cast<Adder<Value>>(&Storage::AddValue));
}

}  // namespace

static_assert(std::is_abstract_v<Storage>);
static_assert(std::has_virtual_destructor_v<Storage>);
static_assert(sizeof(Storage) == sizeof(void*), "the interface has no data");
static_assert(std::is_same_v<std::underlying_type_t<VtmType>, std::int32_t>);
static_assert(std::is_convertible_v<VtmType, int>, "the enumeration is unscoped");

// Every operation is const but one. The overloaded ones are const by the types that the test of the order names.
static_assert(std::is_same_v<decltype(&Storage::HasCommand), bool (Storage::*)(Text, Text) const>);
static_assert(std::is_same_v<decltype(&Storage::GetNumCommand), std::uint64_t (Storage::*)(Text) const>);
static_assert(std::is_same_v<decltype(&Storage::GetNumElements), std::uint64_t (Storage::*)(Text, Text, Text) const>);
static_assert(std::is_same_v<decltype(&Storage::HasElement), bool (Storage::*)(Text, Text, Text) const>);
static_assert(
  std::is_same_v<decltype(&Storage::GetCommandName), void (Storage::*)(Text, std::uint64_t, std::string&) const>);
static_assert(std::is_same_v<decltype(&Storage::GetReference),
                             void (Storage::*)(Text, Text, Text, std::uint64_t, std::string&) const>);
static_assert(std::is_same_v<decltype(&Storage::GetEnumValue), Reader<int>>);
static_assert(std::is_same_v<decltype(&Storage::DeleteValues), void (Storage::*)(Text, Text, Text)>);
static_assert(std::is_same_v<decltype(&Storage::AddCommand), void (Storage::*)(Text, Text) const>);
static_assert(std::is_same_v<decltype(&Storage::AddReference), void (Storage::*)(Text, Text, Text, Text, Text) const>);

TEST(VtmType, HasFixedNumbers)
{
  EXPECT_EQ(vtmInteger, 0);
  EXPECT_EQ(vtmDouble, 1);
  EXPECT_EQ(vtmEnum, 2);
  EXPECT_EQ(vtmString, 3);
  EXPECT_EQ(vtmIdName, 4);
  EXPECT_EQ(vtmReference, 5);
  EXPECT_EQ(vtmIntegerList, 6);
  EXPECT_EQ(vtmDoubleList, 7);
  EXPECT_EQ(vtmSelect, 8);
  EXPECT_EQ(vtmComplexType, 9);
  EXPECT_EQ(vtmModelId, 10);
  EXPECT_EQ(vtmUnknown, 11);
}

TEST(VtmType, IsAnIntegerWhenItIsZeroed)
{
  EXPECT_EQ(VtmType{}, vtmInteger);
}

TEST(OrvelParfileStorage, KeepsTheOrderOfItsVirtualOperations)
{
  if (!kVirtualSlotsAreReadable)
  {
    GTEST_SKIP() << "no known layout of virtual tables";
  }
  EXPECT_EQ(PlaceAfterDestructor(&Storage::HasCommand), 1U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::GetNumCommand), 2U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::GetNumElements), 3U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::HasElement), 4U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::GetCommandName), 5U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::GetReference), 6U);
  EXPECT_EQ(PlaceOfReader<std::vector<double>>(), 7U);
  EXPECT_EQ(PlaceOfReader<std::vector<int>>(), 8U);
  EXPECT_EQ(PlaceOfReader<std::string>(), 9U);
  EXPECT_EQ(PlaceOfReader<double>(), 10U);
  EXPECT_EQ(PlaceOfReader<int>(), 11U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::GetEnumValue), 12U);
  EXPECT_EQ(PlaceOfSetter<std::vector<double>>(), 13U);
  EXPECT_EQ(PlaceOfSetter<std::vector<int>>(), 14U);
  EXPECT_EQ(PlaceOfSetter<char>(), 15U);
  EXPECT_EQ(PlaceOfSetter<std::string>(), 16U);
  EXPECT_EQ(PlaceOfSetter<double>(), 17U);
  EXPECT_EQ(PlaceOfSetter<int>(), 18U);
  EXPECT_EQ(PlaceOfAdder<std::vector<double>>(), 19U);
  EXPECT_EQ(PlaceOfAdder<std::vector<int>>(), 20U);
  EXPECT_EQ(PlaceOfAdder<char>(), 21U);
  EXPECT_EQ(PlaceOfAdder<std::string>(), 22U);
  EXPECT_EQ(PlaceOfAdder<double>(), 23U);
  EXPECT_EQ(PlaceOfAdder<int>(), 24U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::DeleteValues), 25U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::AddCommand), 26U);
  EXPECT_EQ(PlaceAfterDestructor(&Storage::AddReference), 27U);
}

TEST(OrvelParfileStorage, IsCopiedAndAssignedThroughAClassOfItsOwn)
{
  RecordingStorage storage;
  storage.Command("DV_", "porosity");
  const RecordingStorage copy = storage;
  EXPECT_TRUE(copy.HasCommand("DV_", "porosity"));
  RecordingStorage other;
  Storage& base = other;
  EXPECT_EQ(&(base = copy), &other);
  EXPECT_FALSE(other.HasCommand("DV_", "porosity")) << "the interface itself has nothing to assign";
}
