// Measures what is left of a parameter file whose writer is killed at a random moment.
//
//   killed_writer [<number of kills> [<longest time to the kill, in milliseconds>]]
//
// Ends with 0 when no file made the reader crash, hang or end as it must not.
#include "hostile/Numbers.h"
#include "hostile/Supervised.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <map>
#include <stdexcept>

namespace
{

constexpr int kSoundCommands = 5;
constexpr int kNewCommands = 3000;
constexpr unsigned kLongestWait = 900;  // milliseconds

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

void KillAWriter(Shared& shared, useconds_t wait)
{
  const pid_t writer = fork();
  if (writer == 0)
  {
    WriteUntilKilled(shared);
  }
  while (shared.written == 0 && waitpid(writer, nullptr, WNOHANG) == 0)
  {
    usleep(100);
  }
  usleep(wait);
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
}

struct Rest
{
  std::string text;
  bool is_allowed;
};

Rest WhatIsLeft(Shared& shared)
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
    return {std::string("the reader ") + NameOf(outcome.end), false};
  }
  if (shared.found < 0)
  {
    return {"cannot be opened", true};
  }
  if (shared.found == 0)
  {
    return {"opened, no command whole", true};
  }
  return {shared.found < kSoundCommands ? "opened, fewer commands than before"
                                        : "opened, at least the commands of before",
          true};
}

// How many of the files made the reader end as it must not.
int Measure(int kills, unsigned longest_wait, Shared& shared)
{
  Numbers numbers(0);
  std::map<std::string, int> rests;
  long written = 0;
  int faults = 0;
  for (int i = 0; i < kills; ++i)
  {
    shared.written = 0;
    if (RunSupervised(MakeSoundFile, Limit::Full).end != End::Well)
    {
      throw std::runtime_error("the sound file cannot be made");
    }
    KillAWriter(shared, static_cast<useconds_t>(numbers.Below(1000ULL * longest_wait)));
    written += shared.written;
    const Rest rest = WhatIsLeft(shared);
    ++rests[rest.text];
    faults += rest.is_allowed ? 0 : 1;
  }
  std::cout << kills << " writers killed, each after " << written / std::max(kills, 1) << " new commands on average\n";
  for (const auto& [rest, count] : rests)
  {
    std::cout << "  " << rest << ": " << count << "\n";
  }
  return faults;
}

}  // namespace

int main(int argc, char** argv)
{
  const int kills = argc > 1 ? std::atoi(argv[1]) : 100;
  const unsigned longest_wait = argc > 2 ? static_cast<unsigned>(std::max(std::atoi(argv[2]), 1)) : kLongestWait;
  H5::Exception::dontPrint();
  const TemporaryFolder folder;
  auto* shared =
    static_cast<Shared*>(mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  return Measure(kills, longest_wait, *shared) == 0 ? 0 : 1;
}
