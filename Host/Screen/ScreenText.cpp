#include "Host/Screen/ScreenText.hpp"

#include "TW/UniString.hpp"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <cstdint>

namespace Host {
namespace {

constexpr std::u16string_view Blank = u" ";
constexpr char16_t Ellipsis = u'\u2026';

bool IsIn(UChar32 character, std::uint32_t categories) { return (U_GET_GC_MASK(character) & categories) != 0; }

bool DoesHarm(UChar32 character) {
  return IsIn(character, U_GC_CC_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK) ||
         u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL);
}

bool JoinsTheOneBefore(UChar32 character) {
  if (IsIn(character, U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK)) return true;
  const auto syllable = u_getIntPropertyValue(character, UCHAR_HANGUL_SYLLABLE_TYPE);
  return syllable == U_HST_VOWEL_JAMO || syllable == U_HST_TRAILING_JAMO;
}

unsigned int GetColumns(UChar32 character) {
  const auto width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_FULLWIDTH || width == U_EA_WIDE ? 2 : 1;
}

bool IsPlain(char16_t unit) { return unit >= 0x20 && unit < 0x7F; }

}  // namespace

bool ScreenReader::Read(ScreenCharacter& character) {
  if (position_ >= text_.size()) return false;
  const std::size_t begin = position_;
  UChar32 code = 0;
  U16_NEXT(text_.data(), position_, text_.size(), code);
  character = {text_.substr(begin, position_ - begin), static_cast<unsigned int>(begin), 1};
  if (IsPlain(character.units.front())) return true;
  const bool joins = !DoesHarm(code) && JoinsTheOneBefore(code);
  if (DoesHarm(code) || (joins && begin == 0)) {
    character.units = Blank;
  } else {
    character.columns = joins ? 0 : GetColumns(code);
  }
  return true;
}

ScreenText MakeScreenText(std::u16string_view text, std::size_t maximumColumns) {
  TW::UniString shown;
  std::size_t columns = 0;
  // Up to where an ellipsis has room after the text.
  unsigned int cut = 0;
  std::size_t columnsToCut = 0;
  ScreenReader reader(text);
  for (ScreenCharacter character; reader.Read(character);) {
    if (columns + character.columns > maximumColumns) {
      shown = shown.Substring(0, cut) + std::u16string_view(&Ellipsis, 1);
      return {shown.ToUtf8(), columnsToCut + 1};
    }
    shown += character.units;
    columns += character.columns;
    if (columns >= maximumColumns) continue;
    cut = shown.GetLength();
    columnsToCut = columns;
  }
  return {shown.ToUtf8(), columns};
}

}  // namespace Host
