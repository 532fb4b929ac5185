#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static_assert(kReturn<FILTER_, const std::string&, &FILTER_::GetType, &FILTER_::GetID_NAME_, &FILTER_::GetPATCH_ID_,
                      &FILTER_::GetFACE_GROUP_, &FILTER_::GetNODE_GROUP_, &FILTER_::GetELEMENT_GROUP_>);
static_assert(kReturn<FILTER_, const FILTER_::Enum_METHOD_&, &FILTER_::GetMETHOD_>);
static_assert(kReturn<FILTER_, const double&, &FILTER_::GetRADIUS_, &FILTER_::GetX_DIRECTION_,
                      &FILTER_::GetY_DIRECTION_, &FILTER_::GetZ_DIRECTION_, &FILTER_::GetX_POINT_,
                      &FILTER_::GetY_POINT_, &FILTER_::GetZ_POINT_, &FILTER_::GetALPHA_, &FILTER_::GetBETA_>);
static_assert(kReturn<FILTER_, bool, &FILTER_::HasX_DIRECTION_, &FILTER_::HasY_DIRECTION_, &FILTER_::HasZ_DIRECTION_,
                      &FILTER_::HasX_POINT_, &FILTER_::HasY_POINT_, &FILTER_::HasZ_POINT_, &FILTER_::HasFACE_GROUP_,
                      &FILTER_::HasNODE_GROUP_, &FILTER_::HasELEMENT_GROUP_>);

namespace
{

const char* const kFullText = "m_ID_NAME_: fine\n"
                              "m_PATCH_ID_: wall\n"
                              "m_METHOD_: SIGMUND_SURFACE\n"
                              "m_RADIUS_: 2.5\n"
                              "m_has_X_DIRECTION_: yes\n"
                              "m_X_DIRECTION_: 0.1\n"
                              "m_has_Y_DIRECTION_: yes\n"
                              "m_Y_DIRECTION_: 0.2\n"
                              "m_has_Z_DIRECTION_: yes\n"
                              "m_Z_DIRECTION_: 0.3\n"
                              "m_has_X_POINT_: yes\n"
                              "m_X_POINT_: -1.5\n"
                              "m_has_Y_POINT_: yes\n"
                              "m_Y_POINT_: -2.5\n"
                              "m_has_Z_POINT_: yes\n"
                              "m_Z_POINT_: -3.5\n"
                              "m_has_FACE_GROUP_: yes\n"
                              "m_FACE_GROUP_: inlet_faces\n"
                              "m_has_NODE_GROUP_: yes\n"
                              "m_NODE_GROUP_: wall_nodes\n"
                              "m_has_ELEMENT_GROUP_: yes\n"
                              "m_ELEMENT_GROUP_: duct\n"
                              "m_ALPHA_: 0.7\n"
                              "m_BETA_: 0.8\n";

RecordingStorage StorageWithSparseFilter(const std::string& id)
{
  RecordingStorage storage;
  auto& keys = storage.Command("FILTER_", id);
  keys["PATCH_ID_"] = {std::string("wall")};
  keys["METHOD_"] = {70};
  keys["RADIUS_"] = {2.5};
  keys["ALPHA_"] = {0.7};
  keys["BETA_"] = {0.8};
  return storage;
}

RecordingStorage StorageWithFilterOn(const std::string& key, const std::string& group)
{
  RecordingStorage storage = StorageWithSparseFilter("fine");
  storage.Command("FILTER_", "fine")[key] = {group};
  return storage;
}

RecordingStorage StorageWithFullFilter()
{
  RecordingStorage storage = StorageWithSparseFilter("fine");
  auto& keys = storage.Command("FILTER_", "fine");
  keys["X_DIRECTION_"] = {0.1};
  keys["Y_DIRECTION_"] = {0.2};
  keys["Z_DIRECTION_"] = {0.3};
  keys["X_POINT_"] = {-1.5};
  keys["Y_POINT_"] = {-2.5};
  keys["Z_POINT_"] = {-3.5};
  keys["FACE_GROUP_"] = {std::string("inlet_faces")};
  keys["NODE_GROUP_"] = {std::string("wall_nodes")};
  keys["ELEMENT_GROUP_"] = {std::string("duct")};
  return storage;
}

FILTER_ FullFilter()
{
  return LoadedAlone<FILTER_>(StorageWithFullFilter(), "fine");
}

/// A problem of the filter "fine".
Problem Unknown(const char* group, const char* parameter)
{
  return {group, parameter, "fine", "FILTER"};
}

void ExpectDefaults(const FILTER_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetPATCH_ID_(), "");
  EXPECT_EQ(command.GetMETHOD_(), 0);
  EXPECT_EQ(command.GetRADIUS_(), 0.0);
  EXPECT_FALSE(command.HasX_DIRECTION_());
  EXPECT_EQ(command.GetX_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasZ_DIRECTION_());
  EXPECT_EQ(command.GetZ_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), 0.0);
  EXPECT_FALSE(command.HasY_POINT_());
  EXPECT_EQ(command.GetY_POINT_(), 0.0);
  EXPECT_FALSE(command.HasZ_POINT_());
  EXPECT_EQ(command.GetZ_POINT_(), 0.0);
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "");
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
  EXPECT_EQ(command.GetALPHA_(), 0.0);
  EXPECT_EQ(command.GetBETA_(), 0.0);
}

