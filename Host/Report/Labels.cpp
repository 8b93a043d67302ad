#include "Host/Report/Labels.hpp"

#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"

namespace Host {

TW::UniString MakeElementLabel(const ElementSource& source, ElementIndex element) {
  for (const ElementAttribute attribute : {ElementAttribute::Name, ElementAttribute::GlobalId}) {
    TW::UniString text = source.GetAttribute(element, attribute);
    if (!text.IsEmpty()) return text;
  }
  return TW::UniString::FromInteger(static_cast<long long>(element) + 1);
}

std::vector<TW::UniString> MakePropertyLabels(const PropertyCatalog& catalog,
                                              std::span<const PropertyIndex> properties) {
  TW::HashTable<TW::UniString, unsigned int> bearers;
  for (const PropertyIndex property : properties) {
    const TW::UniString& name = catalog.Get(property).name;
    if (!bearers.Add(name, 1)) ++bearers.Get(name);
  }
  TW::HashSet<TW::UniString> taken;
  std::vector<TW::UniString> labels;
  labels.reserve(properties.size());
  for (const PropertyIndex property : properties) {
    const PropertyDefinition& definition = catalog.Get(property);
    const bool isAlone = bearers.Get(definition.name) == 1 || definition.group.IsEmpty();
    TW::UniString label = isAlone ? definition.name : definition.group + u"." + definition.name;
    if (taken.Contains(label)) label += u" " + definition.id.ToUniString();
    taken.Add(label);
    labels.push_back(std::move(label));
  }
  return labels;
}

}  // namespace Host
