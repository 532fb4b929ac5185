// Loading a job from its parameter file and writing one, by the library and by what a user would write instead.

#include "OrvelCommands/foundation/parfile_constants.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "peers/hdf5_handle.h"
#include "peers/peers.h"
#include "support/generated_job.h"
#include "support/job_files.h"

#include <benchmark/benchmark.h>

#include <map>
#include <stdexcept>

namespace
{

using namespace benchmarks;

const std::vector<JobCommand>& JobOf(const benchmark::State& state)
{
  static std::map<std::int64_t, std::vector<JobCommand>> jobs;
  auto& job = jobs[state.range(0)];
  if (job.empty())
  {
    job = BentDuctJob(static_cast<std::size_t>(state.range(0)));
  }
  return job;
}

std::filesystem::path FolderOf(const benchmark::State& state)
{
  return JobFolder(static_cast<std::size_t>(state.range(0)));
}

void LoadWithLibrary(benchmark::State& state)
{
  const Inside inside(FolderOf(state));
  for (auto _ : state)
  {
    ParfileHdf5Storage storage(false, true);
    Gyre_Parfile parfile(storage);
    parfile.Load();
    benchmark::DoNotOptimize(parfile.NumDRESP_());
  }
}

void LoadInC(benchmark::State& state, hid_t transfer)
{
  const std::filesystem::path file = FolderOf(state) / PARFILE_STORAGE_FILE;
  for (auto _ : state)
  {
    const plain::Job job = plain::ReadWithDemandedCalls(file, transfer);
    benchmark::DoNotOptimize(job.dresp.data());
  }
}

void LoadWithDemandedCalls(benchmark::State& state)
{
  LoadInC(state, H5P_DEFAULT);
}

void LoadWithSmallTransfer(benchmark::State& state)
{
  const plain::SmallTransfer transfer;
  LoadInC(state, transfer);
}

void ReadEachDatasetOnce(benchmark::State& state)
{
  const std::filesystem::path file = FolderOf(state) / PARFILE_STORAGE_FILE;
  const auto places = plain::PlacesOf(JobOf(state));
  const plain::SmallTransfer transfer;
  for (auto _ : state)
  {
    if (plain::ReadEachDatasetOnce(file, places, transfer) != CountValues(JobOf(state)))
    {
      throw std::runtime_error("the file does not hold the generated job");
    }
  }
}

void LoadFromJson(benchmark::State& state)
{
  const std::filesystem::path file = FolderOf(state) / "job.json";
  for (auto _ : state)
  {
    const plain::Job job = plain::ReadJson(file);
    benchmark::DoNotOptimize(job.dresp.data());
  }
}

// Each iteration starts on an empty file.
template <class Write>
void WriteJob(benchmark::State& state, Write write)
{
  const std::filesystem::path folder = Folder() / "written";
  std::filesystem::create_directories(folder);
  const Inside inside(folder);
  const auto& job = JobOf(state);
  for (auto _ : state)
  {
    state.PauseTiming();
    MakeEmptyParameterFile(folder);
    state.ResumeTiming();
    write(job);
  }
  const auto iterations = static_cast<double>(state.iterations());
  state.counters["commands_per_second"] =
    benchmark::Counter(iterations * static_cast<double>(job.size()), benchmark::Counter::kIsRate);
  state.counters["values_per_second"] =
    benchmark::Counter(iterations * static_cast<double>(CountValues(job)), benchmark::Counter::kIsRate);
}

void WriteWithLibrary(benchmark::State& state)
{
  WriteJob(state, [](const auto& job) {
    ParfileHdf5Storage storage(true);
    WriteToStorage(job, storage);
  });
}

void WriteWithDemandedCalls(benchmark::State& state)
{
  WriteJob(state, [](const auto& job) { plain::WriteWithDemandedCalls(PARFILE_STORAGE_FILE, job, H5P_DEFAULT); });
}

void WriteWithSmallTransfer(benchmark::State& state)
{
  const plain::SmallTransfer transfer;
  WriteJob(state, [&](const auto& job) { plain::WriteWithDemandedCalls(PARFILE_STORAGE_FILE, job, transfer); });
}

void EachSize(benchmark::internal::Benchmark* loads)
{
  for (const std::size_t commands : kJobSizes)
  {
    loads->Arg(static_cast<std::int64_t>(commands));
  }
  loads->Unit(benchmark::kMillisecond);
}

BENCHMARK(LoadWithLibrary)->Apply(EachSize);
BENCHMARK(LoadWithDemandedCalls)->Apply(EachSize);
BENCHMARK(LoadWithSmallTransfer)->Apply(EachSize);
BENCHMARK(ReadEachDatasetOnce)->Apply(EachSize);
BENCHMARK(LoadFromJson)->Apply(EachSize);
BENCHMARK(WriteWithLibrary)->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteWithDemandedCalls)->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteWithSmallTransfer)->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