void ExpectFull(const FILTER_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "fine");
  EXPECT_EQ(command.GetPATCH_ID_(), "wall");
  EXPECT_EQ(command.GetMETHOD_(), FILTER_::METHOD_SIGMUND_SURFACE);
  EXPECT_EQ(command.GetRADIUS_(), 2.5);
  EXPECT_TRUE(command.HasX_DIRECTION_());
  EXPECT_EQ(command.GetX_DIRECTION_(), 0.1);
  EXPECT_TRUE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.2);
  EXPECT_TRUE(command.HasZ_DIRECTION_());
  EXPECT_EQ(command.GetZ_DIRECTION_(), 0.3);
  EXPECT_TRUE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), -1.5);
  EXPECT_TRUE(command.HasY_POINT_());
  EXPECT_EQ(command.GetY_POINT_(), -2.5);
  EXPECT_TRUE(command.HasZ_POINT_());
  EXPECT_EQ(command.GetZ_POINT_(), -3.5);
  EXPECT_TRUE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "inlet_faces");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_EQ(command.GetALPHA_(), 0.7);
  EXPECT_EQ(command.GetBETA_(), 0.8);
}

}  // namespace

TEST(Filter, TellsItsNames)
{
  EXPECT_STREQ(FILTER_::COMMAND_NAME, "FILTER");
  EXPECT_EQ(FILTER_::s_type, "FILTER_");
  EXPECT_EQ(FILTER_().GetType(), "FILTER_");
  EXPECT_EQ(&FILTER_().GetType(), &FILTER_::s_type);
}

TEST(Filter, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(FILTER_());
}

TEST(Filter, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithFullFilter();
  LoadedAlone<FILTER_>(storage, "fine");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetValue(FILTER_, fine, PATCH_ID_, 1, vtmString, string)", "GetEnumValue(FILTER_, fine, METHOD_, 1, vtmEnum)",
      "GetValue(FILTER_, fine, RADIUS_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, X_DIRECTION_)",
      "GetValue(FILTER_, fine, X_DIRECTION_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, Y_DIRECTION_)",
      "GetValue(FILTER_, fine, Y_DIRECTION_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, Z_DIRECTION_)",
      "GetValue(FILTER_, fine, Z_DIRECTION_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, X_POINT_)",
      "GetValue(FILTER_, fine, X_POINT_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, Y_POINT_)",
      "GetValue(FILTER_, fine, Y_POINT_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, Z_POINT_)",
      "GetValue(FILTER_, fine, Z_POINT_, 1, vtmDouble, double)", "HasElement(FILTER_, fine, FACE_GROUP_)",
      "GetValue(FILTER_, fine, FACE_GROUP_, 1, vtmModelId, string)", "HasElement(FILTER_, fine, NODE_GROUP_)",
      "GetValue(FILTER_, fine, NODE_GROUP_, 1, vtmModelId, string)", "HasElement(FILTER_, fine, ELEMENT_GROUP_)",
      "GetValue(FILTER_, fine, ELEMENT_GROUP_, 1, vtmModelId, string)",
      "GetValue(FILTER_, fine, ALPHA_, 1, vtmDouble, double)", "GetValue(FILTER_, fine, BETA_, 1, vtmDouble, double)"));
}

TEST(Filter, DoesNotReadOptionalKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithSparseFilter("bare");
  LoadedAlone<FILTER_>(storage, "bare");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetValue(FILTER_, bare, PATCH_ID_, 1, vtmString, string)", "GetEnumValue(FILTER_, bare, METHOD_, 1, vtmEnum)",
      "GetValue(FILTER_, bare, RADIUS_, 1, vtmDouble, double)", "HasElement(FILTER_, bare, X_DIRECTION_)",
      "HasElement(FILTER_, bare, Y_DIRECTION_)", "HasElement(FILTER_, bare, Z_DIRECTION_)",
      "HasElement(FILTER_, bare, X_POINT_)", "HasElement(FILTER_, bare, Y_POINT_)",
      "HasElement(FILTER_, bare, Z_POINT_)", "HasElement(FILTER_, bare, FACE_GROUP_)",
      "HasElement(FILTER_, bare, NODE_GROUP_)", "HasElement(FILTER_, bare, ELEMENT_GROUP_)",
      "GetValue(FILTER_, bare, ALPHA_, 1, vtmDouble, double)", "GetValue(FILTER_, bare, BETA_, 1, vtmDouble, double)"));
}

