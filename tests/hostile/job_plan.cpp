#include "hostile/job_plan.h"

#include <algorithm>
#include <utility>

using orvel::schema::Count;
using orvel::schema::Field;
using orvel::schema::Presence;

namespace
{

const char* const kIds[] = {"porosity", "inlet", "outlet"};

// What the one ALGO_ of a job reads without asking, so that a job without one of them does not load.
bool IsNeeded(const orvel::schema::Command& command)
{
  const orvel::schema::Command* algorithm = orvel::schema::FindCommand("ALGO_");
  const Field* reference = orvel::schema::FindField(*algorithm, command.kind);
  return command.count == Count::One || (reference != nullptr && reference->presence == Presence::Always);
}

std::uint64_t CountOf(const Field& field, Numbers& numbers, std::uint64_t sparseness)
{
  if (field.presence == Presence::Always)
  {
    return 1;
  }
  if (!numbers.OneIn(sparseness))
  {
    return 0;
  }
  return field.presence == Presence::Repeated ? 1 + numbers.Below(3) : 1;
}

const PlannedKind* FindKind(const JobPlan& plan, const std::string& name)
{
  const auto found =
    std::find_if(plan.kinds.begin(), plan.kinds.end(), [&](const PlannedKind& kind) { return kind.name == name; });
  return found != plan.kinds.end() ? &*found : nullptr;
}

void AddKeys(const JobPlan& plan, const orvel::schema::Command& kind, PlannedCommand& command, Numbers& numbers,
             std::uint64_t sparseness)
{
  for (const Field& field : kind.fields)
  {
    const std::uint64_t count = CountOf(field, numbers, sparseness);
    const PlannedKind* target = FindKind(plan, std::string(field.target));
    if (count == 0 || (!field.target.empty() && target == nullptr))
    {
      continue;
    }
    const std::string id = target != nullptr ? target->commands[numbers.Below(target->commands.size())].id : "";
    command.keys.push_back({std::string(field.key), field.type, id, count});
  }
}

void FillCommands(JobPlan& plan, Numbers& numbers, std::uint64_t sparseness)
{
  for (PlannedKind& kind : plan.kinds)
  {
    for (PlannedCommand& command : kind.commands)
    {
      AddKeys(plan, *orvel::schema::FindCommand(kind.name), command, numbers, sparseness);
    }
  }
}

bool LacksTarget(const JobPlan& plan, const PlannedKind& kind)
{
  const auto fields = orvel::schema::FindCommand(kind.name)->fields;
  return std::any_of(fields.begin(), fields.end(), [&](const Field& field) {
    return field.presence == Presence::Always && !field.target.empty() &&
           FindKind(plan, std::string(field.target)) == nullptr;
  });
}

// A command whose target must be there does not load without it.
void DropKindsWithoutTargets(JobPlan& plan)
{
  const auto dropped = std::remove_if(plan.kinds.begin(), plan.kinds.end(),
                                      [copy = plan](const PlannedKind& kind) { return LacksTarget(copy, kind); });
  plan.kinds.erase(dropped, plan.kinds.end());
}

// The references to a command follow it.
void GiveWrongName(JobPlan& plan, const std::string& kind, PlannedCommand& command, Numbers& numbers)
{
  const std::string former = std::exchange(command.id, WrongName(numbers));
  for (PlannedKind& other : plan.kinds)
  {
    for (PlannedCommand& referrer : other.commands)
    {
      for (PlannedKey& key : referrer.keys)
      {
        if (key.name == kind && key.target == former)
        {
          key.target = command.id;
        }
      }
    }
  }
}

}  // namespace

JobPlan PlanSmallJob(Numbers& numbers, const std::vector<std::string>& names)
{
  JobPlan plan;
  for (const std::string& name : names)
  {
    plan.kinds.push_back({name, {{kIds[0], {}}}});
  }
  FillCommands(plan, numbers, 1);
  return plan;
}

JobPlan PlanSoundJob(Numbers& numbers, std::uint64_t sparseness)
{
  JobPlan plan;
  for (const orvel::schema::Command& command : orvel::schema::Commands())
  {
    const bool is_needed = IsNeeded(command);
    if (!is_needed && !numbers.OneIn(sparseness))
    {
      continue;
    }
    PlannedKind kind{std::string(command.kind), {}};
    const std::uint64_t count = command.count == Count::One ? 1 : 1 + (numbers.OneIn(sparseness) ? 1 : 0);
    for (std::uint64_t i = 0; i < count; ++i)
    {
      kind.commands.push_back({kIds[i], {}});
    }
    plan.kinds.push_back(kind);
  }
  DropKindsWithoutTargets(plan);
  FillCommands(plan, numbers, sparseness);
  return plan;
}

std::string WrongName(Numbers& numbers)
{
  const std::size_t sizes[] = {1, 2, 63, 255, 256, 1023, 1024, 4096, 16000, 65535};
  std::string name(numbers.Choose(sizes), 'x');
  switch (numbers.Below(4))
  {
    case 0:
      for (char& one : name)
      {
        one = static_cast<char>(1 + numbers.Below(255));
        one = one == '/' ? '_' : one;
      }
      break;
    case 1:
      for (std::size_t i = 0; i + 1 < name.size(); i += 2)
      {
        name.replace(i, 2, "\xc3\xbc");
      }
      break;
    case 2: name.replace(0, 1, "%s%n%5000d%.9999f%c"); break;
    default: name.front() = static_cast<char>(1 + numbers.Below(31)); break;
  }
  return name == "." ? "_" : name;  // which is no link of its own
}

void SpoilPlan(JobPlan& plan, Numbers& numbers, std::uint64_t count)
{
  for (std::uint64_t i = 0; i < count; ++i)
  {
    const std::uint64_t place = numbers.Below(100);
    PlannedKind& kind = numbers.Choose(plan.kinds);
    PlannedCommand& command = numbers.Choose(kind.commands);
    if (place == 0)
    {
      plan.wrong_top = true;
    }
    else if (place < 8)
    {
      kind.wrong = true;
    }
    else if (place < 16)
    {
      GiveWrongName(plan, kind.name, command, numbers);
    }
    else if (place < 28 || command.keys.empty())
    {
      command.wrong = true;
    }
    else
    {
      numbers.Choose(command.keys).wrong = true;
    }
  }
}
