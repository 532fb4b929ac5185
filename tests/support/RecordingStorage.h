/// \file
/// A storage in memory that tells which calls it got. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <map>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

/// The `ID_NAME` of a referenced command, as a value of a key.
struct Ref
{
  std::string id;
};

/// One value of a key. An enumerator is an int.
using StoredValue = std::variant<int, double, std::string, std::vector<int>, std::vector<double>, Ref>;

/// What RecordingStorage throws for what it does not hold.
class AbsentFromStorage : public std::runtime_error
{
public:
  using std::runtime_error::runtime_error;
};

/// What RecordingStorage throws where it was told to fail.
class FailedOnDemand : public std::runtime_error
{
public:
  using std::runtime_error::runtime_error;
};

/// Commands keep the order in which they were added. A read of an absent key throws AbsentFromStorage unless
/// KeepOutputsOfAbsentKeys() was called. The write half throws std::logic_error: the library never writes.
class RecordingStorage : public OrvelParfileStorage
{
public:
  using Keys = std::map<std::string, std::vector<StoredValue>>;

  /// The keys of a command, which is added if it is not there:
  ///   storage.Command("DV_", "porosity")["INITIAL_"] = {0.4};
  Keys& Command(const std::string& command, const std::string& id_name);

  /// Adds one more command under an id that is taken already, without keys.
  void AddSecondCommand(const std::string& command, const std::string& id_name);

  void RemoveCommands(const std::string& command);

  void KeepOutputsOfAbsentKeys() { m_keep_absent = true; }

  /// Makes the call with this text throw FailedOnDemand.
  void FailOn(const std::string& call) { m_failing_call = call; }

  /// All calls so far, such as `GetNumCommand(DV_)`, `GetCommandName(DV_, 0)`, `HasElement(DV_, porosity, DV_)`,
  /// `GetNumElements(DV_, porosity, FILTER_)`, `GetReference(DV_, porosity, FILTER_, 1)`,
  /// `GetEnumValue(DV_, porosity, TYPE_, 1, vtmEnum)` and, with the type of the output at the end,
  /// `GetValue(DV_, porosity, INITIAL_, 1, vtmDouble, double)`; other outputs are `int`, `string`, `vector<int>` and
  /// `vector<double>`.
  const std::vector<std::string>& Calls() const { return m_calls; }
  void ForgetCalls() { m_calls.clear(); }

  bool HasCommand(const std::string& command, const std::string& id_name) const override;
  std::uint64_t GetNumCommand(const std::string& command) const override;
  std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                               const std::string& key) const override;
  bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const override;
  void GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const override;
  void GetReference(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    std::string& target_id_name) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<double>& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<int>& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::string& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, double& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, int& value) const override;
  void GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    VtmType type, int& value) const override;

  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                const std::vector<double>&) const override
  {
    RefuseToWrite();
  }
  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                const std::vector<int>&) const override
  {
    RefuseToWrite();
  }
  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType, const char&) const override
  {
    RefuseToWrite();
  }
  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType,
                const std::string&) const override
  {
    RefuseToWrite();
  }
  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType, const double&) const override
  {
    RefuseToWrite();
  }
  void SetValue(const std::string&, const std::string&, const std::string&, int, VtmType, const int&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                const std::vector<double>&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType,
                const std::vector<int>&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType, const char&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType, const std::string&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType, const double&) const override
  {
    RefuseToWrite();
  }
  void AddValue(const std::string&, const std::string&, const std::string&, VtmType, const int&) const override
  {
    RefuseToWrite();
  }
  void DeleteValues(const std::string&, const std::string&, const std::string&) override { RefuseToWrite(); }
  void AddCommand(const std::string&, const std::string&) const override { RefuseToWrite(); }
  void AddReference(const std::string&, const std::string&, const std::string&, const std::string&,
                    const std::string&) const override
  {
    RefuseToWrite();
  }

private:
  struct StoredCommand
  {
    std::string id;
    Keys keys;
  };

  [[noreturn]] static void RefuseToWrite();
  void Record(const std::string& call) const;
  const StoredCommand* Find(const std::string& command, const std::string& id_name) const;
  const std::vector<StoredValue>* FindKey(const std::string& command, const std::string& id_name,
                                          const std::string& key) const;
  template <class Value>
  void Read(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
            Value& value) const;
  void RecordValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                   VtmType type, const char* output) const;

  std::map<std::string, std::vector<StoredCommand>> m_commands;
  bool m_keep_absent = false;
  std::string m_failing_call;
  mutable std::vector<std::string> m_calls;
};

/// Whether the text of a call is `GetNumCommand(...)` or `GetCommandName(...)`.
bool CountsOrNamesCommands(const std::string& call);

/// The calls so far that count or name commands, in order.
std::vector<std::string> WalkOver(const RecordingStorage& storage);
