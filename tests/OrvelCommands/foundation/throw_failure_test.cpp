#include "OrvelCommands/foundation/throw_failure.h"
#include "support/failures.h"

#include <gmock/gmock.h>

#include <limits>

using orvel::detail::FailureText;
using orvel::detail::LogPrefix;
using orvel::detail::ThrowFailure;
using testing::IsEmpty;
using testing::Not;

TEST(ThrowFailure, ThrowsAFailureWithTextCodeAndPrefix)
{
  EXPECT_EQ(FailureOf([] {
              ThrowFailure("[prefix] ", {"it went wrong", "204046270608"});
            }),
            (Failure{"it went wrong", "204046270608", "[prefix] "}));
}

TEST(ThrowFailure, ThrowsAFailureWithoutACodeWhereTheSiteHasNone)
{
  try
  {
    ThrowFailure("[prefix] ", {"it went wrong"});
    FAIL() << "nothing was thrown";
  }
  catch (const KLV_Failure& failure)
  {
    EXPECT_FALSE(failure.GetCode().exists());
    EXPECT_EQ(failure.GetStatus(), -14);
  }
}

TEST(ThrowFailure, PrintsTheArgumentsIntoTheText)
{
  const FailureText text{"Invalid index %Iu of %s. Number is %d.", "220653270608"};
  EXPECT_EQ(FailureOf([&] {
              ThrowFailure("", text, {std::numeric_limits<std::uint64_t>::max(), "DV_", -3});
            }).message,
            "Invalid index 18446744073709551615 of DV_. Number is -3.");
}

TEST(ThrowFailure, CutsALongTextAt1023CharactersWithoutAMark)
{
  const std::string id(2000, 'x');
  const Failure failure = FailureOf([&] { ThrowFailure("", {"ID %s is wrong"}, {id}); });
  EXPECT_EQ(failure.message.size(), 1023U);
  EXPECT_EQ(failure.message, "ID " + std::string(1020, 'x'));
}

TEST(ThrowFailure, KeepsATextOf1023CharactersWhole)
{
  const std::string text(1023, 'x');
  EXPECT_EQ(FailureOf([&] { ThrowFailure("", {text.c_str()}); }).message, text);
}

TEST(ThrowFailure, EndsTheTextAtTheFirstNul)
{
  EXPECT_EQ(FailureOf([] { ThrowFailure("", {"before%cafter"}); }).message, "before");
}

TEST(ThrowFailure, DoesNotPrintThePrefix)
{
  const std::string prefix = "[%T|%n|%P|" + std::string(2000, 'x') + "] ";
  EXPECT_EQ(FailureOf([&] { ThrowFailure(prefix, {"text"}); }).prefix, prefix);
}

TEST(ThrowFailure, ThrowsNoCauseAndTheCallStack)
{
  try
  {
    ThrowFailure("", {"it went wrong"});
    FAIL() << "nothing was thrown";
  }
  catch (const KLV_Exception& failure)
  {
    EXPECT_EQ(failure.GetCause(), nullptr);
    EXPECT_THAT(failure.GetBacktrace(), Not(IsEmpty()));
  }
}

TEST(LogPrefix, NamesModuleAndClassAndEndsInABlank)
{
  EXPECT_EQ(LogPrefix("OrvelCommands", "DV_"), "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(LogPrefix("libxml2vtm", "ALGO_"), "[%T|%n|%P|libxml2vtm|ALGO_] ");
  EXPECT_EQ(LogPrefix(orvel::detail::kModuleName, "Gyre_Parfile"), "[%T|%n|%P|OrvelCommands|Gyre_Parfile] ");
}
