#include "OrvelCmdEngine/OrvelCmdItemError.h"
#include "OrvelCommands/storage/OrvelParfileStorageCmdContainer.h"
#include "support/parsed_commands.h"

#include <gmock/gmock.h>

#include <limits>
#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;
using Defs = OrvelCmdDefs;
using Items = OrvelCmdItemDefs;
using Storage = OrvelParfileStorageCmdContainer;

namespace
{

constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();

// Indices that are none for a key with three values.
constexpr std::uint64_t kWrongIndices[] = {0, 4, 5, 1000000, kLargest - 1, kLargest};

constexpr int kAllVtmTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, -1, 4711};

// The text of the engine's failure.
template <class Action>
std::string ErrorOf(Action action)
{
  try
  {
    action();
  }
  catch (const OrvelCmdItemError& error)
  {
    return error.what();
  }
  return "nothing was thrown";
}

// A response "drop" whose UPDATE_ID_ is what a test gives it.
class ParsedCommandValues : public testing::Test
{
protected:
  ParsedCommandValues() : m_drop(AddParsed(m_container, Defs::DRESP, "drop")) { m_storage.emplace(m_container); }

  static constexpr Items::CmdItem kItem = Items::UPDATE_ID;
  static constexpr const char* kKey = "UPDATE_ID_";

  OrvelCmdContainer& Container() { return m_container; }
  OrvelCmd& Drop() { return m_drop; }
  KeysOf DropKeys() const { return {*m_storage, "DRESP_", "drop"}; }

private:
  OrvelCmdContainer m_container;
  OrvelCmd& m_drop;
  std::optional<Storage> m_storage;
};

// The operands and weights of an operator "sum": a DRESP "a", an OPERATOR "b" and a DRESP "c" with 1, 2 and 3.
class ParsedOperator : public testing::Test
{
protected:
  ParsedOperator()
    : m_sum(AddParsed(m_container, Defs::OPERATOR, "sum")),
      m_a(AddParsed(m_container, Defs::DRESP, "a")),
      m_b(AddParsed(m_container, Defs::OPERATOR, "b")),
      m_c(AddParsed(m_container, Defs::DRESP, "c"))
  {
  }

  void AddOperands()
  {
    for (const OrvelCmd* operand : {&m_a, &m_b, &m_c})
    {
      m_sum.AddReferenceItem(Items::REFERENCE, *operand);
    }
  }
  void AddWeights(const std::vector<double>& weights)
  {
    for (const double weight : weights)
    {
      m_sum.AddDoubleItem(Items::COEFFICIENT, weight);
    }
  }
  OrvelCmdContainer& Container() { return m_container; }
  OrvelCmd& Sum() { return m_sum; }

private:
  OrvelCmdContainer m_container;
  OrvelCmd& m_sum;
  OrvelCmd& m_a;
  OrvelCmd& m_b;
  OrvelCmd& m_c;
};

// Variables "left" and "right", and an OPTIMIZE "task" that refers to both.
class ParsedVariables : public testing::Test
{
protected:
  ParsedVariables()
    : m_left(AddParsed(m_container, Defs::DV, "left")), m_right(AddParsed(m_container, Defs::DV, "right"))
  {
    OrvelCmd& task = AddParsed(m_container, Defs::OPTIMIZE, "task");
    task.AddReferenceItem(Items::DV, m_left);
    task.AddReferenceItem(Items::DV, m_right);
  }

  OrvelCmdContainer& Container() { return m_container; }
  OrvelCmd& Left() { return m_left; }

private:
  OrvelCmdContainer m_container;
  OrvelCmd& m_left;
  OrvelCmd& m_right;
};

std::vector<std::string> ReferencesOf(const Storage& storage, const std::string& kind, const std::string& id,
                                      const std::string& key)
{
  const KeysOf keys(storage, kind, id);
  std::vector<std::string> targets;
  for (std::uint64_t index = 1; index <= keys.Count(key); ++index)
  {
    targets.push_back(keys.Reference(key, index));
  }
  return targets;
}

std::vector<double> DoublesOf(const Storage& storage, const std::string& kind, const std::string& id,
                              const std::string& key)
{
  const KeysOf keys(storage, kind, id);
  std::vector<double> values;
  for (std::uint64_t index = 1; index <= keys.Count(key); ++index)
  {
    values.push_back(keys.Double(key, index));
  }
  return values;
}

OrvelCmd& AddGroupOfTexts(OrvelCmdContainer& container, const std::vector<std::string>& texts)
{
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, "pipes");
  group.AddEnumItem(Items::TYPE, Items::GROUP_TYPE_ELEMENT);
  group.AddEnumItem(Items::FORMAT, Items::GROUP_FORMAT_MERGE);
  group.AddStringListItem(Items::LIST_BEGIN, texts);
  return group;
}

KeysOf GroupKeys(const Storage& storage)
{
  return {storage, "ELEMENT_GROUP_", "pipes"};
}

}  // namespace

// What is absent.

TEST_F(ParsedCommandValues, KeepsIntegerDoubleAndTextOfAnUnknownKey)
{
  EXPECT_EQ(DropKeys().Integer("FACE_GROUP_ADD_"), -4711);
  EXPECT_EQ(DropKeys().Double("FACE_GROUP_ADD_"), -47.11);
  EXPECT_EQ(DropKeys().Text("FACE_GROUP_ADD_"), "kept");
}

