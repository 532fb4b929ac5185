#include "OrvelCommands/commands/gyre_commands.h"
#include "OrvelCommands/parfile/Gyre_Parfile.h"
#include "support/accessor_types.h"
#include "support/CapturedLog.h"
#include "support/command_checks.h"
#include "support/failures.h"
#include "support/RecordingStorage.h"

#include <gmock/gmock.h>

#include <string>
#include <type_traits>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

static_assert(kReturn<CS_, const std::string&, &CS_::GetType, &CS_::GetID_NAME_>);
static_assert(kReturn<CS_, const CS_::Enum_TYPE_&, &CS_::GetTYPE_>);
static_assert(kReturn<CS_, bool, &CS_::HasX_ORIGIN_, &CS_::HasY_ORIGIN_, &CS_::HasZ_ORIGIN_>);
static_assert(kReturn<CS_, const double&, &CS_::GetX_ORIGIN_, &CS_::GetY_ORIGIN_, &CS_::GetZ_ORIGIN_>);
static_assert(kReturn<CS_, const double&, &CS_::GetX_VEC1_, &CS_::GetY_VEC1_, &CS_::GetZ_VEC1_>);
static_assert(kReturn<CS_, const double&, &CS_::GetX_VEC2_, &CS_::GetY_VEC2_, &CS_::GetZ_VEC2_>);
static_assert(kReturn<CS_, const double&, &CS_::GetX_VEC3_, &CS_::GetY_VEC3_, &CS_::GetZ_VEC3_>);

namespace
{

const char* const kFullText = "m_ID_NAME_: axis\n"
                              "m_TYPE_: CYLINDRICAL\n"
                              "m_has_X_ORIGIN_: yes\n"
                              "m_X_ORIGIN_: 1.5\n"
                              "m_has_Y_ORIGIN_: yes\n"
                              "m_Y_ORIGIN_: -2.25\n"
                              "m_has_Z_ORIGIN_: yes\n"
                              "m_Z_ORIGIN_: 3.75\n"
                              "m_X_VEC1_: 0.11\n"
                              "m_Y_VEC1_: 0.12\n"
                              "m_Z_VEC1_: 0.13\n"
                              "m_X_VEC2_: 0.21\n"
                              "m_Y_VEC2_: 0.22\n"
                              "m_Z_VEC2_: 0.23\n"
                              "m_X_VEC3_: 0.31\n"
                              "m_Y_VEC3_: 0.32\n"
                              "m_Z_VEC3_: 0.33\n";

RecordingStorage StorageWithSparseCs(const std::string& id)
{
  RecordingStorage storage;
  auto& keys = storage.Command("CS_", id);
  keys["TYPE_"] = {67};
  keys["X_VEC1_"] = {0.11};
  keys["Y_VEC1_"] = {0.12};
  keys["Z_VEC1_"] = {0.13};
  keys["X_VEC2_"] = {0.21};
  keys["Y_VEC2_"] = {0.22};
  keys["Z_VEC2_"] = {0.23};
  keys["X_VEC3_"] = {0.31};
  keys["Y_VEC3_"] = {0.32};
  keys["Z_VEC3_"] = {0.33};
  return storage;
}

RecordingStorage StorageWithFullCs()
{
  RecordingStorage storage = StorageWithSparseCs("axis");
  auto& keys = storage.Command("CS_", "axis");
  keys["X_ORIGIN_"] = {1.5};
  keys["Y_ORIGIN_"] = {-2.25};
  keys["Z_ORIGIN_"] = {3.75};
  return storage;
}

CS_ FullCs()
{
  return LoadedAlone<CS_>(StorageWithFullCs(), "axis");
}

void ExpectDefaults(const CS_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "");
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_FALSE(command.HasX_ORIGIN_());
  EXPECT_EQ(command.GetX_ORIGIN_(), 0.0);
  EXPECT_FALSE(command.HasY_ORIGIN_());
  EXPECT_EQ(command.GetY_ORIGIN_(), 0.0);
  EXPECT_FALSE(command.HasZ_ORIGIN_());
  EXPECT_EQ(command.GetZ_ORIGIN_(), 0.0);
  EXPECT_EQ(command.GetX_VEC1_(), 0.0);
  EXPECT_EQ(command.GetY_VEC1_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC1_(), 0.0);
  EXPECT_EQ(command.GetX_VEC2_(), 0.0);
  EXPECT_EQ(command.GetY_VEC2_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC2_(), 0.0);
  EXPECT_EQ(command.GetX_VEC3_(), 0.0);
  EXPECT_EQ(command.GetY_VEC3_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC3_(), 0.0);
}

