#include "EP/Literals.hpp"

#include "EP/CharacterClass.hpp"
#include "EP/Escapes.hpp"
#include "EP/TextConstants.hpp"
#include "TW/DecimalNumber.hpp"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace EP {
namespace {

static_assert(std::numeric_limits<int>::max() == FractionalInch::Limit - 1);

// Takes the digits at the beginning of `text` away from it; nothing when their value is not below the limit.
TW::Optional<std::uint32_t> TakeDigits(std::u16string_view& text) {
  std::uint64_t value = 0;
  std::size_t count = 0;
  for (; count < text.size() && IsDigit(text[count]); ++count) {
    value = value * 10 + (text[count] - u'0');
    if (value >= FractionalInch::Limit) return std::nullopt;
  }
  text.remove_prefix(count);
  return static_cast<std::uint32_t>(value);
}

void SkipToDigit(std::u16string_view& text) {
  while (!text.empty() && !IsDigit(text.front())) text.remove_prefix(1);
}

}  // namespace

TW::Optional<int> ReadIntegerLiteral(std::u16string_view literal) {
  const TW::Optional<std::uint32_t> value = TakeDigits(literal);
  if (!value || !literal.empty()) return std::nullopt;
  return static_cast<int>(*value);
}

TW::Optional<NumberLiteral> ReadNumberLiteral(std::u16string_view literal, char16_t decimalSeparator) {
  std::string number;
  number.reserve(literal.size());
  for (const char16_t unit : literal) {
    number.push_back(unit == decimalSeparator && !IsDigit(unit) ? '.' : static_cast<char>(unit));
  }
  NumberLiteral read;
  if (TW::ReadDecimalNumber(number, read.value) != TW::NumberReading::Read) return std::nullopt;
  read.text = LocalizedNumberString(std::move(number));
  return read;
}

TW::Optional<FractionalInch> ReadFractionalInchLiteral(std::u16string_view literal) {
  std::uint32_t numbers[3];
  for (std::uint32_t& number : numbers) {
    SkipToDigit(literal);
    const TW::Optional<std::uint32_t> value = TakeDigits(literal);
    if (!value) return std::nullopt;
    number = *value;
  }
  return FractionalInch(numbers[0], numbers[1], numbers[2]);
}

TW::UniString ReadQuotedTextLiteral(std::u16string_view literal) {
  return RemoveEscapes(literal.substr(1, literal.size() - 2), QuotationMark.front());
}

}  // namespace EP