TEST_F(ParsedCommandValues, ZeroesTheEnumeratorAndEmptiesReferenceAndIntegersOfAnUnknownKey)
{
  EXPECT_EQ(DropKeys().Enumerator("FACE_GROUP_ADD_"), 0);
  EXPECT_EQ(DropKeys().Reference("FACE_GROUP_ADD_"), "");
  EXPECT_THAT(DropKeys().Integers("FACE_GROUP_ADD_"), IsEmpty());
}

TEST_F(ParsedCommandValues, TreatsAKnownKeyWithoutItemLikeAnUnknownOne)
{
  EXPECT_FALSE(DropKeys().Has(kKey));
  EXPECT_EQ(DropKeys().Count(kKey), 0U);
  EXPECT_EQ(DropKeys().Integer(kKey), -4711);
  EXPECT_EQ(DropKeys().Double(kKey), -47.11);
  EXPECT_EQ(DropKeys().Text(kKey), "kept");
  EXPECT_EQ(DropKeys().Enumerator(kKey), 0);
  EXPECT_EQ(DropKeys().Reference(kKey), "");
  EXPECT_THAT(DropKeys().Integers(kKey), IsEmpty());
}

TEST_F(ParsedCommandValues, ReadsNoKeyThatTheTablesLackWhateverTheCommandHolds)
{
  Drop().AddStringItem(Items::FACE_GROUP, "walls");
  Drop().AddStringItem(Items::ADD_FILE, "more");
  EXPECT_FALSE(DropKeys().Has("FACE_GROUP_ADD_"));
  EXPECT_EQ(DropKeys().Count("FACE_GROUP_ADD_"), 0U);
  EXPECT_EQ(DropKeys().Text("FACE_GROUP_ADD_", 1, vtmModelId), "kept");
  EXPECT_FALSE(DropKeys().Has("FACE_GROUP_"));
}

TEST_F(ParsedCommandValues, ReadsNothingOfAnUnknownNameOrKind)
{
  Drop().AddIntegerItem(kItem, 7);
  const Storage storage(Container());
  for (const auto& [kind, id] : {std::pair{"DRESP_", "drop "}, {"DRESP_", ""}, {"OPERATOR_", "drop"}, {"x", "drop"}})
  {
    const KeysOf keys(storage, kind, id);
    EXPECT_FALSE(keys.Has(kKey));
    EXPECT_EQ(keys.Count(kKey), 0U);
    EXPECT_EQ(keys.Integer(kKey), -4711);
    EXPECT_EQ(keys.Text(kKey), "kept");
    EXPECT_EQ(keys.Enumerator(kKey), 0);
    EXPECT_EQ(keys.Reference(kKey), "");
  }
}

// The readers.

TEST_F(ParsedCommandValues, ReadsTheTextOfTheFirstItem)
{
  Drop().AddStringItem(Items::UPDATE_ID, "dp");
  EXPECT_EQ(DropKeys().Text("UPDATE_ID_"), "dp");
}

TEST_F(ParsedCommandValues, ReadsEachOfSeveralItemsByItsIndexFromOne)
{
  Drop().AddIntegerItem(kItem, 7);
  Drop().AddIntegerItem(kItem, 8);
  Drop().AddIntegerItem(kItem, 9);
  EXPECT_TRUE(DropKeys().Has(kKey));
  EXPECT_EQ(DropKeys().Count(kKey), 3U);
  EXPECT_EQ(DropKeys().Integer(kKey, 1), 7);
  EXPECT_EQ(DropKeys().Integer(kKey, 2), 8);
  EXPECT_EQ(DropKeys().Integer(kKey, 3), 9);
}

TEST_F(ParsedCommandValues, ReadsAnIntegerAsEveryKindOfNumberAndAsText)
{
  Drop().AddIntegerItem(kItem, std::numeric_limits<int>::min());
  EXPECT_EQ(DropKeys().Integer(kKey), -2147483647 - 1);
  EXPECT_EQ(DropKeys().Double(kKey), -2147483648.0);
  EXPECT_EQ(DropKeys().Enumerator(kKey), -2147483647 - 1);
  EXPECT_EQ(DropKeys().Text(kKey), "-2147483648");
}

TEST_F(ParsedCommandValues, ReadsADoubleAsItselfAndAsText)
{
  Drop().AddDoubleItem(kItem, 2.75);
  EXPECT_EQ(DropKeys().Double(kKey), 2.75);
  EXPECT_EQ(DropKeys().Text(kKey), "2.75");
}

TEST_F(ParsedCommandValues, PassesAnEnumeratorOnAsItsNumber)
{
  for (const int number : {1005, 0, -3, 65})
  {
    Drop().AddEnumItem(kItem, Enumerator(number));
  }
  EXPECT_EQ(DropKeys().Enumerator(kKey, 1), 1005);
  EXPECT_EQ(DropKeys().Enumerator(kKey, 2), 0);
  EXPECT_EQ(DropKeys().Enumerator(kKey, 3), -3);
  EXPECT_EQ(DropKeys().Enumerator(kKey, 4), 65);
}

TEST_F(ParsedCommandValues, ReadsAReferenceAlikeAsReferenceAndAsText)
{
  Drop().AddReferenceItem(kItem, AddParsed(Container(), Defs::REPORT, "target"));
  EXPECT_EQ(DropKeys().Reference(kKey), "target");
  EXPECT_EQ(DropKeys().Text(kKey), "target");
}

TEST_F(ParsedCommandValues, GivesNoReferenceForAnItemThatIsNone)
{
  Drop().AddStringItem(kItem, "target");
  Drop().AddIntegerItem(kItem, 7);
  Drop().AddStringListItem(kItem, {"target"});
  Drop().AddIntegerSetItem(kItem, {7});
  for (const std::uint64_t index : {1, 2, 3, 4})
  {
    EXPECT_EQ(DropKeys().Reference(kKey, index), "");
  }
}

