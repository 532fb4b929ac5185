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
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

static_assert(kReturn<MESH_SMOOTH_, const std::string&, &MESH_SMOOTH_::GetType, &MESH_SMOOTH_::GetID_NAME_,
                      &MESH_SMOOTH_::GetFACE_GROUP_, &MESH_SMOOTH_::GetNODE_GROUP_, &MESH_SMOOTH_::GetELEMENT_GROUP_>);
static_assert(kReturn<MESH_SMOOTH_, const MESH_SMOOTH_::Enum_METHOD_&, &MESH_SMOOTH_::GetMETHOD_>);
static_assert(kReturn<MESH_SMOOTH_, const int&, &MESH_SMOOTH_::GetCYCLE_, &MESH_SMOOTH_::GetSMOOTH_CYCLES_>);
static_assert(kReturn<MESH_SMOOTH_, const double&, &MESH_SMOOTH_::GetALPHA_, &MESH_SMOOTH_::GetBETA_>);
static_assert(kReturn<MESH_SMOOTH_, bool, &MESH_SMOOTH_::HasFACE_GROUP_, &MESH_SMOOTH_::HasNODE_GROUP_,
                      &MESH_SMOOTH_::HasELEMENT_GROUP_, &MESH_SMOOTH_::HasFILTER_, &MESH_SMOOTH_::HasDV_CONSTRAINT_>);
static_assert(kReturn<MESH_SMOOTH_, const FILTER_&, &MESH_SMOOTH_::GetFILTER_>);
static_assert(kReturn<MESH_SMOOTH_, const DV_CONSTRAINT_&, &MESH_SMOOTH_::GetDV_CONSTRAINT_>);

namespace
{

const char* const kUnlinkedText = "m_ID_NAME_: relax\n"
                                  "m_METHOD_: CONSTRAINED_LAPLACIAN\n"
                                  "m_CYCLE_: 3\n"
                                  "m_has_FACE_GROUP_: yes\n"
                                  "m_FACE_GROUP_: inlet_faces\n"
                                  "m_has_NODE_GROUP_: yes\n"
                                  "m_NODE_GROUP_: wall_nodes\n"
                                  "m_has_ELEMENT_GROUP_: yes\n"
                                  "m_ELEMENT_GROUP_: duct\n"
                                  "m_SMOOTH_CYCLES_: 25\n"
                                  "m_ALPHA_: 0.7\n"
                                  "m_BETA_: 0.8\n"
                                  "m_has_FILTER_: no\n"
                                  "m_has_DV_CONSTRAINT_: no\n";

const char* const kLinkedText = "m_ID_NAME_: relax\n"
                                "m_METHOD_: CONSTRAINED_LAPLACIAN\n"
                                "m_CYCLE_: 3\n"
                                "m_has_FACE_GROUP_: yes\n"
                                "m_FACE_GROUP_: inlet_faces\n"
                                "m_has_NODE_GROUP_: yes\n"
                                "m_NODE_GROUP_: wall_nodes\n"
                                "m_has_ELEMENT_GROUP_: yes\n"
                                "m_ELEMENT_GROUP_: duct\n"
                                "m_SMOOTH_CYCLES_: 25\n"
                                "m_ALPHA_: 0.7\n"
                                "m_BETA_: 0.8\n"
                                "m_has_FILTER_: yes\n"
                                "m_FILTER_: fine\n"
                                "m_has_DV_CONSTRAINT_: yes\n"
                                "m_DV_CONSTRAINT_: mirror\n";

RecordingStorage StorageWithSparseMeshSmooth(const std::string& id)
{
  RecordingStorage storage;
  auto& keys = storage.Command("MESH_SMOOTH_", id);
  keys["METHOD_"] = {67};
  keys["CYCLE_"] = {3};
  keys["SMOOTH_CYCLES_"] = {25};
  keys["ALPHA_"] = {0.7};
  keys["BETA_"] = {0.8};
  return storage;
}

RecordingStorage StorageWithMeshSmoothOn(const std::string& key, const std::string& group)
{
  RecordingStorage storage = StorageWithSparseMeshSmooth("relax");
  storage.Command("MESH_SMOOTH_", "relax")[key] = {group};
  return storage;
}

RecordingStorage StorageWithFullMeshSmooth()
{
  RecordingStorage storage = StorageWithSparseMeshSmooth("relax");
  auto& keys = storage.Command("MESH_SMOOTH_", "relax");
  keys["FACE_GROUP_"] = {std::string("inlet_faces")};
  keys["NODE_GROUP_"] = {std::string("wall_nodes")};
  keys["ELEMENT_GROUP_"] = {std::string("duct")};
  keys["FILTER_"] = {Ref{"fine"}};
  keys["DV_CONSTRAINT_"] = {Ref{"mirror"}};
  return storage;
}

/// The full command with what it refers to, behind other commands of the same kinds.
RecordingStorage StorageWithTargets()
{
  RecordingStorage storage = StorageWithFullMeshSmooth();
  storage.Command("FILTER_", "coarse");
  storage.Command("FILTER_", "fine");
  storage.Command("DV_CONSTRAINT_", "stamp");
  storage.Command("DV_CONSTRAINT_", "mirror");
  return storage;
}

MESH_SMOOTH_ FullMeshSmooth()
{
  return LoadedAlone<MESH_SMOOTH_>(StorageWithFullMeshSmooth(), "relax");
}

/// A problem of the mesh smoothing "relax".
Problem Unknown(const char* group, const char* parameter)
{
  return {group, parameter, "relax", "MESH_SMOOTH"};
}

void ExpectDefaults(const MESH_SMOOTH_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetMETHOD_(), 0);
  EXPECT_EQ(command.GetCYCLE_(), 0);
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "");
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
  EXPECT_EQ(command.GetSMOOTH_CYCLES_(), 0);
  EXPECT_EQ(command.GetALPHA_(), 0.0);
  EXPECT_EQ(command.GetBETA_(), 0.0);
  EXPECT_FALSE(command.HasFILTER_());
  EXPECT_FALSE(command.HasDV_CONSTRAINT_());
}

