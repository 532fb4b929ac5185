#include "hostile/case_file.h"
#include "hostile/FileWriter.h"

#include <fstream>
#include <iterator>

namespace
{

void PutPatches(const std::string& path, const std::vector<std::pair<haddr_t, std::string>>& patches)
{
  std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  for (const auto& [place, bytes] : patches)
  {
    file.seekp(static_cast<std::streamoff>(place));
    file << bytes;
  }
}

struct Form
{
  bool newest_format;
  hsize_t user_block;
};

void WriteJob(const std::string& path, Numbers& numbers, const JobPlan& plan, Form form)
{
  std::vector<std::pair<haddr_t, std::string>> patches;
  {
    FileWriter writer(path, form.newest_format, form.user_block, numbers);
    writer.Write(plan);
    patches = writer.Patches();
  }
  PutPatches(path, patches);
}

std::string BytesOf(const std::string& path)
{
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

void WriteStructuredCase(const std::string& path, std::uint64_t number)
{
  Numbers numbers(number);
  const Form form{numbers.OneIn(4), numbers.OneIn(50) ? hsize_t{512} : 0};
  JobPlan plan = PlanSoundJob(numbers, numbers.OneIn(10) ? 2 : 8);
  SpoilPlan(plan, numbers, 1 + numbers.Below(4));
  WriteJob(path, numbers, plan, form);
}

void WriteForeignFile(const std::string& back_to)
{
  Numbers numbers(0);
  FileWriter writer(kForeignFile, false, 0, numbers);
  writer.Write(PlanSoundJob(numbers, 1));
  writer.WriteWayBack(back_to);
}

// Each form of HDF5's structures is there in a small job, so that many cases can be run and most changes meet something
// that is read; whole jobs stand for the way of a load from one command to the next.
std::vector<std::string> SoundFiles(const std::string& path)
{
  const std::vector<std::vector<std::string>> small_jobs = {
    {"SMOOTH_"}, {"FILTER_", "DV_"}, {"OUTPUT_"}, {"MONITOR_", "DRESP_"}, {"FILTER_", "CONSTRAINT_"}};
  std::vector<std::string> files;
  const auto add = [&](const JobPlan& plan, Form form) {
    Numbers numbers(files.size());
    WriteJob(path, numbers, plan, form);
    files.push_back(BytesOf(path));
  };
  Numbers numbers(0);
  for (const std::vector<std::string>& kinds : small_jobs)
  {
    add(PlanSmallJob(numbers, kinds), {false, 0});
    add(PlanSmallJob(numbers, kinds), {true, 0});
  }
  add(PlanSmallJob(numbers, {"SMOOTH_"}), {false, 512});
  add(PlanSoundJob(numbers, 16), {false, 0});
  add(PlanSoundJob(numbers, 16), {true, 0});
  add(PlanSoundJob(numbers, 2), {false, 0});
  return files;
}
