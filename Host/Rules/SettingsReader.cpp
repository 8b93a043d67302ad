#include "Host/Rules/SettingsReader.hpp"

#include "Host/Display/UnitNames.hpp"
#include "Host/Texts/FileTexts.hpp"

#include <limits>
#include <type_traits>

namespace Host {
namespace {

constexpr long long MaximumDecimals = std::numeric_limits<unsigned short>::max();
constexpr long long MaximumDenominator = 128;

// The last one is for lengths only, the only ones with fractions.
constexpr std::u16string_view UnitKeys[] = {u"unit", u"decimals", u"denominator"};

template <class Data>
constexpr bool HasDenominator = std::is_same_v<Data, QX::LengthUnitData>;

}  // namespace

QX::EvaluationLocaleSettings ChosenSeparators::Over(const QX::EvaluationLocaleSettings& base) const {
  return {decimal.value_or(base.GetDecimalSeparator()), list.value_or(base.GetListSeparator()),
          thousand.value_or(base.GetThousandSeparator())};
}

TW::Optional<long long> SettingsReader::ReadWholeNumber(const JsonValue& value, long long minimum, long long maximum,
                                                        std::u16string_view key) const {
  long long number = 0;
  if (value.GetWholeNumber(minimum, maximum, number)) return number;
  complain_(value, JsonContentFault::WrongValue,
            MakeText(FileText::WholeNumberExpected, key, TW::UniString::FromInteger(minimum),
                     TW::UniString::FromInteger(maximum)));
  return std::nullopt;
}

void SettingsReader::ReadSeparator(const JsonValue& value, bool mayBeNone, std::u16string_view key,
                                   TW::Optional<unsigned short>& separator) const {
  const std::u16string_view text = value.IsText() ? value.GetText() : std::u16string_view();
  const bool isNone = text.empty() || text.front() == 0;
  if (!value.IsText() || text.size() > 1 || (isNone && !mayBeNone)) {
    return complain_(value, JsonContentFault::WrongValue, MakeText(FileText::CharacterExpected, key));
  }
  separator = isNone ? u'\0' : text.front();
}

void SettingsReader::ReadSeparators(const JsonValue& value, std::u16string_view key,
                                    ChosenSeparators& separators) const {
  constexpr std::u16string_view Keys[] = {u"decimal", u"list", u"thousand"};
  if (!value.IsObject()) {
    return complain_(value, JsonContentFault::WrongValue, MakeText(FileText::SeparatorsExpected, key));
  }
  JsonMembers(Keys, complain_).ForEach(value, [&](std::size_t number, const JsonValue& member) {
    TW::Optional<unsigned short>* const targets[] = {&separators.decimal, &separators.list, &separators.thousand};
    ReadSeparator(member, targets[number] == &separators.thousand, Keys[number], *targets[number]);
  });
}

template <class Unit>
void SettingsReader::ReadUnitName(const JsonValue& value, std::u16string_view key, Unit& unit) const {
  if (!value.IsText()) {
    complain_(value, JsonContentFault::WrongValue, MakeText(FileText::UnitNameExpected, UnitKeys[0]));
  } else if (!FindUnit(value.GetText(), unit)) {
    complain_(value, JsonContentFault::UnknownUnit,
              MakeText(FileText::UnknownUnit, key, TW::UniString::FromUtf8(GetUnitNames(unit))));
  }
}

template <class Data>
void SettingsReader::ReadUnit(const JsonValue& value, std::u16string_view key, Data& data) const {
  if (!value.IsObject()) {
    return complain_(value, JsonContentFault::WrongValue, MakeText(FileText::UnitExpected, key));
  }
  const std::span<const std::u16string_view> keys(UnitKeys, HasDenominator<Data> ? 3 : 2);
  JsonMembers(keys, complain_).ForEach(value, [&](std::size_t number, const JsonValue& member) {
    if (number == 0) return ReadUnitName(member, key, data.unit);
    const bool isDecimals = number == 1;
    const auto count =
        ReadWholeNumber(member, isDecimals ? 0 : 1, isDecimals ? MaximumDecimals : MaximumDenominator, keys[number]);
    if (!count) return;
    if (isDecimals) data.decimals = static_cast<unsigned short>(*count);
    if constexpr (HasDenominator<Data>) {
      if (!isDecimals) data.denominator = static_cast<unsigned short>(*count);
    }
  });
}

void SettingsReader::ReadUnits(const JsonValue& value, DisplayUnits& units) const {
  constexpr std::u16string_view Keys[] = {u"length", u"area", u"volume", u"angle"};
  if (!value.IsObject()) {
    return complain_(value, JsonContentFault::WrongValue, MakeText(FileText::UnitsExpected, u"units"));
  }
  JsonMembers(Keys, complain_).ForEach(value, [&](std::size_t number, const JsonValue& member) {
    if (number == 0) ReadUnit(member, Keys[number], units.length);
    if (number == 1) ReadUnit(member, Keys[number], units.area);
    if (number == 2) ReadUnit(member, Keys[number], units.volume);
    if (number == 3) ReadUnit(member, Keys[number], units.angle);
  });
}

void SettingsReader::ReadDecimals(const JsonValue& value, DisplaySettings& settings) const {
  constexpr std::u16string_view Key = u"decimals";
  std::size_t count = 0;
  if (value.IsArray()) value.ForEachElement([&count](const JsonValue&) { ++count; });
  if (count != 2) {
    return complain_(value, JsonContentFault::WrongValue, MakeText(FileText::TwoNumbersExpected, Key));
  }
  unsigned int* target = &settings.minimumDecimals;
  value.ForEachElement([&](const JsonValue& element) {
    const auto number = ReadWholeNumber(element, 0, std::numeric_limits<unsigned int>::max(), Key);
    if (number) *target = static_cast<unsigned int>(*number);
    target = &settings.maximumDecimals;
  });
}

void SettingsReader::ReadMarkerMode(const JsonValue& value, DisplaySettings& settings) const {
  using Limits = std::numeric_limits<int>;
  const auto mode = ReadWholeNumber(value, Limits::min(), Limits::max(), u"markerMode");
  if (mode) settings.markerMode = static_cast<TWUnit::UnitMarkerMode>(*mode);
}

void SettingsReader::ReadPropagation(const JsonValue& value, bool& isEnabled) const {
  if (value.GetBool(isEnabled)) return;
  complain_(value, JsonContentFault::WrongValue, MakeText(FileText::SwitchExpected, u"propagation"));
}

}  // namespace Host
