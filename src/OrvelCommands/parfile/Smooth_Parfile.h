/// \file
/// The parameter file of a smoothing job. One thread at a time; the commands may be read from several threads.
///
/// Generated from smooth_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
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
/// Ownership: it owns every command; what its operations hand out belongs to it, passes on as it is moved, and lives as
/// long as the aggregate that owns it then. The storage is not owned and must outlive Load() and
/// ValidateModelIds(); nothing else touches it.
///
/// A kind of which a job has any number is read as a whole, by an id, or by a place counted from 1. Throws: "Invalid ID
/// %s of the parameter file command X_" with code "161700240908"; "Invalid index %d of the parameterfile command X_ to
/// retrieve. Number of available commands is %d" with code "204046270608".
///
/// Cost: a command is found by its id in one pass over the commands of its kind, for each reference that is linked too.
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

  /// Reads all commands from the storage.
  ///
  /// Throws: what the storage throws. The commands loaded before then stay.
  ///
  /// \warning A second call appends a second set of commands. The command whose own loading fails is lost, not deleted.
  virtual void Load();

  /// Checks the model ids of all commands against the open database and reports all unknown ones in one failure.
  /// Nothing else may work on the id maps of the database meanwhile.
  ///
  /// Throws: "<count> model IDs referenced in the parameter file cannot be found...." without a code, cut at 1023
  /// characters; a failure without a code where there is an id to check and no database is open; what the storage
  /// throws. The problems found before one of the last two are lost.
  ///
  /// \warning A "%" in an unknown id acts as a printf conversion of a zero or empty argument.
  virtual void ValidateModelIds();

  /// \name SMOOTH_
  /// @{

  /// Smoothing job: computes a surface from an optimization result, smooths, reduces and writes it.
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
