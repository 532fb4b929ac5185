#include "ParfileHdf5StorageTest.h"
#include "support/storage_failures.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <memory>

namespace
{

// Another process, from which the tests of this file are told when an action is done. It is killed at the end of the
// object.
class OtherProcess
{
public:
  // Runs \p action and waits until it is done. What it keeps alive stays so.
  explicit OtherProcess(const std::function<void()>& action)
  {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    m_process = fork();
    if (m_process == 0)
    {
      action();
      const char done = 'x';
      while (write(ends[1], &done, 1) != 1)
      {
      }
      while (true)
      {
        pause();
      }
    }
    char done = 0;
    EXPECT_EQ(read(ends[0], &done, 1), 1);
    close(ends[0]);
    close(ends[1]);
  }
  ~OtherProcess()
  {
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
  }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

private:
  pid_t m_process;
};

class ParfileHdf5StorageProcesses : public ParfileHdf5StorageTest
{
protected:
  static void HoldForReading() { new ParfileHdf5Storage(false, true); }
  static void HoldForWriting() { new ParfileHdf5Storage(); }
};

}  // namespace

TEST_F(ParfileHdf5StorageProcesses, MayReadAtOnce)
{
  StorageWithCommand();
  const OtherProcess reader(HoldForReading);
  EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "porosity"));
}

TEST_F(ParfileHdf5StorageProcesses, CannotReadWhatAnotherWrites)
{
  StorageWithCommand();
  const OtherProcess writer(HoldForWriting);
  EXPECT_THAT(FailureOf([] { ReadOnlyStorage(); }), IsFileFailure());
}

TEST_F(ParfileHdf5StorageProcesses, CannotWriteWhatAnotherReads)
{
  StorageWithCommand();
  const OtherProcess reader(HoldForReading);
  EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(); }), IsFileFailure());
}

TEST_F(ParfileHdf5StorageProcesses, CannotWriteWhatAnotherWrites)
{
  StorageWithCommand();
  const OtherProcess writer(HoldForWriting);
  EXPECT_THAT(FailureOf([] { ParfileHdf5Storage(); }), IsFileFailure());
}

TEST_F(ParfileHdf5StorageProcesses, FreeTheFileWhenTheyDie)
{
  StorageWithCommand();
  {
    const OtherProcess writer(HoldForWriting);
  }
  ParfileHdf5Storage().AddCommand("DV_", "level");
  EXPECT_TRUE(ReadOnlyStorage().HasCommand("DV_", "level"));
}

// Nothing is promised of what a killed writer leaves. It is opened, or its opening or reading fails as it may.
TEST_F(ParfileHdf5StorageProcesses, LeaveAFileThatCanBeTriedWhenTheyAreKilledInWriting)
{
  StorageWithCommand();
  {
    const OtherProcess writer([] {
      auto* storage = new ParfileHdf5Storage();
      storage->AddCommand("DV_", "level");
      storage->AddValue("DV_", "level", "A_", vtmString, std::string("text"));
      storage->AddReference("DV_", "level", "DV_", "DV_", "porosity");
    });
  }
  const Failure failure = FailureOf([] { ReadOnlyStorage().GetNumCommand("DV_"); });
  EXPECT_THAT(
    failure,
    testing::AnyOf(testing::Eq(kNoFailure), IsFileFailure(),
                   IsDatabaseFailure("Failed to retrieve the parfile from the optimization database.", "192435310512"),
                   IsDatabaseFailure("Failed to retrieve command size info from the optimization "
                                     "database.",
                                     "185548010612")));
}
