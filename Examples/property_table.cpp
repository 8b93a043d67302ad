// Formulas over the elements of a model, for a program that has no property model of its own: properties by name, two
// walls, a change, a cycle that is refused, and the reason of a failure.

#include "Host/Host.hpp"

#include <cstdio>

namespace {

const QX::EvaluationLocaleSettings locale('.', ',', 0);

Host::PropertyIndex Define(Host::PropertyTable& table, const char* id, const char16_t* name,
                           TW::Optional<Host::PropertyKind> kind) {
  return *table.Define({TW::Guid(id), name, u"", kind, {}});
}

void SetFormula(Host::PropertyTable& table, Host::PropertyIndex property, const char16_t* text) {
  if (const auto error = table.SetFormula(property, text, locale)) {
    std::printf("refused at %u to %u: %s\n", error->range.begin, error->range.end, error->message.ToUtf8().c_str());
  }
}

QX::ExpressionValue Metres(double metres) {
  return QX::ExpressionValue::FromQuantity(metres, QX::UnitExponents::CreateLength());
}

void Show(const Host::PropertyTable& table, Host::PropertyIndex property, Host::ElementIndex element) {
  const QX::ExpressionValue value = table.GetValue(property, element);
  const auto report = table.GetFailureReport(property, element, locale);
  const auto text = QX::ConvertExpressionValueToString(value, table.GetSettings().converter, locale,
                                                       TWUnit::UnitMarkerMode::Legacy, 0, 12);
  std::printf("  wall %u: %s\n", element, (report ? report->message : text.value_or(u"-")).ToUtf8().c_str());
}

}  // namespace

int main() {
  using Kind = Host::PropertyKind;
  Host::PropertyTable table;
  const auto width = Define(table, "{4D1F6B60-0000-4000-8000-000000000001}", u"Width", Kind::Length);
  const auto height = Define(table, "{4D1F6B60-0000-4000-8000-000000000002}", u"Height", Kind::Length);
  const auto area = Define(table, "{4D1F6B60-0000-4000-8000-000000000003}", u"Area", Kind::Area);
  const auto ratio = Define(table, "{4D1F6B60-0000-4000-8000-000000000004}", u"Ratio", std::nullopt);
  table.AddElements(2);

  SetFormula(table, area, u"[Width] * [Height]");
  SetFormula(table, ratio, u"[Width] / [Height]");
  SetFormula(table, height, u"[Area] / 2 m");

  table.SetInput(width, 0, Metres(4));
  table.SetInput(height, 0, Metres(2.5));
  table.SetInput(width, 1, Metres(6));
  table.SetInput(height, 1, Metres(0));
  std::printf("computed: %zu cells\n", table.Recalculate());
  Show(table, area, 0);
  Show(table, ratio, 1);

  table.Rename(width, u"Length", u"");
  std::printf("the formula now: %s\n", table.GetFormulaText(area, locale).ToUtf8().c_str());

  table.SetInput(height, 1, Metres(3));
  std::printf("computed again: %zu cells\n", table.Recalculate());
  Show(table, ratio, 1);
  return 0;
}
