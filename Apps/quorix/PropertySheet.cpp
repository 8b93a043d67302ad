#include "PropertySheet.hpp"

#include "Evaluation.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Quorix/ReferenceGraph.hpp"

namespace Command {

// The references as they would be if one property had another formula.
class PropertySheet::Resolver final : public QX::IExpressionReferenceResolver {
 public:
  Resolver(const PropertySheet& sheet, const TW::Guid& changed, const TW::HashSet<TW::Guid>& references)
      : sheet_(sheet), changed_(changed), references_(references) {}

  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const override {
    if (propertyId == changed_) return references_;
    const Entry* entry = sheet_.entries_.Find(propertyId);
    return entry == nullptr ? TW::HashSet<TW::Guid>() : entry->references;
  }

 private:
  const PropertySheet& sheet_;
  const TW::Guid& changed_;
  const TW::HashSet<TW::Guid>& references_;
};

PropertySheet::PropertySheet(Environment& environment) : environment_(environment) {
  for (const auto& property : environment.GetValues()) entries_.Add(property.key, {});
}

TW::Array<TW::Guid> PropertySheet::SetFormula(const TW::Guid& propertyId, const QX::Expression& formula) {
  Entry entry{formula, {}};
  QX::PropertyDirectReferenceCollector collector(&entry.references);
  formula.CollectReferencedProperties(collector);
  TW::HashSet<TW::Guid> start;
  start.Add(propertyId);
  TW::Array<TW::Guid> cycle;
  if (QX::FindCycleInReferenceGraph(Resolver(*this, propertyId, entry.references), start, &cycle)) return cycle;
  entries_.Put(propertyId, std::move(entry));
  Reevaluate();
  return {};
}

void PropertySheet::SetValue(const TW::Guid& propertyId, QX::ExpressionValue value) {
  environment_.SetValue(propertyId, std::move(value));
  entries_.Put(propertyId, {});
  Reevaluate();
}

void PropertySheet::Reevaluate() {
  for (const TW::Guid& propertyId : GetOrder()) Reevaluate(propertyId);
}

// No property waits for itself, since cycles are refused.
std::vector<TW::Guid> PropertySheet::GetOrder() const {
  TW::HashTable<TW::Guid, unsigned int> waitsFor;
  TW::HashTable<TW::Guid, std::vector<TW::Guid>> referrers;
  std::vector<TW::Guid> order;
  for (const auto& entry : entries_) {
    unsigned int count = 0;
    for (const TW::Guid& reference : entry.value.references) {
      if (!entries_.Contains(reference)) continue;
      ++count;
      referrers.Add(reference, {});
      referrers.Get(reference).push_back(entry.key);
    }
    waitsFor.Add(entry.key, count);
    if (count == 0) order.push_back(entry.key);
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    const std::vector<TW::Guid>* waiting = referrers.Find(order[i]);
    if (waiting == nullptr) continue;
    for (const TW::Guid& referrer : *waiting) {
      if (--waitsFor.Get(referrer) == 0) order.push_back(referrer);
    }
  }
  return order;
}

void PropertySheet::Reevaluate(const TW::Guid& propertyId) {
  const QX::Expression& formula = entries_.Get(propertyId).formula;
  if (!formula.IsValid()) return;
  QX::ExpressionValue value;
  const auto failure = Attempt([&] { value = formula.Evaluate(environment_); });
  if (failure || !value.IsValid()) {
    environment_.RemoveValue(propertyId);
  } else {
    environment_.SetValue(propertyId, std::move(value));
  }
}

void PropertySheet::Enumerate(const Visit& visit) const {
  for (const auto& entry : entries_) visit(entry.key, entry.value.formula.IsValid() ? &entry.value.formula : nullptr);
}

}  // namespace Command
