#include "Quorix/ExpressionNodes/ExpressionTextSearchFunctionNodes.hpp"

#include "Quorix/ExpressionNodes/FunctionArgumentReader.hpp"
#include "Quorix/ExpressionNodes/TextPositions.hpp"

#include <cstdint>

namespace QX {
namespace {

constexpr ExpressionValue::UndefinedSelector Undefined;

// From `begin`, or nothing when that is beyond the end.
TW::UniString TextFrom(const TW::UniString& text, unsigned int begin) {
  return text.Substring(begin, text.GetLength());
}

// The part between two occurrences of the separator; all of the text when there are fewer parts.
TW::UniString PartOf(const TW::UniString& text, const TW::UniString& separator, unsigned int number) {
  unsigned int begin = 0;
  if (number > 1) {
    const int before = FindIthOccurrencePos(text, separator, number - 2);
    if (before < 0) return text;
    begin = static_cast<unsigned int>(before) + separator.GetLength();
  }
  const int end = FindIthOccurrencePos(text, separator, number - 1);
  return end < 0 ? TextFrom(text, begin) : text.Substring(begin, static_cast<unsigned int>(end) - begin);
}

// Where there is a limit, the occurrences are counted first, since they may multiply the text by its own length.
TW::UniString ReplaceAll(const FunctionArgumentReader& reader, const TW::UniString& text, const TW::UniString& oldText,
                         const TW::UniString& newText) {
  if (reader.HasLongestText()) {
    std::uint64_t length = text.GetLength();
    text.Find(oldText, [&](unsigned int) { length += std::uint64_t{newText.GetLength()} - oldText.GetLength(); });
    reader.RequireRoomFor(length);
  }
  return text.ReplaceAll(oldText, newText);
}

// The two texts of a search, in the form in which they are compared.
struct Search {
  TW::UniString searched;
  TW::UniString within;

  void IgnoreCase() {
    searched = searched.ToUpperCase();
    within = within.ToUpperCase();
  }
};

Search ReadSearch(FunctionArgumentReader& reader) {
  TW::UniString searched = reader.ReadText();
  return {std::move(searched), reader.ReadText()};
}

}  // namespace

TW::ClassInfo ExpressionContainsFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionContainsFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionContainsFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                 const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  Search search = ReadSearch(reader);
  const bool caseSensitive = !reader.HasMore() || reader.ReadBool();
  if (!reader.AllDefined()) return ExpressionValue::FromBool(Undefined);
  if (!caseSensitive) search.IgnoreCase();
  return ExpressionValue::FromBool(search.within.Contains(search.searched));
}

TW::ClassInfo ExpressionFindFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionFindFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionFindFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                             const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  Search search = ReadSearch(reader);
  const unsigned int start = reader.HasMore() ? reader.ReadPosition() : 1;
  const bool caseSensitive = !reader.HasMore() || reader.ReadBool();
  if (!reader.AllDefined()) return ExpressionValue::FromInteger(Undefined);
  if (!caseSensitive) search.IgnoreCase();
  const TW::Optional<unsigned int> found = search.within.FindFirst(search.searched, start - 1);
  return found ? FromTextPosition(*found + 1) : ExpressionValue::FromInteger(0);
}

TW::ClassInfo ExpressionSplitFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSplitFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionSplitFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                              const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString text = reader.ReadText();
  const TW::UniString separator = reader.ReadText();
  const unsigned int number = reader.ReadPosition();
  if (!reader.AllDefined()) return ExpressionValue::FromString(Undefined);
  return ExpressionValue::FromString(PartOf(text, separator, number));
}

TW::ClassInfo ExpressionSplitLeftFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSplitLeftFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionSplitLeftFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                  const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  TW::UniString text = reader.ReadText();
  const TW::UniString separator = reader.ReadText();
  const unsigned int number = reader.ReadPosition();
  if (!reader.AllDefined()) return ExpressionValue::FromString(Undefined);
  const int end = FindIthOccurrencePos(text, separator, number - 1);
  if (end < 0) return ExpressionValue::FromString(std::move(text));
  return ExpressionValue::FromString(text.Substring(0, static_cast<unsigned int>(end)));
}

TW::ClassInfo ExpressionSplitRightFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSplitRightFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionSplitRightFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                   const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  TW::UniString text = reader.ReadText();
  const TW::UniString separator = reader.ReadText();
  const unsigned int number = reader.ReadPosition();
  if (!reader.AllDefined()) return ExpressionValue::FromString(Undefined);
  const int before = number == 1 ? -1 : FindIthOccurrencePos(text, separator, number - 2);
  if (before < 0) return ExpressionValue::FromString(std::move(text));
  return ExpressionValue::FromString(TextFrom(text, static_cast<unsigned int>(before) + separator.GetLength()));
}

TW::ClassInfo ExpressionCompareFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionCompareFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionCompareFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  const TW::UniString left = reader.ReadText();
  const TW::UniString right = reader.ReadText();
  if (!reader.AllDefined()) return ExpressionValue::FromInteger(Undefined);
  return ExpressionValue::FromInteger(left.Compare(right));
}

TW::ClassInfo ExpressionReplaceFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionReplaceFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionReplaceFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  TW::UniString text = reader.ReadText();
  const unsigned int start = reader.ReadPosition() - 1;
  const unsigned int count = reader.ReadCount();
  const TW::UniString newText = reader.ReadText();
  if (!reader.AllDefined()) return ExpressionValue::FromString(Undefined);
  if (std::uint64_t{start} + count <= text.GetLength()) text.SetSubstring(start, count, newText);
  return ExpressionValue::FromString(reader.Checked(std::move(text)));
}

TW::ClassInfo ExpressionSubstituteFunctionNode::classInfo = MakeClassInfo();
const TW::UniString ExpressionSubstituteFunctionNode::functionName(Identity.keyword);
ExpressionValue ExpressionSubstituteFunctionNode::EvaluateInternal(const IExpressionEvaluationEnv& env,
                                                                   const Arguments& arguments) const {
  FunctionArgumentReader reader(env, arguments, this);
  TW::UniString text = reader.ReadText();
  const TW::UniString oldText = reader.ReadText();
  const TW::UniString newText = reader.ReadText();
  const bool onlyOne = reader.HasMore();
  const unsigned int number = onlyOne ? reader.ReadPosition() : 1;
  if (!reader.AllDefined()) return ExpressionValue::FromString(Undefined);
  if (!onlyOne) return ExpressionValue::FromString(ReplaceAll(reader, text, oldText, newText));
  const int at = FindIthOccurrencePos(text, oldText, number - 1);
  if (at >= 0) text.SetSubstring(static_cast<unsigned int>(at), oldText.GetLength(), newText);
  return ExpressionValue::FromString(reader.Checked(std::move(text)));
}

}  // namespace QX
