#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/OperatorNodeRegistry.hpp"
#include "Quorix/TestHost.hpp"
#include "Quorix/Values.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

// The examples in the help of functions and operators are true: each line is a formula, an equals sign and a formula of
// the same value.

namespace {

using QX::ExpressionValue;
using QX::HelpType;
using TW::UniString;

constexpr const char* Languages[] = {"root", "de", "fr"};
constexpr double Tolerance = 1e-9;

ExpressionValue Evaluate(const UniString& formula, bool propagation) {
  const QX::Expression expression = QX::Expression::CreateFromIOString(formula);
  EXPECT_TRUE(expression.IsValid()) << formula.ToUtf8() << " is no formula";
  TestHost host;
  host.SetPropagation(propagation);
  try {
    return expression.Evaluate(host);
  } catch (const QX::ExpressionSemanticException& error) {
    ADD_FAILURE() << formula.ToUtf8() << ": " << error.GetName().ToUtf8();
    return {};
  }
}

void ExpectSame(const ExpressionValue& value, const ExpressionValue& expected) {
  EXPECT_TRUE(expected.IsValid());
  EXPECT_FALSE(expected.IsUserUndefined());
  EXPECT_EQ(value.IsUserUndefined(), expected.IsUserUndefined());
  EXPECT_TRUE(ExpressionValue::AreEqualByTypeAndUnit(value, expected))
      << ::testing::PrintToString(value) << " and " << ::testing::PrintToString(expected);
  EXPECT_EQ(value.GetAsBool(), expected.GetAsBool());
  EXPECT_EQ(value.GetAsString(), expected.GetAsString());
  EXPECT_NEAR(value.GetIntOrNumVariantValue(), expected.GetIntOrNumVariantValue(), Tolerance);
}

// Checks every line; each must contain `word`.
void ExpectTrueExamples(const UniString& examples, const UniString& word) {
  constexpr std::u16string_view Sign = u" = ";
  EXPECT_FALSE(examples.IsEmpty());
  for (const UniString& line : examples.Split(u"\n")) {
    SCOPED_TRACE(line.ToUtf8());
    const std::size_t sign = line.GetView().rfind(Sign);
    ASSERT_NE(sign, std::u16string_view::npos);
    const UniString formula(line.GetView().substr(0, sign));
    const UniString result(line.GetView().substr(sign + Sign.size()));
    EXPECT_TRUE(formula.Contains(word));
    for (bool propagation : {false, true}) ExpectSame(Evaluate(formula, propagation), Evaluate(result, propagation));
  }
}

class Examples : public ::testing::TestWithParam<const char*> {
 protected:
  void SetUp() override { Resources::SetLanguage(GetParam()); }
  void TearDown() override { Resources::SetLanguage(before_); }

 private:
  const std::string before_ = Resources::GetLanguage();
};

TEST_P(Examples, OfFunctionsAreTrue) {
  const auto& registry = QX::GetFunctionNodeRegistry();
  registry.EnumerateRegisteredFunctions([&](const UniString& name) {
    SCOPED_TRACE(name.ToUtf8());
    ExpectTrueExamples(registry.GetFunctionHelpString(name, HelpType::Example, u','), name + u"(");
  });
}

TEST_P(Examples, OfOperatorsAreTrue) {
  const auto& registry = QX::GetOperatorNodeRegistry();
  registry.EnumerateOperators([&](const UniString& sign) {
    SCOPED_TRACE(sign.ToUtf8());
    ExpectTrueExamples(registry.GetOperatorHelpString(sign, HelpType::Example), sign);
  });
}

INSTANTIATE_TEST_SUITE_P(Language, Examples, ::testing::ValuesIn(Languages),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
