/// \file
/// TOML files as inputs of the tool.
#pragma once

#include <toml++/toml.h>

#include <filesystem>
#include <string>

/// Throws: UnusableInput with file, line and column for a file that cannot be read or is no TOML.
toml::table ReadToml(const std::filesystem::path& path);

/// "file:line:column"
std::string PlaceText(const std::filesystem::path& path, const toml::source_region& source);

/// A value as it could stand in the text.
std::string NodeText(const toml::node& node);
