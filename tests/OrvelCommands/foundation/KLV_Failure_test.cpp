#include "OrvelCommands/foundation/KLV_Failure.h"
#include "support/failures.h"
#include "support/VirtualSlot.h"

#include <gmock/gmock.h>

#include <memory>
#include <type_traits>

using testing::IsEmpty;
using testing::Not;

static_assert(std::is_base_of_v<std::exception, KLV_Exception>);
static_assert(std::is_abstract_v<KLV_Exception>);
static_assert(std::has_virtual_destructor_v<KLV_Exception>);
static_assert(std::is_base_of_v<KLV_Exception, KLV_Failure>);
static_assert(!std::is_abstract_v<KLV_Failure>);
static_assert(std::is_copy_constructible_v<KLV_Failure>);
static_assert(!std::is_copy_assignable_v<KLV_Failure>, "two failures would own one cause");
static_assert(sizeof(KLV_Failure) == sizeof(KLV_Exception), "KLV_Failure has no fields of its own");

namespace
{

const std::string kPrefix = "[%T|%n|%P|OrvelCommands|DV_] ";

KLV_Failure FailureWithCode()
{
  return {KLV_Code("204046270608"), "it went wrong", kPrefix};
}

// A copy shares the cause with its source, so only one of them may ever be destroyed. The copies stay reachable, so
// that they are no leak.
const KLV_Failure& CopyThatIsNeverDestroyed(const KLV_Failure& source)
{
  static auto& copies = *new std::vector<const KLV_Failure*>;
  copies.push_back(new KLV_Failure(source));
  return *copies.back();
}

}  // namespace

