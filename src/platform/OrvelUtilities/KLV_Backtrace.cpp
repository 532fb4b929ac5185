#include "OrvelUtilities/KLV_Backtrace.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include "OrvelUtilities/KLV_MESSAGE.h"

namespace
{

constexpr int max_frames = 128;

// The name as it stands when it is no C++ name, as with `main` and functions of the C library.
std::string Demangle(const char* symbol)
{
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(
    abi::__cxa_demangle(symbol, nullptr, nullptr, &status), &std::free);
  return status == 0 ? name.get() : symbol;
}

std::string DescribeFrame(
  const std::string& function, const void* address, const void* start, const char* module)
{
  const auto offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(start);
  return KLV_MESSAGE("%s+0x%zx [%s]", function.c_str(), static_cast<std::size_t>(offset), module);
}

std::string DescribeFrame(const void* address)
{
  Dl_info info{};
  if (dladdr(address, &info) == 0 || info.dli_fname == nullptr)
  {
    return DescribeFrame("??", address, nullptr, "??");
  }
  if (info.dli_sname == nullptr)
  {
    return DescribeFrame("??", address, info.dli_fbase, info.dli_fname);
  }
  return DescribeFrame(Demangle(info.dli_sname), address, info.dli_saddr, info.dli_fname);
}

} // namespace

// Kept out of line, so that exactly one frame of our own stands above the caller's.
[[gnu::noinline]] std::vector<std::string> KLV_Backtrace::GetBacktrace()
{
  constexpr int own_frames = 1;
  std::array<void*, max_frames + own_frames> addresses{};
  const int count = backtrace(addresses.data(), static_cast<int>(addresses.size()));

  std::vector<std::string> frames;
  for (int i = own_frames; i < count; ++i)
  {
    frames.push_back(DescribeFrame(addresses[static_cast<std::size_t>(i)]));
  }
  return frames;
}
