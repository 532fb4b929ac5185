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

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

RecordingStorage StorageWithFullDv()
{
  RecordingStorage storage;
  auto& keys = storage.Command("DV_", "porosity");
  keys["ELEMENT_GROUP_"] = {std::string("duct")};
  keys["NODE_GROUP_"] = {std::string("wall_nodes")};
  keys["INITIAL_"] = {0.4};
  keys["INITIAL_DV_FIELD_"] = {std::string("start.csv")};
  keys["TYPE_"] = {68};
  keys["FILTER_"] = {Ref{"fine"}, Ref{"coarse"}};
  keys["DV_"] = {Ref{"left"}, Ref{"right"}};
  return storage;
}

RecordingStorage StorageWithSparseDv()
{
  RecordingStorage storage;
  auto& keys = storage.Command("DV_", "bare");
  keys["INITIAL_"] = {1.0};
  keys["TYPE_"] = {65};
  return storage;
}

// The job in which the full design variable finds all that it refers to.
RecordingStorage StorageWithLinkedDv()
{
  RecordingStorage storage = StorageWithFullDv();
  for (const char* id : {"fine", "coarse"})
  {
    storage.Command("FILTER_", id);
  }
  for (const char* id : {"left", "right"})
  {
    storage.Command("DV_", id);
  }
  return storage;
}

constexpr const char* kFullText = "m_ID_NAME_: porosity\n"
                                  "m_has_ELEMENT_GROUP_: yes\n"
                                  "m_ELEMENT_GROUP_: duct\n"
                                  "m_has_NODE_GROUP_: yes\n"
                                  "m_NODE_GROUP_: wall_nodes\n"
                                  "m_INITIAL_: 0.4\n"
                                  "m_has_INITIAL_DV_FIELD_: yes\n"
                                  "m_INITIAL_DV_FIELD_: start.csv\n"
                                  "m_num_FILTER_: 2\n"
                                  "m_FILTER_: [\nfine coarse ]\n"
                                  "m_TYPE_: DENSITY\n"
                                  "m_num_DV_: 2\n"
                                  "m_DV_: [\nleft right ]\n";

}  // namespace

TEST(Dv, TellsItsNames)
{
  EXPECT_STREQ(DV_::COMMAND_NAME, "DV");
  EXPECT_EQ(DV_::s_type, "DV_");
  EXPECT_EQ(DV_().GetType(), "DV_");
}

TEST(Dv, IsEmptyBeforeItIsLoaded)
{
  const DV_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "");
  EXPECT_FALSE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "");
  EXPECT_EQ(command.GetINITIAL_(), 0.0);
  EXPECT_FALSE(command.HasINITIAL_DV_FIELD_());
  EXPECT_EQ(command.GetINITIAL_DV_FIELD_(), "");
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.NumDV_(), 0U);
  EXPECT_THAT(command.GetDV_(), IsEmpty());
}

TEST(Dv, LoadsItsKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullDv();
  LoadedAlone<DV_>(storage, "porosity");
  EXPECT_THAT(storage.Calls(), ElementsAre("HasElement(DV_, porosity, ELEMENT_GROUP_)",
                                           "GetValue(DV_, porosity, ELEMENT_GROUP_, 1, vtmModelId, string)",
                                           "HasElement(DV_, porosity, NODE_GROUP_)",
                                           "GetValue(DV_, porosity, NODE_GROUP_, 1, vtmModelId, string)",
                                           "GetValue(DV_, porosity, INITIAL_, 1, vtmDouble, double)",
                                           "HasElement(DV_, porosity, INITIAL_DV_FIELD_)",
                                           "GetValue(DV_, porosity, INITIAL_DV_FIELD_, 1, vtmString, string)",
                                           "GetEnumValue(DV_, porosity, TYPE_, 1, vtmEnum)"));
}

TEST(Dv, DoesNotReadOptionalKeysThatAreAbsent)
{
  const RecordingStorage storage = StorageWithSparseDv();
  LoadedAlone<DV_>(storage, "bare");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("HasElement(DV_, bare, ELEMENT_GROUP_)", "HasElement(DV_, bare, NODE_GROUP_)",
                          "GetValue(DV_, bare, INITIAL_, 1, vtmDouble, double)",
                          "HasElement(DV_, bare, INITIAL_DV_FIELD_)", "GetEnumValue(DV_, bare, TYPE_, 1, vtmEnum)"));
}

TEST(Dv, GivesWhatItLoaded)
{
  const DV_ command = LoadedAlone<DV_>(StorageWithFullDv(), "porosity");
  EXPECT_EQ(command.GetID_NAME_(), "porosity");
  EXPECT_TRUE(command.HasELEMENT_GROUP_());
  EXPECT_EQ(command.GetELEMENT_GROUP_(), "duct");
  EXPECT_TRUE(command.HasNODE_GROUP_());
  EXPECT_EQ(command.GetNODE_GROUP_(), "wall_nodes");
  EXPECT_EQ(command.GetINITIAL_(), 0.4);
  EXPECT_TRUE(command.HasINITIAL_DV_FIELD_());
  EXPECT_EQ(command.GetINITIAL_DV_FIELD_(), "start.csv");
  EXPECT_EQ(command.GetTYPE_(), DV_::TYPE_DENSITY);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_EQ(command.NumDV_(), 0U);
}

