#include "Host/Json/JsonDocument.hpp"

#include "TW/DecimalNumber.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <new>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace Host {
namespace {

// Texts up to this length leave no more memory behind than is kept on purpose.
constexpr std::size_t KeptLength = std::size_t{256} * 1024;

// The reader of the library does not expect that memory may be refused.
struct ThrowingAllocator {
  void* Malloc(std::size_t size) { return Checked(std::malloc(size), size); }
  void* Realloc(void* old, std::size_t, std::size_t size) { return Checked(std::realloc(old, size), size); }
  static void Free(void* memory) { std::free(memory); }

 private:
  static void* Checked(void* memory, std::size_t size) {
    if (memory == nullptr && size != 0) throw std::bad_alloc();
    return memory;
  }
};

std::uint32_t Narrow(std::size_t position) { return static_cast<std::uint32_t>(position); }

bool IsBetweenValues(char character) { return std::string_view(" \t\r\n:,").find(character) != std::string_view::npos; }

JsonFault ToFault(const rapidjson::ParseResult& result, std::string_view text) {
  switch (result.Code()) {
    case rapidjson::kParseErrorDocumentEmpty:
      return JsonFault::Empty;
    case rapidjson::kParseErrorDocumentRootNotSingular:
      return JsonFault::More;
    case rapidjson::kParseErrorObjectMissName:
      return JsonFault::NameExpected;
    case rapidjson::kParseErrorObjectMissColon:
      return JsonFault::ColonExpected;
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return JsonFault::ObjectGoesOn;
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return JsonFault::ArrayGoesOn;
    case rapidjson::kParseErrorStringEscapeInvalid:
      // The reader says the same of a control character, such as the end of a line.
      return text.substr(result.Offset()).starts_with('\\') ? JsonFault::WrongEscape : JsonFault::UnfinishedText;
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
    case rapidjson::kParseErrorTermination:
      return JsonFault::WrongEscape;
    case rapidjson::kParseErrorStringMissQuotationMark:
    case rapidjson::kParseErrorStringInvalidEncoding:
      return JsonFault::UnfinishedText;
    case rapidjson::kParseErrorNumberTooBig:
    case rapidjson::kParseErrorNumberMissFraction:
    case rapidjson::kParseErrorNumberMissExponent:
      return JsonFault::WrongNumber;
    default:
      return JsonFault::ValueExpected;
  }
}

// The length of a UTF-8 sequence and the bits of its first byte.
struct Lead {
  unsigned int length;
  char32_t bits;
};

Lead ReadLead(unsigned char byte) {
  if (byte < 0x80) return {1, byte};
  if (byte < 0xE0) return {2, byte & 0x1FU};
  if (byte < 0xF0) return {3, byte & 0x0FU};
  return {4, byte & 0x07U};
}

// Appends the characters of valid UTF-8 and gives whether there was no surrogate among them.
bool AppendUtf16(std::u16string& out, std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    Lead lead = ReadLead(static_cast<unsigned char>(text[i++]));
    for (; lead.length > 1; --lead.length) lead.bits = lead.bits << 6 | (static_cast<unsigned char>(text[i++]) & 0x3FU);
    if (lead.bits >= 0xD800 && lead.bits < 0xE000) return false;
    if (lead.bits >= 0x10000) {
      out += static_cast<char16_t>(0xD7C0 + (lead.bits >> 10));
      lead.bits = 0xDC00 | (lead.bits & 0x3FF);
    }
    out += static_cast<char16_t>(lead.bits);
  }
  return true;
}

}  // namespace

std::size_t FindUnitInJson(std::string_view json, std::size_t begin, std::size_t unit) {
  std::size_t position = begin + 1;
  while (unit > 0 && position < json.size() && json[position] != '"') {
    const bool isEscape = json[position] == '\\';
    const unsigned int length = ReadLead(static_cast<unsigned char>(json[position])).length;
    const std::size_t units = length == 4 ? 2 : 1;
    // The second half of a pair that is no escape has no place of its own.
    if (units > unit) break;
    unit -= units;
    if (isEscape) {
      position += json.substr(position + 1).starts_with('u') ? 6 : 2;
    } else {
      position += length;
    }
  }
  return std::min(position, json.size());
}

class JsonDocument::Reader : public rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, ThrowingAllocator> {
};

// Enters what the reader meets as nodes. The reader calls it after a value, except before the closing bracket of an
// object or array.
class JsonDocument::Handler {
 public:
  Handler(JsonDocument& document, const rapidjson::MemoryStream& stream) : document_(document), stream_(stream) {}

