#pragma once

#include "Host/PropertyDefinition.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"

namespace Host {

class PropertyTable;

/// One element of a table, as formulas see it. It answers from the cells as they are and computes nothing. It keeps
/// references to the table, which must outlive it.
class ElementEnvironment final : public QX::IExpressionEvaluationEnv {
 public:
  ElementEnvironment(const PropertyTable& table, ElementIndex element) : table_(table), element_(element) {}

  /// `Evaluable` for a property that has a value, `NotYetEvaluable` for one that waits to be computed.
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid& propertyId) const override;
  /// Invalid for a property that is unknown or has no value.
  QX::ExpressionValue GetPropertyValue(const TW::Guid& propertyId) const override;
  const QX::IExpressionUnitConverter& GetUnitConverter() const override;
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override;
  bool IsUserUndefinedPropagationEnabled() const override;

 private:
  const PropertyTable& table_;
  ElementIndex element_;
};

}  // namespace Host
