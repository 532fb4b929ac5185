/// \file
/// How the tool ends.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

/// The exit codes of the tool.
enum ExitCode
{
  exitGood = 0,
  exitFaults = 1,    ///< The parameter file or job description has faults.
  exitUnusable = 2,  ///< Wrong use, or an input that cannot be read.
};

/// An input that cannot be read at all. Ends the tool with exitUnusable.
class UnusableInput : public std::runtime_error
{
public:
  using std::runtime_error::runtime_error;
};

/// A folder whose files cannot be written to their end, as on a full disk. Ends the tool with exitUnusable, at once:
/// HDF5 crashes in ending with what it could not write.
class UnwritableFile : public UnusableInput
{
public:
  explicit UnwritableFile(const std::string& folder);
};

/// Faults of an input that can be read, a line for each. Ends the tool with exitFaults.
class FaultyInput : public std::runtime_error
{
public:
  explicit FaultyInput(const std::vector<std::string>& faults);
};

/// What is wrong, or differs, has been printed as data. Ends the tool with exitFaults and without a message.
class FaultsPrinted : public std::exception
{
};
