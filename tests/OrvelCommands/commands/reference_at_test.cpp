#include "OrvelCommands/commands/reference_at.h"

#include "support/failures.h"

#include <gtest/gtest.h>

using orvel::detail::RequireReferenceIndex;

TEST(ReferenceAt, TakesThePlacesFromOneToTheCount)
{
  RequireReferenceIndex(1, 2, "FILTER_", "DV_");
  RequireReferenceIndex(2, 2, "FILTER_", "DV_");
  RequireReferenceIndex(4294967299U, 4294967299U, "FILTER_", "DV_");
}

TEST(ReferenceAt, TellsThePlaceInFullAndTheCountIn32Bits)
{
  EXPECT_EQ(FailureOf([] { RequireReferenceIndex(4294967300U, 4294967299U, "FILTER_", "DV_"); }),
            (Failure{"Invalid index 4294967300 of the parameterfile value FILTER_ to retrieve from DV_. "
                     "Number of available values is 3.",
                     "220653270608", "[%T|%n|%P|libxml2vtm|DV_] "}));
  EXPECT_EQ(FailureOf([] { RequireReferenceIndex(0, 2147483648U, "FILTER_", "DV_"); }).message,
            "Invalid index 0 of the parameterfile value FILTER_ to retrieve from DV_. "
            "Number of available values is -2147483648.");
}