TEST_F(ParsedCommandValues, GivesTheEmptyTextForAReferenceToACommandThatWasRemovedOrHasNoName)
{
  Drop().AddReferenceItem(kItem, AddParsed(Container(), Defs::REPORT, "gone"));
  Drop().AddReferenceItem(kItem, Container().AddCommand(Defs::REPORT));
  Container().RemoveCommand(Defs::REPORT, 0);
  EXPECT_EQ(DropKeys().Count(kKey), 2U);
  EXPECT_EQ(DropKeys().Reference(kKey, 1), "");
  EXPECT_EQ(DropKeys().Reference(kKey, 2), "");
  EXPECT_EQ(DropKeys().Text(kKey, 1), "");
}

TEST_F(ParsedCommandValues, ReadsASetOfIntegersWholeInAscendingOrder)
{
  Drop().AddIntegerSetItem(kItem, {9, -2, 5});
  Drop().AddIntegerSetItem(kItem, {});
  Drop().AddIntegerSetItem(kItem, {1});
  EXPECT_EQ(DropKeys().Count(kKey), 3U);
  EXPECT_THAT(DropKeys().Integers(kKey, 1), ElementsAre(-2, 5, 9));
  EXPECT_THAT(DropKeys().Integers(kKey, 2), IsEmpty());
  EXPECT_THAT(DropKeys().Integers(kKey, 3), ElementsAre(1));
}

TEST_F(ParsedCommandValues, EmptiesTheIntegersForAnItemThatIsNoSet)
{
  Drop().AddIntegerItem(kItem, 7);
  Drop().AddStringItem(kItem, "7 8");
  Drop().AddStringListItem(kItem, {"7", "8"});
  for (const std::uint64_t index : {1, 2, 3})
  {
    EXPECT_THAT(DropKeys().Integers(kKey, index), IsEmpty());
  }
}

TEST_F(ParsedCommandValues, ReadsTheTextOfAListAtTheIndexThatChoseTheList)
{
  Drop().AddStringListItem(kItem, {"a1", "a2"});
  Drop().AddStringListItem(kItem, {"b1", "b2"});
  Drop().AddStringListItem(kItem, {"c1", "c2"});
  EXPECT_EQ(DropKeys().Count(kKey), 3U);
  EXPECT_EQ(DropKeys().Text(kKey, 1), "a1");
  EXPECT_EQ(DropKeys().Text(kKey, 2), "b2");
  EXPECT_EQ(DropKeys().Text(kKey, 3), "c1 c2");
}

TEST_F(ParsedCommandValues, ReplacesWhatTheOutputsHeld)
{
  Drop().AddStringItem(kItem, "");
  std::string text(1000, 'x');
  const Storage storage(Container());
  storage.GetValue("DRESP_", "drop", kKey, 1, vtmString, text);
  EXPECT_EQ(text, "");
}

TEST_F(ParsedCommandValues, IgnoresTheVtmTypeInEveryRead)
{
  Drop().AddStringItem(Items::UPDATE_ID, "dp");
  Drop().AddIntegerItem(Items::LOADCASE, 7);
  Drop().AddEnumItem(Items::TYPE, Enumerator(1001));
  Drop().AddIntegerSetItem(Items::FILE, {3, 4});
  Drop().AddDoubleItem(Items::CS, 2.75);
  for (const int number : kAllVtmTypes)
  {
    SCOPED_TRACE(number);
    const auto type = static_cast<VtmType>(number);
    EXPECT_EQ(DropKeys().Text("UPDATE_ID_", 1, type), "dp");
    EXPECT_EQ(DropKeys().Integer("LOADCASE_", 1, type), 7);
    EXPECT_EQ(DropKeys().Double("CS_REF_", 1, type), 2.75);
    EXPECT_EQ(DropKeys().Enumerator("TYPE_", 1, type), 1001);
    EXPECT_THAT(DropKeys().Integers("FILE_", 1, type), ElementsAre(3, 4));
    EXPECT_THAT(DropKeys().Doubles("CS_REF_", 1, type), ElementsAre(-4.7, -1.1));
  }
}

// Indices outside 1 to the number of values.

TEST_F(ParsedCommandValues, ReadsNothingAtAnIndexThatIsNone)
{
  Drop().AddIntegerItem(kItem, 7);
  Drop().AddIntegerItem(kItem, 8);
  Drop().AddIntegerItem(kItem, 9);
  for (const std::uint64_t index : kWrongIndices)
  {
    SCOPED_TRACE(index);
    EXPECT_EQ(DropKeys().Integer(kKey, index), -4711);
    EXPECT_EQ(DropKeys().Double(kKey, index), -47.11);
    EXPECT_EQ(DropKeys().Text(kKey, index), "kept");
    EXPECT_EQ(DropKeys().Enumerator(kKey, index), 0);
  }
}

TEST_F(ParsedCommandValues, ReadsNoReferenceAtAnIndexThatIsNone)
{
  for (const char* id : {"a", "b", "c"})
  {
    Drop().AddReferenceItem(kItem, AddParsed(Container(), Defs::REPORT, id));
  }
  for (const std::uint64_t index : kWrongIndices)
  {
    EXPECT_EQ(DropKeys().Reference(kKey, index), "") << index;
  }
}

TEST_F(ParsedCommandValues, ReadsNoIntegersAtAnIndexThatIsNone)
{
  for (const int number : {1, 2, 3})
  {
    Drop().AddIntegerSetItem(kItem, {number});
  }
  for (const std::uint64_t index : kWrongIndices)
  {
    EXPECT_THAT(DropKeys().Integers(kKey, index), IsEmpty()) << index;
  }
}

