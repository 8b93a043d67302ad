#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/TreeMaker.hpp"

#include <rapidcheck/gtest.h>

namespace {

using QX::Expression;
using QX::ExpressionNode;

// Repetition is left out: it may ask for any amount of memory.
Expression MakeFormula() {
  std::vector<TW::UniString> functions = TreeMaker::GetFunctionNames();
  std::erase(functions, TW::UniString(u"REPT"));
  return TreeMaker(functions).Make();
}

RC_GTEST_PROP(Trees, AreReadBackFromTheirTextInEveryLocale, ()) {
  const Expression formula = MakeFormula();
  const QX::EvaluationLocaleSettings locales[] = {
      {'.', ',', 0}, {',', ';', 0}, {',', ',', 0}, {u'\u066B', u'\u060C', 0}};
  for (const QX::EvaluationLocaleSettings& locale : locales) {
    const TW::UniString text = Render(formula, locale);
    RC_LOG() << text.ToUtf8() << '\n';
    const Expression parsed = ParseFormula(text, locale);
    RC_ASSERT(Store(parsed) == Store(formula));
    RC_ASSERT(Render(parsed, locale) == text);
  }
}

RC_GTEST_PROP(Trees, AreReadBackFromTheirBytes, ()) {
  const Expression formula = MakeFormula();
  const StoredBytes bytes = Store(formula);
  Expression read;
  RC_ASSERT(ReadStored(bytes, read) == TW::NoErr);
  RC_ASSERT(Store(read) == bytes);
  RC_ASSERT(read.IsEqual(formula));
  RC_ASSERT(Render(read) == Render(formula));
}

RC_GTEST_PROP(Trees, EvaluateToTheSameEveryTime, ()) {
  const bool withFailures = *rc::gen::arbitrary<bool>();
  const Expression formula = withFailures ? MakeFormula() : TreeMaker::MakeSum();
  RC_LOG() << Render(formula).ToUtf8() << '\n';
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  host.SetPropagation(*rc::gen::arbitrary<bool>());
  const Outcome outcome = Evaluate(formula, host);
  RC_CLASSIFY(outcome.failure.empty(), "gives a value");
  RC_ASSERT(Evaluate(formula, host) == outcome);
  RC_ASSERT(Evaluate(Expression(formula), host) == outcome);
}

bool EnclosesItsChildren(const ExpressionNode* node) {
  return dynamic_cast<const QX::ExpressionParenthesizedNode*>(node) != nullptr ||
         dynamic_cast<const QX::ExpressionFunctionNode*>(node) != nullptr;
}

RC_GTEST_PROP(Trees, RangesOfNodesLieWithinTheirBrackets, ()) {
  const Expression formula = MakeFormula();
  const QX::ExpressionString text = formula.GetExpressionString(EP::IOLocaleSettings());
  RC_LOG() << text.GetFullString().ToUtf8() << '\n';
  formula.GetRoot()->EnumerateRecursive([&text](const ExpressionNode* node) {
    const TW::Range<unsigned int> range = text.GetNodeRange(node);
    RC_ASSERT(text.HasNodeRange(node));
    RC_ASSERT(range.begin < range.end);
    RC_ASSERT(range.end <= text.GetFullString().GetLength());
    if (!EnclosesItsChildren(node)) return;
    for (unsigned int i = 0; i < node->GetChildCount(); ++i) {
      const TW::Range<unsigned int> inner = SpanOf(*node->GetChild(i), text);
      RC_ASSERT(range.begin < inner.begin);
      RC_ASSERT(inner.end < range.end);
    }
  });
}

}  // namespace
