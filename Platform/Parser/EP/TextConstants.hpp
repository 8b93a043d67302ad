#pragma once

#include <string_view>

/// The signs and names of a formula's text, spelled here and nowhere else. They are constants of compilation, so that
/// initialisers of static objects may use them.

namespace EP {

inline constexpr std::u16string_view Plus = u"+";
inline constexpr std::u16string_view Minus = u"-";

inline constexpr std::u16string_view Add = u"+";
inline constexpr std::u16string_view Subtract = u"-";
inline constexpr std::u16string_view Multiply = u"*";
inline constexpr std::u16string_view Divide = u"/";
inline constexpr std::u16string_view Power = u"^";

inline constexpr std::u16string_view LessThan = u"<";
inline constexpr std::u16string_view LessOrEqual = u"<=";
inline constexpr std::u16string_view GreaterThan = u">";
inline constexpr std::u16string_view GreaterOrEqual = u">=";
inline constexpr std::u16string_view Equal = u"=";
inline constexpr std::u16string_view NotEqual = u"<>";

inline constexpr std::u16string_view LeftParenthesis = u"(";
inline constexpr std::u16string_view RightParenthesis = u")";
inline constexpr std::u16string_view SpaceChar = u" ";
inline constexpr std::u16string_view QuotationMark = u"\"";
inline constexpr std::u16string_view EscapeChar = u"\\";

inline constexpr std::u16string_view TrueConstant = u"TRUE";
inline constexpr std::u16string_view FalseConstant = u"FALSE";
inline constexpr std::u16string_view PiConstant = u"PI";

/// The marks of feet and inches, the only units that are no alphanumeric characters.
inline constexpr std::u16string_view FootMark = u"'";
inline constexpr std::u16string_view InchMark = u"\"";

/// What encloses a reference and what parts its type from its value.
inline constexpr std::u16string_view ReferenceStart = u"[";
inline constexpr std::u16string_view ReferenceSeparator = u":";
inline constexpr std::u16string_view ReferenceEnd = u"]";

}  // namespace EP
