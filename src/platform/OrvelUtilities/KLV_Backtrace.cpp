#include "OrvelUtilities/KLV_Backtrace.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include "OrvelUtilities/KLV_MESSAGE.h"

namespace
{

constexpr std::ptrdiff_t max_frames = 128;

// GetBacktrace itself, and the tools that may stand between it and backtrace (a sanitizer does).
constexpr std::ptrdiff_t spare_frames = 4;

// The name as it stands when it is no C++ name, as with `main` and functions of the C library.
std::string Demangle(const char* symbol)
{
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                         &std::free);
  return status == 0 ? name.get() : symbol;
}

std::string DescribeFrame(const std::string& function, const void* address, const void* start, const char* module)
{
  const auto offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(start);
  return KLV_MESSAGE("%s+0x%zx [%s]", function.c_str(), static_cast<std::size_t>(offset), module);
}

std::string DescribeFrame(const void* address)
{
  // A return address can stand behind the end of a function whose last act is a call that does not return;
  // the byte before it is always within the call.
  const void* call = static_cast<const char*>(address) - 1;
  Dl_info info{};
  if (dladdr(call, &info) == 0 || info.dli_fname == nullptr)
  {
    return DescribeFrame("??", address, nullptr, "??");
  }
  if (info.dli_sname == nullptr)
  {
    return DescribeFrame("??", address, info.dli_fbase, info.dli_fname);
  }
  return DescribeFrame(Demangle(info.dli_sname), address, info.dli_saddr, info.dli_fname);
}

}  // namespace

// Kept out of line, so that its return address is in the caller and shows where the caller's frames begin.
[[gnu::noinline]] std::vector<std::string> KLV_Backtrace::GetBacktrace()
{
  std::array<void*, max_frames + spare_frames> addresses{};
  const int count = backtrace(addresses.data(), static_cast<int>(addresses.size()));
  const auto end = addresses.begin() + count;
  auto begin = std::find(addresses.begin(), end, __builtin_return_address(0));
  if (begin == end)
  {
    begin = addresses.begin();
  }

  std::vector<std::string> frames;
  std::transform(begin, begin + std::min(max_frames, end - begin), std::back_inserter(frames),
                 [](const void* address) { return DescribeFrame(address); });
  return frames;
}
