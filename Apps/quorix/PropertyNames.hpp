#pragma once

#include "EP/LocaleSettings.hpp"
#include "ReplacedText.hpp"
#include "TW/Guid.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

namespace Command {

/// Lets people write `[Width]` for a property in place of its GUID. Within a name `\]` is a closing bracket and `\\` a
/// backslash.
class PropertyNames {
 public:
  /// The GUID that stands for a name, the same at every time and place.
  TW::Guid GetGuid(const TW::UniString& name);
  /// The GUID of a property that is given by its name, with or without brackets, or by its GUID.
  TW::Guid GetPropertyId(const TW::UniString& property);

  /// The formula with GUIDs in the place of names. Quoted texts and references by GUID stay.
  ReplacedText ReplaceNames(const TW::UniString& formula, const EP::IParsingLocaleSettings& settings);
  /// The formula with names in the place of those GUIDs that this object gave.
  ReplacedText RestoreNames(const TW::UniString& formula) const;

 private:
  TW::HashTable<TW::Guid, TW::UniString> names_;
};

}  // namespace Command
