#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFractionalInchNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionQuotedStringNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionUnaryOpNode.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace {

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
      {builder.CreateIntegerNode(-5, u"foo"), &QX::ExpressionIntegerNode::classInfo},
      {builder.CreateNumberNode(5, u"foo", EP::LocalizedNumberString()), &QX::ExpressionNumberNode::classInfo},
      {builder.CreateFractionalInchNode({1, 1, 2}), &QX::ExpressionFractionalInchNode::classInfo},
      {builder.CreateQuotedStringNode(u"[Property:x]"), &QX::ExpressionQuotedStringNode::classInfo},
      {builder.CreateReferenceNode(u"Property", guid), &QX::ExpressionPropertyReferenceNode::classInfo},
      {builder.CreateReferenceNode(u"Property", u""), &QX::ExpressionPropertyReferenceNode::classInfo},
      {builder.CreateIdentifierNode(u"pI"), &QX::ExpressionIdentifierNode::classInfo},
      {builder.CreateParenthesizedNode(), &QX::ExpressionParenthesizedNode::classInfo},
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
