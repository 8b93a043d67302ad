#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions that search texts or cut them. All read every argument before they look whether any is undefined.
/// Positions count 16-bit units from 1. Occurrences do not overlap, and an empty text occurs nowhere unless something
/// else is said.

namespace QX {

/// The text to search for, the text to search in, and whether case matters, as it does if nothing is said. An empty
/// text is always contained.
class QX_EXPORT ExpressionContainsFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionContainsFunctionNode, 2, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionContainsFunctionNode", "{A5B985A8-82FE-4546-BA1F-5E1FB877C7D4}",
                                             u"CONTAINS"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// The text to search for, the text to search in, the position to start from, and whether case matters, as it does if
/// nothing is said. 0 when it is not found; an empty text is found where the search starts.
class QX_EXPORT ExpressionFindFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionFindFunctionNode, 2, 4> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionFindFunctionNode", "{61577646-5CA1-4FC5-9259-79D89344FE6E}",
                                             u"FIND"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, separator and the number of a part; the whole text when there is no such part.
class QX_EXPORT ExpressionSplitFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionSplitFunctionNode, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSplitFunctionNode", "{877A6787-6F1F-4651-A761-E2137AFABACF}",
                                             u"SPLIT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, separator and a number n: what stands before the n-th separator, or the whole text.
class QX_EXPORT ExpressionSplitLeftFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionSplitLeftFunctionNode, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSplitLeftFunctionNode",
                                             "{5B9AB23B-3F4F-4AE1-B39B-3D1C5EE4F560}", u"SPLITLEFT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, separator and a number n: the parts from the n-th on, or the whole text.
class QX_EXPORT ExpressionSplitRightFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionSplitRightFunctionNode, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSplitRightFunctionNode",
                                             "{531E0A82-DC3E-49C7-8AB9-35C64682344C}", u"SPLITRIGHT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// -1, 0 or 1: the order of two texts by 16-bit unit.
class QX_EXPORT ExpressionCompareFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionCompareFunctionNode, 2> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionCompareFunctionNode", "{87440B60-2E60-445F-A6C6-1F8531ABCC2A}",
                                             u"COMPARE"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, position, count of units to replace, and what to put there; nothing happens when they reach beyond the end.
class QX_EXPORT ExpressionReplaceFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionReplaceFunctionNode, 4> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionReplaceFunctionNode", "{20C6FA7F-7AF4-4AE5-A97D-ED89DBFC4782}",
                                             u"REPLACE"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, old text, new text and, where only one occurrence is meant, its number.
class QX_EXPORT ExpressionSubstituteFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionSubstituteFunctionNode, 3, 4> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionSubstituteFunctionNode",
                                             "{D1B90322-2523-4201-B1A3-4D833FA5B3C5}", u"SUBSTITUTE"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

}  // namespace QX
