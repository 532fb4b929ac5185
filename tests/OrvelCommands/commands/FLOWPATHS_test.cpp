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
using testing::IsEmpty;

static_assert(std::is_same_v<decltype(std::declval<const FLOWPATHS_&>().NumIN_()), std::uint64_t>);
static_assert(std::is_same_v<decltype(std::declval<const FLOWPATHS_&>().GetIN_()), const std::vector<std::string>&>);
static_assert(std::is_same_v<decltype(std::declval<const FLOWPATHS_&>().GetIN_(1)), const std::string&>);
static_assert(std::is_same_v<decltype(std::declval<const FLOWPATHS_&>().GetOUT_(1)), const std::string&>);

namespace
{

void AddFullCommand(RecordingStorage& storage)
{
  auto& keys = storage.Command("FLOWPATHS_", "paths");
  keys["IN_"] = {std::string("inlet"), std::string("bypass"), std::string("leak")};
  keys["OUT_"] = {std::string("outlet"), std::string("drain")};
}

FLOWPATHS_ FullCommand()
{
  RecordingStorage storage;
  AddFullCommand(storage);
  return LoadedAlone<FLOWPATHS_>(storage, "paths");
}

const char* const kFullText = "m_ID_NAME_: paths\n"
                              "m_num_IN_: 3\n"
                              "m_IN_: [\n"
                              "inlet bypass leak]\n"
                              "m_num_OUT_: 2\n"
                              "m_OUT_: [\n"
                              "outlet drain]\n";

void ExpectFull(const FLOWPATHS_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "paths");
  EXPECT_EQ(command.NumIN_(), 3U);
  EXPECT_THAT(command.GetIN_(), ElementsAre("inlet", "bypass", "leak"));
  EXPECT_EQ(command.NumOUT_(), 2U);
  EXPECT_THAT(command.GetOUT_(), ElementsAre("outlet", "drain"));
}

void ExpectNoPaths(const FLOWPATHS_& command)
{
  EXPECT_EQ(command.NumIN_(), 0U);
  EXPECT_THAT(command.GetIN_(), IsEmpty());
  EXPECT_EQ(command.NumOUT_(), 0U);
  EXPECT_THAT(command.GetOUT_(), IsEmpty());
}

}  // namespace

TEST(Flowpaths, TellsItsNames)
{
  EXPECT_STREQ(FLOWPATHS_::COMMAND_NAME, "FLOWPATHS");
  EXPECT_EQ(FLOWPATHS_::s_type, "FLOWPATHS_");
  EXPECT_EQ(FLOWPATHS_().GetType(), "FLOWPATHS_");
}

TEST(Flowpaths, IsAnOrvelCommandThatTellsItsKindAndId)
{
  const FLOWPATHS_ command = FullCommand();
  const OrvelCommand& base = command;
  EXPECT_EQ(&base.GetType(), &FLOWPATHS_::s_type);
  EXPECT_EQ(base.GetID_NAME_(), "paths");
}

TEST(Flowpaths, IsEmptyBeforeItIsLoaded)
{
  const FLOWPATHS_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  ExpectNoPaths(command);
}

TEST(Flowpaths, CountsEachListAndReadsItFromTheFirstToTheLastOfIt)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  LoadedAlone<FLOWPATHS_>(storage, "paths");
  EXPECT_THAT(storage.Calls(), ElementsAre("GetNumElements(FLOWPATHS_, paths, IN_)",
                                           "GetValue(FLOWPATHS_, paths, IN_, 1, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, paths, IN_, 2, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, paths, IN_, 3, vtmModelId, string)",
                                           "GetNumElements(FLOWPATHS_, paths, OUT_)",
                                           "GetValue(FLOWPATHS_, paths, OUT_, 1, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, paths, OUT_, 2, vtmModelId, string)"));
}

TEST(Flowpaths, ReadsNothingOfListsThatAreAbsent)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "bare");
  const auto command = LoadedAlone<FLOWPATHS_>(storage, "bare");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetNumElements(FLOWPATHS_, bare, IN_)", "GetNumElements(FLOWPATHS_, bare, OUT_)"));
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  ExpectNoPaths(command);
}

TEST(Flowpaths, GivesWhatItLoaded)
{
  ExpectFull(FullCommand());
}

TEST(Flowpaths, KeepsARepeatedIdAndAnEmptyOne)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "paths")["OUT_"] = {std::string("outlet"), std::string(), std::string("outlet")};
  const auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  EXPECT_EQ(command.NumOUT_(), 3U);
  EXPECT_THAT(command.GetOUT_(), ElementsAre("outlet", "", "outlet"));
}

