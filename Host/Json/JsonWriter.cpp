#include "Host/Json/JsonWriter.hpp"

#include "Host/Files/Encoding.hpp"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace Host {
namespace {

bool IsPlain(char16_t unit) { return unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\'; }

bool IsLead(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

bool IsTrail(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendEscape(std::string& out, char16_t unit) {
  constexpr char Digits[] = "0123456789abcdef";
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) out += Digits[(unit >> shift) & 0xF];
}

void AppendShortEscape(std::string& out, char16_t unit) {
  constexpr std::u16string_view Units = u"\"\\\b\f\n\r\t";
  constexpr std::string_view Letters = "\"\\bfnrt";
  const std::size_t place = Units.find(unit);
  if (place == Units.npos) return AppendEscape(out, unit);
  out += '\\';
  out += Letters[place];
}

// Appends the character at `position`, which is none of the plain ones, and gives how many units it has.
std::size_t AppendSpecial(std::string& out, std::u16string_view text, std::size_t position) {
  const char16_t unit = text[position];
  if (IsLead(unit) && position + 1 < text.size() && IsTrail(text[position + 1])) {
    AppendUtf8(out, 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{text[position + 1]} - 0xDC00));
    return 2;
  }
  if (IsLead(unit) || IsTrail(unit)) {
    AppendEscape(out, unit);
  } else if (unit < 0x80 && unit != 0x7F) {
    AppendShortEscape(out, unit);
  } else {
    AppendUtf8(out, unit);
  }
  return 1;
}

}  // namespace

void JsonWriter::Separate() {
  if (follows_) out_ += ", ";
  follows_ = true;
}

void JsonWriter::Open(char bracket) {
  Separate();
  out_ += bracket;
  follows_ = false;
}

void JsonWriter::Close(char bracket) {
  out_ += bracket;
  follows_ = true;
}

void JsonWriter::WriteKey(std::string_view key) {
  WriteName(key);
  out_ += ": ";
  follows_ = false;
}

void JsonWriter::WriteKey(std::u16string_view key) {
  WriteText(key);
  out_ += ": ";
  follows_ = false;
}

void JsonWriter::WriteName(std::string_view name) {
  Separate();
  out_ += '"';
  out_ += name;
  out_ += '"';
}

void JsonWriter::WriteText(std::u16string_view text) {
  Separate();
  out_ += '"';
  for (std::size_t i = 0; i < text.size();) {
    if (IsPlain(text[i])) {
      out_ += static_cast<char>(text[i++]);
    } else {
      i += AppendSpecial(out_, text, i);
    }
  }
  out_ += '"';
}

void JsonWriter::WriteNumber(double value) {
  // The shortest form of it would read as an integer.
  if (value == 0 && std::signbit(value)) return WriteSource("-0.0");
  char digits[32];
  const auto [end, error] = std::to_chars(digits, digits + sizeof(digits), value);
  WriteSource({digits, static_cast<std::size_t>(end - digits)});
}

void JsonWriter::WriteInteger(long long value) {
  char digits[24];
  const auto [end, error] = std::to_chars(digits, digits + sizeof(digits), value);
  WriteSource({digits, static_cast<std::size_t>(end - digits)});
}

void JsonWriter::WriteSource(std::string_view json) {
  Separate();
  out_ += json;
}

void JsonWriter::BreakLine() {
  out_ += follows_ ? ",\n" : "\n";
  follows_ = false;
}

}  // namespace Host
