#include "Host/Screen/Excerpt.hpp"

#include "Host/Screen/ScreenText.hpp"

#include <algorithm>
#include <string_view>

namespace Host {
namespace {

constexpr std::size_t LongestText = 100;
constexpr std::size_t LeadingColumns = 30;
constexpr std::string_view Omission = "...";

// What stands in one place of the screen.
struct Cell {
  TW::UniString text;
  std::size_t width;
  char mark;
};

// Two lines without line ends.
struct Excerpt {
  std::string text;
  std::string marks;
};

using Cells = std::vector<Cell>;

// Gives the mark of each position asked for; positions must come in order.
class Marker {
 public:
  explicit Marker(const ExcerptPlace& place) : span_(place.span), core_(place.core) {
    for (auto& range : core_) range.end = std::max(range.end, range.begin + 1);
  }

  char GetMark(unsigned int position) {
    while (next_ < core_.size() && core_[next_].end <= position) ++next_;
    if (next_ < core_.size() && core_[next_].Contains(position)) return '^';
    return span_.Contains(position) ? '~' : ' ';
  }

 private:
  TW::Range<unsigned int> span_;
  std::vector<TW::Range<unsigned int>> core_;
  std::size_t next_ = 0;
};

void AddCharacter(Cells& cells, const ScreenCharacter& character, char mark) {
  if (character.columns > 0) {
    cells.push_back({TW::UniString(character.units), character.columns, mark});
    return;
  }
  cells.back().text += character.units;
  if (mark == '^' || cells.back().mark == ' ') cells.back().mark = mark;
}

Cells MakeCells(const TW::UniString& formula, const ExcerptPlace& place) {
  Cells cells;
  Marker marker(place);
  ScreenReader reader(formula);
  for (ScreenCharacter character; reader.Read(character);) {
    AddCharacter(cells, character, marker.GetMark(character.position));
  }
  // The place may be the end.
  cells.push_back({u" ", 1, marker.GetMark(formula.GetLength())});
  return cells;
}

std::size_t GetWidth(const Cells& cells, std::size_t begin, std::size_t end) {
  std::size_t width = 0;
  for (std::size_t i = begin; i < end; ++i) width += cells[i].width;
  return width;
}

// The cells to be shown: some before the first that is at fault, and as many after it as there is room for.
TW::Range<std::size_t> ChooseWindow(const Cells& cells) {
  if (GetWidth(cells, 0, cells.size()) <= LongestText + 1) return {0, cells.size()};
  const auto isCore = [](const Cell& cell) { return cell.mark == '^'; };
  auto core = static_cast<std::size_t>(std::find_if(cells.begin(), cells.end(), isCore) - cells.begin());
  if (core == cells.size()) core = 0;
  std::size_t begin = core;
  for (std::size_t room = LeadingColumns; begin > 0 && cells[begin - 1].width <= room; --begin) {
    room -= cells[begin - 1].width;
  }
  std::size_t end = begin;
  std::size_t room = LongestText;
  for (; end < cells.size() && cells[end].width <= room; ++end) room -= cells[end].width;
  // What is left at the end goes to the beginning.
  for (; begin > 0 && cells[begin - 1].width <= room; --begin) room -= cells[begin - 1].width;
  return {begin, end};
}

void RemoveTrailingBlanks(std::string& text) { text.erase(text.find_last_not_of(' ') + 1); }

Excerpt MakeExcerpt(const TW::UniString& formula, const ExcerptPlace& place) {
  const Cells cells = MakeCells(formula, place);
  const TW::Range<std::size_t> window = ChooseWindow(cells);
  Excerpt excerpt;
  if (window.begin > 0) {
    excerpt.text += Omission;
    excerpt.marks.append(Omission.size(), ' ');
  }
  for (std::size_t i = window.begin; i < window.end; ++i) {
    excerpt.text += cells[i].text.ToUtf8();
    excerpt.marks.append(cells[i].width, cells[i].mark);
  }
  if (window.end < cells.size()) excerpt.text += Omission;
  RemoveTrailingBlanks(excerpt.text);
  RemoveTrailingBlanks(excerpt.marks);
  return excerpt;
}

}  // namespace

void AppendExcerpt(std::string& out, std::string_view indentation, const TW::UniString& formula,
                   const ExcerptPlace& place) {
  const Excerpt excerpt = MakeExcerpt(formula, place);
  out.append(indentation).append(excerpt.text).append("\n");
  if (!excerpt.marks.empty()) out.append(indentation).append(excerpt.marks).append("\n");
}

}  // namespace Host
