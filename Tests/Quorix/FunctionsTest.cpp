#include "EP/Parser.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionNodes/ExpressionTextShapingFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionUnaryFunctionNodes.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/TestHost.hpp"
#include "Quorix/Values.hpp"

#include <gtest/gtest.h>

#include <new>

// What files of formulas cannot say of functions: who they are, what they ask of the host, and how they grow.

namespace {

using QX::ExpressionValue;
using QX::FunctionGroup;
using TW::UniString;

class Functions : public testing::Test {
 protected:
  Functions() { FormulaWords::AddPropertiesTo(host_); }

  ExpressionValue Evaluate(const std::string& formula) const {
    QX::SyntaxTreeBuilder builder;
    const UniString text = FormulaWords::Replace(formula);
    return QX::Expression(EP::BoostGenerateSyntaxTree(text, host_.GetLocaleSettings(), builder)).Evaluate(host_);
  }

  void ExpectValue(const std::string& formula, const ExpressionValue& value) const {
    EXPECT_PRED2(ExpressionValue::AreEqualByContent, Evaluate(formula), value);
  }

  // Puts a text in the place of {9}.
  void SetBig(UniString text) { host_.SetProperty(FormulaWords::GetId("9"), ExpressionValue::FromString(text)); }

  TestHost host_;
};

std::string Repeated(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

struct FunctionRow {
  const char16_t* keyword;
  const char* className;
  const char* guid;
  FunctionGroup group;
  short helpResId;
};

// Stored formulas depend on names and GUIDs, help on the numbers, and lists on the order.
constexpr FunctionRow Rows[] = {
    {u"TRIM", "ExpressionTrimFunctionNode", "{62F83102-A5F9-4110-9A95-7E2E03F98919}", FunctionGroup::Text, 1006},
    {u"LOWER", "ExpressionLowerFunctionNode", "{EADBC079-AC15-4AB1-BB29-355E636581A7}", FunctionGroup::Text, 1007},
    {u"UPPER", "ExpressionUpperFunctionNode", "{98AFF6B3-420F-4416-8E72-4F283B66AB92}", FunctionGroup::Text, 1008},
    {u"CONCAT", "ExpressionConcatenationFunctionNode", "{399AB392-7D5C-47F0-9EDC-FBBED7BEF31D}", FunctionGroup::Text,
     1009},
    {u"TEXTJOIN", "ExpressionTextJoinFunctionNode", "{C2C05309-3649-43BE-A391-2CB01D06C0CA}", FunctionGroup::Text,
     1010},
    {u"LEFT", "ExpressionLeftFunctionNode", "{FBEFBD12-7457-49D7-85EC-50D4881B91DC}", FunctionGroup::Text, 1011},
    {u"MID", "ExpressionMidFunctionNode", "{E2D9B587-B7DE-4E74-851E-D918F14AFAE1}", FunctionGroup::Text, 1012},
    {u"RIGHT", "ExpressionRightFunctionNode", "{4BD9754D-5262-4B1B-A1B6-29C08DDF7637}", FunctionGroup::Text, 1013},
    {u"REPT", "ExpressionRepeatFunctionNode", "{3C60EDA3-EDC2-41BF-B202-56944AEC3F8C}", FunctionGroup::Text, 1014},
    {u"LEN", "ExpressionLenFunctionNode", "{F18089D6-C948-432A-AB88-B9C74CB80105}", FunctionGroup::Text, 1015},
    {u"CONTAINS", "ExpressionContainsFunctionNode", "{A5B985A8-82FE-4546-BA1F-5E1FB877C7D4}", FunctionGroup::Text,
     1056},
    {u"FIND", "ExpressionFindFunctionNode", "{61577646-5CA1-4FC5-9259-79D89344FE6E}", FunctionGroup::Text, 1016},
    {u"SPLIT", "ExpressionSplitFunctionNode", "{877A6787-6F1F-4651-A761-E2137AFABACF}", FunctionGroup::Text, 1017},
    {u"SPLITLEFT", "ExpressionSplitLeftFunctionNode", "{5B9AB23B-3F4F-4AE1-B39B-3D1C5EE4F560}", FunctionGroup::Text,
     1018},
    {u"SPLITRIGHT", "ExpressionSplitRightFunctionNode", "{531E0A82-DC3E-49C7-8AB9-35C64682344C}", FunctionGroup::Text,
     1019},
    {u"COMPARE", "ExpressionCompareFunctionNode", "{87440B60-2E60-445F-A6C6-1F8531ABCC2A}", FunctionGroup::Text, 1020},
    {u"REPLACE", "ExpressionReplaceFunctionNode", "{20C6FA7F-7AF4-4AE5-A97D-ED89DBFC4782}", FunctionGroup::Text, 1021},
    {u"SUBSTITUTE", "ExpressionSubstituteFunctionNode", "{D1B90322-2523-4201-B1A3-4D833FA5B3C5}", FunctionGroup::Text,
     1022},
    {u"STR", "ExpressionStrFunctionNode", "{D92087B6-1994-44C3-8AEA-2ED83B7451FF}", FunctionGroup::Conversion, 1023},
    {u"STRCALCUNIT", "ExpressionStrCalcUnitFunctionNode", "{CA8F76DA-F0DF-4BA6-BAA1-4DFB7D59D38C}",
     FunctionGroup::Conversion, 1024},
    {u"STRTONUM", "ExpressionStrToNumFunctionNode", "{26A71C16-81F2-4AE8-85FC-59777D5EC695}", FunctionGroup::Conversion,
     1054},
    {u"SUM", "ExpressionSumFunctionNode", "{661B6239-B00D-4333-A10B-14017FE5951E}", FunctionGroup::Arithmetic, 1025},
    {u"MIN", "ExpressionMinFunctionNode", "{371A8232-4E2E-48D0-9932-F3568340E8F9}", FunctionGroup::Statistical, 1026},
    {u"MAX", "ExpressionMaxFunctionNode", "{B0F8781B-42E2-480B-80B3-5ADDF87C3725}", FunctionGroup::Statistical, 1027},
    {u"AVG", "ExpressionAvgFunctionNode", "{97EF77DD-3AE7-4407-845C-0F3174DFAE99}", FunctionGroup::Statistical, 1028},
    {u"SQRT", "ExpressionRootFunctionNode", "{B261845D-5C7E-47B7-B384-75355A043107}", FunctionGroup::Arithmetic, 1029},
    {u"ABS", "ExpressionAbsFunctionNode", "{E4416254-4B16-4062-AF93-F45BCAFD2F4E}", FunctionGroup::Arithmetic, 1032},
    {u"POWER", "ExpressionPowerFunctionNode", "{78C0EEDB-58E4-4738-A1C6-2B265829CA67}", FunctionGroup::Arithmetic,
     1044},
    {u"NTHROOT", "ExpressionNthRootFunctionNode", "{59D89269-AAA1-4E5E-AEF9-E2DB2AC94F3D}", FunctionGroup::Arithmetic,
     1045},
    {u"MOD", "ExpressionModFunctionNode", "{AD2C8AAB-C899-44C2-B110-332D5DD561D4}", FunctionGroup::Arithmetic, 1046},
    {u"LOG", "ExpressionLogFunctionNode", "{06C13D70-E2DE-4447-9402-AA44970649B3}", FunctionGroup::Arithmetic, 1047},
    {u"SIGN", "ExpressionSignFunctionNode", "{95239636-2BE2-4AD7-ADCE-F7580DE0C8FC}", FunctionGroup::Arithmetic, 1048},
    {u"MROUND", "ExpressionMRoundFunctionNode", "{70BBC7A5-31DA-447D-8212-DE139C423C6F}", FunctionGroup::Arithmetic,
     1050},
    {u"MROUNDDOWN", "ExpressionMRoundDownFunctionNode", "{D292875B-54FC-43DC-B47A-23FFE6A17C39}",
     FunctionGroup::Arithmetic, 1051},
    {u"MROUNDUP", "ExpressionMRoundUpFunctionNode", "{24177D96-EF15-48BB-B1C2-8F7BAB013800}", FunctionGroup::Arithmetic,
     1052},
    {u"ROUND", "ExpressionRoundFunctionNode", "{2B3D9EBD-8BA5-4131-BB7D-0CA54698EAFB}", FunctionGroup::Arithmetic,
     1030},
    {u"ROUNDDOWN", "ExpressionRoundDownFunctionNode", "{559C8350-8A54-47A9-897C-F94BA1709F1C}",
     FunctionGroup::Arithmetic, 1031},
    {u"ROUNDUP", "ExpressionRoundUpFunctionNode", "{18B73816-C5E4-4557-A8EC-EEEC697AA206}", FunctionGroup::Arithmetic,
     1049},
    {u"EXP", "ExpressionExpFunctionNode", "{F48C30A9-F604-4792-9BD7-87E5EB3F647D}", FunctionGroup::Arithmetic, 1041},
    {u"LN", "ExpressionLnFunctionNode", "{7BFCF9E9-337C-4B33-90F8-D0E9DA974010}", FunctionGroup::Arithmetic, 1042},
    {u"LOG10", "ExpressionLog10FunctionNode", "{AF640455-4379-4355-A43C-4CCCF15BD7AB}", FunctionGroup::Arithmetic,
     1043},
    {u"QUOTIENT", "ExpressionQuotientFunctionNode", "{1228F2EB-0666-499D-8E7A-CE381661797A}", FunctionGroup::Arithmetic,
     1053},
    {u"SIN", "ExpressionSineFunctionNode", "{90ECD7A5-39D3-4B7F-8FC2-CE3F84215897}", FunctionGroup::Trigonometric,
     1033},
    {u"COS", "ExpressionCosineFunctionNode", "{8A1B763C-2DD7-45A2-BA03-FFBF86C82A60}", FunctionGroup::Trigonometric,
     1034},
    {u"TAN", "ExpressionTangentFunctionNode", "{28C6E313-A7DD-4635-BFDB-CDBDC23A5A5E}", FunctionGroup::Trigonometric,
     1035},
    {u"COT", "ExpressionCotangentFunctionNode", "{517DDF46-A411-44DC-A0E9-1243E980A09D}", FunctionGroup::Trigonometric,
     1036},
    {u"ASIN", "ExpressionArcSineFunctionNode", "{1F245562-66D7-44B9-A862-0271E651F993}", FunctionGroup::Trigonometric,
     1037},
    {u"ACOS", "ExpressionArcCosineFunctionNode", "{1BB07939-66DF-4731-9633-FFFEA10538B2}", FunctionGroup::Trigonometric,
     1038},
    {u"ATAN", "ExpressionArcTangentFunctionNode", "{DA035558-D93F-4D2F-9BAE-CB6E3A2697E2}",
     FunctionGroup::Trigonometric, 1039},
    {u"ACOT", "ExpressionArcCotangentFunctionNode", "{490B18FE-C295-42CA-BD25-DFC1537D51CB}",
     FunctionGroup::Trigonometric, 1040},
    {u"AND", "ExpressionAndFunctionNode", "{C0C64C69-1E61-4257-953C-EEAFC3A4B92B}", FunctionGroup::Logical, 1001},
    {u"OR", "ExpressionOrFunctionNode", "{D1DC69B2-9462-46EB-BBE1-D16F0AF29FE6}", FunctionGroup::Logical, 1002},
    {u"XOR", "ExpressionXorFunctionNode", "{4B89E124-6A6F-45E9-BA26-1EC20023255B}", FunctionGroup::Logical, 1005},
    {u"NOT", "ExpressionNotFunctionNode", "{C129FC64-2B81-4EFF-99AE-8933813832D0}", FunctionGroup::Logical, 1003},
    {u"IF", "ExpressionIfFunctionNode", "{672FE020-4CDA-4A41-84E3-8D107E10ADCA}", FunctionGroup::Logical, 1004},
    {u"IFS", "ExpressionIfsFunctionNode", "{AB69C896-FF2B-4939-B0A7-B6D581B77BE5}", FunctionGroup::Logical, 1057},
    {u"ISUNDEFINED", "ExpressionIsUndefinedFunctionNode", "{E3297D6F-EB10-42AC-9E82-B61A472A17F5}",
     FunctionGroup::Logical, 1055},
};

TEST_F(Functions, AreRegisteredInOrder) {
  const QX::FunctionNodeRegistry& registry = QX::GetFunctionNodeRegistry();
  std::vector<UniString> keywords;
  registry.EnumerateRegisteredFunctions([&](const UniString& keyword) { keywords.push_back(keyword); });
  ASSERT_EQ(keywords.size(), std::size(Rows));
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    const FunctionRow& row = Rows[i];
    SCOPED_TRACE(row.className);
    EXPECT_EQ(keywords[i], UniString(row.keyword));
    EXPECT_EQ(registry.GetFunctionGroup(keywords[i].ToLowerCase()), row.group);
    EXPECT_EQ(registry.GetFunctionHelpResId(keywords[i]), row.helpResId);
    const TW::ClassInfo* info = registry.GetFunctionNodeClassInfo(row.keyword);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->GetName(), row.className);
    EXPECT_EQ(info->GetGuid(), TW::Guid(row.guid));
    EXPECT_EQ(info->GetVersion(), 1);
    EXPECT_TRUE(info->IsCompatibleWith(QX::ExpressionFunctionNode::classInfo));
  }
}

