#pragma once

#include "Host/Host.hpp"
#include "Text.hpp"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A property table that tests fill by names and texts in UTF-8.
class SmallModel {
 public:
  static TW::Guid MakeId(unsigned int number) {
    TW::Guid::Bytes bytes{0xAB};
    for (unsigned int i = 0; i < 4; ++i) bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
    return TW::Guid(bytes);
  }

  /// `name` may be `Group/Name`.
  Host::PropertyIndex Define(std::string_view name, TW::Optional<Host::PropertyKind> kind = std::nullopt) {
    const std::size_t stroke = name.find('/');
    const std::string_view group = stroke == name.npos ? "" : name.substr(0, stroke);
    const auto property = table.Define({MakeId(table.GetCatalog().GetCount() + 1),
                                        TW::UniString::FromUtf8(name.substr(stroke == name.npos ? 0 : stroke + 1)),
                                        TW::UniString::FromUtf8(group),
                                        kind,
                                        {}});
    if (!property) throw std::invalid_argument("cannot define " + std::string(name));
    return *property;
  }
  Host::PropertyIndex DefineFormula(std::string_view name, std::string_view formula,
                                    TW::Optional<Host::PropertyKind> kind = std::nullopt) {
    const Host::PropertyIndex property = Define(name, kind);
    if (const auto error = SetFormula(property, formula)) throw std::invalid_argument(error->message.ToUtf8());
    return property;
  }

  TW::Optional<Host::FormulaError> SetFormula(Host::PropertyIndex property, std::string_view formula) {
    return table.SetFormula(property, TW::UniString::FromUtf8(formula), settings);
  }
  bool SetNumber(Host::PropertyIndex property, double number, Host::ElementIndex element = 0) {
    return table.SetInput(property, element, QX::ExpressionValue::FromNumber(number));
  }
  double GetNumber(Host::PropertyIndex property, Host::ElementIndex element = 0) const {
    return table.GetValue(property, element).GetIntOrNumVariantValue();
  }
  std::string GetFormula(Host::PropertyIndex property) const {
    return table.GetFormulaText(property, settings).ToUtf8();
  }

  /// The names of properties, joined by arrows.
  std::string Show(const std::vector<Host::PropertyIndex>& properties) const {
    std::string text;
    for (const Host::PropertyIndex property : properties) {
      if (!text.empty()) text += " > ";
      text += table.GetCatalog().Get(property).name.ToUtf8();
    }
    return text;
  }

  Host::PropertyTable table;
  QX::EvaluationLocaleSettings settings{'.', ',', 0};
};
