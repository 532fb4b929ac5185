#include "exit_code.h"

namespace
{

std::string JoinLines(const std::vector<std::string>& lines)
{
  std::string text;
  for (const std::string& line : lines)
  {
    text += text.empty() ? line : "\n" + line;
  }
  return text;
}

}  // namespace

FaultyInput::FaultyInput(const std::vector<std::string>& faults) : std::runtime_error(JoinLines(faults)) {}

UnwritableFile::UnwritableFile(const std::string& folder)
  : UnusableInput("a parameter file cannot be written in " + folder + ": is the disk full?")
{
}