TEST(Filter, GivesWhatItLoaded)
{
  ExpectFull(FullFilter());
}

TEST(Filter, TakesTheCoordinatesOfPointAndDirectionOneByOne)
{
  RecordingStorage storage = StorageWithSparseFilter("fine");
  storage.Command("FILTER_", "fine")["Y_DIRECTION_"] = {0.2};
  storage.Command("FILTER_", "fine")["Z_POINT_"] = {-3.5};
  const FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  EXPECT_FALSE(command.HasX_DIRECTION_());
  EXPECT_EQ(command.GetX_DIRECTION_(), 0.0);
  EXPECT_TRUE(command.HasY_DIRECTION_());
  EXPECT_EQ(command.GetY_DIRECTION_(), 0.2);
  EXPECT_FALSE(command.HasZ_DIRECTION_());
  EXPECT_EQ(command.GetZ_DIRECTION_(), 0.0);
  EXPECT_FALSE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), 0.0);
  EXPECT_FALSE(command.HasY_POINT_());
  EXPECT_EQ(command.GetY_POINT_(), 0.0);
  EXPECT_TRUE(command.HasZ_POINT_());
  EXPECT_EQ(command.GetZ_POINT_(), -3.5);
}

TEST(Filter, LoadsARadiusOfZeroOrBelow)
{
  RecordingStorage storage = StorageWithSparseFilter("fine");
  storage.Command("FILTER_", "fine")["RADIUS_"] = {0.0};
  EXPECT_EQ(LoadedAlone<FILTER_>(storage, "fine").GetRADIUS_(), 0.0);
  storage.Command("FILTER_", "fine")["RADIUS_"] = {-2.5};
  EXPECT_EQ(LoadedAlone<FILTER_>(storage, "fine").GetRADIUS_(), -2.5);
}

TEST(Filter, TellsAnEmptyGroupFromAnAbsentOne)
{
  const FILTER_ command = LoadedAlone<FILTER_>(StorageWithFilterOn("NODE_GROUP_", ""), "fine");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_has_NODE_GROUP_: yes\nm_NODE_GROUP_: \n"));
}

