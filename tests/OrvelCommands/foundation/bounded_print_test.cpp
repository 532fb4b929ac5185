#include "OrvelCommands/foundation/bounded_print.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <limits>
#include <string_view>
#include <vector>

using orvel::detail::BoundedPrint;

namespace
{

std::string Print(const std::string& format)
{
  return BoundedPrint(format.c_str());
}

struct Row
{
  const char* format;
  const char* printed;
};

void ExpectRows(const std::vector<Row>& rows)
{
  for (const Row& row : rows)
  {
    EXPECT_EQ(Print(row.format), row.printed) << "of the format \"" << row.format << "\"";
  }
}

// Hides from the compiler that the format is no literal.
std::string PrintByTheCLibrary(const char* format, ...)
{
  std::array<char, 4096> buffer{};
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
  va_end(arguments);
  return std::string(buffer.data()).substr(0, 1023);
}

// Zero in the type that the conversion reads.
std::string PrintZeroByTheCLibrary(const std::string& format, std::string_view modifier, char letter)
{
  const char* const text = format.c_str();
  if (std::string_view("fFeEgGaA").find(letter) != std::string_view::npos)
  {
    return modifier == "L" ? PrintByTheCLibrary(text, 0.0L) : PrintByTheCLibrary(text, 0.0);
  }
  if (letter == 's')
  {
    return PrintByTheCLibrary(text, "");
  }
  if (letter == 'p')
  {
    return PrintByTheCLibrary(text, static_cast<void*>(nullptr));
  }
  const bool is_long = !modifier.empty() && modifier != "h" && modifier != "hh";
  return is_long ? PrintByTheCLibrary(text, 0LL) : PrintByTheCLibrary(text, 0);
}

// Conversions that the language defines for the same flags, widths and precisions.
struct Family
{
  std::string_view letters;
  std::vector<std::string> flags;
  std::vector<std::string> precisions;
  std::vector<std::string> modifiers;
};

const std::vector<std::string> kWidths = {"", "1", "2", "7", "40", "1022", "1023", "1024", "1500"};
const std::vector<std::string> kPrecisions = {"", ".", ".0", ".1", ".3", ".40", ".1022", ".1023", ".1024"};

// Each head with each tail behind it.
std::vector<std::string> Combine(const std::vector<std::string>& heads, const std::vector<std::string>& tails)
{
  std::vector<std::string> texts;
  for (const std::string& head : heads)
  {
    for (const std::string& tail : tails)
    {
      texts.push_back(head + tail);
    }
  }
  return texts;
}

void ExpectAsTheCLibrary(const Family& family, char letter)
{
  const std::vector<std::string> beginnings =
    Combine(Combine(Combine({"<%"}, family.flags), kWidths), family.precisions);
  for (const std::string& beginning : beginnings)
  {
    for (const std::string& modifier : family.modifiers)
    {
      const std::string format = beginning + modifier + letter + ">";
      ASSERT_EQ(Print(format), PrintZeroByTheCLibrary(format, modifier, letter)) << "of the format " << format;
    }
  }
}

void ExpectAsTheCLibrary(const Family& family)
{
  for (const char letter : family.letters)
  {
    ExpectAsTheCLibrary(family, letter);
  }
}

}  // namespace

TEST(BoundedPrint, GivesATextWithoutPercentSignsAsItIs)
{
  ExpectRows(
    {{"", ""}, {"plain", "plain"}, {"a\nb\t\"c\" \\ $1 {}", "a\nb\t\"c\" \\ $1 {}"}, {"\xc3\xbc\xff", "\xc3\xbc\xff"}});
}

TEST(BoundedPrint, GivesAPercentSignForTwo)
{
  ExpectRows({{"%%", "%"}, {"100%%", "100%"}, {"%%%%", "%%"}, {"%%d", "%d"}, {"%%%d", "%0"}, {"a%%b%%c", "a%b%c"}});
}

