#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions that combine logical values, and those that choose among values. Where the host asks for undefined
/// values to be propagated, they evaluate all their arguments; otherwise they stop as soon as the answer is known.

namespace QX {

/// A false argument beats an undefined one.
class QX_EXPORT ExpressionAndFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionAndFunctionNode, 1, AnyNumberOfArguments> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionAndFunctionNode", "{C0C64C69-1E61-4257-953C-EEAFC3A4B92B}",
                                             u"AND"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// A true argument beats an undefined one.
class QX_EXPORT ExpressionOrFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionOrFunctionNode, 1, AnyNumberOfArguments> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionOrFunctionNode", "{D1DC69B2-9462-46EB-BBE1-D16F0AF29FE6}",
                                             u"OR"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Whether an odd number of arguments is true; undefined if any is.
class QX_EXPORT ExpressionXorFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionXorFunctionNode, 1, AnyNumberOfArguments> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionXorFunctionNode", "{4B89E124-6A6F-45E9-BA26-1EC20023255B}",
                                             u"XOR"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

class QX_EXPORT ExpressionNotFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionNotFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionNotFunctionNode", "{C129FC64-2B81-4EFF-99AE-8933813832D0}",
                                             u"NOT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Condition, value when true, value when false. An undefined condition gives the undefined value of the first of the
/// two.
class QX_EXPORT ExpressionIfFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionIfFunctionNode, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionIfFunctionNode", "{672FE020-4CDA-4A41-84E3-8D107E10ADCA}",
                                             u"IF"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Pairs of condition and value: the first true or undefined condition decides, an undefined one for the undefined
/// value. When none does, the result is the last value, undefined.
class QX_EXPORT ExpressionIfsFunctionNode final : public ExpressionFunctionImpl<ExpressionIfsFunctionNode> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionIfsFunctionNode", "{AB69C896-FF2B-4939-B0A7-B6D581B77BE5}",
                                             u"IFS"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  VersionNumber GetIntroductionVersion() const override { return 2; }
  bool IsValidParameterCount(unsigned int count) const override { return count >= 2 && count % 2 == 0; }
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;

 private:
  ExpressionValue EvaluateAll(const IExpressionEvaluationEnv& env, const Arguments& arguments) const;
  ExpressionValue EvaluateUntilFound(const IExpressionEvaluationEnv& env, const Arguments& arguments) const;
};

/// Whether the argument, of any kind, is undefined; undefined itself in that case where undefined values are
/// propagated.
class QX_EXPORT ExpressionIsUndefinedFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionIsUndefinedFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionIsUndefinedFunctionNode",
                                             "{E3297D6F-EB10-42AC-9E82-B61A472A17F5}", u"ISUNDEFINED"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

}  // namespace QX
