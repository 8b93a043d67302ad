#pragma once

#include "Host/Display/DisplayText.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Settings.hpp"
#include "TW/Guid.hpp"
#include "TW/HashTable.hpp"

namespace Command {

/// The host that the command is: settings, and properties whose values the caller gave. A property that it does not
/// know has no value.
class Environment final : public QX::IExpressionEvaluationEnv {
 public:
  explicit Environment(const Settings& settings);

  /// Takes other settings and forgets all properties.
  void Reset(const Settings& settings);
  /// Takes other settings and keeps the properties.
  void SetSettings(const Settings& settings);
  void SetValue(const TW::Guid& propertyId, QX::ExpressionValue value) { values_.Put(propertyId, std::move(value)); }
  void SetStatus(const TW::Guid& propertyId, QX::EvaluableStatus status) { statuses_.Put(propertyId, status); }
  /// Makes the property one that has no value.
  void RemoveValue(const TW::Guid& propertyId) { values_.Remove(propertyId); }

  /// The properties that have values.
  const TW::HashTable<TW::Guid, QX::ExpressionValue>& GetValues() const { return values_; }
  const Settings& GetSettings() const { return settings_; }
  /// What shows values as the settings ask.
  const Host::DisplayText& GetDisplay() const { return display_; }

  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid& propertyId) const override;
  /// Throws `TW::IllegalReferenceException` for a property without a value.
  QX::ExpressionValue GetPropertyValue(const TW::Guid& propertyId) const override { return values_.Get(propertyId); }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return display_.GetConverter(); }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return settings_.locale; }
  bool IsUserUndefinedPropagationEnabled() const override { return settings_.propagateUndefined; }

 private:
  Settings settings_;
  Host::DisplayText display_;
  TW::HashTable<TW::Guid, QX::ExpressionValue> values_;
  TW::HashTable<TW::Guid, QX::EvaluableStatus> statuses_;
};

}  // namespace Command
