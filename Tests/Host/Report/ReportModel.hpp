#pragma once

#include "Host/Report/ReportScope.hpp"
#include "Host/SmallModel.hpp"
#include "TW/HashTable.hpp"

#include <numeric>
#include <string>
#include <vector>

/// Elements that a test makes up.
class FakeSource final : public Host::ElementSource {
 public:
  struct Element {
    TW::UniString name;
    TW::UniString className;
    TW::UniString globalId;
  };

  explicit FakeSource(std::vector<Element> elements) : elements_(std::move(elements)) {}

  Host::ElementIndex GetCount() const override { return static_cast<Host::ElementIndex>(elements_.size()); }
  TW::UniString GetAttribute(Host::ElementIndex element, Host::ElementAttribute attribute) const override {
    switch (attribute) {
      case Host::ElementAttribute::Name:
        return elements_[element].name;
      case Host::ElementAttribute::Class:
        return elements_[element].className;
      case Host::ElementAttribute::GlobalId:
        return elements_[element].globalId;
      default:
        return {};
    }
  }
  TW::Optional<SourceIndex> FindSource(std::u16string_view) const override { return {}; }
  TW::Optional<QX::ExpressionValue> Read(Host::ElementIndex, SourceIndex, Host::PropertyKind) const override {
    return {};
  }
  const Host::FileProblems& GetProblems() const override { return problems_; }

 private:
  std::vector<Element> elements_;
  Host::FileProblems problems_;
};

/// A table with the elements of a source, and what reports on it give.
class ReportModel : public SmallModel {
 public:
  explicit ReportModel(std::vector<FakeSource::Element> elements) : source(std::move(elements)) {
    table.AddElements(source.GetCount());
  }

  void SetLength(Host::PropertyIndex property, Host::ElementIndex element, double metres) {
    table.SetInput(property, element, QX::ExpressionValue::FromQuantity(metres, QX::UnitExponents::CreateLength()));
  }

  /// All elements and all properties, or those given.
  Host::ReportScope MakeScope(std::vector<Host::PropertyIndex> properties = {}) {
    table.Recalculate();
    std::vector<Host::ElementIndex> elements(source.GetCount());
    std::iota(elements.begin(), elements.end(), 0U);
    if (properties.empty()) {
      properties.resize(table.GetCatalog().GetCount());
      std::iota(properties.begin(), properties.end(), 0U);
    }
    return {table, source, display, std::move(elements), std::move(properties)};
  }

  FakeSource source;
  Host::DisplayText display{Host::DisplaySettings(), QX::EvaluationLocaleSettings(u'.', u',', 0)};
};

/// A sink that keeps everything, with plain blanks for those that hold a number and its unit together.
template <class Write>
std::string Collect(Write&& write) {
  std::string whole;
  write([&](std::string_view piece) { whole += piece; });
  return TW::UniString::FromUtf8(whole).ReplaceAll(u"\u00A0", u" ").ToUtf8();
}

/// Two walls and a door: of every kind of cell at least one.
struct House : ReportModel {
  House()
      : ReportModel(
            {{u"Wall 1", u"IFCWALL", u"guid1"}, {u"W\u00E4nde 2", u"IFCWALL", u"guid2"}, {u"", u"IFCDOOR", u"guid3"}}) {
    width = Define("Width", Host::PropertyKind::Length);
    depth = Define("Depth", Host::PropertyKind::Length);
    count = Define("Count", Host::PropertyKind::Integer);
    area = DefineFormula("Takeoff/Area", "[Width] * [Depth]");
    share = DefineFormula("Share", "1 m / [Count] + [Width]", Host::PropertyKind::Length);
    total = DefineFormula("Total", "2 * [Share]");
    label = DefineFormula("Label", "IF([Width] > 30 cm, \"thick\", \"thin\")", Host::PropertyKind::Text);
    const double widths[] = {0.5, 0.25, 1};
    for (Host::ElementIndex i = 0; i < 3; ++i) SetLength(width, i, widths[i]);
    SetLength(depth, 0, 4);
    table.SetInput(count, 0, QX::ExpressionValue::FromInteger(4));
    table.SetInput(count, 1, QX::ExpressionValue::FromInteger(0));
    table.SetInputFailed(count, 2);
    table.SetApplies(label, 2, false);
  }
  Host::PropertyIndex width, depth, count, area, share, total, label;
};