void ExpectFull(const CS_& command)
{
  EXPECT_EQ(command.GetID_NAME_(), "axis");
  EXPECT_EQ(command.GetTYPE_(), CS_::TYPE_CYLINDRICAL);
  EXPECT_TRUE(command.HasX_ORIGIN_());
  EXPECT_EQ(command.GetX_ORIGIN_(), 1.5);
  EXPECT_TRUE(command.HasY_ORIGIN_());
  EXPECT_EQ(command.GetY_ORIGIN_(), -2.25);
  EXPECT_TRUE(command.HasZ_ORIGIN_());
  EXPECT_EQ(command.GetZ_ORIGIN_(), 3.75);
  EXPECT_EQ(command.GetX_VEC1_(), 0.11);
  EXPECT_EQ(command.GetY_VEC1_(), 0.12);
  EXPECT_EQ(command.GetZ_VEC1_(), 0.13);
  EXPECT_EQ(command.GetX_VEC2_(), 0.21);
  EXPECT_EQ(command.GetY_VEC2_(), 0.22);
  EXPECT_EQ(command.GetZ_VEC2_(), 0.23);
  EXPECT_EQ(command.GetX_VEC3_(), 0.31);
  EXPECT_EQ(command.GetY_VEC3_(), 0.32);
  EXPECT_EQ(command.GetZ_VEC3_(), 0.33);
}

}  // namespace

TEST(Cs, TellsItsNames)
{
  EXPECT_STREQ(CS_::COMMAND_NAME, "CS");
  EXPECT_EQ(CS_::s_type, "CS_");
  EXPECT_EQ(CS_().GetType(), "CS_");
  EXPECT_EQ(&CS_().GetType(), &CS_::s_type);
}

TEST(Cs, IsEmptyBeforeItIsLoaded)
{
  ExpectDefaults(CS_());
}

TEST(Cs, LoadsItsKeysInOrder)
{
  const RecordingStorage storage = StorageWithFullCs();
  LoadedAlone<CS_>(storage, "axis");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetEnumValue(CS_, axis, TYPE_, 1, vtmEnum)", "HasElement(CS_, axis, X_ORIGIN_)",
      "GetValue(CS_, axis, X_ORIGIN_, 1, vtmDouble, double)", "HasElement(CS_, axis, Y_ORIGIN_)",
      "GetValue(CS_, axis, Y_ORIGIN_, 1, vtmDouble, double)", "HasElement(CS_, axis, Z_ORIGIN_)",
      "GetValue(CS_, axis, Z_ORIGIN_, 1, vtmDouble, double)", "GetValue(CS_, axis, X_VEC1_, 1, vtmDouble, double)",
      "GetValue(CS_, axis, Y_VEC1_, 1, vtmDouble, double)", "GetValue(CS_, axis, Z_VEC1_, 1, vtmDouble, double)",
      "GetValue(CS_, axis, X_VEC2_, 1, vtmDouble, double)", "GetValue(CS_, axis, Y_VEC2_, 1, vtmDouble, double)",
      "GetValue(CS_, axis, Z_VEC2_, 1, vtmDouble, double)", "GetValue(CS_, axis, X_VEC3_, 1, vtmDouble, double)",
      "GetValue(CS_, axis, Y_VEC3_, 1, vtmDouble, double)", "GetValue(CS_, axis, Z_VEC3_, 1, vtmDouble, double)"));
}

TEST(Cs, DoesNotReadAnOriginThatIsAbsent)
{
  const RecordingStorage storage = StorageWithSparseCs("bare");
  LoadedAlone<CS_>(storage, "bare");
  EXPECT_THAT(
    storage.Calls(),
    ElementsAre(
      "GetEnumValue(CS_, bare, TYPE_, 1, vtmEnum)", "HasElement(CS_, bare, X_ORIGIN_)",
      "HasElement(CS_, bare, Y_ORIGIN_)", "HasElement(CS_, bare, Z_ORIGIN_)",
      "GetValue(CS_, bare, X_VEC1_, 1, vtmDouble, double)", "GetValue(CS_, bare, Y_VEC1_, 1, vtmDouble, double)",
      "GetValue(CS_, bare, Z_VEC1_, 1, vtmDouble, double)", "GetValue(CS_, bare, X_VEC2_, 1, vtmDouble, double)",
      "GetValue(CS_, bare, Y_VEC2_, 1, vtmDouble, double)", "GetValue(CS_, bare, Z_VEC2_, 1, vtmDouble, double)",
      "GetValue(CS_, bare, X_VEC3_, 1, vtmDouble, double)", "GetValue(CS_, bare, Y_VEC3_, 1, vtmDouble, double)",
      "GetValue(CS_, bare, Z_VEC3_, 1, vtmDouble, double)"));
}

