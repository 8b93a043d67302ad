#pragma once

#include "Host/PropertyDefinition.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <span>

namespace Host {

class PropertyTable;

/// One element of a table, as formulas see it. It answers from the cells as they are and computes nothing. It keeps
/// references to the table, which must outlive it.
class ElementEnvironment final : public QX::IExpressionEvaluationEnv {
 public:
  ElementEnvironment(const PropertyTable& table, ElementIndex element) : table_(table), element_(element) {}
  /// `expected` are the properties that will be asked for; the answers are the same, but come sooner. It must outlive
  /// the environment.
  ElementEnvironment(const PropertyTable& table, ElementIndex element, std::span<const PropertyIndex> expected)
      : table_(table), element_(element), expected_(expected.first(std::min(expected.size(), MaximumExpected))) {}

  /// `Evaluable` for a property that has a value, `NotYetEvaluable` for one that waits to be computed.
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid& propertyId) const override;
  /// Invalid for a property that is unknown or has no value.
  QX::ExpressionValue GetPropertyValue(const TW::Guid& propertyId) const override;
  const QX::IExpressionUnitConverter& GetUnitConverter() const override;
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override;
  bool IsUserUndefinedPropagationEnabled() const override;
  /// `PropertyTable::LongestText`.
  unsigned int GetLongestText() const override;

  /// Whether a value could not be given for want of memory.
  bool HasLackedMemory() const { return hasLackedMemory_; }

 private:
  // A few comparisons are cheaper than the way through the table of GUIDs, many are not.
  static constexpr std::size_t MaximumExpected = 6;

  const PropertyIndex* Find(const TW::Guid& propertyId) const;

  const PropertyTable& table_;
  ElementIndex element_;
  std::span<const PropertyIndex> expected_;
  mutable std::atomic<bool> hasLackedMemory_ = false;
};

}  // namespace Host
