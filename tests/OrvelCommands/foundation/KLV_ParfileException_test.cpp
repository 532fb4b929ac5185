#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include <gmock/gmock.h>

#include <memory>
#include <type_traits>

using testing::Each;
using testing::IsEmpty;
using testing::Not;
using testing::Property;

static_assert(std::is_base_of_v<KLV_Exception, KLV_ParfileException>);
static_assert(std::is_copy_constructible_v<KLV_ParfileException>);
static_assert(!std::is_copy_assignable_v<KLV_ParfileException>);

namespace
{

KLV_ParfileException UnknownGroup()
{
  return {"Referenced ID is not found", "no_such_group", "ELEMENT_GROUP", "porosity", "DV"};
}

const char* const kMessage = "Referenced ID is not found\n"
                             "  Value \"no_such_group\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                             "  In \"DV\" command with ID_NAME \"porosity\"";

}  // namespace

TEST(KlvParfileException, TellsTheProblemInThreeLinesOfWhichTwoBeginWithTwoBlanks)
{
  EXPECT_EQ(UnknownGroup().GetMessage(), "Referenced ID is not found\n"
                                         "  Value \"no_such_group\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                                         "  In \"DV\" command with ID_NAME \"porosity\"");
  EXPECT_STREQ(UnknownGroup().what(), kMessage);
}

TEST(KlvParfileException, TakesTheIdNameBeforeTheCommandAndTellsThemTheOtherWayRound)
{
  const KLV_ParfileException problem("Reason", "value", "PARAMETER", "id", "COMMAND");
  EXPECT_EQ(problem.GetValue(), "value");
  EXPECT_EQ(problem.GetParameter(), "PARAMETER");
  EXPECT_EQ(problem.GetIdName(), "id");
  EXPECT_EQ(problem.GetCommand(), "COMMAND");
  EXPECT_EQ(problem.GetMessage(), "Reason\n"
                                  "  Value \"value\" of parameter \"PARAMETER\" is erroneous\n"
                                  "  In \"COMMAND\" command with ID_NAME \"id\"");
}

TEST(KlvParfileException, TellsEmptyTextsAsEmptyQuotes)
{
  EXPECT_EQ(KLV_ParfileException("", "", "", "", "").GetMessage(),
            "\n  Value \"\" of parameter \"\" is erroneous\n  In \"\" command with ID_NAME \"\"");
}

TEST(KlvParfileException, HasNoCodeNoPrefixNoCauseAndACallStack)
{
  const KLV_ParfileException problem = UnknownGroup();
  EXPECT_FALSE(problem.GetCode().exists());
  EXPECT_EQ(problem.GetLogPrefix(), "");
  EXPECT_EQ(problem.GetCause(), nullptr);
  EXPECT_THAT(problem.GetBacktrace(), Not(IsEmpty()));
}

TEST(KlvParfileException, TellsItsTypeNameAndItsStatus)
{
  EXPECT_EQ(UnknownGroup().GetTypeName(), "KLV_ParfileException");
  EXPECT_EQ(UnknownGroup().GetStatus(), -15);
}

TEST(KlvParfileException, TakesAPercentSignInAValueAsItIs)
{
  EXPECT_EQ(KLV_ParfileException("100%d", "50%s", "%n", "%", "%%").GetMessage(),
            "100%d\n"
            "  Value \"50%s\" of parameter \"%n\" is erroneous\n"
            "  In \"%%\" command with ID_NAME \"%\"");
}

TEST(KlvParfileException, HasNoLimitOnItsMessage)
{
  const std::string value(5000, 'x');
  EXPECT_EQ(KLV_ParfileException("Reason", value, "P", "id", "C").GetMessage(),
            "Reason\n  Value \"" + value +
              "\" of parameter \"P\" is erroneous\n  In \"C\" command with ID_NAME \"id\"");
}

TEST(KlvParfileException, IsCopiedWithItsMessageSingle)
{
  const KLV_ParfileException problem = UnknownGroup();
  const KLV_ParfileException copy(problem);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.GetMessage(), kMessage);
  EXPECT_EQ(copy.GetValue(), "no_such_group");
  EXPECT_EQ(copy.GetParameter(), "ELEMENT_GROUP");
  EXPECT_EQ(copy.GetIdName(), "porosity");
  EXPECT_EQ(copy.GetCommand(), "DV");
  EXPECT_EQ(copy.GetBacktrace(), problem.GetBacktrace());
}

TEST(KlvParfileException, KeepsItsMessageSingleInAVectorThatGrows)
{
  std::vector<KLV_ParfileException> problems;
  for (int i = 0; i < 20; ++i)
  {
    problems.push_back(UnknownGroup());
  }
  EXPECT_THAT(problems, Each(Property(&KLV_ParfileException::GetMessage, kMessage)));
}

TEST(KlvParfileException, IsClonedWithItsTwoLinesTwice)
{
  const KLV_ParfileException problem = UnknownGroup();
  const std::unique_ptr<KLV_ParfileException> clone(problem.Clone());
  EXPECT_EQ(clone->GetMessage(), "Referenced ID is not found\n"
                                 "  Value \"no_such_group\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                                 "  In \"DV\" command with ID_NAME \"porosity\"\n"
                                 "  Value \"no_such_group\" of parameter \"ELEMENT_GROUP\" is erroneous\n"
                                 "  In \"DV\" command with ID_NAME \"porosity\"");
  EXPECT_EQ(clone->GetValue(), "no_such_group");
  EXPECT_EQ(clone->GetParameter(), "ELEMENT_GROUP");
  EXPECT_EQ(clone->GetIdName(), "porosity");
  EXPECT_EQ(clone->GetCommand(), "DV");
}

TEST(KlvParfileException, IsClonedThroughItsBaseAsItsOwnClass)
{
  const KLV_ParfileException problem = UnknownGroup();
  const KLV_Exception& base = problem;
  const std::unique_ptr<KLV_Exception> clone(base.Clone());
  EXPECT_NE(dynamic_cast<const KLV_ParfileException*>(clone.get()), nullptr);
}