void ExpectFullButTheReferences(const MESH_SMOOTH_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "relax");
  EXPECT_EQ(command.GetMETHOD_(), MESH_SMOOTH_::METHOD_CONSTRAINED_LAPLACIAN);
  EXPECT_EQ(command.GetCYCLE_(), 3);
  EXPECT_TRUE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "inlet_faces");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_EQ(command.GetSMOOTH_CYCLES_(), 25);
  EXPECT_EQ(command.GetALPHA_(), 0.7);
  EXPECT_EQ(command.GetBETA_(), 0.8);
}

}  // namespace

TEST(MeshSmooth, TellsItsNames)
{
  EXPECT_STREQ(MESH_SMOOTH_::COMMAND_NAME, "MESH_SMOOTH");
  EXPECT_EQ(MESH_SMOOTH_::s_type, "MESH_SMOOTH_");
  EXPECT_EQ(MESH_SMOOTH_().GetType(), "MESH_SMOOTH_");
  EXPECT_EQ(&MESH_SMOOTH_().GetType(), &MESH_SMOOTH_::s_type);
}

TEST(MeshSmooth, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(MESH_SMOOTH_());
}

TEST(MeshSmooth, LoadsItsKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullMeshSmooth();
  LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(MESH_SMOOTH_, relax, METHOD_, 1, vtmEnum)",
                                           "GetValue(MESH_SMOOTH_, relax, CYCLE_, 1, vtmInteger, int)",
                                           "HasElement(MESH_SMOOTH_, relax, FACE_GROUP_)",
                                           "GetValue(MESH_SMOOTH_, relax, FACE_GROUP_, 1, vtmModelId, string)",
                                           "HasElement(MESH_SMOOTH_, relax, NODE_GROUP_)",
                                           "GetValue(MESH_SMOOTH_, relax, NODE_GROUP_, 1, vtmModelId, string)",
                                           "HasElement(MESH_SMOOTH_, relax, ELEMENT_GROUP_)",
                                           "GetValue(MESH_SMOOTH_, relax, ELEMENT_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(MESH_SMOOTH_, relax, SMOOTH_CYCLES_, 1, vtmInteger, int)",
                                           "GetValue(MESH_SMOOTH_, relax, ALPHA_, 1, vtmDouble, double)",
                                           "GetValue(MESH_SMOOTH_, relax, BETA_, 1, vtmDouble, double)"));
}

