#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const char* const kFullText = "m_ID_NAME_: drop\n"
                              "m_TYPE_: PRESSURE_DROP\n"
                              "m_UPDATE_TYPE_: CALCULATED\n"
                              "m_UPDATE_ID_: total\n"
                              "m_UPDATE_INDEX_: 3\n"
                              "m_has_FACE_GROUP_: yes\n"
                              "m_FACE_GROUP_: inlet\n"
                              "m_has_FACE_GROUP_ADD_: yes\n"
                              "m_FACE_GROUP_ADD_: outlet\n"
                              "m_has_ELEMENT_GROUP_: yes\n"
                              "m_ELEMENT_GROUP_: duct\n"
                              "m_has_NODE_GROUP_: yes\n"
                              "m_NODE_GROUP_: wall_nodes\n"
                              "m_WRITE_INTERVAL_: 5\n"
                              "m_LOADCASE_: 2\n"
                              "m_ITER_MAX_: 100\n"
                              "m_ITER_MIN_: -10\n"
                              "m_RESIDUAL_: 0.01\n"
                              "m_ADJOINT_RESIDUAL_: 0.02\n"
                              "m_ADJOINT_DEVIATION_: 0.03\n"
                              "m_OBJECTIVE_DEVIATION_: 0.04\n"
                              "m_has_DV_CONSTRAINT_: yes\n"
                              "m_DV_CONSTRAINT_: freeze\n"
                              "m_has_FILE_: yes\n"
                              "m_FILE_: drop.csv\n"
                              "m_has_CS_REF_: yes\n"
                              "m_CS_REF_: axis\n";

RecordingStorage StorageWithFullDresp()
{
  RecordingStorage storage;
  auto& keys = storage.Command("DRESP_", "drop");
  keys["TYPE_"] = {1001};
  keys["UPDATE_TYPE_"] = {67};
  keys["UPDATE_ID_"] = {std::string("total")};
  keys["UPDATE_INDEX_"] = {3};
  keys["FACE_GROUP_"] = {std::string("inlet")};
  keys["FACE_GROUP_ADD_"] = {std::string("outlet")};
  keys["ELEMENT_GROUP_"] = {std::string("duct")};
  keys["NODE_GROUP_"] = {std::string("wall_nodes")};
  keys["WRITE_INTERVAL_"] = {5};
  keys["LOADCASE_"] = {2};
  keys["ITER_MAX_"] = {100};
  keys["ITER_MIN_"] = {-10};
  keys["RESIDUAL_"] = {0.01};
  keys["ADJOINT_RESIDUAL_"] = {0.02};
  keys["ADJOINT_DEVIATION_"] = {0.03};
  keys["OBJECTIVE_DEVIATION_"] = {0.04};
  keys["DV_CONSTRAINT_"] = {Ref{"freeze"}};
  keys["FILE_"] = {std::string("drop.csv")};
  keys["CS_REF_"] = {std::string("axis")};
  return storage;
}

RecordingStorage StorageWithBareDresp()
{
  RecordingStorage storage;
  auto& keys = storage.Command("DRESP_", "bare");
  keys["TYPE_"] = {146};
  keys["UPDATE_TYPE_"] = {82};
  keys["UPDATE_ID_"] = {std::string("external")};
  keys["UPDATE_INDEX_"] = {1};
  keys["WRITE_INTERVAL_"] = {0};
  keys["LOADCASE_"] = {1};
  keys["ITER_MAX_"] = {20};
  keys["ITER_MIN_"] = {10};
  keys["RESIDUAL_"] = {0.5};
  keys["ADJOINT_RESIDUAL_"] = {0.25};
  keys["ADJOINT_DEVIATION_"] = {0.125};
  keys["OBJECTIVE_DEVIATION_"] = {2.0};
  return storage;
}

/// A response whose keys are absent but for one.
RecordingStorage StorageWith(const std::string& key, const StoredValue& value)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("DRESP_", "drop")[key] = {value};
  return storage;
}

RecordingStorage StorageWithFullJob()
{
  RecordingStorage storage = StorageWithFullDresp();
  storage.Command("DV_CONSTRAINT_", "freeze");
  return storage;
}

