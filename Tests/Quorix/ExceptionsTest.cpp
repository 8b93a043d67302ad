#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/QuorixResources.hpp"
#include "Resources/Language.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <vector>

namespace {

using namespace QX;
using TW::UniString;

const ExpressionNode* const someNode = reinterpret_cast<const ExpressionNode*>(0x1000);

struct Row {
  std::shared_ptr<ExpressionSemanticException> exception;
  short index;
  const char16_t* name;
};

template <class Exception>
Row MakeRow(short index, const char16_t* name) {
  return {std::make_shared<Exception>(someNode), index, name};
}

std::vector<Row> AllExceptions() {
  return {
      MakeRow<ExpressionInternalErrorException>(1, u"ExpressionInternalErrorException"),
      MakeRow<ExpressionInvalidArgumentNumber>(2, u"ExpressionInvalidArgumentNumber"),
      MakeRow<ExpressionEqualsOperatorArgumentTypesMismatch>(3, u"ExpressionEqualsOperatorArgumentTypesMismatch"),
      MakeRow<ExpressionIncompatibleArgumentDimensions>(4, u"ExpressionIncompatibleArgumentDimensions"),
      MakeRow<ExpressionInvalidNonUnitNumberType>(5, u"ExpressionInvalidNonUnitNumberType"),
      MakeRow<ExpressionInvalidQuantityType>(6, u"ExpressionInvalidQuantityType"),
      MakeRow<ExpressionInvalidStringType>(7, u"ExpressionInvalidStringType"),
      MakeRow<ExpressionInvalidBoolType>(8, u"ExpressionInvalidBoolType"),
      MakeRow<ExpressionInvalidAngleType>(9, u"ExpressionInvalidAngleType"),
      MakeRow<ExpressionOutOfDomainOfMathematicalFunction>(10, u"ExpressionOutOfDomainOfMathematicalFunction"),
      MakeRow<ExpressionZeroOrPositiveWholeNumberExpected>(11, u"ExpressionZeroOrPositiveWholeNumberExpected"),
      MakeRow<ExpressionWholeNumberExpected>(12, u"ExpressionWholeNumberExpected"),
      MakeRow<ExpressionDivisionByZero>(13, u"ExpressionDivisionByZero"),
      MakeRow<ExpressionPropertyEvaluationFailed>(14, u"ExpressionPropertyEvaluationFailed"),
      MakeRow<ExpressionPositiveWholeNumberExpected>(15, u"ExpressionPositiveWholeNumberExpected"),
      MakeRow<ExpressionTooMuchDigitsRequested>(16, u"ExpressionTooMuchDigitsRequested"),
      MakeRow<ExpressionCannotConvertToNumber>(17, u"ExpressionCannotConvertToNumber"),
      MakeRow<ExpressionDifferentIfBranchTypes>(18, u"ExpressionDifferentIfBranchTypes"),
  };
}

TEST(SemanticExceptions, CarryTheirNodeTheirIndexAndTheirName) {
  for (const Row& row : AllExceptions()) {
    EXPECT_EQ(row.exception->GetResIdx(), row.index);
    EXPECT_EQ(row.exception->GetName(), UniString(row.name));
    EXPECT_EQ(row.exception->GetSource(), someNode);
    EXPECT_EQ(row.exception->GetErrorCode(), -7003);
    EXPECT_EQ(row.exception->GetLine(), 0U);
    EXPECT_EQ(row.exception->GetPrevious(), nullptr);
    EXPECT_TRUE(row.exception->GetMessage().IsEmpty());
  }
  EXPECT_EQ(ExpressionDivisionByZero(nullptr).GetSource(), nullptr);
}

TEST(SemanticExceptions, SpeakTheUsersLanguage) {
  const std::string before = Resources::GetLanguage();
  for (const char* language : {"en", "de", "fr"}) {
    Resources::SetLanguage(language);
    for (const Row& row : AllExceptions()) {
      EXPECT_FALSE(row.exception->ToString().IsEmpty());
      EXPECT_EQ(row.exception->ToString(), GetResourceString(106, row.index)) << language;
    }
  }
  Resources::SetLanguage("de");
  const UniString german = ExpressionDivisionByZero(nullptr).ToString();
  Resources::SetLanguage("fr");
  EXPECT_NE(ExpressionDivisionByZero(nullptr).ToString(), german);
  Resources::SetLanguage(before);
}

TEST(SemanticExceptions, AreCaughtByTheGroupsOfTheFamily) {
  static_assert(std::is_base_of_v<ExpressionOutOfDomain, ExpressionDivisionByZero>);
  static_assert(std::is_base_of_v<ExpressionOutOfDomain, ExpressionWholeNumberExpected>);
  static_assert(std::is_base_of_v<ExpressionOutOfDomain, ExpressionTooMuchDigitsRequested>);
  static_assert(!std::is_base_of_v<ExpressionOutOfDomain, ExpressionInvalidAngleType>);
  static_assert(std::is_base_of_v<ExpressionInvalidArgument, ExpressionInvalidAngleType>);
  static_assert(!std::is_base_of_v<ExpressionInvalidArgument, ExpressionIncompatibleArgumentDimensions>);
  static_assert(std::is_base_of_v<ExpressionInvalidArgumentListException, ExpressionDifferentIfBranchTypes>);
  static_assert(std::is_base_of_v<ExpressionNoAvailableResult, ExpressionPropertyEvaluationFailed>);
  static_assert(std::is_abstract_v<ExpressionSemanticException> && std::is_abstract_v<ExpressionOutOfDomain>);
  // Thrown by value and caught through the base of all.
  EXPECT_THROW(throw ExpressionDivisionByZero(someNode), TWException);
  EXPECT_THROW(throw ExpressionDivisionByZero(someNode), std::exception);
}

}  // namespace
