#include "Host/Literal.hpp"

#include "EP/Literals.hpp"
#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/TextConstants.hpp"
#include "EP/Tokenizer.hpp"
#include "Quorix/IdentitiferNodeRegistry.hpp"

namespace Host {
namespace {

using EP::TokenKind;
using QX::ExpressionValue;

// Reads the tokens of a literal one after the other; blanks are passed over.
class LiteralReader {
 public:
  LiteralReader(std::u16string_view text, const EP::NormalizedParsingLocaleSettings& settings)
      : text_(text), settings_(settings), tokenizer_(text, settings) {
    Next();
  }

  ExpressionValue Read() {
    ExpressionValue value = token_.kind == TokenKind::Name ? ReadLogical() : ReadSigned();
    return token_.kind == TokenKind::End ? std::move(value) : ExpressionValue::CreateInvalid();
  }

 private:
  void Next() {
    do {
      token_ = tokenizer_.Next();
    } while (token_.kind == TokenKind::Blank);
  }

  std::u16string_view Take() {
    const std::u16string_view piece = text_.substr(token_.range.begin, token_.range.GetLength());
    Next();
    return piece;
  }

  // Of the named constants only the logical ones are values that people write down.
  ExpressionValue ReadLogical() {
    const QX::IdentifierData* data = QX::GetIdentitiferNodeRegistry().FindIdentifierData(TW::UniString(Take()));
    return data != nullptr && data->value.IsBool() ? data->value : ExpressionValue::CreateInvalid();
  }

  ExpressionValue ReadSigned() {
    int sign = 1;
    if (token_.kind == TokenKind::Operator) {
      const std::u16string_view written = Take();
      if (written != EP::Plus && written != EP::Minus) return ExpressionValue::CreateInvalid();
      sign = written == EP::Minus ? -1 : 1;
    }
    if (token_.kind == TokenKind::FractionalInch) return ReadInches(sign);
    return token_.kind == TokenKind::Number ? ReadNumber(sign) : ExpressionValue::CreateInvalid();
  }

  ExpressionValue ReadInches(int sign) {
    const TW::Optional<EP::FractionalInch> inches = EP::ReadFractionalInchLiteral(Take());
    if (!inches || !inches->IsValid()) return ExpressionValue::CreateInvalid();
    return ExpressionValue::FromNumericValueInInches(sign * inches->GetValueInInches());
  }

  ExpressionValue ReadNumber(int sign) {
    const std::u16string_view digits = Take();
    const TW::UniString unit(token_.kind == TokenKind::Unit ? Take() : std::u16string_view());
    if (const TW::Optional<int> integer = EP::ReadIntegerLiteral(digits); integer && unit.IsEmpty()) {
      return ExpressionValue::FromInteger(sign * *integer);
    }
    const auto number = EP::ReadNumberLiteral(digits, static_cast<char16_t>(settings_.GetDecimalSeparator()));
    if (!number) return ExpressionValue::CreateInvalid();
    return ExpressionValue::FromNumericValueAndUnitMarker(sign * number->value, unit);
  }

  std::u16string_view text_;
  const EP::NormalizedParsingLocaleSettings& settings_;
  EP::Tokenizer tokenizer_;
  EP::Token token_;
};

}  // namespace

ExpressionValue ReadLiteral(std::u16string_view text, const EP::IParsingLocaleSettings& settings) {
  const EP::NormalizedParsingLocaleSettings normalized(settings);
  return LiteralReader(text, normalized).Read();
}

}  // namespace Host
