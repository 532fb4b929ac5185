#include "OrvelCommands/foundation/ParfileReferenceError.h"

#include <gtest/gtest.h>

#include <exception>
#include <type_traits>

static_assert(!std::is_base_of_v<std::exception, ParfileReferenceError>, "it stands beside the failures");
static_assert(std::has_virtual_destructor_v<ParfileReferenceError>);
static_assert(
  std::is_same_v<decltype(&ParfileReferenceError::GetDescription), std::string (ParfileReferenceError::*)() const>);

TEST(ParfileReferenceError, DescribesSourceAndTargetWithAnArrowBetween)
{
  EXPECT_EQ(ParfileReferenceError("DV_ porosity", "FILTER_ fine").GetDescription(), "DV_ porosity -> FILTER_ fine");
}

TEST(ParfileReferenceError, DescribesTwoEmptyTextsAsTheArrow)
{
  EXPECT_EQ(ParfileReferenceError("", "").GetDescription(), " -> ");
}

TEST(ParfileReferenceError, TakesAnArrowAndAPercentSignAsTheyAre)
{
  EXPECT_EQ(ParfileReferenceError("a -> b", "100%d").GetDescription(), "a -> b -> 100%d");
}

TEST(ParfileReferenceError, KeepsTextsOfItsOwn)
{
  std::string source = "from";
  std::string target = "to";
  const ParfileReferenceError error(source, target);
  source = "elsewhere";
  target = "nowhere";
  EXPECT_EQ(error.GetDescription(), "from -> to");
}

TEST(ParfileReferenceError, IsCopied)
{
  const ParfileReferenceError error("from", "to");
  const ParfileReferenceError copy(error);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.GetDescription(), "from -> to");
  EXPECT_EQ(error.GetDescription(), "from -> to");
}

TEST(ParfileReferenceError, IsAssigned)
{
  const ParfileReferenceError error("from", "to");
  ParfileReferenceError other("a", "b");
  EXPECT_EQ(&(other = error), &other);
  EXPECT_EQ(other.GetDescription(), "from -> to");
}

TEST(ParfileReferenceError, IsAssignedToItself)
{
  ParfileReferenceError error("from", "to");
  const ParfileReferenceError& same = error;
  error = same;
  EXPECT_EQ(error.GetDescription(), "from -> to");
}
