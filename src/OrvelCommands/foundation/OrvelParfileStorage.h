/// \file
/// The one door through which everything above it sees a parameter file. A storage is used by one thread at a time
/// unless its class says more.
#pragma once

#include "OrvelCommands/foundation/VtmType.h"
#include "OrvelCommands/orvelcommands_export.h"

#include <cstdint>
#include <string>
#include <vector>

/// A parameter file as a tree of texts: commands of a kind, their keys, the values of a key.
///
/// The address of a value:
/// - \c command: the kind of command with its trailing underscore, such as "DV_"; the same text as the class's
/// `s_type`.
/// - \c id_name: the `ID_NAME` of one command. Names are unique within a kind, not across kinds.
/// - \c key: one parameter with its trailing underscore, such as "TYPE_".
/// - \c index: the place of a value among the values of the key. **The first value has index 1**, and no operation
///   tests for index 0. (The position of GetCommandName() alone counts from 0.)
///
/// One value is one unit of its type: a `vtmIntegerList` value is a whole list, so a key can hold several lists.
/// The `VtmType` of a call says how the caller wants the value treated; the caller keeps it in step with the type of
/// the argument.
///
/// Nothing is reported by a result. What a storage itself finds wrong it throws as a KLV_Failure; failures of what it
/// stands on may pass. Which absences are a failure and which read as nothing is told by each storage, and a command
/// that reads a key without asking first depends on it. The output argument keeps what it held where nothing is
/// delivered, unless the storage says otherwise. It must not be one of the arguments that say what to read.
///
/// The library reads only. The write half is for modules that fill a storage, a command before its keys and the
/// target of a reference before the reference; a read-only storage ignores it without a word.
class ORVELCOMMANDS_EXPORT OrvelParfileStorage
{
public:
  OrvelParfileStorage();

  /// The interface holds nothing; what a copy shares is told by each storage.
  OrvelParfileStorage(const OrvelParfileStorage&);

  /// The interface holds nothing; what an assignment shares is told by each storage.
  OrvelParfileStorage& operator=(const OrvelParfileStorage&);
  virtual ~OrvelParfileStorage();

  /// Whether this command exists.
  virtual bool HasCommand(const std::string& command, const std::string& id_name) const = 0;

  /// How many commands of this kind exist.
  virtual std::uint64_t GetNumCommand(const std::string& command) const = 0;

  /// How many values the key holds, 0 for an absent key.
  virtual std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                                       const std::string& key) const = 0;

  /// Whether the key is present.
  virtual bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const = 0;

  /// The `ID_NAME` of the command at a position among its kind, **the first having position 0**.
  virtual void GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const = 0;

  /// The `ID_NAME` of the command to which the value at \p index refers. Its kind follows from the key.
  virtual void GetReference(const std::string& command, const std::string& id_name, const std::string& key,
                            std::uint64_t index, std::string& target_id_name) const = 0;

  /// \name Reading one value
  /// @{

  /// Puts the value at \p index into \p value.
  virtual void GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                        std::uint64_t index, VtmType type, std::vector<double>& value) const = 0;
  virtual void GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                        std::uint64_t index, VtmType type, std::vector<int>& value) const = 0;
  virtual void GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                        std::uint64_t index, VtmType type, std::string& value) const = 0;
  virtual void GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                        std::uint64_t index, VtmType type, double& value) const = 0;
  virtual void GetValue(const std::string& command, const std::string& id_name, const std::string& key,
                        std::uint64_t index, VtmType type, int& value) const = 0;

  /// Reads one enumerator as its number.
  virtual void GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key,
                            std::uint64_t index, VtmType type, int& value) const = 0;
  /// @}

  /// \name Overwriting one value of an existing key
  /// @{

  /// Puts \p value in the place of the value at \p index.
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const std::vector<double>& value) const = 0;
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const std::vector<int>& value) const = 0;
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const char& value) const = 0;
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const std::string& value) const = 0;
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const double& value) const = 0;
  virtual void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                        VtmType type, const int& value) const = 0;
  /// @}

  /// \name Appending one value
  /// @{

  /// Appends one value to a key, which is made when it is not there.
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const std::vector<double>& value) const = 0;
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const std::vector<int>& value) const = 0;
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const char& value) const = 0;
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const std::string& value) const = 0;
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const double& value) const = 0;
  virtual void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                        const int& value) const = 0;
  /// @}

  /// Removes the key with all its values. There is no way to remove one value.
  virtual void DeleteValues(const std::string& command, const std::string& id_name, const std::string& key) = 0;

  /// Makes a new, empty command.
  virtual void AddCommand(const std::string& command, const std::string& id_name) const = 0;

  /// Appends a reference to a command, which must exist already.
  virtual void AddReference(const std::string& command, const std::string& id_name, const std::string& key,
                            const std::string& target_command, const std::string& target_id_name) const = 0;
};
