#include "library.h"

#include "job/job_kind.h"
#include "job/new_parameter_file.h"
#include "job/parameter_file.h"
#include "support/plain_text.h"

#include "OrvelCommands/foundation/KLV_Failure.h"
#include "OrvelDbFactory/OrvelDbInstance.h"

#include <algorithm>

namespace
{

// The database that the model ids are checked against, as long as the object lives.
class OpenModel
{
public:
  explicit OpenModel(const ModelIds& ids)
  {
    AddTo(m_database, ids);
    OrvelDbInstance::s_Singleton = &m_database;
  }
  OpenModel(const OpenModel&) = delete;
  OpenModel& operator=(const OpenModel&) = delete;
  ~OpenModel() { OrvelDbInstance::s_Singleton = nullptr; }

private:
  KLV_Database m_database;
};

// Texts of the library may end with a line feed, and hold what names a file holds.
void AddFailure(std::string text, std::vector<Finding>& findings)
{
  text.erase(text.find_last_not_of(" \n") + 1);
  findings.push_back({&rules::library, {}, {}, {}, {}, {}, PrintableLines(text), {}});
}

bool LeadsNowhere(const JobItem& item, const JobIndex& index)
{
  const auto* target = std::get_if<JobReference>(&item.value);
  return target != nullptr && !target->IsNull() && index.Find(target->kind, target->id) == nullptr;
}

Job WithoutUnresolvedReferences(Job job)
{
  const Job whole = job;
  const JobIndex index(whole);
  for (JobCommand& command : job.commands)
  {
    const auto is_left_empty = [&](JobKey& key) {
      const auto first = std::remove_if(key.items.begin(), key.items.end(),
                                        [&](const JobItem& item) { return LeadsNowhere(item, index); });
      const bool has_removed = first != key.items.end();
      key.items.erase(first, key.items.end());
      return has_removed && key.items.empty();
    };
    command.keys.erase(std::remove_if(command.keys.begin(), command.keys.end(), is_left_empty), command.keys.end());
  }
  return job;
}

}  // namespace

void AskLibrary(const std::filesystem::path& file, const std::string& job, const ModelIds* model_ids,
                std::vector<Finding>& findings)
{
  const auto storage = OpenParameterFile(file);
  try
  {
    WithParfile(job, *storage, [&](auto& parfile) {
      parfile.Load();
      if (model_ids != nullptr)
      {
        const OpenModel model(*model_ids);
        parfile.ValidateModelIds();
      }
    });
  }
  catch (const KLV_Failure& failure)
  {
    AddFailure(failure.what(), findings);
  }
  catch (const H5::Exception& error)
  {
    AddFailure("HDF5 cannot read the file: " + error.getDetailMsg(), findings);
  }
}

void AskLibrary(const Job& description, const std::string& job, const ModelIds* model_ids,
                std::vector<Finding>& findings)
{
  NewParameterFile scratch(std::filesystem::temp_directory_path() / PARFILE_STORAGE_FILE);
  for (const std::string& failure : scratch.Fill(WithoutUnresolvedReferences(description)))
  {
    AddFailure(failure, findings);
  }
  AskLibrary(scratch.Path(), job, model_ids, findings);
}
