/// \file
/// A parameter file in memory, over a std::map: the smallest complete storage. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

#include <map>
#include <variant>

/// Commands come in the byte order of their names. A copy is a parameter file of its own. A value is read as the C++
/// type that it was written with, whatever the VtmType of the calls.
///
/// Throws: KLV_Failure, all without a code. Reads of an absent kind, command, key or index and of another type fail;
/// the questions for presence and number answer false and 0. A write needs its command, an overwrite its value.
class MapStorage : public OrvelParfileStorage
{
public:
  using Name = const std::string&;

  bool HasCommand(Name command, Name id) const override;
  std::uint64_t GetNumCommand(Name command) const override;
  std::uint64_t GetNumElements(Name command, Name id, Name key) const override;
  bool HasElement(Name command, Name id, Name key) const override;
  void GetCommandName(Name command, std::uint64_t position, std::string& id) const override;
  void GetReference(Name command, Name id, Name key, std::uint64_t index, std::string& target_id) const override;

  void GetValue(Name, Name, Name, std::uint64_t index, VtmType, std::vector<double>& value) const override;
  void GetValue(Name, Name, Name, std::uint64_t index, VtmType, std::vector<int>& value) const override;
  void GetValue(Name, Name, Name, std::uint64_t index, VtmType, std::string& value) const override;
  void GetValue(Name, Name, Name, std::uint64_t index, VtmType, double& value) const override;
  void GetValue(Name, Name, Name, std::uint64_t index, VtmType, int& value) const override;
  void GetEnumValue(Name, Name, Name, std::uint64_t index, VtmType, int& value) const override;

  void SetValue(Name, Name, Name, int index, VtmType, const std::vector<double>& value) const override;
  void SetValue(Name, Name, Name, int index, VtmType, const std::vector<int>& value) const override;
  void SetValue(Name, Name, Name, int index, VtmType, const char& value) const override;
  void SetValue(Name, Name, Name, int index, VtmType, const std::string& value) const override;
  void SetValue(Name, Name, Name, int index, VtmType, const double& value) const override;
  void SetValue(Name, Name, Name, int index, VtmType, const int& value) const override;

  void AddValue(Name, Name, Name, VtmType, const std::vector<double>& value) const override;
  void AddValue(Name, Name, Name, VtmType, const std::vector<int>& value) const override;
  void AddValue(Name, Name, Name, VtmType, const char& value) const override;
  void AddValue(Name, Name, Name, VtmType, const std::string& value) const override;
  void AddValue(Name, Name, Name, VtmType, const double& value) const override;
  void AddValue(Name, Name, Name, VtmType, const int& value) const override;

  void DeleteValues(Name command, Name id, Name key) override;
  void AddCommand(Name command, Name id) const override;
  void AddReference(Name command, Name id, Name key, Name target_command, Name target_id) const override;

private:
  struct Reference
  {
    std::string id;
  };
  using Value = std::variant<int, double, std::string, std::vector<int>, std::vector<double>, Reference>;
  using Keys = std::map<std::string, std::vector<Value>>;

  const std::vector<Value>* FindValues(Name command, Name id, Name key) const;
  Keys& KeysOf(Name command, Name id) const;
  Value& ValueAt(Name command, Name id, Name key, std::uint64_t index) const;
  template <class Item>
  const Item& Read(Name command, Name id, Name key, std::uint64_t index) const;

  // The write half of the interface is const, as for a storage that writes to a file.
  mutable std::map<std::string, std::map<std::string, Keys>> m_kinds;
};
