#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "support/HeapWatch.h"
#include "support/parsed_commands.h"

#include <gtest/gtest.h>

#include <new>

using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

// A container with one filter; in one of two the wanted filter is the second.
void AddFilters(OrvelCmdContainer& container, bool with_another, double radius)
{
  if (with_another)
  {
    AddParsed(container, Defs::FILTER, "another").AddDoubleItem(Items::VALUE, -1);
  }
  AddParsed(container, Defs::FILTER, "fine").AddDoubleItem(Items::VALUE, radius);
}

double RadiusOfFine(const OrvelParfileStorage& storage)
{
  double radius = 0;
  storage.GetValue("FILTER_", "fine", "RADIUS_", 1, vtmDouble, radius);
  return radius;
}

// Whether an assignment succeeds of which the allocation of this number fails, as it does when it makes fewer.
bool IsAssignedWithout(OrvelParfileStorageCmdContainer& target, const OrvelParfileStorageCmdContainer& source,
                       std::size_t number)
{
  HeapWatch watch;
  watch.FailAllocation(number);
  try
  {
    target = source;
  }
  catch (const std::bad_alloc&)
  {
  }
  const bool has_failed = watch.HasFailed();
  watch.FailAllocation(0);
  return !has_failed;
}

}  // namespace

TEST(OrvelParfileStorageCmdContainerWithoutMemory, StaysAsItWasWhicheverAllocationOfAnAssignmentFails)
{
  OrvelCmdContainer one;
  AddFilters(one, false, 0.25);
  OrvelCmdContainer another;
  AddFilters(another, true, 0.5);
  const OrvelParfileStorageCmdContainer source(another);
  OrvelParfileStorageCmdContainer target(one);
  std::size_t failures = 0;
  while (!IsAssignedWithout(target, source, failures + 1))
  {
    ++failures;
    ASSERT_EQ(RadiusOfFine(target), 0.25) << failures;
    ASSERT_EQ(target.GetNumCommand("FILTER_"), 1U) << failures;
  }
  EXPECT_GT(failures, 10U);
  EXPECT_EQ(RadiusOfFine(target), 0.5);
}
