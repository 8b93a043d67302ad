#pragma once

#include "EP/Export.hpp"
#include "TW/Exceptions.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

namespace EP {

/// Why a text is no formula. The order is that of the messages in string list 109.
enum class SyntaxErrorReason {
  UnexpectedCharacter,  ///< a character that begins no element, or an element where none can stand
  UnexpectedEnd,        ///< the text ends where an operand must follow
  OperandExpected,      ///< an operator, a closing parenthesis or a separator stands where an operand must follow
  ClosingParenthesisExpected,  ///< the text ends while a parenthesis is open
  UnterminatedText,            ///< the closing quotation mark is missing; the place is the opening one
  UnterminatedReference,       ///< the closing bracket is missing; the place is the opening one
  RefusedReference,            ///< the builder accepts no such reference
  RefusedText,                 ///< the builder accepts no such quoted text
  UnknownFunction,             ///< the builder knows no function of this name
  UnknownIdentifier,           ///< the builder knows no identifier of this name
  UnknownUnit,                 ///< what follows a number is no unit that the builder knows
  NumberOutOfRange,            ///< a number too large for a double, or a fraction of an inch that is none
  TooDeeplyNested,             ///< the element opens more than `MaximumNestingDepth` levels
};

/// The text is no formula. Says why, and where, in 16-bit code units of the text that was given. `ToString` tells the
/// user, in sentences; `what` the programmer, in English.
class EP_EXPORT SyntaxErrorException : public TWException {
 public:
  SyntaxErrorException(SyntaxErrorReason reason, TW::Range<unsigned int> place);
  ~SyntaxErrorException() override;

  SyntaxErrorReason GetReason() const { return reason_; }
  unsigned int GetPosition() const { return place_.begin; }
  /// 0 when the fault is that the text ends.
  unsigned int GetLength() const { return place_.GetLength(); }
  /// What is wrong and what to do about it, in the user's language. Texts come from the resource file of the process.
  TW::UniString ToString() const;

  /// Says where the fault lies when whoever threw could not know.
  void SetPlace(TW::Range<unsigned int> place) { place_ = place; }

 private:
  SyntaxErrorReason reason_;
  TW::Range<unsigned int> place_;
};

}  // namespace EP
