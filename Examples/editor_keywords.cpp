// What an editor asks while a formula is typed: the tokens to colour, the word at the caret and its help.

#include "EP/Tokenizer.hpp"
#include "Quorix/Quorix.hpp"

#include <cstdio>

namespace {

const char* GetColour(EP::TokenKind kind) {
  switch (kind) {
    case EP::TokenKind::Number:
    case EP::TokenKind::FractionalInch:
      return "number";
    case EP::TokenKind::Unit:
      return "unit";
    case EP::TokenKind::QuotedText:
      return "text";
    case EP::TokenKind::Reference:
      return "reference";
    case EP::TokenKind::Name:
      return "name";
    case EP::TokenKind::Unknown:
    case EP::TokenKind::UnterminatedText:
    case EP::TokenKind::UnterminatedReference:
      return "error";
    default:
      return "plain";
  }
}

void ShowTokens(const TW::UniString& text) {
  EP::EnumerateTokens(text.GetView(), QX::EvaluationLocaleSettings('.', ',', 0), [&text](const EP::Token& token) {
    if (token.kind == EP::TokenKind::Blank) return;
    const TW::UniString piece(text.GetView().substr(token.range.begin, token.range.GetLength()));
    std::printf("  %-10s %s\n", GetColour(token.kind), piece.ToUtf8().c_str());
  });
}

void ShowHelp(const TW::UniString& text, unsigned int caret) {
  const auto word = QX::FindKeywordAroundCharPosition(text, caret);
  const auto& functions = QX::GetFunctionNodeRegistry();
  if (!word || !functions.IsExistingFunction(word->keyword)) {
    std::printf("  at %2u: no function\n", caret);
    return;
  }
  const TW::UniString help = functions.GetFunctionHelpString(word->keyword, QX::HelpType::Description, ',');
  std::printf("  at %2u: %s (%u to %u): %s\n", caret, word->keyword.ToUtf8().c_str(), word->range.begin,
              word->range.end, help.ToUtf8().c_str());
}

}  // namespace

int main() {
  const TW::UniString formula = u"round(2.55 m / sqrt(4), 1 cm";
  std::printf("%s\n", formula.ToUtf8().c_str());
  ShowTokens(formula);
  for (const unsigned int caret : {3U, 8U, 15U, 19U}) ShowHelp(formula, caret);
  return 0;
}
