#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StaticAssertTypeEq;

namespace
{

const char* const kIndexPrefix = "[%T|%n|%P|libxml2vtm|OBJ_FUNC_] ";
const char* const kJobPrefix = "[%T|%n|%P|OrvelCommands|Gyre_Parfile] ";

const char* const kFullText = "m_ID_NAME_: objective\n"
                              "m_has_DRESP_: yes\n"
                              "m_DRESP_: drop\n"
                              "m_has_OPERATOR_: yes\n"
                              "m_OPERATOR_: sum\n"
                              "m_TARGET_: MIN\n"
                              "m_SENSSCALING_TYPE_: SCALED\n"
                              "m_SENSSCALING_VALUE_: 0.5\n"
                              "m_num_FILTER_: 2\n"
                              "m_FILTER_: [\nfine coarse ]\n";

RecordingStorage StorageWithFullObjective()
{
  RecordingStorage storage;
  auto& keys = storage.Command("OBJ_FUNC_", "objective");
  keys["DRESP_"] = {Ref{"drop"}};
  keys["OPERATOR_"] = {Ref{"sum"}};
  keys["TARGET_"] = {77};
  keys["SENSSCALING_TYPE_"] = {83};
  keys["SENSSCALING_VALUE_"] = {0.5};
  keys["FILTER_"] = {Ref{"fine"}, Ref{"coarse"}};
  return storage;
}

RecordingStorage StorageWithBareObjective()
{
  RecordingStorage storage;
  auto& keys = storage.Command("OBJ_FUNC_", "objective");
  keys["TARGET_"] = {77};
  keys["SENSSCALING_TYPE_"] = {78};
  keys["SENSSCALING_VALUE_"] = {1.5};
  return storage;
}

RecordingStorage StorageWithFullJob()
{
  RecordingStorage storage = StorageWithFullObjective();
  storage.Command("DRESP_", "drop");
  storage.Command("OPERATOR_", "sum");
  storage.Command("FILTER_", "fine");
  storage.Command("FILTER_", "coarse");
  return storage;
}

OBJ_FUNC_ FullObjective()
{
  return LoadedAlone<OBJ_FUNC_>(StorageWithFullObjective(), "objective");
}

OBJ_FUNC_ BareObjective()
{
  return LoadedAlone<OBJ_FUNC_>(StorageWithBareObjective(), "objective");
}

std::string TextOf(const OBJ_FUNC_& command)
{
  return LogRecordOf(command).text;
}

/// The failure of a job around an objective whose \p key refers to "nobody".
Failure FailureOfUnknown(const std::string& key)
{
  RecordingStorage storage = StorageWithFullJob();
  AddRequiredCommands(storage);
  storage.Command("OBJ_FUNC_", "objective")[key] = {Ref{"nobody"}};
  Gyre_Parfile parfile(storage);
  return FailureOf([&] { parfile.Load(); });
}

}  // namespace

TEST(ObjFunc, TellsItsNames)
{
  EXPECT_STREQ(OBJ_FUNC_::COMMAND_NAME, "OBJ_FUNC");
  EXPECT_EQ(OBJ_FUNC_::s_type, "OBJ_FUNC_");
  EXPECT_EQ(OBJ_FUNC_().GetType(), "OBJ_FUNC_");
}

TEST(ObjFunc, IsEmptyBeforeItIsLoaded)
{
  const OBJ_FUNC_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetTARGET_(), 0);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), 0);
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 0.0);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(ObjFunc, HandsOutItsValuesWithoutCopyingThem)
{
  const OBJ_FUNC_ command;
  StaticAssertTypeEq<bool, decltype(command.HasDRESP_())>();
  StaticAssertTypeEq<const DRESP_&, decltype(command.GetDRESP_())>();
  StaticAssertTypeEq<bool, decltype(command.HasOPERATOR_())>();
  StaticAssertTypeEq<const OPERATOR_&, decltype(command.GetOPERATOR_())>();
  StaticAssertTypeEq<const OBJ_FUNC_::Enum_TARGET_&, decltype(command.GetTARGET_())>();
  StaticAssertTypeEq<const OBJ_FUNC_::Enum_SENSSCALING_TYPE_&, decltype(command.GetSENSSCALING_TYPE_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetSENSSCALING_VALUE_())>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumFILTER_())>();
  StaticAssertTypeEq<const std::vector<const FILTER_*>&, decltype(command.GetFILTER_())>();
  StaticAssertTypeEq<const FILTER_&, decltype(command.GetFILTER_(1))>();
}

