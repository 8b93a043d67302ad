#include "TU/DisplayText.hpp"

#include <cstddef>

namespace {

TW::UniChar MarkSign(TUMark mark, TWUnit::UnitMarkerMode mode) {
  const bool formatted = mode == TWUnit::UnitMarkerMode::Formatted;
  switch (mark) {
    case TUMark::Minus:
      return formatted ? u'\u2212' : u'-';
    case TUMark::MarkerGap:
      return formatted ? u'\u00A0' : u' ';
    case TUMark::Prime:
      return formatted ? u'\u2032' : u'\'';
    case TUMark::DoublePrime:
      break;
  }
  return formatted ? u'\u2033' : u'"';
}

}  // namespace

TW::UniString TUDisplayText::Layout(TWUnit::UnitMarkerMode mode) const {
  const std::u16string_view shared = shared_.GetView();
  TW::UniString text;
  text.Reserve(shared.size() + marks_.size());
  std::size_t written = 0;
  for (const PlacedMark& placed : marks_) {
    text.Append(shared.substr(written, placed.position - written));
    text.Append(MarkSign(placed.mark, mode));
    written = placed.position;
  }
  text.Append(shared.substr(written));
  return text;
}