TEST(MeshSmooth, DoesNotReadGroupsThatAreAbsent)
{
  const RecordingStorage storage = StorageWithSparseMeshSmooth("bare");
  LoadedAlone<MESH_SMOOTH_>(storage, "bare");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetEnumValue(MESH_SMOOTH_, bare, METHOD_, 1, vtmEnum)",
                          "GetValue(MESH_SMOOTH_, bare, CYCLE_, 1, vtmInteger, int)",
                          "HasElement(MESH_SMOOTH_, bare, FACE_GROUP_)", "HasElement(MESH_SMOOTH_, bare, NODE_GROUP_)",
                          "HasElement(MESH_SMOOTH_, bare, ELEMENT_GROUP_)",
                          "GetValue(MESH_SMOOTH_, bare, SMOOTH_CYCLES_, 1, vtmInteger, int)",
                          "GetValue(MESH_SMOOTH_, bare, ALPHA_, 1, vtmDouble, double)",
                          "GetValue(MESH_SMOOTH_, bare, BETA_, 1, vtmDouble, double)"));
}

TEST(MeshSmooth, GivesWhatItLoadedAndHasNoReferencesYet)
{
  const MESH_SMOOTH_ command = FullMeshSmooth();
  ExpectFullButTheReferences(command);
  EXPECT_FALSE(command.HasFILTER_());
  EXPECT_FALSE(command.HasDV_CONSTRAINT_());
}

