/// \file
/// Failures and problems in a form that a test can compare and print.
#pragma once

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include <ostream>
#include <string>
#include <vector>

/// What a test expects of a failure. An empty code stands for none.
struct Failure
{
  std::string message;
  std::string code;
  std::string prefix;

  friend bool operator==(const Failure& one, const Failure& other)
  {
    return one.message == other.message && one.code == other.code && one.prefix == other.prefix;
  }
  friend void PrintTo(const Failure& failure, std::ostream* out)
  {
    *out << "message \"" << failure.message << "\", code \"" << failure.code << "\", prefix \"" << failure.prefix
         << "\"";
  }
};

/// What FailureOf() gives for an action that returns.
inline const Failure kNoFailure{"nothing was thrown", "", ""};

/// The KLV_Failure that \p action throws, kNoFailure if it throws nothing.
template <class Action>
Failure FailureOf(Action action)
{
  try
  {
    action();
  }
  catch (const KLV_Failure& failure)
  {
    return {failure.what(), failure.GetCode().exists() ? failure.GetCode().GetText() : "", failure.GetLogPrefix()};
  }
  return kNoFailure;
}

/// A collected problem: value, parameter, id name, command.
struct Problem
{
  std::string value;
  std::string parameter;
  std::string id_name;
  std::string command;

  friend bool operator==(const Problem& one, const Problem& other)
  {
    return one.value == other.value && one.parameter == other.parameter && one.id_name == other.id_name &&
           one.command == other.command;
  }
  friend void PrintTo(const Problem& problem, std::ostream* out)
  {
    *out << "value \"" << problem.value << "\" of \"" << problem.parameter << "\" in \"" << problem.command
         << "\" with ID_NAME \"" << problem.id_name << "\"";
  }
};

inline std::vector<Problem> ProblemsOf(const std::vector<KLV_ParfileException>& errors)
{
  std::vector<Problem> problems;
  for (const KLV_ParfileException& error : errors)
  {
    problems.push_back({error.GetValue(), error.GetParameter(), error.GetIdName(), error.GetCommand()});
  }
  return problems;
}

/// The problems that \p command finds under the name \p id of the storage.
template <class Command, class Storage>
std::vector<Problem> ProblemsIn(Command& command, const Storage& storage, std::string id)
{
  std::vector<KLV_ParfileException> errors;
  command.ValidateModelIds(storage, id, errors);
  return ProblemsOf(errors);
}
