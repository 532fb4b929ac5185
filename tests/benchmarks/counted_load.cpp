// Loads one fixed job, for callgrind to count: `counted_load file` the parameter file of the working directory,
// `counted_load parsed` a job of parsed commands.

#include "OrvelCmdEngine/OrvelCmdContainer.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelCommands/storage/ParfileHdf5Storage.h"

#include <exception>
#include <iostream>
#include <string>

namespace
{

using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

constexpr int kGroups = 40;
constexpr int kResponses = 120;

OrvelCmd& Add(OrvelCmdContainer& job, Defs::Cmd kind, const std::string& id)
{
  OrvelCmd& command = job.AddCommand(kind);
  command.AddStringItem(Items::ID_NAME, id);
  return command;
}

void AddGroups(OrvelCmdContainer& job)
{
  for (int number = 0; number < kGroups; ++number)
  {
    OrvelCmd& group = Add(job, Defs::GROUP_DEF, "group_" + std::to_string(number));
    group.AddEnumItem(Items::TYPE, number % 2 == 0 ? Items::GROUP_TYPE_ELEMENT : Items::GROUP_TYPE_NODE);
    group.AddEnumItem(Items::FORMAT, Items::GROUP_FORMAT_MERGE);
    group.AddStringListItem(Items::LIST_BEGIN, {"inlet", "outlet", "bend"});
  }
}

OrvelCmd& AddResponse(OrvelCmdContainer& job, int number)
{
  OrvelCmd& response = Add(job, Defs::DRESP, "pressure_drop_of_branch_" + std::to_string(number));
  response.AddEnumItem(Items::TYPE, static_cast<Items::EnumValue>(DRESP_::TYPE_PRESSURE_DROP));
  response.AddEnumItem(Items::UPDATE_TYPE, static_cast<Items::EnumValue>(DRESP_::UPDATE_TYPE_CALCULATED));
  response.AddStringItem(Items::UPDATE_ID, "flow_solver");
  response.AddIntegerItem(Items::LOADCASE, number);
  return response;
}

void FillJob(OrvelCmdContainer& job)
{
  Add(job, Defs::MODEL_INPUT, "model").AddStringItem(Items::FILE, "mesh/model.cgns");
  AddGroups(job);
  OrvelCmd& sum = Add(job, Defs::OPERATOR, "losses");
  for (int number = 0; number < kResponses; ++number)
  {
    sum.AddReferenceItem(Items::REFERENCE, AddResponse(job, number));
    sum.AddDoubleItem(Items::COEFFICIENT, 1.0 / kResponses);
  }
  OrvelCmd& objective = Add(job, Defs::OBJ_FUNC, "least_losses");
  objective.AddReferenceItem(Items::DRESP, sum);
  OrvelCmd& task = Add(job, Defs::OPTIMIZE, "task");
  task.AddReferenceItem(Items::DV, Add(job, Defs::DV, "left"));
  task.AddReferenceItem(Items::DV, Add(job, Defs::DV, "right"));
  task.AddReferenceItem(Items::OBJ_FUNC, objective);
  task.AddReferenceItem(Items::STOP, Add(job, Defs::STOP, "stop"));
  task.AddReferenceItem(Items::OPT_PARAM, Add(job, Defs::OPT_PARAM, "settings"));
}

std::uint64_t Load(OrvelParfileStorage& storage)
{
  Gyre_Parfile parfile(storage);
  parfile.Load();
  return parfile.NumDRESP_();
}

}  // namespace

int main(int count, char** arguments)
{
  try
  {
    const std::string from = count == 2 ? arguments[1] : "";
    if (from == "file")
    {
      ParfileHdf5Storage storage(false, true);
      std::cout << Load(storage) << " responses\n";
      return 0;
    }
    if (from == "parsed")
    {
      OrvelCmdContainer job;
      FillJob(job);
      OrvelParfileStorageCmdContainer storage(job);
      std::cout << Load(storage) << " responses\n";
      return 0;
    }
    std::cerr << "usage: counted_load file|parsed\n";
    return 2;
  }
  catch (const std::exception& error)
  {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
