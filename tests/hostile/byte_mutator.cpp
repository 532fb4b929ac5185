#include "hostile/case_file.h"
#include "hostile/Numbers.h"

#include <algorithm>
#include <cstring>
#include <fstream>

namespace
{

// Keeps the sequences of mutated cases apart from those of structured ones.
constexpr std::uint64_t kMutatedSequence = std::uint64_t{1} << 40;

class Mutator
{
public:
  Mutator(std::string& bytes, Numbers& numbers) : m_bytes(bytes), m_numbers(numbers) {}

  void Change()
  {
    switch (m_numbers.Below(9))
    {
      case 0: m_bytes[Place()] ^= static_cast<char>(1U << m_numbers.Below(8)); break;
      case 1: m_bytes[Place()] = static_cast<char>(m_numbers.Next()); break;
      case 2: m_bytes[Place()] = "\x00\x01\x7f\x80\xff"[m_numbers.Below(5)]; break;
      case 3: PutNumber(2); break;
      case 4: PutNumber(4); break;
      case 5: PutNumber(8); break;
      case 6: CopyBlock(8); break;
      case 7: CopyBlock(1 + m_numbers.Below(64)); break;
      default: Fill(); break;
    }
  }

  void Cut() { m_bytes.resize(m_numbers.Below(m_bytes.size()) + 1); }

private:
  // Most of a file is room that nothing uses yet; where something stands, a change is seen.
  std::size_t Place()
  {
    std::size_t place = m_numbers.Below(m_bytes.size());
    for (int attempt = 0; attempt < 8 && m_bytes[place] == '\0'; ++attempt)
    {
      place = m_numbers.Below(m_bytes.size());
    }
    return place;
  }

  void PutNumber(std::size_t width)
  {
    const std::uint64_t telling[] = {0,
                                     1,
                                     2,
                                     0x7f,
                                     0x80,
                                     0xff,
                                     0xffff,
                                     0x7fffffff,
                                     0x80000000,
                                     0xffffffff,
                                     ~0ULL >> 1,
                                     1ULL << 63U,
                                     ~0ULL,
                                     m_bytes.size(),
                                     m_numbers.Below(m_bytes.size()),
                                     m_numbers.Next()};
    Overwrite(Place(), &m_numbers.Choose(telling), width);
  }

  void CopyBlock(std::size_t size)
  {
    const std::size_t from = Place();
    const std::string block = m_bytes.substr(from, size);
    Overwrite(Place(), block.data(), block.size());
  }

  void Fill()
  {
    const std::string block(1 + m_numbers.Below(32), m_numbers.OneIn(2) ? '\0' : '\xff');
    Overwrite(Place(), block.data(), block.size());
  }

  void Overwrite(std::size_t place, const void* data, std::size_t size)
  {
    std::memcpy(&m_bytes[place], data, std::min(size, m_bytes.size() - place));
  }

  std::string& m_bytes;
  Numbers& m_numbers;
};

}  // namespace

void WriteMutatedCase(const std::string& path, const std::vector<std::string>& sound_files, std::uint64_t number)
{
  Numbers numbers(kMutatedSequence + number);
  // A small job takes a tenth of the time of a whole one and has every form of HDF5's structures.
  const std::size_t candidates = sound_files.size() - (numbers.OneIn(20) ? 0 : kWholeJobs);
  std::string bytes = sound_files[numbers.Below(candidates)];
  Mutator mutator(bytes, numbers);
  if (numbers.OneIn(50))
  {
    mutator.Cut();
  }
  const std::uint64_t changes = numbers.OneIn(8) ? 1 + numbers.Below(32) : 1 + numbers.Below(4);
  for (std::uint64_t i = 0; i < changes; ++i)
  {
    mutator.Change();
  }
  std::ofstream(path, std::ios::binary) << bytes;
}
