#pragma once

#include "EP/LocaleSettings.hpp"
#include "Host/PropertyCatalog.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionString.hpp"
#include "TW/Range.hpp"
#include "TW/UniString.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace Host {

/// A formula's text with names in brackets, made into one that the parser takes: a name `[Width]` becomes a reference
/// `[Property:Width]`, whose value is all that stood between the brackets. Texts in quotes stay as they are.
class ReferenceText {
 public:
  ReferenceText(std::u16string_view typed, const EP::IParsingLocaleSettings& settings);

  const TW::UniString& GetText() const { return text_; }
  /// Where the reference of this number stands in the typed text, from 0 and from left to right.
  TW::Range<unsigned int> GetReferenceRange(std::size_t number) const { return references_[number]; }
  /// The stretch of the typed text that a stretch of the other text comes from.
  TW::Range<unsigned int> ToTypedRange(TW::Range<unsigned int> range) const {
    return {ToTyped(range.begin), ToTyped(range.end)};
  }

 private:
  unsigned int ToTyped(unsigned int position) const;

  TW::UniString text_;
  std::vector<TW::Range<unsigned int>> references_;  ///< in the typed text
};

/// The text of a formula in the given separators, in which properties have their names, with the range of every node.
QX::ExpressionString RenderWithNames(const QX::ExpressionNode& root, const EP::IParsingLocaleSettings& settings,
                                     const PropertyCatalog& catalog);

/// Where the pieces stand that one node itself puts into that text, in order.
std::vector<TW::Range<unsigned int>> FindPieces(const QX::ExpressionNode& root, const QX::ExpressionNode& node,
                                                const EP::IParsingLocaleSettings& settings,
                                                const PropertyCatalog& catalog);

}  // namespace Host
