#include "Request.hpp"

#include "Host/Display/UnitNames.hpp"
#include "RequestValue.hpp"

#include <array>
#include <limits>

namespace Command {
namespace {

constexpr long long MaximumDecimals = std::numeric_limits<unsigned short>::max();
constexpr long long MaximumDenominator = 128;

[[noreturn]] void RefuseType(const char* key, const char* expected) {
  throw RequestError("WrongType", std::string("\"") + key + "\" must be " + expected + ".");
}

long long ReadWholeNumber(const Host::JsonValue& value, long long minimum, long long maximum, const char* key) {
  long long number = 0;
  if (!value.GetWholeNumber(minimum, maximum, number)) {
    const std::string limits = std::to_string(minimum) + " to " + std::to_string(maximum);
    RefuseType(key, ("a whole number from " + limits).c_str());
  }
  return number;
}

// What a request says of separators; a code of -1 says nothing.
struct Separators {
  std::array<int, 3> codes{-1, -1, -1};

  QX::EvaluationLocaleSettings Over(const QX::EvaluationLocaleSettings& base) const {
    return {Pick(0, base.GetDecimalSeparator()), Pick(1, base.GetListSeparator()),
            Pick(2, base.GetThousandSeparator())};
  }

 private:
  unsigned short Pick(std::size_t place, unsigned short base) const {
    return codes[place] < 0 ? base : static_cast<unsigned short>(codes[place]);
  }
};

int ReadSeparator(const Host::JsonValue& value, bool mayBeNone, const char* key) {
  if (!value.IsText() || value.GetText().size() > 1) RefuseType(key, "one character");
  if (!value.GetText().empty() && value.GetText().front() != 0) return value.GetText().front();
  if (!mayBeNone) RefuseType(key, "one character");
  return 0;
}

Separators ReadSeparators(const Host::JsonValue& value, const char* key) {
  if (!value.IsObject()) RefuseType(key, "an object of separators");
  Separators separators;
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    if (name == u"decimal") separators.codes[0] = ReadSeparator(member, false, "decimal");
    if (name == u"list") separators.codes[1] = ReadSeparator(member, false, "list");
    if (name == u"thousand") separators.codes[2] = ReadSeparator(member, true, "thousand");
  });
  return separators;
}

void SetDenominator(QX::LengthUnitData& data, const Host::JsonValue& value) {
  data.denominator = static_cast<unsigned short>(ReadWholeNumber(value, 1, MaximumDenominator, "denominator"));
}

// Only lengths have fractions.
template <class Unit>
void SetDenominator(QX::UnitData<Unit>&, const Host::JsonValue&) {}

template <class Data>
void ReadUnit(const Host::JsonValue& value, const char* kind, Data& data) {
  if (!value.IsObject()) RefuseType(kind, "an object with a unit");
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    if (name == u"unit") {
      if (!member.IsText()) RefuseType("unit", "the name of a unit");
      if (!Host::FindUnit(member.GetText(), data.unit)) {
        throw RequestError("UnknownUnit", std::string("The unit of \"") + kind + "\" must be one of " +
                                              Host::GetUnitNames(data.unit) + ".");
      }
    }
    if (name == u"decimals") {
      data.decimals = static_cast<unsigned short>(ReadWholeNumber(member, 0, MaximumDecimals, "decimals"));
    }
    if (name == u"denominator") SetDenominator(data, member);
  });
}

void ReadUnits(const Host::JsonValue& value, Host::DisplayUnits& units) {
  if (!value.IsObject()) RefuseType("units", "an object of units");
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    if (name == u"length") ReadUnit(member, "length", units.length);
    if (name == u"area") ReadUnit(member, "area", units.area);
    if (name == u"volume") ReadUnit(member, "volume", units.volume);
    if (name == u"angle") ReadUnit(member, "angle", units.angle);
  });
}

