#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/commands/smooth_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/OpenDatabase.h"
#include "support/RecordingStorage.h"
#include "support/required_commands.h"
#include "support/VirtualSlot.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace
{

// Taken before main(), when other modules of a process may already use the library.
const std::string g_type_at_start = MODEL_::s_type;

/// A command without a type of its own.
class UntypedCommand : public OrvelCommand
{
public:
  const std::string& GetID_NAME_() const override { return m_id; }

private:
  std::string m_id = "untyped";
};

/// Shows the flag that a copy of a command carries.
class OpenModel : public MODEL_
{
public:
  using MODEL_::m_reserved_flag;
};

/// A command of each of the classes, as it was made.
template <class... Commands>
std::vector<std::unique_ptr<OrvelCommand>> OneOfEach()
{
  std::vector<std::unique_ptr<OrvelCommand>> commands;
  (commands.push_back(std::make_unique<Commands>()), ...);
  return commands;
}

RecordingStorage StorageWithModelOf(const std::string& file)
{
  RecordingStorage storage;
  storage.Command("MODEL_", "model")["FILE_"] = {file};
  return storage;
}

RecordingStorage StorageWithSolver()
{
  RecordingStorage storage = StorageWithModelOf("duct.cas");
  storage.Command("MODEL_", "model")["SOLVER_"] = {std::string("flow")};
  return storage;
}

/// What a model of this file prints.
std::string TextOfModelOf(const std::string& file)
{
  return LogRecordOf(LoadedAlone<MODEL_>(StorageWithModelOf(file), "model")).text;
}

}  // namespace

TEST(OrvelCommand, IsTheCommonBaseOfTheCommandClasses)
{
  static_assert(std::is_base_of_v<KLV_Object, OrvelCommand>);
  static_assert(std::is_abstract_v<OrvelCommand>);
  static_assert(std::has_virtual_destructor_v<OrvelCommand>);
  static_assert(std::is_copy_assignable_v<OrvelCommand>);
  static_assert(std::is_copy_constructible_v<UntypedCommand>);
  EXPECT_EQ(OrvelCommand::s_type, "OrvelCommand");
  EXPECT_EQ(UntypedCommand().GetType(), "OrvelCommand");
}

TEST(OrvelCommand, KeepsTheOrderOfItsVirtualOperations)
{
  if (!kVirtualSlotsAreReadable)
  {
    GTEST_SKIP() << "the compiler's tables of virtual operations are laid out otherwise";
  }
  EXPECT_EQ(PlaceAfterDestructor(&OrvelCommand::GetType), 1U);
  EXPECT_EQ(PlaceAfterDestructor(&OrvelCommand::GetID_NAME_), 2U);
}

TEST(OrvelCommand, TellsTheKindOfACommandOfAnyClass)
{
  const auto commands =
    OneOfEach<MODEL_, ELEMENT_GROUP_, FACE_GROUP_, NODE_GROUP_, DV_, DRESP_, OPERATOR_, OBJ_FUNC_, CONSTRAINT_, CS_,
              DV_CONSTRAINT_, MONITOR_, ALGO_, OPT_PARAM_, STOP_, MESH_SMOOTH_, FILTER_, PRE_PARAM_, AS_TOPO_OC_,
              AS_TOPO_SENS_, AS_SHAPE_SENS_, FLOWPATHS_, OUTPUT_, SCALING_CURVE_, SMOOTH_>();
  std::vector<std::string> types;
  for (const auto& command : commands)
  {
    types.push_back(command->GetType());
    EXPECT_EQ(command->GetID_NAME_(), "");
  }
  EXPECT_THAT(types,
              ElementsAreArray({"MODEL_",         "ELEMENT_GROUP_", "FACE_GROUP_", "NODE_GROUP_",    "DV_",
                                "DRESP_",         "OPERATOR_",      "OBJ_FUNC_",   "CONSTRAINT_",    "CS_",
                                "DV_CONSTRAINT_", "MONITOR_",       "ALGO_",       "OPT_PARAM_",     "STOP_",
                                "MESH_SMOOTH_",   "FILTER_",        "PRE_PARAM_",  "AS_TOPO_OC_",    "AS_TOPO_SENS_",
                                "AS_SHAPE_SENS_", "FLOWPATHS_",     "OUTPUT_",     "SCALING_CURVE_", "SMOOTH_"}));
}

