#include "OrvelUtilities/KLV_LogMacros.h"

#include <atomic>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

class KLV_LogMacrosTest : public testing::Test
{
protected:
  ~KLV_LogMacrosTest() override { KLV_LogMacros::SetSink(nullptr); }

  void CollectInto(std::vector<KLV_LogRecord>& records)
  {
    KLV_LogMacros::SetSink([&records](const KLV_LogRecord& record) { records.push_back(record); });
  }
};

auto TextIs(const char* text)
{
  return Field("text", &KLV_LogRecord::text, text);
}

std::string CaptureDebug(const char* source, int line, const char* prefix, const std::string& text)
{
  testing::internal::CaptureStderr();
  KLV_LogMacros::debug(source, line, prefix, text);
  return testing::internal::GetCapturedStderr();
}

}  // namespace

TEST_F(KLV_LogMacrosTest, HandsTheSinkWhatTheCallerGave)
{
  std::vector<KLV_LogRecord> records;
  CollectInto(records);

  KLV_LogMacros::debug("win\\commands", 104, "[%T|%n|%P|Orvel|MODEL_] ", "first\nsecond {} %s\n");

  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].source, "win\\commands");
  EXPECT_EQ(records[0].line, 104);
  EXPECT_EQ(records[0].prefix, "[%T|%n|%P|Orvel|MODEL_] ");
  EXPECT_EQ(records[0].text, "first\nsecond {} %s\n");
}

TEST_F(KLV_LogMacrosTest, HandsOverRecordsInTheOrderOfTheCalls)
{
  std::vector<KLV_LogRecord> records;
  CollectInto(records);

  KLV_LogMacros::debug("s", 1, "p", "one");
  KLV_LogMacros::debug("s", 2, "p", "two");

  EXPECT_THAT(records, ElementsAre(TextIs("one"), TextIs("two")));
}

TEST_F(KLV_LogMacrosTest, WritesNothingToTheErrorStreamWhileASinkIsSet)
{
  std::vector<KLV_LogRecord> records;
  CollectInto(records);

  EXPECT_EQ(CaptureDebug("s", 1, "p", "text"), "");
}

TEST_F(KLV_LogMacrosTest, ReplacesOneSinkByAnother)
{
  std::vector<KLV_LogRecord> former;
  std::vector<KLV_LogRecord> current;
  CollectInto(former);
  CollectInto(current);

  KLV_LogMacros::debug("s", 1, "p", "text");

  EXPECT_THAT(former, IsEmpty());
  EXPECT_THAT(current, ElementsAre(TextIs("text")));
}

TEST_F(KLV_LogMacrosTest, ReleasesASinkThatIsReplaced)
{
  auto held = std::make_shared<int>(0);
  const std::weak_ptr<int> watch = held;
  KLV_LogMacros::SetSink([held](const KLV_LogRecord&) {});
  held.reset();
  ASSERT_FALSE(watch.expired());

  KLV_LogMacros::SetSink(nullptr);

  EXPECT_TRUE(watch.expired());
}

TEST_F(KLV_LogMacrosTest, WritesSourceLinePrefixAndTextToTheErrorStreamByDefault)
{
  const std::string line = CaptureDebug("win\\commands", 104, "[%T|%n|%P|Orvel|MODEL_] ", "hello");

  EXPECT_THAT(line, AllOf(HasSubstr("[debug]"), EndsWith("win\\commands:104: [%T|%n|%P|Orvel|MODEL_] hello\n")));
}

TEST_F(KLV_LogMacrosTest, WritesToTheErrorStreamAgainAfterASinkIsTakenOff)
{
  std::vector<KLV_LogRecord> records;
  CollectInto(records);
  KLV_LogMacros::SetSink(nullptr);

  EXPECT_THAT(CaptureDebug("s", 1, "p ", "text"), EndsWith("s:1: p text\n"));
  EXPECT_THAT(records, IsEmpty());
}

TEST_F(KLV_LogMacrosTest, WritesTheLineFeedAtTheEndOfATextOnce)
{
  const std::string lines = CaptureDebug("s", 1, "p ", "a\nb\n");

  EXPECT_THAT(lines, EndsWith("s:1: p a\nb\n"));
  EXPECT_THAT(lines, Not(EndsWith("\n\n")));
}

TEST_F(KLV_LogMacrosTest, DoesNotTakeATextAsAFormat)
{
  EXPECT_THAT(CaptureDebug("s", 1, "{} ", "{0} %s {"), EndsWith("s:1: {} {0} %s {\n"));
}

TEST_F(KLV_LogMacrosTest, StaysUsableWhenASinkThrows)
{
  KLV_LogMacros::SetSink([](const KLV_LogRecord&) { throw std::runtime_error("full"); });
  EXPECT_THROW(KLV_LogMacros::debug("s", 1, "p", "text"), std::runtime_error);

  std::vector<KLV_LogRecord> records;
  CollectInto(records);
  KLV_LogMacros::debug("s", 2, "p", "next");

  EXPECT_THAT(records, ElementsAre(TextIs("next")));
}

TEST_F(KLV_LogMacrosTest, HandsOverTheRecordsOfSeveralThreadsOneByOne)
{
  constexpr int threads = 4;
  constexpr int calls = 500;
  std::vector<KLV_LogRecord> records;
  CollectInto(records);

  std::vector<std::thread> workers;
  for (int i = 0; i < threads; ++i)
  {
    workers.emplace_back([] {
      for (int call = 0; call < calls; ++call)
      {
        KLV_LogMacros::debug("s", call, "p", "text");
      }
    });
  }
  for (std::thread& worker : workers)
  {
    worker.join();
  }

  EXPECT_EQ(records.size(), 2000u);
}

TEST_F(KLV_LogMacrosTest, LosesNoRecordWhileAnotherThreadChangesTheSink)
{
  int of_one = 0;
  int of_another = 0;
  KLV_LogMacros::SetSink([&](const KLV_LogRecord&) { ++of_one; });
  std::atomic<bool> at_work{true};
  std::atomic<int> rounds{0};
  std::thread changer([&] {
    while (at_work)
    {
      KLV_LogMacros::SetSink([&](const KLV_LogRecord&) { ++of_another; });
      KLV_LogMacros::SetSink([&](const KLV_LogRecord&) { ++of_one; });
      ++rounds;
    }
  });
  int calls = 0;
  while (calls < 2000 || rounds < 100)
  {
    KLV_LogMacros::debug("s", ++calls, "p", "text");
  }
  at_work = false;
  changer.join();
  EXPECT_EQ(of_one + of_another, calls);
}

TEST_F(KLV_LogMacrosTest, LetsASinkThatIsReplacedLogItsEnd)
{
  struct LogsItsEnd
  {
    ~LogsItsEnd() { KLV_LogMacros::debug("s", 1, "p", "the end"); }
  };
  auto held = std::make_shared<LogsItsEnd>();
  KLV_LogMacros::SetSink([held](const KLV_LogRecord&) {});
  held.reset();

  std::vector<KLV_LogRecord> records;
  CollectInto(records);

  EXPECT_THAT(records, ElementsAre(TextIs("the end")));
}
