#include "OrvelCmdEngine/OrvelCmdItem.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/OrvelCmdItemError.h"

using testing::ElementsAre;

namespace
{

// Every test asks the one VALUE item of a command.
class OrvelCmdItemTest : public testing::Test
{
protected:
  const OrvelCmdItem& Item() const { return m_command.Item(OrvelCmdItemDefs::VALUE, 0); }

  template <typename Result>
  std::string FailureOf(Result (OrvelCmdItem::*reader)() const) const
  {
    try
    {
      (Item().*reader)();
    }
    catch (const OrvelCmdItemError& failure)
    {
      return failure.what();
    }
    return "nothing was thrown";
  }

  OrvelCmd m_command{OrvelCmdDefs::DV};
};

}  // namespace

TEST_F(OrvelCmdItemTest, GivesATextAsItIs)
{
  m_command.AddStringItem(OrvelCmdItemDefs::VALUE, " a b ");

  EXPECT_EQ(Item().AsString(), " a b ");
  EXPECT_FALSE(Item().IsStringList());
  EXPECT_FALSE(Item().IsIntegerSet());
  EXPECT_FALSE(Item().IsReference());
}

TEST_F(OrvelCmdItemTest, NamesBothTypesWhenATextIsAskedForAnythingElse)
{
  m_command.AddStringItem(OrvelCmdItemDefs::VALUE, "12");

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger), "Item VALUE holds a text (12) and cannot be read as an integer.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsDouble), "Item VALUE holds a text (12) and cannot be read as a double.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsEnumValue), "Item VALUE holds a text (12) and cannot be read as an enumerator.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsStringList),
            "Item VALUE holds a text (12) and cannot be read as a list of texts.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsIntegerSet),
            "Item VALUE holds a text (12) and cannot be read as a set of integers.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::ReferencedCommand),
            "Item VALUE holds a text (12) and cannot be read as a reference.");
}

TEST_F(OrvelCmdItemTest, ShowsTheBeginningOfALongValueInAFailure)
{
  m_command.AddStringItem(OrvelCmdItemDefs::VALUE, std::string(1000, 'x'));

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger),
            "Item VALUE holds a text (xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
            "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...) and cannot be read as an integer.");
}

TEST_F(OrvelCmdItemTest, ReadsAnIntegerAsEveryKindOfNumberAndAsText)
{
  m_command.AddIntegerItem(OrvelCmdItemDefs::VALUE, -83);

  EXPECT_EQ(Item().AsInteger(), -83);
  EXPECT_EQ(Item().AsDouble(), -83.0);
  EXPECT_EQ(static_cast<int>(Item().AsEnumValue()), -83);
  EXPECT_EQ(Item().AsString(), "-83");
}

TEST_F(OrvelCmdItemTest, DoesNotReadAnIntegerAsAListOrReference)
{
  m_command.AddIntegerItem(OrvelCmdItemDefs::VALUE, 5);

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsIntegerSet),
            "Item VALUE holds an integer (5) and cannot be read as a set of integers.");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::ReferencedCommand),
            "Item VALUE holds an integer (5) and cannot be read as a reference.");
}

TEST_F(OrvelCmdItemTest, ReadsADoubleAsItselfAndAsItsShortestText)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 0.1);

  EXPECT_EQ(Item().AsDouble(), 0.1);
  EXPECT_EQ(Item().AsString(), "0.1");
}

TEST_F(OrvelCmdItemTest, ReadsAWholeDoubleAsAnInteger)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, -3.0);

  EXPECT_EQ(Item().AsInteger(), -3);
}

TEST_F(OrvelCmdItemTest, ReadsTheLargestIntegerFromADouble)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 2147483647.0);

  EXPECT_EQ(Item().AsInteger(), 2147483647);
}

TEST_F(OrvelCmdItemTest, DoesNotRoundADouble)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 2.5);

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger), "Item VALUE holds a double (2.5) and cannot be read as an integer.");
}

TEST_F(OrvelCmdItemTest, DoesNotReadADoubleBeyondTheIntegersAsAnInteger)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 2147483648.0);

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger),
            "Item VALUE holds a double (2147483648) and cannot be read as an integer.");
}