TEST(Cs, GivesWhatItLoaded)
{
  ExpectFull(FullCs());
}

TEST(Cs, KeepsZeroForTheCoordinatesOfAnOriginOfWhichOnlyXIsGiven)
{
  RecordingStorage storage = StorageWithSparseCs("axis");
  storage.Command("CS_", "axis")["X_ORIGIN_"] = {1.5};
  const CS_ command = LoadedAlone<CS_>(storage, "axis");
  EXPECT_TRUE(command.HasX_ORIGIN_());
  EXPECT_EQ(command.GetX_ORIGIN_(), 1.5);
  EXPECT_FALSE(command.HasY_ORIGIN_());
  EXPECT_EQ(command.GetY_ORIGIN_(), 0.0);
  EXPECT_FALSE(command.HasZ_ORIGIN_());
  EXPECT_EQ(command.GetZ_ORIGIN_(), 0.0);
}

TEST(Cs, TakesYAndZOfAnOriginOneByOne)
{
  RecordingStorage storage = StorageWithSparseCs("axis");
  storage.Command("CS_", "axis")["Y_ORIGIN_"] = {-2.25};
  const CS_ with_y = LoadedAlone<CS_>(storage, "axis");
  EXPECT_FALSE(with_y.HasX_ORIGIN_());
  EXPECT_TRUE(with_y.HasY_ORIGIN_());
  EXPECT_EQ(with_y.GetY_ORIGIN_(), -2.25);
  EXPECT_FALSE(with_y.HasZ_ORIGIN_());

  storage = StorageWithSparseCs("axis");
  storage.Command("CS_", "axis")["Z_ORIGIN_"] = {3.75};
  const CS_ with_z = LoadedAlone<CS_>(storage, "axis");
  EXPECT_FALSE(with_z.HasX_ORIGIN_());
  EXPECT_FALSE(with_z.HasY_ORIGIN_());
  EXPECT_TRUE(with_z.HasZ_ORIGIN_());
  EXPECT_EQ(with_z.GetZ_ORIGIN_(), 3.75);
}

TEST(Cs, LoadsVectorsThatAreAllZero)
{
  RecordingStorage storage;
  auto& keys = storage.Command("CS_", "flat");
  keys["TYPE_"] = {82};
  for (const char* key :
       {"X_VEC1_", "Y_VEC1_", "Z_VEC1_", "X_VEC2_", "Y_VEC2_", "Z_VEC2_", "X_VEC3_", "Y_VEC3_", "Z_VEC3_"})
  {
    keys[key] = {0.0};
  }
  const CS_ command = LoadedAlone<CS_>(storage, "flat");
  EXPECT_EQ(command.GetTYPE_(), CS_::TYPE_CARTESIAN);
  EXPECT_EQ(command.GetX_VEC1_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC3_(), 0.0);
}

TEST(Cs, KeepsATypeThatIsNoEnumerator)
{
  RecordingStorage storage = StorageWithSparseCs("axis");
  storage.Command("CS_", "axis")["TYPE_"] = {-7};
  const CS_ command = LoadedAlone<CS_>(storage, "axis");
  EXPECT_EQ(command.GetTYPE_(), -7);
  EXPECT_THAT(LogRecordOf(command).text, HasSubstr("m_TYPE_: INVALID\n"));
}

TEST(Cs, KeepsTheEarlierOriginInASecondLoadWithoutOne)
{
  CS_ command = FullCs();
  command.Load(StorageWithSparseCs("bare"), "bare");
  EXPECT_EQ(command.GetID_NAME_(), "bare");
  EXPECT_FALSE(command.HasX_ORIGIN_());
  EXPECT_EQ(command.GetX_ORIGIN_(), 1.5);
  EXPECT_FALSE(command.HasZ_ORIGIN_());
  EXPECT_EQ(command.GetZ_ORIGIN_(), 3.75);
}

TEST(Cs, KeepsTheDefaultsOfAbsentVectorsOnAStorageThatLeavesOutputsAlone)
{
  RecordingStorage storage;
  storage.KeepOutputsOfAbsentKeys();
  storage.Command("CS_", "empty");
  const CS_ command = LoadedAlone<CS_>(storage, "empty");
  EXPECT_EQ(command.GetID_NAME_(), "empty");
  EXPECT_EQ(command.GetTYPE_(), 0);
  EXPECT_EQ(command.GetX_VEC1_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC3_(), 0.0);
}

