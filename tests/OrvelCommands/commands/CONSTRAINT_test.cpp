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

const char* const kIndexPrefix = "[%T|%n|%P|libxml2vtm|CONSTRAINT_] ";
const char* const kJobPrefix = "[%T|%n|%P|OrvelCommands|Gyre_Parfile] ";

const char* const kFullText = "m_ID_NAME_: limit\n"
                              "m_has_DRESP_: yes\n"
                              "m_DRESP_: volume\n"
                              "m_has_OPERATOR_: yes\n"
                              "m_OPERATOR_: sum\n"
                              "m_TYPE_: LESS_EQUAL\n"
                              "m_MAGNITUDE_: REL_VALUE\n"
                              "m_VALUE_: 0.4\n"
                              "m_COEFFICIENT_: 2\n"
                              "m_A_MINMAX_COEFFICIENT_: -3.5\n"
                              "m_SENSSCALING_TYPE_: NORMED_TO_ONE\n"
                              "m_SENSSCALING_VALUE_: 0.5\n"
                              "m_num_FILTER_: 2\n"
                              "m_FILTER_: [\nfine coarse ]\n";

RecordingStorage StorageWithFullConstraint()
{
  RecordingStorage storage;
  auto& keys = storage.Command("CONSTRAINT_", "limit");
  keys["DRESP_"] = {Ref{"volume"}};
  keys["OPERATOR_"] = {Ref{"sum"}};
  keys["TYPE_"] = {76};
  keys["MAGNITUDE_"] = {86};
  keys["VALUE_"] = {0.4};
  keys["COEFFICIENT_"] = {2.0};
  keys["A_MINMAX_COEFFICIENT_"] = {-3.5};
  keys["SENSSCALING_TYPE_"] = {79};
  keys["SENSSCALING_VALUE_"] = {0.5};
  keys["FILTER_"] = {Ref{"fine"}, Ref{"coarse"}};
  return storage;
}

RecordingStorage StorageWithBareConstraint()
{
  RecordingStorage storage;
  auto& keys = storage.Command("CONSTRAINT_", "bare");
  keys["TYPE_"] = {71};
  keys["MAGNITUDE_"] = {65};
  keys["VALUE_"] = {1.0};
  keys["COEFFICIENT_"] = {0.25};
  keys["A_MINMAX_COEFFICIENT_"] = {0.75};
  keys["SENSSCALING_TYPE_"] = {78};
  keys["SENSSCALING_VALUE_"] = {1.5};
  return storage;
}

void AddCommandsReferredTo(RecordingStorage& storage)
{
  storage.Command("DRESP_", "volume");
  storage.Command("OPERATOR_", "sum");
  storage.Command("FILTER_", "fine");
  storage.Command("FILTER_", "coarse");
}

RecordingStorage StorageWithFullJob()
{
  RecordingStorage storage = StorageWithFullConstraint();
  AddCommandsReferredTo(storage);
  return storage;
}

CONSTRAINT_ FullConstraint()
{
  return LoadedAlone<CONSTRAINT_>(StorageWithFullConstraint(), "limit");
}

CONSTRAINT_ BareConstraint()
{
  return LoadedAlone<CONSTRAINT_>(StorageWithBareConstraint(), "bare");
}

std::string TextOf(const CONSTRAINT_& command)
{
  return LogRecordOf(command).text;
}

/// The failure of a job around a constraint whose \p key refers to \p target.
Failure FailureOfReference(const std::string& key, const std::string& target)
{
  RecordingStorage storage = StorageWithFullJob();
  AddRequiredCommands(storage);
  storage.Command("CONSTRAINT_", "limit")[key] = {Ref{target}};
  Gyre_Parfile parfile(storage);
  return FailureOf([&] { parfile.Load(); });
}

}  // namespace

TEST(Constraint, TellsItsNames)
{
  EXPECT_STREQ(CONSTRAINT_::COMMAND_NAME, "CONSTRAINT");
  EXPECT_EQ(CONSTRAINT_::s_type, "CONSTRAINT_");
  EXPECT_EQ(CONSTRAINT_().GetType(), "CONSTRAINT_");
}

