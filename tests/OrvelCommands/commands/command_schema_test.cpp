#include "OrvelCommands/commands/command_schema.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace schema = orvel::schema;

using schema::Count;

static_assert(schema::Commands().size() == 25);
static_assert(schema::Commands()[4].kind == "DV_");
static_assert(schema::FindCommand("DV_") == &schema::Commands()[4]);
static_assert(schema::FindCommand("DV") == nullptr);
static_assert(schema::FindCommand("DV_")->count == Count::Any);
static_assert(schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->type == vtmEnum);
static_assert(schema::FindField(*schema::FindCommand("DV_"), "SOLVER_") == nullptr);
static_assert(schema::EnumeratorName(schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->enumerators, 68) ==
              "DENSITY");
static_assert(schema::Rows<schema::Field>().empty() && schema::Rows<schema::Field>().size() == 0);
static_assert(vtmInteger == 0 && vtmModelId == 10);

namespace
{

bool IsOneSentence(std::string_view text)
{
  return text.size() > 1 && text.back() == '.' && text.find('\n') == std::string_view::npos;
}

}  // namespace

TEST(CommandSchema, FindsEachKindUnderItsExactNameOnly)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_EQ(schema::FindCommand(command.kind), &command) << command.kind;
  }
  EXPECT_EQ(schema::FindCommand("SMOOTH_")->text_name, "SMOOTH");
  EXPECT_EQ(schema::FindCommand(""), nullptr);
  EXPECT_EQ(schema::FindCommand("ALGO"), nullptr);
  EXPECT_EQ(schema::FindCommand("OPTIMIZE"), nullptr);
  EXPECT_EQ(schema::FindCommand("algo_"), nullptr);
  EXPECT_EQ(schema::FindCommand("ALGO_ "), nullptr);
}

TEST(CommandSchema, FindsAKeyInItsOwnKindOnly)
{
  const schema::Command& algorithm = *schema::FindCommand("ALGO_");
  EXPECT_EQ(schema::FindField(algorithm, "STRATEGY_"), &algorithm.fields[0]);
  EXPECT_EQ(schema::FindField(algorithm, "DEVELOPER_OUTPUT_"), &algorithm.fields[13]);
  EXPECT_EQ(schema::FindField(algorithm, "STRATEGY"), nullptr);
  EXPECT_EQ(schema::FindField(algorithm, "METHOD_"), nullptr);
  EXPECT_EQ(schema::FindField(algorithm, ""), nullptr);
}

TEST(CommandSchema, HasNoRowForTheIdOfACommandNorForFlagsAndCounts)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_EQ(schema::FindField(command, "ID_NAME_"), nullptr) << command.kind;
  }
  const schema::Command& variable = *schema::FindCommand("DV_");
  EXPECT_EQ(schema::FindField(variable, "m_has_ELEMENT_GROUP_"), nullptr);
  EXPECT_EQ(schema::FindField(variable, "num_FILTER_"), nullptr);
}

TEST(CommandSchema, NamesEnumeratorsAndCallsEveryOtherNumberInvalid)
{
  const schema::Rows<schema::Enumerator> types = schema::FindField(*schema::FindCommand("DV_"), "TYPE_")->enumerators;
  EXPECT_EQ(schema::EnumeratorName(types, 65), "AUTO");
  EXPECT_EQ(schema::EnumeratorName(types, 86), "NODAL_VECTOR");
  EXPECT_EQ(schema::EnumeratorName(types, 66), "INVALID");
  EXPECT_EQ(schema::EnumeratorName(types, 0), "INVALID");
  EXPECT_EQ(schema::EnumeratorName(types, -65), "INVALID");
  EXPECT_EQ(schema::EnumeratorName({}, 65), "INVALID");
}

TEST(CommandSchema, WalksRowsFromBeginToEnd)
{
  static constexpr schema::Enumerator kRows[] = {{"ONE", 1}, {"TWO", 2}};
  constexpr schema::Rows<schema::Enumerator> rows(kRows);
  EXPECT_EQ(rows.size(), 2U);
  EXPECT_FALSE(rows.empty());
  EXPECT_EQ(rows.begin(), &kRows[0]);
  EXPECT_EQ(rows.end(), &kRows[0] + 2);
  EXPECT_EQ(&rows[1], &kRows[1]);
}

TEST(CommandSchema, DocumentsEveryRowInOneLine)
{
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_TRUE(IsOneSentence(command.documentation)) << command.kind << ": " << command.documentation;
    for (const schema::Field& field : command.fields)
    {
      EXPECT_TRUE(IsOneSentence(field.documentation)) << command.kind << field.key << ": " << field.documentation;
    }
  }
}

TEST(CommandSchema, GivesEachTypeWhatItNeedsAndNoMore)
{
  for (const schema::Command& command : schema::Commands())
  {
    for (const schema::Field& field : command.fields)
    {
      SCOPED_TRACE(std::string(command.kind) + " " + std::string(field.key));
      EXPECT_EQ(!field.enumerators.empty(), field.type == vtmEnum);
      EXPECT_EQ(field.id_type.has_value(), field.type == vtmModelId);
      EXPECT_EQ(!field.target.empty(), field.type == vtmReference);
      EXPECT_TRUE(field.target.empty() || schema::FindCommand(field.target) != nullptr);
    }
  }
}

TEST(CommandSchema, NamesNoKindTwiceAndNoKeyTwiceWithinAKind)
{
  std::set<std::string_view> kinds;
  for (const schema::Command& command : schema::Commands())
  {
    EXPECT_TRUE(kinds.insert(command.kind).second) << command.kind;
    std::set<std::string_view> keys;
    for (const schema::Field& field : command.fields)
    {
      EXPECT_TRUE(keys.insert(field.key).second) << command.kind << " " << field.key;
    }
  }
}

TEST(CommandSchema, TellsWhichKindsAJobHasExactlyOnce)
{
  std::vector<std::string_view> single;
  for (const schema::Command& command : schema::Commands())
  {
    if (command.count == Count::One)
    {
      single.push_back(command.kind);
    }
  }
  EXPECT_EQ(single, (std::vector<std::string_view>{"MODEL_", "OBJ_FUNC_", "ALGO_", "FLOWPATHS_"}));
}
