#include "Quorix/KeywordFinder.hpp"

#include "Quorix/ExpressionNodeRegistry.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"

namespace QX {

TW::Optional<FoundKeyword> FindKeywordAroundCharPosition(const TW::UniString& text, unsigned int position,
                                                         const std::function<bool(const TW::UniChar&)>& isKeywordChar,
                                                         const std::function<bool(const TW::UniString&)>& isKeyword) {
  const unsigned int length = text.GetLength();
  if (position > length) return std::nullopt;
  TW::Range<unsigned int> range{position, position};
  while (range.begin > 0 && isKeywordChar(text[range.begin - 1])) --range.begin;
  while (range.end < length && isKeywordChar(text[range.end])) ++range.end;
  if (range.IsEmpty()) return std::nullopt;
  const TW::UniString word = text.Substring(range.begin, range.GetLength());
  if (!isKeyword(word)) return std::nullopt;
  return FoundKeyword(word, range);
}

TW::Optional<FoundKeyword> FindKeywordAroundCharPosition(const TW::UniString& text, unsigned int position) {
  TW::Optional<FoundKeyword> found =
      FindKeywordAroundCharPosition(text, position, IsValidIdentifierChar, ExpressionIdentifierNode::IsValidName);
  if (found) return found;
  found = FindKeywordAroundCharPosition(text, position, IsValidOperatorChar, [](const TW::UniString& word) {
    return GetOperatorNodeRegistry().IsExistingOperator(word);
  });
  if (found) return found;
  found = FindKeywordAroundCharPosition(text, position, IsValidFunctionChar, [](const TW::UniString& word) {
    return GetFunctionNodeRegistry().IsExistingFunction(word);
  });
  if (found) found->keyword = NormalizeName(found->keyword);
  return found;
}

}  // namespace QX
