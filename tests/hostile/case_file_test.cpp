#include "hostile/case_file.h"
#include "hostile/exercise.h"
#include "hostile/exercise_tool.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <H5Cpp.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace
{

constexpr const char* kFile = "parfile_storage.hdf5";

std::string BytesOfFile()
{
  std::ifstream file(kFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class HostileFiles : public testing::Test
{
protected:
  static std::string BytesOfStructuredCase(std::uint64_t number)
  {
    std::filesystem::remove(kFile);
    WriteStructuredCase(kFile, number);
    return BytesOfFile();
  }

private:
  TemporaryFolder m_folder;
};

}  // namespace

TEST_F(HostileFiles, DependOnTheNumberOfTheCaseAlone)
{
  std::set<std::string> all;
  for (const std::uint64_t number : {0, 1, 2, 3})
  {
    const std::string bytes = BytesOfStructuredCase(number);
    EXPECT_EQ(BytesOfStructuredCase(number), bytes) << number;
    all.insert(bytes);
  }
  EXPECT_EQ(all.size(), 4U);
}

TEST_F(HostileFiles, AreMutatedFromTheirSoundFilesByTheNumberOfTheCaseAlone)
{
  const std::vector<std::string> sound = SoundFiles(kFile);
  EXPECT_EQ(SoundFiles(kFile), sound);
  std::set<std::string> all(sound.begin(), sound.end());
  for (const std::uint64_t number : {0, 1, 2, 3})
  {
    WriteMutatedCase(kFile, sound, number);
    const std::string bytes = BytesOfFile();
    WriteMutatedCase(kFile, sound, number);
    EXPECT_EQ(BytesOfFile(), bytes) << number;
    all.insert(bytes);
  }
  EXPECT_EQ(all.size(), sound.size() + 4);
}

// The exercise must reach what it is there for: the last sound files are whole fluid jobs.
TEST_F(HostileFiles, AreLoadedCheckedAndShownWhereTheyAreSound)
{
  H5::Exception::dontPrint();
  const std::vector<std::string> sound = SoundFiles(kFile);
  ASSERT_EQ(sound.size(), 14U);
  for (std::size_t i = sound.size() - kWholeJobs; i < sound.size(); ++i)
  {
    std::filesystem::remove(kFile);
    std::ofstream(kFile, std::ios::binary) << sound[i];
    std::vector<std::string> steps;
    ExerciseFile(0, true, [&](const std::string& step) { steps.push_back(step); });
    EXPECT_EQ(steps,
              (std::vector<std::string>{"opened", "Gyre_Parfile loaded", "Gyre_Parfile validated", "Gyre_Parfile shown",
                                        "Smooth_Parfile loaded", "Smooth_Parfile validated", "Smooth_Parfile shown"}))
      << i;
  }
}

TEST_F(HostileFiles, AreShownByTheToolInEachFormWhereTheyAreSound)
{
  H5::Exception::dontPrint();
  const std::vector<std::string> sound = SoundFiles(kFile);
  std::ofstream(kFile, std::ios::binary) << sound.back();
  std::set<std::string> lines;
  for (const std::uint64_t number : {0, 1, 2, 3, 4})
  {
    ExerciseTool(number, [&](const std::string& line, bool is_good) {
      lines.insert(line);
      EXPECT_TRUE(is_good || line.rfind("check", 0) == 0) << line;  // its values are no ones that a user would choose
    });
  }
  EXPECT_EQ(lines, (std::set<std::string>{"check .", "check . --job smooth", "check . --json", "show .",
                                          "show . --json", "show . --log", "show . --log --job smooth"}));
}

TEST_F(HostileFiles, CanLeadIntoAForeignFile)
{
  H5::Exception::dontPrint();
  WriteForeignFile(kFile);
  std::filesystem::copy_file(kForeignFile, kFile);
  std::vector<std::string> steps;
  ExerciseFile(0, true, [&](const std::string& step) { steps.push_back(step); });
  EXPECT_EQ(steps.size(), 7U);
}
