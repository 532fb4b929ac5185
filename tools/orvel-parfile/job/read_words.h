/// \file
/// Values as words of a command line. They read as they would in a job description; a text needs no quotation marks.
#pragma once

#include "job.h"

#include <string>
#include <vector>

/// The values of a key of the schema: each word is a value, or all together are the one list. A list may also stand as
/// one word, "[1, 2]".
/// \param subject what the key is called in messages, "DV_ porosity: TYPE_"
/// Throws: UnusableInput for what does not fit.
std::vector<JobItem> ReadWords(const std::vector<std::string>& words, const orvel::schema::Field& field,
                               const std::string& subject);

/// The values of a key of this type. Of lists each word that begins with "[" is one.
/// Throws: as above.
std::vector<JobItem> ReadWords(const std::vector<std::string>& words, const StoredType& type,
                               const std::string& subject);