DRESP_ FullDresp()
{
  return LoadedAlone<DRESP_>(StorageWithFullDresp(), "drop");
}

DRESP_ BareDresp()
{
  return LoadedAlone<DRESP_>(StorageWithBareDresp(), "bare");
}

std::string TextOf(const DRESP_& command)
{
  return LogRecordOf(command).text;
}

}  // namespace

TEST(Dresp, TellsItsNames)
{
  EXPECT_STREQ(DRESP_::COMMAND_NAME, "DRESP");
  EXPECT_EQ(DRESP_::s_type, "DRESP_");
  EXPECT_EQ(DRESP_().GetType(), "DRESP_");
}

TEST(Dresp, IsEmptyBeforeItIsLoaded)
{
  const DRESP_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetUPDATE_TYPE_(), 0);
  EXPECT_EQ(command.GetUPDATE_ID_(), "");
  EXPECT_EQ(command.GetUPDATE_INDEX_(), 0);
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "");
  EXPECT_FALSE(command.HasFACE_GROUP_ADD_());
  EXPECT_EQ(command.GetFACE_GROUP_ADD_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_EQ(command.GetWRITE_INTERVAL_(), 0);
  EXPECT_EQ(command.GetLOADCASE_(), 0);
  EXPECT_EQ(command.GetITER_MAX_(), 0);
  EXPECT_EQ(command.GetITER_MIN_(), 0);
  EXPECT_EQ(command.GetRESIDUAL_(), 0.0);
  EXPECT_EQ(command.GetADJOINT_RESIDUAL_(), 0.0);
  EXPECT_EQ(command.GetADJOINT_DEVIATION_(), 0.0);
  EXPECT_EQ(command.GetOBJECTIVE_DEVIATION_(), 0.0);
  EXPECT_FALSE(command.HasDV_CONSTRAINT_());
  EXPECT_FALSE(command.HasFILE_());
  EXPECT_EQ(command.GetFILE_(), "");
  EXPECT_FALSE(command.HasCS_REF_());
  EXPECT_EQ(command.GetCS_REF_(), "");
}

TEST(Dresp, HandsOutItsValuesWithoutCopyingThem)
{
  static_assert(kReturn<DRESP_, const DRESP_::Enum_TYPE_&, &DRESP_::GetTYPE_>);
  static_assert(kReturn<DRESP_, const DRESP_::Enum_UPDATE_TYPE_&, &DRESP_::GetUPDATE_TYPE_>);
  static_assert(
    kReturn<DRESP_, const std::string&, &DRESP_::GetUPDATE_ID_, &DRESP_::GetFACE_GROUP_, &DRESP_::GetFACE_GROUP_ADD_,
            &DRESP_::GetELEMENT_GROUP_, &DRESP_::GetNODE_GROUP_, &DRESP_::GetFILE_, &DRESP_::GetCS_REF_>);
  static_assert(kReturn<DRESP_, const int&, &DRESP_::GetUPDATE_INDEX_, &DRESP_::GetWRITE_INTERVAL_,
                        &DRESP_::GetLOADCASE_, &DRESP_::GetITER_MAX_, &DRESP_::GetITER_MIN_>);
  static_assert(kReturn<DRESP_, const double&, &DRESP_::GetRESIDUAL_, &DRESP_::GetADJOINT_RESIDUAL_,
                        &DRESP_::GetADJOINT_DEVIATION_, &DRESP_::GetOBJECTIVE_DEVIATION_>);
  static_assert(kReturn<DRESP_, const DV_CONSTRAINT_&, &DRESP_::GetDV_CONSTRAINT_>);
  static_assert(kReturn<DRESP_, bool, &DRESP_::HasFACE_GROUP_, &DRESP_::HasFACE_GROUP_ADD_, &DRESP_::HasELEMENT_GROUP_,
                        &DRESP_::HasNODE_GROUP_, &DRESP_::HasDV_CONSTRAINT_, &DRESP_::HasFILE_, &DRESP_::HasCS_REF_>);
}

