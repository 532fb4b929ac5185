#include "job/changed_parameter_file.h"
#include "job/contents.h"
#include "job/parameter_file.h"
#include "job/read_value.h"
#include "job/read_words.h"
#include "subcommands.h"
#include "support/exit_code.h"
#include "support/file_argument.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"
#include "support/raw_words.h"
#include "support/schema_names.h"

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
  std::string type;
  bool is_new = false;
};

// What the words of the command line ask for.
struct Wish
{
  std::filesystem::path file;
  JobCommand command;  // with the key alone
};

JobKey ReadKnownKey(const JobCommand& command, const std::string& name, const std::vector<std::string>& values)
{
  const schema::Command* kind = schema::FindCommand(command.kind);
  if (kind == nullptr)
  {
    throw UnusableInput("there is no kind of command " + SubjectText(command.kind, {}) + "; " +
                        NearestName(command.kind, KindNames()));
  }
  RequireName(command.kind + " has no key", name, KeyNames(*kind));
  const schema::Field& field = *schema::FindField(*kind, name);
  return {
    name, &StoredTypeOf(field.type), ReadWords(values, field, SubjectText(command.kind, command.id, name)), {}, {}};
}

JobKey ReadTypedKey(const JobCommand& command, const std::string& name, const std::vector<std::string>& values,
                    const std::string& type_name)
{
  const std::string subject = SubjectText(command.kind, command.id, name);
  RequireName("there is no type", type_name, StoredTypeNames());
  if (FieldOf(command, name) != nullptr)
  {
    throw UnusableInput(subject + " has its type from the command; --type is for keys that no command reads");
  }
  for (const std::string& part : {command.kind, name})
  {
    if (!IsName(part))
    {
      throw UnusableInput("\"" + part + "\" cannot stand in a parameter file");
    }
  }
  const StoredType& type = *FindStoredType(type_name);
  return {name, &type, ReadWords(values, type, subject), {}, {}};
}

Wish ReadWish(const Options& options)
{
  FileArgument argument = SplitFileArgument(RawWords(options.words));
  if (argument.words.size() < 4)
  {
    throw UnusableInput("set needs a kind, an id, a key and at least one value");
  }
  const std::vector<std::string> values(argument.words.begin() + 3, argument.words.end());
  Wish wish{ParameterFilePath(argument.file), {argument.words[0], argument.words[1], {}, {}, {}}};
  wish.command.keys.push_back(options.type.empty()
                                ? ReadKnownKey(wish.command, argument.words[2], values)
                                : ReadTypedKey(wish.command, argument.words[2], values, options.type));
  return wish;
}

// The command that is to change, null for one that is to be made.
const JobCommand* FindOrAllow(const Job& job, const JobIndex& index, const JobCommand& wanted, bool is_new)
{
  const JobCommand* found = index.Find(wanted.kind, wanted.id);
  if (found != nullptr)
  {
    return found;
  }
  const std::string path = "/PARFILE/" + wanted.kind;
  for (const ForeignObject& object : job.foreign_objects)
  {
    if (object.path == path + "/" + wanted.id || (object.path == path && NamesIn(job, wanted.kind).empty()))
    {
      const bool is_readable = object.path == path && std::count(job.empty_kinds.begin(), job.empty_kinds.end(),
                                                                 wanted.kind) > 0;  // with attributes
      if (!is_readable)
      {
        throw UnusableInput(object.path + " is " + object.what + "; unset removes it");
      }
    }
  }
  if (!is_new)
  {
    throw UnusableInput("there is no " + SubjectText(wanted.kind, wanted.id) + "; " +
                        NearestName(wanted.id, index.Ids(wanted.kind)) + "; --new makes it");
  }
  if (!IsName(wanted.id))
  {
    throw UnusableInput("the id \"" + wanted.id +
                        "\" cannot stand in a parameter file: an id is not empty, not \".\" and has no \"/\"");
  }
  return nullptr;
}

void RequireTargets(const JobIndex& index, const JobCommand& command)
{
  const JobKey& key = command.keys.front();
  for (const JobItem& item : key.items)
  {
    const auto* target = std::get_if<JobReference>(&item.value);
    const bool is_itself = target != nullptr && target->kind == command.kind && target->id == command.id;
    if (target != nullptr && !target->IsNull() && !is_itself && index.Find(target->kind, target->id) == nullptr)
    {
      throw UnusableInput(SubjectText(command.kind, command.id, key.name) + ": there is no " +
                          SubjectText(target->kind, target->id) + "; " +
                          NearestName(target->id, index.Ids(target->kind)));
    }
  }
}

void Set(const Options& options)
{
  const Wish wish = ReadWish(options);
  const JobKey& key = wish.command.keys.front();
  const ChangedParameterFile file(wish.file);
  const JobIndex index(file.Before());
  const JobCommand* before = FindOrAllow(file.Before(), index, wish.command, options.is_new);
  RequireTargets(index, wish.command);
  file.SetKeys(wish.command);
  file.PutInPlace();

  const schema::Field* field = FieldOf(wish.command, key.name);
  const JobKey* old = before != nullptr ? FindKey(*before, key.name) : nullptr;
  for (const ForeignObject& object : file.Before().foreign_objects)
  {
    if (object.path == "/PARFILE/" + wish.command.kind + "/" + wish.command.id + "/" + key.name)
    {
      std::cerr << PrintableLines(object.path) << ": " << object.what
                << (object.IsAttribute() ? " went" : " was in its place") << " with what it held before\n";
    }
  }
  std::cout << SubjectText(wish.command.kind, wish.command.id, key.name) << " "
            << (old != nullptr ? ValuesText(*old, field) : "(none)") << " -> " << ValuesText(key, field)
            << (before != nullptr ? "" : ", in a new command") << "\n";
}

}  // namespace

void AddSet(CLI::App& tool)
{
  const auto options = std::make_shared<Options>();
  CLI::App* sub = tool.add_subcommand(kSet, "Change one key of a parameter file.");
  sub
    ->add_option("words", options->words,
                 "The file or its folder, which may be left out; the kind and id of a command; a key; all its values. "
                 "Behind \"--\" also values that look like an option")
    ->type_name("[FILE] KIND ID KEY VALUE...")
    ->required();
  sub->add_flag("--new", options->is_new, "Make the command when it is not there");
  sub->add_option("--type", options->type, "The type of a key that no command reads, as in an export")
    ->type_name("NAME");
  sub->footer("Example: orvel-parfile set run/ DV_ porosity INITIAL_ 0.4");
  sub->callback([options] { Set(*options); });
}
