#pragma once

#include "TU/Units.hpp"
#include "TW/Array.hpp"
#include "TW/UniString.hpp"

#include <string_view>

/// A sign that each marker mode writes in its own way.
enum class TUMark : unsigned char {
  Minus,
  MarkerGap,    ///< between a number and its marker
  Prime,        ///< feet and minutes
  DoublePrime,  ///< inches and seconds
};

/// A text whose marker mode is not chosen yet: the characters that all modes share, and the marks among them. A plain
/// value; the marks are never looked for among the characters, which may happen to be the same.
class TUDisplayText {
 public:
  void Append(std::u16string_view text) { shared_.Append(text); }
  void Append(TUMark mark) { marks_.push_back({shared_.GetLength(), mark}); }

  bool IsEmpty() const { return shared_.IsEmpty() && marks_.empty(); }
  /// Writes the text as `mode` wants it.
  TW::UniString Layout(TWUnit::UnitMarkerMode mode) const;

 private:
  struct PlacedMark {
    unsigned int position;  ///< how many shared characters stand before the mark
    TUMark mark;
  };

  TW::UniString shared_;
  TW::Array<PlacedMark> marks_;
};