TEST_F(ParsedCommandValues, ReadsNoTextOfAListAtAnIndexThatIsNone)
{
  for (const char* text : {"a", "b", "c"})
  {
    Drop().AddStringListItem(kItem, {text, text, text, text, text, text});
  }
  for (const std::uint64_t index : kWrongIndices)
  {
    EXPECT_EQ(DropKeys().Text(kKey, index), "kept") << index;
  }
}

TEST_F(ParsedOperator, ReadsNothingAtAnIndexThatIsNone)
{
  AddOperands();
  AddWeights({1, 2, 3});
  const Storage storage(Container());
  const KeysOf keys(storage, "OPERATOR_", "sum");
  for (const std::uint64_t index : {std::uint64_t(0), std::uint64_t(3), kLargest})
  {
    EXPECT_EQ(keys.Reference("DRESP_", index), "") << index;
    EXPECT_EQ(keys.Double("DRESP_WEIGHT_", index), -47.11) << index;
  }
}

// The lists of groups.

TEST(ParsedCommandLists, CountAndReadTheTextsWithinTheOneItem)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {"inlet", "outlet", "bend"});
  const Storage storage(container);
  EXPECT_TRUE(GroupKeys(storage).Has("MERGE_"));
  EXPECT_EQ(GroupKeys(storage).Count("MERGE_"), 3U);
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 1), "inlet");
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 2), "outlet");
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 3), "bend");
}

TEST(ParsedCommandLists, ReadAsTheWholeListAtAnIndexThatIsNone)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {"inlet", "outlet", "bend"});
  const Storage storage(container);
  for (const std::uint64_t index : kWrongIndices)
  {
    EXPECT_EQ(GroupKeys(storage).Text("MERGE_", index), "inlet outlet bend") << index;
  }
}

TEST(ParsedCommandLists, ArePresentWithoutElementsWhenEmpty)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {});
  const Storage storage(container);
  EXPECT_TRUE(GroupKeys(storage).Has("MERGE_"));
  EXPECT_EQ(GroupKeys(storage).Count("MERGE_"), 0U);
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 1), "");
}

TEST(ParsedCommandLists, CountTheFirstOfSeveralLists)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {"a", "b"}).AddStringListItem(Items::LIST_BEGIN, {"c", "d", "e"});
  const Storage storage(container);
  EXPECT_EQ(GroupKeys(storage).Count("MERGE_"), 2U);
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 2), "b");
}

TEST(ParsedCommandLists, GiveWayToSingleTextsWhereTheFirstItemIsOne)
{
  OrvelCmdContainer container;
  OrvelCmd& group = AddParsed(container, Defs::GROUP_DEF, "pipes");
  group.AddEnumItem(Items::FORMAT, Items::GROUP_FORMAT_MERGE);
  group.AddStringItem(Items::LIST_BEGIN, "a");
  group.AddStringListItem(Items::LIST_BEGIN, {"b1", "b2"});
  const Storage storage(container);
  EXPECT_EQ(GroupKeys(storage).Count("MERGE_"), 2U);
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 1), "a");
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 2), "b2");
  EXPECT_EQ(GroupKeys(storage).Text("MERGE_", 3), "kept");
}

TEST(ParsedCommandLists, AreNoReferencesAndNoIntegers)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {"1", "2"});
  const Storage storage(container);
  EXPECT_EQ(GroupKeys(storage).Reference("MERGE_"), "");
  EXPECT_THAT(GroupKeys(storage).Integers("MERGE_"), IsEmpty());
}

TEST(ParsedCommandLists, FailInTheEngineWhenReadAsNumbersAtAnyIndex)
{
  OrvelCmdContainer container;
  AddGroupOfTexts(container, {"1", "2"});
  const Storage storage(container);
  for (const std::uint64_t index : {std::uint64_t(0), std::uint64_t(1), kLargest})
  {
    EXPECT_EQ(ErrorOf([&] { GroupKeys(storage).Integer("MERGE_", index); }),
              "Item LIST_BEGIN holds a list of texts (1 2) and cannot be read as an integer.");
    EXPECT_EQ(ErrorOf([&] { GroupKeys(storage).Double("MERGE_", index); }),
              "Item LIST_BEGIN holds a list of texts (1 2) and cannot be read as a double.");
    EXPECT_EQ(ErrorOf([&] { GroupKeys(storage).Enumerator("MERGE_", index); }),
              "Item LIST_BEGIN holds a list of texts (1 2) and cannot be read as an enumerator.");
  }
}

// Items of the wrong type.

TEST_F(ParsedCommandValues, FailsInTheEngineForATextReadAsANumber)
{
  Drop().AddStringItem(kItem, "7");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Integer(kKey); }),
            "Item UPDATE_ID holds a text (7) and cannot be read as an integer.");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Double(kKey); }),
            "Item UPDATE_ID holds a text (7) and cannot be read as a double.");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Enumerator(kKey); }),
            "Item UPDATE_ID holds a text (7) and cannot be read as an enumerator.");
}

TEST_F(ParsedCommandValues, FailsInTheEngineForADoubleReadAsAnIntegerOrEnumerator)
{
  Drop().AddDoubleItem(kItem, 2.5);
  EXPECT_EQ(ErrorOf([&] { DropKeys().Integer(kKey); }),
            "Item UPDATE_ID holds a double (2.5) and cannot be read as an integer.");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Enumerator(kKey); }),
            "Item UPDATE_ID holds a double (2.5) and cannot be read as an enumerator.");
}

