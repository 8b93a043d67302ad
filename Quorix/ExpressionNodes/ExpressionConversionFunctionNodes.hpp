#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions between numbers and texts, in the separators and units that the host gives.

namespace QX {

/// A value without unit as text, and how many decimals it shows, 0 to 12: 2 if nothing is said.
class QX_EXPORT ExpressionStrFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionStrFunctionNode, 1, 2> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionStrFunctionNode", "{D92087B6-1994-44C3-8AEA-2ED83B7451FF}",
                                             u"STR"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// A length, area, volume or angle in the unit in which the host shows it.
class QX_EXPORT ExpressionStrCalcUnitFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionStrCalcUnitFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionStrCalcUnitFunctionNode",
                                             "{CA8F76DA-F0DF-4BA6-BAA1-4DFB7D59D38C}", u"STRCALCUNIT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// The number that a text holds.
class QX_EXPORT ExpressionStrToNumFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionStrToNumFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionStrToNumFunctionNode", "{26A71C16-81F2-4AE8-85FC-59777D5EC695}",
                                             u"STRTONUM"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

}  // namespace QX
