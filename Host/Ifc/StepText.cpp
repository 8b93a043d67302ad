#include "Host/Ifc/StepText.hpp"

#include "TW/FixArray.hpp"

#include <unicode/ucnv.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <new>

namespace Host {
namespace {

constexpr char16_t Replacement = 0xFFFD;
constexpr std::size_t PageCount = 9;
constexpr std::size_t PageSize = 128;

using Page = TW::FixArray<char16_t, PageSize>;
using Pages = TW::FixArray<Page, PageCount>;

struct Closer {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};

// The upper half of ISO 8859-1 to 8859-9.
Page MakePage(std::size_t number) {
  Page page;
  page.fill(Replacement);
  char name[] = "ISO-8859-0";
  name[sizeof(name) - 2] = static_cast<char>('1' + number);
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, Closer> converter(ucnv_open(name, &status));
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (U_FAILURE(status)) return page;
  for (std::size_t i = 0; i < PageSize; ++i) {
    const char byte = static_cast<char>(i + PageSize);
    status = U_ZERO_ERROR;
    ucnv_toUChars(converter.get(), &page[i], 1, &byte, 1, &status);
    if (U_FAILURE(status)) page[i] = Replacement;
  }
  return page;
}

Pages MakePages() {
  Pages pages;
  for (std::size_t i = 0; i < PageCount; ++i) pages[i] = MakePage(i);
  return pages;
}

const Page& GetPage(std::size_t number) {
  static const Pages pages = MakePages();
  return pages[number];
}

int HexDigit(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  return -1;
}

bool ReadHex(std::string_view digits, std::uint32_t& value) {
  value = 0;
  for (const char character : digits) {
    const int digit = HexDigit(character);
    if (digit < 0) return false;
    value = value << 4 | static_cast<std::uint32_t>(digit);
  }
  return true;
}

class Decoder {
 public:
  explicit Decoder(std::string_view raw) : rest_(raw) { text_.Reserve(raw.size()); }

  TW::UniString Decode() {
    while (!rest_.empty()) {
      const std::size_t plain = std::min(rest_.find_first_of("\\'\r\n"), rest_.size());
      if (plain > 0) text_.Append(TW::UniString::FromUtf8(Take(plain)));
      if (!rest_.empty()) TakeSpecial();
    }
    return std::move(text_);
  }

 private:
  std::string_view Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  void TakeSpecial() {
    if (rest_[0] == '\\') {
      if (!TakeEscape()) Put(Take(1)[0]);
    } else if (rest_[0] == '\'') {
      Put(u'\'');
      Take(rest_.starts_with("''") ? 2 : 1);
    } else {
      Take(1);
    }
  }

  bool TakeEscape() {
    if (rest_.starts_with("\\\\")) {
      Put(u'\\');
      Take(2);
      return true;
    }
    if (rest_.starts_with("\\X\\")) return TakeByte();
    if (rest_.starts_with("\\X2\\")) return TakeHexRun(4);
    if (rest_.starts_with("\\X4\\")) return TakeHexRun(8);
    return rest_.starts_with("\\S\\") ? TakeShifted() : TakePage();
  }

  bool TakeByte() {
    std::uint32_t value = 0;
    if (rest_.size() < 5 || !ReadHex(rest_.substr(3, 2), value)) return false;
    Put(static_cast<char16_t>(value));
    Take(5);
    return true;
  }

  bool TakeShifted() {
    if (rest_.size() < 4 || static_cast<unsigned char>(rest_[3]) >= PageSize) return false;
    Put(GetPage(page_)[static_cast<unsigned char>(rest_[3])]);
    // An apostrophe is written twice here too.
    Take(rest_.substr(3).starts_with("''") ? 5 : 4);
    return true;
  }

  bool TakePage() {
    if (rest_.size() < 4 || rest_[1] != 'P' || rest_[3] != '\\') return false;
    if (rest_[2] < 'A' || rest_[2] >= static_cast<char>('A' + PageCount)) return false;
    page_ = static_cast<std::size_t>(rest_[2] - 'A');
    Take(4);
    return true;
  }

  // All of the run or nothing: a run that is not closed, or that holds something else, stands for itself. How far
  // digits reach is looked at once, so that many runs without an end cost no more than their length.
  bool TakeHexRun(std::size_t width) {
    const std::string_view run = rest_.substr(4);
    std::size_t length = 0;
    while (length < run.size() && HexDigit(run[length]) >= 0) ++length;
    if (length % width != 0 || !run.substr(length).starts_with("\\X0\\")) return false;
    for (std::size_t i = 0; i < length; i += width) PutHex(run.substr(i, width));
    Take(4 + length + 4);
    return true;
  }

  void PutHex(std::string_view digits) {
    std::uint32_t value = 0;
    ReadHex(digits, value);
    if (digits.size() == 4 || value < 0xD800 || (value > 0xDFFF && value < 0x10000)) {
      Put(static_cast<char16_t>(value));
    } else if (value < 0x10000 || value > 0x10FFFF) {
      Put(Replacement);
    } else {
      Put(static_cast<char16_t>(0xD7C0 + (value >> 10)));
      Put(static_cast<char16_t>(0xDC00 + (value & 0x3FF)));
    }
  }

  void Put(char16_t unit) { text_.Append(std::u16string_view(&unit, 1)); }
  void Put(char character) { Put(static_cast<char16_t>(static_cast<unsigned char>(character))); }

  std::string_view rest_;
  TW::UniString text_;
  std::size_t page_ = 0;
};

bool IsPlain(char16_t unit) { return unit >= u' ' && unit <= u'~'; }

void AppendHex(std::string& text, char16_t unit) {
  char digits[5];
  std::snprintf(digits, sizeof(digits), "%04X", static_cast<unsigned int>(unit));
  text += digits;
}

}  // namespace

TW::UniString DecodeStepText(std::string_view raw) { return Decoder(raw).Decode(); }

std::string EncodeStepText(const TW::UniString& text) {
  std::string encoded;
  bool inRun = false;
  for (const char16_t unit : text.GetView()) {
    if (IsPlain(unit) == inRun) {
      encoded += inRun ? "\\X0\\" : "\\X2\\";
      inRun = !inRun;
    }
    if (inRun) {
      AppendHex(encoded, unit);
    } else {
      encoded += static_cast<char>(unit);
      if (unit == u'\'' || unit == u'\\') encoded += static_cast<char>(unit);
    }
  }
  if (inRun) encoded += "\\X0\\";
  return encoded;
}

}  // namespace Host
