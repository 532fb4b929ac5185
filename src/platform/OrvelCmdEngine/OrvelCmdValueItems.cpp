#include "OrvelCmdEngine/OrvelCmdValueItems.h"

#include <cmath>
#include <limits>
#include <utility>

#include "OrvelUtilities/KLV_ListFormatUtil.h"
#include "OrvelUtilities/OrvelStringUtil.h"

namespace orvel::detail
{

namespace
{

constexpr const char* list_separator = " ";

bool IsWholeInt(double value)
{
  return value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max() &&
         std::trunc(value) == value;
}

}  // namespace

TextItem::TextItem(OrvelCmdItemDefs::CmdItem item, std::string value)
  : OrvelCmdItem(item, ValueType::Text), m_value(std::move(value))
{
}

std::string TextItem::AsString() const
{
  return m_value;
}

NumberItem::NumberItem(OrvelCmdItemDefs::CmdItem item, ValueType type, int value)
  : OrvelCmdItem(item, type), m_value(value)
{
}

std::string NumberItem::AsString() const
{
  return OrvelStringUtil::String(m_value);
}

int NumberItem::AsInteger() const
{
  return m_value;
}

double NumberItem::AsDouble() const
{
  return m_value;
}

OrvelCmdItemDefs::EnumValue NumberItem::AsEnumValue() const
{
  return static_cast<OrvelCmdItemDefs::EnumValue>(m_value);
}

DoubleItem::DoubleItem(OrvelCmdItemDefs::CmdItem item, double value)
  : OrvelCmdItem(item, ValueType::Double), m_value(value)
{
}

std::string DoubleItem::AsString() const
{
  return OrvelStringUtil::String(m_value);
}

int DoubleItem::AsInteger() const
{
  if (!IsWholeInt(m_value))
  {
    ThrowNotReadableAs(ValueType::Integer);
  }
  return static_cast<int>(m_value);
}

double DoubleItem::AsDouble() const
{
  return m_value;
}

TextListItem::TextListItem(OrvelCmdItemDefs::CmdItem item, std::vector<std::string> values)
  : OrvelCmdItem(item, ValueType::TextList), m_values(std::move(values))
{
}

std::string TextListItem::AsString() const
{
  return KLV_ListFormatUtil::format_list_as_line(m_values, list_separator);
}

bool TextListItem::IsStringList() const
{
  return true;
}

std::vector<std::string> TextListItem::AsStringList() const
{
  return m_values;
}

IntegerSetItem::IntegerSetItem(OrvelCmdItemDefs::CmdItem item, std::set<int> values)
  : OrvelCmdItem(item, ValueType::IntegerSet), m_values(std::move(values))
{
}

std::string IntegerSetItem::AsString() const
{
  const std::vector<int> list(m_values.begin(), m_values.end());
  return KLV_ListFormatUtil::format_list_as_line(list, list_separator);
}

bool IntegerSetItem::IsIntegerSet() const
{
  return true;
}

std::set<int> IntegerSetItem::AsIntegerSet() const
{
  return m_values;
}

}  // namespace orvel::detail
