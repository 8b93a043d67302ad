#pragma once

#include "TW/Optional.hpp"

#include <span>
#include <string_view>

namespace Host {

/// What every element of a model has, if perhaps empty.
enum class ElementAttribute { Class, Name, GlobalId, Type, Storey, Tag };

/// The attribute that a source such as `@class` names, if it names one.
TW::Optional<ElementAttribute> FindElementAttribute(std::u16string_view name);
/// The names of all attributes, in their order.
std::span<const std::u16string_view> GetElementAttributeNames();

}  // namespace Host
