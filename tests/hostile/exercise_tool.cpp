#include "hostile/exercise_tool.h"

#include "subcommands/subcommands.h"
#include "support/exit_code.h"
#include "support/plain_hdf5.h"

#include "OrvelCommands/foundation/KLV_Failure.h"

#include <CLI/CLI.hpp>
#include <H5Cpp.h>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace
{

constexpr std::size_t kAlways = 2;  // of the command lines

class SilentOutput
{
public:
  SilentOutput() : m_former(std::cout.rdbuf(m_text.rdbuf())) {}
  ~SilentOutput() { std::cout.rdbuf(m_former); }
  SilentOutput(const SilentOutput&) = delete;
  SilentOutput& operator=(const SilentOutput&) = delete;

private:
  std::ostringstream m_text;
  std::streambuf* m_former;
};

void Parse(std::vector<std::string> words)
{
  CLI::App tool;
  AddCheck(tool);
  AddShow(tool);
  std::reverse(words.begin(), words.end());  // the order that CLI11 takes
  try
  {
    tool.parse(std::move(words));
  }
  catch (const CLI::ParseError& error)
  {
    throw std::logic_error(error.what());
  }
}

// As the tool's own main().
bool IsFoundGood(const std::vector<std::string>& words, Ends& ends)
{
  try
  {
    Parse(words);
    ++ends.good;
    return true;
  }
  catch (const FaultsPrinted&)
  {
    ++ends.good;
  }
  catch (const UnusableInput&)
  {
    ++ends.failures;
  }
  catch (const FaultyInput&)
  {
    ++ends.failures;
  }
  catch (const KLV_Exception&)
  {
    ++ends.failures;
  }
  catch (const H5::Exception&)
  {
    ++ends.binding_failures;
  }
  return false;
}

std::string TextOf(const std::vector<std::string>& words)
{
  std::string text;
  for (const std::string& word : words)
  {
    text += (text.empty() ? "" : " ") + word;
  }
  return text;
}

}  // namespace

const std::vector<std::vector<std::string>>& ReadingCommandLines()
{
  static const std::vector<std::vector<std::string>> lines = {
    {"check", "."},          {"show", "."},          {"check", ".", "--job", "smooth"},        {"check", ".", "--json"},
    {"show", ".", "--json"}, {"show", ".", "--log"}, {"show", ".", "--log", "--job", "smooth"}};
  return lines;
}

Ends ExerciseTool(std::uint64_t number, const std::function<void(const std::string&, bool)>& tell)
{
  const auto& lines = ReadingCommandLines();
  const SilentOutput silent;
  Ends ends;
  for (std::size_t i = 0; i < lines.size(); ++i)
  {
    if (i < kAlways || i == kAlways + number % (lines.size() - kAlways))
    {
      const bool is_good = IsFoundGood(lines[i], ends);
      tell(TextOf(lines[i]), is_good);
    }
  }
  plain_hdf5::CloseWhatIsLeftOpen();  // by a storage that could not be opened, as it documents
  return ends;
}
