#include "Resources/LanguageCode.hpp"

#include <algorithm>

namespace Resources {
namespace {

// Ten places of six bits: three for the language, four for the script, three for the region. A place holds 0 for
// nothing, 1 to 26 for a letter, 27 to 36 for a digit.
struct Part {
  unsigned int shift;
  unsigned int places;

  std::uint64_t GetMask() const { return ((std::uint64_t{1} << (PlaceBits * places)) - 1) << shift; }

  static constexpr unsigned int PlaceBits = 6;
};

constexpr Part Language{42, 3};
constexpr Part Script{18, 4};
constexpr Part Region{0, 3};

constexpr std::size_t MaximumTagLength = 100;
constexpr std::size_t MaximumSubtagLength = 8;

// The classes of <cctype> depend on the locale.
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsLetterOrDigit(char c) { return IsLetter(c) || IsDigit(c); }
bool MayFollowSubtags(char c) {
  return IsLetterOrDigit(c) || std::string_view("-_=;:.@").find(c) != std::string_view::npos;
}
bool IsWord(std::string_view text, std::size_t minimum, std::size_t maximum) {
  return text.size() >= minimum && text.size() <= maximum && std::all_of(text.begin(), text.end(), IsLetter);
}
bool IsRegion(std::string_view text) {
  return IsWord(text, 2, 2) || (text.size() == 3 && std::all_of(text.begin(), text.end(), IsDigit));
}
bool IsSubtag(std::string_view text) {
  return !text.empty() && text.size() <= MaximumSubtagLength && std::all_of(text.begin(), text.end(), IsLetterOrDigit);
}

std::uint64_t Pack(Part part, std::string_view text) {
  std::uint64_t bits = 0;
  for (unsigned int i = 0; i < part.places; ++i) {
    const char c = i < text.size() ? text[i] : '\0';
    // The low five bits of a letter are its place in the alphabet, whatever its case.
    const int place = IsDigit(c) ? c - '0' + 27 : c & 0x1F;
    bits = bits << Part::PlaceBits | static_cast<std::uint64_t>(place);
  }
  return bits << part.shift;
}

std::string Unpack(Part part, std::uint64_t bits, char firstLetter, char otherLetters) {
  std::string text;
  for (unsigned int i = 0; i < part.places; ++i) {
    const auto place = static_cast<int>(bits >> (part.shift + Part::PlaceBits * (part.places - 1 - i)) & 0x3F);
    if (place == 0) break;
    const char base = i == 0 ? firstLetter : otherLetters;
    text.push_back(static_cast<char>(place > 26 ? '0' + place - 27 : base + place - 1));
  }
  return text;
}

// Takes the subtag before the next separator off the front; without one, all that is left.
std::string_view TakeSubtag(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of("-_"), rest.size());
  const std::string_view subtag = rest.substr(0, end);
  rest.remove_prefix(end);
  return subtag;
}

// Takes a separator and the subtag behind it if the subtag is of the wanted kind.
template <class Predicate>
std::string_view TakeSubtagIf(std::string_view& rest, const Predicate& isWanted) {
  if (rest.empty()) return {};
  std::string_view behind = rest.substr(1);
  const std::string_view subtag = TakeSubtag(behind);
  if (!isWanted(subtag)) return {};
  rest = behind;
  return subtag;
}

}  // namespace

LanguageCode LanguageCode::FromTag(std::string_view tag) {
  if (tag.size() > MaximumTagLength) return {};
  const std::size_t end = std::min(tag.find_first_of(".@"), tag.size());
  if (!std::all_of(tag.begin() + static_cast<std::ptrdiff_t>(end), tag.end(), MayFollowSubtags)) return {};

  std::string_view rest = tag.substr(0, end);
  const std::string_view language = TakeSubtag(rest);
  const std::string_view script = TakeSubtagIf(rest, [](std::string_view text) { return IsWord(text, 4, 4); });
  const std::string_view region = TakeSubtagIf(rest, IsRegion);
  while (!TakeSubtagIf(rest, IsSubtag).empty()) continue;
  if (!IsWord(language, 2, 3) || !rest.empty()) return {};
  return LanguageCode(Pack(Language, language) | Pack(Script, script) | Pack(Region, region));
}

std::string LanguageCode::GetTag() const {
  if (IsRoot()) return "root";
  std::string tag = Unpack(Language, bits_, 'a', 'a');
  if (const std::string script = Unpack(Script, bits_, 'A', 'a'); !script.empty()) tag += "_" + script;
  if (const std::string region = Unpack(Region, bits_, 'A', 'A'); !region.empty()) tag += "_" + region;
  return tag;
}

LanguageCode LanguageCode::GetParent() const noexcept {
  for (const Part part : {Region, Script}) {
    if ((bits_ & part.GetMask()) != 0) return LanguageCode(bits_ & ~part.GetMask());
  }
  return {};
}

}  // namespace Resources
