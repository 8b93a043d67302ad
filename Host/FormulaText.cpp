#include "Host/FormulaText.hpp"

#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/TextConstants.hpp"
#include "EP/Tokenizer.hpp"
#include "Host/BracketedName.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"

#include <algorithm>
#include <utility>

namespace Host {
namespace {

// What comes to stand after each opening bracket.
constexpr unsigned int InsertedLength =
    static_cast<unsigned int>(QX::PropertyReferenceType.size() + EP::ReferenceSeparator.size());
// Most formulas name no more properties.
constexpr std::size_t UsualReferenceCount = 4;

// A bracket begins a name wherever it begins a token; that it may look like another token (a reference with a type, or
// a character of no meaning) does not matter.
bool BeginsReference(std::u16string_view text, const EP::Token& token) {
  return text[token.range.begin] == EP::ReferenceStart.front() && token.kind != EP::TokenKind::ListSeparator;
}

// Puts names in the place of references.
class NamingBuilder : public QX::IExpressionStringBuilder {
 public:
  NamingBuilder(const EP::IParsingLocaleSettings& settings, const PropertyCatalog& catalog)
      : settings_(settings), catalog_(catalog) {}

  const EP::IParsingLocaleSettings& GetLocaleSettings() const final { return settings_; }
  void AppendString(const TW::UniString& text, const QX::ExpressionNode* node) final {
    TW::Guid id;
    const bool isReference =
        text.GetView().starts_with(EP::ReferenceStart) && QX::IsWellFormedExpressionPropertyReference(text, &id);
    const PropertyIndex* property = isReference ? catalog_.FindById(id) : nullptr;
    Append(property != nullptr ? catalog_.MakeReference(*property) : text, node);
  }

 private:
  virtual void Append(const TW::UniString& text, const QX::ExpressionNode* node) = 0;

  EP::NormalizedParsingLocaleSettings settings_;
  const PropertyCatalog& catalog_;
};

class NamingRenderer final : public NamingBuilder {
 public:
  using NamingBuilder::NamingBuilder;
  QX::ExpressionString TakeString() { return std::move(string_); }

 private:
  void Append(const TW::UniString& text, const QX::ExpressionNode* node) override { string_.Append(text, node); }

  QX::ExpressionString string_;
};

class PieceFinder final : public NamingBuilder {
 public:
  PieceFinder(const EP::IParsingLocaleSettings& settings, const PropertyCatalog& catalog,
              const QX::ExpressionNode& wanted)
      : NamingBuilder(settings, catalog), wanted_(wanted) {}
  std::vector<TW::Range<unsigned int>> TakePieces() { return std::move(pieces_); }

 private:
  void Append(const TW::UniString& text, const QX::ExpressionNode* node) override {
    const unsigned int end = length_ + text.GetLength();
    if (node == &wanted_) pieces_.push_back({length_, end});
    length_ = end;
  }

  const QX::ExpressionNode& wanted_;
  unsigned int length_ = 0;
  std::vector<TW::Range<unsigned int>> pieces_;
};

}  // namespace

ReferenceText::ReferenceText(std::u16string_view typed, const EP::IParsingLocaleSettings& settings) {
  text_.Reserve(typed.size() + UsualReferenceCount * InsertedLength);
  unsigned int start = 0;  // of what the tokenizer sees
  EP::Tokenizer tokenizer(typed, settings);
  for (EP::Token token = tokenizer.Next(); token.kind != EP::TokenKind::End; token = tokenizer.Next()) {
    const std::u16string_view seen = typed.substr(start);
    if (!BeginsReference(seen, token)) {
      text_ += seen.substr(token.range.begin, token.range.GetLength());
      continue;
    }
    const unsigned int begin = start + token.range.begin;
    const auto end = static_cast<unsigned int>(FindBracketEnd(typed, begin));
    references_.push_back({begin, end});
    text_ += EP::ReferenceStart;
    text_ += QX::PropertyReferenceType;
    text_ += EP::ReferenceSeparator;
    text_ += typed.substr(begin + 1, end - begin - 1);
    start = end;
    tokenizer = EP::Tokenizer(typed.substr(start), settings);
  }
}

unsigned int ReferenceText::ToTyped(unsigned int position) const {
  unsigned int inserted = 0;
  for (const TW::Range<unsigned int>& reference : references_) {
    if (position <= reference.begin + inserted) break;
    inserted += InsertedLength;
    // What was inserted comes from nothing but the bracket before it.
    position = std::max(position, reference.begin + 1 + inserted);
  }
  return position - inserted;
}

QX::ExpressionString RenderWithNames(const QX::ExpressionNode& root, const EP::IParsingLocaleSettings& settings,
                                     const PropertyCatalog& catalog) {
  NamingRenderer renderer(settings, catalog);
  root.BuildExpressionString(renderer);
  return renderer.TakeString();
}

std::vector<TW::Range<unsigned int>> FindPieces(const QX::ExpressionNode& root, const QX::ExpressionNode& node,
                                                const EP::IParsingLocaleSettings& settings,
                                                const PropertyCatalog& catalog) {
  PieceFinder finder(settings, catalog, node);
  root.BuildExpressionString(finder);
  return finder.TakePieces();
}

}  // namespace Host
