#include "inventory.h"

#include "OrvelCommands/commands/command_schema.h"

namespace schema = orvel::schema;

namespace
{

void CountKeys(const OrvelParfileStorage& storage, const schema::Command& kind, const std::string& id,
               Inventory& inventory)
{
  for (const schema::Field& field : kind.fields)
  {
    const auto count = storage.GetNumElements(std::string(kind.kind), id, std::string(field.key));
    (field.type == vtmReference ? inventory.references : inventory.values) += count;
    inventory.model_ids += field.type == vtmModelId ? count : 0;
  }
}

}  // namespace

Inventory CountContents(const OrvelParfileStorage& storage)
{
  Inventory inventory;
  for (const schema::Command& kind : schema::Commands())
  {
    const std::string name(kind.kind);
    const std::uint64_t count = storage.GetNumCommand(name);
    inventory.kinds += count > 0 ? 1 : 0;
    inventory.commands += count;
    for (std::uint64_t position = 0; position < count; ++position)
    {
      std::string id;
      storage.GetCommandName(name, position, id);
      CountKeys(storage, kind, id, inventory);
    }
  }
  return inventory;
}

std::string AsText(const Inventory& inventory)
{
  return std::to_string(inventory.kinds) + " kinds, " + std::to_string(inventory.commands) + " commands, " +
         std::to_string(inventory.values) + " values (" + std::to_string(inventory.model_ids) +
         " of them model ids), " + std::to_string(inventory.references) + " references";
}