TEST(Dresp, LoadsItsKeysInOrderAndLeavesTheReferenceAlone)
{
  const RecordingStorage storage = StorageWithFullDresp();
  LoadedAlone<DRESP_>(storage, "drop");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetEnumValue(DRESP_, drop, TYPE_, 1, vtmEnum)", "GetEnumValue(DRESP_, drop, UPDATE_TYPE_, 1, vtmEnum)",
      "GetValue(DRESP_, drop, UPDATE_ID_, 1, vtmString, string)",
      "GetValue(DRESP_, drop, UPDATE_INDEX_, 1, vtmInteger, int)", "HasElement(DRESP_, drop, FACE_GROUP_)",
      "GetValue(DRESP_, drop, FACE_GROUP_, 1, vtmModelId, string)", "HasElement(DRESP_, drop, FACE_GROUP_ADD_)",
      "GetValue(DRESP_, drop, FACE_GROUP_ADD_, 1, vtmModelId, string)", "HasElement(DRESP_, drop, ELEMENT_GROUP_)",
      "GetValue(DRESP_, drop, ELEMENT_GROUP_, 1, vtmModelId, string)", "HasElement(DRESP_, drop, NODE_GROUP_)",
      "GetValue(DRESP_, drop, NODE_GROUP_, 1, vtmModelId, string)",
      "GetValue(DRESP_, drop, WRITE_INTERVAL_, 1, vtmInteger, int)",
      "GetValue(DRESP_, drop, LOADCASE_, 1, vtmInteger, int)", "GetValue(DRESP_, drop, ITER_MAX_, 1, vtmInteger, int)",
      "GetValue(DRESP_, drop, ITER_MIN_, 1, vtmInteger, int)",
      "GetValue(DRESP_, drop, RESIDUAL_, 1, vtmDouble, double)",
      "GetValue(DRESP_, drop, ADJOINT_RESIDUAL_, 1, vtmDouble, double)",
      "GetValue(DRESP_, drop, ADJOINT_DEVIATION_, 1, vtmDouble, double)",
      "GetValue(DRESP_, drop, OBJECTIVE_DEVIATION_, 1, vtmDouble, double)", "HasElement(DRESP_, drop, FILE_)",
      "GetValue(DRESP_, drop, FILE_, 1, vtmString, string)", "HasElement(DRESP_, drop, CS_REF_)",
      "GetValue(DRESP_, drop, CS_REF_, 1, vtmModelId, string)"));
}

TEST(Dresp, DoesNotReadOptionalKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithBareDresp();
  LoadedAlone<DRESP_>(storage, "bare");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre("GetEnumValue(DRESP_, bare, TYPE_, 1, vtmEnum)", "GetEnumValue(DRESP_, bare, UPDATE_TYPE_, 1, vtmEnum)",
                "GetValue(DRESP_, bare, UPDATE_ID_, 1, vtmString, string)",
                "GetValue(DRESP_, bare, UPDATE_INDEX_, 1, vtmInteger, int)", "HasElement(DRESP_, bare, FACE_GROUP_)",
                "HasElement(DRESP_, bare, FACE_GROUP_ADD_)", "HasElement(DRESP_, bare, ELEMENT_GROUP_)",
                "HasElement(DRESP_, bare, NODE_GROUP_)", "GetValue(DRESP_, bare, WRITE_INTERVAL_, 1, vtmInteger, int)",
                "GetValue(DRESP_, bare, LOADCASE_, 1, vtmInteger, int)",
                "GetValue(DRESP_, bare, ITER_MAX_, 1, vtmInteger, int)",
                "GetValue(DRESP_, bare, ITER_MIN_, 1, vtmInteger, int)",
                "GetValue(DRESP_, bare, RESIDUAL_, 1, vtmDouble, double)",
                "GetValue(DRESP_, bare, ADJOINT_RESIDUAL_, 1, vtmDouble, double)",
                "GetValue(DRESP_, bare, ADJOINT_DEVIATION_, 1, vtmDouble, double)",
                "GetValue(DRESP_, bare, OBJECTIVE_DEVIATION_, 1, vtmDouble, double)", "HasElement(DRESP_, bare, FILE_)",
                "HasElement(DRESP_, bare, CS_REF_)"));
}

