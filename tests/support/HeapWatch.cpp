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

void* Allocate(std::size_t size) noexcept
{
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
    Block* const end = s_living.data() + s_num_living;
    Block* const found = std::find_if(s_living.data(), end, [&](const Block& one) { return one.address == block; });
    if (found != end)
    {
      std::copy(found + 1, end, found);
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
  s_watching = true;
}

HeapWatch::~HeapWatch()
{
  s_watching = false;
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
