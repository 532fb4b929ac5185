/// \file
/// A job as the tool has it: all commands of a parameter file or of a job description, known to the schema or not.
#pragma once

#include "stored_type.h"

#include "OrvelCommands/commands/command_schema.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

/// The target of a reference. Both empty in a parameter file whose reference leads nowhere.
struct JobReference
{
  std::string kind;
  std::string id;

  bool IsNull() const { return kind.empty(); }
  bool operator==(const JobReference& other) const { return kind == other.kind && id == other.id; }
};

/// One value. Whole numbers of any width are 64 bits here; an enumerator is its number.
using JobValue =
  std::variant<std::int64_t, double, std::string, std::vector<std::int64_t>, std::vector<double>, JobReference>;

/// One value where it stands.
struct JobItem
{
  JobValue value;
  std::string place;  ///< "file:line:column" in a job description, else empty.
};

/// One key of a command.
struct JobKey
{
  std::string name;
  const StoredType* type = nullptr;  ///< Null for a key whose values the tool cannot read.
  std::vector<JobItem> items;
  std::string place;
  std::string unreadable;  ///< What stands there instead of values, "a compound of 12 bytes", else empty.
};

/// One command.
struct JobCommand
{
  std::string kind;
  std::string id;
  std::vector<JobKey> keys;               ///< In the order of their source.
  std::vector<std::string> refused_keys;  ///< Of a job description: keys that stand there with a value that is none.
  std::string place;
};

/// Something in a parameter file that is no part of its layout, such as an attribute or a soft link.
struct ForeignObject
{
  std::string path;
  std::string what;

  /// Whether it is that an object of the layout has attributes.
  bool IsAttribute() const { return what.find("attribute") != std::string::npos; }
};

/// All commands. Kinds, and the commands of a kind, stand in the order of their source.
struct Job
{
  std::vector<JobCommand> commands;
  std::vector<std::string> empty_kinds;  ///< Groups of a parameter file without a command.
  std::vector<ForeignObject> foreign_objects;
};

/// The key of this name, null when the command has none.
const JobKey* FindKey(const JobCommand& command, std::string_view name);

/// Whether one of a key's references leads to a command.
bool RefersTo(const JobKey& key, const JobReference& target);

/// The schema row of a key, null for what no command reads.
const orvel::schema::Field* FieldOf(const JobCommand& command, std::string_view key);

/// The commands of a job by kind and id. Not owned: the job must outlive it.
class JobIndex
{
public:
  explicit JobIndex(const Job& job);

  /// Null when there is none.
  const JobCommand* Find(const std::string& kind, const std::string& id) const;

  /// The ids of the commands of a kind, sorted.
  std::vector<std::string> Ids(const std::string& kind) const;

private:
  std::map<std::string, std::map<std::string, const JobCommand*>> m_commands;
};

/// The job with its kinds in the order of the schema, unknown ones behind by name; commands by id; keys in the order of
/// the schema, unknown ones behind by name.
Job InStableOrder(Job job);

/// A value as people read it: an enumerator of \p field by name, a reference as "KIND_ id", a text as it stands. \p
/// field may be null.
std::string ValueText(const JobValue& value, const orvel::schema::Field* field);

/// The shortest text that reads back to the same number.
std::string NumberText(double value);