TEST(Flowpaths, AppendsWhenItIsLoadedAgainAndTakesTheNewCounts)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  storage.Command("FLOWPATHS_", "paths")["IN_"] = {std::string("late")};
  command.Load(storage, "paths");
  EXPECT_EQ(command.NumIN_(), 1U);
  EXPECT_THAT(command.GetIN_(), ElementsAre("inlet", "bypass", "leak", "late"));
  EXPECT_EQ(command.NumOUT_(), 2U);
  EXPECT_THAT(command.GetOUT_(), ElementsAre("outlet", "drain", "outlet", "drain"));
}

TEST(Flowpaths, LetsTheStoragesFailureThroughAndKeepsWhatItHasReadBefore)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.FailOn("GetValue(FLOWPATHS_, paths, IN_, 2, vtmModelId, string)");
  FLOWPATHS_ command;
  EXPECT_THROW(command.Load(storage, "paths"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "paths");
  EXPECT_EQ(command.NumIN_(), 3U);
  EXPECT_THAT(command.GetIN_(), ElementsAre("inlet"));
  EXPECT_EQ(command.NumOUT_(), 0U);
}

TEST(Flowpaths, GivesItsIdsByPlacesCountedFromOne)
{
  const FLOWPATHS_ command = FullCommand();
  EXPECT_EQ(command.GetIN_(1), "inlet");
  EXPECT_EQ(command.GetIN_(2), "bypass");
  EXPECT_EQ(command.GetIN_(command.NumIN_()), "leak");
  EXPECT_EQ(command.GetOUT_(1), "outlet");
  EXPECT_EQ(command.GetOUT_(command.NumOUT_()), "drain");
  EXPECT_EQ(&command.GetIN_(2), &command.GetIN_()[1]);
}

TEST(Flowpaths, PrintsItsDefaultsWithBothCountsAndBothEmptyLists)
{
  const KLV_LogRecord record = LogRecordOf(FLOWPATHS_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5486);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|FLOWPATHS_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_num_IN_: 0\n"
                         "m_IN_: [\n"
                         "]\n"
                         "m_num_OUT_: 0\n"
                         "m_OUT_: [\n"
                         "]\n");
}

TEST(Flowpaths, PrintsAllItHoldsWithinAJob)
{
  RecordingStorage storage;
  AddRequiredCommands(storage);
  AddFullCommand(storage);
  Gyre_Parfile parfile(storage);
  parfile.Load();
  const KLV_LogRecord record = LogRecordOf(parfile.GetFLOWPATHS_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 5486);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|FLOWPATHS_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Flowpaths, PrintsJustTheFirst1023CharactersOfALongText)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  storage.Command("FLOWPATHS_", "paths")["IN_"] = {std::string(600, 'a'), std::string(600, 'b')};
  EXPECT_EQ(LogRecordOf(LoadedAlone<FLOWPATHS_>(storage, "paths")).text,
            "m_ID_NAME_: paths\nm_num_IN_: 2\nm_IN_: [\n" + std::string(600, 'a') + " " + std::string(382, 'b'));
}

TEST(Flowpaths, TakesAPercentSignInAnIdAsAConversion)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "paths")["OUT_"] = {std::string("100%%"), std::string("<%s>")};
  EXPECT_EQ(LogRecordOf(LoadedAlone<FLOWPATHS_>(storage, "paths")).text,
            "m_ID_NAME_: paths\nm_num_IN_: 0\nm_IN_: [\n]\nm_num_OUT_: 2\nm_OUT_: [\n100% <>]\n");
}

TEST(Flowpaths, FindsEveryUnknownIdInEachOfItsListsInFirst)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet", "leak", "outlet"});
  EXPECT_THAT(ProblemsIn(command, storage, "paths"), ElementsAre(Problem{"bypass", "IN", "paths", "FLOWPATHS"},
                                                                 Problem{"drain", "OUT", "paths", "FLOWPATHS"}));
  EXPECT_THAT(MessagesIn(command, storage, "paths"), ElementsAre("Referenced ID is not found\n"
                                                                 "  Value \"bypass\" of parameter \"IN\" is erroneous\n"
                                                                 "  In \"FLOWPATHS\" command with ID_NAME \"paths\"",
                                                                 "Referenced ID is not found\n"
                                                                 "  Value \"drain\" of parameter \"OUT\" is erroneous\n"
                                                                 "  In \"FLOWPATHS\" command with ID_NAME \"paths\""));
}

