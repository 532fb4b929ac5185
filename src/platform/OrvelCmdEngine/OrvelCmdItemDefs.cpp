#include "OrvelCmdEngine/OrvelCmdItemDefs.h"

#include <array>
#include <cstddef>

namespace
{

// In the order of the enumeration.
constexpr std::array item_names = {"ID_NAME",
                                   "TYPE",
                                   "FILE",
                                   "ADD_FILE",
                                   "GROUP",
                                   "ELEMENT_GROUP",
                                   "NODE_GROUP",
                                   "FACE_GROUP",
                                   "DRESP",
                                   "TARGET",
                                   "VALUE",
                                   "MIN",
                                   "MAX",
                                   "LIST_BEGIN",
                                   "DV",
                                   "OBJ_FUNC",
                                   "CONSTRAINT",
                                   "DV_CONSTRAINT",
                                   "STRATEGY",
                                   "STOP",
                                   "MESH_SMOOTH",
                                   "ITER_MAX",
                                   "OPT_PARAM",
                                   "DV_UPDATE_PARAM",
                                   "REFERENCE",
                                   "COEFFICIENT",
                                   "SOLVER_RUN_MODE",
                                   "SENS_CALC_MODE",
                                   "UPDATE_TYPE",
                                   "UPDATE_ID",
                                   "FORMAT",
                                   "DESCRIPTION",
                                   "DIRECTION",
                                   "LOADCASE",
                                   "MAGNITUDE",
                                   "LOWER",
                                   "UPPER",
                                   "CS",
                                   "PLACEHOLDER"};

static_assert(item_names.size() == OrvelCmdItemDefs::ITEM_NONE, "one name for each kind of item");

}  // namespace

std::string OrvelCmdItemDefs::GetItemName(CmdItem item)
{
  if (item < 0 || item >= ITEM_NONE)
  {
    return "CmdItem " + std::to_string(static_cast<std::int32_t>(item));
  }
  return item_names[static_cast<std::size_t>(item)];
}