TEST(BoundedPrint, PrintsAZeroForAnIntegerConversion)
{
  ExpectRows({{"%d", "0"},
              {"%i", "0"},
              {"%u", "0"},
              {"%o", "0"},
              {"%x", "0"},
              {"%X", "0"},
              {"<%5d>", "<    0>"},
              {"<%-5d>", "<0    >"},
              {"<%05d>", "<00000>"},
              {"<%+d>", "<+0>"},
              {"<% d>", "< 0>"},
              {"<%+5d>", "<   +0>"},
              {"<%.3d>", "<000>"},
              {"<%6.3d>", "<   000>"},
              {"<%-6.3d>", "<000   >"},
              {"<%.0d>", "<>"},
              {"<%.d>", "<>"},
              {"<%3.0d>", "<   >"},
              {"<%#x>", "<0>"},
              {"<%#o>", "<0>"},
              {"<%#.0o>", "<0>"},
              {"<%'d>", "<0>"},
              {"a%db%dc", "a0b0c"}});
}

TEST(BoundedPrint, PrintsAZeroForAnIntegerOfAnyLength)
{
  ExpectRows({{"%hhd", "0"},
              {"%hd", "0"},
              {"%ld", "0"},
              {"%lld", "0"},
              {"%jd", "0"},
              {"%zu", "0"},
              {"%td", "0"},
              {"%Iu", "0"},
              {"%Id", "0"},
              {"%I64d", "0"},
              {"%I64u", "0"},
              {"%I32d", "0"},
              {"<%4lu>", "<   0>"}});
}

TEST(BoundedPrint, PrintsAZeroForAFloatingConversion)
{
  ExpectRows({{"%f", "0.000000"},
              {"%F", "0.000000"},
              {"%e", "0.000000e+00"},
              {"%E", "0.000000E+00"},
              {"%g", "0"},
              {"%G", "0"},
              {"%Lf", "0.000000"},
              {"%lf", "0.000000"},
              {"%.2f", "0.00"},
              {"%.0f", "0"},
              {"%#.0f", "0."},
              {"%#g", "0.00000"},
              {"<%8.2f>", "<    0.00>"},
              {"<%-8.2f>", "<0.00    >"},
              {"<%08.2f>", "<00000.00>"},
              {"<%+.1f>", "<+0.0>"},
              {"<% .1f>", "< 0.0>"},
              {"<%.1e>", "<0.0e+00>"}});
}

TEST(BoundedPrint, PrintsNothingButTheWidthForATextConversion)
{
  ExpectRows({{"%s", ""},
              {"<%s>", "<>"},
              {"<%4s>", "<    >"},
              {"<%-4s>", "<    >"},
              {"<%.2s>", "<>"},
              {"<%4.2s>", "<    >"},
              {"<%ls>", "<>"},
              {"<%S>", "<>"}});
}

TEST(BoundedPrint, EndsAtACharacterConversionWhichPrintsANul)
{
  ExpectRows(
    {{"%c", ""}, {"before%cafter", "before"}, {"<%3c>", "<  "}, {"<%-3c>", "<"}, {"<%lc>", "<"}, {"<%C>", "<"}});
}

TEST(BoundedPrint, WritesNothingForN)
{
  ExpectRows({{"%n", ""}, {"a%nb", "ab"}, {"%n%n%n", ""}, {"a%hhnb", "ab"}, {"a%lnb", "ab"}, {"a%llnb", "ab"}});
}

TEST(BoundedPrint, TakesZeroForAWidthOrPrecisionThatIsAnArgument)
{
  ExpectRows({{"<%*d>", "<0>"},
              {"<%-*d>", "<0>"},
              {"<%*s>", "<>"},
              {"<%.*f>", "<0>"},
              {"<%.*d>", "<>"},
              {"<%*.*f>", "<0>"},
              {"<%5.*f>", "<    0>"},
              {"<%*.1f>", "<0.0>"}});
}

TEST(BoundedPrint, FindsConversionsInATextThatWasNeverMeantAsAFormat)
{
  ExpectRows({{"50% done", "50 0one"},
              {"100%, of it", "100%, of it"},
              {"5%fast", "50.000000ast"},
              {"a%20group", "a                   0roup"}});
}

