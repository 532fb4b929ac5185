/// \file
/// One value of a parsed command.
/// Thread safety: immutable after construction; may be read from several threads at once. A reference item
/// reads the command that it refers to, which nobody may change meanwhile.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "OrvelCmdEngine/orvelcmdengine_export.h"
#include "OrvelCmdEngine/OrvelCmdItemDefs.h"

class OrvelCmd;

/// A value with the kind of item that it is. A derived class overrides the readers of the types that its
/// value has or converts to without loss; all other readers throw.
///
/// | Holds           | reads also as                                                    |
/// |-----------------|------------------------------------------------------------------|
/// | text            | nothing else                                                     |
/// | integer         | double, enumerator, text                                         |
/// | double          | text; integer, when it is a whole number in the range of one     |
/// | enumerator      | integer, double, text (each its number)                          |
/// | list of texts   | text (the texts with a blank between them)                       |
/// | set of integers | text (the numbers in ascending order with a blank between them)  |
/// | reference       | text (the `ID_NAME` of the command referred to)                  |
///
/// Throws: every reader whose value the item neither holds nor converts to throws OrvelCmdItemError with the
/// text "Item VALUE holds a double (2.5) and cannot be read as an integer." or the like; of a long value the
/// text shows the beginning.
class ORVELCMDENGINE_EXPORT OrvelCmdItem
{
public:
  /// What an item holds.
  enum class ValueType
  {
    Text,
    Integer,
    Double,
    Enumerator,
    TextList,
    IntegerSet,
    Reference
  };

  OrvelCmdItem(const OrvelCmdItem& other) = delete;
  OrvelCmdItem& operator=(const OrvelCmdItem& other) = delete;
  virtual ~OrvelCmdItem();

  /// Returns: the value as text; every item has one.
  virtual std::string AsString() const = 0;

  /// Returns: the value as a 32-bit integer.
  virtual int AsInteger() const;

  /// Returns: the value as a double.
  virtual double AsDouble() const;

  /// Returns: the value as an enumerator.
  virtual OrvelCmdItemDefs::EnumValue AsEnumValue() const;

  /// Returns: whether AsStringList gives a value.
  virtual bool IsStringList() const;

  /// Returns: the texts in parameter-file order.
  virtual std::vector<std::string> AsStringList() const;

  /// Returns: whether AsIntegerSet gives a value.
  virtual bool IsIntegerSet() const;

  /// Returns: the integers.
  virtual std::set<int> AsIntegerSet() const;

  /// Returns: whether ReferencedCommand gives a value.
  virtual bool IsReference() const;

  /// Returns: the command referred to, null when that command has ended.
  /// Ownership: stays with the command's owner.
  virtual const OrvelCmd* ReferencedCommand() const;

  /// Returns: the kind of item that this is.
  OrvelCmdItemDefs::CmdItem GetItem() const noexcept;

  /// Returns: what the item holds, without a conversion.
  ValueType GetValueType() const noexcept { return m_type; }

protected:
  /// For the classes that hold the values.
  OrvelCmdItem(OrvelCmdItemDefs::CmdItem item, ValueType type) noexcept;

  /// Throws: OrvelCmdItemError, always, for a reader of `wanted`.
  [[noreturn]] void ThrowNotReadableAs(ValueType wanted) const;

private:
  OrvelCmdItemDefs::CmdItem m_item;
  ValueType m_type;
};
