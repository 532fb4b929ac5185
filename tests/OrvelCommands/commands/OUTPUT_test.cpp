#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static_assert(std::is_same_v<decltype(std::declval<const OUTPUT_&>().GetITERATION_()), const std::vector<int>&>);
static_assert(std::is_same_v<decltype(std::declval<const OUTPUT_&>().GetCUTOFF_()), const std::vector<double>&>);
static_assert(std::is_same_v<decltype(std::declval<const OUTPUT_&>().GetBACKFLOW_ANGLE_()), const int&>);
static_assert(std::is_same_v<decltype(std::declval<const OUTPUT_&>().GetINVERT_()), const OUTPUT_::Enum_INVERT_&>);
static_assert(!std::is_same_v<OUTPUT_::Enum_INVERT_, OUTPUT_::Enum_DESIGN_ONLY_>);

namespace
{

void AddSparseCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("OUTPUT_", "result");
  keys["FILENAME_"] = {std::string("duct.vtk")};
  keys["FORMAT_"] = {86};
  keys["ITERATION_"] = {std::vector<int>{1, 10, -1}};
  keys["TYPE_"] = {84};
  keys["RESULT_"] = {83};
  keys["SPREAD_ALGO_"] = {70};
  keys["BACKFLOW_ANGLE_"] = {90};
  keys["SPREAD_PERCENTAGE_"] = {12.5};
  keys["INVERT_"] = {70};
  keys["DESIGN_ONLY_"] = {84};
  keys["KEEP_POST_DATA_"] = {70};
  keys["ELEMENT_GROUP_"] = {std::string("design_space")};
}

void AddFullCommand(RecordingStorage& storage)
{
  AddSparseCommand(storage);
  storage.Command("OUTPUT_", "result")["CUTOFF_"] = {std::vector<double>{0.5, -2.25}};
}

OUTPUT_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<OUTPUT_>(storage, "result");
}

const char* const kFullText = "m_ID_NAME_: result\n"
                              "m_FILENAME_: duct.vtk\n"
                              "m_FORMAT_: VTK\n"
                              "m_ITERATION_: [\n"
                              "1 10 -1]\n"
                              "m_TYPE_: TOPO_DATA\n"
                              "m_RESULT_: MATERIAL\n"
                              "m_SPREAD_ALGO_: FASTEST_PTRACK\n"
                              "m_has_CUTOFF_: yes\n"
                              "m_CUTOFF_: [\n"
                              "0.5 -2.25]\n"
                              "m_BACKFLOW_ANGLE_: 90\n"
                              "m_SPREAD_PERCENTAGE_: 12.5\n"
                              "m_INVERT_: NO\n"
                              "m_DESIGN_ONLY_: YES\n"
                              "m_KEEP_POST_DATA_: NO\n"
                              "m_ELEMENT_GROUP_: design_space\n";

void ExpectDefaults(const OUTPUT_& command)
{
  EXPECT_EQ(command.GetFILENAME_(), "");
  EXPECT_EQ(command.GetFORMAT_(), 0);
  EXPECT_THAT(command.GetITERATION_(), IsEmpty());
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetRESULT_(), 0);
  EXPECT_EQ(command.GetSPREAD_ALGO_(), 0);
  EXPECT_FALSE(command.HasCUTOFF_());
  EXPECT_THAT(command.GetCUTOFF_(), IsEmpty());
  EXPECT_EQ(command.GetBACKFLOW_ANGLE_(), 0);
  EXPECT_EQ(command.GetSPREAD_PERCENTAGE_(), 0.0);
  EXPECT_EQ(command.GetINVERT_(), 0);
  EXPECT_EQ(command.GetDESIGN_ONLY_(), 0);
  EXPECT_EQ(command.GetKEEP_POST_DATA_(), 0);
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
}

void ExpectFull(const OUTPUT_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "result");
  EXPECT_EQ(command.GetFILENAME_(), "duct.vtk");
  EXPECT_EQ(command.GetFORMAT_(), OUTPUT_::FORMAT_VTK);
  EXPECT_THAT(command.GetITERATION_(), ElementsAre(1, 10, -1));
  EXPECT_EQ(command.GetTYPE_(), OUTPUT_::TYPE_TOPO_DATA);
  EXPECT_EQ(command.GetRESULT_(), OUTPUT_::RESULT_MATERIAL);
  EXPECT_EQ(command.GetSPREAD_ALGO_(), OUTPUT_::SPREAD_ALGO_FASTEST_PTRACK);
  EXPECT_TRUE(command.HasCUTOFF_());
  EXPECT_THAT(command.GetCUTOFF_(), ElementsAre(0.5, -2.25));
  EXPECT_EQ(command.GetBACKFLOW_ANGLE_(), 90);
  EXPECT_EQ(command.GetSPREAD_PERCENTAGE_(), 12.5);
  EXPECT_EQ(command.GetINVERT_(), OUTPUT_::INVERT_NO);
  EXPECT_EQ(command.GetDESIGN_ONLY_(), OUTPUT_::DESIGN_ONLY_YES);
  EXPECT_EQ(command.GetKEEP_POST_DATA_(), OUTPUT_::KEEP_POST_DATA_NO);
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "design_space");
}

}  // namespace

