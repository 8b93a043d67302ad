#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFractionalInchNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionQuotedStringNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionUnaryOpNode.hpp"
#include "Quorix/Golden.hpp"
#include "TW/ClassManager.hpp"

#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace {

using QX::Expression;
using QX::ExpressionIntegerNode;
using QX::ExpressionNode;
using QX::ExpressionParenthesizedNode;

TW::Ref<ExpressionIntegerNode> MakeInteger(int value) {
  return TW::MakeRef<ExpressionIntegerNode>(value, TW::UniString());
}

// The rows of the file of classes by name: GUID, version, base.
std::map<std::string, std::string> ReadClassRows() {
  std::map<std::string, std::string> rows;
  ForEachGoldenLine("NodeClasses.txt", [&rows](const std::string& line) {
    const std::size_t blank = line.find(' ');
    rows[line.substr(0, blank)] = line.substr(blank + 1);
  });
  return rows;
}

std::map<std::string, std::string> GetRegisteredRows() {
  std::map<std::string, std::string> rows;
  TW::ClassManager::EnumerateClassInfos([&rows](const TW::ClassInfo* info) {
    if (!info->IsCompatibleWith(ExpressionNode::classInfo)) return;
    std::ostringstream row;
    row << info->GetGuid().ToUniString().ToUtf8() << ' ' << info->GetVersion() << ' ' << info->GetBase()->GetName();
    EXPECT_TRUE(rows.emplace(info->GetName(), row.str()).second) << info->GetName();
  });
  return rows;
}

TEST(NodeClasses, AreRegisteredAsStoredFormulasKnowThem) {
  const auto rows = ReadClassRows();
  const auto registered = GetRegisteredRows();
  EXPECT_EQ(registered, rows);
  std::set<std::string> guids;
  for (const auto& [name, row] : rows) EXPECT_TRUE(guids.insert(row.substr(0, 36)).second) << name;
}

TEST(NodeClasses, GiveOneEmptyNodeOfEachConcreteClass) {
  const std::set<const TW::ClassInfo*> abstract = {&ExpressionNode::classInfo,
                                                   &QX::ExpressionReferenceNode::classInfo,
                                                   &QX::ExpressionUnaryOpNode::classInfo,
                                                   &QX::ExpressionArithmeticUnaryOpNode::classInfo,
                                                   &QX::ExpressionBinaryOpNode::classInfo,
                                                   &QX::ExpressionArithmeticBinaryOpNode::classInfo,
                                                   &QX::ExpressionArithmeticComparisonOpNode::classInfo,
                                                   &QX::ExpressionFunctionNode::classInfo};
  std::set<const TW::ClassInfo*> made;
  std::set<const ExpressionNode*> nodes;
  std::vector<TW::Ref<ExpressionNode>> kept;
  QX::EnumerateExpressionNodeTypes([&](const TW::Ref<ExpressionNode>& node) {
    ASSERT_TRUE(node);
    EXPECT_TRUE(made.insert(node->GetClassInfo()).second) << node->GetClassInfo()->GetName();
    EXPECT_TRUE(nodes.insert(node.Get()).second);
    EXPECT_FALSE(abstract.contains(node->GetClassInfo())) << node->GetClassInfo()->GetName();
    EXPECT_EQ(node->GetChildCount(), 0U);
    EXPECT_EQ(node->GetIntroductionVersion(), node->GetClassInfo()->GetName() == "ExpressionIfsFunctionNode" ? 2U : 1U);
    kept.push_back(node);
  });
  EXPECT_EQ(made.size(), 77U);
  for (const TW::ClassInfo* concrete : made) {
    EXPECT_TRUE(concrete->IsCompatibleWith(ExpressionNode::classInfo));
    EXPECT_EQ(concrete->CreateNewInstance()->GetClassInfo(), concrete) << concrete->GetName();
  }
  // A node without operands can be stored and read, and an operator without operands cannot be evaluated.
  for (const TW::Ref<ExpressionNode>& node : kept) {
    Expression read;
    ASSERT_EQ(ReadStored(Store(Expression(node)), read), TW::NoErr) << node->GetClassInfo()->GetName();
    EXPECT_EQ(read.GetRoot()->GetClassInfo(), node->GetClassInfo());
  }
}

TEST(NodeClasses, CanBeDumped) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  QX::DumpExpressionNodeHierarchy();
  EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
}

