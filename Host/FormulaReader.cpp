#include "Host/FormulaReader.hpp"

#include "EP/SyntaxErrorException.hpp"
#include "EP/SyntaxTree.hpp"
#include "Host/FormulaText.hpp"
#include "Host/NamingTreeBuilder.hpp"
#include "Host/TableTexts.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace Host {
namespace {

using TextRange = TW::Range<unsigned int>;

FormulaError MakeError(const EP::SyntaxErrorException& error, TextRange range, std::u16string_view typed,
                       std::span<const PropertyIndex> meanings) {
  if (error.GetReason() != EP::SyntaxErrorReason::RefusedReference) {
    return {FormulaErrorKind::Syntax, range, error.ToString(), error.GetReason(), {}};
  }
  const TW::UniString name(typed.substr(range.begin, range.GetLength()));
  if (meanings.empty()) {
    return {FormulaErrorKind::UnknownName, range, MakeText(TableText::UnknownName, name), std::nullopt, {}};
  }
  return {FormulaErrorKind::AmbiguousName,
          range,
          MakeText(TableText::AmbiguousName, name),
          std::nullopt,
          {meanings.begin(), meanings.end()}};
}

// The references in the order of the text, each property where it comes first.
std::vector<FormulaReference> MakeReferences(const ReferenceText& text, const std::vector<PropertyIndex>& properties) {
  std::vector<FormulaReference> references;
  references.reserve(properties.size());
  for (std::size_t i = 0; i < properties.size(); ++i) references.push_back({properties[i], text.GetReferenceRange(i)});
  if (references.size() < 2) return references;
  std::ranges::sort(references, {}, [](const FormulaReference& reference) {
    return std::pair(reference.property, reference.range.begin);
  });
  const auto doubles = std::ranges::unique(references, {}, &FormulaReference::property);
  references.erase(doubles.begin(), doubles.end());
  std::ranges::sort(references, {}, [](const FormulaReference& reference) { return reference.range.begin; });
  return references;
}

}  // namespace

ReadFormula ReadFormulaWithNames(std::u16string_view typed, const EP::IParsingLocaleSettings& settings,
                                 const PropertyCatalog& catalog) {
  ReadFormula read;
  const ReferenceText text(typed, settings);
  NamingTreeBuilder builder(catalog);
  try {
    read.expression = QX::Expression(EP::BoostGenerateSyntaxTree(text.GetText(), settings, builder));
    read.references = MakeReferences(text, builder.GetReferences());
  } catch (const EP::SyntaxErrorException& error) {
    const TextRange place{error.GetPosition(), error.GetPosition() + error.GetLength()};
    read.error = MakeError(error, text.ToTypedRange(place), typed, builder.GetRefusedMeanings());
  }
  return read;
}

}  // namespace Host