TEST(ObjFunc, LoadsItsKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullObjective();
  LoadedAlone<OBJ_FUNC_>(storage, "objective");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(OBJ_FUNC_, objective, TARGET_, 1, vtmEnum)",
                                           "GetEnumValue(OBJ_FUNC_, objective, SENSSCALING_TYPE_, 1, vtmEnum)",
                                           "GetValue(OBJ_FUNC_, objective, SENSSCALING_VALUE_, 1, vtmDouble, double)"));
}

TEST(ObjFunc, ReadsTheSameKeysWhenThereAreNoReferences)
{
  const RecordingStorage storage = StorageWithBareObjective();
  LoadedAlone<OBJ_FUNC_>(storage, "objective");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(OBJ_FUNC_, objective, TARGET_, 1, vtmEnum)",
                                           "GetEnumValue(OBJ_FUNC_, objective, SENSSCALING_TYPE_, 1, vtmEnum)",
                                           "GetValue(OBJ_FUNC_, objective, SENSSCALING_VALUE_, 1, vtmDouble, double)"));
}

TEST(ObjFunc, GivesWhatItLoaded)
{
  const OBJ_FUNC_ command = FullObjective();
  EXPECT_EQ(command.GetID_NAME_(), "objective");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetTARGET_(), OBJ_FUNC_::TARGET_MIN);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), OBJ_FUNC_::SENSSCALING_TYPE_SCALED);
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 0.5);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(ObjFunc, NamesItsOnlyTarget)
{
  ExpectEnumerators<OBJ_FUNC_, OBJ_FUNC_::Enum_TARGET_>({
    {OBJ_FUNC_::TARGET_MIN, 77, "MIN"},
  });
}

TEST(ObjFunc, NamesItsSensitivityScalings)
{
  ExpectEnumerators<OBJ_FUNC_, OBJ_FUNC_::Enum_SENSSCALING_TYPE_>({
    {OBJ_FUNC_::SENSSCALING_TYPE_NONE, 78, "NONE"},
    {OBJ_FUNC_::SENSSCALING_TYPE_NORMED_TO_ONE, 79, "NORMED_TO_ONE"},
    {OBJ_FUNC_::SENSSCALING_TYPE_SCALED, 83, "SCALED"},
  });
}

TEST(ObjFunc, TakesATargetThatIsNotMinAndPrintsItAsInvalid)
{
  RecordingStorage storage = StorageWithBareObjective();
  storage.Command("OBJ_FUNC_", "objective")["TARGET_"] = {int{'X'}};
  const OBJ_FUNC_ command = LoadedAlone<OBJ_FUNC_>(storage, "objective");
  EXPECT_EQ(command.GetTARGET_(), 88);
  EXPECT_EQ(TextOf(command), "m_ID_NAME_: objective\n"
                             "m_has_DRESP_: no\n"
                             "m_has_OPERATOR_: no\n"
                             "m_TARGET_: INVALID\n"
                             "m_SENSSCALING_TYPE_: NONE\n"
                             "m_SENSSCALING_VALUE_: 1.5\n"
                             "m_num_FILTER_: 0\n"
                             "m_FILTER_: [\n]\n");
}

TEST(ObjFunc, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(OBJ_FUNC_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 1964);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|OBJ_FUNC_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_has_DRESP_: no\n"
                         "m_has_OPERATOR_: no\n"
                         "m_TARGET_: INVALID\n"
                         "m_SENSSCALING_TYPE_: INVALID\n"
                         "m_SENSSCALING_VALUE_: 0\n"
                         "m_num_FILTER_: 0\n"
                         "m_FILTER_: [\n]\n");
}

TEST(ObjFunc, PrintsNoReferencesBeforeItIsLinkedEvenIfTheFileHasThem)
{
  EXPECT_EQ(TextOf(FullObjective()), "m_ID_NAME_: objective\n"
                                     "m_has_DRESP_: no\n"
                                     "m_has_OPERATOR_: no\n"
                                     "m_TARGET_: MIN\n"
                                     "m_SENSSCALING_TYPE_: SCALED\n"
                                     "m_SENSSCALING_VALUE_: 0.5\n"
                                     "m_num_FILTER_: 0\n"
                                     "m_FILTER_: [\n]\n");
}

