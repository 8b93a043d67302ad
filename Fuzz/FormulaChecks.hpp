#pragma once

#include "BoundedMemory.hpp"
#include "FuzzInput.hpp"
#include "Quorix/FormulaSteps.hpp"

#include <new>

/// What must hold of every formula, wherever it comes from.

/// Evaluates a formula. That there is not enough memory is an outcome, too.
inline Outcome EvaluateWithBoundedMemory(const QX::Expression& expression, const TestHost& host) {
  const BoundedMemory shortage;
  try {
    return Evaluate(expression, host);
  } catch (const std::bad_alloc&) {
    return {{}, "no memory"};
  }
}

inline void CheckEvaluation(const QX::Expression& expression, const TestHost& host) {
  const Outcome outcome = EvaluateWithBoundedMemory(expression, host);
  Require(outcome.failure != "error without a node", "a failure names the node at fault");
  Require(EvaluateWithBoundedMemory(expression, host) == outcome, "a formula has the same value every time");
  const QX::Expression copy(expression);
  Require(EvaluateWithBoundedMemory(copy, host) == outcome, "a copy has the same value");
}

inline void CheckStoring(const QX::Expression& expression) {
  const StoredBytes bytes = Store(expression);
  QX::Expression read;
  Require(ReadStored(bytes, read) == TW::NoErr, "what was stored can be read");
  Require(Store(read) == bytes, "what was read is stored as it was");
}

inline void CheckRanges(const QX::Expression& expression, const EP::IParsingLocaleSettings& locale) {
  const QX::ExpressionString text = expression.GetExpressionString(locale);
  expression.GetRoot()->EnumerateRecursive([&text](const QX::ExpressionNode* node) {
    const TW::Range<unsigned int> range = text.GetNodeRange(node);
    Require(range.begin <= range.end, "a range ends after it begins");
    Require(range.end <= text.GetFullString().GetLength(), "a range lies within the text");
  });
}
