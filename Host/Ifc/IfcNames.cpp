#include "Host/Ifc/IfcNames.hpp"

#include "Host/Ifc/StepText.hpp"

#include <utility>

namespace Host {

IfcNames::Name IfcNames::Add(std::string_view raw) {
  if (const auto found = raw_.find(raw); found != raw_.end()) return found->second;
  const Name name = AddText(DecodeStepText(raw));
  raw_.emplace(raw, name);
  return name;
}

IfcNames::Name IfcNames::AddText(TW::UniString&& text) {
  if (const Name* known = numbers_.Find(text)) return *known;
  const auto name = static_cast<Name>(texts_.size());
  numbers_.Add(text, name);
  texts_.push_back(std::move(text));
  return name;
}

TW::Optional<IfcNames::Name> IfcNames::Find(std::u16string_view text) const {
  const Name* name = numbers_.Find(text);
  return name == nullptr ? TW::Optional<Name>() : *name;
}

}  // namespace Host
