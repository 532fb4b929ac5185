#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StaticAssertTypeEq;

namespace
{

const char* const kFullText = "m_ID_NAME_: model\n"
                              "m_FILE_: duct.cas\n"
                              "m_has_SOLVER_: yes\n"
                              "m_SOLVER_: flow\n";

RecordingStorage StorageWithFullModel()
{
  RecordingStorage storage;
  auto& keys = storage.Command("MODEL_", "model");
  keys["FILE_"] = {std::string("duct.cas")};
  keys["SOLVER_"] = {std::string("flow")};
  return storage;
}

RecordingStorage StorageWithModelOf(const std::string& id, const std::string& file)
{
  RecordingStorage storage;
  storage.Command("MODEL_", id)["FILE_"] = {file};
  return storage;
}

MODEL_ FullModel()
{
  return LoadedAlone<MODEL_>(StorageWithFullModel(), "model");
}

std::string TextOf(const MODEL_& command)
{
  return LogRecordOf(command).text;
}

}  // namespace

TEST(Model, TellsItsNamesOfWhichOneIsAnotherWord)
{
  EXPECT_STREQ(MODEL_::COMMAND_NAME, "MODEL_INPUT");
  EXPECT_EQ(MODEL_::s_type, "MODEL_");
  EXPECT_EQ(MODEL_().GetType(), "MODEL_");
  EXPECT_EQ(&MODEL_().GetType(), &MODEL_::s_type);
}

TEST(Model, IsEmptyBeforeItIsLoaded)
{
  const MODEL_ command;
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetFILE_(), "");
  EXPECT_FALSE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "");
}

TEST(Model, HandsOutItsTextsWithoutCopyingThem)
{
  const MODEL_ command;
  StaticAssertTypeEq<const std::string&, decltype(command.GetType())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetID_NAME_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetFILE_())>();
  StaticAssertTypeEq<bool, decltype(command.HasSOLVER_())>();
  StaticAssertTypeEq<const std::string&, decltype(command.GetSOLVER_())>();
}

TEST(Model, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithFullModel();
  LoadedAlone<MODEL_>(storage, "model");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetValue(MODEL_, model, FILE_, 1, vtmString, string)", "HasElement(MODEL_, model, SOLVER_)",
                          "GetValue(MODEL_, model, SOLVER_, 1, vtmString, string)"));
}

TEST(Model, DoesNotReadASolverThatIsAbsent)
{
  const RecordingStorage storage = StorageWithModelOf("bare", "duct.cas");
  LoadedAlone<MODEL_>(storage, "bare");
  EXPECT_THAT(storage.Calls(),
              ElementsAre("GetValue(MODEL_, bare, FILE_, 1, vtmString, string)", "HasElement(MODEL_, bare, SOLVER_)"));
}

TEST(Model, GivesWhatItLoaded)
{
  const MODEL_ command = FullModel();
  EXPECT_EQ(command.GetID_NAME_(), "model");
  EXPECT_EQ(command.GetFILE_(), "duct.cas");
  EXPECT_TRUE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "flow");
}

TEST(Model, LoadsWithoutASolverAndThenPrintsThreeLines)
{
  const MODEL_ command = LoadedAlone<MODEL_>(StorageWithModelOf("bare", "duct.cas"), "bare");
  EXPECT_FALSE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "");
  EXPECT_EQ(TextOf(command), "m_ID_NAME_: bare\nm_FILE_: duct.cas\nm_has_SOLVER_: no\n");
}

TEST(Model, TellsAnEmptySolverFromAnAbsentOne)
{
  RecordingStorage storage = StorageWithModelOf("model", "duct.cas");
  storage.Command("MODEL_", "model")["SOLVER_"] = {std::string()};
  const MODEL_ command = LoadedAlone<MODEL_>(storage, "model");
  EXPECT_TRUE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "");
  EXPECT_EQ(TextOf(command), "m_ID_NAME_: model\nm_FILE_: duct.cas\nm_has_SOLVER_: yes\nm_SOLVER_: \n");
}

TEST(Model, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(MODEL_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 104);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|MODEL_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \nm_FILE_: \nm_has_SOLVER_: no\n");
}

TEST(Model, PrintsAllItHoldsAsPartOfAJob)
{
  LinkedJob job(StorageWithFullModel());
  const KLV_LogRecord record = LogRecordOf(job->GetMODEL_());
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:104 [%T|%n|%P|OrvelCommands|MODEL_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Model, PrintsAPercentSignInItsFileAsAConversion)
{
  EXPECT_EQ(TextOf(LoadedAlone<MODEL_>(StorageWithModelOf("model", "duct%d.cas"), "model")),
            "m_ID_NAME_: model\nm_FILE_: duct0.cas\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOf(LoadedAlone<MODEL_>(StorageWithModelOf("model", "duct%s.cas"), "model")),
            "m_ID_NAME_: model\nm_FILE_: duct.cas\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOf(LoadedAlone<MODEL_>(StorageWithModelOf("model", "full 100%%"), "model")),
            "m_ID_NAME_: model\nm_FILE_: full 100%\nm_has_SOLVER_: no\n");
}

TEST(Model, PrintsAPercentSignInItsIdAsAConversion)
{
  const MODEL_ command = LoadedAlone<MODEL_>(StorageWithModelOf("run%3d", "duct.cas"), "run%3d");
  EXPECT_EQ(command.GetID_NAME_(), "run%3d");
  EXPECT_EQ(TextOf(command), "m_ID_NAME_: run  0\nm_FILE_: duct.cas\nm_has_SOLVER_: no\n");
}

TEST(Model, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullModel();
  MODEL_ command = LoadedAlone<MODEL_>(storage, "model");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "model"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Model, IsTheEmptyOneForAnIdThatTheJobDoesNotHave)
{
  LinkedJob job(StorageWithFullModel());
  EXPECT_EQ(job->GetMODEL_("model").GetFILE_(), "duct.cas");
  const MODEL_& other = job->GetMODEL_("another");
  EXPECT_EQ(other.GetID_NAME_(), "");
  EXPECT_EQ(other.GetFILE_(), "");
  EXPECT_FALSE(other.HasSOLVER_());
}

TEST(Model, CopiesItsValues)
{
  MODEL_ original = FullModel();
  const MODEL_ copy(original);
  original.Load(StorageWithModelOf("later", "later.cas"), "later");
  EXPECT_EQ(copy.GetID_NAME_(), "model");
  EXPECT_EQ(copy.GetFILE_(), "duct.cas");
  EXPECT_TRUE(copy.HasSOLVER_());
  EXPECT_EQ(copy.GetSOLVER_(), "flow");
  EXPECT_EQ(TextOf(copy), kFullText);
}

TEST(Model, TakesAllValuesOfAnotherOne)
{
  MODEL_ command = LoadedAlone<MODEL_>(StorageWithModelOf("earlier", "earlier.cas"), "earlier");
  const MODEL_ full = FullModel();
  EXPECT_EQ(&(command = full), &command);
  EXPECT_EQ(TextOf(command), kFullText);

  command = MODEL_();
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetFILE_(), "");
  EXPECT_FALSE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "");
}

TEST(Model, KeepsItsValuesWhenItIsAssignedToItself)
{
  MODEL_ command = FullModel();
  const MODEL_& same = command;
  command = same;
  EXPECT_EQ(TextOf(command), kFullText);
}
