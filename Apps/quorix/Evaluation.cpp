#include "Evaluation.hpp"

#include "EP/SyntaxTree.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"

#include <new>
#include <stdexcept>

namespace Command {
namespace {

constexpr std::u16string_view ReasonNames[] = {
    u"UnexpectedCharacter", u"UnexpectedEnd",         u"OperandExpected",  u"ClosingParenthesisExpected",
    u"UnterminatedText",    u"UnterminatedReference", u"RefusedReference", u"RefusedText",
    u"UnknownFunction",     u"UnknownIdentifier",     u"UnknownUnit",      u"NumberOutOfRange",
    u"TooDeeplyNested",
};

Failure MakeFailure(const EP::SyntaxErrorException& exception) {
  Failure failure{Failure::Stage::Syntax, TW::UniString(GetReasonName(exception.GetReason())), exception.ToString()};
  failure.place = {exception.GetPosition(), exception.GetPosition() + exception.GetLength()};
  return failure;
}

Failure MakeFailure(const QX::ExpressionSemanticException& exception) {
  Failure failure{Failure::Stage::Evaluation, exception.GetName(), exception.ToString()};
  failure.index = exception.GetResIdx();
  failure.source = exception.GetSource();
  return failure;
}

Failure MakeOutOfMemory() {
  return {Failure::Stage::Evaluation, u"OutOfMemory",
          u"There is not enough memory for the value of this formula. Make its texts shorter, or allow more memory."};
}

}  // namespace

std::u16string_view GetReasonName(EP::SyntaxErrorReason reason) {
  return ReasonNames[static_cast<std::size_t>(reason)];
}

Failure DescribeCaughtException() {
  try {
    throw;
  } catch (const EP::SyntaxErrorException& exception) {
    return MakeFailure(exception);
  } catch (const QX::ExpressionSemanticException& exception) {
    return MakeFailure(exception);
  } catch (const TWException& exception) {
    return {Failure::Stage::Evaluation, exception.GetName(), exception.GetMessage()};
  } catch (const std::bad_alloc&) {
    return MakeOutOfMemory();
  } catch (const std::length_error&) {
    // What a container says to a size that no memory could hold.
    return MakeOutOfMemory();
  }
}

Failure DescribeException(const std::exception_ptr& exception) {
  try {
    std::rethrow_exception(exception);
  } catch (...) {
    return DescribeCaughtException();
  }
}

Evaluation Evaluate(const TW::UniString& formula, const Environment& environment) {
  Evaluation evaluation;
  evaluation.failure = Attempt([&] {
    QX::SyntaxTreeBuilder builder;
    evaluation.expression = QX::Expression(
        EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(formula, environment.GetLocaleSettings(), builder));
    evaluation.value = evaluation.expression.Evaluate(environment);
  });
  return evaluation;
}

}  // namespace Command
