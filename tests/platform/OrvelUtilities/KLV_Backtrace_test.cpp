#include "OrvelUtilities/KLV_Backtrace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OrvelUtilities/KLV_LogMacros.h"

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace
{

// The addition behind the call keeps the compiler from replacing the frame by a jump.
std::size_t CountFramesBelow(int depth)
{
  if (depth == 0)
  {
    return KLV_Backtrace::GetBacktrace().size();
  }
  volatile std::size_t nothing = 0;
  return CountFramesBelow(depth - 1) + nothing;
}

}  // namespace

// A frame has the name of a function that the program exports.
extern "C" [[gnu::noinline, gnu::visibility("default")]] void CallForBacktrace(std::vector<std::string>& frames)
{
  frames = KLV_Backtrace::GetBacktrace();
}

TEST(KLV_BacktraceTest, GivesATextForEveryFrame)
{
  const auto frames = KLV_Backtrace::GetBacktrace();

  EXPECT_THAT(frames, Not(IsEmpty()));
  EXPECT_THAT(frames, Each(AllOf(HasSubstr("+0x"), HasSubstr(" ["), EndsWith("]"))));
}

TEST(KLV_BacktraceTest, StartsAtTheCallerAndLeavesItselfOut)
{
  std::vector<std::string> frames;
  CallForBacktrace(frames);

  ASSERT_THAT(frames, Not(IsEmpty()));
  EXPECT_THAT(frames.front(), StartsWith("CallForBacktrace+0x"));
  EXPECT_THAT(frames, Each(Not(HasSubstr("KLV_Backtrace::GetBacktrace"))));
}

TEST(KLV_BacktraceTest, DemanglesTheNamesOfExportedFunctions)
{
  std::vector<std::string> frames;
  KLV_LogMacros::SetSink([&frames](const KLV_LogRecord&) { frames = KLV_Backtrace::GetBacktrace(); });
  KLV_LogMacros::debug("source", 1, "prefix", "text");
  KLV_LogMacros::SetSink(nullptr);

  EXPECT_THAT(frames, Contains(StartsWith("KLV_LogMacros::debug(std::basic_string_view<char")));
  EXPECT_THAT(frames, Each(Not(StartsWith("_Z"))));
}

TEST(KLV_BacktraceTest, NamesTheFunctionOfTheCLibraryThatStartsTheProgram)
{
  EXPECT_THAT(KLV_Backtrace::GetBacktrace(), Contains(StartsWith("__libc_start_main")));
}

TEST(KLV_BacktraceTest, EndsAfter128Frames)
{
  EXPECT_EQ(CountFramesBelow(1000), 128u);
}