TEST(ExpressionNode, GivesItsChildren) {
  const auto node = MakeNode<ExpressionParenthesizedNode>(MakeInteger(1), MakeInteger(2));
  const ExpressionNode& constant = *node;
  EXPECT_NE(node->GetChild(1), nullptr);
  EXPECT_EQ(node->GetChild(1), constant.GetChild(1));
  EXPECT_EQ(node->GetChild(2), nullptr);
  EXPECT_EQ(constant.GetChild(0xFFFFFFFFU), nullptr);
  // A child of another kind of tree is none.
  class OtherNode final : public EP::SyntaxTreeNode {
    TW::ErrCode ReadSelf(TW::IChannel&) override { return TW::NoErr; }
    TW::ErrCode WriteSelf(TW::OChannel&) const override { return TW::NoErr; }
  };
  node->AddChild(TW::MakeRef<OtherNode>());
  EXPECT_EQ(node->GetChildCount(), 3U);
  EXPECT_EQ(node->GetChild(2), nullptr);
}

TEST(ExpressionNode, IsVisitedBeforeItsChildren) {
  const Expression expression = ParseFormula(u"1 + ( 2 * 3 ) = - 4");
  std::string visited;
  expression.GetRoot()->EnumerateRecursive(
      [&visited](const ExpressionNode* node) { visited += node->GetClassInfo()->GetName()[10]; });
  EXPECT_EQ(visited, "EAIPMIIMI");
  int leaves = 0;
  MakeInteger(1)->EnumerateRecursive([&leaves](ExpressionNode*) { ++leaves; });
  EXPECT_EQ(leaves, 1);
  EXPECT_THROW(MakeInteger(1)->EnumerateRecursive(std::function<void(ExpressionNode*)>()), std::bad_function_call);
  EXPECT_THROW(expression.GetRoot()->EnumerateRecursive(std::function<void(const ExpressionNode*)>()),
               std::bad_function_call);
}

TEST(ExpressionNode, VisitorsMayAddToTheNodeTheyVisit) {
  const auto root = MakeNode<ExpressionParenthesizedNode>(MakeInteger(1));
  int visited = 0;
  root->EnumerateRecursive([&](ExpressionNode* node) {
    ++visited;
    if (node == root.Get()) {
      for (int i = 0; i < 10; ++i) node->AddChild(MakeInteger(i));
    } else if (visited == 3) {
      node->AddChild(MakeInteger(99));
    }
  });
  EXPECT_EQ(visited, 1 + 11 + 1);
}

// Maps each property to the one that follows.
class NextMapper final : public QX::IGuidMapper {
 public:
  TW::Guid Map(const TW::Guid& id) const override {
    TW::Guid::Bytes bytes = id.GetBytes();
    ++bytes[15];
    return TW::Guid(bytes);
  }
};

class SameMapper final : public QX::IGuidMapper {
 public:
  TW::Guid Map(const TW::Guid& id) const override { return id; }
};

class CountingCollector final : public QX::IExpressionReferenceCollector {
 public:
  void PropertyReferenceFound(const TW::Guid& propertyId) override { found.push_back(propertyId); }
  std::vector<TW::Guid> found;
};