TEST(Filter, KeepsEarlierOptionalValuesInASecondLoadWithoutThem)
{
  FILTER_ command = FullFilter();
  command.Load(StorageWithSparseFilter("bare"), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_FALSE(command.HasX_POINT_());
  EXPECT_EQ(command.GetX_POINT_(), -1.5);
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
}

TEST(Filter, KeepsTheDefaultsOfAbsentKeysOnAStorageThatLeavesOutputsAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("FILTER_", "");
  ExpectDefaults(LoadedAlone<FILTER_>(storage, ""));
}

TEST(Filter, DependsOnItsRequiredKeysOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithFullFilter();
  storage.Command("FILTER_", "fine").erase("ALPHA_");
  FILTER_ command;
  EXPECT_THROW(command.Load(storage, "fine"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "fine");
  EXPECT_EQ(command.GetRADIUS_(), 2.5);
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_EQ(command.GetALPHA_(), 0.0);
  EXPECT_EQ(command.GetBETA_(), 0.0);
}

TEST(Filter, NamesItsMethodsOfWhichDistanceToBorderHasTheSmallLetterD)
{
  ExpectEnumerators<FILTER_, FILTER_::Enum_METHOD_>({{FILTER_::METHOD_DA_NORMAL, 65, "DA_NORMAL"},
                                                     {FILTER_::METHOD_BOUNDARY, 66, "BOUNDARY"},
                                                     {FILTER_::METHOD_BD_TRANSITION, 67, "BD_TRANSITION"},
                                                     {FILTER_::METHOD_DEMOLD, 68, "DEMOLD"},
                                                     {FILTER_::METHOD_SIGMUND, 69, "SIGMUND"},
                                                     {FILTER_::METHOD_SIGMUND_SURFACE, 70, "SIGMUND_SURFACE"},
                                                     {FILTER_::METHOD_MAXIMUM_MEMBER, 77, "MAXIMUM_MEMBER"},
                                                     {FILTER_::METHOD_MEDIAN, 78, "MEDIAN"},
                                                     {FILTER_::METHOD_DA_PLANE_NORMAL, 80, "DA_PLANE_NORMAL"},
                                                     {FILTER_::METHOD_SYMMETRY, 83, "SYMMETRY"},
                                                     {FILTER_::METHOD_DISTANCE_TO_BORDER, 100, "DISTANCE_TO_BORDER"}});
  EXPECT_EQ(FILTER_::GetEnumName(static_cast<FILTER_::Enum_METHOD_>('d')), "DISTANCE_TO_BORDER");
  EXPECT_EQ(FILTER_::GetEnumName(static_cast<FILTER_::Enum_METHOD_>('D')), "DEMOLD");
  EXPECT_EQ(FILTER_::GetEnumName(static_cast<FILTER_::Enum_METHOD_>(0)), "INVALID");
  EXPECT_EQ(FILTER_::GetEnumName(static_cast<FILTER_::Enum_METHOD_>(71)), "INVALID");
}

TEST(Filter, KeepsAMethodThatIsNoEnumerator)
{
  RecordingStorage storage = StorageWithSparseFilter("fine");
  storage.Command("FILTER_", "fine")["METHOD_"] = {101};
  const FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  EXPECT_EQ(command.GetMETHOD_(), 101);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_METHOD_: INVALID\n"));
}

TEST(Filter, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(FILTER_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 4353);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|FILTER_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_PATCH_ID_: \n"
                         "m_METHOD_: INVALID\n"
                         "m_RADIUS_: 0\n"
                         "m_has_X_DIRECTION_: no\n"
                         "m_has_Y_DIRECTION_: no\n"
                         "m_has_Z_DIRECTION_: no\n"
                         "m_has_X_POINT_: no\n"
                         "m_has_Y_POINT_: no\n"
                         "m_has_Z_POINT_: no\n"
                         "m_has_FACE_GROUP_: no\n"
                         "m_has_NODE_GROUP_: no\n"
                         "m_has_ELEMENT_GROUP_: no\n"
                         "m_ALPHA_: 0\n"
                         "m_BETA_: 0\n");
}

TEST(Filter, PrintsAllItHoldsAsPartOfAJob)
{
  LinkedJob job(StorageWithFullFilter());
  const KLV_LogRecord record = LogRecordOf(job->GetFILTER_("fine"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:4353 [%T|%n|%P|OrvelCommands|FILTER_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Filter, IsNotAskedForReferencesWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithSparseFilter("bare"));
  EXPECT_EQ(job.CallsAbout("FILTER_", "bare").size(), 14U);
}

TEST(Filter, PrintsAPercentSignInAGroupAsAConversion)
{
  const RecordingStorage storage = StorageWithFilterOn("FACE_GROUP_", "open 40%%, %d of %s");
  const FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  EXPECT_EQ(command.GetFACE_GROUP_(), "open 40%%, %d of %s");
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_FACE_GROUP_: open 40%, 0 of \n"));
}

TEST(Filter, ChecksEachGroupAmongTheModelsGroupsOfItsKind)
{
  const RecordingStorage faces = StorageWithFilterOn("FACE_GROUP_", "skin");
  FILTER_ on_faces = LoadedAlone<FILTER_>(faces, "fine");
  EXPECT_THAT(KindsThatSatisfy(on_faces, faces, "fine", "skin"), ElementsAre(8));

  const RecordingStorage nodes = StorageWithFilterOn("NODE_GROUP_", "skin");
  FILTER_ on_nodes = LoadedAlone<FILTER_>(nodes, "fine");
  EXPECT_THAT(KindsThatSatisfy(on_nodes, nodes, "fine", "skin"), ElementsAre(7));

  const RecordingStorage elements = StorageWithFilterOn("ELEMENT_GROUP_", "skin");
  FILTER_ on_elements = LoadedAlone<FILTER_>(elements, "fine");
  EXPECT_THAT(KindsThatSatisfy(on_elements, elements, "fine", "skin"), ElementsAre(9));
}

TEST(Filter, FindsAllUnknownGroupsInTheOrderOfItsKeys)
{
  const RecordingStorage storage = StorageWithFullFilter();
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "fine"),
              ElementsAre(Unknown("inlet_faces", "FACE_GROUP"), Unknown("wall_nodes", "NODE_GROUP"),
                          Unknown("duct", "ELEMENT_GROUP")));
}

TEST(Filter, GoesOnToTheNextGroupAfterAnUnknownOne)
{
  const RecordingStorage storage = StorageWithFullFilter();
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "fine"),
              ElementsAre(Unknown("inlet_faces", "FACE_GROUP"), Unknown("duct", "ELEMENT_GROUP")));
}