TEST(Constraint, IsEmptyBeforeItIsLoaded)
{
  const CONSTRAINT_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetMAGNITUDE_(), 0);
  EXPECT_EQ(command.GetVALUE_(), 0.0);
  EXPECT_EQ(command.GetCOEFFICIENT_(), 0.0);
  EXPECT_EQ(command.GetA_MINMAX_COEFFICIENT_(), 0.0);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), 0);
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 0.0);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(Constraint, HandsOutItsValuesWithoutCopyingThem)
{
  const CONSTRAINT_ command;
  StaticAssertTypeEq<bool, decltype(command.HasDRESP_())>();
  StaticAssertTypeEq<const DRESP_&, decltype(command.GetDRESP_())>();
  StaticAssertTypeEq<bool, decltype(command.HasOPERATOR_())>();
  StaticAssertTypeEq<const OPERATOR_&, decltype(command.GetOPERATOR_())>();
  StaticAssertTypeEq<const CONSTRAINT_::Enum_TYPE_&, decltype(command.GetTYPE_())>();
  StaticAssertTypeEq<const CONSTRAINT_::Enum_MAGNITUDE_&, decltype(command.GetMAGNITUDE_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetVALUE_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetCOEFFICIENT_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetA_MINMAX_COEFFICIENT_())>();
  StaticAssertTypeEq<const CONSTRAINT_::Enum_SENSSCALING_TYPE_&, decltype(command.GetSENSSCALING_TYPE_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetSENSSCALING_VALUE_())>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumFILTER_())>();
  StaticAssertTypeEq<const std::vector<const FILTER_*>&, decltype(command.GetFILTER_())>();
  StaticAssertTypeEq<const FILTER_&, decltype(command.GetFILTER_(1))>();
}

TEST(Constraint, LoadsItsKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullConstraint();
  LoadedAlone<CONSTRAINT_>(storage, "limit");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(CONSTRAINT_, limit, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(CONSTRAINT_, limit, MAGNITUDE_, 1, vtmEnum)",
                                           "GetValue(CONSTRAINT_, limit, VALUE_, 1, vtmDouble, double)",
                                           "GetValue(CONSTRAINT_, limit, COEFFICIENT_, 1, vtmDouble, double)",
                                           "GetValue(CONSTRAINT_, limit, A_MINMAX_COEFFICIENT_, 1, vtmDouble, double)",
                                           "GetEnumValue(CONSTRAINT_, limit, SENSSCALING_TYPE_, 1, vtmEnum)",
                                           "GetValue(CONSTRAINT_, limit, SENSSCALING_VALUE_, 1, vtmDouble, double)"));
}

TEST(Constraint, ReadsTheSameKeysWhenThereAreNoReferences)
{
  const RecordingStorage storage = StorageWithBareConstraint();
  LoadedAlone<CONSTRAINT_>(storage, "bare");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(CONSTRAINT_, bare, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(CONSTRAINT_, bare, MAGNITUDE_, 1, vtmEnum)",
                                           "GetValue(CONSTRAINT_, bare, VALUE_, 1, vtmDouble, double)",
                                           "GetValue(CONSTRAINT_, bare, COEFFICIENT_, 1, vtmDouble, double)",
                                           "GetValue(CONSTRAINT_, bare, A_MINMAX_COEFFICIENT_, 1, vtmDouble, double)",
                                           "GetEnumValue(CONSTRAINT_, bare, SENSSCALING_TYPE_, 1, vtmEnum)",
                                           "GetValue(CONSTRAINT_, bare, SENSSCALING_VALUE_, 1, vtmDouble, double)"));
}

TEST(Constraint, GivesWhatItLoaded)
{
  const CONSTRAINT_ command = FullConstraint();
  EXPECT_EQ(command.GetID_NAME_(), "limit");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetTYPE_(), CONSTRAINT_::TYPE_LESS_EQUAL);
  EXPECT_EQ(command.GetMAGNITUDE_(), CONSTRAINT_::MAGNITUDE_REL_VALUE);
  EXPECT_EQ(command.GetVALUE_(), 0.4);
  EXPECT_EQ(command.GetCOEFFICIENT_(), 2.0);
  EXPECT_EQ(command.GetA_MINMAX_COEFFICIENT_(), -3.5);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), CONSTRAINT_::SENSSCALING_TYPE_NORMED_TO_ONE);
  EXPECT_EQ(command.GetSENSSCALING_VALUE_(), 0.5);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(Constraint, NamesItsTypes)
{
  ExpectEnumerators<CONSTRAINT_, CONSTRAINT_::Enum_TYPE_>({
    {CONSTRAINT_::TYPE_GREATER_EQUAL, 71, "GREATER_EQUAL"},
    {CONSTRAINT_::TYPE_LESS_EQUAL, 76, "LESS_EQUAL"},
  });
}

TEST(Constraint, NamesItsMagnitudes)
{
  ExpectEnumerators<CONSTRAINT_, CONSTRAINT_::Enum_MAGNITUDE_>({
    {CONSTRAINT_::MAGNITUDE_ABS, 65, "ABS"},
    {CONSTRAINT_::MAGNITUDE_REL, 82, "REL"},
    {CONSTRAINT_::MAGNITUDE_REL_VALUE, 86, "REL_VALUE"},
  });
}

