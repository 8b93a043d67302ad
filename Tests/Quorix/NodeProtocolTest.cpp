#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
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

}  // namespace
