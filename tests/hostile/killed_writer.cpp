// Measures what is left of a parameter file whose writer is killed at a random moment.
//
//   killed_writer <number of kills>
#include "hostile/Numbers.h"
#include "hostile/Supervised.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <map>

namespace
{

constexpr int kSoundCommands = 5;
constexpr int kNewCommands = 3000;
constexpr unsigned kLongestWait = 900000;  // microseconds

// What the processes tell each other.
struct Shared
{
  std::atomic<int> written;
  int found;
};

std::string IdOf(int number)
{
  return "command_" + std::to_string(number);
}

void AddWhole(const ParfileHdf5Storage& storage, int number)
{
  storage.AddCommand("DV_", IdOf(number));
  storage.AddValue("DV_", IdOf(number), "INITIAL_", vtmDouble, 0.5);
  storage.AddValue("DV_", IdOf(number), "FILE_", vtmString, IdOf(number));
  storage.AddReference("DV_", IdOf(number), "DV_", "DV_", IdOf(0));
}

bool IsWhole(const ParfileHdf5Storage& storage, int number)
{
  try
  {
    double initial = 0;
    std::string text;
    std::string target;
    storage.GetValue("DV_", IdOf(number), "INITIAL_", 1, vtmDouble, initial);
    storage.GetValue("DV_", IdOf(number), "FILE_", 1, vtmString, text);
    storage.GetReference("DV_", IdOf(number), "DV_", 1, target);
    return initial == 0.5 && text == IdOf(number) && target == IdOf(0);
  }
  catch (const KLV_Failure&)
  {
    return false;
  }
}

void MakeSoundFile()
{
  plain_hdf5::MakeEmptyFile();
  const ParfileHdf5Storage storage(true);
  for (int number = 0; number < kSoundCommands; ++number)
  {
    AddWhole(storage, number);
  }
}

void WriteUntilKilled(Shared& shared)
{
  const ParfileHdf5Storage storage;
  for (int number = kSoundCommands; number < kSoundCommands + kNewCommands; ++number)
  {
    AddWhole(storage, number);
    ++shared.written;
  }
  while (true)
  {
    pause();
  }
}

void KillAWriter(Shared& shared, Numbers& numbers)
{
  const pid_t writer = fork();
  if (writer == 0)
  {
    WriteUntilKilled(shared);
  }
  while (shared.written == 0)
  {
    usleep(100);
  }
  usleep(static_cast<useconds_t>(numbers.Below(kLongestWait)));
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
}

std::string WhatIsLeft(Shared& shared)
{
  shared.found = -1;
  const auto look = [&] {
    try
    {
      const ParfileHdf5Storage storage(false, true);
      int found = 0;
      for (int number = 0; number < kSoundCommands + kNewCommands; ++number)
      {
        found += IsWhole(storage, number) ? 1 : 0;
      }
      shared.found = found;
    }
    catch (const KLV_Failure&)
    {
    }
  };
  const Outcome outcome = RunSupervised(look, Limit::Full);
  if (outcome.end != End::Well)
  {
    return NameOf(outcome.end);
  }
  if (shared.found < 0)
  {
    return "cannot be opened";
  }
  if (shared.found == 0)
  {
    return "opened, no command whole";
  }
  return shared.found < kSoundCommands ? "opened, fewer commands than before"
                                       : "opened, at least the commands of before";
}

}  // namespace

int main(int argc, char** argv)
{
  const int kills = argc > 1 ? std::atoi(argv[1]) : 100;
  H5::Exception::dontPrint();
  const TemporaryFolder folder;
  auto* shared =
    static_cast<Shared*>(mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  Numbers numbers(0);
  std::map<std::string, int> ends;
  long written = 0;
  for (int i = 0; i < kills; ++i)
  {
    shared->written = 0;
    RunSupervised(MakeSoundFile, Limit::Full);
    KillAWriter(*shared, numbers);
    written += shared->written;
    ++ends[WhatIsLeft(*shared)];
  }
  std::cout << kills << " writers killed, each after " << written / std::max(kills, 1) << " new commands on average\n";
  for (const auto& [end, count] : ends)
  {
    std::cout << "  " << end << ": " << count << "\n";
  }
}
