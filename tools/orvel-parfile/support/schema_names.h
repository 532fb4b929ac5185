/// \file
/// The names that the schema knows, for messages that tell what is possible.
#pragma once

#include "OrvelCommands/commands/command_schema.h"

#include <string>
#include <string_view>
#include <vector>

std::vector<std::string> KindNames();
std::vector<std::string> KeyNames(const orvel::schema::Command& command);
std::vector<std::string> EnumeratorNames(const orvel::schema::Field& field);

/// The name of the list in which model ids of this type stand, "element_groups".
std::string IdListName(KLV_IdType type);

/// The kind of command that defines model ids of this type, "ELEMENT_GROUP_".
std::string_view KindOfIds(KLV_IdType type);
