/// \file
/// The items that hold a value of their own; internal, made by the Add operations of OrvelCmd.
/// Thread safety: immutable after construction.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "OrvelCmdEngine/OrvelCmdItem.h"

namespace orvel::detail
{

class TextItem final : public OrvelCmdItem
{
public:
  TextItem(OrvelCmdItemDefs::CmdItem item, std::string value);

  std::string AsString() const override;

private:
  std::string m_value;
};

/// An integer or an enumerator: both are a 32-bit number and read alike.
class NumberItem final : public OrvelCmdItem
{
public:
  NumberItem(OrvelCmdItemDefs::CmdItem item, ValueType type, int value);

  std::string AsString() const override;
  int AsInteger() const override;
  double AsDouble() const override;
  OrvelCmdItemDefs::EnumValue AsEnumValue() const override;

private:
  int m_value;
};

class DoubleItem final : public OrvelCmdItem
{
public:
  DoubleItem(OrvelCmdItemDefs::CmdItem item, double value);

  std::string AsString() const override;
  int AsInteger() const override;
  double AsDouble() const override;

private:
  double m_value;
};

class TextListItem final : public OrvelCmdItem
{
public:
  TextListItem(OrvelCmdItemDefs::CmdItem item, std::vector<std::string> values);

  std::string AsString() const override;
  bool IsStringList() const override;
  std::vector<std::string> AsStringList() const override;

private:
  std::vector<std::string> m_values;
};

class IntegerSetItem final : public OrvelCmdItem
{
public:
  IntegerSetItem(OrvelCmdItemDefs::CmdItem item, std::set<int> values);

  std::string AsString() const override;
  bool IsIntegerSet() const override;
  std::set<int> AsIntegerSet() const override;

private:
  std::set<int> m_values;
};

}  // namespace orvel::detail
