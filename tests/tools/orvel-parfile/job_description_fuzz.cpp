/// \file
/// Takes bytes as the text of a job description: it must end in a job or in the tool's own errors. What becomes a job
/// is checked, printed and read again. `./run fuzz` runs it.
#include "check/report.h"
#include "check/rules.h"
#include "job/graph_text.h"
#include "job/job_description.h"
#include "job/job_difference.h"
#include "job/job_kind.h"
#include "job/job_listing.h"
#include "job/job_text.h"
#include "support/exit_code.h"
#include "support/plain_text.h"
#include "support/style.h"

#include <nlohmann/json.hpp>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <sstream>

namespace
{

void Require(bool holds, const char* what)
{
  if (!holds)
  {
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
  }
}

// A file in memory that a program can open by its path.
class MemoryFile
{
public:
  explicit MemoryFile(const std::string& text) : m_descriptor(memfd_create("job", 0))
  {
    Require(write(m_descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size()), "the file of a case");
  }
  ~MemoryFile() { close(m_descriptor); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string Path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
  int m_descriptor;
};

// An error that a user can read: not empty, and beginning with the file.
void RequireClear(const std::string& error, const std::string& path)
{
  Require(error.rfind(path + ":", 0) == 0 && error.size() > path.size() + 2, "an error begins with its place");
}

std::optional<JobDescription> Read(const std::string& text)
{
  const MemoryFile file(text);
  try
  {
    return ReadJobDescription(file.Path());
  }
  catch (const UnusableInput& error)
  {
    RequireClear(error.what(), file.Path());
    return std::nullopt;
  }
}

// As import reads: either no fault at all, or an error with them.
void ReadSoundly(const std::string& text, bool is_sound)
{
  const MemoryFile file(text);
  try
  {
    ReadSoundJobDescription(file.Path());
    Require(is_sound, "a description with faults is no sound one");
  }
  catch (const FaultyInput& error)
  {
    RequireClear(error.what(), file.Path());
    Require(!is_sound, "a description without faults is a sound one");
  }
}

bool HaveSameBits(double one, double other)
{
  return std::memcmp(&one, &other, sizeof one) == 0;
}

bool AreSame(const JobValue& one, const JobValue& other)
{
  const auto* number = std::get_if<double>(&one);
  const auto* numbers = std::get_if<std::vector<double>>(&one);
  if (one.index() != other.index() || (number == nullptr && numbers == nullptr))
  {
    return one == other;
  }
  if (number != nullptr)
  {
    return HaveSameBits(*number, std::get<double>(other));
  }
  const auto& others = std::get<std::vector<double>>(other);
  return std::equal(numbers->begin(), numbers->end(), others.begin(), others.end(), HaveSameBits);
}

bool AreSame(const JobKey& one, const JobKey& other)
{
  return one.name == other.name && one.type == other.type &&
         std::equal(one.items.begin(), one.items.end(), other.items.begin(), other.items.end(),
                    [](const JobItem& item, const JobItem& same) { return AreSame(item.value, same.value); });
}

bool AreSame(const JobCommand& one, const JobCommand& other)
{
  return one.kind == other.kind && one.id == other.id &&
         std::equal(one.keys.begin(), one.keys.end(), other.keys.begin(), other.keys.end(),
                    [](const JobKey& key, const JobKey& same) { return AreSame(key, same); });
}

void RequireSame(const Job& job, const Job& again)
{
  const Job one = InStableOrder(job);
  const Job other = InStableOrder(again);
  Require(one.empty_kinds == other.empty_kinds, "a text keeps kinds without commands");
  Require(std::equal(one.commands.begin(), one.commands.end(), other.commands.begin(), other.commands.end(),
                     [](const JobCommand& command, const JobCommand& same) { return AreSame(command, same); }),
          "a text keeps commands");
  Require(Compare(job, again).differences.empty(), "the same jobs have no differences");
}

void WriteAndReadAgain(const Job& job)
{
  Require(NotCarried(job).empty(), "a text carries what came from one");
  const std::string text = AsToml(job);
  const std::optional<JobDescription> again = Read(text);
  Require(again && again->faults.empty(), "a text of a job has no faults");
  RequireSame(job, again->job);
  Require(AsToml(again->job) == text, "the same job has the same text");
  Require(nlohmann::json::accept(AsJson(job)), "the JSON of a job is JSON");
}

void Check(const JobDescription& description, const ModelIds* model_ids)
{
  const std::string file = "job.toml";
  const Job& job = description.job;
  const JobIndex index(job);
  const RefusedParts refused(description.faults);
  const Remedies remedies(file, true);
  const CheckSubject subject{job, index, refused, model_ids, remedies};
  Report report{file, kGyreJob, true, description.faults, 0, CountContents(job)};
  CheckSchema(subject, report.findings);
  CheckValues(subject, report.findings);
  CheckReferences(subject, report.findings);
  CheckModel(subject, report.findings);
  Sort(report);
  Require(IsUtf8(AsText(report)), "a report can be printed");
  Require(nlohmann::json::accept(AsJson(report)), "the JSON of a report is JSON");
}

void Print(const Job& job)
{
  std::ostringstream listing;
  PrintListing(listing, job, JobIndex(job), Style(kColorNever));
  GraphText(JobGraph(job, true), "job");
}

ModelIds SomeModelIds()
{
  ModelIds ids;
  ids.lists[KLV_IdType::element_group]["duct"] = "";
  ids.lists[KLV_IdType::node_group]["inlet"] = "";
  return ids;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const ModelIds model_ids = SomeModelIds();
  const std::string text(data, data + size);
  const std::optional<JobDescription> description = Read(text);
  if (description)
  {
    ReadSoundly(text, description->faults.empty());
    WriteAndReadAgain(description->job);
    Check(*description, size % 2 == 0 ? &model_ids : nullptr);
    Print(description->job);
  }
  return 0;
}
