/// \file
/// TOML files as inputs of the tool.
#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

/// Throws: UnusableInput with file, line and column for a file that cannot be read or is no TOML; with the file for
/// one with a key of very many parts, "a.b.c.".
toml::table ReadToml(const std::filesystem::path& path);

/// "file:line:column"
std::string PlaceText(const std::filesystem::path& path, const toml::source_region& source);

/// A value as it could stand in the text.
std::string NodeText(const toml::node& node);

/// The members of a table in the order of the text, in which people expect faults and files. A table itself keeps its
/// members by name.
std::vector<std::pair<std::string, const toml::node*>> InTextOrder(const toml::table& table);
