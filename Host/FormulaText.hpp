#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/FormulaError.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionString.hpp"
#include "TW/HashSet.hpp"
#include "TW/Optional.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <string_view>
#include <vector>

namespace Host {

/// A formula's text in which every property is named by its GUID, made from one in which people named them.
class ResolvedFormulaText {
 public:
  /// Replaces the names of properties in `typed`, leaving texts in quotes alone. Gives the first name from the left
  /// that means no property or several; what is no formula for other reasons is left to the parser.
  TW::Optional<FormulaError> Resolve(std::u16string_view typed, const EP::IParsingLocaleSettings& settings,
                                     const PropertyCatalog& catalog);

  const TW::UniString& GetText() const { return text_; }
  /// The properties named, each once, in the order of the text.
  const TW::HashSet<PropertyIndex>& GetReferences() const { return references_; }
  /// Where the text that was typed names the property first.
  TW::Range<unsigned int> FindReference(PropertyIndex property) const;
  /// The stretch of the typed text that a stretch of the resolved text comes from.
  TW::Range<unsigned int> ToTypedRange(TW::Range<unsigned int> range) const;

 private:
  struct Replacement {
    TW::Range<unsigned int> typed;
    TW::Range<unsigned int> resolved;
    PropertyIndex property;
  };

  void Replace(TW::Range<unsigned int> typed, PropertyIndex property, const TW::Guid& id);
  const Replacement* FindLastBefore(unsigned int position) const;

  TW::UniString text_;
  std::vector<Replacement> replacements_;
  TW::HashSet<PropertyIndex> references_;
};

/// The text of a formula in the given separators, in which properties have their names, with the range of every node.
QX::ExpressionString RenderWithNames(const QX::ExpressionNode& root, const EP::IParsingLocaleSettings& settings,
                                     const PropertyCatalog& catalog);

}  // namespace Host
