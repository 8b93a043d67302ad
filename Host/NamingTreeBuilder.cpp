#include "Host/NamingTreeBuilder.hpp"

#include "EP/TextConstants.hpp"
#include "Quorix/ExpressionNodes/ExpressionReferenceNode.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"

namespace Host {
namespace {

// Whether the value is `Property:` and a GUID.
bool ReadGuid(std::u16string_view value, TW::Guid& id) {
  if (!value.starts_with(QX::PropertyReferenceType)) return false;
  value.remove_prefix(QX::PropertyReferenceType.size());
  if (!value.starts_with(EP::ReferenceSeparator)) return false;
  value.remove_prefix(EP::ReferenceSeparator.size());
  return id.ConvertFromString(value) == TW::NoErr;
}

std::span<const PropertyIndex> FindMeanings(std::u16string_view value, const PropertyCatalog& catalog) {
  TW::Guid id;
  if (!ReadGuid(value, id)) return catalog.FindByName(value);
  const PropertyIndex* property = catalog.FindById(id);
  return {property, property != nullptr ? 1U : 0U};
}

}  // namespace

NamingTreeBuilder::Node NamingTreeBuilder::CreateReferenceNode(const TW::UniString& /*referenceType*/,
                                                               const TW::UniString& referenceValue) {
  const std::span<const PropertyIndex> meanings = FindMeanings(referenceValue, catalog_);
  if (meanings.size() != 1) {
    refusedMeanings_ = meanings;
    return {};
  }
  references_.push_back(meanings.front());
  return TW::MakeRef<QX::ExpressionPropertyReferenceNode>(catalog_.Get(meanings.front()).id);
}

}  // namespace Host
