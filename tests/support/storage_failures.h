/// \file
/// Matchers for the failures of the HDF5 storage, whose texts end in a detail that HDF5 words.
#pragma once

#include "support/failures.h"

#include <gmock/gmock.h>

#include <string>

namespace storage_failures
{

constexpr const char* kPrefix = "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] ";

/// Whether \p text is \p head, a detail that is not blank, and \p tail.
inline bool HasDetail(const std::string& text, const std::string& head, const std::string& tail)
{
  if (text.size() <= head.size() + tail.size() || text.compare(0, head.size(), head) != 0 ||
      text.compare(text.size() - tail.size(), tail.size(), tail) != 0)
  {
    return false;
  }
  const std::string detail = text.substr(head.size(), text.size() - head.size() - tail.size());
  return detail.find_first_not_of(' ') != std::string::npos;
}

}  // namespace storage_failures

/// A failure of the HDF5 storage with this first line and this code, followed by what HDF5 reported.
MATCHER_P2(IsDatabaseFailure, first_line, code,
           "has the text \"" + std::string(first_line) +
             "\\nDatabase reported the following error:\\n <detail> \", code \"" + code +
             "\" and the prefix of the HDF5 storage")
{
  const Failure& failure = arg;
  return failure.code == code && failure.prefix == storage_failures::kPrefix &&
         storage_failures::HasDetail(failure.message,
                                     std::string(first_line) + "\nDatabase reported the following error:\n ", " ");
}

/// The failure of a storage that cannot open its file.
MATCHER(IsFileFailure, "is the failure of a file that cannot be opened")
{
  const Failure& failure = arg;
  return failure.code.empty() && failure.prefix == storage_failures::kPrefix &&
         storage_failures::HasDetail(failure.message,
                                     "Failed to create the HDF5 optimization database.\n"
                                     "  HDF5 reported the following error:\n  ",
                                     "");
}

/// A failure of the HDF5 storage whose text is all its own. An empty code stands for none.
inline Failure StorageFailure(const std::string& message, const std::string& code)
{
  return {message, code, "[%T|%n|%P|OrvelCommands|ParfileHdf5Storage] "};
}
