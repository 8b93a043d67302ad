#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/LogUtils.hpp"
#include "TW/SystemSymbols.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using TW::UniString;

TEST(LocaleSettings, GiveTheirSeparators) {
  const QX::EvaluationLocaleSettings german(',', ';', '.');
  EXPECT_EQ(german.GetDecimalSeparator(), ',');
  EXPECT_EQ(german.GetListSeparator(), ';');
  EXPECT_EQ(german.GetThousandSeparator(), '.');

  const QX::SystemLocaleSettings system;
  EXPECT_EQ(system.GetDecimalSeparator(), TW::GetDecimalSymbol());
  EXPECT_EQ(system.GetListSeparator(), TW::GetListSeparatorSymbol());
  EXPECT_EQ(system.GetThousandSeparator(), TW::GetDigitGroupingSymbol());

  const EP::IOLocaleSettings stored;
  EXPECT_EQ(stored.GetDecimalSeparator(), 46);
  EXPECT_EQ(stored.GetListSeparator(), 44);
}

TEST(LogUtils, ShowsTheCodesOfCharacters) {
  EXPECT_EQ(QX::LogUtils::GetLogMessageForLocaleSettings(QX::EvaluationLocaleSettings(',', ';', '.')),
            UniString(u"- Decimal separator: , (charCode=44)\n- List separator: ; (charCode=59)\n"
                      u"- Thousand separator: . (charCode=46)"));
  EXPECT_EQ(QX::LogUtils::GetLogMessageForExpressionString(u"a+1"),
            UniString(u"\"a+1\" (length=3, charCodeArray={97,43,49})"));
  EXPECT_EQ(QX::LogUtils::GetLogMessageForExpressionString(u""), UniString(u"\"\" (length=0, charCodeArray={})"));
  EXPECT_EQ(QX::LogUtils::GetLogMessageForExpressionString(u"%T"),
            UniString(u"\"%T\" (length=2, charCodeArray={37,84})"));
}

}  // namespace