TEST(Output, TellsItsNames)
{
  EXPECT_STREQ(OUTPUT_::COMMAND_NAME, "OUTPUT");
  EXPECT_EQ(OUTPUT_::s_type, "OUTPUT_");
  EXPECT_EQ(OUTPUT_().GetType(), "OUTPUT_");
}

TEST(Output, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const OUTPUT_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &OUTPUT_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "result");
}

TEST(Output, IsEmptyBeforeItIsLoaded)
{
  const OUTPUT_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectDefaults(command);
}

TEST(Output, LoadsItsKeysInOrderAndBothListsInOnePiece)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<OUTPUT_>(storage, "result");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(OUTPUT_, result, FILENAME_, 1, vtmString, string)",
                                           "GetEnumValue(OUTPUT_, result, FORMAT_, 1, vtmEnum)",
                                           "GetValue(OUTPUT_, result, ITERATION_, 1, vtmIntegerList, vector<int>)",
                                           "GetEnumValue(OUTPUT_, result, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, RESULT_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, SPREAD_ALGO_, 1, vtmEnum)",
                                           "HasElement(OUTPUT_, result, CUTOFF_)",
                                           "GetValue(OUTPUT_, result, CUTOFF_, 1, vtmDoubleList, vector<double>)",
                                           "GetValue(OUTPUT_, result, BACKFLOW_ANGLE_, 1, vtmInteger, int)",
                                           "GetValue(OUTPUT_, result, SPREAD_PERCENTAGE_, 1, vtmDouble, double)",
                                           "GetEnumValue(OUTPUT_, result, INVERT_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, DESIGN_ONLY_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, KEEP_POST_DATA_, 1, vtmEnum)",
                                           "GetValue(OUTPUT_, result, ELEMENT_GROUP_, 1, vtmModelId, string)"));
}

TEST(Output, DoesNotReadACutoffThatIsAbsent)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  const auto command = LoadedAlone<OUTPUT_>(storage, "result");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(OUTPUT_, result, FILENAME_, 1, vtmString, string)",
                                           "GetEnumValue(OUTPUT_, result, FORMAT_, 1, vtmEnum)",
                                           "GetValue(OUTPUT_, result, ITERATION_, 1, vtmIntegerList, vector<int>)",
                                           "GetEnumValue(OUTPUT_, result, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, RESULT_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, SPREAD_ALGO_, 1, vtmEnum)",
                                           "HasElement(OUTPUT_, result, CUTOFF_)",
                                           "GetValue(OUTPUT_, result, BACKFLOW_ANGLE_, 1, vtmInteger, int)",
                                           "GetValue(OUTPUT_, result, SPREAD_PERCENTAGE_, 1, vtmDouble, double)",
                                           "GetEnumValue(OUTPUT_, result, INVERT_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, DESIGN_ONLY_, 1, vtmEnum)",
                                           "GetEnumValue(OUTPUT_, result, KEEP_POST_DATA_, 1, vtmEnum)",
                                           "GetValue(OUTPUT_, result, ELEMENT_GROUP_, 1, vtmModelId, string)"));
  EXPECT_FALSE(command.HasCUTOFF_());
  EXPECT_THAT(command.GetCUTOFF_(), IsEmpty());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_has_CUTOFF_: no\nm_BACKFLOW_ANGLE_: 90\n"));
}

TEST(Output, HasACutoffThatIsAnEmptyList)
{
  RecordingStorage storage;
  AddSparseCommand(storage);
  storage.Command("OUTPUT_", "result")["CUTOFF_"] = {std::vector<double>{}};
  const auto command = LoadedAlone<OUTPUT_>(storage, "result");
  EXPECT_TRUE(command.HasCUTOFF_());
  EXPECT_THAT(command.GetCUTOFF_(), IsEmpty());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("\nm_has_CUTOFF_: yes\nm_CUTOFF_: [\n]\nm_BACKFLOW_ANGLE_: 90\n"));
}

TEST(Output, KeepsItsDefaultsWhereTheStorageHasNoKeysAndGivesNoFailure)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("OUTPUT_", "bare");
  const auto command = LoadedAlone<OUTPUT_>(storage, "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectDefaults(command);
}

