#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionQuotedStringNode.hpp"
#include "Quorix/Formulas.hpp"

#include <limits>

namespace {

using QX::EvaluationLocaleSettings;
using QX::Expression;
using QX::ExpressionNode;

struct TextRow {
  const char* written;
  const char* canonical;
  const char* german;  // null where it is the same
};

constexpr TextRow TextRows[] = {
    // Numbers keep their digits; only the separator changes.
    {"5", "5", nullptr},
    {"0007", "7", nullptr},
    {"5.", "5.", "5,"},
    {".5", ".5", ",5"},
    {"5.250", "5.250", "5,250"},
    {"1.5E+03", "1.5E+03", "1,5E+03"},
    {"00.10", "00.10", "00,10"},
    {"2147483648", "2147483648", nullptr},
    {"123456789012345678901234567890", "123456789012345678901234567890", nullptr},
    {"1e-999", "1e-999", nullptr},
    // Units
    {"5m", "5 m", nullptr},
    {"5{U+2003}cm", "5 cm", nullptr},
    {"2.5m2", "2.5 m2", "2,5 m2"},
    {"5'", "5 '", nullptr},
    {"5\"", "5 \"", nullptr},
    {"1e3mm", "1e3 mm", nullptr},
    {"005 02/04\"", "5 2/4\"", nullptr},
    {"0 0/1 \"", "0 0/1\"", nullptr},
    {"1/2\"", "1 / 2 \"", nullptr},
    // Texts
    {R"("")", R"("")", nullptr},
    {R"("1.5, 2")", R"("1.5, 2")", nullptr},
    {R"("a \"b\" \\ \n")", R"("a \"b\" \\ \\n")", nullptr},
    {R"("\\\"")", R"("\\\"")", nullptr},
    {R"("\")", nullptr, nullptr},
    {"\"gr{U+00F6}{U+00DF}e {U+D83D}{U+DE00}{U+DC00}\"", "\"gr{U+00F6}{U+00DF}e {U+D83D}{U+DE00}{U+DC00}\"", nullptr},
    {"\"a{U+000D}{U+000A}b\"", "\"ab\"", nullptr},
    {"\"[Property:x]\"", "\"[Property:x]\"", nullptr},
    // Names as they are written
    {"true", "true", nullptr},
    {"Pi", "Pi", nullptr},
    // References in one form
    {"[Property:f00d0000-0000-0000-0000-000000000003]", "{3}", nullptr},
    {"[Property:{F00D0000-0000-0000-0000-000000000003}]", "{3}", nullptr},
    {"[Property:]", "[Property:00000000-0000-0000-0000-000000000000]", nullptr},
    // Operators, signs and brackets
    {"1+2*3-4/5^6", "1 + 2 * 3 - 4 / 5 ^ 6", nullptr},
    {"1<2", "1 < 2", nullptr},
    {"1<=2", "1 <= 2", nullptr},
    {"1>2", "1 > 2", nullptr},
    {"1>=2", "1 >= 2", nullptr},
    {"1=2<>3", "1 = 2 <> 3", nullptr},
    {"-1.5", "- 1.5", "- 1,5"},
    {"--+1", "- - + 1", nullptr},
    {"2--3", "2 - - 3", nullptr},
    {"2^-3^2", "2 ^ - 3 ^ 2", nullptr},
    {"(1)", "( 1 )", nullptr},
    {"((1+2.5m))*3", "( ( 1 + 2.5 m ) ) * 3", "( ( 1 + 2,5 m ) ) * 3"},
    {"-(-(1))", "- ( - ( 1 ) )", nullptr},
    // Calls by their keyword
    {"sum(1.5,2)", "SUM ( 1.5, 2 )", "SUM ( 1,5; 2 )"},
    {"Concat (\"a\")", "CONCAT ( \"a\" )", nullptr},
    {"SUM()", "SUM (  )", nullptr},
    {"-if(true,(1),sum(1.5,.5))", "- IF ( true, ( 1 ), SUM ( 1.5, .5 ) )", "- IF ( true; ( 1 ); SUM ( 1,5; ,5 ) )"},
    {"{3}*{undefined length}+{failing}", "{3} * {undefined length} + {failing}", nullptr},
};

TEST(Rendering, IsTheSameFormulaInEveryLocale) {
  const EvaluationLocaleSettings locales[] = {{'.', ',', 0}, {',', ';', '.'}, {',', ',', 0}};
  for (const TextRow& row : TextRows) {
    const TW::UniString written = FormulaWords::Replace(row.written);
    if (row.canonical == nullptr) {
      EXPECT_THROW(ParseFormula(written), EP::SyntaxErrorException) << row.written;
      continue;
    }
    const Expression parsed = ParseFormula(written);
    const StoredBytes stored = Store(parsed);
    EXPECT_EQ(Render(parsed), FormulaWords::Replace(row.canonical)) << row.written;
    for (const EvaluationLocaleSettings& locale : locales) {
      const char* expected = locale.GetDecimalSeparator() == ',' && row.german != nullptr ? row.german : row.canonical;
      const TW::UniString text = Render(parsed, locale);
      EXPECT_EQ(text, FormulaWords::Replace(expected)) << row.written;
      EXPECT_EQ(Store(ParseFormula(text, locale)), stored) << text.ToUtf8();
    }
  }
}

TEST(Rendering, NormalizesTheSeparators) {
  struct Row {
    char16_t decimal;
    char16_t list;
    const char16_t* text;
  };
  const Row rows[] = {{u'.', u',', u"SUM ( 0.5, 1 )"}, {u',', u';', u"SUM ( 0,5; 1 )"},
                      {u',', u',', u"SUM ( 0,5; 1 )"}, {u'.', u'.', u"SUM ( 0.5; 1 )"},
                      {u';', u';', u"SUM ( 0;5, 1 )"}, {u',', u'|', u"SUM ( 0,5| 1 )"}};
  const Expression formula = ParseFormula(u"SUM(0.5,1)");
  for (const Row& row : rows) {
    const EvaluationLocaleSettings locale(row.decimal, row.list, 0);
    EXPECT_EQ(Render(formula, locale), row.text);
    EXPECT_EQ(Store(ParseFormula(row.text, locale)), Store(formula)) << TW::UniString(row.text).ToUtf8();
  }
}

TEST(Rendering, SurvivesBeingStored) {
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  for (const TextRow& row : TextRows) {
    if (row.canonical == nullptr) continue;
    const Expression parsed = ParseFormula(FormulaWords::Replace(row.written));
    Expression read;
    ASSERT_EQ(ReadStored(Store(parsed), read), TW::NoErr) << row.written;
    EXPECT_EQ(Render(read), Render(parsed)) << row.written;
    EXPECT_EQ(Evaluate(read, host), Evaluate(parsed, host)) << row.written;
    EXPECT_TRUE(read.IsEqual(parsed)) << row.written;
  }
}

TEST(Rendering, TakesWhatNoTextGives) {
  const auto literal = [](int value) { return TW::MakeRef<QX::ExpressionIntegerNode>(value, TW::UniString()); };
  EXPECT_EQ(Render(Expression()), u"");
  EXPECT_EQ(Render(Expression(literal(std::numeric_limits<int>::min()))), u"-2147483648");
  EXPECT_EQ(Render(Expression(MakeNode<QX::ExpressionParenthesizedNode>())), u"(  )");
  EXPECT_EQ(Render(Expression(MakeNode<QX::ExpressionParenthesizedNode>(literal(1), literal(2)))), u"( 1, 2 )");
  EXPECT_EQ(Render(Expression(TW::MakeRef<QX::ExpressionQuotedStringNode>(u"a\r\nb\n"))), u"\"ab\"");
}

// The node at a path of child indices.
const ExpressionNode* NodeAt(const Expression& expression, const char* path) {
  const ExpressionNode* node = expression.GetRoot();
  for (; *path != '\0'; ++path) node = node->GetChild(static_cast<unsigned int>(*path - '0'));
  return node;
}

TEST(Rendering, TellsWhichNodeWroteWhat) {
  struct Row {
    const char16_t* formula;
    const char* path;
    unsigned int begin;
    const char16_t* text;
  };
  const Row rows[] = {
      {u"1.5 m", "", 0, u"1.5 m"},
      {u"\"a\\\"\"", "", 0, u"\"a\\\"\""},
      {u"5 1/2\"", "", 0, u"5 1/2\""},
      // An operator owns its sign with its blanks, a prefix sign the blank after it, brackets everything within.
      {u"1 + 23", "", 1, u" + "},
      {u"1 + 23", "0", 0, u"1"},
      {u"1 + 23", "1", 4, u"23"},
      {u"1 + 2 <= 3", "", 5, u" <= "},
      {u"1 + 2 <= 3", "0", 1, u" + "},
      {u"1 - 2 - 3", "", 5, u" - "},
      {u"1 - 2 - 3", "0", 1, u" - "},
      {u"2 ^ 3 ^ 4", "", 1, u" ^ "},
      {u"2 ^ 3 ^ 4", "1", 5, u" ^ "},
      {u"- - 5", "", 0, u"- "},
      {u"- - 5", "0", 2, u"- "},
      {u"- - 5", "00", 4, u"5"},
      {u"2 * ( 3 + 4 )", "", 1, u" * "},
      {u"2 * ( 3 + 4 )", "1", 4, u"( 3 + 4 )"},
      {u"2 * ( 3 + 4 )", "10", 7, u" + "},
      {u"2 * ( 3 + 4 )", "101", 10, u"4"},
      {u"1 + SUM ( 2, 3 * 4 )", "1", 4, u"SUM ( 2, 3 * 4 )"},
      {u"1 + SUM ( 2, 3 * 4 )", "11", 14, u" * "},
      {u"SUM (  )", "", 0, u"SUM (  )"},
      {u"( ( 1 ) )", "", 0, u"( ( 1 ) )"},
      {u"( ( 1 ) )", "0", 2, u"( 1 )"},
      {u"( ( 1 ) )", "00", 4, u"1"},
  };
  for (const Row& row : rows) {
    const Expression parsed = ParseFormula(row.formula);
    const QX::ExpressionString text = parsed.GetExpressionString(EP::IOLocaleSettings());
    const ExpressionNode* node = NodeAt(parsed, row.path);
    EXPECT_EQ(text.GetFullString(), row.formula);
    EXPECT_TRUE(text.HasNodeRange(node));
    EXPECT_EQ(text.GetNodeRange(node).begin, row.begin) << text.GetFullString().ToUtf8() << " at " << row.path;
    EXPECT_EQ(text.GetNodeString(node), row.text) << text.GetFullString().ToUtf8() << " at " << row.path;
  }
}

TEST(ExpressionString, WidensTheRangesOfNodes) {
  const auto first = MakeNode<QX::ExpressionParenthesizedNode>();
  const auto second = MakeNode<QX::ExpressionParenthesizedNode>();
  const auto empty = MakeNode<QX::ExpressionParenthesizedNode>();
  const auto stranger = MakeNode<QX::ExpressionParenthesizedNode>();
  QX::ExpressionString text;
  EXPECT_EQ(text.GetFullString(), u"");
  text.Append(u"ab", first.Get());
  text.Append(u"cd", nullptr);
  text.Append(u"", empty.Get());
  text.Append(u"e", second.Get());
  text.Append(u"f", first.Get());
  text.Append(u"g", nullptr);
  EXPECT_EQ(text.GetFullString(), u"abcdefg");
  EXPECT_EQ(text.GetNodeString(first.Get()), u"abcdef");
  EXPECT_EQ(text.GetNodeString(second.Get()), u"e");
  EXPECT_EQ(text.GetNodeRange(empty.Get()), (TW::Range<unsigned int>{4, 4}));
  EXPECT_TRUE(text.HasNodeRange(empty.Get()));
  EXPECT_EQ(text.GetNodeString(empty.Get()), u"");
  for (const ExpressionNode* none :
       {static_cast<const ExpressionNode*>(stranger.Get()), static_cast<const ExpressionNode*>(nullptr)}) {
    EXPECT_FALSE(text.HasNodeRange(none));
    EXPECT_EQ(text.GetNodeRange(none), (TW::Range<unsigned int>{0, 0}));
    EXPECT_EQ(text.GetNodeString(none), u"");
  }
}

}  // namespace
