#include "ShapeBuilder.hpp"
#include "Text.hpp"

#include <random>

namespace {

using EP::Token;
using EP::TokenKind;

const char* GetName(TokenKind kind) {
  static constexpr const char* Names[] = {"Blank", "Number",   "Unit", "Inch", "Text", "OpenText", "Ref", "OpenRef",
                                          "Name",  "Operator", "(",    ")",    "Sep",  "?",        "End"};
  return Names[static_cast<unsigned int>(kind)];
}

std::string Kinds(const TW::UniString& text, const EP::IParsingLocaleSettings& settings) {
  std::string kinds;
  EP::EnumerateTokens(text, settings, [&](const Token& token) {
    if (!kinds.empty()) kinds += ' ';
    kinds += GetName(token.kind);
    kinds += ':' + std::to_string(token.range.GetLength());
  });
  return kinds;
}

TEST(Tokenizer, TellsTheKindsApart) {
  struct Row {
    const char16_t* text;
    const char* kinds;
  };
  const Row rows[] = {
      {u"", ""},
      {u"a2<= -b", "Name:2 Operator:2 Blank:1 Operator:1 Name:1"},
      {u"<><=>=><=", "Operator:2 Operator:2 Operator:2 Operator:1 Operator:2"},
      {u"F (1,\t2.5e1 m2)", "Name:1 Blank:1 (:1 Number:1 Sep:1 Blank:1 Number:5 Blank:1 Unit:2 ):1"},
      {u"5\"a\"", "Number:1 Unit:1 Name:1 OpenText:1"},
      {u"5 \u2003'", "Number:1 Blank:2 Unit:1"},
      {u"5+ab", "Number:1 Operator:1 Name:2"},
      {u"1e5e5 1e+ .5.", "Number:3 Unit:2 Blank:1 Number:1 Unit:1 Operator:1 Blank:1 Number:2 ?:1"},
      {u"5 1/2\"5 1/2 \"5  1/2", "Inch:6 Inch:7 Number:1 Blank:2 Unit:1 Operator:1 Number:1"},
      {u"5 1 /2\"", "Number:1 Blank:1 Unit:1 Blank:1 Operator:1 Number:1 Unit:1"},
      {u"5 1/\"a\"", "Number:1 Blank:1 Unit:1 Operator:1 Text:3"},
      {u"5 /2\"a\"", "Number:1 Blank:1 Operator:1 Number:1 Unit:1 Name:1 OpenText:1"},
      {u"5. 1/2\"", "Number:2 Blank:1 Unit:1 Operator:1 Number:1 Unit:1"},
      {u"\"a\\\"\" \"b\\", "Text:5 Blank:1 OpenText:3"},
      {u"[a:b][a:\\]][a:", "Ref:5 Ref:6 OpenRef:3"},
      {u"[a]+[", "?:1 Name:1 ?:1 Operator:1 OpenRef:1"},
      {u"[a[b:c]", "?:1 Name:1 Ref:5"},
      {u"]\\_'", "?:1 ?:1 ?:1 ?:1"},
      {u"\U0001D400\xD800\xDC00\xDC00x\xD800", "?:2 ?:2 ?:1 Name:1 ?:1"},
      {u"\xD800x\xD800", "?:1 Name:1 ?:1"},
      {u"3\u0663", "Number:1 Unit:1"},
      {u"\u0085\u200B", "Blank:1 ?:1"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Kinds(row.text, EP::IOLocaleSettings()), row.kinds) << TW::UniString(row.text).ToUtf8();
  }
  EXPECT_EQ(Kinds(u"1,5;x.", TestSettings(u',', u',')), "Number:3 Sep:1 Name:1 ?:1");
}

TEST(Tokenizer, StaysAtTheEnd) {
  const TW::UniString text = u"ab";
  EP::Tokenizer tokenizer(text, EP::IOLocaleSettings());
  EXPECT_EQ(tokenizer.Next(), (Token{TokenKind::Name, {0, 2}}));
  EXPECT_EQ(tokenizer.Next(), (Token{TokenKind::End, {2, 2}}));
  EXPECT_EQ(tokenizer.Next(), (Token{TokenKind::End, {2, 2}}));
}

TEST(Tokenizer, TokensOfAnyTextTileItAndAnyTextParsesOrFailsWithinIt) {
  constexpr std::u16string_view Alphabet = u"019eE.,;:\"'\\[]()+-*/^<>= \t\u00A0amZ\u00E9\u0663#_\xD83D\xDE00";
  std::mt19937 random(20240611);
  std::uniform_int_distribution<std::size_t> pick(0, Alphabet.size() - 1);
  std::uniform_int_distribution<unsigned int> length(0, 24);
  const TestSettings settings[] = {{u'.', u','}, {u',', u';'}, {u',', u','}, {u'e', u'"'}, {u' ', u'['}};
  ShapeBuilder builder;
  for (unsigned int round = 0; round < 60'000; ++round) {
    std::u16string units(length(random), u' ');
    for (char16_t& unit : units) unit = Alphabet[pick(random)];
    const TW::UniString text(std::move(units));
    const TestSettings& used = settings[round % std::size(settings)];
    unsigned int position = 0;
    EP::EnumerateTokens(text, used, [&](const Token& token) {
      ASSERT_EQ(token.range.begin, position) << text.ToUtf8();
      ASSERT_LT(token.range.begin, token.range.end) << text.ToUtf8();
      position = token.range.end;
    });
    ASSERT_EQ(position, text.GetLength()) << text.ToUtf8();
    try {
      EXPECT_TRUE(EP::BoostGenerateSyntaxTree(text, used, builder));
    } catch (const EP::SyntaxErrorException& error) {
      ASSERT_LE(error.GetPosition() + error.GetLength(), text.GetLength()) << text.ToUtf8();
      ASSERT_EQ(error.GetLength() == 0, error.GetPosition() == text.GetLength()) << text.ToUtf8();
    }
  }
  EXPECT_EQ(livingShapeNodes, 0);
}

}  // namespace