TEST(Constraint, NamesItsSensitivityScalings)
{
  ExpectEnumerators<CONSTRAINT_, CONSTRAINT_::Enum_SENSSCALING_TYPE_>({
    {CONSTRAINT_::SENSSCALING_TYPE_NONE, 78, "NONE"},
    {CONSTRAINT_::SENSSCALING_TYPE_NORMED_TO_ONE, 79, "NORMED_TO_ONE"},
    {CONSTRAINT_::SENSSCALING_TYPE_SCALED, 83, "SCALED"},
  });
}

TEST(Constraint, TakesNumbersThatAreNoEnumerators)
{
  RecordingStorage storage = StorageWithBareConstraint();
  auto& keys = storage.Command("CONSTRAINT_", "bare");
  keys["TYPE_"] = {72};
  keys["MAGNITUDE_"] = {-1};
  keys["SENSSCALING_TYPE_"] = {2147483647};
  const CONSTRAINT_ command = LoadedAlone<CONSTRAINT_>(storage, "bare");
  EXPECT_EQ(command.GetTYPE_(), 72);
  EXPECT_EQ(command.GetMAGNITUDE_(), -1);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), 2147483647);
}

TEST(Constraint, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(CONSTRAINT_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 2165);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|CONSTRAINT_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_has_DRESP_: no\n"
                         "m_has_OPERATOR_: no\n"
                         "m_TYPE_: INVALID\n"
                         "m_MAGNITUDE_: INVALID\n"
                         "m_VALUE_: 0\n"
                         "m_COEFFICIENT_: 0\n"
                         "m_A_MINMAX_COEFFICIENT_: 0\n"
                         "m_SENSSCALING_TYPE_: INVALID\n"
                         "m_SENSSCALING_VALUE_: 0\n"
                         "m_num_FILTER_: 0\n"
                         "m_FILTER_: [\n]\n");
}

TEST(Constraint, PrintsNoReferencesBeforeItIsLinkedEvenIfTheFileHasThem)
{
  EXPECT_EQ(TextOf(FullConstraint()), "m_ID_NAME_: limit\n"
                                      "m_has_DRESP_: no\n"
                                      "m_has_OPERATOR_: no\n"
                                      "m_TYPE_: LESS_EQUAL\n"
                                      "m_MAGNITUDE_: REL_VALUE\n"
                                      "m_VALUE_: 0.4\n"
                                      "m_COEFFICIENT_: 2\n"
                                      "m_A_MINMAX_COEFFICIENT_: -3.5\n"
                                      "m_SENSSCALING_TYPE_: NORMED_TO_ONE\n"
                                      "m_SENSSCALING_VALUE_: 0.5\n"
                                      "m_num_FILTER_: 0\n"
                                      "m_FILTER_: [\n]\n");
}

TEST(Constraint, PrintsAllItHoldsOnceItIsLinked)
{
  LinkedJob job(StorageWithFullJob());
  const KLV_LogRecord record = LogRecordOf(job->GetCONSTRAINT_("limit"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:2165 [%T|%n|%P|OrvelCommands|CONSTRAINT_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Constraint, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullConstraint();
  CONSTRAINT_ command = LoadedAlone<CONSTRAINT_>(storage, "limit");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "limit"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Constraint, RefersToTheCommandsOfTheJob)
{
  LinkedJob job(StorageWithFullJob());
  const CONSTRAINT_& command = job->GetCONSTRAINT_("limit");
  ASSERT_TRUE(command.HasDRESP_());
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("volume"));
  ASSERT_TRUE(command.HasOPERATOR_());
  EXPECT_EQ(&command.GetOPERATOR_(), &job->GetOPERATOR_("sum"));
  EXPECT_EQ(command.NumFILTER_(), 2U);
  EXPECT_THAT(command.GetFILTER_(), ElementsAre(&job->GetFILTER_("fine"), &job->GetFILTER_("coarse")));
}

TEST(Constraint, ReadsItsReferencesAfterAllItsValues)
{
  LinkedJob job(StorageWithFullJob());
  const auto calls = job.CallsAbout("CONSTRAINT_", "limit");
  ASSERT_EQ(calls.size(), 14U);
  EXPECT_EQ(calls[6], "GetValue(CONSTRAINT_, limit, SENSSCALING_VALUE_, 1, vtmDouble, double)");
  EXPECT_THAT(std::vector<std::string>(calls.begin() + 7, calls.end()),
              ElementsAre("HasElement(CONSTRAINT_, limit, DRESP_)", "GetReference(CONSTRAINT_, limit, DRESP_, 1)",
                          "HasElement(CONSTRAINT_, limit, OPERATOR_)", "GetReference(CONSTRAINT_, limit, OPERATOR_, 1)",
                          "GetNumElements(CONSTRAINT_, limit, FILTER_)", "GetReference(CONSTRAINT_, limit, FILTER_, 1)",
                          "GetReference(CONSTRAINT_, limit, FILTER_, 2)"));
}

TEST(Constraint, LoadsAndLinksWithNeitherAResponseNorAnOperator)
{
  LinkedJob job(StorageWithBareConstraint());
  const CONSTRAINT_& command = job->GetCONSTRAINT_("bare");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.NumFILTER_(), 0U);
}

TEST(Constraint, LinksWithAResponseAlone)
{
  RecordingStorage storage = StorageWithBareConstraint();
  AddCommandsReferredTo(storage);
  storage.Command("CONSTRAINT_", "bare")["DRESP_"] = {Ref{"volume"}};
  LinkedJob job(std::move(storage));
  const CONSTRAINT_& command = job->GetCONSTRAINT_("bare");
  ASSERT_TRUE(command.HasDRESP_());
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("volume"));
  EXPECT_FALSE(command.HasOPERATOR_());
}

