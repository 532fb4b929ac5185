/// \file
/// The steps that reading and writing share. One thread at a time.
#pragma once

#include "peers/hdf5_handle.h"

#include <string>

namespace plain
{

/// One pass over the names of a group, ending at the match.
inline bool HasName(hid_t group, const std::string& name)
{
  const auto is_name = [](hid_t, const char* member, const H5L_info_t*, void* wanted) -> herr_t {
    return *static_cast<const std::string*>(wanted) == member ? 1 : 0;
  };
  hsize_t start = 0;
  return Checked(H5Literate(group, H5_INDEX_NAME, H5_ITER_INC, &start, is_name, const_cast<std::string*>(&name))) > 0;
}

/// Selects one element.
inline void Select(hid_t space, hsize_t position)
{
  const hsize_t count = 1;
  Checked(H5Sselect_hyperslab(space, H5S_SELECT_SET, &position, nullptr, &count, nullptr));
}

/// The space of one value, in memory and of a new key.
inline Space ValueSpace()
{
  const hsize_t size = 1;
  const hsize_t unlimited = H5S_UNLIMITED;
  return Space(H5Screate_simple(1, &size, &unlimited));
}

}  // namespace plain
