#include "Request.hpp"

#include "CommandText.hpp"
#include "Host/Rules/SettingsReader.hpp"
#include "RequestValue.hpp"

namespace Command {
namespace {

[[noreturn]] void RefuseType(CommandText reason, std::string_view key) {
  throw RequestError("WrongType", MakeText(reason, key));
}

// A request ends at the first thing that is wrong with a setting, but keys that it need not know have no bearing.
void RefuseSetting(const Host::JsonValue&, Host::JsonContentFault fault, const TW::UniString& message) {
  if (fault == Host::JsonContentFault::WrongValue) throw RequestError("WrongType", message.ToUtf8());
  if (fault == Host::JsonContentFault::UnknownUnit) throw RequestError("UnknownUnit", message.ToUtf8());
}

const Host::JsonComplain refuseSetting = RefuseSetting;
const Host::SettingsReader settingsReader(refuseSetting);

Host::ChosenSeparators ReadSeparators(const Host::JsonValue& value, std::u16string_view key) {
  Host::ChosenSeparators separators;
  settingsReader.ReadSeparators(value, key, separators);
  return separators;
}

// The separators of a request in the end, whichever of the two comes first in it.
struct RequestSeparators {
  Host::ChosenSeparators locale;
  Host::ChosenSeparators renderLocale;
};

void ReadSetting(std::u16string_view key, const Host::JsonValue& value, Settings& settings,
                 RequestSeparators& separators) {
  if (key == u"locale") separators.locale = ReadSeparators(value, key);
  if (key == u"renderLocale") separators.renderLocale = ReadSeparators(value, key);
  if (key == u"propagation") settingsReader.ReadPropagation(value, settings.propagateUndefined);
  if (key == u"units") settingsReader.ReadUnits(value, settings.display.units);
  if (key == u"decimals") settingsReader.ReadDecimals(value, settings.display);
  if (key == u"markerMode") settingsReader.ReadMarkerMode(value, settings.display);
}

TW::Guid ReadGuid(std::u16string_view text) {
  TW::Guid guid;
  if (guid.ConvertFromString(text) != TW::NoErr) {
    throw RequestError("InvalidGuid", MakeText(CommandText::NoGuid, TW::UniString(text)));
  }
  return guid;
}

void ReadProperties(const Host::JsonValue& value, Environment& environment) {
  if (!value.IsObject()) RefuseType(CommandText::ValuesExpected, "properties");
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
  if (!value.IsObject()) RefuseType(CommandText::StatusesExpected, "status");
  value.ForEachMember([&](std::u16string_view name, const Host::JsonValue& member) {
    const TW::Guid propertyId = ReadGuid(name);
    const auto status = settingsReader.ReadWholeNumber(member, 0, 2, u"status");
    if (status) environment.SetStatus(propertyId, static_cast<QX::EvaluableStatus>(*status));
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
  if (!request.IsObject()) throw RequestError("WrongType", MakeText(CommandText::NoRequest));
  Settings settings = defaults;
  RequestSeparators separators;
  bool hasFormula = false;
  request.ForEachMember([&](std::u16string_view key, const Host::JsonValue& value) {
    if (key != u"formula") return ReadSetting(key, value, settings, separators);
    if (!value.IsText()) RefuseType(CommandText::TextExpected, "formula");
    formula.Clear();
    formula.Append(value.GetText());
    hasFormula = true;
  });
  if (!hasFormula) throw RequestError("FormulaMissing", MakeText(CommandText::NoFormula));
  settings.locale = separators.locale.Over(settings.locale);
  settings.renderLocale = separators.renderLocale.Over(settings.locale);

  environment.Reset(settings);
  request.ForEachMember([&](std::u16string_view key, const Host::JsonValue& value) {
    if (key == u"properties") ReadProperties(value, environment);
    if (key == u"status") ReadStatuses(value, environment);
  });
}

}  // namespace Command