TEST(Output, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("OUTPUT_", "result").erase("ELEMENT_GROUP_");
  OUTPUT_ command;
  EXPECT_THROW(command.Load(storage, "result"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "result");
  EXPECT_EQ(command.GetKEEP_POST_DATA_(), OUTPUT_::KEEP_POST_DATA_NO);
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
}

TEST(Output, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(Output, NamesItsFormats)
{
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_FORMAT_>({{OUTPUT_::FORMAT_CSV, 67, "CSV"},
                                                     {OUTPUT_::FORMAT_ONF, 79, "ONF"},
                                                     {OUTPUT_::FORMAT_VTFX_PLOT, 80, "VTFX_PLOT"},
                                                     {OUTPUT_::FORMAT_VTK, 86, "VTK"},
                                                     {OUTPUT_::FORMAT_WRL, 87, "WRL"}});
}

TEST(Output, NamesItsTypes)
{
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_TYPE_>({{OUTPUT_::TYPE_CONSTRAINT_DATA, 67, "CONSTRAINT_DATA"},
                                                   {OUTPUT_::TYPE_SENSITIVITY_DATA, 71, "SENSITIVITY_DATA"},
                                                   {OUTPUT_::TYPE_SHAPE_DATA, 72, "SHAPE_DATA"},
                                                   {OUTPUT_::TYPE_LEVELSET_DATA, 76, "LEVELSET_DATA"},
                                                   {OUTPUT_::TYPE_MODEL, 77, "MODEL"},
                                                   {OUTPUT_::TYPE_OPT_FUNC_DATA, 79, "OPT_FUNC_DATA"},
                                                   {OUTPUT_::TYPE_CELL_SET, 83, "CELL_SET"},
                                                   {OUTPUT_::TYPE_TOPO_DATA, 84, "TOPO_DATA"}});
}

TEST(Output, NamesItsResults)
{
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_RESULT_>({{OUTPUT_::RESULT_PTRACK, 80, "PTRACK"},
                                                     {OUTPUT_::RESULT_MATERIAL, 83, "MATERIAL"},
                                                     {OUTPUT_::RESULT_VELOCITY, 86, "VELOCITY"}});
}

TEST(Output, NamesItsSpreadAlgorithms)
{
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_SPREAD_ALGO_>({{OUTPUT_::SPREAD_ALGO_ALL_PTRACKS, 65, "ALL_PTRACKS"},
                                                          {OUTPUT_::SPREAD_ALGO_FASTEST_PTRACK, 70, "FASTEST_PTRACK"},
                                                          {OUTPUT_::SPREAD_ALGO_POST_PRIMARY, 79, "POST_PRIMARY"},
                                                          {OUTPUT_::SPREAD_ALGO_PRE_PRIMARY, 82, "PRE_PRIMARY"},
                                                          {OUTPUT_::SPREAD_ALGO_PTRACK_SET, 83, "PTRACK_SET"}});
}

TEST(Output, NamesNoAndYesOfItsThreeSwitches)
{
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_INVERT_>({{OUTPUT_::INVERT_NO, 70, "NO"}, {OUTPUT_::INVERT_YES, 84, "YES"}});
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_DESIGN_ONLY_>(
    {{OUTPUT_::DESIGN_ONLY_NO, 70, "NO"}, {OUTPUT_::DESIGN_ONLY_YES, 84, "YES"}});
  ExpectEnumerators<OUTPUT_, OUTPUT_::Enum_KEEP_POST_DATA_>(
    {{OUTPUT_::KEEP_POST_DATA_NO, 70, "NO"}, {OUTPUT_::KEEP_POST_DATA_YES, 84, "YES"}});
}

TEST(Output, PrintsItsDefaultsWithAllSevenEnumerationsInvalid)
{
  const KLV_LogRecord record = LogRecordOf(OUTPUT_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5846);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|OUTPUT_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_FILENAME_: \n"
                         "m_FORMAT_: INVALID\n"
                         "m_ITERATION_: [\n"
                         "]\n"
                         "m_TYPE_: INVALID\n"
                         "m_RESULT_: INVALID\n"
                         "m_SPREAD_ALGO_: INVALID\n"
                         "m_has_CUTOFF_: no\n"
                         "m_BACKFLOW_ANGLE_: 0\n"
                         "m_SPREAD_PERCENTAGE_: 0\n"
                         "m_INVERT_: INVALID\n"
                         "m_DESIGN_ONLY_: INVALID\n"
                         "m_KEEP_POST_DATA_: INVALID\n"
                         "m_ELEMENT_GROUP_: \n");
}

TEST(Output, PrintsAllItHoldsWithinAJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetOUTPUT_("result"));
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5846);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|OUTPUT_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Output, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("OUTPUT_", "result")["FILENAME_"] = {std::string(1500, 'f')};
  EXPECT_EQ(LogRecordOf(LoadedAlone<OUTPUT_>(storage, "result")).text,
            "m_ID_NAME_: result\nm_FILENAME_: " + std::string(991, 'f'));
}

