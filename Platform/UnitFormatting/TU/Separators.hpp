#pragma once

#include "TU/Export.hpp"
#include "TW/UniString.hpp"

/// The texts between the groups of digits of a number and before its decimals. A value of its own; it never changes.
class TU_EXPORT TUSeparators {
 public:
  /// Takes the texts as they are. Either counts as absent when it is empty or the one unit U+0000: no `thousand` means
  /// no groups, no `decimal` means a full stop, so that decimals never run into the digits before them.
  static TUSeparators Create(const TW::UniString& decimal, const TW::UniString& thousand);

  const TW::UniString& GetDecimal() const { return decimal_; }
  /// Gives the text between groups of three digits; empty for no groups.
  const TW::UniString& GetThousand() const { return thousand_; }

 private:
  TUSeparators() = default;

  TW::UniString decimal_;
  TW::UniString thousand_;
};
