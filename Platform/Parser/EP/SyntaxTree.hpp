#pragma once

#include "EP/Export.hpp"
#include "EP/LocaleSettings.hpp"
#include "EP/SyntaxTreeBuilder.hpp"
#include "EP/SyntaxTreeNode.hpp"
#include "TW/Ref.hpp"
#include "TW/UniString.hpp"

namespace EP {

/// How many parentheses, calls, prefix signs and powers may be open at one place of a formula.
inline constexpr unsigned int MaximumNestingDepth = 256;

/// Reads the text of a formula into the tree that `builder` makes of it, and gives the root. The separators are those
/// of `settings`, normalized. Takes time linear in the length of the text, and no deep stack whatever the text holds.
/// Throws `SyntaxErrorException` for the first error from the left, and whatever the builder throws.
EP_EXPORT TW::Ref<SyntaxTreeNode> BoostGenerateSyntaxTreeBase(const TW::UniString& text,
                                                              const IParsingLocaleSettings& settings,
                                                              ISyntaxTreeBuilder& builder);

/// The same with the root as a `Builder::NodeType`; throws `TW::ClassCastException` when it is none.
template <class Builder>
TW::Ref<typename Builder::NodeType> BoostGenerateSyntaxTree(const TW::UniString& text,
                                                            const IParsingLocaleSettings& settings, Builder& builder) {
  return BoostGenerateSyntaxTreeBase(text, settings, builder).template CheckedCast<typename Builder::NodeType>();
}

}  // namespace EP
