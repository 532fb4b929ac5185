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

const char* const kIndexPrefix = "[%T|%n|%P|libxml2vtm|OPERATOR_] ";

const char* const kFullText = "m_ID_NAME_: sum\n"
                              "m_TYPE_: WEIGHTED_SUM\n"
                              "m_UPDATE_TYPE_: RECEIVED\n"
                              "m_UPDATE_ID_: external\n"
                              "m_UPDATE_INDEX_: 7\n"
                              "m_num_DRESP_: 2\n"
                              "m_DRESP_: [\ndrop swirl ]\n"
                              "m_num_DRESP_WEIGHT_: 3\n"
                              "m_DRESP_WEIGHT_: [\n0.25 -1.5 4]\n"
                              "m_num_OPERATOR_: 1\n"
                              "m_OPERATOR_: [\nnorm ]\n"
                              "m_num_OPERATOR_WEIGHT_: 2\n"
                              "m_OPERATOR_WEIGHT_: [\n0.5 0.75]\n"
                              "m_FACTOR_: 2.5\n";

RecordingStorage StorageWithFullOperator()
{
  RecordingStorage storage;
  auto& keys = storage.Command("OPERATOR_", "sum");
  keys["TYPE_"] = {87};
  keys["UPDATE_TYPE_"] = {82};
  keys["UPDATE_ID_"] = {std::string("external")};
  keys["UPDATE_INDEX_"] = {7};
  keys["DRESP_"] = {Ref{"drop"}, Ref{"swirl"}};
  keys["DRESP_WEIGHT_"] = {0.25, -1.5, 4.0};
  keys["OPERATOR_"] = {Ref{"norm"}};
  keys["OPERATOR_WEIGHT_"] = {0.5, 0.75};
  keys["FACTOR_"] = {2.5};
  return storage;
}

RecordingStorage StorageWithBareOperator()
{
  RecordingStorage storage;
  auto& keys = storage.Command("OPERATOR_", "bare");
  keys["TYPE_"] = {88};
  keys["UPDATE_TYPE_"] = {67};
  keys["UPDATE_ID_"] = {std::string("none")};
  keys["UPDATE_INDEX_"] = {1};
  keys["FACTOR_"] = {1.0};
  return storage;
}

RecordingStorage StorageWithFullJob()
{
  RecordingStorage storage = StorageWithFullOperator();
  storage.Command("OPERATOR_", "norm");
  storage.Command("DRESP_", "drop");
  storage.Command("DRESP_", "swirl");
  return storage;
}

OPERATOR_ FullOperator()
{
  return LoadedAlone<OPERATOR_>(StorageWithFullOperator(), "sum");
}

OPERATOR_ BareOperator()
{
  return LoadedAlone<OPERATOR_>(StorageWithBareOperator(), "bare");
}

std::string TextOf(const OPERATOR_& command)
{
  return LogRecordOf(command).text;
}

}  // namespace

TEST(Operator, TellsItsNames)
{
  EXPECT_STREQ(OPERATOR_::COMMAND_NAME, "OPERATOR");
  EXPECT_EQ(OPERATOR_::s_type, "OPERATOR_");
  EXPECT_EQ(OPERATOR_().GetType(), "OPERATOR_");
}

TEST(Operator, IsEmptyBeforeItIsLoaded)
{
  const OPERATOR_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetUPDATE_TYPE_(), 0);
  EXPECT_EQ(command.GetUPDATE_ID_(), "");
  EXPECT_EQ(command.GetUPDATE_INDEX_(), 0);
  EXPECT_EQ(command.NumDRESP_(), 0U);
  EXPECT_THAT(command.GetDRESP_(), IsEmpty());
  EXPECT_EQ(command.NumDRESP_WEIGHT_(), 0U);
  EXPECT_THAT(command.GetDRESP_WEIGHT_(), IsEmpty());
  EXPECT_EQ(command.NumOPERATOR_(), 0U);
  EXPECT_THAT(command.GetOPERATOR_(), IsEmpty());
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 0U);
  EXPECT_THAT(command.GetOPERATOR_WEIGHT_(), IsEmpty());
  EXPECT_EQ(command.GetFACTOR_(), 0.0);
}

