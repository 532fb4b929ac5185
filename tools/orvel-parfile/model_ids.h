/// \file
/// The names that a model knows, as a TOML file.
#pragma once

#include "OrvelDbFactory/KLV_Database.h"

#include <filesystem>

/// Adds the names of a file with the lists `element_groups`, `node_groups`, `face_groups` and `coordinate_systems`,
/// each of which may be absent, to the maps of \p database.
///
/// Returns: how many names were added.
/// Throws: UnusableInput for a file that cannot be read or is no TOML; FaultyInput for other lists and for names that
/// are no texts.
std::size_t ReadModelIds(const std::filesystem::path& path, KLV_Database& database);
