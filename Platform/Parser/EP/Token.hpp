#pragma once

#include "TW/Range.hpp"

namespace EP {

// GCC 12 takes an enumerator of a scoped enumeration for one that hides the text constant of its name.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

/// What a stretch of a formula's text is.
enum class TokenKind : unsigned char {
  Blank,                  ///< a run of white space
  Number,                 ///< digits with at most one decimal separator, and an exponent if there is one
  Unit,                   ///< a foot or inch mark or a run of alphanumeric characters that follows a number
  FractionalInch,         ///< whole inches and a fraction, with the inch mark
  QuotedText,             ///< with both quotation marks
  UnterminatedText,       ///< from a quotation mark to the end, for want of another
  Reference,              ///< with both brackets
  UnterminatedReference,  ///< from an opening bracket to the end, for want of a closing one
  Name,                   ///< a letter, then letters and digits
  Operator,
  LeftParenthesis,
  RightParenthesis,
  ListSeparator,
  Unknown,  ///< one character that begins no other token
  End,      ///< the empty stretch after the last character
};

#pragma GCC diagnostic pop

/// A stretch of a formula's text, in 16-bit code units.
struct Token {
  TokenKind kind = TokenKind::End;
  TW::Range<unsigned int> range;

  friend constexpr bool operator==(const Token&, const Token&) = default;
};

}  // namespace EP
