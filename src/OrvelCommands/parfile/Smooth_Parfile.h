/// \file
/// The parameter file of a smoothing job. One thread at a time; the commands may be read from several threads.
///
/// Generated from commands/smooth_commands.toml by src/OrvelCommands/commands/generator. Do not edit: change
/// the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/smooth_commands.h"
#include "OrvelCommands/parfile/Parfile.h"

#include <cstdint>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

/// The parameter file of a smoothing job.
///
/// Construct it on a storage, call Load() once, then ValidateModelIds() where a database is open, then read.
///
/// Ownership: it owns every command; what its operations hand out belongs to it and lives as long as it does, or as
/// long as the aggregate that was moved from it. The storage is not owned and must outlive Load() and
/// ValidateModelIds(); nothing else touches it.
///
/// Cost: a command is found by its id in one pass over the commands of its kind.
class ORVELCOMMANDS_EXPORT Smooth_Parfile : public Parfile
{
public:
  /// An empty parameter file bound to \p storage, from which nothing is read yet.
  explicit Smooth_Parfile(OrvelParfileStorage& storage);

  /// Takes over all commands; \p other stays bound to its storage and is empty.
  Smooth_Parfile(Smooth_Parfile&& other);

  /// Deletes all commands. Does not touch the storage.
  ~Smooth_Parfile() override;

  Smooth_Parfile(const Smooth_Parfile&) = delete;
  Smooth_Parfile& operator=(const Smooth_Parfile&) = delete;

  /// Reads all commands from the storage, then links them by their references.
  ///
  /// Throws: "%d commands of type X_ detected. Only one is expected." with code "204046270608" for a kind of which a
  /// job has exactly one; "Invalid ID %s of the parameter file command X_" with code "161700240908" for a reference to
  /// an unknown command; what the storage throws. The commands loaded before then stay.
  ///
  /// \warning A second call appends a second set of commands. The command whose own loading fails is lost, not deleted.
  virtual void Load();

  /// Checks the model ids of all commands against the open database and reports all unknown ones in one failure.
  ///
  /// Throws: "<count> model IDs referenced in the parameter file cannot be found...." without a code, cut at 1023
  /// characters; what the storage throws, the problems found before then being lost.
  virtual void ValidateModelIds();

  /// \name SMOOTH_
  /// Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it.
  ///
  /// By an id or by a place counted from 1. Throws: "Invalid ID %s of the parameter file command SMOOTH_" with code
  /// "161700240908"; "Invalid index %d of the parameterfile command SMOOTH_ to retrieve. Number of available commands
  /// is %d" with code "204046270608".
  /// @{
  std::vector<SMOOTH_*> GetSMOOTH_() const;
  SMOOTH_& GetSMOOTH_(const std::string& id) const;
  SMOOTH_& GetSMOOTH_(std::uint64_t index) const;
  bool HasSMOOTH_(const std::string& id) const;
  std::uint64_t NumSMOOTH_() const;
  /// @}

private:
  std::vector<SMOOTH_*> m_SMOOTH_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
