#include "EP/FractionalInch.hpp"

#include "EP/TextConstants.hpp"

#include <algorithm>

namespace EP {

bool FractionalInch::IsWithinLimit() const { return std::max({whole_, numerator_, denominator_}) < Limit; }

bool FractionalInch::IsValid() const { return IsWithinLimit() && numerator_ < denominator_; }

double FractionalInch::GetValueInInches() const {
  const double fraction = denominator_ == 0 ? 0.0 : static_cast<double>(numerator_) / denominator_;
  return whole_ + fraction;
}

TW::UniString FractionalInch::ToString() const {
  TW::UniString text = TW::UniString::FromInteger(whole_);
  text += SpaceChar;
  text += TW::UniString::FromInteger(numerator_);
  text += Divide;
  text += TW::UniString::FromInteger(denominator_);
  text += InchMark;
  return text;
}

TW::ErrCode FractionalInch::Read(TW::IChannel& channel) {
  FractionalInch read;
  channel.ReadUInt32(read.whole_);
  channel.ReadUInt32(read.numerator_);
  const TW::ErrCode error = channel.ReadUInt32(read.denominator_);
  if (error != TW::NoErr) return error;
  if (!read.IsWithinLimit()) return TW::ErrRefused;
  *this = read;
  return TW::NoErr;
}

TW::ErrCode FractionalInch::Write(TW::OChannel& channel) const {
  channel.WriteUInt32(whole_);
  channel.WriteUInt32(numerator_);
  return channel.WriteUInt32(denominator_);
}

ExpressionInvalidFractionalNodeException::ExpressionInvalidFractionalNodeException(const FractionalInch& value)
    : SyntaxErrorException(SyntaxErrorReason::NumberOutOfRange, {}), value_(value) {}

ExpressionInvalidFractionalNodeException::~ExpressionInvalidFractionalNodeException() = default;

}  // namespace EP