TEST(MeshSmooth, KeepsEarlierGroupsInASecondLoadWithoutThem)
{
  MESH_SMOOTH_ command = FullMeshSmooth();
  command.Load(StorageWithSparseMeshSmooth("bare"), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_FALSE(command.HasFACE_GROUP_());
  EXPECT_EQ(command.GetFACE_GROUP_(), "inlet_faces");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
}

TEST(MeshSmooth, KeepsTheDefaultsOfAbsentKeysOnAStorageThatLeavesOutputsAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("MESH_SMOOTH_", "");
  ExpectDefaults(LoadedAlone<MESH_SMOOTH_>(storage, ""));
}

TEST(MeshSmooth, DependsOnItsRequiredKeysOnAStorageThatFailsWithoutThem)
{
  RecordingStorage storage = StorageWithFullMeshSmooth();
  storage.Command("MESH_SMOOTH_", "relax").erase("SMOOTH_CYCLES_");
  MESH_SMOOTH_ command;
  EXPECT_THROW(command.Load(storage, "relax"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "relax");
  EXPECT_EQ(command.GetCYCLE_(), 3);
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_EQ(command.GetSMOOTH_CYCLES_(), 0);
  EXPECT_EQ(command.GetALPHA_(), 0.0);
}

TEST(MeshSmooth, NamesItsMethods)
{
  ExpectEnumerators<MESH_SMOOTH_, MESH_SMOOTH_::Enum_METHOD_>(
    {{MESH_SMOOTH_::METHOD_CONSTRAINED_LAPLACIAN, 67, "CONSTRAINED_LAPLACIAN"},
     {MESH_SMOOTH_::METHOD_RESTRICT_DOF, 68, "RESTRICT_DOF"},
     {MESH_SMOOTH_::METHOD_LAPLACE, 76, "LAPLACE"},
     {MESH_SMOOTH_::METHOD_NONE, 78, "NONE"},
     {MESH_SMOOTH_::METHOD_CHECK_PENETRATION, 80, "CHECK_PENETRATION"},
     {MESH_SMOOTH_::METHOD_RESTRICT_NODES_ON_PLANE, 82, "RESTRICT_NODES_ON_PLANE"},
     {MESH_SMOOTH_::METHOD_TRANSITION, 84, "TRANSITION"},
     {MESH_SMOOTH_::METHOD_TUM, 85, "TUM"}});
  EXPECT_EQ(MESH_SMOOTH_::GetEnumName(static_cast<MESH_SMOOTH_::Enum_METHOD_>(0)), "INVALID");
  EXPECT_EQ(MESH_SMOOTH_::GetEnumName(static_cast<MESH_SMOOTH_::Enum_METHOD_>(69)), "INVALID");
}

TEST(MeshSmooth, HasNoMethodOfTheSmallLetterDWhichAFilterHas)
{
  EXPECT_EQ(MESH_SMOOTH_::GetEnumName(static_cast<MESH_SMOOTH_::Enum_METHOD_>('d')), "INVALID");
  EXPECT_EQ(FILTER_::GetEnumName(static_cast<FILTER_::Enum_METHOD_>('d')), "DISTANCE_TO_BORDER");
}

TEST(MeshSmooth, KeepsAMethodThatIsNoEnumerator)
{
  RecordingStorage storage = StorageWithSparseMeshSmooth("relax");
  storage.Command("MESH_SMOOTH_", "relax")["METHOD_"] = {100};
  const MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  EXPECT_EQ(command.GetMETHOD_(), 100);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_METHOD_: INVALID\n"));
}

TEST(MeshSmooth, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(MESH_SMOOTH_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 3986);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|MESH_SMOOTH_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_METHOD_: INVALID\n"
                         "m_CYCLE_: 0\n"
                         "m_has_FACE_GROUP_: no\n"
                         "m_has_NODE_GROUP_: no\n"
                         "m_has_ELEMENT_GROUP_: no\n"
                         "m_SMOOTH_CYCLES_: 0\n"
                         "m_ALPHA_: 0\n"
                         "m_BETA_: 0\n"
                         "m_has_FILTER_: no\n"
                         "m_has_DV_CONSTRAINT_: no\n");
}

TEST(MeshSmooth, PrintsNoReferencesBeforeTheyAreResolved)
{
  EXPECT_EQ(LogRecordOf(FullMeshSmooth()).text, kUnlinkedText);
}

TEST(MeshSmooth, PrintsTheIdsOfItsFilterAndItsConstraintOnceTheyAreResolved)
{
  LinkedJob job(StorageWithTargets());
  const KLV_LogRecord record = LogRecordOf(job->GetMESH_SMOOTH_("relax"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:3986 [%T|%n|%P|OrvelCommands|MESH_SMOOTH_] ");
  EXPECT_EQ(record.text, kLinkedText);
}

TEST(MeshSmooth, IsLinkedByTheNamesInItsReferenceKeys)
{
  LinkedJob job(StorageWithTargets());
  const MESH_SMOOTH_& command = job->GetMESH_SMOOTH_("relax");
  ExpectFullButTheReferences(command);
  EXPECT_TRUE(command.HasFILTER_());
  EXPECT_EQ(&command.GetFILTER_(), &job->GetFILTER_("fine"));
  EXPECT_EQ(command.GetFILTER_().GetID_NAME_(), "fine");
  EXPECT_TRUE(command.HasDV_CONSTRAINT_());
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("mirror"));
  EXPECT_EQ(command.GetDV_CONSTRAINT_().GetID_NAME_(), "mirror");
}

TEST(MeshSmooth, AsksForItsReferencesInOrderWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithTargets());
  std::vector<std::string> calls = job.CallsAbout("MESH_SMOOTH_", "relax");
  ASSERT_EQ(calls.size(), 15U);
  calls.erase(calls.begin(), calls.begin() + 11);
  EXPECT_THAT(calls,
              ElementsAre("HasElement(MESH_SMOOTH_, relax, FILTER_)", "GetReference(MESH_SMOOTH_, relax, FILTER_, 1)",
                          "HasElement(MESH_SMOOTH_, relax, DV_CONSTRAINT_)",
                          "GetReference(MESH_SMOOTH_, relax, DV_CONSTRAINT_, 1)"));
}

TEST(MeshSmooth, DoesNotReadReferencesThatAreAbsent)
{
  LinkedJob job(StorageWithSparseMeshSmooth("bare"));
  std::vector<std::string> calls = job.CallsAbout("MESH_SMOOTH_", "bare");
  ASSERT_EQ(calls.size(), 10U);
  calls.erase(calls.begin(), calls.begin() + 8);
  EXPECT_THAT(calls,
              ElementsAre("HasElement(MESH_SMOOTH_, bare, FILTER_)", "HasElement(MESH_SMOOTH_, bare, DV_CONSTRAINT_)"));
  EXPECT_FALSE(job->GetMESH_SMOOTH_("bare").HasFILTER_());
  EXPECT_FALSE(job->GetMESH_SMOOTH_("bare").HasDV_CONSTRAINT_());
}

TEST(MeshSmooth, TellsAFilterOfItsOwnNameFromItself)
{
  RecordingStorage storage = StorageWithSparseMeshSmooth("relax");
  storage.Command("MESH_SMOOTH_", "relax")["FILTER_"] = {Ref{"relax"}};
  storage.Command("FILTER_", "relax");
  LinkedJob job(storage);
  EXPECT_EQ(job->GetMESH_SMOOTH_("relax").GetFILTER_().GetType(), "FILTER_");
  EXPECT_EQ(&job->GetMESH_SMOOTH_("relax").GetFILTER_(), &job->GetFILTER_("relax"));
}

TEST(MeshSmooth, IsLinkedToTheEarlierOfTwoFiltersOfOneName)
{
  RecordingStorage storage = StorageWithTargets();
  storage.AddSecondCommand("FILTER_", "fine");
  LinkedJob job(storage);
  ASSERT_EQ(job->NumFILTER_(), 3U);
  EXPECT_EQ(&job->GetMESH_SMOOTH_("relax").GetFILTER_(), &job->GetFILTER_(2));
}

TEST(MeshSmooth, EndsTheLoadOfAJobWhenAReferenceNamesNoCommand)
{
  RecordingStorage storage = StorageWithTargets();
  storage.Command("MESH_SMOOTH_", "relax")["FILTER_"] = {Ref{"missing"}};
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID missing of the parameter file command FILTER_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));

  storage.Command("MESH_SMOOTH_", "relax")["FILTER_"] = {Ref{"fine"}};
  storage.Command("MESH_SMOOTH_", "relax")["DV_CONSTRAINT_"] = {Ref{"absent"}};
  EXPECT_EQ(FailureOf([&] { LinkedJob{storage}; }),
            (Failure{"Invalid ID absent of the parameter file command DV_CONSTRAINT_", "161700240908",
                     "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(MeshSmooth, IsLinkedUpToTheReferenceThatEndsTheLoad)
{
  RecordingStorage storage = StorageWithTargets();
  storage.Command("MESH_SMOOTH_", "broken")["FILTER_"] = {Ref{"missing"}};
  storage.Command("MESH_SMOOTH_", "broken")["DV_CONSTRAINT_"] = {Ref{"mirror"}};
  storage.Command("MESH_SMOOTH_", "later")["FILTER_"] = {Ref{"fine"}};
  AddRequiredCommands(storage);
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);

  EXPECT_EQ(parfile.GetMESH_SMOOTH_("relax").GetFILTER_().GetID_NAME_(), "fine");
  EXPECT_EQ(parfile.GetMESH_SMOOTH_("relax").GetDV_CONSTRAINT_().GetID_NAME_(), "mirror");
  EXPECT_TRUE(parfile.GetMESH_SMOOTH_("broken").HasFILTER_());
  EXPECT_FALSE(parfile.GetMESH_SMOOTH_("broken").HasDV_CONSTRAINT_());
  EXPECT_FALSE(parfile.GetMESH_SMOOTH_("later").HasFILTER_());
  EXPECT_THAT(LogRecordOf(parfile.GetMESH_SMOOTH_("broken")).text,
              EndsWith("m_has_FILTER_: yes\nm_FILTER_: \nm_has_DV_CONSTRAINT_: no\n"));
}

TEST(MeshSmooth, PrintsAPercentSignInAGroupAsAConversion)
{
  const RecordingStorage storage = StorageWithMeshSmoothOn("NODE_GROUP_", "%d%% of wall");
  EXPECT_THAT(LogRecordOf(LoadedAlone<MESH_SMOOTH_>(storage, "relax")).text, HasSubstr("m_NODE_GROUP_: 0% of wall\n"));
}

TEST(MeshSmooth, ChecksEachGroupAmongTheModelsGroupsOfItsKind)
{
  const RecordingStorage faces = StorageWithMeshSmoothOn("FACE_GROUP_", "skin");
  MESH_SMOOTH_ on_faces = LoadedAlone<MESH_SMOOTH_>(faces, "relax");
  EXPECT_THAT(KindsThatSatisfy(on_faces, faces, "relax", "skin"), ElementsAre(8));

  const RecordingStorage nodes = StorageWithMeshSmoothOn("NODE_GROUP_", "skin");
  MESH_SMOOTH_ on_nodes = LoadedAlone<MESH_SMOOTH_>(nodes, "relax");
  EXPECT_THAT(KindsThatSatisfy(on_nodes, nodes, "relax", "skin"), ElementsAre(7));

  const RecordingStorage elements = StorageWithMeshSmoothOn("ELEMENT_GROUP_", "skin");
  MESH_SMOOTH_ on_elements = LoadedAlone<MESH_SMOOTH_>(elements, "relax");
  EXPECT_THAT(KindsThatSatisfy(on_elements, elements, "relax", "skin"), ElementsAre(9));
}

TEST(MeshSmooth, FindsAllUnknownGroupsInTheOrderOfItsKeys)
{
  const RecordingStorage storage = StorageWithFullMeshSmooth();
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "relax"),
              ElementsAre(Unknown("inlet_faces", "FACE_GROUP"), Unknown("wall_nodes", "NODE_GROUP"),
                          Unknown("duct", "ELEMENT_GROUP")));
}