TEST(Filter, TellsTheMapsWhichOfTheirIdsItUses)
{
  const RecordingStorage storage = StorageWithFullFilter();
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet_faces"});
  database.Add(KLV_IdType::node_group, {"wall_nodes", "duct", "inlet_faces"});
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "fine"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("inlet_faces"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("wall_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("duct"), 0U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("inlet_faces"), 0U);
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("duct"), 1U);
}

TEST(Filter, DoesNotLookUpAnUnknownGroup)
{
  const RecordingStorage storage = StorageWithFilterOn("NODE_GROUP_", "nowhere");
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  OpenDatabase database;
  EXPECT_EQ(ProblemsIn(command, storage, "fine").size(), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("nowhere"), 0U);
}

TEST(Filter, AcceptsAnyMixOfGroupsAndChecksJustThosePresent)
{
  RecordingStorage storage = StorageWithFilterOn("FACE_GROUP_", "skin");
  storage.Command("FILTER_", "fine")["ELEMENT_GROUP_"] = {std::string("core")};
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  storage.ForgetCalls();
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "fine"),
              ElementsAre(Unknown("skin", "FACE_GROUP"), Unknown("core", "ELEMENT_GROUP")));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(FILTER_, fine, FACE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(FILTER_, fine, ELEMENT_GROUP_, 1, vtmModelId, string)"));
}

TEST(Filter, HasNothingToCheckWithoutGroupsAndNeedsNoDatabaseThen)
{
  RecordingStorage storage = StorageWithSparseFilter("bare");
  FILTER_ command = LoadedAlone<FILTER_>(storage, "bare");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Filter, ChecksWhatTheStorageHoldsNowUnderTheNameGivenAndReportsItsOwnId)
{
  FILTER_ command = LoadedAlone<FILTER_>(StorageWithFilterOn("NODE_GROUP_", "then"), "fine");
  RecordingStorage storage;
  storage.Command("FILTER_", "renamed")["NODE_GROUP_"] = {std::string("now")};
  storage.Command("FILTER_", "renamed")["FACE_GROUP_"] = {std::string("not loaded")};
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"), ElementsAre(Unknown("now", "NODE_GROUP")));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(FILTER_, renamed, NODE_GROUP_, 1, vtmModelId, string)"));
  EXPECT_EQ(command.GetNODE_GROUP_(), "then");
}

TEST(Filter, SaysWhatIsWrongWithAGroup)
{
  const RecordingStorage storage = StorageWithFilterOn("FACE_GROUP_", "skin");
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  const OpenDatabase database;
  EXPECT_THAT(MessagesIn(command, storage, "fine"),
              ElementsAre("Referenced ID is not found\n"
                          "  Value \"skin\" of parameter \"FACE_GROUP\" is erroneous\n"
                          "  In \"FILTER\" command with ID_NAME \"fine\""));
}

TEST(Filter, AddsItsProblemsToThoseThatAreThere)
{
  const RecordingStorage storage = StorageWithFilterOn("FACE_GROUP_", "skin");
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  const OpenDatabase database;
  std::vector<KLV_ParfileException> errors;
  std::string id = "fine";
  command.ValidateModelIds(storage, id, errors);
  command.ValidateModelIds(storage, id, errors);
  EXPECT_THAT(ProblemsOf(errors), ElementsAre(Unknown("skin", "FACE_GROUP"), Unknown("skin", "FACE_GROUP")));
  EXPECT_EQ(id, "fine");
}

TEST(Filter, PassesOnTheFailureOfItsStorageInACheck)
{
  RecordingStorage storage = StorageWithFullFilter();
  FILTER_ command = LoadedAlone<FILTER_>(storage, "fine");
  storage.FailOn("GetValue(FILTER_, fine, NODE_GROUP_, 1, vtmModelId, string)");
  const OpenDatabase database;
  EXPECT_THROW(ProblemsIn(command, storage, "fine"), FailedOnDemand);
}

TEST(Filter, CopiesItsValues)
{
  FILTER_ original = FullFilter();
  const FILTER_ copy(original);
  original = FILTER_();
  ExpectFull(copy);
}

TEST(Filter, TakesAllValuesOfAnotherOne)
{
  const FILTER_ full = FullFilter();
  FILTER_ command;
  static_assert(std::is_same_v<FILTER_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFull(command);
  command = FILTER_();
  ExpectDefaults(command);
}

TEST(Filter, KeepsItsValuesWhenItIsAssignedToItself)
{
  FILTER_ command = FullFilter();
  const FILTER_& same = command;
  command = same;
  ExpectFull(command);
}