TEST_F(ParsedCommandValues, FailsInTheEngineForASetOfIntegersReadAsANumber)
{
  Drop().AddIntegerSetItem(kItem, {7});
  EXPECT_EQ(ErrorOf([&] { DropKeys().Integer(kKey); }),
            "Item UPDATE_ID holds a set of integers (7) and cannot be read as an integer.");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Double(kKey); }),
            "Item UPDATE_ID holds a set of integers (7) and cannot be read as a double.");
}

TEST_F(ParsedCommandValues, FailsInTheEngineForAReferenceReadAsANumber)
{
  Drop().AddReferenceItem(kItem, AddParsed(Container(), Defs::REPORT, "target"));
  EXPECT_EQ(ErrorOf([&] { DropKeys().Integer(kKey); }),
            "Item UPDATE_ID holds a reference (target) and cannot be read as an integer.");
  EXPECT_EQ(ErrorOf([&] { DropKeys().Enumerator(kKey); }),
            "Item UPDATE_ID holds a reference (target) and cannot be read as an enumerator.");
}

TEST_F(ParsedCommandValues, LeavesTheOutputsAloneWhenTheEngineFails)
{
  Drop().AddStringItem(kItem, "text");
  const Storage storage(Container());
  int integer = 1;
  EXPECT_THROW(storage.GetValue("DRESP_", "drop", kKey, 1, vtmInteger, integer), OrvelCmdItemError);
  EXPECT_EQ(integer, 1);
  double real = 1.5;
  EXPECT_THROW(storage.GetValue("DRESP_", "drop", kKey, 1, vtmDouble, real), OrvelCmdItemError);
  EXPECT_EQ(real, 1.5);
  int enumerator = 1;
  EXPECT_THROW(storage.GetEnumValue("DRESP_", "drop", kKey, 1, vtmEnum, enumerator), OrvelCmdItemError);
  EXPECT_EQ(enumerator, 0);
}

TEST_F(ParsedCommandValues, WorksOnAfterTheEngineFailed)
{
  Drop().AddStringItem(kItem, "text");
  EXPECT_THROW(DropKeys().Integer(kKey), OrvelCmdItemError);
  EXPECT_EQ(DropKeys().Text(kKey), "text");
  EXPECT_EQ(DropKeys().Count(kKey), 1U);
}

TEST_F(ParsedCommandValues, ReadsNoTypeWhereNoItemIsChosen)
{
  Drop().AddStringItem(kItem, "text");
  EXPECT_EQ(DropKeys().Integer(kKey, 2), -4711);
}

// Keys that pick from lists side by side.

TEST_F(ParsedOperator, SplitsOperandsAndWeightsByTheKindOfTheOperand)
{
  AddOperands();
  AddWeights({1, 2, 3});
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "DRESP_"), ElementsAre("a", "c"));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "DRESP_WEIGHT_"), ElementsAre(1, 3));
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "OPERATOR_"), ElementsAre("b"));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "OPERATOR_WEIGHT_"), ElementsAre(2));
}

TEST_F(ParsedOperator, EndsTheWeightsWhereTheirListEnds)
{
  AddOperands();
  AddWeights({1, 2});
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "DRESP_"), ElementsAre("a", "c"));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "DRESP_WEIGHT_"), ElementsAre(1));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "OPERATOR_WEIGHT_"), ElementsAre(2));
}

TEST_F(ParsedOperator, PassesOverWeightsWithoutOperand)
{
  AddOperands();
  AddWeights({1, 2, 3, 4, 5});
  const Storage storage(Container());
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "DRESP_WEIGHT_"), ElementsAre(1, 3));
}

TEST_F(ParsedOperator, HasNoWeightsWithoutOperandsAndNoOperandsWithoutReferences)
{
  AddWeights({1, 2, 3});
  const Storage storage(Container());
  for (const char* key : {"DRESP_", "DRESP_WEIGHT_", "OPERATOR_", "OPERATOR_WEIGHT_"})
  {
    EXPECT_FALSE(KeysOf(storage, "OPERATOR_", "sum").Has(key)) << key;
    EXPECT_EQ(KeysOf(storage, "OPERATOR_", "sum").Count(key), 0U) << key;
  }
}

TEST_F(ParsedOperator, PassesOverOperandsThatAreNoReferenceOrReferToAnotherKind)
{
  Sum().AddStringItem(Items::REFERENCE, "a");
  Sum().AddReferenceItem(Items::REFERENCE, AddParsed(Container(), Defs::DV, "variable"));
  AddOperands();
  AddWeights({1, 2, 3, 4, 5});
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "DRESP_"), ElementsAre("a", "c"));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "DRESP_WEIGHT_"), ElementsAre(3, 5));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "OPERATOR_WEIGHT_"), ElementsAre(4));
}

TEST_F(ParsedOperator, PassesOverAnOperandThatWasRemoved)
{
  AddOperands();
  AddWeights({1, 2, 3});
  Container().RemoveCommand(Defs::DRESP, 0);
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "DRESP_"), ElementsAre("c"));
  EXPECT_THAT(DoublesOf(storage, "OPERATOR_", "sum", "DRESP_WEIGHT_"), ElementsAre(3));
}

TEST_F(ParsedOperator, MayReferToItself)
{
  Sum().AddReferenceItem(Items::REFERENCE, Sum());
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "OPERATOR_", "sum", "OPERATOR_"), ElementsAre("sum"));
}

TEST_F(ParsedOperator, ReadsNothingUnderAnUnknownName)
{
  AddOperands();
  AddWeights({1, 2, 3});
  const Storage storage(Container());
  EXPECT_FALSE(KeysOf(storage, "OPERATOR_", "none").Has("DRESP_"));
  EXPECT_EQ(KeysOf(storage, "OPERATOR_", "none").Double("DRESP_WEIGHT_"), -47.11);
}

