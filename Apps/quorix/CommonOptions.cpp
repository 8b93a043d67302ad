#include "CommonOptions.hpp"

#include "CommandText.hpp"
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

void SetLanguage(const OptionValue& value) {
  const std::string_view tag = value.text;
  Resources::SetLanguage(tag);
  const bool isPlain = tag == "C" || tag == "POSIX" || tag == "root";
  if (isPlain || Resources::GetLanguage() != "root") return;
  throw UsageError(MakeText(CommandText::LanguageExpected, value.option));
}

unsigned short ReadSeparator(const OptionValue& value, bool mayBeNone) {
  const TW::UniString units = TW::UniString::FromUtf8(value.text);
  if (units.GetLength() == 1) return units[0].GetCode();
  if (!units.IsEmpty() || !mayBeNone) throw UsageError(MakeText(CommandText::CharacterExpected, value.option));
  return 0;
}

template <class Number>
Number ReadNumber(const OptionValue& value, Number maximum) {
  const std::string_view text = value.text;
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number > maximum) {
    throw UsageError(MakeText(CommandText::NumberExpected, value.option, maximum));
  }
  return number;
}

template <class Unit>
void ReadUnit(const OptionValue& name, Unit& unit) {
  if (!Host::FindUnit(TW::UniString::FromUtf8(name.text), unit))
    throw UsageError(MakeText(CommandText::UnitExpected, name.option, Host::GetUnitNames(unit)));
}

ExpressionValue ReadValue(std::string_view name, std::string_view text, const Environment& environment) {
  if (auto undefined = FindUndefinedValue(text)) return *std::move(undefined);
  Evaluation evaluation = Evaluate(TW::UniString::FromUtf8(text), environment);
  if (!evaluation.failure && evaluation.value.IsValid()) return std::move(evaluation.value);
  throw UsageError(evaluation.failure
                       ? MakeText(CommandText::WrongValueBecause, text, name, evaluation.failure->message)
                       : MakeText(CommandText::WrongValue, text, name));
}

}  // namespace

void CommonOptions::AddTo(OptionTable& options) {
  options.AddValue("locale", "TAG", "language of messages, and its separators (default: the environment's)",
                   [this](const OptionValue& tag) {
                     SetLanguage(tag);
                     locale_ = std::string(tag.text);
                   });
  AddSeparators(options);
  AddUnits(options);
  options.AddFlag("propagate-undefined", "undefined values come through everywhere",
                  [this] { propagateUndefined_ = true; });
  options.AddValue("set", "NAME=VALUE", "a property, by [NAME] or GUID: a formula or 'undefined length'",
                   [this](const OptionValue& assignment) { AddProperty(assignment); });
  options.AddFlag("json", "answers in JSON, one line each", [this] { json_ = true; });
  options.AddValue("max-memory", "MIB", "memory for everything, in MiB (default 4096; 0: no limit)",
                   [this](const OptionValue& value) {
                     mebibytes_ = ReadNumber(value, std::numeric_limits<unsigned long long>::max() >> 20);
                   });
}

void CommonOptions::AddSeparators(OptionTable& options) {
  options.AddValue("decimal", "C", "decimal separator",
                   [this](const OptionValue& value) { decimal_ = ReadSeparator(value, false); });
  options.AddValue("list", "C", "separator of arguments",
                   [this](const OptionValue& value) { list_ = ReadSeparator(value, false); });
  options.AddValue("thousand", "C", "separator of groups of digits; empty for none",
                   [this](const OptionValue& value) { thousand_ = ReadSeparator(value, true); });
}

void CommonOptions::AddUnits(OptionTable& options) {
  const auto add = [this, &options](std::string_view name, std::string_view decimalsName, std::string_view help,
                                    auto member) {
    options.AddValue(name, "U", help, [this, member](const OptionValue& value) {
      auto unit = (Host::DisplayUnits().*member).unit;
      ReadUnit(value, unit);
      unitChanges_.emplace_back([member, unit](Host::DisplayUnits& units) { (units.*member).unit = unit; });
    });
    options.AddValue(decimalsName, "N", "its decimals (default 2)", [this, member](const OptionValue& value) {
      const auto decimals = ReadNumber(value, std::numeric_limits<unsigned short>::max());
      unitChanges_.emplace_back([member, decimals](Host::DisplayUnits& units) { (units.*member).decimals = decimals; });
    });
  };
  add("length-unit", "length-decimals", "m, dm, cm, mm, ft-frac, ft-dec, ft, in-frac, in", &Host::DisplayUnits::length);
  add("area-unit", "area-decimals", "m2, cm2, mm2, ft2, in2", &Host::DisplayUnits::area);
  add("volume-unit", "volume-decimals", "m3, l, cm3, y3, ft3, in3, gal", &Host::DisplayUnits::volume);
  add("angle-unit", "angle-decimals", "degree, dms, gon, rad", &Host::DisplayUnits::angle);
}

void CommonOptions::AddProperty(const OptionValue& value) {
  const std::string_view assignment = value.text;
  const std::size_t equals = assignment.find('=');
  if (equals == assignment.npos || equals == 0) {
    throw UsageError(MakeText(CommandText::AssignmentExpected, value.option));
  }
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
