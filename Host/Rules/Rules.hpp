#pragma once

#include "Host/Display/DisplaySettings.hpp"
#include "Host/PropertyKind.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Guid.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

#include <vector>

namespace Host {

/// A property that is to be computed or read for the elements of a model. Exactly one of formula, sources and constant
/// says where its values come from.
struct PropertyRule {
  TW::Guid id;
  TW::UniString name;
  TW::UniString group;
  TW::Optional<PropertyKind> kind;           ///< always there but for formulas
  TW::Optional<TW::UniString> formula;       ///< in the separators of the rules, with properties by name
  std::vector<TW::UniString> sources;        ///< the first that an element has counts
  QX::ExpressionValue constant;              ///< of the kind; invalid when there is none
  std::vector<TW::UniString> classPatterns;  ///< empty when the property applies to all elements
};

/// What people want to know of a model, and how it is shown to them.
struct Rules {
  QX::EvaluationLocaleSettings locale{u'.', u',', u','};
  DisplaySettings display;
  bool isUndefinedPropagationEnabled = false;
  std::vector<PropertyRule> properties;  ///< with ids and names of their own, none twice
};

}  // namespace Host
