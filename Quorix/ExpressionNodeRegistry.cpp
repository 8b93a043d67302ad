#include "Quorix/ExpressionNodeRegistry.hpp"

#include "TW/HashSet.hpp"

namespace QX {
namespace {

TW::HashSet<char16_t> CollectOperatorCharacters() {
  TW::HashSet<char16_t> characters;
  GetOperatorNodeRegistry().EnumerateOperators([&characters](const TW::UniString& op) {
    for (const char16_t character : op) characters.Add(character);
  });
  return characters;
}

}  // namespace

bool IsValidFunctionChar(const TW::UniChar& character) { return character.IsAlphaNumeric(); }

bool IsValidIdentifierChar(const TW::UniChar& character) { return character.IsAlphaNumeric(); }

bool IsValidOperatorChar(const TW::UniChar& character) {
  static const TW::HashSet<char16_t> characters = CollectOperatorCharacters();
  return characters.Contains(character.GetCode());
}

}  // namespace QX