TEST(OrvelCommand, TellsTheIdOfALoadedCommand)
{
  const MODEL_ model = LoadedAlone<MODEL_>(StorageWithSolver(), "model");
  const OrvelCommand& command = model;
  EXPECT_EQ(command.GetID_NAME_(), "model");
}

TEST(OrvelCommand, KnowsTheKindsBeforeTheProgramStarts)
{
  EXPECT_EQ(g_type_at_start, "MODEL_");
}

TEST(OrvelCommand, CarriesItsReservedFlagInACopy)
{
  OpenModel original;
  EXPECT_FALSE(original.m_reserved_flag);
  original.m_reserved_flag = true;
  EXPECT_TRUE(OpenModel(original).m_reserved_flag);

  OpenModel assigned;
  assigned = original;
  EXPECT_TRUE(assigned.m_reserved_flag);
  assigned = OpenModel();
  EXPECT_FALSE(assigned.m_reserved_flag);
}

TEST(OrvelCommand, LeavesItsReservedFlagAloneInAllItDoes)
{
  RecordingStorage storage = StorageWithSolver();
  for (const bool flag : {false, true})
  {
    OpenModel command;
    command.m_reserved_flag = flag;
    command.Load(storage, "model");
    LogRecordOf(command);
    EXPECT_THAT(ProblemsIn(command, storage, "model"), IsEmpty());
    EXPECT_EQ(command.m_reserved_flag, flag);
  }
}

TEST(OrvelCommand, LoadsAgainUnderItsOwnId)
{
  const RecordingStorage storage = StorageWithSolver();
  MODEL_ command = LoadedAlone<MODEL_>(storage, "model");
  command.Load(storage, command.GetID_NAME_());
  EXPECT_EQ(command.GetID_NAME_(), "model");
  EXPECT_EQ(command.GetFILE_(), "duct.cas");
}

TEST(OrvelCommand, KeepsAnOptionalValueThatASecondLoadDoesNotFind)
{
  MODEL_ command = LoadedAlone<MODEL_>(StorageWithSolver(), "model");
  command.Load(StorageWithModelOf("later.cas"), "model");
  EXPECT_EQ(command.GetFILE_(), "later.cas");
  EXPECT_FALSE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "flow");
  EXPECT_EQ(LogRecordOf(command).text, "m_ID_NAME_: model\nm_FILE_: later.cas\nm_has_SOLVER_: no\n");
}

TEST(OrvelCommand, AppendsTheValuesOfARepeatedKeyOfASecondLoad)
{
  RecordingStorage storage;
  storage.Command("NODE_GROUP_", "walls")["MERGE_"] = {std::string("left"), std::string("right")};
  NODE_GROUP_ command = LoadedAlone<NODE_GROUP_>(storage, "walls");
  command.Load(storage, "walls");
  EXPECT_EQ(command.NumMERGE_(), 2U);
  EXPECT_THAT(command.GetMERGE_(), ElementsAre("left", "right", "left", "right"));
}

TEST(OrvelCommand, IsPartlyFilledAfterAFirstReadThatFailed)
{
  RecordingStorage storage = StorageWithSolver();
  storage.FailOn("GetValue(MODEL_, model, FILE_, 1, vtmString, string)");
  MODEL_ command;
  EXPECT_THROW(command.Load(storage, "model"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "model");
  EXPECT_EQ(command.GetFILE_(), "");
  EXPECT_FALSE(command.HasSOLVER_());
  EXPECT_THAT(storage.Calls(), ElementsAre("GetValue(MODEL_, model, FILE_, 1, vtmString, string)"));
}

TEST(OrvelCommand, IsPartlyFilledAfterALaterReadThatFailed)
{
  RecordingStorage storage = StorageWithSolver();
  storage.FailOn("GetValue(MODEL_, model, SOLVER_, 1, vtmString, string)");
  MODEL_ command;
  EXPECT_THROW(command.Load(storage, "model"), FailedOnDemand);
  EXPECT_EQ(command.GetFILE_(), "duct.cas");
  EXPECT_TRUE(command.HasSOLVER_());
  EXPECT_EQ(command.GetSOLVER_(), "");
}

TEST(OrvelCommand, PassesOnThatAKeyIsAbsentWhichItReadsWithoutAsking)
{
  RecordingStorage storage;
  storage.Command("MODEL_", "model");
  MODEL_ command;
  EXPECT_THROW(command.Load(storage, "model"), AbsentFromStorage);
  EXPECT_EQ(command.GetID_NAME_(), "model");
}

TEST(OrvelCommand, KeepsADefaultOverAStorageThatDoesNotFailForAnAbsentKey)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("MODEL_", "model");
  const MODEL_ command = LoadedAlone<MODEL_>(storage, "model");
  EXPECT_EQ(command.GetID_NAME_(), "model");
  EXPECT_EQ(command.GetFILE_(), "");
}

