#include "Localization/PoReader.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

namespace Localization {
namespace {

constexpr std::string_view Blanks = " \t\r\f\v";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

void SkipBlanks(std::string_view& rest) { rest.remove_prefix(std::min(rest.find_first_not_of(Blanks), rest.size())); }

// Takes the number that up to so many digits at the front of `rest` make.
bool TakeNumber(std::string_view& rest, std::size_t digits, int base, unsigned int& number) {
  const char* limit = rest.data() + std::min(digits, rest.size());
  const auto [end, error] = std::from_chars(rest.data(), limit, number, base);
  rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
  return error == std::errc();
}

// Takes what follows a backslash and gives the byte that it stands for.
bool TakeEscape(std::string_view& rest, char& byte) {
  constexpr std::string_view Letters = "ntrabfv\\\"";
  constexpr std::string_view Meanings = "\n\t\r\a\b\f\v\\\"";
  if (rest.empty()) return false;
  const std::size_t letter = Letters.find(rest[0]);
  if (letter != std::string_view::npos) {
    rest.remove_prefix(1);
    byte = Meanings[letter];
    return true;
  }
  const bool hexadecimal = rest[0] == 'x';
  if (hexadecimal) rest.remove_prefix(1);
  unsigned int number = 0;
  if (!TakeNumber(rest, hexadecimal ? 2 : 3, hexadecimal ? 16 : 8, number)) return false;
  byte = static_cast<char>(number);
  return number <= std::numeric_limits<unsigned char>::max();
}

bool HasFuzzyFlag(std::string_view flags) {
  while (!flags.empty()) {
    const std::size_t end = std::min(flags.find_first_of(", \t\r"), flags.size());
    if (flags.substr(0, end) == "fuzzy") return true;
    flags.remove_prefix(std::min(end + 1, flags.size()));
  }
  return false;
}

class PoParser {
 public:
  // The views of the messages stay good, because the pool never needs more room than the file had.
  PoParser(std::string_view bytes, RawCatalog& catalog) : catalog_(catalog) { catalog_.pool.reserve(bytes.size()); }

  TW::ErrCode TakeLine(std::string_view line);
  TW::ErrCode Finish();

 private:
  enum class Field { None, Context, Source, Plural, Translation };

  void TakeComment(std::string_view line);
  TW::ErrCode TakeKeyword(std::string_view& rest);
  TW::ErrCode BeginMessage();
  bool BeginField(std::string_view word, std::string_view& rest);
  bool Open(Field field, std::string_view& text);
  bool MayTakeForm() const { return field_ == Field::Plural || (field_ == Field::Translation && forms_ > 0); }
  bool TakeFormIndex(std::string_view& rest) const;
  bool TakeString(std::string_view& rest);
  void Append(std::string_view bytes);
  std::size_t GetPlainLength(std::string_view rest) const;

  RawCatalog& catalog_;
  RawMessage message_;
  std::string_view unused_;  ///< the texts of the plural
  unsigned int forms_ = 0;   ///< how many msgstr[n] the message has
  bool fuzzy_ = false;
  bool nextIsFuzzy_ = false;

