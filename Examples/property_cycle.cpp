// Four properties of a wall whose formulas refer to each other. A host checks each of them for a cycle before it
// evaluates it, and shows the way into a cycle by the names that people know.

#include "Quorix/CalcUnitSettings.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionValueToString.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Quorix/ReferenceGraph.hpp"

#include <cstdio>
#include <map>
#include <string>

namespace {

struct Property {
  const char* name;
  QX::Expression formula;
};

// The host: it keeps the properties and answers what the library asks.
class Wall final : public QX::IExpressionEvaluationEnv, public QX::IExpressionReferenceResolver {
 public:
  void Set(const char* id, const char* name, const char16_t* formula) {
    properties_[TW::Guid(id)] = {name, QX::Expression::CreateFromIOString(formula)};
  }

  const Property& Get(const TW::Guid& id) const { return properties_.at(id); }
  const std::map<TW::Guid, Property>& GetProperties() const { return properties_; }

  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& id) const override {
    QX::PropertyDirectReferenceCollector collector;
    Get(id).formula.CollectReferencedProperties(collector);
    return collector.GetReferencedProperties();
  }

  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  // Only called where no cycle was found, so that this ends.
  QX::ExpressionValue GetPropertyValue(const TW::Guid& id) const override { return Get(id).formula.Evaluate(*this); }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return converter_; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return locale_; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  std::map<TW::Guid, Property> properties_;
  QX::EvaluationLocaleSettings locale_{'.', ',', ','};
  QX::ExpressionUnitConverter converter_{QX::CalcUnitSettings(
      QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 1}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
      QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 2}))};
};

std::string JoinNames(const Wall& wall, const TW::Array<TW::Guid>& path) {
  std::string names;
  for (const TW::Guid& id : path) names += (names.empty() ? "" : " -> ") + std::string(wall.Get(id).name);
  return names;
}

std::string Show(const Wall& wall, const TW::Guid& id) {
  TW::HashSet<TW::Guid> start;
  start.Add(id);
  TW::Array<TW::Guid> cycle;
  if (QX::FindCycleInReferenceGraph(wall, start, &cycle)) return "cycle: " + JoinNames(wall, cycle);
  const auto text = QX::ConvertExpressionValueToString(wall.GetPropertyValue(id), wall.GetUnitConverter(),
                                                       wall.GetLocaleSettings(), TWUnit::UnitMarkerMode::Legacy, 0, 12);
  return text ? text->ToUtf8() : "-";
}

void ShowAll(const Wall& wall) {
  for (const auto& [id, property] : wall.GetProperties()) {
    std::printf("  %-7s %s\n", property.name, Show(wall, id).c_str());
  }
}

}  // namespace

int main() {
  const char* const length = "{4D1F6B60-0000-4000-8000-000000000001}";
  const char* const height = "{4D1F6B60-0000-4000-8000-000000000002}";
  const char* const area = "{4D1F6B60-0000-4000-8000-000000000003}";
  const char* const cost = "{4D1F6B60-0000-4000-8000-000000000004}";

  Wall wall;
  wall.Set(length, "Length", u"12.65 m");
  wall.Set(height, "Height", u"9.5 ft");
  wall.Set(area, "Area",
           u"[Property:4D1F6B60-0000-4000-8000-000000000001] * [Property:4D1F6B60-0000-4000-8000-000000000002]");
  wall.Set(cost, "Cost", u"[Property:4D1F6B60-0000-4000-8000-000000000003] / 1 m ^ 2 * 84.5");
  ShowAll(wall);

  std::printf("\nHeight = Area / Length:\n");
  wall.Set(height, "Height",
           u"[Property:4D1F6B60-0000-4000-8000-000000000003] / [Property:4D1F6B60-0000-4000-8000-000000000001]");
  ShowAll(wall);
  return 0;
}
