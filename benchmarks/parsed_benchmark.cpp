// Reading parsed commands, and finding commands by id, beside the plainest thing that could stand in their place.

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "peers/peers.h"
#include "support/generated_job.h"
#include "support/job_files.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{

using namespace benchmarks;

// A generated job as the engine holds it.
struct ParsedJob
{
  ParsedJob() : job(ParsedBentDuctJob(kParsedJobSize)) { FillContainer(job, container); }

  std::vector<JobCommand> job;
  OrvelCmdContainer container;
};

const ParsedJob& Parsed()
{
  static const ParsedJob parsed;
  return parsed;
}

// The ids of the responses in the order of the job.
std::vector<std::string> AllResponses()
{
  std::vector<std::string> ids;
  for (const JobCommand& command : Parsed().job)
  {
    if (command.kind->kind == "DRESP_")
    {
      ids.push_back(command.id);
    }
  }
  return ids;
}

// Which responses a benchmark reads, one after the other: always the same, which then stands in the nearest cache, or
// all.
constexpr std::int64_t kSame = 0;
constexpr std::int64_t kEach = 1;

std::vector<std::string> ResponsesFor(const benchmark::State& state)
{
  std::vector<std::string> ids = AllResponses();
  if (state.range(0) == kSame)
  {
    ids.assign(ids.size(), ids.front());
  }
  return ids;
}

// The keys of a job, as a program that reads it into one table would have them.
std::unordered_map<std::string, std::uint64_t> KeysOfSchema()
{
  std::unordered_map<std::string, std::uint64_t> keys;
  for (const orvel::schema::Command& command : orvel::schema::Commands())
  {
    for (const orvel::schema::Field& field : command.fields)
    {
      keys.emplace(std::string(field.key), keys.size());
    }
  }
  return keys;
}

template <class Read>
void ReadResponses(benchmark::State& state, Read read)
{
  const OrvelParfileStorageCmdContainer storage(Parsed().container);
  const std::vector<std::string> ids = ResponsesFor(state);
  const std::string kind = "DRESP_";
  for (auto _ : state)
  {
    for (const std::string& id : ids)
    {
      read(storage, kind, id);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(ids.size()));
}

void PresentInteger(benchmark::State& state)
{
  const std::string key = "LOADCASE_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    int value = 0;
    storage.GetValue(kind, id, key, 1, vtmInteger, value);
    benchmark::DoNotOptimize(value);
  });
}

void PresentEnumerator(benchmark::State& state)
{
  const std::string key = "UPDATE_TYPE_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    int value = 0;
    storage.GetEnumValue(kind, id, key, 1, vtmEnum, value);
    benchmark::DoNotOptimize(value);
  });
}

void PresentText(benchmark::State& state)
{
  const std::string key = "UPDATE_ID_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    std::string value;
    storage.GetValue(kind, id, key, 1, vtmString, value);
    benchmark::DoNotOptimize(value);
  });
}

void AbsentKey(benchmark::State& state)
{
  const std::string key = "WRITE_INTERVAL_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    int value = 0;
    storage.GetValue(kind, id, key, 1, vtmInteger, value);
    benchmark::DoNotOptimize(value);
  });
}

void HasPresentKey(benchmark::State& state)
{
  const std::string key = "UPDATE_ID_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    benchmark::DoNotOptimize(storage.HasElement(kind, id, key));
  });
}

void CountOfKey(benchmark::State& state)
{
  const std::string key = "UPDATE_ID_";
  ReadResponses(state, [&](const auto& storage, const auto& kind, const auto& id) {
    benchmark::DoNotOptimize(storage.GetNumElements(kind, id, key));
  });
}

void Reference(benchmark::State& state)
{
  const OrvelParfileStorageCmdContainer storage(Parsed().container);
  std::string algo;
  storage.GetCommandName("ALGO_", 0, algo);
  const std::string kind = "ALGO_";
  const std::string key = "STOP_";
  for (auto _ : state)
  {
    std::string target;
    storage.GetReference(kind, algo, key, 1, target);
    benchmark::DoNotOptimize(target);
  }
  state.SetItemsProcessed(state.iterations());
}