TEST(Operator, HandsOutItsValuesWithoutCopyingThem)
{
  const OPERATOR_ command;
  StaticAssertTypeEq<const OPERATOR_::Enum_TYPE_&, decltype(command.GetTYPE_())>();
  StaticAssertTypeEq<const OPERATOR_::Enum_UPDATE_TYPE_&, decltype(command.GetUPDATE_TYPE_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetUPDATE_ID_())>();
  StaticAssertTypeEq<const int&, decltype(command.GetUPDATE_INDEX_())>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumDRESP_())>();
  StaticAssertTypeEq<const std::vector<const DRESP_*>&, decltype(command.GetDRESP_())>();
  StaticAssertTypeEq<const DRESP_&, decltype(command.GetDRESP_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumDRESP_WEIGHT_())>();
  StaticAssertTypeEq<const std::vector<double>&, decltype(command.GetDRESP_WEIGHT_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetDRESP_WEIGHT_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumOPERATOR_())>();
  StaticAssertTypeEq<const std::vector<const OPERATOR_*>&, decltype(command.GetOPERATOR_())>();
  StaticAssertTypeEq<const OPERATOR_&, decltype(command.GetOPERATOR_(1))>();
  StaticAssertTypeEq<std::uint64_t, decltype(command.NumOPERATOR_WEIGHT_())>();
  StaticAssertTypeEq<const std::vector<double>&, decltype(command.GetOPERATOR_WEIGHT_())>();
  StaticAssertTypeEq<const double&, decltype(command.GetOPERATOR_WEIGHT_(1))>();
  StaticAssertTypeEq<const double&, decltype(command.GetFACTOR_())>();
}

TEST(Operator, LoadsItsKeysInOrderAndLeavesTheReferencesAlone)
{
  const RecordingStorage storage = StorageWithFullOperator();
  LoadedAlone<OPERATOR_>(storage, "sum");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(OPERATOR_, sum, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(OPERATOR_, sum, UPDATE_TYPE_, 1, vtmEnum)",
                                           "GetValue(OPERATOR_, sum, UPDATE_ID_, 1, vtmString, string)",
                                           "GetValue(OPERATOR_, sum, UPDATE_INDEX_, 1, vtmInteger, int)",
                                           "GetNumElements(OPERATOR_, sum, DRESP_WEIGHT_)",
                                           "GetValue(OPERATOR_, sum, DRESP_WEIGHT_, 1, vtmDouble, double)",
                                           "GetValue(OPERATOR_, sum, DRESP_WEIGHT_, 2, vtmDouble, double)",
                                           "GetValue(OPERATOR_, sum, DRESP_WEIGHT_, 3, vtmDouble, double)",
                                           "GetNumElements(OPERATOR_, sum, OPERATOR_WEIGHT_)",
                                           "GetValue(OPERATOR_, sum, OPERATOR_WEIGHT_, 1, vtmDouble, double)",
                                           "GetValue(OPERATOR_, sum, OPERATOR_WEIGHT_, 2, vtmDouble, double)",
                                           "GetValue(OPERATOR_, sum, FACTOR_, 1, vtmDouble, double)"));
}

TEST(Operator, OnlyCountsWeightsThatAreAbsent)
{
  const RecordingStorage storage = StorageWithBareOperator();
  LoadedAlone<OPERATOR_>(storage, "bare");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetEnumValue(OPERATOR_, bare, TYPE_, 1, vtmEnum)",
                                           "GetEnumValue(OPERATOR_, bare, UPDATE_TYPE_, 1, vtmEnum)",
                                           "GetValue(OPERATOR_, bare, UPDATE_ID_, 1, vtmString, string)",
                                           "GetValue(OPERATOR_, bare, UPDATE_INDEX_, 1, vtmInteger, int)",
                                           "GetNumElements(OPERATOR_, bare, DRESP_WEIGHT_)",
                                           "GetNumElements(OPERATOR_, bare, OPERATOR_WEIGHT_)",
                                           "GetValue(OPERATOR_, bare, FACTOR_, 1, vtmDouble, double)"));
}

TEST(Operator, GivesWhatItLoaded)
{
  const OPERATOR_ command = FullOperator();
  EXPECT_EQ(command.GetID_NAME_(), "sum");
  EXPECT_EQ(command.GetTYPE_(), OPERATOR_::TYPE_WEIGHTED_SUM);
  EXPECT_EQ(command.GetUPDATE_TYPE_(), OPERATOR_::UPDATE_TYPE_RECEIVED);
  EXPECT_EQ(command.GetUPDATE_ID_(), "external");
  EXPECT_EQ(command.GetUPDATE_INDEX_(), 7);
  EXPECT_EQ(command.NumDRESP_(), 0U);
  EXPECT_THAT(command.GetDRESP_(), IsEmpty());
  EXPECT_EQ(command.NumDRESP_WEIGHT_(), 3U);
  EXPECT_THAT(command.GetDRESP_WEIGHT_(), ElementsAre(0.25, -1.5, 4.0));
  EXPECT_EQ(command.NumOPERATOR_(), 0U);
  EXPECT_THAT(command.GetOPERATOR_(), IsEmpty());
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 2U);
  EXPECT_THAT(command.GetOPERATOR_WEIGHT_(), ElementsAre(0.5, 0.75));
  EXPECT_EQ(command.GetFACTOR_(), 2.5);
}

