/// \file
/// The HDF5 storage for Python.
#pragma once

#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <pybind11/pybind11.h>

#include <filesystem>
#include <memory>
#include <string>

namespace orvel::python
{

/// Owns one ParfileHdf5Storage, which must not be copied, and lets it go at a moment that the caller chooses.
class Storage
{
public:
  /// \param mode "r" to read, "r+" to read and write, "x" to make a new file
  /// Throws: the failure of the storage, after which no file stays open.
  Storage(const std::filesystem::path& folder, const std::string& mode);

  /// Throws: ValueError once it is closed.
  ParfileHdf5Storage& Open() const;

  bool IsClosed() const { return m_storage == nullptr; }
  void Close() { m_storage.reset(); }

private:
  std::unique_ptr<ParfileHdf5Storage> m_storage;
};

void BindStorage(pybind11::module_& module);

}  // namespace orvel::python
