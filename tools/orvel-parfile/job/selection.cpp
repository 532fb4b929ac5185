#include "selection.h"

#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"

#include <algorithm>

namespace
{

void Add(std::vector<std::string>& names, const std::string& name)
{
  if (std::find(names.begin(), names.end(), name) == names.end())
  {
    names.push_back(name);
  }
}

std::vector<std::string> KindsOf(const Job& job)
{
  std::vector<std::string> kinds;
  for (const JobCommand& command : InStableOrder(job).commands)
  {
    Add(kinds, command.kind);
  }
  for (const std::string& kind : job.empty_kinds)
  {
    Add(kinds, kind);
  }
  return kinds;
}

void RequireName(const std::string& name, std::vector<std::string> known, const std::string& what,
                 const std::filesystem::path& file)
{
  if (std::find(known.begin(), known.end(), name) != known.end())
  {
    return;
  }
  std::transform(known.begin(), known.end(), known.begin(), PlainText);
  throw UnusableInput(file.string() + " has no " + what + PlainText(name) + "; " + NearestName(name, known));
}

}  // namespace

Selection Select(const Job& job, const std::vector<std::string>& words, const std::filesystem::path& file)
{
  if (words.size() > 2)
  {
    throw UnusableInput("a kind and an id are all that can be chosen; " + PlainText(words[2]) + " is too much");
  }
  Selection selection;
  if (!words.empty())
  {
    RequireName(words[0], KindsOf(job), "commands of the kind ", file);
    selection.kind = words[0];
  }
  if (words.size() > 1)
  {
    RequireName(words[1], JobIndex(job).Ids(words[0]), words[0] + " ", file);
    selection.id = words[1];
  }
  return selection;
}

Job PartOf(const Job& job, const Selection& selection)
{
  Job part;
  for (const JobCommand& command : job.commands)
  {
    if (selection.Has(command.kind, command.id))
    {
      part.commands.push_back(command);
    }
  }
  for (const std::string& kind : job.empty_kinds)
  {
    if (selection.Has(kind, {}))
    {
      part.empty_kinds.push_back(kind);
    }
  }
  const std::string path = "/PARFILE/" + selection.kind + (selection.id.empty() ? "" : "/" + selection.id);
  for (const ForeignObject& object : job.foreign_objects)
  {
    if (selection.kind.empty() || object.path == path || object.path.rfind(path + "/", 0) == 0)
    {
      part.foreign_objects.push_back(object);
    }
  }
  return part;
}
