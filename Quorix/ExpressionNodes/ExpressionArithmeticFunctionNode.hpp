#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "Quorix/Quantity.hpp"
#include "TW/Array.hpp"

/// The families of numeric functions. Each fixes the count of arguments and the rule of dimensions once; the dimension
/// is always checked before the undefined state.

namespace QX {

/// A function whose result is a quantity. It is no class of its own in stored formulas.
class QX_EXPORT ExpressionQuantityFunctionNode : public ExpressionFunctionNode {
 public:
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const final;
  Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const final;

 protected:
  virtual Quantity Compute(const IExpressionEvaluationEnv& env, const Arguments& arguments) const = 0;
};

/// One or more quantities of one dimension make one of that dimension; undefined if any is.
class QX_EXPORT ExpressionSameDimensionValuesAggregatorFunctionNode : public ExpressionQuantityFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  bool IsValidParameterCount(unsigned int count) const final { return count >= 1; }

  virtual double GetOperationResult(const TW::Array<double>& values) const = 0;

 protected:
  Quantity Compute(const IExpressionEvaluationEnv& env, const Arguments& arguments) const final;
};

/// One quantity makes another.
class QX_EXPORT ExpressionUnaryArithmeticFunctionNode : public ExpressionQuantityFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  bool IsValidParameterCount(unsigned int count) const final { return count == 1; }

  virtual Quantity GetOperationResult(const Quantity& quantity) const = 0;

 protected:
  Quantity Compute(const IExpressionEvaluationEnv& env, const Arguments& arguments) const final;
};

/// An angle makes a plain number.
class QX_EXPORT ExpressionUnaryAngleArithmeticFunctionNode : public ExpressionUnaryArithmeticFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  Quantity GetOperationResult(const Quantity& quantity) const final;

  /// `radians` is the angle.
  virtual double GetOperationResult(double radians) const = 0;
};

/// A plain number makes an angle, in radians.
class QX_EXPORT ExpressionUnaryNonUnitToAngleArithmeticFunctionNode : public ExpressionUnaryArithmeticFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  Quantity GetOperationResult(const Quantity& quantity) const final;

  virtual double GetOperationResult(double value) const = 0;
};

/// A plain number makes another.
class QX_EXPORT ExpressionUnaryNonUnitArithmeticFunctionNode : public ExpressionUnaryArithmeticFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  Quantity GetOperationResult(const Quantity& quantity) const final;

  virtual double GetOperationResult(double value) const = 0;
};

/// Two quantities make one.
class QX_EXPORT ExpressionBinaryArithmeticFunctionNode : public ExpressionQuantityFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  bool IsValidParameterCount(unsigned int count) const final { return count == 2; }

  virtual Quantity GetOperationResult(const Quantity& a, const Quantity& b) const = 0;

 protected:
  Quantity Compute(const IExpressionEvaluationEnv& env, const Arguments& arguments) const final;
};

/// Two plain numbers make one.
class QX_EXPORT ExpressionBinaryNonUnitArithmeticFunctionNode : public ExpressionBinaryArithmeticFunctionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }
  Quantity GetOperationResult(const Quantity& a, const Quantity& b) const final;

  virtual double GetOperationResult(double a, double b) const = 0;
};

}  // namespace QX
