// Runs the library on many hostile parameter files, each case in a process that may die of it.
//
//   hostile_files structured|mutated <first case> <number of cases> --reference <reference_reader> [options]
//
// Every case depends on its number alone. When the library crashes, hangs, wants too much memory or throws what it must
// not, the case is made again and run alone, and the reference reader, which has none of our code, gets the same file.
// Only where it ends in the same way is the case HDF5's. Ends with 0 when there is no other case.
#include "hostile/case_file.h"
#include "hostile/exercise.h"
#include "hostile/exercise_tool.h"
#include "hostile/Supervised.h"
#include "support/TemporaryFolder.h"

#include <CLI/CLI.hpp>
#include <H5Cpp.h>
#include <malloc.h>
#include <sys/mman.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>

namespace
{

constexpr const char* kFile = "parfile_storage.hdf5";

// A process works through so many cases at most.
constexpr std::uint64_t kBatch = 250;

struct Options
{
  bool mutated = false;
  std::uint64_t first = 0;
  std::uint64_t count = 0;
  std::string reference;
  std::string valgrind;
  std::string tool;
  std::uint64_t tool_every = 0;
  std::string keep;
  std::uint64_t patient_cases = 5;
};

// What the working process tells the one that watches it.
struct Progress
{
  std::uint64_t current;
  std::uint64_t not_made;
  Ends ends;
  std::uint64_t too_many;
  std::uint64_t last_too_many;
};

Progress& Shared()
{
  static auto* progress =
    static_cast<Progress*>(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  return *progress;
}

}  // namespace

// Takes the place of the system's function: a case ends in many failures, and the backtrace that each takes along would
// be half of all the work.
extern "C" int backtrace(void**, int)
{
  return 0;
}

namespace
{

void FillFreshMemory()
{
  mallopt(M_PERTURB, 165);
  H5set_free_list_limits(0, 0, 0, 0, 0, 0);
}

Ends ExerciseCase(std::uint64_t number, bool patient, Limit limit)
{
  Ends ends = ExerciseFile(number, patient);
  SignOfLife(limit);
  const Ends of_tool = ExerciseTool(number);
  ends.good += of_tool.good;
  ends.failures += of_tool.failures;
  ends.binding_failures += of_tool.binding_failures;
  return ends;
}

class Campaign
{
public:
  explicit Campaign(const Options& options) : m_options(options), m_folder(std::filesystem::current_path().string())
  {
    if (options.mutated)
    {
      m_sound_files = SoundFiles(kFile);
    }
    else
    {
      WriteForeignFile(kFile);
    }
  }

  int Run()
  {
    const std::uint64_t end = m_options.first + m_options.count;
    for (std::uint64_t next = m_options.first; next < end;)
    {
      next = RunBatch(next, std::min(end, next + kBatch));
    }
    Report();
    return m_faults == 0 ? 0 : 1;
  }

private:
  // The number of the case to go on with.
  std::uint64_t RunBatch(std::uint64_t first, std::uint64_t end)
  {
    const std::uint64_t too_many_before = Shared().too_many;
    const Outcome outcome = RunSupervised([&] { WorkThrough(first, end); }, Limit::Quick);
    std::uint64_t next = end;
    if (outcome.end != End::Well)
    {
      next = Shared().current + 1;
      Judge(Shared().current, first, outcome.end);
    }
    if (Shared().too_many != too_many_before && m_patient_cases < m_options.patient_cases)
    {
      ++m_patient_cases;
      JudgeFully(Shared().last_too_many);
    }
    RunTool(first);
    return next;
  }

  void WorkThrough(std::uint64_t first, std::uint64_t end)
  {
    for (std::uint64_t number = first; number < end; ++number)
    {
      Shared().current = number;
      SignOfLife(Limit::Quick);
      if (Make(number))
      {
        SignOfLife(Limit::Quick);
        Exercise(number);
      }
    }
  }

  bool Make(std::uint64_t number)
  {
    std::filesystem::remove(kFile);  // a new file, which HDF5 cannot take for one that it still has open
    try
    {
      if (m_options.mutated)
      {
        WriteMutatedCase(kFile, m_sound_files, number);
      }
      else
      {
        WriteStructuredCase(kFile, number);
      }
      return true;
    }
    catch (const std::runtime_error&)
    {
      ++Shared().not_made;
      return false;
    }
  }

  static void Exercise(std::uint64_t number)
  {
    try
    {
      const Ends ends = ExerciseCase(number, false, Limit::Quick);
      Shared().ends.good += ends.good;
      Shared().ends.failures += ends.failures;
      Shared().ends.binding_failures += ends.binding_failures;
    }
    catch (const TooManyValues&)
    {
      ++Shared().too_many;
      Shared().last_too_many = number;
    }
  }

