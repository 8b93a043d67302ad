#pragma once

#include "EP/Parser.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"
#include "Quorix/TestHost.hpp"
#include "TW/MemoryChannel.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// The steps that tests and fuzzers take with formulas: read, write, store and evaluate them.

using StoredBytes = std::vector<std::byte>;

/// Throws `EP::SyntaxErrorException` for a text that is no formula.
inline QX::Expression ParseFormula(const TW::UniString& text,
                                   const EP::IParsingLocaleSettings& settings = EP::IOLocaleSettings()) {
  QX::SyntaxTreeBuilder builder;
  return QX::Expression(EP::BoostGenerateSyntaxTree(text, settings, builder));
}

inline TW::UniString Render(const QX::Expression& expression,
                            const EP::IParsingLocaleSettings& settings = EP::IOLocaleSettings()) {
  return expression.GetExpressionString(settings).GetFullString();
}

inline StoredBytes Store(const TW::Object& object) {
  TW::MemoryOChannel channel;
  if (object.Write(channel) != TW::NoErr) throw std::runtime_error("the object cannot be stored");
  return channel.TakeBytes();
}

inline TW::ErrCode ReadStored(const StoredBytes& bytes, TW::Object& object) {
  TW::MemoryIChannel channel(bytes);
  return object.Read(channel);
}

/// What became of a formula: its value, or the failure as the files of cases state it.
struct Outcome {
  QX::ExpressionValue value;
  std::string failure;

  /// Values without tolerance.
  friend bool operator==(const Outcome& a, const Outcome& b) {
    return a.failure == b.failure && QX::ExpressionValue::AreEqualByContent(a.value, b.value);
  }
};

inline std::string RangeText(unsigned int begin, unsigned int end) {
  return " @" + std::to_string(begin) + ".." + std::to_string(end);
}

/// The range of a node's text and of that of everything below it.
inline TW::Range<unsigned int> SpanOf(const QX::ExpressionNode& node, const QX::ExpressionString& text) {
  std::optional<TW::Range<unsigned int>> span;
  node.EnumerateRecursive([&](const QX::ExpressionNode* below) {
    if (!text.HasNodeRange(below)) return;
    const TW::Range<unsigned int> range = text.GetNodeRange(below);
    if (!span) span = range;
    span = {std::min(span->begin, range.begin), std::max(span->end, range.end)};
  });
  return span.value_or(TW::Range<unsigned int>());
}

inline Outcome Evaluate(const QX::Expression& expression, const TestHost& host) {
  try {
    return {expression.Evaluate(host), {}};
  } catch (const QX::ExpressionSemanticException& error) {
    if (error.GetSource() == nullptr) return {{}, "error without a node"};
    const auto span = SpanOf(*error.GetSource(), expression.GetExpressionString(host.GetLocaleSettings()));
    return {{}, "error " + error.GetName().ToUtf8() + RangeText(span.begin, span.end)};
  }
}
