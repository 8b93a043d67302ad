#include "Quorix/ExpressionNodes/FunctionArgumentReader.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"

namespace QX {

template <class Value>
Value FunctionArgumentReader::Read(Reader<Value> read, Value value) {
  allDefined_ = read(env_, arguments_[next_++], source_, value) && allDefined_;
  return value;
}

ExpressionValue FunctionArgumentReader::ReadValue() {
  ExpressionValue value = GetExpressionValueFromNode(env_, arguments_[next_++], source_);
  allDefined_ = allDefined_ && !value.IsUserUndefined();
  return value;
}

TW::UniString FunctionArgumentReader::ReadText() { return Read(&GetStringValueFromNode, TW::UniString()); }

bool FunctionArgumentReader::ReadBool() { return Read(&GetBooleanValueFromNode, true); }

unsigned int FunctionArgumentReader::ReadCount() { return Read(&GetZeroOrPositiveWholeNumberFromNode, 0U); }

unsigned int FunctionArgumentReader::ReadPosition() { return Read(&GetPositiveWholeNumberFromNode, 1U); }

}  // namespace QX
