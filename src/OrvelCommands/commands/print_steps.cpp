#include "OrvelCommands/commands/print_steps.h"

#include "OrvelCommands/foundation/bounded_print.h"
#include "OrvelCommands/foundation/throw_failure.h"
#include "OrvelUtilities/KLV_LogMacros.h"

namespace orvel::detail
{

CommandPrinter::CommandPrinter(const std::string& id)
{
  Line("ID_NAME_", id);
}

void CommandPrinter::Log(const char* source, int line, const std::string& class_name) const
{
  KLV_LogMacros::debug(source, line, LogPrefix(kModuleName, class_name.c_str()), BoundedPrint(m_text.c_str()));
}

std::string CommandPrinter::IdOf(const OrvelCommand* target)
{
  return target != nullptr ? target->GetID_NAME_() : std::string();
}

void CommandPrinter::Line(const char* key, const std::string& value)
{
  m_text.append("m_").append(key).append(": ").append(value).append("\n");
}

void CommandPrinter::Block(const char* key, const std::string& contents)
{
  m_text.append("m_").append(key).append(": [\n").append(contents).append("]\n");
}

void CommandPrinter::FlagLine(const char* key, bool has)
{
  m_text.append("m_has_").append(key).append(has ? ": yes\n" : ": no\n");
}

void CommandPrinter::CountLine(const char* key, std::uint64_t count)
{
  m_text.append("m_num_").append(key).append(": ").append(OrvelStringUtil::String(count)).append("\n");
}

}  // namespace orvel::detail
