#include "FormulaChecks.hpp"
#include "TW/MemoryChannel.hpp"

#include <span>

// Formulas as files hold them, whole or broken.

namespace {

using QX::Expression;

struct Reading {
  TW::ErrCode error = TW::NoErr;
  std::size_t length = 0;  // what was read of the bytes
};

Reading Read(std::span<const std::byte> bytes, Expression& expression) {
  TW::MemoryIChannel channel(bytes);
  try {
    const TW::ErrCode error = expression.Read(channel);
    return {error, bytes.size() - channel.GetRemaining()};
  } catch (const TW::ClassCastException& exception) {
    return {exception.GetErrorCode(), 0};
  }
}

// A stored operator may lack operands: then the formula has no text, and no value where the operator is evaluated.
bool HasText(const Expression& expression) {
  try {
    return !Render(expression).IsEmpty();
  } catch (const QX::ExpressionInvalidArgumentNumber&) {
    return false;
  }
}

void EvaluateWithoutText(const Expression& expression, const TestHost& host) {
  const BoundedMemory shortage;
  try {
    expression.Evaluate(host);
  } catch (const QX::ExpressionSemanticException& error) {
    Require(error.GetSource() != nullptr, "a failure names the node at fault");
  } catch (const std::bad_alloc&) {
  }
}

void CheckTree(const Expression& expression) {
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  CheckStoring(expression);
  expression.IsValidInVersion(1);
  expression.GetEvaluableStatus(host);
  if (HasText(expression)) {
    CheckRanges(expression, host.GetLocaleSettings());
    CheckEvaluation(expression, host);
  } else {
    EvaluateWithoutText(expression, host);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = std::as_bytes(std::span(data, size));
  static const Expression before = ParseFormula(u"42");
  Expression expression = before;
  const Reading reading = Read(bytes, expression);
  if (reading.error != TW::NoErr) {
    Require(Render(expression) == u"42", "a formula that cannot be read leaves the one before");
    return 0;
  }
  Expression shorter;
  Require(Read(bytes.first(reading.length - 1), shorter).error != TW::NoErr, "a formula that is cut cannot be read");
  if (expression.IsValid()) CheckTree(expression);
  return 0;
}