  bool Null() { return AddPlain(Kind::Null, 4); }
  bool Bool(bool value) { return value ? AddPlain(Kind::True, 4) : AddPlain(Kind::False, 5); }
  bool RawNumber(const char*, rapidjson::SizeType length, bool) { return AddPlain(Kind::Number, length); }
  bool String(const char* text, rapidjson::SizeType length, bool) { return AddText({text, length}); }
  bool Key(const char* text, rapidjson::SizeType length, bool) { return AddText({text, length}); }
  bool StartObject() { return Open(Kind::Object); }
  bool EndObject(rapidjson::SizeType) { return Close(); }
  bool StartArray() { return Open(Kind::Array); }
  bool EndArray(rapidjson::SizeType) { return Close(); }
  // Numbers come as they are written.
  bool Int(int) { return false; }
  bool Uint(unsigned int) { return false; }
  bool Int64(std::int64_t) { return false; }
  bool Uint64(std::uint64_t) { return false; }
  bool Double(double) { return false; }

 private:
  bool Add(Kind kind, std::size_t begin, std::size_t end, Stretch text) {
    const std::uint32_t next = Narrow(document_.nodes_.size() + 1);
    document_.nodes_.push_back({kind, next, {Narrow(begin), Narrow(end)}, text});
    afterLast_ = end;
    return true;
  }
  bool AddPlain(Kind kind, std::size_t length) { return Add(kind, stream_.Tell() - length, stream_.Tell(), {0, 0}); }

  bool AddText(std::string_view text) {
    const std::size_t begin = document_.texts_.size();
    if (!AppendUtf16(document_.texts_, text)) return false;
    return Add(Kind::Text, FindTextBegin(), stream_.Tell(), {Narrow(begin), Narrow(document_.texts_.size())});
  }

  // The reader does not tell where a text begins, but nothing else stands between it and what came before.
  std::size_t FindTextBegin() const {
    std::size_t position = afterLast_;
    while (position < document_.source_.size() && IsBetweenValues(document_.source_[position])) ++position;
    return position;
  }

  bool Open(Kind kind) {
    open_.push_back(Narrow(document_.nodes_.size()));
    return Add(kind, stream_.Tell(), stream_.Tell() + 1, {0, 0});
  }

  bool Close() {
    Node& node = document_.nodes_[open_.back()];
    node.next = Narrow(document_.nodes_.size());
    afterLast_ = stream_.Tell() + 1;
    node.source.end = Narrow(afterLast_);
    open_.pop_back();
    return true;
  }

  JsonDocument& document_;
  const rapidjson::MemoryStream& stream_;
  std::size_t afterLast_ = 0;  ///< where the last bracket or value ended
  std::vector<std::uint32_t> open_;
};

JsonDocument::JsonDocument() : reader_(std::make_unique<Reader>()) {}

JsonDocument::~JsonDocument() = default;

void JsonDocument::Clear() {
  if (source_.size() > KeptLength) {
    reader_ = std::make_unique<Reader>();
    std::vector<Node>().swap(nodes_);
    std::u16string().swap(texts_);
  }
  nodes_.clear();
  texts_.clear();
}

JsonValue JsonDocument::Read(std::string_view text) {
  Clear();
  source_ = text;
  rapidjson::MemoryStream stream(text.data(), text.size());
  Handler handler(*this, stream);
  constexpr unsigned int Flags =
      rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
  const rapidjson::ParseResult result = reader_->Parse<Flags>(stream, handler);
  if (result.IsError()) {
    const char* reason = result.Code() == rapidjson::kParseErrorTermination
                             ? "The surrogate pair in string is invalid."
                             : rapidjson::GetParseError_En(result.Code());
    throw JsonError(ToFault(result, text), result.Offset(), reason);
  }
  // The reader takes a byte 0 for the end.
  if (stream.Tell() != text.size()) throw JsonError(JsonFault::More, stream.Tell(), "Invalid value.");
  return {*this, 0};
}

std::u16string_view JsonValue::GetText() const {
  const JsonDocument::Stretch& text = GetNode().text;
  return std::u16string_view(document_->texts_).substr(text.begin, text.end - text.begin);
}

std::string_view JsonValue::GetSource() const {
  const JsonDocument::Stretch& source = GetNode().source;
  return document_->source_.substr(source.begin, source.end - source.begin);
}

bool JsonValue::GetBool(bool& value) const {
  if (GetKind() != JsonDocument::Kind::True && GetKind() != JsonDocument::Kind::False) return false;
  value = GetKind() == JsonDocument::Kind::True;
  return true;
}

bool JsonValue::GetNumber(double& value) const {
  if (GetKind() != JsonDocument::Kind::Number) return false;
  std::string_view digits = GetSource();
  const bool negative = digits.front() == '-';
  if (negative) digits.remove_prefix(1);
  if (TW::ReadDecimalNumber(digits, value) != TW::NumberReading::Read) return false;
  if (negative) value = -value;
  return true;
}

bool JsonValue::GetWholeNumber(long long minimum, long long maximum, long long& value) const {
  double number = 0;
  if (!GetNumber(number) || number != std::floor(number)) return false;
  if (number < static_cast<double>(minimum) || number > static_cast<double>(maximum)) return false;
  value = static_cast<long long>(number);
  return true;
}

}  // namespace Host