TEST(BoundedPrint, KeepsAPercentSignAtTheEnd)
{
  ExpectRows({{"%", "%"},
              {"100%", "100%"},
              {"%%%", "%%"},
              {"100% ", "100% "},
              {"%5", "%5"},
              {"%-", "%-"},
              {"%.", "%."},
              {"%.3", "%.3"},
              {"%l", "%l"},
              {"%I64", "%I64"},
              {"%*", "%*"},
              {"%d%", "0%"}});
}

TEST(BoundedPrint, KeepsWhatIsNoConversion)
{
  ExpectRows({{"%y", "%y"},
              {"%!", "%!"},
              {"%\n", "%\n"},
              {"%\"", "%\""},
              {"%5y", "%5y"},
              {"%-+ #0y", "%-+ #0y"},
              {"%.3y", "%.3y"},
              {"%lly", "%lly"},
              {"%y%d", "%y0"},
              {"%5y%%", "%5y%"},
              {"%\xff", "%\xff"}});
}

TEST(BoundedPrint, PrintsAsTheCLibraryDoesWithZeros)
{
  ExpectAsTheCLibrary(
    {"di", {"", "-", "+", " ", "0", "-+", "+0", "- ", " 0"}, kPrecisions, {"", "h", "hh", "l", "ll", "j", "z", "t"}});
  ExpectAsTheCLibrary({"u", {"", "-", "0"}, kPrecisions, {"", "h", "hh", "l", "ll", "j", "z", "t"}});
  ExpectAsTheCLibrary({"oxX", {"", "-", "0", "#", "-#", "#0"}, kPrecisions, {"", "h", "hh", "l", "ll"}});
  ExpectAsTheCLibrary({"fFeEgGaA", {"", "-", "+", " ", "0", "#", "-#+", "#+0", "# 0"}, kPrecisions, {"", "l", "L"}});
  ExpectAsTheCLibrary({"s", {"", "-"}, kPrecisions, {""}});
  ExpectAsTheCLibrary({"c", {"", "-"}, {""}, {""}});
  ExpectAsTheCLibrary({"p", {"", "-"}, {""}, {""}});
}

TEST(BoundedPrint, PutsArgumentsInTheirOrder)
{
  EXPECT_EQ(BoundedPrint("%s of %d in %Iu", {"five", 5, std::uint64_t{500}}), "five of 5 in 500");
}

TEST(BoundedPrint, PrintsNumbersOverTheirWholeRange)
{
  EXPECT_EQ(BoundedPrint("%d %d", {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}),
            "-2147483648 2147483647");
  EXPECT_EQ(BoundedPrint("%Iu %Iu", {std::uint64_t{0}, std::numeric_limits<std::uint64_t>::max()}),
            "0 18446744073709551615");
}

TEST(BoundedPrint, TakesATextOfEitherKindAndPrintsItAsItIs)
{
  const std::string text = "100%d %s %n";
  EXPECT_EQ(BoundedPrint("<%s>", {text}), "<100%d %s %n>");
  EXPECT_EQ(BoundedPrint("<%s>", {text.c_str()}), "<100%d %s %n>");
  EXPECT_EQ(BoundedPrint("<%s>", {""}), "<>");
}

TEST(BoundedPrint, TakesAZeroOrAnEmptyTextForAnArgumentThatIsMissing)
{
  EXPECT_EQ(BoundedPrint("%d|%s|%Iu|%d", {7}), "7||0|0");
}

TEST(BoundedPrint, LeavesArgumentsAloneThatNoConversionTakes)
{
  EXPECT_EQ(BoundedPrint("plain", {"text", 7}), "plain");
  EXPECT_EQ(BoundedPrint("%%%d%%", {7, 8}), "%7%");
}

TEST(BoundedPrint, DoesNotTakeAnArgumentForAConversionOfAnotherForm)
{
  EXPECT_EQ(BoundedPrint("%5d|%x|%f|%d", {7}), "    0|0|0.000000|7");
}

