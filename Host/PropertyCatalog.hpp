#pragma once

#include "Host/PropertyDefinition.hpp"
#include "TW/HashTable.hpp"

#include <span>
#include <string_view>
#include <vector>

namespace Host {

/// The definitions of properties, found by GUID and by name. No two have the same GUID, nor the same group and name.
class PropertyCatalog {
 public:
  /// Nothing when the GUID is null, the name is empty, or one of them is taken. What throws changes nothing, here as
  /// in `Rename`.
  TW::Optional<PropertyIndex> Add(PropertyDefinition definition);
  /// Gives false and changes nothing when the name is empty or taken within the group.
  bool Rename(PropertyIndex property, const TW::UniString& name, const TW::UniString& group);

  PropertyIndex GetCount() const { return static_cast<PropertyIndex>(definitions_.size()); }
  const PropertyDefinition& Get(PropertyIndex property) const { return definitions_[property]; }

  const PropertyIndex* FindById(const TW::Guid& id) const { return byId_.Find(id); }
  /// The properties that go by this name or by this group, full stop and name.
  std::span<const PropertyIndex> FindByName(std::u16string_view name) const;
  /// How a formula's text names the property: by the shortest of name, group and name, and GUID that fits no other.
  TW::UniString MakeReference(PropertyIndex property) const;

 private:
  using Bearers = std::vector<PropertyIndex>;

  bool IsTaken(std::u16string_view name, std::u16string_view group) const;
  void AddNames(std::u16string_view name, std::u16string_view group, PropertyIndex property);
  void AddName(std::u16string_view name, PropertyIndex property);
  void RemoveName(std::u16string_view name, PropertyIndex property) noexcept;

  std::vector<PropertyDefinition> definitions_;
  TW::HashTable<TW::Guid, PropertyIndex> byId_;
  TW::HashTable<TW::UniString, Bearers> byName_;
};

}  // namespace Host