  bool MakeAlone(std::uint64_t number)
  {
    if (RunSupervised([&] { Make(number); }, Limit::Full).end == End::Well)
    {
      return true;
    }
    ++m_broken_makers;
    return false;
  }

  void Judge(std::uint64_t number, std::uint64_t first_of_batch, End end)
  {
    if (!MakeAlone(number))
    {
      return;
    }
    if (end == End::Hang)
    {
      JudgeHang(number);
      return;
    }
    const Outcome alone = RunAlone(number);
    if (alone.end != End::Well)
    {
      CompareWithReference(number, alone);
    }
    else
    {
      JudgeInCompany(number, first_of_batch, end);
    }
  }

  void JudgeHang(std::uint64_t number)
  {
    if (m_patient_hangs >= m_options.patient_cases &&
        RunReference(End::Hang, {m_folder}, Limit::Quick).end == End::Hang)
    {
      ++m_quick_hangs;
      Keep(number, "stopped, as HDF5 alone, after the quick limit");
      return;
    }
    const Outcome alone = RunSupervised([&] { ExerciseCase(number, true, Limit::Full); }, Limit::Full);
    if (alone.end == End::Well)
    {
      ++m_slow;  // beyond the quick limit and within the full one
      return;
    }
    ++m_patient_hangs;
    CompareWithReference(number, alone);
  }

  // With fresh memory filled, when the first attempt ends well.
  static Outcome RunAlone(std::uint64_t number)
  {
    const Outcome outcome = RunSupervised([&] { ExerciseCase(number, true, Limit::Full); }, Limit::Full);
    return outcome.end != End::Well ? outcome
                                    : RunSupervised(
                                        [&] {
                                          FillFreshMemory();
                                          ExerciseCase(number, true, Limit::Full);
                                        },
                                        Limit::Full);
  }

  // In the ways that an end may need: with fresh memory filled; each key at once; past the file's other faults, which
  // the library may meet later; and, for a crash, watched, as it is chance whether a read beside its memory kills a
  // program.
  Outcome RunReference(End expected, const std::vector<std::string>& arguments, Limit limit) const
  {
    Outcome outcome;
    const auto attempt = [&](const std::string& manner, const std::string& program, std::vector<std::string> first) {
      if (outcome.end != expected)
      {
        first.insert(first.end(), arguments.begin(), arguments.end());
        outcome = RunProgram(program, first, 0, limit);
        outcome.detail += manner;
      }
    };
    const auto attempt_with = [&](const std::string& option) { attempt(", " + option, m_options.reference, {option}); };
    attempt("", m_options.reference, {});
    attempt_with("--fill");
    attempt_with("--whole");
    if (expected == End::Hang)
    {
      attempt_with("--until-hang");
    }
    if (expected == End::Crash)
    {
      attempt_with("--open");
      attempt_with("--until-crash");
    }
    if (expected == End::Crash && !m_options.valgrind.empty())
    {
      const std::string exit_code = "--error-exitcode=" + std::to_string(kCrashExit);
      attempt(", valgrind", m_options.valgrind, {"--quiet", exit_code, m_options.reference});
      attempt(", valgrind --until-crash", m_options.valgrind,
              {"--quiet", exit_code, m_options.reference, "--until-crash"});
    }
    return outcome;
  }

  void JudgeFully(std::uint64_t number)
  {
    if (MakeAlone(number))
    {
      CompareWithReference(number, RunAlone(number));
    }
  }

  void CompareWithReference(std::uint64_t number, const Outcome& alone)
  {
    Compare(number, "", alone, RunReference(alone.end, {m_folder}, Limit::Full));
  }

  // HDF5 may have spoiled its own memory in an earlier case of the same process.
  void JudgeInCompany(std::uint64_t number, std::uint64_t first_of_batch, End end)
  {
    std::vector<std::string> arguments{"--impatient"};
    std::vector<std::filesystem::path> folders;
    for (std::uint64_t one = first_of_batch; one <= number; ++one)
    {
      folders.push_back(std::filesystem::path(m_folder) / std::to_string(one));
      arguments.push_back(folders.back().string());
      if (MakeAlone(one))
      {
        CopyCaseTo(folders.back());
      }
    }
    Compare(number, " after the cases from " + std::to_string(first_of_batch), {end, ""},
            RunReference(end, arguments, Limit::Full));
    for (const std::filesystem::path& folder : folders)
    {
      std::filesystem::remove_all(folder);
    }
  }

  void Compare(std::uint64_t number, const std::string& company, const Outcome& ours, const Outcome& reference)
  {
    const bool same = reference.end == ours.end;
    ++(same ? m_ends_of_hdf5[ours.end] : m_faults);
    Keep(number, NameOf(ours.end) + company + " (" + ours.detail + "); HDF5 alone " + NameOf(reference.end) + " (" +
                   reference.detail + ")" + (same ? "" : ": FAULT"));
  }

