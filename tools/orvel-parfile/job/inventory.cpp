#include "inventory.h"

#include <set>

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
  return std::to_string(inventory.kinds) + " kinds, " + std::to_string(inventory.commands) + " commands, " +
         std::to_string(inventory.values) + " values (" + std::to_string(inventory.model_ids) +
         " of them model ids), " + std::to_string(inventory.references) + " references";
}