TEST(Dv, HandsOutItsValuesWithoutCopyingThem)
{
  static_assert(
    kReturn<DV_, const std::string&, &DV_::GetELEMENT_GROUP_, &DV_::GetNODE_GROUP_, &DV_::GetINITIAL_DV_FIELD_>);
  static_assert(kReturn<DV_, const double&, &DV_::GetINITIAL_>);
  static_assert(kReturn<DV_, const DV_::Enum_TYPE_&, &DV_::GetTYPE_>);
  static_assert(kReturn<DV_, bool, &DV_::HasELEMENT_GROUP_, &DV_::HasNODE_GROUP_, &DV_::HasINITIAL_DV_FIELD_>);
  static_assert(kReturn<DV_, std::uint64_t, &DV_::NumFILTER_, &DV_::NumDV_>);
  const DV_ command;
  testing::StaticAssertTypeEq<const std::vector<const FILTER_*>&, decltype(command.GetFILTER_())>();
  testing::StaticAssertTypeEq<const FILTER_&, decltype(command.GetFILTER_(1))>();
  testing::StaticAssertTypeEq<const std::vector<const DV_*>&, decltype(command.GetDV_())>();
  testing::StaticAssertTypeEq<const DV_&, decltype(command.GetDV_(1))>();
}

TEST(Dv, NamesItsTypes)
{
  ExpectEnumerators<DV_, DV_::Enum_TYPE_>({
    {DV_::TYPE_AUTO, 65, "AUTO"},
    {DV_::TYPE_DENSITY, 68, "DENSITY"},
    {DV_::TYPE_DETACHED, 69, "DETACHED"},
    {DV_::TYPE_NODAL, 78, "NODAL"},
    {DV_::TYPE_NODAL_VECTOR, 86, "NODAL_VECTOR"},
  });
}

TEST(Dv, KeepsATypeThatIsNoneAndPrintsItAsInvalid)
{
  RecordingStorage storage = StorageWithSparseDv();
  storage.Command("DV_", "bare")["TYPE_"] = {66};
  const DV_ command = LoadedAlone<DV_>(storage, "bare");
  EXPECT_EQ(command.GetTYPE_(), 66);
  EXPECT_THAT(LogRecordOf(command).text, testing::HasSubstr("m_TYPE_: INVALID\n"));
}

TEST(Dv, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(DV_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 1089);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|DV_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_has_ELEMENT_GROUP_: no\n"
                         "m_has_NODE_GROUP_: no\n"
                         "m_INITIAL_: 0\n"
                         "m_has_INITIAL_DV_FIELD_: no\n"
                         "m_num_FILTER_: 0\n"
                         "m_FILTER_: [\n]\n"
                         "m_TYPE_: INVALID\n"
                         "m_num_DV_: 0\n"
                         "m_DV_: [\n]\n");
}

TEST(Dv, PrintsNoReferencesBeforeItIsLinkedEvenIfTheFileHasThem)
{
  const DV_ command = LoadedAlone<DV_>(StorageWithFullDv(), "porosity");
  EXPECT_THAT(LogRecordOf(command).text, testing::HasSubstr("m_num_FILTER_: 0\nm_FILTER_: [\n]\nm_TYPE_: DENSITY\n"
                                                            "m_num_DV_: 0\nm_DV_: [\n]\n"));
}

TEST(Dv, PrintsAllItHoldsOnceItIsLinked)
{
  LinkedJob job(StorageWithLinkedDv());
  EXPECT_EQ(LogRecordOf(job->GetDV_("porosity")).text, kFullText);
}

TEST(Dv, ReadsItsReferencesAfterAllItsValuesFiltersFirst)
{
  LinkedJob job(StorageWithLinkedDv());
  const std::vector<std::string> calls = job.CallsAbout("DV_", "porosity");
  ASSERT_GT(calls.size(), 6U);
  EXPECT_THAT(std::vector<std::string>(calls.end() - 7, calls.end()),
              ElementsAre("GetEnumValue(DV_, porosity, TYPE_, 1, vtmEnum)", "GetNumElements(DV_, porosity, FILTER_)",
                          "GetReference(DV_, porosity, FILTER_, 1)", "GetReference(DV_, porosity, FILTER_, 2)",
                          "GetNumElements(DV_, porosity, DV_)", "GetReference(DV_, porosity, DV_, 1)",
                          "GetReference(DV_, porosity, DV_, 2)"));
}