TEST_F(Functions, HaveInstancesThatKnowTheirClass) {
  for (const FunctionRow& row : Rows) {
    SCOPED_TRACE(row.className);
    const TW::ClassInfo* info = QX::GetFunctionNodeRegistry().GetFunctionNodeClassInfo(row.keyword);
    const auto node = info->CreateNewInstance().DynamicCast<QX::ExpressionFunctionNode>();
    ASSERT_TRUE(node);
    EXPECT_EQ(node->GetClassInfo(), info);
    EXPECT_EQ(node->GetFunctionName(), UniString(row.keyword));
    EXPECT_EQ(node->GetIntroductionVersion(), UniString(row.keyword) == UniString(u"IFS") ? 2 : 1);
  }
  EXPECT_EQ(QX::ExpressionSqrtFunctionNode::classInfo.GetName(), "ExpressionRootFunctionNode");
  EXPECT_EQ(QX::ExpressionConcatenationFunctionNode::functionName, UniString(u"CONCAT"));
}

TEST_F(Functions, AreAmongTheNodeTypes) {
  std::size_t functions = 0;
  QX::EnumerateExpressionNodeTypes([&](const TW::Ref<QX::ExpressionNode>& node) {
    if (node->GetClassInfo()->IsCompatibleWith(QX::ExpressionFunctionNode::classInfo)) ++functions;
  });
  EXPECT_EQ(functions, std::size(Rows));
}

