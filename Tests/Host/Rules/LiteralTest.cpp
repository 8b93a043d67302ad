#include "Host/Display/DisplayText.hpp"
#include "Host/FormulaReader.hpp"
#include "Host/Literal.hpp"
#include "Host/PropertyTable.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using QX::ExpressionValue;

// The value of a formula that refers to nothing.
ExpressionValue Evaluate(const TW::UniString& text, const QX::EvaluationLocaleSettings& settings) {
  Host::PropertyTable table;
  table.Define({TW::Guid("AB000000-0000-0000-0000-000000000001"), u"A", {}, std::nullopt, {}});
  table.AddElements(1);
  if (table.SetFormula(0, text, settings)) return {};
  table.Recalculate();
  return table.GetValue(0, 0);
}

TEST(Literal, IsWhatTheFormulaWouldBe) {
  const QX::EvaluationLocaleSettings english{u'.', u',', 0};
  const QX::EvaluationLocaleSettings german{u',', u';', u'.'};
  struct Row {
    const char16_t* text;
    bool isGerman = false;
  };
  const Row rows[] = {
      {u"0"},           {u"12"},       {u"-12"},   {u"+ 3"},     {u"2147483647"}, {u"-2147483648"},
      {u"99999999999"}, {u"1.5"},      {u".5"},    {u"-0.5e-3"}, {u"1e3 cm"},     {u"3.5 m"},
      {u"3,5m", true},  {u"-50 cm"},   {u"2 m2"},  {u"1 l"},     {u"90 D"},       {u"5'"},
      {u"5 1/2\""},     {u"-5 1/2\""}, {u" 7 \t"}, {u"TRUE"},    {u"false"},      {u"1,5 gal", true},
  };
  for (const Row& row : rows) {
    const QX::EvaluationLocaleSettings& settings = row.isGerman ? german : english;
    const ExpressionValue value = Host::ReadLiteral(row.text, settings);
    const ExpressionValue expected = Evaluate(row.text, settings);
    ASSERT_TRUE(expected.IsValid()) << TW::UniString(row.text).ToUtf8();
    EXPECT_TRUE(value.IsValid() && ExpressionValue::AreEqualByContent(value, expected))
        << TW::UniString(row.text).ToUtf8();
    EXPECT_EQ(value.GetUnitExponents(), expected.GetUnitExponents()) << TW::UniString(row.text).ToUtf8();
  }
}

TEST(Literal, IsNothingElse) {
  const char16_t* const texts[] = {u"",         u" ",     u"1 + 1",     u"=1",       u"--1",
                                   u"-TRUE",    u"PI",    u"abc",       u"[A]",      u"(1)",
                                   u"\"text\"", u"1 2",   u"1 m 50 cm", u"3 parsec", u"12.5%",
                                   u"SUM(1)",   u"1,5",   u"1e999",     u"5 3/2\"",  u"9999999999 1/2\"",
                                   u"-",        u"1.2.3", u"TRUE 1",    u"3 m m"};
  for (const char16_t* text : texts) {
    EXPECT_FALSE(Host::ReadLiteral(text, QX::EvaluationLocaleSettings{u'.', u',', 0}).IsValid())
        << TW::UniString(text).ToUtf8();
  }
}

}  // namespace
