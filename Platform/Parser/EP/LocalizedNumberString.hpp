#pragma once

#include "EP/Export.hpp"
#include "TW/Channel.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/UniString.hpp"

#include <string>

namespace EP {

/// A number as somebody typed it, digit for digit, apart from the decimal separator, which is chosen anew whenever the
/// text is wanted. The default is the number 0.
class EP_EXPORT LocalizedNumberString {
 public:
  LocalizedNumberString() = default;
  /// Keeps `number`, which must be a number that `TW::ReadDecimalNumber` reads.
  explicit LocalizedNumberString(std::string number) noexcept;

  /// The number with this decimal separator.
  TW::UniString GetNumberString(unsigned short decimalSeparator) const;

  /// Reads what `Write` stored. A text that is no number, or one too large for a double, gives `TW::ErrRefused`. After
  /// a failure this is unchanged.
  TW::ErrCode Read(TW::IChannel& channel);
  /// Stores the number as a text with a full stop.
  TW::ErrCode Write(TW::OChannel& channel) const;

  friend bool operator==(const LocalizedNumberString&, const LocalizedNumberString&) = default;

 private:
  std::string number_ = "0";  ///< in ASCII, with a full stop
};

}  // namespace EP
