#include "OrvelCommands/foundation/throw_failure.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

namespace orvel::detail
{

std::string LogPrefix(const char* module, const char* class_name)
{
  return std::string("[%T|%n|%P|") + module + "|" + class_name + "] ";
}

void ThrowFailure(const std::string& prefix, const FailureText& failure, std::initializer_list<PrintArgument> arguments)
{
  const std::string message = BoundedPrint(failure.format, arguments);
  const KLV_Code code = failure.code != nullptr ? KLV_Code(failure.code) : KLV_Code();
  throw KLV_Failure(code, message, prefix);
}

}  // namespace orvel::detail
