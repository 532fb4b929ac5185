/// \file
/// An identifier of HDF5 that closes itself.
#pragma once

#include <hdf5.h>

/// Owns one identifier of HDF5's C interface.
class Hdf5Handle
{
public:
  using Close = herr_t (*)(hid_t);

  Hdf5Handle(hid_t id, Close close) : m_id(id), m_close(close) {}
  Hdf5Handle(const Hdf5Handle&) = delete;
  Hdf5Handle& operator=(const Hdf5Handle&) = delete;
  ~Hdf5Handle()
  {
    if (IsOpen())
    {
      m_close(m_id);
    }
  }

  bool IsOpen() const { return m_id >= 0; }
  hid_t Id() const { return m_id; }

private:
  hid_t m_id;
  Close m_close;
};