TEST(Dresp, GivesWhatItLoaded)
{
  const DRESP_ command = FullDresp();
  EXPECT_EQ(command.GetID_NAME_(), "drop");
  EXPECT_EQ(command.GetTYPE_(), DRESP_::TYPE_PRESSURE_DROP);
  EXPECT_EQ(command.GetUPDATE_TYPE_(), DRESP_::UPDATE_TYPE_CALCULATED);
  EXPECT_EQ(command.GetUPDATE_ID_(), "total");
  EXPECT_EQ(command.GetUPDATE_INDEX_(), 3);
  EXPECT_TRUE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "inlet");
  EXPECT_TRUE(command.HasFACE_GROUP_ADD_());
  EXPECT_EQ(command.GetFACE_GROUP_ADD_(), "outlet");
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_EQ(command.GetWRITE_INTERVAL_(), 5);
  EXPECT_EQ(command.GetLOADCASE_(), 2);
  EXPECT_EQ(command.GetITER_MAX_(), 100);
  EXPECT_EQ(command.GetITER_MIN_(), -10);
  EXPECT_EQ(command.GetRESIDUAL_(), 0.01);
  EXPECT_EQ(command.GetADJOINT_RESIDUAL_(), 0.02);
  EXPECT_EQ(command.GetADJOINT_DEVIATION_(), 0.03);
  EXPECT_EQ(command.GetOBJECTIVE_DEVIATION_(), 0.04);
  EXPECT_FALSE(command.HasDV_CONSTRAINT_());
  EXPECT_TRUE(command.HasFILE_());
  EXPECT_EQ(command.GetFILE_(), "drop.csv");
  EXPECT_TRUE(command.HasCS_REF_());
  EXPECT_EQ(command.GetCS_REF_(), "axis");
}

TEST(Dresp, TakesATypeThatIsNoneAndAMinimumAboveTheMaximum)
{
  RecordingStorage storage = StorageWithBareDresp();
  auto& keys = storage.Command("DRESP_", "bare");
  keys["TYPE_"] = {10};
  keys["UPDATE_TYPE_"] = {-1};
  keys["ITER_MAX_"] = {1};
  keys["ITER_MIN_"] = {2};
  const DRESP_ command = LoadedAlone<DRESP_>(storage, "bare");
  EXPECT_EQ(command.GetTYPE_(), 10);
  EXPECT_EQ(command.GetUPDATE_TYPE_(), -1);
  EXPECT_EQ(command.GetITER_MAX_(), 1);
  EXPECT_EQ(command.GetITER_MIN_(), 2);
}

