#include "Host/Model/ElementSearch.hpp"

namespace Host {

std::vector<ElementIndex> FindElements(const ElementSource& source, std::u16string_view text) {
  for (const ElementAttribute attribute : {ElementAttribute::GlobalId, ElementAttribute::Name, ElementAttribute::Tag}) {
    std::vector<ElementIndex> found;
    for (ElementIndex element = 0; element < source.GetCount(); ++element) {
      if (source.GetAttribute(element, attribute).GetView() == text) found.push_back(element);
    }
    if (!found.empty()) return found;
  }
  return {};
}

}  // namespace Host
