/// \file
/// The base of the parameter-file aggregates. One thread at a time.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"

/// A parameter file bound to one storage for life. Loading and checking are operations of each aggregate.
///
/// Ownership: the storage is not owned; see the aggregates for how long it must live.
class ORVELCOMMANDS_EXPORT Parfile
{
public:
  /// Binds to \p storage, from which nothing is read.
  explicit Parfile(const OrvelParfileStorage& storage);

  /// Binds to the storage of \p other.
  Parfile(const Parfile& other);

  /// Binds to the storage of \p other, which stays bound to it.
  Parfile(Parfile&& other) noexcept;

  Parfile& operator=(const Parfile&) = delete;
  virtual ~Parfile();

protected:
  const OrvelParfileStorage& m_storage;  ///< Not owned.
};
