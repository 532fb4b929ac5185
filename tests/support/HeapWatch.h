/// \file
/// What a piece of code leaves on the heap. One watch at a time, one thread.
///
/// A program that links this replaces the global operator new, so it should be a program of its own, and the code
/// that it watches should be linked statically.
#pragma once

#include <cstddef>
#include <vector>

class HeapWatch
{
public:
  HeapWatch();
  ~HeapWatch();
  HeapWatch(const HeapWatch&) = delete;
  HeapWatch& operator=(const HeapWatch&) = delete;

  /// Makes one of the coming allocations fail, the next for 1. The others are carried out.
  void FailAllocation(std::size_t number);

  /// Whether the allocation that was to fail has done so.
  bool HasFailed() const;

  /// The sizes of the blocks that were allocated since the watch began and are not freed yet, in that order.
  std::vector<std::size_t> SizesLeft() const;

  /// The blocks that were there before the watch began or came later and were freed since, in that order.
  std::vector<const void*> Freed() const;
};
