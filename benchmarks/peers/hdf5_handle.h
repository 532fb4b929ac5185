/// \file
/// Handles of HDF5's C interface that close themselves. One thread at a time.
#pragma once

#include <hdf5.h>

#include <stdexcept>

namespace plain
{

/// Throws: std::runtime_error for a negative result of HDF5.
template <class Result>
Result Checked(Result result)
{
  if (result < 0)
  {
    throw std::runtime_error("a call of HDF5 failed");
  }
  return result;
}

/// Owns a handle.
template <herr_t (*Close)(hid_t)>
class Handle
{
public:
  explicit Handle(hid_t handle) : m_handle(Checked(handle)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(m_handle); }

  operator hid_t() const { return m_handle; }  // NOLINT(google-explicit-constructor): stands for the handle in calls

private:
  hid_t m_handle;
};

using File = Handle<H5Fclose>;
using Group = Handle<H5Gclose>;
using Dataset = Handle<H5Dclose>;
using Space = Handle<H5Sclose>;
using Type = Handle<H5Tclose>;
using PropertyList = Handle<H5Pclose>;

/// The transfer of one element with a conversion buffer as small as the library's own. HDF5's default is a megabyte,
/// which it zeroes at each transfer that converts.
class SmallTransfer : public PropertyList
{
public:
  SmallTransfer() : PropertyList(H5Pcreate(H5P_DATASET_XFER)) { Checked(H5Pset_buffer(*this, 4096, nullptr, nullptr)); }
};

/// Opens a file with the chunk cache that the storage's contract demands.
inline hid_t OpenAsDemanded(const char* path, unsigned flags)
{
  const PropertyList access(H5Pcreate(H5P_FILE_ACCESS));
  Checked(H5Pset_cache(access, 100, 5000, 0x40000000, 0.0));
  return H5Fopen(path, flags, access);
}

}  // namespace plain
