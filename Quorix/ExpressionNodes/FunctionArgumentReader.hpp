#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionNode.hpp"
#include "TW/UniString.hpp"

#include <cstdint>

namespace QX {

/// Reads the arguments of one call from first to last, and remembers whether all were defined: functions that take
/// texts read every argument, so that errors in later ones come through, before they look. It is made for one
/// evaluation and keeps references to what it is given.
///
/// Each operation throws what the argument reader of that kind throws, and gives a neutral value for an undefined
/// argument.
class FunctionArgumentReader {
 public:
  FunctionArgumentReader(const IExpressionEvaluationEnv& env, const ExpressionFunctionNode::Arguments& arguments,
                         const ExpressionNode* source)
      : env_(env), arguments_(arguments), source_(source) {}

  bool HasMore() const { return next_ < arguments_.GetCount(); }
  bool AllDefined() const { return allDefined_; }

  ExpressionValue ReadValue();
  TW::UniString ReadText();
  bool ReadBool();
  unsigned int ReadCount();     ///< a whole number of 0 or more
  unsigned int ReadPosition();  ///< a whole number of 1 or more

  /// Whether the host sets a limit to the lengths of texts.
  bool HasLongestText() const;
  /// Throws `ExpressionTextTooLongException` for a text that is longer than the host allows.
  void RequireRoomFor(std::uint64_t length) const;
  /// The text, unless it is too long.
  TW::UniString Checked(TW::UniString&& text) const;

 private:
  template <class Value>
  using Reader = bool (*)(const IExpressionEvaluationEnv&, const ExpressionNode*, const ExpressionNode*, Value&);

  template <class Value>
  Value Read(Reader<Value> read, Value value);

  const IExpressionEvaluationEnv& env_;
  ExpressionFunctionNode::Arguments arguments_;
  const ExpressionNode* source_;
  unsigned int next_ = 0;
  bool allDefined_ = true;
};

}  // namespace QX
