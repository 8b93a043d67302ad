#pragma once

#include "Quorix/Export.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "TW/Guid.hpp"
#include "TW/HashSet.hpp"

namespace QX {

/// Gathers the properties that formulas refer to, each once, in order of first appearance.
class QX_EXPORT PropertyDirectReferenceCollector final : public IExpressionReferenceCollector {
 public:
  /// Gathers into a set of its own.
  PropertyDirectReferenceCollector() : referencedProperties_(&own_) {}
  /// Gathers into `target`, which must outlive the collector.
  explicit PropertyDirectReferenceCollector(TW::HashSet<TW::Guid>* target) : referencedProperties_(target) {}
  PropertyDirectReferenceCollector(const PropertyDirectReferenceCollector&) = delete;
  PropertyDirectReferenceCollector& operator=(const PropertyDirectReferenceCollector&) = delete;

  void PropertyReferenceFound(const TW::Guid& propertyId) override { referencedProperties_->Add(propertyId); }
  const TW::HashSet<TW::Guid>& GetReferencedProperties() const { return *referencedProperties_; }

 private:
  TW::HashSet<TW::Guid> own_;
  TW::HashSet<TW::Guid>* referencedProperties_;
};

}  // namespace QX