TEST(OrvelCommand, AppendsItsProblemsBehindThoseOfOthers)
{
  RecordingStorage storage;
  storage.Command("FACE_GROUP_", "walls")["XOR_"] = {std::string("left")};
  FACE_GROUP_ command = LoadedAlone<FACE_GROUP_>(storage, "walls");
  const OpenDatabase database;
  std::vector<KLV_ParfileException> errors;
  errors.emplace_back("earlier", "value", "PARAMETER", "id", "COMMAND");
  std::string id = "walls";
  command.ValidateModelIds(storage, id, errors);
  EXPECT_THAT(ProblemsOf(errors), ElementsAre(Problem{"value", "PARAMETER", "id", "COMMAND"},
                                              Problem{"left", "XOR", "walls", "FACE_GROUP"}));
  EXPECT_EQ(id, "walls");
}

TEST(OrvelCommand, WritesOneRecordForEachCallAndNothingElse)
{
  const CapturedLog log;
  LinkedJob job(StorageWithSolver());
  EXPECT_THAT(log.Records(), IsEmpty());
  job->GetMODEL_().ToString();
  job->GetMODEL_().ToString();
  ASSERT_EQ(log.Records().size(), 2U);
  EXPECT_EQ(log.Records()[1].text, log.Records()[0].text);
}

// The lines around the file's name take 46 characters.
TEST(OrvelCommand, PrintsATextOf1023CharactersWhole)
{
  EXPECT_EQ(TextOfModelOf(std::string(977, 'x')),
            "m_ID_NAME_: model\nm_FILE_: " + std::string(977, 'x') + "\nm_has_SOLVER_: no\n");
}

TEST(OrvelCommand, CutsATextBehind1023Characters)
{
  EXPECT_EQ(TextOfModelOf(std::string(978, 'x')),
            "m_ID_NAME_: model\nm_FILE_: " + std::string(978, 'x') + "\nm_has_SOLVER_: no");
  EXPECT_EQ(TextOfModelOf(std::string(5000, 'x')), "m_ID_NAME_: model\nm_FILE_: " + std::string(996, 'x'));
}

TEST(OrvelCommand, CutsALongListInTheMiddleOfAName)
{
  RecordingStorage storage;
  storage.Command("ELEMENT_GROUP_", "g")["MERGE_"] = std::vector<StoredValue>(200, std::string("abcdefghi"));
  // 60 characters stand before the names, which take ten each.
  std::string expected = "m_ID_NAME_: g\nm_has_LIST_: no\nm_num_MERGE_: 200\nm_MERGE_: [\n";
  for (int name = 0; name < 96; ++name)
  {
    expected += "abcdefghi ";
  }
  expected += "abc";
  EXPECT_EQ(LogRecordOf(LoadedAlone<ELEMENT_GROUP_>(storage, "g")).text, expected);
}