TEST(Constraint, CannotBeLinkedToACommandThatIsMissing)
{
  EXPECT_EQ(FailureOfReference("DRESP_", "nobody"),
            (Failure{"Invalid ID nobody of the parameter file command DRESP_", "161700240908", kJobPrefix}));
  EXPECT_EQ(FailureOfReference("OPERATOR_", "nobody"),
            (Failure{"Invalid ID nobody of the parameter file command OPERATOR_", "161700240908", kJobPrefix}));
  EXPECT_EQ(FailureOfReference("FILTER_", "nobody"),
            (Failure{"Invalid ID nobody of the parameter file command FILTER_", "161700240908", kJobPrefix}));
}

TEST(Constraint, CannotBeLinkedToACommandOfAnotherKind)
{
  EXPECT_EQ(FailureOfReference("DRESP_", "sum").message, "Invalid ID sum of the parameter file command DRESP_");
  EXPECT_EQ(FailureOfReference("OPERATOR_", "volume").message,
            "Invalid ID volume of the parameter file command OPERATOR_");
}

TEST(Constraint, IsLeftUnlinkedBehindTheOneWhoseReferenceIsMissing)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddCommandsReferredTo(storage);
  for (const char* id : {"before", "wrong", "behind"})
  {
    auto& keys = storage.Command("CONSTRAINT_", id);
    keys["DRESP_"] = {Ref{"volume"}};
    keys["OPERATOR_"] = {Ref{"sum"}};
    keys["FILTER_"] = {Ref{"fine"}};
  }
  storage.Command("CONSTRAINT_", "wrong")["OPERATOR_"] = {Ref{"nobody"}};
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }).message, "Invalid ID nobody of the parameter file command OPERATOR_");

  const CONSTRAINT_& before = parfile.GetCONSTRAINT_("before");
  EXPECT_EQ(&before.GetDRESP_(), &parfile.GetDRESP_("volume"));
  EXPECT_EQ(&before.GetOPERATOR_(), &parfile.GetOPERATOR_("sum"));
  EXPECT_EQ(before.NumFILTER_(), 1U);

  const CONSTRAINT_& wrong = parfile.GetCONSTRAINT_("wrong");
  EXPECT_EQ(&wrong.GetDRESP_(), &parfile.GetDRESP_("volume"));
  EXPECT_TRUE(wrong.HasOPERATOR_());
  EXPECT_EQ(wrong.NumFILTER_(), 0U);

  const CONSTRAINT_& behind = parfile.GetCONSTRAINT_("behind");
  EXPECT_FALSE(behind.HasDRESP_());
  EXPECT_FALSE(behind.HasOPERATOR_());
  EXPECT_EQ(behind.NumFILTER_(), 0U);
}

TEST(Constraint, GivesLinkedFiltersByPlacesCountedFromOne)
{
  LinkedJob job(StorageWithFullJob());
  const CONSTRAINT_& command = job->GetCONSTRAINT_("limit");
  EXPECT_EQ(&command.GetFILTER_(1), &job->GetFILTER_("fine"));
  EXPECT_EQ(&command.GetFILTER_(command.NumFILTER_()), &job->GetFILTER_("coarse"));
}