TEST(ObjFunc, PrintsAllItHoldsOnceItIsLinked)
{
  LinkedJob job(StorageWithFullJob());
  const KLV_LogRecord record = LogRecordOf(job->GetOBJ_FUNC_());
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:1964 [%T|%n|%P|OrvelCommands|OBJ_FUNC_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(ObjFunc, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullObjective();
  OBJ_FUNC_ command = LoadedAlone<OBJ_FUNC_>(storage, "objective");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "objective"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(ObjFunc, RefersToTheCommandsOfTheJob)
{
  LinkedJob job(StorageWithFullJob());
  const OBJ_FUNC_& command = job->GetOBJ_FUNC_();
  ASSERT_TRUE(command.HasDRESP_());
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("drop"));
  ASSERT_TRUE(command.HasOPERATOR_());
  EXPECT_EQ(&command.GetOPERATOR_(), &job->GetOPERATOR_("sum"));
  EXPECT_EQ(command.NumFILTER_(), 2U);
  EXPECT_THAT(command.GetFILTER_(), ElementsAre(&job->GetFILTER_("fine"), &job->GetFILTER_("coarse")));
}

TEST(ObjFunc, ReadsItsReferencesAfterAllItsValues)
{
  LinkedJob job(StorageWithFullJob());
  EXPECT_THAT(
    job.CallsAbout("OBJ_FUNC_", "objective"),
    ElementsAre("GetEnumValue(OBJ_FUNC_, objective, TARGET_, 1, vtmEnum)",
                "GetEnumValue(OBJ_FUNC_, objective, SENSSCALING_TYPE_, 1, vtmEnum)",
                "GetValue(OBJ_FUNC_, objective, SENSSCALING_VALUE_, 1, vtmDouble, double)",
                "HasElement(OBJ_FUNC_, objective, DRESP_)", "GetReference(OBJ_FUNC_, objective, DRESP_, 1)",
                "HasElement(OBJ_FUNC_, objective, OPERATOR_)", "GetReference(OBJ_FUNC_, objective, OPERATOR_, 1)",
                "GetNumElements(OBJ_FUNC_, objective, FILTER_)", "GetReference(OBJ_FUNC_, objective, FILTER_, 1)",
                "GetReference(OBJ_FUNC_, objective, FILTER_, 2)"));
}

TEST(ObjFunc, LinksWithNeitherAResponseNorAnOperator)
{
  LinkedJob job(StorageWithBareObjective());
  const OBJ_FUNC_& command = job->GetOBJ_FUNC_();
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(job.CallsAbout("OBJ_FUNC_", "objective"),
              ElementsAre("GetEnumValue(OBJ_FUNC_, objective, TARGET_, 1, vtmEnum)",
                          "GetEnumValue(OBJ_FUNC_, objective, SENSSCALING_TYPE_, 1, vtmEnum)",
                          "GetValue(OBJ_FUNC_, objective, SENSSCALING_VALUE_, 1, vtmDouble, double)",
                          "HasElement(OBJ_FUNC_, objective, DRESP_)", "HasElement(OBJ_FUNC_, objective, OPERATOR_)",
                          "GetNumElements(OBJ_FUNC_, objective, FILTER_)"));
}

TEST(ObjFunc, LinksWithAnOperatorAlone)
{
  RecordingStorage storage = StorageWithBareObjective();
  storage.Command("OBJ_FUNC_", "objective")["OPERATOR_"] = {Ref{"sum"}};
  storage.Command("OPERATOR_", "sum");
  LinkedJob job(std::move(storage));
  const OBJ_FUNC_& command = job->GetOBJ_FUNC_();
  EXPECT_FALSE(command.HasDRESP_());
  ASSERT_TRUE(command.HasOPERATOR_());
  EXPECT_EQ(&command.GetOPERATOR_(), &job->GetOPERATOR_("sum"));
}

TEST(ObjFunc, CannotBeLinkedToACommandThatIsMissing)
{
  EXPECT_EQ(FailureOfUnknown("DRESP_"),
            (Failure{"Invalid ID nobody of the parameter file command DRESP_", "161700240908", kJobPrefix}));
  EXPECT_EQ(FailureOfUnknown("OPERATOR_"),
            (Failure{"Invalid ID nobody of the parameter file command OPERATOR_", "161700240908", kJobPrefix}));
  EXPECT_EQ(FailureOfUnknown("FILTER_"),
            (Failure{"Invalid ID nobody of the parameter file command FILTER_", "161700240908", kJobPrefix}));
}

TEST(ObjFunc, GivesLinkedFiltersByPlacesCountedFromOne)
{
  LinkedJob job(StorageWithFullJob());
  const OBJ_FUNC_& command = job->GetOBJ_FUNC_();
  EXPECT_EQ(&command.GetFILTER_(1), &job->GetFILTER_("fine"));
  EXPECT_EQ(&command.GetFILTER_(command.NumFILTER_()), &job->GetFILTER_("coarse"));
}

TEST(ObjFunc, RefusesAPlaceBeforeOrBehindItsFilters)
{
  LinkedJob job(StorageWithFullJob());
  const OBJ_FUNC_& command = job->GetOBJ_FUNC_();
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(0); }),
            (Failure{"Invalid index 0 of the parameterfile value FILTER_ to retrieve from OBJ_FUNC_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(3); }),
            (Failure{"Invalid index 3 of the parameterfile value FILTER_ to retrieve from OBJ_FUNC_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
}

TEST(ObjFunc, RefusesEveryPlaceWithoutFilters)
{
  const OBJ_FUNC_ command;
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(1); }),
            (Failure{"Invalid index 1 of the parameterfile value FILTER_ to retrieve from OBJ_FUNC_. "
                     "Number of available values is 0.",
                     "220653270608", kIndexPrefix}));
}

TEST(ObjFunc, CopiesItsValuesAndReferencesAsPointers)
{
  LinkedJob job(StorageWithFullJob());
  const OBJ_FUNC_ copy(job->GetOBJ_FUNC_());
  EXPECT_EQ(TextOf(copy), kFullText);
  EXPECT_EQ(&copy.GetDRESP_(), &job->GetDRESP_("drop"));
  EXPECT_EQ(&copy.GetOPERATOR_(), &job->GetOPERATOR_("sum"));
  EXPECT_THAT(copy.GetFILTER_(), ElementsAre(&job->GetFILTER_("fine"), &job->GetFILTER_("coarse")));
  EXPECT_NE(&copy.GetFILTER_(), &job->GetOBJ_FUNC_().GetFILTER_());
}

TEST(ObjFunc, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithFullJob());
  OBJ_FUNC_ command = BareObjective();
  EXPECT_EQ(&(command = job->GetOBJ_FUNC_()), &command);
  EXPECT_EQ(TextOf(command), kFullText);
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("drop"));

  command = OBJ_FUNC_();
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetTARGET_(), 0);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(ObjFunc, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithFullJob());
  OBJ_FUNC_ command = job->GetOBJ_FUNC_();
  const OBJ_FUNC_& same = command;
  command = same;
  EXPECT_EQ(TextOf(command), kFullText);
}