TEST(MeshSmooth, GoesOnToTheNextGroupAfterAnUnknownOne)
{
  const RecordingStorage storage = StorageWithFullMeshSmooth();
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "relax"),
              ElementsAre(Unknown("inlet_faces", "FACE_GROUP"), Unknown("duct", "ELEMENT_GROUP")));
}

TEST(MeshSmooth, TellsTheMapsWhichOfTheirIdsItUses)
{
  const RecordingStorage storage = StorageWithFullMeshSmooth();
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet_faces", "wall_nodes"});
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "relax"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("inlet_faces"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("wall_nodes"), 0U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("wall_nodes"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("duct"), 1U);
}

TEST(MeshSmooth, DoesNotLookUpAnUnknownGroup)
{
  const RecordingStorage storage = StorageWithMeshSmoothOn("FACE_GROUP_", "nowhere");
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  OpenDatabase database;
  EXPECT_EQ(ProblemsIn(command, storage, "relax").size(), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::face_group).LookupCount("nowhere"), 0U);
}

TEST(MeshSmooth, AcceptsAnyMixOfGroupsAndChecksJustThosePresent)
{
  RecordingStorage storage = StorageWithMeshSmoothOn("NODE_GROUP_", "rim");
  storage.Command("MESH_SMOOTH_", "relax")["ELEMENT_GROUP_"] = {std::string("core")};
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  storage.ForgetCalls();
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "relax"),
              ElementsAre(Unknown("rim", "NODE_GROUP"), Unknown("core", "ELEMENT_GROUP")));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(MESH_SMOOTH_, relax, NODE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(MESH_SMOOTH_, relax, ELEMENT_GROUP_, 1, vtmModelId, string)"));
}

