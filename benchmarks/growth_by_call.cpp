// Loads jobs of the given sizes and prints as JSON what each operation of the storage took: how often it was called and
// the nanoseconds of processor time in all. What is left of the whole is the commands' own work and the queries by id.

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/job_files.h"

#include <nlohmann/json.hpp>

#include <ctime>
#include <exception>
#include <iostream>
#include <map>
#include <string>

namespace
{

using namespace benchmarks;

double ProcessorNanoseconds()
{
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return 1e9 * static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec);
}

struct Spent
{
  std::uint64_t calls = 0;
  double nanoseconds = 0.0;
};

class TimedStorage : public ParfileHdf5Storage
{
public:
  TimedStorage() : ParfileHdf5Storage(false, true) {}

  std::uint64_t GetNumCommand(const std::string& command) const override
  {
    return Timed("GetNumCommand", [&] { return ParfileHdf5Storage::GetNumCommand(command); });
  }
  std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                               const std::string& key) const override
  {
    return Timed("GetNumElements", [&] { return ParfileHdf5Storage::GetNumElements(command, id_name, key); });
  }
  bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const override
  {
    return Timed("HasElement", [&] { return ParfileHdf5Storage::HasElement(command, id_name, key); });
  }
  void GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const override
  {
    Timed("GetCommandName", [&] { ParfileHdf5Storage::GetCommandName(command, position, id_name); });
  }
  void GetReference(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    std::string& target_id_name) const override
  {
    Timed("GetReference", [&] { ParfileHdf5Storage::GetReference(command, id_name, key, index, target_id_name); });
  }
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<double>& value) const override
  {
    TimedValue("GetValue of a list", command, id_name, key, index, type, value);
  }
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<int>& value) const override
  {
    TimedValue("GetValue of a list", command, id_name, key, index, type, value);
  }
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::string& value) const override
  {
    TimedValue("GetValue of a text", command, id_name, key, index, type, value);
  }
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, double& value) const override
  {
    TimedValue("GetValue of a number", command, id_name, key, index, type, value);
  }
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, int& value) const override
  {
    TimedValue("GetValue of a number", command, id_name, key, index, type, value);
  }
  void GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    VtmType type, int& value) const override
  {
    Timed("GetEnumValue", [&] { ParfileHdf5Storage::GetEnumValue(command, id_name, key, index, type, value); });
  }

  const std::map<std::string, Spent>& SpentByOperation() const { return m_spent; }

private:
  template <class Action>
  auto Timed(const char* operation, Action action) const -> decltype(action())
  {
    struct Clock
    {
      Spent& spent;
      double begin = ProcessorNanoseconds();
      explicit Clock(Spent& on) : spent(on) {}
      ~Clock()
      {
        ++spent.calls;
        spent.nanoseconds += ProcessorNanoseconds() - begin;
      }
    } clock(m_spent[operation]);
    return action();
  }

  template <class Value>
  void TimedValue(const char* operation, const std::string& command, const std::string& id_name, const std::string& key,
                  std::uint64_t index, VtmType type, Value& value) const
  {
    Timed(operation, [&] { ParfileHdf5Storage::GetValue(command, id_name, key, index, type, value); });
  }

  mutable std::map<std::string, Spent> m_spent;
};

nlohmann::json MeasureLoad(std::size_t commands)
{
  const Inside inside(JobFolder(commands));
  TimedStorage timed;
  const double begin = ProcessorNanoseconds();
  Gyre_Parfile parfile(timed);
  parfile.Load();
  nlohmann::json result = {{"whole load", {{"calls", 1}, {"nanoseconds", ProcessorNanoseconds() - begin}}}};
  for (const auto& [operation, spent] : timed.SpentByOperation())
  {
    result[operation] = {{"calls", spent.calls}, {"nanoseconds", spent.nanoseconds}};
  }
  return result;
}

}  // namespace

int main(int count, char** arguments)
{
  try
  {
    nlohmann::json results;
    for (int place = 1; place < count; ++place)
    {
      results[arguments[place]] = MeasureLoad(std::stoul(arguments[place]));
    }
    std::cout << results.dump() << "\n";
  }
  catch (const std::exception& error)
  {
    std::cerr << "growth_by_call: " << error.what() << "\n";
    return 1;
  }
}
