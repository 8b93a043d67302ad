#include "Host/Report/IfcReport.hpp"

#include "Host/Ifc/IfcWriter.hpp"

#include <string_view>
#include <vector>

namespace Host {
namespace {

constexpr std::u16string_view SetWithoutGroup = u"Quorix";

IfcKind ToIfcKind(PropertyKind kind) {
  switch (kind) {
    case PropertyKind::Number:
      return IfcKind::Number;
    case PropertyKind::Integer:
      return IfcKind::Integer;
    case PropertyKind::Length:
      return IfcKind::Length;
    case PropertyKind::Area:
      return IfcKind::Area;
    case PropertyKind::Volume:
      return IfcKind::Volume;
    case PropertyKind::Angle:
      return IfcKind::Angle;
    case PropertyKind::Text:
      return IfcKind::Text;
    default:
      return IfcKind::Logical;
  }
}

class ComputedProperties {
 public:
  explicit ComputedProperties(const ReportScope& scope) : scope_(scope), isChosen_(scope.table.GetElementCount()) {
    for (const ElementIndex element : scope.elements) isChosen_[element] = true;
    for (const PropertyIndex property : scope.properties) {
      if (scope.table.HasFormula(property)) properties_.push_back(property);
    }
  }

  std::vector<IfcAddedProperty> Make(ElementIndex element) const {
    std::vector<IfcAddedProperty> added;
    if (element >= isChosen_.size() || !isChosen_[element]) return added;
    for (const PropertyIndex property : properties_) {
      const QX::ExpressionValue value = scope_.table.GetValue(property, element);
      if (value.IsValid()) added.push_back(MakeProperty(property, value));
    }
    return added;
  }

 private:
  IfcAddedProperty MakeProperty(PropertyIndex property, const QX::ExpressionValue& value) const {
    const PropertyDefinition& definition = scope_.table.GetCatalog().Get(property);
    const TW::UniString set = definition.group.IsEmpty() ? TW::UniString(SetWithoutGroup) : definition.group;
    const TW::Optional<PropertyKind> kind = definition.kind ? definition.kind : FindKindOf(value);
    if (kind) return {set, definition.name, {ToIfcKind(*kind), value}};
    return {set, definition.name, {IfcKind::Text, MakeText(value)}};
  }

  QX::ExpressionValue MakeText(const QX::ExpressionValue& value) const {
    if (value.IsUserUndefined()) return MakeUndefinedValue(PropertyKind::Text);
    return QX::ExpressionValue::FromString(scope_.display.Make(value));
  }

  const ReportScope& scope_;
  std::vector<bool> isChosen_;
  std::vector<PropertyIndex> properties_;
};

}  // namespace

TW::ErrCode WriteIfcReport(const ReportScope& scope, const IfcModel& model, const std::string& path) {
  const ComputedProperties properties(scope);
  return WriteIfcModel(model, path, [&](IfcModel::Element element) { return properties.Make(element); });
}

}  // namespace Host