TEST(ObjFunc, LeavesItsCommandsAloneWhenACopyEnds)
{
  LinkedJob job(StorageWithFullJob());
  {
    const OBJ_FUNC_ copy(job->GetOBJ_FUNC_());
  }
  EXPECT_EQ(job->GetOBJ_FUNC_().GetDRESP_().GetID_NAME_(), "drop");
  EXPECT_EQ(job->GetOBJ_FUNC_().GetFILTER_(2).GetID_NAME_(), "coarse");
}

TEST(ObjFunc, KeepsItsReferencesWhenItIsLoadedAgain)
{
  LinkedJob job(StorageWithFullJob());
  OBJ_FUNC_ command = job->GetOBJ_FUNC_();
  command.Load(StorageWithBareObjective(), "objective");
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 1.5);
  EXPECT_TRUE(command.HasDRESP_());
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("drop"));
  EXPECT_TRUE(command.HasOPERATOR_());
  EXPECT_EQ(command.NumFILTER_(), 2U);
}

TEST(ObjFunc, KeepsWhatItReadBeforeAReadFailed)
{
  RecordingStorage storage = StorageWithFullObjective();
  storage.FailOn("GetEnumValue(OBJ_FUNC_, objective, SENSSCALING_TYPE_, 1, vtmEnum)");
  OBJ_FUNC_ command;
  EXPECT_THROW(command.Load(storage, "objective"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "objective");
  EXPECT_EQ(command.GetTARGET_(), OBJ_FUNC_::TARGET_MIN);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), 0);
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 0.0);
}