TEST(Dresp, NamesItsTypesOfPlainNumbersWithGaps)
{
  ExpectEnumerators<DRESP_, DRESP_::Enum_TYPE_>({
    {DRESP_::TYPE_DISP_ABS, 8, "DISP_ABS"},
    {DRESP_::TYPE_ROT_ABS, 9, "ROT_ABS"},
    {DRESP_::TYPE_ROT_X, 11, "ROT_X"},
    {DRESP_::TYPE_ROT_Y, 13, "ROT_Y"},
    {DRESP_::TYPE_ROT_Z, 15, "ROT_Z"},
    {DRESP_::TYPE_DISP_X, 17, "DISP_X"},
    {DRESP_::TYPE_DISP_Y, 19, "DISP_Y"},
    {DRESP_::TYPE_DISP_Z, 21, "DISP_Z"},
    {DRESP_::TYPE_DYN_FREQ, 26, "DYN_FREQ"},
    {DRESP_::TYPE_ENERGY_STIFF_MEASURE, 29, "ENERGY_STIFF_MEASURE"},
    {DRESP_::TYPE_INTERNAL_FORCE_ABS, 60, "INTERNAL_FORCE_ABS"},
    {DRESP_::TYPE_INTERNAL_FORCE_X, 62, "INTERNAL_FORCE_X"},
    {DRESP_::TYPE_INTERNAL_FORCE_Y, 64, "INTERNAL_FORCE_Y"},
    {DRESP_::TYPE_INTERNAL_FORCE_Z, 66, "INTERNAL_FORCE_Z"},
    {DRESP_::TYPE_INTERNAL_MOMENT_ABS, 68, "INTERNAL_MOMENT_ABS"},
    {DRESP_::TYPE_INTERNAL_MOMENT_X, 70, "INTERNAL_MOMENT_X"},
    {DRESP_::TYPE_INTERNAL_MOMENT_Y, 72, "INTERNAL_MOMENT_Y"},
    {DRESP_::TYPE_INTERNAL_MOMENT_Z, 74, "INTERNAL_MOMENT_Z"},
    {DRESP_::TYPE_REACTION_FORCE_ABS, 87, "REACTION_FORCE_ABS"},
    {DRESP_::TYPE_REACTION_FORCE_X, 89, "REACTION_FORCE_X"},
    {DRESP_::TYPE_REACTION_FORCE_Y, 91, "REACTION_FORCE_Y"},
    {DRESP_::TYPE_REACTION_FORCE_Z, 93, "REACTION_FORCE_Z"},
    {DRESP_::TYPE_REACTION_MOMENT_ABS, 95, "REACTION_MOMENT_ABS"},
    {DRESP_::TYPE_REACTION_MOMENT_X, 97, "REACTION_MOMENT_X"},
    {DRESP_::TYPE_REACTION_MOMENT_Y, 99, "REACTION_MOMENT_Y"},
    {DRESP_::TYPE_REACTION_MOMENT_Z, 101, "REACTION_MOMENT_Z"},
    {DRESP_::TYPE_SENSITIVITY_ONF, 106, "SENSITIVITY_ONF"},
    {DRESP_::TYPE_VOLUME, 146, "VOLUME"},
    {DRESP_::TYPE_CUSTOM, 1000, "CUSTOM"},
    {DRESP_::TYPE_PRESSURE_DROP, 1001, "PRESSURE_DROP"},
    {DRESP_::TYPE_UNIFORMITY, 1002, "UNIFORMITY"},
    {DRESP_::TYPE_SWIRL, 1003, "SWIRL"},
    {DRESP_::TYPE_TUMBLE, 1004, "TUMBLE"},
    {DRESP_::TYPE_BACKFLOW, 1005, "BACKFLOW"},
  });
}

TEST(Dresp, HasNoTypeInAGapNorBehindTheLast)
{
  EXPECT_EQ(DRESP_::GetEnumName(static_cast<DRESP_::Enum_TYPE_>(0)), "INVALID");
  EXPECT_EQ(DRESP_::GetEnumName(static_cast<DRESP_::Enum_TYPE_>(10)), "INVALID");
  EXPECT_EQ(DRESP_::GetEnumName(static_cast<DRESP_::Enum_TYPE_>(1000)), "CUSTOM");
  EXPECT_EQ(DRESP_::GetEnumName(static_cast<DRESP_::Enum_TYPE_>(1006)), "INVALID");
}

TEST(Dresp, NamesItsUpdateTypes)
{
  ExpectEnumerators<DRESP_, DRESP_::Enum_UPDATE_TYPE_>({
    {DRESP_::UPDATE_TYPE_CALCULATED, 67, "CALCULATED"},
    {DRESP_::UPDATE_TYPE_RECEIVED, 82, "RECEIVED"},
  });
}

TEST(Dresp, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(DRESP_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 1604);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|DRESP_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_TYPE_: INVALID\n"
                         "m_UPDATE_TYPE_: INVALID\n"
                         "m_UPDATE_ID_: \n"
                         "m_UPDATE_INDEX_: 0\n"
                         "m_has_FACE_GROUP_: no\n"
                         "m_has_FACE_GROUP_ADD_: no\n"
                         "m_has_ELEMENT_GROUP_: no\n"
                         "m_has_NODE_GROUP_: no\n"
                         "m_WRITE_INTERVAL_: 0\n"
                         "m_LOADCASE_: 0\n"
                         "m_ITER_MAX_: 0\n"
                         "m_ITER_MIN_: 0\n"
                         "m_RESIDUAL_: 0\n"
                         "m_ADJOINT_RESIDUAL_: 0\n"
                         "m_ADJOINT_DEVIATION_: 0\n"
                         "m_OBJECTIVE_DEVIATION_: 0\n"
                         "m_has_DV_CONSTRAINT_: no\n"
                         "m_has_FILE_: no\n"
                         "m_has_CS_REF_: no\n");
}

