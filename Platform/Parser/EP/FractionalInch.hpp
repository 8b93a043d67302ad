#pragma once

#include "EP/Export.hpp"
#include "EP/SyntaxErrorException.hpp"
#include "TW/Channel.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/UniString.hpp"

#include <cstdint>

namespace EP {

/// A length in whole inches and a fraction of an inch, as it was written. The default is 0 0/1.
class EP_EXPORT FractionalInch {
 public:
  /// Each of the three numbers is below this.
  static constexpr std::uint32_t Limit = std::uint32_t{1} << 31;

  constexpr FractionalInch() = default;
  constexpr FractionalInch(std::uint32_t whole, std::uint32_t numerator, std::uint32_t denominator)
      : whole_(whole), numerator_(numerator), denominator_(denominator) {}

  std::uint32_t GetWhole() const { return whole_; }
  std::uint32_t GetNumerator() const { return numerator_; }
  std::uint32_t GetDenominator() const { return denominator_; }

  /// Whether the fraction is one: the denominator above 0, the numerator below it, no number at or above `Limit`.
  bool IsValid() const;
  /// The length in inches; without a denominator the whole inches alone.
  double GetValueInInches() const;
  /// The text that a formula has for it: `5 1/2"`.
  TW::UniString ToString() const;

  /// Reads what `Write` stored; a number at or above `Limit` gives `TW::ErrRefused`. Does not ask for a valid fraction.
  /// After a failure this is unchanged.
  TW::ErrCode Read(TW::IChannel& channel);
  /// Stores whole, numerator and denominator as 32 bits each.
  TW::ErrCode Write(TW::OChannel& channel) const;

  friend bool operator==(const FractionalInch&, const FractionalInch&) = default;

 private:
  bool IsWithinLimit() const;

  std::uint32_t whole_ = 0;
  std::uint32_t numerator_ = 0;
  std::uint32_t denominator_ = 1;
};

/// A builder was given a fraction that is none, such as 5 3/2". The parser adds the place.
class EP_EXPORT ExpressionInvalidFractionalNodeException : public SyntaxErrorException {
 public:
  explicit ExpressionInvalidFractionalNodeException(const FractionalInch& value);
  ~ExpressionInvalidFractionalNodeException() override;

  const FractionalInch& GetValue() const { return value_; }

 private:
  FractionalInch value_;
};

}  // namespace EP
