#include "ReplacedText.hpp"

#include <algorithm>

namespace Command {

void ReplacedText::Keep(std::u16string_view text) {
  text_ += text;
  originalLength_ += static_cast<unsigned int>(text.size());
}

void ReplacedText::Replace(std::u16string_view text, std::u16string_view by) {
  const Range original{originalLength_, originalLength_ + static_cast<unsigned int>(text.size())};
  const Range replaced{text_.GetLength(), text_.GetLength() + static_cast<unsigned int>(by.size())};
  pieces_.push_back({original, replaced});
  text_ += by;
  originalLength_ = original.end;
}

namespace {

enum class Edge { Begin, End };

// Maps a position between the texts whose ranges `from` and `to` pick.
template <class Piece, class Range>
unsigned int Map(const std::vector<Piece>& pieces, Range Piece::* from, Range Piece::* to, unsigned int position,
                 Edge edge) {
  const auto after =
      std::upper_bound(pieces.begin(), pieces.end(), position, [&](unsigned int place, const Piece& piece) {
        return edge == Edge::Begin ? place < (piece.*from).begin : place <= (piece.*from).begin;
      });
  if (after == pieces.begin()) return position;
  const Piece& piece = *(after - 1);
  if (position >= (piece.*from).end) return (piece.*to).end + (position - (piece.*from).end);
  return edge == Edge::Begin ? (piece.*to).begin : (piece.*to).end;
}

}  // namespace

TW::Range<unsigned int> ReplacedText::ToOriginal(TW::Range<unsigned int> range) const {
  return {Map(pieces_, &Piece::replaced, &Piece::original, range.begin, Edge::Begin),
          Map(pieces_, &Piece::replaced, &Piece::original, range.end, Edge::End)};
}

TW::Range<unsigned int> ReplacedText::FromOriginal(TW::Range<unsigned int> range) const {
  return {Map(pieces_, &Piece::original, &Piece::replaced, range.begin, Edge::Begin),
          Map(pieces_, &Piece::original, &Piece::replaced, range.end, Edge::End)};
}

}  // namespace Command