TEST(Cs, PassesOnTheFailureOfItsStorageAndStaysPartlyFilled)
{
  RecordingStorage storage = StorageWithFullCs();
  storage.FailOn("GetValue(CS_, axis, Y_VEC1_, 1, vtmDouble, double)");
  CS_ command;
  EXPECT_THROW(command.Load(storage, "axis"), FailedOnDemand);
  EXPECT_EQ(command.GetID_NAME_(), "axis");
  EXPECT_EQ(command.GetTYPE_(), CS_::TYPE_CYLINDRICAL);
  EXPECT_TRUE(command.HasZ_ORIGIN_());
  EXPECT_EQ(command.GetX_VEC1_(), 0.11);
  EXPECT_EQ(command.GetY_VEC1_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC1_(), 0.0);
  EXPECT_EQ(command.GetZ_VEC3_(), 0.0);
}

TEST(Cs, NamesItsTypesOfWhichCartesianHasTheLetterR)
{
  ExpectEnumerators<CS_, CS_::Enum_TYPE_>({{CS_::TYPE_CYLINDRICAL, 67, "CYLINDRICAL"},
                                           {CS_::TYPE_CARTESIAN, 82, "CARTESIAN"},
                                           {CS_::TYPE_SPHERICAL, 83, "SPHERICAL"}});
  EXPECT_EQ(CS_::GetEnumName(static_cast<CS_::Enum_TYPE_>(0)), "INVALID");
  EXPECT_EQ(CS_::GetEnumName(static_cast<CS_::Enum_TYPE_>(66)), "INVALID");
}

TEST(Cs, PrintsItsDefaults)
{
  const KLV_LogRecord record = LogRecordOf(CS_());
  EXPECT_EQ(record.source, "LocalGenerated\\win_b64\\gyre_commands");
  EXPECT_EQ(record.line, 2349);
  EXPECT_EQ(record.prefix, "[%T|%n|%P|OrvelCommands|CS_] ");
  EXPECT_EQ(record.text, "m_ID_NAME_: \n"
                         "m_TYPE_: INVALID\n"
                         "m_has_X_ORIGIN_: no\n"
                         "m_has_Y_ORIGIN_: no\n"
                         "m_has_Z_ORIGIN_: no\n"
                         "m_X_VEC1_: 0\n"
                         "m_Y_VEC1_: 0\n"
                         "m_Z_VEC1_: 0\n"
                         "m_X_VEC2_: 0\n"
                         "m_Y_VEC2_: 0\n"
                         "m_Z_VEC2_: 0\n"
                         "m_X_VEC3_: 0\n"
                         "m_Y_VEC3_: 0\n"
                         "m_Z_VEC3_: 0\n");
}

TEST(Cs, PrintsTheSameBeforeAndAfterTheReferencesOfAJobAreResolved)
{
  EXPECT_EQ(LogRecordOf(FullCs()).text, kFullText);
  LinkedJob job(StorageWithFullCs());
  const KLV_LogRecord record = LogRecordOf(job->GetCS_("axis"));
  EXPECT_EQ(HeadOf(record), "LocalGenerated\\win_b64\\gyre_commands:2349 [%T|%n|%P|OrvelCommands|CS_] ");
  EXPECT_EQ(record.text, kFullText);
}

TEST(Cs, IsNotAskedForReferencesWhenAJobIsLinked)
{
  const LinkedJob job(StorageWithSparseCs("bare"));
  EXPECT_EQ(job.CallsAbout("CS_", "bare").size(), 13U);
}

TEST(Cs, PrintsAPercentSignInItsIdAsAConversion)
{
  const CS_ command = LoadedAlone<CS_>(StorageWithSparseCs("axis%d"), "axis%d");
  EXPECT_EQ(command.GetID_NAME_(), "axis%d");
  EXPECT_THAT(LogRecordOf(command).text, StartsWith("m_ID_NAME_: axis0\nm_TYPE_: CYLINDRICAL\n"));
}

TEST(Cs, HasNothingToCheckInTheModel)
{
  RecordingStorage storage = StorageWithFullCs();
  CS_ command = LoadedAlone<CS_>(storage, "axis");
  storage.ForgetCalls();
  EXPECT_THAT(ProblemsIn(command, storage, "axis"), IsEmpty());
  EXPECT_THAT(storage.Calls(), IsEmpty());
}

TEST(Cs, CopiesItsValues)
{
  CS_ original = FullCs();
  const CS_ copy(original);
  original = CS_();
  ExpectFull(copy);
}

TEST(Cs, TakesAllValuesOfAnotherOne)
{
  const CS_ full = FullCs();
  CS_ command;
  static_assert(std::is_same_v<CS_&, decltype(command = full)>);
  EXPECT_EQ(&(command = full), &command);
  ExpectFull(command);
  command = CS_();
  ExpectDefaults(command);
}

TEST(Cs, KeepsItsValuesWhenItIsAssignedToItself)
{
  CS_ command = FullCs();
  const CS_& same = command;
  command = same;
  ExpectFull(command);
}
