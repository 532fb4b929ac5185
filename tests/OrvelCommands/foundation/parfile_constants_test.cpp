#include "OrvelCommands/foundation/parfile_constants.h"

#include "OrvelCmdEngine/OrvelCmdDefs.h"
#include "OrvelCmdEngine/OrvelCmdItemDefs.h"
#include "OrvelCommands/foundation/VtmType.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::StrEq;

TEST(ParfileConstants, NameTheTypesOfValueByNumber)
{
  EXPECT_THAT(VTM_TYPE_NAMES,
              ElementsAre(StrEq("vtmInteger"), StrEq("vtmDouble"), StrEq("vtmEnum"), StrEq("vtmString"),
                          StrEq("vtmIdName"), StrEq("vtmReference"), StrEq("vtmIntegerList"), StrEq("vtmDoubleList"),
                          StrEq("vtmSelect"), StrEq("vtmComplexType"), StrEq("vtmModelId"), StrEq("vtmUnknown")));
  EXPECT_STREQ(VTM_TYPE_NAMES[vtmModelId], "vtmModelId");
}

TEST(ParfileConstants, LabelTheTablesOfValues)
{
  EXPECT_STREQ(XMLVTM_INTEGER_TABLE_LABEL, "xmlvtm_integer_table_label");
  EXPECT_STREQ(XMLVTM_DOUBLE_TABLE_LABEL, "xmlvtm_double_table_label");
  EXPECT_STREQ(XMLVTM_CHAR_TABLE_LABEL, "xmlvtm_char_table_label");
  EXPECT_STREQ(XMLVTM_IDNAME_TABLE_LABEL, "xmlvtm_idname_table_label");
  EXPECT_STREQ(XMLVTM_REFERENCE_TABLE_LABEL, "xmlvtm_reference_table_label");
  EXPECT_STREQ(XMLVTM_STRING_TABLE_LABEL, "xmlvtm_string_table_label");
  EXPECT_STREQ(XMLVTM_INTLIST_TABLE_LABEL, "xmlvtm_intlist_table_label");
  EXPECT_STREQ(XMLVTM_DOUBLELIST_TABLE_LABEL, "xmlvtm_doublelist_table_label");
  EXPECT_STREQ(XMLVTM_MODELID_TABLE_LABEL, "xmlvtm_modelid_table_label");
  EXPECT_STREQ(XMLVTM_MODIFY, "MODIFY");
  EXPECT_STREQ(XMLVTM_ALL, "ALL");
}

TEST(ParfileConstants, NameTheKindsOfParsedCommandByNumber)
{
  EXPECT_THAT(CMD_NAMES,
              ElementsAre(StrEq("MODEL_INPUT"), StrEq("GROUP_DEF"), StrEq("DV"), StrEq("DRESP"), StrEq("OPERATOR"),
                          StrEq("OBJ_FUNC"), StrEq("CONSTRAINT"), StrEq("DV_CONSTRAINT"), StrEq("MESH_SMOOTH"),
                          StrEq("OPTIMIZE"), StrEq("OPT_PARAM"), StrEq("STOP"), StrEq("OUTPUT"), StrEq("SMOOTH"),
                          StrEq("OPTIONS"), StrEq("DV_UPDATE_PARAM"), StrEq("SCALING_CURVE"), StrEq("FILTER"),
                          StrEq("CONTOURPLOT"), StrEq("REPORT"), StrEq("CMD_PLACEHOLDER")));
  EXPECT_STREQ(CMD_NAMES[OrvelCmdDefs::OPTIMIZE], "OPTIMIZE");
  EXPECT_STREQ(CMD_NAMES[OrvelCmdDefs::CMD_PLACEHOLDER], "CMD_PLACEHOLDER");
}

TEST(ParfileConstants, NameTheKindsOfItemByNumber)
{
  const char* const expected[] = {"ID_NAME",
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
  ASSERT_EQ(CMD_ITEM_NAMES.size(), 39U);
  for (std::size_t number = 0; number < CMD_ITEM_NAMES.size(); ++number)
  {
    EXPECT_STREQ(CMD_ITEM_NAMES[number], expected[number]) << "item " << number;
    EXPECT_EQ(OrvelCmdItemDefs::GetItemName(static_cast<OrvelCmdItemDefs::CmdItem>(number)), expected[number])
      << "the engine's name of item " << number;
  }
}

TEST(ParfileConstants, HoldTheTextsOfTheDatabase)
{
  EXPECT_STREQ(DB_INDEX_FILE_VARIABLE, "ORVEL_DB_INDEX_FILE");
  EXPECT_STREQ(DB_VERSION, "VTM_1.5");
  EXPECT_STREQ(DB_FILE_SIZE_LABEL, "vtm_file_size");
  EXPECT_STREQ(DB_CACHE_SIZE_LABEL, "vtm_cache_size");
  EXPECT_STREQ(DB_OPERATING_SYSTEM, "os_win64");
  EXPECT_STREQ(DB_FLAG_TABLE_LABEL, "FLAG_TABLE");
  EXPECT_STREQ(DB_NAME, L"optimization_database");
  EXPECT_STREQ(DB_INDEX_FILE, L"optimization_database.idx");
  EXPECT_STREQ(DB_INDEX_FILE_EXTENSION, L".idx");
  EXPECT_STREQ(DB_FILE_EXTENSION, L".vtm");
  EXPECT_THAT(DB_DATA_ORIGINS, ElementsAre(StrEq("FEM"), StrEq("CFD"), StrEq("XML")));
}

TEST(ParfileConstants, NameTheFileOfTheHdf5Storage)
{
  EXPECT_STREQ(PARFILE_STORAGE_FILE, "parfile_storage.hdf5");
}
