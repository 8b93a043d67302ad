#include "TW/NumberText.hpp"

#include "TW/DecimalNumber.hpp"

#include <string>
#include <string_view>

namespace TWUtils {
namespace {

/// Whether the digits before the decimal separator are grouped as they should be.
class DigitGroups {
 public:
  void AddDigit() { ++length_; }
  bool AddSeparator() {
    const bool placed = separated_ ? length_ == 3 : length_ >= 1 && length_ <= 3;
    separated_ = true;
    length_ = 0;
    return placed;
  }
  bool AreComplete() const { return !separated_ || length_ == 3; }

 private:
  bool separated_ = false;
  std::size_t length_ = 0;
};

/// Rewrites an unsigned number unit by unit as plain ASCII, with a full stop and without thousand separators. What
/// stands in the wrong order is left for the reader of that form to find.
class NumberRewriter {
 public:
  NumberRewriter(char16_t decimalSeparator, char16_t thousandSeparator)
      : decimalSeparator_(decimalSeparator),
        thousandSeparator_(thousandSeparator == decimalSeparator ? u'\0' : thousandSeparator) {}

  bool Add(char16_t unit) {
    if (TW::UniChar(unit).IsAsciiDigit()) {
      if (inInteger_) groups_.AddDigit();
    } else if (unit == decimalSeparator_ && unit != 0) {
      unit = u'.';
      inInteger_ = false;
    } else if (inInteger_ && IsThousandSeparator(unit)) {
      return groups_.AddSeparator();
    } else if (unit == u'e' || unit == u'E') {
      inInteger_ = false;
    } else if (unit != u'+' && unit != u'-') {
      return false;
    }
    ascii_.push_back(static_cast<char>(unit));
    return true;
  }

  bool Read(double& value) const {
    return groups_.AreComplete() && TW::ReadDecimalNumber(ascii_, value) == TW::NumberReading::Read;
  }

 private:
  bool IsThousandSeparator(char16_t unit) const {
    if (thousandSeparator_ == 0) return false;
    const bool noBreakSpace = thousandSeparator_ == 0x00A0 || thousandSeparator_ == 0x202F;
    return unit == thousandSeparator_ || (noBreakSpace && unit == u' ');
  }

  char16_t decimalSeparator_;
  char16_t thousandSeparator_;
  bool inInteger_ = true;
  DigitGroups groups_;
  std::string ascii_;
};

}  // namespace

bool ConvertNumberStringToNonUnit(const TW::UniString& text, unsigned short decimalSeparator,
                                  TW::Optional<unsigned short> thousandSeparator, double* result) {
  const TW::UniString trimmed = text.Trim();
  std::u16string_view units = trimmed;
  const bool negative = units.starts_with(u'-');
  if (negative || units.starts_with(u'+')) units.remove_prefix(1);

  NumberRewriter rewriter(decimalSeparator, thousandSeparator.value_or(0));
  for (const char16_t unit : units)
    if (!rewriter.Add(unit)) return false;
  double value = 0;
  if (!rewriter.Read(value)) return false;
  if (result != nullptr) *result = negative && value != 0 ? -value : value;
  return true;
}

}  // namespace TWUtils
