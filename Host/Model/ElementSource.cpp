#include "Host/Model/ElementSource.hpp"

namespace Host {
namespace {

struct AttributeName {
  std::u16string_view name;
  ElementAttribute attribute;
};

constexpr AttributeName AttributeNames[] = {
    {u"@class", ElementAttribute::Class},       {u"@name", ElementAttribute::Name},
    {u"@globalId", ElementAttribute::GlobalId}, {u"@type", ElementAttribute::Type},
    {u"@storey", ElementAttribute::Storey},     {u"@tag", ElementAttribute::Tag},
};

}  // namespace

TW::Optional<ElementAttribute> FindElementAttribute(std::u16string_view name) {
  for (const AttributeName& row : AttributeNames) {
    if (row.name == name) return row.attribute;
  }
  return std::nullopt;
}

}  // namespace Host
