#pragma once

#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// The arguments of a call, in order: a view of the children of its node.
class CallArguments {
 public:
  class Iterator {
   public:
    Iterator(const ExpressionNode* call, unsigned int index) : call_(call), index_(index) {}
    const ExpressionNode* operator*() const { return call_->GetChild(index_); }
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    const ExpressionNode* call_;
    unsigned int index_;
  };

  explicit CallArguments(const ExpressionNode* call) : call_(call) {}

  unsigned int GetCount() const { return call_->GetChildCount(); }
  const ExpressionNode* operator[](unsigned int index) const { return call_->GetChild(index); }
  Iterator begin() const { return {call_, 0}; }
  Iterator end() const { return {call_, GetCount()}; }

 private:
  const ExpressionNode* call_;
};

/// A call of a named function; its arguments are its children. A derived class says how many arguments it takes and
/// what it makes of them; it evaluates those that it needs itself, in its own order.
class QX_EXPORT ExpressionFunctionNode : public ExpressionNode {
 public:
  static TW::ClassInfo classInfo;
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  using Arguments = CallArguments;

  /// Throws `ExpressionInvalidArgumentNumber` for a wrong count of arguments. Rendering takes any count.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const final;
  void BuildExpressionString(IExpressionStringBuilder& builder) const final;

  virtual bool IsValidParameterCount(unsigned int count) const = 0;
  virtual ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const = 0;
  /// The keyword, in upper case.
  virtual TW::UniString GetFunctionName() const = 0;

 protected:
  /// The arguments, once their count is found right.
  Arguments GetValidArguments() const;

  TW::ErrCode ReadSelf(TW::IChannel& channel) final { return ReadEmptyFrame(channel); }
  TW::ErrCode WriteSelf(TW::OChannel& channel) const final { return WriteEmptyFrame(channel); }
};

}  // namespace QX
