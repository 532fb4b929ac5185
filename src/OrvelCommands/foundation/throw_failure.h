/// \file
/// The one way in which the library raises a failure. Safe from any thread.
#pragma once

#include "OrvelCommands/foundation/bounded_print.h"

#include <initializer_list>
#include <string>

namespace orvel::detail
{

/// What stands fixed at a site that raises a failure.
struct FailureText
{
  const char* format;          ///< For BoundedPrint().
  const char* code = nullptr;  ///< Twelve digits, null where the site has none.
};

/// "[%T|%n|%P|<module>|<class>] ", the prefix of a log line. Its placeholders are for the log of the job.
std::string LogPrefix(const char* module, const char* class_name);

/// The module's name in the log prefix of nearly all failures and log lines.
constexpr const char* kModuleName = "OrvelCommands";

/// Throws a KLV_Failure with the bounded print of the text, the code of the site and \p prefix.
[[noreturn]] void ThrowFailure(const std::string& prefix, const FailureText& failure,
                               std::initializer_list<PrintArgument> arguments = {});

}  // namespace orvel::detail
