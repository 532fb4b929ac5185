/// \file
/// A text builder in the manner of printf, without a limit on the length.
/// Thread safety: may be called from several threads at once while none changes the C locale, which the
/// decimal point follows.
#pragma once

#include <string>

#include "OrvelUtilities/orvelutilities_export.h"

/// Gives the text that printf would write for `format` and the arguments, however long it is.
///
/// Requires: `format` is not null and is written in the source, since a conversion in it reads an argument.
/// Throws: std::runtime_error with the format in its text when the C library can't carry it out: a wide
/// character that the locale does not know, or a result of 2 GiB or more.
[[gnu::format(printf, 1, 2)]] ORVELUTILITIES_EXPORT std::string KLV_MESSAGE(const char* format, ...);
