/// \file
/// The words of a command line of which the first may name a file: `show [FILE] [KIND [ID]]`.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A command line taken apart.
struct FileArgument
{
  std::filesystem::path file;      ///< The working directory where none is named.
  std::vector<std::string> words;  ///< The others, in their order.
};

/// The first word is the file when it is no kind of command and looks like a file: it is there, has a "/", is "." or
/// ends with .hdf5 or .toml. A file that has the name of a kind is given as "./DV_".
FileArgument SplitFileArgument(std::vector<std::string> words);
