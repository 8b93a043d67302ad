#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "TW/Array.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// A call of a named function; its arguments are its children. A derived class says how many arguments it takes and
/// what it makes of them; it evaluates those that it needs itself, in its own order.
class QX_EXPORT ExpressionFunctionNode : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  using Arguments = TW::Array<const ExpressionNode*>;

  /// Throws `ExpressionInvalidArgumentNumber` for a wrong count of arguments. Rendering takes any count.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const final;
  void BuildExpressionString(IExpressionStringBuilder& builder) const final;

  virtual bool IsValidParameterCount(unsigned int count) const = 0;
  virtual ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const = 0;
  /// The keyword, in upper case.
  virtual TW::UniString GetFunctionName() const = 0;

 protected:
  TW::ErrCode ReadSelf(TW::IChannel& channel) final { return ReadEmptyFrame(channel); }
  TW::ErrCode WriteSelf(TW::OChannel& channel) const final { return WriteEmptyFrame(channel); }
};

}  // namespace QX
