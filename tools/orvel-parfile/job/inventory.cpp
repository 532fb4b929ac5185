#include "inventory.h"

#include <set>

namespace
{

std::string Counted(std::uint64_t count, const std::string& one)
{
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

}  // namespace

Inventory CountContents(const Job& job)
{
  Inventory inventory;
  std::set<std::string> kinds;
  for (const JobCommand& command : job.commands)
  {
    kinds.insert(command.kind);
    for (const JobKey& key : command.keys)
    {
      const orvel::schema::Field* field = FieldOf(command, key.name);
      const std::size_t count = key.items.size();
      (key.type == &ReferenceType() ? inventory.references : inventory.values) += count;
      inventory.model_ids += field != nullptr && field->type == vtmModelId ? count : 0;
    }
  }
  inventory.kinds = kinds.size();
  inventory.commands = job.commands.size();
  return inventory;
}

std::string AsText(const Inventory& inventory)
{
  return Counted(inventory.kinds, "kind") + ", " + Counted(inventory.commands, "command") + ", " +
         Counted(inventory.values, "value") + " (" + std::to_string(inventory.model_ids) +
         (inventory.model_ids == 1 ? " of them a model id" : " of them model ids") + "), " +
         Counted(inventory.references, "reference");
}