// The words whose properties the host is asked for, in order, when undefined values are propagated and when not.
TEST_F(Functions, AskForNoMoreThanTheyNeed) {
  struct Row {
    const char* formula;
    std::vector<const char*> stopping;
    std::vector<const char*> propagating;
  };
  const Row rows[] = {
      {"SUM({3}, {1}, {undefined number}, {2})",
       {"3", "1", "undefined number", "2"},
       {"3", "1", "undefined number", "2"}},
      {"SUM({1}, {undefined length}, {2})", {"1", "undefined length"}, {"1", "undefined length"}},
      {"MOD({5}, {3})", {"5", "3"}, {"5", "3"}},
      {"SIN({1})", {"1"}, {"1"}},
      {"LEFT({undefined text}, {2})", {"undefined text", "2"}, {"undefined text", "2"}},
      {"CONCAT({1}, {2})", {"1"}, {"1"}},
      {"STR({1}, {2})", {"1", "2"}, {"1", "2"}},
      {"STR({undefined length}, {2})", {"undefined length"}, {"undefined length"}},
      {"FIND({undefined text}, \"a\", {1}, {undefined logical})",
       {"undefined text", "1", "undefined logical"},
       {"undefined text", "1", "undefined logical"}},
      {"AND({1} = 1, {2} = 1, {3} = 1)", {"1", "2"}, {"1", "2", "3"}},
      {"OR({1} = 2, {2} = 2, {3} = 2)", {"1", "2"}, {"1", "2", "3"}},
      {"XOR({1} = 1, {undefined logical}, {3} = 1)", {"1", "undefined logical"}, {"1", "undefined logical", "3"}},
      {"IF({1} = 1, {2}, {3})", {"1", "2"}, {"1", "2", "3"}},
      {"IF({1} = 2, {2}, {3})", {"1", "3"}, {"1", "2", "3"}},
      {"IF({undefined logical}, {2}, {3})", {"undefined logical", "2"}, {"undefined logical", "2", "3"}},
      {"IFS({1} = 1, {2}, {3} = 1, {4})", {"1", "2"}, {"2", "1", "3", "4"}},
      {"IFS({1} = 2, {2}, {3} = 1, {4})", {"1", "3", "4"}, {"2", "1", "3", "4"}},
      {"IFS({1} = 2, {2}, {undefined logical}, {4}, {5} = 5, {6})",
       {"1", "undefined logical", "4"},
       {"2", "1", "undefined logical", "4", "5", "6"}},
      {"ISUNDEFINED({undefined number})", {"undefined number"}, {"undefined number"}},
  };
  for (const Row& row : rows) {
    for (const bool propagate : {false, true}) {
      SCOPED_TRACE(row.formula);
      std::vector<TW::Guid> wanted;
      for (const char* word : propagate ? row.propagating : row.stopping) wanted.push_back(FormulaWords::GetId(word));
      host_.SetPropagation(propagate);
      host_.ForgetQuestions();
      try {
        Evaluate(row.formula);
      } catch (const QX::ExpressionSemanticException&) {
        // What was asked before the failure counts.
      }
      EXPECT_EQ(host_.GetValueQuestions(), wanted) << (propagate ? "propagating" : "stopping");
    }
  }
}