TEST(MeshSmooth, HasNothingToCheckWithoutGroupsAndNeedsNoDatabaseThen)
{
  RecordingStorage storage = StorageWithSparseMeshSmooth("bare");
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "bare");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(MeshSmooth, ChecksWhatTheStorageHoldsNowUnderTheNameGivenAndReportsItsOwnId)
{
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(StorageWithMeshSmoothOn("FACE_GROUP_", "then"), "relax");
  RecordingStorage storage;
  storage.Command("MESH_SMOOTH_", "renamed")["FACE_GROUP_"] = {std::string("now")};
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"), ElementsAre(Unknown("now", "FACE_GROUP")));
  EXPECT_EQ(command.GetFACE_GROUP_(), "then");
}

TEST(MeshSmooth, SaysWhatIsWrongWithAGroup)
{
  const RecordingStorage storage = StorageWithMeshSmoothOn("ELEMENT_GROUP_", "core");
  MESH_SMOOTH_ command = LoadedAlone<MESH_SMOOTH_>(storage, "relax");
  const OpenDatabase database;
  EXPECT_THAT(MessagesIn(command, storage, "relax"),
              ElementsAre("Referenced ID is not found\n"
                          "  Value \"core\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                          "  In \"MESH_SMOOTH\" command with ID_NAME \"relax\""));
}

