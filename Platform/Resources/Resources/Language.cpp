#include "Resources/Language.hpp"

#include "Resources/LanguageCode.hpp"

#include <atomic>
#include <cstdlib>

namespace Resources {
namespace {

// No code has all bits set.
constexpr std::uint64_t Undecided = ~std::uint64_t{0};

constinit std::atomic<std::uint64_t> currentLanguage{Undecided};

LanguageCode GetCodeOfEnvironment(const char* lcAll, const char* lcMessages, const char* lang) {
  for (const char* value : {lcAll, lcMessages, lang}) {
    if (value != nullptr && *value != '\0') return LanguageCode::FromTag(value);
  }
  return {};
}

}  // namespace

void SetLanguage(std::string_view tag) {
  currentLanguage.store(LanguageCode::FromTag(tag).GetBits(), std::memory_order_relaxed);
}

std::string GetLanguage() { return GetCurrentLanguage().GetTag(); }

std::string GetLanguageOfEnvironment(const char* lcAll, const char* lcMessages, const char* lang) {
  return GetCodeOfEnvironment(lcAll, lcMessages, lang).GetTag();
}

LanguageCode GetCurrentLanguage() {
  std::uint64_t bits = currentLanguage.load(std::memory_order_relaxed);
  if (bits == Undecided) {
    const LanguageCode code = GetCodeOfEnvironment(getenv("LC_ALL"), getenv("LC_MESSAGES"), getenv("LANG"));
    // A language set meanwhile stays; the exchange then reads it.
    if (currentLanguage.compare_exchange_strong(bits, code.GetBits())) bits = code.GetBits();
  }
  return LanguageCode::FromBits(bits);
}

}  // namespace Resources
