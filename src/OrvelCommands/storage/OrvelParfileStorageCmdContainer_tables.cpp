/// \file
/// The translation of the storage's names into the kinds and items of parsed commands, as tables.

#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"

#include "OrvelCmdEngine/OrvelCmd_Util.h"
#include "OrvelCmdEngine/OrvelCmdItem_Util.h"

using namespace orvel::detail;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;

namespace
{

constexpr auto kNoFilterValue = static_cast<Items::EnumValue>(-1);

ItemMapping Direct(Items::CmdItem item)
{
  return ItemMapping::Direct(item, [](const OrvelCmd&) { return true; });
}

// One group command holds its operand groups in one list and says in its FORMAT what the list means.
ItemMapping OperandsOfFormat(Items::EnumValue format)
{
  return ItemMapping::Direct(Items::LIST_BEGIN, [format](const OrvelCmd& cmd) {
    return OrvelCmd_Util::has_command_enum_with_value(cmd, Items::FORMAT, format);
  });
}

// Two lists stand beside each other; a value counts where the reference beside it leads to a command of the kind.
ItemMapping WhereReferenceIs(Items::CmdItem value_item, Items::CmdItem reference_item, Defs::Cmd kind)
{
  return ItemMapping::Filtered(value_item, reference_item, [kind](const OrvelCmdItem& item) {
    return OrvelCmdItem_Util::has_item_reference_of_type(item, kind);
  });
}

// How the design variables are updated stands in the one command that the first OPTIMIZE refers to.
ItemMapping OfDvUpdate(Items::CmdItem target_item)
{
  return ItemMapping::Referenced(Defs::OPTIMIZE, Items::DV_UPDATE_PARAM, Defs::DV_UPDATE_PARAM, target_item);
}

}  // namespace

// clang-format off
void OrvelParfileStorageCmdContainer::FillCommandRecords()
{
  const auto unfiltered = [](Cmd kind, auto* count, auto* name) {
    return CommandRecord{kind, Items::ITEM_NONE, kNoFilterValue, count, name};
  };
  const auto plain = [&](Cmd kind) { return unfiltered(kind, &PlainCount, &PlainName); };
  const auto groups_of_type = [](Items::EnumValue type) {
    return CommandRecord{Defs::GROUP_DEF, Items::TYPE, type, &FilteredCount, &FilteredName};
  };
  m_command_records = {
    {"MODEL_",         plain(Defs::MODEL_INPUT)},
    {"DRESP_",         plain(Defs::DRESP)},
    {"OPERATOR_",      plain(Defs::OPERATOR)},
    {"OBJ_FUNC_",      plain(Defs::OBJ_FUNC)},
    {"CONSTRAINT_",    plain(Defs::CONSTRAINT)},
    {"DV_CONSTRAINT_", plain(Defs::DV_CONSTRAINT)},
    {"ALGO_",          plain(Defs::OPTIMIZE)},
    {"OPT_PARAM_",     plain(Defs::OPT_PARAM)},
    {"STOP_",          plain(Defs::STOP)},
    {"MESH_SMOOTH_",   plain(Defs::MESH_SMOOTH)},
    {"OUTPUT_",        plain(Defs::OUTPUT)},
    {"SMOOTH_",        plain(Defs::SMOOTH)},
    {"AS_TOPO_OC_",    plain(Defs::OPT_PARAM)},
    {"AS_TOPO_SENS_",  plain(Defs::OPT_PARAM)},
    {"AS_SHAPE_SENS_", plain(Defs::OPT_PARAM)},
    {"SCALING_CURVE_", plain(Defs::SCALING_CURVE)},
    {"FILTER_",        plain(Defs::FILTER)},
    {"ELEMENT_GROUP_", groups_of_type(Items::GROUP_TYPE_ELEMENT)},
    {"NODE_GROUP_",    groups_of_type(Items::GROUP_TYPE_NODE)},
    {"DV_",            unfiltered(Defs::DV, &DvCount, &DvName)},
  };
}

