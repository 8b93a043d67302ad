#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/Quantity.hpp"
#include "Quorix/Tolerance.hpp"
#include "TW/Ref.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

/// Calls `visit` once with a new, empty instance of every node class that has instances.
QX_EXPORT void EnumerateExpressionNodeTypes(const std::function<void(const TW::Ref<ExpressionNode>&)>& visit);
/// A hook for diagnostics: walks over all node classes and does nothing with them.
QX_EXPORT void DumpExpressionNodeHierarchy();

/// Renders the children of `node` as a list in brackets; the brackets, blanks and separators are pieces of `node`.
void BuildParenthesizedExpressionString(const ExpressionNode* node, IExpressionStringBuilder& builder);

/// The argument readers evaluate `node` and take its value as what is needed. They throw, naming `source`, for a value
/// of the wrong kind, even a user-undefined one; those that give a bool give false, and leave `out` alone, for a
/// user-undefined value of the right kind. An invalid value is an `ExpressionInternalErrorException` before any other
/// test.

/// Any valid value.
ExpressionValue GetExpressionValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                           const ExpressionNode* source);
/// A text, or else `ExpressionInvalidStringType`.
bool GetStringValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                            const ExpressionNode* source, TW::UniString& out);
/// A number without unit, or else `ExpressionInvalidNonUnitNumberType`.
bool GetNumberValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                            const ExpressionNode* source, double& out);
/// A logical value, or else `ExpressionInvalidBoolType`.
bool GetBooleanValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                             const ExpressionNode* source, bool& out);
/// A whole number of 0 or more, or else `ExpressionZeroOrPositiveWholeNumberExpected`.
bool GetZeroOrPositiveWholeNumberFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                          const ExpressionNode* source, unsigned int& out);
/// A whole number of 1 or more, or else `ExpressionPositiveWholeNumberExpected`.
bool GetPositiveWholeNumberFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                    const ExpressionNode* source, unsigned int& out);
/// A number with or without unit, or else `ExpressionInvalidQuantityType`.
inline Quantity GetQuantityValueFromNode(const IExpressionEvaluationEnv& env, const ExpressionNode* node,
                                         const ExpressionNode* source) {
  return node->EvaluateQuantity(env, source);
}

/// The same for a value that is there already.
inline const ExpressionValue& RequireValid(const ExpressionValue& value, const ExpressionNode* source) {
  if (!value.IsValid()) [[unlikely]]
    throw ExpressionInternalErrorException(source);
  return value;
}
inline Quantity RequireQuantity(const ExpressionValue& value, const ExpressionNode* source) {
  if (!RequireValid(value, source).CanConvertToQuantity()) [[unlikely]]
    throw ExpressionInvalidQuantityType(source);
  return value.ConvertToQuantity();
}
/// The quantity that a node has computed, which is invalid when it is not finite.
inline const Quantity& RequireFinite(const Quantity& quantity, const ExpressionNode* source) {
  if (!quantity.IsUserUndefinedValue() && !IsValidNumber(quantity.GetNumericValue())) [[unlikely]] {
    throw ExpressionInternalErrorException(source);
  }
  return quantity;
}

}  // namespace QX
