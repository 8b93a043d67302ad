#pragma once

#include "Quorix/Export.hpp"
#include "TW/Exceptions.hpp"
#include "TW/UniString.hpp"

/// Why a formula could not be evaluated. Each exception names the node at fault; its class alone decides the message.
/// Thrown by value; catch the root or one of the abstract classes by reference.

namespace QX {

class ExpressionNode;

/// The root of the family.
class QX_EXPORT ExpressionSemanticException : public TWException {
 public:
  /// Keeps a plain pointer to `source`, which may be null and must live as long as it is asked for.
  explicit ExpressionSemanticException(const ExpressionNode* source);

  /// The place of the message in the list of error messages, 1 to 18. Fixed for ever: translations depend on it.
  virtual short GetResIdx() const = 0;

  /// The node that raised the failure; it lives as long as its tree.
  const ExpressionNode* GetSource() const { return source_; }
  /// The message in the user's language.
  TW::UniString ToString() const;
  /// A fixed English text that names no cause; `ToString` tells the user, `GetName` the programmer.
  const char* what() const noexcept override { return "a formula could not be evaluated"; }

 private:
  const ExpressionNode* source_;
};

/// Something arose that cannot arise from what a formula says.
class QX_EXPORT ExpressionInternalErrorException : public ExpressionSemanticException {
 public:
  using ExpressionSemanticException::ExpressionSemanticException;
  short GetResIdx() const override { return 1; }
};

/// A function would make a longer text than the host allows. Under the name of its base, for a formula that is right
/// elsewhere may fail so here.
class QX_EXPORT ExpressionTextTooLongException final : public ExpressionInternalErrorException {
 public:
  using ExpressionInternalErrorException::ExpressionInternalErrorException;
  TW::UniString GetName() const override { return ExpressionInternalErrorException(GetSource()).GetName(); }
};

/// The arguments do not go together.
class QX_EXPORT ExpressionInvalidArgumentListException : public ExpressionSemanticException {
 public:
  using ExpressionSemanticException::ExpressionSemanticException;
};

/// A function, operator, identifier or bracket has too many or too few arguments.
class QX_EXPORT ExpressionInvalidArgumentNumber : public ExpressionInvalidArgumentListException {
 public:
  using ExpressionInvalidArgumentListException::ExpressionInvalidArgumentListException;
  short GetResIdx() const override { return 2; }
};

/// Values of different kinds are tested for equality.
class QX_EXPORT ExpressionEqualsOperatorArgumentTypesMismatch : public ExpressionInvalidArgumentListException {
 public:
  using ExpressionInvalidArgumentListException::ExpressionInvalidArgumentListException;
  short GetResIdx() const override { return 3; }
};

/// Values of different dimensions are added, subtracted, compared or aggregated.
class QX_EXPORT ExpressionIncompatibleArgumentDimensions : public ExpressionInvalidArgumentListException {
 public:
  using ExpressionInvalidArgumentListException::ExpressionInvalidArgumentListException;
  short GetResIdx() const override { return 4; }
};

/// The branches of a condition give values of different kinds or dimensions.
class QX_EXPORT ExpressionDifferentIfBranchTypes : public ExpressionInvalidArgumentListException {
 public:
  using ExpressionInvalidArgumentListException::ExpressionInvalidArgumentListException;
  short GetResIdx() const override { return 18; }
};

/// One argument is wrong in itself.
class QX_EXPORT ExpressionInvalidArgument : public ExpressionSemanticException {
 public:
  using ExpressionSemanticException::ExpressionSemanticException;
};

/// A plain number is required.
class QX_EXPORT ExpressionInvalidNonUnitNumberType : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
  short GetResIdx() const override { return 5; }
};

/// A number, with or without unit, is required.
class QX_EXPORT ExpressionInvalidQuantityType : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
  short GetResIdx() const override { return 6; }
};

/// A text is required.
class QX_EXPORT ExpressionInvalidStringType : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
  short GetResIdx() const override { return 7; }
};

/// A logical value is required.
class QX_EXPORT ExpressionInvalidBoolType : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
  short GetResIdx() const override { return 8; }
};

/// An angle is required.
class QX_EXPORT ExpressionInvalidAngleType : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
  short GetResIdx() const override { return 9; }
};

/// An argument of the right kind lies outside what the function takes.
class QX_EXPORT ExpressionOutOfDomain : public ExpressionInvalidArgument {
 public:
  using ExpressionInvalidArgument::ExpressionInvalidArgument;
};

/// The function has no value for this argument.
class QX_EXPORT ExpressionOutOfDomainOfMathematicalFunction : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 10; }
};

/// A whole number of 0 or more is required.
class QX_EXPORT ExpressionZeroOrPositiveWholeNumberExpected : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 11; }
};

/// A whole number is required.
class QX_EXPORT ExpressionWholeNumberExpected : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 12; }
};

/// The divisor is zero.
class QX_EXPORT ExpressionDivisionByZero : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 13; }
};

/// A whole number of 1 or more is required.
class QX_EXPORT ExpressionPositiveWholeNumberExpected : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 15; }
};

/// More decimal digits are asked for than a text can show.
class QX_EXPORT ExpressionTooMuchDigitsRequested : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 16; }
};

/// A text is no number.
class QX_EXPORT ExpressionCannotConvertToNumber : public ExpressionOutOfDomain {
 public:
  using ExpressionOutOfDomain::ExpressionOutOfDomain;
  short GetResIdx() const override { return 17; }
};

/// There is no result to work with.
class QX_EXPORT ExpressionNoAvailableResult : public ExpressionSemanticException {
 public:
  using ExpressionSemanticException::ExpressionSemanticException;
};

/// The host could not give the value of a referenced property.
class QX_EXPORT ExpressionPropertyEvaluationFailed : public ExpressionNoAvailableResult {
 public:
  using ExpressionNoAvailableResult::ExpressionNoAvailableResult;
  short GetResIdx() const override { return 14; }
};

}  // namespace QX