// One look-up of a key, as often as the reads above read it.
void HashTable(benchmark::State& state, const std::string& key)
{
  const auto keys = KeysOfSchema();
  const std::size_t count = AllResponses().size();
  for (auto _ : state)
  {
    for (std::size_t number = 0; number < count; ++number)
    {
      const std::string* wanted = &key;
      benchmark::DoNotOptimize(wanted);
      auto found = keys.find(*wanted);
      benchmark::DoNotOptimize(found);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

// One look-up of each id, as the reads of all responses walk over them.
void HashTableOfIds(benchmark::State& state)
{
  std::unordered_map<std::string, std::uint64_t> positions;
  const std::vector<std::string> ids = AllResponses();
  for (const std::string& id : ids)
  {
    positions.emplace(id, positions.size());
  }
  for (auto _ : state)
  {
    for (const std::string& id : ids)
    {
      auto found = positions.find(id);
      benchmark::DoNotOptimize(found);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(ids.size()));
}

void LoadParsedJob(benchmark::State& state)
{
  for (auto _ : state)
  {
    OrvelParfileStorageCmdContainer storage(Parsed().container);
    Gyre_Parfile parfile(storage);
    parfile.Load();
    benchmark::DoNotOptimize(parfile.NumDRESP_());
  }
}

// Names the commands and answers every key with nothing at once: what is left of loading is what no storage can save.
// A reference gets the id of some command, so that linking finds a target.
class Answerless : public OrvelParfileStorageCmdContainer
{
public:
  using OrvelParfileStorageCmdContainer::OrvelParfileStorageCmdContainer;

  std::uint64_t GetNumElements(const std::string&, const std::string&, const std::string&) const override { return 0; }
  bool HasElement(const std::string&, const std::string&, const std::string&) const override { return false; }
  void GetReference(const std::string&, const std::string&, const std::string& key, std::uint64_t,
                    std::string& target_id_name) const override
  {
    GetCommandName(key, 0, target_id_name);
  }
  void GetValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType,
                std::vector<double>&) const override
  {
  }
  void GetValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType,
                std::vector<int>&) const override
  {
  }
  void GetValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType,
                std::string&) const override
  {
  }
  void GetValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType,
                double&) const override
  {
  }
  void GetValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType, int&) const override
  {
  }
  void GetEnumValue(const std::string&, const std::string&, const std::string&, std::uint64_t, VtmType,
                    int&) const override
  {
  }
};

void LoadFromAnswerless(benchmark::State& state)
{
  Answerless storage(Parsed().container);
  for (auto _ : state)
  {
    Gyre_Parfile parfile(storage);
    parfile.Load();
    benchmark::DoNotOptimize(parfile.NumDRESP_());
  }
}

void LoadCompleteJobFromJson(benchmark::State& state)
{
  const std::filesystem::path file = JobFolder(kParsedJobSize) / "job.json";
  for (auto _ : state)
  {
    const plain::Job job = plain::ReadJson(file);
    benchmark::DoNotOptimize(job.dresp.data());
  }
}

void LoadParsedJobFromJson(benchmark::State& state)
{
  const std::filesystem::path file = Folder() / "parsed_job.json";
  for (auto _ : state)
  {
    const plain::Job job = plain::ReadJson(file);
    benchmark::DoNotOptimize(job.dresp.data());
  }
}

// Finds each response by its id.
void QueryById(benchmark::State& state)
{
  OrvelParfileStorageCmdContainer storage(Parsed().container);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const std::vector<std::string> ids = AllResponses();
  for (auto _ : state)
  {
    for (const std::string& id : ids)
    {
      benchmark::DoNotOptimize(&parfile.GetDRESP_(id));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(ids.size()));
}

void BareLoopOverStrings(benchmark::State& state)
{
  const std::vector<std::string> wanted = AllResponses();
  const std::vector<std::string> ids = wanted;
  for (auto _ : state)
  {
    for (const std::string& id : wanted)
    {
      std::size_t place = 0;
      while (place < ids.size() && ids[place] != id)
      {
        ++place;
      }
      benchmark::DoNotOptimize(place);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(ids.size()));
}

BENCHMARK(PresentInteger)->Arg(kSame)->Arg(kEach);
BENCHMARK(PresentEnumerator)->Arg(kSame)->Arg(kEach);
BENCHMARK(PresentText)->Arg(kSame)->Arg(kEach);
BENCHMARK(AbsentKey)->Arg(kSame)->Arg(kEach);
BENCHMARK(HasPresentKey)->Arg(kSame)->Arg(kEach);
BENCHMARK(CountOfKey)->Arg(kSame)->Arg(kEach);
BENCHMARK(Reference);
BENCHMARK_CAPTURE(HashTable, integer, std::string("LOADCASE_"));
BENCHMARK_CAPTURE(HashTable, enumerator, std::string("UPDATE_TYPE_"));
BENCHMARK_CAPTURE(HashTable, text, std::string("UPDATE_ID_"));
BENCHMARK_CAPTURE(HashTable, absent, std::string("WRITE_INTERVAL_"));
BENCHMARK_CAPTURE(HashTable, reference, std::string("STOP_"));
BENCHMARK(HashTableOfIds);
BENCHMARK(LoadParsedJob)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadFromAnswerless)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadParsedJobFromJson)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadCompleteJobFromJson)->Unit(benchmark::kMicrosecond);
BENCHMARK(QueryById)->Unit(benchmark::kMicrosecond);
BENCHMARK(BareLoopOverStrings)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