TEST(OrvelCommand, CutsWhatIsPrintedAndNotWhatIsConverted)
{
  std::string percents;
  for (int pair = 0; pair < 977; ++pair)
  {
    percents += "%%";
  }
  EXPECT_EQ(TextOfModelOf(percents), "m_ID_NAME_: model\nm_FILE_: " + std::string(977, '%') + "\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOfModelOf("%2000d"), "m_ID_NAME_: model\nm_FILE_: " + std::string(996, ' '));
}

TEST(OrvelCommand, PrintsAPercentSignInAValueAsAConversionOfNothing)
{
  EXPECT_EQ(TextOfModelOf("%d|%5d|%-5d|%05d|%u|%x"),
            "m_ID_NAME_: model\nm_FILE_: 0|    0|0    |00000|0|0\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOfModelOf("a%sb%4sc"), "m_ID_NAME_: model\nm_FILE_: ab    c\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOfModelOf("%f|%.1f"), "m_ID_NAME_: model\nm_FILE_: 0.000000|0.0\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOfModelOf("a%nb"), "m_ID_NAME_: model\nm_FILE_: ab\nm_has_SOLVER_: no\n");
  EXPECT_EQ(TextOfModelOf("filled 50% done"), "m_ID_NAME_: model\nm_FILE_: filled 50 0one\nm_has_SOLVER_: no\n");
}

TEST(OrvelCommand, PrintsAPercentSignAtTheEndOfAValueAsItIs)
{
  EXPECT_EQ(TextOfModelOf("filled 50%"), "m_ID_NAME_: model\nm_FILE_: filled 50%\nm_has_SOLVER_: no\n");
}

TEST(OrvelCommand, PrintsAPercentSignInTheIdOfACommandReferredToAsAConversion)
{
  RecordingStorage storage;
  storage.Command("DRESP_", "drop%d");
  storage.Command("FILTER_", "fine%s");
  auto& keys = storage.Command("OBJ_FUNC_", "objective");
  keys["DRESP_"] = {Ref{"drop%d"}};
  keys["FILTER_"] = {Ref{"fine%s"}};
  LinkedJob job(std::move(storage));
  EXPECT_EQ(LogRecordOf(job->GetOBJ_FUNC_()).text, "m_ID_NAME_: objective\n"
                                                   "m_has_DRESP_: yes\n"
                                                   "m_DRESP_: drop0\n"
                                                   "m_has_OPERATOR_: no\n"
                                                   "m_TARGET_: INVALID\n"
                                                   "m_SENSSCALING_TYPE_: INVALID\n"
                                                   "m_SENSSCALING_VALUE_: 0\n"
                                                   "m_num_FILTER_: 1\n"
                                                   "m_FILTER_: [\nfine ]\n");
}

TEST(OrvelCommand, PrintsAnEmptyIdForAReferenceThatWasNeverLinked)
{
  EXPECT_EQ(LogRecordOf(MONITOR_()).text, "m_ID_NAME_: \nm_DRESP_: \n");
}

// The flag is set before the target is looked for, so that a failed job leaves it without a target.
TEST(OrvelCommand, PrintsAnEmptyIdForAReferenceWhoseTargetWasNotFound)
{
  RecordingStorage storage;
  storage.Command("OBJ_FUNC_", "objective")["DRESP_"] = {Ref{"nobody"}};
  AddRequiredCommands(storage);
  Gyre_Parfile parfile(storage);
  EXPECT_THROW(parfile.Load(), KLV_Failure);
  EXPECT_TRUE(parfile.GetOBJ_FUNC_().HasDRESP_());
  EXPECT_EQ(LogRecordOf(parfile.GetOBJ_FUNC_()).text, "m_ID_NAME_: objective\n"
                                                      "m_has_DRESP_: yes\n"
                                                      "m_DRESP_: \n"
                                                      "m_has_OPERATOR_: no\n"
                                                      "m_TARGET_: INVALID\n"
                                                      "m_SENSSCALING_TYPE_: INVALID\n"
                                                      "m_SENSSCALING_VALUE_: 0\n"
                                                      "m_num_FILTER_: 0\n"
                                                      "m_FILTER_: [\n]\n");
}

TEST(OrvelCommand, MayShareItsIdWithACommandOfAnotherKind)
{
  RecordingStorage storage;
  storage.Command("DRESP_", "same");
  storage.Command("OPERATOR_", "same");
  auto& keys = storage.Command("CONSTRAINT_", "same");
  keys["DRESP_"] = {Ref{"same"}};
  keys["OPERATOR_"] = {Ref{"same"}};
  LinkedJob job(std::move(storage));
  const CONSTRAINT_& command = job->GetCONSTRAINT_("same");
  EXPECT_EQ(command.GetDRESP_().GetType(), "DRESP_");
  EXPECT_EQ(command.GetOPERATOR_().GetType(), "OPERATOR_");
}