// These getters test no index, so that only the valid ones may be asked.
TEST(Operator, GivesSingleWeightsByPlacesCountedFromOne)
{
  const OPERATOR_ command = FullOperator();
  EXPECT_EQ(command.GetDRESP_WEIGHT_(1), 0.25);
  EXPECT_EQ(command.GetDRESP_WEIGHT_(2), -1.5);
  EXPECT_EQ(command.GetDRESP_WEIGHT_(3), 4.0);
  EXPECT_EQ(command.GetOPERATOR_WEIGHT_(1), 0.5);
  EXPECT_EQ(command.GetOPERATOR_WEIGHT_(2), 0.75);
  EXPECT_EQ(&command.GetOPERATOR_WEIGHT_(2), &command.GetOPERATOR_WEIGHT_().back());
}

TEST(Operator, LoadsAndLinksWithNeitherResponsesNorOperators)
{
  LinkedJob job(StorageWithBareOperator());
  const OPERATOR_& command = job->GetOPERATOR_("bare");
  EXPECT_EQ(command.NumDRESP_(), 0U);
  EXPECT_THAT(command.GetDRESP_(), IsEmpty());
  EXPECT_EQ(command.NumOPERATOR_(), 0U);
  EXPECT_THAT(command.GetOPERATOR_(), IsEmpty());
}

TEST(Operator, DoesNotCompareItsWeightsWithItsReferences)
{
  RecordingStorage storage = StorageWithFullJob();
  auto& keys = storage.Command("OPERATOR_", "sum");
  keys["DRESP_WEIGHT_"] = {0.25};
  keys.erase("OPERATOR_WEIGHT_");
  LinkedJob job(std::move(storage));
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(command.NumDRESP_(), 2U);
  EXPECT_THAT(command.GetDRESP_WEIGHT_(), ElementsAre(0.25));
  EXPECT_EQ(command.NumOPERATOR_(), 1U);
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 0U);
}

TEST(Operator, NamesItsTypesAndKeepsSmallLettersApart)
{
  ExpectEnumerators<OPERATOR_, OPERATOR_::Enum_TYPE_>({
    {OPERATOR_::TYPE_P_MEAN_NORM, 77, "P_MEAN_NORM"},
    {OPERATOR_::TYPE_P_NORM, 80, "P_NORM"},
    {OPERATOR_::TYPE_WEIGHTED_SUM, 87, "WEIGHTED_SUM"},
    {OPERATOR_::TYPE_MAX, 88, "MAX"},
    {OPERATOR_::TYPE_P_MEAN_NORM_C, 109, "P_MEAN_NORM_C"},
    {OPERATOR_::TYPE_P_NORM_C, 112, "P_NORM_C"},
  });
}

TEST(Operator, NamesItsUpdateTypes)
{
  ExpectEnumerators<OPERATOR_, OPERATOR_::Enum_UPDATE_TYPE_>({
    {OPERATOR_::UPDATE_TYPE_CALCULATED, 67, "CALCULATED"},
    {OPERATOR_::UPDATE_TYPE_RECEIVED, 82, "RECEIVED"},
  });
}

TEST(Operator, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(OPERATOR_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 1809);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|OPERATOR_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_TYPE_: INVALID\n"
                         "m_UPDATE_TYPE_: INVALID\n"
                         "m_UPDATE_ID_: \n"
                         "m_UPDATE_INDEX_: 0\n"
                         "m_num_DRESP_: 0\n"
                         "m_DRESP_: [\n]\n"
                         "m_num_DRESP_WEIGHT_: 0\n"
                         "m_DRESP_WEIGHT_: [\n]\n"
                         "m_num_OPERATOR_: 0\n"
                         "m_OPERATOR_: [\n]\n"
                         "m_num_OPERATOR_WEIGHT_: 0\n"
                         "m_OPERATOR_WEIGHT_: [\n]\n"
                         "m_FACTOR_: 0\n");
}