void ReadDecimals(const Host::JsonValue& value, Settings& settings) {
  constexpr const char* Expected = "two whole numbers, as in [0, 12]";
  if (!value.IsArray()) RefuseType("decimals", Expected);
  unsigned int* const targets[] = {&settings.display.minimumDecimals, &settings.display.maximumDecimals};
  std::size_t count = 0;
  value.ForEachElement([&](const Host::JsonValue& element) {
    if (count == 2) RefuseType("decimals", Expected);
    constexpr long long Limit = std::numeric_limits<unsigned int>::max();
    *targets[count++] = static_cast<unsigned int>(ReadWholeNumber(element, 0, Limit, "decimals"));
  });
  if (count != 2) RefuseType("decimals", Expected);
}

void ReadMarkerMode(const Host::JsonValue& value, Settings& settings) {
  using Limits = std::numeric_limits<int>;
  settings.display.markerMode =
      static_cast<TWUnit::UnitMarkerMode>(ReadWholeNumber(value, Limits::min(), Limits::max(), "markerMode"));
}

void ReadPropagation(const Host::JsonValue& value, Settings& settings) {
  if (!value.GetBool(settings.propagateUndefined)) RefuseType("propagation", "true or false");
}

// The separators of a request in the end, whichever of the two comes first in it.
struct RequestSeparators {
  Separators locale;
  Separators renderLocale;
};

void ReadSetting(std::u16string_view key, const Host::JsonValue& value, Settings& settings,
                 RequestSeparators& separators) {
  if (key == u"locale") separators.locale = ReadSeparators(value, "locale");
  if (key == u"renderLocale") separators.renderLocale = ReadSeparators(value, "renderLocale");
  if (key == u"propagation") ReadPropagation(value, settings);
  if (key == u"units") ReadUnits(value, settings.display.units);
  if (key == u"decimals") ReadDecimals(value, settings);
  if (key == u"markerMode") ReadMarkerMode(value, settings);
}

TW::Guid ReadGuid(std::u16string_view text) {
  TW::Guid guid;
  if (guid.ConvertFromString(text) != TW::NoErr) {
    throw RequestError("InvalidGuid", "\"" + TW::UniString(text).ToUtf8() + "\" is no GUID.");
  }
  return guid;
}

void ReadProperties(const Host::JsonValue& value, Environment& environment) {
  if (!value.IsObject()) RefuseType("properties", "an object of values by GUID");
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    const TW::Guid propertyId = ReadGuid(name);
    if (auto propertyValue = ReadPropertyValue(member)) {
      environment.SetValue(propertyId, *std::move(propertyValue));
    } else {
      environment.RemoveValue(propertyId);
    }
  });
}

void ReadStatuses(const Host::JsonValue& value, Environment& environment) {
  if (!value.IsObject()) RefuseType("status", "an object of numbers by GUID");
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    const TW::Guid propertyId = ReadGuid(name);
    environment.SetStatus(propertyId, static_cast<QX::EvaluableStatus>(ReadWholeNumber(member, 0, 2, "status")));
  });
}

}  // namespace

std::string_view ReadId(const Host::JsonValue& request) {
  std::string_view id;
  if (!request.IsObject()) return id;
  request.ForEachMember([&id](std::u16string_view key, const Host::JsonValue& value) {
    if (key == u"id") id = value.GetSource();
  });
  return id;
}

void ReadRequest(const Host::JsonValue& request, const Settings& defaults, TW::UniString& formula,
                 Environment& environment) {
  if (!request.IsObject()) throw RequestError("WrongType", "A request must be an object.");
  Settings settings = defaults;
  RequestSeparators separators;
  bool hasFormula = false;
  request.ForEachMember([&](std::u16string_view key, const Host::JsonValue& value) {
    if (key != u"formula") return ReadSetting(key, value, settings, separators);
    if (!value.IsText()) RefuseType("formula", "a text");
    formula.Clear();
    formula.Append(value.GetText());
    hasFormula = true;
  });
  if (!hasFormula) throw RequestError("FormulaMissing", "A request must have a \"formula\".");
  settings.locale = separators.locale.Over(settings.locale);
  settings.renderLocale = separators.renderLocale.Over(settings.locale);

  environment.Reset(settings);
  request.ForEachMember([&](std::u16string_view key, const Host::JsonValue& value) {
    if (key == u"properties") ReadProperties(value, environment);
    if (key == u"status") ReadStatuses(value, environment);
  });
}

}  // namespace Command