// Keys of the command that OPTIMIZE refers to.

TEST(ParsedUpdateParameters, AreReadWithoutAnyOptParam)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::VALUE, 0.1);
  update.AddDoubleItem(Items::VALUE, 0.2);
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  const Storage storage(container);
  for (const char* id : {"", "settings", "update"})
  {
    const KeysOf keys(storage, "OPT_PARAM_", id);
    EXPECT_TRUE(keys.Has("MOVE_"));
    EXPECT_EQ(keys.Count("MOVE_"), 2U);
    EXPECT_EQ(keys.Double("MOVE_", 1), 0.1);
    EXPECT_EQ(keys.Double("MOVE_", 2), 0.2);
    EXPECT_EQ(keys.Double("MOVE_", 0), -47.11);
    EXPECT_EQ(keys.Double("MOVE_", 3), -47.11);
  }
}

TEST(ParsedUpdateParameters, AreReadUnderAnUnknownNameWhereDirectKeysReadNothing)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::VALUE, 0.1);
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  AddParsed(container, Defs::STOP, "end").AddIntegerItem(Items::ITER_MAX, 80);
  const Storage storage(container);
  EXPECT_EQ(KeysOf(storage, "AS_TOPO_SENS_", "none").Double("MOVE_"), 0.1);
  EXPECT_EQ(KeysOf(storage, "STOP_", "none").Integer("ITER_MAX_"), -4711);
}

TEST(ParsedUpdateParameters, AreAbsentWithoutAnOptimize)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DV_UPDATE_PARAM, "update").AddDoubleItem(Items::VALUE, 0.1);
  const Storage storage(container);
  EXPECT_FALSE(KeysOf(storage, "OPT_PARAM_", "").Has("MOVE_"));
  EXPECT_EQ(KeysOf(storage, "OPT_PARAM_", "").Double("MOVE_"), -47.11);
}

TEST(ParsedUpdateParameters, AreAbsentWhenOptimizeRefersToNone)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::DV_UPDATE_PARAM, "update").AddDoubleItem(Items::VALUE, 0.1);
  AddParsed(container, Defs::OPTIMIZE, "task");
  const Storage storage(container);
  const KeysOf keys(storage, "OPT_PARAM_", "");
  EXPECT_FALSE(keys.Has("MOVE_"));
  EXPECT_EQ(keys.Count("MOVE_"), 0U);
  EXPECT_EQ(keys.Double("MOVE_"), -47.11);
  EXPECT_EQ(keys.Enumerator("ALGORITHM_"), 0);
}

TEST(ParsedUpdateParameters, AreAbsentWhenOptimizeNamesThemByTextOnly)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::VALUE, 0.1);
  OrvelCmd& optimize = AddParsed(container, Defs::OPTIMIZE, "task");
  optimize.AddStringItem(Items::DV_UPDATE_PARAM, "update");
  optimize.AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  EXPECT_FALSE(KeysOf(Storage(container), "OPT_PARAM_", "").Has("MOVE_"));
}

TEST(ParsedUpdateParameters, AreAbsentWhenTheirCommandLacksTheItem)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::MIN, 0.1);
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  const Storage storage(container);
  EXPECT_TRUE(KeysOf(storage, "OPT_PARAM_", "").Has("MIN_"));
  EXPECT_FALSE(KeysOf(storage, "OPT_PARAM_", "").Has("MOVE_"));
}

TEST(ParsedUpdateParameters, AreAbsentWhenTheirCommandWasRemoved)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::VALUE, 0.1);
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  const Storage storage(container);
  ASSERT_TRUE(KeysOf(storage, "OPT_PARAM_", "").Has("MOVE_"));
  container.RemoveCommand(Defs::DV_UPDATE_PARAM, 0);
  EXPECT_FALSE(KeysOf(storage, "OPT_PARAM_", "").Has("MOVE_"));
}

TEST(ParsedUpdateParameters, ComeFromTheFirstReferenceOfTheFirstOptimize)
{
  OrvelCmdContainer container;
  OrvelCmd& first = AddParsed(container, Defs::OPTIMIZE, "first");
  OrvelCmd& second = AddParsed(container, Defs::OPTIMIZE, "second");
  for (const double move : {0.1, 0.2, 0.3})
  {
    OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
    update.AddDoubleItem(Items::VALUE, move);
    (move > 0.25 ? second : first).AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  }
  const Storage storage(container);
  EXPECT_THAT(DoublesOf(storage, "OPT_PARAM_", "", "MOVE_"), ElementsAre(0.1));
}

TEST(ParsedUpdateParameters, AreAbsentAfterTheFirstOptimizeWasRemoved)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddDoubleItem(Items::VALUE, 0.1);
  AddParsed(container, Defs::OPTIMIZE, "first").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  AddParsed(container, Defs::OPTIMIZE, "second").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  container.RemoveCommand(Defs::OPTIMIZE, 0);
  EXPECT_FALSE(KeysOf(Storage(container), "OPT_PARAM_", "").Has("MOVE_"));
}

TEST(ParsedUpdateParameters, FailInTheEngineWhenTheyAreOfTheWrongType)
{
  OrvelCmdContainer container;
  OrvelCmd& update = AddParsed(container, Defs::DV_UPDATE_PARAM, "update");
  update.AddStringItem(Items::LOWER, "low");
  AddParsed(container, Defs::OPTIMIZE, "task").AddReferenceItem(Items::DV_UPDATE_PARAM, update);
  const Storage storage(container);
  EXPECT_EQ(ErrorOf([&] { KeysOf(storage, "OPT_PARAM_", "").Double("ASYM_MOVE_LOW_"); }),
            "Item LOWER holds a text (low) and cannot be read as a double.");
}