TEST(Dv, ChecksItsGroupsAmongTheModelsGroupsOfTheirKind)
{
  const RecordingStorage storage = StorageWithFullDv();
  DV_ command = LoadedAlone<DV_>(storage, "porosity");
  OpenDatabase database;
  database.Add(KLV_IdType::node_group, {"duct"});
  database.Add(KLV_IdType::element_group, {"wall_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "porosity"),
              ElementsAre(Problem{"duct", "ELEMENT_GROUP", "porosity", "DV"},
                          Problem{"wall_nodes", "NODE_GROUP", "porosity", "DV"}));

  database.Add(KLV_IdType::element_group, {"duct"});
  database.Add(KLV_IdType::node_group, {"wall_nodes"});
  EXPECT_THAT(ProblemsIn(command, storage, "porosity"), IsEmpty());
  EXPECT_EQ(database.Map(KLV_IdType::element_group).LookupCount("duct"), 1U);
  EXPECT_EQ(database.Map(KLV_IdType::node_group).LookupCount("wall_nodes"), 1U);
}

TEST(Dv, LooksForEachGroupInOneMapAlone)
{
  RecordingStorage elements = StorageWithSparseDv();
  elements.Command("DV_", "bare")["ELEMENT_GROUP_"] = {std::string("duct")};
  DV_ of_elements = LoadedAlone<DV_>(elements, "bare");
  EXPECT_THAT(KindsThatSatisfy(of_elements, elements, "bare", "duct"), ElementsAre(9));

  RecordingStorage nodes = StorageWithSparseDv();
  nodes.Command("DV_", "bare")["NODE_GROUP_"] = {std::string("wall_nodes")};
  DV_ of_nodes = LoadedAlone<DV_>(nodes, "bare");
  EXPECT_THAT(KindsThatSatisfy(of_nodes, nodes, "bare", "wall_nodes"), ElementsAre(7));
}

TEST(Dv, ReadsItsGroupsAgainUnderTheNameThatTheStorageGives)
{
  RecordingStorage storage = StorageWithFullDv();
  DV_ command = LoadedAlone<DV_>(storage, "porosity");
  auto& renamed = storage.Command("DV_", "renamed");
  renamed["ELEMENT_GROUP_"] = {std::string("elbow")};
  renamed["NODE_GROUP_"] = {std::string("rim")};
  OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "renamed"), ElementsAre(Problem{"elbow", "ELEMENT_GROUP", "porosity", "DV"},
                                                                   Problem{"rim", "NODE_GROUP", "porosity", "DV"}));
}

TEST(Dv, HasNothingToCheckWithoutGroups)
{
  const RecordingStorage storage = StorageWithSparseDv();
  DV_ command = LoadedAlone<DV_>(storage, "bare");
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
}

TEST(Dv, RefusesAnIndexOutsideItsLists)
{
  const DV_ command;
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(1); }),
            (Failure{"Invalid index 1 of the parameterfile value FILTER_ to retrieve from DV_. Number of available "
                     "values is 0.",
                     "220653270608", "[%T|%n|%P|libxml2vtm|DV_] "}));
  EXPECT_EQ(FailureOf([&] { command.GetDV_(1); }),
            (Failure{"Invalid index 1 of the parameterfile value DV_ to retrieve from DV_. Number of available values "
                     "is 0.",
                     "220653270608", "[%T|%n|%P|libxml2vtm|DV_] "}));
}

TEST(Dv, GivesLinkedCommandsByPlacesCountedFromOne)
{
  LinkedJob job(StorageWithLinkedDv());
  const DV_& command = job->GetDV_("porosity");
  EXPECT_EQ(&command.GetFILTER_(1), &job->GetFILTER_("fine"));
  EXPECT_EQ(&command.GetFILTER_(2), &job->GetFILTER_("coarse"));
  EXPECT_EQ(&command.GetDV_(1), &job->GetDV_("left"));
  EXPECT_EQ(&command.GetDV_(2), &job->GetDV_("right"));
  EXPECT_EQ(FailureOf([&] { command.GetDV_(0); }).message,
            "Invalid index 0 of the parameterfile value DV_ to retrieve from DV_. Number of available values is 2.");
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(3); }).message,
            "Invalid index 3 of the parameterfile value FILTER_ to retrieve from DV_. Number of available values is "
            "2.");
}

TEST(Dv, CopiesItsValuesAndReferencesAsPointers)
{
  LinkedJob job(StorageWithLinkedDv());
  const DV_ copy(job->GetDV_("porosity"));
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  EXPECT_THAT(copy.GetFILTER_(), ElementsAre(&job->GetFILTER_("fine"), &job->GetFILTER_("coarse")));
  EXPECT_THAT(copy.GetDV_(), ElementsAre(&job->GetDV_("left"), &job->GetDV_("right")));
}

TEST(Dv, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithLinkedDv());
  DV_ command = LoadedAlone<DV_>(StorageWithSparseDv(), "bare");
  EXPECT_EQ(&(command = job->GetDV_("porosity")), &command);
  EXPECT_EQ(LogRecordOf(command).text, kFullText);
  const DV_& same = command;
  command = same;
  EXPECT_EQ(LogRecordOf(command).text, kFullText);
  command = DV_();
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasELEMENT_GROUP_());
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
  EXPECT_THAT(command.GetDV_(), IsEmpty());
}
