/// \file
/// Elements of any HDF5 type with something in them. One thread at a time.
#pragma once

#include "hostile/Numbers.h"

#include <hdf5.h>

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

/// Holds the elements, and what the pointers in them lead to, for as long as it lives.
class RandomElements
{
public:
  /// \p count elements of \p type: any bytes for numbers, short texts and sequences, object references to the groups
  /// \p paths of \p file. \p paths is not empty.
  RandomElements(hid_t file, const std::vector<std::string>& paths, hid_t type, std::size_t count, Numbers& numbers);

  const void* Data() const { return m_elements.data(); }

private:
  void Fill(hid_t type, unsigned char* element);
  void FillBytes(unsigned char* bytes, std::size_t count);
  void FillMembers(hid_t compound, unsigned char* element);
  void FillItems(hid_t array, unsigned char* element);
  void FillSequence(hid_t sequence, unsigned char* element);

  hid_t m_file;
  const std::vector<std::string>& m_paths;
  Numbers& m_numbers;
  std::vector<unsigned char> m_elements;
  std::deque<std::vector<unsigned char>> m_others;
};
