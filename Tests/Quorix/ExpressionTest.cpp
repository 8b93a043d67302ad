#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/Formulas.hpp"

#include <set>

namespace {

using QX::Expression;
using QX::ExpressionNode;

// Maps each property to the one that follows.
class NextMapper final : public QX::IGuidMapper {
 public:
  TW::Guid Map(const TW::Guid& id) const override {
    TW::Guid::Bytes bytes = id.GetBytes();
    ++bytes[15];
    return TW::Guid(bytes);
  }
};

class SameMapper final : public QX::IGuidMapper {
 public:
  TW::Guid Map(const TW::Guid& id) const override { return id; }
};

class CountingCollector final : public QX::IExpressionReferenceCollector {
 public:
  void PropertyReferenceFound(const TW::Guid& propertyId) override { found.push_back(propertyId); }
  std::vector<TW::Guid> found;
};

TEST(Expression, ReplacesItsReferences) {
  Expression expression = ParseFormula(FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  expression.RestorePropertyReferences(SameMapper());
  EXPECT_EQ(Render(expression), FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  const Expression copy = expression;
  expression.RestorePropertyReferences(NextMapper());
  EXPECT_EQ(Render(expression), FormulaWords::Replace("{4} + ( {5} * {4} ) + 3"));
  EXPECT_EQ(Render(copy), FormulaWords::Replace("{3} + ( {4} * {3} ) + 3"));
  CountingCollector collector;
  expression.CollectReferencedProperties(collector);
  EXPECT_EQ(collector.found,
            (std::vector<TW::Guid>{FormulaWords::GetId("4"), FormulaWords::GetId("5"), FormulaWords::GetId("4")}));
}

TEST(Expression, TranslatesItsTexts) {
  Localization::PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadPo("msgid \"wall\"\nmsgstr \"Wand\\r\\n\\\"1\\\"\"\n\n"
                              "msgctxt \"roof\"\nmsgid \"wall\"\nmsgstr \"Mauer\"\n"),
            TW::NoErr);
  const TW::UniString text(u"\"wall\" = ( \"wall\" = \"door\" ) = TRUE = 1 m = [Property:]");
  Expression expression = ParseFormula(text);
  expression.Translate(dictionary, u"");
  EXPECT_EQ(Render(expression),
            Render(ParseFormula(u"\"Wand\\\"1\\\"\" = ( \"Wand\\\"1\\\"\" = \"door\" ) = TRUE = 1 m = [Property:]")));
  expression = ParseFormula(text);
  expression.Translate(dictionary, u"roof");
  EXPECT_EQ(Render(expression),
            Render(ParseFormula(u"\"Mauer\" = ( \"Mauer\" = \"door\" ) = TRUE = 1 m = [Property:]")));
}

TEST(Expression, WithoutATreeIsInvalid) {
  Expression none;
  EXPECT_FALSE(none.IsValid());
  EXPECT_FALSE(Expression(TW::Ref<ExpressionNode>()).IsValid());
  EXPECT_FALSE(none.Evaluate(TestHost()).IsValid());
  EXPECT_EQ(none.GetExpressionString(EP::IOLocaleSettings()).GetFullString(), u"");
  EXPECT_TRUE(none.IsValidInVersion(0));
  EXPECT_TRUE(none.IsEqual(Expression()));
  EXPECT_FALSE(none.IsEqual(ParseFormula(u"1")));
  CountingCollector collector;
  Localization::PoDictionary dictionary;
  EXPECT_THROW(none.CollectReferencedProperties(collector), TW::NullReferenceException);
  EXPECT_THROW(none.RestorePropertyReferences(SameMapper()), TW::NullReferenceException);
  EXPECT_THROW(none.Translate(dictionary, u""), TW::NullReferenceException);
  Expression copy = ParseFormula(u"1");
  copy = none;
  EXPECT_FALSE(copy.IsValid());
}

TEST(Expression, IsReadFromTheStoredText) {
  EXPECT_EQ(Render(Expression::CreateFromIOString(u"1.5+2")), u"1.5 + 2");
  for (const char16_t* text :
       {u"", u"1 +", u"1,5", u"FOO", u"5 3/2\"", u"\"[Property:00000000-0000-0000-0000-000000000000]\""}) {
    EXPECT_FALSE(Expression::CreateFromIOString(text).IsValid()) << TW::UniString(text).ToUtf8();
  }
}

TEST(Expression, IsEqualWhenItReadsTheSame) {
  struct Row {
    const char16_t* a;
    const char16_t* b;
    bool equal;
  };
  const Row rows[] = {{u"1+2", u" 1  + 2", true}, {u"1 + 2", u"2 + 1", false}, {u"true", u"TRUE", false},
                      {u"1", u"1.0", false},      {u"1 cm", u"1cm", true},     {u"\"a\"", u"\"A\"", false},
                      {u"07", u"7", true},        {u"( 1 )", u"1", false}};
  for (const Row& row : rows) {
    EXPECT_EQ(ParseFormula(row.a).IsEqual(ParseFormula(row.b)), row.equal) << TW::UniString(row.a).ToUtf8();
  }
}

TEST(Expression, KnowsTheVersionsItIsValidIn) {
  const Expression expression = ParseFormula(u"1 + 2");
  EXPECT_FALSE(expression.IsValidInVersion(0));
  EXPECT_TRUE(expression.IsValidInVersion(1));
  EXPECT_TRUE(expression.IsValidInVersion(0xFFFFFFFFU));
  const Expression late = ParseFormula(u"SUM(1, 2 * (IF(TRUE, IFS(TRUE, 1), 2)))");
  EXPECT_FALSE(late.IsValidInVersion(1));
  EXPECT_TRUE(late.IsValidInVersion(2));
}

TEST(Expression, CopiesShareNothing) {
  const TW::UniString text(u"1 + ( 2.5 cm * \"x\" ) - 5 1/2\" = PI");
  const Expression original = ParseFormula(text);
  std::set<const ExpressionNode*> nodes;
  original.GetRoot()->EnumerateRecursive([&nodes](const ExpressionNode* node) { nodes.insert(node); });
  Expression copied;
  copied.CopyFrom(original);
  Expression assigned = ParseFormula(u"42");
  assigned = original;
  const TW::Ref<TW::Object> clone = original.Clone();
  const Expression constructed = original;
  for (const Expression* copy : {static_cast<const Expression*>(&copied), static_cast<const Expression*>(&assigned),
                                 &constructed, dynamic_cast<const Expression*>(clone.Get())}) {
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(Render(*copy), text);
    copy->GetRoot()->EnumerateRecursive([&nodes](const ExpressionNode* node) { EXPECT_FALSE(nodes.contains(node)); });
  }
  Expression& self = assigned;
  assigned = self;
  EXPECT_EQ(Render(assigned), text);
  const auto shared = TW::MakeRef<QX::ExpressionIntegerNode>(5, TW::UniString());
  EXPECT_EQ(Expression(shared).GetRoot(), shared.Get());
}

}  // namespace
