#include "support/generated_job.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

namespace benchmarks
{
namespace
{

namespace schema = orvel::schema;

using Kind = std::string_view;

// One ALGO_ refers to exactly one of each of these.
bool StaysAtOne(const schema::Command& kind)
{
  constexpr Kind kOfOneAlgorithm[] = {"OPT_PARAM_",  "STOP_",         "PRE_PARAM_",
                                      "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"};
  return kind.count == schema::Count::One ||
         std::find(std::begin(kOfOneAlgorithm), std::end(kOfOneAlgorithm), kind.kind) != std::end(kOfOneAlgorithm);
}

using Prototypes = std::map<Kind, std::vector<const JobCommand*>>;
using Counts = std::map<Kind, std::size_t>;

Prototypes ByKind(const std::vector<JobCommand>& example)
{
  Prototypes prototypes;
  for (const JobCommand& command : example)
  {
    prototypes[command.kind->kind].push_back(&command);
  }
  return prototypes;
}

// One command of each kind, and the rest after the shares of the example, the largest remainders first.
Counts CountsFor(const Prototypes& prototypes, std::size_t commands)
{
  Counts counts;
  std::vector<std::pair<std::size_t, Kind>> growing;
  std::size_t shares = 0;
  for (const auto& [kind, of_kind] : prototypes)
  {
    counts[kind] = 1;
    if (!StaysAtOne(*of_kind.front()->kind))
    {
      growing.emplace_back(of_kind.size(), kind);
      shares += of_kind.size();
    }
  }
  const std::size_t rest = commands - std::min(commands, counts.size());
  std::size_t given = 0;
  std::vector<std::pair<std::size_t, Kind>> remainders;
  for (const auto& [share, kind] : growing)
  {
    counts[kind] += rest * share / shares;
    given += rest * share / shares;
    remainders.emplace_back(rest * share % shares, kind);
  }
  std::sort(remainders.begin(), remainders.end(), std::greater<>());
  for (std::size_t place = 0; place < rest - given; ++place)
  {
    ++counts[remainders[place].second];
  }
  return counts;
}

class Growth
{
public:
  Growth(const std::vector<JobCommand>& example, std::size_t commands)
    : m_prototypes(ByKind(example)), m_counts(CountsFor(m_prototypes, commands))
  {
  }

  std::vector<JobCommand> Grow() const
  {
    std::vector<JobCommand> job;
    for (const auto& [kind, prototypes] : m_prototypes)
    {
      for (std::size_t number = 0; number < m_counts.at(kind); ++number)
      {
        job.push_back(Copy(*prototypes[number % prototypes.size()], number));
      }
    }
    return job;
  }

private:
  std::string IdAt(Kind kind, std::size_t number) const
  {
    const auto& prototypes = m_prototypes.at(kind);
    return prototypes[number % prototypes.size()]->id + "_" + std::to_string(number / prototypes.size() + 1);
  }

  JobCommand Copy(const JobCommand& prototype, std::size_t number) const
  {
    const std::size_t round = number / m_prototypes.at(prototype.kind->kind).size();
    JobCommand copy{prototype.kind, IdAt(prototype.kind->kind, number), {}};
    for (const JobKey& key : prototype.keys)
    {
      if (key.field->type != vtmReference)
      {
        copy.keys.push_back(key);
      }
      else if (m_counts.count(key.field->target) > 0)
      {
        copy.keys.push_back(CopyReferences(key, prototype.kind->kind == "ALGO_", round));
      }
    }
    return copy;
  }

  JobKey CopyReferences(const JobKey& key, bool all, std::size_t round) const
  {
    const Kind target = key.field->target;
    JobKey copy{key.field, {}};
    if (all && key.field->presence == schema::Presence::Repeated)
    {
      for (std::size_t number = 0; number < m_counts.at(target); ++number)
      {
        copy.values.emplace_back(IdAt(target, number));
      }
      return copy;
    }
    for (const JobValue& reference : key.values)
    {
      const std::size_t number = round * m_prototypes.at(target).size() + PlaceOf(target, reference);
      copy.values.emplace_back(IdAt(target, number % m_counts.at(target)));
    }
    return copy;
  }

  std::size_t PlaceOf(Kind kind, const JobValue& reference) const
  {
    const auto& prototypes = m_prototypes.at(kind);
    const auto is_target = [&](const JobCommand* command) { return command->id == std::get<std::string>(reference); };
    return std::find_if(prototypes.begin(), prototypes.end(), is_target) - prototypes.begin();
  }

  Prototypes m_prototypes;
  Counts m_counts;
};

}  // namespace

std::vector<JobCommand> GrowJob(const std::vector<JobCommand>& example, std::size_t commands)
{
  return Growth(example, commands).Grow();
}

std::size_t CountValues(const std::vector<JobCommand>& job)
{
  std::size_t values = 0;
  for (const JobCommand& command : job)
  {
    for (const JobKey& key : command.keys)
    {
      values += key.values.size();
    }
  }
  return values;
}

void WriteToStorage(const std::vector<JobCommand>& job, OrvelParfileStorage& storage)
{
  for (const JobCommand& command : job)
  {
    storage.AddCommand(std::string(command.kind->kind), command.id);
  }
  for (const JobCommand& command : job)
  {
    const std::string kind(command.kind->kind);
    for (const JobKey& key : command.keys)
    {
      const std::string name(key.field->key);
      for (const JobValue& value : key.values)
      {
        if (key.field->type == vtmReference)
        {
          storage.AddReference(kind, command.id, name, std::string(key.field->target), std::get<std::string>(value));
          continue;
        }
        std::visit([&](const auto& one) { storage.AddValue(kind, command.id, name, key.field->type, one); }, value);
      }
    }
  }
}

nlohmann::json AsJson(const std::vector<JobCommand>& job)
{
  nlohmann::json json;
  for (const JobCommand& command : job)
  {
    nlohmann::json& keys = json[std::string(command.kind->kind)][command.id];
    keys = nlohmann::json::object();
    for (const JobKey& key : command.keys)
    {
      nlohmann::json& values = keys[std::string(key.field->key)];
      for (const JobValue& read : key.values)
      {
        nlohmann::json value;
        std::visit([&](const auto& one) { value = one; }, read);
        if (key.field->presence == schema::Presence::Repeated)
        {
          values.push_back(std::move(value));
        }
        else
        {
          values = std::move(value);
        }
      }
    }
  }
  return json;
}

}  // namespace benchmarks
