#pragma once

#include "Environment.hpp"
#include "Quorix/Expression.hpp"
#include "TW/Array.hpp"
#include "TW/Guid.hpp"
#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"

#include <functional>
#include <vector>

namespace Command {

/// The properties that a person sets one after the other: values, and formulas that may refer to other properties. The
/// values of formulas go into an environment, which it keeps a reference to; a formula without a value leaves its
/// property without one.
class PropertySheet {
 public:
  /// Takes over the properties that have values already.
  explicit PropertySheet(Environment& environment);

  /// Gives a property a formula and evaluates all anew. When the formula would make properties refer to each other in a
  /// cycle, nothing changes, and the way around it comes back.
  TW::Array<TW::Guid> SetFormula(const TW::Guid& propertyId, const QX::Expression& formula);
  /// Gives a property a value and evaluates all formulas anew.
  void SetValue(const TW::Guid& propertyId, QX::ExpressionValue value);
  /// Evaluates all formulas, each after those that it refers to.
  void Reevaluate();

  /// Calls `visit` for each property in the order in which they were first set; `formula` is null for a mere value.
  using Visit = std::function<void(const TW::Guid& propertyId, const QX::Expression* formula)>;
  void Enumerate(const Visit& visit) const;

 private:
  struct Entry {
    QX::Expression formula;  ///< without a tree for a mere value
    TW::HashSet<TW::Guid> references;
  };
  class Resolver;

  std::vector<TW::Guid> GetOrder() const;
  void Reevaluate(const TW::Guid& propertyId);

  Environment& environment_;
  TW::HashTable<TW::Guid, Entry> entries_;
};

}  // namespace Command
