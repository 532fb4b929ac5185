/// \file
/// The names that a model knows, as the tool is told them: a TOML file with the lists element_groups, node_groups,
/// face_groups and coordinate_systems.
#pragma once

#include "OrvelDbFactory/KLV_Database.h"
#include "OrvelIds/KLV_IdType.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

/// Names by list, each with its "file:line:column".
struct ModelIds
{
  std::map<KLV_IdType, std::map<std::string, std::string>> lists;

  std::size_t Count() const;
};

/// Throws: UnusableInput for a file that cannot be read or is no TOML; FaultyInput with every fault and its place.
ModelIds ReadModelIds(const std::filesystem::path& path);

/// Makes the names known to a database.
void AddTo(KLV_Database& database, const ModelIds& ids);
