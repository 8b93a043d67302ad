#pragma once

#include "EP/TextConstants.hpp"
#include "TW/UniChar.hpp"

#include <array>
#include <cstddef>

namespace EP {

/// What a code unit can begin or continue in the text of a formula.
enum class CharacterClass : unsigned char {
  Other,
  Blank,
  Digit,
  ForeignDigit,  ///< a digit of another script: it continues a name or a unit, but no number
  Letter,
  OperatorSign,
  Quotation,
  OpeningParenthesis,
  ClosingParenthesis,
  ReferenceOpening,
};

inline constexpr std::size_t AsciiCount = 128;

inline constexpr std::array<CharacterClass, AsciiCount> AsciiClasses = [] {
  std::array<CharacterClass, AsciiCount> classes{};
  for (char16_t unit = u'\t'; unit <= u'\r'; ++unit) classes[unit] = CharacterClass::Blank;
  classes[SpaceChar.front()] = CharacterClass::Blank;
  for (char16_t unit = u'0'; unit <= u'9'; ++unit) classes[unit] = CharacterClass::Digit;
  for (char16_t unit = u'A'; unit <= u'Z'; ++unit) classes[unit] = CharacterClass::Letter;
  for (char16_t unit = u'a'; unit <= u'z'; ++unit) classes[unit] = CharacterClass::Letter;
  for (const auto sign : {Add, Subtract, Multiply, Divide, Power, LessThan, GreaterThan, Equal}) {
    classes[sign.front()] = CharacterClass::OperatorSign;
  }
  classes[QuotationMark.front()] = CharacterClass::Quotation;
  classes[LeftParenthesis.front()] = CharacterClass::OpeningParenthesis;
  classes[RightParenthesis.front()] = CharacterClass::ClosingParenthesis;
  classes[ReferenceStart.front()] = CharacterClass::ReferenceOpening;
  return classes;
}();

inline CharacterClass ClassifyBeyondAscii(TW::UniChar unit) {
  if (unit.IsAlpha()) return CharacterClass::Letter;
  if (unit.IsAlphaNumeric()) return CharacterClass::ForeignDigit;
  return unit.IsWhiteSpace() ? CharacterClass::Blank : CharacterClass::Other;
}

inline CharacterClass Classify(char16_t unit) {
  return unit < AsciiCount ? AsciiClasses[unit] : ClassifyBeyondAscii(unit);
}

inline bool IsBlank(char16_t unit) { return Classify(unit) == CharacterClass::Blank; }
inline bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
inline bool IsLetter(char16_t unit) { return Classify(unit) == CharacterClass::Letter; }
inline bool IsAlphaNumeric(char16_t unit) {
  const CharacterClass what = Classify(unit);
  return what >= CharacterClass::Digit && what <= CharacterClass::Letter;
}

}  // namespace EP
