#include "hostile/random_elements.h"

#include <cstring>

RandomElements::RandomElements(hid_t file, const std::vector<std::string>& paths, hid_t type, std::size_t count,
                               Numbers& numbers)
  : m_file(file), m_paths(paths), m_numbers(numbers), m_elements(count * H5Tget_size(type))
{
  for (std::size_t i = 0; i < count; ++i)
  {
    Fill(type, m_elements.data() + i * H5Tget_size(type));
  }
}

void RandomElements::Fill(hid_t type, unsigned char* element)
{
  const std::size_t size = H5Tget_size(type);
  switch (H5Tget_class(type))
  {
    case H5T_COMPOUND: FillMembers(type, element); break;
    case H5T_ARRAY: FillItems(type, element); break;
    case H5T_VLEN: FillSequence(type, element); break;
    case H5T_REFERENCE:
      if (H5Tequal(type, H5T_STD_REF_OBJ) > 0)  // a reference to a region stays unset
      {
        H5Rcreate(element, m_file, m_numbers.Choose(m_paths).c_str(), H5R_OBJECT, -1);
      }
      break;
    case H5T_STRING:
      if (H5Tis_variable_str(type) > 0)
      {
        m_others.emplace_back(1 + m_numbers.Below(20));
        FillBytes(m_others.back().data(), m_others.back().size() - 1);  // and a NUL
        const unsigned char* text = m_others.back().data();
        std::memcpy(element, &text, sizeof text);
        break;
      }
      FillBytes(element, size);
      break;
    default: FillBytes(element, size); break;
  }
}

void RandomElements::FillBytes(unsigned char* bytes, std::size_t count)
{
  for (std::size_t i = 0; i < count; ++i)
  {
    bytes[i] = static_cast<unsigned char>(m_numbers.Next());
  }
}

void RandomElements::FillMembers(hid_t compound, unsigned char* element)
{
  for (int i = 0; i < H5Tget_nmembers(compound); ++i)
  {
    const hid_t member = H5Tget_member_type(compound, static_cast<unsigned>(i));
    Fill(member, element + H5Tget_member_offset(compound, static_cast<unsigned>(i)));
    H5Tclose(member);
  }
}

void RandomElements::FillItems(hid_t array, unsigned char* element)
{
  const hid_t item = H5Tget_super(array);
  for (std::size_t at = 0; at < H5Tget_size(array); at += H5Tget_size(item))
  {
    Fill(item, element + at);
  }
  H5Tclose(item);
}

void RandomElements::FillSequence(hid_t sequence, unsigned char* element)
{
  const hid_t item = H5Tget_super(sequence);
  const std::size_t count = m_numbers.Below(4);
  m_others.emplace_back(count * H5Tget_size(item) + 1);
  unsigned char* items = m_others.back().data();
  for (std::size_t i = 0; i < count; ++i)
  {
    Fill(item, items + i * H5Tget_size(item));
  }
  const hvl_t value{count, items};
  std::memcpy(element, &value, sizeof value);
  H5Tclose(item);
}
