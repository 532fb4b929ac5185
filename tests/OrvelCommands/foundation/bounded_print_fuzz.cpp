/// \file
/// Looks for formats that the bounded print cannot carry out. `./run fuzz` runs it.
#include "OrvelCommands/foundation/bounded_print_check.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const std::string format(data, data + size);
  const std::string broken = BrokenRuleOfBoundedPrint(format);
  if (!broken.empty())
  {
    std::fprintf(stderr, "%s\n", broken.c_str());
    std::abort();
  }
  return 0;
}