TEST(Operator, PrintsAllItHoldsOnceItIsLinked)
{
  LinkedJob job(StorageWithFullJob());
  const KLV_LogRecord record = LogRecordOf(job->GetOPERATOR_("sum"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:1809 [%T|%n|%P|OrvelCommands|OPERATOR_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Operator, PrintsTheTypeOfTheSmallLetterM)
{
  RecordingStorage storage = StorageWithBareOperator();
  storage.Command("OPERATOR_", "bare")["TYPE_"] = {int{'m'}};
  EXPECT_EQ(TextOf(LoadedAlone<OPERATOR_>(storage, "bare")), "m_ID_NAME_: bare\n"
                                                             "m_TYPE_: P_MEAN_NORM_C\n"
                                                             "m_UPDATE_TYPE_: CALCULATED\n"
                                                             "m_UPDATE_ID_: none\n"
                                                             "m_UPDATE_INDEX_: 1\n"
                                                             "m_num_DRESP_: 0\n"
                                                             "m_DRESP_: [\n]\n"
                                                             "m_num_DRESP_WEIGHT_: 0\n"
                                                             "m_DRESP_WEIGHT_: [\n]\n"
                                                             "m_num_OPERATOR_: 0\n"
                                                             "m_OPERATOR_: [\n]\n"
                                                             "m_num_OPERATOR_WEIGHT_: 0\n"
                                                             "m_OPERATOR_WEIGHT_: [\n]\n"
                                                             "m_FACTOR_: 1\n");
}

TEST(Operator, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullOperator();
  OPERATOR_ command = LoadedAlone<OPERATOR_>(storage, "sum");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "sum"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Operator, RefersToTheCommandsOfTheJobInTheOrderOfItsKeys)
{
  LinkedJob job(StorageWithFullJob());
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(command.NumDRESP_(), 2U);
  EXPECT_THAT(command.GetDRESP_(), ElementsAre(&job->GetDRESP_("drop"), &job->GetDRESP_("swirl")));
  EXPECT_EQ(command.NumOPERATOR_(), 1U);
  EXPECT_THAT(command.GetOPERATOR_(), ElementsAre(&job->GetOPERATOR_("norm")));
}

TEST(Operator, ReadsItsReferencesAfterAllItsValues)
{
  LinkedJob job(StorageWithFullJob());
  const auto calls = job.CallsAbout("OPERATOR_", "sum");
  ASSERT_EQ(calls.size(), 17U);
  EXPECT_EQ(calls[11], "GetValue(OPERATOR_, sum, FACTOR_, 1, vtmDouble, double)");
  EXPECT_THAT(std::vector<std::string>(calls.begin() + 12, calls.end()),
              ElementsAre("GetNumElements(OPERATOR_, sum, DRESP_)", "GetReference(OPERATOR_, sum, DRESP_, 1)",
                          "GetReference(OPERATOR_, sum, DRESP_, 2)", "GetNumElements(OPERATOR_, sum, OPERATOR_)",
                          "GetReference(OPERATOR_, sum, OPERATOR_, 1)"));
}

TEST(Operator, MayReferToItselfAndToOneThatRefersBack)
{
  RecordingStorage storage;
  storage.Command("OPERATOR_", "one")["OPERATOR_"] = {Ref{"one"}, Ref{"other"}};
  storage.Command("OPERATOR_", "other")["OPERATOR_"] = {Ref{"one"}};
  LinkedJob job(std::move(storage));
  const OPERATOR_& one = job->GetOPERATOR_("one");
  EXPECT_EQ(&one.GetOPERATOR_(1), &one);
  EXPECT_EQ(&one.GetOPERATOR_(2).GetOPERATOR_(1), &one);
}

TEST(Operator, HoldsACommandThatIsNamedTwiceTwice)
{
  RecordingStorage storage;
  storage.Command("DRESP_", "drop");
  storage.Command("OPERATOR_", "sum")["DRESP_"] = {Ref{"drop"}, Ref{"drop"}};
  LinkedJob job(std::move(storage));
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(command.NumDRESP_(), 2U);
  EXPECT_THAT(command.GetDRESP_(), ElementsAre(&job->GetDRESP_("drop"), &job->GetDRESP_("drop")));
}

TEST(Operator, RefersToTheEarlierOfTwoCommandsOfOneName)
{
  RecordingStorage storage;
  storage.Command("DRESP_", "drop");
  storage.AddSecondCommand("DRESP_", "drop");
  storage.Command("OPERATOR_", "sum")["DRESP_"] = {Ref{"drop"}};
  LinkedJob job(std::move(storage));
  ASSERT_EQ(job->NumDRESP_(), 2U);
  EXPECT_EQ(&job->GetOPERATOR_("sum").GetDRESP_(1), &job->GetDRESP_(1));
}

TEST(Operator, CannotBeLinkedToAResponseThatIsMissing)
{
  RecordingStorage storage = StorageWithFullOperator();
  AddRequiredCommands(storage);
  storage.Command("DRESP_", "drop");
  storage.Command("OPERATOR_", "swirl");
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"Invalid ID swirl of the parameter file command DRESP_",
                                                         "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(Operator, CannotBeLinkedToAnOperatorThatIsMissing)
{
  RecordingStorage storage = StorageWithFullJob();
  AddRequiredCommands(storage);
  storage.Command("OPERATOR_", "sum")["OPERATOR_"] = {Ref{"nobody"}};
  Gyre_Parfile parfile(storage);
  EXPECT_EQ(FailureOf([&] { parfile.Load(); }), (Failure{"Invalid ID nobody of the parameter file command OPERATOR_",
                                                         "161700240908", "[%T|%n|%P|OrvelCommands|Gyre_Parfile] "}));
}

TEST(Operator, GivesLinkedCommandsByPlacesCountedFromOne)
{
  LinkedJob job(StorageWithFullJob());
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(&command.GetDRESP_(1), &job->GetDRESP_("drop"));
  EXPECT_EQ(&command.GetDRESP_(command.NumDRESP_()), &job->GetDRESP_("swirl"));
  EXPECT_EQ(&command.GetOPERATOR_(1), &job->GetOPERATOR_("norm"));
}

TEST(Operator, RefusesAPlaceBeforeOrBehindItsResponses)
{
  LinkedJob job(StorageWithFullJob());
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(FailureOf([&] { command.GetDRESP_(0); }),
            (Failure{"Invalid index 0 of the parameterfile value DRESP_ to retrieve from OPERATOR_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
  EXPECT_EQ(FailureOf([&] { command.GetDRESP_(3); }),
            (Failure{"Invalid index 3 of the parameterfile value DRESP_ to retrieve from OPERATOR_. "
                     "Number of available values is 2.",
                     "220653270608", kIndexPrefix}));
}

TEST(Operator, RefusesAPlaceBeforeOrBehindItsOperators)
{
  LinkedJob job(StorageWithFullJob());
  const OPERATOR_& command = job->GetOPERATOR_("sum");
  EXPECT_EQ(FailureOf([&] { command.GetOPERATOR_(0); }),
            (Failure{"Invalid index 0 of the parameterfile value OPERATOR_ to retrieve from OPERATOR_. "
                     "Number of available values is 1.",
                     "220653270608", kIndexPrefix}));
  EXPECT_EQ(FailureOf([&] { command.GetOPERATOR_(2); }),
            (Failure{"Invalid index 2 of the parameterfile value OPERATOR_ to retrieve from OPERATOR_. "
                     "Number of available values is 1.",
                     "220653270608", kIndexPrefix}));
}

TEST(Operator, RefusesEveryPlaceInEmptyListsAndPrintsTheWholeIndex)
{
  const OPERATOR_ command = FullOperator();
  EXPECT_EQ(FailureOf([&] { command.GetDRESP_(1); }),
            (Failure{"Invalid index 1 of the parameterfile value DRESP_ to retrieve from OPERATOR_. "
                     "Number of available values is 0.",
                     "220653270608", kIndexPrefix}));
  EXPECT_EQ(FailureOf([&] { command.GetOPERATOR_(18446744073709551615U); }),
            (Failure{"Invalid index 18446744073709551615 of the parameterfile value OPERATOR_ to retrieve "
                     "from OPERATOR_. Number of available values is 0.",
                     "220653270608", kIndexPrefix}));
}

// A second load of the job links the first objects once more, so that their lists hold more than the count
// tells. It ends at the objective of the algorithm, of which there are two then.
TEST(Operator, TestsAPlaceAgainstItsCountAndNotAgainstTheList)
{
  RecordingStorage storage = StorageWithFullJob();
  AddRequiredCommands(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  const OPERATOR_& command = parfile.GetOPERATOR_("sum");
  EXPECT_EQ(command.GetDRESP_().size(), 4U);
  EXPECT_EQ(command.NumDRESP_(), 2U);
  EXPECT_EQ(FailureOf([&] { command.GetDRESP_(3); }).message,
            "Invalid index 3 of the parameterfile value DRESP_ to retrieve from OPERATOR_. "
            "Number of available values is 2.");
}

TEST(Operator, CopiesItsValuesAndReferencesAsPointers)
{
  LinkedJob job(StorageWithFullJob());
  OPERATOR_& original = job->GetOPERATOR_("sum");
  const OPERATOR_ copy(original);
  original.Load(StorageWithBareOperator(), "bare");
  EXPECT_EQ(TextOf(copy), kFullText);
  EXPECT_THAT(copy.GetDRESP_(), ElementsAre(&job->GetDRESP_("drop"), &job->GetDRESP_("swirl")));
  EXPECT_THAT(copy.GetOPERATOR_(), ElementsAre(&job->GetOPERATOR_("norm")));
  EXPECT_NE(&copy.GetDRESP_WEIGHT_(1), &original.GetDRESP_WEIGHT_().front());
}

TEST(Operator, TakesAllValuesOfAnotherOne)
{
  LinkedJob job(StorageWithFullJob());
  OPERATOR_ command = BareOperator();
  EXPECT_EQ(&(command = job->GetOPERATOR_("sum")), &command);
  EXPECT_EQ(TextOf(command), kFullText);
  EXPECT_EQ(&command.GetDRESP_(2), &job->GetDRESP_("swirl"));

  command = OPERATOR_();
  EXPECT_EQ(command.NumDRESP_(), 0U);
  EXPECT_THAT(command.GetDRESP_(), IsEmpty());
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 0U);
  EXPECT_THAT(command.GetOPERATOR_WEIGHT_(), IsEmpty());
  EXPECT_EQ(command.GetFACTOR_(), 0.0);
}

TEST(Operator, KeepsItsValuesWhenItIsAssignedToItself)
{
  LinkedJob job(StorageWithFullJob());
  OPERATOR_& command = job->GetOPERATOR_("sum");
  const OPERATOR_& same = command;
  command = same;
  EXPECT_EQ(TextOf(command), kFullText);
}

TEST(Operator, LeavesItsCommandsAloneWhenACopyEnds)
{
  LinkedJob job(StorageWithFullJob());
  {
    const OPERATOR_ copy(job->GetOPERATOR_("sum"));
  }
  EXPECT_EQ(job->GetOPERATOR_("sum").GetDRESP_(2).GetID_NAME_(), "swirl");
}

TEST(Operator, AppendsTheWeightsOfASecondLoadAndKeepsItsReferences)
{
  LinkedJob job(StorageWithFullJob());
  OPERATOR_& command = job->GetOPERATOR_("sum");
  RecordingStorage storage = StorageWithBareOperator();
  storage.Command("OPERATOR_", "bare")["OPERATOR_WEIGHT_"] = {8.0};
  command.Load(storage, "bare");
  EXPECT_EQ(command.NumDRESP_WEIGHT_(), 0U);
  EXPECT_THAT(command.GetDRESP_WEIGHT_(), ElementsAre(0.25, -1.5, 4.0));
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 1U);
  EXPECT_THAT(command.GetOPERATOR_WEIGHT_(), ElementsAre(0.5, 0.75, 8.0));
  EXPECT_EQ(command.NumDRESP_(), 2U);
  EXPECT_EQ(&command.GetDRESP_(1), &job->GetDRESP_("drop"));
  EXPECT_EQ(command.NumOPERATOR_(), 1U);
}

TEST(Operator, KeepsWhatItReadBeforeAReadFailed)
{
  RecordingStorage storage = StorageWithFullOperator();
  storage.FailOn("GetValue(OPERATOR_, sum, DRESP_WEIGHT_, 3, vtmDouble, double)");
  OPERATOR_ command;
  EXPECT_THROW(command.Load(storage, "sum"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "sum");
  EXPECT_EQ(command.GetUPDATE_INDEX_(), 7);
  EXPECT_EQ(command.NumDRESP_WEIGHT_(), 3U);
  EXPECT_THAT(command.GetDRESP_WEIGHT_(), ElementsAre(0.25, -1.5));
  EXPECT_EQ(command.NumOPERATOR_WEIGHT_(), 0U);
  EXPECT_EQ(command.GetFACTOR_(), 0.0);
}
