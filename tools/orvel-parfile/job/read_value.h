/// \file
/// How values are written by people: in a job description, and as words of a command line.
#pragma once

#include "job.h"

#include <toml++/toml.h>

#include <optional>
#include <string>

/// Whether a group of a parameter file can have this name. Others would mean another place in the file.
bool IsName(const std::string& text);

/// What a value of a key must be, "a number".
/// @{
const char* ExpectedValue(VtmType type);
const char* ExpectedValue(const StoredType& type);
/// @}

/// The value of one key that stands in a node: for a key of the schema, or for one that stands with its type. Nothing
/// when it does not fit.
/// @{
std::optional<JobValue> ReadValue(const toml::node& node, const orvel::schema::Field& field);
std::optional<JobValue> ReadValue(const toml::node& node, const StoredType& type);
/// @}

/// Whether values of this type also stand in hexadecimal digits, as kHexMember tells.
bool HasHexForm(const StoredType& type);

/// The value of which the digits stand in a node. Nothing when they do not fit.
/// Requires: HasHexForm.
std::optional<JobValue> ReadHexValue(const toml::node& node, const StoredType& type);
