#include "OrvelCommands/commands/reference_at.h"

#include "OrvelCommands/foundation/throw_failure.h"

namespace orvel::detail
{
namespace
{

constexpr FailureText kInvalidIndex{
  "Invalid index %Iu of the parameterfile value %s to retrieve from %s. Number of available values is %d.",
  "220653270608"};

// Not the library's own module name, and programs that read the log know it so.
constexpr const char* kIndexModuleName = "libxml2vtm";

}  // namespace

void RequireReferenceIndex(std::uint64_t index, std::uint64_t count, const char* key, const std::string& class_name)
{
  if (index == 0 || index > count)
  {
    ThrowFailure(LogPrefix(kIndexModuleName, class_name.c_str()), kInvalidIndex,
                 {index, key, class_name, static_cast<int>(count)});
  }
}

}  // namespace orvel::detail
