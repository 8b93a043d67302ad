#pragma once

#include "Host/Display/DisplaySettings.hpp"
#include "Host/Json/JsonMembers.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "TW/Optional.hpp"

#include <string_view>

namespace Host {

/// The separators that somebody has chosen; 0 as the thousand separator means none.
struct ChosenSeparators {
  TW::Optional<unsigned short> decimal;
  TW::Optional<unsigned short> list;
  TW::Optional<unsigned short> thousand;

  /// These, with those of `base` for what was not chosen.
  QX::EvaluationLocaleSettings Over(const QX::EvaluationLocaleSettings& base) const;
};

/// Reads settings from JSON. What is wrong is told and leaves the setting as it is. `key` is the key under which a
/// value stands.
class SettingsReader {
 public:
  /// Keeps a reference.
  explicit SettingsReader(const JsonComplain& complain) : complain_(complain) {}

  void ReadSeparators(const JsonValue& value, std::u16string_view key, ChosenSeparators& separators) const;
  void ReadUnits(const JsonValue& value, DisplayUnits& units) const;
  void ReadDecimals(const JsonValue& value, DisplaySettings& settings) const;
  void ReadMarkerMode(const JsonValue& value, DisplaySettings& settings) const;
  void ReadPropagation(const JsonValue& value, bool& isEnabled) const;
  TW::Optional<long long> ReadWholeNumber(const JsonValue& value, long long minimum, long long maximum,
                                          std::u16string_view key) const;

 private:
  void ReadSeparator(const JsonValue& value, bool mayBeNone, std::u16string_view key,
                     TW::Optional<unsigned short>& separator) const;
  template <class Data>
  void ReadUnit(const JsonValue& value, std::u16string_view key, Data& data) const;
  template <class Unit>
  void ReadUnitName(const JsonValue& value, std::u16string_view key, Unit& unit) const;

  const JsonComplain& complain_;
};

}  // namespace Host
