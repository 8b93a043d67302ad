#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace Resources {

/// Language, script and region of a tag in one word, so that the language of the process is a single atomic and no tag,
/// however odd, takes memory. The default is the root.
class LanguageCode {
 public:
  constexpr LanguageCode() noexcept = default;
  static constexpr LanguageCode FromBits(std::uint64_t bits) noexcept { return LanguageCode(bits); }
  /// Reads a tag; anything that is none gives the root.
  static LanguageCode FromTag(std::string_view tag);

  /// The plain form, such as `de_AT`, or `root`.
  std::string GetTag() const;
  /// The code without its last part: de_AT, de, root. The root is its own parent.
  LanguageCode GetParent() const noexcept;
  bool IsRoot() const noexcept { return bits_ == 0; }
  std::uint64_t GetBits() const noexcept { return bits_; }

  friend constexpr auto operator<=>(LanguageCode left, LanguageCode right) noexcept = default;

 private:
  explicit constexpr LanguageCode(std::uint64_t bits) noexcept : bits_(bits) {}

  std::uint64_t bits_ = 0;
};

/// The language of the process; the first use takes it from the environment.
LanguageCode GetCurrentLanguage();

}  // namespace Resources