// The design variables of OPTIMIZE.

TEST_F(ParsedVariables, AppearToOptimizeAsOneReferenceToTheMergedOne)
{
  const Storage storage(Container());
  const KeysOf task(storage, "ALGO_", "task");
  EXPECT_TRUE(task.Has("DV_"));
  EXPECT_EQ(task.Count("DV_"), 1U);
  EXPECT_EQ(task.Reference("DV_", 1), "__v_merged_DV");
  EXPECT_EQ(task.Text("DV_", 1), "__v_merged_DV");
  EXPECT_THAT(task.Integers("DV_", 1), IsEmpty());
}

TEST_F(ParsedVariables, AppearToOptimizeAtNoOtherIndex)
{
  const Storage storage(Container());
  for (const std::uint64_t index : {std::uint64_t(0), std::uint64_t(2), kLargest})
  {
    EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_", index), "") << index;
    EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Text("DV_", index), "kept") << index;
  }
}

TEST_F(ParsedVariables, FailInTheEngineWhenReadAsANumber)
{
  const Storage storage(Container());
  for (int repetition = 0; repetition < 3; ++repetition)
  {
    EXPECT_EQ(ErrorOf([&] { KeysOf(storage, "ALGO_", "task").Integer("DV_"); }),
              "Item REFERENCE holds a reference (__v_merged_DV) and cannot be read as an integer.");
  }
}

TEST_F(ParsedVariables, ReadTheSameInEveryOfManyReads)
{
  const Storage storage(Container());
  for (int repetition = 0; repetition < 1000; ++repetition)
  {
    ASSERT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_"), "__v_merged_DV");
  }
  EXPECT_EQ(Container().GetNumberOfCommands(Defs::DV), 2U);
}

TEST_F(ParsedVariables, AreTheMembersOfTheMergedOne)
{
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "DV_", "__v_merged_DV", "DV_"), ElementsAre("left", "right"));
  EXPECT_EQ(KeysOf(storage, "DV_", "__v_merged_DV").Reference("DV_", 0), "");
  EXPECT_EQ(KeysOf(storage, "DV_", "__v_merged_DV").Reference("DV_", 3), "");
}

TEST_F(ParsedVariables, AreTheMembersUnderEveryNameThatNoVariableHas)
{
  const Storage storage(Container());
  EXPECT_THAT(ReferencesOf(storage, "DV_", "no such variable", "DV_"), ElementsAre("left", "right"));
  EXPECT_FALSE(KeysOf(storage, "DV_", "no such variable").Has("TYPE_"));
}

TEST_F(ParsedVariables, HaveTheirOwnMembersAndNotThoseOfTheMergedOne)
{
  const Storage storage(Container());
  EXPECT_FALSE(KeysOf(storage, "DV_", "left").Has("DV_"));
  EXPECT_EQ(KeysOf(storage, "DV_", "left").Count("DV_"), 0U);
}

TEST_F(ParsedVariables, AreReadOneByOneUnderTheirOwnNames)
{
  Left().AddDoubleItem(Items::VALUE, 0.4);
  const Storage storage(Container());
  EXPECT_EQ(KeysOf(storage, "DV_", "left").Double("INITIAL_"), 0.4);
  EXPECT_EQ(KeysOf(storage, "DV_", "right").Double("INITIAL_"), -47.11);
  EXPECT_EQ(KeysOf(storage, "DV_", "__v_merged_DV").Double("INITIAL_"), -47.11);
}

TEST_F(ParsedVariables, AppearMergedToEveryOptimizeBehindTheFirst)
{
  AddParsed(Container(), Defs::OPTIMIZE, "second").AddReferenceItem(Items::DV, Left());
  AddParsed(Container(), Defs::OPTIMIZE, "third");
  const Storage storage(Container());
  EXPECT_EQ(KeysOf(storage, "ALGO_", "second").Reference("DV_"), "__v_merged_DV");
  EXPECT_EQ(KeysOf(storage, "ALGO_", "third").Reference("DV_"), "__v_merged_DV");
}

TEST_F(ParsedVariables, AreAbsentForAnUnknownOptimize)
{
  const Storage storage(Container());
  EXPECT_FALSE(KeysOf(storage, "ALGO_", "none").Has("DV_"));
  EXPECT_EQ(KeysOf(storage, "ALGO_", "none").Count("DV_"), 0U);
  EXPECT_EQ(KeysOf(storage, "ALGO_", "none").Reference("DV_"), "");
}

TEST(ParsedSingleVariable, IsReadAsItIsAlsoForAnOptimizeWithMoreBehindTheFirst)
{
  OrvelCmdContainer container;
  const OrvelCmd& only = AddParsed(container, Defs::DV, "only");
  AddParsed(container, Defs::OPTIMIZE, "first").AddReferenceItem(Items::DV, only);
  OrvelCmd& second = AddParsed(container, Defs::OPTIMIZE, "second");
  second.AddReferenceItem(Items::DV, only);
  second.AddReferenceItem(Items::DV, only);
  const Storage storage(container);
  EXPECT_THAT(ReferencesOf(storage, "ALGO_", "first", "DV_"), ElementsAre("only"));
  EXPECT_THAT(ReferencesOf(storage, "ALGO_", "second", "DV_"), ElementsAre("only", "only"));
}