void OrvelParfileStorageCmdContainer::FillSingletonCommands()
{
  m_singleton_commands = {"FLOWPATHS_", "OPT_PARAM_", "PRE_PARAM_", "AS_TOPO_OC_", "AS_TOPO_SENS_", "AS_SHAPE_SENS_"};
}

void OrvelParfileStorageCmdContainer::FillListItems()
{
  m_list_items = {{Defs::GROUP_DEF, Items::LIST_BEGIN}};
}

// The kinds that are not named here have no keys.
void OrvelParfileStorageCmdContainer::FillKeyMappings()
{
  m_key_mappings[Defs::MODEL_INPUT] = {
    {"FILE_", Direct(Items::FILE)},
  };
  m_key_mappings[Defs::GROUP_DEF] = {
    {"MERGE_",     OperandsOfFormat(Items::GROUP_FORMAT_MERGE)},
    {"SUBTRACT_",  OperandsOfFormat(Items::GROUP_FORMAT_SUBTRACT)},
    {"INTERSECT_", OperandsOfFormat(Items::GROUP_FORMAT_INTERSECT)},
    {"XOR_",       OperandsOfFormat(Items::GROUP_FORMAT_XOR)},
  };
  m_key_mappings[Defs::DV] = {
    {"ELEMENT_GROUP_",    Direct(Items::ELEMENT_GROUP)},
    {"NODE_GROUP_",       Direct(Items::NODE_GROUP)},
    {"INITIAL_",          Direct(Items::VALUE)},
    {"INITIAL_DV_FIELD_", Direct(Items::FILE)},
    {"FILTER_",           Direct(Items::REFERENCE)},
    {"TYPE_",             Direct(Items::TYPE)},
    {"DV_",               ItemMapping::Custom(Items::DV, &MergedDvMembers)},
  };
  m_key_mappings[Defs::DRESP] = {
    {"TYPE_",          Direct(Items::TYPE)},
    {"ELEMENT_GROUP_", Direct(Items::ELEMENT_GROUP)},
    {"NODE_GROUP_",    Direct(Items::NODE_GROUP)},
    {"UPDATE_TYPE_",   Direct(Items::UPDATE_TYPE)},
    {"UPDATE_ID_",     Direct(Items::UPDATE_ID)},
    {"LOADCASE_",      Direct(Items::LOADCASE)},
    {"FILE_",          Direct(Items::FILE)},
    {"CS_REF_",        Direct(Items::CS)},
  };
  m_key_mappings[Defs::OPERATOR] = {
    {"TYPE_",            Direct(Items::TYPE)},
    {"UPDATE_TYPE_",     Direct(Items::UPDATE_TYPE)},
    {"UPDATE_ID_",       Direct(Items::UPDATE_ID)},
    {"DRESP_",           WhereReferenceIs(Items::REFERENCE, Items::REFERENCE, Defs::DRESP)},
    {"DRESP_WEIGHT_",    WhereReferenceIs(Items::COEFFICIENT, Items::REFERENCE, Defs::DRESP)},
    {"OPERATOR_",        WhereReferenceIs(Items::REFERENCE, Items::REFERENCE, Defs::OPERATOR)},
    {"OPERATOR_WEIGHT_", WhereReferenceIs(Items::COEFFICIENT, Items::REFERENCE, Defs::OPERATOR)},
  };
  m_key_mappings[Defs::OBJ_FUNC] = {
    {"TARGET_",   Direct(Items::TARGET)},
    {"DRESP_",    WhereReferenceIs(Items::DRESP, Items::DRESP, Defs::DRESP)},
    {"OPERATOR_", WhereReferenceIs(Items::DRESP, Items::DRESP, Defs::OPERATOR)},
  };
  m_key_mappings[Defs::CONSTRAINT] = {
    {"TYPE_",        Direct(Items::TYPE)},
    {"VALUE_",       Direct(Items::VALUE)},
    {"COEFFICIENT_", Direct(Items::COEFFICIENT)},
    {"MAGNITUDE_",   Direct(Items::MAGNITUDE)},
    {"DRESP_",       WhereReferenceIs(Items::DRESP, Items::DRESP, Defs::DRESP)},
    {"OPERATOR_",    WhereReferenceIs(Items::DRESP, Items::DRESP, Defs::OPERATOR)},
  };
  m_key_mappings[Defs::DV_CONSTRAINT] = {
    {"DVC_TYPE_",      Direct(Items::TYPE)},
    {"ELEMENT_GROUP_", Direct(Items::ELEMENT_GROUP)},
    {"NODE_GROUP_",    Direct(Items::NODE_GROUP)},
    {"SCALING_CURVE_", Direct(Items::REFERENCE)},
    {"RADIUS_",        Direct(Items::VALUE)},
  };
  m_key_mappings[Defs::MESH_SMOOTH] = {
    {"METHOD_", Direct(Items::STRATEGY)},
  };
  m_key_mappings[Defs::OPTIMIZE] = {
    {"STRATEGY_",      Direct(Items::STRATEGY)},
    {"OBJ_FUNC_",      Direct(Items::OBJ_FUNC)},
    {"CONSTRAINT_",    Direct(Items::CONSTRAINT)},
    {"DV_CONSTRAINT_", Direct(Items::DV_CONSTRAINT)},
    {"STOP_",          Direct(Items::STOP)},
    {"MESH_SMOOTH_",   Direct(Items::MESH_SMOOTH)},
    {"OPT_PARAM_",     Direct(Items::OPT_PARAM)},
    {"AS_TOPO_SENS_",  Direct(Items::OPT_PARAM)},
    {"AS_SHAPE_SENS_", Direct(Items::OPT_PARAM)},
    {"AS_TOPO_OC_",    Direct(Items::OPT_PARAM)},
    {"DV_",            ItemMapping::Custom(Items::DV, &OptimizeDvReferences)},
  };
  m_key_mappings[Defs::OPT_PARAM] = {
    {"MIN_",           OfDvUpdate(Items::MIN)},
    {"MAX_",           OfDvUpdate(Items::MAX)},
    {"ALGORITHM_",     OfDvUpdate(Items::STRATEGY)},
    {"MOVE_",          OfDvUpdate(Items::VALUE)},
    {"ASYM_MOVE_",     OfDvUpdate(Items::UPDATE_TYPE)},
    {"ASYM_MOVE_LOW_", OfDvUpdate(Items::LOWER)},
    {"ASYM_MOVE_UP_",  OfDvUpdate(Items::UPPER)},
  };
  m_key_mappings[Defs::STOP] = {
    {"ITER_MAX_", Direct(Items::ITER_MAX)},
  };
  m_key_mappings[Defs::OUTPUT] = {
    {"FILENAME_",      Direct(Items::FILE)},
    {"FORMAT_",        Direct(Items::FORMAT)},
    {"TYPE_",          Direct(Items::TYPE)},
    {"ELEMENT_GROUP_", Direct(Items::ELEMENT_GROUP)},
  };
  m_key_mappings[Defs::SCALING_CURVE] = {
    {"TYPE_",         Direct(Items::TYPE)},
    {"UPDATE_ID_",    Direct(Items::UPDATE_ID)},
    {"MIN_",          Direct(Items::MIN)},
    {"MAX_",          Direct(Items::MAX)},
    {"PENALISATION_", Direct(Items::VALUE)},
    {"DATA_SHIFT_",   Direct(Items::COEFFICIENT)},
  };
  m_key_mappings[Defs::FILTER] = {
    {"METHOD_", Direct(Items::TYPE)},
    {"RADIUS_", Direct(Items::VALUE)},
    {"ALPHA_",  Direct(Items::TARGET)},
  };
}
// clang-format on