  Field field_ = Field::None;
  bool hasString_ = false;            ///< whether the field has a string yet
  std::string_view* text_ = nullptr;  ///< where the text of the field belongs
  std::size_t textStart_ = 0;         ///< where it begins in the pool
};

TW::ErrCode PoParser::TakeLine(std::string_view line) {
  SkipBlanks(line);
  if (line.starts_with('#')) {
    TakeComment(line);
    return TW::NoErr;
  }
  if (!line.empty() && line[0] != '"') {
    const TW::ErrCode error = TakeKeyword(line);
    if (error != TW::NoErr) return error;
  }
  for (SkipBlanks(line); !line.empty(); SkipBlanks(line)) {
    if (!TakeString(line)) return TW::ErrFileFormat;
  }
  return TW::NoErr;
}

void PoParser::TakeComment(std::string_view line) {
  // The flags before an obsolete message are not meant for the one after it.
  if (line.starts_with("#~")) nextIsFuzzy_ = false;
  if (line.starts_with("#,") && HasFuzzyFlag(line.substr(2))) nextIsFuzzy_ = true;
}

TW::ErrCode PoParser::TakeKeyword(std::string_view& rest) {
  if (field_ != Field::None && !hasString_) return TW::ErrFileFormat;
  const std::size_t length = std::min(rest.find_first_not_of("abcdefghijklmnopqrstuvwxyz_"), rest.size());
  const std::string_view word = rest.substr(0, length);
  rest.remove_prefix(length);
  if (field_ == Field::None || (field_ == Field::Translation && word != "msgstr")) {
    const TW::ErrCode error = BeginMessage();
    if (error != TW::NoErr) return error;
  }
  return BeginField(word, rest) ? TW::NoErr : TW::ErrFileFormat;
}

// Hands on the message before, if there is one. A header counts even when it is marked as fuzzy, as it is in templates.
TW::ErrCode PoParser::BeginMessage() {
  const bool taken = field_ != Field::None && (!fuzzy_ || message_.IsHeader());
  const TW::ErrCode error = taken ? catalog_.Add(message_) : TW::NoErr;
  message_ = {};
  forms_ = 0;
  fuzzy_ = std::exchange(nextIsFuzzy_, false);
  field_ = Field::None;
  return error;
}

bool PoParser::BeginField(std::string_view word, std::string_view& rest) {
  if (word == "msgctxt" && field_ == Field::None) return Open(Field::Context, message_.context);
  if (word == "msgid" && field_ <= Field::Context) return Open(Field::Source, message_.source);
  if (word == "msgid_plural" && field_ == Field::Source) return Open(Field::Plural, unused_);
  if (word != "msgstr") return false;
  if (field_ == Field::Source && !rest.starts_with('[')) return Open(Field::Translation, message_.translation);
  if (!MayTakeForm() || !TakeFormIndex(rest)) return false;
  return Open(Field::Translation, forms_++ == 0 ? message_.translation : unused_);
}

bool PoParser::Open(Field field, std::string_view& text) {
  field_ = field;
  hasString_ = false;
  text_ = &text;
  textStart_ = catalog_.pool.size();
  return true;
}

// The forms must be numbered from 0 without a gap.
bool PoParser::TakeFormIndex(std::string_view& rest) const {
  if (!rest.starts_with('[')) return false;
  rest.remove_prefix(1);
  unsigned int index = 0;
  if (!TakeNumber(rest, rest.size(), 10, index) || index != forms_ || !rest.starts_with(']')) return false;
  rest.remove_prefix(1);
  return true;
}

bool PoParser::TakeString(std::string_view& rest) {
  if (field_ == Field::None || rest[0] != '"') return false;
  rest.remove_prefix(1);
  hasString_ = true;
  while (true) {
    const std::size_t length = GetPlainLength(rest);
    Append(rest.substr(0, length));
    rest.remove_prefix(length);
    if (rest.empty()) return false;
    const bool closed = rest[0] == '"';
    rest.remove_prefix(1);
    if (closed) return true;
    char byte = 0;
    if (!TakeEscape(rest, byte)) return false;
    Append({&byte, 1});
  }
}

void PoParser::Append(std::string_view bytes) {
  catalog_.pool.append(bytes);
  *text_ = std::string_view(catalog_.pool).substr(textStart_);
}

// A byte that looks like a quotation mark or a backslash may be a part of a longer character.
std::size_t PoParser::GetPlainLength(std::string_view rest) const {
  std::size_t length = 0;
  while (length < rest.size() && rest[length] != '"' && rest[length] != '\\') {
    length += catalog_.characterSet.GetCharacterLength(rest.substr(length));
  }
  return length;
}

TW::ErrCode PoParser::Finish() {
  if (field_ == Field::None) return TW::NoErr;
  return field_ == Field::Translation && hasString_ ? BeginMessage() : TW::ErrFileFormat;
}

}  // namespace

TW::ErrCode ReadPoCatalog(std::string_view bytes, RawCatalog& catalog) {
  if (bytes.starts_with(ByteOrderMark)) bytes.remove_prefix(ByteOrderMark.size());
  PoParser parser(bytes, catalog);
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const TW::ErrCode error = parser.TakeLine(bytes.substr(0, end));
    if (error != TW::NoErr) return error;
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return parser.Finish();
}

}  // namespace Localization
