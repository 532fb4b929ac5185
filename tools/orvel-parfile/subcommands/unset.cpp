#include "job/changed_parameter_file.h"
#include "job/contents.h"
#include "job/parameter_file.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/file_argument.h"
#include "support/plain_text.h"
#include "support/raw_words.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace schema = orvel::schema;

namespace
{

struct Options
{
  std::vector<std::string> words;
  bool force = false;
  bool attributes = false;
};

// What the words of the command line name, empty where they name no more.
struct Target
{
  std::string kind;
  std::string id;
  std::string key;

  std::string Text() const { return SubjectText(kind, id, key); }
  std::string Path() const { return kind + (id.empty() ? "" : "/" + id) + (key.empty() ? "" : "/" + key); }
};

Target ReadTarget(const std::vector<std::string>& words, bool may_be_all)
{
  const bool any_empty = std::any_of(words.begin(), words.end(), [](const std::string& word) { return word.empty(); });
  if (words.size() > 3 || any_empty || (words.empty() && !may_be_all))
  {
    throw UnusableInput("unset needs a kind, or a kind and an id, or a kind, an id and a key");
  }
  const auto word = [&](std::size_t place) { return place < words.size() ? words[place] : std::string(); };
  return {word(0), word(1), word(2)};
}

void RequireThere(const Job& job, const Target& target)
{
  if (!target.kind.empty())
  {
    RequireName("the file has no kind", target.kind, NamesIn(job));
  }
  if (!target.id.empty())
  {
    RequireName("there is no " + target.kind, target.id, NamesIn(job, target.kind));
  }
  if (!target.key.empty())
  {
    RequireName(SubjectText(target.kind, target.id) + " has no key", target.key, NamesIn(job, target.kind, target.id));
  }
}

void RequireEmpty(const Job& job, const Target& kind)
{
  const std::vector<std::string> ids = NamesIn(job, kind.kind);
  if (!ids.empty())
  {
    std::string text = kind.Text() + " is not empty; remove first";
    for (const std::string& id : ids)
    {
      text += (&id == &ids.front() ? " " : ", ") + SubjectText(id, {});
    }
    throw UnusableInput(text);
  }
}

// A key of another command that refers to the one that is removed.
struct Referrer
{
  std::string text;            ///< "DV_ porosity: FILTER_"
  std::string path;            ///< "DV_/porosity/FILTER_"
  std::vector<bool> is_meant;  ///< Of each of its values.
};

std::vector<Referrer> ReferrersOf(const Job& job, const Target& target)
{
  const JobReference removed{target.kind, target.id};
  std::vector<Referrer> referrers;
  for (const JobCommand& command : job.commands)
  {
    const bool is_itself = command.kind == target.kind && command.id == target.id;
    for (const JobKey& key : command.keys)
    {
      if (is_itself || !RefersTo(key, removed))
      {
        continue;
      }
      referrers.push_back(
        {SubjectText(command.kind, command.id, key.name), command.kind + "/" + command.id + "/" + key.name, {}});
      for (const JobItem& item : key.items)
      {
        referrers.back().is_meant.push_back(item.value == JobValue(removed));
      }
    }
  }
  return referrers;
}

std::string RemoveCommand(const ChangedParameterFile& file, const Target& target, bool force)
{
  const std::vector<Referrer> referrers = ReferrersOf(file.Before(), target);
  for (const Referrer& referrer : referrers)
  {
    std::cerr << referrer.text << " refers to " << target.Text() << (force ? " and now leads nowhere\n" : "\n");
  }
  if (!referrers.empty() && !force)
  {
    throw UnusableInput(target.Text() + " is still needed; --force removes it all the same");
  }
  for (const Referrer& referrer : referrers)
  {
    file.MakeNull(referrer.path, referrer.is_meant);
  }
  file.Remove(target.Path());
  return target.Text() + " removed";
}

std::string RemoveKey(const ChangedParameterFile& file, const Target& target)
{
  const JobCommand* command = JobIndex(file.Before()).Find(target.kind, target.id);
  const JobKey* key = command != nullptr ? FindKey(*command, target.key) : nullptr;
  const schema::Field* field = command != nullptr ? FieldOf(*command, target.key) : nullptr;
  file.Remove(target.Path());
  if (field != nullptr && field->presence == schema::Presence::Always)
  {
    std::cerr << target.Text() << " must always be there; check will miss it\n";
  }
  return target.Text() + " removed" + (key != nullptr ? ", was " + ValuesText(*key, field) : "");
}

std::string RemoveAttributes(const ChangedParameterFile& file, const Target& target)
{
  const std::string path = "/PARFILE" + (target.kind.empty() ? "" : "/" + target.Path());
  const bool has_any =
    std::any_of(file.Before().foreign_objects.begin(), file.Before().foreign_objects.end(),
                [&](const ForeignObject& object) { return object.path == path && object.IsAttribute(); });
  if (!has_any)
  {
    throw UnusableInput(path + " has no attributes");
  }
  file.RemoveAttributes(target.Path());
  return path + ": attributes removed";
}

std::string RemoveKind(const ChangedParameterFile& file, const Target& target)
{
  RequireEmpty(file.Before(), target);
  file.Remove(target.Path());
  return target.Text() + " removed";
}

std::string Remove(const ChangedParameterFile& file, const Target& target, const Options& options)
{
  if (options.attributes)
  {
    return RemoveAttributes(file, target);
  }
  if (!target.key.empty())
  {
    return RemoveKey(file, target);
  }
  return target.id.empty() ? RemoveKind(file, target) : RemoveCommand(file, target, options.force);
}

void Unset(const Options& options)
{
  const FileArgument argument = SplitFileArgument(RawWords(options.words));
  const Target target = ReadTarget(argument.words, options.attributes);
  const ChangedParameterFile file(ParameterFilePath(argument.file));
  RequireThere(file.Before(), target);
  const std::string done = Remove(file, target, options);
  file.PutInPlace();
  std::cout << PrintableLines(done) << "\n";
}

}  // namespace

void AddUnset(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand(kUnset, "Remove a key, a command or an empty kind from a parameter file.");
  sub
    ->add_option("words", options->words,
                 "The file or its folder, which may be left out; a kind; the id of a command; a key")
    ->type_name("[FILE] KIND [ID [KEY]]");
  CLI::Option* attributes =
    sub->add_flag("--attributes", options->attributes, "Remove the HDF5 attributes of what is named, and nothing else");
  sub->add_flag("--force", options->force, "Remove a command although others refer to it")->excludes(attributes);
  sub->footer("Example: orvel-parfile unset run/ DV_ porosity FILTER_");
  sub->callback([options] { Unset(*options); });
}
