/// \file
/// Words of a command line that reach a subcommand as they stand. CLI11 takes "[1, 2]" apart, "-inf" for options, "++"
/// for the end of the words, and the words behind "--" for those of the tool itself.
#pragma once

#include <string>
#include <vector>

/// The arguments of the tool. Where the subcommand takes raw words, these are marked when CLI11 would misread them:
/// lists, negative numbers, and all behind "--".
std::vector<std::string> ReadArguments(int count, char** arguments);

/// The words without their marks.
std::vector<std::string> RawWords(std::vector<std::string> words);

/// The subcommands that take raw words.
inline constexpr const char* kSet = "set";
inline constexpr const char* kUnset = "unset";
inline constexpr const char* kComplete = "complete";
