#pragma once

#include "TW/HashTable.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Host {

/// The names of property sets and properties in a model, each kept once and known by a number.
class IfcNames {
 public:
  using Name = std::uint32_t;

  /// The number of a name as it stands in the file, between its quotes. The text must live until `ForgetFile`.
  Name Add(std::string_view raw);
  /// Gives up what only adding needs.
  void ForgetFile() { raw_ = {}; }

  TW::Optional<Name> Find(std::u16string_view text) const;
  const TW::UniString& GetText(Name name) const { return texts_[name]; }

 private:
  Name AddText(TW::UniString&& text);

  std::vector<TW::UniString> texts_;
  TW::HashTable<TW::UniString, Name> numbers_;
  std::unordered_map<std::string_view, Name> raw_;
};

}  // namespace Host
