#include "OrvelCommands/parfile/command_list.h"

#include "OrvelCommands/foundation/throw_failure.h"

namespace orvel::detail
{
namespace
{

constexpr const char* kCountCode = "204046270608";

constexpr FailureText kInvalidId{"Invalid ID %s of the parameter file command %s", "161700240908"};
constexpr FailureText kInvalidIndex{
  "Invalid index %d of the parameterfile command %s to retrieve. Number of available commands is %d", kCountCode};
constexpr FailureText kWrongCount{"%d commands of type %s detected. Only one is expected.", kCountCode};

}  // namespace

void FailOnId(const std::string& id, const std::string& kind, const char* aggregate)
{
  ThrowFailure(LogPrefix(kModuleName, aggregate), kInvalidId, {id, kind});
}

void RequireCommandIndex(std::uint64_t index, std::uint64_t count, const std::string& kind, const char* aggregate)
{
  if (index == 0 || index > count)
  {
    ThrowFailure(LogPrefix(kModuleName, aggregate), kInvalidIndex,
                 {static_cast<int>(index), kind, static_cast<int>(count)});
  }
}

void RequireOneCommand(std::uint64_t count, const std::string& kind, const char* aggregate)
{
  if (count != 1)
  {
    ThrowFailure(LogPrefix(kModuleName, aggregate), kWrongCount, {static_cast<int>(count), kind});
  }
}

// The text stands as the format, as its readers know it: cut at the bound, and a "%" in an id acts as a conversion.
void ReportProblems(const std::vector<KLV_ParfileException>& problems, const char* aggregate)
{
  if (problems.empty())
  {
    return;
  }
  std::string text = std::to_string(problems.size()) + " model IDs referenced in the parameter file cannot be found.\n"
                                                       "Please check your parameterfile for errors.\n";
  for (const KLV_ParfileException& problem : problems)
  {
    text += problem.GetMessage() + "\n";
  }
  ThrowFailure(LogPrefix(kModuleName, aggregate), {text.c_str()});
}

}  // namespace orvel::detail
