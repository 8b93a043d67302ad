#include "CommonOptions.hpp"

#include "Evaluation.hpp"
#include "Host/Display/UnitNames.hpp"
#include "MemoryLimit.hpp"
#include "Resources/Language.hpp"
#include "TW/SystemSymbols.hpp"
#include "UndefinedValue.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace Command {
namespace {

using QX::ExpressionValue;

void SetLanguage(std::string_view tag) {
  Resources::SetLanguage(tag);
  const bool isPlain = tag == "C" || tag == "POSIX" || tag == "root";
  if (!isPlain && Resources::GetLanguage() == "root") throw UsageError("must be a language such as de or de_AT.");
}

unsigned short ReadSeparator(std::string_view text, bool mayBeNone) {
  const TW::UniString units = TW::UniString::FromUtf8(text);
  if (units.GetLength() == 1) return units[0].GetCode();
  if (!units.IsEmpty() || !mayBeNone) throw UsageError("must be one character.");
  return 0;
}

template <class Number>
Number ReadNumber(std::string_view text, Number maximum) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number > maximum) {
    throw UsageError("must be a whole number from 0 to " + std::to_string(maximum) + ".");
  }
  return number;
}

template <class Unit>
void ReadUnit(std::string_view name, Unit& unit) {
  if (!Host::FindUnit(TW::UniString::FromUtf8(name), unit))
    throw UsageError("must be one of " + Host::GetUnitNames(unit) + ".");
}

ExpressionValue ReadValue(std::string_view name, std::string_view text, const Environment& environment) {
  if (auto undefined = FindUndefinedValue(text)) return *std::move(undefined);
  Evaluation evaluation = Evaluate(TW::UniString::FromUtf8(text), environment);
  if (!evaluation.failure && evaluation.value.IsValid()) return std::move(evaluation.value);
  const std::string reason = evaluation.failure ? ": " + evaluation.failure->message.ToUtf8() : ".";
  throw UsageError("The option '--set' needs a value that can be evaluated; '" + std::string(text) + "' of '" +
                   std::string(name) + "' cannot" + reason);
}

}  // namespace

void CommonOptions::AddTo(OptionTable& options) {
  options.AddValue("locale", "TAG", "language of messages, and its separators (default: the environment's)",
                   [this](std::string_view tag) { SetLanguage(*(locale_ = std::string(tag))); });
  AddSeparators(options);
  AddUnits(options);
  options.AddFlag("propagate-undefined", "undefined values come through everywhere",
                  [this] { propagateUndefined_ = true; });
  options.AddValue("set", "NAME=VALUE", "a property, by [NAME] or GUID: a formula or 'undefined length'",
                   [this](std::string_view assignment) { AddProperty(assignment); });
  options.AddFlag("json", "answers in JSON, one line each", [this] { json_ = true; });
  options.AddValue("max-memory", "MIB", "memory for everything, in MiB (default 4096; 0: no limit)",
                   [this](std::string_view text) {
                     mebibytes_ = ReadNumber(text, std::numeric_limits<unsigned long long>::max() >> 20);
                   });
}

void CommonOptions::AddSeparators(OptionTable& options) {
  options.AddValue("decimal", "C", "decimal separator",
                   [this](std::string_view text) { decimal_ = ReadSeparator(text, false); });
  options.AddValue("list", "C", "separator of arguments",
                   [this](std::string_view text) { list_ = ReadSeparator(text, false); });
  options.AddValue("thousand", "C", "separator of groups of digits; empty for none",
                   [this](std::string_view text) { thousand_ = ReadSeparator(text, true); });
}

void CommonOptions::AddUnits(OptionTable& options) {
  const auto add = [this, &options](std::string_view name, std::string_view decimalsName, std::string_view help,
                                    auto member) {
    options.AddValue(name, "U", help, [this, member](std::string_view text) {
      auto unit = (Host::DisplayUnits().*member).unit;
      ReadUnit(text, unit);
      unitChanges_.emplace_back([member, unit](Host::DisplayUnits& units) { (units.*member).unit = unit; });
    });
    options.AddValue(decimalsName, "N", "its decimals (default 2)", [this, member](std::string_view text) {
      const auto decimals = ReadNumber(text, std::numeric_limits<unsigned short>::max());
      unitChanges_.emplace_back([member, decimals](Host::DisplayUnits& units) { (units.*member).decimals = decimals; });
    });
  };
  add("length-unit", "length-decimals", "m, dm, cm, mm, ft-frac, ft-dec, ft, in-frac, in", &Host::DisplayUnits::length);
  add("area-unit", "area-decimals", "m2, cm2, mm2, ft2, in2", &Host::DisplayUnits::area);
  add("volume-unit", "volume-decimals", "m3, l, cm3, y3, ft3, in3, gal", &Host::DisplayUnits::volume);
  add("angle-unit", "angle-decimals", "degree, dms, gon, rad", &Host::DisplayUnits::angle);
}

void CommonOptions::AddProperty(std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == assignment.npos || equals == 0) throw UsageError("must look like Width=2.5 m.");
  properties_.emplace_back(assignment.substr(0, equals), assignment.substr(equals + 1));
}

void CommonOptions::LimitMemory() const {
  if (mebibytes_ != 0) LimitAddressSpace(mebibytes_ << 20);
}

Settings CommonOptions::GetSettings(Settings defaults) const {
  const QX::EvaluationLocaleSettings& locale = defaults.locale;
  defaults.locale = {decimal_.value_or(locale.GetDecimalSeparator()), list_.value_or(locale.GetListSeparator()),
                     thousand_.value_or(locale.GetThousandSeparator())};
  defaults.renderLocale = defaults.locale;
  for (const auto& change : unitChanges_) change(defaults.display.units);
  defaults.propagateUndefined = defaults.propagateUndefined || propagateUndefined_;
  return defaults;
}

Settings CommonOptions::GetUserSettings() const {
  Settings settings;
  if (!locale_) settings.locale = QX::SystemLocaleSettings();
  return GetSettingsOfLocale(settings);
}

Settings CommonOptions::GetSettingsOfLocale(Settings defaults) const {
  if (locale_) {
    const TW::SystemSymbols symbols = TW::ReadSystemSymbols(locale_->c_str());
    defaults.locale = {symbols.decimal, symbols.listSeparator, symbols.digitGrouping};
  }
  return GetSettings(defaults);
}

void CommonOptions::SetProperties(Environment& environment, PropertyNames& names) const {
  for (const auto& [name, text] : properties_) {
    const TW::Guid propertyId = names.GetPropertyId(TW::UniString::FromUtf8(name));
    environment.SetValue(propertyId, ReadValue(name, text, environment));
  }
}

std::vector<std::pair<std::string_view, ExpressionValue>> CommonOptions::EvaluateProperties(
    const Settings& settings) const {
  const Environment environment(settings);
  std::vector<std::pair<std::string_view, ExpressionValue>> values;
  values.reserve(properties_.size());
  for (const auto& [name, text] : properties_) values.emplace_back(name, ReadValue(name, text, environment));
  return values;
}

}  // namespace Command
