#include "Host/FormulaText.hpp"

#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/TextConstants.hpp"
#include "EP/Tokenizer.hpp"
#include "Host/BracketedName.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace Host {
namespace {

using TextRange = TW::Range<unsigned int>;

// By so much most texts grow.
constexpr std::size_t RoomForReferences = 128;

FormulaError MakeSyntaxError(EP::SyntaxErrorReason reason, TextRange range) {
  return {FormulaErrorKind::Syntax, range, EP::SyntaxErrorException(reason, range).ToString(), reason, {}};
}

FormulaError MakeNameError(FormulaErrorKind kind, TextRange range, const TW::UniString& message,
                           std::u16string_view reference, std::span<const PropertyIndex> bearers) {
  return {kind,
          range,
          TW::UniString::Printf(message, TW::UniString(reference)),
          std::nullopt,
          {bearers.begin(), bearers.end()}};
}

// The properties that a reference in a formula's text can mean; it should be one.
std::span<const PropertyIndex> FindMeanings(std::u16string_view reference, const TW::UniString& name,
                                            const PropertyCatalog& catalog) {
  TW::Guid id;
  const bool isGuid = name.GetView().starts_with(QX::PropertyReferenceType) &&
                      QX::IsWellFormedExpressionPropertyReference(TW::UniString(reference), &id);
  if (!isGuid) return catalog.FindByName(name);
  const PropertyIndex* property = catalog.FindById(id);
  return {property, property != nullptr ? 1U : 0U};
}

// A bracket begins a name wherever an element can begin; that it may look like another element to the tokenizer (a
// reference with a type, or a character of no meaning) does not matter.
bool BeginsReference(std::u16string_view text, const EP::Token& token) {
  return text[token.range.begin] == EP::ReferenceStart.front() && token.kind != EP::TokenKind::ListSeparator;
}

class NamingRenderer final : public QX::IExpressionStringBuilder {
 public:
  NamingRenderer(const EP::IParsingLocaleSettings& settings, const PropertyCatalog& catalog)
      : settings_(settings), catalog_(catalog) {}

  const EP::IParsingLocaleSettings& GetLocaleSettings() const override { return settings_; }
  void AppendString(const TW::UniString& text, const QX::ExpressionNode* node) override {
    TW::Guid id;
    const bool isReference =
        text.GetView().starts_with(EP::ReferenceStart) && QX::IsWellFormedExpressionPropertyReference(text, &id);
    const PropertyIndex* property = isReference ? catalog_.FindById(id) : nullptr;
    string_.Append(property != nullptr ? catalog_.MakeReference(*property) : text, node);
  }
  QX::ExpressionString TakeString() { return std::move(string_); }

 private:
  EP::NormalizedParsingLocaleSettings settings_;
  const PropertyCatalog& catalog_;
  QX::ExpressionString string_;
};

}  // namespace

TW::Optional<FormulaError> ResolvedFormulaText::Resolve(std::u16string_view typed,
                                                        const EP::IParsingLocaleSettings& settings,
                                                        const PropertyCatalog& catalog) {
  text_.Reserve(typed.size() + RoomForReferences);
  unsigned int start = 0;  // of what the tokenizer sees
  EP::Tokenizer tokenizer(typed, settings);
  for (EP::Token token = tokenizer.Next(); token.kind != EP::TokenKind::End; token = tokenizer.Next()) {
    if (!BeginsReference(typed.substr(start), token)) {
      text_ += typed.substr(start + token.range.begin, token.range.GetLength());
      continue;
    }
    const unsigned int begin = start + token.range.begin;
    const TW::Optional<BracketedName> name = ReadBracketedName(typed, begin);
    if (!name) return MakeSyntaxError(EP::SyntaxErrorReason::UnterminatedReference, {begin, begin + 1});
    const TextRange range{begin, static_cast<unsigned int>(name->end)};
    const std::u16string_view reference = typed.substr(begin, range.GetLength());
    const std::span<const PropertyIndex> meanings = FindMeanings(reference, name->name, catalog);
    if (meanings.empty()) {
      return MakeNameError(FormulaErrorKind::UnknownName, range, u"There is no property %T.", reference, {});
    }
    if (meanings.size() > 1) {
      return MakeNameError(FormulaErrorKind::AmbiguousName, range, u"Several properties are named %T.", reference,
                           meanings);
    }
    Replace(range, meanings.front(), catalog.Get(meanings.front()).id);
    start = range.end;
    tokenizer = EP::Tokenizer(typed.substr(start), settings);
  }
  return std::nullopt;
}

void ResolvedFormulaText::Replace(TextRange typed, PropertyIndex property, const TW::Guid& id) {
  const unsigned int begin = text_.GetLength();
  text_ += QX::MakeExpressionPropertyReferenceString(id);
  replacements_.push_back({typed, {begin, text_.GetLength()}, property});
  references_.Add(property);
}

TextRange ResolvedFormulaText::FindReference(PropertyIndex property) const {
  const auto found = std::ranges::find(replacements_, property, &Replacement::property);
  return found != replacements_.end() ? found->typed : TextRange();
}

// The last replacement that begins before the position.
const ResolvedFormulaText::Replacement* ResolvedFormulaText::FindLastBefore(unsigned int position) const {
  const auto next =
      std::ranges::lower_bound(replacements_, position, {}, [](const Replacement& one) { return one.resolved.begin; });
  return next == replacements_.begin() ? nullptr : &*(next - 1);
}

TextRange ResolvedFormulaText::ToTypedRange(TextRange range) const {
  const auto shift = [](unsigned int position, const Replacement* before) {
    return before == nullptr ? position : position - before->resolved.end + before->typed.end;
  };
  const Replacement* first = FindLastBefore(range.begin);
  const Replacement* last = FindLastBefore(range.end);
  const bool beginsInside = first != nullptr && range.begin < first->resolved.end;
  const bool endsInside = last != nullptr && range.end < last->resolved.end;
  return {beginsInside ? first->typed.begin : shift(range.begin, first),
          endsInside ? last->typed.end : shift(range.end, last)};
}

QX::ExpressionString RenderWithNames(const QX::ExpressionNode& root, const EP::IParsingLocaleSettings& settings,
                                     const PropertyCatalog& catalog) {
  NamingRenderer renderer(settings, catalog);
  root.BuildExpressionString(renderer);
  return renderer.TakeString();
}

}  // namespace Host
