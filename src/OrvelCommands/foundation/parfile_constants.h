/// \file
/// Constants that the modules of a job share. Constants only, safe from any thread.
#pragma once

/// The file of the HDF5 storage. It lies in the working directory of the process.
inline constexpr const char* PARFILE_STORAGE_FILE = "parfile_storage.hdf5";
