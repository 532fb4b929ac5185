/// \file
/// Numbers that look random and are the same in every run. One thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

class Numbers
{
public:
  /// The sequence that belongs to \p start.
  explicit Numbers(std::uint64_t start) : m_engine(start) {}

  std::uint64_t Next() { return m_engine(); }

  /// One of 0 to \p count - 1.
  /// Requires: \p count is not 0.
  std::uint64_t Below(std::uint64_t count) { return m_engine() % count; }

  bool OneIn(std::uint64_t count) { return Below(count) == 0; }

  template <class Container>
  auto& Choose(Container& container)
  {
    return container[Below(std::size(container))];
  }

private:
  std::mt19937_64 m_engine;
};
