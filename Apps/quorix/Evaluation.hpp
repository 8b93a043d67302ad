#pragma once

#include "EP/SyntaxErrorException.hpp"
#include "Environment.hpp"
#include "Quorix/Expression.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <exception>
#include <string_view>

namespace Command {

/// Why a formula has no value.
struct Failure {
  enum class Stage { Syntax, Evaluation };

  Stage stage;
  TW::UniString name;                          ///< for programs, always the same
  TW::UniString message;                       ///< for people, in their language
  short index = 0;                             ///< the place of the message in its list, or 0
  TW::Range<unsigned int> place = {};          ///< in the text given, for stage `Syntax`
  const QX::ExpressionNode* source = nullptr;  ///< the node at fault, if one is
};

/// What became of a formula. The expression has a tree as soon as the text could be read.
struct Evaluation {
  QX::Expression expression;
  QX::ExpressionValue value;
  TW::Optional<Failure> failure;
};

/// Reads and evaluates the text of a formula. That there is not enough memory is a failure like any other.
Evaluation Evaluate(const TW::UniString& formula, const Environment& environment);

/// The failure that an exception stands for; throws on what is none of the library's. To be called while it is caught.
Failure DescribeCaughtException();

/// The same for one that was kept.
Failure DescribeException(const std::exception_ptr& exception);

/// Calls `evaluate` and gives why it failed, or nothing.
template <class Function>
TW::Optional<Failure> Attempt(Function&& evaluate) {
  try {
    evaluate();
    return {};
  } catch (...) {
    return DescribeCaughtException();
  }
}

/// The name of a reason, as in its enumeration.
std::u16string_view GetReasonName(EP::SyntaxErrorReason reason);

}  // namespace Command
