#include "hostile/Supervised.h"

#include <gtest/gtest.h>

#include <csignal>
#include <exception>
#include <new>
#include <stdexcept>

namespace
{

End EndOf(const std::function<void()>& action, Limit limit = Limit::Full)
{
  return RunSupervised(action, limit).end;
}

}  // namespace

TEST(Supervised, TellsHowAnActionEnds)
{
  EXPECT_EQ(EndOf([] {}), End::Well);
  EXPECT_EQ(EndOf([] { std::raise(SIGBUS); }), End::Crash);
  EXPECT_EQ(EndOf([] { std::raise(SIGKILL); }), End::Stopped);
  EXPECT_EQ(EndOf([] { std::terminate(); }), End::Refused);
  EXPECT_EQ(EndOf([] { std::raise(SIGALRM); }), End::Hang);
  EXPECT_EQ(EndOf([] { throw std::bad_alloc(); }), End::Memory);
  EXPECT_EQ(EndOf([] { throw std::runtime_error("no"); }), End::Refused);
  EXPECT_EQ(EndOf([] { throw 1; }), End::Refused);
}

TEST(Supervised, StopsAnActionThatWorksWithoutEnd)
{
  EXPECT_EQ(EndOf(
              [] {
                for (volatile bool forever = true; forever;)
                {
                }
              },
              Limit::Quick),
            End::Hang);
}

TEST(Supervised, TellsWhatWasThrown)
{
  EXPECT_EQ(RunSupervised([] { throw std::runtime_error("a reason"); }, Limit::Full).detail, "a reason");
}

TEST(Supervised, TellsHowAProgramEnds)
{
  EXPECT_EQ(RunProgram("/bin/true", {}, 0, Limit::Full).end, End::Well);
  EXPECT_EQ(RunProgram("/bin/false", {}, 1, Limit::Full).end, End::Well);
  EXPECT_EQ(RunProgram("/bin/false", {}, 0, Limit::Full).end, End::Refused);
  EXPECT_EQ(RunProgram("/bin/sh", {"-c", "exit 99"}, 2, Limit::Full).end, End::Crash);
  EXPECT_EQ(RunProgram("/bin/sh", {"-c", "kill -SEGV $$"}, 0, Limit::Full).end, End::Crash);
  EXPECT_EQ(RunProgram("/bin/sh", {"-c", "kill -TERM $$"}, 0, Limit::Full).end, End::Stopped);
}