TEST(KlvFailure, KeepsCodeMessageAndPrefix)
{
  const KLV_Failure failure(KLV_Code("204046270608"), "it went wrong", "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(failure.GetCode().GetText(), "204046270608");
  EXPECT_EQ(failure.GetMessage(), "it went wrong");
  EXPECT_EQ(failure.GetLogPrefix(), "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(failure.GetCause(), nullptr);
  EXPECT_THAT(failure.GetBacktrace(), Not(IsEmpty()));
}

TEST(KlvFailure, HasNoCodeWhenItIsBuiltFromTwoTexts)
{
  const KLV_Failure failure("it went wrong", kPrefix);
  EXPECT_FALSE(failure.GetCode().exists());
  EXPECT_EQ(failure.GetMessage(), "it went wrong");
  EXPECT_EQ(failure.GetLogPrefix(), kPrefix);
  EXPECT_EQ(failure.GetCause(), nullptr);
  EXPECT_THAT(failure.GetBacktrace(), Not(IsEmpty()));
}

TEST(KlvFailure, MayHaveAnEmptyPrefixAndAnEmptyMessage)
{
  const KLV_Failure failure("", "");
  EXPECT_STREQ(failure.what(), "");
  EXPECT_EQ(failure.GetLogPrefix(), "");
}

TEST(KlvFailure, GivesTheMessageWithoutThePrefixAsWhat)
{
  EXPECT_STREQ(FailureWithCode().what(), "it went wrong");
}

TEST(KlvFailure, DoesNotPrintItsTexts)
{
  const KLV_Failure failure("100%d and %s", "%s|");
  EXPECT_STREQ(failure.what(), "100%d and %s");
  EXPECT_EQ(failure.GetLogPrefix(), "%s|");
}

TEST(KlvFailure, HasNoLimitOnTheMessageThatItIsGiven)
{
  EXPECT_EQ(KLV_Failure(std::string(5000, 'x'), "").GetMessage(), std::string(5000, 'x'));
}

TEST(KlvFailure, TellsItsTypeName)
{
  EXPECT_EQ(FailureWithCode().GetTypeName(), "KLV_Failure");
}

TEST(KlvFailure, HasTheStatusMinusOneWithACodeAndMinusFourteenWithout)
{
  EXPECT_EQ(FailureWithCode().GetStatus(), -1);
  EXPECT_EQ(KLV_Failure("it went wrong", kPrefix).GetStatus(), -14);
  EXPECT_EQ(KLV_Failure(KLV_Code(), "it went wrong", kPrefix).GetStatus(), -14);
}

TEST(KlvFailure, KeepsACloneOfItsCauseThatOutlivesTheCause)
{
  auto cause = std::make_unique<KLV_Failure>(KLV_Code("161700240908"), "the file is not there", "[files] ");
  const KLV_Exception* const address = cause.get();
  const KLV_Failure failure(*cause, KLV_Code("204046270608"), "it went wrong", kPrefix);
  cause.reset();
  ASSERT_NE(failure.GetCause(), nullptr);
  EXPECT_NE(failure.GetCause(), address);
  EXPECT_EQ(failure.GetCause()->GetTypeName(), "KLV_Failure");
  EXPECT_EQ(failure.GetCause()->GetMessage(), "the file is not there");
  EXPECT_EQ(failure.GetCause()->GetLogPrefix(), "[files] ");
  EXPECT_EQ(failure.GetCause()->GetCode().GetText(), "161700240908");
  EXPECT_EQ(failure.GetMessage(), "it went wrong");
  EXPECT_EQ(failure.GetLogPrefix(), kPrefix);
  EXPECT_EQ(failure.GetCode().GetText(), "204046270608");
  EXPECT_THAT(failure.GetBacktrace(), Not(IsEmpty()));
}

TEST(KlvFailure, TakesAProblemOfAParameterFileAsItsCause)
{
  const KLV_ParfileException cause("Referenced ID is not found", "wall", "NODE_GROUP", "porosity", "DV");
  const KLV_Failure failure(cause, KLV_Code(), "it went wrong", kPrefix);
  ASSERT_NE(failure.GetCause(), nullptr);
  EXPECT_EQ(failure.GetCause()->GetTypeName(), "KLV_ParfileException");
}

TEST(KlvFailure, IsClonedWithTheSameCodeMessageAndPrefix)
{
  const KLV_Failure failure = FailureWithCode();
  const std::unique_ptr<KLV_Failure> clone(failure.Clone());
  EXPECT_NE(clone.get(), &failure);
  EXPECT_EQ(clone->GetCode().GetText(), "204046270608");
  EXPECT_EQ(clone->GetMessage(), "it went wrong");
  EXPECT_EQ(clone->GetLogPrefix(), "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(clone->GetCause(), nullptr);
}

TEST(KlvFailure, IsClonedThroughItsBaseAsItsOwnClass)
{
  const KLV_Failure failure = FailureWithCode();
  const KLV_Exception& base = failure;
  const std::unique_ptr<KLV_Exception> clone(base.Clone());
  EXPECT_NE(dynamic_cast<const KLV_Failure*>(clone.get()), nullptr);
  EXPECT_EQ(clone->GetTypeName(), "KLV_Failure");
  EXPECT_EQ(clone->GetStatus(), -1);
}

TEST(KlvFailure, IsClonedWithACloneOfItsCause)
{
  const KLV_Failure cause("the file is not there", "");
  auto failure = std::make_unique<KLV_Failure>(cause, KLV_Code(), "it went wrong", kPrefix);
  const std::unique_ptr<KLV_Failure> clone(failure->Clone());
  ASSERT_NE(clone->GetCause(), nullptr);
  EXPECT_NE(clone->GetCause(), failure->GetCause());
  failure.reset();
  EXPECT_EQ(clone->GetCause()->GetMessage(), "the file is not there");
}

TEST(KlvFailure, IsClonedWithItsWholeChainOfCauses)
{
  const KLV_Failure first("the disk is full", "");
  const KLV_Failure second(first, KLV_Code(), "the file is not written", "");
  const KLV_Failure third(second, KLV_Code(), "it went wrong", "");
  const std::unique_ptr<KLV_Failure> clone(third.Clone());
  ASSERT_NE(clone->GetCause(), nullptr);
  ASSERT_NE(clone->GetCause()->GetCause(), nullptr);
  EXPECT_EQ(clone->GetCause()->GetCause()->GetMessage(), "the disk is full");
  EXPECT_EQ(clone->GetCause()->GetCause()->GetCause(), nullptr);
}

TEST(KlvFailure, IsClonedWithTheCallStackOfTheCloning)
{
  const KLV_Failure failure = FailureWithCode();
  const std::unique_ptr<KLV_Failure> clone(failure.Clone());
  EXPECT_THAT(clone->GetBacktrace(), Not(IsEmpty()));
  EXPECT_NE(clone->GetBacktrace(), failure.GetBacktrace());
}

TEST(KlvFailure, IsCopiedWithItsCallStack)
{
  const KLV_Failure failure = FailureWithCode();
  const KLV_Failure copy(failure);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.GetCode().GetText(), "204046270608");
  EXPECT_EQ(copy.GetMessage(), "it went wrong");
  EXPECT_EQ(copy.GetLogPrefix(), "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(copy.GetCause(), nullptr);
  EXPECT_EQ(copy.GetBacktrace(), failure.GetBacktrace());
}

TEST(KlvFailure, SharesItsCauseWithACopy)
{
  const KLV_Failure cause("the file is not there", "");
  const KLV_Failure failure(cause, KLV_Code("204046270608"), "it went wrong", kPrefix);
  const KLV_Failure& copy = CopyThatIsNeverDestroyed(failure);
  ASSERT_NE(copy.GetCause(), nullptr);
  EXPECT_EQ(copy.GetCause(), failure.GetCause());
  EXPECT_EQ(copy.GetMessage(), "it went wrong");
}

TEST(KlvFailure, IsCaughtAsItself)
{
  try
  {
    throw FailureWithCode();
  }
  catch (const KLV_Failure& failure)
  {
    EXPECT_EQ(failure.GetMessage(), "it went wrong");
    EXPECT_EQ(failure.GetCode().GetText(), "204046270608");
  }
}

TEST(KlvFailure, IsCaughtAsKlvException)
{
  try
  {
    throw FailureWithCode();
  }
  catch (const KLV_Exception& failure)
  {
    EXPECT_EQ(failure.GetTypeName(), "KLV_Failure");
    EXPECT_EQ(failure.GetStatus(), -1);
  }
}

TEST(KlvFailure, IsCaughtAsStdException)
{
  try
  {
    throw FailureWithCode();
  }
  catch (const std::exception& failure)
  {
    EXPECT_STREQ(failure.what(), "it went wrong");
  }
}

TEST(KlvException, KeepsTheOrderOfItsVirtualOperations)
{
  if (!kVirtualSlotsAreReadable)
  {
    GTEST_SKIP() << "no known layout of virtual tables";
  }
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::what), 1U);
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::Clone), 2U);
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::GetMessage), 3U);
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::GetLogPrefix), 4U);
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::GetTypeName), 5U);
  EXPECT_EQ(PlaceAfterDestructor(&KLV_Exception::GetStatus), 6U);
}