TEST(Dresp, PrintsAllItHoldsOnceItIsLinked)
{
  LinkedJob job(StorageWithFullJob());
  const KLV_LogRecord record = LogRecordOf(job->GetDRESP_("drop"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:1604 [%T|%n|%P|OrvelCommands|DRESP_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Dresp, PrintsNoAndNoValueForAFileAndGroupsThatAreAbsent)
{
  EXPECT_EQ(TextOf(BareDresp()), "m_ID_NAME_: bare\n"
                                 "m_TYPE_: VOLUME\n"
                                 "m_UPDATE_TYPE_: RECEIVED\n"
                                 "m_UPDATE_ID_: external\n"
                                 "m_UPDATE_INDEX_: 1\n"
                                 "m_has_FACE_GROUP_: no\n"
                                 "m_has_FACE_GROUP_ADD_: no\n"
                                 "m_has_ELEMENT_GROUP_: no\n"
                                 "m_has_NODE_GROUP_: no\n"
                                 "m_WRITE_INTERVAL_: 0\n"
                                 "m_LOADCASE_: 1\n"
                                 "m_ITER_MAX_: 20\n"
                                 "m_ITER_MIN_: 10\n"
                                 "m_RESIDUAL_: 0.5\n"
                                 "m_ADJOINT_RESIDUAL_: 0.25\n"
                                 "m_ADJOINT_DEVIATION_: 0.125\n"
                                 "m_OBJECTIVE_DEVIATION_: 2\n"
                                 "m_has_DV_CONSTRAINT_: no\n"
                                 "m_has_FILE_: no\n"
                                 "m_has_CS_REF_: no\n");
}

TEST(Dresp, ReportsEveryUnknownNameInTheOrderOfItsKeys)
{
  const RecordingStorage storage = StorageWithFullDresp();
  DRESP_ command = FullDresp();
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), ElementsAre(Problem{"inlet", "FACE_GROUP", "drop", "DRESP"},
                                                                Problem{"outlet", "FACE_GROUP_ADD", "drop", "DRESP"},
                                                                Problem{"duct", "ELEMENT_GROUP", "drop", "DRESP"},
                                                                Problem{"wall_nodes", "NODE_GROUP", "drop", "DRESP"},
                                                                Problem{"axis", "CS_REF", "drop", "DRESP"}));
  EXPECT_EQ(MessagesIn(command, storage, "drop").at(4), "Referenced ID is not found\n"
                                                        "  Value \"axis\" of parameter \"CS_REF\" is erroneous\n"
                                                        "  In \"DRESP\" command with ID_NAME \"drop\"");
}

TEST(Dresp, GoesOnWithTheNextKeyBehindAnUnknownName)
{
  const RecordingStorage storage = StorageWithFullDresp();
  DRESP_ command = FullDresp();
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"outlet"});
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), ElementsAre(Problem{"inlet", "FACE_GROUP", "drop", "DRESP"},
                                                                Problem{"duct", "ELEMENT_GROUP", "drop", "DRESP"},
                                                                Problem{"axis", "CS_REF", "drop", "DRESP"}));
}

TEST(Dresp, ReportsOneUnknownFaceGroupInBothItsKeysTwice)
{
  RecordingStorage storage = StorageWith("FACE_GROUP_", std::string("inlet"));
  storage.Command("DRESP_", "drop")["FACE_GROUP_ADD_"] = {std::string("inlet")};
  DRESP_ command = LoadedAlone<DRESP_>(storage, "drop");
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), ElementsAre(Problem{"inlet", "FACE_GROUP", "drop", "DRESP"},
                                                                Problem{"inlet", "FACE_GROUP_ADD", "drop", "DRESP"}));
}

TEST(Dresp, AcceptsNamesOfTheModelsGroupsAndSystemsOfTheKeysKindAlone)
{
  const auto kinds_for = [](const char* key) {
    const RecordingStorage storage = StorageWith(key, std::string("name"));
    DRESP_ command = LoadedAlone<DRESP_>(storage, "drop");
    return KindsThatSatisfy(command, storage, "drop", "name");
  };
  EXPECT_THAT(kinds_for("FACE_GROUP_"), ElementsAre(8));
  EXPECT_THAT(kinds_for("FACE_GROUP_ADD_"), ElementsAre(8));
  EXPECT_THAT(kinds_for("ELEMENT_GROUP_"), ElementsAre(9));
  EXPECT_THAT(kinds_for("NODE_GROUP_"), ElementsAre(7));
  EXPECT_THAT(kinds_for("CS_REF_"), ElementsAre(5));
}

