#include "OrvelCommands/foundation/bounded_print_check.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

constexpr int kFormats = 20000;

// Seeded with a constant and drawn without the distributions of the library, so that every run anywhere is the same.
class RandomFormats
{
public:
  std::string Next()
  {
    // One in ten is long, so that the cut is met too.
    const std::size_t pieces = Below(10) == 0 ? Below(400) : Below(12);
    std::string format;
    for (std::size_t i = 0; i < pieces; ++i)
    {
      format += NextPiece();
    }
    return format;
  }

private:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(m_engine() % limit); }

  std::string NextPiece()
  {
    switch (Below(4))
    {
      case 0: return NextConversion();
      case 1: return std::string(1, static_cast<char>(Below(256)));
      case 2: return std::string(1, Pick("%%%-+ #0'*.123456789hlLqjztI64Idiuoxscpnfgea\"\n"));
      default: return "m_ID_NAME_: ";
    }
  }

  // A "%" with a random choice of all that may stand between it and a letter, in the order that printf wants.
  std::string NextConversion()
  {
    std::string conversion = "%";
    while (Below(3) == 0)
    {
      conversion += Pick("-+ #0'");
    }
    conversion += NextNumber();
    if (Below(3) == 0)
    {
      conversion += "." + NextNumber();
    }
    if (Below(3) == 0)
    {
      static const char* const modifiers[] = {"hh", "h", "l", "ll", "L", "q", "j", "z", "t", "I", "I32", "I64"};
      conversion += modifiers[Below(12)];
    }
    return conversion + Pick("diouxXcCsSpnfFeEgGaA%yw!");
  }

  std::string NextNumber()
  {
    switch (Below(5))
    {
      case 0: return "*";
      case 1: return std::to_string(Below(40));
      case 2: return std::to_string(Below(3000));
      case 3: return std::to_string(m_engine());  // up to twenty digits
      default: return "";
    }
  }

  char Pick(const std::string& choice) { return choice[Below(choice.size())]; }

  std::mt19937_64 m_engine{20240229};
};

}  // namespace

TEST(BoundedPrint, HoldsItsRulesOnManyRandomFormats)
{
  RandomFormats formats;
  for (int i = 0; i < kFormats; ++i)
  {
    const std::string format = formats.Next();
    ASSERT_EQ(BrokenRuleOfBoundedPrint(format), "")
      << "the format number " << i << " is " << testing::PrintToString(format);
  }
}