TEST_F(OrvelCmdItemTest, DoesNotReadANaNAsAnInteger)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, std::numeric_limits<double>::quiet_NaN());

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger), "Item VALUE holds a double (nan) and cannot be read as an integer.");
}

TEST_F(OrvelCmdItemTest, DoesNotReadADoubleAsAnEnumerator)
{
  m_command.AddDoubleItem(OrvelCmdItemDefs::VALUE, 77.0);

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsEnumValue),
            "Item VALUE holds a double (77) and cannot be read as an enumerator.");
}

TEST_F(OrvelCmdItemTest, ReadsAnEnumeratorAsItsNumber)
{
  m_command.AddEnumItem(OrvelCmdItemDefs::VALUE, OrvelCmdItemDefs::GROUP_FORMAT_MERGE);

  EXPECT_EQ(Item().AsEnumValue(), OrvelCmdItemDefs::GROUP_FORMAT_MERGE);
  EXPECT_EQ(Item().AsInteger(), 77);
  EXPECT_EQ(Item().AsDouble(), 77.0);
  EXPECT_EQ(Item().AsString(), "77");
}

TEST_F(OrvelCmdItemTest, CarriesAnyNumberAsAnEnumerator)
{
  m_command.AddEnumItem(OrvelCmdItemDefs::VALUE, static_cast<OrvelCmdItemDefs::EnumValue>(-2000000000));

  EXPECT_EQ(Item().AsInteger(), -2000000000);
}

TEST_F(OrvelCmdItemTest, GivesAListOfTextsInItsOrder)
{
  m_command.AddStringListItem(OrvelCmdItemDefs::VALUE, {"wall", "inlet", "", "wall"});

  EXPECT_TRUE(Item().IsStringList());
  EXPECT_THAT(Item().AsStringList(), ElementsAre("wall", "inlet", "", "wall"));
  EXPECT_FALSE(Item().IsIntegerSet());
}

TEST_F(OrvelCmdItemTest, ReadsAListOfTextsAsTheTextsWithBlanksBetween)
{
  m_command.AddStringListItem(OrvelCmdItemDefs::VALUE, {"wall", "inlet"});

  EXPECT_EQ(Item().AsString(), "wall inlet");
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsInteger),
            "Item VALUE holds a list of texts (wall inlet) and cannot be read as an integer.");
}

TEST_F(OrvelCmdItemTest, HoldsAnEmptyListOfTexts)
{
  m_command.AddStringListItem(OrvelCmdItemDefs::VALUE, {});

  EXPECT_TRUE(Item().IsStringList());
  EXPECT_THAT(Item().AsStringList(), ElementsAre());
  EXPECT_EQ(Item().AsString(), "");
}

TEST_F(OrvelCmdItemTest, GivesASetOfIntegersInAscendingOrder)
{
  m_command.AddIntegerSetItem(OrvelCmdItemDefs::VALUE, {30, -1, 7});

  EXPECT_TRUE(Item().IsIntegerSet());
  EXPECT_THAT(Item().AsIntegerSet(), ElementsAre(-1, 7, 30));
  EXPECT_EQ(Item().AsString(), "-1 7 30");
  EXPECT_FALSE(Item().IsStringList());
  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsDouble),
            "Item VALUE holds a set of integers (-1 7 30) and cannot be read as a double.");
}

TEST_F(OrvelCmdItemTest, NamesBothTypesWhenAReferenceIsAskedForANumber)
{
  OrvelCmd target(OrvelCmdDefs::DRESP);
  target.AddStringItem(OrvelCmdItemDefs::ID_NAME, "mass");
  m_command.AddReferenceItem(OrvelCmdItemDefs::VALUE, target);

  EXPECT_EQ(FailureOf(&OrvelCmdItem::AsEnumValue),
            "Item VALUE holds a reference (mass) and cannot be read as an enumerator.");
}

TEST_F(OrvelCmdItemTest, FailsWithARuntimeError)
{
  m_command.AddStringItem(OrvelCmdItemDefs::VALUE, "x");

  EXPECT_THROW(Item().AsInteger(), std::runtime_error);
}
