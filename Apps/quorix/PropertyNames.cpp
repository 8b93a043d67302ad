#include "PropertyNames.hpp"

#include "EP/ReferenceString.hpp"
#include "EP/TextConstants.hpp"
#include "EP/Tokenizer.hpp"
#include "Host/NameGuid.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"

#include <cstddef>

namespace Command {
namespace {

constexpr char16_t Opening = EP::ReferenceStart.front();
constexpr char16_t Closing = EP::ReferenceEnd.front();
constexpr char16_t Escape = EP::EscapeChar.front();

bool IsEscape(std::u16string_view text, std::size_t position) {
  if (text[position] != Escape || position + 1 == text.size()) return false;
  return text[position + 1] == Closing || text[position + 1] == Escape;
}

// The name in brackets that begins with the text, with its brackets; empty when none does.
std::u16string_view FindBracketedName(std::u16string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == Closing) return text.substr(0, i == 1 ? 0 : i + 1);
    if (IsEscape(text, i)) ++i;
  }
  return {};
}

TW::UniString RemoveEscapes(std::u16string_view name) {
  TW::UniString plain;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (IsEscape(name, i)) ++i;
    plain.Append(TW::UniChar(name[i]));
  }
  return plain;
}

TW::UniString AddBrackets(const TW::UniString& name) {
  TW::UniString bracketed(EP::ReferenceStart);
  for (const char16_t unit : name) {
    if (unit == Closing || unit == Escape) bracketed += EP::EscapeChar;
    bracketed.Append(TW::UniChar(unit));
  }
  return bracketed + EP::ReferenceEnd;
}

bool IsPropertyReference(std::u16string_view token) {
  const std::size_t length = QX::PropertyReferenceType.size();
  return token.substr(1, length) == QX::PropertyReferenceType && token.substr(1 + length, 1) == EP::ReferenceSeparator;
}

// The position of the first bracket that begins a name, or the length of the text.
std::size_t FindName(std::u16string_view text, const EP::IParsingLocaleSettings& settings) {
  EP::Tokenizer tokenizer(text, settings);
  for (EP::Token token = tokenizer.Next(); token.kind != EP::TokenKind::End; token = tokenizer.Next()) {
    if (text[token.range.begin] != Opening || token.kind == EP::TokenKind::UnterminatedReference) continue;
    if (!IsPropertyReference(text.substr(token.range.begin))) return token.range.begin;
  }
  return text.size();
}

}  // namespace

TW::Guid PropertyNames::GetGuid(const TW::UniString& name) {
  const TW::Guid guid = Host::MakeNameGuid(name);
  names_.Add(guid, name);
  return guid;
}

TW::Guid PropertyNames::GetPropertyId(const TW::UniString& property) {
  TW::Guid guid;
  if (guid.ConvertFromString(property) == TW::NoErr) return guid;
  if (QX::IsWellFormedExpressionPropertyReference(property, &guid)) return guid;
  const std::u16string_view text = property;
  const bool isBracketed = !text.empty() && text.front() == Opening && FindBracketedName(text).size() == text.size();
  return GetGuid(isBracketed ? RemoveEscapes(text.substr(1, text.size() - 2)) : property);
}

ReplacedText PropertyNames::ReplaceNames(const TW::UniString& formula, const EP::IParsingLocaleSettings& settings) {
  ReplacedText replaced;
  std::u16string_view rest = formula;
  while (!rest.empty()) {
    const std::size_t position = FindName(rest, settings);
    const std::u16string_view name = FindBracketedName(rest.substr(position));
    if (name.empty()) break;
    replaced.Keep(rest.substr(0, position));
    const TW::Guid guid = GetGuid(RemoveEscapes(name.substr(1, name.size() - 2)));
    replaced.Replace(name, QX::MakeExpressionPropertyReferenceString(guid));
    rest.remove_prefix(position + name.size());
  }
  replaced.Keep(rest);
  return replaced;
}

ReplacedText PropertyNames::RestoreNames(const TW::UniString& formula) const {
  ReplacedText restored;
  const std::u16string_view text = formula;
  std::size_t kept = 0;
  QX::EnumeratePropertyReferences(formula, [&](unsigned int position, const TW::Guid& propertyId) {
    const TW::UniString* name = names_.Find(propertyId);
    if (name == nullptr || position < kept) return;
    const std::size_t length = EP::GetReferenceStringLength(formula, position);
    restored.Keep(text.substr(kept, position - kept));
    restored.Replace(text.substr(position, length), AddBrackets(*name));
    kept = position + length;
  });
  restored.Keep(text.substr(kept));
  return restored;
}

}  // namespace Command
