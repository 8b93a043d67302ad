#include "Quorix/ExpressionReferenceFormatUtils.hpp"

#include "EP/ReferenceString.hpp"

#include <string_view>

namespace QX {

TW::UniString MakeExpressionPropertyReferenceString(const TW::Guid& propertyId) {
  return EP::MakeReferenceString(PropertyReferenceType, propertyId.ToUniString());
}

void EnumeratePropertyReferences(const TW::UniString& text,
                                 const std::function<void(unsigned int, const TW::Guid&)>& visit) {
  EP::EnumerateReferenceValues(text, PropertyReferenceType, [&visit](unsigned int position, std::u16string_view value) {
    TW::Guid propertyId;
    if (propertyId.ConvertFromString(value) == TW::NoErr) visit(position, propertyId);
  });
}

bool ContainsPropertyReferences(const TW::UniString& text) {
  bool found = false;
  EnumeratePropertyReferences(text, [&found](unsigned int, const TW::Guid&) { found = true; });
  return found;
}

// The interface hands the text over by value. NOLINTNEXTLINE(performance-unnecessary-value-param)
bool IsWellFormedExpressionPropertyReference(TW::UniString text, TW::Guid* guid) {
  TW::UniString value;
  TW::Guid propertyId;
  if (!EP::IsWellFormedReferenceString(text, PropertyReferenceType)) return false;
  if (!EP::GetRefValueFromReferenceFormat(text, value)) return false;
  if (propertyId.ConvertFromString(value) != TW::NoErr) return false;
  if (guid != nullptr) *guid = propertyId;
  return true;
}

}  // namespace QX