TEST(MeshSmooth, RefersToTheSameCommandsInACopy)
{
  LinkedJob job(StorageWithTargets());
  MESH_SMOOTH_& original = job->GetMESH_SMOOTH_("relax");
  const MESH_SMOOTH_ copy(original);
  original = MESH_SMOOTH_();
  ExpectFullButTheReferences(copy);
  EXPECT_TRUE(copy.HasFILTER_());
  EXPECT_EQ(&copy.GetFILTER_(), &job->GetFILTER_("fine"));
  EXPECT_TRUE(copy.HasDV_CONSTRAINT_());
  EXPECT_EQ(&copy.GetDV_CONSTRAINT_(), &job->GetDV_CONSTRAINT_("mirror"));
  EXPECT_EQ(LogRecordOf(copy).text, kLinkedText);
}

TEST(MeshSmooth, LeavesTheCommandsThatItRefersToAliveWhenItEnds)
{
  LinkedJob job(StorageWithTargets());
  {
    const MESH_SMOOTH_ copy(job->GetMESH_SMOOTH_("relax"));
  }
  EXPECT_EQ(job->GetFILTER_("fine").GetID_NAME_(), "fine");
  EXPECT_EQ(LogRecordOf(job->GetMESH_SMOOTH_("relax")).text, kLinkedText);
}

TEST(MeshSmooth, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithTargets());
  const MESH_SMOOTH_& full = job->GetMESH_SMOOTH_("relax");
  MESH_SMOOTH_ command;
  static_assert(std::is_same_v<MESH_SMOOTH_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFullButTheReferences(command);
  EXPECT_EQ(&command.GetFILTER_(), &full.GetFILTER_());
  EXPECT_EQ(&command.GetDV_CONSTRAINT_(), &full.GetDV_CONSTRAINT_());
  command = MESH_SMOOTH_();
  ExpectDefaults(command);
}

TEST(MeshSmooth, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithTargets());
  MESH_SMOOTH_& command = job->GetMESH_SMOOTH_("relax");
  const MESH_SMOOTH_& same = command;
  command = same;
  EXPECT_EQ(LogRecordOf(command).text, kLinkedText);
}
