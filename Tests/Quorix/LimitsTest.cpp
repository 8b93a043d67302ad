#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/Formulas.hpp"
#include "Quorix/SmallStack.hpp"

#include <string_view>

// Long and deep formulas.

namespace {

using QX::Expression;

TW::UniString Repeat(unsigned int count, std::u16string_view part) {
  TW::UniString text;
  for (unsigned int i = 0; i < count; ++i) text += part;
  return text;
}

// Everything that can be done with a formula.
void Exercise(const TW::UniString& text, unsigned int nodes, const TW::UniString& value) {
  const TestHost host;
  Expression parsed = ParseFormula(text);
  const Outcome outcome = Evaluate(parsed, host);
  EXPECT_EQ(outcome, Evaluate(ParseFormula(value), host));

  unsigned int visited = 0;
  const_cast<QX::ExpressionNode*>(parsed.GetRoot())->EnumerateRecursive([&visited](QX::ExpressionNode*) { ++visited; });
  EXPECT_EQ(visited, nodes);
  EXPECT_TRUE(parsed.IsValidInVersion(2));

  const TW::UniString rendered = Render(parsed);
  Expression read;
  ASSERT_EQ(ReadStored(Store(parsed), read), TW::NoErr);
  const Expression copy = read;
  EXPECT_TRUE(parsed.IsEqual(copy));
  EXPECT_TRUE(Render(copy) == rendered);
  EXPECT_EQ(Evaluate(copy, host), outcome);
  EXPECT_TRUE(Render(ParseFormula(rendered)) == rendered);
}

TEST(Limits, LongFormulasNeedNoStack) {
  struct Row {
    const char16_t* first;
    const char16_t* part;
    unsigned int count;
    unsigned int nodesOfPart;
    const char16_t* value;
  };
  const Row rows[] = {
      {u"1", u"+1", 100'000, 2, u"100001"},
      {u"1", u" - 1 * 1", 20'000, 4, u"-19999"},
      {u"2", u"*1.0/1", 20'000, 4, u"2"},
      {u"TRUE", u" = TRUE", 20'000, 2, u"TRUE"},
      {u"1 m", u" + ( 0.25 m ^ 1 - -0.25 m ) ", 20'000, 8, u"10001 m"},
      // A text of one megabyte in UTF-8.
      {u"0 m", u" + 1234567.25 mm - 1234567.25 mm", 32'000, 4, u"0 m"},
  };
  RunOnSmallStack([&rows] {
    for (const Row& row : rows) {
      Exercise(TW::UniString(row.first) + Repeat(row.count, row.part), 1 + row.count * row.nodesOfPart, row.value);
    }
    const TW::UniString quoted = u"\"" + Repeat(500'000, u"é") + u"\"";
    Exercise(quoted + u" = " + quoted, 3, u"TRUE");
  });
}

TEST(Limits, ChainsThatFailNeedNoStack) {
  RunOnSmallStack([] {
    const TestHost host;
    const TW::UniString tail = Repeat(100'000, u" + 1");
    EXPECT_EQ(Evaluate(ParseFormula(u"1 / 0" + tail), host).failure, "error ExpressionDivisionByZero @0..5");
    EXPECT_THROW(ParseFormula(u"1" + tail + u" +"), EP::SyntaxErrorException);
    EXPECT_FALSE(Expression::CreateFromIOString(u"1" + tail + u" + x").IsValid());
  });
}

struct NestingRow {
  const char16_t* opening;
  unsigned int levels;  // of one opening
  unsigned int nodes;
  const char16_t* closing;
  const char16_t* value;  // of the deepest nesting around 1; null when it cannot be evaluated
};

constexpr NestingRow NestingRows[] = {
    {u"( ", 1, 1, u" )", u"1"},
    {u"- ", 1, 1, u"", u"1"},
    {u"+", 1, 1, u"", u"1"},
    {u"1 ^ ", 1, 2, u"", u"1"},
    {u"1 ^ - ", 2, 3, u"", u"1"},
    {u"- (", 2, 2, u")", u"1"},
    {u"0 + 1 * (", 1, 5, u")", u"1"},
    {u"0 - 1 * - 1 ^ (", 3, 8, u")", u"1"},
    {u"SUM(", 1, 1, u")", u"1"},
    {u"if(true,", 1, 3, u",2)", u"1"},
    {u"ABS(-(1^", 4, 5, u"))", u"1"},
    {u"IFS(FALSE,0,1=1,", 1, 6, u")", u"1"},
    {u"1 = 1 + 1 * (", 1, 7, u")", nullptr},
};

EP::SyntaxErrorReason ReasonAgainst(const TW::UniString& text) {
  try {
    ParseFormula(text);
  } catch (const EP::SyntaxErrorException& error) {
    return error.GetReason();
  }
  ADD_FAILURE() << "a formula";
  return {};
}

TEST(Limits, TheDeepestNestingIsTheSameInTextsAndInStoredFormulas) {
  constexpr unsigned int Deepest = EP::MaximumNestingDepth;
  for (const NestingRow& row : NestingRows) {
    const unsigned int count = Deepest / row.levels;
    const TW::UniString text = Repeat(count, row.opening) + u"1" + Repeat(count, row.closing);
    Exercise(text, 1 + count * row.nodes, row.value != nullptr ? TW::UniString(row.value) : text);

    const unsigned int tooMany = Deepest - count * row.levels + 1;
    EXPECT_EQ(ReasonAgainst(Repeat(tooMany, u"(") + text + Repeat(tooMany, u")")),
              EP::SyntaxErrorReason::TooDeeplyNested);
    QX::SyntaxTreeBuilder builder;
    TW::Ref<QX::ExpressionNode> root = EP::BoostGenerateSyntaxTree(text, EP::IOLocaleSettings(), builder);
    for (unsigned int i = 0; i < tooMany; ++i) root = MakeNode<QX::ExpressionParenthesizedNode>(root);
    Expression read;
    EXPECT_EQ(ReadStored(Store(Expression(root)), read), TW::ErrTooDeep) << TW::UniString(row.opening).ToUtf8();
    EXPECT_FALSE(read.IsValid());
  }
}

// No text makes operators lean to the right like this, so only their count is bounded.
TEST(Limits, StoredOperatorsMayLeanToTheRightALittle) {
  constexpr unsigned int Most = 4 * TW::TreeNode::DefaultMaximumDepth + 3;
  const auto one = [] { return TW::MakeRef<QX::ExpressionIntegerNode>(1, TW::UniString()); };
  TW::Ref<QX::ExpressionNode> root = one();
  for (unsigned int i = 0; i < Most; ++i) root = MakeNode<QX::ExpressionAdditionNode>(one(), root);
  Expression read;
  ASSERT_EQ(ReadStored(Store(Expression(root)), read), TW::NoErr);
  EXPECT_EQ(Evaluate(read, TestHost()), (Outcome{QX::ExpressionValue::FromNumber(Most + 1), {}}));
  EXPECT_EQ(Render(read).GetLength(), 4 * Most + 1);
  root = MakeNode<QX::ExpressionAdditionNode>(one(), root);
  EXPECT_EQ(ReadStored(Store(Expression(root)), read), TW::ErrTooDeep);
}

}  // namespace