// Were a value evaluated twice at each level, this would ask a thousand million times.
TEST_F(Functions, NestedConditionsStayLinear) {
  constexpr int Depth = 30;
  for (const bool propagate : {false, true}) {
    host_.SetPropagation(propagate);
    for (const char* call : {"IFS({1} = 2, 7, {1} = 1, ", "IFS({1} = 1, ", "IF({1} = 1, "}) {
      const bool isIf = std::string(call).starts_with("IF(");
      host_.ForgetQuestions();
      const std::string formula = Repeated(call, Depth) + "{5}" + Repeated(isIf ? ", 0)" : ", FALSE, 0)", Depth);
      ExpectValue(formula, ExpressionValue::FromNumber(5));
      EXPECT_LE(host_.GetValueQuestions().size(), 2U * Depth + 1) << call;
    }
  }
}

TEST_F(Functions, TakeTenThousandArguments) {
  constexpr int Count = 10000;
  const std::string numbers = "({1}" + Repeated(", 2", Count - 1) + ")";
  ExpectValue("SUM" + numbers, ExpressionValue::FromNumber(2 * Count - 1));
  ExpectValue("MIN" + numbers, ExpressionValue::FromNumber(1));
  ExpectValue("MAX" + numbers, ExpressionValue::FromNumber(2));
  ExpectValue("AVG" + numbers, ExpressionValue::FromNumber((2.0 * Count - 1) / Count));
  ExpectValue("LEN(CONCAT(\"a\"" + Repeated(", \"bc\"", Count - 1) + "))", ExpressionValue::FromInteger(2 * Count - 1));
  ExpectValue("LEN(TEXTJOIN(\"--\", FALSE" + Repeated(", \"a\"", Count) + "))",
              ExpressionValue::FromInteger(3 * Count - 2));
  ExpectValue("XOR(TRUE" + Repeated(", FALSE", Count - 1) + ")", ExpressionValue::FromBool(true));
  ExpectValue("IFS(FALSE, 1" + Repeated(", FALSE, 2", Count) + ", TRUE, 3)", ExpressionValue::FromNumber(3));
}

