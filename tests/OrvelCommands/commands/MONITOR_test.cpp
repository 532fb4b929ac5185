#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(kReturn<MONITOR_, const std::string&, &MONITOR_::GetType, &MONITOR_::GetID_NAME_>);
static_assert(kReturn<MONITOR_, const DRESP_&, &MONITOR_::GetDRESP_>);

namespace
{

/// The monitor "watch" and what it refers to, behind another command of the same kind.
RecordingStorage StorageWithMonitor()
{
  RecordingStorage storage;
  storage.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"drag"}};
  storage.Command("DRESP_", "lift");
  storage.Command("DRESP_", "drag");
  return storage;
}

}  // namespace

TEST(Monitor, TellsItsNames)
{
  EXPECT_STREQ(MONITOR_::COMMAND_NAME, "MONITOR");
  EXPECT_EQ(MONITOR_::s_type, "MONITOR_");
  EXPECT_EQ(MONITOR_().GetType(), "MONITOR_");
  EXPECT_EQ(&MONITOR_().GetType(), &MONITOR_::s_type);
}

TEST(Monitor, IsEmptyBeforeItIsLoaded)
{
  EXPECT_EQ(MONITOR_().GetID_NAME_(), "");
}

TEST(Monitor, LoadsItsIdAloneAndLeavesItsReferenceAlone)
{
  const RecordingStorage storage = StorageWithMonitor();
  EXPECT_EQ(LoadedAlone<MONITOR_>(storage, "watch").GetID_NAME_(), "watch");
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Monitor, LoadsFromAStorageThatHasNoSuchCommandBecauseItNeverAsks)
{
  const RecordingStorage storage;
  EXPECT_EQ(LoadedAlone<MONITOR_>(storage, "nowhere").GetID_NAME_(), "nowhere");
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Monitor, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(MONITOR_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3323);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|MONITOR_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \nm_DRESP_: \n");
}

TEST(Monitor, PrintsAnEmptyIdForItsResponseBeforeItIsResolved)
{
  EXPECT_EQ(LogRecordOf(LoadedAlone<MONITOR_>(StorageWithMonitor(), "watch")).text, "m_ID_NAME_: watch\nm_DRESP_: \n");
}

TEST(Monitor, PrintsTheIdOfItsResponseOnceItIsResolved)
{
  LinkedJob job(StorageWithMonitor());
  const KLV_LogRecord record = LogRecordOf(job->GetMONITOR_("watch"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3323 [%T|%n|%P|OrvelCommands|MONITOR_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: watch\nm_DRESP_: drag\n");
}

TEST(Monitor, PrintsAPercentSignInItsIdAsAConversion)
{
  const RecordingStorage storage;
  EXPECT_EQ(LogRecordOf(LoadedAlone<MONITOR_>(storage, "%3d of 100%%")).text, "m_ID_NAME_:   0 of 100%\nm_DRESP_: \n");
}

TEST(Monitor, IsLinkedByTheNameInItsReferenceKey)
{
  LinkedJob job(StorageWithMonitor());
  EXPECT_EQ(&job->GetMONITOR_("watch").GetDRESP_(), &job->GetDRESP_("drag"));
  EXPECT_EQ(job->GetMONITOR_("watch").GetDRESP_().GetID_NAME_(), "drag");
}

TEST(Monitor, ReadsItsReferenceWithoutAskingWhetherItIsPresent)
{
  const LinkedJob job(StorageWithMonitor());
  EXPECT_THAT(job.CallsAbout("MONITOR_", "watch"), ElementsAre("GetReference(MONITOR_, watch, DRESP_, 1)"));
}

TEST(Monitor, IsLinkedToTheEarlierOfTwoResponsesOfOneName)
{
  RecordingStorage storage = StorageWithMonitor();
  storage.AddSecondCommand("DRESP_", "drag");
  LinkedJob job(storage);
  ASSERT_EQ(job->NumDRESP_(), 3U);
  EXPECT_EQ(&job->GetMONITOR_("watch").GetDRESP_(), &job->GetDRESP_(2));
}

TEST(Monitor, EndsTheLoadOfAJobWhenItsResponseIsUnknown)
{
  RecordingStorage storage = StorageWithMonitor();
  storage.Command("MONITOR_", "watch")["DRESP_"] = {Ref{"missing"}};
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID missing of the parameter file command DRESP_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(Monitor, EndsTheLoadOfAJobWhenItHasNoResponse)
{
  RecordingStorage storage = StorageWithMonitor();
  storage.Command("MONITOR_", "watch").erase("DRESP_");
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID  of the parameter file command DRESP_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(Monitor, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithMonitor();
  MONITOR_ command = LoadedAlone<MONITOR_>(storage, "watch");
  EXPECT_THAT(ProblemsIn(command, storage, "watch"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Monitor, RefersToTheSameResponseInACopy)
{
  LinkedJob job(StorageWithMonitor());
  MONITOR_& original = job->GetMONITOR_("watch");
  const MONITOR_ copy(original);
  original = MONITOR_();
  EXPECT_EQ(copy.GetID_NAME_(), "watch");
  EXPECT_EQ(&copy.GetDRESP_(), &job->GetDRESP_("drag"));
}

TEST(Monitor, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithMonitor());
  const MONITOR_& full = job->GetMONITOR_("watch");
  MONITOR_ command;
  static_assert(std::is_same_v<MONITOR_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  EXPECT_EQ(command.GetID_NAME_(), "watch");
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("drag"));
  command = MONITOR_();
  EXPECT_EQ(LogRecordOf(command).text, "m_ID_NAME_: \nm_DRESP_: \n");
}

TEST(Monitor, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithMonitor());
  MONITOR_& command = job->GetMONITOR_("watch");
  const MONITOR_& same = command;
  command = same;
  EXPECT_EQ(command.GetID_NAME_(), "watch");
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("drag"));
}