  static void CopyCaseTo(const std::filesystem::path& folder)
  {
    std::filesystem::create_directories(folder);
    for (const char* file : {kFile, kForeignFile})
    {
      if (std::filesystem::exists(file))
      {
        std::filesystem::copy_file(file, folder / file, std::filesystem::copy_options::overwrite_existing);
      }
    }
  }

  // Tells how the programs ended, and lays it beside the file.
  void Keep(std::uint64_t number, const std::string& ends) const
  {
    std::cout << "case " << number << ": " << ends << std::endl;
    if (!m_options.keep.empty())
    {
      const std::filesystem::path folder = std::filesystem::path(m_options.keep) /
                                           ((m_options.mutated ? "mutated_" : "structured_") + std::to_string(number));
      CopyCaseTo(folder);
      std::ofstream(folder / "ends.txt") << ends << "\n";
    }
  }

  // The tool as a process of its own, on one case now and then.
  void RunTool(std::uint64_t number)
  {
    if (m_options.tool_every == 0 || number % m_options.tool_every >= kBatch)
    {
      return;
    }
    if (!MakeAlone(number) || !std::filesystem::exists(kFile))
    {
      return;
    }
    for (const std::vector<std::string>& line : ReadingCommandLines())
    {
      ++m_tool_runs;
      const Outcome tool = RunProgram(m_options.tool, line, 2, Limit::Full);
      if (tool.end != End::Well)
      {
        Compare(number, " in the tool's " + line.front(), tool, RunReference(tool.end, {m_folder}, Limit::Full));
        return;  // the other forms would take as long to tell the same
      }
    }
  }

  void Report() const
  {
    const Progress& progress = Shared();
    std::cout << (m_options.mutated ? "mutated" : "structured") << " cases from " << m_options.first << ": "
              << m_options.count << "\n"
              << "  operations that ended well: " << progress.ends.good << "\n"
              << "  with a failure of the library: " << progress.ends.failures << "\n"
              << "  with an exception of HDF5's binding: " << progress.ends.binding_failures << "\n"
              << "  cases that HDF5 could not write: " << progress.not_made + m_broken_makers << "\n"
              << "  cases left at a key of more than " << kPatience << " values: " << progress.too_many << "\n"
              << "  runs of the tool: " << m_tool_runs << "\n";
    for (const auto& [end, number] : m_ends_of_hdf5)
    {
      std::cout << "  cases in which the library and HDF5 alone both end so: " << NameOf(end) << ": " << number << "\n";
    }
    std::cout << "  cases stopped in both after " << kQuickMilliseconds
              << " milliseconds of processor time: " << m_quick_hangs << "\n"
              << "  cases that took longer than that and ended: " << m_slow << "\n"
              << "  faults of the library: " << m_faults << std::endl;
  }

  Options m_options;
  std::string m_folder;
  std::vector<std::string> m_sound_files;
  std::map<End, std::uint64_t> m_ends_of_hdf5;
  std::uint64_t m_faults = 0;
  std::uint64_t m_broken_makers = 0;
  std::uint64_t m_patient_cases = 0;
  std::uint64_t m_patient_hangs = 0;
  std::uint64_t m_quick_hangs = 0;
  std::uint64_t m_slow = 0;
  std::uint64_t m_tool_runs = 0;
};

}  // namespace

int main(int argc, char** argv)
{
  Options options;
  std::string family;
  CLI::App app("Runs the library on many hostile parameter files.");
  app.add_option("family", family)->required()->check(CLI::IsMember({"structured", "mutated"}));
  app.add_option("first", options.first)->required();
  app.add_option("count", options.count)->required();
  app.add_option("--reference", options.reference, "The reference reader")->required()->check(CLI::ExistingFile);
  app.add_option("--valgrind", options.valgrind, "valgrind, to watch the reference reader where a crash is chance")
    ->check(CLI::ExistingFile);
  app.add_option("--tool", options.tool, "orvel-parfile, to be run on some cases too")->check(CLI::ExistingFile);
  app.add_option("--tool-every", options.tool_every, "Run the tool on one of so many cases");
  app.add_option("--keep", options.keep,
                 "The folder that keeps the files of the cases that are reported, with how they ended");
  app
    .add_option("--patient", options.patient_cases,
                "So many of the cases that hang, and of those that declare too many values, get all the time there is")
    ->capture_default_str();
  CLI11_PARSE(app, argc, argv);
  options.mutated = family == "mutated";
  for (std::string* path : {&options.reference, &options.tool, &options.keep})
  {
    *path = path->empty() ? "" : std::filesystem::absolute(*path).string();
  }
  // One case asks for much the same memory as the next: giving it back to the system in between takes most of the time.
  mallopt(M_TRIM_THRESHOLD, 1 << 28);
  mallopt(M_MMAP_THRESHOLD, 1 << 26);
  H5::Exception::dontPrint();
  const TemporaryFolder folder;
  return Campaign(options).Run();
}
