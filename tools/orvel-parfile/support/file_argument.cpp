#include "file_argument.h"

#include "OrvelCommands/commands/command_schema.h"

#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace
{

bool IsFile(const std::string& word)
{
  if (orvel::schema::FindCommand(word) != nullptr)
  {
    return false;
  }
  const fs::path path = word;
  std::error_code unreadable;
  return word == "." || word.find('/') != std::string::npos || path.extension() == ".hdf5" ||
         path.extension() == ".toml" || fs::exists(path, unreadable);
}

}  // namespace

FileArgument SplitFileArgument(std::vector<std::string> words)
{
  FileArgument split{".", std::move(words)};
  if (!split.words.empty() && IsFile(split.words.front()))
  {
    split.file = split.words.front();
    split.words.erase(split.words.begin());
  }
  return split;
}
