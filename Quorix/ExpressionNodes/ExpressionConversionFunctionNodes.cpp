#include "Quorix/ExpressionNodes/ExpressionConversionFunctionNodes.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionNodes/FunctionArgumentReader.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionValueToString.hpp"
#include "TW/NumberText.hpp"
#include "TW/Optional.hpp"

namespace QX {
namespace {

constexpr unsigned int UsualDecimals = 2;
constexpr unsigned int MostDecimals = 12;
constexpr TWUnit::UnitMarkerMode MarkerMode = TWUnit::UnitMarkerMode::Legacy;

ExpressionValue UndefinedText() { return ExpressionValue::FromString(ExpressionValue::UndefinedSelector()); }

ExpressionValue FromFormatted(TW::Optional<TW::UniString> text, const ExpressionNode* node) {
  if (!text) throw ExpressionInternalErrorException(node);
  return ExpressionValue::FromString(*std::move(text));
}

bool HasDisplayUnit(const UnitExponents& exponents) {
  return exponents.IsAngle() || exponents.IsLength() || exponents.IsArea() || exponents.IsVolume();
}

}  // namespace

TW::ClassInfo ExpressionStrFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionStrFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionStrFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const ExpressionValue value = reader.ReadValue();
  if (!value.GetUnitExponents().IsNonUnit()) throw ExpressionInvalidNonUnitNumberType(this);
  const unsigned int decimals = reader.HasMore() ? reader.ReadCount() : UsualDecimals;
  if (!reader.AllDefined()) return UndefinedText();
  if (decimals > MostDecimals) throw ExpressionTooMuchDigitsRequested(this);
  return FromFormatted(ConvertExpressionValueToString(value, env.GetUnitConverter(), env.GetLocaleSettings(),
                                                      MarkerMode, decimals, decimals),
                       this);
}

TW::ClassInfo ExpressionStrCalcUnitFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionStrCalcUnitFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionStrCalcUnitFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                    const Arguments& arguments) const {
  const Quantity quantity = GetQuantityValueFromNode(env, arguments[0], this);
  if (!HasDisplayUnit(quantity.GetUnitExponents())) throw ExpressionInvalidQuantityType(this);
  if (quantity.IsUserUndefinedValue()) return UndefinedText();
  return FromFormatted(
      env.GetUnitConverter().SIToString(ExpressionValue::FromQuantity(quantity), env.GetLocaleSettings(), MarkerMode),
      this);
}

TW::ClassInfo ExpressionStrToNumFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionStrToNumFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionStrToNumFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                 const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  if (!reader.AllDefined()) return ExpressionValue::FromNumber(ExpressionValue::UndefinedSelector());
  const IEvaluationLocaleSettings& locale = env.GetLocaleSettings();
  double number = 0.0;
  if (!TWUtils::ConvertNumberStringToNonUnit(text, locale.GetDecimalSeparator(), locale.GetThousandSeparator(),
                                             &number)) {
    throw ExpressionCannotConvertToNumber(this);
  }
  return ExpressionValue::FromNumber(number);
}

}  // namespace QX