TEST(Dresp, LooksUpEveryNameThatTheModelKnows)
{
  const RecordingStorage storage = StorageWithFullDresp();
  DRESP_ command = FullDresp();
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet"});
  database.Add(KLV_IdType::element_group, {"duct"});
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  database.Add(KLV_IdType::coordinate_system, {"axis"});
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), ElementsAre(Problem{"outlet", "FACE_GROUP_ADD", "drop", "DRESP"}));
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("inlet"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("outlet"), 0U);
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("duct"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("wall_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::coordinate_system).LookupCount("axis"), 1U);
}

TEST(Dresp, ReadsTheNamesAgainUnderTheStoragesIdAndReportsItsOwnId)
{
  DRESP_ command = FullDresp();
  RecordingStorage storage;
  auto& keys = storage.Command("DRESP_", "renamed");
  keys["FACE_GROUP_"] = {std::string("new inlet")};
  keys["FACE_GROUP_ADD_"] = {std::string("new outlet")};
  keys["ELEMENT_GROUP_"] = {std::string("new duct")};
  keys["NODE_GROUP_"] = {std::string("new nodes")};
  keys["CS_REF_"] = {std::string("new axis")};
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet", "outlet"});
  database.Add(KLV_IdType::element_group, {"duct"});
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  database.Add(KLV_IdType::coordinate_system, {"axis"});
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"),
              ElementsAre(Problem{"new inlet", "FACE_GROUP", "drop", "DRESP"},
                          Problem{"new outlet", "FACE_GROUP_ADD", "drop", "DRESP"},
                          Problem{"new duct", "ELEMENT_GROUP", "drop", "DRESP"},
                          Problem{"new nodes", "NODE_GROUP", "drop", "DRESP"},
                          Problem{"new axis", "CS_REF", "drop", "DRESP"}));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(DRESP_, renamed, FACE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DRESP_, renamed, FACE_GROUP_ADD_, 1, vtmModelId, string)",
                                           "GetValue(DRESP_, renamed, ELEMENT_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DRESP_, renamed, NODE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DRESP_, renamed, CS_REF_, 1, vtmModelId, string)"));
}

TEST(Dresp, HasNothingToCheckForKeysThatWereAbsentWhenItLoaded)
{
  DRESP_ command = BareDresp();
  const RecordingStorage storage = StorageWithFullDresp();
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Dresp, ChecksAnEmptyNameThatIsPresent)
{
  const RecordingStorage storage = StorageWith("NODE_GROUP_", std::string());
  DRESP_ command = LoadedAlone<DRESP_>(storage, "drop");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "drop"), ElementsAre(Problem{"", "NODE_GROUP", "drop", "DRESP"}));
}

TEST(Dresp, DoesNotCheckItsFileItsUpdateIdNorTheIdsOfCsCommands)
{
  RecordingStorage storage = StorageWithBareDresp();
  storage.Command("DRESP_", "bare")["FILE_"] = {std::string("unknown.csv")};
  DRESP_ command = LoadedAlone<DRESP_>(storage, "bare");
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());

  RecordingStorage with_cs = StorageWith("CS_REF_", std::string("axis"));
  with_cs.Command("CS_", "axis");
  DRESP_ refers = LoadedAlone<DRESP_>(with_cs, "drop");
  EXPECT_THAT(ProblemsIn(refers, with_cs, "drop"), ElementsAre(Problem{"axis", "CS_REF", "drop", "DRESP"}));
}

TEST(Dresp, RefersToTheDvConstraintOfTheJob)
{
  LinkedJob job(StorageWithFullJob());
  const DRESP_& command = job->GetDRESP_("drop");
  ASSERT_TRUE(command.HasDV_CONSTRAINT_());
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("freeze"));
  EXPECT_EQ(command.GetDV_CONSTRAINT_().GetID_NAME_(), "freeze");
}