// A text holds fewer than 2^32 units. These fail before they take any memory for what they ask.
TEST_F(Functions, ImpossibleTextsFailAtOnce) {
  SetBig(UniString(100000, u'a'));
  const std::string manyEmpty = Repeated(", \"\"", 50000);
  for (const std::string& formula : {
           std::string("REPT(\"abcd\", 1073741824)"),
           std::string("REPT(\"abc\", 1e300)"),
           std::string("REPT(REPT(\"a\", 65536), 65536)"),
           std::string("LEN(REPT(\"0123456789\", 2147483647))"),
           std::string("SUBSTITUTE({9}, \"a\", {9})"),
           "TEXTJOIN({9}, FALSE" + manyEmpty + ")",
       }) {
    EXPECT_THROW(Evaluate(formula), std::bad_alloc) << formula.substr(0, 60);
    ExpectValue("REPT(\"ab\", 2)", ExpressionValue::FromString(u"abab"));
  }
  ExpectValue("LEN(TEXTJOIN({9}, TRUE" + manyEmpty + "))", ExpressionValue::FromInteger(0));
}

// Each of these would take hours if it took time that grows with the square of the length.
TEST_F(Functions, LongTextsTakeLinearTime) {
  constexpr int Length = 5000000;
  struct Row {
    const char* formula;
    ExpressionValue value;
  };
  const auto integer = [](int value) { return ExpressionValue::FromInteger(value); };
  const Row rows[] = {
      {"LEN({9})", integer(Length)},
      {"LEN(TRIM({9}))", integer(Length)},
      {"LEN(UPPER({9}))", integer(Length)},
      {"LEN(LEFT({9}, 4999999))", integer(Length - 1)},
      {"LEN(RIGHT({9}, 4999999))", integer(Length - 1)},
      {"LEN(MID({9}, 2, 4999999))", integer(Length - 1)},
      {"LEN(CONCAT({9}, {9}))", integer(2 * Length)},
      {"LEN(REPT({9}, 2))", integer(2 * Length)},
      {"FIND(CONCAT(REPT(\"a\", 1000), \"b\"), {9})", integer(0)},
      {"FIND(CONCAT(REPT(\"a\", 2000000), \"b\"), {9}, 1, FALSE)", integer(0)},
      {"LEN(SUBSTITUTE({9}, \"a\", \"bc\"))", integer(2 * Length)},
      {"LEN(SUBSTITUTE({9}, \"a\", \"\", 5000000))", integer(Length - 1)},
      {"LEN(SPLIT({9}, \"a\", 5000001))", integer(0)},
      {"LEN(SPLITLEFT({9}, \"a\", 5000000))", integer(Length - 1)},
      {"LEN(SPLITRIGHT({9}, \"a\", 5000000))", integer(1)},
      {"COMPARE({9}, CONCAT({9}, \"a\"))", integer(-1)},
      {"LEN(REPLACE({9}, 2, 4999998, \"\"))", integer(2)},
      {"LEN(STR({9}))", integer(Length)},
  };
  SetBig(UniString(Length, u'a'));
  for (const Row& row : rows) ExpectValue(row.formula, row.value);
  SetBig(UniString(Length, u'1'));
  EXPECT_THROW(Evaluate("STRTONUM({9})"), QX::ExpressionCannotConvertToNumber);
}

}  // namespace