TEST(Constraint, RefusesAPlaceBeforeOrBehindItsFilters)
{
  LinkedJob job(StorageWithFullJob());
  const CONSTRAINT_& command = job->GetCONSTRAINT_("limit");
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(0); }),
            (Failure{"Invalid index 0 of the parameterfile value FILTER_ to retrieve from CONSTRAINT_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(3); }),
            (Failure{"Invalid index 3 of the parameterfile value FILTER_ to retrieve from CONSTRAINT_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
}

TEST(Constraint, RefusesEveryPlaceWithoutFilters)
{
  const CONSTRAINT_ command;
  EXPECT_EQ(FailureOf([&] { command.GetFILTER_(1); }),
            (Failure{"Invalid index 1 of the parameterfile value FILTER_ to retrieve from CONSTRAINT_. "
                     "Number of available values is 0.",
                     "220653270608", kIndexPrefix}));
}

TEST(Constraint, CopiesItsValuesAndReferencesAsPointers)
{
  LinkedJob job(StorageWithFullJob());
  CONSTRAINT_& original = job->GetCONSTRAINT_("limit");
  const CONSTRAINT_ copy(original);
  original.Load(StorageWithBareConstraint(), "bare");
  EXPECT_EQ(TextOf(copy), kFullText);
  EXPECT_EQ(&copy.GetDRESP_(), &job->GetDRESP_("volume"));
  EXPECT_EQ(&copy.GetOPERATOR_(), &job->GetOPERATOR_("sum"));
  EXPECT_THAT(copy.GetFILTER_(), ElementsAre(&job->GetFILTER_("fine"), &job->GetFILTER_("coarse")));
  EXPECT_NE(&copy.GetFILTER_(), &original.GetFILTER_());
}

TEST(Constraint, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithFullJob());
  CONSTRAINT_ command = BareConstraint();
  EXPECT_EQ(&(command = job->GetCONSTRAINT_("limit")), &command);
  EXPECT_EQ(TextOf(command), kFullText);
  EXPECT_EQ(&command.GetOPERATOR_(), &job->GetOPERATOR_("sum"));

  command = CONSTRAINT_();
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_FALSE(command.HasDRESP_());
  EXPECT_FALSE(command.HasOPERATOR_());
  EXPECT_EQ(command.GetVALUE_(), 0.0);
  EXPECT_EQ(command.NumFILTER_(), 0U);
  EXPECT_THAT(command.GetFILTER_(), IsEmpty());
}

TEST(Constraint, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithFullJob());
  CONSTRAINT_& command = job->GetCONSTRAINT_("limit");
  const CONSTRAINT_& same = command;
  command = same;
  EXPECT_EQ(TextOf(command), kFullText);
}

TEST(Constraint, LeavesItsCommandsAloneWhenACopyEnds)
{
  LinkedJob job(StorageWithFullJob());
  {
    const CONSTRAINT_ copy(job->GetCONSTRAINT_("limit"));
  }
  EXPECT_EQ(job->GetCONSTRAINT_("limit").GetDRESP_().GetID_NAME_(), "volume");
  EXPECT_EQ(job->GetCONSTRAINT_("limit").GetFILTER_(2).GetID_NAME_(), "coarse");
}

TEST(Constraint, KeepsItsReferencesWhenItIsLoadedAgain)
{
  LinkedJob job(StorageWithFullJob());
  CONSTRAINT_& command = job->GetCONSTRAINT_("limit");
  command.Load(StorageWithBareConstraint(), "bare");
  EXPECT_EQ(command.GetMAGNITUDE_(), CONSTRAINT_::MAGNITUDE_ABS);
  EXPECT_TRUE(command.HasDRESP_());
  EXPECT_EQ(&command.GetDRESP_(), &job->GetDRESP_("volume"));
  EXPECT_TRUE(command.HasOPERATOR_());
  EXPECT_EQ(command.NumFILTER_(), 2U);
}

TEST(Constraint, KeepsWhatItReadBeforeAReadFailed)
{
  RecordingStorage storage = StorageWithFullConstraint();
  storage.FailOn("GetValue(CONSTRAINT_, limit, COEFFICIENT_, 1, vtmDouble, double)");
  CONSTRAINT_ command;
  EXPECT_THROW(command.Load(storage, "limit"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "limit");
  EXPECT_EQ(command.GetMAGNITUDE_(), CONSTRAINT_::MAGNITUDE_REL_VALUE);
  EXPECT_EQ(command.GetVALUE_(), 0.4);
  EXPECT_EQ(command.GetCOEFFICIENT_(), 0.0);
  EXPECT_EQ(command.GetSENSSCALING_TYPE_(), 0);
}
