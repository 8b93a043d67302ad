#include "EP/SyntaxErrorException.hpp"

#include "Resources/ResourceModule.hpp"
#include "TW/ErrorCodes.hpp"

namespace EP {
namespace {

constexpr int SyntaxMessageList = 109;

const char16_t* GetPhrase(SyntaxErrorReason reason) {
  switch (reason) {
    case SyntaxErrorReason::UnexpectedCharacter:
      return u"Unexpected character.";
    case SyntaxErrorReason::UnexpectedEnd:
      return u"Unexpected end of the formula.";
    case SyntaxErrorReason::OperandExpected:
      return u"Operand expected.";
    case SyntaxErrorReason::ClosingParenthesisExpected:
      return u"Closing parenthesis expected.";
    case SyntaxErrorReason::UnterminatedText:
      return u"Closing quotation mark missing.";
    case SyntaxErrorReason::UnterminatedReference:
      return u"Closing bracket of the reference missing.";
    case SyntaxErrorReason::RefusedReference:
      return u"Reference not accepted.";
    case SyntaxErrorReason::RefusedText:
      return u"Text not accepted.";
    case SyntaxErrorReason::UnknownFunction:
      return u"Unknown function.";
    case SyntaxErrorReason::UnknownIdentifier:
      return u"Unknown identifier.";
    case SyntaxErrorReason::UnknownUnit:
      return u"Unknown unit.";
    case SyntaxErrorReason::NumberOutOfRange:
      return u"Number out of range.";
    case SyntaxErrorReason::TooDeeplyNested:
      return u"Formula nested too deeply.";
  }
  return u"Syntax error.";
}

}  // namespace

SyntaxErrorException::SyntaxErrorException(SyntaxErrorReason reason, TW::Range<unsigned int> place)
    : TWException(GetPhrase(reason), {}, 0, nullptr, TW::ErrRefused), reason_(reason), place_(place) {}

SyntaxErrorException::~SyntaxErrorException() = default;

TW::UniString SyntaxErrorException::ToString() const {
  return Resources::GetIndString(SyntaxMessageList, static_cast<int>(reason_) + 1, Resources::GetProcessModule());
}

}  // namespace EP
