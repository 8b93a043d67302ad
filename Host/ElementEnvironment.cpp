#include "Host/ElementEnvironment.hpp"

#include "Host/PropertyTable.hpp"

#include <new>

namespace Host {

const PropertyIndex* ElementEnvironment::Find(const TW::Guid& propertyId) const {
  for (const PropertyIndex& property : expected_) {
    if (table_.GetCatalog().Get(property).id == propertyId) return &property;
  }
  return table_.GetCatalog().FindById(propertyId);
}

QX::EvaluableStatus ElementEnvironment::GetPropertyEvaluableStatus(const TW::Guid& propertyId) const {
  const PropertyIndex* property = Find(propertyId);
  if (property == nullptr) return QX::EvaluableStatus::NotEvaluable;
  switch (table_.GetStatus(*property, element_)) {
    case CellStatus::Undefined:
    case CellStatus::Defined:
      return QX::EvaluableStatus::Evaluable;
    case CellStatus::NotComputed:
      return QX::EvaluableStatus::NotYetEvaluable;
    default:
      return QX::EvaluableStatus::NotEvaluable;
  }
}

QX::ExpressionValue ElementEnvironment::GetPropertyValue(const TW::Guid& propertyId) const {
  const PropertyIndex* property = Find(propertyId);
  if (property == nullptr) return QX::ExpressionValue::CreateInvalid();
  try {
    return table_.GetValue(*property, element_);
  } catch (const std::bad_alloc&) {
    hasLackedMemory_ = true;
    throw;
  }
}

const QX::IExpressionUnitConverter& ElementEnvironment::GetUnitConverter() const {
  return table_.GetSettings().converter;
}

const QX::IEvaluationLocaleSettings& ElementEnvironment::GetLocaleSettings() const {
  return table_.GetSettings().locale;
}

bool ElementEnvironment::IsUserUndefinedPropagationEnabled() const {
  return table_.GetSettings().isUndefinedPropagationEnabled;
}

unsigned int ElementEnvironment::GetLongestText() const { return PropertyTable::LongestText; }

}  // namespace Host
