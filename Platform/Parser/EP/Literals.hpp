#pragma once

#include "EP/Export.hpp"
#include "EP/FractionalInch.hpp"
#include "EP/LocalizedNumberString.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <string_view>

/// Turns the text of a literal into its value. Each takes the whole text of one token of that kind.

namespace EP {

/// A number with its record.
struct NumberLiteral {
  double value = 0;
  LocalizedNumberString text;
};

/// The value of a number of digits only that fits into 32 bits with a sign; nothing for any other number.
EP_EXPORT TW::Optional<int> ReadIntegerLiteral(std::u16string_view literal);
/// Nothing when the number is too large for a double.
EP_EXPORT TW::Optional<NumberLiteral> ReadNumberLiteral(std::u16string_view literal, char16_t decimalSeparator);
/// Nothing when one of its numbers is not below `FractionalInch::Limit`.
EP_EXPORT TW::Optional<FractionalInch> ReadFractionalInchLiteral(std::u16string_view literal);
EP_EXPORT TW::UniString ReadQuotedTextLiteral(std::u16string_view literal);

}  // namespace EP
