#include "support/HeapWatch.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <new>
#include <stdexcept>

namespace
{

struct Block
{
  const void* address;
  std::size_t size;
};

// Plain arrays: nothing here may allocate while a watch is on.
constexpr std::size_t kCapacity = 20000;
std::array<Block, kCapacity> s_living;
std::size_t s_num_living = 0;
std::array<const void*, kCapacity> s_freed;
std::size_t s_num_freed = 0;
bool s_watching = false;
bool s_overflowed = false;
std::size_t s_until_failure = 0;  // 0 for none to come
bool s_has_failed = false;

bool IsToFail()
{
  if (!s_watching || s_until_failure == 0 || --s_until_failure != 0)
  {
    return false;
  }
  s_has_failed = true;
  return true;
}

void* Allocate(std::size_t size) noexcept
{
  if (IsToFail())
  {
    return nullptr;
  }
  void* block = std::malloc(std::max<std::size_t>(size, 1));
  if (s_watching && block != nullptr)
  {
    if (s_num_living == kCapacity)
    {
      s_overflowed = true;
      return block;
    }
    s_living[s_num_living++] = {block, size};
  }
  return block;
}

void* AllocateOrThrow(std::size_t size)
{
  void* block = Allocate(size);
  if (block == nullptr)
  {
    throw std::bad_alloc();
  }
  return block;
}

void Free(void* block) noexcept
{
  if (s_watching && block != nullptr)
  {
    s_overflowed = s_overflowed || s_num_freed == kCapacity;
    if (!s_overflowed)
    {
      s_freed[s_num_freed++] = block;
    }
    // Most blocks live for a short time, so the last ones are looked at first.
    std::size_t place = s_num_living;
    while (place > 0 && s_living[place - 1].address != block)
    {
      --place;
    }
    if (place > 0)
    {
      std::copy(s_living.data() + place, s_living.data() + s_num_living, s_living.data() + place - 1);
      --s_num_living;
    }
  }
  std::free(block);
}

void RefuseAfterOverflow()
{
  if (s_overflowed)
  {
    throw std::logic_error("more blocks than a HeapWatch can hold");
  }
}

// Stops the watch for its own allocations.
class Pause
{
public:
  Pause() { s_watching = false; }
  ~Pause() { s_watching = true; }
};

}  // namespace

HeapWatch::HeapWatch()
{
  s_num_living = 0;
  s_num_freed = 0;
  s_overflowed = false;
  s_until_failure = 0;
  s_has_failed = false;
  s_watching = true;
}

HeapWatch::~HeapWatch()
{
  s_watching = false;
}

void HeapWatch::FailAllocation(std::size_t number)
{
  s_until_failure = number;
}

bool HeapWatch::HasFailed() const
{
  return s_has_failed;
}

std::vector<std::size_t> HeapWatch::SizesLeft() const
{
  const Pause pause;
  RefuseAfterOverflow();
  std::vector<std::size_t> sizes;
  for (std::size_t i = 0; i < s_num_living; ++i)
  {
    sizes.push_back(s_living[i].size);
  }
  return sizes;
}

std::vector<const void*> HeapWatch::Freed() const
{
  const Pause pause;
  RefuseAfterOverflow();
  return std::vector<const void*>(s_freed.begin(), s_freed.begin() + s_num_freed);  // no list of two pointers
}

void* operator new(std::size_t size)
{
  return AllocateOrThrow(size);
}

void* operator new[](std::size_t size)
{
  return AllocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
  return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
  return Allocate(size);
}

void operator delete(void* block) noexcept
{
  Free(block);
}

void operator delete[](void* block) noexcept
{
  Free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
  Free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
  Free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
  Free(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept
{
  Free(block);
}