TEST(BoundedPrint, TakesAnArgumentOfTheOtherKindAsZeroOrEmpty)
{
  EXPECT_EQ(BoundedPrint("<%d|%Iu|%s|%s>", {"text", "text", 7, std::uint64_t{7}}), "<0|0||>");
}

TEST(BoundedPrint, EndsAFormatAtItsNul)
{
  EXPECT_EQ(Print(std::string("before\0after", 12)), "before");
  EXPECT_EQ(Print(std::string("%5\0d", 4)), "%5");
}

TEST(BoundedPrint, EndsAnArgumentAtItsNulAndGoesOn)
{
  EXPECT_EQ(BoundedPrint("<%s>", {std::string("before\0after", 12)}), "<before>");
}

TEST(BoundedPrint, KeepsATextOfUpTo1023Characters)
{
  EXPECT_EQ(Print(std::string(1022, 'x')), std::string(1022, 'x'));
  EXPECT_EQ(Print(std::string(1023, 'x')), std::string(1023, 'x'));
}

TEST(BoundedPrint, CutsALongerTextAt1023Characters)
{
  EXPECT_EQ(Print(std::string(1024, 'x')), std::string(1023, 'x'));
  EXPECT_EQ(Print(std::string(100000, 'x')), std::string(1023, 'x'));
}

TEST(BoundedPrint, CutsWithinAConversion)
{
  EXPECT_EQ(Print(std::string(1020, 'x') + "%8d"), std::string(1020, 'x') + "   ");
  EXPECT_EQ(Print(std::string(1020, 'x') + "%-8d"), std::string(1020, 'x') + "0  ");
  EXPECT_EQ(Print(std::string(1022, 'x') + "%f"), std::string(1022, 'x') + "0");
  EXPECT_EQ(Print(std::string(1023, 'x') + "%d"), std::string(1023, 'x'));
  EXPECT_EQ(Print(std::string(1022, 'x') + "%%%%"), std::string(1022, 'x') + "%");
}

TEST(BoundedPrint, CutsWithinAnArgument)
{
  EXPECT_EQ(BoundedPrint("ID %s is wrong", {std::string(1020, 'y')}), "ID " + std::string(1020, 'y'));
  EXPECT_EQ(BoundedPrint("ID %s is wrong", {std::string(5000, 'y')}), "ID " + std::string(1020, 'y'));
  EXPECT_EQ(BoundedPrint("ID %s is wrong", {std::string(1015, 'y')}), "ID " + std::string(1015, 'y') + " is w");
}

TEST(BoundedPrint, CutsFieldsOfHugeWidth)
{
  const std::string blanks(1023, ' ');
  EXPECT_EQ(Print("%99999d"), blanks);
  EXPECT_EQ(Print("%2147483647d"), blanks);
  EXPECT_EQ(Print("%2147483648d"), blanks);
  EXPECT_EQ(Print("%99999999999999999999999999999999d"), blanks);
  EXPECT_EQ(Print("%99999s"), blanks);
  EXPECT_EQ(Print("%99999c"), blanks);
  EXPECT_EQ(Print("%99999f"), blanks);
  EXPECT_EQ(Print("%-99999d"), "0" + std::string(1022, ' '));
  EXPECT_EQ(Print("%099999d"), std::string(1023, '0'));
  EXPECT_EQ(Print("ab%99999dcd"), "ab" + std::string(1021, ' '));
}

TEST(BoundedPrint, CutsFieldsOfHugePrecision)
{
  EXPECT_EQ(Print("%.99999d"), std::string(1023, '0'));
  EXPECT_EQ(Print("%.99999999999999999999d"), std::string(1023, '0'));
  EXPECT_EQ(Print("%.99999f"), "0." + std::string(1021, '0'));
  EXPECT_EQ(Print("<%.99999s>"), "<>");
  EXPECT_EQ(Print("%99999.99999d"), std::string(1023, '0'));
}

TEST(BoundedPrint, CutsWhatManyConversionsGiveTogether)
{
  std::string format;
  for (int i = 0; i < 500; ++i)
  {
    format += "%100d";
  }
  EXPECT_EQ(Print(format).size(), 1023U);
}
