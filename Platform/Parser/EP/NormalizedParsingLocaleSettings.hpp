#pragma once

#include "EP/Export.hpp"
#include "EP/LocaleSettings.hpp"

namespace EP {

/// The separators in which a formula is really read and written: a copy of somebody's settings in which the two always
/// differ. Where they are the same, the list separator becomes a semicolon, or a comma when the semicolon is taken.
class EP_EXPORT NormalizedParsingLocaleSettings final : public IParsingLocaleSettings {
 public:
  explicit NormalizedParsingLocaleSettings(const IParsingLocaleSettings& settings);

  unsigned short GetDecimalSeparator() const override { return decimalSeparator_; }
  unsigned short GetListSeparator() const override { return listSeparator_; }

 private:
  unsigned short decimalSeparator_;
  unsigned short listSeparator_;
};

}  // namespace EP
