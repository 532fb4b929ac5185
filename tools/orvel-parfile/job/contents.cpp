#include "contents.h"

#include "support/exit_code.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"

#include <algorithm>
#include <set>

namespace
{

constexpr const char* kRoot = "/PARFILE/";

// The part of a path that follows the start, up to its next "/".
std::string NextPart(const std::string& path, const std::string& start)
{
  return path.rfind(start, 0) == 0 ? path.substr(start.size(), path.find('/', start.size()) - start.size())
                                   : std::string();
}

std::string OneLine(const std::string& text)
{
  std::string line;
  for (const char character : PrintableLines(text))
  {
    line += character == '\n' ? std::string("\\n") : std::string(1, character);
  }
  return line;
}

}  // namespace

std::vector<std::string> NamesIn(const Job& job, const std::string& kind, const std::string& id)
{
  std::set<std::string> names;
  if (kind.empty())
  {
    names.insert(job.empty_kinds.begin(), job.empty_kinds.end());
  }
  for (const JobCommand& command : job.commands)
  {
    if (kind.empty())
    {
      names.insert(command.kind);
    }
    else if (command.kind == kind && id.empty())
    {
      names.insert(command.id);
    }
    else if (command.kind == kind && command.id == id)
    {
      std::for_each(command.keys.begin(), command.keys.end(), [&](const JobKey& key) { names.insert(key.name); });
    }
  }
  const std::string start = kRoot + (kind.empty() ? "" : kind + "/") + (id.empty() ? "" : id + "/");
  for (const ForeignObject& object : job.foreign_objects)
  {
    names.insert(NextPart(object.path, start));
  }
  names.erase("");
  return {names.begin(), names.end()};
}

void RequireName(const std::string& what, const std::string& name, const std::vector<std::string>& known)
{
  if (std::find(known.begin(), known.end(), name) == known.end())
  {
    throw UnusableInput(what + " " + OneLine(name) + "; " + NearestName(name, known));
  }
}

std::string SubjectText(const std::string& kind, const std::string& id, const std::string& key)
{
  return OneLine(kind + (id.empty() ? "" : " " + id) + (key.empty() ? "" : ": " + key));
}

std::string ValuesText(const JobKey& key, const orvel::schema::Field* field)
{
  if (key.type == nullptr)
  {
    return "(" + key.unreadable + ")";
  }
  std::string text;
  for (const JobItem& item : key.items)
  {
    text += (&item == &key.items.front() ? "" : ", ") + OneLine(ValueText(item.value, field));
  }
  return key.items.empty() ? "(no values)" : text;
}
