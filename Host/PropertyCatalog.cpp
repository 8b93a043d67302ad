#include "Host/PropertyCatalog.hpp"

#include "Host/BracketedName.hpp"
#include "Host/Room.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Host {
namespace {

TW::UniString MakeFullName(std::u16string_view name, std::u16string_view group) {
  TW::UniString full(group);
  full += u".";
  full += name;
  return full;
}

}  // namespace

TW::Optional<PropertyIndex> PropertyCatalog::Add(PropertyDefinition definition) {
  const bool usable = !definition.id.IsNull() && !definition.name.IsEmpty();
  if (!usable || IsTaken(definition.name, definition.group)) return std::nullopt;
  if (byId_.Contains(definition.id)) return std::nullopt;
  const PropertyIndex property = GetCount();
  MakeRoom(definitions_, 1);
  byId_.Reserve(property + 1);
  AddNames(definition.name, definition.group, property);
  // From here on nothing fails.
  byId_.Add(definition.id, property);
  definitions_.push_back(std::move(definition));
  return property;
}

bool PropertyCatalog::Rename(PropertyIndex property, const TW::UniString& name, const TW::UniString& group) {
  if (property >= GetCount() || name.IsEmpty()) return false;
  PropertyDefinition& definition = definitions_[property];
  if (definition.name == name && definition.group == group) return true;
  if (IsTaken(name, group)) return false;
  TW::UniString newName = name;
  TW::UniString newGroup = group;
  const TW::UniString formerFullName = MakeFullName(definition.name, definition.group);
  AddNames(newName, newGroup, property);
  // From here on nothing fails.
  RemoveName(definition.name, property);
  if (!definition.group.IsEmpty()) RemoveName(formerFullName, property);
  definition.name = std::move(newName);
  definition.group = std::move(newGroup);
  return true;
}

std::span<const PropertyIndex> PropertyCatalog::FindByName(std::u16string_view name) const {
  const Bearers* bearers = byName_.Find(name);
  return bearers != nullptr ? std::span<const PropertyIndex>(bearers->data(), bearers->size())
                            : std::span<const PropertyIndex>();
}

TW::UniString PropertyCatalog::MakeReference(PropertyIndex property) const {
  const PropertyDefinition& definition = definitions_[property];
  const auto makeWithName = [&](std::u16string_view name) {
    TW::UniString reference = BracketName(name);
    const bool fits = FindByName(name).size() == 1 && !QX::IsWellFormedExpressionPropertyReference(reference, nullptr);
    return fits ? std::move(reference) : TW::UniString();
  };
  TW::UniString reference = makeWithName(definition.name);
  if (reference.IsEmpty() && !definition.group.IsEmpty()) {
    reference = makeWithName(MakeFullName(definition.name, definition.group));
  }
  return reference.IsEmpty() ? QX::MakeExpressionPropertyReferenceString(definition.id) : reference;
}

bool PropertyCatalog::IsTaken(std::u16string_view name, std::u16string_view group) const {
  const auto hasBoth = [&](PropertyIndex other) {
    return definitions_[other].name == name && definitions_[other].group == group;
  };
  return std::ranges::any_of(FindByName(name), hasBoth);
}

void PropertyCatalog::AddNames(std::u16string_view name, std::u16string_view group, PropertyIndex property) {
  AddName(name, property);
  if (group.empty()) return;
  try {
    AddName(MakeFullName(name, group), property);
  } catch (...) {
    RemoveName(name, property);
    throw;
  }
}

void PropertyCatalog::AddName(std::u16string_view name, PropertyIndex property) {
  if (Bearers* bearers = byName_.Find(name)) {
    bearers->push_back(property);
  } else {
    byName_.Add(TW::UniString(name), Bearers{property});
  }
}

// The entry that was added last, should a name have come to stand for the property twice. The look-up throws nothing,
// since the name is there. NOLINTNEXTLINE(bugprone-exception-escape)
void PropertyCatalog::RemoveName(std::u16string_view name, PropertyIndex property) noexcept {
  Bearers& bearers = byName_.Get(name);
  bearers.erase(std::prev(std::find(bearers.rbegin(), bearers.rend(), property).base()));
  if (bearers.empty()) byName_.Remove(name);
}

}  // namespace Host
