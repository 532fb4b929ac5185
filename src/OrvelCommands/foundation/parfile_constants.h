/// \file
/// Constants that the modules of a job share. Most are for other modules: the library itself reads
/// PARFILE_STORAGE_FILE alone. Constants only, safe from any thread.
#pragma once

#include <array>

/// The file of the HDF5 storage. It lies in the working directory of the process.
inline constexpr const char* PARFILE_STORAGE_FILE = "parfile_storage.hdf5";

/// The name of each `VtmType`, by its number.
inline constexpr std::array<const char*, 12> VTM_TYPE_NAMES = {
  "vtmInteger",     "vtmDouble",     "vtmEnum",   "vtmString",      "vtmIdName",  "vtmReference",
  "vtmIntegerList", "vtmDoubleList", "vtmSelect", "vtmComplexType", "vtmModelId", "vtmUnknown"};

/// \name Table labels
/// @{

/// The table in which the optimization database keeps the values of commands of one type.
inline constexpr const char* XMLVTM_INTEGER_TABLE_LABEL = "xmlvtm_integer_table_label";
inline constexpr const char* XMLVTM_DOUBLE_TABLE_LABEL = "xmlvtm_double_table_label";
inline constexpr const char* XMLVTM_CHAR_TABLE_LABEL = "xmlvtm_char_table_label";
inline constexpr const char* XMLVTM_IDNAME_TABLE_LABEL = "xmlvtm_idname_table_label";
inline constexpr const char* XMLVTM_REFERENCE_TABLE_LABEL = "xmlvtm_reference_table_label";
inline constexpr const char* XMLVTM_STRING_TABLE_LABEL = "xmlvtm_string_table_label";
inline constexpr const char* XMLVTM_INTLIST_TABLE_LABEL = "xmlvtm_intlist_table_label";
inline constexpr const char* XMLVTM_DOUBLELIST_TABLE_LABEL = "xmlvtm_doublelist_table_label";
inline constexpr const char* XMLVTM_MODELID_TABLE_LABEL = "xmlvtm_modelid_table_label";
/// @}

/// \name Words for the access to tables
/// @{

/// The word by which modules name an access to a table or a selection of all.
inline constexpr const char* XMLVTM_MODIFY = "MODIFY";
inline constexpr const char* XMLVTM_ALL = "ALL";
/// @}

/// The name of each kind of parsed command in the text of a parameter file, by its number in `OrvelCmdDefs::Cmd`. No
/// trailing underscore, other than the kinds of a storage.
// clang-format off
inline constexpr std::array<const char*, 21> CMD_NAMES = {
  "MODEL_INPUT", "GROUP_DEF", "DV",              "DRESP",        "OPERATOR",    "OBJ_FUNC", "CONSTRAINT",
  "DV_CONSTRAINT", "MESH_SMOOTH", "OPTIMIZE",    "OPT_PARAM",    "STOP",        "OUTPUT",   "SMOOTH",
  "OPTIONS",     "DV_UPDATE_PARAM", "SCALING_CURVE", "FILTER",   "CONTOURPLOT", "REPORT",   "CMD_PLACEHOLDER"};
// clang-format on

/// The name of each kind of item of a parsed command, by its number in `OrvelCmdItemDefs::CmdItem`.
// clang-format off
inline constexpr std::array<const char*, 39> CMD_ITEM_NAMES = {
  "ID_NAME",     "TYPE",          "FILE",            "ADD_FILE",       "GROUP",       "ELEMENT_GROUP", "NODE_GROUP",
  "FACE_GROUP",  "DRESP",         "TARGET",          "VALUE",          "MIN",         "MAX",           "LIST_BEGIN",
  "DV",          "OBJ_FUNC",      "CONSTRAINT",      "DV_CONSTRAINT",  "STRATEGY",    "STOP",          "MESH_SMOOTH",
  "ITER_MAX",    "OPT_PARAM",     "DV_UPDATE_PARAM", "REFERENCE",      "COEFFICIENT", "SOLVER_RUN_MODE",
  "SENS_CALC_MODE", "UPDATE_TYPE", "UPDATE_ID",      "FORMAT",         "DESCRIPTION", "DIRECTION",     "LOADCASE",
  "MAGNITUDE",   "LOWER",         "UPPER",           "CS",             "PLACEHOLDER"};
// clang-format on

/// \name Texts of the optimization database
/// @{

/// A name, label, version or file name of the optimization database.
inline constexpr const char* DB_INDEX_FILE_VARIABLE = "ORVEL_DB_INDEX_FILE";
inline constexpr const char* DB_VERSION = "VTM_1.5";
inline constexpr const char* DB_FILE_SIZE_LABEL = "vtm_file_size";
inline constexpr const char* DB_CACHE_SIZE_LABEL = "vtm_cache_size";
inline constexpr const char* DB_OPERATING_SYSTEM = "os_win64";
inline constexpr const char* DB_FLAG_TABLE_LABEL = "FLAG_TABLE";
inline constexpr const wchar_t* DB_NAME = L"optimization_database";
inline constexpr const wchar_t* DB_INDEX_FILE = L"optimization_database.idx";
inline constexpr const wchar_t* DB_INDEX_FILE_EXTENSION = L".idx";
inline constexpr const wchar_t* DB_FILE_EXTENSION = L".vtm";
/// @}

/// Where data of the optimization database can come from: structural analysis, flow analysis, parameter file.
inline constexpr std::array<const char*, 3> DB_DATA_ORIGINS = {"FEM", "CFD", "XML"};
