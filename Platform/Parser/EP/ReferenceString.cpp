#include "EP/ReferenceString.hpp"

#include "EP/CharacterClass.hpp"
#include "EP/Escapes.hpp"
#include "EP/ReferenceScan.hpp"
#include "EP/TextConstants.hpp"

#include <string>

namespace EP {
namespace {

constexpr std::size_t NotFound = std::u16string_view::npos;
constexpr char16_t ClosingMark = ReferenceEnd.front();

std::size_t SkipType(std::u16string_view text, std::size_t position) {
  if (position == text.size() || !IsLetter(text[position])) return position;
  while (position < text.size() && IsAlphaNumeric(text[position])) ++position;
  return position;
}

bool IsType(std::u16string_view type) { return !type.empty() && SkipType(type, 0) == type.size(); }

// Looks at a text that has to be a reference from its beginning to its end.
ReferenceScan ScanWhole(std::u16string_view text) {
  ReferenceScan scan = ScanReference(text, 0);
  if (scan.end != text.size()) scan.outcome = ReferenceOutcome::None;
  return scan;
}

std::u16string MakeOpening(std::u16string_view type) {
  std::u16string opening(ReferenceStart);
  opening.append(type);
  opening.append(ReferenceSeparator);
  return opening;
}

}  // namespace

ReferenceScan ScanReference(std::u16string_view text, std::size_t position) {
  if (position >= text.size() || text[position] != ReferenceStart.front()) return {};
  const std::size_t type = position + 1;
  const std::size_t separator = SkipType(text, type);
  if (separator == text.size()) return {ReferenceOutcome::Unterminated};
  if (separator == type || text[separator] != ReferenceSeparator.front()) return {};
  const std::size_t mark = FindClosingMark(text, separator + 1, ClosingMark);
  if (mark == NotFound) return {ReferenceOutcome::Unterminated};
  return {ReferenceOutcome::Complete, separator, mark + 1};
}

TW::UniString MakeReferenceString(std::u16string_view type, std::u16string_view value) {
  TW::UniString text(MakeOpening(type));
  text += AddEscapes(value, ClosingMark);
  text += ReferenceEnd;
  return text;
}

bool IsWellFormedReferenceString(std::u16string_view text, std::u16string_view type) {
  const ReferenceScan scan = ScanWhole(text);
  return scan.outcome == ReferenceOutcome::Complete && text.substr(1, scan.separator - 1) == type;
}

bool GetRefValueFromReferenceFormat(std::u16string_view text, TW::UniString& value) {
  const ReferenceScan scan = ScanWhole(text);
  if (scan.outcome != ReferenceOutcome::Complete) return false;
  const std::size_t begin = scan.separator + 1;
  value = RemoveEscapes(text.substr(begin, scan.end - 1 - begin), ClosingMark);
  return true;
}

// References that are open at the same place end at the same bracket: the last unit before a value is the separator, so
// that none of them begins within an escape. One search for the bracket and one copy of the longest value, of which the
// others are ends, then serve them all.
void EnumerateReferenceValues(std::u16string_view text, std::u16string_view type,
                              const std::function<void(unsigned int, std::u16string_view)>& visit) {
  if (!IsType(type)) return;
  const std::u16string opening = MakeOpening(type);
  for (std::size_t at = text.find(opening); at != NotFound;) {
    std::size_t begin = at + opening.size();
    const std::size_t mark = FindClosingMark(text, begin, ClosingMark);
    if (mark == NotFound) return;
    const TW::UniString longest = RemoveEscapes(text.substr(begin, mark - begin), ClosingMark);
    std::u16string_view value = longest;
    while (at < mark) {
      visit(static_cast<unsigned int>(at), value);
      at = text.find(opening, begin);
      if (at >= mark) break;
      const std::size_t next = at + opening.size();
      value.remove_prefix(GetLengthWithoutEscapes(text.substr(begin, next - begin), ClosingMark));
      begin = next;
    }
  }
}

unsigned int GetReferenceStringLength(std::u16string_view text, unsigned int position) {
  const ReferenceScan scan = ScanReference(text, position);
  return scan.outcome == ReferenceOutcome::Complete ? static_cast<unsigned int>(scan.end - position) : 0;
}

}  // namespace EP
