// A job that an engine has parsed, loaded without any file: two design variables that become one, groups by merge and
// subtraction, an operator over responses and another operator. Prints the commands to the standard output.

#include "OrvelCmdEngine/OrvelCmdContainer.h"
#include "OrvelCommands/parfile/for_each_command.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "OrvelUtilities/KLV_LogMacros.h"

#include <exception>
#include <iostream>

using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

OrvelCmd& Add(OrvelCmdContainer& job, Defs::Cmd kind, const char* id)
{
  OrvelCmd& command = job.AddCommand(kind);
  command.AddStringItem(Items::ID_NAME, id);
  return command;
}

// The engine knows most enumerators by their number alone: the number of the command class.
Items::EnumValue Enumerator(int number)
{
  return static_cast<Items::EnumValue>(number);
}

void AddGroups(OrvelCmdContainer& job)
{
  OrvelCmd& pipes = Add(job, Defs::GROUP_DEF, "pipes");
  pipes.AddEnumItem(Items::TYPE, Items::GROUP_TYPE_ELEMENT);
  pipes.AddEnumItem(Items::FORMAT, Items::GROUP_FORMAT_MERGE);
  pipes.AddStringListItem(Items::LIST_BEGIN, {"inlet_pipe", "outlet_pipe"});

  OrvelCmd& design_space = Add(job, Defs::GROUP_DEF, "design_space");
  design_space.AddEnumItem(Items::TYPE, Items::GROUP_TYPE_ELEMENT);
  design_space.AddEnumItem(Items::FORMAT, Items::GROUP_FORMAT_SUBTRACT);
  design_space.AddStringListItem(Items::LIST_BEGIN, {"pipes", "bolt_bosses"});
}

OrvelCmd& AddDesignVariable(OrvelCmdContainer& job, const char* id, const char* group, double initial,
                            const OrvelCmd& filter)
{
  OrvelCmd& variable = Add(job, Defs::DV, id);
  variable.AddEnumItem(Items::TYPE, Enumerator(DV_::TYPE_DENSITY));
  variable.AddStringItem(Items::ELEMENT_GROUP, group);
  variable.AddDoubleItem(Items::VALUE, initial);
  variable.AddReferenceItem(Items::REFERENCE, filter);
  return variable;
}

OrvelCmd& AddResponse(OrvelCmdContainer& job, const char* id, DRESP_::Enum_TYPE_ type)
{
  OrvelCmd& response = Add(job, Defs::DRESP, id);
  response.AddEnumItem(Items::TYPE, Enumerator(type));
  response.AddEnumItem(Items::UPDATE_TYPE, Enumerator(DRESP_::UPDATE_TYPE_CALCULATED));
  response.AddIntegerItem(Items::LOADCASE, 1);
  return response;
}

OrvelCmd& AddWeightedSum(OrvelCmdContainer& job, const char* id)
{
  OrvelCmd& sum = Add(job, Defs::OPERATOR, id);
  sum.AddEnumItem(Items::TYPE, Enumerator(OPERATOR_::TYPE_WEIGHTED_SUM));
  sum.AddEnumItem(Items::UPDATE_TYPE, Enumerator(OPERATOR_::UPDATE_TYPE_CALCULATED));
  return sum;
}

// The two lists of an operator stand beside each other, each operand with its weight.
void AddOperand(OrvelCmd& sum, const OrvelCmd& operand, double weight)
{
  sum.AddReferenceItem(Items::REFERENCE, operand);
  sum.AddDoubleItem(Items::COEFFICIENT, weight);
}

void AddTask(OrvelCmdContainer& job, const OrvelCmd& objective, const OrvelCmd& left, const OrvelCmd& right)
{
  OrvelCmd& update = Add(job, Defs::DV_UPDATE_PARAM, "move_limits");
  update.AddDoubleItem(Items::MIN, 0.001);
  update.AddDoubleItem(Items::MAX, 1.0);
  update.AddDoubleItem(Items::VALUE, 0.1);

  OrvelCmd& stop = Add(job, Defs::STOP, "after_eighty");
  stop.AddIntegerItem(Items::ITER_MAX, 80);

  OrvelCmd& task = Add(job, Defs::OPTIMIZE, "minimise_losses");
  task.AddEnumItem(Items::STRATEGY, Enumerator(ALGO_::STRATEGY_TOPO_SENS));
  task.AddReferenceItem(Items::DV, left);
  task.AddReferenceItem(Items::DV, right);
  task.AddReferenceItem(Items::OBJ_FUNC, objective);
  task.AddReferenceItem(Items::STOP, stop);
  task.AddReferenceItem(Items::OPT_PARAM, Add(job, Defs::OPT_PARAM, "settings"));
  task.AddReferenceItem(Items::DV_UPDATE_PARAM, update);
}

void FillJob(OrvelCmdContainer& job)
{
  Add(job, Defs::MODEL_INPUT, "bent_duct").AddStringItem(Items::FILE, "mesh/bent_duct.cgns");
  AddGroups(job);

  OrvelCmd& filter = Add(job, Defs::FILTER, "smooth_field");
  filter.AddEnumItem(Items::TYPE, Enumerator(FILTER_::METHOD_SIGMUND));
  filter.AddDoubleItem(Items::VALUE, 0.01);
  const OrvelCmd& left = AddDesignVariable(job, "porosity_left", "design_left", 0.4, filter);
  const OrvelCmd& right = AddDesignVariable(job, "porosity_right", "design_right", 0.6, filter);

  OrvelCmd& uniformity = AddWeightedSum(job, "uniform_outlets");
  AddOperand(uniformity, AddResponse(job, "outlet_a", DRESP_::TYPE_UNIFORMITY), 0.5);
  AddOperand(uniformity, AddResponse(job, "outlet_b", DRESP_::TYPE_UNIFORMITY), 0.5);
  OrvelCmd& losses = AddWeightedSum(job, "losses");
  AddOperand(losses, AddResponse(job, "pressure_drop", DRESP_::TYPE_PRESSURE_DROP), 1.0);
  AddOperand(losses, uniformity, -0.2);

  OrvelCmd& objective = Add(job, Defs::OBJ_FUNC, "least_losses");
  objective.AddEnumItem(Items::TARGET, Enumerator(OBJ_FUNC_::TARGET_MIN));
  objective.AddReferenceItem(Items::DRESP, losses);
  AddTask(job, objective, left, right);
}

}  // namespace

int main()
{
  try
  {
    OrvelCmdContainer job;
    FillJob(job);
    OrvelParfileStorageCmdContainer storage(job);
    Gyre_Parfile parfile(storage);
    parfile.Load();
    KLV_LogMacros::SetSink([](const KLV_LogRecord& record) {
      std::cout << record.prefix << "\n" << record.text << "\n";
    });
    orvel::ForEachCommand(parfile, [](const auto& command) { command.ToString(); });
  }
  catch (const std::exception& error)  // a failure of the library or of an item that holds another type
  {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
