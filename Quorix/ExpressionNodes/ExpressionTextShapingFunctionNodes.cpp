#include "Quorix/ExpressionNodes/ExpressionTextShapingFunctionNodes.hpp"

#include "Quorix/ExpressionNodes/FunctionArgumentReader.hpp"
#include "Quorix/ExpressionNodes/TextPositions.hpp"
#include "TW/Array.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>
#include <string_view>

namespace QX {
namespace {

ExpressionValue UndefinedText() { return ExpressionValue::FromString(ExpressionValue::UndefinedSelector()); }

// An empty text with room for all that is to be appended, so that an impossible request fails before any work is done.
TW::UniString MakeTextWithRoomFor(std::uint64_t length) {
  if (length > std::numeric_limits<unsigned int>::max()) throw std::bad_alloc();
  TW::UniString text;
  text.Reserve(static_cast<std::size_t>(length));
  return text;
}

TW::Array<TW::UniString> ReadTexts(FunctionArgumentReader& reader) {
  TW::Array<TW::UniString> texts;
  std::uint64_t length = 0;
  while (reader.HasMore()) {
    texts.push_back(reader.ReadText());
    length += texts.back().GetLength();
    reader.RequireRoomFor(length);
  }
  return texts;
}

TW::UniString Join(const FunctionArgumentReader& reader, const TW::Array<TW::UniString>& texts,
                   std::u16string_view delimiter) {
  if (texts.empty()) return {};
  std::uint64_t length = std::uint64_t{delimiter.size()} * (texts.size() - 1);
  for (const TW::UniString& text : texts) length += text.GetLength();
  reader.RequireRoomFor(length);
  TW::UniString joined = MakeTextWithRoomFor(length);
  for (const TW::UniString& text : texts) {
    if (&text != &texts.front()) joined.Append(delimiter);
    joined.Append(text);
  }
  return joined;
}

TW::UniString CollapseWhiteSpace(std::u16string_view text) {
  TW::UniString collapsed = MakeTextWithRoomFor(text.size());
  bool afterWhiteSpace = false;
  for (const TW::UniChar character : text) {
    const bool isWhiteSpace = character.IsWhiteSpace();
    if (!isWhiteSpace || !afterWhiteSpace) collapsed.Append(character);
    afterWhiteSpace = isWhiteSpace;
  }
  return collapsed;
}

TW::UniString Repeat(const FunctionArgumentReader& reader, std::u16string_view text, unsigned int count) {
  reader.RequireRoomFor(std::uint64_t{text.size()} * count);
  TW::UniString repeated = MakeTextWithRoomFor(std::uint64_t{text.size()} * count);
  if (text.empty()) return repeated;
  for (unsigned int i = 0; i < count; ++i) repeated.Append(text);
  return repeated;
}

}  // namespace

TW::ClassInfo ExpressionTrimFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionTrimFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionTrimFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                             const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  return reader.AllDefined() ? ExpressionValue::FromString(CollapseWhiteSpace(text.Trim())) : UndefinedText();
}

TW::ClassInfo ExpressionLowerFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLowerFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionLowerFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                              const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  return reader.AllDefined() ? ExpressionValue::FromString(reader.Checked(text.ToLowerCase())) : UndefinedText();
}

TW::ClassInfo ExpressionUpperFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionUpperFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionUpperFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                              const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  return reader.AllDefined() ? ExpressionValue::FromString(reader.Checked(text.ToUpperCase())) : UndefinedText();
}

TW::ClassInfo ExpressionConcatenationFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionConcatenationFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionConcatenationFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                      const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::Array<TW::UniString> texts = ReadTexts(reader);
  return reader.AllDefined() ? ExpressionValue::FromString(Join(reader, texts, {})) : UndefinedText();
}

TW::ClassInfo ExpressionTextJoinFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionTextJoinFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionTextJoinFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                 const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString delimiter = reader.ReadText();
  const bool ignoreEmpty = reader.ReadBool();
  TW::Array<TW::UniString> texts = ReadTexts(reader);
  if (!reader.AllDefined()) return UndefinedText();
  if (ignoreEmpty) texts.erase(std::remove(texts.begin(), texts.end(), TW::UniString()), texts.end());
  return ExpressionValue::FromString(Join(reader, texts, delimiter));
}

TW::ClassInfo ExpressionLeftFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLeftFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionLeftFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                             const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  const unsigned int count = reader.ReadCount();
  return reader.AllDefined() ? ExpressionValue::FromString(text.Substring(0, count)) : UndefinedText();
}

TW::ClassInfo ExpressionMidFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionMidFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionMidFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  const unsigned int start = reader.ReadPosition() - 1;
  const unsigned int count = reader.ReadCount();
  return reader.AllDefined() ? ExpressionValue::FromString(text.Substring(start, count)) : UndefinedText();
}

TW::ClassInfo ExpressionRightFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionRightFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionRightFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                              const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  const unsigned int count = std::min(reader.ReadCount(), text.GetLength());
  if (!reader.AllDefined()) return UndefinedText();
  return ExpressionValue::FromString(text.Substring(text.GetLength() - count, count));
}

TW::ClassInfo ExpressionRepeatFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionRepeatFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionRepeatFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                               const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  const unsigned int count = reader.ReadCount();
  return reader.AllDefined() ? ExpressionValue::FromString(Repeat(reader, text, count)) : UndefinedText();
}

TW::ClassInfo ExpressionLenFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionLenFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionLenFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                            const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  if (!reader.AllDefined()) return ExpressionValue::FromInteger(ExpressionValue::UndefinedSelector());
  return FromTextPosition(text.GetLength());
}

}  // namespace QX
