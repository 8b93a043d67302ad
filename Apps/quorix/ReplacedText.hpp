#pragma once

#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <string_view>
#include <vector>

namespace Command {

/// A text in which stretches were replaced, and which place of it belongs to which of the original.
class ReplacedText {
 public:
  /// Takes over what stands unchanged in both.
  void Keep(std::u16string_view text);
  /// Puts `by` in the place of `text`.
  void Replace(std::u16string_view text, std::u16string_view by);

  const TW::UniString& GetText() const { return text_; }
  /// Each maps a range; one that touches a replaced stretch covers the whole of it afterwards.
  TW::Range<unsigned int> ToOriginal(TW::Range<unsigned int> range) const;
  TW::Range<unsigned int> FromOriginal(TW::Range<unsigned int> range) const;

 private:
  using Range = TW::Range<unsigned int>;

  struct Piece {
    Range original;
    Range replaced;
  };

  TW::UniString text_;
  unsigned int originalLength_ = 0;
  std::vector<Piece> pieces_;
};

}  // namespace Command