TEST(Dresp, ReadsItsReferenceAfterAllItsValues)
{
  LinkedJob job(StorageWithFullJob());
  const auto calls = job.CallsAbout("DRESP_", "drop");
  ASSERT_EQ(calls.size(), 26U);
  EXPECT_EQ(calls[23], "GetValue(DRESP_, drop, CS_REF_, 1, vtmModelId, string)");
  EXPECT_EQ(calls[24], "HasElement(DRESP_, drop, DV_CONSTRAINT_)");
  EXPECT_EQ(calls[25], "GetReference(DRESP_, drop, DV_CONSTRAINT_, 1)");
}

TEST(Dresp, HasNoDvConstraintWithoutTheKey)
{
  LinkedJob job(StorageWithBareDresp());
  EXPECT_FALSE(job->GetDRESP_("bare").HasDV_CONSTRAINT_());
  EXPECT_EQ(job.CallsAbout("DRESP_", "bare").back(), "HasElement(DRESP_, bare, DV_CONSTRAINT_)");
}

TEST(Dresp, CannotBeLinkedToADvConstraintThatIsMissing)
{
  RecordingStorage storage = StorageWithFullDresp();
  AddRequiredCommands(storage);
  storage.Command("DV_CONSTRAINT_", "another");
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }),
            (Failure{"Invalid ID freeze of the parameter file command DV_CONSTRAINT_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(Dresp, CopiesItsValuesAndReferencesAsPointers)
{
  LinkedJob job(StorageWithFullJob());
  DRESP_& original = job->GetDRESP_("drop");
  const DRESP_ copy(original);
  original.Load(StorageWithBareDresp(), "bare");
  EXPECT_EQ(TextOf(copy), kFullText);
  EXPECT_EQ(&copy.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("freeze"));
}

TEST(Dresp, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithFullJob());
  DRESP_ command = BareDresp();
  EXPECT_EQ(&(command = job->GetDRESP_("drop")), &command);
  EXPECT_EQ(TextOf(command), kFullText);
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("freeze"));

  command = DRESP_();
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasDV_CONSTRAINT_());
  EXPECT_FALSE(command.HasCS_REF_());
  EXPECT_EQ(command.GetCS_REF_(), "");
  EXPECT_EQ(command.GetOBJECTIVE_DEVIATION_(), 0.0);
}

TEST(Dresp, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithFullJob());
  DRESP_& command = job->GetDRESP_("drop");
  const DRESP_& same = command;
  command = same;
  EXPECT_EQ(TextOf(command), kFullText);
}

TEST(Dresp, LeavesItsCommandsAloneWhenACopyEnds)
{
  LinkedJob job(StorageWithFullJob());
  {
    const DRESP_ copy(job->GetDRESP_("drop"));
  }
  EXPECT_EQ(job->GetDRESP_("drop").GetDV_CONSTRAINT_().GetID_NAME_(), "freeze");
}

TEST(Dresp, KeepsOptionalValuesAndReferencesOfAnEarlierLoad)
{
  LinkedJob job(StorageWithFullJob());
  DRESP_& command = job->GetDRESP_("drop");
  command.Load(StorageWithBareDresp(), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_EQ(command.GetTYPE_(), DRESP_::TYPE_VOLUME);
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "inlet");
  EXPECT_FALSE(command.HasFILE_());
  EXPECT_EQ(command.GetFILE_(), "drop.csv");
  EXPECT_TRUE(command.HasDV_CONSTRAINT_());
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("freeze"));
}

TEST(Dresp, KeepsWhatItReadBeforeAReadFailed)
{
  RecordingStorage storage = StorageWithFullDresp();
  storage.FailOn("GetValue(DRESP_, drop, LOADCASE_, 1, vtmInteger, int)");
  DRESP_ command;
  EXPECT_THROW(command.Load(storage, "drop"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "drop");
  EXPECT_EQ(command.GetTYPE_(), DRESP_::TYPE_PRESSURE_DROP);
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_EQ(command.GetWRITE_INTERVAL_(), 5);
  EXPECT_EQ(command.GetLOADCASE_(), 0);
  EXPECT_EQ(command.GetITER_MAX_(), 0);
  EXPECT_FALSE(command.HasFILE_());
}
