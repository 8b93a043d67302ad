#include "Host/NameGuidMapper.hpp"

namespace Host {

TW::Guid NameGuidMapper::Map(const TW::Guid& id) const {
  const PropertyIndex* property = from_.FindById(id);
  if (property == nullptr) return id;
  const PropertyDefinition& wanted = from_.Get(*property);
  for (const PropertyIndex candidate : to_.FindByName(wanted.name)) {
    const PropertyDefinition& definition = to_.Get(candidate);
    if (definition.name == wanted.name && definition.group == wanted.group) return definition.id;
  }
  return id;
}

}  // namespace Host
