#pragma once

#include "EP/Export.hpp"
#include "EP/LocaleSettings.hpp"
#include "EP/Token.hpp"

#include <cstddef>
#include <functional>
#include <string_view>

namespace EP {

/// Cuts a text into tokens from left to right, in one pass and without memory of its own. Every text can be cut, with
/// errors or without, and the tokens cover it without gaps. It keeps a view of the text, which must outlive it.
class EP_EXPORT Tokenizer {
 public:
  /// Takes the separators from `settings`, normalized.
  Tokenizer(std::u16string_view text, const IParsingLocaleSettings& settings);

  /// The next token; after the last one, `End` every time.
  Token Next() {
    const auto begin = static_cast<unsigned int>(position_);
    const TokenKind kind = Scan();
    return {kind, {begin, static_cast<unsigned int>(position_)}};
  }

 private:
  TokenKind Scan();

  std::u16string_view text_;
  std::size_t position_ = 0;
  char16_t decimalSeparator_;
  char16_t listSeparator_;
  bool afterNumber_ = false;  ///< nothing but blanks stands between a number and the position
};

/// Calls `visit` for each token of `text`, `End` excepted: the stretches of the tokens cover the text without gaps.
EP_EXPORT void EnumerateTokens(std::u16string_view text, const IParsingLocaleSettings& settings,
                               const std::function<void(const Token& token)>& visit);

}  // namespace EP
