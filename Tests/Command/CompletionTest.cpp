#include "Completion.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using Command::Completion;
using TW::UniString;

std::string Join(const std::vector<UniString>& words) {
  std::string joined;
  for (const UniString& word : words) joined += (joined.empty() ? "" : " ") + word.ToUtf8();
  return joined;
}

TEST(CompletionOfFormulas, OffersWhatMayStandBeforeTheCursor) {
  const QX::EvaluationLocaleSettings settings(u'.', u',', u',');
  const std::vector<UniString> properties = {u"[Width]", u"[Wide [area\\]]", u"[Über]"};
  struct Row {
    const char16_t* beforeCursor;
    const char16_t* typed;
    const char* words;
  };
  const Row rows[] = {
      {u"", u"", ""},
      {u"1 + conc", u"conc", "CONCAT("},
      {u"tr", u"tr", "TRIM( TRUE"},
      {u"SUM(P", u"P", "POWER( PI"},
      {u"foo", u"foo", ""},
      {u"SUM(1, ", u"", ""},
      {u"\"SU", u"", ""},
      {u"2 m", u"m", "m mm m2 mm2 m3"},
      {u"2 M", u"M", ""},
      {u"2.5ga", u"ga", "gal"},
      {u"1 + 2 y", u"y", "y3"},
      {u"[wi", u"[wi", "[Width] [Wide [area\\]]"},
      {u"1 m + [", u"[", "[Width] [Wide [area\\]] [Über]"},
      {u"[ü", u"[ü", "[Über]"},
      {u"[Width]", u"", ""},
      {u"\"[Wi", u"", ""},
      {u"[x", u"[x", ""},
  };
  for (const Row& row : rows) {
    const Completion completion = Command::CompleteFormula(row.beforeCursor, settings, properties);
    EXPECT_EQ(Join(completion.words), row.words) << UniString(row.beforeCursor).ToUtf8();
    if (!completion.words.empty()) {
      EXPECT_EQ(completion.typed, UniString(row.typed));
    }
  }
  EXPECT_EQ(Command::CompleteFormula(u"2", settings, {}).words.size(), 23U);
  EXPECT_EQ(Command::CompleteFormula(u"2 ", settings, {}).words.size(), 23U);
}

TEST(CompletionOfFormulas, FindsWhatAllWordsShare) {
  EXPECT_EQ(Command::GetCommonBeginning({u"ROUND(", u"ROUNDUP(", u"ROUNDDOWN("}), UniString(u"ROUND"));
  EXPECT_EQ(Command::GetCommonBeginning({u"PI"}), UniString(u"PI"));
  EXPECT_EQ(Command::GetCommonBeginning({u"a", u"b"}), UniString());
}

}  // namespace
