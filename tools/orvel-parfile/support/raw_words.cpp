#include "raw_words.h"

#include <algorithm>

namespace
{

constexpr char kMark = '\x01';

bool IsMisread(const std::string& word)
{
  return word.rfind('[', 0) == 0 || word.rfind(kMark, 0) == 0 || word == "++" || word == "-inf" || word == "-nan";
}

}  // namespace

std::vector<std::string> ReadArguments(int count, char** arguments)
{
  std::vector<std::string> words(arguments + 1, arguments + count);
  if (words.empty() || (words[0] != kSet && words[0] != kUnset && words[0] != kComplete))
  {
    return words;
  }
  const auto end_of_options = std::find(words.begin(), words.end(), "--");
  for (auto word = words.begin(); word != words.end(); ++word)
  {
    if (word > end_of_options || IsMisread(*word))
    {
      word->insert(word->begin(), kMark);
    }
  }
  if (end_of_options != words.end())
  {
    words.erase(end_of_options);
  }
  return words;
}

std::vector<std::string> RawWords(std::vector<std::string> words)
{
  for (std::string& word : words)
  {
    if (!word.empty() && word.front() == kMark)
    {
      word.erase(word.begin());
    }
  }
  return words;
}
