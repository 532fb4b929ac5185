/// \file
/// A hash table from names to values, for the many look-ups of short names that loading a job takes. Reads may run on
/// several threads while nobody adds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace orvel::detail
{

/// Maps each name to one value; the first value of a name stays. Nothing is ever removed.
///
/// Cost: a look-up is one hash of the name and, as a rule, one comparison. It beats the standard's hash table by far
/// for the names of up to 16 characters that kinds and keys have: head and tail of such a name are all of it, so that
/// hashing and comparing take no loop and no call.
template <class Value>
class NameTable
{
public:
  NameTable() : m_entries(kFewestEntries) {}

  NameTable(std::initializer_list<std::pair<const char*, Value>> entries) : NameTable()
  {
    Reserve(entries.size());
    for (const auto& [name, value] : entries)
    {
      Add(name, value);
    }
  }

  /// Makes room for this many names at once.
  void Reserve(std::size_t count)
  {
    const std::size_t entries_for_name = count <= kFewNames ? 4 : 2;
    std::size_t size = m_entries.size();
    unsigned shift = m_shift;
    for (; size < entries_for_name * count; size *= 2)
    {
      --shift;
    }
    if (size > m_entries.size())
    {
      Resize(size, shift);
    }
  }

  void Add(const std::string& name, Value value)
  {
    if (Find(name) == nullptr)
    {
      Reserve(m_count + 1);
      Enter({NameDigest(name), name, std::move(value)});
      ++m_count;
    }
  }

  /// Returns: null for a name that is not there. Ownership: the table's, until something is added.
  const Value* Find(const std::string& name) const
  {
    const NameDigest digest(name);
    for (std::size_t place = digest.hash >> m_shift;; place = Next(place))
    {
      const Entry& entry = m_entries[place];
      if (Is(entry, digest, name))
      {
        return &entry.value;
      }
      if (entry.digest.size == kNoName)
      {
        return nullptr;
      }
    }
  }

private:
  static constexpr std::size_t kFewestEntries = 4;
  static constexpr unsigned kFewestEntriesShift = 62;  // leaves as many bits of a hash as it takes to count them
  static constexpr std::size_t kFewNames = 64;
  static constexpr std::size_t kNoName = SIZE_MAX;
  static constexpr std::size_t kWord = sizeof(std::uint64_t);

  template <class Word>
  static std::uint64_t Load(const char* text)
  {
    Word word;
    std::memcpy(&word, text, sizeof(word));
    return word;
  }

  // The size of a name, its first and last eight characters, and a hash of all whose high bits are the better ones.
  struct NameDigest
  {
    NameDigest() = default;

    explicit NameDigest(const std::string& name) : size(name.size())
    {
      const char* text = name.data();
      if (size >= kWord)
      {
        head = Load<std::uint64_t>(text);
        tail = Load<std::uint64_t>(text + size - kWord);
      }
      else if (size >= kWord / 2)
      {
        head = Load<std::uint32_t>(text);
        tail = Load<std::uint32_t>(text + size - kWord / 2);
      }
      else if (size > 0)
      {
        head = static_cast<unsigned char>(text[0]) | static_cast<unsigned>(static_cast<unsigned char>(text[size / 2]))
                                                       << 8U;
        tail = static_cast<unsigned char>(text[size - 1]);
      }
      hash = Mix(head ^ size, tail);
      for (std::size_t place = kWord; place + kWord < size; place += kWord)
      {
        hash = Mix(hash ^ hash >> 29U, Load<std::uint64_t>(text + place));
      }
    }

    static std::uint64_t Mix(std::uint64_t left, std::uint64_t right)
    {
      return (left ^ (right << 31U | right >> 33U)) * 0x9E3779B97F4A7C15U;
    }

    std::size_t size = kNoName;
    std::uint64_t head = 0;
    std::uint64_t tail = 0;
    std::uint64_t hash = 0;
  };

  struct Entry
  {
    NameDigest digest;
    std::string name;
    Value value{};
  };

  static bool Is(const Entry& entry, const NameDigest& digest, const std::string& name)
  {
    if (entry.digest.size != digest.size || entry.digest.head != digest.head || entry.digest.tail != digest.tail)
    {
      return false;
    }
    for (std::size_t place = kWord; place + kWord < digest.size; place += kWord)
    {
      if (Load<std::uint64_t>(entry.name.data() + place) != Load<std::uint64_t>(name.data() + place))
      {
        return false;
      }
    }
    return true;
  }

  std::size_t Next(std::size_t place) const { return (place + 1) & (m_entries.size() - 1); }

  void Resize(std::size_t size, unsigned shift)
  {
    std::vector<Entry> entries(size);
    entries.swap(m_entries);
    m_shift = shift;
    for (Entry& entry : entries)
    {
      if (entry.digest.size != kNoName)
      {
        Enter(std::move(entry));
      }
    }
  }

  void Enter(Entry entry)
  {
    std::size_t place = entry.digest.hash >> m_shift;
    while (m_entries[place].digest.size != kNoName)
    {
      place = Next(place);
    }
    m_entries[place] = std::move(entry);
  }

  std::vector<Entry> m_entries;  // a power of two of them, most without a name
  unsigned m_shift = kFewestEntriesShift;
  std::size_t m_count = 0;
};

}  // namespace orvel::detail
