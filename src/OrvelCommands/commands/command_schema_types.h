/// \file
/// The shape of the data in command_schema.h, which is the header to include. Constants only, safe from any thread.
#pragma once

#include "OrvelCommands/foundation/VtmType.h"
#include "OrvelIds/KLV_IdType.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace orvel::schema
{

/// A sequence of constants. Not owned: it refers to constants that live as long as the program.
template <class Item>
class Rows
{
public:
  /// No constants.
  constexpr Rows() = default;

  /// The constants of an array, which must live as long as the program.
  template <std::size_t Size>
  constexpr Rows(const Item (&items)[Size]) : m_begin(items), m_size(Size)  // NOLINT(google-explicit-constructor)
  {
  }

  /// \name As a container of the standard library
  /// @{

  /// Nothing is tested: a position must be below size().
  constexpr const Item* begin() const { return m_begin; }
  constexpr const Item* end() const { return m_begin + m_size; }
  constexpr std::size_t size() const { return m_size; }
  constexpr bool empty() const { return m_size == 0; }
  constexpr const Item& operator[](std::size_t position) const { return m_begin[position]; }
  /// @}

private:
  const Item* m_begin = nullptr;
  std::size_t m_size = 0;
};

/// One enumerator: its text and the number that a storage holds.
struct Enumerator
{
  std::string_view name;  ///< Without the prefix that the enumerator of the class has.
  std::int32_t value;     ///< In the C++ enumeration and in a storage.
};

/// When a key is there.
enum class Presence
{
  Always,    ///< Loading reads the key without asking.
  Optional,  ///< Loading asks first.
  Repeated   ///< Any number of values.
};

/// One key of a command.
struct Field
{
  std::string_view key;               ///< With its trailing underscore.
  VtmType type;                       ///< What moves the value; `vtmReference` for a reference to a command.
  Presence presence;                  ///< When the key is there.
  std::string_view target;            ///< The kind of command that a reference names, else empty.
  std::optional<KLV_IdType> id_type;  ///< Which names of the model a `vtmModelId` is checked against.
  Rows<Enumerator> enumerators;       ///< Of a `vtmEnum`, else empty.
  std::string_view documentation;     ///< One line.
};

/// How many commands of a kind a job has.
enum class Count
{
  One,  ///< Exactly one.
  Any   ///< Any number, none included.
};

/// One kind of command.
struct Command
{
  std::string_view kind;           ///< The class's name and the name in a storage, "DV_".
  std::string_view text_name;      ///< The name in the text of a parameter file, "DV".
  Count count;                     ///< How many a job has.
  Rows<Field> fields;              ///< In the order of the class's members.
  std::string_view documentation;  ///< One line.
};

/// The text of the enumerator with this number, "INVALID" for any other number.
constexpr std::string_view EnumeratorName(Rows<Enumerator> enumerators, std::int32_t value)
{
  for (const Enumerator& enumerator : enumerators)
  {
    if (enumerator.value == value)
    {
      return enumerator.name;
    }
  }
  return "INVALID";
}

}  // namespace orvel::schema
