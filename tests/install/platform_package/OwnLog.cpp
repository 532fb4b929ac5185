// A log that writes to the standard output, in words of its own, whatever sink a caller asks for.

#include "OrvelUtilities/KLV_LogMacros.h"

#include <iostream>

void KLV_LogMacros::debug(std::string_view, int, std::string_view, std::string_view text)
{
  std::cout << "own log: " << text.substr(0, text.find('\n')) << "\n";
}

void KLV_LogMacros::SetSink(Sink) {}