TEST(Expression, ReplacesItsReferences) {
  Expression expression = ParseFormula(FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  expression.RestorePropertyReferences(SameMapper());
  EXPECT_EQ(Render(expression), FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  const Expression copy = expression;
  expression.RestorePropertyReferences(NextMapper());
  EXPECT_EQ(Render(expression), FormulaWords::Replace("{4} + ( {5} * {4} ) + 3"));
  EXPECT_EQ(Render(copy), FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  CountingCollector collector;
  expression.CollectReferencedProperties(collector);
  EXPECT_EQ(collector.found,
            (std::vector<TW::Guid>{FormulaWords::GetId("4"), FormulaWords::GetId("5"), FormulaWords::GetId("4")}));
}

TEST(Expression, TranslatesItsTexts) {
  Localization::PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadPo("msgid \"wall\"\nmsgstr \"Wand\\r\\n\\\"1\\\"\"\n\n"
                              "msgctxt \"roof\"\nmsgid \"wall\"\nmsgstr \"Mauer\"\n"),
            TW::NoErr);
  const TW::UniString text(u"\"wall\" = ( \"wall\" = \"door\" ) = TRUE = 1 m = [Property:]");
  Expression expression = ParseFormula(text);
  expression.Translate(dictionary, u"");
  EXPECT_EQ(Render(expression),
            Render(ParseFormula(u"\"Wand\\\"1\\\"\" = ( \"Wand\\\"1\\\"\" = \"door\" ) = TRUE = 1 m = [Property:]")));
  expression = ParseFormula(text);
  expression.Translate(dictionary, u"roof");
  EXPECT_EQ(Render(expression),
            Render(ParseFormula(u"\"Mauer\" = ( \"Mauer\" = \"door\" ) = TRUE = 1 m = [Property:]")));
}

TEST(Expression, WithoutATreeIsInvalid) {
  Expression none;
  EXPECT_FALSE(none.IsValid());
  EXPECT_FALSE(Expression(TW::Ref<ExpressionNode>()).IsValid());
  EXPECT_FALSE(none.Evaluate(TestHost()).IsValid());
  EXPECT_EQ(none.GetExpressionString(EP::IOLocaleSettings()).GetFullString(), u"");
  EXPECT_TRUE(none.IsValidInVersion(0));
  EXPECT_TRUE(none.IsEqual(Expression()));
  EXPECT_FALSE(none.IsEqual(ParseFormula(u"1")));
  CountingCollector collector;
  Localization::PoDictionary dictionary;
  EXPECT_THROW(none.CollectReferencedProperties(collector), TW::NullReferenceException);
  EXPECT_THROW(none.RestorePropertyReferences(SameMapper()), TW::NullReferenceException);
  EXPECT_THROW(none.Translate(dictionary, u""), TW::NullReferenceException);
  Expression copy = ParseFormula(u"1");
  copy = none;
  EXPECT_FALSE(copy.IsValid());
}

TEST(Expression, IsReadFromTheStoredText) {
  EXPECT_EQ(Render(Expression::CreateFromIOString(u"1.5+2")), u"1.5 + 2");
  for (const char16_t* text :
       {u"", u"1 +", u"1,5", u"FOO", u"5 3/2\"", u"\"[Property:00000000-0000-0000-0000-000000000000]\""}) {
    EXPECT_FALSE(Expression::CreateFromIOString(text).IsValid()) << TW::UniString(text).ToUtf8();
  }
}

TEST(Expression, IsEqualWhenItReadsTheSame) {
  struct Row {
    const char16_t* a;
    const char16_t* b;
    bool equal;
  };
  const Row rows[] = {{u"1+2", u" 1  + 2", true}, {u"1 + 2", u"2 + 1", false}, {u"true", u"TRUE", false},
                      {u"1", u"1.0", false},      {u"1 cm", u"1cm", true},     {u"\"a\"", u"\"A\"", false},
                      {u"07", u"7", true},        {u"( 1 )", u"1", false}};
  for (const Row& row : rows) {
    EXPECT_EQ(ParseFormula(row.a).IsEqual(ParseFormula(row.b)), row.equal) << TW::UniString(row.a).ToUtf8();
  }
}

TEST(Expression, KnowsTheVersionsItIsValidIn) {
  const Expression expression = ParseFormula(u"1 + 2");
  EXPECT_FALSE(expression.IsValidInVersion(0));
  EXPECT_TRUE(expression.IsValidInVersion(1));
  EXPECT_TRUE(expression.IsValidInVersion(0xFFFFFFFFU));
  const Expression late = ParseFormula(u"SUM(1, 2 * (IF(TRUE, IFS(TRUE, 1), 2)))");
  EXPECT_FALSE(late.IsValidInVersion(1));
  EXPECT_TRUE(late.IsValidInVersion(2));
}

TEST(Expression, CopiesShareNothing) {
  const TW::UniString text(u"1 + ( 2.5 cm * \"x\" ) - 5 1/2\" = PI");
  const Expression original = ParseFormula(text);
  std::set<const ExpressionNode*> nodes;
  original.GetRoot()->EnumerateRecursive([&nodes](const ExpressionNode* node) { nodes.insert(node); });
  Expression copied;
  copied.CopyFrom(original);
  Expression assigned = ParseFormula(u"42");
  assigned = original;
  const TW::Ref<TW::Object> clone = original.Clone();
  const Expression constructed = original;
  for (const Expression* copy : {static_cast<const Expression*>(&copied), static_cast<const Expression*>(&assigned),
                                 &constructed, dynamic_cast<const Expression*>(clone.Get())}) {
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(Render(*copy), text);
    copy->GetRoot()->EnumerateRecursive([&nodes](const ExpressionNode* node) { EXPECT_FALSE(nodes.contains(node)); });
  }
  Expression& self = assigned;
  assigned = self;
  EXPECT_EQ(Render(assigned), text);
  const TW::Ref<ExpressionIntegerNode> shared = MakeInteger(5);
  EXPECT_EQ(Expression(shared).GetRoot(), shared.Get());
}

TEST(Nodes, ReportWrongCountsOfOperands) {
  const TW::Ref<ExpressionNode> wrong[] = {
      MakeNode<QX::ExpressionMinusUnaryOpNode>(),
      MakeNode<QX::ExpressionPlusUnaryOpNode>(MakeInteger(1), MakeInteger(2)),
      MakeNode<QX::ExpressionAdditionNode>(),
      MakeNode<QX::ExpressionPowerNode>(MakeInteger(1)),
      MakeNode<QX::ExpressionEqualNode>(MakeInteger(1), MakeInteger(2), MakeInteger(3)),
      MakeNode<QX::ExpressionLessThanNode>(MakeInteger(1)),
  };
  const TestHost host;
  for (const TW::Ref<ExpressionNode>& node : wrong) {
    const TW::Ref<ExpressionNode> roots[] = {node, MakeNode<ExpressionParenthesizedNode>(node),
                                             MakeNode<QX::ExpressionMinusUnaryOpNode>(node),
                                             MakeNode<QX::ExpressionAdditionNode>(node, MakeInteger(1)),
                                             MakeNode<QX::ExpressionEqualNode>(MakeInteger(1), node)};
    for (const TW::Ref<ExpressionNode>& root : roots) {
      const Expression expression(root);
      try {
        expression.Evaluate(host);
        ADD_FAILURE() << node->GetClassInfo()->GetName();
      } catch (const QX::ExpressionInvalidArgumentNumber& error) {
        EXPECT_EQ(error.GetSource(), node.Get());
      }
      EXPECT_THROW(Render(expression), QX::ExpressionInvalidArgumentNumber);
    }
  }
}

TEST(Nodes, KeepTheSignOfZero) {
  const auto signOf = [](const char16_t* text) {
    return std::signbit(ParseFormula(text).Evaluate(TestHost()).GetIntOrNumVariantValue());
  };
  EXPECT_TRUE(signOf(u"-0"));
  EXPECT_TRUE(signOf(u"-0.0 m"));
  EXPECT_FALSE(signOf(u"--0"));
  EXPECT_FALSE(signOf(u"+0"));
}

TEST(Nodes, AskTheHostOnceForEachReference) {
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  const TW::Guid three = FormulaWords::GetId("3");
  const TW::Guid four = FormulaWords::GetId("4");
  EXPECT_EQ(Evaluate(ParseFormula(FormulaWords::Replace("{3} * {4} + {3}")), host),
            (Outcome{QX::ExpressionValue::FromNumber(15), {}}));
  EXPECT_EQ(host.GetValueQuestions(), (std::vector<TW::Guid>{three, four, three}));
  EXPECT_TRUE(host.GetStatusQuestions().empty());
  // Nothing is asked after the first failure.
  host.ForgetQuestions();
  Evaluate(ParseFormula(FormulaWords::Replace("{3} + TRUE + {4}")), host);
  EXPECT_EQ(host.GetValueQuestions(), (std::vector<TW::Guid>{three}));
}

TEST(Nodes, AnIntegerStaysAnInteger) {
  const auto kindOf = [](const char16_t* text) {
    return ParseFormula(text).Evaluate(TestHost()).CloneContainedVariant()->GetKind();
  };
  EXPECT_EQ(kindOf(u"5"), TW::DynamicValue::Kind::Integer);
  EXPECT_EQ(kindOf(u"(5)"), TW::DynamicValue::Kind::Integer);
  for (const char16_t* text : {u"5.0", u"5 m", u"+5", u"1 + 1", u"2147483648"}) {
    EXPECT_EQ(kindOf(text), TW::DynamicValue::Kind::Number) << TW::UniString(text).ToUtf8();
  }
}

TEST(SyntaxTreeBuilder, RefusesWhatTheLanguageDoesNotKnow) {
  QX::SyntaxTreeBuilder builder;
  const TW::UniString guid(u"1AF5C228-7607-4175-9B78-A1779295614E");
  EXPECT_FALSE(builder.CreateFunctionNode(u"FOO"));
  EXPECT_FALSE(builder.CreateFunctionNode(u""));
  EXPECT_FALSE(builder.CreateIdentifierNode(u"FOO"));
  EXPECT_FALSE(builder.CreateIdentifierNode(u""));
  EXPECT_FALSE(builder.CreateReferenceNode(u"property", guid));
  EXPECT_FALSE(builder.CreateReferenceNode(u"", guid));
  EXPECT_FALSE(builder.CreateReferenceNode(u"Property", u"1AF5C228"));
  EXPECT_FALSE(builder.CreateQuotedStringNode(u"a [Property:1AF5C228-7607-4175-9B78-A1779295614E]"));
  for (const char16_t* sign : {u"", u"*", u"++", u"<"}) EXPECT_FALSE(builder.CreatePrefixOperatorNode(sign));
  for (const char16_t* sign : {u"", u"==", u"=<", u" +", u"&", u"!="})
    EXPECT_FALSE(builder.CreateBinaryOperatorNode(sign));
  EXPECT_THROW(builder.CreateFractionalInchNode(EP::FractionalInch(1, 2, 2)),
               EP::ExpressionInvalidFractionalNodeException);
  for (const char16_t* marker : {u"km", u"M", u"m ", u"d", u"°"}) EXPECT_FALSE(builder.IsValidUnitMarker(marker));
}

TEST(SyntaxTreeBuilder, MakesTheNodesOfTheLanguage) {
  QX::SyntaxTreeBuilder builder;
  const TW::UniString guid(u"1AF5C228-7607-4175-9B78-A1779295614E");
  const std::pair<TW::Ref<EP::SyntaxTreeNode>, const TW::ClassInfo*> rows[] = {
      {builder.CreateIntegerNode(-5, u"foo"), &ExpressionIntegerNode::classInfo},
      {builder.CreateNumberNode(5, u"foo", EP::LocalizedNumberString()), &QX::ExpressionNumberNode::classInfo},
      {builder.CreateFractionalInchNode({1, 1, 2}), &QX::ExpressionFractionalInchNode::classInfo},
      {builder.CreateQuotedStringNode(u"[Property:x]"), &QX::ExpressionQuotedStringNode::classInfo},
      {builder.CreateReferenceNode(u"Property", guid), &QX::ExpressionPropertyReferenceNode::classInfo},
      {builder.CreateReferenceNode(u"Property", u""), &QX::ExpressionPropertyReferenceNode::classInfo},
      {builder.CreateIdentifierNode(u"pI"), &QX::ExpressionIdentifierNode::classInfo},
      {builder.CreateParenthesizedNode(), &ExpressionParenthesizedNode::classInfo},
      {builder.CreatePrefixOperatorNode(u"+"), &QX::ExpressionPlusUnaryOpNode::classInfo},
      {builder.CreatePrefixOperatorNode(u"-"), &QX::ExpressionMinusUnaryOpNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"+"), &QX::ExpressionAdditionNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"-"), &QX::ExpressionSubtractionNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"*"), &QX::ExpressionMultiplicationNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"/"), &QX::ExpressionDivisionNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"^"), &QX::ExpressionPowerNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"<"), &QX::ExpressionLessThanNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"<="), &QX::ExpressionLessOrEqNode::classInfo},
      {builder.CreateBinaryOperatorNode(u">"), &QX::ExpressionGreaterThanNode::classInfo},
      {builder.CreateBinaryOperatorNode(u">="), &QX::ExpressionGreaterOrEqNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"="), &QX::ExpressionEqualNode::classInfo},
      {builder.CreateBinaryOperatorNode(u"<>"), &QX::ExpressionNotEqualNode::classInfo},
  };
  for (const auto& [node, info] : rows) {
    ASSERT_TRUE(node) << info->GetName();
    EXPECT_EQ(node->GetClassInfo(), info);
    EXPECT_EQ(node->GetReferenceCount(), 1U);
    EXPECT_EQ(node->GetChildCount(), 0U);
  }
}

}  // namespace
