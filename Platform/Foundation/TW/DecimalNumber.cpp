#include "TW/DecimalNumber.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace TW {
namespace {

struct DecimalShape {
  bool wellFormed = false;
  bool leadingDigitIsHigh = false;  ///< the first digit that is not zero stands for ones or more
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The value of an exponent's digits, held where no count of other digits can outweigh it.
long long ReadExponent(std::string_view digits) {
  constexpr long long Huge = 1'000'000'000'000'000;
  long long exponent = 0;
  for (const char digit : digits) exponent = std::min(Huge, exponent * 10 + (digit - '0'));
  return exponent;
}

DecimalShape ScanDecimal(std::string_view text) {
  DecimalShape shape;
  const std::size_t mark = text.find_first_of("eE");
  const std::string_view mantissa = text.substr(0, mark);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const auto isDigitOrPoint = [](char c) { return IsDigit(c) || c == '.'; };
  if (!std::all_of(mantissa.begin(), mantissa.end(), isDigitOrPoint)) return shape;
  const auto points = std::count(mantissa.begin(), mantissa.end(), '.');
  if (points > 1 || mantissa.size() == static_cast<std::size_t>(points)) return shape;

  long long exponent = 0;
  if (mark != std::string_view::npos) {
    std::string_view digits = text.substr(mark + 1);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit)) return shape;
    exponent = negative ? -ReadExponent(digits) : ReadExponent(digits);
  }
  const std::size_t leading = std::min(mantissa.find_first_not_of("0."), mantissa.size());
  shape.wellFormed = true;
  shape.leadingDigitIsHigh = exponent + static_cast<long long>(point) > static_cast<long long>(leading);
  return shape;
}

}  // namespace

DecimalNumber::DecimalNumber(double value) : negative_(value < 0) {
  if (value == 0 || !std::isfinite(value)) return;
  // d.dddde-308: the shortest form has at most 17 digits.
  char text[32];
  const char* end = std::to_chars(text, text + sizeof(text), std::fabs(value), std::chars_format::scientific).ptr;
  const char* mark = std::find(static_cast<const char*>(text), end, 'e');
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);
  digits_.push_back(text[0]);
  if (mark - text > 2) digits_.append(text + 2, static_cast<std::size_t>(mark - text) - 2);
  point_ = exponent + 1;
}

void DecimalNumber::RoundToDecimals(unsigned int decimals) {
  const int kept = point_ + static_cast<int>(std::min(decimals, MaximumDecimals));
  if (kept >= static_cast<int>(digits_.size())) return;
  const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
  digits_.resize(static_cast<std::size_t>(std::max(kept, 0)));
  if (up) {
    while (!digits_.empty() && digits_.back() == '9') digits_.pop_back();
    if (digits_.empty()) {
      digits_.push_back('1');
      ++point_;
    } else {
      ++digits_.back();
    }
  }
  while (!digits_.empty() && digits_.back() == '0') digits_.pop_back();
  if (digits_.empty()) {
    negative_ = false;
    point_ = 0;
  }
}

UniString DecimalNumber::GetIntegerText(std::u16string_view groupSeparator) const {
  if (point_ <= 0) return UniString(u"0");
  std::u16string text;
  for (int i = 0; i < point_; ++i) {
    if (i > 0 && (point_ - i) % 3 == 0) text.append(groupSeparator);
    const auto index = static_cast<std::size_t>(i);
    text.push_back(index < digits_.size() ? static_cast<char16_t>(digits_[index]) : u'0');
  }
  return UniString(std::move(text));
}

UniString DecimalNumber::GetFractionText(unsigned int minimum) const {
  std::u16string text;
  const int count = static_cast<int>(digits_.size());
  if (count > std::max(point_, 0)) {
    text.append(static_cast<std::size_t>(std::max(-point_, 0)), u'0');
    text.append(digits_.begin() + std::max(point_, 0), digits_.end());
  }
  const std::size_t wanted = std::min(minimum, MaximumDecimals);
  if (text.size() < wanted) text.append(wanted - text.size(), u'0');
  return UniString(std::move(text));
}

UniString DecimalNumber::GetUnsignedText(unsigned int minimumDecimals, std::u16string_view decimalSeparator,
                                         std::u16string_view groupSeparator) const {
  UniString text = GetIntegerText(groupSeparator);
  const UniString fraction = GetFractionText(minimumDecimals);
  if (!fraction.IsEmpty()) {
    text.Append(decimalSeparator);
    text.Append(fraction);
  }
  return text;
}

NumberReading ReadDecimalNumber(std::string_view text, double& value) {
  const DecimalShape shape = ScanDecimal(text);
  if (!shape.wellFormed) return NumberReading::NotANumber;
  double read = 0;
  const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), read);
  if (result.ec == std::errc::result_out_of_range) {
    // Out of range is either end: a leading digit that stands that high or that low leaves no doubt which.
    if (shape.leadingDigitIsHigh) return NumberReading::TooLarge;
    read = 0;
  }
  value = read;
  return NumberReading::Read;
}

}  // namespace TW