TEST(Flowpaths, GoesOnAfterEachUnknownId)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "paths"),
              ElementsAre(Problem{"inlet", "IN", "paths", "FLOWPATHS"}, Problem{"bypass", "IN", "paths", "FLOWPATHS"},
                          Problem{"leak", "IN", "paths", "FLOWPATHS"}, Problem{"outlet", "OUT", "paths", "FLOWPATHS"},
                          Problem{"drain", "OUT", "paths", "FLOWPATHS"}));
}

TEST(Flowpaths, TellsTheDatabaseOfEachKnownIdAndOfNoOther)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  OpenDatabase database;
  database.Add(KLV_IdType::face_group, {"inlet", "bypass", "outlet", "drain", "another"});
  EXPECT_THAT(ProblemsIn(command, storage, "paths"), ElementsAre(Problem{"leak", "IN", "paths", "FLOWPATHS"}));
  const KLV_IdMap& faces = database.Map(KLV_IdType::face_group);
  EXPECT_EQ(faces.LookupCount("inlet"), 1U);
  EXPECT_EQ(faces.LookupCount("bypass"), 1U);
  EXPECT_EQ(faces.LookupCount("leak"), 0U);
  EXPECT_EQ(faces.LookupCount("outlet"), 1U);
  EXPECT_EQ(faces.LookupCount("drain"), 1U);
  EXPECT_EQ(faces.LookupCount("another"), 0U);
}

TEST(Flowpaths, TakesAnIdThatIsAnElementGroupOnlyForUnknown)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "paths")["IN_"] = {std::string("duct")};
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  OpenDatabase database;
  database.Add(KLV_IdType::element_group, {"duct"});
  EXPECT_THAT(ProblemsIn(command, storage, "paths"), ElementsAre(Problem{"duct", "IN", "paths", "FLOWPATHS"}));
}

TEST(Flowpaths, LooksForBothListsAmongFaceGroups)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "in")["IN_"] = {std::string("duct")};
  storage.Command("FLOWPATHS_", "out")["OUT_"] = {std::string("duct")};
  for (const char* id : {"in", "out"})
  {
    auto command = LoadedAlone<FLOWPATHS_>(storage, id);
    EXPECT_THAT(KindsThatSatisfy(command, storage, id, "duct"), ElementsAre(8));
  }
}

TEST(Flowpaths, ReadsTheIdsAgainFromTheStorageAsOftenAsItCountedAtLoad)
{
  RecordingStorage storage;
  AddFullCommand(storage);
  auto command = LoadedAlone<FLOWPATHS_>(storage, "paths");
  auto& others = storage.Command("FLOWPATHS_", "others");
  others["IN_"] = {std::string("i1"), std::string("i2"), std::string("i3"), std::string("i4")};
  others["OUT_"] = {std::string("o1"), std::string("o2")};
  storage.ForgetCalls();
  const OpenDatabase database;
  EXPECT_THAT(ProblemsIn(command, storage, "others"),
              ElementsAre(Problem{"i1", "IN", "paths", "FLOWPATHS"}, Problem{"i2", "IN", "paths", "FLOWPATHS"},
                          Problem{"i3", "IN", "paths", "FLOWPATHS"}, Problem{"o1", "OUT", "paths", "FLOWPATHS"},
                          Problem{"o2", "OUT", "paths", "FLOWPATHS"}));
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(FLOWPATHS_, others, IN_, 1, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, others, IN_, 2, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, others, IN_, 3, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, others, OUT_, 1, vtmModelId, string)",
                                           "GetValue(FLOWPATHS_, others, OUT_, 2, vtmModelId, string)"));
}

TEST(Flowpaths, AsksNothingWithoutIdsNotEvenForADatabase)
{
  RecordingStorage storage;
  storage.Command("FLOWPATHS_", "bare");
  auto command = LoadedAlone<FLOWPATHS_>(storage, "bare");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "bare"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Flowpaths, CopiesEveryMember)
{
  const FLOWPATHS_ original = FullCommand();
  const FLOWPATHS_ copy(original);
  ExpectFull(copy);
  EXPECT_NE(&copy.GetIN_(1), &original.GetIN_(1));
  EXPECT_EQ(LogRecordOf(copy).text, kFullText);
  ExpectFull(original);
}

TEST(Flowpaths, IsAssignedEveryMemberAndSurvivesAssignmentToItself)
{
  const FLOWPATHS_ original = FullCommand();
  FLOWPATHS_ other;
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  const FLOWPATHS_& itself = other;
  other = itself;
  ExpectFull(other);
  other = FLOWPATHS_();
  EXPECT_EQ(other.GetID_NAME_(), "");
  ExpectNoPaths(other);
}
