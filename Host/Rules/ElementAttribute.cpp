#include "Host/Rules/ElementAttribute.hpp"

#include <algorithm>

namespace Host {
namespace {

constexpr std::u16string_view Names[] = {u"@class", u"@name", u"@globalId", u"@type", u"@storey", u"@tag"};

}  // namespace

TW::Optional<ElementAttribute> FindElementAttribute(std::u16string_view name) {
  const auto* const found = std::ranges::find(Names, name);
  if (found == std::end(Names)) return std::nullopt;
  return static_cast<ElementAttribute>(found - std::begin(Names));
}

std::span<const std::u16string_view> GetElementAttributeNames() { return Names; }

}  // namespace Host
