#include "Quorix/ExpressionNodes/FunctionArgumentReader.hpp"

#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"

#include <limits>
#include <utility>

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

bool FunctionArgumentReader::HasLongestText() const {
  return env_.GetLongestText() < std::numeric_limits<unsigned int>::max();
}

void FunctionArgumentReader::RequireRoomFor(std::uint64_t length) const {
  if (HasLongestText() && length > env_.GetLongestText()) throw ExpressionTextTooLongException(source_);
}

TW::UniString FunctionArgumentReader::Checked(TW::UniString&& text) const {
  RequireRoomFor(text.GetLength());
  return std::move(text);
}

}  // namespace QX
