/// \file
/// What the tests of the command classes do over and over. One thread at a time.
#pragma once

#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelUtilities/KLV_LogRecord.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// A command that has read its own keys and is not linked.
template <class Command>
Command LoadedAlone(const RecordingStorage& storage, const std::string& id)
{
  Command command;
  command.Load(storage, id);
  return command;
}

/// A fluid job around the commands of a storage: what a job needs besides is added, and all of it is loaded
/// and linked.
class LinkedJob
{
public:
  explicit LinkedJob(RecordingStorage storage) : m_storage(std::move(storage)), m_parfile(m_storage)
  {
    AddRequiredCommands(m_storage);
    m_parfile.Load();
  }
  LinkedJob(const LinkedJob&) = delete;
  LinkedJob& operator=(const LinkedJob&) = delete;

  RecordingStorage& Storage() { return m_storage; }
  Gyre_Parfile* operator->() { return &m_parfile; }

  /// The calls that asked for keys of one command, in order.
  std::vector<std::string> CallsAbout(const std::string& kind, const std::string& id) const
  {
    std::vector<std::string> calls;
    for (const std::string& call : m_storage.Calls())
    {
      if (call.find("(" + kind + ", " + id + ", ") != std::string::npos)
      {
        calls.push_back(call);
      }
    }
    return calls;
  }

private:
  RecordingStorage m_storage;
  Gyre_Parfile m_parfile;
};

/// All of a log record but its text, as "source:line prefix".
inline std::string HeadOf(const KLV_LogRecord& record)
{
  return record.source + ":" + std::to_string(record.line) + " " + record.prefix;
}

/// The messages of the problems that \p command finds under the name \p id of the storage.
template <class Command>
std::vector<std::string> MessagesIn(Command& command, const RecordingStorage& storage, std::string id)
{
  std::vector<KLV_ParfileException> errors;
  command.ValidateModelIds(storage, id, errors);
  std::vector<std::string> messages;
  for (const KLV_ParfileException& error : errors)
  {
    messages.push_back(error.GetMessage());
  }
  return messages;
}

/// The numbers of the kinds of name in which \p command looks for \p name: each kind in turn is the only one
/// of the model that knows the name.
template <class Command>
std::vector<int> KindsThatSatisfy(Command& command, const RecordingStorage& storage, const std::string& id,
                                  const char* name)
{
  std::vector<int> numbers;
  for (int number = 0; number < 16; ++number)
  {
    OpenDatabase database;
    database.Add(static_cast<KLV_IdType>(number), {name});
    if (ProblemsIn(command, storage, id).empty())
    {
      numbers.push_back(number);
    }
  }
  return numbers;
}

/// What a test expects of an enumerator: \p found is the enumerator itself.
struct EnumeratorRow
{
  int found;
  int number;
  std::string text;
};

/// Expects that the enumeration has these numbers and texts, and that every other number reads "INVALID".
template <class Command, class Enumeration>
void ExpectEnumerators(const std::vector<EnumeratorRow>& rows)
{
  static_assert(std::is_same_v<std::underlying_type_t<Enumeration>, std::int32_t>);
  std::set<int> taken;
  for (const EnumeratorRow& row : rows)
  {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(row.found, row.number);
    EXPECT_EQ(Command::GetEnumName(static_cast<Enumeration>(row.number)), row.text);
    taken.insert(row.number);
  }
  std::set<int> others{std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
  for (int number = -128; number <= 1280; ++number)
  {
    others.insert(number);
  }
  for (const int number : others)
  {
    if (taken.count(number) == 0)
    {
      SCOPED_TRACE(number);
      EXPECT_EQ(Command::GetEnumName(static_cast<Enumeration>(number)), "INVALID");
    }
  }
}