TEST(ParsedSingleVariable, IsAbsentWhenOptimizeNamesNone)
{
  OrvelCmdContainer container;
  AddParsed(container, Defs::OPTIMIZE, "task");
  const Storage storage(container);
  EXPECT_FALSE(KeysOf(storage, "ALGO_", "task").Has("DV_"));
  EXPECT_EQ(KeysOf(storage, "ALGO_", "task").Reference("DV_"), "");
  EXPECT_EQ(KeysOf(storage, "DV_", "any").Count("DV_"), 0U);
}

// What cannot be read or written.

TEST_F(ParsedCommandValues, KeepsAListOfDoublesWhateverIsRead)
{
  Drop().AddDoubleItem(kItem, 2.5);
  EXPECT_THAT(DropKeys().Doubles(kKey), ElementsAre(-4.7, -1.1));
  EXPECT_THAT(DropKeys().Doubles("no such key"), ElementsAre(-4.7, -1.1));
  EXPECT_THAT(DropKeys().Doubles(kKey, 0), ElementsAre(-4.7, -1.1));
}

TEST_F(ParsedCommandValues, LosesEveryWriteWithoutAFailure)
{
  Drop().AddStringItem(Items::UPDATE_ID, "dp");
  Drop().AddIntegerItem(Items::LOADCASE, 7);
  Storage storage(Container());
  for (const char* id : {"drop", "none", ""})
  {
    for (const char* key : {"UPDATE_ID_", "LOADCASE_", "FILE_", "no such key"})
    {
      for (const int number : kAllVtmTypes)
      {
        const auto type = static_cast<VtmType>(number);
        for (const int index : {-1, 0, 1, 2})
        {
          storage.SetValue("DRESP_", id, key, index, type, std::vector<double>{1.5});
          storage.SetValue("DRESP_", id, key, index, type, std::vector<int>{1});
          storage.SetValue("DRESP_", id, key, index, type, 'x');
          storage.SetValue("DRESP_", id, key, index, type, std::string("written"));
          storage.SetValue("DRESP_", id, key, index, type, 1.5);
          storage.SetValue("DRESP_", id, key, index, type, 1);
        }
        storage.AddValue("DRESP_", id, key, type, std::vector<double>{1.5});
        storage.AddValue("DRESP_", id, key, type, std::vector<int>{1});
        storage.AddValue("DRESP_", id, key, type, 'x');
        storage.AddValue("DRESP_", id, key, type, std::string("written"));
        storage.AddValue("DRESP_", id, key, type, 1.5);
        storage.AddValue("DRESP_", id, key, type, 1);
      }
      storage.DeleteValues("DRESP_", id, key);
      storage.AddReference("DRESP_", id, key, "DRESP_", "drop");
    }
    storage.AddCommand("DRESP_", id);
    storage.AddCommand("no such kind", id);
  }
  const KeysOf keys(storage, "DRESP_", "drop");
  EXPECT_THAT(NamesOf(storage, "DRESP_"), ElementsAre("drop"));
  EXPECT_EQ(storage.GetNumCommand("no such kind"), 0U);
  EXPECT_EQ(keys.Count("UPDATE_ID_"), 1U);
  EXPECT_EQ(keys.Text("UPDATE_ID_"), "dp");
  EXPECT_EQ(keys.Count("LOADCASE_"), 1U);
  EXPECT_EQ(keys.Integer("LOADCASE_"), 7);
  EXPECT_FALSE(keys.Has("FILE_"));
  EXPECT_FALSE(keys.Has("no such key"));
  EXPECT_EQ(Container().GetNumberOfCommands(Defs::DRESP), 1U);
}

// Copies and removed commands.

TEST_F(ParsedCommandValues, ReadsTheSameThroughACopyThatOutlivesTheOriginal)
{
  Drop().AddIntegerItem(kItem, 7);
  std::optional<Storage> original(Container());
  const Storage copy(*original);
  original.reset();
  EXPECT_EQ(KeysOf(copy, "DRESP_", "drop").Integer(kKey), 7);
  EXPECT_EQ(KeysOf(copy, "DRESP_", "drop").Count(kKey), 1U);
}

TEST_F(ParsedCommandValues, ReadsNothingOfACommandThatWasRemoved)
{
  Drop().AddIntegerItem(kItem, 7);
  ASSERT_EQ(DropKeys().Integer(kKey), 7);
  Container().RemoveCommand(Defs::DRESP, 0);
  EXPECT_FALSE(DropKeys().Has(kKey));
  EXPECT_EQ(DropKeys().Count(kKey), 0U);
  EXPECT_EQ(DropKeys().Integer(kKey), -4711);
  EXPECT_EQ(DropKeys().Enumerator(kKey), 0);
  EXPECT_EQ(DropKeys().Reference(kKey), "");
}

TEST_F(ParsedOperator, ReadsNothingAfterItWasRemoved)
{
  AddOperands();
  AddWeights({1, 2, 3});
  const Storage storage(Container());
  Container().RemoveCommand(Defs::OPERATOR, 0);
  EXPECT_EQ(KeysOf(storage, "OPERATOR_", "sum").Count("DRESP_"), 0U);
  EXPECT_EQ(KeysOf(storage, "OPERATOR_", "sum").Double("DRESP_WEIGHT_"), -47.11);
}

TEST_F(ParsedVariables, AreMembersWithAnEmptyNameAfterTheyWereRemoved)
{
  const Storage storage(Container());
  Container().RemoveCommand(Defs::DV, 0);
  EXPECT_THAT(ReferencesOf(storage, "DV_", "__v_merged_DV", "DV_"), ElementsAre("", "right"));
}
