#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/Json/JsonMembers.hpp"
#include "Host/Rules/Rules.hpp"
#include "TW/Optional.hpp"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Host {

/// A property that was read, with the places of what may yet prove wrong.
struct ReadRule {
  PropertyRule rule;
  TW::UniString identity;  ///< what no two may share: the name with its group
  JsonValue name;
  TW::Optional<JsonValue> id;  ///< absent when the id was derived
  TW::Optional<JsonValue> formula;
};

/// Reads properties of rules from JSON, and tells what is wrong with them.
class RuleReader {
 public:
  /// Keeps references. Constants are written in the separators of `settings`.
  RuleReader(const EP::IParsingLocaleSettings& settings, const JsonComplain& complain)
      : settings_(settings), complain_(complain) {}

  /// Nothing when the property has no name to be told from others by; what is wrong otherwise is left out of it.
  TW::Optional<ReadRule> Read(const JsonValue& value) const;

 private:
  enum Key : std::size_t { Name, Group, Id, Kind, From, Formula, Value, AppliesTo, KeyCount };
  using Members = std::array<TW::Optional<JsonValue>, KeyCount>;

  template <class... Arguments>
  void Complain(const JsonValue& place, const Arguments&... arguments) const;
  Members ReadMembers(const JsonValue& value) const;
  TW::UniString ReadText(const JsonValue& value, Key key) const;
  std::vector<TW::UniString> ReadTexts(const JsonValue& value, Key key) const;
  TW::Optional<TW::Guid> ReadId(const JsonValue& value) const;
  TW::Optional<PropertyKind> ReadKind(const JsonValue& value) const;
  void ReadOrigin(const JsonValue& value, const Members& members, PropertyRule& rule) const;
  void CheckAttributes(const JsonValue& value, const std::vector<TW::UniString>& sources) const;
  QX::ExpressionValue ReadConstant(const JsonValue& value, PropertyKind kind) const;

  const EP::IParsingLocaleSettings& settings_;
  const JsonComplain& complain_;
};

}  // namespace Host
