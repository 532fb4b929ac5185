#include "support/example_job.h"

#include "job/job_description.h"

#include <stdexcept>
#include <type_traits>

namespace benchmarks
{
namespace
{

JobValue ValueOf(const ::JobValue& read)
{
  return std::visit(
    [](const auto& value) -> JobValue {
      using Value = std::decay_t<decltype(value)>;
      if constexpr (std::is_same_v<Value, std::int64_t>)
      {
        return static_cast<int>(value);
      }
      else if constexpr (std::is_same_v<Value, std::vector<std::int64_t>>)
      {
        return std::vector<int>(value.begin(), value.end());
      }
      else if constexpr (std::is_same_v<Value, JobReference>)
      {
        return value.id;
      }
      else
      {
        return value;
      }
    },
    read);
}

JobKey KeyOf(const ::JobCommand& command, const ::JobKey& read)
{
  const orvel::schema::Field* field = FieldOf(command, read.name);
  if (field == nullptr)
  {
    throw std::runtime_error("no command reads " + command.kind + " " + command.id + " " + read.name);
  }
  JobKey key{field, {}};
  for (const JobItem& item : read.items)
  {
    key.values.push_back(ValueOf(item.value));
  }
  return key;
}

}  // namespace

std::vector<JobCommand> ReadExample(const std::filesystem::path& path)
{
  std::vector<JobCommand> example;
  for (const ::JobCommand& read : ReadSoundJobDescription(path).commands)
  {
    JobCommand command{orvel::schema::FindCommand(read.kind), read.id, {}};
    for (const ::JobKey& key : read.keys)
    {
      command.keys.push_back(KeyOf(read, key));
    }
    example.push_back(std::move(command));
  }
  return example;
}

}  // namespace benchmarks
