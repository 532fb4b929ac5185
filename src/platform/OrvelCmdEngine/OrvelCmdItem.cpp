#include "OrvelCmdEngine/OrvelCmdItem.h"

#include "OrvelCmdEngine/OrvelCmdItemError.h"
#include "OrvelUtilities/KLV_MESSAGE.h"

namespace
{

constexpr std::size_t max_shown_length = 80;

const char* DescribeType(OrvelCmdItem::ValueType type)
{
  switch (type)
  {
    case OrvelCmdItem::ValueType::Text: return "a text";
    case OrvelCmdItem::ValueType::Integer: return "an integer";
    case OrvelCmdItem::ValueType::Double: return "a double";
    case OrvelCmdItem::ValueType::Enumerator: return "an enumerator";
    case OrvelCmdItem::ValueType::TextList: return "a list of texts";
    case OrvelCmdItem::ValueType::IntegerSet: return "a set of integers";
    case OrvelCmdItem::ValueType::Reference: return "a reference";
  }
  return "a value of no known type";
}

std::string ShortenValue(const std::string& value)
{
  return value.size() <= max_shown_length ? value : value.substr(0, max_shown_length) + "...";
}

}  // namespace

OrvelCmdItem::OrvelCmdItem(OrvelCmdItemDefs::CmdItem item, ValueType type) noexcept : m_item(item), m_type(type) {}

OrvelCmdItem::~OrvelCmdItem() = default;

int OrvelCmdItem::AsInteger() const
{
  ThrowNotReadableAs(ValueType::Integer);
}

double OrvelCmdItem::AsDouble() const
{
  ThrowNotReadableAs(ValueType::Double);
}

OrvelCmdItemDefs::EnumValue OrvelCmdItem::AsEnumValue() const
{
  ThrowNotReadableAs(ValueType::Enumerator);
}

bool OrvelCmdItem::IsStringList() const
{
  return false;
}

std::vector<std::string> OrvelCmdItem::AsStringList() const
{
  ThrowNotReadableAs(ValueType::TextList);
}

bool OrvelCmdItem::IsIntegerSet() const
{
  return false;
}

std::set<int> OrvelCmdItem::AsIntegerSet() const
{
  ThrowNotReadableAs(ValueType::IntegerSet);
}

bool OrvelCmdItem::IsReference() const
{
  return false;
}

const OrvelCmd* OrvelCmdItem::ReferencedCommand() const
{
  ThrowNotReadableAs(ValueType::Reference);
}

OrvelCmdItemDefs::CmdItem OrvelCmdItem::GetItem() const noexcept
{
  return m_item;
}

void OrvelCmdItem::ThrowNotReadableAs(ValueType wanted) const
{
  throw OrvelCmdItemError(KLV_MESSAGE("Item %s holds %s (%s) and cannot be read as %s.",
                                      OrvelCmdItemDefs::GetItemName(m_item).c_str(), DescribeType(m_type),
                                      ShortenValue(AsString()).c_str(), DescribeType(wanted)));
}