TEST(Output, IsLoadedFromPosition0UpToTheCountOfItsKind)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  for (const char* id : {"zeta", "alpha", "mid"})
  {
    storage.Command("OUTPUT_", id);
  }
  Gyre_Parfile parfile(storage);
  parfile.Load();
  std::vector<std::string> walk;
  for (const std::string& call : storage.Calls())
  {
    if (call.find("Command(OUTPUT_") != std::string::npos || call.find("CommandName(OUTPUT_") != std::string::npos)
    {
      walk.push_back(call);
    }
  }
  EXPECT_THAT(walk, ElementsAre("GetNumCommand(OUTPUT_)", "GetCommandName(OUTPUT_, 0)", "GetCommandName(OUTPUT_, 1)",
                                "GetCommandName(OUTPUT_, 2)"));
  ASSERT_EQ(parfile.NumOUTPUT_(), 3U);
  EXPECT_EQ(parfile.GetOUTPUT_(1).GetID_NAME_(), "zeta");
  EXPECT_EQ(parfile.GetOUTPUT_(2).GetID_NAME_(), "alpha");
  EXPECT_EQ(parfile.GetOUTPUT_(3).GetID_NAME_(), "mid");
}

TEST(Output, LooksForItsGroupAmongElementGroups)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<OUTPUT_>(storage, "result");
  EXPECT_THAT(KindsThatSatisfy(command, storage, "result", "design_space"), ElementsAre(9));
}

TEST(Output, FindsAnUnknownGroup)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<OUTPUT_>(storage, "result");
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"another"});
  EXPECT_THAT(ProblemsIn(command, storage, "result"),
              ElementsAre(Problem{"design_space", "ELEMENT_GROUP", "result", "OUTPUT"}));
  EXPECT_THAT(MessagesIn(command, storage, "result"),
              ElementsAre("Referenced ID is not found\n"
                          "  Value \"design_space\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                          "  In \"OUTPUT\" command with ID_NAME \"result\""));
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("design_space"), 0U);
}

TEST(Output, TellsTheDatabaseOfItsKnownGroup)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<OUTPUT_>(storage, "result");
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"design_space"});
  EXPECT_THAT(ProblemsIn(command, storage, "result"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("design_space"), 1U);
}

TEST(Output, ReadsItsGroupAgainFromTheStorage)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<OUTPUT_>(storage, "result");
  storage.Command("OUTPUT_", "renamed")["ELEMENT_GROUP_"] = {std::string("void")};
  storage.ForgetCalls();
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"design_space"});
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"),
              ElementsAre(Problem{"void", "ELEMENT_GROUP", "result", "OUTPUT"}));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(OUTPUT_, renamed, ELEMENT_GROUP_, 1, vtmModelId, string)"));
}

TEST(Output, IsCheckedWithTheEmptyNameWhenItHasNoGroup)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("OUTPUT_", "bare");
  auto command = LoadedAlone<OUTPUT_>(storage, "bare");
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"design_space"});
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), ElementsAre(Problem{"", "ELEMENT_GROUP", "bare", "OUTPUT"}));

  database.Add(KLV_IdType::element_group, {""});
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount(""), 1U);
}

TEST(Output, DoesNotTakeAnElementGroupCommandForAGroupOfTheModel)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  storage.Command("ELEMENT_GROUP_", "design_space");
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(parfile.GetOUTPUT_("result"), storage, "result"),
              ElementsAre(Problem{"design_space", "ELEMENT_GROUP", "result", "OUTPUT"}));
}

TEST(Output, CopiesEveryMember)
{
  const OUTPUT_ original = FullCommand();
  const OUTPUT_ copy(original);
  ExpectFull(copy);
  EXPECT_NE(copy.GetITERATION_().data(), original.GetITERATION_().data());
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(Output, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const OUTPUT_ original = FullCommand();
  OUTPUT_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const OUTPUT_& itself = other;
  other = itself;
  ExpectFull(other);
  other = OUTPUT_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectDefaults(other);
}

TEST(Output, KeepsItsThreeSwitchesApart)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  auto& keys = storage.Command("OUTPUT_", "switches");
  keys["INVERT_"] = {101};
  keys["DESIGN_ONLY_"] = {102};
  keys["KEEP_POST_DATA_"] = {103};
  OUTPUT_ command;
  command.Load(storage, "switches");
  EXPECT_EQ(command.GetINVERT_(), 101);
  EXPECT_EQ(command.GetDESIGN_ONLY_(), 102);
  EXPECT_EQ(command.GetKEEP_POST_DATA_(), 103);
}
