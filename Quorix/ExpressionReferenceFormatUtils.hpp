#pragma once

#include "Quorix/Export.hpp"
#include "TW/Guid.hpp"
#include "TW/UniString.hpp"

#include <functional>

/// The text form of a reference to a property, `[Property:1AF5C228-7607-4175-9B78-A1779295614E]`.

namespace QX {

QX_EXPORT TW::UniString MakeExpressionPropertyReferenceString(const TW::Guid& propertyId);
/// Calls `visit` with the position and the GUID of every reference to a property in `text`; those whose value is no
/// GUID are passed over.
QX_EXPORT void EnumeratePropertyReferences(
    const TW::UniString& text, const std::function<void(unsigned int position, const TW::Guid& propertyId)>& visit);
/// Whether there is at least one.
QX_EXPORT bool ContainsPropertyReferences(const TW::UniString& text);
/// Whether the whole of `text` is a reference to a property; then `guid`, unless it is null, receives its GUID.
QX_EXPORT bool IsWellFormedExpressionPropertyReference(TW::UniString text, TW::Guid* guid);

/// The type of references to properties.
inline constexpr std::u16string_view PropertyReferenceType = u"Property";

}  // namespace QX
