#pragma once

#include "TW/Array.hpp"
#include "TW/Export.hpp"
#include "TW/Optional.hpp"
#include "TW/UniChar.hpp"

#include <compare>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace TW {

/// How two texts are put in order.
enum class CaseComparison {
  CaseSensitive = 0,
  CaseInsensitive = 1,  ///< after Unicode's full case folding
};

/// A text of 16-bit code units (UTF-16). Positions and lengths count units; a text is not required to be well formed,
/// so that cutting a surrogate pair in two is harmless. Texts of up to seven units need no heap. A text holds fewer
/// than 2^32 units; an operation that would exceed that throws `std::bad_alloc`.
///
/// Searches report occurrences from left to right that do not overlap and take time linear in the lengths of both
/// texts.
class TW_EXPORT UniString {
 public:
  UniString() noexcept = default;
  UniString(const char16_t* text) : units_(text) {}
  explicit UniString(std::u16string_view text) : units_(text) {}
  explicit UniString(std::u16string&& text) noexcept : units_(std::move(text)) {}
  explicit UniString(UniChar unit) : units_(1, unit.GetCode()) {}
  UniString(unsigned int count, UniChar unit) : units_(count, unit.GetCode()) {}

  /// Reads UTF-8; every broken sequence becomes one U+FFFD.
  static UniString FromUtf8(std::string_view text);
  /// The text in UTF-8; a lone surrogate becomes U+FFFD.
  std::string ToUtf8() const;
  /// The plain decimal text of a whole number.
  static UniString FromInteger(long long value);

  /// Fills a template: each `%T` takes the next argument (nothing when there is none), `%%` is a percent sign, and any
  /// other percent sign stands for itself.
  static UniString Printf(const UniString& format, std::initializer_list<UniString> arguments);
  template <class... Arguments>
  static UniString Printf(const UniString& format, const Arguments&... arguments) {
    return Printf(format, {UniString(arguments)...});
  }

  unsigned int GetLength() const noexcept { return static_cast<unsigned int>(units_.size()); }
  bool IsEmpty() const noexcept { return units_.empty(); }
  UniChar operator[](unsigned int position) const { return units_[position]; }
  std::u16string_view GetView() const noexcept { return units_; }
  operator std::u16string_view() const noexcept { return units_; }

  auto begin() const noexcept { return units_.begin(); }
  auto end() const noexcept { return units_.end(); }

  void Append(std::u16string_view text);
  void Append(UniChar unit);
  UniString& operator+=(std::u16string_view text) {
    Append(text);
    return *this;
  }
  friend UniString operator+(const UniString& left, std::u16string_view right) {
    UniString sum = left;
    sum.Append(right);
    return sum;
  }
  void Reserve(std::size_t length) { units_.reserve(length); }
  void Clear() noexcept { units_.clear(); }

  /// Up to `count` units from `start`; nothing when `start` lies beyond the end.
  UniString Substring(unsigned int start, unsigned int count) const;
  /// Replaces up to `count` units from `start` by `text`; a start beyond the end is the end.
  void SetSubstring(unsigned int start, unsigned int count, std::u16string_view text);

  /// The whole text in upper case by Unicode's full mapping, whatever the locale (`ß` becomes `SS`).
  UniString ToUpperCase() const;
  /// The whole text in lower case by Unicode's full mapping, whatever the locale.
  UniString ToLowerCase() const;
  /// The text in Unicode's normalization form C, in which a letter and its accent are one character where there is one.
  UniString ToNormalizationFormC() const;
  /// The text without the white space at both ends.
  UniString Trim() const;

  /// Calls `visit` with the position of each occurrence of `text`. An empty text is never found.
  void Find(std::u16string_view text, const std::function<void(unsigned int position)>& visit) const;
  /// The position of the first occurrence at or after `start`. An empty text is found at `start` when that lies within
  /// the text or at its end.
  Optional<unsigned int> FindFirst(std::u16string_view text, unsigned int start = 0) const;
  /// Whether `text` occurs; an empty text always does.
  bool Contains(std::u16string_view text) const { return FindFirst(text).has_value(); }
  /// The parts between the occurrences of `separator`, empty parts included; an empty separator cuts nothing.
  Array<UniString> Split(std::u16string_view separator) const;
  /// The text with each occurrence of `oldText` replaced; an empty `oldText` changes nothing.
  UniString ReplaceAll(std::u16string_view oldText, std::u16string_view newText) const;

  /// -1, 0 or 1: the order of this text and `other` by 16-bit code unit.
  int Compare(std::u16string_view other, CaseComparison comparison = CaseComparison::CaseSensitive) const;

  friend bool operator==(const UniString& left, const UniString& right) noexcept { return left.units_ == right.units_; }
  friend std::strong_ordering operator<=>(const UniString& left, const UniString& right) noexcept {
    return left.units_ <=> right.units_;
  }

 private:
  std::u16string units_;
};

}  // namespace TW

/// @cond
template <>
struct std::hash<TW::UniString> {
  std::size_t operator()(const TW::UniString& text) const noexcept {
    return std::hash<std::u16string_view>()(text.GetView());
  }
};
/// @endcond
